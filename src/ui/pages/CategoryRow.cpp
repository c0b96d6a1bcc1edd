#include "ui/pages/CategoryRow.h"

#include "ui/Theme.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"

#include <QKeyEvent>
#include <QPainter>

namespace ui {

namespace {
// Lengths in pixels.
constexpr double kRadius = 10;
constexpr double kRingInset = 4; // the ring lies inside, as the next row is close
} // namespace

CategoryRow::CategoryRow(QWidget* parent) : QWidget(parent), m_focus(new KeyboardFocus(this)) {
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::StrongFocus);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

bool CategoryRow::isKeyboardFocused() const { return m_focus->isVisible(); }

void CategoryRow::press() {
  const auto call = onClick; // the row may be taken out of its list meanwhile
  if (call) call();
}

bool CategoryRow::event(QEvent* event) {
  if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) update();
  return QWidget::event(event);
}

void CategoryRow::mouseReleaseEvent(QMouseEvent* event) {
  if (rect().contains(event->position().toPoint())) press();
}

void CategoryRow::keyPressEvent(QKeyEvent* event) {
  if (!pressFrom(this, event)) QWidget::keyPressEvent(event);
}

void CategoryRow::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const QRectF body = paint::hairline(rect());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (active)
    paint::roundedRect(&painter, body, kRadius, theme.dark ? theme.cardHover : theme.surface,
                       paint::pen(theme.lineStrong));
  else if (underMouse())
    paint::roundedRect(&painter, body, kRadius, theme.hover);
  m_focus->paintRing(&painter, body.adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset), kRadius - kRingInset);
}

} // namespace ui
