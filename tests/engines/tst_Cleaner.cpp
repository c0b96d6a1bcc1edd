// The course of a clean: what goes, what is counted and told, and what a dry run tells of it.
#include "core/runlock.h"
#include "engines/CleanTest.h"
#include "engines/ScanRun.h"
#include "engines/Scanner.h"
#include "support/Arrivals.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_Cleaner : public CleanTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void deletes();
  void movesToTheTrash();
  void trashCategoryIsAlwaysDeleted();
  void infoFileGoesWithATrashedItem();
  void emptyingRewritesTheSizesOnce_data();
  void emptyingRewritesTheSizesOnce();
  void wholeRootKeepsItsFolder();
  void emptyWholeRootFreesItsStaleBytes();
  void linkIsRemovedAsALink();
  void danglingLinkIsThere();
  void goneItemIsNoWord();
  void namesThatAreNoTextGoByTheirBytes();
  void whatStaysIsNotFreed();
  void samplesStopAtFive();
  void recycleBin_data();
  void recycleBin();
  void progressCountsEverything();
  void filesProgressWithinAnItem_data();
  void filesProgressWithinAnItem();
  void dryRunTouchesNothing();
  void dryRunTellsWhatStays_data();
  void dryRunTellsWhatStays();
  void dryRunNeedsNoLock();
  void cleansWhatAScanFound_data();
  void cleansWhatAScanFound();
  void emptyOrder();
};

void tst_Cleaner::deletes() {
  const QString file = m_bench->home.file(u"a/file"_s, 8192);
  const QString folder = m_bench->home.folder(u"a/folder"_s);
  m_bench->home.file(u"a/folder/sub/one"_s);
  m_bench->home.file(u"a/folder/two"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(file), CleanBench::item(folder)})});
  QVERIFY(!CleanBench::isThere(file));
  QVERIFY(!CleanBench::isThere(folder));
  QVERIFY(CleanBench::isThere(m_bench->home.path(u"a"_s)));
  const CleanReport& report = m_bench->report;
  QCOMPARE(report.freedBytes, 16384);
  QCOMPARE(report.removedFiles, 3);
  QCOMPARE(report.skipped, 0);
  QCOMPARE(report.skippedSamples, QStringList());
  QCOMPARE(report.cleanedIds, QStringList{u"x"_s});
  QCOMPARE(report.runningApps, QStringList());
  QCOMPARE(report.refusal, QString());
  QVERIFY(!report.needsAdmin);
  QCOMPARE(m_bench->finishedCount, 1);
  QCOMPARE(m_bench->waits, QList<int>());
  QVERIFY(m_bench->trashed().isEmpty());
}

void tst_Cleaner::movesToTheTrash() {
  const QString file = m_bench->home.file(u"a/file"_s, 8192);
  const QString root = m_bench->home.folder(u"a/root"_s);
  m_bench->home.file(u"a/root/one"_s);
  m_bench->home.file(u"a/root/two"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(file), CleanBench::item(root, true)})}, true);
  QCOMPARE(m_bench->trashed(), (QStringList{u"file"_s, u"one"_s, u"two"_s}));
  QVERIFY(CleanBench::isThere(m_bench->home.path(u".local/share/Trash/info/file.trashinfo"_s)));
  QVERIFY(!CleanBench::isThere(file));
  QVERIFY(CleanBench::isThere(root));
  QCOMPARE(m_bench->report.freedBytes, 16384);
  QCOMPARE(m_bench->report.removedFiles, 3);
}

void tst_Cleaner::trashCategoryIsAlwaysDeleted() {
  const QString thrown = m_bench->home.file(u".local/share/Trash/files/thrown"_s);
  const QString temp = m_bench->home.file(m_bench->home.path(u"t/left"_s));
  m_bench->run({CleanBench::category(u"trash"_s, {CleanBench::item(thrown)}),
                CleanBench::category(u"x"_s, {CleanBench::item(temp)})},
               true);
  QCOMPARE(m_bench->trashed(), QStringList{u"left"_s});
  QCOMPARE(m_bench->lines("DELETED"), QStringList{u"DELETED  %1  4 KB"_s.arg(thrown)});
  QCOMPARE(m_bench->lines("TRASHED"), QStringList{u"TRASHED  %1  4 KB"_s.arg(temp)});
}

