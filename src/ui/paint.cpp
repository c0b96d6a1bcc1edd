#include "ui/paint.h"

#include <QPainter>
#include <QStyle>
#include <QTransform>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace ui::paint {

namespace {
constexpr double kHalfPixel = 0.5;
constexpr double kTwelveOClock = 90; // degrees, as QPainter counts them: anticlockwise from 3 o'clock
constexpr double kFullTurn = 360;
constexpr int kArcUnits = 16;   // QPainter's angles are sixteenths of a degree
constexpr double kSlack = 1e-4; // more than what comes by computing, and less than the raster tells; device pixels

/// Whether a device has one and a fraction of its pixels for each, as on a screen scaled by one and a half.
bool fallsBetweenPixels(const QTransform& device) {
  return device.type() == QTransform::TxScale && std::abs(device.m11() - std::round(device.m11())) > kSlack;
}

/// How many of its pixels a line takes that is @p length of them wide.
double wholePixels(double length) { return std::max(1.0, std::floor(length + kSlack)); }

/// Those wholly inside: what lies further out is the neighbour's, or clipped.
QRectF wholePixelsIn(const QRectF& rect) {
  return {QPointF(std::ceil(rect.left() - kSlack), std::ceil(rect.top() - kSlack)),
          QPointF(std::floor(rect.right() + kSlack), std::floor(rect.bottom() + kSlack))};
}

QRectF grown(const QRectF& rect) { return rect.adjusted(-kHalfPixel, -kHalfPixel, kHalfPixel, kHalfPixel); }
} // namespace

QColor withAlpha(const QColor& colour, int alpha) {
  QColor result = colour;
  result.setAlpha(alpha);
  return result;
}

QColor withAlphaF(const QColor& colour, double alpha) {
  QColor result = colour;
  result.setAlphaF(float(alpha));
  return result;
}

QRectF hairline(const QRectF& rect) { return rect.adjusted(kHalfPixel, kHalfPixel, -kHalfPixel, -kHalfPixel); }

QPen pen(const QBrush& brush, double width) { return {brush, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin}; }

QPen roundPen(const QBrush& brush, double width) { return {brush, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin}; }

QRectF mirrored(const QRectF& rect, const QRectF& whole, Qt::LayoutDirection direction) {
  if (direction != Qt::RightToLeft || rect.isNull()) return rect;
  return rect.translated(whole.left() + whole.right() - rect.left() - rect.right(), 0);
}

Qt::LayoutDirection readingDirection(const QString& text, Qt::LayoutDirection direction) {
  return direction == Qt::RightToLeft && text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

QMargins mirrored(const QMargins& margins, Qt::LayoutDirection direction) {
  if (direction != Qt::RightToLeft) return margins;
  return {margins.right(), margins.top(), margins.left(), margins.bottom()};
}

int textFlags(const QString& text, int flags, Qt::LayoutDirection direction) {
  const auto sides = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask;
  const Qt::Alignment turned = QStyle::visualAlignment(direction, Qt::Alignment(flags) & sides);
  const bool toLeft = readingDirection(text, direction) == Qt::RightToLeft;
  const int reading = toLeft ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
  return (flags & ~int(sides)) | int(turned | Qt::AlignAbsolute) | reading;
}

// A painter has the program's direction, also on a widget that has its own.
Qt::LayoutDirection directionOf(const QPainter* painter) {
  const QPaintDevice* device = painter->device();
  if (!device || device->devType() != QInternal::Widget) return painter->layoutDirection();
  return static_cast<const QWidget*>(device)->layoutDirection();
}

void text(QPainter* painter, const QRectF& box, int flags, const QString& text) {
  painter->drawText(box, textFlags(text, flags, directionOf(painter)), text);
}

void text(QPainter* painter, const QPointF& start, const QString& text) {
  const Qt::LayoutDirection before = painter->layoutDirection();
  painter->setLayoutDirection(readingDirection(text, directionOf(painter)));
  painter->drawText(start, text);
  painter->setLayoutDirection(before);
}

Outline outlineOn(const QPainter* painter, const QRectF& rect) {
  const QTransform device = painter->deviceTransform();
  if (!fallsBetweenPixels(device)) return {.path = hairline(rect), .width = 1};
  const QRectF inside = wholePixelsIn(device.mapRect(rect));
  const double half = wholePixels(device.m11()) / 2;
  // A hair further, as the raster cuts off what falls short of a pixel by a hair.
  const QRectF middle = inside.adjusted(half, half, -half, -half).translated(kSlack, kSlack);
  return {.path = device.inverted().mapRect(middle), .width = 2 * half / device.m11()};
}

void line(QPainter* painter, const QRectF& rect, const QColor& colour) {
  const QTransform device = painter->deviceTransform();
  if (!fallsBetweenPixels(device)) return painter->fillRect(rect, colour);
  const QRectF there = device.mapRect(rect);
  QRectF filled(QPointF(std::round(there.left()), std::round(there.top())),
                QPointF(std::round(there.right()), std::round(there.bottom())));
  if (rect.width() > rect.height())
    filled.setHeight(wholePixels(there.height()));
  else
    filled.setWidth(wholePixels(there.width()));
  const bool smooth = painter->testRenderHint(QPainter::Antialiasing);
  painter->setRenderHint(QPainter::Antialiasing, false); // it is on whole pixels, but for what comes by computing
  painter->fillRect(device.inverted().mapRect(filled), colour);
  painter->setRenderHint(QPainter::Antialiasing, smooth);
}

void roundedRect(QPainter* painter, const QRectF& rect, double radius, const QBrush& fill, const QPen& outline) {
  QRectF body = rect;
  QPen pen = outline;
  if (outline.style() != Qt::NoPen && outline.widthF() == 1) {
    const auto [path, width] = outlineOn(painter, grown(rect));
    body = path;
    pen.setWidthF(width);
  }
  painter->setPen(pen);
  painter->setBrush(fill);
  painter->drawRoundedRect(body, radius, radius);
}

void shadow(QPainter* painter, const QRectF& body, const Shadow& shadow) {
  const QRectF base = body.translated(0, shadow.offsetY);
  for (int k = shadow.layers; k >= 1; --k) {
    const double fade = 1 - double(k) / shadow.layers;
    const double alpha = shadow.peak * fade * fade;
    const bool rounds = shadow.alpha == Shadow::Alpha::Rounded;
    const QColor colour = withAlpha(shadow.colour, rounds ? qRound(alpha) : int(alpha));
    roundedRect(painter, base.adjusted(-k, -k, k, k), shadow.radius + k, colour);
  }
}

ArcAngles arcInTurns(double startTurns, double spanTurns) {
  return {.start = int((kTwelveOClock - kFullTurn * startTurns) * kArcUnits),
          .span = int(-kFullTurn * spanTurns * kArcUnits)};
}

} // namespace ui::paint
