// The course of a scan: what is told when, which categories, and how it ends early.
#include "core/fs.h"
#include "engines/ScanTest.h"

#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <limits>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTemp = 0;
constexpr int kAppCache = 1;

qint64 bytesOf(const QString& path) {
  const std::atomic<bool> never{false};
  return fs::measure(path, never).bytes;
}

/// On the worker, when @p signal tells of the caches.
template <typename Signal>
void cancelAtCaches(Scanner* scanner, Signal signal) {
  QObject::connect(
      scanner, signal, scanner,
      [scanner](int index) {
        if (index == kAppCache) scanner->cancel();
      },
      Qt::DirectConnection);
}

} // namespace

class tst_Scanner_course : public ScanTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void emptyHomeGivesEightCategories();
  void tellsInOrder();
  void only_data();
  void only();
  void recycleBin_data();
  void recycleBin();
  void secondStartChangesNothing();
  void cancelBeforeTheFirst();
  void cancelBetweenCategories();
  void cancelInACategory();
  void cancelIsQuick();
  void destructionEndsTheScan();
  void progressIsThrottled();

 private:
  [[nodiscard]] qint64 elapsedInCaches(bool isCancelled) const;
};

void tst_Scanner_course::emptyHomeGivesEightCategories() {
  ScanRun run;
  scan(&run);
  QCOMPARE(run.results.size(), 8);
  QVERIFY(!run.cancelled);
  for (const CategoryResult& result : run.results) {
    if (result.def.id == u"trash" || result.def.id == u"logs") continue; // the machine's own may show
    QCOMPARE(result.bytes, 0);
    QVERIFY(result.items.isEmpty());
    QVERIFY(!result.accessDenied);
  }
}

void tst_Scanner_course::tellsInOrder() {
  m_home->file(u".cache/mine/a"_s, 8192);
  m_home->file(u".cache/thumbnails/b"_s, 4096);
  ScanRun run;
  scan(&run);
  QStringList expected = {u"started"_s};
  for (int i = 0; i < 8; ++i) expected << u"start %1"_s.arg(i) << u"finish %1"_s.arg(i) << u"progress"_s;
  QCOMPARE(run.order, expected << u"finished"_s);
  QCOMPARE(run.defs.size(), 8);
  QCOMPARE(run.told.size(), 8);
  qint64 bytes = 0;
  qint64 files = 0;
  for (int i = 0; i < 8; ++i) {
    QCOMPARE(run.told[i].def.id, run.results[i].def.id);
    QCOMPARE(run.told[i].bytes, run.results[i].bytes);
    bytes += run.results[i].bytes;
    files += run.results[i].files;
    QCOMPARE(run.progress[i].bytes, bytes);
    QCOMPARE(run.progress[i].files, files);
  }
}

void tst_Scanner_course::only_data() {
  QTest::addColumn<QStringList>("ids");
  QTest::addColumn<QStringList>("order");
  QTest::newRow("one") << QStringList{u"thumbs"_s}
                       << QStringList{u"started"_s, u"start 4"_s, u"finish 4"_s, u"progress"_s, u"finished"_s};
  QTest::newRow("two, the other way round") << QStringList{u"thumbs"_s, u"appcache"_s}
                                            << QStringList{u"started"_s, u"start 1"_s,  u"finish 1"_s, u"progress"_s,
                                                           u"start 4"_s, u"finish 4"_s, u"progress"_s, u"finished"_s};
  QTest::newRow("unknown") << QStringList{u"nothing"_s} << QStringList{u"started"_s, u"finished"_s};
}

void tst_Scanner_course::only() {
  QFETCH(QStringList, ids);
  QFETCH(QStringList, order);
  m_home->file(u".cache/mine/a"_s);
  m_home->file(u".cache/thumbnails/a"_s);
  m_home->file(u".cache/pip/a"_s);
  ScanRun run;
  scan(&run, {}, ids);
  QCOMPARE(run.order, order);
  QCOMPARE(run.results.size(), 8);
  for (int i = 0; i < 8; ++i) {
    QCOMPARE(run.results[i].def.id, run.defs[i].id);
    QCOMPARE(run.results[i].def.title, run.defs[i].title);
    const bool found = ids.contains(run.results[i].def.id);
    QCOMPARE(run.results[i].items.size(), found ? 1 : 0);
    QCOMPARE(run.results[i].bytes, found ? 4096 : 0);
  }
}