void tst_Cleaner::infoFileGoesWithATrashedItem() {
  const QString thrown = m_bench->home.file(u".local/share/Trash/files/thrown"_s);
  const QString kept = m_bench->home.file(u".local/share/Trash/files/kept"_s);
  for (const QString& name : {u"thrown"_s, u"kept"_s})
    m_bench->home.file(u".local/share/Trash/info/%1.trashinfo"_s.arg(name));
  m_bench->run({CleanBench::category(u"trash"_s, {CleanBench::item(thrown)})});
  QVERIFY(!CleanBench::isThere(m_bench->home.path(u".local/share/Trash/info/thrown.trashinfo"_s)));
  QVERIFY(CleanBench::isThere(m_bench->home.path(u".local/share/Trash/info/kept.trashinfo"_s)));
  QVERIFY(CleanBench::isThere(kept));
}

void tst_Cleaner::emptyingRewritesTheSizesOnce_data() {
  QTest::addColumn<int>("stopAt"); // the run is stopped while it is at this item
  QTest::addColumn<int>("left");
  QTest::newRow("to its end") << -1 << 0;
  QTest::newRow("stopped") << 30 << 9;
}

// Each rewriting reads all that the Trash knows of its folders: one for each item would be the square of them.
void tst_Cleaner::emptyingRewritesTheSizesOnce() {
  QFETCH(int, stopAt);
  QFETCH(int, left);
  constexpr int kFolders = 40;
  const QString trash = m_bench->home.path(u".local/share/Trash"_s);
  QList<CleanItem> items;
  QFile sizes(trash + u"/directorysizes"_s);
  for (int i = 0; i < kFolders; ++i) {
    m_bench->home.file(trash + u"/files/thrown %1/file"_s.arg(i));
    m_bench->home.file(trash + u"/info/thrown %1.trashinfo"_s.arg(i));
    items << CleanBench::item(trash + u"/files/thrown %1"_s.arg(i));
  }
  QVERIFY(sizes.open(QIODevice::WriteOnly));
  for (int i = 0; i < kFolders; ++i) sizes.write("4096 1700000000 thrown%20" + QByteArray::number(i) + '\n');
  sizes.close();

  Cleaner cleaner(nullptr, m_bench->world);
  m_bench->onProgress = [&](const QString& path) {
    if (stopAt >= 0 && path == items[stopAt].path) cleaner.stop();
  };
  const Arrivals arrivals(trash);
  m_bench->start(&cleaner, {CleanBench::category(u"trash"_s, items)});
  m_bench->wait(&cleaner);
  m_bench->onProgress = {};
  QCOMPARE(m_bench->trashed().size(), left);
  QCOMPARE(arrivals.count("directorysizes"), 1);
  QCOMPARE(QDir(trash + u"/info"_s).entryList(QDir::Files).size(), left);
  QVERIFY(sizes.open(QIODevice::ReadOnly));
  QCOMPARE(sizes.readAll().count('\n'), left);
}

void tst_Cleaner::wholeRootKeepsItsFolder() {
  const QString root = m_bench->home.folder(u"root"_s);
  m_bench->home.file(u"root/sub/one"_s);
  m_bench->home.file(u"root/.hidden"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(root, true)})});
  QVERIFY(CleanBench::isThere(root));
  QVERIFY(QDir(root).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
  QCOMPARE(m_bench->report.removedFiles, 2);
}

