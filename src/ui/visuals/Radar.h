/// A dial that a beam sweeps over: something is being looked for.
#pragma once

#include "ui/accessible.h"
#include "ui/visuals/dial.h"

#include <QList>
#include <QPixmap>
#include <QWidget>

namespace ui {

class Ticker;

struct RadarLayout {
  QPointF centre;
  double radius = 0;   ///< of the sweep
  double hollow = 0;   ///< radius at which the sweep begins
  QList<double> rings; ///< radii of the range rings, from the inside
  double coreRadius = 0;
  dial::TextBoxes text;
};
[[nodiscard]] RadarLayout radarLayout(const QSize& size);
/// Where the beam is one beat after @p angle, in degrees below 360.
[[nodiscard]] double radarSwept(double angle);

/// Sweeps clockwise until it is stopped, and stands still under reduced motion.
class Radar : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  explicit Radar(QWidget* parent = nullptr);

  void setText(const QString& headline, const QString& caption);
  /// Stopped, the beam stays where it is.
  void setRunning(bool on);

  /// Of the beam's leading edge, in degrees clockwise from 3 o'clock.
  [[nodiscard]] double angle() const { return m_angle; }
  [[nodiscard]] bool isRunning() const;

  [[nodiscard]] QString valueText() const override { return dial::spoken(m_headline, m_caption); }
  /// None while it runs, as nobody knows how far it is.
  [[nodiscard]] double valueFraction() const override { return isRunning() ? -1 : 1; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void turn();
  void forgetPictures();
  void paintPictures(double ratio, const RadarLayout& layout);
  void paintSweep(QPainter* painter, const RadarLayout& layout) const;

  QString m_headline;
  QString m_caption;
  double m_angle = 0;
  Ticker* m_ticker;

  // Circles take ten times as long as the beam, which alone is another one with every beat.
  QPixmap m_rings; ///< what lies below the beam
  QPixmap m_core;  ///< what lies above it, without the texts
};

} // namespace ui
