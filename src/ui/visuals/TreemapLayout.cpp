// The squarified treemap of Bruls, Huizing and van Wijk: "Squarified Treemaps", Proceedings of the Joint Eurographics
// and IEEE TCVG Symposium on Visualization, 2000. A row takes the next tile as long as its worst tile gets no longer
// and thinner by that; a finished row is cut off the shorter side of the free rectangle.
#include "ui/visuals/TreemapLayout.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>
#include <vector>

namespace ui {

namespace {
// Lengths in pixels.
constexpr double kGap = 2; // on every side of a tile
constexpr double kLeastBody = 1;
constexpr double kMostRadius = 8;
constexpr double kRadiusShare = 3; // or this part of the shorter side
constexpr double kRingInset = 1.5;
constexpr double kRingTighter = 1; // the ring's radius against the body's
constexpr double kTickFrom = 30;   // both sides are longer
constexpr double kTickInset = 16;  // of its centre from the top right corner
constexpr double kTickDiameter = 18;
constexpr QPointF kCheck[] = {{-4.2, 0.2}, {-1.2, 3.2}, {4.4, -2.8}}; // from its centre
constexpr double kTextInsetX = 9;
constexpr double kTextInsetY = 7;
constexpr double kTickRoom = 22; // that the label leaves to the tick
constexpr QSizeF kLabelFrom(96, 52);
constexpr QSizeF kDetailFrom(56, 30);

constexpr double kFocusGrowth = 1; // of the line in the middle of the gap against the body
constexpr double kLeastFocus = 4;
constexpr double kTouch = 0.01; // what rounding may part

using Areas = std::span<const double>;

double sum(Areas areas) { return std::accumulate(areas.begin(), areas.end(), 0.0); }

double worstAspect(Areas row, double side) {
  const double thickness = sum(row) / side;
  double worst = 0;
  for (const double area : row) {
    const double length = area / thickness;
    worst = std::max({worst, thickness / length, length / thickness});
  }
  return worst;
}

/// How many of the areas make the next row along a side of this length.
size_t rowLength(Areas areas, double side) {
  size_t count = 1;
  while (count < areas.size() && worstAspect(areas.first(count + 1), side) <= worstAspect(areas.first(count), side))
    ++count;
  return count;
}

/// Places a row and takes its room from the free rectangle.
void placeRow(Areas row, QRectF* free, QRectF* rects) {
  const bool column = free->width() >= free->height();
  const double side = column ? free->height() : free->width();
  const double thickness = sum(row) / side;
  const double shown = std::min(thickness, column ? free->width() : free->height()); // no rounding beyond the map
  QPointF corner = free->topLeft();
  for (const double area : row) {
    const double length = area / thickness;
    *rects++ = QRectF(corner, column ? QSizeF(shown, length) : QSizeF(length, shown));
    corner += column ? QPointF(0, length) : QPointF(length, 0);
  }
  if (column)
    free->setLeft(free->left() + shown);
  else
    free->setTop(free->top() + shown);
}

/// A rectangle as seen by somebody who goes in one direction.
struct Course {
  double begin, end;  // along the way
  double first, last; // across it
};

Course course(const QRectF& rect, Qt::Edge edge) {
  switch (edge) {
  case Qt::LeftEdge:
    return {-rect.right(), -rect.left(), rect.top(), rect.bottom()};
  case Qt::RightEdge:
    return {rect.left(), rect.right(), rect.top(), rect.bottom()};
  case Qt::TopEdge:
    return {-rect.bottom(), -rect.top(), rect.left(), rect.right()};
  case Qt::BottomEdge:
    return {rect.top(), rect.bottom(), rect.left(), rect.right()};
  }
  return {};
}

/// How far @p middle lies outside.
double aside(const Course& candidate, double middle) {
  const double off = std::max(candidate.first - middle, middle - candidate.last);
  return off > kTouch ? off : 0;
}

} // namespace

QList<QRectF> treemapLayout(const QList<qint64>& sizes, const QSizeF& map) {
  QList<QRectF> rects(sizes.size());
  const double total = std::accumulate(sizes.begin(), sizes.end(), 0.0);
  if (total <= 0 || map.width() < 1) return rects;
  const double scale = map.width() * map.height() / total;
  std::vector<double> areas;
  for (const qint64 size : sizes) {
    if (size <= 0) break;
    areas.push_back(double(size) * scale);
  }
  QRectF free(QPointF(), map);
  for (size_t start = 0; start < areas.size() && !free.isEmpty();) {
    const Areas rest = Areas(areas).subspan(start);
    const size_t count = rowLength(rest, std::min(free.width(), free.height()));
    placeRow(rest.first(count), &free, rects.data() + start);
    start += count;
  }
  return rects;
}

TreemapTile treemapTile(const QRectF& rect, bool selected) {
  TreemapTile tile;
  const QRectF body = rect.adjusted(kGap, kGap, -kGap, -kGap);
  if (body.width() < kLeastBody || body.height() < kLeastBody) return tile;
  tile.body = body;
  tile.radius = std::min(kMostRadius, std::min(body.width(), body.height()) / kRadiusShare);
  tile.ring = body.adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset);
  tile.ringRadius = tile.radius - kRingTighter;
  if (selected && body.width() > kTickFrom && body.height() > kTickFrom) {
    const QPointF centre(body.right() - kTickInset, body.top() + kTickInset);
    tile.tick = QRectF(0, 0, kTickDiameter, kTickDiameter);
    tile.tick.moveCenter(centre);
    for (const QPointF& point : kCheck) tile.check << centre + point;
  }
  tile.text = body.adjusted(kTextInsetX, kTextInsetY, -kTextInsetX, -kTextInsetY);
  tile.labelWidth = tile.text.width() - (selected ? kTickRoom : 0);
  if (body.width() > kLabelFrom.width() && body.height() > kLabelFrom.height())
    tile.words = TileText::LabelAndDetail;
  else if (body.width() > kDetailFrom.width() && body.height() > kDetailFrom.height())
    tile.words = TileText::Detail;
  return tile;
}

TreemapRing treemapRing(const QRectF& rect) {
  constexpr double inset = kGap - kFocusGrowth;
  const TreemapTile tile = treemapTile(rect, false);
  QRectF ring(0, 0, std::max(kLeastFocus, rect.width() - 2 * inset), std::max(kLeastFocus, rect.height() - 2 * inset));
  ring.moveCenter(rect.center());
  return {.rect = ring, .radius = tile.radius + kFocusGrowth};
}

int firstTileAt(const QList<QRectF>& rects, const QPointF& point) {
  for (int i = 0; i < int(rects.size()); ++i)
    if (rects[i].contains(point)) return i;
  return -1;
}

int lastTileAt(const QList<QRectF>& rects, const QPointF& point) {
  for (int i = int(rects.size()) - 1; i >= 0; --i)
    if (rects[i].contains(point)) return i;
  return -1;
}

int tileBeyond(const QList<QRectF>& rects, int from, Qt::Edge edge) {
  const Course here = course(rects[from], edge);
  const double middle = (here.first + here.last) / 2;
  int best = from;
  double bestAside = 0;
  double bestGap = 0;
  for (int i = 0; i < int(rects.size()); ++i) {
    const Course there = course(rects[i], edge);
    const double gap = there.begin - here.end;
    if (i == from || rects[i].isEmpty() || gap < -kTouch) continue;
    const double off = aside(there, middle);
    if (best != from && (off > bestAside || (off == bestAside && gap > bestGap - kTouch))) continue;
    best = i;
    bestAside = off;
    bestGap = gap;
  }
  return best;
}

} // namespace ui
