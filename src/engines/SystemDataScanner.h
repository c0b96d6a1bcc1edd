/// Measures the System Data catalogue on a worker thread, one row after the other. Changes nothing.
#pragma once

#include "app/records.h"
#include "engines/Job.h"
#include "engines/systemdata.h"

#include <QObject>

class SystemDataScanner : public QObject {
  Q_OBJECT

 public:
  explicit SystemDataScanner(QObject* parent = nullptr, SystemDataWorld world = {});
  ~SystemDataScanner() override;

  /// Starts a measuring; does nothing while one runs.
  void start();
  /// Raises the flag; the measuring ends at its next folder. Any thread.
  void cancel();
  /// From start() until finished() has arrived on the thread of this object, before anybody else there hears of it. On
  /// that thread.
  [[nodiscard]] bool isRunning() const;
  [[nodiscard]] const SystemDataWorld& world() const { return m_world; }

 signals:
  // All are emitted on the worker thread.
  /// At work on row @p index of @p total, at @p path, with @p bytes counted so far for that row.
  void progress(int index, int total, const QString& path, qint64 bytes);
  /// Row @p index has its figure.
  void measured(int index, qint64 bytes, bool denied);
  /// Exactly once a measuring, with all rows; of a cancelled one with the figures so far.
  void finished(const QList<SystemDataItem>& items, bool cancelled);

 private:
  class Measuring;

  void run();

  const SystemDataWorld m_world;
  bool m_running = false;
  Job m_job;
};
