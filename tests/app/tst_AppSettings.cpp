// The settings store: keys, defaults, when it tells, and what depends on the date.
#include "app/AppSettings.h"
#include "app/identity.h"
#include "support/FixtureHome.h"
#include "support/settings.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;

class tst_AppSettings : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { identity::apply(); }
  void init() { settingsstore::forget(); }
  void cleanupTestCase() { init(); }

  void identityNamesTheStore();
  void defaults();
  void roundTrips();
  void keysAndStoredTypes();
  void changedOnlyForNewValues();
  void writingADefaultStoresIt();
  void textStoreAlreadyHolds_data();
  void textStoreAlreadyHolds();
  void mistypedValuesGiveDefaults_data();
  void mistypedValuesGiveDefaults();
  void invalidValuesGiveDefaults();
  void mistypedBoolIsReplaced();
  void readable_data();
  void readable();
  void readableWithoutAFile();
  void exclusionsOfOneAndNone();
  void addFreedOfNothing();
  void addFreedAddsUpByMonth();
  void addFreedTakesInOtherProcesses();
  void addFreedDoesNotOverflow();
  void freedHistoryWindow();
  void freedHistoryAtMonthsEnd();
  void scheduledScan_data();
  void scheduledScan();
  void scheduledScanNeedsAScan();

 private:
  static AppSettings& settings() { return AppSettings::instance(); }
  static QString storeFile() { return QSettings().fileName(); }
  /// Replaces the store by the text of another program, as an editor would.
  static void writeStore(const QByteArray& text) {
    QSettings().setValue(u"x"_s, 1);
    QSettings().sync();
    QFile file(storeFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    QSettings().sync();
  }

  FixtureHome m_home;
};

void tst_AppSettings::identityNamesTheStore() {
  QCOMPARE(QCoreApplication::applicationName(), u"Tarnwick"_s);
  QCOMPARE(QCoreApplication::organizationName(), u"Tarnwick"_s);
  QCOMPARE(QCoreApplication::applicationVersion(), u"1.0.0"_s);
  QVERIFY(storeFile().endsWith("/Tarnwick/Tarnwick.ini"_L1));
  QVERIFY(storeFile().startsWith(m_home.outside()));
}

void tst_AppSettings::defaults() {
  QCOMPARE(settings().moveToTrash(), true);
  QCOMPARE(settings().exclusions(), QStringList{u"**/.git"_s});
  QCOMPARE(settings().schedule(), AppSettings::Weekly);
  QCOMPARE(settings().lowSpaceAlerts(), true);
  QCOMPARE(settings().startAtLogin(), false);
  QCOMPARE(settings().closeAction(), AppSettings::Ask);
  QCOMPARE(settings().showInTray(), true);
  QCOMPARE(settings().themeMode(), AppSettings::System);
  QCOMPARE(settings().language(), QString());
  QCOMPARE(settings().largeFileMB(), 500);
  QCOMPARE(settings().oldMonths(), 6);
  QVERIFY(!settings().lastScan().isValid());
  QCOMPARE(settings().freedHistory(2), (QList<qint64>{0, 0}));
  QCOMPARE(settings().get("no/such", 7), QVariant(7));
}

void tst_AppSettings::roundTrips() {
  const QDateTime when(QDate(2024, 2, 29), QTime(12, 30, 1));
  settingsstore::setAll(when);

  QCOMPARE(settings().moveToTrash(), false);
  QCOMPARE(settings().exclusions(), (QStringList{u"~/Keep, this"_s, u"*.iso"_s}));
  QCOMPARE(settings().schedule(), AppSettings::Monthly);
  QCOMPARE(settings().lowSpaceAlerts(), false);
  QCOMPARE(settings().startAtLogin(), true);
  QCOMPARE(settings().closeAction(), AppSettings::Quit);
  QCOMPARE(settings().showInTray(), false);
  QCOMPARE(settings().themeMode(), AppSettings::Dark);
  QCOMPARE(settings().language(), u"pt_BR"_s);
  QCOMPARE(settings().largeFileMB(), 100);
  QCOMPARE(settings().oldMonths(), 24);
  QCOMPARE(settings().lastScan(), when);
}

