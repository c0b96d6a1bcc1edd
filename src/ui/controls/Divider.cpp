#include "ui/controls/Divider.h"

#include "ui/Theme.h"
#include "ui/paint.h"

#include <QPainter>

namespace ui {

Divider::Divider(QWidget* parent) : QWidget(parent) {
  setFixedHeight(1);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Divider::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paint::line(&painter, rect(), Theme::get().line);
}

} // namespace ui
