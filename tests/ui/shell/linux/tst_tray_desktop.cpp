// The tray on a desktop with a panel: its icon and menu as the panel sees them over the bus, messages as the desktop's
// service gets them, and a panel that comes late and goes. The desktop is a screen and a bus of the test's own, on
// which it runs itself again.
#include "DesktopTest.h"
#include "core/fmt.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/offered.h"
#include "ui/shell/program.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QMutex>
#include <QPainter>
#include <QSignalSpy>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {

const QString kWatcherName = u"org.kde.StatusNotifierWatcher"_s;
const QString kItem = u"org.kde.StatusNotifierItem"_s;
const QString kMenu = u"com.canonical.dbusmenu"_s;
const QString kProperties = u"org.freedesktop.DBus.Properties"_s;

/// One picture of an icon, as it goes over the bus.
struct IconImage {
  int width = 0;
  int height = 0;
  QByteArray bytes;
};

/// A row of a menu, as it goes over the bus.
struct MenuRow {
  int id = 0;
  QVariantMap properties;
  QList<MenuRow> children;
};

const QDBusArgument& operator>>(const QDBusArgument& argument, IconImage& image) {
  argument.beginStructure();
  argument >> image.width >> image.height >> image.bytes;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuRow& row) {
  argument.beginStructure();
  argument >> row.id >> row.properties;
  argument.beginArray();
  while (!argument.atEnd()) {
    QDBusVariant child;
    argument >> child;
    MenuRow one;
    child.variant().value<QDBusArgument>() >> one;
    row.children << one;
  }
  argument.endArray();
  argument.endStructure();
  return argument;
}

/// The service for icons. It lives on a thread of its own, as Qt waits for its answers.
class Watcher : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
  Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)
  Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
  Q_PROPERTY(int ProtocolVersion READ version)

 public:
  [[nodiscard]] bool hasHost() const { return m_hasHost; }
  [[nodiscard]] int version() const { return 0; }
  [[nodiscard]] QStringList items() const {
    const QMutexLocker lock(&m_mutex);
    return m_items;
  }
  void setHost(bool on) {
    const auto tell = [this, on] {
      m_hasHost = on;
      on ? emit StatusNotifierHostRegistered() : emit StatusNotifierHostUnregistered();
    };
    QMetaObject::invokeMethod(this, tell, Qt::BlockingQueuedConnection);
  }

 public slots:
  void RegisterStatusNotifierItem(const QString& service) {
    const QMutexLocker lock(&m_mutex);
    m_items << service;
  }

 signals:
  void StatusNotifierHostRegistered();
  void StatusNotifierHostUnregistered();

 private:
  std::atomic<bool> m_hasHost = false;
  mutable QMutex m_mutex;
  QStringList m_items;
};

/// The service for messages.
class Messages : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

 public:
  struct Message {
    uint replaces = 0;
    QString summary;
    QString body;
    QStringList actions;
    int shownMs = 0;
  };
  bool readsMarkup = false;
  QList<Message> told;

 public slots:
  QStringList GetCapabilities() { return readsMarkup ? QStringList{u"body-markup"_s} : QStringList(); }
  uint Notify(const QString& /*app*/, uint replaces, const QString& /*icon*/, const QString& summary,
              const QString& body, const QStringList& actions, const QVariantMap& /*hints*/, int shownMs) {
    told << Message{replaces, summary, body, actions, shownMs};
    return 7;
  }

 signals:
  void ActionInvoked(uint id, const QString& key);
};

} // namespace

class TestPanel : public DesktopTest {
  Q_OBJECT

 private slots:
  void initTestCase();
  void cleanupTestCase();
  void init() {
    m_before = m_watcher->items().size();
    openWindow();
  }
  void cleanup() { closeWindow(); }

  void panelComesLate();
  void iconOnTheBus();
  void clickShowsTheWindow();
  void menuOnTheBus();
  void entriesAct_data();
  void entriesAct();
  void quitEntry();
  void panelGoes();
  void lowSpaceInTheBackground();
  void messageIsPlainOrMarkup();
  void clickOnAMessage();

 private:
  /// Calls the icon, while this program goes on. Empty on an error.
  QVariantList ask(const QString& path, const QString& interface, const QString& method, const QVariantList& arguments);
  QVariant property(const QString& name) {
    return ask(u"/StatusNotifierItem"_s, kProperties, u"Get"_s, {kItem, name}).value(0).value<QDBusVariant>().variant();
  }
  QVariantList askMenu(const QString& method, const QVariantList& arguments) {
    return ask(property(u"Menu"_s).value<QDBusObjectPath>().path(), kMenu, method, arguments);
  }
  QList<MenuRow> rows();
  int idOf(const QString& label) {
    for (const MenuRow& row : rows())
      if (row.properties.value(u"label"_s).toString() == label) return row.id;
    return -1;
  }
  void panel(bool there) {
    m_watcher->setHost(there);
    QTRY_COMPARE(tray()->isShown(), there);
  }

  QDBusConnection m_bus{u"none"_s};
  QThread m_thread;
  Watcher* m_watcher = nullptr;
  qsizetype m_before = 0; ///< icons of earlier windows
  Messages m_messages;
};

