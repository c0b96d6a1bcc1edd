#include "ui/controls/Pill.h"

#include "engines/categories.h"
#include "ui/Theme.h"
#include "ui/paint.h"

#include <QPainter>

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kFontPx = 11;
constexpr int kFontWeight = 600;
constexpr int kHeight = 20;
constexpr int kRoom = 27; // beside the text
constexpr double kRadius = 6;
constexpr double kDotLeft = 8;
constexpr double kDotSize = 6;
constexpr double kTextLeft = 19;

struct Colours {
  QColor strong;
  QColor soft;
};

Colours coloursOf(Safety safety) {
  const Theme& theme = Theme::get();
  switch (safety) {
  case Review:
    return {theme.warn, theme.warnSoft};
  case Permanent:
    return {theme.bad, theme.badSoft};
  default:
    return {theme.ok, theme.okSoft};
  }
}

} // namespace

PillLayout pillLayout(const QSize& widget, int textWidth, Qt::LayoutDirection direction) {
  PillLayout layout;
  layout.body = QRectF(0, (widget.height() - kHeight) / 2.0, textWidth + kRoom, kHeight);
  layout.dot = QRectF(kDotLeft, layout.body.center().y() - kDotSize / 2, kDotSize, kDotSize);
  layout.text = QRectF(kTextLeft, layout.body.top(), layout.body.width() - kTextLeft, kHeight);
  const QRectF whole(0, 0, widget.width(), widget.height());
  for (QRectF* rect : {&layout.body, &layout.dot, &layout.text}) *rect = paint::mirrored(*rect, whole, direction);
  return layout;
}

Pill::Pill(Safety safety, QWidget* parent) : QWidget(parent), m_safety(safety) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setFont(Theme::get().font(kFontPx, kFontWeight));
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Pill::setSafety(Safety safety) {
  m_safety = safety;
  updateGeometry();
  update();
  accessibleTextChanged(this);
}

QString Pill::shownText() const { return categories::safetyLabel(m_safety); }

int Pill::textWidth() const { return fontMetrics().horizontalAdvance(shownText()); }

QSize Pill::sizeHint() const { return {textWidth() + kRoom, kHeight}; }

void Pill::paintEvent(QPaintEvent* /*event*/) {
  const PillLayout layout = pillLayout(size(), textWidth(), layoutDirection());
  const Colours colours = coloursOf(m_safety);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, layout.body, kRadius, colours.soft);
  painter.setBrush(colours.strong);
  painter.drawEllipse(layout.dot);
  painter.setPen(colours.strong);
  paint::text(&painter, layout.text, Qt::AlignLeft | Qt::AlignVCenter, shownText());
}

} // namespace ui
