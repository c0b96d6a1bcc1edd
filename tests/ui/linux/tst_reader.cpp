// What painted controls tell reaches assistive tools over their bus. Qt tells nothing before such a bus is there, so
// the events of tst_accessible are tested again on a screen, a session bus and an accessibility bus of their own.

#include "support/servers.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString kLauncher = u"/usr/libexec/at-spi-bus-launcher"_s;

} // namespace

class TestReader : public QObject {
  Q_OBJECT

 private slots:
  void eventsAreTold();
};

void TestReader::eventsAreTold() {
  if (!QFile::exists(kLauncher)) QSKIP("no accessibility bus here");
  servers::Server screen;
  servers::Server bus;
  if (!servers::startScreen(&screen)) QSKIP("no Xvfb here");
  if (!servers::startBus(&bus)) QSKIP("no dbus-daemon here");
  QProcessEnvironment environment = servers::onScreen(screen);
  environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.answer());
  environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
  environment.insert(u"TARNWICK_TEST_READER"_s, bus.answer());

  QProcess launcher;
  launcher.setProcessEnvironment(environment);
  launcher.start(kLauncher, {u"--launch-immediately"_s});
  QVERIFY(launcher.waitForStarted());
  {
    const QDBusConnection session = QDBusConnection::connectToBus(bus.answer(), u"test"_s);
    QTRY_VERIFY(session.interface()->isServiceRegistered(u"org.a11y.Bus"_s));
  }
  QDBusConnection::disconnectFromBus(u"test"_s);

  const QStringList told = {u"valueChangeIsTold"_s, u"partChangeIsTold"_s, u"dropDownIsTold"_s, u"textIsTold"_s};
  QProcess test;
  test.setProcessEnvironment(environment);
  test.setProcessChannelMode(QProcess::MergedChannels);
  test.start(QStringLiteral(TST_ACCESSIBLE), told);
  const bool ended = test.waitForFinished(60000);
  const QByteArray output = test.readAll();
  launcher.terminate();
  launcher.waitForFinished(3000);
  QVERIFY2(ended && test.exitStatus() == QProcess::NormalExit && test.exitCode() == 0, output.constData());
  for (const QString& name : told)
    QVERIFY2(output.contains("PASS   : TestAccessible::" + name.toLatin1() + "()"), output.constData());
}

QTEST_GUILESS_MAIN(TestReader)

#include "tst_reader.moc"