void tst_Cleaner::emptyWholeRootFreesItsStaleBytes() {
  const QString root = m_bench->home.folder(u"root"_s);
  CleanItem stale = CleanBench::item(root, true);
  stale.bytes = 5000;
  stale.files = 3;
  m_bench->run({CleanBench::category(u"x"_s, {stale})});
  QVERIFY(CleanBench::isThere(root));
  QCOMPARE(m_bench->report.freedBytes, 5000);
  QCOMPARE(m_bench->report.removedFiles, 3);
  QCOMPARE(m_bench->lines("DELETED"), QStringList{u"DELETED  %1  5 KB"_s.arg(root)});
}

void tst_Cleaner::linkIsRemovedAsALink() {
  const QString target = m_bench->home.file(u"precious/file"_s);
  const QString link = m_bench->home.link(u"a/link"_s, m_bench->home.path(u"precious"_s));
  m_bench->home.link(u"a/folder/below"_s, m_bench->home.path(u"precious"_s));
  const QString folder = m_bench->home.path(u"a/folder"_s);
  for (const bool toTrash : {false, true}) {
    m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(link), CleanBench::item(folder)})}, toTrash);
    QVERIFY(!CleanBench::isThere(link));
    QVERIFY(!CleanBench::isThere(folder));
    QVERIFY(CleanBench::isThere(target));
    m_bench->home.link(u"a/link"_s, m_bench->home.path(u"precious"_s));
    m_bench->home.link(u"a/folder/below"_s, m_bench->home.path(u"precious"_s));
  }
}

void tst_Cleaner::danglingLinkIsThere() {
  const QString link = m_bench->home.link(u"a/link"_s, u"/nowhere/at/all"_s);
  CleanItem item = CleanBench::item(link);
  item.bytes = 1;
  m_bench->run({CleanBench::category(u"x"_s, {item})}, true);
  QVERIFY(!CleanBench::isThere(link));
  QCOMPARE(m_bench->trashed(), QStringList{u"link"_s});
  QCOMPARE(m_bench->report.freedBytes, 1);
  QCOMPARE(m_bench->report.removedFiles, 1);
}

void tst_Cleaner::goneItemIsNoWord() {
  const QString file = m_bench->home.file(u"a/file"_s);
  const CleanItem item = CleanBench::item(file);
  QFile::remove(file);
  m_bench->run({CleanBench::category(u"x"_s, {item})});
  QCOMPARE(m_bench->report.skipped, 0);
  QCOMPARE(m_bench->lines("SKIPPED") + m_bench->lines("BUSY"), QStringList());
  QCOMPARE(m_bench->lines("DELETED"), QStringList{u"DELETED  %1  4 KB"_s.arg(file)});
  QCOMPARE(m_bench->report.freedBytes, item.bytes);
}

void tst_Cleaner::namesThatAreNoTextGoByTheirBytes() {
  const QString folder = m_bench->home.folder(u"a/folder"_s);
  const QByteArray odd = QFile::encodeName(folder) + "/odd\xff";
  QCOMPARE(::mkdir(odd.constData(), 0700), 0);
  QCOMPARE(::symlink("nowhere", (odd + "/link\xfe").constData()), 0);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(folder)})});
  QVERIFY(!CleanBench::isThere(folder));
  QCOMPARE(m_bench->report.skipped, 0);
}

void tst_Cleaner::whatStaysIsNotFreed() {
  const QString root = m_bench->home.folder(u"root"_s);
  const QString open = m_bench->home.file(u"root/sub/open"_s, 8192);
  m_bench->home.file(u"root/sub/other"_s, 4096);
  m_bench->home.file(u"root/more"_s, 4096);
  m_bench->proc.addProcess(812, u"/"_s);
  m_bench->proc.addOpenFile(812, open);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(root, true)})});
  QVERIFY(CleanBench::isThere(open));
  QVERIFY(!CleanBench::isThere(m_bench->home.path(u"root/sub/other"_s)));
  QCOMPARE(m_bench->report.freedBytes, 8192);
  QCOMPARE(m_bench->report.removedFiles, 2);
  QCOMPARE(m_bench->report.skipped, 1);
  QCOMPARE(m_bench->report.skippedSamples, QStringList{open});
  QCOMPARE(m_bench->lines("DELETED"), QStringList{u"DELETED  %1  8 KB"_s.arg(root)});
}