void tst_AppSettings::keysAndStoredTypes() {
  settings().setMoveToTrash(false);
  settings().setExclusions({u"a"_s});
  settings().setSchedule(AppSettings::Monthly);
  settings().setLowSpaceAlerts(false);
  settings().setStartAtLogin(true);
  settings().setCloseAction(AppSettings::KeepInTray);
  settings().setShowInTray(false);
  settings().setThemeMode(AppSettings::Light);
  settings().setLanguage(u"de"_s);
  settings().setLargeFileMB(50);
  settings().setOldMonths(3);
  settings().setLastScan(QDateTime::currentDateTime());
  settings().addFreed(12, QDate(2025, 3, 31));

  QStringList keys = QSettings().allKeys();
  keys.sort();
  QCOMPARE(keys, (QStringList{u"auto/lowSpaceAlerts"_s, u"auto/schedule"_s, u"auto/startAtLogin"_s,
                              u"clean/exclusions"_s, u"clean/moveToTrash"_s, u"history/freed"_s, u"history/lastScan"_s,
                              u"large/oldMonths"_s, u"large/thresholdMB"_s, u"ui/closeAction"_s, u"ui/language"_s,
                              u"ui/showInTray"_s, u"ui/theme"_s}));
  QCOMPARE(QSettings().value(u"auto/schedule"_s).toInt(), 2);
  QCOMPARE(QSettings().value(u"ui/closeAction"_s).toInt(), 1);
  QCOMPARE(QSettings().value(u"ui/theme"_s).toInt(), 1);
  QCOMPARE(QSettings().value(u"history/freed"_s).toMap(), (QVariantMap{{u"2025-03"_s, 12}}));
}

void tst_AppSettings::changedOnlyForNewValues() {
  const QDateTime when(QDate(2024, 2, 29), QTime(12, 30));
  settings().setMoveToTrash(true);
  settings().setLargeFileMB(100);
  settings().setExclusions({u"a"_s});
  settings().setLastScan(when);
  QSignalSpy changed(&settings(), &AppSettings::changed);
  settings().setMoveToTrash(true);
  settings().setLargeFileMB(100);
  settings().setExclusions({u"a"_s});
  settings().setLastScan(when);
  QCOMPARE(changed.count(), 0);
  settings().setMoveToTrash(false);
  QCOMPARE(changed.count(), 1);
  settings().setLargeFileMB(101);
  QCOMPARE(changed.count(), 2);
}

void tst_AppSettings::writingADefaultStoresIt() {
  QSignalSpy changed(&settings(), &AppSettings::changed);
  settings().setMoveToTrash(true);
  settings().setLanguage(QString());
  QCOMPARE(changed.count(), 2);
  QVERIFY(QSettings().contains(u"clean/moveToTrash"_s));
  QVERIFY(QSettings().contains(u"ui/language"_s));
}

void tst_AppSettings::textStoreAlreadyHolds_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<bool>("holdsTrue");
  QTest::newRow("true") << QByteArray("true") << true;
  QTest::newRow("True") << QByteArray("True") << true;
  QTest::newRow("1") << QByteArray("1") << true;
  QTest::newRow("false") << QByteArray("false") << false;
  QTest::newRow("0") << QByteArray("0") << false;
}

void tst_AppSettings::textStoreAlreadyHolds() {
  QFETCH(QByteArray, text);
  QFETCH(bool, holdsTrue);
  writeStore("[auto]\nschedule=2\nlowSpaceAlerts=" + text + "\nstartAtLogin=" + text +
             "\n[clean]\nexclusions=**/.git\n[large]\noldMonths=3\n");
  QCOMPARE(QSettings().value(u"auto/startAtLogin"_s).metaType(), QMetaType::fromType<QString>());
  QCOMPARE(settings().lowSpaceAlerts(), holdsTrue);
  QCOMPARE(settings().startAtLogin(), holdsTrue);
  QSignalSpy changed(&settings(), &AppSettings::changed);
  settings().setLowSpaceAlerts(holdsTrue);
  settings().setStartAtLogin(holdsTrue);
  settings().setSchedule(AppSettings::Monthly);
  settings().setOldMonths(3);
  settings().setExclusions({u"**/.git"_s});
  QCOMPARE(changed.count(), 0);
  settings().setStartAtLogin(!holdsTrue);
  QCOMPARE(changed.count(), 1);
  QCOMPARE(settings().startAtLogin(), !holdsTrue);
}

void tst_AppSettings::mistypedValuesGiveDefaults_data() {
  QTest::addColumn<QByteArray>("value");
  for (const char* value : {"banana", "-1", "3", "99999999999999999999", "", "@Invalid()", "1, 2"})
    QTest::addRow("'%s'", value) << QByteArray(value);
}

