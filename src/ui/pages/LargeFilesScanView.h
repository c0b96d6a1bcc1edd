/// The Space Map while a search runs: the radar with its counters, and the largest files so far.
#pragma once

#include "app/records.h"

#include <QElapsedTimer>
#include <QList>
#include <QString>
#include <QWidget>

class QLabel;
class QTimer;
class QVBoxLayout;

namespace ui {

class RadarCard;

class LargeFilesScanView : public QWidget {
  Q_OBJECT

 public:
  explicit LargeFilesScanView(QWidget* parent = nullptr);

  /// Shows a search that has found nothing yet, and starts its clock; nothing happens if that runs already.
  void begin();
  /// The radar and the clock stand still, and all that was found stays in place.
  void end();
  /// As AppState::largeProgress tells it.
  void setProgress(qint64 filesSeen, const QString& dir, int found, qint64 bytesFound, const QList<LargeFile>& top);
  /// The list of the largest so far. Rows are built anew only if it names other files, or in another order.
  void showLargest(const QList<LargeFile>& files);

 private:
  void showElapsed();

  RadarCard* m_radarCard;
  QLabel* m_itemsValue;
  QLabel* m_foundValue;
  QLabel* m_elapsedValue;
  QVBoxLayout* m_largest;
  QLabel* m_waiting;
  QElapsedTimer m_scanClock;
  QTimer* m_tickTimer;
  QList<QString> m_shownLargest; ///< paths, as they stand in the list
};

} // namespace ui
