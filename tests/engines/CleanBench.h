/// A place to clean in: a fixture home, a stand-in process file system, a clock that stands still and a sleep that only
/// counts. Runs a clean to its end and keeps all that it told.
#pragma once

#include "core/fs.h"
#include "engines/Cleaner.h"
#include "engines/ProcStandIn.h"
#include "support/FixtureHome.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include <atomic>

class CleanBench {
 public:
  struct Progress {
    qint64 done;
    qint64 total;
    QString path;
    QString category; ///< this and the files come before the others
    qint64 doneFiles;
    qint64 totalFiles;
  };

  CleanBench() : proc(home) {
    QCoreApplication::setApplicationName(QStringLiteral("Tarnwick"));
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick"));
    world.sleep = [this](std::chrono::milliseconds time) {
      waits << static_cast<int>(time.count());
      if (whileWaiting) whileWaiting();
    };
    world.now = [] { return QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)); };
    world.sources.procRoot = proc.root();
    world.lockPath = home.outside(QStringLiteral("clean.lock"));
  }

  /// An item as a scan would list it now.
  [[nodiscard]] static CleanItem item(const QString& path, bool wholeRoot = false) {
    const std::atomic<bool> never{false};
    const fs::Totals totals = fs::measure(path, never);
    CleanItem one;
    one.path = path;
    one.name = path.section(QLatin1Char('/'), -1);
    one.wholeRoot = wholeRoot;
    one.bytes = totals.bytes;
    one.files = totals.files;
    one.unread = totals.unread;
    return one;
  }
  /// A category of these items.
  [[nodiscard]] static CategoryResult category(const QString& id, const QList<CleanItem>& items) {
    CategoryResult result;
    result.def.id = id;
    result.def.title = id.toUpper();
    result.def.safety = id == QLatin1String("trash") ? Permanent : Safe;
    result.items = items;
    for (const CleanItem& one : items) {
      result.bytes += one.bytes;
      result.files += one.files;
    }
    return result;
  }

  void start(Cleaner* cleaner, const QList<CategoryResult>& results, bool moveToTrash = false,
             const QStringList& exclusions = {}, Cleaner::Run kind = Cleaner::Run::ForReal) {
    const auto direct = Qt::DirectConnection;
    finishedCount = 0;
    progress.clear();
    files.clear();
    waits.clear();
    QObject::connect(
        cleaner, &Cleaner::filesProgress, cleaner,
        [this](const QString& category, qint64 done, qint64 total) {
          files << Progress{-1, -1, {}, category, done, total};
        },
        direct);
    QObject::connect(
        cleaner, &Cleaner::progress, cleaner,
        [this](qint64 done, qint64 total, const QString& path) {
          progress << files.last();
          progress.last().done = done;
          progress.last().total = total;
          progress.last().path = path;
          if (onProgress) onProgress(path);
        },
        direct);
    QObject::connect(
        cleaner, &Cleaner::finished, cleaner,
        [this](const CleanReport& all) {
          report = all;
          ++finishedCount;
        },
        direct);
    cleaner->start(results, moveToTrash, exclusions, kind);
  }
  void wait(Cleaner* cleaner) {
    QTRY_VERIFY_WITH_TIMEOUT(finishedCount > 0 && !cleaner->isRunning(), 60000);
    QFile file(report.logPath);
    log = !report.logPath.isEmpty() && file.open(QIODevice::ReadOnly)
              ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))
              : QStringList();
  }
  void run(const QList<CategoryResult>& results, bool moveToTrash = false, const QStringList& exclusions = {},
           Cleaner::Run kind = Cleaner::Run::ForReal) {
    Cleaner cleaner(nullptr, world);
    start(&cleaner, results, moveToTrash, exclusions, kind);
    wait(&cleaner);
  }
  void runDry(const QList<CategoryResult>& results, bool moveToTrash = false, const QStringList& exclusions = {}) {
    run(results, moveToTrash, exclusions, Cleaner::Run::Dry);
    log = report.dryRunLog.split(QLatin1Char('\n'));
  }

  /// The lines of the log that begin with @p word.
  [[nodiscard]] QStringList lines(const char* word) const {
    QStringList found;
    for (const QString& line : log)
      if (line.startsWith(QLatin1String(word))) found << line;
    return found;
  }
  [[nodiscard]] static bool isThere(const QString& path) { return fs::exists(path); }
  /// Names in the home Trash.
  [[nodiscard]] QStringList trashed() const {
    QStringList names;
    for (const fs::Entry& entry : fs::list(home.path(QStringLiteral(".local/share/Trash/files")))) names << entry.name;
    names.sort();
    return names;
  }

  FixtureHome home;
  ProcStandIn proc;
  CleanerWorld world;
  std::function<void()> whileWaiting;
  std::function<void(const QString&)> onProgress;

  CleanReport report;
  QStringList log;
  QList<Progress> progress;
  QList<Progress> files; ///< of category and files alone, also within an item
  QList<int> waits;      ///< ms
  std::atomic<int> finishedCount = 0;
};
