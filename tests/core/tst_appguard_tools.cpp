#include "core/appguard.h"

#include "support/FixtureHome.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace appguard;

namespace {
QByteArray plist(const QByteArray& dict) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
         "<plist version=\"1.0\">\n<dict>" +
         dict + "</dict>\n</plist>\n";
}

QByteArray plistWithId(const QByteArray& id) {
  return plist("<key>CFBundleName</key><string>x</string><key>CFBundleIdentifier</key><string>" + id + "</string>");
}

void write(const QString& path, const QByteArray& text) {
  QFile file(path);
  QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(), qPrintable(path));
}

/// A bundle with an executable of its name; returns the bundle's path.
QString bundle(const FixtureHome& home, const QString& path, const QByteArray& id) {
  home.folder(path + u"/Contents/MacOS"_s);
  write(home.path(path + u"/Contents/Info.plist"_s), plistWithId(id));
  return home.path(path);
}

/// A tool that runs @p body; its arguments are in the file ARGS beside it.
QString tool(const FixtureHome& home, const QString& name, const QByteArray& body) {
  const QString path = home.file(u"tools/"_s + name, 0);
  write(path, "#!/bin/sh\nfor a; do printf '%s\\n' \"$a\"; done > \"${0%/*}/ARGS\"\n" + body + "\n");
  QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  return path;
}

QStringList argumentsSeen(const FixtureHome& home) {
  QFile file(home.path(u"tools/ARGS"_s));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                                        : QStringList();
}
} // namespace

/// The macOS route, with text and with tools that stand in for the system's.
class TestAppGuardTools : public QObject {
  Q_OBJECT

 private slots:
  void aBundleAddsIdNameAndProcess() {
    const FixtureHome home;
    const QString app = bundle(home, u"Applications/Slack.app"_s, "com.tinyspeck.SlackMacGap");
    const RunningApps apps = tools::parseProcesses(app + u"/Contents/MacOS/Slack\n"_s);
    QCOMPARE(apps.bundleIds, QSet<QString>{u"com.tinyspeck.slackmacgap"_s});
    QCOMPARE(apps.appNames, (QHash<QString, QString>{{u"com.tinyspeck.slackmacgap"_s, u"Slack"_s}}));
    QCOMPARE(apps.processes, QSet<QString>{u"slack"_s});
    QCOMPARE(apps.processDirs, QList<QString>{(app + u"/Contents/MacOS/"_s).toLower()});
  }

  void severalLines() {
    const RunningApps apps =
        tools::parseProcesses(u"/usr/sbin/distnoted\n\n   \n  launchd  \n/opt//x/../Tool.EXE\n/usr/sbin/distnoted\n"_s);
    QCOMPARE(apps.processes, (QSet<QString>{u"distnoted"_s, u"launchd"_s, u"tool"_s}));
    QCOMPARE(apps.processDirs, (QList<QString>{u"/usr/sbin/"_s, QString(), u"/opt/"_s, u"/usr/sbin/"_s}));
    QVERIFY(apps.bundleIds.isEmpty());
  }

  void noOutputNothingRuns() {
    const RunningApps apps = tools::parseProcesses(QString());
    QVERIFY(apps.processes.isEmpty() && apps.processDirs.isEmpty() && apps.bundleIds.isEmpty());
  }

  void nestedBundlesBothCount() {
    const FixtureHome home;
    const QString outer = bundle(home, u"Applications/A.app"_s, "com.example.a");
    const QString inner = bundle(home, u"Applications/A.app/Contents/Frameworks/B b.app"_s, "com.example.b");
    const RunningApps apps = tools::parseProcesses(inner + u"/Contents/MacOS/B"_s);
    QCOMPARE(apps.bundleIds, (QSet<QString>{u"com.example.a"_s, u"com.example.b"_s}));
    QCOMPARE(apps.appNames.value(u"com.example.a"_s), u"A"_s);
    QCOMPARE(apps.appNames.value(u"com.example.b"_s), u"B b"_s);
  }

  void bundlesAreFoundInAnyCase() {
    const FixtureHome home;
    const QString app = bundle(home, u"Applications/FOO.APP"_s, "com.example.FOO");
    const RunningApps apps = tools::parseProcesses(app + u"/Contents/MacOS/foo"_s);
    QCOMPARE(apps.bundleIds, QSet<QString>{u"com.example.foo"_s});
    QCOMPARE(apps.appNames.value(u"com.example.foo"_s), u"FOO"_s);
  }

  void aBundleMustBeAFolderOnTheWay() {
    const FixtureHome home;
    const QString app = bundle(home, u"Applications/Last.app"_s, "com.example.last");
    QVERIFY(tools::parseProcesses(app).bundleIds.isEmpty());
    QVERIFY(tools::parseProcesses(home.path(u"Applications/Last.apps/x"_s)).bundleIds.isEmpty());
  }

