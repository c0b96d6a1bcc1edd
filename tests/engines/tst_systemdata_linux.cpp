// The Linux catalogue of System Data: its words and places, and that no folder counts in two rows.
#include "core/places.h"
#include "engines/SystemDataTest.h"

#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Item = SystemDataItem;

namespace {

struct Expected {
  const char* id;
  const char* icon;
  const char* colour;
  const char* title;
  Item::Action action;
  const char* paths; ///< with "|" between them; "~" is the home folder
};

constexpr Expected kExpected[] = {
    {"usercaches", "clock", "#6366f1", "Your app caches", Item::CleanInCleanup, "~/.cache"},
    {"hidden", "folder", "#0d9488", "Hidden folders in your home folder", Item::RevealInFinder, ""},
    {"flatpakdata", "layers", "#8b5cf6", "Flatpak app data", Item::RevealInFinder, "~/.var/app"},
    {"userflatpak", "box", "#f59e0b", "Your Flatpak apps and runtimes", Item::RevealInFinder, "~/.local/share/flatpak"},
    {"containers", "disc", "#2563eb", "Containers and images", Item::RevealInFinder,
     "~/.local/share/containers|/var/lib/docker|/var/lib/containers"},
    {"machines", "drive", "#0ea5e9", "Virtual machines", Item::RevealInFinder,
     "~/.local/share/libvirt/images|~/.local/share/gnome-boxes/images|~/VirtualBox VMs|/var/lib/libvirt/images"},
    {"games", "film", "#ec4899", "Game libraries", Item::RevealInFinder, "~/.local/share/Steam|~/.steam|~/Games"},
    {"data", "layers", "#334155", "App data", Item::RevealInFinder, "~/.local/share"},
    {"config", "sliders", "#475569", "Settings of your apps", Item::RevealInFinder, "~/.config"},
    {"journal", "history", "#78716c", "System journal", Item::None, "/var/log/journal"},
    {"logs", "file", "#78716c", "System logs", Item::None, "/var/log"},
    {"crash", "alert", "#ef4444", "Crash dumps", Item::None, "/var/lib/systemd/coredump|/var/crash"},
    {"packages", "download", "#0891b2", "Package downloads", Item::None,
     "/var/cache/apt/archives|/var/cache/dnf|/var/cache/libdnf5|/var/cache/pacman/pkg|/var/cache/zypp"},
    {"snaps", "box", "#f97316", "Snap packages and old revisions", Item::None, "/var/lib/snapd/snaps"},
    {"flatpak", "box", "#14b8a6", "Flatpak apps and runtimes of the system", Item::None, "/var/lib/flatpak"},
    {"kernels", "code", "#64748b", "Kernels and their modules", Item::None, "/boot|/usr/lib/modules"},
    {"swap", "drive", "#475569", "Swap and hibernation files", Item::None, ""},
    {"snapshots", "history", "#0ea5e9", "System snapshots", Item::None, ""},
};

constexpr int kActionable = 9; ///< the first ones

/// @p path, or what it leads to should it be a link on the tester's disk.
QString placeAt(const QString& path) {
  const QFileInfo place(path);
  return place.isSymLink() && place.exists() ? place.canonicalFilePath() : path;
}

/// Every file below @p path, by its path without links. Links count as files and are not followed.
QSet<QString> filesBelow(const QString& path) {
  QSet<QString> files;
  if (QFileInfo(path).isSymLink()) return files;
  QDirIterator below(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
  while (below.hasNext()) {
    const QFileInfo info(below.next());
    if (!info.isDir() || info.isSymLink()) files << QFileInfo(info.path()).canonicalFilePath() + u'/' + info.fileName();
  }
  return files;
}

} // namespace

class tst_systemdata_linux : public SystemDataTest {
  Q_OBJECT

 private slots:
  void init() { make("linux"); }
  void cleanup() { drop(); }

  void table_data();
  void table();
  void blurbs();
  void wordsAreOfLinux();
  void nothingIsMeasuredYet();
  void placesFollowTheVariables();
  void hiddenFolders();
  void hiddenFoldersKnowAMovedCache();
  void swapFiles_data();
  void swapFiles();
  void noSwapTable();
  void excludes();
  void placesThatAreLinks_data();
  void placesThatAreLinks();
  void noFileCountsTwice_data();
  void noFileCountsTwice();

