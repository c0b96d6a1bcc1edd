/// Protected locations, asked by their text.
#include "core/places.h"
#include "core/safety.h"
#include "support/FixtureHome.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QStringList kUserFolders{u"Documents"_s, u"Desktop"_s,       u"Downloads"_s,       u"Pictures"_s,
                               u"Music"_s,     u"Videos"_s,        u"Movies"_s,          u"Library"_s,
                               u"AppData"_s,   u"AppData/Local"_s, u"AppData/Roaming"_s, u"OneDrive"_s};
const QStringList kRoots{u"/System"_s,        u"/usr"_s,
                         u"/bin"_s,           u"/sbin"_s,
                         u"/Library/Apple"_s, u"/private/var/db"_s,
                         u"/etc"_s,           u"/Applications/Utilities"_s};

const QStringList kLinuxRoots{u"/boot"_s,  u"/dev"_s,    u"/efi"_s,        u"/gnu"_s, u"/lib"_s, u"/lib32"_s,
                              u"/lib64"_s, u"/libx32"_s, u"/lost+found"_s, u"/nix"_s, u"/opt"_s, u"/proc"_s,
                              u"/run"_s,   u"/snap"_s,   u"/srv"_s,        u"/sys"_s, u"/var"_s};
const QStringList kLinuxExceptions{u"/run/media"_s, u"/var/tmp"_s, u"/var/crash"_s};
const QStringList kLinuxFolders{u".config"_s, u".local"_s, u".local/share"_s, u".local/state"_s, u".local/bin"_s,
                                u".cache"_s,  u".var"_s,   u".var/app"_s,     u"snap"_s,         u"bin"_s};
const QStringList kLinuxSecrets{u".ssh"_s,
                                u".gnupg"_s,
                                u".pki"_s,
                                u".password-store"_s,
                                u".netrc"_s,
                                u".mozilla"_s,
                                u".thunderbird"_s,
                                u".aws"_s,
                                u".azure"_s,
                                u".kube"_s,
                                u".docker/config.json"_s,
                                u".local/share/keyrings"_s,
                                u".local/share/kwalletd"_s,
                                u".config/gh"_s,
                                u".config/gcloud"_s,
                                u".config/mozilla"_s,
                                u".config/google-chrome"_s,
                                u".config/chromium"_s,
                                u".config/BraveSoftware"_s,
                                u".config/microsoft-edge"_s,
                                u".config/vivaldi"_s,
                                u".config/opera"_s,
                                u"snap/firefox/common/.mozilla"_s,
                                u"snap/firefox/4711/.mozilla"_s,
                                u"snap/chromium/common/chromium"_s,
                                u"snap/chromium/4711/.config"_s,
                                u"snap/chromium/current/config"_s,
                                u".var/app/org.mozilla.firefox/.mozilla"_s,
                                u".var/app/com.google.Chrome/config"_s,
                                u".var/app/org.chromium.Chromium/config"_s,
                                u".var/app/com.brave.Browser/config"_s,
                                u".var/app/com.microsoft.Edge/config"_s};

const QList<QByteArray> kHosts{"mac", "linux"};

/// Sets an environment variable and puts back what it was.
class Variable {
 public:
  Variable(const char* name, const QByteArray& value) : Variable(name) { qputenv(name, value); }
  explicit Variable(const char* name) : m_name(name), m_was(qgetenv(name)), m_wasSet(qEnvironmentVariableIsSet(name)) {
    qunsetenv(name);
  }
  ~Variable() { m_wasSet ? qputenv(m_name, m_was) : qunsetenv(m_name); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* m_name;
  QByteArray m_was;
  bool m_wasSet;
};

} // namespace

class TestSafety : public QObject {
  Q_OBJECT