void TestPanel::initTestCase() {
  QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
  qRegisterMetaType<QDBusVariant>();
  Theme::get().install(qApp);
  m_bus = QDBusConnection::connectToBus(qEnvironmentVariable(desktoptest::kBus), u"desktop"_s);
  QVERIFY(m_bus.isConnected());
  constexpr auto kAll = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals;
  m_watcher = new Watcher;
  QVERIFY(m_bus.registerObject(u"/StatusNotifierWatcher"_s, m_watcher, kAll | QDBusConnection::ExportAllProperties));
  m_watcher->moveToThread(&m_thread);
  connect(&m_thread, &QThread::finished, m_watcher, &QObject::deleteLater);
  m_thread.start();
  QVERIFY(m_bus.registerObject(u"/org/freedesktop/Notifications"_s, &m_messages, kAll));
  QVERIFY(m_bus.registerService(u"org.freedesktop.Notifications"_s));
}

void TestPanel::cleanupTestCase() {
  QDBusConnection::disconnectFromBus(u"desktop"_s);
  m_thread.quit();
  m_thread.wait();
}

QVariantList TestPanel::ask(const QString& path, const QString& interface, const QString& method,
                            const QVariantList& arguments) {
  if (!QTest::qWaitFor([&] { return m_watcher->items().size() > m_before; })) return {};
  QDBusMessage call = QDBusMessage::createMethodCall(m_watcher->items().last(), path, interface, method);
  call.setArguments(arguments);
  QDBusPendingCallWatcher answer(m_bus.asyncCall(call));
  if (!QTest::qWaitFor([&] { return answer.isFinished(); })) return {};
  if (answer.isError()) qWarning() << method << answer.error().message();
  return answer.isError() ? QVariantList() : answer.reply().arguments();
}

QList<MenuRow> TestPanel::rows() {
  MenuRow root;
  const QVariantList answer = askMenu(u"GetLayout"_s, {0, -1, QStringList()});
  if (answer.size() > 1) answer[1].value<QDBusArgument>() >> root;
  return root.children;
}

// At a login the program may be there before the panel, and before the service itself.
void TestPanel::panelComesLate() {
  showAtStart(m_window.get(), {.background = true});
  QVERIFY(!tray()->isShown());
  QVERIFY(m_window->isHidden());
  QVERIFY(m_bus.registerService(kWatcherName));
  panel(true);
  QTRY_COMPARE(m_watcher->items().size(), 1);
  QVERIFY(m_window->isHidden());
}

// The small logo brings its own ground, so it can be read on any panel.
void TestPanel::iconOnTheBus() {
  panel(true);
  const QDBusArgument pictures = property(u"IconPixmap"_s).value<QDBusArgument>();
  QList<IconImage> images;
  pictures >> images;
  QVERIFY(!images.isEmpty());
  for (const IconImage& one : images) {
    QCOMPARE(one.bytes.size(), one.width * one.height * 4);
    QImage image(one.width, one.height, QImage::Format_ARGB32); // big-endian on the bus
    for (int y = 0; y < one.height; ++y)
      for (int x = 0; x < one.width; ++x) {
        const auto* byte = reinterpret_cast<const uchar*>(one.bytes.constData()) + 4 * (y * one.width + x);
        image.setPixel(x, y, qRgba(byte[1], byte[2], byte[3], byte[0]));
      }
    for (const QColor& ground : {QColor(Qt::black), QColor(Qt::white)}) {
      QImage panelPicture(image.size(), QImage::Format_RGB32);
      panelPicture.fill(ground);
      QPainter(&panelPicture).drawImage(0, 0, image);
      int differing = 0;
      for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
          differing += qAbs(panelPicture.pixelColor(x, y).lightness() - ground.lightness()) > 60 ? 1 : 0;
      QVERIFY2(differing > image.width() * image.height() / 4, qPrintable(ground.name()));
    }
  }
  QVERIFY(property(u"Id"_s).toString().size() > 0);
}

void TestPanel::clickShowsTheWindow() {
  panel(true);
  QVERIFY(m_window->isHidden());
  ask(u"/StatusNotifierItem"_s, kItem, u"Activate"_s, {0, 0});
  QTRY_VERIFY(m_window->isVisible());
  m_window->close();
  QVERIFY(m_window->isHidden());
}

void TestPanel::menuOnTheBus() {
  panel(true);
  askMenu(u"AboutToShow"_s, {0});
  QStringList labels;
  QString status;
  for (const MenuRow& row : rows()) {
    const bool isLine = row.properties.value(u"type"_s).toString() == "separator"_L1;
    const bool isEnabled = row.properties.value(u"enabled"_s, true).toBool();
    labels << (isLine ? u"-"_s : isEnabled ? row.properties.value(u"label"_s).toString() : u"status"_s);
    if (!isEnabled && !isLine) status = row.properties.value(u"label"_s).toString();
  }
  QCOMPARE(labels, offered({u"Open Tarnwick"_s, u"-"_s, u"Smart Scan"_s, u"Find Large Files"_s, u"-"_s, u"status"_s,
                            u"-"_s, u"Settings"_s, u"Check for Updates"_s, u"-"_s, u"Quit Tarnwick"_s}));
  QCOMPARE(status, m_state->volume.name + u" · "_s + fmt::bytes(m_state->volume.availableBytes) + u" free"_s);
}

