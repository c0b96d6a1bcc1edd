/// Small pieces of painting that several controls share. All lengths in logical pixels.
#pragma once

#include <QBrush>
#include <QColor>
#include <QMargins>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QString>

class QPainter;

namespace ui::paint {

/// @p colour with another alpha, of 255.
[[nodiscard]] QColor withAlpha(const QColor& colour, int alpha);
/// @p colour with another alpha, as a fraction.
[[nodiscard]] QColor withAlphaF(const QColor& colour, double alpha);
/// The rectangle in which a one-pixel border stays crisp: half a pixel inside on every side.
[[nodiscard]] QRectF hairline(const QRectF& rect);
/// A plain solid pen with square caps and bevel joins.
[[nodiscard]] QPen pen(const QBrush& brush, double width = 1);
/// A pen with round caps and joins.
[[nodiscard]] QPen roundPen(const QBrush& brush, double width);

/// Where @p rect, laid out from left to right in @p whole, lies in that direction.
[[nodiscard]] QRectF mirrored(const QRectF& rect, const QRectF& whole, Qt::LayoutDirection direction);
/// Margins whose sides change places in a layout from right to left, which layouts leave as they are.
[[nodiscard]] QMargins mirrored(const QMargins& margins, Qt::LayoutDirection direction);
/// The direction in which @p text reads in a layout of that direction: its own, so that a size keeps its unit and a
/// path its start; from left to right wherever the layout goes so.
[[nodiscard]] Qt::LayoutDirection readingDirection(const QString& text, Qt::LayoutDirection direction);
/// The flags with which a text is drawn: @p flags with the alignment turned to @p direction, the layout's, and the
/// direction in which @p text reads.
[[nodiscard]] int textFlags(const QString& text, int flags, Qt::LayoutDirection direction);
/// The layout direction of the widget that is painted on; the program's on anything else.
[[nodiscard]] Qt::LayoutDirection directionOf(const QPainter* painter);
/// Draws @p text with the painter's pen and font; @p flags as QPainter::drawText() takes them. On a widget that goes
/// from right to left, AlignLeft is the right side, and the text still reads in its own direction.
void text(QPainter* painter, const QRectF& box, int flags, const QString& text);
/// Draws @p text in its own direction from @p start, the left end of its baseline.
void text(QPainter* painter, const QPointF& start, const QString& text);

/// A line of a pixel along the inside of a rectangle.
struct Outline {
  QRectF path; ///< of the line's middle
  double width = 1;
};
/// The outline of @p rect for @p painter. Where a pixel is one and a fraction of the device's, the line takes the whole
/// ones, and lies on them, so that it is as crisp and as wide on every side.
[[nodiscard]] Outline outlineOn(const QPainter* painter, const QRectF& rect);
/// Fills @p rect, a straight line of a pixel, in the same way. Lines that meet leave no gap.
void line(QPainter* painter, const QRectF& rect, const QColor& colour);
/// A rounded rectangle with a fill and, if it isn't Qt::NoPen, an outline; one of a pixel in a rectangle of hairline()
/// is placed as outlineOn() tells.
void roundedRect(QPainter* painter, const QRectF& rect, double radius, const QBrush& fill,
                 const QPen& outline = Qt::NoPen);

/// A soft shadow of stacked rounded rectangles around @p body, from the outermost layer inward.
struct Shadow {
  int layers = 8;     ///< the outermost is this many pixels larger on every side
  double offsetY = 0; ///< how far the layers lie below the body
  double radius = 0;  ///< corner radius of a layer is this plus its growth
  QColor colour = Qt::black;
  int peak = 0; ///< alpha at the body is peak x (1 - k / layers) squared, made whole as told below
  enum class Alpha { Truncated, Rounded } alpha = Alpha::Truncated;
};
void shadow(QPainter* painter, const QRectF& body, const Shadow& shadow);

/// Angles of an arc in turns, clockwise from 12 o'clock, as QPainter::drawArc takes them (sixteenths of a degree).
struct ArcAngles {
  int start = 0;
  int span = 0;
};
[[nodiscard]] ArcAngles arcInTurns(double startTurns, double spanTurns);

} // namespace ui::paint
