#include "ui/controls/PaintedButton.h"

#include "ui/Theme.h"
#include "ui/controls/KeyboardFocus.h"

#include <QKeyEvent>

namespace ui {
namespace {

constexpr double kRingInset = 4; // px; there is no room around the button

} // namespace

PaintedButton::PaintedButton(QWidget* parent) : QAbstractButton(parent), m_focus(new KeyboardFocus(this)) {
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void PaintedButton::paintFocus(QPainter* painter, double radius) const {
  m_focus->paintRing(painter, QRectF(rect()).adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset),
                     radius - kRingInset);
}

void PaintedButton::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter) return QAbstractButton::keyPressEvent(event);
  if (!event->isAutoRepeat()) click();
}

void PaintedButton::enterEvent(QEnterEvent* event) {
  setHovered(true);
  QAbstractButton::enterEvent(event);
}

void PaintedButton::leaveEvent(QEvent* event) {
  setHovered(false);
  QAbstractButton::leaveEvent(event);
}

void PaintedButton::setHovered(bool on) {
  m_hovered = on;
  update();
}

} // namespace ui