  void theFirstNameOfAnIdStays() {
    const FixtureHome home;
    const QString first = bundle(home, u"Applications/First.app"_s, "com.example.twice");
    const QString second = bundle(home, u"Applications/Second.app"_s, "com.example.twice");
    const RunningApps apps =
        tools::parseProcesses(first + u"/Contents/MacOS/x\n"_s + second + u"/Contents/MacOS/x\n"_s);
    QCOMPARE(apps.bundleIds.size(), 1);
    QCOMPARE(apps.appNames.value(u"com.example.twice"_s), u"First"_s);
  }

  void anUnreadableBundleIsAskedOnceAProcess() {
    const FixtureHome home;
    const QString line = home.path(u"Applications/Late.app/Contents/MacOS/Late"_s);
    QVERIFY(tools::parseProcesses(line).bundleIds.isEmpty());
    bundle(home, u"Applications/Late.app"_s, "com.example.late");
    const RunningApps apps = tools::parseProcesses(line);
    QVERIFY(apps.bundleIds.isEmpty());
    QVERIFY(apps.processes.contains(u"late"_s));
  }

  void aReadIdIsKeptForTheProcess() {
    const FixtureHome home;
    const QString line = bundle(home, u"Applications/Kept.app"_s, "com.example.kept") + u"/Contents/MacOS/Kept"_s;
    QVERIFY(tools::parseProcesses(line).bundleIds.contains(u"com.example.kept"_s));
    QVERIFY(QFile::remove(home.path(u"Applications/Kept.app/Contents/Info.plist"_s)));
    QVERIFY(tools::parseProcesses(line).bundleIds.contains(u"com.example.kept"_s));
  }

