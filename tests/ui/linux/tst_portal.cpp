// What the desktop portal tells reaches the theme and the animations. The portal is a stand-in on a bus of the test's
// own; the program is a child process, as a process has one session bus.

#include "app/AppSettings.h"
#include "support/servers.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/compat.h"
#include "ui/controls/Ticker.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTextStream>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const QString kService = u"org.freedesktop.portal.Desktop"_s;
const QString kPath = u"/org/freedesktop/portal/desktop"_s;
const QString kAppearance = u"org.freedesktop.appearance"_s;
const QString kScheme = u"color-scheme"_s;
const QString kLessMotion = u"reduced-motion"_s;
const QString kGnome = u"org.gnome.desktop.interface"_s;
const QString kAnimations = u"enable-animations"_s;

// ---- the child ------------------------------------------------------------------------------------------------

void say(const QString& line) {
  std::puts(qPrintable(line));
  std::fflush(stdout);
}

QString look() { return Theme::get().dark ? u"dark"_s : u"light"_s; }
QString motion() { return compat::reducedMotion() ? u"still"_s : u"moving"_s; }

/// A program with two animations, that tells what changes and does what it reads.
int probe(int argc, char** argv) {
  const FixtureHome home;
  QCoreApplication::setApplicationName(u"Tarnwick"_s);
  QCoreApplication::setOrganizationName(u"Tarnwick"_s);
  QApplication app(argc, argv);
  Theme::get().refresh(); // with nothing installed
  const QString bare = look();
  QElapsedTimer clock;
  clock.start();
  Theme::get().install(&app);
  say(u"start %1 %2 %3"_s.arg(look()).arg(clock.elapsed()).arg(bare));

  QWidget window;
  ui::Ticker sweep(
      &window, [] {}, ui::Ticker::Motion::Decorative);
  ui::Ticker value(
      &window, [] {}, ui::Ticker::Motion::Value);
  sweep.setRunning(true);
  value.setRunning(true);
  window.show();
  const auto tellMotion = [&] {
    say(u"motion %1 %2 %3"_s.arg(motion(), sweep.isBeating() ? u"sweeps"_s : u"stands"_s,
                                 value.isBeating() ? u"counts"_s : u"stands"_s));
  };
  QObject::connect(&Theme::get(), &Theme::changed, &app, [] { say(u"look "_s + look()); });
  compat::watchReducedMotion(&app, tellMotion);

  QTextStream input(stdin);
  QSocketNotifier notifier(fileno(stdin), QSocketNotifier::Read);
  QObject::connect(&notifier, &QSocketNotifier::activated, &app, [&] {
    const QString command = input.readLine();
    if (command.isEmpty()) return QCoreApplication::quit();
    if (command == "motion"_L1) return tellMotion();
    AppSettings::instance().setThemeMode(AppSettings::ThemeMode(command.toInt()));
    say(u"set "_s + command);
  });
  return QApplication::exec();
}

// ---- the portal -----------------------------------------------------------------------------------------------

class Portal : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

 public:
  explicit Portal(const QString& address) : m_bus(QDBusConnection::connectToBus(address, u"portal"_s)) {}
  ~Portal() override {
    if (m_open) m_bus.unregisterService(kService);
    QDBusConnection::disconnectFromBus(u"portal"_s);
  }

  bool open() {
    m_open = m_bus.registerObject(kPath, this, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) &&
             m_bus.registerService(kService);
    return m_open;
  }

  void set(const QString& group, const QString& key, const QVariant& value) { m_values[group + key] = value; }
  /// Sets, and tells all who listen.
  void change(const QString& group, const QString& key, const QVariant& value) {
    set(group, key, value);
    emit SettingChanged(group, key, QDBusVariant(value));
  }

  int wraps = 1;   ///< how many variants an answer is wrapped in
  int delayMs = 0; ///< how long an answer takes; negative: for ever
  QStringList asked;

 public slots:
  QDBusVariant Read(const QString& group, const QString& key) {
    asked << group + key;
    if (delayMs != 0) {
      setDelayedReply(true);
      const QDBusMessage call = message();
      if (delayMs > 0)
        QTimer::singleShot(delayMs, this,
                           [this, call, group, key] { m_bus.send(call.createReply(answer(group, key))); });
      return {};
    }
    if (!m_values.contains(group + key)) sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"not found"_s);
    return answer(group, key).value<QDBusVariant>();
  }

 signals:
  void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  [[nodiscard]] QVariant answer(const QString& group, const QString& key) const {
    QVariant result = m_values.value(group + key, 0u);
    for (int i = 0; i < wraps; ++i) result = QVariant::fromValue(QDBusVariant(result));
    return result;
  }

  QDBusConnection m_bus;
  QHash<QString, QVariant> m_values;
  bool m_open = false;
};

