/// A tiny line chart of a short series.
#pragma once

#include "ui/accessible.h"

#include <QList>
#include <QPolygonF>
#include <QString>
#include <QWidget>

namespace ui {

struct SparklineLayout {
  QPolygonF line; ///< one point for each value
  QPolygonF area; ///< the line, closed along the bottom
};
/// A chart of this size, with room for its pen at all sides. Its baseline is the value 0, and values below it run
/// below the baseline, unclamped. No values give no points.
[[nodiscard]] SparklineLayout sparklineLayout(const QList<qint64>& values, const QSizeF& chart);

/// A screen reader hears the values in their order.
class Sparkline : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  explicit Sparkline(QWidget* parent = nullptr);

  void setValues(const QList<qint64>& values);

  /// How a value is told to a screen reader; fmt::count at the start.
  void setValueFormat(QString (*format)(qint64));

  /// "12, 0, 7"
  [[nodiscard]] QString valueText() const override;
  /// The last value as a share of the largest; 0 without values.
  [[nodiscard]] double valueFraction() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QList<qint64> m_values;
  QString (*m_format)(qint64);
};

} // namespace ui
