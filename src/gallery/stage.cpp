#include "gallery/stage.h"

#include <QCoreApplication>
#include <QFocusEvent>

namespace gallery {

void giveFocus(QWidget* control, QWidget* keeper) {
  QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
  QCoreApplication::sendEvent(control, &byTab);
  control->setFocusProxy(keeper);
}

} // namespace gallery