void TestPanel::entriesAct_data() {
  QTest::addColumn<QString>("label");
  for (const QString& label :
       offered({u"Open Tarnwick"_s, u"Smart Scan"_s, u"Find Large Files"_s, u"Settings"_s, u"Check for Updates"_s}))
    QTest::newRow(qPrintable(label)) << label;
}

// Each brings the hidden window back.
void TestPanel::entriesAct() {
  QFETCH(QString, label);
  panel(true);
  QVERIFY(m_window->isHidden());
  askMenu(u"Event"_s, {idOf(label), u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0u});
  QTRY_VERIFY(m_window->isVisible());
  if (label == "Smart Scan"_L1) QTRY_COMPARE(m_state->phase, AppState::Review);
  if (label == "Find Large Files"_L1) QTRY_VERIFY(m_state->largeScanned);
}

void TestPanel::quitEntry() {
  panel(true);
  QSignalSpy leaving(qApp, &QCoreApplication::aboutToQuit);
  QTimer::singleShot(0, m_window.get(), [this] {
    askMenu(u"Event"_s, {idOf(u"Quit Tarnwick"_s), u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0u});
  });
  QApplication::exec(); // would not return
  QCOMPARE(leaving.count(), 1);
}

// And comes again, as when it is restarted; then the icon is there again.
void TestPanel::panelGoes() {
  panel(true);
  m_window->show();
  m_window->close();
  panel(false);
  QVERIFY(m_window->isHidden());
  const qsizetype before = m_watcher->items().size();
  panel(true);
  QTRY_VERIFY(m_watcher->items().size() > before);
  QVERIFY(m_window->isHidden());
  m_bus.unregisterService(kWatcherName); // the service itself
  QTRY_VERIFY(!tray()->isShown());
  QVERIFY(m_bus.registerService(kWatcherName));
  QTRY_VERIFY(tray()->isShown());
}

void TestPanel::lowSpaceInTheBackground() {
  panel(true);
  showAtStart(m_window.get(), {.background = true});
  AppSettings::instance().setLowSpaceAlerts(true);
  AppSettings::instance().setSchedule(AppSettings::Weekly);
  AppSettings::instance().setLastScan(QDateTime::currentDateTime().addDays(-30));
  m_state->volume.name = u"System disk"_s;
  m_state->volume.totalBytes = 1000;
  m_state->volume.availableBytes = 99;
  afterStart(m_window.get(), m_state.get(), {.background = true});
  QTRY_COMPARE(m_messages.told.size(), 1);
  QCOMPARE(m_messages.told[0].summary, u"Tarnwick"_s);
  QCOMPARE(m_messages.told[0].body, u"System disk is almost full. Run Smart Scan to free up space."_s);
  QCOMPARE(m_messages.told[0].shownMs, 6000);
  QTRY_COMPARE(m_state->phase, AppState::Review);
  QVERIFY(m_window->isHidden());
}

void TestPanel::messageIsPlainOrMarkup() {
  panel(true);
  for (const bool markup : {false, true}) {
    m_messages.told.clear();
    m_messages.readsMarkup = markup;
    m_window->notify(u"<A & B> is almost full"_s);
    QTRY_COMPARE(m_messages.told.size(), 1);
    QCOMPARE(m_messages.told[0].body, markup ? u"&lt;A &amp; B&gt; is almost full"_s : u"<A & B> is almost full"_s);
  }
  QCOMPARE(m_messages.told[0].replaces, 7u); // the one before
}

void TestPanel::clickOnAMessage() {
  panel(true);
  m_messages.told.clear();
  m_window->notify(u"Almost full"_s);
  QTRY_COMPARE(m_messages.told.size(), 1);
  QCOMPARE(m_messages.told[0].actions.value(0), u"default"_s);
  QSignalSpy sent(&m_messages, &Messages::ActionInvoked);
  emit m_messages.ActionInvoked(8, u"default"_s); // another program's
  emit m_messages.ActionInvoked(7, u"settings"_s);
  QVERIFY(m_window->isHidden());
  emit m_messages.ActionInvoked(7, u"default"_s);
  QTRY_VERIFY(m_window->isVisible());
}

/// What is told where there is no desktop to start.
class TestNothing : public QObject {
  Q_OBJECT

 private slots:
  void needsADesktop() { QSKIP("no Xvfb or no dbus-daemon here"); }
};

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsSet(desktoptest::kChild)) return desktoptest::runOnDesktop<TestPanel>(argc, argv);
  const QCoreApplication app(argc, argv);
  servers::Server screen;
  servers::Server bus;
  if (servers::startScreen(&screen) && servers::startBus(&bus)) return desktoptest::startOn(screen, bus.answer());
  TestNothing nothing;
  return QTest::qExec(&nothing, argc, argv);
}

#include "tst_tray_desktop.moc"
