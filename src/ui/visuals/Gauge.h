/// A dial of 270 degrees that tells how full something is.
#pragma once

#include "ui/Theme.h"
#include "ui/accessible.h"
#include "ui/paint.h"
#include "ui/visuals/dial.h"

#include <QWidget>

namespace ui {

struct GaugeLayout {
  QRectF dial; ///< the circle that the arc lies on
  dial::TextBoxes text;
};
[[nodiscard]] GaugeLayout gaugeLayout(const QSize& size);
/// The arc of a value from 0 to 1; that of 1 is the track.
[[nodiscard]] paint::ArcAngles gaugeArc(double value);
/// The accent, a caution above 0.8, a danger above 0.9.
[[nodiscard]] Tone gaugeTone(double value);

class Gauge : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  explicit Gauge(QWidget* parent = nullptr);

  [[nodiscard]] double value() const { return m_value; }
  /// Takes what is below 0 for 0 and what is above 1 for 1.
  void setValue(double value);

  [[nodiscard]] QString valueText() const override;
  [[nodiscard]] double valueFraction() const override { return m_value; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintArcs(QPainter* painter, const QRectF& dial) const;

  double m_value = 0;
};

} // namespace ui
