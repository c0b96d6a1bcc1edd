/// The keyboard's focus ring around buttons, check boxes and switches, which have no room for one of their own.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>

class QFocusFrame;
class QWidget;

namespace ui {

class KeyboardFocus;

struct FocusRingLayout {
  QRect frame; ///< in the coordinates of the widget's parent
  QRectF ring; ///< the middle of the ring's line, in the frame
};
/// @param widget  geometry of what the ring goes around
[[nodiscard]] FocusRingLayout focusRingLayout(const QRect& widget);

/// Owned by the widget that it goes around. The ring itself is a sibling that lies over it, which the mouse and screen
/// readers don't see; it is there while it is to be seen, so while the widget has the focus from the keyboard. The
/// dynamic property showFocus asks for the ring whichever way the focus came.
class FocusRing : public QObject {
  Q_OBJECT

 public:
  explicit FocusRing(QWidget* widget);
  ~FocusRing() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool isWanted() const;
  void refresh();
  void dropFrame();

  QWidget* m_widget;
  KeyboardFocus* m_focus;
  QPointer<QFocusFrame> m_frame;
};

/// An event filter for the whole application: gives every push button, check box and radio button its ring when it
/// first takes the focus.
class FocusRings : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace ui
