#include "core/appguard.h"

#include "support/FixtureHome.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace appguard;

namespace {
RunningApps running(const QStringList& ids, const QStringList& processes = {}) {
  RunningApps apps;
  for (const QString& id : ids) apps.bundleIds.insert(id);
  for (const QString& name : processes) apps.processes.insert(name);
  return apps;
}
} // namespace

/// What is decided from snapshots: who owns a path, and what counts as open.
class TestAppGuard : public QObject {
  Q_OBJECT

 private slots:
  void init() { qputenv("TARNWICK_HOST", "mac"); }
  void cleanup() { qunsetenv("TARNWICK_HOST"); }

  void ownerTable_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("process");
    QTest::addColumn<QString>("owner");
    const auto row = [](const char* path, const char* id, const char* process, const char* owner) {
      QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(id) << QString::fromUtf8(process)
                          << QString::fromUtf8(owner);
    };
    row("/U/me/Library/Caches/Google/Chrome/Default", "com.google.chrome", "chrome", "Google Chrome");
    row("/U/me/Library/Caches/Microsoft/Edge", "com.microsoft.edgemac", "msedge", "Microsoft Edge");
    row("/U/me/Library/Caches/com.microsoft.edgemac/x", "com.microsoft.edgemac", "msedge", "Microsoft Edge");
    row("/U/me/Library/Caches/BraveSoftware/Brave-Browser", "com.brave.browser", "brave", "Brave");
    row("/U/me/Library/Caches/Mozilla/Firefox/x", "org.mozilla.firefox", "firefox", "Firefox");
    row("/U/me/Library/Caches/Firefox/Profiles", "org.mozilla.firefox", "firefox", "Firefox");
    row("/U/me/Library/Caches/com.apple.Safari", "com.apple.safari", "safari", "Safari");
    row("/U/me/Library/Application Support/Code/Cache", "com.microsoft.vscode", "code", "Visual Studio Code");
    row("/U/me/Library/Application Support/Slack", "com.tinyspeck.slackmacgap", "slack", "Slack");
    row("/U/me/Library/Application Support/Spotify/x", "com.spotify.client", "spotify", "Spotify");
    row("/U/me/Library/Application Support/discord/Cache", "com.hnc.discord", "discord", "Discord");
  }
  void ownerTable() {
    QFETCH(QString, path);
    QFETCH(QString, id);
    QFETCH(QString, process);
    for (const char* host : {"mac", "linux"}) {
      qputenv("TARNWICK_HOST", host);
      QTEST(runningOwner(path, running({id})), "owner");
      QTEST(runningOwner(path, running({}, {process})), "owner");
      QTEST(runningOwner(path.toUpper(), running({id})), "owner");
      QCOMPARE(runningOwner(path, running({u"com.other.app"_s}, {u"other"_s})), QString());
    }
  }

  void linuxOwnerTable_data() {
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("process");
    QTest::addColumn<QString>("owner");
    const auto row = [](const char* folder, const char* id, const char* process, const char* owner) {
      QTest::newRow(folder) << QString::fromUtf8(folder) << QString::fromUtf8(id) << QString::fromUtf8(process)
                            << QString::fromUtf8(owner);
    };
    row("google-chrome", "com.google.chrome", "chrome", "Google Chrome");
    row("google-chrome-beta", "com.google.chrome", "chrome", "Google Chrome");
    row("chromium", "org.chromium.chromium", "chromium", "Chromium");
    row("microsoft-edge", "com.microsoft.edge", "msedge", "Microsoft Edge");
    row("vivaldi", "com.vivaldi.vivaldi", "vivaldi", "Vivaldi");
    row("opera", "com.opera.opera", "opera", "Opera");
  }
  void linuxOwnerTable() {
    QFETCH(QString, folder);
    QFETCH(QString, id);
    QFETCH(QString, process);
    const QString path = u"/media/stick/"_s + folder + u"/Default"_s;
    // On macOS the folder names are others, and these say nothing.
    QCOMPARE(runningOwner(path, running({id}, {process})), QString());
    qputenv("TARNWICK_HOST", "linux");
    QTEST(runningOwner(path, running({id})), "owner");
    QTEST(runningOwner(path, running({}, {process})), "owner");
    QCOMPARE(runningOwner(path, running({}, {u"other"_s})), QString());
  }

  void aRowWithTwoPartsNeedsBoth() {
    const RunningApps apps = running({u"com.google.chrome"_s, u"com.microsoft.edgemac"_s});
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/Google/Other"_s, apps), QString());
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/Google"_s, apps), QString());
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/Chrome/Google"_s, apps), QString());
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/Google/x/Chrome"_s, apps), QString());
    QCOMPARE(runningOwner(u"/U/me//Library/./Caches/Google//x/../Chrome/"_s, apps), u"Google Chrome"_s);
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/Microsoft"_s, apps), QString());
  }

  void onlyAWholePartCounts() {
    const RunningApps apps = running({}, {u"code"_s, u"slack"_s});
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/codecs/slackware"_s, apps), QString());
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/Code"_s, apps), u"Visual Studio Code"_s);
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/Code"_s, running({}, {u"slack"_s})), QString());
  }

  void theEarliestPartWins() {
    const QString path = u"/U/me/Library/Caches/discord/slack/com.example.app"_s;
    const QString id = u"com.example.app"_s;
    QCOMPARE(runningOwner(path, running({id}, {u"discord"_s, u"slack"_s})), u"Discord"_s);
    QCOMPARE(runningOwner(path, running({id}, {u"slack"_s})), u"Slack"_s);
    QCOMPARE(runningOwner(path, running({id})), id);
  }

  void aPartThatIsAnId() {
    RunningApps apps = running({u"com.example.app"_s, u"com.example"_s, u"com.named.app"_s, u"com.brave.browser"_s});
    apps.appNames.insert(u"com.named.app"_s, u"Named App"_s);
    apps.appNames.insert(u"com.example"_s, u"Example"_s);
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/com.Example.App/x"_s, apps), u"com.example.app"_s);
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/com.named.app"_s, apps), u"Named App"_s);
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/com.brave.browser"_s, apps), u"com.brave.browser"_s);
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/com.example"_s, apps), QString());
    QCOMPARE(runningOwner(u"/U/me/Library/Caches/com.example.app.helper"_s, apps), QString());
  }

  void noPartsNoOwner() {
    const RunningApps apps = running({u"com.example.app"_s, QString()}, {QString()});
    for (const char* host : {"mac", "linux"}) {
      qputenv("TARNWICK_HOST", host);
      QCOMPARE(runningOwner(QString(), apps), QString());
      QCOMPARE(runningOwner(u"/"_s, apps), QString());
      QCOMPARE(runningOwner(u"//"_s, apps), QString());
    }
  }

  void aCacheIsOwnedByItsName_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("owner");
    const auto row = [](const char* path, const char* owner) {
      QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(owner);
    };
    row(".cache/Mumble", "Mumble");
    row(".cache/mumble/deeper/below", "mumble");
    row(".cache/other/mumble", "");
    row(".cache/mumble-extras", "");
    row(".cache/hexchat", "HexChat");
    row(".Cache/mumble", "");
    row(".cache/org.gnome.Maps", "Maps");
    row(".cache", "");
    row("mumble", "");
    row("Documents/mumble", "");
    row(".config/mumble", "");
    row(".var/app/org.gnome.Maps/cache", "Maps");
    row(".var/app/org.gnome.Maps/cache/tiles", "Maps");
    row(".var/app/org.idle.App/cache", "");
    row(".var/app/org.idle.App/cache/mumble", "mumble");
    row(".var/app/org.idle.App/cache/other/mumble", "");
    row(".var/app/org.idle.App/data/mumble", "");
    row("snap/hexchat/common/.cache", "HexChat");
    row("snap/hexchat/common/.cache/fontconfig", "HexChat");
    row("snap/hexchat/common", "");
    row("snap/hexchat/common/.config/x", "");
    row("snap/idle/common/.cache", "");
    row("snap/idle/common/.cache/mumble", "mumble");
  }
  void aCacheIsOwnedByItsName() {
    QFETCH(QString, path);
    const FixtureHome home;
    RunningApps apps = running({u"org.gnome.maps"_s, u"hexchat"_s}, {u"mumble"_s});
    apps.appNames.insert(u"org.gnome.maps"_s, u"Maps"_s);
    apps.appNames.insert(u"hexchat"_s, u"HexChat"_s);
    qputenv("TARNWICK_HOST", "linux");
    QTEST(runningOwner(home.path(path), apps), "owner");
    QCOMPARE(runningOwner(home.path(path), running({u"org.else.App"_s}, {u"else"_s})), QString());
  }

  void cacheNamesAreOfTheLinuxHostAlone() {
    const FixtureHome home;
    QCOMPARE(runningOwner(home.path(u".cache/mumble"_s), running({}, {u"mumble"_s})), QString());
    QCOMPARE(runningOwner(home.path(u"snap/mumble/common/.cache"_s), running({u"mumble"_s})), QString());
  }

  void theCacheMayLieElsewhere() {
    const FixtureHome home;
    const RunningApps apps = running({}, {u"mumble"_s});
    qputenv("TARNWICK_HOST", "linux");
    qputenv("XDG_CACHE_HOME", home.outside(u"caches"_s).toUtf8());
    QCOMPARE(runningOwner(home.outside(u"caches/mumble/x"_s), apps), u"mumble"_s);
    QCOMPARE(runningOwner(home.path(u".cache/mumble"_s), apps), QString());
    qunsetenv("XDG_CACHE_HOME");
    QCOMPARE(runningOwner(home.outside(u"caches/mumble/x"_s), apps), QString());
  }

  void ownersAreFitForALog() {
    const FixtureHome home;
    RunningApps apps = running({u"org.odd.app"_s}, {u"two\nlines"_s});
    apps.appNames.insert(u"org.odd.app"_s, u"\u202egpj"_s);
    qputenv("TARNWICK_HOST", "linux");
    QCOMPARE(runningOwner(home.path(u".cache/two\nlines"_s), apps), u"two\\nlines"_s);
    QCOMPARE(runningOwner(home.path(u".cache/org.odd.App"_s), apps), u"\\u{202e}gpj"_s);
  }

  void knownNames() {
    QCOMPARE(knownAppName(u"org.mozilla.firefox"_s), u"Firefox"_s);
    QCOMPARE(knownAppName(u"com.vivaldi.vivaldi"_s), u"Vivaldi"_s);
    QCOMPARE(knownAppName(u"chromium"_s), u"Chromium"_s);
    QCOMPARE(knownAppName(u"org.gnome.maps"_s), QString());
    QCOMPARE(knownAppName(QString()), QString());
  }

  void openFilesKnowTheirParents() {
    OpenFiles open;
    open.add(u"/a/b/c.txt"_s);
    QVERIFY(open.contains(u"/a/b/c.txt"_s));
    QVERIFY(!open.contains(u"/a/b"_s));
    QVERIFY(!open.contains(u"/a/b/C.TXT"_s));
    QVERIFY(open.containsUnder(u"/a"_s));
    QVERIFY(open.containsUnder(u"/a/b"_s));
    QVERIFY(!open.containsUnder(u"/a/b/c.txt"_s));
    QVERIFY(!open.containsUnder(u"/a/bc"_s));
    QVERIFY(!open.parents.contains(u"/"_s));
    QVERIFY(open.contains(u"/a//x/../b/./c.txt/"_s));
    QVERIFY(open.containsUnder(u"/a/b/"_s));
  }

  void openFilesShareParents() {
    OpenFiles open;
    open.add(u"/a/b/c/1"_s);
    open.add(u"/a/b/2"_s);
    open.add(u"/a/d/3"_s);
    open.add(u"/top"_s);
    QCOMPARE(open.parents, (QSet<QString>{u"/a"_s, u"/a/b"_s, u"/a/b/c"_s, u"/a/d"_s}));
    QCOMPARE(open.files, (QSet<QString>{u"/a/b/c/1"_s, u"/a/b/2"_s, u"/a/d/3"_s, u"/top"_s}));
  }
};

QTEST_GUILESS_MAIN(TestAppGuard)
#include "tst_appguard.moc"
