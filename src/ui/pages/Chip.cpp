#include "ui/pages/Chip.h"

#include "ui/Theme.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace ui {

namespace {
// Lengths in pixels.
constexpr int kHeight = 28;
constexpr int kSpacing = 7;
constexpr int kSideMargin = 11;
constexpr int kLeftBesideDot = 24;
constexpr int kSpareWidth = 4;
constexpr double kRadius = 8;
constexpr double kHaloLeft = 9;
constexpr double kHaloSide = 10;
constexpr double kDotLeft = 11;
constexpr double kDotSide = 6;

constexpr int kHaloAlpha = 60;
} // namespace

ChipLayout chipLayout(const QSize& size, Qt::LayoutDirection direction) {
  const double middle = size.height() / 2.0;
  const QRectF whole(0, 0, size.width(), size.height());
  const QRectF halo(kHaloLeft, middle - kHaloSide / 2, kHaloSide, kHaloSide);
  const QRectF dot(kDotLeft, middle - kDotSide / 2, kDotSide, kDotSide);
  return {.body = paint::hairline(whole),
          .halo = paint::mirrored(halo, whole, direction),
          .dot = paint::mirrored(dot, whole, direction)};
}

Chip::Chip(QLabel* text, Dot dot, QWidget* parent) : QWidget(parent), m_text(text), m_dot(dot) {
  QHBoxLayout* row = hbox(kSpacing, {dot == Dot::None ? kSideMargin : kLeftBesideDot, 0, kSideMargin, 0});
  row->addWidget(text, 1);
  setLayout(row);
  setFixedHeight(kHeight);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

QSize Chip::sizeHint() const {
  m_text->ensurePolished(); // its font comes from the style sheet
  const QMargins margins = layout()->contentsMargins();
  const int textWidth = m_text->fontMetrics().horizontalAdvance(m_text->text());
  return {margins.left() + margins.right() + textWidth + kSpareWidth, kHeight};
}

QString Chip::shownText() const { return m_text->text(); }

void Chip::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const ChipLayout places = chipLayout(size(), layoutDirection());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, places.body, kRadius, theme.card, paint::pen(theme.line));
  if (m_dot == Dot::None) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(paint::withAlpha(theme.ok, kHaloAlpha));
  painter.drawEllipse(places.halo);
  painter.setBrush(theme.ok);
  painter.drawEllipse(places.dot);
}

} // namespace ui
