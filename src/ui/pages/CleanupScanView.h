/// The Cleanup page while a scan runs: the radar with its counters, and the steps.
#pragma once

#include <QString>
#include <QWidget>

class AppState;
class QLabel;
class QVBoxLayout;

namespace ui {

class RadarCard;

/// Shows nothing by itself: what it shows comes with refresh().
class CleanupScanView : public QWidget {
  Q_OBJECT

 public:
  explicit CleanupScanView(AppState* state, QWidget* parent = nullptr);

  /// The next refresh() builds the rows anew: another scan may have another catalogue.
  void forgetSteps() { m_shownStepCount = kNotBuilt; }
  /// The next refresh() paints the rows anew, in the colours of the look in force.
  void forgetColours() { m_shownStepIndex = kNeverPainted; }
  void refresh();
  void stopRadar();

 private:
  static constexpr qsizetype kNotBuilt = -1;
  static constexpr int kNeverPainted = -2;

  void rebuildSteps();
  void paintSteps();

  AppState* m_state;
  RadarCard* m_radarCard;
  QLabel* m_itemsValue;
  QLabel* m_elapsedValue;
  QLabel* m_remainingValue;
  QVBoxLayout* m_stepsLayout;
  qsizetype m_shownStepCount = kNotBuilt;
  int m_shownStepIndex = kNeverPainted; ///< as last painted into the rows
};

} // namespace ui