void tst_Scanner_course::recycleBin_data() {
  QTest::addColumn<bool>("known");
  QTest::addColumn<qint64>("bytes");
  QTest::addColumn<int>("items");
  QTest::newRow("full") << true << qint64{5000} << 1;
  QTest::newRow("empty") << true << qint64{0} << 0;
  QTest::newRow("unknown") << false << qint64{5000} << 0;
}

void tst_Scanner_course::recycleBin() {
  QFETCH(bool, known);
  QFETCH(qint64, bytes);
  QFETCH(int, items);
  CategoryDef def = categoryOf(u"trash"_s, {});
  def.usesRecycleBin = true;
  ScannerWorld bent = worldWith({def});
  bent.queryRecycleBin = [&](qint64* outBytes, qint64* outCount) {
    *outBytes = bytes;
    *outCount = 7;
    return known;
  };
  Scanner scanner(nullptr, bent);
  ScanRun run;
  run.run(&scanner);
  const CategoryResult result = run.category(u"trash"_s);
  QCOMPARE(result.items.size(), items);
  QCOMPARE(result.bytes, items ? 5000 : 0);
  QCOMPARE(result.files, items ? 7 : 0);
  QCOMPARE(run.progress.last().files, 7);
  if (items == 0) return;
  QCOMPARE(result.items[0].path, QString());
  QCOMPARE(result.items[0].name, u"Recycle Bin (all drives)"_s);
  QVERIFY(!result.items[0].wholeRoot);
}

void tst_Scanner_course::secondStartChangesNothing() {
  m_home->file(u".cache/mine/a"_s);
  Scanner scanner(nullptr, world());
  ScanRun run;
  run.listen(&scanner);
  // The first scan waits in its first category until the second start was tried.
  QSemaphore started;
  QSemaphore goOn;
  connect(
      &scanner, &Scanner::started, &scanner,
      [&] {
        started.release();
        goOn.acquire();
      },
      Qt::DirectConnection);
  scanner.start({});
  started.acquire();
  QVERIFY(scanner.isRunning());
  scanner.start({u"mine"_s}, {u"temp"_s});
  goOn.release();
  run.wait(&scanner);
  QCOMPARE(run.order.count(u"finished"_s), 1);
  QCOMPARE(run.names(u"appcache"_s), QStringList{u"mine"_s});
}

void tst_Scanner_course::cancelBeforeTheFirst() {
  Scanner scanner(nullptr, world());
  connect(
      &scanner, &Scanner::started, &scanner, [&] { scanner.cancel(); }, Qt::DirectConnection);
  ScanRun run;
  run.run(&scanner);
  QCOMPARE(run.order, (QStringList{u"started"_s, u"finished"_s}));
  QVERIFY(run.cancelled);
  QVERIFY(run.results.isEmpty());
  // The next scan starts afresh.
  disconnect(&scanner, nullptr, &scanner, nullptr);
  ScanRun again;
  again.run(&scanner);
  QVERIFY(!again.cancelled);
  QCOMPARE(again.results.size(), 8);
}

void tst_Scanner_course::cancelBetweenCategories() {
  m_home->file(u".cache/mine/a"_s);
  Scanner scanner(nullptr, world());
  cancelAtCaches(&scanner, &Scanner::categoryFinished);
  ScanRun run;
  run.run(&scanner);
  QVERIFY(run.cancelled);
  QCOMPARE(run.results.size(), 2);
  QCOMPARE(run.results[kTemp].def.id, u"temp"_s);
  QCOMPARE(run.names(u"appcache"_s), QStringList{u"mine"_s});
  QVERIFY(!run.order.contains(u"start 2"_s));
}

void tst_Scanner_course::cancelInACategory() {
  m_home->file(u".cache/mine/a"_s);
  Scanner scanner(nullptr, world());
  cancelAtCaches(&scanner, &Scanner::categoryStarted);
  ScanRun run;
  run.run(&scanner);
  QVERIFY(run.cancelled);
  QCOMPARE(run.results.size(), 1);
  QVERIFY(run.order.contains(u"start 1"_s));
  QVERIFY(!run.order.contains(u"finish 1"_s));
}

