// Mounts in what is scanned and cleaned, bind mounts too, and volumes that have no Trash.
#include "engines/CleanTest.h"
#include "engines/Disposal.h"
#include "engines/Mounts.h"
#include "engines/ScanRun.h"
#include "engines/Scanner.h"
#include "engines/categories.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {
bool g_mayMount = false;
}

class tst_engines_mounts : public CleanTest {
  Q_OBJECT

 public:
  static void initMain() { g_mayMount = mounts::enter(); }

 private slots:
  void initTestCase() {
    if (!g_mayMount) QSKIP("no permission to mount anything here");
  }
  void init() { make(); }
  void cleanup() { drop(); }

  void mountBelowStays_data();
  void mountBelowStays();
  void mountAsItemStays();
  void noTrashOnTheVolume_data();
  void noTrashOnTheVolume();
  void neverBecomesADelete();
  void cacheMountIsLeftAlone();
  void tempMountIsNotAdmitted();
  void scanStaysOnTheDevice();
  void singleThingsLeaveMountsAlone_data();
  void singleThingsLeaveMountsAlone();
};

void tst_engines_mounts::mountBelowStays_data() {
  QTest::addColumn<bool>("isBind");
  QTest::addColumn<bool>("toTrash");
  QTest::newRow("memory, delete") << false << false;
  QTest::newRow("memory, trash") << false << true;
  QTest::newRow("bind, delete") << true << false;
  QTest::newRow("bind, trash") << true << true;
}

void tst_engines_mounts::mountBelowStays() {
  QFETCH(bool, isBind);
  QFETCH(bool, toTrash);
  const QString outside = m_bench->home.file(u"outside/precious"_s);
  m_bench->home.file(u"a/top/sub/goes"_s);
  const QString point = m_bench->home.folder(u"a/top/sub/point"_s);
  const CleanItem item = CleanBench::item(at(u"a/top"_s));
  const mounts::Mount mount(point, isBind ? at(u"outside"_s) : QString());
  const QString inside = isBind ? point + "/precious"_L1 : m_bench->home.file(point + "/precious"_L1);
  const QStringList told = {u"SKIPPED  %1  (another volume)"_s.arg(point)};
  m_bench->runDry({CleanBench::category(u"x"_s, {item})}, toTrash);
  QCOMPARE(m_bench->lines("SKIPPED"), told);
  m_bench->run({CleanBench::category(u"x"_s, {item})}, toTrash);
  QVERIFY(CleanBench::isThere(inside));
  QVERIFY(CleanBench::isThere(outside));
  QVERIFY(!CleanBench::isThere(at(u"a/top/sub/goes"_s)));
  QCOMPARE(m_bench->lines("SKIPPED"), told);
  QCOMPARE(m_bench->lines("BUSY"), QStringList());
  QCOMPARE(m_bench->waits, QList<int>());
  QCOMPARE(m_bench->report.skipped, 1);
  QCOMPARE(m_bench->report.skippedSamples, QStringList{point});
}

void tst_engines_mounts::mountAsItemStays() {
  const QString point = m_bench->home.folder(u"a/point"_s);
  const mounts::Mount mount(point);
  const QString inside = m_bench->home.file(point + "/precious"_L1);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(point)})});
  QVERIFY(CleanBench::isThere(inside));
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (another volume)"_s.arg(point)});
  QCOMPARE(m_bench->report.freedBytes, 0);
}

void tst_engines_mounts::noTrashOnTheVolume_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<bool>("wholeRoot");
  QTest::newRow("file") << u"volume/file"_s << false;
  QTest::newRow("folder") << u"volume/folder"_s << false;
  QTest::newRow("whole root") << u"volume/folder"_s << true;
}

// Told at once, without another attempt, and counted.
void tst_engines_mounts::noTrashOnTheVolume() {
  QFETCH(QString, item);
  QFETCH(bool, wholeRoot);
  const mounts::Mount mount(m_bench->home.folder(u"volume"_s));
  m_bench->home.file(u"volume/file"_s);
  m_bench->home.file(u"volume/folder/one"_s);
  const QList<CategoryResult> results = {CleanBench::category(u"x"_s, {CleanBench::item(at(item), wholeRoot)})};
  for (const auto kind : {Cleaner::Run::Dry, Cleaner::Run::ForReal}) {
    m_bench->run(results, true, {}, kind);
    if (kind == Cleaner::Run::Dry) m_bench->log = m_bench->report.dryRunLog.split(u'\n');
    QVERIFY(CleanBench::isThere(at(u"volume/file"_s)) && CleanBench::isThere(at(u"volume/folder/one"_s)));
    QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (no Trash on this volume)"_s.arg(at(item))});
    QCOMPARE(m_bench->lines("BUSY"), QStringList());
    QCOMPARE(m_bench->waits, QList<int>());
    QCOMPARE(m_bench->report.skipped, 1);
    QCOMPARE(m_bench->report.freedBytes, 0);
    QCOMPARE(m_bench->report.removedFiles, 0);
  }
}

