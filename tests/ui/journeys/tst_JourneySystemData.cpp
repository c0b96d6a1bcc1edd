// ctest: LABELS journey
// ctest: TIMEOUT 300
// Through System Data: it is measured and watched, broken off, measured again; its rows show folders, lead to Cleanup,
// ask, are refused and confirmed, by mouse and by keyboard, over real files and with programs that stand in for the
// system's tools.
#include "JourneyTest.h"

#include "engines/Unprivileged.h"
#include "support/plainwalk.h"
#include "ui/controls/Button.h"
#include "ui/pages/SystemDataPage.h"
#include "ui/pages/SystemDataRow.h"
#include "ui/shell/ConfirmDialog.h"
#include "ui/shell/NavButton.h"
#include "ui/shell/Toast.h"
#include "ui/visuals/ScanStepRow.h"

#include <QSemaphore>

#include <sys/stat.h>

using namespace windowtest;

namespace {

const QString kSupport = u"Library/Developer/Xcode/iOS DeviceSupport"_s;
const QString kMovedOne = u"16.7 (20H19)"_s;
const QString kMovedOther = u"17.4 (21E213)"_s;

/// Below the home folder.
QString path(const QString& relative) { return DemoHome::path(relative); }

/// What lies at a path, counted the plain way.
qint64 onDisk(const QString& path) { return plainwalk::measure(path).totals.bytes; }

} // namespace

