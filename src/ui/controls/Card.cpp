#include "ui/controls/Card.h"

#include "ui/Theme.h"
#include "ui/paint.h"

#include <QPainter>

namespace ui {

namespace {
constexpr double kRadius = 14;
} // namespace

Card::Card(QWidget* parent) : QFrame(parent) {
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Card::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, paint::hairline(rect()), kRadius, fill.isValid() ? fill : theme.card,
                     bordered ? paint::pen(theme.line) : QPen(Qt::NoPen));
}

} // namespace ui
