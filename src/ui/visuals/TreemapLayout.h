/// Where the tiles of a treemap lie, what is painted of each of them, and which of them is meant. Lengths in pixels.
#pragma once

#include <QList>
#include <QPolygonF>
#include <QRectF>

namespace ui {

/// Divides a map of this size between tiles in proportion to their sizes, as near to squares as may be, the first in
/// the top left corner. Tiles fill the map without gaps.
/// @param sizes  largest first; sizes of 0 and less get an empty rectangle
/// @return one rectangle for each size, in order; all are empty if the map or the sum of sizes is
[[nodiscard]] QList<QRectF> treemapLayout(const QList<qint64>& sizes, const QSizeF& map);

/// What of its texts a tile has room for.
enum class TileText { None, Detail, LabelAndDetail };

/// The pieces of one painted tile.
struct TreemapTile {
  QRectF body; ///< inside the gap to its neighbours; null if too small to be painted
  double radius = 0;
  QRectF ring; ///< of a selected tile
  double ringRadius = 0;
  QRectF tick;     ///< the disc under the check mark of a selected tile; null where there is no room
  QPolygonF check; ///< the check mark, open
  QRectF text;     ///< the label at its top left, the detail at its bottom left
  double labelWidth = 0;
  TileText words = TileText::None;
};
/// @param rect  of the tile in the map, with its gap
[[nodiscard]] TreemapTile treemapTile(const QRectF& rect, bool selected);

/// A ring for the keyboard: it lies in the gap around the body. Never empty, so that a tile too small to be painted
/// is seen to have the focus.
struct TreemapRing {
  QRectF rect;
  double radius = 0;
};
[[nodiscard]] TreemapRing treemapRing(const QRectF& rect);

/// The first tile that holds @p point, edges included; -1 for none.
[[nodiscard]] int firstTileAt(const QList<QRectF>& rects, const QPointF& point);
/// The last one.
[[nodiscard]] int lastTileAt(const QList<QRectF>& rects, const QPointF& point);
/// The tile beyond one edge of the tile @p from, in line with its middle; @p from itself where the map ends. Going on
/// in all four directions reaches every tile that isn't empty.
[[nodiscard]] int tileBeyond(const QList<QRectF>& rects, int from, Qt::Edge edge);

} // namespace ui