class TestJourneySystemData : public JourneyTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { m_systemData = {}; }
  void cleanup() { close(); }

  void measures_data() { hosts(); }
  void measures();
  void isWatched();
  void brokenOffAndBegunAgain();
  void rescanSeesWhatChanged();
  void unreadableFolders();

  void showsFolders();
  void showsTheLargestHiddenFolder();
  void showsOnTheOtherHost();
  void leadsToCleanup_data() { hosts(); }
  void leadsToCleanup();

  void refusedLeavesEverything();
  void movesToTheTrash();
  void exclusionsAndProtectedThingsStay();
  void snapshotsAreRemoved();
  void passwordRefused();
  void simulatorsAreDeleted();
  void byKeyboard();

 private:
  [[nodiscard]] ui::SystemDataPage* page() const { return m_window->findChild<ui::SystemDataPage*>(); }
  [[nodiscard]] ui::SystemDataRow* itemRow(const QString& id) const {
    for (ui::SystemDataRow* one : page()->findChildren<ui::SystemDataRow*>())
      if (one->id() == id && one->isVisible()) return one;
    return nullptr;
  }
  [[nodiscard]] const SystemDataItem& itemOf(const QString& id) const {
    const auto found = std::ranges::find(m_state->systemData, id, &SystemDataItem::id);
    if (found == m_state->systemData.end()) qFatal("there is no %s", qPrintable(id));
    return *found;
  }
  [[nodiscard]] ui::ConfirmDialog* asked() const { return m_window->findChild<ui::ConfirmDialog*>(); }
  [[nodiscard]] QString message() const {
    const auto* toast = m_window->findChild<ui::Toast*>();
    return toast->isHidden() ? QString() : toast->accessibleName();
  }

  void goThere() {
    for (ui::NavButton* entry : m_window->findChildren<ui::NavButton*>())
      if (entry->text() == u"System Data") QTest::mouseClick(entry, Qt::LeftButton);
    QCOMPARE(m_window->page(), int(ui::Sidebar::SystemData));
  }
  void waitForFigures() {
    QTRY_VERIFY_WITH_TIMEOUT(m_state->systemDataReady && !m_state->systemDataBusy, kPatienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(!m_state->systemDataScanner->isRunning(), kPatienceMs);
    settle();
  }
  void measure() {
    goThere();
    waitForFigures();
  }
  void press(const QString& id) {
    QVERIFY2(itemRow(id) && itemRow(id)->button(), qPrintable(id));
    QVERIFY2(itemRow(id)->button()->isEnabled(), qPrintable(id));
    QTest::mouseClick(itemRow(id)->button(), Qt::LeftButton);
    settle();
  }
  void confirm(const QString& text) {
    QVERIFY(asked());
    click(*asked(), text);
    waitForFigures();
  }
  /// A program of these lines; in them DIR is a folder that the test shares with it.
  [[nodiscard]] QString program(const QString& name, QByteArray lines) const {
    const QString shared = QFileInfo(m_home->file(m_home->outside(u"shared/"_s + name + u".txt"_s), 0)).path();
    QFile file(m_home->outside(name));
    if (!file.open(QIODevice::WriteOnly)) qFatal("can't write %s", qPrintable(name));
    file.write("#!/bin/sh\n" + lines.replace("DIR", QFile::encodeName(shared)));
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
  }
  [[nodiscard]] QString shared(const QString& name) const { return m_home->outside(u"shared/"_s + name); }
  void tell(const QString& name, const QByteArray& text) const {
    QFile file(shared(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
  }
  /// A small home of a Linux user.
  void openLinux() {
    open(Small::Empty);
    m_home->file(u".cache/acme/index"_s, 300'000);
    m_home->file(u".npm/content"_s, 200'000);
    m_home->file(u".var/app/org.example.Paint/config/brushes"_s, 4'000'000);
    m_home->file(u".var/app/org.example.Paint/data/picture"_s, 5'000'000);
    m_home->file(u".local/share/containers/layer"_s, 7'000'000);
    m_home->file(u".local/share/gnome-boxes/images/disk"_s, 3'000'000);
  }
  /// A small home of a macOS user.
  void openMac() {
    if (!m_home) m_home = std::make_unique<FixtureHome>();
    openIn(Small::Mac);
    m_home->file(kSupport + u'/' + kMovedOne + u"/Symbols"_s, 2'000'000);
    m_home->file(kSupport + u'/' + kMovedOther + u"/Symbols"_s, 3'000'000);
    m_home->file(u"Library/Developer/CoreSimulator/Devices/9C1A52E0/data"_s, 900'000);
    m_home->file(u"Library/Developer/CoreSimulator/Devices/41F7B3D8/data"_s, 800'000);
    m_home->file(u"Library/Developer/CoreSimulator/Devices/device_set.plist"_s);
    m_home->file(u"Library/Application Support/MobileSync/Backup/00008110/Manifest.db"_s, 600'000);
  }
  /// In which the system's tools are told by files: the snapshots that there are, and whether the password is refused.
  void openWithTools() {
    m_home = std::make_unique<FixtureHome>();
    m_systemData.tmutil = program(u"tmutil"_s, "cat DIR/snapshots\n");
    m_systemData.osascript = program(u"osascript"_s, "echo \"$2\" >>DIR/commands\n"
                                                     "test -e DIR/refuse && exit 1\n"
                                                     "head -n 2 DIR/snapshots >DIR/left; mv DIR/left DIR/snapshots\n");
    m_systemData.xcrun = program(u"xcrun"_s, "echo \"$@\" >>DIR/commands\nrm -r \"$(cat DIR/device)\"\n");
    tell(u"snapshots"_s, "Snapshots for disk /:\n"
                         "com.apple.TimeMachine.2024-11-02-101010.local\n"
                         "com.apple.TimeMachine.2024-11-03-101010.local\n"
                         "com.apple.TimeMachine.2024-11-04-101010.local\n");
    openMac();
  }
  [[nodiscard]] QString commands() const {
    QFile file(shared(u"commands"_s));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
  }
};

// ---- measuring

void TestJourneySystemData::measures() {
  QFETCH(const QString, host);
  openDemo(host);
  const bool onLinux = host == u"linux";
  m_home->file(m_home->outside(onLinux ? u"disk/var/log/journal/a/system.journal"_s : u"disk/Library/Caches/a"_s),
               700'000);
  const Paths before = pathsBelow(m_demo->top());
  measure();

  // What it says is on the disk.
  const QMap<QString, QString> known =
      onLinux ? QMap<QString, QString>{{u"flatpakdata"_s, path(u".var/app"_s)},
                                       {u"containers"_s, path(u".local/share/containers"_s)},
                                       {u"machines"_s, path(u".local/share/gnome-boxes/images"_s)},
                                       {u"usercaches"_s, path(u".cache"_s)},
                                       {u"journal"_s, m_home->outside(u"disk/var/log/journal"_s)}}
              : QMap<QString, QString>{{u"devicesupport"_s, path(kSupport)},
                                       {u"usercaches"_s, path(u"Library/Caches"_s)},
                                       {u"messages"_s, path(u"Library/Messages/Attachments"_s)},
                                       {u"syscaches"_s, m_home->outside(u"disk/Library/Caches"_s)}};
  for (auto one = known.begin(); one != known.end(); ++one) {
    QVERIFY2(onDisk(*one) > 0, qPrintable(*one));
    QVERIFY2(itemRow(one.key()), qPrintable(one.key()));
    QVERIFY2(shows(*itemRow(one.key()), fmt::bytes(onDisk(*one))), qPrintable(one.key()));
  }

  // And all of it, and nothing else, is on the page.
  qint64 total = 0;
  qint64 actionable = 0;
  for (const SystemDataItem& item : std::as_const(m_state->systemData)) {
    QCOMPARE(itemRow(item.id) != nullptr, item.bytes > 0);
    total += item.bytes;
    if (item.actionable) actionable += item.bytes;
  }
  QVERIFY(shows(*page(), fmt::bytes(total)));
  QVERIFY(shows(*page(), u"measured in System Data · %1 you can act on"_s.arg(fmt::bytes(actionable))));
  QVERIFY(shows(*page(), u"You can reclaim"_s));
  QVERIFY(shows(*page(), onLinux ? u"Managed by the system"_s : u"Managed by macOS"_s));
  QCOMPARE(pathsBelow(m_demo->top()), before);
}

void TestJourneySystemData::isWatched() {
  openDemo(u"linux"_s);
  QStringList stages; // what the step of the containers said each time that one was through
  connect(m_state.get(), &AppState::systemDataMeasured, this, [&] {
    for (const ui::ScanStepRow* step : page()->findChildren<ui::ScanStepRow*>())
      if (step->accessibleName() == u"Containers and images") stages << step->valueText();
  });
  goThere();
  QVERIFY(shows(*page(), u"Measuring System Data…"_s));
  for (const char* text : {"Elapsed", "Remaining", "Your app caches", "System snapshots"})
    QVERIFY2(shows(*page(), QString::fromLatin1(text)), text);
  waitForFigures();
  QVERIFY(!shows(*page(), u"Measuring System Data…"_s));
  QCOMPARE(stages.size(), m_state->systemData.size());
  const QString size = fmt::bytes(itemOf(u"containers"_s).bytes);
  QVERIFY2(!stages.first().contains(size), qPrintable(stages.first()));
  QVERIFY2(stages.last().contains(size), qPrintable(stages.last()));
}

void TestJourneySystemData::brokenOffAndBegunAgain() {
  openLinux();
  QSemaphore gate;
  const auto held = connect(
      m_state->systemDataScanner, &SystemDataScanner::progress, m_state->systemDataScanner, [&gate] { gate.acquire(); },
      Qt::DirectConnection);
  goThere();
  QVERIFY(shows(*page(), u"Measuring System Data…"_s));
  m_state->systemDataScanner->cancel();
  disconnect(held);
  gate.release(1000);
  QTRY_VERIFY_WITH_TIMEOUT(button(*page(), u"Scan System Data"_s), kPatienceMs);
  QVERIFY(m_state->systemData.isEmpty());
  click(*page(), u"Scan System Data"_s);
  waitForFigures();
  QVERIFY(itemRow(u"containers"_s));
}

void TestJourneySystemData::rescanSeesWhatChanged() {
  openLinux();
  measure();
  const qint64 before = itemOf(u"flatpakdata"_s).bytes;
  m_home->file(path(u".var/app/org.example.New/data/film"_s), 30'000'000);
  click(*page(), u"Rescan"_s);
  QVERIFY(shows(*page(), u"You can reclaim"_s)); // what was there stays on show
  waitForFigures();
  QVERIFY(itemOf(u"flatpakdata"_s).bytes >= before + 30'000'000);
  QVERIFY(shows(*itemRow(u"flatpakdata"_s), fmt::bytes(itemOf(u"flatpakdata"_s).bytes)));
}

void TestJourneySystemData::unreadableFolders() {
  openLinux();
  const QString closed = path(u".local/share/containers"_s);
  const QString partly = path(u".var/app/org.example.Paint/config"_s);
  const Unprivileged user(*m_home);
  for (const QString& folder : {closed, partly}) QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0), 0);
  measure();
  QVERIFY(shows(*itemRow(u"containers"_s), u"No permission to read"_s));
  QVERIFY(shows(*itemRow(u"flatpakdata"_s), u"at least "_s));
  QVERIFY(shows(*page(), u"You have no permission to read some of these folders."_s));
  for (const QString& folder : {closed, partly}) QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0700), 0);
  click(*page(), u"Rescan"_s);
  waitForFigures();
  QVERIFY(shows(*itemRow(u"containers"_s), fmt::bytes(onDisk(closed))));
  QVERIFY(!shows(*page(), u"You have no permission to read some of these folders."_s));
}

// ---- what changes nothing

void TestJourneySystemData::showsFolders() {
  QStringList opened;
  m_systemData.openFolder = [&opened](const QString& path) { opened << path; };
  openLinux();
  measure();
  QCOMPARE(itemRow(u"flatpakdata"_s)->button()->text(), u"Show in Files"_s);
  press(u"flatpakdata"_s);
  press(u"machines"_s);
  QCOMPARE(opened, QStringList({path(u".var/app"_s), path(u".local/share/gnome-boxes/images"_s)}));
  QVERIFY(!asked());
  QCOMPARE(message(), QString());

  QDir(path(u".var/app"_s)).removeRecursively();
  press(u"flatpakdata"_s);
  QCOMPARE(opened.size(), 2);
  QCOMPARE(message(), u"Couldn't open "_s + path(u".var/app"_s));
}

void TestJourneySystemData::showsTheLargestHiddenFolder() {
  QStringList opened;
  m_systemData.openFolder = [&opened](const QString& path) { opened << path; };
  openLinux();
  m_home->file(path(u".acme/blob"_s), 60'000'000);
  measure();
  QVERIFY(shows(*itemRow(u"hidden"_s), u"Largest: .acme, "_s));
  press(u"hidden"_s);
  QCOMPARE(opened, QStringList{path(u".acme"_s)});
}

void TestJourneySystemData::showsOnTheOtherHost() {
  m_home = std::make_unique<FixtureHome>();
  m_systemData.open = program(u"open"_s, "echo \"$@\" >>DIR/commands\n");
  openMac();
  measure();
  QCOMPARE(itemRow(u"backups"_s)->button()->text(), u"Review in Finder"_s);
  press(u"backups"_s);
  QTRY_COMPARE(commands(), path(u"Library/Application Support/MobileSync/Backup"_s) + u'\n');
  QVERIFY(!asked());
}

void TestJourneySystemData::leadsToCleanup() {
  QFETCH(const QString, host);
  host == u"mac" ? openMac() : openLinux();
  measure();
  press(u"usercaches"_s);
  QCOMPARE(m_window->page(), int(ui::Sidebar::Cleanup));
  QCOMPARE(m_state->phase, AppState::Empty); // it starts nothing there
  measure();
  QVERIFY(itemRow(u"usercaches"_s)); // and it is all there again
}

// ---- what does

void TestJourneySystemData::refusedLeavesEverything() {
  openWithTools();
  measure();
  const Paths before = pathsBelow(path(u"."_s));
  for (const char* id : {"snapshots", "devicesupport", "simulators"}) {
    press(QString::fromLatin1(id));
    QVERIFY2(asked(), id);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    settle();
    QVERIFY2(!asked(), id);
    press(QString::fromLatin1(id));
    click(*asked(), u"Cancel"_s);
    settle();
    QVERIFY2(!asked(), id);
  }
  QVERIFY(!m_state->systemDataBusy);
  QCOMPARE(pathsBelow(path(u"."_s)), before);
  QCOMPARE(commands(), QString());
  QCOMPARE(message(), QString());
}

void TestJourneySystemData::movesToTheTrash() {
  openDemo(u"mac"_s);
  measure();
  const qint64 bytes = itemOf(u"devicesupport"_s).bytes;
  press(u"devicesupport"_s);
  QVERIFY(shows(*asked(), u"Move to Trash?"_s));
  QVERIFY(shows(*asked(), fmt::bytes(bytes) + u" will be moved to the Trash. Xcode recreates it"_s));
  QVERIFY(QFile::exists(path(kSupport + u'/' + kMovedOne)));
  confirm(u"Move to Trash"_s);
  QCOMPARE(message(), u"Moved 2 items to the Trash"_s);
  QVERIFY(QDir(path(kSupport)).isEmpty()); // and is there still
  QVERIFY(QFileInfo(path(kSupport)).isDir());
  const QDir trash(path(u".local/share/Trash/files"_s));
  for (const QString& name : {kMovedOne, kMovedOther}) {
    QVERIFY2(trash.exists(name), qPrintable(name));
    QVERIFY2(QFile::exists(trash.filePath(u"../info/"_s + name + u".trashinfo"_s)), qPrintable(name));
  }
  QVERIFY(!itemRow(u"devicesupport"_s)); // measured anew
  QVERIFY(itemRow(u"simulators"_s));
}

void TestJourneySystemData::exclusionsAndProtectedThingsStay() {
  openMac();
  m_home->file(path(kSupport + u"/1Password 7/vault"_s), 5000);
  AppSettings::instance().setExclusions(QStringList{u"16.7*"_s} + FixtureHome::rulesForOutside());
  measure();
  press(u"devicesupport"_s);
  confirm(u"Move to Trash"_s);
  QCOMPARE(message(), u"Moved 1 item to the Trash, 2 couldn't be moved"_s);
  QVERIFY(QFile::exists(path(kSupport + u'/' + kMovedOne)));
  QVERIFY(QFile::exists(path(kSupport + u"/1Password 7/vault"_s)));
  QVERIFY(!QFile::exists(path(kSupport + u'/' + kMovedOther)));
  QVERIFY(itemRow(u"devicesupport"_s));
}

void TestJourneySystemData::snapshotsAreRemoved() {
  openWithTools();
  measure();
  QVERIFY(shows(*itemRow(u"snapshots"_s), u"3 snapshots"_s));
  press(u"snapshots"_s);
  QVERIFY(shows(*asked(), u"Remove snapshots?"_s));
  confirm(u"Remove snapshots"_s);
  QCOMPARE(message(), u"Removed 2 of 3 snapshots"_s);
  QVERIFY(commands().contains(u"tmutil thinlocalsnapshots / 999999999999999 4"_s));
  QVERIFY(shows(*itemRow(u"snapshots"_s), u"1 snapshot"_s));
}

void TestJourneySystemData::passwordRefused() {
  openWithTools();
  tell(u"refuse"_s, "yes");
  measure();
  press(u"snapshots"_s);
  confirm(u"Remove snapshots"_s);
  QCOMPARE(message(), u"Snapshots were not removed"_s);
  QVERIFY(shows(*itemRow(u"snapshots"_s), u"3 snapshots"_s));
  QVERIFY(itemRow(u"snapshots"_s)->button()->isEnabled()); // it can be tried again
}

void TestJourneySystemData::simulatorsAreDeleted() {
  openWithTools();
  const QString device = path(u"Library/Developer/CoreSimulator/Devices/41F7B3D8"_s);
  tell(u"device"_s, QFile::encodeName(device));
  measure();
  QVERIFY(shows(*itemRow(u"simulators"_s), u"2 devices"_s));
  press(u"simulators"_s);
  confirm(u"Delete unavailable"_s);
  QCOMPARE(message(), u"Deleted 1 unavailable simulator device"_s);
  QCOMPARE(commands(), u"simctl delete unavailable\n"_s);
  QVERIFY(!QFile::exists(device));
  QVERIFY(shows(*itemRow(u"simulators"_s), u"1 device"_s));
}

void TestJourneySystemData::byKeyboard() {
  openDemo(u"mac"_s);
  tabTo(*m_window, u"Smart Scan"_s);
  for (int i = 0; i < 10 && m_window->page() != ui::Sidebar::SystemData; ++i)
    windowtest::press(*m_window, Qt::Key_Down); // arrow keys go from page to page
  QCOMPARE(m_window->page(), int(ui::Sidebar::SystemData));
  waitForFigures();
  const auto atTheButton = [this](const QWidget* focused) {
    return itemRow(u"devicesupport"_s) && focused == itemRow(u"devicesupport"_s)->button();
  };
  QVERIFY(tabUntil(*m_window, atTheButton));

  windowtest::press(*m_window, Qt::Key_Space);
  QVERIFY(asked());
  windowtest::press(*m_window, Qt::Key_Escape);
  settle();
  QVERIFY(atTheButton(QApplication::focusWidget())); // from where it was asked
  QVERIFY(QFile::exists(path(kSupport + u'/' + kMovedOne)));

  windowtest::press(*m_window, Qt::Key_Space);
  windowtest::press(*m_window, Qt::Key_Return); // the default button of the question
  waitForFigures();
  QCOMPARE(message(), u"Moved 2 items to the Trash"_s);
  QVERIFY(!itemRow(u"devicesupport"_s));
  auto* focused = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
  QVERIFY(focused); // the row is gone, the keyboard isn't
  QCOMPARE(focused->text(), u"Rescan"_s);

  QVERIFY(tabUntil(*m_window, [this](const QWidget* at) {
    return itemRow(u"usercaches"_s) && at == itemRow(u"usercaches"_s)->button();
  }));
  windowtest::press(*m_window, Qt::Key_Space);
  QCOMPARE(m_window->page(), int(ui::Sidebar::Cleanup));
}

int main(int argc, char** argv) { return uitest::run<TestJourneySystemData>(argc, argv); }

#include "tst_JourneySystemData.moc"