// ---- the program, seen from here ------------------------------------------------------------------------------

class Program {
 public:
  explicit Program(const QString& address) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    if (address.isEmpty()) environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationFilePath(), {u"--probe"_s});
  }
  ~Program() {
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(5000)) m_process.kill();
  }

  /// The next line that it says, while the portal's side goes on; empty if none comes.
  QString line() {
    if (!QTest::qWaitFor([this] { return m_process.canReadLine(); })) return {};
    return QString::fromUtf8(m_process.readLine()).trimmed();
  }
  void command(const char* text) { m_process.write(QByteArray(text) + '\n'); }
  /// The answer to "motion".
  QString motion() {
    command("motion");
    return line();
  }

 private:
  QProcess m_process;
};

constexpr int kPatienceMs = 150; // what the program waits for a portal when it starts

} // namespace

class TestPortal : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void withoutABusItIsLight();
  void withoutAPortalItIsLight();
  void schemeAtStart_data();
  void schemeAtStart();
  void schemeFollowsLive();
  void otherSettingsChangeNothing();
  void fixedModeRefreshesAllTheSame();
  void sameLookByModeIsNoChange();
  void slowPortalIsHeardLater();
  void silentPortalHoldsNothingUp();
  void portalThatComesLater();
  void motionAtStart_data();
  void motionAtStart();
  void motionFollowsLive();

 private:
  std::unique_ptr<servers::Server> m_bus;
  std::unique_ptr<Portal> m_portal;
};

void TestPortal::init() {
  m_bus = std::make_unique<servers::Server>();
  if (!servers::startBus(m_bus.get())) QSKIP("no dbus-daemon here");
  m_portal = std::make_unique<Portal>(m_bus->answer());
}

void TestPortal::cleanup() {
  m_portal.reset();
  m_bus.reset();
}

void TestPortal::withoutABusItIsLight() {
  Program program{QString()};
  const QStringList start = program.line().split(u' ');
  QCOMPARE(start.value(1), u"light"_s);
  QCOMPARE(program.motion(), u"motion moving sweeps counts"_s);
}

void TestPortal::withoutAPortalItIsLight() {
  Program program(m_bus->answer());
  const QStringList start = program.line().split(u' ');
  QCOMPARE(start.value(1), u"light"_s);
  QCOMPARE(program.motion(), u"motion moving sweeps counts"_s);
}

void TestPortal::schemeAtStart_data() {
  QTest::addColumn<QVariant>("value");
  QTest::addColumn<int>("wraps");
  QTest::addColumn<QString>("look");
  for (const int wraps : {1, 2, 3}) {
    QTest::addRow("dark in %d", wraps) << QVariant(1u) << wraps << u"dark"_s;
    QTest::addRow("light in %d", wraps) << QVariant(2u) << wraps << u"light"_s;
  }
  QTest::newRow("no preference") << QVariant(0u) << 1 << u"light"_s;
  QTest::newRow("a number to come") << QVariant(3u) << 1 << u"light"_s;
  QTest::newRow("a signed one") << QVariant(1) << 1 << u"dark"_s;
  QTest::newRow("no number") << QVariant(u"dark"_s) << 1 << u"light"_s;
}

void TestPortal::schemeAtStart() {
  QFETCH(QVariant, value);
  QFETCH(int, wraps);
  QFETCH(QString, look);
  m_portal->set(kAppearance, kScheme, value);
  m_portal->wraps = wraps;
  QVERIFY(m_portal->open());
  Program program(m_bus->answer());
  const QStringList start = program.line().split(u' ');
  QCOMPARE(start.value(1), look);
  QCOMPARE(start.value(3), u"light"_s); // before the theme is installed, the desktop isn't asked
}

void TestPortal::schemeFollowsLive() {
  m_portal->set(kAppearance, kScheme, 2u);
  QVERIFY(m_portal->open());
  Program program(m_bus->answer());
  QCOMPARE(program.line().split(u' ').value(1), u"light"_s);
  m_portal->change(kAppearance, kScheme, 1u);
  QCOMPARE(program.line(), u"look dark"_s);
  m_portal->change(kAppearance, kScheme, 0u);
  QCOMPARE(program.line(), u"look light"_s);
}

