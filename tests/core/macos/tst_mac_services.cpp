#include "core/appguard.h"
#include "core/platform.h"

#include "support/Desktop.h"
#include "support/FixtureHome.h"

#include <CoreFoundation/CoreFoundation.h>

#include <QFile>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// What the framework's calls answer, and what they were asked.
struct StandInUrl {};
struct StandInNumber {
  SInt64 value;
  bool readable;
};
struct StandInString {};

namespace {
struct Framework {
  bool givesUrl = true;
  bool givesProperty = true;
  std::optional<StandInNumber> number;
  QByteArray path;
  bool asFolder = false;
  int alive = 0;
};
Framework framework;
StandInUrl theUrl;
const StandInString theKey;
} // namespace

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFStringRef kCFURLVolumeAvailableCapacityForImportantUsageKey = &theKey;

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef, const UInt8* path, CFIndex length, Boolean isFolder) {
  framework.path = QByteArray(reinterpret_cast<const char*>(path), length);
  framework.asFolder = isFolder != 0;
  if (!framework.givesUrl) return nullptr;
  ++framework.alive;
  return &theUrl;
}

Boolean CFURLCopyResourcePropertyForKey(CFURLRef url, CFStringRef key, void* value, CFErrorRef*) {
  if (url == nullptr) qFatal("the framework ends a program that asks about nothing");
  if (url != &theUrl || key != &theKey || !framework.givesProperty) return 0;
  *static_cast<CFNumberRef*>(value) = framework.number ? &*framework.number : nullptr;
  if (framework.number) ++framework.alive;
  return 1;
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value) {
  if (type != kCFNumberSInt64Type || !number->readable) return 0;
  *static_cast<SInt64*>(value) = number->value;
  return 1;
}

void CFRelease(CFTypeRef object) {
  if (object == nullptr) qFatal("the framework ends a program that releases nothing");
  --framework.alive;
}

class TestMacServices : public QObject {
  Q_OBJECT

 private slots:
  void init() { framework = {}; }
  void cleanup() { QCOMPARE(framework.alive, 0); }

  void thisIsTheOtherBuild() {
    QCOMPARE(platform::builtFor(), platform::Host::Mac);
    QCOMPARE(platform::host(), platform::Host::Mac);
  }

  void importantCapacityIsTheFrameworks() {
    framework.number = StandInNumber{100'000'000'000, true};
    QCOMPARE(platform::importantCapacity(u"/Volumes/a b"_s), 100'000'000'000);
    QCOMPARE(framework.path, QByteArray("/Volumes/a b"));
    QVERIFY(framework.asFolder);
  }

  void withoutAnAnswerItIsUnknown_data() {
    QTest::addColumn<bool>("givesUrl");
    QTest::addColumn<bool>("givesProperty");
    QTest::addColumn<bool>("givesNumber");
    QTest::newRow("no address") << false << true << true;
    QTest::newRow("no property") << true << false << true;
    QTest::newRow("no object") << true << true << false;
    QTest::newRow("another kind of number") << true << true << true;
  }
  void withoutAnAnswerItIsUnknown() {
    QFETCH(bool, givesUrl);
    QFETCH(bool, givesProperty);
    QFETCH(bool, givesNumber);
    framework.givesUrl = givesUrl;
    framework.givesProperty = givesProperty;
    if (givesNumber) framework.number = StandInNumber{5, false};
    QCOMPARE(platform::importantCapacity(u"/"_s), 0);
  }

  void theVolumeCountsWhatCanBePurged() {
    const FixtureHome home;
    const platform::Volume plain = platform::systemVolume();
    QCOMPARE(plain.purgeableBytes, 0);
    framework.number = StandInNumber{plain.totalBytes, true};
    const platform::Volume volume = platform::systemVolume();
    QCOMPARE(volume.availableBytes, plain.totalBytes);
    QVERIFY(volume.purgeableBytes > 0);
    QCOMPARE(framework.path, QFile::encodeName(volume.rootPath));
  }

  void theFileManagerIsOpenedByATool() {
    const FixtureHome home;
    const QString args = home.path(u"ARGS"_s);
    QFile tool(home.file(u"bin/open"_s, 0));
    QVERIFY(tool.open(QIODevice::WriteOnly));
    tool.write("#!/bin/sh\nfor a; do printf '[%s]' \"$a\"; done >> \"$HOME/ARGS\"\n");
    tool.close();
    QVERIFY(tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", home.path(u"bin:"_s).toUtf8() + path);
    const auto seen = [&] {
      QFile file(args);
      return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    std::optional<bool> isShown;
    platform::revealInFileManager(u"/a b/c'd"_s, [&](bool answer) { isShown = answer; });
    QCOMPARE(isShown, std::optional(true));
    QTRY_COMPARE(seen(), QByteArray("[-R][/a b/c'd]"));
    platform::openFolder(u"/a b"_s);
    QTRY_COMPARE(seen(), QByteArray("[-R][/a b/c'd][/a b]"));
    qputenv("PATH", home.path(u"none"_s).toUtf8());
    platform::revealInFileManager(u"/a"_s, [&](bool answer) { isShown = answer; });
    qputenv("PATH", path);
    QCOMPARE(isShown, std::optional(false));
  }

  void thePrivacyPane() {
    const QString scheme = u"x-apple.systempreferences"_s;
    const Desktop desktop({scheme});
    platform::openFullDiskAccessSettings();
    QCOMPARE(desktop.urls.size(), 1);
    QCOMPARE(desktop.urls[0].scheme(), scheme);
    QCOMPARE(desktop.urls[0].path(), u"com.apple.preference.security"_s);
    QCOMPARE(desktop.urls[0].query(), u"Privacy_AllFiles"_s);
  }

  void theSnapshotsComeFromTheTools() {
    const FixtureHome home;
    const auto tool = [&](const QString& name, const QByteArray& body) {
      QFile file(home.file(name, 0));
      if (!file.open(QIODevice::WriteOnly)) return QString();
      file.write("#!/bin/sh\n" + body + "\n");
      file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
      return file.fileName();
    };
    appguard::Sources sources;
    sources.ps = tool(u"ps"_s, "echo /sbin/launchd");
    sources.lsof = tool(u"lsof"_s, "echo n/a/b");
    QCOMPARE(appguard::runningApps(sources).processes, QSet<QString>{u"launchd"_s});
    QCOMPARE(appguard::openFiles(sources).files, QSet<QString>{u"/a/b"_s});
    QVERIFY(appguard::isFileInUse(u"/c"_s, sources));
  }
};

QTEST_GUILESS_MAIN(TestMacServices)
#include "tst_mac_services.moc"
