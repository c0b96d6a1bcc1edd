#include "ui/controls/KeyboardFocus.h"

#include "ui/Theme.h"
#include "ui/paint.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

namespace ui {

namespace {

constexpr double kRingWidth = 3;
constexpr double kRingGap = 2;

bool isByKeyboard(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

/// The focus goes or comes with the whole window, or with a menu over it: what was shown before is shown again.
bool isPassing(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

/// Keys that are held for something else, a click for example.
bool isModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
         key == Qt::Key_Meta;
}

} // namespace

KeyboardFocus::KeyboardFocus(QWidget* widget, std::function<void()> changed)
    : QObject(widget), m_widget(widget), m_changed(std::move(changed)) {
  widget->installEventFilter(this);
}

void KeyboardFocus::paintRing(QPainter* painter, const QRectF& rect, double radius) const {
  if (m_visible) paintRingAround(painter, rect, radius, Strength::Full);
}

void KeyboardFocus::paintRingAround(QPainter* painter, const QRectF& rect, double radius, Strength strength) {
  const QRectF ring = rect.adjusted(-kRingGap, -kRingGap, kRingGap, kRingGap);
  const Theme& theme = Theme::get();
  paint::roundedRect(painter, ring, radius + kRingGap, Qt::NoBrush, paint::pen(theme.accentSoft, kRingWidth));
  if (strength == Strength::Full)
    paint::roundedRect(painter, ring, radius + kRingGap, Qt::NoBrush, paint::pen(theme.accent));
}

bool KeyboardFocus::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
  case QEvent::FocusIn:
    focusCame(static_cast<QFocusEvent*>(event)->reason());
    break;
  case QEvent::FocusOut:
    focusWent(static_cast<QFocusEvent*>(event)->reason());
    break;
  case QEvent::MouseButtonPress:
    setVisible(false);
    break;
  case QEvent::KeyPress:
    if (m_widget->hasFocus() && !isModifier(static_cast<QKeyEvent*>(event)->key())) setVisible(true);
    break;
  default:
    break;
  }
  return QObject::eventFilter(watched, event);
}

void KeyboardFocus::focusCame(Qt::FocusReason reason) {
  setVisible(isByKeyboard(reason) || (isPassing(reason) && m_before));
  m_before = false;
}

void KeyboardFocus::focusWent(Qt::FocusReason reason) {
  m_before = m_visible && isPassing(reason);
  setVisible(false);
}

void KeyboardFocus::setVisible(bool on) {
  if (on == m_visible) return;
  m_visible = on;
  m_widget->update();
  if (m_changed) m_changed();
}

} // namespace ui
