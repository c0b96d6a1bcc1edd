/// Where things lie, by the environment and the user's own list of folders.
#include "core/places.h"
#include "support/FixtureHome.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <pwd.h>
#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t kUnknownUser = 54321;

void writeUserDirs(const FixtureHome& home, const QByteArray& text, const QString& folder = u".config"_s) {
  QFile list(home.file(folder + u"/user-dirs.dirs"_s));
  QVERIFY(list.open(QIODevice::WriteOnly));
  list.write(text);
}

QStringList pathsOf(const QList<places::CacheRoot>& roots) {
  QStringList result;
  for (const places::CacheRoot& root : roots) result << root.path;
  return result;
}

} // namespace

class TestPlaces : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void homeIsHome();
  void homeFromThePasswordDatabase_data();
  void homeFromThePasswordDatabase();
  void ownership();
  void xdgDefaults();
  void xdgThatCounts();
  void xdgThatDoesNot_data();
  void xdgThatDoesNot();
  void cacheIsNoOtherFolder_data();
  void cacheIsNoOtherFolder();
  void userFolders();
  void userFoldersOfMovedConfig();
  void userFoldersAreReadOnce();
  void noUserFolders();
  void download_data();
  void download();
  void temporary_data();
  void temporary();
  void noHomeAtAll();
  void cacheRoots();
  void cacheRootsThroughLinks();

 private:
  std::unique_ptr<FixtureHome> m_home;
};

void TestPlaces::init() { m_home = std::make_unique<FixtureHome>(); }

void TestPlaces::cleanup() {
  for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qunsetenv(name);
  m_home.reset();
}

void TestPlaces::homeIsHome() {
  QCOMPARE(places::home(), m_home->path());
  qputenv("HOME", (m_home->path(u"a"_s) + u"/.//../"_s).toUtf8());
  QCOMPARE(places::home(), m_home->path());
}

void TestPlaces::homeFromThePasswordDatabase_data() {
  QTest::addColumn<QByteArray>("variable");
  QTest::newRow("unset") << QByteArray();
  QTest::newRow("empty") << QByteArray("");
  QTest::newRow("relative") << QByteArray("users/me");
  QTest::newRow("dot") << QByteArray(".");
  QTest::newRow("root") << QByteArray("/");
  QTest::newRow("root by detours") << QByteArray("//a/../.");
}

void TestPlaces::homeFromThePasswordDatabase() {
  QFETCH(QByteArray, variable);
  variable.isNull() ? qunsetenv("HOME") : qputenv("HOME", variable);
  const passwd* entry = ::getpwuid(::geteuid());
  QString expected = entry == nullptr ? QString() : QFile::decodeName(entry->pw_dir);
  if (!expected.startsWith(u'/') || expected == u"/"_s) expected.clear();
  QCOMPARE(places::home(), expected);
  QCOMPARE(places::passwordHome(), expected);
  QCOMPARE(places::cache(), expected.isEmpty() ? QString() : expected + u"/.cache"_s);
}

void TestPlaces::ownership() {
  QVERIFY(places::homeIsOwn());
  qputenv("HOME", m_home->path(u"missing"_s).toUtf8());
  QVERIFY(!places::homeIsOwn());
  qputenv("HOME", m_home->path().toUtf8());
  if (::geteuid() != 0) QSKIP("giving a folder away takes root");
  QCOMPARE(::chown(qPrintable(m_home->path()), 65534, 65534), 0);
  QVERIFY(!places::homeIsOwn());
}

void TestPlaces::xdgDefaults() {
  QCOMPARE(places::cache(), m_home->path(u".cache"_s));
  QCOMPARE(places::config(), m_home->path(u".config"_s));
  QCOMPARE(places::data(), m_home->path(u".local/share"_s));
}

