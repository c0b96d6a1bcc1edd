// System Data in the state: its measuring, its actions, and what is told of them.
#include "FlowTest.h"
#include "core/fs.h"
#include "engines/SystemDataScanner.h"

#include <QFile>
#include <QPoint>
#include <QSignalSpy>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using Item = SystemDataItem;

namespace {

/// A tool that waits until the test lets it go, and tells that it was called.
const QByteArray kGate = ": > \"$0.called\"; while [ ! -e \"${0%/*}/go\" ]; do sleep 0.02; done; ";

SystemDataItem itemWith(const char* id, Item::Action action, const QList<QString>& paths = {}) {
  SystemDataItem item;
  item.id = QLatin1String(id);
  item.action = action;
  item.paths = paths;
  return item;
}

} // namespace

class tst_AppState_system : public FlowTest {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void measures();
  void relaysWhatTheScannerTells();
  void aSecondStartIsNone();
  void cancelledKeepsTheLastFigures();
  void unknownIdDoesNothing();
  void lightActionsSayNothingWhenTheyWork_data();
  void lightActionsSayNothingWhenTheyWork();
  void lightActionsSayWhyNot_data();
  void lightActionsSayWhyNot();
  void longActions();
  void anActionDuringAnotherIsIgnored();
  void actionWithoutWords();
  void measuresAnewAfterAnAction();
  void anActionThatEndsDuringAMeasuring();
  void keepsWhatTheUserExcludes();
  void movesNothingWithoutTheUsersRules();

