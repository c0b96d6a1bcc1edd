#include "ui/visuals/Radar.h"

#include "ui/Theme.h"
#include "ui/controls/Ticker.h"
#include "ui/eyebrow.h"
#include "ui/paint.h"
#include "ui/visuals/hues.h"

#include <QConicalGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace ui {

namespace {
// Lengths in pixels.
constexpr QSize kSize(250, 250);
constexpr double kMargin = 1;  // from the sweep to the widget's edge
constexpr int kFirstRing = 50; // from the innermost ring to the sweep's edge
constexpr int kRingStep = 16;
constexpr double kRim = 0.5;
constexpr double kHollowShare = 0.55; // of the sweep's radius
constexpr double kCoreRadius = 62;
constexpr double kHeadlineTop = -24; // from the centre
constexpr double kHeadlineHeight = 34;
constexpr double kCaptionTop = 12;
constexpr double kCaptionHeight = 16;
constexpr int kHeadlinePx = 26;
constexpr int kHeadlineWeight = 600;
constexpr int kCaptionPx = 10;
// The core's halo: circles that shrink by a step; the outermost but one step more would have nothing left.
constexpr int kHaloReach = 22;
constexpr int kHaloStep = 2;
constexpr double kHaloEnd = 24;
constexpr double kHaloPeak = 7;
// Movement of a beat, in degrees.
constexpr double kSweepStep = 3.2;
constexpr double kFullTurn = 360;

/// The beam: its leading edge, then its tail.
struct Stop {
  double place; ///< in turns behind the edge
  double alpha;
};
constexpr double kPeak = 0.95;
constexpr double kTail = 0.3;
// Beyond the tail nothing is painted but those pixels before the edge that it covers in part: they have its colour.
constexpr Stop kBeam[] = {{0, kPeak}, {0.02, 0.32}, {kTail, 0}, {1, kPeak}};

QRectF squareAround(const QPointF& centre, double radius) {
  return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

QConicalGradient beam(const QPointF& centre, double angle) {
  QConicalGradient gradient(centre, -angle);
  for (const auto& [place, alpha] : kBeam) gradient.setColorAt(place, paint::withAlphaF(hues::kCyan, alpha));
  return gradient;
}

void paintRings(QPainter* painter, const RadarLayout& layout) {
  painter->setPen(paint::pen(Theme::get().line));
  painter->setBrush(Qt::NoBrush);
  for (const double radius : layout.rings) painter->drawEllipse(layout.centre, radius, radius);
}

void paintCore(QPainter* painter, const RadarLayout& layout) {
  const Theme& theme = Theme::get();
  painter->setPen(Qt::NoPen);
  for (int k = kHaloReach; k > 0; k -= kHaloStep) {
    painter->setBrush(paint::withAlpha(hues::kCyan, int((1 - k / kHaloEnd) * kHaloPeak) + 1));
    painter->drawEllipse(layout.centre, layout.coreRadius + k, layout.coreRadius + k);
  }
  painter->setPen(paint::pen(theme.lineStrong));
  painter->setBrush(theme.core);
  painter->drawEllipse(layout.centre, layout.coreRadius, layout.coreRadius);
}

/// @param pixels, ratio  of the picture, and pixels to a logical one
QPixmap picture(const QSize& pixels, double ratio, const RadarLayout& layout,
                void (*paint)(QPainter*, const RadarLayout&)) {
  QPixmap result(pixels);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.scale(ratio, ratio);
  painter.setRenderHint(QPainter::Antialiasing);
  paint(&painter, layout);
  return result;
}

void drawPixels(QPainter* painter, double ratio, const QPixmap& picture) {
  painter->save();
  painter->scale(1 / ratio, 1 / ratio); // pixel by pixel, at any ratio
  painter->drawPixmap(QPoint(), picture);
  painter->restore();
}
} // namespace

RadarLayout radarLayout(const QSize& size) {
  const QPointF centre = QRectF(QPointF(), size).center();
  const double radius = size.width() / 2.0 - kMargin;
  RadarLayout layout{.centre = centre,
                     .radius = radius,
                     .hollow = kHollowShare * radius,
                     .rings = {},
                     .coreRadius = kCoreRadius,
                     .text = {}};
  for (int inwards = kFirstRing; inwards > 0; inwards -= kRingStep) layout.rings << radius - inwards;
  layout.rings << radius - kRim;
  const double left = centre.x() - kCoreRadius;
  layout.text.headline = QRectF(left, centre.y() + kHeadlineTop, 2 * kCoreRadius, kHeadlineHeight);
  layout.text.caption = QRectF(left, centre.y() + kCaptionTop, 2 * kCoreRadius, kCaptionHeight);
  return layout;
}

double radarSwept(double angle) { return std::fmod(angle + kSweepStep, kFullTurn); }

Radar::Radar(QWidget* parent) : QWidget(parent), m_ticker(new Ticker(this, [this] { turn(); })) {
  setFixedSize(kSize);
  connect(&Theme::get(), &Theme::changed, this, &Radar::forgetPictures);
}

void Radar::setText(const QString& headline, const QString& caption) {
  m_headline = headline;
  m_caption = caption;
  update();
  accessibleValueChanged(this);
}

void Radar::setRunning(bool on) {
  if (on == isRunning()) return;
  m_ticker->setRunning(on);
  accessibleValueChanged(this);
}

bool Radar::isRunning() const { return m_ticker->isRunning(); }

void Radar::turn() {
  m_angle = radarSwept(m_angle);
  update();
}

void Radar::forgetPictures() {
  m_rings = {};
  m_core = {};
  update();
}

void Radar::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const RadarLayout layout = radarLayout(size());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double ratio = painter.deviceTransform().m11();
  paintPictures(ratio, layout);
  drawPixels(&painter, ratio, m_rings);
  paintSweep(&painter, layout);
  drawPixels(&painter, ratio, m_core);
  dial::paintText(&painter, layout.text, {m_headline, theme.mono(kHeadlinePx, kHeadlineWeight), theme.text},
                  {eyebrowText(m_caption), theme.eyebrow(kCaptionPx), theme.text3});
}

/// Brings them up to date. @param ratio  pixels to a logical one
void Radar::paintPictures(double ratio, const RadarLayout& layout) {
  const QSize pixels(int(std::ceil(width() * ratio)), int(std::ceil(height() * ratio)));
  if (m_rings.size() == pixels) return;
  m_rings = picture(pixels, ratio, layout, paintRings);
  m_core = picture(pixels, ratio, layout, paintCore);
}

void Radar::paintSweep(QPainter* painter, const RadarLayout& layout) const {
  // Only the part of the annulus that the beam lights: the rest would cost as much, for nothing.
  const double start = -m_angle;
  const double span = kFullTurn * kTail;
  QPainterPath lit;
  const QRectF outer = squareAround(layout.centre, layout.radius);
  lit.arcMoveTo(outer, start);
  lit.arcTo(outer, start, span);
  lit.arcTo(squareAround(layout.centre, layout.hollow), start + span, -span);
  lit.closeSubpath();
  painter->setPen(Qt::NoPen);
  painter->setBrush(beam(layout.centre, m_angle));
  painter->drawPath(lit);
}

} // namespace ui