void TestPlaces::xdgThatCounts() {
  for (const QString& folder :
       {m_home->outside(u"xdg"_s), m_home->path(u".elsewhere"_s), m_home->path(u"Documents/x"_s)}) {
    for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
      qputenv(name, (folder + u'/' + QString::fromLatin1(name) + u'/').toUtf8());
    QCOMPARE(places::cache(), folder + u"/XDG_CACHE_HOME"_s);
    QCOMPARE(places::config(), folder + u"/XDG_CONFIG_HOME"_s);
    QCOMPARE(places::data(), folder + u"/XDG_DATA_HOME"_s);
  }
}

void TestPlaces::xdgThatDoesNot_data() {
  QTest::addColumn<QString>("value"); // "~" is the home folder
  for (const char* value : {"", "relative", "./x", "/", "//", "~", "~/", "~/..", "~/../..", "/var", "~/Documents",
                            "~/x/../Music", "~/Library", "~/AppData/Local", "~/Bilder", "/var/tmp/nowhere/Musik"})
    QTest::newRow(value) << QString::fromLatin1(value);
}

void TestPlaces::xdgThatDoesNot() {
  QFETCH(QString, value);
  writeUserDirs(*m_home, "XDG_PICTURES_DIR=\"$HOME/Bilder\"\nXDG_MUSIC_DIR=\"/var/tmp/nowhere/Musik\"\n");
  value.replace(u'~', m_home->path());
  for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qputenv(name, value.toUtf8());
  xdgDefaults();
}

void TestPlaces::cacheIsNoOtherFolder_data() {
  QTest::addColumn<QString>("value");
  for (const char* value : {".config", ".local", ".local/share", ".local/state", ".local/bin", ".var", ".var/app",
                            "snap", "bin", "moved", "moved/data"})
    QTest::newRow(value) << QString::fromLatin1(value);
}

void TestPlaces::cacheIsNoOtherFolder() {
  QFETCH(QString, value);
  qputenv("XDG_DATA_HOME", m_home->path(u"moved/data"_s).toUtf8());
  qputenv("XDG_CACHE_HOME", m_home->path(value).toUtf8());
  QCOMPARE(places::cache(), m_home->path(u".cache"_s));
  qputenv("XDG_CACHE_HOME", m_home->path(value + u"/x"_s).toUtf8());
  QCOMPARE(places::cache(), m_home->path(value + u"/x"_s));
}

void TestPlaces::userFolders() {
  writeUserDirs(*m_home, "# a comment\n"
                         "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n"
                         "  XDG_MUSIC_DIR=\"$HOME/Mu\\\"sik\\$\"  \n"
                         "XDG_PICTURES_DIR=\"/mnt/Bilder/\"\n"
                         "XDG_VIDEOS_DIR=$HOME/Vidéos\n"
                         "XDG_TEMPLATES_DIR=\"$HOME/\"\n"
                         "XDG_PUBLICSHARE_DIR=\"$HOME/..\"\n"
                         "XDG_DOCUMENTS_DIR=\"relative\"\n"
                         "XDG_DOWNLOAD_DIR=\"/\"\n"
                         "XDG_OTHER=\"/mnt/other\"\n"
                         "XDG_EXTRA_DIR=\"$HOMELESS/x\"\n"
                         "XDG_AGAIN_DIR=\"$HOME/Schreibtisch\"\n");
  QCOMPARE(places::userDirs(), (QStringList{m_home->path(u"Schreibtisch"_s), m_home->path(u"Mu\"sik$"_s),
                                            u"/mnt/Bilder"_s, m_home->path(u"Vidéos"_s)}));
}

void TestPlaces::userFoldersOfMovedConfig() {
  writeUserDirs(*m_home, "XDG_MUSIC_DIR=\"$HOME/Musik\"\n", u"settings"_s);
  qputenv("XDG_CONFIG_HOME", m_home->path(u"settings"_s).toUtf8());
  QCOMPARE(places::userDirs(), QStringList{m_home->path(u"Musik"_s)});
}

