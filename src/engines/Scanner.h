/// Measures the catalogue on a worker thread, one category after the other. Deletes nothing.
#pragma once

#include "app/records.h"
#include "core/appguard.h"
#include "engines/Job.h"

#include <QObject>

#include <functional>

/// What a scan takes from the outside world, for tests to bend.
struct ScannerWorld {
  appguard::Sources sources;                             ///< of running apps, locks and mounts
  std::function<QList<CategoryDef>()> catalogue;         ///< empty: categories::forThisPlatform
  std::function<bool(qint64*, qint64*)> queryRecycleBin; ///< empty: the system's
};

class Scanner : public QObject {
  Q_OBJECT

 public:
  explicit Scanner(QObject* parent = nullptr, ScannerWorld world = {});
  ~Scanner() override;

  /// Starts a scan with these exclusion rules; does nothing while one runs.
  /// @param only  ids of the categories to look at, in catalogue order; empty means all. The others come back in
  ///              `finished` with their definition and nothing found, and have no other signal.
  void start(const QList<QString>& exclusions, const QStringList& only = {});
  /// Raises the flag; the scan ends at its next check. Any thread.
  void cancel();
  [[nodiscard]] bool isRunning() const;

 signals:
  // All are emitted on the worker thread.
  void started(const QList<CategoryDef>& defs);
  void categoryStarted(int index);
  /// Sums of the whole scan in bytes and files; @p path may be empty.
  void progress(qint64 bytes, qint64 files, const QString& path);
  void categoryFinished(int index, const CategoryResult& result);
  /// Exactly once a scan, with the categories that were completed.
  void finished(const QList<CategoryResult>& results, bool cancelled);

 private:
  void run(const QList<QString>& exclusions, const QStringList& only);

  ScannerWorld m_world;
  Job m_job;
};
