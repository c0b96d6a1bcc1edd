/// A ring that fills as work goes on, with a dot that circles while nobody knows how far it is.
#pragma once

#include "ui/accessible.h"
#include "ui/visuals/dial.h"

#include <QWidget>

namespace ui {

class Ticker;

struct ProgressRingLayout {
  QRectF circle;
  dial::TextBoxes text;
};
[[nodiscard]] ProgressRingLayout progressRingLayout(const QSize& size);
/// The point of a circle that lies @p degrees clockwise from 12 o'clock.
[[nodiscard]] QPointF ringPoint(const QRectF& circle, double degrees);
/// What the ring shows one beat after @p shown, on its way to @p target.
[[nodiscard]] double ringEased(double shown, double target);
/// Where the dot is one beat after @p orbit, in degrees below 360.
[[nodiscard]] double ringOrbited(double orbit);

/// Eases upward and falls at once. Beats only while something moves; under reduced motion the dot stands still.
class ProgressRing : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  explicit ProgressRing(QWidget* parent = nullptr);

  /// Takes what is below 0 for 0 and what is above 1 for 1.
  void setProgress(double progress);
  void setText(const QString& headline, const QString& caption);
  /// Brings the dot to 12 o'clock, or takes it away; a dot that is there already keeps its place.
  void setOrbiting(bool on);

  [[nodiscard]] double target() const { return m_target; }
  [[nodiscard]] double shown() const { return m_shown; }
  /// Degrees clockwise from 12 o'clock; -1 without the dot.
  [[nodiscard]] double orbit() const { return m_orbit; }
  /// Whether something moves, or will when it is seen.
  [[nodiscard]] bool isMoving() const;

  /// The two lines, or the percentage where there are none.
  [[nodiscard]] QString valueText() const override;
  [[nodiscard]] double valueFraction() const override { return m_target; }

  bool success = false; ///< green, for work that went well; set it before setProgress()

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void ease();
  void turn();
  void paintRing(QPainter* painter, const QRectF& circle) const;
  void paintDot(QPainter* painter, const QPointF& centre) const;

  double m_target = 0;
  double m_shown = 0; ///< on its way to the target
  QString m_headline;
  QString m_caption;
  double m_orbit;
  Ticker* m_easing;
  Ticker* m_turning;
};

} // namespace ui
