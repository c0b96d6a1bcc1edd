/// What the kinds of large files look like, in the list and on the map.
#pragma once

#include <QColor>
#include <QString>

namespace ui {

struct KindStyle {
  QString icon;
  QColor colour;
};
/// Of a kind by its label, as LargeFileFinder::kindFor gives it; any other label looks like a file of no known kind.
[[nodiscard]] const KindStyle& kindStyle(const QString& kind);

/// The tile of a kind's @p n-th file, from 0 on: near the kind's colour, so that tiles of one kind belong together, and
/// yet another one than its neighbours'. Every eighth step begins anew. A grey stays as it is.
[[nodiscard]] QColor tileColour(const QColor& base, int n);

} // namespace ui
