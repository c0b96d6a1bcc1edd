/// A small badge around one label, as wide as its text where there is room.
#pragma once

#include "ui/accessible.h"

#include <QWidget>

class QLabel;

namespace ui {

struct ChipLayout {
  QRectF body;
  QRectF halo; ///< around the status dot, before the text
  QRectF dot;
};
/// @param size  of the whole chip
[[nodiscard]] ChipLayout chipLayout(const QSize& size, Qt::LayoutDirection direction = Qt::LeftToRight);

class Chip : public QWidget, public AccessibleText {
  Q_OBJECT

 public:
  /// Whether a status dot stands before the text.
  enum class Dot { None, Good };

  /// @param text  the chip becomes its parent
  explicit Chip(QLabel* text, Dot dot = Dot::None, QWidget* parent = nullptr);

  [[nodiscard]] QLabel* text() const { return m_text; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QString shownText() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* m_text;
  Dot m_dot;
};

} // namespace ui
