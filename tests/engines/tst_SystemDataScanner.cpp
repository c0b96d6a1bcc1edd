// The measuring of System Data: its figures, and what it tells beside them.
#include "engines/MeasuringTest.h"
#include "engines/Unprivileged.h"

#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_SystemDataScanner : public MeasuringTest {
  Q_OBJECT

 private slots:
  void init() { make("mac"); }
  void cleanup() { drop(); }

  void tellsEveryRowInOrder_data();
  void tellsEveryRowInOrder();
  void figures();
  void excludesAreLeftOut();
  void missingPlaces();
  void refusedPlaces();
  void aRefusalBelowAPlace_data();
  void aRefusalBelowAPlace();
  void aPlaceBelowAShutFolder_data();
  void aPlaceBelowAShutFolder();
  void aPlaceThatIsALink_data();
  void aPlaceThatIsALink();
  void largestHiddenFolders();
  void noHiddenFolders();
  void localSnapshots_data();
  void localSnapshots();
  void toolThatHangs();
  void simulatorDevices_data();
  void simulatorDevices();
  void keptSnapshots_data();
  void keptSnapshots();
  void keptSnapshotsThatMayNotBeRead();
  void swapFiles();
};

void tst_SystemDataScanner::tellsEveryRowInOrder_data() {
  QTest::addColumn<QByteArray>("host");
  QTest::newRow("mac") << QByteArray("mac");
  QTest::newRow("linux") << QByteArray("linux");
}

void tst_SystemDataScanner::tellsEveryRowInOrder() {
  QFETCH(QByteArray, host);
  qputenv("TARNWICK_HOST", host);
  m_home->file(u".npm/a"_s);
  const QList<SystemDataItem> rows = this->rows();
  Course course;
  run(&course);
  QStringList expected;
  for (int i = 0; i < rows.size(); ++i) expected << u"progress %1"_s.arg(i) << u"measured %1"_s.arg(i);
  QCOMPARE(course.order, expected << u"finished"_s);
  QCOMPARE(course.cancelled, false);
  QCOMPARE(course.items.size(), rows.size());
  for (int i = 0; i < rows.size(); ++i) {
    QCOMPARE(course.items[i].id, rows[i].id);
    QCOMPARE(course.bytes[i], course.items[i].bytes);
    QCOMPARE(course.denied[i], course.items[i].denied);
  }
  QList<bool> begun(rows.size(), false);
  for (const Course::Progress& one : course.progress) {
    QCOMPARE(one.total, rows.size());
    if (std::exchange(begun[one.index], true)) continue;
    QCOMPARE(one.path, rows[one.index].paths.value(0)); // even where it isn't there
    QCOMPARE(one.bytes, 0);
  }
}

