// The tray: its icon and menu, where messages go, what closing the window means, and the start in the background. The
// desktop is a stand-in here; tests/ui/linux has a real one.
#include "ui/shell/Tray.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "engines/Cleaner.h"
#include "engines/LargeFileFinder.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/shell/AboutDialog.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/Toast.h"
#include "ui/shell/UpdateDialog.h"
#include "ui/shell/offered.h"
#include "ui/shell/program.h"

#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;
using namespace ui;
using namespace std::chrono_literals;

namespace {

const QString kGeometryKey = u"ui/windowGeometry"_s;

/// A desktop that does what the test says.
struct Desktop {
  bool isThere = true;
  bool mayCome = true;
  bool takesMessages = true;
  QList<trayhost::Message> messages;
  std::function<void()> clicked;
  std::function<void()> changed;

  [[nodiscard]] TrayDesktop sources() {
    return {.available = [this] { return isThere; },
            .watch = [this](QObject*, std::function<void()> call) { changed = std::move(call); },
            .mayComeLater = [this] { return mayCome; },
            .show =
                [this](QObject*, const trayhost::Message& message, std::function<void()> onClick,
                       const std::function<void()>& onFailure) {
                  if (!takesMessages) return onFailure();
                  messages << message;
                  clicked = std::move(onClick);
                },
            .patience = 50ms};
  }
  void set(bool there) {
    isThere = there;
    changed();
  }
};

} // namespace

class TestTray : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup();

  void settingTakesEffectAtOnce();
  void nothingNewKeepsTheMenu();
  void desktopComesAndGoes();
  void iconThatNobodyShowsIsNotShown();
  void menuAsDesigned();
  void statusIsOfThisMoment();
  void activation_data();
  void activation();
  void clickOnAMessage();
  void openBringsTheWindowBack();
  void scanFromTheHiddenWindow();
  void largeFilesFromTheHiddenWindow();
  void settingsEntry();
  void updatesEntry();
  void quitEntry();
  void restsBehindADialog();
  void messages_data();
  void messages();
  void messageWithoutAService();
  void noMessageWithoutAnIcon();
  void closingHides();
  void quittingCloses();
  void closingWithoutTheIconQuits();
  void startBehindTheTray();
  void startWithoutATray_data();
  void startWithoutATray();
  void trayComesInTime();
  void trayComesTooLate();
  void userComesBeforeTheTray();
  void trayGoesWhileHidden();
  void trayIsReplacedWhileHidden();
  void afterTheStart();

 private:
  void open();
  [[nodiscard]] Tray* tray() const { return m_window->findChild<Tray*>(); }
  [[nodiscard]] QSystemTrayIcon* icon() const { return m_window->findChild<QSystemTrayIcon*>(); }
  [[nodiscard]] QAction* entry(const QString& text) const {
    for (QAction* action : icon()->contextMenu()->actions())
      if (action->text() == text) return action;
    qFatal("no entry %s", qPrintable(text));
  }
  [[nodiscard]] QString toastText() const {
    const auto* toast = m_window->findChild<Toast*>();
    return toast->isHidden() ? QString() : toast->accessibleName();
  }
  [[nodiscard]] QStringList told() const {
    QStringList texts;
    for (const trayhost::Message& one : m_desktop.messages) texts << one.text;
    return texts;
  }

  Desktop m_desktop;
  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<MainWindow> m_window;
};

void TestTray::init() {
  m_desktop = {};
  m_home = std::make_unique<FixtureHome>();
  QSettings().clear();
  m_home->file(u".cache/acme/1"_s);
  AppSettings::instance().setExclusions(FixtureHome::rulesForOutside());
  AppSettings::instance().setLowSpaceAlerts(false);
  AppSettings::instance().setSchedule(AppSettings::Off);
  AppSettings::instance().setShowInTray(true);
  CleanerWorld world;
  world.lockPath = m_home->outside(u"clean.lock"_s);
  m_state = std::make_unique<AppState>(nullptr, world);
  open();
}

void TestTray::open() { m_window = std::make_unique<MainWindow>(m_state.get(), nullptr, m_desktop.sources()); }

void TestTray::cleanup() {
  m_window.reset();
  m_state.reset();
  m_home.reset();
}

void TestTray::settingTakesEffectAtOnce() {
  QVERIFY(tray()->isShown());
  QVERIFY(icon() && icon()->isVisible());
  QCOMPARE(icon()->toolTip(), u"Tarnwick"_s);
  QVERIFY(!icon()->icon().isNull());
  const QPointer<QMenu> menu = icon()->contextMenu();
  QCOMPARE(menu->parentWidget(), m_window.get());
  QSignalSpy changed(tray(), &Tray::shownChanged);
  AppSettings::instance().setShowInTray(false);
  QVERIFY(!icon());
  QVERIFY(!tray()->isShown());
  QCOMPARE(changed.count(), 1);
  QTRY_VERIFY(!menu);
  AppSettings::instance().setShowInTray(true);
  QVERIFY(tray()->isShown());
  QVERIFY(icon()->contextMenu());
  QCOMPARE(changed.count(), 2);
}

