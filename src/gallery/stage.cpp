#include "gallery/stage.h"

#include "ui/Theme.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QTimer>

namespace gallery {

namespace {

class FirstShow : public QObject {
 public:
  FirstShow(QWidget* control, std::function<void()> act) : QObject(control), m_act(std::move(act)) {
    control->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show) {
      watched->removeEventFilter(this);
      QTimer::singleShot(0, this, m_act);
    }
    return false;
  }

 private:
  std::function<void()> m_act;
};

} // namespace

// Some controls ask whether the pointer is over them, some go by the hover, some by the moves.
void pointAt(QWidget* control, const QPointF& place) {
  control->ensurePolished();
  control->setAttribute(Qt::WA_UnderMouse);
  QHoverEvent hover(QEvent::HoverMove, place, place, place);
  QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(control, &hover);
  QCoreApplication::sendEvent(control, &move);
}

void onceShown(QWidget* control, std::function<void()> act) { new FirstShow(control, std::move(act)); }

void inEveryLook(QWidget* control, const std::function<void()>& set) {
  QObject::connect(&Theme::get(), &Theme::changed, control, set);
  set();
}

void giveFocus(QWidget* control, QWidget* keeper) {
  QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
  QCoreApplication::sendEvent(control, &byTab);
  control->setFocusProxy(keeper);
}

} // namespace gallery
