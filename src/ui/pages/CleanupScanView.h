/// The Cleanup page while a scan runs: the radar with its counters, and the steps.
#pragma once

#include <QString>
#include <QWidget>

class AppState;
class QLabel;
class QVBoxLayout;

namespace ui {

class RadarCard;

/// How far a scan is, from 0 to 1: it moves by whole categories, and the one in progress counts as half done.
/// @param current  index of the category in progress; -1 before the first
/// @param count    of categories; 0 gives 0
[[nodiscard]] double scanFraction(int current, qsizetype count);
/// The estimate of the time that is left, "~1:05", or "—" where it is too early for one.
[[nodiscard]] QString scanRemaining(double fraction, qint64 elapsedSeconds);

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
