// The Settings page: what each of its controls stores, and when it takes effect.
#include "SettingsTest.h"
#include "core/deployment.h"
#include "core/login.h"
#include "engines/Cleaner.h"
#include "engines/LargeFileFinder.h"
#include "support/Desktop.h"
#include "ui/controls/Select.h"
#include "ui/controls/Switch.h"
#include "ui/i18n.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace ui;

class TestSettingsPage : public SettingsTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void switchesStore_data();
  void switchesStore();
  void choicesStore_data();
  void choicesStore();
  void unknownValueShowsTheFirst();
  void largeSizeSearchesAnewOnceSearched();
  void themeTakesEffectAtOnce();
  void closeActionFollowsOthers();
  void onlyTheCloseActionFollows();
  void languages();
  void restartIsOfferedWhileAnotherIsChosen();
  void systemDefaultNeedsNoRestart();
  void loginWritesItsEntry();
  void loginThatFailsGoesBack();
  void opensTheLogs();
  void asksForUpdates();
  void updatesCanBeLeftOut();
};

// ---- what they store

void TestSettingsPage::switchesStore_data() {
  QTest::addColumn<QString>("host");
  QTest::addColumn<QString>("title");
  QTest::addColumn<QString>("key");
  QTest::addColumn<bool>("first");
  QTest::newRow("trash") << u"linux"_s << u"Move items to the Trash"_s << u"clean/moveToTrash"_s << true;
  QTest::newRow("alerts") << u"linux"_s << u"Low space alerts"_s << u"auto/lowSpaceAlerts"_s << true;
  QTest::newRow("login") << u"linux"_s << u"Open at login"_s << u"auto/startAtLogin"_s << false;
  QTest::newRow("tray") << u"linux"_s << u"Show Tarnwick in the system tray"_s << u"ui/showInTray"_s << true;
  QTest::newRow("menu bar") << u"mac"_s << u"Show Tarnwick in the menu bar"_s << u"ui/showInTray"_s << true;
}

void TestSettingsPage::switchesStore() {
  QFETCH(QString, host);
  QFETCH(QString, title);
  QFETCH(QString, key);
  QFETCH(bool, first);
  open(host.toLatin1().constData());
  auto* one = control<Switch>(title);
  QCOMPARE(one->isChecked(), first);
  QVERIFY(!QSettings().contains(key));
  QTest::mouseClick(one, Qt::LeftButton);
  QCOMPARE(QSettings().value(key).toBool(), !first);
  QTest::keyClick(one, Qt::Key_Space);
  QCOMPARE(QSettings().value(key).toBool(), first);
  QCOMPARE(QSettings().allKeys(), QStringList{key});
}

void TestSettingsPage::choicesStore_data() {
  QTest::addColumn<QString>("host");
  QTest::addColumn<bool>("mac");
  QTest::addColumn<QString>("title");
  QTest::addColumn<QStringList>("texts");
  QTest::addColumn<QList<int>>("values");
  QTest::addColumn<QString>("key");
  QTest::addColumn<int>("first");
  QTest::newRow("large") << u"linux"_s << true << u"Large file size"_s
                         << QStringList{u"100 MB"_s, u"250 MB"_s, u"500 MB"_s, u"1 GB"_s}
                         << QList<int>{100, 250, 500, 1000} << u"large/thresholdMB"_s << 2;
  QTest::newRow("old") << u"linux"_s << true << u"Consider files old after"_s
                       << QStringList{u"3 months"_s, u"6 months"_s, u"12 months"_s, u"24 months"_s}
                       << QList<int>{3, 6, 12, 24} << u"large/oldMonths"_s << 1;
  QTest::newRow("schedule") << u"linux"_s << false << u"Scheduled scan"_s
                            << QStringList{u"Off"_s, u"Weekly"_s, u"Monthly"_s} << QList<int>{0, 1, 2}
                            << u"auto/schedule"_s << 1;
  QTest::newRow("theme") << u"mac"_s << true << u"Theme"_s << QStringList{u"System"_s, u"Light"_s, u"Dark"_s}
                         << QList<int>{0, 1, 2} << u"ui/theme"_s << 0;
  QTest::newRow("close") << u"mac"_s << false << u"When closing the window"_s
                         << QStringList{u"Ask every time"_s, u"Keep running in the tray"_s, u"Quit Tarnwick"_s}
                         << QList<int>{0, 1, 2} << u"ui/closeAction"_s << 0;
}