  void identifiersInXml_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("id");
    const QByteArray id = "<key>CFBundleIdentifier</key><string>com.example.A</string>";
    QTest::newRow("plain") << plist(id) << u"com.example.A"_s;
    QTest::newRow("after other kinds of values")
        << plist("<key>a</key><true/><key>b</key><array><string>x</string></array><key>c</key><dict>"
                 "<key>CFBundleIdentifier</key><string>inner</string></dict><key>d</key><integer>4</integer>" +
                 id)
        << u"com.example.A"_s;
    QTest::newRow("as a value of another key")
        << plist("<key>a</key><string>CFBundleIdentifier</string><key>b</key><string>c</string>") << QString();
    QTest::newRow("of another type") << plist("<key>CFBundleIdentifier</key><array><string>x</string></array>")
                                     << QString();
    QTest::newRow("missing") << plist("<key>CFBundleName</key><string>x</string>") << QString();
    QTest::newRow("an entity") << plist("<key>CFBundleIdentifier</key><string>a&amp;b</string>") << u"a&b"_s;
    QTest::newRow("broken off after the id") << plist(id).left(plist(id).indexOf("</dict>")) << u"com.example.A"_s;
    QTest::newRow("broken off before it") << plist(id).left(plist(id).indexOf("com.")) << QString();
    QTest::newRow("another document") << QByteArray("<html><dict>" + id + "</dict></html>") << QString();
    QTest::newRow("binary") << QByteArray("bplist00\xd1\x01\x02") << QString();
    QTest::newRow("empty") << QByteArray() << QString();
  }
  void identifiersInXml() {
    QFETCH(QByteArray, text);
    QTEST(tools::identifierFromXml(text), "id");
  }

  void openFilesAreTheAbsoluteNames() {
    const OpenFiles open = tools::parseOpenFiles(
        u"p123\nfcwd\nn/a/b\nf3\nn/a/b//x/../c.txt\nf4\nnlocalhost:123\nn->0x12\nnpipe\nN/no\nf5\nn/a/with space \n"_s);
    QCOMPARE(open.files, (QSet<QString>{u"/a/b"_s, u"/a/b/c.txt"_s, u"/a/with space "_s}));
    QCOMPARE(open.parents, (QSet<QString>{u"/a"_s, u"/a/b"_s}));
  }

  void openFilesHaveNoEscapesAndOneForm() {
    const OpenFiles open = tools::parseOpenFiles(
        u"n/a/new\\nline\nn/a/\\xc3\\xa9\nn/a/back\\\\slash\nn/a/e\u0301\nn/a/old\\name\nn/a/odd\\q\\xzz\\\n"_s);
    for (const QString& path :
         {u"/a/new\nline"_s, u"/a/\u00e9"_s, u"/a/back\\slash"_s, u"/a/old\\name"_s, u"/a/odd\\q\\xzz\\"_s})
      QVERIFY2(open.contains(path), qPrintable(path));
    QVERIFY(!open.contains(u"/a/e\u0301"_s));
  }

  void theProcessListIsAskedFromPs() {
    const FixtureHome home;
    const QString app = bundle(home, u"Applications/Real One.app"_s, "com.example.real");
    Sources sources;
    sources.ps = tool(home, u"ps"_s, "echo '" + (app + u"/Contents/MacOS/Real"_s).toUtf8() + "'\necho /sbin/launchd");
    const RunningApps apps = tools::runningApps(sources);
    QCOMPARE(argumentsSeen(home), (QStringList{u"-axo"_s, u"comm="_s}));
    QCOMPARE(apps.bundleIds, QSet<QString>{u"com.example.real"_s});
    QCOMPARE(apps.processes, (QSet<QString>{u"real"_s, u"launchd"_s}));
  }

  void openFilesAreAskedFromLsof() {
    const FixtureHome home;
    Sources sources;
    sources.lsof = tool(home, u"lsof"_s, "printf 'p1\\nf3\\nn/a/b\\n'");
    QCOMPARE(tools::openFiles(sources).files, QSet<QString>{u"/a/b"_s});
    QCOMPARE(argumentsSeen(home),
             (QStringList{u"-n"_s, u"-P"_s, u"-w"_s, u"-F"_s, u"n"_s, u"-u"_s, QString::number(::getuid())}));
  }

  void oneFileIsInUseIfLsofSaysSo() {
    const FixtureHome home;
    Sources sources;
    sources.lsof = tool(home, u"lsof"_s, "echo 4711");
    QVERIFY(tools::isFileInUse(u"-odd name"_s, sources));
    QCOMPARE(argumentsSeen(home), (QStringList{u"-t"_s, u"--"_s, u"-odd name"_s}));
    sources.lsof = tool(home, u"lsof"_s, "echo 4711; exit 1");
    QVERIFY(!tools::isFileInUse(u"/a"_s, sources));
  }

  void aToolThatFailsTellsNothing_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("over the limit") << QByteArray("echo /sbin/launchd; echo n/a/b; exec sleep 30");
    QTest::newRow("crashed at once") << QByteArray("kill -SEGV $$");
    QTest::newRow("missing") << QByteArray();
  }
  void aToolThatFailsTellsNothing() {
    QFETCH(QByteArray, body);
    const FixtureHome home;
    Sources sources;
    sources.toolLimitMs = 200;
    sources.openFilesLimitMs = 200;
    sources.ps = sources.lsof = body.isEmpty() ? u"/nonexistent/tool"_s : tool(home, u"tool"_s, body);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(tools::runningApps(sources).processes.isEmpty());
    QVERIFY(tools::openFiles(sources).files.isEmpty());
    QVERIFY(!tools::isFileInUse(u"/a/b"_s, sources));
    QVERIFY(clock.elapsed() < 20000);
  }

  void theLimits() {
    const Sources sources;
    QCOMPARE(sources.ps, u"/bin/ps"_s);
    QCOMPARE(sources.lsof, u"/usr/sbin/lsof"_s);
    QCOMPARE(sources.toolLimitMs, 10000);
    QCOMPARE(sources.openFilesLimitMs, 30000);
  }

  void controlCharactersHaveTwoReadings() {
    const OpenFiles open = tools::parseOpenFiles(u"n/a/one^Atwo\nn/a/^?\nn/a/up^\nn/a/^A\\n\n"_s);
    for (const QString& path :
         {u"/a/one^Atwo"_s, u"/a/one\x01two"_s, u"/a/^?"_s, u"/a/\x7f"_s, u"/a/up^"_s, u"/a/^A\n"_s, u"/a/\x01\n"_s})
      QVERIFY2(open.contains(path), qPrintable(path));
  }

  void theRealToolsAreUnderstood() {
    Sources sources;
    for (const QString& path : {u"/usr/bin/lsof"_s, u"/usr/sbin/lsof"_s})
      if (QFile::exists(path)) sources.lsof = path;
    if (!QFile::exists(sources.ps) || !QFile::exists(sources.lsof)) QSKIP("ps and lsof are not installed");
    const FixtureHome home;
    QFile file(home.file(u"a folder/n\u00e4me\nwith\\back\x01"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!tools::runningApps(sources).processes.isEmpty());
    const OpenFiles open = tools::openFiles(sources);
    QVERIFY(open.contains(file.fileName()));
    QVERIFY(open.containsUnder(home.path()));
    QVERIFY(tools::isFileInUse(file.fileName(), sources));
    file.close();
    QVERIFY(!tools::isFileInUse(file.fileName(), sources));
  }
};

QTEST_GUILESS_MAIN(TestAppGuardTools)
#include "tst_appguard_tools.moc"
