#include "ui/controls/GradientText.h"

#include "ui/Theme.h"
#include "ui/paint.h"

#include <QFontMetrics>
#include <QPainter>

namespace ui {

namespace {
constexpr int kSpareWidth = 4;
} // namespace

QRectF gradientTextBox(const QSize& widget, int textWidth) {
  return {(widget.width() - textWidth) / 2.0, 0, double(textWidth), double(widget.height())};
}

GradientText::GradientText(const QFont& font, QWidget* parent) : QWidget(parent), m_font(font) {
  setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void GradientText::setText(const QString& text) {
  m_text = text;
  updateGeometry();
  update();
  accessibleTextChanged(this);
}

int GradientText::textWidth() const { return QFontMetrics(m_font).horizontalAdvance(m_text); }

QSize GradientText::sizeHint() const { return {textWidth() + kSpareWidth, QFontMetrics(m_font).height()}; }

QLinearGradient GradientText::gradient(const QRectF& box) const {
  if (stops.size() < 2) return Theme::gradient(box);
  QLinearGradient gradient(box.topLeft(), box.bottomRight());
  for (int index = 0; index < stops.size(); ++index)
    gradient.setColorAt(double(index) / double(stops.size() - 1), stops[index]);
  return gradient;
}

void GradientText::paintEvent(QPaintEvent* /*event*/) {
  const QRectF box = gradientTextBox(size(), textWidth());
  QPainter painter(this);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setFont(m_font);
  painter.setPen(paint::pen(gradient(box)));
  paint::text(&painter, box, Qt::AlignCenter | Qt::TextDontClip, m_text);
}

} // namespace ui