void tst_AppSettings::mistypedValuesGiveDefaults() {
  QFETCH(QByteArray, value);
  writeStore("[auto]\nschedule=" + value + "\n[ui]\ncloseAction=" + value + "\ntheme=" + value +
             "\nshowInTray=banana\n[clean]\nmoveToTrash=2\n[auto]\nstartAtLogin=yes please\n"
             "[large]\nthresholdMB=-5\noldMonths=old\n[history]\nlastScan=yesterday\nfreed=lots\n");
  QCOMPARE(settings().schedule(), AppSettings::Weekly);
  QCOMPARE(settings().closeAction(), AppSettings::Ask);
  QCOMPARE(settings().themeMode(), AppSettings::System);
  QCOMPARE(settings().showInTray(), true);
  QCOMPARE(settings().moveToTrash(), true);
  QCOMPARE(settings().startAtLogin(), false);
  QCOMPARE(settings().largeFileMB(), 500);
  QCOMPARE(settings().oldMonths(), 6);
  QVERIFY(!settings().lastScan().isValid());
  QCOMPARE(settings().freedHistory(1), QList<qint64>{0});
}

void tst_AppSettings::invalidValuesGiveDefaults() {
  writeStore("[clean]\nmoveToTrash=@Invalid()\n[auto]\nlowSpaceAlerts=@Invalid()\n[large]\nthresholdMB=@Invalid()\n");
  QCOMPARE(settings().moveToTrash(), true);
  QCOMPARE(settings().lowSpaceAlerts(), true);
  QCOMPARE(settings().largeFileMB(), 500);
  QSignalSpy changed(&settings(), &AppSettings::changed);
  settings().setMoveToTrash(false);
  QCOMPARE(changed.count(), 1);
  QCOMPARE(settings().moveToTrash(), false);
}

void tst_AppSettings::readable_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<bool>("isReadable");
  const auto row = [](const char* text, bool isReadable) { QTest::newRow(text) << QByteArray(text) << isReadable; };
  row("", true);
  row("[clean]\nexclusions=\n", true);
  row("[clean]\nexclusions=@Invalid()\n", true);
  row("[clean]\nexclusions=*.iso\n", true);
  row("[clean]\nexclusions=*.iso, ~/Keep\n", true);
  row("[clean]\nexclusions=@@Variant(xx)\n", true);
  row("[clean]\nmoveToTrash=@Variant(xx)\nexclusions=*.iso\n", true);
  row("[clean]\nexclusions=@Variant(xx)\n", false);
  row("[clean]\n exclusions = @Variant()\n", false);
  row("[clean]\nexclusions=@Point(1 2)\n", false);
}

void tst_AppSettings::readable() {
  QFETCH(QByteArray, text);
  writeStore(text);
  QTEST(settings().isReadable(), "isReadable");
}

void tst_AppSettings::readableWithoutAFile() {
  QFile::remove(storeFile());
  QVERIFY(settings().isReadable());
  QVERIFY(QDir().mkdir(storeFile()));
  QVERIFY(!settings().isReadable());
  QVERIFY(QDir().rmdir(storeFile()));
  QVERIFY(QFile::link(u"nowhere"_s, storeFile()));
  QVERIFY(!settings().isReadable());
  QVERIFY(QFile::remove(storeFile()));
  QVERIFY(settings().isReadable());
}

void tst_AppSettings::mistypedBoolIsReplaced() {
  writeStore("[auto]\nstartAtLogin=banana\n");
  QSignalSpy changed(&settings(), &AppSettings::changed);
  settings().setStartAtLogin(true);
  QCOMPARE(changed.count(), 1);
  QCOMPARE(settings().startAtLogin(), true);
}

void tst_AppSettings::exclusionsOfOneAndNone() {
  settings().setExclusions({u"**/.git"_s});
  QCOMPARE(settings().exclusions(), QStringList{u"**/.git"_s});
  settings().setExclusions({});
  QVERIFY(settings().exclusions().isEmpty());

  writeStore("[clean]\nexclusions=@Invalid()\n");
  QVERIFY(settings().exclusions().isEmpty());
  QSignalSpy changed(&settings(), &AppSettings::changed);
  settings().setExclusions({});
  QCOMPARE(changed.count(), 0);
}

void tst_AppSettings::addFreedOfNothing() {
  QSignalSpy changed(&settings(), &AppSettings::changed);
  settings().addFreed(0);
  settings().addFreed(-5);
  QCOMPARE(changed.count(), 0);
  QVERIFY(!QSettings().contains(u"history/freed"_s));
}

