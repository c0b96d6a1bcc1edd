/// Where everything of the disk orb lies: figures in, rectangles and angles out. No painter, no widget.
#pragma once

#include "ui/paint.h"

#include <QLineF>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>

namespace ui::orb {

/// Figures of a disk, in bytes.
struct Disk {
  qint64 total = 1;     ///< at least 1
  qint64 used = 0;      ///< from 0 to total
  qint64 cleanable = 0; ///< the part of used that can be cleaned
};
/// The figures, each brought between its bounds.
[[nodiscard]] Disk disk(qint64 total, qint64 used, qint64 cleanable);

/// What the ring shows of a disk, in turns.
struct Shares {
  double fixed = 0; ///< used, and can't be cleaned
  double clean = 0;
  bool nearlyFull = false; ///< more than nine tenths are used
};
[[nodiscard]] Shares shares(const Disk& disk);
/// The arc of a share that begins at @p start, both in turns from 12 o'clock. It leaves a gap of 3 pixels to the next,
/// but is half a degree at least; nothing for a share of 0 or less.
[[nodiscard]] std::optional<paint::ArcAngles> arc(double start, double share);

struct Layout {
  QPointF centre;
  QRectF ring;         ///< the square of the circle that the arcs lie on
  QRectF core;         ///< the square of the button
  QList<QLineF> ticks; ///< each from its outer end inward
};
[[nodiscard]] Layout layout(const QSize& size);
/// Whether a point is on the button, its edge included.
[[nodiscard]] bool isOnCore(const Layout& layout, const QPointF& point);

/// A value for display, parted at its last space; without one, or with none but its first character, it is all number.
struct Value {
  QString number;
  QString unit;
};
[[nodiscard]] Value value(const QString& text);

/// What stands on the button.
struct TextWidths {
  double number = 0;
  double unit = 0; ///< 0 for none
  double action = 0;
};
struct TextLayout {
  QPointF number; ///< the left end of its baseline
  QPointF unit;   ///< on the same baseline
  QRectF caption;
  QRectF pill;
};
[[nodiscard]] TextLayout textLayout(const QRectF& core, const TextWidths& widths);

/// The light that the pill casts downward, from the outermost layer inward.
struct GlowLayer {
  QRectF rect;
  double radius = 0;
};
[[nodiscard]] QList<GlowLayer> pillGlow(const QRectF& pill);

} // namespace ui::orb
