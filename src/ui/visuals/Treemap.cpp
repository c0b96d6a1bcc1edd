#include "ui/visuals/Treemap.h"

#include "ui/Theme.h"
#include "ui/TipStyler.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/paint.h"
#include "ui/visuals/TreemapLayout.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace ui {

namespace {
constexpr qsizetype kMostTiles = 24;

// Lengths in pixels.
constexpr int kLeastHeight = 120;
constexpr int kHeight = 200;
constexpr int kLabelPx = 12;
constexpr int kLabelWeight = 600;
constexpr int kDetailPx = 11;
constexpr int kDetailWeight = 400;
constexpr double kRingWidth = 1.5;
constexpr double kCheckWidth = 2.2;
constexpr double kFocusWidth = 2;
constexpr double kDetailMargin = 3; // that an elided detail leaves to the edge of its tile

constexpr int kGlowLayers = 6;
constexpr double kGlowOffset = 1;
constexpr double kGlowPeak = 0.32;

// Alphas as fractions, or of 255.
constexpr double kDimmed = 0.45;
constexpr double kFarCorner = 0.92; // of the body, against the near one
constexpr int kRingAlpha = 210;
constexpr int kLabelAlpha = 245;
constexpr int kDetailAlpha = 210;
constexpr int kLoneDetailAlpha = 225;

// What QColor::lighter and darker take, in percent.
constexpr int kHoverLighter = 115;
constexpr int kCheckDarker = 115;
constexpr int kInkLighter = 150;
constexpr int kInkDarker = 175;

void paintGlow(QPainter* painter, const TreemapTile& tile, const QColor& colour) {
  for (int k = kGlowLayers; k >= 1; --k) {
    const double fade = 1 - double(k) / (kGlowLayers + 1);
    paint::roundedRect(painter, tile.body.adjusted(-k, -k, k, k).translated(0, kGlowOffset), tile.radius + k,
                       paint::withAlphaF(colour, fade * fade * kGlowPeak));
  }
}

void paintBody(QPainter* painter, const TreemapTile& tile, const QColor& colour, double opacity) {
  QLinearGradient gradient(tile.body.topLeft(), tile.body.bottomRight());
  gradient.setColorAt(0, paint::withAlphaF(colour, opacity));
  gradient.setColorAt(1, paint::withAlphaF(colour, kFarCorner * opacity));
  paint::roundedRect(painter, tile.body, tile.radius, gradient);
}

void paintMark(QPainter* painter, const TreemapTile& tile, const QColor& colour) {
  paint::roundedRect(painter, tile.ring, tile.ringRadius, Qt::NoBrush,
                     paint::pen(paint::withAlpha(Qt::white, kRingAlpha), kRingWidth));
  if (tile.tick.isNull()) return;
  painter->setPen(Qt::NoPen);
  painter->setBrush(Qt::white);
  painter->drawEllipse(tile.tick);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(paint::roundPen(colour.darker(kCheckDarker), kCheckWidth));
  painter->drawPolyline(tile.check);
}

/// Of a tile's texts.
QColor ink(const QColor& colour, bool dimmed) {
  if (!dimmed) return Qt::white;
  return Theme::get().dark ? colour.lighter(kInkLighter) : colour.darker(kInkDarker);
}

} // namespace

Treemap::Treemap(QWidget* parent) : QWidget(parent), m_focus(new KeyboardFocus(this)) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setMinimumHeight(kLeastHeight);
  setFixedHeight(kHeight);
  connect(&Theme::get(), &Theme::changed, this, &Treemap::refresh);
}

void Treemap::setItems(const QList<Item>& items) {
  const QString worked = m_items.value(m_cursor).key;
  m_items = items;
  std::stable_sort(m_items.begin(), m_items.end(), [](const Item& a, const Item& b) { return a.bytes > b.bytes; });
  if (m_items.size() > kMostTiles) m_items.resize(kMostTiles);
  const auto still = std::find_if(m_items.begin(), m_items.end(), [&](const Item& item) { return item.key == worked; });
  if (still != m_items.end()) m_cursor = int(still - m_items.begin());
  m_cursor = std::clamp(m_cursor, 0, std::max(0, itemCount() - 1));
  relayout();
  accessibleItemsChanged(this, -1);
}

