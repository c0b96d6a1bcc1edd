#include "core/appguard.h"

#include "support/FixtureHome.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace appguard;

namespace {
/// A folder of links that looks like the process file system.
class FakeProc {
 public:
  explicit FakeProc(const FixtureHome& home) : m_home(home), m_root(home.folder(home.outside(u"proc"_s))) {
    sources.procRoot = m_root;
  }
  Sources sources;

  [[nodiscard]] QString at(const QString& relative) const { return m_root + u'/' + relative; }
  void link(const QString& relative, const QString& target) const { m_home.link(at(relative), target); }
  void linkRaw(const QString& relative, const QByteArray& target) const {
    m_home.folder(QFileInfo(at(relative)).path());
    QCOMPARE(::symlink(target.constData(), QFile::encodeName(at(relative)).constData()), 0);
  }
  void write(const QString& relative, const QByteArray& text) const {
    QFile file(m_home.file(at(relative), 0));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), text.size());
  }

 private:
  const FixtureHome& m_home;
  QString m_root;
};

QByteArray mapLine(const QByteArray& path) { return "7f00-7f10 r-xp 00000000 08:01 42      " + path + "\n"; }
} // namespace

/// Running apps and open files out of the process file system: a made-up one, and the real one.
class TestProcFs : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { qunsetenv("TARNWICK_HOST"); }

  void names_data() {
    QTest::addColumn<QString>("executable");
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char* executable, const QStringList& names) {
      QTest::newRow(executable) << QString::fromUtf8(executable) << names;
    };
    row("/usr/bin/nautilus", {u"nautilus"_s});
    row("/usr/share/discord/Discord", {u"discord"_s});
    row("/usr/lib/firefox-esr/firefox-esr", {u"firefox-esr"_s, u"firefox"_s});
    row("/usr/lib/thunderbird/thunderbird-bin", {u"thunderbird-bin"_s, u"thunderbird"_s});
    row("/usr/lib/firefox-esr/firefox-esr-bin", {u"firefox-esr-bin"_s, u"firefox"_s});
    row("/usr/bin/python3.11", {u"python3.11"_s, u"python"_s});
    row("/usr/bin/gimp-2.10", {u"gimp-2.10"_s, u"gimp"_s});
    row("/usr/bin/tool_7", {u"tool_7"_s, u"tool"_s});
    row("/usr/bin/gtk4-demo", {u"gtk4-demo"_s});
    row("/usr/bin/x264", {u"x264"_s});
    row("/usr/bin/7z", {u"7z"_s});
    row("/usr/bin/1.2", {u"1.2"_s});
    row("/usr/bin/-bin", {u"-bin"_s});
    row("/opt/vivaldi/vivaldi-bin (deleted)", {u"vivaldi-bin"_s, u"vivaldi"_s});
    row("/home/me/with space/My Tool", {u"my tool"_s});
  }
  void names() {
    QFETCH(QString, executable);
    QFETCH(QStringList, names);
    const FixtureHome home;
    const FakeProc proc(home);
    proc.link(u"12/exe"_s, executable);
    QCOMPARE(runningApps(proc.sources).processes, QSet<QString>(names.begin(), names.end()));
  }

  void theShortNameCountsOnlyWithoutAnExecutable() {
    const FixtureHome home;
    const FakeProc proc(home);
    proc.link(u"12/exe"_s, u"/usr/bin/Real"_s);
    proc.write(u"12/comm"_s, "renamed\n");
    proc.write(u"13/comm"_s, "Other-User 2\n");
    proc.write(u"14/comm"_s, "kworker/0:1\n");
    proc.write(u"15/status"_s, "nothing of use\n");
    const RunningApps apps = runningApps(proc.sources);
    QCOMPARE(apps.processes, (QSet<QString>{u"real"_s, u"other-user 2"_s, u"kworker/0:1"_s}));
    QList<QString> folders = apps.processDirs;
    std::sort(folders.begin(), folders.end());
    QCOMPARE(folders, (QList<QString>{QString(), QString(), u"/usr/bin/"_s}));
  }

  void onlyNumbersAreProcesses() {
    const FixtureHome home;
    const FakeProc proc(home);
    proc.link(u"self/exe"_s, u"/usr/bin/a"_s);
    proc.link(u"12x/exe"_s, u"/usr/bin/b"_s);
    proc.link(u"12/exe"_s, u"/usr/bin/c"_s);
    proc.write(u"13"_s, "no folder");
    QCOMPARE(runningApps(proc.sources).processes, QSet<QString>{u"c"_s});
  }

  void anUnreadableSourceIsEmpty() {
    Sources sources;
    sources.procRoot = u"/nonexistent/proc"_s;
    const FixtureHome home;
    QVERIFY(runningApps(sources).processes.isEmpty());
    QVERIFY(openFiles(sources).files.isEmpty());
    QVERIFY(!isFileInUse(home.file(u"x"_s), sources));
  }

  void namesThatAreNoTextAreHarmless() {
    const FixtureHome home;
    const FakeProc proc(home);
    proc.linkRaw(u"12/exe"_s, "/opt/\xff\xfe/Na\xffme");
    proc.linkRaw(u"12/cwd"_s, "/opt/\xff\xfe");
    QCOMPARE(runningApps(proc.sources).processes, QSet<QString>{u"na\ufffdme"_s});
    QVERIFY(openFiles(proc.sources).containsUnder(u"/opt"_s));
  }

  void flatpaks_data() {
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::newRow("an app") << QByteArray(
                                   "[Application]\nname=org.gnome.Maps\nruntime=runtime/org.gnome.Platform/x86_64/45\n")
                            << u"org.gnome.maps"_s << u"Maps"_s;
    QTest::newRow("an app with a name of its own")
        << QByteArray("[Application]\nname=com.google.Chrome\n") << u"com.google.chrome"_s << u"Google Chrome"_s;
    QTest::newRow("a runtime") << QByteArray("[Runtime]\nname=org.gnome.Sdk\n") << u"org.gnome.sdk"_s << u"Sdk"_s;
    QTest::newRow("other groups first") << QByteArray(
                                               "[Instance]\nname=wrong\n\n[Application]\nruntime=x\nname=org.a.B\n")
                                        << u"org.a.b"_s << u"B"_s;
    QTest::newRow("another group") << QByteArray("[Instance]\nname=wrong\n") << QString() << QString();
    QTest::newRow("no group") << QByteArray("name=wrong\n") << QString() << QString();
    QTest::newRow("no name") << QByteArray("[Application]\nnames=x\n") << QString() << QString();
    QTest::newRow("empty") << QByteArray() << QString() << QString();
  }
  void flatpaks() {
    QFETCH(QByteArray, info);
    QFETCH(QString, id);
    QFETCH(QString, name);
    const FixtureHome home;
    const FakeProc proc(home);
    proc.link(u"12/exe"_s, u"/app/bin/prog"_s);
    proc.write(u"12/root/.flatpak-info"_s, info);
    const RunningApps apps = runningApps(proc.sources);
    QCOMPARE(apps.bundleIds, id.isEmpty() ? QSet<QString>() : QSet<QString>{id});
    QCOMPARE(apps.appNames.value(id), name);
    QVERIFY(apps.processes.contains(u"prog"_s));
  }

  void aSandboxFileThatIsNoneIsNeverWaitedFor() {
    const FixtureHome home;
    const FakeProc proc(home);
    proc.link(u"12/exe"_s, u"/app/bin/prog"_s);
    home.folder(proc.at(u"12/root"_s));
    QCOMPARE(::mkfifo(QFile::encodeName(proc.at(u"12/root/.flatpak-info"_s)).constData(), 0600), 0);
    proc.link(u"13/exe"_s, u"/app/bin/prog"_s);
    proc.write(u"info"_s, "[Application]\nname=org.a.Linked\n");
    proc.link(u"13/root/.flatpak-info"_s, proc.at(u"info"_s));
    QVERIFY(runningApps(proc.sources).bundleIds.isEmpty());
  }

  void snaps_data() {
    QTest::addColumn<QString>("executable");
    QTest::addColumn<QString>("snap");
    QTest::newRow("snap") << u"/snap/firefox/4173/usr/lib/firefox/firefox"_s << u"firefox"_s;
    QTest::newRow("elsewhere") << u"/var/lib/snapd/snap/Spot_second/60/usr/bin/spot"_s << u"spot_second"_s;
    QTest::newRow("of the home folder") << u"/home/me/snap/x/1/bin/y"_s << QString();
    QTest::newRow("no snap") << u"/snap/bin"_s << QString();
  }
  void snaps() {
    QFETCH(QString, executable);
    QFETCH(QString, snap);
    const FixtureHome home;
    const FakeProc proc(home);
    proc.link(u"12/exe"_s, executable);
    QCOMPARE(runningApps(proc.sources).bundleIds, snap.isEmpty() ? QSet<QString>() : QSet<QString>{snap});
  }

  // TARNWICK_HOST chooses tables and words, never where the facts come from.
  void theSourcesFollowTheBuiltSystem_data() {
    QTest::addColumn<QByteArray>("host");
    for (const char* host : {"", "linux", "mac"}) QTest::newRow(host) << QByteArray(host);
  }
  void theSourcesFollowTheBuiltSystem() {
    QFETCH(QByteArray, host);
    const FixtureHome home;
    FakeProc proc(home);
    const QString file = home.file(u"data/file"_s);
    proc.link(u"12/exe"_s, u"/usr/bin/nautilus"_s);
    proc.link(u"12/fd/3"_s, file);
    proc.sources.ps = proc.sources.lsof = u"/bin/false"_s; // what the other system would ask
    qputenv("TARNWICK_HOST", host);
    QCOMPARE(runningApps(proc.sources).processes, QSet<QString>{u"nautilus"_s});
    QVERIFY(openFiles(proc.sources).contains(file));
    QVERIFY(isFileInUse(file, proc.sources));
  }

  void ownersFollowFromTheProcesses() {
    const FixtureHome home;
    const FakeProc proc(home);
    proc.link(u"1/exe"_s, u"/usr/lib/firefox-esr/firefox-esr"_s);
    proc.link(u"2/exe"_s, u"/usr/bin/gimp-2.10"_s);
    proc.link(u"3/exe"_s, u"/app/bin/gjs"_s);
    proc.write(u"3/root/.flatpak-info"_s, "[Application]\nname=org.gnome.Maps\n");
    proc.link(u"4/exe"_s, u"/snap/chromium/9/usr/lib/chromium-browser/chrome"_s);
    const RunningApps apps = runningApps(proc.sources);
    qputenv("TARNWICK_HOST", "linux");
    const auto owner = [&](const QString& path) { return runningOwner(home.path(path), apps); };
    QCOMPARE(owner(u".cache/mozilla/firefox/a.default/cache2"_s), u"Firefox"_s);
    QCOMPARE(owner(u".cache/gimp"_s), u"gimp"_s);
    QCOMPARE(owner(u".var/app/org.gnome.Maps/cache"_s), u"Maps"_s);
    QCOMPARE(owner(u"snap/chromium/common/.cache/chromium"_s), u"Chromium"_s);
    QCOMPARE(owner(u".cache/inkscape"_s), QString());
  }

  void openFilesAreAllLinksOfAProcess() {
    const FixtureHome home;
    const FakeProc proc(home);
    proc.link(u"12/fd/0"_s, u"/dev/null"_s);
    proc.link(u"12/fd/17"_s, u"/data/a folder/file"_s);
    proc.link(u"12/cwd"_s, u"/data/here"_s);
    proc.link(u"12/root"_s, u"/chroot"_s);
    proc.link(u"12/exe"_s, u"/opt/tool"_s);
    proc.write(u"12/maps"_s,
               mapLine("/usr/lib/lib.so") + mapLine("[heap]") + mapLine("") + mapLine("/usr/lib/other.so"));
    proc.link(u"13/fd/3"_s, u"/data/second"_s);
    const OpenFiles open = openFiles(proc.sources);
    QCOMPARE(open.files,
             (QSet<QString>{u"/dev/null"_s, u"/data/a folder/file"_s, u"/data/here"_s, u"/chroot"_s, u"/opt/tool"_s,
                            u"/usr/lib/lib.so"_s, u"/usr/lib/other.so"_s, u"/data/second"_s}));
    QCOMPARE(open.roots, QSet<QString>{u"/chroot"_s});
    QVERIFY(open.contains(u"/data/here"_s));
    QVERIFY(open.containsUnder(u"/data"_s));
    QVERIFY(!open.containsUnder(u"/"_s));
  }

  void whatIsNoFileIsNotOpen() {
    const FixtureHome home;
    const FakeProc proc(home);
    proc.link(u"12/fd/1"_s, u"socket:[4711]"_s);
    proc.link(u"12/fd/2"_s, u"pipe:[4712]"_s);
    proc.link(u"12/fd/3"_s, u"anon_inode:[eventfd]"_s);
    proc.link(u"12/fd/4"_s, u"/memfd:shared (deleted)"_s);
    proc.link(u"12/fd/5"_s, home.path(u"gone (deleted)"_s));
    proc.link(u"12/fd/6"_s, home.file(u"really named (deleted)"_s));
    proc.link(u"12/cwd"_s, u"/"_s);
    proc.link(u"12/root"_s, u"/"_s);
    proc.write(u"12/maps"_s, mapLine("/dev/zero (deleted)") + mapLine("/memfd:pulse (deleted)"));
    QCOMPARE(openFiles(proc.sources).files, QSet<QString>{home.path(u"really named (deleted)"_s)});
  }

  void mappedNamesWithLineBreaks() {
    const FixtureHome home;
    const FakeProc proc(home);
    proc.write(u"12/maps"_s, mapLine("/a/new\\012line"));
    const OpenFiles open = openFiles(proc.sources);
    QVERIFY(open.contains(u"/a/new\nline"_s));
    // The system doesn't escape a backslash, so that may as well be the name.
    QVERIFY(open.contains(u"/a/new\\012line"_s));
  }

  void mapsLongerThanOneReadAreSeenWhole() {
    const FixtureHome home;
    const FakeProc proc(home);
    QByteArray maps;
    for (int i = 0; i < 5000; ++i) maps += mapLine("/lib/" + QByteArray(i % 97, 'n') + QByteArray::number(i));
    proc.write(u"12/maps"_s, maps);
    const OpenFiles open = openFiles(proc.sources);
    QCOMPARE(open.files.size(), 5000);
    QVERIFY(open.contains(u"/lib/"_s + QString(4999 % 97, u'n') + u"4999"_s));
  }

  void oneFileByAnyNameIsInUse() {
    const FixtureHome home;
    const FakeProc proc(home);
    const QString file = home.file(u"data/file"_s);
    const QString idle = home.file(u"data/idle"_s);
    const QString other = home.path(u"data/other name"_s);
    QCOMPARE(::link(file.toUtf8().constData(), other.toUtf8().constData()), 0);
    const QString symlink = home.link(u"data/link"_s, file);
    proc.link(u"12/fd/3"_s, file);
    QVERIFY(isFileInUse(file, proc.sources));
    QVERIFY(isFileInUse(other, proc.sources));
    QVERIFY(!isFileInUse(idle, proc.sources));
    QVERIFY(!isFileInUse(symlink, proc.sources));
    QVERIFY(!isFileInUse(home.path(u"data/missing"_s), proc.sources));
    proc.write(u"12/maps"_s, mapLine(idle.toUtf8()));
    QVERIFY(isFileInUse(idle, proc.sources));
  }

  void everyLinkPutsAFileInUse_data() {
    QTest::addColumn<QString>("link");
    for (const char* link : {"fd/9", "cwd", "root", "exe"}) QTest::newRow(link) << QString::fromUtf8(link);
  }
  void everyLinkPutsAFileInUse() {
    QFETCH(QString, link);
    const FixtureHome home;
    const FakeProc proc(home);
    const QString file = home.file(u"file"_s);
    proc.link(u"11/fd/0"_s, u"/dev/null"_s);
    QVERIFY(!isFileInUse(file, proc.sources));
    proc.link(u"12/"_s + link, file);
    QVERIFY(isFileInUse(file, proc.sources));
  }

  void theRealOneKnowsThisProcess() {
    const FixtureHome home;
    QFile file(home.file(u"a folder/n\u00e4me\nwith break"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(openFiles().contains(file.fileName()));
    QVERIFY(openFiles().containsUnder(home.path()));
    QVERIFY(isFileInUse(file.fileName()));
    file.close();
    QVERIFY(!openFiles().contains(file.fileName()));
    QVERIFY(!isFileInUse(file.fileName()));
  }

  void theRealOneKnowsMappedFiles() {
    const FixtureHome home;
    const QString path = home.file(u"mapped\nfile"_s);
    const int fd = ::open(path.toUtf8().constData(), O_RDONLY | O_CLOEXEC);
    void* memory = ::mmap(nullptr, 4096, PROT_READ, MAP_PRIVATE, fd, 0);
    ::close(fd);
    QVERIFY(memory != MAP_FAILED);
    QVERIFY(openFiles().contains(path));
    QVERIFY(isFileInUse(path));
    ::munmap(memory, 4096);
    QVERIFY(!isFileInUse(path));
  }

  void theRealOneForgetsDeletedFiles() {
    const FixtureHome home;
    QFile file(home.file(u"here/soon gone"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(openFiles().containsUnder(home.path(u"here"_s)));
    QCOMPARE(::unlink(file.fileName().toUtf8().constData()), 0);
    QVERIFY(!openFiles().containsUnder(home.path(u"here"_s)));
  }

  void theRealOneKnowsAChild() {
    const FixtureHome home;
    // A name of this process alone: the same test may run beside it.
    const QString name = u"fancy viewer %1x"_s.arg(QCoreApplication::applicationPid());
    const QString tool = home.path(u"apps/Fancy Viewer %1x-2.1"_s.arg(QCoreApplication::applicationPid()));
    const QString folder = home.folder(u"works here"_s);
    home.folder(u"apps"_s);
    QVERIFY(QFile::copy(u"/bin/sleep"_s, tool));
    QProcess child;
    child.setWorkingDirectory(folder);
    child.start(tool, {u"60"_s});
    QVERIFY(child.waitForStarted());
    const RunningApps apps = runningApps();
    QVERIFY(apps.processes.contains(name + "-2.1"_L1));
    QVERIFY(apps.processes.contains(name));
    QVERIFY(apps.processDirs.contains(home.path(u"apps/"_s).toLower() + u'/'));
    QVERIFY(openFiles().contains(folder));
    QVERIFY(openFiles().contains(tool));
    QVERIFY(isFileInUse(tool));
    QVERIFY(QFile::remove(tool));
    QVERIFY(runningApps().processes.contains(name));
    child.kill();
    QVERIFY(child.waitForFinished());
    QVERIFY(!runningApps().processes.contains(name));
    QVERIFY(!openFiles().contains(folder));
  }
};

QTEST_GUILESS_MAIN(TestProcFs)
#include "tst_procfs.moc"
