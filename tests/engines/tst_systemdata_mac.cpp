// The macOS catalogue of System Data, and what holds for rows of both hosts.
#include "engines/SystemDataTest.h"

#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using Item = SystemDataItem;

namespace {

struct Expected {
  const char* id;
  const char* title;
  const char* icon;
  const char* colour;
  bool actionable;
  Item::Action action;
  const char* paths; ///< with "|" between them; below the home folder unless they begin with "/"
  const char* blurb;
};

constexpr Expected kExpected[] = {
    {"snapshots", "Time Machine local snapshots", "history", "#0ea5e9", true, Item::RemoveSnapshots, "",
     "Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS frees them when "
     "space runs low; removing them now is safe, but you lose those restore points."},
    {"backups", "iPhone & iPad backups", "archive", "#8b5cf6", true, Item::RevealInFinder,
     "Library/Application Support/MobileSync/Backup",
     "Device backups made by Finder. Delete old ones from Finder (General → Manage Backups) once a newer or iCloud "
     "backup exists."},
    {"devicesupport", "Xcode device support", "code", "#6366f1", true, Item::MoveToTrash,
     "Library/Developer/Xcode/iOS DeviceSupport|Library/Developer/Xcode/watchOS "
     "DeviceSupport|Library/Developer/Xcode/tvOS DeviceSupport|Library/Developer/Xcode/visionOS DeviceSupport",
     "Debug symbols Xcode copies from every iOS, watchOS and tvOS version you've connected. Xcode copies them again "
     "the next time you connect that device."},
    {"simulators", "iOS Simulator devices", "box", "#f59e0b", true, Item::DeleteUnavailable,
     "Library/Developer/CoreSimulator/Devices",
     "Simulator devices and their app data. Removing unavailable devices (for runtimes you no longer have) is safe."},
    {"runtimes", "Simulator runtimes & caches", "box", "#f97316", true, Item::OpenXcode, "/Library/Developer",
     "iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared caches. Remove runtimes you "
     "don't use in Xcode › Settings › Components."},
    {"usercaches", "Your app caches", "clock", "#6366f1", true, Item::CleanInCleanup, "Library/Caches",
     "Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup."},
    {"hidden", "Hidden folders in your home folder", "folder", "#0d9488", true, Item::RevealInFinder, "",
     "Caches, settings and installs that developer tools and apps keep in hidden folders such as .cache, .npm and "
     ".nvm. Caches are safe to clear; keep tool installs."},
    {"archives", "Xcode archives", "archive", "#a855f7", true, Item::RevealInFinder, "Library/Developer/Xcode/Archives",
     "Builds you archived for distribution. Keep the ones you may need to symbolicate crash reports for."},
    {"docker", "Docker disk image", "disc", "#2563eb", true, Item::RevealInFinder,
     "Library/Containers/com.docker.docker/Data/vms",
     "The virtual disk holding Docker's images and containers. Shrink it with “docker system prune” or Docker "
     "Desktop's settings."},
    {"mail", "Mail attachments", "download", "#14b8a6", true, Item::RevealInFinder,
     "Library/Containers/com.apple.mail/Data/Library/Mail Downloads",
     "Attachments Mail saved after you opened them. The originals stay in your mailbox."},
    {"messages", "Messages attachments", "image", "#ec4899", true, Item::RevealInFinder, "Library/Messages/Attachments",
     "Photos, videos and files from your conversations. Remove large ones from Messages (Settings → General → Storage) "
     "to keep chats consistent."},
    {"syscaches", "System caches", "clock", "#64748b", false, Item::None, "/Library/Caches",
     "Caches shared by all users and system services. macOS trims these itself."},
    {"logs", "System logs & diagnostics", "file", "#78716c", false, Item::RevealInFinder,
     "/private/var/log|/private/var/db/diagnostics|/Library/Logs",
     "Unified logs and diagnostic reports. macOS rotates and deletes them automatically."},
    {"vm", "Virtual memory & sleep image", "drive", "#475569", false, Item::None, "/private/var/vm",
     "Swap files and the hibernation image. They grow and shrink with memory use and reset when you restart."},
    {"assets", "macOS assets & updates", "download", "#0891b2", false, Item::None,
     "/System/Library/AssetsV2|/Library/Updates",
     "Downloaded system assets (fonts, dictionaries, language and AI models) and staged software updates."},
    {"library", "Other Library data", "folder", "#475569", false, Item::RevealInFinder, "Library",
     "Everything else in your Library folder: preferences, keychains, logs, and data for system services."},
    {"systemdb", "System databases & temporary files", "layers", "#64748b", false, Item::None,
     "/private/var/db|/private/var/folders",
     "Databases and per-app temporary folders used by macOS services. macOS manages these."},
    {"appdata", "App data & containers", "layers", "#334155", false, Item::RevealInFinder,
     "Library/Containers|Library/Group Containers|Library/Application Support",
     "Settings, databases and files apps keep for you. Remove an app's data by uninstalling the app or from within the "
     "app."},
};

} // namespace

