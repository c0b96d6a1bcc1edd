#include "ui/visuals/Gauge.h"

#include "core/fmt.h"

#include <QCoreApplication>
#include <QPainter>

namespace ui {

namespace {
// Lengths in pixels.
constexpr QSize kSize(148, 148);
constexpr double kInset = 12;
constexpr double kStroke = 10;
constexpr double kPercentRise = 26; // its box begins this far above the middle
constexpr double kPercentHeight = 36;
constexpr double kWordGap = 2;
constexpr double kWordHeight = 16;
constexpr int kPercentPx = 30;
constexpr int kPercentWeight = 600;
constexpr int kWordPx = 11;
constexpr int kWordWeight = 400;
// Sixteenths of a degree, anticlockwise from 3 o'clock.
constexpr int kArcStart = 225 * 16;
constexpr int kArcSpan = -270 * 16;
// Shares from which the colour warns.
constexpr double kCautionAbove = 0.8;
constexpr double kDangerAbove = 0.9;
} // namespace

GaugeLayout gaugeLayout(const QSize& size) {
  const QRectF whole(QPointF(), size);
  const QRectF percent(0, whole.height() / 2 - kPercentRise, whole.width(), kPercentHeight);
  return {.dial = whole.adjusted(kInset, kInset, -kInset, -kInset),
          .text = {.headline = percent, .caption = {0, percent.bottom() + kWordGap, whole.width(), kWordHeight}}};
}

paint::ArcAngles gaugeArc(double value) { return {.start = kArcStart, .span = int(value * kArcSpan)}; }

Tone gaugeTone(double value) {
  if (value > kDangerAbove) return Tone::Bad;
  return value > kCautionAbove ? Tone::Warn : Tone::Accent;
}

Gauge::Gauge(QWidget* parent) : QWidget(parent) {
  setFixedSize(kSize);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Gauge::setValue(double value) {
  m_value = dial::fraction(value);
  update();
  accessibleValueChanged(this);
}

//: Said by a screen reader; %1: a share such as “73%”
QString Gauge::valueText() const { return QCoreApplication::translate("Gauge", "%1 used").arg(fmt::percent(m_value)); }

void Gauge::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const GaugeLayout layout = gaugeLayout(size());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintArcs(&painter, layout.dial);
  dial::paintText(&painter, layout.text, {fmt::percent(m_value), theme.font(kPercentPx, kPercentWeight), theme.text},
                  //: Under a share such as “73%”: so much of the disk is used
                  {QCoreApplication::translate("Gauge", "used"), theme.font(kWordPx, kWordWeight), theme.text2});
}

void Gauge::paintArcs(QPainter* painter, const QRectF& dial) const {
  const Theme& theme = Theme::get();
  const auto stroke = [&](double value, const QColor& colour) {
    const auto [start, span] = gaugeArc(value);
    painter->setPen(paint::roundPen(colour, kStroke));
    painter->drawArc(dial, start, span);
  };
  stroke(1, theme.lineStrong);
  if (m_value > 0) stroke(m_value, theme.tone(gaugeTone(m_value)));
}

} // namespace ui
