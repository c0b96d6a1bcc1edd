/// A thin bar for one step of several: waiting, in work, done.
#pragma once

#include "ui/accessible.h"

#include <QWidget>

namespace ui {

class Ticker;

/// The band that sweeps along a bar of this size at @p phase, from 0 (still outside, left) to 1 (outside again, right).
[[nodiscard]] QRectF stepBand(const QSize& size, double phase);
/// The phase one beat after @p phase, below 1.
[[nodiscard]] double stepAdvanced(double phase);

/// The band sweeps on from the side where its layout begins. Under reduced motion it stands in the middle.
class StepBar : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  enum State { Pending, Running, Done };
  Q_ENUM(State)

  explicit StepBar(QWidget* parent = nullptr);

  [[nodiscard]] State state() const { return m_state; }
  void setState(State state);
  /// How far the sweep is, from 0 to below 1; it goes on from there when the bar runs again.
  [[nodiscard]] double phase() const { return m_phase; }
  /// Whether the band really moves now.
  [[nodiscard]] bool isSweeping() const;

  [[nodiscard]] QString valueText() const override;
  /// None while it runs.
  [[nodiscard]] double valueFraction() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void advance();

  State m_state = Pending;
  Ticker* m_ticker;
  double m_phase = 0;
};

} // namespace ui