 private slots:
  void cleanUp_data();
  void cleanUp();
  void locations_data();
  void locations();
  void everySystemRoot_data();
  void everySystemRoot();
  void everyUserFolder_data();
  void everyUserFolder();
  void everyLinuxRoot_data();
  void everyLinuxRoot();
  void linuxExceptions();
  void everyLinuxFolder_data();
  void everyLinuxFolder();
  void everyLinuxSecret_data();
  void everyLinuxSecret();
  void otherAppsSettingsAreNoSecret();
  void homeOfThePasswordDatabase();
  void passwordHomeThatIsNone_data();
  void passwordHomeThatIsNone();
  void passwordHomeBehindALink();
  void homeThroughALink();
  void localisedFolders();
  void movedXdgFolders();
  void homeThatIsNone_data();
  void homeThatIsNone();
  void summary();
  void manyThreads();

 private:
  void expectOnEitherHost(const QString& path, bool isProtected);

  FixtureHome m_home;
};

void TestSafety::expectOnEitherHost(const QString& path, bool isProtected) {
  for (const QByteArray& name : kHosts) {
    const Variable host("TARNWICK_HOST", name);
    QVERIFY2(safety::isProtected(path) == isProtected, qPrintable(path + u" on "_s + QString::fromLatin1(name)));
  }
}

void TestSafety::cleanUp_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<QString>("clean");
  QTest::newRow("empty") << u""_s << u""_s;
  QTest::newRow("root") << u"/"_s << u"/"_s;
  QTest::newRow("roots") << u"///"_s << u"/"_s;
  QTest::newRow("clean") << u"/a/b.c/..d/.e"_s << u"/a/b.c/..d/.e"_s;
  QTest::newRow("slash at the end") << u"/a/b/"_s << u"/a/b"_s;
  QTest::newRow("doubled slashes") << u"//a//b"_s << u"/a/b"_s;
  QTest::newRow("dots") << u"/a/./b/../c/."_s << u"/a/c"_s;
  QTest::newRow("dots at the end") << u"/a/b/.."_s << u"/a"_s;
  QTest::newRow("above the root") << u"/.."_s << u"/"_s;
  QTest::newRow("far above the root") << u"/../../a/../../usr"_s << u"/usr"_s;
  QTest::newRow("three dots") << u"/.../a"_s << u"/.../a"_s;
  QTest::newRow("relative") << u"a/../../b/"_s << u"../b"_s;
}

void TestSafety::cleanUp() {
  QFETCH(QString, path);
  QTEST(safety::normalized(path), "clean");
}

void TestSafety::locations_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<bool>("isProtected");
  const QString home = m_home.path();
  QTest::newRow("empty") << u""_s << true;
  QTest::newRow("relative") << u"a/b/c"_s << true;
  QTest::newRow("dot") << u"."_s << true;
  QTest::newRow("tilde") << u"~/a/b/c"_s << true;
  QTest::newRow("resource") << u":/a/b/c"_s << true;
  QTest::newRow("root") << u"/"_s << true;
  QTest::newRow("in the root") << u"/Applications"_s << true;
  QTest::newRow("in the root, with a slash") << u"/Users/"_s << true;
  QTest::newRow("in the root, by doubled slashes") << u"//tmp//"_s << true;
  QTest::newRow("tmp") << u"/tmp"_s << true;
  QTest::newRow("in tmp") << u"/tmp/x"_s << false;
  QTest::newRow("home") << home << true;
  QTest::newRow("homes") << home + u"/.."_s << true;
  QTest::newRow("above homes") << home + u"/../.."_s << false;
  QTest::newRow("beside home") << home + u"2"_s << false;
  QTest::newRow("in home") << home + u"/x"_s << false;
  QTest::newRow("caches") << home + u"/Library/Caches"_s << false;
  QTest::newRow("file in Downloads") << home + u"/Downloads/file.zip"_s << false;
  QTest::newRow("below System") << u"/System/Library/x"_s << true;
  QTest::newRow("app") << u"/Applications/Some.app"_s << false;
  QTest::newRow("private folders") << u"/private/var/folders/x"_s << false;
  QTest::newRow("utility") << u"/Applications/Utilities/Terminal.app"_s << true;
  QTest::newRow("Apple's library") << u"/Library/Apple/x/y"_s << true;
  QTest::newRow("library") << u"/Library/Caches"_s << false;
  QTest::newRow("up and down") << u"/usr/.."_s + home + u"/Documents/"_s << true;
  QTest::newRow("down by the back") << home + u"/../../../../../../../../usr/lib/x"_s << true;
  QTest::newRow("out of usr") << u"/usr/../Users/me/x"_s << false;
  QTest::newRow("usr local") << u"/usr/local/x"_s << true;
  QTest::newRow("usrlocal") << u"/usrlocal/x"_s << false;
  QTest::newRow("upper case") << u"/USR/x"_s << false;
}