// However fast the machine is: folders are added until a whole scan takes long enough to be told from a cancelled one.
// Of several runs each the shortest counts, in which the machine was busy with nothing else.
void tst_Scanner_course::cancelIsQuick() {
  constexpr int kRuns = 3;
  constexpr int kMostFolders = 64'000;
  constexpr qint64 kLongMs = 20;
  const QTemporaryDir memory(u"/dev/shm/tarnwick-test-XXXXXX"_s); // where many folders cost little
  if (!memory.isValid()) QSKIP("there is no file system in memory");
  qputenv("XDG_CACHE_HOME", QFile::encodeName(memory.path()));
  const auto restored = qScopeGuard([] { qunsetenv("XDG_CACHE_HOME"); });
  const auto shortest = [&](bool isCancelled) {
    qint64 fewest = std::numeric_limits<qint64>::max();
    for (int i = 0; i < kRuns; ++i) fewest = std::min(fewest, elapsedInCaches(isCancelled));
    return fewest;
  };
  const QByteArray cache = QFile::encodeName(m_home->folder(memory.filePath(u"mine"_s))) + '/';
  qint64 wholeMs = 0;
  for (int had = 0, folders = 4'000; folders <= kMostFolders && wholeMs < kLongMs; had = folders, folders *= 2) {
    for (int i = had; i < folders; ++i) QCOMPARE(::mkdir((cache + QByteArray::number(i)).constData(), 0700), 0);
    wholeMs = shortest(false);
  }
  const qint64 cancelledMs = shortest(true);
  QVERIFY2(cancelledMs < wholeMs / 2, qPrintable(u"%1 ms of %2 ms"_s.arg(cancelledMs).arg(wholeMs)));
}

/// How long a scan works on the caches, or goes on once it was cancelled at their beginning, in ms.
qint64 tst_Scanner_course::elapsedInCaches(bool isCancelled) const {
  Scanner scanner(nullptr, world());
  ScanRun run;
  QElapsedTimer timer;
  qint64 elapsedMs = -1;
  connect(
      &scanner, &Scanner::categoryStarted, &scanner,
      [&](int index) {
        if (index != kAppCache) return;
        timer.start();
        if (isCancelled) scanner.cancel();
      },
      Qt::DirectConnection);
  connect(
      &scanner, &Scanner::finished, &scanner, [&] { elapsedMs = timer.elapsed(); }, Qt::DirectConnection);
  run.run(&scanner, {}, {u"appcache"_s});
  return elapsedMs;
}

void tst_Scanner_course::destructionEndsTheScan() {
  m_home->file(u".cache/mine/a"_s);
  auto scanner = std::make_unique<Scanner>(nullptr, world());
  ScanRun run;
  run.listen(scanner.get());
  QSemaphore started;
  connect(
      scanner.get(), &Scanner::started, scanner.get(), [&] { started.release(); }, Qt::DirectConnection);
  scanner->start({});
  started.acquire();
  scanner.reset();
  QVERIFY(run.isDone());
}

void tst_Scanner_course::progressIsThrottled() {
  for (int file = 0; file < 2000; ++file) m_home->file(u".cache/mine/%1"_s.arg(file), 1);
  QElapsedTimer timer;
  timer.start();
  ScanRun run;
  scan(&run, {}, {u"appcache"_s});
  const qint64 elapsedMs = timer.elapsed();
  const auto within = std::count_if(run.progress.begin(), run.progress.end(),
                                    [](const ScanRun::Progress& one) { return !one.path.isEmpty(); });
  QVERIFY2(within <= elapsedMs / 60, qPrintable(u"%1 in %2 ms"_s.arg(within).arg(elapsedMs)));
  QCOMPARE(run.progress.last().files, 2000);
  QCOMPARE(run.progress.last().bytes, bytesOf(m_home->path(u".cache/mine"_s)));
}

QTEST_GUILESS_MAIN(tst_Scanner_course)
#include "tst_Scanner_course.moc"
