// ctest: RESOURCE_LOCK clean
// The flow of a scan and a clean: what each signal does to the state, and real runs over real files.
#include "app/AppSettings.h"
#include "app/AppState.h"
#include "app/identity.h"
#include "core/runlock.h"
#include "engines/Cleaner.h"
#include "engines/Scanner.h"
#include "support/FixtureHome.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString kThumbs = u"thumbs"_s;
const QString kUpdate = u"update"_s;

CategoryDef def(const QString& id, Safety safety = Safe) {
  CategoryDef made;
  made.id = id;
  made.safety = safety;
  return made;
}

CategoryResult found(const QString& id, qint64 bytes, Safety safety = Safe) {
  CategoryResult made;
  made.def = def(id, safety);
  made.bytes = bytes;
  made.files = 1;
  CleanItem item;
  item.path = u"/c/"_s + id;
  item.bytes = bytes;
  item.files = 1;
  made.items << item;
  return made;
}

QStringList ids(const QList<CategoryResult>& results) {
  QStringList all;
  for (const CategoryResult& one : results) all << one.def.id;
  return all;
}

} // namespace

/// The phases that a state went through, in order.
class Phases : public QObject {
 public:
  explicit Phases(AppState* state) {
    connect(state, &AppState::phaseChanged, this, [this, state] { all << state->phase; });
  }
  QList<int> all;
};

class tst_AppState : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void init();
  void cleanup();
  void cleanupTestCase() { QSettings().sync(); }

  void starts();
  void readsTheLastScan();
  void setPhaseTellsOnlyChanges();
  void refreshVolume();
  void scanSignals();
  void categoriesBeyondTheSlots();
  void emptyPathKeepsTheLast();
  void sizeOfScanned();
  void completeScan();
  void completeScanThatFoundNothing();
  void cancelledScanBringsTheOldBack();
  void cancelledScanWithoutResults();
  void realScan();
  void realScanOfSome();
  void startDuringAScanChangesNothing();
  void startDuringACleanChangesNothing();
  void cancelRealScan();
  void unrecordedScan();
  void exclusionsReachTheScan();

  void cleanWithoutASelection();
  void cleanDuringAScan();
  void realClean();
  void cleanKeepsOtherCategories();
  void modeComesFromSettingsOrOptions_data();
  void modeComesFromSettingsOrOptions();
  void exclusionsReachTheClean();
  void untickedItemsStay();
  void refusedClean();
  void dryRun();
  void stopClean();
  void acknowledgeDone();
  void acknowledgeDoneElsewhere();
  void bytesWithoutTrash();
  void leavingDuringAScan();

 private:
  void scan(const RunOptions& options = {});
  void clean(const RunOptions& options = {});

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
};

void tst_AppState::initTestCase() {
  identity::apply();
  records::registerMetaTypes();
  qputenv("TARNWICK_HOST", "linux");
}

