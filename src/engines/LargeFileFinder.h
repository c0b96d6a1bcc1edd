/// Searches the home folder for large files on a worker thread. Changes nothing.
#pragma once

#include "app/records.h"
#include "engines/Job.h"

#include <QObject>

class LargeFileFinder : public QObject {
  Q_OBJECT

 public:
  explicit LargeFileFinder(QObject* parent = nullptr);
  ~LargeFileFinder() override;

  /// Starts a search for files that hold at least @p minBytes on disk, but for what these exclusion rules name; does
  /// nothing while one runs.
  void start(qint64 minBytes, const QList<QString>& exclusions);
  /// Raises the flag; the search ends at its next folder. Any thread.
  void cancel();
  [[nodiscard]] bool isRunning() const;

  /// The label of a file's kind by its name's suffix, untranslated; "File" for all that isn't known.
  [[nodiscard]] static QString kindFor(const QString& name);

 signals:
  // All are emitted on the worker thread.
  /// Files seen, the folder at work, how many large ones were found with how many bytes, and the eight largest.
  void progress(qint64 filesSeen, const QString& dir, int found, qint64 bytesFound, const QList<LargeFile>& top);
  /// Exactly once a search: the 500 largest, largest first; of a cancelled search what was found until then.
  void finished(const QList<LargeFile>& files, bool cancelled);

 private:
  void run(qint64 minBytes, const QList<QString>& exclusions);

  Job m_job;
};