class tst_systemdata_mac : public SystemDataTest {
  Q_OBJECT

 private slots:
  void init() { make("mac"); }
  void cleanup() { drop(); }

  void table_data();
  void table();
  void order();
  void nothingIsMeasuredYet();
  void excludes();
  void hiddenFolders();
  void hiddenFoldersThatNoTextReaches();
  void simulatorRuntimes();
  void everyPlaceIsBelowTheHomeOrTheDisk();
  void actionLabels_data();
  void actionLabels();
  void isOnBothHosts();
};

void tst_systemdata_mac::table_data() {
  QTest::addColumn<int>("index");
  for (int i = 0; i < static_cast<int>(std::size(kExpected)); ++i) QTest::newRow(kExpected[i].id) << i;
}

// With the places as they are without a stand-in for the disk.
void tst_systemdata_mac::table() {
  QFETCH(int, index);
  const Expected& expected = kExpected[index];
  const QList<SystemDataItem> all = systemdata::definitions();
  QCOMPARE(all.size(), std::size(kExpected));
  const SystemDataItem& row = all[index];
  QCOMPARE(row.id, QString::fromUtf8(expected.id));
  QCOMPARE(row.title, QString::fromUtf8(expected.title));
  QCOMPARE(row.blurb, QString::fromUtf8(expected.blurb));
  QCOMPARE(row.icon, QString::fromUtf8(expected.icon));
  QCOMPARE(row.color, QColor(QString::fromUtf8(expected.colour)));
  QCOMPARE(row.actionable, expected.actionable);
  QCOMPARE(row.action, expected.action);
  QList<QString> paths;
  for (const QString& path : QString::fromUtf8(expected.paths).split(u'|', Qt::SkipEmptyParts))
    paths << (path.startsWith(u'/') ? path : m_home->path(path));
  QCOMPARE(row.paths, paths);
}

void tst_systemdata_mac::order() {
  QStringList ids;
  for (const SystemDataItem& row : rows()) ids << row.id;
  QCOMPARE(ids.join(u' '),
           u"snapshots backups devicesupport simulators runtimes usercaches hidden archives docker mail "
           "messages syscaches logs vm assets library systemdb appdata"_s);
}

void tst_systemdata_mac::nothingIsMeasuredYet() {
  m_home->file(u"Library/Caches/a"_s);
  checkNothingIsMeasured();
}

void tst_systemdata_mac::excludes() {
  QList<QString> expected;
  for (const char* folder :
       {"Library/Caches", "Library/Application Support", "Library/Containers", "Library/Group Containers",
        "Library/Messages", "Library/Developer", "Library/Mobile Documents", "Library/CloudStorage"})
    expected << m_home->path(QLatin1String(folder));
  for (const SystemDataItem& row : rows()) QCOMPARE(row.excludes, row.id == u"library" ? expected : QList<QString>());
}

