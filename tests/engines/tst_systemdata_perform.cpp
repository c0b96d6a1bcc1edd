// What the actions of System Data do and say, with real child processes in the place of the system's tools.
#include "core/fmt.h"
#include "core/removal.h"
#include "engines/SystemDataTest.h"
#include "engines/Unprivileged.h"

#include <QFileInfo>
#include <QTest>
#include <QTranslator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Item = SystemDataItem;

namespace {

constexpr int kShortMs = 300;

const QByteArray kTwoSnapshots = "Snapshots for disk /:\n"
                                 "com.apple.TimeMachine.2026-01-01-000000.local\n"
                                 "com.apple.TimeMachine.2026-01-02-000000.local\n";

// How a tool can end badly.
const QByteArray kCrash = "kill -SEGV $$";
const QByteArray kHang = "exec sleep 60";

SystemDataItem itemWith(Item::Action action, const QList<QString>& paths = {}) {
  SystemDataItem item;
  item.id = u"some"_s;
  item.action = action;
  item.paths = paths;
  return item;
}

/// A language that sets something else between the things of a list.
class OtherSeparator : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char*, int) const override {
    return qstrcmp(context, "fmt") == 0 && qstrcmp(text, ", ") == 0 ? u"、"_s : QString();
  }
};

} // namespace

class tst_systemdata_perform : public SystemDataTest {
  Q_OBJECT

 private slots:
  void init() { make("mac"); }
  void cleanup() { drop(); }

  void theSystemsOwnTools();
  void nothingToDo_data();
  void nothingToDo();

  void revealOpensTheFirstPlace();
  void revealOpensTheLargestHiddenFolder();
  void revealInALanguageWithItsOwnSeparator();
  void revealWithoutTheProgram();
  void revealOnLinux();
  void revealOnLinuxTakesWhatIsThere();
  void revealOnLinuxWithNothingThere();

  void openXcode();
  void openXcodeWithoutTheProgram();

  void movesTheContents();
  void movesOne();
  void nothingToMove();
  void whatIsExcludedStays_data();
  void whatIsExcludedStays();
  void whatIsProtectedStays();
  void whatIsOpenStays();
  void whatNoTextReachesStays();
  void whatTheSystemKeepsStays();
  void whatTookAFoldersPlaceStays();

  void noSnapshotsNoPassword();
  void removesSnapshots_data();
  void removesSnapshots();
  void asksAsAdministrator();
  void snapshotsStay_data();
  void snapshotsStay();

  void deletesSimulators_data();
  void deletesSimulators();
  void simulatorsFail_data();
  void simulatorsFail();

 private:
  /// @p ok begins as the contrary of what is awaited, so that it must be set.
  QString perform(const SystemDataItem& item, bool expectOk, const QList<QString>& exclusions = {}) {
    bool ok = !expectOk;
    const QString text = systemdata::perform(item, &ok, exclusions, m_world);
    if (ok != expectOk) QTest::qFail("another outcome", __FILE__, __LINE__);
    return text;
  }
  /// What lies in the Trash, by name.
  [[nodiscard]] QStringList trashed() const {
    return QDir(m_home->path(u".local/share/Trash/files"_s))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
  }
  [[nodiscard]] bool there(const QString& relative) const { return fs::exists(m_home->path(relative)); }
};

