#include "gallery/Canvas.h"

#include "ui/Theme.h"

#include <QPainter>

namespace gallery {

Canvas::Canvas(const QSize& size, std::function<void(QPainter*)> paint) : m_paint(std::move(paint)) {
  setFixedSize(size);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Canvas::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  m_paint(&painter);
}

} // namespace gallery
