/// The System Data page while a first measuring runs: the radar with its clocks, and one row for each item.
#pragma once

#include "app/records.h"

#include <QElapsedTimer>
#include <QWidget>

class QLabel;
class QScrollArea;
class QTimer;
class QVBoxLayout;

namespace ui {

class RadarCard;
class ScanStepRow;

class SystemDataScanView : public QWidget {
  Q_OBJECT

 public:
  explicit SystemDataScanView(QWidget* parent = nullptr);

  /// Starts with a row for each of @p items, none of which is measured, and starts the clocks.
  void begin(const QList<SystemDataItem>& items);
  /// Stops clocks and radar.
  void end();
  /// Between begin() and end().
  [[nodiscard]] bool isLive() const;

  void showPath(const QString& path);
  /// Item @p index has its figure, and the next one is in work. Nothing happens with an index that has no row.
  void setMeasured(int index, qint64 bytes, bool denied);
  /// Item @p index is in work, with @p bytes counted so far; with a negative number only the clocks move.
  void showProgress(int index, qint64 bytes);
  /// Paints the rows in the colours of the look in force.
  void refreshLook();

 private:
  struct Step {
    ScanStepRow* row = nullptr;
    qint64 bytes = -1;   ///< measured; negative while unknown
    bool denied = false; ///< as reported beside the bytes; isn't shown
  };

  [[nodiscard]] QWidget* buildSteps();
  void showSteps();
  /// Scrolls to the row of the item in work.
  void keepInView();
  void showStep(const Step& step, bool inWork);
  void showClocks();

  RadarCard* m_radarCard;
  QLabel* m_elapsedValue;
  QLabel* m_remainingValue;
  QScrollArea* m_scroll;
  QVBoxLayout* m_rows;
  QTimer* m_tickTimer;
  QElapsedTimer m_scanClock;
  QList<Step> m_steps;
  int m_currentIndex = 0;
  qint64 m_currentBytes = 0; ///< counted so far of the item in work
};

} // namespace ui
