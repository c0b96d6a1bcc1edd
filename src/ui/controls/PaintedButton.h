/// The base of buttons that paint all of themselves: hover, Enter, and repaints.
#pragma once

#include <QAbstractButton>

namespace ui {

class KeyboardFocus;

/// Space and Enter press it. It repaints when the mouse comes and goes, when the ring of the keyboard does, and when
/// the theme changes.
class PaintedButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit PaintedButton(QWidget* parent = nullptr);

 protected:
  /// Whether the mouse is over it.
  [[nodiscard]] bool isHovered() const { return m_hovered; }
  /// The ring of the keyboard, along the inside of the edge, if it is to be shown.
  /// @param radius  corner radius of the button
  void paintFocus(QPainter* painter, double radius) const;

  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void setHovered(bool on);

  bool m_hovered = false;
  KeyboardFocus* m_focus;
};

} // namespace ui
