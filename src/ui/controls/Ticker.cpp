#include "ui/controls/Ticker.h"

#include "ui/compat.h"

#include <QEvent>
#include <QTimerEvent>
#include <QWidget>

namespace ui {

Ticker::Ticker(QWidget* widget, std::function<void()> tick, Motion motion)
    : QObject(widget), m_widget(widget), m_tick(std::move(tick)), m_motion(motion) {
  m_widget->installEventFilter(this);
  watchWindow();
  if (m_motion == Motion::Decorative) compat::watchReducedMotion(this, [this] { update(); });
}

void Ticker::setRunning(bool on) {
  m_wanted = on;
  update();
}

bool Ticker::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
  case QEvent::Show:
    watchWindow(); // it may have come into another window since
    [[fallthrough]];
  case QEvent::Hide:
  case QEvent::WindowStateChange:
    update();
    break;
  default:
    break;
  }
  return QObject::eventFilter(watched, event);
}

void Ticker::timerEvent(QTimerEvent* event) {
  if (event->timerId() == m_timer.timerId()) m_tick();
}

void Ticker::watchWindow() {
  QWidget* window = m_widget->window();
  if (window == m_window) return;
  if (m_window && m_window != m_widget) m_window->removeEventFilter(this);
  m_window = window;
  m_window->installEventFilter(this);
}

void Ticker::update() {
  const bool shown = m_widget->isVisible() && !m_widget->window()->isMinimized();
  const bool still = m_motion == Motion::Decorative && compat::reducedMotion();
  const bool beat = m_wanted && shown && !still;
  if (beat == m_timer.isActive()) return;
  if (beat)
    m_timer.start(kIntervalMs, this);
  else
    m_timer.stop();
}

} // namespace ui