void tst_AppState::init() {
  m_home = std::make_unique<FixtureHome>();
  // The settings object lives as long as the process, so its store is that of the first home.
  AppSettings& settings = AppSettings::instance();
  settings.setMoveToTrash(false);
  settings.setExclusions({});
  settings.setLastScan(QDateTime());
  settings.put("history/freed", QVariantMap());
  m_home->file(u".cache/thumbnails/normal/1.png"_s, 20'000);
  m_home->file(u".cache/thumbnails/normal/2.png"_s, 10'000);
  m_home->file(u"Downloads/a.deb"_s, 50'000);
  m_home->file(u"Downloads/b.deb"_s, 30'000);
  m_state = std::make_unique<AppState>();
}

void tst_AppState::cleanup() {
  m_state.reset();
  m_home.reset();
}

void tst_AppState::scan(const RunOptions& options) {
  m_state->startScan(options);
  QTRY_VERIFY(m_state->phase != AppState::Scanning);
  QTRY_VERIFY(!m_state->scanner->isRunning());
}

void tst_AppState::clean(const RunOptions& options) {
  m_state->clean(options);
  QTRY_VERIFY_WITH_TIMEOUT(m_state->phase != AppState::Cleaning, 30'000);
  QTRY_VERIFY(!m_state->cleaner->isRunning());
}

void tst_AppState::starts() {
  QCOMPARE(m_state->phase, AppState::Empty);
  QCOMPARE(m_state->scanCategory, -1);
  QCOMPARE(m_state->scanner->parent(), m_state.get());
  QCOMPARE(m_state->cleaner->parent(), m_state.get());
  QVERIFY(m_state->volume.totalBytes > 0);
  QVERIFY(m_state->results.isEmpty() && m_state->selected.isEmpty() && m_state->unticked.isEmpty());
  QVERIFY(!m_state->lastScan.isValid());
  QVERIFY(m_state->children().indexOf(m_state->scanner) < m_state->children().indexOf(m_state->cleaner));
}

void tst_AppState::readsTheLastScan() {
  const QDateTime when(QDate(2025, 1, 2), QTime(3, 4));
  AppSettings::instance().setLastScan(when);
  QCOMPARE(AppState().lastScan, when);
}

void tst_AppState::setPhaseTellsOnlyChanges() {
  QSignalSpy told(m_state.get(), &AppState::phaseChanged);
  m_state->setPhase(AppState::Empty);
  QCOMPARE(told.count(), 0);
  m_state->setPhase(AppState::Review);
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->phase, AppState::Review);
}

void tst_AppState::refreshVolume() {
  m_state->volume = {};
  QSignalSpy told(m_state.get(), &AppState::volumeChanged);
  m_state->refreshVolume();
  QCOMPARE(told.count(), 1);
  QVERIFY(m_state->volume.totalBytes > 0);
}

void tst_AppState::scanSignals() {
  QSignalSpy told(m_state.get(), &AppState::scanProgressChanged);
  emit m_state->scanner->started({def(u"a"_s), def(u"b"_s)});
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->scanDefs.size(), 2);
  QCOMPARE(m_state->scanResults.size(), 2);
  QCOMPARE(m_state->scanResults.at(1).bytes, 0);
  emit m_state->scanner->categoryStarted(1);
  QCOMPARE(told.count(), 2);
  QCOMPARE(m_state->scanCategory, 1);
  emit m_state->scanner->categoryFinished(1, found(u"b"_s, 7));
  QCOMPARE(told.count(), 2); // the next progress brings it
  QCOMPARE(m_state->scanResults.at(1).bytes, 7);
  emit m_state->scanner->progress(10, 3, u"/x"_s);
  QCOMPARE(told.count(), 3);
  QCOMPARE(m_state->scanBytes, 10);
  QCOMPARE(m_state->scanFiles, 3);
  QCOMPARE(m_state->scanPath, u"/x"_s);
}

void tst_AppState::categoriesBeyondTheSlots() {
  emit m_state->scanner->started({def(u"a"_s)});
  emit m_state->scanner->categoryFinished(1, found(u"b"_s, 7));
  emit m_state->scanner->categoryFinished(-1, found(u"b"_s, 7));
  QCOMPARE(m_state->scanResults.size(), 1);
  QCOMPARE(m_state->scanResults.at(0).bytes, 0);
}

void tst_AppState::emptyPathKeepsTheLast() {
  emit m_state->scanner->progress(1, 1, u"/last"_s);
  emit m_state->scanner->progress(2, 2, QString());
  QCOMPARE(m_state->scanPath, u"/last"_s);
  QCOMPARE(m_state->scanBytes, 2);
}

void tst_AppState::sizeOfScanned() {
  emit m_state->scanner->started({def(u"a"_s)});
  emit m_state->scanner->categoryFinished(0, found(u"a"_s, 7));
  QCOMPARE(m_state->sizeOfScanned(0), 7);
  QCOMPARE(m_state->sizeOfScanned(-1), 0);
  QCOMPARE(m_state->sizeOfScanned(1), 0);
}

void tst_AppState::completeScan() {
  m_state->setPhase(AppState::Scanning);
  QStringList order;
  connect(m_state.get(), &AppState::selectionChanged, this, [&] { order << u"selection"_s; });
  connect(m_state.get(), &AppState::resultsChanged, this, [&] { order << u"results"_s; });
  connect(m_state.get(), &AppState::phaseChanged, this, [&] { order << u"phase"_s; });
  const QDateTime before = QDateTime::currentDateTime();
  emit m_state->scanner->finished({found(u"a"_s, 7), found(u"b"_s, 9, Review)}, false);
  QCOMPARE(order.join(u' '), u"selection results phase"_s);
  QCOMPARE(m_state->phase, AppState::Review);
  QCOMPARE(ids(m_state->results), (QStringList{u"a"_s, u"b"_s}));
  QCOMPARE(m_state->selected, QSet<QString>{u"a"_s});
  QVERIFY(m_state->lastScan >= before && m_state->lastScan <= QDateTime::currentDateTime());
  QCOMPARE(AppSettings::instance().lastScan(), m_state->lastScan);
}

void tst_AppState::completeScanThatFoundNothing() {
  m_state->setPhase(AppState::Scanning);
  emit m_state->scanner->finished({}, false);
  QCOMPARE(m_state->phase, AppState::Review);
}

void tst_AppState::cancelledScanBringsTheOldBack() {
  emit m_state->scanner->finished({found(u"a"_s, 7), found(u"b"_s, 9)}, false);
  m_state->setSelected(u"a"_s, false);
  const QDateTime lastScan = m_state->lastScan;
  m_state->setPhase(AppState::Scanning);
  QSignalSpy results(m_state.get(), &AppState::resultsChanged);
  emit m_state->scanner->finished({found(u"c"_s, 1)}, true);
  QCOMPARE(m_state->phase, AppState::Review);
  QCOMPARE(ids(m_state->results), (QStringList{u"a"_s, u"b"_s}));
  QCOMPARE(m_state->selected, QSet<QString>{u"b"_s});
  QCOMPARE(m_state->lastScan, lastScan);
  QCOMPARE(results.count(), 0);
}

void tst_AppState::cancelledScanWithoutResults() {
  m_state->setPhase(AppState::Scanning);
  emit m_state->scanner->finished({found(u"c"_s, 1)}, true);
  QCOMPARE(m_state->phase, AppState::Empty);
  QVERIFY(m_state->results.isEmpty());
  QVERIFY(!AppSettings::instance().lastScan().isValid());
}

void tst_AppState::realScan() {
  Phases phases(m_state.get());
  scan();
  QCOMPARE(phases.all, (QList<int>{AppState::Scanning, AppState::Review}));
  QCOMPARE(m_state->results.size(), 8);
  QCOMPARE(m_state->scanDefs.size(), 8);
  QCOMPARE(m_state->scanCategory, 7);
  QCOMPARE(m_state->result(kThumbs)->items.size(), 1);
  QCOMPARE(m_state->result(kUpdate)->items.size(), 2);
  QCOMPARE(m_state->scanBytes, m_state->totalReclaimable());
  QCOMPARE(m_state->selected, QSet<QString>{kThumbs});
  QVERIFY(m_state->scanTimer.isValid());
  for (int i = 0; i < 8; ++i) QCOMPARE(m_state->sizeOfScanned(i), m_state->results.at(i).bytes);
}

void tst_AppState::realScanOfSome() {
  scan({.only = {kUpdate}, .furtherExclusions = {}, .moveToTrash = {}});
  QCOMPARE(m_state->results.size(), 8);
  QCOMPARE(m_state->result(kThumbs)->bytes, 0);
  QVERIFY(m_state->result(kUpdate)->bytes > 0);
}

void tst_AppState::startDuringAScanChangesNothing() {
  m_state->startScan();
  m_state->scanBytes = 77;
  m_state->scanPath = u"/seen"_s;
  const qint64 started = m_state->scanTimer.msecsSinceReference();
  m_state->startScan({.only = {kUpdate}, .furtherExclusions = {}, .moveToTrash = {}, .recordLastScan = false});
  QCOMPARE(m_state->scanBytes, 77);
  QCOMPARE(m_state->scanPath, u"/seen"_s);
  QCOMPARE(m_state->scanTimer.msecsSinceReference(), started);
  QTRY_COMPARE(m_state->phase, AppState::Review);
  QVERIFY(m_state->result(kThumbs)->bytes > 0); // the first one's options hold
  QVERIFY(m_state->lastScan.isValid());
}

void tst_AppState::startDuringACleanChangesNothing() {
  scan();
  const QList<CategoryDef> defs = m_state->scanDefs;
  const qint64 bytes = m_state->scanBytes;
  m_state->clean();
  m_state->startScan();
  QCOMPARE(m_state->phase, AppState::Cleaning);
  QCOMPARE(m_state->scanDefs.size(), defs.size());
  QCOMPARE(m_state->scanBytes, bytes);
  QTRY_COMPARE(m_state->phase, AppState::Done);
}

void tst_AppState::cancelRealScan() {
  m_state->startScan();
  m_state->cancelScan();
  QCOMPARE(m_state->phase, AppState::Scanning); // it changes nothing by itself
  QTRY_COMPARE(m_state->phase, AppState::Empty);
  QVERIFY(m_state->results.isEmpty());
}

void tst_AppState::unrecordedScan() {
  const QDateTime when(QDate(2025, 1, 2), QTime(3, 4));
  AppSettings::instance().setLastScan(when);
  m_state = std::make_unique<AppState>();
  scan({.only = {}, .furtherExclusions = {}, .moveToTrash = {}, .recordLastScan = false});
  QCOMPARE(m_state->phase, AppState::Review);
  QCOMPARE(m_state->lastScan, when);
  QCOMPARE(AppSettings::instance().lastScan(), when);
}

void tst_AppState::exclusionsReachTheScan() {
  AppSettings::instance().setExclusions({u"~/Downloads/a.deb"_s});
  scan({.only = {}, .furtherExclusions = {u"~/.cache/thumbnails"_s}, .moveToTrash = {}});
  QCOMPARE(m_state->result(kThumbs)->bytes, 0);
  QCOMPARE(m_state->result(kUpdate)->items.size(), 1);
  QCOMPARE(AppSettings::instance().exclusions(), QStringList{u"~/Downloads/a.deb"_s});
}

void tst_AppState::cleanWithoutASelection() {
  scan();
  m_state->selectAll(false);
  Phases phases(m_state.get());
  m_state->clean();
  QVERIFY(phases.all.isEmpty());
  QVERIFY(!m_state->cleaner->isRunning());
}

void tst_AppState::cleanDuringAScan() {
  scan();
  m_state->startScan();
  m_state->clean();
  QCOMPARE(m_state->phase, AppState::Scanning);
  QVERIFY(!m_state->cleaner->isRunning());
  QTRY_COMPARE(m_state->phase, AppState::Review);
}

void tst_AppState::realClean() {
  scan();
  const qint64 bytes = m_state->selectedBytes();
  QStringList order;
  connect(m_state.get(), &AppState::volumeChanged, this, [&] { order << u"volume"_s; });
  connect(m_state.get(), &AppState::resultsChanged, this, [&] { order << u"results"_s; });
  connect(m_state.get(), &AppState::selectionChanged, this, [&] { order << u"selection"_s; });
  connect(m_state.get(), &AppState::phaseChanged, this, [&] { order << QString::number(m_state->phase); });
  QSignalSpy progress(m_state.get(), &AppState::cleanProgress);
  m_state->volume.availableBytes = 12345;
  clean();
  QCOMPARE(order.join(u' '), u"3 volume results selection 4"_s);
  QCOMPARE(m_state->freeBeforeClean, 12345);
  QVERIFY(m_state->volume.availableBytes != 12345);
  QCOMPARE(m_state->report.freedBytes, bytes);
  QCOMPARE(m_state->report.cleanedIds, QStringList{kThumbs});
  QVERIFY(!QFileInfo::exists(m_home->path(u".cache/thumbnails/normal"_s)));
  QCOMPARE(AppSettings::instance().freedHistory(1), QList<qint64>{bytes});
  QVERIFY(!progress.isEmpty());
  QCOMPARE(progress.last().at(0).toLongLong(), bytes);
  QCOMPARE(progress.last().at(1).toLongLong(), bytes);
}

void tst_AppState::cleanKeepsOtherCategories() {
  scan();
  m_state->setItemSelected(kUpdate, m_home->path(u"Downloads/a.deb"_s), true);
  m_state->setItemSelected(kUpdate, m_home->path(u"Downloads/b.deb"_s), true);
  m_state->setItemSelected(kUpdate, m_home->path(u"Downloads/b.deb"_s), false);
  m_state->setSelected(kThumbs, false);
  clean();
  QCOMPARE(m_state->phase, AppState::Done);
  QVERIFY(!m_state->result(kUpdate)); // as a whole, though an item of it stayed
  QVERIFY(m_state->result(kThumbs)->bytes > 0);
  QCOMPARE(m_state->results.size(), 7);
  QVERIFY(m_state->selected.isEmpty() && m_state->unticked.isEmpty());
  QVERIFY(!QFileInfo::exists(m_home->path(u"Downloads/a.deb"_s)));
  QVERIFY(QFileInfo::exists(m_home->path(u"Downloads/b.deb"_s)));
}

void tst_AppState::modeComesFromSettingsOrOptions_data() {
  QTest::addColumn<bool>("setting");
  QTest::addColumn<int>("option");
  QTest::addColumn<bool>("moves");
  QTest::newRow("setting delete") << false << -1 << false;
  QTest::newRow("setting trash") << true << -1 << true;
  QTest::newRow("option delete") << true << 0 << false;
  QTest::newRow("option trash") << false << 1 << true;
}

void tst_AppState::modeComesFromSettingsOrOptions() {
  QFETCH(bool, setting);
  QFETCH(int, option);
  QFETCH(bool, moves);
  AppSettings::instance().setMoveToTrash(setting);
  scan();
  m_state->selectAll(false);
  m_state->setSelected(kUpdate, true);
  RunOptions options;
  if (option >= 0) options.moveToTrash = option == 1;
  clean(options);
  QCOMPARE(m_state->phase, AppState::Done);
  QVERIFY(!QFileInfo::exists(m_home->path(u"Downloads/a.deb"_s)));
  QCOMPARE(QFileInfo::exists(m_home->path(u".local/share/Trash/files/a.deb"_s)), moves);
  QCOMPARE(AppSettings::instance().moveToTrash(), setting);
}

void tst_AppState::exclusionsReachTheClean() {
  scan();
  m_state->selectAll(true);
  AppSettings::instance().setExclusions({u"~/Downloads/a.deb"_s}); // made after the scan
  clean({.only = {}, .furtherExclusions = {u"*/1.png"_s, u"1.png"_s}, .moveToTrash = {}});
  QVERIFY(QFileInfo::exists(m_home->path(u"Downloads/a.deb"_s)));
  QVERIFY(!QFileInfo::exists(m_home->path(u"Downloads/b.deb"_s)));
  QVERIFY(QFileInfo::exists(m_home->path(u".cache/thumbnails/normal/1.png"_s)));
  QVERIFY(!QFileInfo::exists(m_home->path(u".cache/thumbnails/normal/2.png"_s)));
}

void tst_AppState::untickedItemsStay() {
  scan();
  m_state->selectAll(true);
  m_state->setItemSelected(kUpdate, m_home->path(u"Downloads/b.deb"_s), false);
  clean();
  QVERIFY(!QFileInfo::exists(m_home->path(u"Downloads/a.deb"_s)));
  QVERIFY(QFileInfo::exists(m_home->path(u"Downloads/b.deb"_s)));
}

void tst_AppState::refusedClean() {
  scan();
  m_state->setItemSelected(kUpdate, m_home->path(u"Downloads/a.deb"_s), true);
  const QSet<QString> selected = m_state->selected;
  const QSet<QString> unticked = m_state->unticked;
  QSignalSpy results(m_state.get(), &AppState::resultsChanged);
  QSignalSpy selection(m_state.get(), &AppState::selectionChanged);
  QSignalSpy toast(m_state.get(), &AppState::toast);
  Phases phases(m_state.get());
  {
    const RunLock other;
    QCOMPARE(other.state(), RunLock::State::Held);
    clean();
  }
  QCOMPARE(phases.all, (QList<int>{AppState::Cleaning, AppState::Review}));
  QVERIFY(!m_state->report.refusal.isEmpty());
  QCOMPARE(toast.count(), 1);
  QCOMPARE(toast.at(0), (QVariantList{m_state->report.refusal, false}));
  QCOMPARE(results.count(), 0);
  QCOMPARE(selection.count(), 0);
  QCOMPARE(m_state->results.size(), 8);
  QCOMPARE(m_state->selected, selected);
  QCOMPARE(m_state->unticked, unticked);
  QCOMPARE(AppSettings::instance().freedHistory(1), QList<qint64>{0});
  QVERIFY(QFileInfo::exists(m_home->path(u"Downloads/a.deb"_s)));
  clean(); // and again, now that it may
  QCOMPARE(m_state->phase, AppState::Done);
  QVERIFY(!QFileInfo::exists(m_home->path(u"Downloads/a.deb"_s)));
}

void tst_AppState::dryRun() {
  scan();
  const qint64 bytes = m_state->selectedBytes();
  Phases phases(m_state.get());
  QSignalSpy toast(m_state.get(), &AppState::toast);
  RunOptions options;
  options.dryRun = true;
  clean(options);
  QCOMPARE(phases.all, (QList<int>{AppState::Cleaning, AppState::Review}));
  QCOMPARE(m_state->report.freedBytes, bytes);
  QVERIFY(!m_state->report.dryRunLog.isEmpty());
  QCOMPARE(m_state->report.logPath, QString());
  QCOMPARE(m_state->results.size(), 8);
  QCOMPARE(m_state->selectedBytes(), bytes);
  QCOMPARE(AppSettings::instance().freedHistory(1), QList<qint64>{0});
  QVERIFY(QFileInfo::exists(m_home->path(u".cache/thumbnails/normal/1.png"_s)));
  QCOMPARE(toast.count(), 0);
}

void tst_AppState::stopClean() {
  constexpr int kItems = 300;
  for (int i = 0; i < kItems; ++i) m_home->file(u"Downloads/many-%1.deb"_s.arg(i), 10);
  scan();
  m_state->selectAll(false);
  m_state->setSelected(kUpdate, true);
  connect(m_state.get(), &AppState::cleanProgress, m_state.get(), [this] { m_state->stopClean(); });
  clean();
  QCOMPARE(m_state->phase, AppState::Done);
  QVERIFY(m_state->report.cleanedIds.isEmpty());
  QVERIFY(m_state->report.removedFiles < kItems);
  QCOMPARE(AppSettings::instance().freedHistory(1), QList<qint64>{m_state->report.freedBytes});
  QVERIFY(m_state->result(kUpdate)); // not gone through to its end, so still on the list
}

void tst_AppState::acknowledgeDone() {
  m_state->setPhase(AppState::Done);
  m_state->acknowledgeDone();
  QCOMPARE(m_state->phase, AppState::Empty);
  m_state->results = {found(u"a"_s, 1)};
  m_state->setPhase(AppState::Done);
  QSignalSpy told(m_state.get(), &AppState::phaseChanged);
  m_state->acknowledgeDone();
  QCOMPARE(m_state->phase, AppState::Review);
  QCOMPARE(told.count(), 1);
}

void tst_AppState::acknowledgeDoneElsewhere() {
  for (const AppState::Phase phase : {AppState::Empty, AppState::Scanning, AppState::Review, AppState::Cleaning}) {
    m_state->setPhase(phase);
    QSignalSpy told(m_state.get(), &AppState::phaseChanged);
    m_state->acknowledgeDone();
    QCOMPARE(told.count(), 0);
    QCOMPARE(m_state->phase, phase);
  }
}

void tst_AppState::bytesWithoutTrash() {
  const QString memory = u"/dev/shm"_s; // lives in memory, so no Trash is made there
  if (!QFileInfo(memory).isWritable()) QSKIP("there is no file system in memory");
  CategoryResult here = found(u"here"_s, 100);
  here.items[0].path = m_home->path(u"Downloads/a.deb"_s);
  CategoryResult there = found(u"there"_s, 30);
  there.items[0].path = memory + u"/thing"_s;
  CategoryResult whole = found(u"whole"_s, 5);
  whole.items[0].path = memory;
  whole.items[0].wholeRoot = true;
  CategoryResult permanent = found(u"permanent"_s, 1000, Permanent);
  permanent.items[0].path = memory + u"/thing"_s;
  m_state->results = {here, there, whole, permanent};
  m_state->selectAll(true);
  QCOMPARE(m_state->selectedBytesWithoutTrash(), 35);
  m_state->setSelected(u"there"_s, false);
  QCOMPARE(m_state->selectedBytesWithoutTrash(), 5);
}

void tst_AppState::leavingDuringAScan() {
  m_state->startScan();
  m_state.reset(); // raises the flag and waits; nothing arrives afterwards
  QCoreApplication::processEvents();
  QVERIFY(!AppSettings::instance().lastScan().isValid());
}

QTEST_GUILESS_MAIN(tst_AppState)
#include "tst_AppState.moc"