void TestSettingsPage::choicesStore() {
  QFETCH(QString, host);
  QFETCH(bool, mac);
  QFETCH(QString, title);
  QFETCH(QStringList, texts);
  QFETCH(QList<int>, values);
  QFETCH(QString, key);
  QFETCH(int, first);
  open(host.toLatin1().constData(), mac);
  auto* one = control<Select>(title);
  QCOMPARE(one->count(), texts.size());
  QCOMPARE(one->currentIndex(), first);
  QCOMPARE(one->minimumWidth(), key == u"ui/closeAction"_s ? 200 : 130);
  QVERIFY(!QSettings().contains(key));
  for (int i = 0; i < one->count(); ++i) {
    const int chosen = (first + 1 + i) % one->count(); // another one at first
    one->activateItem(chosen);
    QCOMPARE(one->currentText(), texts.at(chosen));
    QCOMPARE(QSettings().value(key).toInt(), values.at(chosen));
  }
  QCOMPARE(QSettings().allKeys(), QStringList{key});
}

void TestSettingsPage::unknownValueShowsTheFirst() {
  settings().setLargeFileMB(300);
  settings().setOldMonths(7);
  QSettings().setValue(u"ui/theme"_s, 9);
  settings().setLanguage(u"xx"_s);
  const QByteArray before = settingsstore::bytes(settings().path());
  open();
  QCOMPARE(control<Select>(u"Large file size"_s)->currentIndex(), 0);
  QCOMPARE(control<Select>(u"Consider files old after"_s)->currentIndex(), 0);
  QCOMPARE(control<Select>(u"Theme"_s)->currentIndex(), 0);
  QCOMPARE(control<Select>(u"Language"_s)->currentIndex(), 0);
  QCOMPARE(settingsstore::bytes(settings().path()), before);
  QCOMPARE(settings().largeFileMB(), 300);
}

void TestSettingsPage::largeSizeSearchesAnewOnceSearched() {
  open();
  QSignalSpy searches(m_state->largeFinder, &LargeFileFinder::finished);
  control<Select>(u"Large file size"_s)->activateItem(0);
  QVERIFY(!m_state->largeFinder->isRunning());
  m_state->startLargeScan();
  QTRY_VERIFY(m_state->largeScanned && !m_state->largeFinder->isRunning());
  const auto before = searches.count();
  control<Select>(u"Large file size"_s)->activateItem(1);
  QTRY_COMPARE(searches.count(), before + 1);
  QTRY_VERIFY(!m_state->largeFinder->isRunning());
}

void TestSettingsPage::themeTakesEffectAtOnce() {
  settings().setThemeMode(AppSettings::Light);
  open();
  QVERIFY(!Theme::get().dark);
  control<Select>(u"Theme"_s)->activateItem(2);
  QVERIFY(Theme::get().dark);
  control<Select>(u"Theme"_s)->activateItem(1);
  QVERIFY(!Theme::get().dark);
}

void TestSettingsPage::closeActionFollowsOthers() {
  open("mac", false);
  auto* one = control<Select>(u"When closing the window"_s);
  QSignalSpy told(one, &QComboBox::currentIndexChanged);
  settings().setCloseAction(AppSettings::Quit);
  QCOMPARE(one->currentIndex(), 2);
  QCOMPARE(told.count(), 0);
  QCOMPARE(settings().closeAction(), AppSettings::Quit);
}

void TestSettingsPage::onlyTheCloseActionFollows() {
  open();
  settings().setShowInTray(false);
  settings().setOldMonths(24);
  QVERIFY(control<Switch>(u"Show Tarnwick in the system tray"_s)->isChecked());
  QCOMPARE(control<Select>(u"Consider files old after"_s)->currentText(), u"6 months"_s);
}

// ---- the language

void TestSettingsPage::languages() {
  open();
  const auto* one = control<Select>(u"Language"_s);
  QCOMPARE(one->count(), 11);
  QCOMPARE(one->itemText(0), u"System default (%1)"_s.arg(i18n::nativeName(i18n::systemLanguage())));
  QCOMPARE(one->itemData(0).toString(), QString());
  for (int i = 0; i < 10; ++i) {
    QCOMPARE(one->itemText(i + 1), i18n::languages().at(i).name);
    QCOMPARE(one->itemData(i + 1).toString(), i18n::languages().at(i).code);
  }
  QCOMPARE(one->minimumWidth(), 200);
  QVERIFY(!button(u"Restart now"_s)->isVisible());
  QVERIFY(button(u"Restart now"_s)->property("kind").toString() == u"primary"_s);
}

