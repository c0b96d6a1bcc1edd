/// Whether a widget has the focus from the keyboard, for a ring that a mouse never shows.
#pragma once

#include <QFocusEvent>
#include <QObject>

#include <functional>

class QPainter;
class QRectF;
class QWidget;

namespace ui {

/// Owned by the widget that it watches; repaints it when the answer changes. A press of a mouse button takes the ring
/// away, a key or a focus that came by Tab, Backtab or a shortcut shows it.
class KeyboardFocus : public QObject {
 public:
  /// @param changed  called, if not empty, when the answer changes
  explicit KeyboardFocus(QWidget* widget, std::function<void()> changed = {});
  [[nodiscard]] bool isVisible() const { return m_visible; }
  /// The ring around @p rect, if it is to be shown: three pixels of the soft accent, 2 outside, and a fine line of the
  /// full accent in their middle, without which it could hardly be seen.
  void paintRing(QPainter* painter, const QRectF& rect, double radius) const;

  enum class Strength { Soft, Full };
  /// That ring, whether it is to be shown or not; a soft one without its fine line.
  static void paintRingAround(QPainter* painter, const QRectF& rect, double radius, Strength strength);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void focusCame(Qt::FocusReason reason);
  void focusWent(Qt::FocusReason reason);
  void setVisible(bool on);

  QWidget* m_widget;
  std::function<void()> m_changed;
  bool m_visible = false;
  bool m_before = false; ///< was shown when the focus left with the window, and will be again
};

} // namespace ui
