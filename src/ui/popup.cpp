#include "ui/popup.h"

#include "ui/desktop.h"

#include <QPainterPath>
#include <QRegion>
#include <QWidget>

namespace ui {

bool trimWithoutCompositor(QWidget* popup, const QRectF& body, double radius) {
  if (desktop::hasCompositor()) {
    if (!popup->mask().isEmpty()) popup->clearMask();
    return false;
  }
  QPainterPath outline;
  outline.addRoundedRect(body, radius, radius);
  popup->setMask(QRegion(outline.toFillPolygon().toPolygon()));
  return true;
}

} // namespace ui