void tst_Cleaner::samplesStopAtFive() {
  QList<CleanItem> items;
  m_bench->proc.addProcess(812, u"/"_s);
  for (int i = 0; i < 7; ++i) {
    items << CleanBench::item(m_bench->home.file(u"a/%1"_s.arg(i)));
    m_bench->proc.addOpenFile(812, items.last().path);
  }
  m_bench->run({CleanBench::category(u"x"_s, items)});
  QCOMPARE(m_bench->report.skipped, 7);
  QCOMPARE(m_bench->report.skippedSamples.size(), 5);
  for (int i = 0; i < 5; ++i) QCOMPARE(m_bench->report.skippedSamples[i], items[i].path);
  QCOMPARE(m_bench->lines("SKIPPED").size(), 7);
}

void tst_Cleaner::recycleBin_data() {
  QTest::addColumn<bool>("emptied");
  QTest::newRow("emptied") << true;
  QTest::newRow("not emptied") << false;
}

void tst_Cleaner::recycleBin() {
  QFETCH(bool, emptied);
  CategoryResult result = CleanBench::category(u"trash"_s, {});
  result.def.usesRecycleBin = true;
  result.bytes = 7000;
  result.files = 3;
  m_bench->world.emptyRecycleBin = [emptied] { return emptied; };
  m_bench->run({result});
  QCOMPARE(m_bench->log.mid(4),
           (QStringList{
               u"== TRASH (7 KB)"_s,
               emptied ? u"EMPTIED  Trash"_s : u"SKIPPED  Trash  (could not empty)"_s,
               QString(),
               emptied ? u"Freed 7 KB, removed 3 files, skipped 0."_s : u"Freed 0 KB, removed 0 files, skipped 1."_s,
               QString(),
           }));
  QCOMPARE(m_bench->report.cleanedIds, QStringList{u"trash"_s});
  QCOMPARE(m_bench->report.skippedSamples, emptied ? QStringList() : QStringList{u"Trash"_s});
  QCOMPARE(m_bench->progress.first().path, u"Trash"_s);
  QCOMPARE(m_bench->progress.last().done, 7000);
}

void tst_Cleaner::progressCountsEverything() {
  const CleanItem one = CleanBench::item(m_bench->home.file(u"a/one"_s, 4096));
  const CleanItem excluded = CleanBench::item(m_bench->home.file(u"a/keep"_s, 8192));
  const CleanItem three = CleanBench::item(m_bench->home.file(u"b/three"_s, 12288));
  m_bench->run({CleanBench::category(u"x"_s, {one, excluded}), CleanBench::category(u"y"_s, {three})}, false,
               {u"keep"_s});
  const auto& told = m_bench->progress;
  QCOMPARE(told.size(), 4);
  QCOMPARE(told[0].done, 0);
  QCOMPARE(told[1].done, 4096);
  QCOMPARE(told[2].done, 12288);
  QCOMPARE(told[3].done, 24576);
  QCOMPARE((QStringList{told[0].path, told[1].path, told[2].path, told[3].path}),
           (QStringList{one.path, excluded.path, three.path, QString()}));
  QCOMPARE((QStringList{told[0].category, told[1].category, told[2].category, told[3].category}),
           (QStringList{u"X"_s, u"X"_s, u"Y"_s, QString()}));
  for (int i = 0; i < 4; ++i) QCOMPARE(told[i].doneFiles, i);
  for (const auto& step : told) {
    QCOMPARE(step.total, 24576);
    QCOMPARE(step.totalFiles, 3);
  }
}

void tst_Cleaner::filesProgressWithinAnItem_data() { modes(); }