void TestTray::nothingNewKeepsTheMenu() {
  const QMenu* menu = icon()->contextMenu();
  const QSystemTrayIcon* before = icon();
  QSignalSpy changed(tray(), &Tray::shownChanged);
  AppSettings::instance().setOldMonths(5); // another setting
  tray()->sync();
  m_desktop.changed();
  QCOMPARE(icon(), before);
  QCOMPARE(icon()->contextMenu(), menu);
  QCOMPARE(changed.count(), 0);
  QCOMPARE(m_window->findChildren<QSystemTrayIcon*>().size(), 1);
}

void TestTray::desktopComesAndGoes() {
  m_desktop.set(false);
  QVERIFY(!icon());
  QVERIFY(!tray()->isShown());
  m_desktop.set(true);
  QVERIFY(tray()->isShown());
  AppSettings::instance().setShowInTray(false);
  m_desktop.set(false);
  m_desktop.set(true);
  QVERIFY(!icon());
}

// It says that it is visible all the same.
void TestTray::iconThatNobodyShowsIsNotShown() {
  m_desktop.isThere = false; // and nobody has told
  QVERIFY(icon()->isVisible());
  QVERIFY(!tray()->isShown());
}

void TestTray::menuAsDesigned() {
  QStringList texts;
  for (const QAction* action : icon()->contextMenu()->actions())
    texts << (action->isSeparator() ? u"-"_s : action->isEnabled() ? action->text() : u"status"_s);
  QCOMPARE(texts, offered({u"Open Tarnwick"_s, u"-"_s, u"Smart Scan"_s, u"Find Large Files"_s, u"-"_s, u"status"_s,
                           u"-"_s, u"Settings"_s, u"Check for Updates"_s, u"-"_s, u"Quit Tarnwick"_s}));
  for (const QAction* action : icon()->contextMenu()->actions()) QVERIFY(action->icon().isNull());
}

void TestTray::statusIsOfThisMoment() {
  QAction* status = icon()->contextMenu()->actions()[5];
  QCOMPARE(status->text(), QString());
  for (int opened = 0; opened < 2; ++opened) {
    m_state->volume.name = u"Stale"_s;
    m_state->volume.availableBytes = 7;
    emit icon()->contextMenu()->aboutToShow();
    QVERIFY(m_state->volume.name != u"Stale"_s); // read afresh
    QCOMPARE(status->text(), m_state->volume.name + u" · "_s + fmt::bytes(m_state->volume.availableBytes) + u" free"_s);
  }
}

void TestTray::activation_data() {
  QTest::addColumn<QSystemTrayIcon::ActivationReason>("how");
  QTest::addColumn<bool>("shows");
  QTest::newRow("click") << QSystemTrayIcon::Trigger << true;
  QTest::newRow("double click") << QSystemTrayIcon::DoubleClick << true;
  QTest::newRow("menu") << QSystemTrayIcon::Context << false;
  QTest::newRow("middle button") << QSystemTrayIcon::MiddleClick << false;
  QTest::newRow("unknown") << QSystemTrayIcon::Unknown << false;
}

void TestTray::activation() {
  QFETCH(QSystemTrayIcon::ActivationReason, how);
  emit icon()->activated(how);
  QTEST(m_window->isVisible(), "shows");
}

void TestTray::clickOnAMessage() {
  m_window->showMinimized();
  emit icon()->messageClicked();
  QVERIFY(m_window->isVisible() && !m_window->isMinimized());
  m_window->hide();
  m_window->notify(u"Almost full"_s);
  m_desktop.clicked();
  QVERIFY(m_window->isVisible());
}

