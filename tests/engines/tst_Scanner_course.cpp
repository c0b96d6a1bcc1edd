// The course of a scan: what is told when, which categories, and how it ends early.
#include "app/records.h"
#include "core/fs.h"
#include "engines/ProcStandIn.h"
#include "engines/ScanRun.h"
#include "engines/Unprivileged.h"
#include "engines/categories.h"
#include "support/FixtureHome.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTemp = 0;
constexpr int kAppCache = 1;

qint64 bytesOf(const QString& path) {
  const std::atomic<bool> never{false};
  return fs::measure(path, never).bytes;
}

/// A catalogue of one category with these roots.
CategoryDef categoryOf(const QString& id, const QList<ScanRoot>& roots) {
  CategoryDef def;
  def.id = id;
  def.roots = roots;
  return def;
}

} // namespace

class tst_Scanner_course : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { records::registerMetaTypes(); }
  void init() {
    qputenv("TARNWICK_HOST", "linux");
    m_home = std::make_unique<FixtureHome>();
    m_proc = std::make_unique<ProcStandIn>(*m_home);
  }
  void cleanup() {
    m_proc.reset();
    m_home.reset();
    qunsetenv("TARNWICK_HOST");
  }

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
  [[nodiscard]] ScannerWorld world() const {
    ScannerWorld bent;
    bent.sources.procRoot = m_proc->root();
    return bent;
  }
  [[nodiscard]] ScannerWorld worldWith(const QList<CategoryDef>& defs) const {
    ScannerWorld bent = world();
    bent.catalogue = [defs] { return defs; };
    return bent;
  }
  void scan(ScanRun* run, const QStringList& exclusions = {}, const QStringList& only = {}) const {
    Scanner scanner(nullptr, world());
    run->run(&scanner, exclusions, only);
  }
  void scanCatalogue(ScanRun* run, const QList<CategoryDef>& defs, const QStringList& exclusions = {}) const {
    Scanner scanner(nullptr, worldWith(defs));
    run->run(&scanner, exclusions);
  }
  void makeOld(const QString& path) const { FixtureHome::age(path, QDateTime::currentDateTime().addDays(-2)); }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<ProcStandIn> m_proc;
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
  connect(
      &scanner, &Scanner::categoryFinished, &scanner,
      [&](int index) {
        if (index == kAppCache) scanner.cancel();
      },
      Qt::DirectConnection);
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
  connect(
      &scanner, &Scanner::categoryStarted, &scanner,
      [&](int index) {
        if (index == kAppCache) scanner.cancel();
      },
      Qt::DirectConnection);
  ScanRun run;
  run.run(&scanner);
  QVERIFY(run.cancelled);
  QCOMPARE(run.results.size(), 1);
  QVERIFY(run.order.contains(u"start 1"_s));
  QVERIFY(!run.order.contains(u"finish 1"_s));
}

void tst_Scanner_course::cancelIsQuick() {
  for (int folder = 0; folder < 100; ++folder)
    for (int file = 0; file < 10; ++file) m_home->file(u".cache/mine/%1/%2"_s.arg(folder).arg(file), 1);
  Scanner scanner(nullptr, world());
  ScanRun run;
  run.listen(&scanner);
  QElapsedTimer timer;
  connect(
      &scanner, &Scanner::categoryStarted, &scanner,
      [&](int index) {
        if (index != kAppCache) return;
        timer.start();
        scanner.cancel();
      },
      Qt::DirectConnection);
  connect(
      &scanner, &Scanner::finished, &scanner, [&] { QVERIFY(timer.elapsed() < 50); }, Qt::DirectConnection);
  scanner.start({});
  run.wait(&scanner);
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
