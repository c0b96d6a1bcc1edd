#include "core/platform.h"

#include "support/Desktop.h"
#include "support/FixtureHome.h"
#include "support/servers.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>
#include <QThreadPool>

#include <csignal>

using namespace Qt::StringLiterals;

/// The file manager's interface, as a stand-in that notes what it is asked.
class FileManager : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

 public:
  QStringList asked;
  bool refuses = false;

 public slots:
  void ShowItems(const QStringList& uris, const QString& startupId) { note(u"items"_s, uris, startupId); }
  void ShowFolders(const QStringList& uris, const QString& startupId) { note(u"folders"_s, uris, startupId); }

 private:
  void note(const QString& what, const QStringList& uris, const QString& startupId) {
    asked.append(what + u' ' + uris.join(u'|') + startupId);
    if (refuses) sendErrorReply(QDBusError::Failed, u"not today"_s);
  }
};

/// A session bus of the test's own, on which nothing is started by itself. The program's connection to it lasts as long
/// as the process, so the cases stand in an order: without a bus, with one that hangs, with nobody on it, with
/// somebody.
class TestFileManager : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", m_home.folder(u"runtime"_s).toUtf8());
  }

  void cleanupTestCase() { QDBusConnection::disconnectFromBus(u"stand-in"_s); }

  void withoutABusTheFolderIsOpened() {
    for (const char* address : {"", "autolaunch:"}) {
      qputenv("DBUS_SESSION_BUS_ADDRESS", address);
      Desktop desktop;
      platform::revealInFileManager(u"/a/b//c.txt"_s);
      platform::openFolder(u"/a/d/"_s);
      QTRY_COMPARE(desktop.opened.size(), 2);
      QVERIFY(desktop.opened.contains(u"/a/b"_s));
      QVERIFY(desktop.opened.contains(u"/a/d"_s));
    }
  }

  void aBusThatHangsHoldsNobodyUp() {
    if (!startBus()) QSKIP("dbus-daemon is not installed");
    Desktop desktop;
    const auto bus = static_cast<pid_t>(m_bus.processId());
    QVERIFY(bus > 0);
    ::kill(bus, SIGSTOP);
    QElapsedTimer clock;
    clock.start();
    platform::revealInFileManager(u"/a/b/c.txt"_s);
    const qint64 elapsedMs = clock.elapsed();
    ::kill(bus, SIGCONT);
    QVERIFY2(elapsedMs < 1000, qPrintable(QString::number(elapsedMs)));
    QTRY_COMPARE_WITH_TIMEOUT(desktop.opened, QStringList{u"/a/b"_s}, 30000);
  }

  void withNobodyThereTheFolderIsOpened() {
    if (!m_running) QSKIP("dbus-daemon is not installed");
    Desktop desktop;
    platform::revealInFileManager(u"/a/b/c.txt"_s);
    QTRY_COMPARE(desktop.opened, QStringList{u"/a/b"_s});
    platform::openFolder(u"/a/d"_s);
    QTRY_COMPARE(desktop.opened.size(), 2);
    QCOMPARE(desktop.opened.last(), u"/a/d"_s);
  }

  void theFileManagerIsAsked_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("uri");
    QTest::newRow("plain") << u"/home/me/file.txt"_s << u"file:///home/me/file.txt"_s;
    QTest::newRow("odd characters") << u"/a b/100%/#1?x;y'\"[z]"_s
                                    << u"file:///a%20b/100%25/%231%3Fx%3By%27%22%5Bz%5D"_s;
    QTest::newRow("a line break and a backslash") << u"/a\nb\\c"_s << u"file:///a%0Ab%5Cc"_s;
    QTest::newRow("not ASCII, in the form it has")
        << u"/\u00e4/a\u0308/\U0001F600"_s << u"file:///%C3%A4/a%CC%88/%F0%9F%98%80"_s;
    QTest::newRow("not clean") << u"//server/./x/../y/"_s << u"file:///server/y"_s;
  }
  void theFileManagerIsAsked() {
    if (!m_running) QSKIP("dbus-daemon is not installed");
    QFETCH(QString, path);
    QFETCH(QString, uri);
    Desktop desktop;
    offer();
    platform::revealInFileManager(path);
    QTRY_COMPARE(m_manager.asked, QStringList{u"items "_s + uri});
    platform::openFolder(path);
    QTRY_COMPARE(m_manager.asked, (QStringList{u"items "_s + uri, u"folders "_s + uri}));
    QVERIFY(desktop.opened.isEmpty());
  }

  void aRefusalOpensTheFolder() {
    if (!m_running) QSKIP("dbus-daemon is not installed");
    Desktop desktop;
    offer();
    m_manager.refuses = true;
    platform::revealInFileManager(u"/a/b/c.txt"_s);
    QTRY_COMPARE(desktop.opened, QStringList{u"/a/b"_s});
    QCOMPARE(m_manager.asked.size(), 1);
  }

  void runningJobsDontHoldItUp() {
    if (!m_running) QSKIP("dbus-daemon is not installed");
    offer();
    QThreadPool* pool = QThreadPool::globalInstance();
    const int jobs = pool->maxThreadCount();
    QSemaphore end;
    for (int i = 0; i < jobs; ++i) pool->start([&end] { end.acquire(); });
    platform::revealInFileManager(u"/a/b/c.txt"_s);
    const bool asked = QTest::qWaitFor([&] { return m_manager.asked.size() == 1; });
    end.release(jobs);
    pool->waitForDone();
    QVERIFY(asked);
  }

 private:
  bool startBus() {
    m_running = servers::startEmptyBus(&m_bus, m_home);
    if (m_running) qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.answer().toUtf8());
    return m_running;
  }

  /// Puts the stand-in on the bus, as if new.
  void offer() {
    m_manager.asked.clear();
    m_manager.refuses = false;
    QDBusConnection bus = QDBusConnection::connectToBus(m_bus.answer(), u"stand-in"_s);
    bus.registerObject(u"/org/freedesktop/FileManager1"_s, &m_manager, QDBusConnection::ExportAllSlots);
    bus.registerService(u"org.freedesktop.FileManager1"_s);
  }

  FixtureHome m_home;
  servers::Server m_bus;
  bool m_running = false;
  FileManager m_manager;
};

QTEST_GUILESS_MAIN(TestFileManager)
#include "tst_filemanager.moc"
