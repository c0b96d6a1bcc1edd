// How the state starts, and the flow of a scan: what each signal does to it, and real runs over real files.
#include "FlowTest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

CategoryDef def(const QString& id) {
  CategoryDef made;
  made.id = id;
  return made;
}

QStringList ids(const QList<CategoryResult>& results) {
  QStringList all;
  for (const CategoryResult& one : results) all << one.def.id;
  return all;
}

} // namespace

class tst_AppState_scan : public FlowTest {
  Q_OBJECT

 private slots:
  void init() { fill(); }
  void cleanup() { empty(); }

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
  void startBeforeTheEndIsHeardChangesNothing();
  void startDuringACleanChangesNothing();
  void cancelRealScan();
  void unrecordedScan();
  void exclusionsReachTheScan();
  void leavingDuringAScan();
};

void tst_AppState_scan::starts() {
  QCOMPARE(m_state->phase, AppState::Empty);
  QCOMPARE(m_state->scanCategory, -1);
  QCOMPARE(m_state->scanner->parent(), m_state.get());
  QCOMPARE(m_state->cleaner->parent(), m_state.get());
  QVERIFY(m_state->volume.totalBytes > 0);
  QVERIFY(m_state->results.isEmpty() && m_state->selected.isEmpty() && m_state->unticked.isEmpty());
  QVERIFY(!m_state->lastScan.isValid());
  QVERIFY(m_state->children().indexOf(m_state->scanner) < m_state->children().indexOf(m_state->cleaner));
}

void tst_AppState_scan::readsTheLastScan() {
  const QDateTime when(QDate(2025, 1, 2), QTime(3, 4));
  AppSettings::instance().setLastScan(when);
  QCOMPARE(AppState().lastScan, when);
}

void tst_AppState_scan::setPhaseTellsOnlyChanges() {
  QSignalSpy told(m_state.get(), &AppState::phaseChanged);
  m_state->setPhase(AppState::Empty);
  QCOMPARE(told.count(), 0);
  m_state->setPhase(AppState::Review);
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->phase, AppState::Review);
}

void tst_AppState_scan::refreshVolume() {
  m_state->volume = {};
  QSignalSpy told(m_state.get(), &AppState::volumeChanged);
  m_state->refreshVolume();
  QCOMPARE(told.count(), 1);
  QVERIFY(m_state->volume.totalBytes > 0);
}