void tst_engines_mounts::neverBecomesADelete() {
  const mounts::Mount mount(m_bench->home.folder(u"volume"_s));
  const QString inMemory = m_bench->home.file(u"volume/file"_s);
  const QString onDisk = m_bench->home.file(u"a/file"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(inMemory), CleanBench::item(onDisk)})}, true);
  QVERIFY(CleanBench::isThere(inMemory));
  QCOMPARE(m_bench->trashed(), QStringList{u"file"_s});
  QCOMPARE(m_bench->report.freedBytes, 4096);
  // By deletion it goes.
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(inMemory)})});
  QVERIFY(!CleanBench::isThere(inMemory));
}

void tst_engines_mounts::cacheMountIsLeftAlone() {
  m_bench->home.file(u".cache/mine/a"_s);
  m_bench->home.file(u"elsewhere/a"_s);
  const mounts::Mount memory(m_bench->home.folder(u".cache/memory"_s));
  const mounts::Mount bind(m_bench->home.folder(u".cache/bind"_s), at(u"elsewhere"_s));
  m_bench->home.file(u".cache/memory/a"_s);
  Scanner scanner;
  ScanRun scan;
  scan.run(&scanner, {}, {u"appcache"_s});
  QCOMPARE(scan.names(u"appcache"_s), QStringList{u"mine"_s});
}

void tst_engines_mounts::tempMountIsNotAdmitted() {
  const QDateTime old = QDateTime::currentDateTime().addDays(-2);
  m_bench->home.file(m_bench->home.temp(u"left/sub/file"_s));
  m_bench->home.file(m_bench->home.temp(u"free/sub/file"_s));
  m_bench->home.folder(u"elsewhere"_s);
  FixtureHome::age(at(u"elsewhere"_s), old);
  FixtureHome::age(m_bench->home.temp(), old);
  const mounts::Mount bind(m_bench->home.temp(u"left/sub"_s), at(u"elsewhere"_s));
  m_bench->home.file(u"elsewhere/precious"_s);
  FixtureHome::age(at(u"elsewhere"_s), old);
  Scanner scanner;
  ScanRun scan;
  scan.run(&scanner, {}, {u"temp"_s});
  QCOMPARE(scan.names(u"temp"_s), QStringList{u"free"_s});
}

void tst_engines_mounts::scanStaysOnTheDevice() {
  m_bench->home.file(u".cache/mine/a"_s, 8192);
  const mounts::Mount memory(m_bench->home.folder(u".cache/mine/sub/memory"_s));
  m_bench->home.file(u".cache/mine/sub/memory/big"_s, 65536);
  Scanner scanner;
  ScanRun scan;
  scan.run(&scanner, {}, {u"appcache"_s});
  QCOMPARE(scan.category(u"appcache"_s).bytes, 8192);
}

void tst_engines_mounts::singleThingsLeaveMountsAlone_data() {
  QTest::addColumn<bool>("isBind");
  QTest::newRow("memory") << false;
  QTest::newRow("bind") << true;
}

void tst_engines_mounts::singleThingsLeaveMountsAlone() {
  QFETCH(bool, isBind);
  m_bench->home.file(u"outside/precious"_s);
  m_bench->home.file(u"films/old/one"_s);
  const QString point = m_bench->home.folder(u"films/old/point"_s);
  const mounts::Mount mount(point, isBind ? at(u"outside"_s) : QString());
  const QString inside = isBind ? point + "/precious"_L1 : m_bench->home.file(point + "/precious"_L1);
  Disposal disposal({});
  QCOMPARE(disposal.move(point).result, Disposal::Result::Refused);
  QCOMPARE(disposal.move(at(u"films/old"_s)).result, Disposal::Result::Refused); // it would take the mount along
  QCOMPARE(disposal.move(at(u"films"_s)).result, Disposal::Result::Refused);
  QVERIFY(fs::exists(inside) && fs::exists(at(u"films/old/one"_s)));
  QCOMPARE(disposal.move(at(u"films/old/one"_s)).result, Disposal::Result::Moved);
}

QTEST_GUILESS_MAIN(tst_engines_mounts)
#include "tst_engines_mounts.moc"
