/// A horizontal bar of coloured segments that shows how a total divides up.
#pragma once

#include "ui/accessible.h"

#include <QColor>
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QString>
#include <QWidget>

class QPainter;

namespace ui {

/// Corner radius of a bar of this height: low bars are pills.
[[nodiscard]] double stackBarRadius(double height);
/// One rectangle for each size, in order from the left of a bar of this size. An amount above 0 is at least 2 pixels
/// wide. Nothing is scaled to fit: minimum widths and gaps can push the last ones past the right edge.
/// @param scale  the amount that is as wide as the bar, 1 or more
[[nodiscard]] QList<QRectF> stackBarLayout(const QList<qint64>& sizes, qint64 scale, const QSizeF& bar);
/// The diagonals of a hatched segment, from the lower left to the upper right; to be clipped to the segment.
[[nodiscard]] QList<QLineF> stackBarHatching(const QRectF& segment);

/// It fills from the side where its layout begins. Segments have tool tips. A screen reader hears each segment's tip
/// and share.
class StackBar : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  struct Segment {
    qint64 bytes = 0; ///< in the unit of the scale; 0 and less isn't painted
    QColor colour;
    bool hatched = false; ///< paints diagonal stripes
    QString tip = {};     ///< empty: none
  };

  explicit StackBar(int height, QWidget* parent = nullptr);

  /// @param scale  the amount that is as wide as the bar; below 2 it counts as 1
  void setSegments(const QList<Segment>& segments, qint64 scale);
  /// Of all segments, in order, in the bar's coordinates.
  [[nodiscard]] QList<QRectF> layoutSegments() const;

  /// "Logs: 12%, Trash: 30%"; a segment without a tip is told by its share alone, an empty one not at all.
  [[nodiscard]] QString valueText() const override;
  /// What all segments together are of the scale, at most 1.
  [[nodiscard]] double valueFraction() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  [[nodiscard]] QString tipAt(const QPointF& point) const;

  QList<Segment> m_segments;
  qint64 m_scale = 1;
};

} // namespace ui
