#include "core/deployment.h"
#include "core/platform.h"
#include "update/Updater.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostBytes = 262'144;

QString atHome(const QString& path) { return u"https://"_s + deployment::domain() + path; }

QJsonObject entry() {
  return {{u"version"_s, u"1.2.3"_s},         {u"url"_s, atHome(u"/tarnwick/all.dmg"_s)},
          {u"sha256"_s, QString(64, u'a')},   {u"size"_s, u"12 MB"_s},
          {u"date"_s, u"29 February 2024"_s}, {u"change"_s, QJsonArray{u"First"_s, u"<i>Second</i>"_s}}};
}

QJsonObject with(const QString& key, const QJsonValue& value) {
  QJsonObject changed = entry();
  changed.insert(key, value);
  return changed;
}

QJsonObject without(const QString& key) {
  QJsonObject changed = entry();
  changed.remove(key);
  return changed;
}

QByteArray feedOf(const QJsonObject& object, const QString& key = u"mac"_s) {
  return QJsonDocument(QJsonObject{{key, object}}).toJson();
}

bool accepts(const QByteArray& json, bool arm = false) {
  UpdateRelease release;
  return Updater::parse(json, u"mac"_s, arm, release);
}

} // namespace

class TestFeed : public QObject {
  Q_OBJECT

 private slots:
  void aWholeEntryIsRead() {
    UpdateRelease release;
    release.changes = {u"left over"_s};
    QVERIFY(Updater::parse(feedOf(entry()), u"mac"_s, false, release));
    QCOMPARE(release.version, u"1.2.3"_s);
    QCOMPARE(release.url, QUrl(atHome(u"/tarnwick/all.dmg"_s)));
    QCOMPARE(release.sha256, QString(64, u'a'));
    QCOMPARE(release.size, u"12 MB"_s);
    QCOMPARE(release.date, u"29 February 2024"_s);
    QCOMPARE(release.changes, (QStringList{u"First"_s, u"<i>Second</i>"_s}));
  }

