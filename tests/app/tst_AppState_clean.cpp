// The flow of a clean, with real runs over real files: what goes, what the state keeps, and how it ends.
#include "FlowTest.h"

#include "core/runlock.h"

#include <QFileInfo>
#include <QPoint>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_AppState_clean : public FlowTest {
  Q_OBJECT

 private slots:
  void init() { fill(); }
  void cleanup() { empty(); }

  void cleanWithoutASelection();
  void cleanDuringAScan();
  void cleanBeforeTheEndIsHeard();
  void realClean();
  void cleanKeepsOtherCategories();
  void modeComesFromSettingsOrOptions_data();
  void modeComesFromSettingsOrOptions();
  void exclusionsReachTheClean();
  void untickedItemsStay();
  void refusedClean();
  void unreadableSettings_data();
  void unreadableSettings();
  void dryRun();
  void stopClean();
  void acknowledgeDone();
  void acknowledgeDoneElsewhere();
  void bytesWithoutTrash();
};

void tst_AppState_clean::cleanWithoutASelection() {
  scan();
  m_state->selectAll(false);
  Phases phases(m_state.get());
  m_state->clean();
  QVERIFY(phases.all.isEmpty());
  QVERIFY(!m_state->cleaner->isRunning());
}

void tst_AppState_clean::cleanDuringAScan() {
  scan();
  m_state->startScan();
  m_state->clean();
  QCOMPARE(m_state->phase, AppState::Scanning);
  QVERIFY(!m_state->cleaner->isRunning());
  QTRY_COMPARE_WITH_TIMEOUT(m_state->phase, AppState::Review, kPatienceMs);
}

void tst_AppState_clean::cleanBeforeTheEndIsHeard() {
  scan();
  const qint64 bytes = m_state->selectedBytes();
  m_state->clean();
  while (m_state->cleaner->isRunning()) {
  } // its report waits in the queue now, and the selection still stands
  const QString later = m_home->file(u".cache/thumbnails/normal/later.png"_s);
  m_state->clean();
  m_state->startScan();
  QVERIFY(!m_state->cleaner->isRunning() && !m_state->scanner->isRunning());
  QTRY_COMPARE_WITH_TIMEOUT(m_state->phase, AppState::Done, kPatienceMs);
  QVERIFY(QFileInfo::exists(later));
  QCOMPARE(AppSettings::instance().freedHistory(1), QList<qint64>{bytes});
}

void tst_AppState_clean::realClean() {
  scan();
  const qint64 bytes = m_state->selectedBytes();
  QStringList order;
  connect(m_state.get(), &AppState::volumeChanged, this, [&] { order << u"volume"_s; });
  connect(m_state.get(), &AppState::resultsChanged, this, [&] { order << u"results"_s; });
  connect(m_state.get(), &AppState::selectionChanged, this, [&] { order << u"selection"_s; });
  connect(m_state.get(), &AppState::phaseChanged, this, [&] { order << QString::number(m_state->phase); });
  QSignalSpy progress(m_state.get(), &AppState::cleanProgress);
  QStringList categories;
  connect(m_state.get(), &AppState::cleanProgress, this, [&] { categories << m_state->cleanCategory; });
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
  QCOMPARE(categories, (QStringList{u"Thumbnail cache"_s, QString()}));
  QCOMPARE(m_state->cleanFiles, 2);
  QCOMPARE(m_state->cleanFilesTotal, 2);
  QCOMPARE(progress.last().at(0).toLongLong(), bytes);
  QCOMPARE(progress.last().at(1).toLongLong(), bytes);
}