void tst_systemdata_perform::theSystemsOwnTools() {
  const SystemDataWorld world;
  QCOMPARE(world.root, u"/"_s);
  QCOMPARE(world.tmutil, u"/usr/bin/tmutil"_s);
  QCOMPARE(world.osascript, u"/usr/bin/osascript"_s);
  QCOMPARE(world.xcrun, u"/usr/bin/xcrun"_s);
  QCOMPARE(world.open, u"/usr/bin/open"_s);
  QCOMPARE(world.listLimitMs, 20'000);
  QCOMPARE(world.removalLimitMs, 600'000);
  QCOMPARE(world.simulatorLimitMs, 300'000);
}

void tst_systemdata_perform::nothingToDo_data() {
  QTest::addColumn<int>("action");
  QTest::addColumn<bool>("ok");
  QTest::newRow("none") << 0 << false;
  QTest::newRow("left to the page") << 5 << true;
  QTest::newRow("beyond") << 7 << false;
}

void tst_systemdata_perform::nothingToDo() {
  QFETCH(int, action);
  QFETCH(bool, ok);
  const QString file = m_home->file(u"there/a"_s);
  QCOMPARE(perform(itemWith(static_cast<Item::Action>(action), {m_home->path(u"there"_s)}), ok), QString());
  QVERIFY(fs::exists(file));
}

// ---- reveal

void tst_systemdata_perform::revealOpensTheFirstPlace() {
  putTool("open", {});
  QCOMPARE(perform(itemWith(Item::RevealInFinder, {u"/first place"_s, u"/second"_s}), true), QString());
  QTRY_COMPARE(textOf(callsOf("open")), u"/first place\n"_s);
}

void tst_systemdata_perform::revealOpensTheLargestHiddenFolder() {
  putTool("open", {});
  SystemDataItem item = itemWith(Item::RevealInFinder, {m_home->path(u".cache"_s), m_home->path(u".npm"_s)});
  item.id = u"hidden"_s;
  item.detail = u".npm, .cache"_s;
  QCOMPARE(perform(item, true), QString());
  QTRY_COMPARE(textOf(callsOf("open")), m_home->path(u".npm"_s) + u'\n');
  item.detail = QString();
  QCOMPARE(perform(item, true), QString());
  QTRY_COMPARE(textOf(callsOf("open")), m_home->path(u".cache"_s) + u'\n');
  item.id = u"logs"_s; // only that row's detail names folders
  item.detail = u".npm, .cache"_s;
  item.paths = {u"/logs"_s};
  QCOMPARE(perform(item, true), QString());
  QTRY_COMPARE(textOf(callsOf("open")), u"/logs\n"_s);
}

void tst_systemdata_perform::revealInALanguageWithItsOwnSeparator() {
  OtherSeparator language;
  QVERIFY(QCoreApplication::installTranslator(&language));
  putTool("open", {});
  SystemDataItem item = itemWith(Item::RevealInFinder, {m_home->path(u".cache"_s), m_home->path(u".n, p"_s)});
  item.id = u"hidden"_s;
  item.detail = fmt::list({u".n, p"_s, u".cache"_s});
  QCOMPARE(perform(item, true), QString());
  QTRY_COMPARE(textOf(callsOf("open")), m_home->path(u".n, p"_s) + u'\n');
}

void tst_systemdata_perform::revealWithoutTheProgram() {
  QCOMPARE(perform(itemWith(Item::RevealInFinder, {u"/some/place"_s}), false), u"Couldn't open /some/place"_s);
}

void tst_systemdata_perform::revealOnLinux() {
  qputenv("TARNWICK_HOST", "linux");
  putTool("open", {});
  QStringList opened;
  m_world.openFolder = [&](const QString& path) { opened << path; };
  SystemDataItem item = itemWith(Item::RevealInFinder, {m_home->folder(u".cargo"_s), m_home->folder(u".npm"_s)});
  item.id = u"hidden"_s;
  item.detail = u".npm, .cargo"_s;
  QCOMPARE(perform(item, true), QString());
  QCOMPARE(opened, QStringList{m_home->path(u".npm"_s)});
  QVERIFY(!fs::exists(callsOf("open"))); // that is the other host's way
}

void tst_systemdata_perform::revealOnLinuxTakesWhatIsThere() {
  qputenv("TARNWICK_HOST", "linux");
  QStringList opened;
  m_world.openFolder = [&](const QString& path) { opened << path; };
  const QString second = m_home->folder(u"second"_s);
  const SystemDataItem item =
      itemWith(Item::RevealInFinder, {m_home->path(u"first"_s), second, m_home->folder(u"third"_s)});
  QCOMPARE(perform(item, true), QString());
  QCOMPARE(opened, QStringList{second});
}

void tst_systemdata_perform::revealOnLinuxWithNothingThere() {
  qputenv("TARNWICK_HOST", "linux");
  m_world.openFolder = [](const QString&) { QFAIL("opened something"); };
  const QString gone = m_home->path(u"gone"_s);
  QCOMPARE(perform(itemWith(Item::RevealInFinder, {gone, m_home->path(u"too"_s)}), false), u"Couldn't open "_s + gone);
}

// ---- the developer tools

void tst_systemdata_perform::openXcode() {
  putTool("open", {});
  QCOMPARE(perform(itemWith(Item::OpenXcode, {u"/place"_s}), true), QString());
  QTRY_COMPARE(textOf(callsOf("open")), u"-b\ncom.apple.dt.Xcode\n"_s);
}

void tst_systemdata_perform::openXcodeWithoutTheProgram() {
  QCOMPARE(perform(itemWith(Item::OpenXcode), false), u"Xcode isn't installed"_s);
}

// ---- the Trash

void tst_systemdata_perform::movesTheContents() {
  m_home->file(u"a/one/deep/file"_s);
  m_home->file(u"a/two"_s);
  m_home->file(u"b/three"_s);
  m_home->file(u"c/kept"_s);
  const SystemDataItem item =
      itemWith(Item::MoveToTrash, {m_home->path(u"a"_s), m_home->path(u"missing"_s), m_home->path(u"b"_s)});
  QCOMPARE(perform(item, true), u"Moved 3 items to the Trash"_s);
  QCOMPARE(trashed(), (QStringList{u"one"_s, u"three"_s, u"two"_s}));
  QVERIFY(there(u".local/share/Trash/files/one/deep/file"_s));
  QVERIFY(there(u".local/share/Trash/info/one.trashinfo"_s));
  QVERIFY(there(u"a"_s) && there(u"b"_s) && there(u"c/kept"_s)); // the places themselves stay
  QCOMPARE(perform(item, true), u"Nothing to move"_s);
}

void tst_systemdata_perform::movesOne() {
  m_home->file(u"a/one/file"_s);
  QCOMPARE(perform(itemWith(Item::MoveToTrash, {m_home->path(u"a"_s)}), true), u"Moved 1 item to the Trash"_s);
}

void tst_systemdata_perform::nothingToMove() {
  QCOMPARE(perform(itemWith(Item::MoveToTrash, {m_home->path(u"missing"_s)}), true), u"Nothing to move"_s);
  QCOMPARE(perform(itemWith(Item::MoveToTrash), true), u"Nothing to move"_s);
}

void tst_systemdata_perform::whatIsExcludedStays_data() {
  QTest::addColumn<QStringList>("names");
  QTest::addColumn<QString>("text");
  QTest::addColumn<QStringList>("moved");
  QTest::newRow("one goes") << QStringList{u"keep-1"_s, u"go"_s, u"keep-2"_s}
                            << u"Moved 1 item to the Trash, 2 couldn't be moved"_s << QStringList{u"go"_s};
  QTest::newRow("none goes") << QStringList{u"keep-1"_s, u"keep-2"_s}
                             << u"Moved 0 items to the Trash, 2 couldn't be moved"_s << QStringList{};
}

void tst_systemdata_perform::whatIsExcludedStays() {
  QFETCH(QStringList, names);
  for (const QString& name : names) m_home->file(u"a/"_s + name);
  QTEST(perform(itemWith(Item::MoveToTrash, {m_home->path(u"a"_s)}), false, {u"keep-*"_s}), "text");
  QTEST(trashed(), "moved");
  for (const QString& name : names) QCOMPARE(there(u"a/"_s + name), name.startsWith(u"keep"_s));
}

void tst_systemdata_perform::whatIsProtectedStays() {
  m_home->file(u"Documents/letter"_s);
  m_home->file(u".ssh/id"_s);
  QCOMPARE(perform(itemWith(Item::MoveToTrash, {m_home->path()}), false),
           u"Moved 0 items to the Trash, 2 couldn't be moved"_s);
  QVERIFY(there(u"Documents/letter"_s) && there(u".ssh/id"_s));
}

void tst_systemdata_perform::whatIsOpenStays() {
  m_home->file(u"a/shut"_s);
  const QString open = m_home->file(u"a/folder/open"_s);
  m_proc->addProcess(4711, m_home->path());
  m_proc->addOpenFile(4711, open);
  QCOMPARE(perform(itemWith(Item::MoveToTrash, {m_home->path(u"a"_s)}), false),
           u"Moved 1 item to the Trash, 1 couldn't be moved"_s);
  QVERIFY(fs::exists(open));
  QCOMPARE(trashed(), QStringList{u"shut"_s});
}

void tst_systemdata_perform::whatNoTextReachesStays() {
  const QByteArray odd = QFile::encodeName(m_home->folder(u"a"_s)) + "/bad-\xff";
  ::close(::open(odd.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
  QCOMPARE(perform(itemWith(Item::MoveToTrash, {m_home->path(u"a"_s)}), false),
           u"Moved 0 items to the Trash, 1 couldn't be moved"_s);
  QCOMPARE(::access(odd.constData(), F_OK), 0);
}

void tst_systemdata_perform::whatTheSystemKeepsStays() {
  const QString folder = QFileInfo(m_home->file(u"a/one"_s)).path();
  const Unprivileged user(*m_home);
  QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0500), 0);
  QCOMPARE(perform(itemWith(Item::MoveToTrash, {folder}), false), u"Moved 0 items to the Trash, 1 couldn't be moved"_s);
  QVERIFY(there(u"a/one"_s));
}

// ---- snapshots

void tst_systemdata_perform::whatTookAFoldersPlaceStays() {
  for (const QString& name : {u"one"_s, u"two"_s}) {
    m_home->file(u"a/"_s + name);
    m_home->file(u"precious/"_s + name);
  }
  bool isSwapped = false;
  removal::setPauseHook([&](const removal::Node&) {
    if (std::exchange(isSwapped, true)) return;
    QVERIFY(QFile::rename(m_home->path(u"a"_s), m_home->path(u"a was here"_s)));
    m_home->link(u"a"_s, u"precious"_s);
  });
  const QString text = perform(itemWith(Item::MoveToTrash, {m_home->path(u"a"_s)}), false);
  removal::setPauseHook({});
  QCOMPARE(text, u"Moved 1 item to the Trash, 1 couldn't be moved"_s); // the first was within reach of its own folder
  QVERIFY(isSwapped && there(u"precious/one"_s) && there(u"precious/two"_s));
}

void tst_systemdata_perform::noSnapshotsNoPassword() {
  putTool("osascript", {});
  QCOMPARE(perform(itemWith(Item::RemoveSnapshots), true), u"There are no local snapshots to remove"_s); // no tmutil
  putSnapshots("Snapshots for disk /:\ncom.apple.os.update-1\nCOM.APPLE.TIMEMACHINE.2\n com.apple.TimeMachine.3\n");
  QCOMPARE(perform(itemWith(Item::RemoveSnapshots), true), u"There are no local snapshots to remove"_s);
  QCOMPARE(textOf(callsOf("tmutil")), u"listlocalsnapshots\n/\n"_s);
  QVERIFY(!fs::exists(callsOf("osascript")));
}

void tst_systemdata_perform::removesSnapshots_data() {
  QTest::addColumn<QByteArray>("after");
  QTest::addColumn<QString>("text");
  QTest::newRow("all") << QByteArray("Snapshots for disk /:\n") << u"Removed 2 of 2 snapshots"_s;
  QTest::newRow("some") << QByteArray("com.apple.TimeMachine.2\n") << u"Removed 1 of 2 snapshots"_s;
  QTest::newRow("none") << kTwoSnapshots << u"Removed 0 of 2 snapshots"_s;
  QTest::newRow("a new one came") << kTwoSnapshots + "com.apple.TimeMachine.9\n" << u"Removed 0 of 2 snapshots"_s;
}

void tst_systemdata_perform::removesSnapshots() {
  QFETCH(QByteArray, after);
  putSnapshots(kTwoSnapshots);
  putTool("osascript", "cat > \"${0%/*}/list\" <<'END'\n" + after + "END");
  QTEST(perform(itemWith(Item::RemoveSnapshots), true), "text");
}

void tst_systemdata_perform::asksAsAdministrator() {
  putSnapshots(kTwoSnapshots);
  putTool("osascript", {});
  (void)perform(itemWith(Item::RemoveSnapshots), true);
  QCOMPARE(
      textOf(callsOf("osascript")),
      u"-e\ndo shell script \"/usr/bin/tmutil thinlocalsnapshots / 999999999999999 4\" with administrator privileges\n"_s);
}

void tst_systemdata_perform::snapshotsStay_data() {
  QTest::addColumn<QByteArray>("script"); // empty: there is no such tool
  QTest::newRow("password refused") << QByteArray("echo 'execution error: User canceled. (-128)' >&2; exit 1");
  QTest::newRow("crash") << kCrash;
  QTest::newRow("time-out") << kHang;
  QTest::newRow("missing") << QByteArray();
}

void tst_systemdata_perform::snapshotsStay() {
  QFETCH(QByteArray, script);
  putSnapshots(kTwoSnapshots);
  if (!script.isEmpty()) putTool("osascript", script);
  if (script == kHang) m_world.removalLimitMs = kShortMs;
  QCOMPARE(perform(itemWith(Item::RemoveSnapshots), false), u"Snapshots were not removed"_s);
}

// ---- simulators

void tst_systemdata_perform::deletesSimulators_data() {
  QTest::addColumn<QByteArray>("script");
  QTest::addColumn<QString>("text");
  const QString none = u"No unavailable simulator devices — nothing to delete"_s;
  QTest::newRow("none gone") << QByteArray("echo fine") << none;
  QTest::newRow("one gone") << QByteArray("rmdir devices/a") << u"Deleted 1 unavailable simulator device"_s;
  QTest::newRow("two gone") << QByteArray("rmdir devices/a devices/b") << u"Deleted 2 unavailable simulator devices"_s;
  QTest::newRow("one more") << QByteArray("mkdir devices/new") << none;
  QTest::newRow("only a file gone") << QByteArray("rm devices/device_set.plist") << none;
}

void tst_systemdata_perform::deletesSimulators() {
  QFETCH(QByteArray, script);
  for (const char* device : {"a", "b", "c"}) m_home->folder(u"devices/"_s + QLatin1String(device));
  m_home->file(u"devices/device_set.plist"_s);
  putTool("xcrun", "cd \"$HOME\"\n" + script);
  QTEST(perform(itemWith(Item::DeleteUnavailable, {m_home->path(u"devices"_s)}), true), "text");
  QCOMPARE(textOf(callsOf("xcrun")), u"simctl\ndelete\nunavailable\n"_s);
}

void tst_systemdata_perform::simulatorsFail_data() {
  QTest::addColumn<QByteArray>("script"); // empty: there is no such tool
  QTest::addColumn<QString>("reason");
  QTest::newRow("one line") << QByteArray("echo 'no such thing'; exit 2") << u"no such thing"_s;
  QTest::newRow("several lines") << QByteArray("echo first; echo; echo 'the last one'; echo; exit 1")
                                 << u"the last one"_s;
  QTest::newRow("errors in between") << QByteArray("echo out; echo 'xcrun: error: none' >&2; exit 72")
                                     << u"xcrun: error: none"_s;
  QTest::newRow("no word") << QByteArray("exit 1") << QString();
  QTest::newRow("crash") << "echo 'last words'\n" + kCrash << u"last words"_s;
  QTest::newRow("time-out") << "echo early\n" + kHang << QString();
  QTest::newRow("missing") << QByteArray() << QString();
}

void tst_systemdata_perform::simulatorsFail() {
  QFETCH(QByteArray, script);
  QFETCH(QString, reason);
  m_home->folder(u"devices/a"_s);
  if (!script.isEmpty()) putTool("xcrun", script);
  if (script.endsWith(kHang)) m_world.simulatorLimitMs = kShortMs;
  QCOMPARE(perform(itemWith(Item::DeleteUnavailable, {m_home->path(u"devices"_s)}), false),
           u"Simulator cleanup failed: "_s + reason);
}

QTEST_GUILESS_MAIN(tst_systemdata_perform)
#include "tst_systemdata_perform.moc"