void tst_systemdata_mac::hiddenFolders() {
  for (const char* folder : {".npm", ".Trash", ".Trash2", ".nvm/versions", "visible", ".trash"})
    m_home->folder(QLatin1String(folder));
  m_home->file(u".profile"_s);
  m_home->link(u".cache"_s, m_home->folder(u"elsewhere"_s));
  QList<QString> expected;
  for (const fs::Entry& entry : fs::list(m_home->path()))
    if (QStringList{u".npm"_s, u".Trash2"_s, u".nvm"_s, u".trash"_s}.contains(entry.name))
      expected << m_home->path(entry.name);
  QCOMPARE(expected.size(), 4);
  QCOMPARE(row("hidden").paths, expected); // in the system's order
}

void tst_systemdata_mac::hiddenFoldersThatNoTextReaches() {
  m_home->folder(u".npm"_s);
  QCOMPARE(::mkdir((QFile::encodeName(m_home->path()) + "/.bad-\xff").constData(), 0700), 0);
  QCOMPARE(row("hidden").paths, QList<QString>{m_home->path(u".npm"_s)});
}

void tst_systemdata_mac::simulatorRuntimes() {
  const QString assets = disk(u"System/Library/AssetsV2"_s);
  const QString runtime = m_home->folder(assets + u"/com_apple_MobileAsset_iOSSimulatorRuntime"_s);
  m_home->file(assets + u"/plain_SimulatorRuntime"_s);
  m_home->folder(assets + u"/com_apple_simulatorruntime"_s);
  m_home->link(assets + u"/linked_SimulatorRuntime"_s, runtime);
  QCOMPARE(row("runtimes").paths, (QList<QString>{runtime, disk(u"Library/Developer"_s)}));
  QCOMPARE(row("assets").excludes, QList<QString>{runtime});
  QCOMPARE(row("assets").paths, (QList<QString>{assets, disk(u"Library/Updates"_s)}));
}

void tst_systemdata_mac::everyPlaceIsBelowTheHomeOrTheDisk() {
  for (const SystemDataItem& row : rows())
    for (const QString& path : row.paths)
      QVERIFY2(path.startsWith(m_world.root + u'/') || path.startsWith(m_home->path() + u'/'), qPrintable(path));
  QCOMPARE(row("syscaches").paths, QList<QString>{disk(u"Library/Caches"_s)});
  QCOMPARE(row("usercaches").paths, QList<QString>{m_home->path(u"Library/Caches"_s)});
}

void tst_systemdata_mac::actionLabels_data() {
  QTest::addColumn<int>("action");
  QTest::addColumn<QString>("mac");
  QTest::addColumn<QString>("linux");
  QTest::addColumn<bool>("destructive");
  QTest::newRow("none") << 0 << QString() << QString() << false;
  QTest::newRow("reveal") << 1 << u"Review in Finder"_s << u"Show in Files"_s << false;
  QTest::newRow("trash") << 2 << u"Move to Trash"_s << u"Move to Trash"_s << true;
  QTest::newRow("snapshots") << 3 << u"Remove snapshots"_s << u"Remove snapshots"_s << true;
  QTest::newRow("simulators") << 4 << u"Delete unavailable"_s << u"Delete unavailable"_s << true;
  QTest::newRow("cleanup") << 5 << u"Clean in Cleanup"_s << u"Clean in Cleanup"_s << false;
  QTest::newRow("xcode") << 6 << u"Open Xcode"_s << u"Open Xcode"_s << false;
  QTest::newRow("beyond") << 7 << QString() << QString() << false;
  QTest::newRow("below") << -1 << QString() << QString() << false;
}

void tst_systemdata_mac::actionLabels() {
  QFETCH(int, action);
  SystemDataItem item;
  item.action = static_cast<Item::Action>(action);
  QTEST(item.destructive(), "destructive");
  QTEST(item.actionLabel(), "mac");
  qputenv("TARNWICK_HOST", "linux");
  QTEST(item.actionLabel(), "linux");
}

void tst_systemdata_mac::isOnBothHosts() {
  QVERIFY(systemdata::supported());
  QCOMPARE(systemdata::definitions().first().id, u"snapshots"_s);
  qputenv("TARNWICK_HOST", "linux");
  QVERIFY(systemdata::supported());
  QCOMPARE(systemdata::definitions().first().id, u"usercaches"_s);
}

QTEST_GUILESS_MAIN(tst_systemdata_mac)
#include "tst_systemdata_mac.moc"