  void whatIsNoFeedFails_data() {
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("<html>Not here</html>");
    QTest::newRow("an array") << QByteArray("[]");
    QTest::newRow("a text") << QByteArray("\"mac\"");
    QTest::newRow("cut short") << feedOf(entry()).chopped(3);
    QTest::newRow("followed by more") << feedOf(entry()) + "{}";
    QTest::newRow("without the key") << feedOf(entry(), u"amiga"_s);
    QTest::newRow("the key in capitals") << feedOf(entry(), u"MAC"_s);
    QTest::newRow("no object under the key") << QByteArray("{\"mac\": [1]}");
    QTest::newRow("nothing in the object") << feedOf({});
    QTest::newRow("a zero byte in it") << QByteArray("{\"mac\"\0: {}}", 12);
    QTest::newRow("very deep") << QByteArray("{\"mac\":").append(QByteArray(100'000, '['));
  }
  void whatIsNoFeedFails() {
    QFETCH(QByteArray, json);
    UpdateRelease release;
    release.version = u"9.9"_s;
    QVERIFY(!Updater::parse(json, u"mac"_s, false, release));
    QCOMPARE(release.version, QString());
  }

  void theLongestFeed() {
    const QByteArray json = feedOf(entry());
    const QByteArray longest = json + QByteArray(kMostBytes - json.size(), ' ');
    QVERIFY(accepts(longest));
    QVERIFY(!accepts(longest + ' '));
  }

  void everyFieldIsHeldToItsRule_data() {
    QTest::addColumn<QJsonObject>("object");
    QTest::addColumn<bool>("good");
    const auto row = [](const char* name, const QJsonObject& object, bool good) {
      QTest::newRow(name) << object << good;
    };
    row("no version", without(u"version"_s), false);
    row("a number as version", with(u"version"_s, 1.2), false);
    row("no url", without(u"url"_s), false);
    row("a list as url", with(u"url"_s, QJsonArray{atHome(u"/a"_s)}), false);
    row("no sha256", without(u"sha256"_s), false);
    row("a number as sha256", with(u"sha256"_s, 64), false);
    row("63 digits", with(u"sha256"_s, QString(63, u'a')), false);
    row("65 digits", with(u"sha256"_s, QString(65, u'a')), false);
    row("no digit among them", with(u"sha256"_s, QString(63, u'a') + u'g'), false);
    row("a line break after them", with(u"sha256"_s, QString(64, u'a') + u'\n'), false);
    row("a line break in the place of one", with(u"sha256"_s, QString(63, u'a') + u'\n'), false);
    row("digits of another script", with(u"sha256"_s, QString(64, QChar(0x0663))), false);
    row("no size", without(u"size"_s), true);
    row("a number as size", with(u"size"_s, 12), true);
    row("no date", without(u"date"_s), true);
    row("no change", without(u"change"_s), false);
    row("a text as change", with(u"change"_s, u"First"_s), false);
    row("an object as change", with(u"change"_s, QJsonObject()), false);
    row("an empty change", with(u"change"_s, QJsonArray()), true);
    row("a number among the changes", with(u"change"_s, QJsonArray{u"First"_s, 2}), false);
    row("null among the changes", with(u"change"_s, QJsonArray{QJsonValue()}), false);
    row("an unknown key", with(u"signature"_s, u"x"_s), true);
  }
  void everyFieldIsHeldToItsRule() {
    QFETCH(QJsonObject, object);
    QFETCH(bool, good);
    QCOMPARE(accepts(feedOf(object)), good);
  }

  void whatIsOnlyShownMayBeMissing() {
    UpdateRelease release;
    QJsonObject object = with(u"size"_s, 12);
    object.remove(u"date"_s);
    QVERIFY(Updater::parse(feedOf(object), u"mac"_s, false, release));
    QCOMPARE(release.size + release.date, QString());
  }

  void digitsInCapitalsAreStoredInLowerCase() {
    UpdateRelease release;
    QVERIFY(Updater::parse(feedOf(with(u"sha256"_s, QString(64, u'A'))), u"mac"_s, false, release));
    QCOMPARE(release.sha256, QString(64, u'a'));
  }

  void aRecordThatFailsKeepsWhatCameBefore() {
    UpdateRelease release;
    QVERIFY(!Updater::parse(feedOf(with(u"change"_s, QJsonArray{u"First"_s, 2})), u"mac"_s, false, release));
    QCOMPARE(release.version, u"1.2.3"_s);
    QCOMPARE(release.changes, QStringList{u"First"_s});
    QVERIFY(!Updater::parse(feedOf(with(u"version"_s, u"1"_s)), u"mac"_s, false, release));
    QCOMPARE(release.sha256, QString());
  }

  void armHasADownloadOfItsOwn() {
    const QString arm = atHome(u"/arm.dmg"_s);
    QJsonObject both = with(u"arm64url"_s, arm);
    both.insert(u"arm64sha256"_s, QString(64, u'B'));
    UpdateRelease release;
    QVERIFY(Updater::parse(feedOf(both), u"mac"_s, true, release));
    QCOMPARE(release.url, QUrl(arm));
    QCOMPARE(release.sha256, QString(64, u'b'));
    QVERIFY(Updater::parse(feedOf(both), u"mac"_s, false, release));
    QCOMPARE(release.url, QUrl(atHome(u"/tarnwick/all.dmg"_s)));
    QCOMPARE(release.sha256, QString(64, u'a'));
    QVERIFY(Updater::parse(feedOf(entry()), u"mac"_s, true, release));
    QCOMPARE(release.url, QUrl(atHome(u"/tarnwick/all.dmg"_s)));
  }

  void theOtherChecksumIsNoFallback() {
    const QJsonObject urlAlone = with(u"arm64url"_s, atHome(u"/arm.dmg"_s));
    QVERIFY(!accepts(feedOf(urlAlone), true));
    QVERIFY(accepts(feedOf(urlAlone), false));
    const QJsonObject sumAlone = with(u"arm64sha256"_s, u"no checksum"_s);
    QVERIFY(accepts(feedOf(sumAlone), true));
    QVERIFY(!accepts(feedOf(with(u"arm64url"_s, QJsonValue())), true));
  }

  void thisBuildHasOneKey() {
    const bool isMac = platform::builtFor() == platform::Host::Mac;
    QJsonObject object = entry();
    object.insert(u"arm64url"_s, atHome(u"/arm.dmg"_s));
    object.insert(u"arm64sha256"_s, QString(64, u'b'));
    const bool isArm = QSysInfo::currentCpuArchitecture() == u"arm64"_s;
    for (const char* preview : {"mac", "linux"}) {
      qputenv("TARNWICK_HOST", preview);
      UpdateRelease release;
      QVERIFY(Updater::parse(feedOf(object, isMac ? u"mac"_s : u"linux"_s), release));
      QCOMPARE(release.sha256.at(0), isArm ? u'b' : u'a');
      QVERIFY(!Updater::parse(feedOf(object, isMac ? u"linux"_s : u"mac"_s), release));
    }
    qunsetenv("TARNWICK_HOST");
  }

  void addressesAreOfTheReleaseDomain_data() {
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("good");
    const QString domain = deployment::domain();
    const auto row = [](const char* name, const QString& url, bool good) { QTest::newRow(name) << url << good; };
    row("the domain", u"https://"_s + domain + u"/a"_s, true);
    row("in capitals", u"HTTPS://"_s + domain.toUpper() + u"/a"_s, true);
    row("below it", u"https://a.b."_s + domain + u"/a"_s, true);
    row("with a port", u"https://"_s + domain + u":8443/a"_s, true);
    row("without a path", u"https://"_s + domain, true);
    row("with a query", u"https://"_s + domain + u"/a?b=c#d"_s, true);
    row("the same letters at its end", u"https://not"_s + domain + u"/a"_s, false);
    row("the domain in front", u"https://"_s + domain + u".elsewhere.example/a"_s, false);
    row("the domain in the path", u"https://elsewhere.example/."_s + domain, false);
    row("the domain as a user", u"https://"_s + domain + u"@elsewhere.example/a"_s, false);
    row("a user", u"https://me@"_s + domain + u"/a"_s, false);
    row("a user with a password", u"https://me:word@"_s + domain + u"/a"_s, false);
    row("a backslash", u"https://elsewhere.example\\."_s + domain + u"/a"_s, false);
    row("a dot at its end", u"https://"_s + domain + u"./a"_s, false);
    row("a dot alone before it", u"https://."_s + domain + u"/a"_s, false);
    row("letters that look alike", u"https://"_s + QString(domain).replace(u'a', QChar(0x0430)) + u"/a"_s, false);
    row("http", u"http://"_s + domain + u"/a"_s, false);
    row("ftp", u"ftp://"_s + domain + u"/a"_s, false);
    row("file", u"file:///etc/passwd"_s, false);
    row("file with the host", u"file://"_s + domain + u"/etc/passwd"_s, false);
    row("data", u"data:text/plain,a"_s, false);
    row("no scheme", u"//"_s + domain + u"/a"_s, false);
    row("no host", u"https:///a"_s, false);
    row("nothing", QString(), false);
    row("a blank in front", u" https://"_s + domain + u"/a"_s, false);
    row("a line break at its end", u"https://"_s + domain + u"/a\n"_s, false);
    row("a bare percent sign", u"https://"_s + domain + u"/100%"_s, false);
  }
  void addressesAreOfTheReleaseDomain() {
    QFETCH(QString, url);
    QFETCH(bool, good);
    QCOMPARE(accepts(feedOf(with(u"url"_s, url))), good);
  }

  void versionsAreNumbersWithDots_data() {
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("good");
    const auto row = [](const char* name, const QString& version, bool good) {
      QTest::newRow(name) << version << good;
    };
    row("one number", u"2"_s, false);
    row("two", u"2.0"_s, true);
    row("three", u"2.0.0"_s, true);
    row("four", u"2.0.0.0"_s, true);
    row("five", u"2.0.0.0.0"_s, false);
    row("nothing", QString(), false);
    row("39 characters", u"2."_s + QString(37, u'0'), true);
    row("40 characters", u"2."_s + QString(38, u'0'), false);
    row("a letter in front", u"v2.0"_s, false);
    row("a blank in front", u" 2.0"_s, false);
    row("a blank behind", u"2.0 "_s, false);
    row("a line break behind", u"2.0\n"_s, false);
    row("a line break between", u"2.0\n2.0"_s, false);
    row("a suffix", u"2.0.0-beta1"_s, false);
    row("a dot behind", u"2.0."_s, false);
    row("two dots", u"2..0"_s, false);
    row("a sign", u"-2.0"_s, false);
    row("digits of another script", u"\u0662.\u0660"_s, false);
    row("a zero character", u"2.0"_s + QChar(u'\0'), false);
  }
  void versionsAreNumbersWithDots() {
    QFETCH(QString, version);
    QFETCH(bool, good);
    QCOMPARE(accepts(feedOf(with(u"version"_s, version))), good);
    QCOMPARE(Updater::newer(version, u"1.0.0"_s), good);
    QCOMPARE(Updater::newer(u"3.0.0"_s, version), good);
  }

  void whichComesAfterWhich_data() {
    QTest::addColumn<QString>("older");
    QTest::addColumn<QString>("newer");
    QTest::newRow("last number") << u"1.0.0"_s << u"1.0.1"_s;
    QTest::newRow("as numbers, not as texts") << u"1.9.0"_s << u"1.10.0"_s;
    QTest::newRow("first number") << u"1.99.99"_s << u"2.0"_s;
    QTest::newRow("the shorter is older") << u"1.0"_s << u"1.0.0"_s;
    QTest::newRow("and the longer newer") << u"1.0.0"_s << u"1.0.0.0"_s;
    QTest::newRow("zeros in front count nothing") << u"1.2.3"_s << u"1.02.0004"_s;
  }
  void whichComesAfterWhich() {
    QFETCH(QString, older);
    QFETCH(QString, newer);
    QVERIFY(Updater::newer(newer, older));
    QVERIFY(!Updater::newer(older, newer));
    QVERIFY(!Updater::newer(newer, newer));
  }

  void aNumberThatIsTooLargeIsNoUpdate() {
    QVERIFY(!Updater::newer(u"99999999999999999999.0"_s, u"1.0.0"_s));
    QVERIFY(!Updater::newer(u"1.99999999999999999999"_s, u"1.0.0"_s));
  }

  void theFeedIsOnTheReleaseHost() {
    const QUrl feed = Updater::defaultFeed();
    QCOMPARE(feed.scheme(), u"https"_s);
    QCOMPARE(feed.host(), deployment::releaseHost());
    QCOMPARE(feed.path(), u"/tarnwick/upgrade.json"_s);
    QVERIFY(feed.host() == deployment::domain() || feed.host().endsWith(u'.' + deployment::domain()));
  }
};

QTEST_GUILESS_MAIN(TestFeed)
#include "tst_feed.moc"