void tst_SystemDataScanner::figures() {
  m_home->file(u"Library/Containers/a"_s, 20'000);
  m_home->file(u"Library/Application Support/deep/b"_s, 30'000);
  const std::atomic<bool> cancel = false;
  const fs::Totals one = fs::measure(m_home->path(u"Library/Containers"_s), cancel);
  const fs::Totals other = fs::measure(m_home->path(u"Library/Application Support"_s), cancel);
  QVERIFY(one.bytes >= 20'000 && other.bytes >= 30'000);
  const SystemDataItem row = measured("appdata");
  QCOMPARE(row.bytes, one.bytes + other.bytes);
  QCOMPARE(row.files, 2);
  QCOMPARE(row.denied, false);
  QCOMPARE(row.count, -1);
  QCOMPARE(row.detail, QString());
}

void tst_SystemDataScanner::excludesAreLeftOut() {
  m_home->file(u"Library/Preferences/a"_s);
  for (const char* folder : {"Caches", "Application Support", "Containers", "Group Containers", "Messages", "Developer",
                             "Mobile Documents", "CloudStorage"})
    m_home->file(u"Library/"_s + QLatin1String(folder) + u"/b"_s);
  m_home->file(disk(u"System/Library/AssetsV2/iOSSimulatorRuntime/c"_s));
  m_home->file(disk(u"System/Library/AssetsV2/font/d"_s));
  QCOMPARE(measured("library").files, 1);
  QCOMPARE(measured("assets").files, 1);
  QCOMPARE(measured("runtimes").files, 1);
}

void tst_SystemDataScanner::missingPlaces() {
  Course course;
  run(&course);
  for (qsizetype i = 0; i < course.items.size(); ++i) {
    QCOMPARE(course.bytes[i], 0);
    QCOMPARE(course.denied[i], false);
    QCOMPARE(course.items[i].files, 0);
  }
}

void tst_SystemDataScanner::refusedPlaces() {
  m_home->file(disk(u"private/var/log/a"_s), 9'000);
  m_home->file(disk(u"Library/Logs/b"_s));
  m_home->file(disk(u"Library/Caches/c"_s));
  const Unprivileged user(*m_home);
  for (const char* folder : {"Library/Logs", "Library/Caches"})
    QCOMPARE(::chmod(QFile::encodeName(disk(QLatin1String(folder))).constData(), 0), 0);
  const SystemDataItem partial = measured("logs");
  QVERIFY(partial.denied);
  QVERIFY(partial.bytes >= 9'000);
  QCOMPARE(partial.files, 1);
  const SystemDataItem none = measured("syscaches");
  QVERIFY(none.denied);
  QCOMPARE(none.bytes, 0);
}

// A Linux system has places of which a user may read a part, and its figure is a lower bound then.
void tst_SystemDataScanner::aRefusalBelowAPlace_data() {
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<bool>("denied");
  QTest::newRow("mac") << QByteArray("mac") << false;
  QTest::newRow("linux") << QByteArray("linux") << true;
}

void tst_SystemDataScanner::aRefusalBelowAPlace() {
  QFETCH(QByteArray, host);
  qputenv("TARNWICK_HOST", host);
  for (const char* log : {"private/var/log", "var/log"}) {
    m_home->file(disk(QLatin1String(log)) + u"/open"_s, 9'000);
    m_home->file(disk(QLatin1String(log)) + u"/shut/a"_s);
  }
  const Unprivileged user(*m_home);
  for (const char* log : {"private/var/log/shut", "var/log/shut"})
    QCOMPARE(::chmod(QFile::encodeName(disk(QLatin1String(log))).constData(), 0), 0);
  const SystemDataItem row = measured("logs");
  QTEST(row.denied, "denied");
  QVERIFY(row.bytes >= 9'000);
}

// There it can't be told whether it is there at all.
void tst_SystemDataScanner::aPlaceBelowAShutFolder_data() {
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<bool>("denied");
  // As root, who only acts as somebody else, may still see that it is there.
  if (::getuid() != 0) QTest::newRow("mac") << QByteArray("mac") << false;
  QTest::newRow("linux") << QByteArray("linux") << true;
}

void tst_SystemDataScanner::aPlaceBelowAShutFolder() {
  QFETCH(QByteArray, host);
  qputenv("TARNWICK_HOST", host);
  m_home->file(disk(u"private/var/log/a"_s));
  m_home->file(disk(u"var/log/a"_s));
  const Unprivileged user(*m_home);
  for (const char* folder : {"private/var", "var"})
    QCOMPARE(::chmod(QFile::encodeName(disk(QLatin1String(folder))).constData(), 0), 0);
  const SystemDataItem row = measured("logs");
  QTEST(row.denied, "denied");
  QCOMPARE(row.bytes, 0);
  for (const char* folder : {"private/var", "var"})
    QCOMPARE(::chmod(QFile::encodeName(disk(QLatin1String(folder))).constData(), 0700), 0);
}

void tst_SystemDataScanner::aPlaceThatIsALink_data() {
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<QString>("place");
  QTest::addColumn<qint64>("files");
  QTest::addColumn<bool>("isFollowed");
  QTest::newRow("mac") << QByteArray("mac") << u"Library/Caches"_s << qint64(1) << false;
  QTest::newRow("linux") << QByteArray("linux") << u".cache"_s << qint64(2) << true;
}

void tst_SystemDataScanner::aPlaceThatIsALink() {
  QFETCH(QByteArray, host);
  QFETCH(QString, place);
  QFETCH(bool, isFollowed);
  qputenv("TARNWICK_HOST", host);
  const QString target = m_home->folder(m_home->outside(u"quick"_s));
  for (const char* file : {"a", "deep/b"}) m_home->file(target + u'/' + QLatin1String(file), 9'000);
  m_home->link(place, target);
  const SystemDataItem row = measured("usercaches");
  const std::atomic<bool> cancel = false;
  QCOMPARE(row.bytes, isFollowed ? fs::measure(target, cancel).bytes : 0);
  QTEST(row.files, "files"); // a link is a file
}

void tst_SystemDataScanner::largestHiddenFolders() {
  const std::pair<const char*, qint64> folders[] = {
      {".a", 20'000}, {".b", 90'000}, {".c", 5'000}, {".d", 60'000}, {".e", 40'000}};
  for (const auto& [name, bytes] : folders) m_home->file(QLatin1String(name) + u"/file"_s, bytes);
  QCOMPARE(measured("hidden").detail, u".b, .d, .e"_s);
  QDir(m_home->path(u".b"_s)).removeRecursively();
  QDir(m_home->path(u".d"_s)).removeRecursively();
  QDir(m_home->path(u".c"_s)).removeRecursively();
  QCOMPARE(measured("hidden").detail, u".e, .a"_s);
}

void tst_SystemDataScanner::noHiddenFolders() { QCOMPARE(measured("hidden").detail, QString()); }

void tst_SystemDataScanner::localSnapshots_data() {
  QTest::addColumn<QByteArray>("script"); // empty: there is no such tool
  QTest::addColumn<int>("count");
  QTest::addColumn<QString>("detail");
  QTest::newRow("a head and two") << QByteArray(
                                         "echo 'Snapshots for disk /:'; echo com.apple.TimeMachine.1.local; echo "
                                         "com.apple.TimeMachine.2.local")
                                  << 2 << u"2 snapshots"_s;
  QTest::newRow("one") << QByteArray("echo com.apple.TimeMachine.1.local") << 1 << u"1 snapshot"_s;
  QTest::newRow("on the other output") << QByteArray("echo com.apple.TimeMachine.1.local >&2") << 1 << u"1 snapshot"_s;
  QTest::newRow("none") << QByteArray("echo 'Snapshots for disk /:'") << 0 << u"0 snapshots"_s;
  QTest::newRow("of others") << QByteArray("echo com.apple.os.update-1; echo COM.APPLE.TIMEMACHINE.1") << 0
                             << u"0 snapshots"_s;
  QTest::newRow("crash") << QByteArray("kill -SEGV $$") << 0 << u"0 snapshots"_s;
  QTest::newRow("missing") << QByteArray() << 0 << u"0 snapshots"_s;
}

void tst_SystemDataScanner::localSnapshots() {
  QFETCH(QByteArray, script);
  if (!script.isEmpty()) putTool("tmutil", script);
  const SystemDataItem row = measured("snapshots");
  QTEST(row.count, "count");
  QTEST(row.detail, "detail");
  QCOMPARE(row.bytes, 0);
  if (!script.isEmpty()) QCOMPARE(textOf(callsOf("tmutil")), u"listlocalsnapshots\n/\n"_s);
}

void tst_SystemDataScanner::toolThatHangs() {
  putTool("tmutil", "echo com.apple.TimeMachine.1; exec sleep 60");
  m_world.listLimitMs = 300;
  QCOMPARE(measured("snapshots").detail, u"0 snapshots"_s);
}

void tst_SystemDataScanner::simulatorDevices_data() {
  QTest::addColumn<int>("devices");
  QTest::addColumn<QString>("detail");
  QTest::newRow("none") << 0 << u"0 devices"_s;
  QTest::newRow("one") << 1 << u"1 device"_s;
  QTest::newRow("two") << 2 << u"2 devices"_s;
}

void tst_SystemDataScanner::simulatorDevices() {
  QFETCH(int, devices);
  const QString folder = m_home->folder(u"Library/Developer/CoreSimulator/Devices"_s);
  m_home->file(folder + u"/device_set.plist"_s);
  for (int i = 0; i < devices; ++i) m_home->folder(folder + u"/device-%1/data"_s.arg(i));
  const SystemDataItem row = measured("simulators");
  QTEST(row.detail, "detail");
  QCOMPARE(row.count, -1);
}

void tst_SystemDataScanner::keptSnapshots_data() {
  QTest::addColumn<QStringList>("folders");
  QTest::addColumn<int>("count");
  QTest::addColumn<QString>("detail");
  QTest::newRow("none") << QStringList{} << 0 << u"0 snapshots"_s;
  QTest::newRow("one") << QStringList{u".snapshots/1"_s} << 1 << u"1 snapshot"_s;
  QTest::newRow("of both tools") << QStringList{u".snapshots/1"_s, u".snapshots/2"_s,
                                                u"timeshift/snapshots/2026-01-01_00-00-01"_s}
                                 << 3 << u"3 snapshots"_s;
}

void tst_SystemDataScanner::keptSnapshots() {
  qputenv("TARNWICK_HOST", "linux");
  QFETCH(QStringList, folders);
  for (const QString& folder : folders) m_home->file(disk(folder) + u"/snapshot/etc/passwd"_s, 5'000);
  if (!folders.isEmpty()) m_home->file(disk(u".snapshots/grub.cfg"_s));
  const SystemDataItem row = measured("snapshots");
  QTEST(row.count, "count");
  QTEST(row.detail, "detail");
  QCOMPARE(row.bytes, 0);
  QCOMPARE(row.denied, false);
}

void tst_SystemDataScanner::keptSnapshotsThatMayNotBeRead() {
  qputenv("TARNWICK_HOST", "linux");
  m_home->folder(disk(u".snapshots/1"_s));
  m_home->folder(disk(u"timeshift/snapshots/2026-01-01_00-00-01"_s));
  const Unprivileged user(*m_home);
  QCOMPARE(::chmod(QFile::encodeName(disk(u".snapshots"_s)).constData(), 0), 0);
  SystemDataItem row = measured("snapshots");
  QVERIFY(row.denied);
  QCOMPARE(row.count, 1);
  QCOMPARE(row.detail, u"at least 1 snapshot"_s);
  QCOMPARE(::chmod(QFile::encodeName(disk(u"timeshift/snapshots"_s)).constData(), 0), 0);
  row = measured("snapshots");
  QVERIFY(row.denied);
  QCOMPARE(row.count, -1); // not known, rather than none
  QCOMPARE(row.detail, u"No permission to read"_s);
  QCOMPARE(::chmod(QFile::encodeName(disk(u".snapshots"_s)).constData(), 0700), 0);
  QCOMPARE(::chmod(QFile::encodeName(disk(u"timeshift"_s)).constData(), 0), 0); // what holds the other
  row = measured("snapshots");
  QVERIFY(row.denied);
  QCOMPARE(row.detail, u"at least 1 snapshot"_s);
  QCOMPARE(::chmod(QFile::encodeName(disk(u"timeshift"_s)).constData(), 0700), 0);
}

void tst_SystemDataScanner::swapFiles() {
  qputenv("TARNWICK_HOST", "linux");
  const QString swap = m_home->file(m_home->outside(u"swap file"_s), 50'000);
  QFile table(m_proc->root() + u"/swaps"_s);
  QVERIFY(table.open(QIODevice::WriteOnly));
  table.write("Filename Type Size Used Priority\n" + QFile::encodeName(swap).replace(" ", "\\040") +
              "\tfile\t48\t0\t-2\n/gone\tfile\t48\t0\t-3\n");
  table.close();
  fs::Entry entry;
  QVERIFY(fs::stat(swap, &entry));
  const Unprivileged user(*m_home);
  QCOMPARE(::chmod(QFile::encodeName(swap).constData(), 0), 0); // what it holds need not be read
  const SystemDataItem row = measured("swap");
  QCOMPARE(row.bytes, entry.allocated);
  QCOMPARE(row.files, 1);
  QCOMPARE(row.denied, false);
}

QTEST_GUILESS_MAIN(tst_SystemDataScanner)
#include "tst_SystemDataScanner.moc"