void TestSafety::locations() {
  QFETCH(QString, path);
  QFETCH(bool, isProtected);
  expectOnEitherHost(path, isProtected);
}

void TestSafety::everySystemRoot_data() {
  QTest::addColumn<QString>("root");
  for (const QString& root : kRoots) QTest::newRow(qPrintable(root)) << root;
}

void TestSafety::everySystemRoot() {
  QFETCH(QString, root);
  expectOnEitherHost(root, true);
  expectOnEitherHost(root + u'/', true);
  expectOnEitherHost(root + u"/x"_s, true);
  expectOnEitherHost(root + u"/x/y/z"_s, true);
  expectOnEitherHost(root + u"x/y"_s, false);
  expectOnEitherHost(u"/x"_s + root + u"/y"_s, false);
  expectOnEitherHost(root.toUpper() + u"/X"_s, false);
}

void TestSafety::everyUserFolder_data() {
  QTest::addColumn<QString>("folder");
  for (const QString& folder : kUserFolders) QTest::newRow(qPrintable(folder)) << folder;
}

void TestSafety::everyUserFolder() {
  QFETCH(QString, folder);
  const QString path = m_home.path(folder);
  expectOnEitherHost(path, true);
  expectOnEitherHost(path + u"/./"_s, true);
  expectOnEitherHost(path + u"/x"_s, false);
  expectOnEitherHost(path + u'x', false);
  expectOnEitherHost(m_home.path(folder.toLower()), false);
  expectOnEitherHost(m_home.outside(u"others/"_s + folder), false);
}

void TestSafety::everyLinuxRoot_data() {
  QTest::addColumn<QString>("root");
  for (const QString& root : kLinuxRoots) QTest::newRow(qPrintable(root)) << root;
  if (places::passwordHome() != u'/' + u"root"_s) QTest::newRow("root's home") << u'/' + u"root"_s;
}

// Where the other host is previewed, its lists hold beside those of the host that runs.
void TestSafety::everyLinuxRoot() {
  QFETCH(QString, root);
  expectOnEitherHost(root, true);
  expectOnEitherHost(root + u"/x"_s, true);
  expectOnEitherHost(root + u"/x/y/z"_s, true);
  expectOnEitherHost(root + u"x/y"_s, false);
}

void TestSafety::linuxExceptions() {
  for (const QString& folder : kLinuxExceptions) {
    expectOnEitherHost(folder, true);
    expectOnEitherHost(folder + u"/x"_s, false);
    expectOnEitherHost(folder + u"/x/y"_s, false);
    expectOnEitherHost(folder + u"x/y"_s, true);
    expectOnEitherHost(folder + u"/../x"_s, true);
  }
}

void TestSafety::everyLinuxFolder_data() {
  QTest::addColumn<QString>("folder");
  for (const QString& folder : kLinuxFolders) QTest::newRow(qPrintable(folder)) << folder;
}

void TestSafety::everyLinuxFolder() {
  QFETCH(QString, folder);
  expectOnEitherHost(m_home.path(folder), true);
  expectOnEitherHost(m_home.path(folder + u"/x"_s), false);
  expectOnEitherHost(m_home.path(folder) + u'x', false);
}

