#include "ui/visuals/DiskOrbLayout.h"

#include <QSize>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ui::orb {

namespace {
constexpr double kNearlyFullAbove = 0.9;
// Lengths in pixels.
constexpr double kRingRadius = 128;
constexpr double kCoreSide = 176;
constexpr int kTicks = 60;
constexpr int kLongTickEvery = 5;
constexpr double kTickOuter = 112; // radii
constexpr double kTickInner = 108;
constexpr double kLongTickInner = 104;
constexpr double kBaseline = 76; // below the core's top
constexpr double kUnitGap = 3;
constexpr double kCaptionMargin = 10;
constexpr double kCaptionBelow = 8; // below the baseline
constexpr double kCaptionHeight = 16;
constexpr double kPillBelow = 34; // below the baseline
constexpr double kPillRoom = 36;  // beside the text
constexpr double kPillHeight = 28;
constexpr double kGap = 3; // between two arcs
// Angles in degrees.
constexpr double kFullTurn = 360;
constexpr double kTwelveOClock = 90;
constexpr double kShortestArc = 0.5;
constexpr double kGapDegrees = kGap * kFullTurn / (2 * std::numbers::pi * kRingRadius);
constexpr int kArcUnits = 16; // QPainter's angles are sixteenths of a degree

/// A layer of the pill's glow: how far it reaches out on the sides, above and below.
struct Reach {
  double side;
  double above;
  double below;
  double radius;
};
constexpr Reach kPillGlow[] = {{8, 4, 12, 22}, {6, 2, 10, 20}, {4, 0, 8, 18}, {2, -2, 6, 16}};

QRectF squareAround(const QPointF& centre, double side) {
  return {centre.x() - side / 2, centre.y() - side / 2, side, side};
}

QPointF onCircle(const QPointF& centre, double radius, double degrees) {
  const double angle = qDegreesToRadians(degrees);
  return centre + radius * QPointF(std::cos(angle), std::sin(angle));
}

QList<QLineF> ticksAround(const QPointF& centre) {
  QList<QLineF> ticks;
  for (int tick = 0; tick < kTicks; ++tick) {
    const double degrees = kFullTurn * tick / kTicks;
    const double inner = tick % kLongTickEvery == 0 ? kLongTickInner : kTickInner;
    ticks << QLineF(onCircle(centre, kTickOuter, degrees), onCircle(centre, inner, degrees));
  }
  return ticks;
}
} // namespace

Disk disk(qint64 total, qint64 used, qint64 cleanable) {
  Disk disk;
  disk.total = std::max<qint64>(1, total);
  disk.used = std::clamp<qint64>(used, 0, disk.total);
  disk.cleanable = std::clamp<qint64>(cleanable, 0, disk.used);
  return disk;
}

Shares shares(const Disk& disk) {
  const auto total = double(disk.total);
  return {.fixed = double(disk.used - disk.cleanable) / total,
          .clean = double(disk.cleanable) / total,
          .nearlyFull = double(disk.used) / total > kNearlyFullAbove};
}

std::optional<paint::ArcAngles> arc(double start, double share) {
  if (share <= 0) return {};
  const double span = std::max(share * kFullTurn - kGapDegrees, kShortestArc);
  return paint::ArcAngles{.start = int((kTwelveOClock - kFullTurn * start) * kArcUnits),
                          .span = int(-span * kArcUnits)};
}

Layout layout(const QSize& size) {
  const QPointF centre = QRectF(QPointF(), size).center();
  return {.centre = centre,
          .ring = squareAround(centre, 2 * kRingRadius),
          .core = squareAround(centre, kCoreSide),
          .ticks = ticksAround(centre)};
}

bool isOnCore(const Layout& layout, const QPointF& point) {
  return QLineF(layout.centre, point).length() <= kCoreSide / 2;
}

Value value(const QString& text) {
  const auto isSpace = [](QChar one) { return one.isSpace(); }; // some languages use one that keeps the line together
  const auto space = std::distance(std::find_if(text.rbegin(), text.rend(), isSpace), text.rend()) - 1;
  if (space <= 0) return {.number = text, .unit = {}};
  return {.number = text.left(space), .unit = text.mid(space + 1)};
}

TextLayout textLayout(const QRectF& core, const TextWidths& widths) {
  const double whole = widths.number + (widths.unit > 0 ? kUnitGap + widths.unit : 0);
  const double axis = core.center().x();
  const double baseline = core.top() + kBaseline;
  const double left = axis - whole / 2;
  const double pill = widths.action + kPillRoom;
  return {
      .number = {left, baseline},
      .unit = {left + widths.number + kUnitGap, baseline},
      .caption = {core.left() + kCaptionMargin, baseline + kCaptionBelow, core.width() - 2 * kCaptionMargin,
                  kCaptionHeight},
      .pill = {axis - pill / 2, baseline + kPillBelow, pill, kPillHeight},
  };
}

QList<GlowLayer> pillGlow(const QRectF& pill) {
  QList<GlowLayer> layers;
  for (const auto& [side, above, below, radius] : kPillGlow)
    layers << GlowLayer{.rect = pill.adjusted(-side, -above, side, below), .radius = radius};
  return layers;
}

} // namespace ui::orb