void TestPlaces::userFoldersAreReadOnce() {
  writeUserDirs(*m_home, "XDG_MUSIC_DIR=\"$HOME/Musik\"\n");
  const QStringList first = places::userDirs();
  writeUserDirs(*m_home, "XDG_MUSIC_DIR=\"$HOME/Muziek\"\n");
  QCOMPARE(places::userDirs(), first);
  const FixtureHome other;
  QCOMPARE(places::userDirs(), QStringList());
}

void TestPlaces::noUserFolders() {
  QVERIFY(places::userDirs().isEmpty());
  const FixtureHome other;
  other.folder(u".config/user-dirs.dirs"_s);
  QVERIFY(places::userDirs().isEmpty());
}

void TestPlaces::download_data() {
  QTest::addColumn<QByteArray>("list");
  QTest::addColumn<QString>("expected");
  QTest::newRow("default") << QByteArray() << u"~/Downloads"_s;
  QTest::newRow("localised") << QByteArray("XDG_DOWNLOAD_DIR=\"$HOME/Hämtat\"\n") << u"~/Hämtat"_s;
  QTest::newRow("elsewhere") << QByteArray("XDG_DOWNLOAD_DIR=\"/mnt/loads\"\n") << u"/mnt/loads"_s;
  QTest::newRow("home") << QByteArray("XDG_DOWNLOAD_DIR=\"$HOME/\"\n") << QString();
  QTest::newRow("above home") << QByteArray("XDG_DOWNLOAD_DIR=\"/var/tmp\"\n") << QString();
  QTest::newRow("root") << QByteArray("XDG_DOWNLOAD_DIR=\"/\"\n") << QString();
}

void TestPlaces::download() {
  QFETCH(QByteArray, list);
  QFETCH(QString, expected);
  writeUserDirs(*m_home, list);
  QCOMPARE(places::downloads(), expected.replace(u'~', m_home->path()));
}

void TestPlaces::temporary_data() {
  QTest::addColumn<QString>("value");
  QTest::addColumn<QString>("expected");
  QTest::newRow("own") << u"-/scratch/U/"_s << u"-/scratch/U"_s;
  QTest::newRow("through a link") << u"-/link/U"_s << u"-/link/U"_s;
  QTest::newRow("in home") << u"~/.scratch"_s << u"~/.scratch"_s;
  QTest::newRow("in the cache") << u"~/.cache/scratch"_s << u"~/.cache/scratch"_s;
  for (const char* value : {"relative",
                            "/",
                            "//",
                            "~",
                            "~/",
                            "~/..",
                            "/var/tmp",
                            "/var",
                            "~/Documents",
                            "~/Music/T",
                            "~/Library/T/x",
                            "~/AppData/Local/Temp",
                            "~/Bilder",
                            "~/Bilder/T",
                            "~/.config",
                            "~/.local",
                            "~/.local/share",
                            "~/.cache",
                            "~/snap",
                            "~/bin",
                            "-/me",
                            "-/users",
                            "-/Musik/T"})
    QTest::newRow(value) << QString::fromLatin1(value) << QString();
  QTest::newRow("missing") << u"-/missing"_s << QString();
}

// "~" is the home folder, "-" what lies around it: with a link to it, and links to the other places.
void TestPlaces::temporary() {
  QFETCH(QString, value);
  QFETCH(QString, expected);
  const auto full = [this](QString path) {
    return path.replace(u'~', m_home->path()).replace(u"-/"_s, m_home->outside() + u'/');
  };
  writeUserDirs(*m_home, "XDG_PICTURES_DIR=\"$HOME/Bilder\"\n");
  m_home->folder(m_home->outside(u"scratch/U"_s));
  m_home->folder(m_home->outside(u"tunes/T"_s));
  m_home->link(m_home->outside(u"link"_s), m_home->outside(u"scratch"_s));
  m_home->link(m_home->outside(u"me"_s), m_home->path());
  m_home->link(m_home->outside(u"Musik"_s), m_home->outside(u"tunes"_s));
  m_home->link(u"Music"_s, m_home->outside(u"tunes"_s));
  const bool present = !value.contains(u"missing"_s) && !value.contains(u"Music"_s);
  if (present && value.contains(u'~')) m_home->folder(full(value));
  const QByteArray was = qgetenv("TMPDIR");
  qputenv("TMPDIR", full(value).toUtf8());
  const QString found = places::temp();
  qputenv("TMPDIR", was);
  QCOMPARE(found, full(expected));
}