void tst_AppState_scan::scanSignals() {
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

void tst_AppState_scan::categoriesBeyondTheSlots() {
  emit m_state->scanner->started({def(u"a"_s)});
  emit m_state->scanner->categoryFinished(1, found(u"b"_s, 7));
  emit m_state->scanner->categoryFinished(-1, found(u"b"_s, 7));
  QCOMPARE(m_state->scanResults.size(), 1);
  QCOMPARE(m_state->scanResults.at(0).bytes, 0);
}

void tst_AppState_scan::emptyPathKeepsTheLast() {
  emit m_state->scanner->progress(1, 1, u"/last"_s);
  emit m_state->scanner->progress(2, 2, QString());
  QCOMPARE(m_state->scanPath, u"/last"_s);
  QCOMPARE(m_state->scanBytes, 2);
}

void tst_AppState_scan::sizeOfScanned() {
  emit m_state->scanner->started({def(u"a"_s)});
  emit m_state->scanner->categoryFinished(0, found(u"a"_s, 7));
  QCOMPARE(m_state->sizeOfScanned(0), 7);
  QCOMPARE(m_state->sizeOfScanned(-1), 0);
  QCOMPARE(m_state->sizeOfScanned(1), 0);
}

void tst_AppState_scan::completeScan() {
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

void tst_AppState_scan::completeScanThatFoundNothing() {
  m_state->setPhase(AppState::Scanning);
  emit m_state->scanner->finished({}, false);
  QCOMPARE(m_state->phase, AppState::Review);
}

void tst_AppState_scan::cancelledScanBringsTheOldBack() {
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

void tst_AppState_scan::cancelledScanWithoutResults() {
  m_state->setPhase(AppState::Scanning);
  emit m_state->scanner->finished({found(u"c"_s, 1)}, true);
  QCOMPARE(m_state->phase, AppState::Empty);
  QVERIFY(m_state->results.isEmpty());
  QVERIFY(!AppSettings::instance().lastScan().isValid());
}

void tst_AppState_scan::realScan() {
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

void tst_AppState_scan::realScanOfSome() {
  scan({.only = {kUpdate}, .furtherExclusions = {}, .moveToTrash = {}});
  QCOMPARE(m_state->results.size(), 8);
  QCOMPARE(m_state->result(kThumbs)->bytes, 0);
  QVERIFY(m_state->result(kUpdate)->bytes > 0);
}

void tst_AppState_scan::startDuringAScanChangesNothing() {
  m_state->startScan();
  m_state->scanBytes = 77;
  m_state->scanPath = u"/seen"_s;
  const qint64 started = m_state->scanTimer.msecsSinceReference();
  m_state->startScan({.only = {kUpdate}, .furtherExclusions = {}, .moveToTrash = {}, .recordLastScan = false});
  QCOMPARE(m_state->scanBytes, 77);
  QCOMPARE(m_state->scanPath, u"/seen"_s);
  QCOMPARE(m_state->scanTimer.msecsSinceReference(), started);
  QTRY_COMPARE_WITH_TIMEOUT(m_state->phase, AppState::Review, kPatienceMs);
  QVERIFY(m_state->result(kThumbs)->bytes > 0); // the first one's options hold
  QVERIFY(m_state->lastScan.isValid());
}

void tst_AppState_scan::startBeforeTheEndIsHeardChangesNothing() {
  m_state->startScan();
  while (m_state->scanner->isRunning()) {
  } // its last signals wait in the queue now
  m_state->scanBytes = 77;
  m_state->startScan({.only = {kUpdate}, .furtherExclusions = {}, .moveToTrash = {}, .recordLastScan = false});
  QCOMPARE(m_state->scanBytes, 77);
  QVERIFY(!m_state->scanner->isRunning());
  QTRY_COMPARE_WITH_TIMEOUT(m_state->phase, AppState::Review, kPatienceMs);
  QVERIFY(m_state->result(kThumbs)->bytes > 0);
  QVERIFY(m_state->lastScan.isValid());
}

void tst_AppState_scan::startDuringACleanChangesNothing() {
  scan();
  const QList<CategoryDef> defs = m_state->scanDefs;
  const qint64 bytes = m_state->scanBytes;
  m_state->clean();
  m_state->startScan();
  QCOMPARE(m_state->phase, AppState::Cleaning);
  QCOMPARE(m_state->scanDefs.size(), defs.size());
  QCOMPARE(m_state->scanBytes, bytes);
  QTRY_COMPARE_WITH_TIMEOUT(m_state->phase, AppState::Done, kPatienceMs);
}

void tst_AppState_scan::cancelRealScan() {
  // On the worker, before its first category.
  connect(
      m_state->scanner, &Scanner::started, m_state.get(), [this] { m_state->cancelScan(); }, Qt::DirectConnection);
  m_state->startScan();
  QCOMPARE(m_state->phase, AppState::Scanning); // it changes nothing by itself
  QTRY_COMPARE_WITH_TIMEOUT(m_state->phase, AppState::Empty, kPatienceMs);
  QVERIFY(m_state->results.isEmpty());
}

void tst_AppState_scan::unrecordedScan() {
  const QDateTime when(QDate(2025, 1, 2), QTime(3, 4));
  AppSettings::instance().setLastScan(when);
  m_state = newState();
  scan({.only = {}, .furtherExclusions = {}, .moveToTrash = {}, .recordLastScan = false});
  QCOMPARE(m_state->phase, AppState::Review);
  QCOMPARE(m_state->lastScan, when);
  QCOMPARE(AppSettings::instance().lastScan(), when);
}

void tst_AppState_scan::exclusionsReachTheScan() {
  AppSettings::instance().setExclusions({u"~/Downloads/a.deb"_s});
  scan({.only = {}, .furtherExclusions = {u"~/.cache/thumbnails"_s}, .moveToTrash = {}});
  QCOMPARE(m_state->result(kThumbs)->bytes, 0);
  QCOMPARE(m_state->result(kUpdate)->items.size(), 1);
  QCOMPARE(AppSettings::instance().exclusions(), QStringList{u"~/Downloads/a.deb"_s});
}

void tst_AppState_scan::leavingDuringAScan() {
  m_state->startScan();
  m_state.reset(); // raises the flag and waits; nothing arrives afterwards
  QCoreApplication::processEvents();
  QVERIFY(!AppSettings::instance().lastScan().isValid());
}

QTEST_GUILESS_MAIN(tst_AppState_scan)
#include "tst_AppState_scan.moc"
