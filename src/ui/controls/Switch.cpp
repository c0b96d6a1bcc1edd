#include "ui/controls/Switch.h"

#include "ui/Theme.h"
#include "ui/paint.h"

#include <QKeyEvent>
#include <QPainter>

namespace ui {

namespace {
// Lengths in pixels.
constexpr QSize kSize(40, 22);
constexpr double kKnobInset = 3;
} // namespace

SwitchLayout switchLayout(const QSize& size, bool checked, Qt::LayoutDirection direction) {
  const int top = (size.height() - kSize.height()) / 2; // on whole pixels
  const QRectF box(0, top, kSize.width(), kSize.height());
  SwitchLayout layout;
  layout.track = paint::hairline(box);
  const double side = layout.track.height() - 2 * kKnobInset;
  layout.knob = QRectF(layout.track.left() + kKnobInset, layout.track.top() + kKnobInset, side, side);
  if (checked) layout.knob.moveRight(layout.track.right() - kKnobInset);
  const QRectF whole(0, 0, size.width(), size.height());
  for (QRectF* rect : {&layout.track, &layout.knob}) *rect = paint::mirrored(*rect, whole, direction);
  return layout;
}

Switch::Switch(QWidget* parent) : QAbstractButton(parent) {
  setCheckable(true);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

QSize Switch::sizeHint() const { return kSize; }

void Switch::keyPressEvent(QKeyEvent* event) {
  const bool onAtRight = layoutDirection() != Qt::RightToLeft;
  switch (event->key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (!event->isAutoRepeat()) click();
    break;
  case Qt::Key_Left:
    if (isChecked() == onAtRight) click();
    break;
  case Qt::Key_Right:
    if (isChecked() != onAtRight) click();
    break;
  default:
    QAbstractButton::keyPressEvent(event);
  }
}

void Switch::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const auto [track, knob] = switchLayout(size(), isChecked(), layoutDirection());
  const double radius = track.height() / 2;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (isChecked())
    paint::roundedRect(&painter, track, radius, Theme::gradient(track));
  else
    paint::roundedRect(&painter, track, radius, theme.track, paint::pen(underMouse() ? theme.text3 : theme.lineStrong));
  painter.setPen(Qt::NoPen);
  painter.setBrush(isChecked() ? QColor(Qt::white) : theme.text2);
  painter.drawEllipse(knob);
}

} // namespace ui
