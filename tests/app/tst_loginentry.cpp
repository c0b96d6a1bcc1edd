// The setting to open at login, and the entry that makes it true.
#include "app/loginentry.h"

#include "app/AppSettings.h"
#include "app/identity.h"
#include "core/login.h"
#include "support/FixtureHome.h"
#include "support/settings.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_loginentry : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { identity::apply(); }
  void init();

  void setWritesAndRemoves();
  void nothingWhileNeverTouched();
  void keepFollowsTheProgram();
  void keepFollowsTheSetting();
  void keepLeavesAllWithDamagedSettings();
  void takenPlaceIsTold();
  void failureStoresNothing();
  void everyStartTriesAgain();

 private:
  static AppSettings& settings() { return AppSettings::instance(); }
  static QByteArray entry() { return settingsstore::bytes(login::path()); }
  static void writeEntry(const QByteArray& text) {
    QDir().mkpath(QFileInfo(login::path()).path());
    settingsstore::write(login::path(), text);
  }

  FixtureHome m_ofTheSettings;
  std::unique_ptr<FixtureHome> m_home;
};

void tst_loginentry::init() {
  settingsstore::forget();
  m_home.reset(); // it gives HOME back
  m_home = std::make_unique<FixtureHome>();
}

void tst_loginentry::setWritesAndRemoves() {
  QCOMPARE(loginentry::set(true), QString());
  QVERIFY(settings().startAtLogin());
  QCOMPARE(entry(), login::desktopEntry(QCoreApplication::applicationFilePath()));
  QCOMPARE(loginentry::set(false), QString());
  QVERIFY(!settings().startAtLogin());
  QVERIFY(!QFile::exists(login::path()));
  QCOMPARE(loginentry::set(false), QString());
}

void tst_loginentry::nothingWhileNeverTouched() {
  loginentry::keep();
  QVERIFY(!QFileInfo::exists(m_home->path(u".config"_s)));
  const QByteArray old = login::desktopEntry(u"/old/tarnwick"_s);
  writeEntry(old);
  loginentry::keep();
  QCOMPARE(entry(), old); // of a store that the user has thrown away, say
}

void tst_loginentry::keepFollowsTheProgram() {
  QCOMPARE(loginentry::set(true), QString());
  writeEntry(login::desktopEntry(u"/old/tarnwick"_s));
  loginentry::keep();
  QCOMPARE(entry(), login::desktopEntry(QCoreApplication::applicationFilePath()));
}

void tst_loginentry::keepFollowsTheSetting() {
  QCOMPARE(loginentry::set(true), QString());
  QVERIFY(QFile::remove(login::path()));
  loginentry::keep();
  QCOMPARE(entry(), login::desktopEntry(QCoreApplication::applicationFilePath()));
  settings().setStartAtLogin(false);
  loginentry::keep();
  QVERIFY(!QFile::exists(login::path()));
}

void tst_loginentry::keepLeavesAllWithDamagedSettings() {
  QCOMPARE(loginentry::set(true), QString());
  const QByteArray old = login::desktopEntry(u"/old/tarnwick"_s);
  writeEntry(old);
  for (const QByteArray& damage : {QByteArray("broken"), QByteArray(), QByteArray("[auto]\nstartAtLogin=fal")}) {
    settingsstore::write(settings().path(), damage);
    if (damage.contains("fal")) QFile::remove(settings().memoryPath());
    loginentry::keep();
    if (!damage.contains("fal")) QCOMPARE(entry(), old);
  }
  QVERIFY(!QFile::exists(login::path())); // a store in order, which says no
}

void tst_loginentry::takenPlaceIsTold() {
  writeEntry("[Desktop Entry]\nExec=tarnwick\n");
  QCOMPARE(loginentry::set(true),
           u"~/.config/autostart/tarnwick.desktop is not from Tarnwick and was left as it is. Remove it to open "
           "Tarnwick at login."_s);
  QVERIFY(!settings().startAtLogin());
  QVERIFY(!settings().holds("auto/startAtLogin"));
  QCOMPARE(loginentry::set(false), QString());
  QCOMPARE(entry(), QByteArray("[Desktop Entry]\nExec=tarnwick\n"));
}

void tst_loginentry::failureStoresNothing() {
  m_home->file(u".config/autostart"_s, 1);
  QCOMPARE(loginentry::set(true),
           u"~/.config/autostart/tarnwick.desktop can't be written, so Tarnwick does not open at login."_s);
  QVERIFY(!settings().holds("auto/startAtLogin"));
}

void tst_loginentry::everyStartTriesAgain() {
  QCOMPARE(loginentry::set(true), QString());
  QVERIFY(QFile::remove(login::path()));
  QVERIFY(QDir().rmdir(m_home->path(u".config/autostart"_s)));
  m_home->file(u".config/autostart"_s, 1);
  loginentry::keep();
  QVERIFY(settings().startAtLogin());
  QVERIFY(QFile::remove(m_home->path(u".config/autostart"_s)));
  loginentry::keep();
  QVERIFY(QFile::exists(login::path()));
}

QTEST_GUILESS_MAIN(tst_loginentry)
#include "tst_loginentry.moc"