void tst_AppState_clean::cleanKeepsOtherCategories() {
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

void tst_AppState_clean::modeComesFromSettingsOrOptions_data() {
  QTest::addColumn<bool>("setting");
  QTest::addColumn<int>("option");
  QTest::addColumn<bool>("moves");
  QTest::newRow("setting delete") << false << -1 << false;
  QTest::newRow("setting trash") << true << -1 << true;
  QTest::newRow("option delete") << true << 0 << false;
  QTest::newRow("option trash") << false << 1 << true;
}

void tst_AppState_clean::modeComesFromSettingsOrOptions() {
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

void tst_AppState_clean::exclusionsReachTheClean() {
  scan();
  m_state->selectAll(true);
  AppSettings::instance().setExclusions(FixtureHome::rulesForOutside() << u"~/Downloads/a.deb"_s); // after the scan
  clean({.only = {}, .furtherExclusions = {u"*/1.png"_s, u"1.png"_s}, .moveToTrash = {}});
  QVERIFY(QFileInfo::exists(m_home->path(u"Downloads/a.deb"_s)));
  QVERIFY(!QFileInfo::exists(m_home->path(u"Downloads/b.deb"_s)));
  QVERIFY(QFileInfo::exists(m_home->path(u".cache/thumbnails/normal/1.png"_s)));
  QVERIFY(!QFileInfo::exists(m_home->path(u".cache/thumbnails/normal/2.png"_s)));
}

void tst_AppState_clean::untickedItemsStay() {
  scan();
  m_state->selectAll(true);
  m_state->setItemSelected(kUpdate, m_home->path(u"Downloads/b.deb"_s), false);
  clean();
  QVERIFY(!QFileInfo::exists(m_home->path(u"Downloads/a.deb"_s)));
  QVERIFY(QFileInfo::exists(m_home->path(u"Downloads/b.deb"_s)));
}

void tst_AppState_clean::refusedClean() {
  scan();
  m_state->setItemSelected(kUpdate, m_home->path(u"Downloads/a.deb"_s), true);
  const QSet<QString> selected = m_state->selected;
  const QSet<QString> unticked = m_state->unticked;
  QSignalSpy results(m_state.get(), &AppState::resultsChanged);
  QSignalSpy selection(m_state.get(), &AppState::selectionChanged);
  QSignalSpy toast(m_state.get(), &AppState::toast);
  Phases phases(m_state.get());
  {
    const RunLock other(cleanLock());
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

void tst_AppState_clean::unreadableSettings_data() {
  QTest::addColumn<bool>("dry");
  QTest::newRow("clean") << false;
  QTest::newRow("dry run") << true;
}

void tst_AppState_clean::unreadableSettings() {
  QFETCH(bool, dry);
  scan();
  const QSet<QString> selected = m_state->selected;
  const QString words = u"The settings can't be read, so the rules on what to keep are unknown. Nothing was cleaned."_s;
  QSignalSpy toast(m_state.get(), &AppState::toast);
  Phases phases(m_state.get());
  RunOptions options;
  options.dryRun = dry;
  AppSettings::instance().put("clean/exclusions", QPoint(1, 2));
  clean(options);
  AppSettings::instance().setExclusions(FixtureHome::rulesForOutside());
  QVERIFY(AppSettings::instance().acceptExclusions());
  QCOMPARE(phases.all, (QList<int>{AppState::Cleaning, AppState::Review}));
  QCOMPARE(m_state->report.refusal, words);
  QCOMPARE(m_state->report.dryRunLog, QString());
  QCOMPARE(toast.count(), 1);
  QCOMPARE(toast.at(0), (QVariantList{words, false}));
  QCOMPARE(m_state->results.size(), 8);
  QCOMPARE(m_state->selected, selected);
  QCOMPARE(AppSettings::instance().freedHistory(1), QList<qint64>{0});
  QVERIFY(QFileInfo::exists(m_home->path(u".cache/thumbnails/normal/1.png"_s)));
  clean(); // and again, now that it may
  QCOMPARE(m_state->phase, AppState::Done);
}

void tst_AppState_clean::dryRun() {
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

void tst_AppState_clean::stopClean() {
  scan();
  m_state->selectAll(false);
  m_state->setSelected(kUpdate, true);
  // On the worker, so that it is told before the first item is through.
  connect(
      m_state->cleaner, &Cleaner::progress, m_state.get(), [this] { m_state->stopClean(); }, Qt::DirectConnection);
  clean();
  QCOMPARE(m_state->phase, AppState::Done);
  QVERIFY(m_state->report.cleanedIds.isEmpty());
  QCOMPARE(m_state->report.removedFiles, 1);
  QCOMPARE(AppSettings::instance().freedHistory(1), QList<qint64>{m_state->report.freedBytes});
  QVERIFY(m_state->result(kUpdate)); // not gone through to its end, so still on the list
}

void tst_AppState_clean::acknowledgeDone() {
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

void tst_AppState_clean::acknowledgeDoneElsewhere() {
  for (const AppState::Phase phase : {AppState::Empty, AppState::Scanning, AppState::Review, AppState::Cleaning}) {
    m_state->setPhase(phase);
    QSignalSpy told(m_state.get(), &AppState::phaseChanged);
    m_state->acknowledgeDone();
    QCOMPARE(told.count(), 0);
    QCOMPARE(m_state->phase, phase);
  }
}

void tst_AppState_clean::bytesWithoutTrash() {
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

QTEST_GUILESS_MAIN(tst_AppState_clean)
#include "tst_AppState_clean.moc"