void TestTray::openBringsTheWindowBack() {
  m_window->show();
  m_window->close();
  QVERIFY(m_window->isHidden());
  entry(u"Open Tarnwick"_s)->trigger();
  QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestTray::scanFromTheHiddenWindow() {
  entry(u"Smart Scan"_s)->trigger();
  QVERIFY(m_window->isVisible());
  QCOMPARE(m_state->phase, AppState::Scanning);
  QCOMPARE(m_window->page(), int(Sidebar::Cleanup));
  QTRY_COMPARE(m_state->phase, AppState::Review);
}

void TestTray::largeFilesFromTheHiddenWindow() {
  entry(u"Find Large Files"_s)->trigger();
  QVERIFY(m_window->isVisible());
  QCOMPARE(m_window->page(), int(Sidebar::SpaceMap));
  QTRY_VERIFY(m_state->largeScanned);
}

void TestTray::settingsEntry() {
  entry(u"Settings"_s)->trigger();
  QVERIFY(m_window->isVisible());
  QCOMPARE(m_window->page(), int(Sidebar::Settings));
}

void TestTray::updatesEntry() {
  if (!deployment::updatesItself()) QSKIP("this build has no updates");
  entry(u"Check for Updates"_s)->trigger();
  QVERIFY(m_window->isVisible());
  QVERIFY(m_window->findChild<UpdateDialog*>());
}

void TestTray::quitEntry() {
  m_window->show();
  m_window->close();
  QSettings().remove(kGeometryKey);
  QSignalSpy leaving(qApp, &QCoreApplication::aboutToQuit);
  QTimer::singleShot(0, m_window.get(), [this] { entry(u"Quit Tarnwick"_s)->trigger(); });
  QApplication::exec(); // would not return
  QCOMPARE(leaving.count(), 1);
}

// What would act on a page behind it waits until the user has answered; the window comes to the front to be answered.
void TestTray::restsBehindADialog() {
  m_window->show();
  m_window->showAbout();
  m_window->close();
  for (const QString& text : {u"Smart Scan"_s, u"Find Large Files"_s, u"Settings"_s}) {
    m_window->hide();
    entry(text)->trigger();
    QVERIFY(m_window->isVisible());
  }
  QCOMPARE(m_window->page(), int(Sidebar::Overview));
  QCOMPARE(m_state->phase, AppState::Empty);
  QVERIFY(!m_state->largeFinder->isRunning());
}

void TestTray::messages_data() {
  QTest::addColumn<QString>("window");
  QTest::addColumn<bool>("hasTray");
  QTest::addColumn<bool>("byTray");
  QTest::newRow("shown") << u"shown"_s << true << false;
  QTest::newRow("minimised") << u"minimised"_s << true << true;
  QTest::newRow("hidden") << u"hidden"_s << true << true;
  QTest::newRow("shown, no tray") << u"shown"_s << false << false;
  QTest::newRow("minimised, no tray") << u"minimised"_s << false << false;
  QTest::newRow("hidden, no tray") << u"hidden"_s << false << false;
}

void TestTray::messages() {
  QFETCH(QString, window);
  QFETCH(bool, hasTray);
  QFETCH(bool, byTray);
  m_window->show();
  AppSettings::instance().setShowInTray(hasTray);
  if (window == "minimised"_L1) m_window->showMinimized();
  if (window == "hidden"_L1) m_window->hide();
  m_window->notify(u"Almost full"_s);
  QCOMPARE(told(), byTray ? QStringList{u"Almost full"_s} : QStringList());
  QCOMPARE(toastText(), byTray ? QString() : u"Almost full"_s);
  if (!byTray) return;
  QCOMPARE(m_desktop.messages[0].title, u"Tarnwick"_s);
  QCOMPARE(m_desktop.messages[0].shownMs, 6000);
}

// The icon's own way of telling it is taken then; nothing else happens.
void TestTray::messageWithoutAService() {
  m_desktop.takesMessages = false;
  m_window->notify(u"Almost full"_s);
  QVERIFY(told().isEmpty());
  QCOMPARE(toastText(), QString());
}

void TestTray::noMessageWithoutAnIcon() {
  AppSettings::instance().setShowInTray(false);
  tray()->notify(u"Tarnwick"_s, u"Nobody sees it"_s);
  QVERIFY(told().isEmpty());
}

void TestTray::closingHides() {
  m_window->show();
  QSettings().remove(kGeometryKey);
  QSignalSpy leaving(qApp, &QCoreApplication::aboutToQuit);
  QTimer::singleShot(0, m_window.get(), [this] {
    m_window->close();
    QTimer::singleShot(0, m_window.get(), [] { QCoreApplication::exit(3); }); // after what a quit would have posted
  });
  QCOMPARE(QApplication::exec(), 3);
  QVERIFY(m_window->isHidden());
  QVERIFY(!QSettings().value(kGeometryKey).toByteArray().isEmpty());
  m_window->showFromTray();
  QVERIFY(m_window->isVisible());
}

void TestTray::quittingCloses() {
  m_window->show();
  QSettings().remove(kGeometryKey);
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QCOMPARE(QApplication::exec(), 0);
  QVERIFY(m_window->isHidden());
  QVERIFY(!QSettings().value(kGeometryKey).toByteArray().isEmpty());
}

void TestTray::closingWithoutTheIconQuits() {
  for (const bool desktopLeft : {false, true}) {
    AppSettings::instance().setShowInTray(desktopLeft);
    open();
    m_window->show();
    if (desktopLeft) m_desktop.isThere = false; // without a word
    QSignalSpy leaving(qApp, &QCoreApplication::aboutToQuit);
    QTimer::singleShot(0, m_window.get(), &QWidget::close);
    QApplication::exec(); // would not return
    QCOMPARE(leaving.count(), 1);
  }
}

void TestTray::startBehindTheTray() {
  showAtStart(m_window.get(), {.background = true});
  QVERIFY(m_window->isHidden());
  QVERIFY(!m_window->isMinimized());
  showAtStart(m_window.get(), {});
  QVERIFY(m_window->isVisible());
}

void TestTray::startWithoutATray_data() {
  QTest::addColumn<bool>("wanted");
  QTest::addColumn<bool>("mayCome");
  QTest::newRow("not wanted") << false << true;
  QTest::newRow("not to come") << true << false;
}

// Then there is nothing to wait for.
void TestTray::startWithoutATray() {
  QFETCH(bool, wanted);
  QFETCH(bool, mayCome);
  AppSettings::instance().setShowInTray(wanted);
  m_desktop.isThere = false;
  m_desktop.mayCome = mayCome;
  open();
  showAtStart(m_window.get(), {.background = true});
  QVERIFY(m_window->isMinimized());
}

void TestTray::trayComesInTime() {
  m_desktop.isThere = false;
  open();
  showAtStart(m_window.get(), {.background = true});
  m_window->notify(u"Almost full"_s);
  QVERIFY(told().isEmpty());
  QCOMPARE(toastText(), QString());
  m_desktop.set(true);
  QCOMPARE(told(), QStringList{u"Almost full"_s});
  QVERIFY(!QTest::qWaitFor([&] { return m_window->isMinimized(); }, 200)); // longer than it would have waited
  QVERIFY(m_window->isHidden());
}

void TestTray::trayComesTooLate() {
  QVERIFY(TrayDesktop().patience == 10s); // when no test is in a hurry
  m_desktop.isThere = false;
  open();
  showAtStart(m_window.get(), {.background = true});
  m_window->notify(u"Almost full"_s);
  QVERIFY(m_window->isHidden());
  QTRY_VERIFY(m_window->isMinimized());
  QCOMPARE(toastText(), u"Almost full"_s);
  m_desktop.set(true);
  QVERIFY(tray()->isShown());
  QVERIFY(m_window->isMinimized()); // it stays where the user may have seen it
}

void TestTray::userComesBeforeTheTray() {
  m_desktop.isThere = false;
  open();
  showAtStart(m_window.get(), {.background = true});
  m_window->notify(u"Almost full"_s);
  m_window->showFromTray(); // as a second start of the program does
  QCOMPARE(toastText(), u"Almost full"_s);
  m_desktop.set(true);
  QVERIFY(told().isEmpty());
  QVERIFY(m_window->isVisible() && !m_window->isMinimized());
}

void TestTray::trayGoesWhileHidden() {
  m_window->show();
  m_window->close();
  m_desktop.set(false);
  QVERIFY(m_window->isHidden()); // it may come again
  QTRY_VERIFY(m_window->isMinimized());
  m_window->showFromTray();
  m_desktop.set(true);
  m_desktop.set(false);
  QVERIFY(m_window->isVisible());
  QVERIFY(!m_window->isMinimized());
}

void TestTray::trayIsReplacedWhileHidden() {
  m_window->show();
  m_window->close();
  m_desktop.set(false);
  m_desktop.set(true);
  QVERIFY(!QTest::qWaitFor([&] { return m_window->isMinimized(); }, 200));
  QVERIFY(m_window->isHidden());
  QVERIFY(tray()->isShown());
}

// In the background all three steps are taken: the alert by the tray, the scan behind the hidden window.
void TestTray::afterTheStart() {
  showAtStart(m_window.get(), {.background = true});
  AppSettings::instance().setLowSpaceAlerts(true);
  AppSettings::instance().setSchedule(AppSettings::Weekly);
  AppSettings::instance().setLastScan(QDateTime::currentDateTime().addDays(-30));
  m_state->volume.name = u"System disk"_s;
  m_state->volume.totalBytes = 1000;
  m_state->volume.availableBytes = 99;
  afterStart(m_window.get(), m_state.get(), {.background = true, .updated = true});
  QCOMPARE(told(), QStringList{u"System disk is almost full. Run Smart Scan to free up space."_s});
  QCOMPARE(toastText(), u"Tarnwick was updated to version 1.0.0."_s);
  QCOMPARE(m_state->phase, AppState::Scanning);
  QVERIFY(m_window->isHidden());
  QTRY_COMPARE(m_state->phase, AppState::Review);
  QVERIFY(m_window->isHidden());
}

int main(int argc, char** argv) { return uitest::run<TestTray>(argc, argv); }

#include "tst_Tray.moc"