void TestSafety::everyLinuxSecret_data() {
  QTest::addColumn<QString>("folder");
  for (const QString& folder : kLinuxSecrets) QTest::newRow(qPrintable(folder)) << folder;
}

void TestSafety::everyLinuxSecret() {
  QFETCH(QString, folder);
  expectOnEitherHost(m_home.path(folder), true);
  expectOnEitherHost(m_home.path(folder + u"/x"_s), true);
  expectOnEitherHost(m_home.path(folder + u"/x/y"_s), true);
  expectOnEitherHost(m_home.path(folder) + u'x', false);
  expectOnEitherHost(m_home.path(u"x/"_s + folder), false);
}

void TestSafety::otherAppsSettingsAreNoSecret() {
  for (const char* path : {".var/app/org.gnome.Maps/config/x", ".var/app/org.mozilla.firefox/cache/x",
                           "snap/firefox/common/.cache/x", "snap/editor/common/config/x", ".config/Code/logs",
                           ".docker/contexts", ".var/app/org.mozilla.firefox", "snap/firefox/common"})
    expectOnEitherHost(m_home.path(QString::fromLatin1(path)), false);
}

void TestSafety::homeOfThePasswordDatabase() {
  const QString home = places::passwordHome();
  if (home.count(u'/') == 0) QSKIP("the password database names no home folder");
  expectOnEitherHost(home, true);
  expectOnEitherHost(home + u"/x"_s, false);
  expectOnEitherHost(home + u"/.cache/x"_s, false);
  expectOnEitherHost(home + u"/Documents"_s, true);
  expectOnEitherHost(home + u"/.ssh/id"_s, true);
}

void TestSafety::passwordHomeThatIsNone_data() {
  QTest::addColumn<QString>("home");
  for (const char* home : {"", "/", "//", "/.", "relative", "/var", "/run/", "/nix"})
    QTest::newRow(home) << QString::fromLatin1(home);
}

// Else all of the system would be an exception.
void TestSafety::passwordHomeThatIsNone() {
  QFETCH(QString, home);
  const Variable host("TARNWICK_HOST", "linux");
  const auto locations = safety::Locations::withPasswordHome(home);
  for (const QString& root : kLinuxRoots) QVERIFY2(locations->hold(QString(root + u"/x/y"_s)), qPrintable(root));
  QVERIFY(!locations->hold(u"/var/tmp/x"));
}

void TestSafety::passwordHomeBehindALink() {
  const QString inVar = u"/var/lib"_s;
  if (QFileInfo(inVar).canonicalFilePath() != inVar) QSKIP("/var/lib is missing or a link");
  const Variable host("TARNWICK_HOST", "linux");
  const QString link = m_home.outside(u"people/her"_s);
  m_home.link(link, inVar);
  const auto locations = safety::Locations::withPasswordHome(link);
  QVERIFY(!locations->hold(QString(inVar + u"/.cache/x"_s)));
  QVERIFY(!locations->hold(QString(link + u"/.cache/x"_s)));
  QVERIFY(locations->hold(QString(inVar + u"/.ssh/x"_s)));
  QVERIFY(locations->hold(inVar));
  QVERIFY(locations->hold(u"/var/x/y"));
  for (const QString& root : {u"/var"_s, u"/"_s}) {
    const QString other = m_home.outside(u"people"_s + root.mid(1) + u"/he"_s);
    m_home.link(other, root);
    QVERIFY2(safety::Locations::withPasswordHome(other)->hold(u"/var/x/y"), qPrintable(root));
  }
}

void TestSafety::homeThroughALink() {
  const QString link = m_home.outside(u"people/i"_s);
  m_home.link(link, m_home.path());
  const Variable home("HOME", link.toUtf8());
  for (const QString& spelling : {link, m_home.path()}) {
    expectOnEitherHost(spelling, true);
    expectOnEitherHost(spelling + u"/Documents"_s, true);
    expectOnEitherHost(spelling + u"/.ssh/x"_s, true);
    expectOnEitherHost(spelling + u"/x"_s, false);
  }
}