void TestSettingsPage::restartIsOfferedWhileAnotherIsChosen() {
  settings().setLanguage(u"fr"_s);
  open();
  auto* one = control<Select>(u"Language"_s);
  const QPushButton* restart = button(u"Restart now"_s);
  QVERIFY(!restart->isVisible());
  one->activateItem(one->findData(u"ja"_s));
  QVERIFY(restart->isVisible());
  QCOMPARE(settings().language(), u"ja"_s);
  one->activateItem(one->findData(u"fr"_s));
  QVERIFY(!restart->isVisible());
  QCOMPARE(settings().language(), u"fr"_s);
  one->activateItem(0); // the system's is another one
  QCOMPARE(restart->isVisible(), i18n::systemLanguage() != u"fr"_s);
  QVERIFY(i18n::systemLanguage() != u"fr"_s);
  QCOMPARE(settings().language(), QString());
}

void TestSettingsPage::systemDefaultNeedsNoRestart() {
  open();
  auto* one = control<Select>(u"Language"_s);
  one->activateItem(one->findData(i18n::systemLanguage()));
  QVERIFY(!button(u"Restart now"_s)->isVisible());
  QCOMPARE(settings().language(), i18n::systemLanguage());
  one->activateItem(0);
  QVERIFY(!button(u"Restart now"_s)->isVisible());
  QCOMPARE(settings().language(), QString());
}

// ---- login

void TestSettingsPage::loginWritesItsEntry() {
  open();
  auto* one = control<Switch>(u"Open at login"_s);
  QTest::mouseClick(one, Qt::LeftButton);
  QCOMPARE(settingsstore::bytes(login::path()), login::desktopEntry(QCoreApplication::applicationFilePath()));
  QTest::mouseClick(one, Qt::LeftButton);
  QVERIFY(!QFile::exists(login::path()));
}

void TestSettingsPage::loginThatFailsGoesBack() {
  m_home->file(u".config/autostart"_s, 1); // no place for an entry
  open();
  auto* one = control<Switch>(u"Open at login"_s);
  QSignalSpy toasts(m_state.get(), &AppState::toast);
  QTest::mouseClick(one, Qt::LeftButton);
  QVERIFY(!one->isChecked());
  QVERIFY(!settings().startAtLogin());
  QCOMPARE(toasts.count(), 1);
  QVERIFY(toasts[0][0].toString().startsWith(u"~/.config/autostart/tarnwick.desktop can't be written"_s));
  QCOMPARE(toasts[0][1].toBool(), false);
}

// ---- the program

void TestSettingsPage::opensTheLogs() {
  open();
  const Desktop desktop;
  QVERIFY(!QFile::exists(Cleaner::logDir()));
  QTest::mouseClick(button(u"Open logs"_s), Qt::LeftButton);
  QCOMPARE(desktop.opened, QStringList{Cleaner::logDir()});
  QVERIFY(QFileInfo(Cleaner::logDir()).isDir());
}

void TestSettingsPage::asksForUpdates() {
  open();
  if (!deployment::updatesItself()) QSKIP("this build doesn't look for updates");
  QSignalSpy asked(m_page.get(), &SettingsPage::checkForUpdates);
  QPushButton* check = button(u"Check for updates"_s);
  QTest::mouseClick(check, Qt::LeftButton);
  QCOMPARE(asked.count(), 1);
  QVERIFY(check->x() < button(u"Open logs"_s)->x());
}

void TestSettingsPage::updatesCanBeLeftOut() {
  open();
  m_page->hideUpdates();
  QVERIFY(!button(u"Check for updates"_s)->isVisible());
  QCOMPARE(tipOf(row(u"Tarnwick 1.0.0"_s)), u"Every cleanup writes a log you can review."_s);
  QCOMPARE(button(u"Open logs"_s)->accessibleDescription(), u"Every cleanup writes a log you can review."_s);
}

int main(int argc, char** argv) { return uitest::run<TestSettingsPage>(argc, argv); }

#include "tst_SettingsPage.moc"
