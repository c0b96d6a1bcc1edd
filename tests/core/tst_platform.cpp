#include "core/platform.h"

#include "support/FixtureHome.h"

#include <QFile>
#include <QStorageInfo>
#include <QTest>

#include <sys/statvfs.h>

using namespace Qt::StringLiterals;
using namespace platform;

class TestPlatform : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { qunsetenv("TARNWICK_HOST"); }

  void theHostIsTheOneBuiltForUnlessToldExactly() {
    qunsetenv("TARNWICK_HOST");
    QCOMPARE(host(), builtFor());
    QVERIFY(!isPreview());
    for (const char* none : {"", "Mac", "LINUX", " linux", "macos", "mac "}) {
      qputenv("TARNWICK_HOST", none);
      QCOMPARE(host(), builtFor());
    }
    qputenv("TARNWICK_HOST", "mac");
    QCOMPARE(host(), Host::Mac);
    QCOMPARE(isPreview(), builtFor() != Host::Mac);
    qputenv("TARNWICK_HOST", "linux");
    QCOMPARE(host(), Host::Linux);
    QCOMPARE(isPreview(), builtFor() != Host::Linux);
  }

  void words() {
    qputenv("TARNWICK_HOST", "mac");
    QCOMPARE(trashName(), u"Trash"_s);
    QCOMPARE(fileManagerName(), u"Finder"_s);
    qputenv("TARNWICK_HOST", "linux");
    QCOMPARE(trashName(), u"Trash"_s);
    QCOMPARE(fileManagerName(), u"Files"_s);
  }

  void noRecycleBinAndNoElevation() {
    for (const char* name : {"mac", "linux"}) {
      qputenv("TARNWICK_HOST", name);
      qint64 bytes = 17;
      qint64 items = 4;
      QVERIFY(!queryRecycleBin(&bytes, &items));
      QCOMPARE(bytes, 17);
      QCOMPARE(items, 4);
      QVERIFY(!emptyRecycleBin());
      QVERIFY(!isElevated());
      QVERIFY(!relaunchElevated());
    }
  }

  void importantCapacity_data() {
    QTest::addColumn<qint64>("important");
    QTest::addColumn<qint64>("available");
    QTest::addColumn<qint64>("purgeable");
    const qint64 gb = 1'000'000'000;
    QTest::newRow("more than is free") << 100 * gb << 100 * gb << 40 * gb;
    QTest::newRow("less than is free") << 50 * gb << 60 * gb << 0 * gb;
    QTest::newRow("as much as is free") << 60 * gb << 60 * gb << 0 * gb;
    QTest::newRow("unknown") << 0 * gb << 60 * gb << 0 * gb;
    QTest::newRow("a byte more") << 60 * gb + 1 << 60 * gb + 1 << qint64(1);
  }
  void importantCapacity() {
    QFETCH(qint64, important);
    Volume volume;
    volume.totalBytes = 500'000'000'000;
    volume.availableBytes = 60'000'000'000;
    applyImportantCapacity(&volume, important);
    QTEST(volume.availableBytes, "available");
    QTEST(volume.purgeableBytes, "purgeable");
    QCOMPARE(volume.totalBytes, 500'000'000'000);
  }

  void volumeNames_data() {
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("mountPoint");
    QTest::addColumn<bool>("root");
    QTest::addColumn<QString>("mac");
    QTest::addColumn<QString>("linux");
    QTest::newRow("root without a label") << QString() << u"/"_s << true << u"Macintosh HD"_s << u"System disk"_s;
    QTest::newRow("root with a label") << u"Debian"_s << u"/"_s << true << u"Macintosh HD"_s << u"Debian"_s;
    QTest::newRow("other with a label") << u"Data"_s << u"/home"_s << false << u"Data"_s << u"Data"_s;
    QTest::newRow("other without a label") << QString() << u"/srv/users"_s << false << u"Macintosh HD"_s << u"users"_s;
    QTest::newRow("nothing known") << QString() << QString() << false << u"Macintosh HD"_s << u"System disk"_s;
  }
  void volumeNames() {
    QFETCH(QString, label);
    QFETCH(QString, mountPoint);
    QFETCH(bool, root);
    const VolumeRole role = root ? VolumeRole::Root : VolumeRole::Other;
    qputenv("TARNWICK_HOST", "mac");
    QTEST(volumeName(label, mountPoint, role), "mac");
    qputenv("TARNWICK_HOST", "linux");
    QTEST(volumeName(label, mountPoint, role), "linux");
  }

  void theVolumeIsTheOneOfTheHome() {
    const FixtureHome home;
    const Volume volume = systemVolume();
    struct statvfs system {};
    QCOMPARE(::statvfs(home.path().toUtf8().constData(), &system), 0);
    QCOMPARE(volume.totalBytes, static_cast<qint64>(system.f_blocks * system.f_frsize));
    QVERIFY(volume.availableBytes > 0 && volume.availableBytes <= volume.totalBytes);
    QVERIFY(home.path().startsWith(volume.rootPath));
    QVERIFY(!volume.fileSystem.isEmpty());
    QCOMPARE(volume.fileSystem, volume.fileSystem.toUpper());
    QVERIFY(!volume.name.isEmpty());
  }

  void whatIsFreeIsWhatTheUserCanUse() {
    if (builtFor() != Host::Linux) QSKIP("the figure is the system's own on macOS");
    const FixtureHome home;
    // Others may write meanwhile; the blocks kept for root are far more than that.
    struct statvfs before {};
    QCOMPARE(::statvfs(home.path().toUtf8().constData(), &before), 0);
    const Volume volume = systemVolume();
    const qint64 usable = static_cast<qint64>(before.f_bavail * before.f_frsize);
    QVERIFY2(qAbs(volume.availableBytes - usable) < 256'000'000,
             qPrintable(QString::number(volume.availableBytes - usable)));
    QCOMPARE(volume.purgeableBytes, 0);
  }

  void aHomeOnAnotherVolume() {
    const QString memory = u"/dev/shm"_s;
    if (QStorageInfo(memory).rootPath() != memory) QSKIP("no second volume to put a home folder on");
    const QByteArray old = qgetenv("HOME");
    qputenv("HOME", memory.toUtf8());
    qputenv("TARNWICK_HOST", "linux");
    const Volume volume = systemVolume();
    qputenv("TARNWICK_HOST", "mac");
    const Volume mac = systemVolume();
    qputenv("HOME", old);
    QCOMPARE(volume.name, u"shm"_s);
    QCOMPARE(volume.rootPath, memory);
    QCOMPARE(volume.fileSystem, u"TMPFS"_s);
    QCOMPARE(mac.name, u"Macintosh HD"_s);
  }

  void aMissingHomeHasNoFigures() {
    const FixtureHome home;
    qputenv("HOME", home.outside(u"nobody"_s).toUtf8());
    const Volume volume = systemVolume();
    QCOMPARE(volume.totalBytes, 0);
    QCOMPARE(volume.availableBytes, 0);
    QCOMPARE(volume.purgeableBytes, 0);
  }
};

QTEST_GUILESS_MAIN(TestPlatform)
#include "tst_platform.moc"