 private:
  void put(const QStringList& files) const;
  void writeSwaps(const QByteArray& text) const;
};

void tst_systemdata_linux::put(const QStringList& files) const {
  for (const QString& file : files) m_home->file(file.startsWith(u'/') ? disk(file.mid(1)) : m_home->path(file), 5'000);
}

void tst_systemdata_linux::writeSwaps(const QByteArray& text) const {
  QFile file(m_proc->root() + u"/swaps"_s);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write("Filename\t\t\t\tType\t\tSize\t\tUsed\t\tPriority\n" + text);
}

void tst_systemdata_linux::table_data() {
  QTest::addColumn<int>("index");
  for (int i = 0; i < static_cast<int>(std::size(kExpected)); ++i) QTest::newRow(kExpected[i].id) << i;
}

// With the places as they are without a stand-in for the disk.
void tst_systemdata_linux::table() {
  QFETCH(int, index);
  const Expected& expected = kExpected[index];
  SystemDataWorld real;
  real.sources.procRoot = m_proc->root();
  const QList<SystemDataItem> all = systemdata::definitions(real);
  QCOMPARE(all.size(), std::size(kExpected));
  const SystemDataItem& row = all[index];
  QCOMPARE(row.id, QLatin1String(expected.id));
  QCOMPARE(row.icon, QLatin1String(expected.icon));
  QCOMPARE(row.color, QColor(QLatin1String(expected.colour)));
  QCOMPARE(row.title, QLatin1String(expected.title));
  QCOMPARE(row.actionable, index < kActionable);
  QCOMPARE(row.action, expected.action);
  QList<QString> paths;
  for (QString path : QString::fromLatin1(expected.paths).split(u'|', Qt::SkipEmptyParts))
    paths << placeAt(path.replace(u'~', m_home->path()));
  QCOMPARE(row.paths, paths);
}

// One or two sentences each. Where the system trims a row with a tool, its name is there to copy.
void tst_systemdata_linux::blurbs() {
  const QRegularExpression sentenceEnd(u"[.](?: |$)"_s);
  for (const SystemDataItem& row : rows()) {
    QVERIFY2(row.blurb.endsWith(u'.'), qPrintable(row.id));
    const qsizetype sentences = row.blurb.count(sentenceEnd);
    QVERIFY2(sentences >= 1 && sentences <= 2, qPrintable(row.blurb));
    QCOMPARE(row.blurb.count(u'“'), row.blurb.count(u'”'));
  }
  const QMap<const char*, const char*> tools = {{"journal", "journalctl --vacuum-size"},
                                                {"packages", "apt-get clean"},
                                                {"flatpak", "flatpak uninstall --unused"},
                                                {"containers", "docker system prune"}};
  for (auto tool = tools.begin(); tool != tools.end(); ++tool)
    QVERIFY2(row(tool.key()).blurb.contains(QLatin1String(tool.value())), tool.key());
}

void tst_systemdata_linux::wordsAreOfLinux() {
  const QRegularExpression foreign(u"Finder|Full Disk Access|Xcode|macOS|Applications|menu bar|Windows"_s);
  for (const SystemDataItem& row : rows())
    for (const QString& text : {row.title, row.blurb, row.actionLabel()})
      QVERIFY2(!text.contains(foreign), qPrintable(text));
}

void tst_systemdata_linux::nothingIsMeasuredYet() {
  put({u".cache/a"_s, u"/.snapshots/1/info.xml"_s});
  checkNothingIsMeasured();
}

void tst_systemdata_linux::placesFollowTheVariables() {
  qputenv("XDG_CACHE_HOME", QFile::encodeName(m_home->outside(u"quick"_s)));
  qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->outside(u"lasting"_s)));
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home->outside(u"chosen"_s)));
  QCOMPARE(row("usercaches").paths, QList<QString>{m_home->outside(u"quick"_s)});
  QCOMPARE(row("data").paths, QList<QString>{m_home->outside(u"lasting"_s)});
  QCOMPARE(row("config").paths, QList<QString>{m_home->outside(u"chosen"_s)});
  QCOMPARE(row("userflatpak").paths, QList<QString>{m_home->outside(u"lasting/flatpak"_s)});
  QCOMPARE(row("games").paths.first(), m_home->outside(u"lasting/Steam"_s));
}

void tst_systemdata_linux::hiddenFolders() {
  for (const char* folder : {".npm", ".Trash", ".Trash2", ".cache", ".local/share", ".config", ".var/app", ".steam",
                             ".cargo/bin", "visible"})
    m_home->folder(QLatin1String(folder));
  m_home->file(u".profile"_s);
  m_home->link(u".linked"_s, m_home->path(u"visible"_s));
  QList<QString> paths = row("hidden").paths;
  std::sort(paths.begin(), paths.end());
  QCOMPARE(paths, (QList<QString>{m_home->path(u".Trash2"_s), m_home->path(u".cargo"_s), m_home->path(u".npm"_s)}));
}