void TestPlaces::noHomeAtAll() {
  if (!places::passwordHome().isEmpty()) {
    if (::geteuid() != 0) QSKIP("running as a user whom the password database doesn't know takes root");
    QProcess nobody;
    nobody.setChildProcessModifier([] {
      if (::setgid(kUnknownUser) != 0 || ::setuid(kUnknownUser) != 0) ::_exit(1);
    });
    nobody.start(QCoreApplication::applicationFilePath(), {u"noHomeAtAll"_s});
    if (!nobody.waitForStarted()) QSKIP("another user can't reach this program");
    QVERIFY(nobody.waitForFinished());
    QVERIFY2(nobody.exitCode() == 0, nobody.readAllStandardOutput().constData());
    return;
  }
  qunsetenv("HOME");
  for (const QString& place : {places::home(), places::cache(), places::config(), places::data(), places::downloads()})
    QVERIFY(place.isEmpty());
  QVERIFY(places::cacheRoots().isEmpty());
  QVERIFY(!places::homeIsOwn());
}

void TestPlaces::cacheRoots() {
  QVERIFY(places::cacheRoots().isEmpty());
  m_home->folder(u".cache"_s);
  m_home->folder(u".var/app/org.example.B/cache"_s);
  m_home->folder(u".var/app/org.example.A/cache"_s);
  m_home->folder(u".var/app/org.example.None/config"_s);
  m_home->file(u".var/app/org.example.File/cache"_s);
  m_home->file(u".var/app/loose"_s);
  m_home->folder(u"snap/editor/common/.cache"_s);
  m_home->folder(u"snap/editor/4711/.cache"_s);
  m_home->folder(u"snap/player/common"_s);
  const QList<places::CacheRoot> roots = places::cacheRoots();
  QCOMPARE(pathsOf(roots), (QStringList{m_home->path(u".cache"_s), m_home->path(u".var/app/org.example.A/cache"_s),
                                        m_home->path(u".var/app/org.example.B/cache"_s),
                                        m_home->path(u"snap/editor/common/.cache"_s)}));
  QVERIFY(roots[0].id.isEmpty() && roots[0].kind == places::CacheRoot::Kind::Session);
  QVERIFY(roots[1].id == u"org.example.A"_s && roots[1].kind == places::CacheRoot::Kind::Flatpak);
  QVERIFY(roots[3].id == u"editor"_s && roots[3].kind == places::CacheRoot::Kind::Snap);
}

void TestPlaces::cacheRootsThroughLinks() {
  const QString elsewhere = m_home->outside(u"elsewhere"_s);
  QDir().mkpath(elsewhere + u"/cache/common/.cache"_s);
  m_home->link(u".cache"_s, elsewhere);
  m_home->link(u".var/app/org.example.A/cache"_s, elsewhere);
  m_home->link(u".var/app/org.example.B"_s, elsewhere);
  m_home->link(u"snap/editor/common"_s, elsewhere + u"/cache/common"_s);
  m_home->link(u"snap/player"_s, elsewhere + u"/cache"_s);
  QCOMPARE(pathsOf(places::cacheRoots()), QStringList{m_home->path(u".cache"_s)});
}

QTEST_GUILESS_MAIN(TestPlaces)
#include "tst_places.moc"
