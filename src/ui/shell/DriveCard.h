/// The small disk gauge of the sidebar.
#pragma once

#include "ui/accessible.h"

#include <QBrush>
#include <QRectF>
#include <QWidget>

class AppState;

namespace ui {

struct DriveCardLayout {
  QRectF body;   ///< null when compact
  QRectF circle; ///< the middle of the ring's stroke
  double stroke = 0;
  QRectF name; ///< null when compact, as is the next
  QRectF free;
};
[[nodiscard]] DriveCardLayout driveCardLayout(const QSize& size, bool compact,
                                              Qt::LayoutDirection direction = Qt::LeftToRight);
/// What the ring's arc is painted with, for a used part between 0 and 1.
[[nodiscard]] QBrush driveRingBrush(double used, const QRectF& circle);

class DriveCard : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  explicit DriveCard(AppState* state, QWidget* parent = nullptr);

  /// The ring alone.
  void setCompact(bool compact);

  [[nodiscard]] QString valueText() const override;
  [[nodiscard]] double valueFraction() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void refresh();
  void paintRing(QPainter* painter, const DriveCardLayout& layout) const;
  void paintTexts(QPainter* painter, const DriveCardLayout& layout) const;

  AppState* m_state;
  bool m_compact = false;
};

} // namespace ui
