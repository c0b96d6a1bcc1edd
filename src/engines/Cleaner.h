/// Removes what the user selected on a worker thread, asks every safety question again, and logs every decision.
#pragma once

#include "app/records.h"
#include "core/appguard.h"
#include "core/runlock.h"
#include "engines/Job.h"

#include <QDateTime>
#include <QObject>

#include <chrono>
#include <functional>

/// What a clean takes from the outside world, for tests to bend.
struct CleanerWorld {
  std::function<void(std::chrono::milliseconds)> sleep; ///< empty: the thread sleeps
  std::function<QDateTime()> now;                       ///< empty: the local time
  std::function<bool()> emptyRecycleBin;                ///< empty: the system's
  appguard::Sources sources;
  QString lockPath; ///< empty: where all processes of the user meet
};

class Cleaner : public QObject {
  Q_OBJECT

 public:
  enum class Run { ForReal, Dry };

  explicit Cleaner(QObject* parent = nullptr, CleanerWorld world = {});
  ~Cleaner() override;

  /// Starts a run; does nothing while one runs. Removes or moves files, unless @p kind is Dry, which asks every
  /// question, touches nothing, writes no file and leaves its log in CleanReport::dryRunLog.
  void start(const QList<CategoryResult>& results, bool moveToTrash, const QList<QString>& exclusions,
             Run kind = Run::ForReal);
  /// Lets the run finish its item, measure, write its log and report. For headless programs; any thread.
  void stop();
  [[nodiscard]] bool isRunning() const;

  /// Folder of the logs. Any thread; no effect on the disk.
  [[nodiscard]] static QString logDir();

 signals:
  // All are emitted on the worker thread.
  /// Title of the category at work, empty at the end, and files of the selected items dealt with, of all. Before each
  /// progress(), and within a large item, at most every 60 ms.
  void filesProgress(const QString& category, qint64 done, qint64 total);
  /// Selected bytes dealt with, of all; @p path in native separators.
  void progress(qint64 done, qint64 total, const QString& path);
  /// Exactly once a run.
  void finished(const CleanReport& report);

 private:
  CleanerWorld m_world;
  Job m_job;
};
