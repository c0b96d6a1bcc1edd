#include "ui/visuals/ProgressRing.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/controls/Ticker.h"
#include "ui/eyebrow.h"
#include "ui/paint.h"
#include "ui/visuals/hues.h"

#include <QPainter>
#include <QRadialGradient>
#include <QtMath>

#include <cmath>

namespace ui {

namespace {
// Lengths in pixels.
constexpr QSize kSize(240, 240);
constexpr double kInset = 10;
constexpr double kStroke = 8;
constexpr double kDot = 8; // diameter
constexpr double kGlow = 20;
constexpr int kGlowAlpha = 110;
constexpr double kHeadlineRise = 32; // its box begins this far above the middle
constexpr double kHeadlineHeight = 46;
constexpr double kCaptionGap = 4;
constexpr double kCaptionHeight = 18;
constexpr int kHeadlinePx = 34;
constexpr int kHeadlineWeight = 600;
constexpr int kCaptionPx = 11;
// Movement of a beat.
constexpr double kEaseShare = 0.15; // of the way that is left
constexpr double kSnap = 0.001;     // as near as this it is there
constexpr double kOrbitStep = 3.6;  // degrees
constexpr double kFullTurn = 360;
constexpr double kTwelveOClock = 90;
constexpr double kNoOrbit = -1;

QRectF around(const QPointF& centre, double diameter) {
  return {centre.x() - diameter / 2, centre.y() - diameter / 2, diameter, diameter};
}

QBrush successBrush(const QRectF& circle) {
  QLinearGradient gradient(circle.topLeft(), circle.bottomRight());
  gradient.setColorAt(0, hues::kEmerald);
  gradient.setColorAt(1, hues::kCyan);
  return gradient;
}
} // namespace

ProgressRingLayout progressRingLayout(const QSize& size) {
  const QRectF whole(QPointF(), size);
  const QRectF headline(0, whole.height() / 2 - kHeadlineRise, whole.width(), kHeadlineHeight);
  return {
      .circle = whole.adjusted(kInset, kInset, -kInset, -kInset),
      .text = {.headline = headline, .caption = {0, headline.bottom() + kCaptionGap, whole.width(), kCaptionHeight}}};
}

QPointF ringPoint(const QRectF& circle, double degrees) {
  const double angle = qDegreesToRadians(kTwelveOClock - degrees);
  return circle.center() + QPointF(std::cos(angle) * circle.width() / 2, -std::sin(angle) * circle.height() / 2);
}

double ringEased(double shown, double target) {
  const double next = shown + (target - shown) * kEaseShare;
  return std::abs(target - next) < kSnap ? target : next;
}

double ringOrbited(double orbit) { return std::fmod(orbit + kOrbitStep, kFullTurn); }

ProgressRing::ProgressRing(QWidget* parent)
    : QWidget(parent),
      m_orbit(kNoOrbit),
      m_easing(new Ticker(
          this, [this] { ease(); }, Ticker::Motion::Value)),
      m_turning(new Ticker(
          this, [this] { turn(); }, Ticker::Motion::Decorative)) {
  setFixedSize(kSize);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void ProgressRing::setProgress(double progress) {
  m_target = dial::fraction(progress);
  m_shown = std::min(m_shown, m_target);
  m_easing->setRunning(m_shown != m_target);
  update();
  accessibleValueChanged(this);
}

void ProgressRing::setText(const QString& headline, const QString& caption) {
  m_headline = headline;
  m_caption = caption;
  update();
  accessibleValueChanged(this);
}

void ProgressRing::setOrbiting(bool on) {
  if (!on)
    m_orbit = kNoOrbit;
  else if (m_orbit < 0)
    m_orbit = 0;
  m_turning->setRunning(on);
  update();
}

bool ProgressRing::isMoving() const { return m_easing->isRunning() || m_turning->isRunning(); }

QString ProgressRing::valueText() const {
  const QString lines = dial::spoken(m_headline, m_caption);
  return lines.isEmpty() ? fmt::percent(m_target) : lines;
}

void ProgressRing::ease() {
  m_shown = ringEased(m_shown, m_target);
  if (m_shown == m_target) m_easing->setRunning(false);
  update();
}

void ProgressRing::turn() {
  m_orbit = ringOrbited(m_orbit);
  update();
}

void ProgressRing::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const ProgressRingLayout layout = progressRingLayout(size());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintRing(&painter, layout.circle);
  if (m_orbit >= 0) paintDot(&painter, ringPoint(layout.circle, m_orbit));
  dial::paintText(&painter, layout.text, {m_headline, theme.mono(kHeadlinePx, kHeadlineWeight), theme.text},
                  {eyebrowText(m_caption), theme.eyebrow(kCaptionPx), theme.text3});
}

void ProgressRing::paintRing(QPainter* painter, const QRectF& circle) const {
  painter->setPen(paint::pen(Theme::get().track, kStroke));
  painter->setBrush(Qt::NoBrush);
  painter->drawEllipse(circle);
  if (m_shown <= 0) return;
  const auto [start, span] = paint::arcInTurns(0, m_shown);
  painter->setPen(paint::roundPen(success ? successBrush(circle) : QBrush(Theme::gradient(circle)), kStroke));
  painter->drawArc(circle, start, span);
}

void ProgressRing::paintDot(QPainter* painter, const QPointF& centre) const {
  const QColor colour = success ? Theme::get().ok : Theme::get().accent;
  QRadialGradient glow(centre, kGlow / 2);
  glow.setColorAt(0, paint::withAlpha(colour, kGlowAlpha));
  glow.setColorAt(1, paint::withAlpha(colour, 0));
  painter->setPen(Qt::NoPen);
  painter->setBrush(glow);
  painter->drawEllipse(around(centre, kGlow));
  painter->setBrush(colour);
  painter->drawEllipse(around(centre, kDot));
}

} // namespace ui
