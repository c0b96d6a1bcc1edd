/// Whether a widget has the focus from the keyboard, for a ring that a mouse never shows.
#pragma once

#include <QFocusEvent>
#include <QObject>

class QPainter;
class QRectF;
class QWidget;

namespace ui {

/// Owned by the widget that it watches; repaints it when the answer changes. A press of a mouse button takes the ring
/// away, a key or a focus that came by Tab, Backtab or a shortcut shows it.
class KeyboardFocus : public QObject {
 public:
  explicit KeyboardFocus(QWidget* widget);
  [[nodiscard]] bool isVisible() const { return m_visible; }
  /// The ring around @p rect (three pixels of the soft accent, 2 outside), if it is to be shown.
  void paintRing(QPainter* painter, const QRectF& rect, double radius) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void focusCame(Qt::FocusReason reason);
  void focusWent(Qt::FocusReason reason);
  void setVisible(bool on);

  QWidget* m_widget;
  bool m_visible = false;
  bool m_before = false; ///< was shown when the focus left with the window, and will be again
};

} // namespace ui
