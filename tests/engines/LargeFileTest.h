/// What the tests of the search for large files share: a home folder for each case, and a search with a clock of the
/// test's own.
#pragma once

#include "core/fs.h"
#include "engines/LargeFileFinder.h"
#include "support/FixtureHome.h"

#include <QObject>
#include <QSemaphore>
#include <QTest>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

inline constexpr int kPatienceMs = 60'000;
inline constexpr qint64 kBlock = 4096; ///< what sizes on disk are whole numbers of
inline constexpr qint64 kMin = 4 * kBlock;
inline constexpr int kFilesPerLook = 16;

struct Told {
  qint64 filesSeen;
  QString dir;
  int found;
  qint64 bytesFound;
  QList<LargeFile> top;
};

/// A finder with a clock of the test's, and all that it tells. The clock moves on by a step each time it is asked.
class Run {
 public:
  explicit Run(std::chrono::milliseconds step = {})
      : finder(nullptr, [this, step] {
          if (onLook) onLook();
          return m_time += step;
        }) {
    QObject::connect(
        &finder, &LargeFileFinder::progress, &finder,
        [this](qint64 seen, const QString& dir, int found, qint64 bytes, const QList<LargeFile>& top) {
          told << Told{seen, dir, found, bytes, top};
        },
        Qt::DirectConnection);
    QObject::connect(
        &finder, &LargeFileFinder::finished, &finder,
        [this](const QList<LargeFile>& list, bool wasCancelled) {
          files = list;
          cancelled = wasCancelled;
          ++ends;
          m_done.release();
        },
        Qt::DirectConnection);
  }
  /// Searches to the end.
  void search(qint64 minBytes = kMin, const QStringList& rules = {}) {
    finder.start(minBytes, rules);
    wait();
  }
  /// Returns when the search has told its end.
  void wait() { QVERIFY(m_done.tryAcquire(1, kPatienceMs)); }
  [[nodiscard]] QStringList names() const {
    QStringList all;
    for (const LargeFile& file : files) all << file.name;
    return all;
  }
  [[nodiscard]] QStringList sortedNames() const {
    QStringList all = names();
    all.sort();
    return all;
  }

  std::function<void()> onLook; ///< on the worker, each time the clock is looked at; the first when the search begins
  QList<Told> told;
  QList<LargeFile> files;
  bool cancelled = false;
  std::atomic<int> ends = 0;

 private:
  std::chrono::milliseconds m_time{1'000'000};
  QSemaphore m_done;

 public:
  LargeFileFinder finder;
};

/// What they hold on disk, in blocks.
inline QList<qint64> blocks(const QList<LargeFile>& files) {
  QList<qint64> all;
  for (const LargeFile& file : files) all << file.size / kBlock;
  return all;
}

class LargeFileTest : public QObject {
 protected:
  void make() {
    records::registerMetaTypes();
    m_home = std::make_unique<FixtureHome>();
  }
  void drop() { m_home.reset(); }

  QString large(const QString& relative, qint64 sizeInBlocks = 5) const {
    return m_home->file(relative, sizeInBlocks * kBlock);
  }
  /// Files that nobody looks for, in a folder that is walked after all that lies in the home folder itself.
  void addSmall(const QString& folder, int count = kFilesPerLook) const {
    for (int i = 0; i < count; ++i) m_home->file(folder + QStringLiteral("/small %1").arg(i), 0);
  }

  std::unique_ptr<FixtureHome> m_home;
};