void TestPortal::otherSettingsChangeNothing() {
  m_portal->set(kAppearance, kScheme, 2u);
  QVERIFY(m_portal->open());
  Program program(m_bus->answer());
  QVERIFY(program.line().startsWith("start light"_L1));
  m_portal->change(kAppearance, u"contrast"_s, 1u);
  m_portal->change(u"org.example.other"_s, kScheme, 1u);
  m_portal->change(kAppearance, kScheme, 2u); // no other value
  m_portal->change(kAppearance, kScheme, 1u);
  QCOMPARE(program.line(), u"look dark"_s);
}

void TestPortal::fixedModeRefreshesAllTheSame() {
  m_portal->set(kAppearance, kScheme, 2u);
  QVERIFY(m_portal->open());
  Program program(m_bus->answer());
  QVERIFY(program.line().startsWith("start light"_L1));
  program.command("1");
  QCOMPARE(program.line(), u"set 1"_s);
  m_portal->change(kAppearance, kScheme, 1u);
  QCOMPARE(program.line(), u"look light"_s);
}

void TestPortal::sameLookByModeIsNoChange() {
  m_portal->set(kAppearance, kScheme, 1u);
  QVERIFY(m_portal->open());
  Program program(m_bus->answer());
  QVERIFY(program.line().startsWith("start dark"_L1));
  program.command("2");
  QCOMPARE(program.line(), u"set 2"_s); // and no "look" before it
  program.command("1");
  QCOMPARE(program.line(), u"look light"_s);
  QCOMPARE(program.line(), u"set 1"_s);
  program.command("0");
  QCOMPARE(program.line(), u"look dark"_s);
}

void TestPortal::slowPortalIsHeardLater() {
  m_portal->set(kAppearance, kScheme, 1u);
  m_portal->delayMs = 3 * kPatienceMs;
  QVERIFY(m_portal->open());
  Program program(m_bus->answer());
  const QStringList start = program.line().split(u' ');
  QCOMPARE(start.value(1), u"light"_s);
  QCOMPARE(program.line(), u"look dark"_s);
}

void TestPortal::silentPortalHoldsNothingUp() {
  m_portal->delayMs = -1;
  QVERIFY(m_portal->open());
  Program program(m_bus->answer());
  const QStringList start = program.line().split(u' ');
  QCOMPARE(start.value(1), u"light"_s);
  QVERIFY2(start.value(2).toInt() < 10 * kPatienceMs, qPrintable(start.value(2))); // on a busy machine too
  QCOMPARE(program.motion(), u"motion moving sweeps counts"_s);
}

void TestPortal::portalThatComesLater() {
  Program program(m_bus->answer());
  QVERIFY(program.line().startsWith("start light"_L1));
  m_portal->set(kAppearance, kScheme, 1u);
  QVERIFY(m_portal->open());
  QCOMPARE(program.line(), u"look dark"_s);
}

void TestPortal::motionAtStart_data() {
  QTest::addColumn<QString>("group");
  QTest::addColumn<QString>("key");
  QTest::addColumn<QVariant>("value");
  QTest::newRow("reduced-motion") << kAppearance << kLessMotion << QVariant(1u);
  QTest::newRow("enable-animations") << kGnome << kAnimations << QVariant(false);
}

void TestPortal::motionAtStart() {
  QFETCH(QString, group);
  QFETCH(QString, key);
  QFETCH(QVariant, value);
  m_portal->set(group, key, value);
  QVERIFY(m_portal->open());
  Program program(m_bus->answer());
  QVERIFY(program.line().startsWith("start light"_L1));
  QCOMPARE(program.line(), u"motion still stands counts"_s);
}

void TestPortal::motionFollowsLive() {
  m_portal->set(kAppearance, kLessMotion, 0u);
  m_portal->set(kGnome, kAnimations, true);
  QVERIFY(m_portal->open());
  Program program(m_bus->answer());
  QVERIFY(program.line().startsWith("start light"_L1));
  QCOMPARE(program.motion(), u"motion moving sweeps counts"_s);
  m_portal->change(kGnome, kAnimations, false);
  QCOMPARE(program.line(), u"motion still stands counts"_s);
  m_portal->change(kAppearance, kLessMotion, 1u); // asked for twice
  m_portal->change(kGnome, kAnimations, true);    // and once again
  QCOMPARE(program.motion(), u"motion still stands counts"_s);
  m_portal->change(kAppearance, kLessMotion, 0u);
  QCOMPARE(program.line(), u"motion moving sweeps counts"_s);
}

int main(int argc, char** argv) {
  if (argc > 1 && QByteArray(argv[1]) == "--probe") return probe(argc, argv);
  uitest::isolate();
  const QCoreApplication app(argc, argv);
  TestPortal test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_portal.moc"