 private:
  [[nodiscard]] QString tool(const char* name) const { return m_home->outside(u"tools/"_s + QLatin1String(name)); }
  void putTool(const char* name, const QByteArray& body) const {
    QFile file(m_home->file(tool(name), 0));
    if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write %s", name);
    file.write("#!/bin/sh\n" + body + '\n');
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  void letGo() const { m_home->file(tool("go")); }
  void waitForTheEnd() const {
    QTRY_VERIFY_WITH_TIMEOUT(!m_state->systemDataBusy && !m_state->systemDataScanner->isRunning(), kPatienceMs);
  }
};

void tst_AppState_system::init() {
  qputenv("TARNWICK_HOST", "mac");
  fill();
  SystemDataWorld world;
  world.root = m_home->folder(m_home->outside(u"disk"_s));
  world.tmutil = tool("tmutil");
  world.xcrun = tool("xcrun");
  world.open = tool("open");
  CleanerWorld cleaner;
  cleaner.lockPath = cleanLock();
  m_state = std::make_unique<AppState>(nullptr, cleaner, world);
}

void tst_AppState_system::cleanup() {
  empty();
  qputenv("TARNWICK_HOST", "linux");
}

void tst_AppState_system::measures() {
  m_home->file(u"Library/Caches/a"_s, 40'000);
  QList<bool> running;
  connect(m_state.get(), &AppState::systemDataChanged, this,
          [&] { running << m_state->systemDataScanner->isRunning(); });
  QVERIFY(!m_state->systemDataReady && m_state->systemData.isEmpty());
  m_state->startSystemDataScan();
  QCOMPARE(running, QList<bool>{true}); // told at once
  QVERIFY(!m_state->systemDataReady);
  waitForTheEnd();
  QCOMPARE(running, (QList<bool>{true, false}));
  QVERIFY(m_state->systemDataReady);
  QCOMPARE(m_state->systemData.size(), 18);
  QVERIFY(m_state->systemData[5].bytes >= 40'000);
}

void tst_AppState_system::relaysWhatTheScannerTells() {
  m_home->file(u"Library/Caches/a"_s, 40'000);
  const QSignalSpy progress(m_state.get(), &AppState::systemDataProgress);
  const QSignalSpy measured(m_state.get(), &AppState::systemDataMeasured);
  m_state->startSystemDataScan();
  waitForTheEnd();
  QVERIFY(progress.size() >= 18);
  QCOMPARE(progress[5].mid(0, 3), (QVariantList{5, 18, m_home->path(u"Library/Caches"_s)}));
  QCOMPARE(measured.size(), 18);
  QCOMPARE(measured[5], (QVariantList{5, m_state->systemData[5].bytes, false}));
}

void tst_AppState_system::aSecondStartIsNone() {
  putTool("tmutil", kGate);
  const QSignalSpy changed(m_state.get(), &AppState::systemDataChanged);
  m_state->startSystemDataScan();
  m_state->startSystemDataScan();
  QCOMPARE(changed.size(), 1);
  letGo();
  waitForTheEnd();
  QCOMPARE(changed.size(), 2);
}

void tst_AppState_system::cancelledKeepsTheLastFigures() {
  m_state->startSystemDataScan();
  waitForTheEnd();
  m_state->systemData[5].bytes = 4711;
  putTool("tmutil", kGate);
  const QSignalSpy changed(m_state.get(), &AppState::systemDataChanged);
  m_state->startSystemDataScan();
  m_state->systemDataScanner->cancel();
  letGo();
  waitForTheEnd();
  QCOMPARE(changed.size(), 2);
  QCOMPARE(m_state->systemData[5].bytes, 4711);
  QVERIFY(m_state->systemDataReady);
}

void tst_AppState_system::unknownIdDoesNothing() {
  m_state->systemData = {itemWith("a", Item::CleanInCleanup)};
  const QSignalSpy changed(m_state.get(), &AppState::systemDataChanged);
  const QSignalSpy toast(m_state.get(), &AppState::toast);
  m_state->runSystemDataAction(u"b"_s);
  QVERIFY(!m_state->systemDataBusy);
  QVERIFY(changed.isEmpty() && toast.isEmpty());
}

void tst_AppState_system::lightActionsSayNothingWhenTheyWork_data() {
  QTest::addColumn<int>("action");
  QTest::newRow("reveal") << int(Item::RevealInFinder);
  QTest::newRow("xcode") << int(Item::OpenXcode);
}

void tst_AppState_system::lightActionsSayNothingWhenTheyWork() {
  QFETCH(int, action);
  putTool("open", ": > \"$0.called\"");
  m_state->systemData = {itemWith("a", static_cast<Item::Action>(action), {u"/place"_s})};
  const QSignalSpy changed(m_state.get(), &AppState::systemDataChanged);
  const QSignalSpy toast(m_state.get(), &AppState::toast);
  m_state->runSystemDataAction(u"a"_s);
  QVERIFY(!m_state->systemDataBusy && !m_state->systemDataScanner->isRunning());
  QTRY_VERIFY_WITH_TIMEOUT(fs::exists(tool("open.called")), kPatienceMs);
  QVERIFY(changed.isEmpty() && toast.isEmpty());
}

void tst_AppState_system::lightActionsSayWhyNot_data() {
  QTest::addColumn<int>("action");
  QTest::addColumn<QString>("text");
  QTest::newRow("reveal") << int(Item::RevealInFinder) << u"Couldn't open /place"_s;
  QTest::newRow("xcode") << int(Item::OpenXcode) << u"Xcode isn't installed"_s;
}

void tst_AppState_system::lightActionsSayWhyNot() {
  QFETCH(int, action);
  QFETCH(QString, text);
  m_state->systemData = {itemWith("a", static_cast<Item::Action>(action), {u"/place"_s})};
  const QSignalSpy toast(m_state.get(), &AppState::toast);
  m_state->runSystemDataAction(u"a"_s);
  QCOMPARE(toast.size(), 1); // at once
  QCOMPARE(toast[0], (QVariantList{text, false}));
  QVERIFY(!m_state->systemDataBusy && !m_state->systemDataScanner->isRunning());
}

void tst_AppState_system::longActions() {
  m_home->folder(u"devices/gone"_s);
  putTool("xcrun", kGate + "rmdir \"$HOME/devices/gone\"");
  m_state->systemData = {itemWith("a", Item::DeleteUnavailable, {m_home->path(u"devices"_s)})};
  QStringList course;
  connect(m_state.get(), &AppState::systemDataChanged, this, [&] {
    const bool measuring = m_state->systemDataScanner->isRunning();
    course << (m_state->systemDataBusy ? u"busy"_s : measuring ? u"measuring"_s : u"idle"_s);
  });
  connect(m_state.get(), &AppState::volumeChanged, this, [&] { course << u"volume"_s; });
  connect(m_state.get(), &AppState::toast, this,
          [&](const QString& text, bool undoable) { course << (undoable ? u"undo: "_s : u""_s) + text; });
  m_state->runSystemDataAction(u"a"_s);
  QCOMPARE(course, QStringList{u"busy"_s});
  letGo();
  waitForTheEnd();
  QCOMPARE(course, (QStringList{u"busy"_s, u"volume"_s, u"Deleted 1 unavailable simulator device"_s, u"measuring"_s,
                                u"idle"_s}));
}

void tst_AppState_system::anActionDuringAnotherIsIgnored() {
  putTool("xcrun", kGate + "exit 1");
  m_state->systemData = {itemWith("a", Item::DeleteUnavailable, {m_home->path()}),
                         itemWith("b", Item::MoveToTrash, {m_home->path(u"kept"_s)}),
                         itemWith("c", Item::RevealInFinder, {u"/place"_s})};
  const QString kept = m_home->file(u"kept/file"_s);
  const QSignalSpy toast(m_state.get(), &AppState::toast);
  m_state->runSystemDataAction(u"a"_s);
  for (const QString& id : {u"a"_s, u"b"_s, u"c"_s}) m_state->runSystemDataAction(id);
  letGo();
  waitForTheEnd();
  QCOMPARE(toast.size(), 1);
  QCOMPARE(toast[0][0].toString(), u"Simulator cleanup failed: "_s);
  QVERIFY(fs::exists(kept));
}

void tst_AppState_system::actionWithoutWords() {
  m_state->systemData = {itemWith("a", Item::CleanInCleanup)};
  const QSignalSpy toast(m_state.get(), &AppState::toast);
  m_state->runSystemDataAction(u"a"_s);
  QVERIFY(m_state->systemDataBusy);
  waitForTheEnd();
  QVERIFY(toast.isEmpty());
  QVERIFY(m_state->systemDataReady); // it was measured
}

void tst_AppState_system::measuresAnewAfterAnAction() {
  m_home->file(u"Library/Developer/Xcode/iOS DeviceSupport/26.0/symbols"_s, 60'000);
  m_state->startSystemDataScan();
  waitForTheEnd();
  QCOMPARE(m_state->systemData[2].id, u"devicesupport"_s);
  QVERIFY(m_state->systemData[2].bytes >= 60'000);
  const QSignalSpy toast(m_state.get(), &AppState::toast);
  m_state->runSystemDataAction(u"devicesupport"_s);
  waitForTheEnd();
  QCOMPARE(toast.value(0).value(0).toString(), u"Moved 1 item to the Trash"_s);
  QCOMPARE(m_state->systemData[2].bytes, 0);
}

// The pages hear that it is over, and that measuring goes on alone.
void tst_AppState_system::anActionThatEndsDuringAMeasuring() {
  putTool("tmutil", kGate);
  m_state->systemData = {itemWith("a", Item::CleanInCleanup)};
  m_state->startSystemDataScan();
  m_state->runSystemDataAction(u"a"_s);
  const QSignalSpy ends(m_state->systemDataScanner, &SystemDataScanner::finished);
  QList<bool> busy;
  connect(m_state.get(), &AppState::systemDataChanged, this, [&] { busy << m_state->systemDataBusy; });
  QTRY_VERIFY_WITH_TIMEOUT(!m_state->systemDataBusy, kPatienceMs);
  QCOMPARE(busy, QList<bool>{false});
  QVERIFY(m_state->systemDataScanner->isRunning());
  letGo();
  waitForTheEnd();
  QCOMPARE(ends.size(), 1);
  QCOMPARE(m_state->systemData.size(), 18);
}

void tst_AppState_system::keepsWhatTheUserExcludes() {
  AppSettings::instance().setExclusions(AppSettings::instance().exclusions() << u"keep*"_s);
  m_home->file(u"a/keep-me"_s);
  m_home->file(u"a/go"_s);
  m_state->systemData = {itemWith("a", Item::MoveToTrash, {m_home->path(u"a"_s)})};
  const QSignalSpy toast(m_state.get(), &AppState::toast);
  m_state->runSystemDataAction(u"a"_s);
  waitForTheEnd();
  QCOMPARE(toast.value(0).value(0).toString(), u"Moved 1 item to the Trash, 1 couldn't be moved"_s);
  QVERIFY(fs::exists(m_home->path(u"a/keep-me"_s)));
}

void tst_AppState_system::movesNothingWithoutTheUsersRules() {
  const QString file = m_home->file(u"a/file"_s);
  m_state->systemData = {itemWith("a", Item::MoveToTrash, {m_home->path(u"a"_s)})};
  AppSettings::instance().put("clean/exclusions", QPoint(1, 2)); // no list
  const QSignalSpy toast(m_state.get(), &AppState::toast);
  m_state->runSystemDataAction(u"a"_s);
  const bool busy = m_state->systemDataBusy;
  waitForTheEnd();
  AppSettings::instance().setExclusions({});
  QCOMPARE(busy, false);
  QCOMPARE(toast.size(), 1);
  QCOMPARE(toast[0],
           (QVariantList{u"The settings can't be read, so the rules on what to keep are unknown. Nothing was moved."_s,
                         false}));
  QVERIFY(fs::exists(file));
}

QTEST_GUILESS_MAIN(tst_AppState_system)
#include "tst_AppState_system.moc"