void tst_systemdata_linux::hiddenFoldersKnowAMovedCache() {
  for (const char* folder : {".cache", ".quick", ".deep/quick"}) m_home->folder(QLatin1String(folder));
  qputenv("XDG_CACHE_HOME", QFile::encodeName(m_home->path(u".quick"_s)));
  QVERIFY(!row("hidden").paths.contains(m_home->path(u".quick"_s)));
  QVERIFY(row("hidden").paths.contains(m_home->path(u".cache"_s))); // one like the others now
  qputenv("XDG_CACHE_HOME", QFile::encodeName(m_home->path(u".deep/quick"_s)));
  QVERIFY(row("hidden").paths.contains(m_home->path(u".deep"_s)));
  QCOMPARE(row("hidden").excludes, QList<QString>{m_home->path(u".deep/quick"_s)});
}

void tst_systemdata_linux::swapFiles_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<QList<QString>>("paths");
  QTest::newRow("none") << QByteArray() << QList<QString>{};
  QTest::newRow("a partition") << QByteArray("/dev/sda2\tpartition\t975868\t0\t-2\n") << QList<QString>{};
  QTest::newRow("files and partitions")
      << QByteArray("/swapfile                               file\t\t2097148\t\t0\t\t-2\n"
                    "/dev/zram0                              partition\t8388604\t\t0\t\t100\n"
                    "/var/swap/second                        file\t\t1048572\t\t0\t\t-3\n")
      << QList<QString>{u"/swapfile"_s, u"/var/swap/second"_s};
  QTest::newRow("odd names") << QByteArray("/my\\040swap\\134file file 4 0 -2\n")
                             << QList<QString>{u"/my swap\\file"_s};
}

void tst_systemdata_linux::swapFiles() {
  QFETCH(QByteArray, text);
  writeSwaps(text);
  QTEST(row("swap").paths, "paths");
}

void tst_systemdata_linux::noSwapTable() { QCOMPARE(row("swap").paths, QList<QString>{}); }

void tst_systemdata_linux::excludes() {
  const QList<QString> data = row("data").excludes;
  for (const char* folder : {"flatpak", "containers", "libvirt/images", "gnome-boxes/images", "Steam"})
    QVERIFY2(data.contains(m_home->path(u".local/share/"_s + QLatin1String(folder))), folder);
  QCOMPARE(row("logs").excludes, QList<QString>{disk(u"var/log/journal"_s)});
  QCOMPARE(row("usercaches").excludes, QList<QString>{});
}

void tst_systemdata_linux::placesThatAreLinks_data() {
  QTest::addColumn<QString>("link");   // below the home folder
  QTest::addColumn<QString>("target"); // relative to it
  QTest::addColumn<QString>("row");
  QTest::addColumn<QString>("path"); // that the row has
  QTest::newRow("a cache on another disk")
      << u".cache"_s << u"../../quick/cache"_s << u"usercaches"_s << u"../../quick/cache"_s;
  QTest::newRow("a library in a hidden folder") << u"Games"_s << u".games"_s << u"games"_s << u".games"_s;
  QTest::newRow("a link to a link") << u"Games"_s << u"way"_s << u"games"_s << u"far"_s;
  QTest::newRow("leads nowhere") << u".cache"_s << u"gone"_s << u"usercaches"_s << u".cache"_s;
  QTest::newRow("the home folder") << u".config"_s << u"."_s << u"config"_s << u".config"_s;
  QTest::newRow("what holds the home folder") << u".config"_s << u".."_s << u"config"_s << u".config"_s;
  QTest::newRow("the whole disk") << u".config"_s << u"/"_s << u"config"_s << u".config"_s;
}

void tst_systemdata_linux::placesThatAreLinks() {
  QFETCH(QString, target);
  QFETCH(QString, path);
  for (const char* folder : {"../../quick/cache", ".games", "far"}) m_home->folder(QLatin1String(folder));
  m_home->link(u"way"_s, m_home->path(u"far"_s));
  QFETCH(QString, link);
  m_home->link(link, target);
  QFETCH(QString, row);
  const QList<QString> paths = this->row(qPrintable(row)).paths;
  const QString expected = QDir::cleanPath(m_home->path(path));
  QVERIFY2(paths.contains(expected), qPrintable(paths.join(u' ')));
  if (path != link) QVERIFY(!paths.contains(m_home->path(link)));
  if (path.startsWith(u'.')) QVERIFY(!this->row("hidden").paths.contains(expected));
}