void Treemap::setSelected(const QSet<QString>& keys) {
  const QSet<QString> before = std::exchange(m_selected, keys);
  refresh();
  for (int i = 0; i < itemCount(); ++i)
    if (before.contains(m_items[i].key) != isSelected(i)) accessibleItemsChanged(this, i);
}

void Treemap::relayout() {
  QList<qint64> sizes;
  for (const Item& item : m_items) sizes << item.bytes;
  m_rects = treemapLayout(sizes, size());
  refresh();
}

/// Paints all tiles anew.
void Treemap::refresh() {
  m_stale = rect();
  update();
}

AccessibleItems::Item Treemap::itemAt(int index) const {
  const Item& item = m_items[index];
  return {.name = item.label,
          .value = item.detail,
          .rect = m_rects[index].toRect(),
          .checkable = true,
          .checked = isSelected(index),
          .selectable = true,
          .selected = isSelected(index),
          .current = index == m_cursor,
          .shown = !m_rects[index].isEmpty()};
}

void Treemap::activateItem(int index) {
  if (index < 0 || index >= itemCount()) return;
  m_cursor = index;
  const QString key = m_items[index].key; // a receiver may set other items
  emit toggled(key);
}

/// Items of size 0 come last, and have none.
int Treemap::lastTile() const {
  const auto empty = [](const QRectF& rect) { return rect.isEmpty(); };
  return int(std::find_if(m_rects.begin(), m_rects.end(), empty) - m_rects.begin()) - 1;
}

QString Treemap::tipOf(int index) const {
  return index < 0 ? QString() : plainTip(m_items[index].label + u" · "_s + m_items[index].detail);
}

void Treemap::resizeEvent(QResizeEvent* /*event*/) { relayout(); }

void Treemap::mousePressEvent(QMouseEvent* event) { activateItem(firstTileAt(m_rects, event->position())); }

void Treemap::mouseMoveEvent(QMouseEvent* event) {
  const int index = lastTileAt(m_rects, event->position());
  if (index == m_hover) return;
  setHover(index);
  setToolTip(tipOf(index));
}

void Treemap::leaveEvent(QEvent* /*event*/) { setHover(-1); }

void Treemap::setHover(int index) {
  QRegion changed;
  for (const int tile : {m_hover, index}) changed += m_rects.value(tile).toAlignedRect();
  m_hover = index;
  m_stale += changed;
  update(changed);
}

void Treemap::keyPressEvent(QKeyEvent* event) {
  const int last = lastTile();
  if (last < 0) return QWidget::keyPressEvent(event);
  switch (event->key()) {
  case Qt::Key_Left:
    return moveCursor(tileBeyond(m_rects, m_cursor, Qt::LeftEdge));
  case Qt::Key_Right:
    return moveCursor(tileBeyond(m_rects, m_cursor, Qt::RightEdge));
  case Qt::Key_Up:
    return moveCursor(tileBeyond(m_rects, m_cursor, Qt::TopEdge));
  case Qt::Key_Down:
    return moveCursor(tileBeyond(m_rects, m_cursor, Qt::BottomEdge));
  case Qt::Key_Home:
    return moveCursor(0);
  case Qt::Key_End:
    return moveCursor(last);
  case Qt::Key_Space:
    if (!event->isAutoRepeat() && m_cursor <= last) activateItem(m_cursor);
    return;
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (!event->isAutoRepeat() && m_cursor <= last) emit opened(QString(m_items[m_cursor].key));
    return;
  default:
    QWidget::keyPressEvent(event);
  }
}

