/// Searches the home folder for large files on a worker thread. Changes nothing.
#pragma once

#include "app/records.h"
#include "engines/Job.h"

#include <QHash>
#include <QMutex>
#include <QObject>

#include <chrono>
#include <functional>

class LargeFileFinder : public QObject {
  Q_OBJECT

 public:
  /// A clock that never goes back; what it begins at doesn't matter. Called on the worker thread.
  using Clock = std::function<std::chrono::milliseconds()>;

  /// What a search came to beside its list.
  struct Summary {
    qint64 filesSeen = 0;
    int found = 0;                   ///< all large files, also beyond those that are listed
    qint64 bytesFound = 0;           ///< that they hold on disk
    QHash<QString, FileId> ids = {}; ///< of the listed files, by path
  };

  /// @param clock  for tests; empty is the system's
  explicit LargeFileFinder(QObject* parent = nullptr, Clock clock = {});
  ~LargeFileFinder() override;

  /// Starts a search for files that hold at least @p minBytes on disk, but for what these exclusion rules name; does
  /// nothing while one runs.
  void start(qint64 minBytes, const QList<QString>& exclusions);
  /// Raises the flag; the search ends at its next folder. Any thread.
  void cancel();
  /// Whether a search runs; it doesn't any more when finished() is emitted.
  [[nodiscard]] bool isRunning() const;
  /// Of the search that finished last, a cancelled one too. Any thread.
  [[nodiscard]] Summary summary() const;

  /// The label of a file's kind by its name's suffix, untranslated; "File" for all that isn't known.
  [[nodiscard]] static QString kindFor(const QString& name);
  /// A label of kindFor() in the language in force.
  [[nodiscard]] static QString kindName(const QString& kind);

 signals:
  // All are emitted on the worker thread.
  /// Files seen, the folder at work, how many large ones were found with how many bytes, and the eight largest, largest
  /// first. At most every 81 ms, and only while files are being seen.
  void progress(qint64 filesSeen, const QString& dir, int found, qint64 bytesFound, const QList<LargeFile>& top);
  /// Exactly once a search: the 500 largest, largest first; of a cancelled search what was found until then.
  void finished(const QList<LargeFile>& files, bool cancelled);

 private:
  void run(qint64 minBytes, const QList<QString>& exclusions);

  const Clock m_clock;
  mutable QMutex m_summaryLock;
  Summary m_summary;
  std::atomic<bool> m_isRunning = false;
  Job m_job;
};