void TestSafety::localisedFolders() {
  const FixtureHome home;
  QFile list(home.file(u".config/user-dirs.dirs"_s));
  QVERIFY(list.open(QIODevice::WriteOnly));
  list.write("XDG_PICTURES_DIR=\"$HOME/Bilder\"\nXDG_VIDEOS_DIR=\"/srv/media/Filme\"\n"
             "XDG_MUSIC_DIR=\"/mnt/media/Musik\"\n");
  list.close();
  expectOnEitherHost(home.path(u"Bilder"_s), true);
  expectOnEitherHost(home.path(u"Bilder/x"_s), false);
  expectOnEitherHost(u"/mnt/media/Musik"_s, true);
  expectOnEitherHost(u"/mnt/media/Musik/x"_s, false);
  expectOnEitherHost(home.path(u"Filme"_s), false);
}

void TestSafety::movedXdgFolders() {
  const Variable cache("XDG_CACHE_HOME", m_home.outside(u"xdg/cache"_s).toUtf8());
  const Variable config("XDG_CONFIG_HOME", m_home.outside(u"xdg/config"_s).toUtf8());
  const Variable data("XDG_DATA_HOME", m_home.outside(u"xdg/data"_s).toUtf8());
  for (const QString& folder : {u"cache"_s, u"config"_s, u"data"_s}) {
    expectOnEitherHost(m_home.outside(u"xdg/"_s + folder), true);
    expectOnEitherHost(m_home.outside(u"xdg/"_s + folder + u"/x"_s), false);
  }
  expectOnEitherHost(m_home.outside(u"xdg/data/keyrings/x"_s), true);
  expectOnEitherHost(m_home.outside(u"xdg/config/gh/x"_s), true);
  expectOnEitherHost(m_home.path(u".config/gh/x"_s), true);
  expectOnEitherHost(m_home.path(u".local/share/keyrings/x"_s), true);
}

void TestSafety::homeThatIsNone_data() {
  QTest::addColumn<QByteArray>("variable");
  QTest::newRow("unset") << QByteArray();
  QTest::newRow("relative") << QByteArray("me");
  QTest::newRow("root") << QByteArray("/");
  QTest::newRow("roots") << QByteArray("//.");
}

void TestSafety::homeThatIsNone() {
  QFETCH(QByteArray, variable);
  const Variable home("HOME", variable);
  if (variable.isNull()) qunsetenv("HOME");
  expectOnEitherHost(u"/usr/x"_s, true);
  expectOnEitherHost(u"/mnt/x/y"_s, false);
  expectOnEitherHost(u"me/Documents"_s, true);
  if (places::passwordHome().isEmpty()) return;
  expectOnEitherHost(places::passwordHome() + u"/Documents"_s, true);
  expectOnEitherHost(places::passwordHome() + u"/.ssh/x"_s, true);
}

void TestSafety::summary() {
  {
    const Variable host("TARNWICK_HOST", "mac");
    QCOMPARE(safety::protectedSummary(), u"/System, /usr, /bin, /Library/Apple"_s);
  }
  const Variable host("TARNWICK_HOST", "linux");
  QCOMPARE(safety::protectedSummary(), u"/usr, /etc, /boot, /var"_s);
}

// The lists of an environment are made by whoever asks first.
void TestSafety::manyThreads() {
  for (int round = 0; round < 20; ++round) {
    const Variable config("XDG_CONFIG_HOME", m_home.outside(QString::number(round)).toUtf8());
    const QString secret = m_home.outside(QString::number(round)) + u"/gh/x"_s;
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
      threads.emplace_back([&] {
        for (int n = 0; n < 200; ++n)
          if (!safety::isProtected(secret) || safety::isProtected(secret.chopped(5) + u"x/y"_s)) ++wrong;
      });
    for (std::thread& thread : threads) thread.join();
    QCOMPARE(wrong.load(), 0);
  }
}

QTEST_GUILESS_MAIN(TestSafety)
#include "tst_safety.moc"
