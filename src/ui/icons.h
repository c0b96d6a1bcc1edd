/// The line icons and the logos: SVG resources, tinted at run time. User-interface thread only.
#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>
#include <QString>

class QPainter;

namespace icons {

/// Paints the icon into @p rect; the colour's alpha becomes opacity. An unknown name paints nothing.
void paint(QPainter* painter, const QRectF& rect, const QString& name, const QColor& colour);
/// The icon at @p size logical pixels, for the pixel ratios 1, 1.25, 1.5 and 2.
/// @param side  of the empty square in whose middle it lies: what shows icons in that size alone would stretch a
///              smaller one; less than @p size for none
[[nodiscard]] QIcon icon(const QString& name, const QColor& colour, int size, int side = 0);
/// The full logo.
void paintLogo(QPainter* painter, const QRectF& rect);
/// The application's window icon.
[[nodiscard]] QIcon appIcon();
/// The icon of the status area: where the system tints such icons, the black glyph, marked as a template; elsewhere the
/// small logo, which can be read on light and dark panels alike.
[[nodiscard]] QIcon trayIcon();
/// How many pairs of a name and an opaque colour have been asked for so far: what the icons keep in memory.
[[nodiscard]] int rendererCount();

} // namespace icons
