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
};

QTEST_GUILESS_MAIN(TestAppGuard)
#include "tst_appguard.moc"