// However fast the machine is: files are added until it is told of within the item.
void tst_Cleaner::filesProgressWithinAnItem() {
  QFETCH(bool, toTrash);
  constexpr int kMostFiles = 52'000;
  QStringList slowRules; // they match nothing, and take their time to tell
  for (int i = 0; i < 1'000; ++i) slowRules << u"/*a*e*o*%1*"_s.arg(i);
  const CleanItem before = CleanBench::item(m_bench->home.file(u"a/before"_s));
  for (int many = 800; many <= kMostFiles && m_bench->files.size() <= 3; many *= 4) {
    for (int i = 0; i < many; ++i) m_bench->home.file(u"a/many/%1"_s.arg(i), 0);
    CleanItem item = CleanBench::item(m_bench->home.path(u"a/many"_s));
    item.bytes = 1;
    m_bench->run({CleanBench::category(u"x"_s, {before, item})}, toTrash, slowRules);
    QCOMPARE(m_bench->progress.size(), 3);
    QCOMPARE(m_bench->files.last().totalFiles, 1 + many);
  }
  QVERIFY(m_bench->files.size() > 3);
  qint64 last = 0;
  for (const auto& told : m_bench->files) {
    QVERIFY(told.doneFiles >= last || told.category.isEmpty());
    QVERIFY(told.doneFiles <= told.totalFiles);
    last = told.doneFiles;
  }
  const auto& within = m_bench->files.at(2);
  QCOMPARE(within.category, u"X"_s);
  QVERIFY2(within.doneFiles > 1, qPrintable(QString::number(within.doneFiles)));
}

void tst_Cleaner::dryRunTouchesNothing() {
  const QString file = m_bench->home.file(u"a/file"_s, 8192);
  const QString root = m_bench->home.folder(u"a/root"_s);
  m_bench->home.file(u"a/root/sub/one"_s);
  for (const bool toTrash : {false, true}) {
    m_bench->runDry({CleanBench::category(u"x"_s, {CleanBench::item(file), CleanBench::item(root, true)})}, toTrash);
    QVERIFY(CleanBench::isThere(file));
    QVERIFY(CleanBench::isThere(m_bench->home.path(u"a/root/sub/one"_s)));
    QVERIFY(!CleanBench::isThere(Cleaner::logDir()));
    QVERIFY(!CleanBench::isThere(m_bench->world.lockPath));
    QVERIFY(!CleanBench::isThere(m_bench->home.path(u".local/share/Trash"_s)));
    QCOMPARE(m_bench->report.logPath, QString());
    QCOMPARE(m_bench->report.freedBytes, 12288);
    QCOMPARE(m_bench->report.removedFiles, 2);
    QCOMPARE(m_bench->report.cleanedIds, QStringList{u"x"_s});
    const QString word = toTrash ? u"TRASHED"_s : u"DELETED"_s;
    QCOMPARE(m_bench->log, (QStringList{
                               u"Tarnwick cleanup 2024-05-06T07:08:09"_s,
                               toTrash ? u"Mode: move to Trash"_s : u"Mode: delete permanently"_s,
                               u"Selected: 12 KB"_s,
                               QString(),
                               u"== X (12 KB)"_s,
                               QString(),
                               u"%1  %2  8 KB"_s.arg(word, file),
                               u"%1  %2  4 KB"_s.arg(word, root),
                               u"Freed 12 KB, removed 2 files, skipped 0."_s,
                               QString(),
                           }));
  }
}

void tst_Cleaner::dryRunTellsWhatStays_data() {
  QTest::addColumn<bool>("toTrash");
  QTest::newRow("delete") << false;
  QTest::newRow("trash") << true;
}

// Each line that the real run would write, and the same sums.
void tst_Cleaner::dryRunTellsWhatStays() {
  QFETCH(bool, toTrash);
  const QString root = m_bench->home.folder(u"root"_s);
  const QString open = m_bench->home.file(u"root/sub/open"_s, 8192);
  m_bench->home.file(u"root/sub/other"_s);
  m_bench->home.file(u"root/keep/one"_s);
  m_bench->home.file(u"root/1Password/vault"_s);
  m_bench->home.file(u"root/plain"_s);
  m_bench->proc.addProcess(812, u"/"_s);
  m_bench->proc.addOpenFile(812, open);
  const QList<CategoryResult> results = {CleanBench::category(u"x"_s, {CleanBench::item(root, true)})};
  m_bench->runDry(results, toTrash, {u"keep"_s});
  QStringList dry = m_bench->log;
  const CleanReport told = m_bench->report;
  m_bench->run(results, toTrash, {u"keep"_s});
  QStringList real = m_bench->log;
  dry.sort();
  real.sort();
  QCOMPARE(dry, real);
  QCOMPARE(told.freedBytes, m_bench->report.freedBytes);
  QCOMPARE(told.removedFiles, m_bench->report.removedFiles);
  QCOMPARE(told.skipped, m_bench->report.skipped);
  QCOMPARE(told.freedBytes, 8192);
}

void tst_Cleaner::dryRunNeedsNoLock() {
  const QString file = m_bench->home.file(u"a/file"_s);
  const RunLock other(m_bench->world.lockPath);
  m_bench->runDry({CleanBench::category(u"x"_s, {CleanBench::item(file)})});
  QCOMPARE(m_bench->report.refusal, QString());
  QCOMPARE(m_bench->report.freedBytes, 4096);
}

void tst_Cleaner::cleansWhatAScanFound_data() {
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<QString>("cache");
  QTest::newRow("mac") << QByteArray("mac") << u"Library/Caches"_s;
  QTest::newRow("linux") << QByteArray("linux") << u".cache"_s;
}

// Together, with the cache behind a link: what the scan found is what the clean frees.
void tst_Cleaner::cleansWhatAScanFound() {
  QFETCH(QByteArray, host);
  QFETCH(QString, cache);
  qputenv("TARNWICK_HOST", host);
  const QString real = m_bench->home.folder(m_bench->home.outside(u"volume"_s));
  m_bench->home.link(cache, real);
  m_bench->home.file(real + "/one/a"_L1, 8192);
  m_bench->home.file(real + "/two/sub/b"_L1, 4096);
  const QString left = m_bench->home.file(m_bench->home.temp(u"left/over"_s));
  FixtureHome::age(m_bench->home.temp(u"left"_s), QDateTime::currentDateTime().addDays(-2));
  ScannerWorld scanWorld;
  scanWorld.sources = m_bench->world.sources;
  Scanner scanner(nullptr, scanWorld);
  ScanRun scan;
  scan.run(&scanner, {}, {u"temp"_s, u"appcache"_s});
  QCOMPARE(scan.category(u"appcache"_s).bytes, 12288);
  QCOMPARE(scan.category(u"temp"_s).bytes, 4096);
  m_bench->run({scan.category(u"temp"_s), scan.category(u"appcache"_s)});
  QCOMPARE(m_bench->report.freedBytes, 16384);
  QCOMPARE(m_bench->report.removedFiles, 3);
  QCOMPARE(m_bench->report.skipped, 0);
  QVERIFY(!CleanBench::isThere(left));
  QVERIFY(CleanBench::isThere(real + "/one"_L1));
  QVERIFY(!CleanBench::isThere(real + "/two/sub"_L1));
}

void tst_Cleaner::emptyOrder() {
  m_bench->run({});
  QCOMPARE(m_bench->log.mid(3),
           (QStringList{QString(), QString(), u"Freed 0 KB, removed 0 files, skipped 0."_s, QString()}));
  QCOMPARE(m_bench->progress.size(), 1);
  QCOMPARE(m_bench->progress[0].total, 0);
}

QTEST_GUILESS_MAIN(tst_Cleaner)
#include "tst_Cleaner.moc"
