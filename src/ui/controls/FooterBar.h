/// The floating bar at a page's foot.
#pragma once

#include <QRectF>
#include <QWidget>

class QHBoxLayout;
class QPainter;

namespace ui {

/// The body that a bar of this size paints; the rest is room for its shadow.
/// @param mac  which of the two metric sets
[[nodiscard]] QRectF footerBody(const QSize& size, bool mac);

/// Its row lies inside the body.
class FooterBar : public QWidget {
  Q_OBJECT

 public:
  explicit FooterBar(QWidget* parent = nullptr);

  /// What the caller fills.
  [[nodiscard]] QHBoxLayout* row() const { return m_row; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QHBoxLayout* m_row;
};

} // namespace ui
