/// Measures the System Data catalogue on a worker thread, one row after the other. Changes nothing.
#pragma once

#include "app/records.h"
#include "engines/Job.h"

#include <QObject>

class SystemDataScanner : public QObject {
  Q_OBJECT

 public:
  explicit SystemDataScanner(QObject* parent = nullptr);
  ~SystemDataScanner() override;

  /// Starts a measuring; does nothing while one runs.
  void start();
  /// Raises the flag; the measuring ends at its next folder. Any thread.
  void cancel();
  [[nodiscard]] bool isRunning() const;

 signals:
  // All are emitted on the worker thread.
  /// At work on row @p index of @p total, at @p path, with @p bytes counted so far for that row.
  void progress(int index, int total, const QString& path, qint64 bytes);
  /// Row @p index has its figure.
  void measured(int index, qint64 bytes, bool denied);
  /// Exactly once a measuring, with all rows; of a cancelled one with the figures so far.
  void finished(const QList<SystemDataItem>& items, bool cancelled);

 private:
  void run();

  Job m_job;
};
