#include "update/Updater.h"

#include "support/Desktop.h"
#include "support/FixtureHome.h"
#include "support/servers.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The file manager's interface, as a stand-in that takes its time.
class FileManager : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

 public:
  QStringList asked;
  bool hasAnswered = false;
  bool refuses = false;

 public slots:
  void ShowItems(const QStringList& uris, const QString& /*startupId*/) {
    asked.append(uris);
    setDelayedReply(true);
    const QDBusMessage question = message();
    const QDBusConnection bus = connection();
    QTimer::singleShot(50ms, this, [this, question, bus] {
      hasAnswered = true;
      bus.send(refuses ? question.createErrorReply(QDBusError::Failed, u"not today"_s) : question.createReply());
    });
  }
};

/// The program's connection to the bus lasts as long as the process, so the cases without one come first.
class TestLaunch : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", m_home.folder(u"runtime"_s).toUtf8());
    m_package = m_home.file(u"down loads/tarnwick.deb"_s);
  }

  void cleanupTestCase() { QDBusConnection::disconnectFromBus(u"stand-in"_s); }

  void whatIsNotThereIsSaid() {
    Desktop desktop;
    QCOMPARE(Updater::launchInstaller(m_home.path(u"gone.deb"_s)), kFailure);
    QVERIFY(desktop.opened.isEmpty());
  }

  void withoutABusTheFolderIsOpenedByTheTimeItReturns() {
    Desktop desktop;
    QCOMPARE(Updater::launchInstaller(m_package), QString());
    QCOMPARE(desktop.opened, QStringList{m_home.path(u"down loads"_s)});
  }

  void withNothingThatOpensFoldersItIsSaid() { QCOMPARE(Updater::launchInstaller(m_package), kFailure); }

  void theFileManagerHasAnsweredByTheTimeItReturns() {
    QVERIFY(startBus());
    Desktop desktop;
    QCOMPARE(Updater::launchInstaller(m_package), QString());
    QCOMPARE(m_manager.asked, QStringList{QString::fromLatin1(QUrl::fromLocalFile(m_package).toEncoded())});
    QVERIFY(m_manager.hasAnswered);
    QVERIFY(desktop.opened.isEmpty());
  }

  void afterARefusalTheFolderIsOpened() {
    m_manager.refuses = true;
    Desktop desktop;
    QCOMPARE(Updater::launchInstaller(m_package), QString());
    QCOMPARE(desktop.opened, QStringList{m_home.path(u"down loads"_s)});
  }

  void aQuitMeanwhileHoldsNothingUp() {
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    Desktop desktop;
    QCOMPARE(Updater::launchInstaller(m_package), QString());
  }

 private:
  static inline const QString kFailure = u"Could not open the update."_s;

  bool startBus() {
    if (!servers::startEmptyBus(&m_bus, m_home)) return false;
    const QString address = m_bus.answer();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
    QDBusConnection bus = QDBusConnection::connectToBus(address, u"stand-in"_s);
    return bus.registerObject(u"/org/freedesktop/FileManager1"_s, &m_manager, QDBusConnection::ExportAllSlots) &&
           bus.registerService(u"org.freedesktop.FileManager1"_s);
  }

  FixtureHome m_home;
  QString m_package;
  servers::Server m_bus;
  FileManager m_manager;
};

QTEST_GUILESS_MAIN(TestLaunch)
#include "tst_launch.moc"
