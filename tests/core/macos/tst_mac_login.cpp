// The launch agent of macOS: where it stands, and that it is written, kept true and removed.
#include "core/login.h"

#include "support/FixtureHome.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using login::Outcome;

class tst_mac_login : public QObject {
  Q_OBJECT

 private slots:
  void writtenKeptAndRemoved();
  void leavesWhatIsNotItsOwn();

 private:
  static QByteArray agent() {
    QFile file(login::path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  FixtureHome m_home;
};

void tst_mac_login::writtenKeptAndRemoved() {
  const QString program = u"/Applications/Tarnwick.app/Contents/MacOS/tarnwick"_s;
  QCOMPARE(login::path(), m_home.path(u"Library/LaunchAgents/tarnwick.login.plist"_s));
  QCOMPARE(login::add(u"/old=place/tarnwick"_s), Outcome::Done);
  QCOMPARE(agent(), login::launchAgent(u"/old=place/tarnwick"_s));
  QCOMPARE(login::keep(program), Outcome::Done);
  QCOMPARE(agent(), login::launchAgent(program));
  QCOMPARE(login::remove(), Outcome::Done);
  QVERIFY(!QFile::exists(login::path()));
}

void tst_mac_login::leavesWhatIsNotItsOwn() {
  QFile file(m_home.file(u"Library/LaunchAgents/tarnwick.login.plist"_s, 0));
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write("<plist/>");
  file.close();
  QCOMPARE(login::add(u"/a/tarnwick"_s), Outcome::Taken);
  QCOMPARE(login::remove(), Outcome::Done);
  QCOMPARE(agent(), QByteArray("<plist/>"));
}

QTEST_GUILESS_MAIN(tst_mac_login)
#include "tst_mac_login.moc"