void Treemap::moveCursor(int index) {
  m_cursor = index;
  update();
  accessibleItemsChanged(this, index);
  const QRect tile = m_rects[index].toRect();
  const bool told = treemapTile(m_rects[index], isSelected(index)).words == TileText::LabelAndDetail;
  QToolTip::showText(mapToGlobal(tile.bottomLeft()), told ? QString() : tipOf(index), this, tile);
}

void Treemap::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const double ratio = painter.deviceTransform().m11();
  paintPicture(ratio);
  painter.save();
  painter.scale(1 / ratio, 1 / ratio); // pixel by pixel, at any ratio
  painter.drawPixmap(QPoint(), m_picture);
  painter.restore();
  if (!m_focus->isVisible() || m_cursor > lastTile()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  const auto [ring, radius] = treemapRing(m_rects[m_cursor]);
  paint::roundedRect(&painter, ring, radius, Qt::NoBrush, paint::pen(Theme::get().text, kFocusWidth));
}

/// Brings the picture up to date. @param ratio  pixels to a logical one
void Treemap::paintPicture(double ratio) {
  const QSize pixels(int(std::ceil(width() * ratio)), int(std::ceil(height() * ratio)));
  if (m_picture.size() != pixels) {
    m_picture = QPixmap(pixels);
    m_picture.fill(Qt::transparent); // gives it an alpha channel
    m_stale = rect();
  }
  if (m_stale.isEmpty()) return;
  QPainter painter(&m_picture);
  painter.scale(ratio, ratio);
  painter.setClipRegion(m_stale);
  painter.setCompositionMode(QPainter::CompositionMode_Clear);
  painter.fillRect(rect(), Qt::transparent);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter.setRenderHint(QPainter::Antialiasing);
  paintTiles(&painter);
  m_stale = {};
}

void Treemap::paintTiles(QPainter* painter) const {
  // The glow of a selected tile lies over its neighbours.
  for (const bool selected : {false, true})
    for (int i = 0; i < itemCount(); ++i) {
      const QRect reach = m_rects[i].toAlignedRect().adjusted(-kGlowLayers, -kGlowLayers, kGlowLayers, kGlowLayers);
      if (isSelected(i) == selected && m_stale.intersects(reach)) paintTile(painter, i);
    }
}

void Treemap::paintTile(QPainter* painter, int index) const {
  const bool selected = isSelected(index);
  const TreemapTile tile = treemapTile(m_rects[index], selected);
  if (tile.body.isNull()) return;
  const QColor& colour = m_items[index].color;
  const bool dimmed = !m_selected.isEmpty() && !selected;
  if (selected) paintGlow(painter, tile, colour);
  paintBody(painter, tile, index == m_hover ? colour.lighter(kHoverLighter) : colour, dimmed ? kDimmed : 1);
  if (selected) paintMark(painter, tile, colour);
  paintText(painter, tile, index);
}

void Treemap::paintText(QPainter* painter, const TreemapTile& tile, int index) const {
  if (tile.words == TileText::None) return;
  const Item& item = m_items[index];
  const QColor colour = ink(item.color, !m_selected.isEmpty() && !isSelected(index));
  const bool lone = tile.words == TileText::Detail;
  if (!lone) {
    painter->setFont(Theme::get().font(kLabelPx, kLabelWeight));
    const QFontMetricsF metrics(painter->font());
    painter->setPen(paint::withAlpha(colour, kLabelAlpha));
    paint::text(painter, tile.text.topLeft() + QPointF(0, metrics.ascent()),
                metrics.elidedText(item.label, Qt::ElideRight, tile.labelWidth));
  }
  painter->setFont(Theme::get().mono(kDetailPx, kDetailWeight));
  const QFontMetricsF metrics(painter->font());
  const QPointF place = tile.text.bottomLeft() - QPointF(0, metrics.descent());
  const double room = tile.body.right() - kDetailMargin - place.x();
  painter->setPen(paint::withAlpha(colour, lone ? kLoneDetailAlpha : kDetailAlpha));
  paint::text(painter, place, metrics.elidedText(item.detail, Qt::ElideRight, room));
}

} // namespace ui