void tst_AppSettings::addFreedAddsUpByMonth() {
  settings().addFreed(100, QDate(2025, 1, 31));
  settings().addFreed(23, QDate(2025, 1, 1));
  settings().addFreed(7, QDate(2025, 2, 1));
  QCOMPARE(QSettings().value(u"history/freed"_s).toMap(), (QVariantMap{{u"2025-01"_s, 123}, {u"2025-02"_s, 7}}));
  settings().addFreed(1);
  QCOMPARE(settings().freedHistory(1), QList<qint64>{1});
}

void tst_AppSettings::addFreedTakesInOtherProcesses() {
  settings().addFreed(100, QDate(2025, 1, 31));
  const QString copy = storeFile() + u".other"_s;
  QVERIFY(QFile::copy(storeFile(), copy));
  {
    QSettings other(copy, QSettings::IniFormat);
    other.setValue(u"history/freed"_s, QVariantMap{{u"2025-01"_s, 500}, {u"2024-12"_s, 3}});
  }
  QFile in(copy);
  QFile out(storeFile());
  QVERIFY(in.open(QIODevice::ReadOnly) && out.open(QIODevice::WriteOnly));
  out.write(in.readAll());
  out.close();
  settings().addFreed(1, QDate(2025, 1, 31));
  QCOMPARE(settings().freedHistory(2, QDate(2025, 1, 15)), (QList<qint64>{3, 501}));
}

void tst_AppSettings::addFreedDoesNotOverflow() {
  settings().addFreed(std::numeric_limits<qint64>::max(), QDate(2025, 1, 1));
  settings().addFreed(1, QDate(2025, 1, 1));
  QCOMPARE(settings().freedHistory(1, QDate(2025, 1, 1)), QList<qint64>{std::numeric_limits<qint64>::max()});
}

void tst_AppSettings::freedHistoryWindow() {
  const QDate today(2025, 3, 15);
  settings().addFreed(42, today);
  QCOMPARE(settings().freedHistory(6, today), (QList<qint64>{0, 0, 0, 0, 0, 42}));
  QCOMPARE(settings().freedHistory(0, today), QList<qint64>{});
  QCOMPARE(settings().freedHistory(-3, today), QList<qint64>{});
  settings().addFreed(7, QDate(2024, 12, 31));
  settings().addFreed(9, QDate(2024, 11, 30));
  QCOMPARE(settings().freedHistory(4, today), (QList<qint64>{7, 0, 0, 42}));
  QSettings().setValue(u"history/freed"_s, QVariantMap{{u"2025-03"_s, -4}, {u"2025-02"_s, u"much"_s}});
  QCOMPARE(settings().freedHistory(2, today), (QList<qint64>{0, 0}));
}

void tst_AppSettings::freedHistoryAtMonthsEnd() {
  settings().addFreed(2, QDate(2025, 2, 28));
  settings().addFreed(3, QDate(2025, 3, 1));
  QCOMPARE(settings().freedHistory(2, QDate(2025, 3, 31)), (QList<qint64>{2, 3}));
}

void tst_AppSettings::scheduledScan_data() {
  QTest::addColumn<int>("schedule");
  QTest::addColumn<int>("days");
  QTest::addColumn<bool>("due");
  QTest::newRow("weekly, 6 days") << 1 << 6 << false;
  QTest::newRow("weekly, 7 days") << 1 << 7 << true;
  QTest::newRow("monthly, 29 days") << 2 << 29 << false;
  QTest::newRow("monthly, 30 days") << 2 << 30 << true;
  QTest::newRow("off, 400 days") << 0 << 400 << false;
  QTest::newRow("weekly, in the future") << 1 << -1 << false;
}

void tst_AppSettings::scheduledScan() {
  QFETCH(int, schedule);
  QFETCH(int, days);
  const QDateTime now(QDate(2025, 3, 15), QTime(10, 0));
  settings().setSchedule(static_cast<AppSettings::Schedule>(schedule));
  settings().setLastScan(now.addDays(-days));
  QTEST(settings().scheduledScanDue(now), "due");
}

void tst_AppSettings::scheduledScanNeedsAScan() {
  QVERIFY(!settings().scheduledScanDue());
  settings().setLastScan(QDateTime::currentDateTime().addDays(-8));
  QVERIFY(settings().scheduledScanDue());
}

QTEST_GUILESS_MAIN(tst_AppSettings)
#include "tst_AppSettings.moc"