// Where variables and links lead into the places of other rows.
void tst_systemdata_linux::noFileCountsTwice_data() {
  QTest::addColumn<QString>("cache");
  QTest::addColumn<QString>("config");
  QTest::addColumn<QString>("data");
  QTest::addColumn<QStringList>("links"); // a link and its target, in turn
  const QStringList none;
  const auto newRow = [&](const char* name, const char* cache, const char* config, const char* data,
                          const QStringList& links = {}) {
    QTest::newRow(name) << QString::fromLatin1(cache) << QString::fromLatin1(config) << QString::fromLatin1(data)
                        << links;
  };
  newRow("usual", "", "", "");
  newRow("all in one hidden folder", ".xdg/cache", ".xdg/config", ".xdg/data");
  newRow("cache in the data", ".local/share/cache", "", "");
  newRow("data in the configuration", "", "", ".config/data");
  newRow("configuration and data are one", "", ".both", ".both");
  newRow("data in a game library", "", "", "Games/data");
  newRow("data in a virtual machine's folder in the configuration", "", ".config", ".config/VirtualBox VMs");
  newRow("data in the Flatpak data", "", "", ".var/app/data");
  newRow("data below another's place below itself", "", ".local/share/Steam/config", "");
  newRow("data is a game library", "", "", ".steam");
  newRow("data reached through a link", "", "", "way/data", {u"way"_s, u".npm"_s});
  newRow("cache reached through a link", "way/cache", "", "", {u"way"_s, u".local/share"_s});
  newRow("the data is a link", "", "", "", {u".local/share"_s, u".npm/share"_s});
  newRow("the cache is in the data", "", "", "", {u".cache"_s, u".local/share/cache"_s});
  newRow("the cache is in a hidden folder", "", "", "", {u".cache"_s, u".npm/cache"_s});
  newRow("the configuration is the data", "", "", "", {u".config"_s, u".local/share"_s});
  newRow("the games are a hidden folder, which holds the data", "", "", "",
         {u"Games"_s, u".games"_s, u".local/share"_s, u".games/share"_s});
  newRow("the data is the home folder", "", "", "", {u".local/share"_s, u"."_s});
  newRow("linked images", "", "", "", {u".local/share/libvirt"_s, u".config/libvirt"_s});
}

void tst_systemdata_linux::noFileCountsTwice() {
  QFETCH(QStringList, links);
  const auto set = [&](const char* variable, const char* column) {
    const QString value = *static_cast<QString*>(QTest::qData(column, QMetaType::QString));
    if (!value.isEmpty()) qputenv(variable, QFile::encodeName(m_home->path(value)));
  };
  set("XDG_CACHE_HOME", "cache");
  set("XDG_CONFIG_HOME", "config");
  set("XDG_DATA_HOME", "data");
  for (qsizetype i = 0; i < links.size(); i += 2) m_home->link(links[i], m_home->folder(m_home->path(links[i + 1])));
  put({u".cache/a/1"_s, u".cache/2"_s, u".npm/3"_s, u".npm/data/4"_s, u".var/app/x/5"_s, u".var/6"_s, u".steam/7"_s,
       u"Games/8"_s, u"VirtualBox VMs/m/9"_s, u".config/app/10"_s, u".local/share/app/11"_s, u".local/state/12"_s,
       u"/var/log/syslog"_s, u"/var/log/journal/id/system"_s, u"/boot/vmlinuz"_s, u"/var/crash/dump"_s});
  for (const QString& base : {places::cache(), places::config(), places::data()})
    for (const char* below : {"own", "deep/own", "flatpak/a", "containers/b", "libvirt/images/c", "libvirt/d",
                              "gnome-boxes/images/e", "Steam/f", "Steam/config/g"})
      m_home->file(base + u'/' + QLatin1String(below), 5'000);

  const std::atomic<bool> cancel = false;
  QSet<QString> reachable;
  qint64 counted = 0;
  for (const SystemDataItem& row : rows())
    for (const QString& path : row.paths) {
      reachable += filesBelow(path);
      if (QFileInfo(path).isDir() && !QFileInfo(path).isSymLink())
        counted += fs::measure(path, cancel, {}, row.excludes).files;
    }
  QVERIFY(reachable.size() > 20);
  QCOMPARE(counted, reachable.size());
}

QTEST_GUILESS_MAIN(tst_systemdata_linux)
#include "tst_systemdata_linux.moc"
