// The window as it is on macOS, but for the frameless library: its commands are the system's menu bar, closing it
// leaves the program running, the dock brings it back, and each status item is guarded.
#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/platform.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/TitleBar.h"
#include "ui/shell/Tray.h"
#include "ui/shell/macsupport.h"

#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QSystemTrayIcon>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {

std::function<void()> clickTheDock;
int guarded = 0;

} // namespace

// In place of the libraries' own.
platform::Host platform::builtFor() { return Host::Mac; }
qint64 platform::importantCapacity(const QString& /*rootPath*/) { return 0; }
void platform::revealInFileManager(const QString& /*path*/, const std::function<void(bool)>& /*done*/) {}
void platform::openFolder(const QString& /*path*/) {}
void platform::openFullDiskAccessSettings() {}
void macsupport::onDockReopen(std::function<void()> handler) { clickTheDock = std::move(handler); }
bool macsupport::guardStatusItemMenu() { return ++guarded > 0; }

class TestMacWindow : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup();

  void commandsAreTheMenuBar();
  void menuBarActs();
  void viewFollowsTheWindow();
  void closingWithoutTheIconKeepsTheProgram();
  void dockBringsTheWindowBack();
  void dockLeavesAWindowThatIsSeen();
  void dockWithoutAWindow();
  void eachStatusItemIsGuarded();
  void nothingIsWaitedFor();

 private:
  /// The one that belongs to no window; null if there is none, or more.
  [[nodiscard]] static QMenuBar* bar() {
    QList<QMenuBar*> found;
    for (QWidget* one : QApplication::topLevelWidgets())
      if (auto* menuBar = qobject_cast<QMenuBar*>(one)) found << menuBar;
    return found.size() == 1 ? found.first() : nullptr;
  }
  [[nodiscard]] static QMenu* menu(int place) { return bar()->actions().at(place)->menu(); }
  [[nodiscard]] static QAction* entry(int place, const QString& text) {
    for (QAction* action : menu(place)->actions())
      if (action->text() == text) return action;
    return nullptr;
  }

  bool m_hasTray = false;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<MainWindow> m_window;
};

void TestMacWindow::init() {
  QSettings().clear();
  AppSettings::instance().setShowInTray(false);
  m_hasTray = true;
  guarded = 0;
  m_state = std::make_unique<AppState>();
  TrayDesktop desktop;
  desktop.available = [this] { return m_hasTray; };
  m_window = std::make_unique<MainWindow>(m_state.get(), nullptr, desktop);
  m_window->show();
  QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestMacWindow::cleanup() {
  m_window.reset();
  m_state.reset();
  AppSettings::instance().setShowInTray(false);
}

void TestMacWindow::commandsAreTheMenuBar() {
  QVERIFY(!m_window->findChild<TitleBar*>());
  QVERIFY(bar());
  QStringList titles;
  for (const QAction* top : bar()->actions()) titles << top->text();
  QCOMPARE(titles, (QStringList{u"File"_s, u"Edit"_s, u"View"_s, u"Window"_s, u"Help"_s}));
  QVERIFY(m_window->actions().isEmpty()); // no key has two owners
}

void TestMacWindow::menuBarActs() {
  entry(2, u"Cleanup"_s)->trigger();
  QCOMPARE(m_window->page(), int(Sidebar::Cleanup));
  entry(0, u"Settings…"_s)->trigger();
  QCOMPARE(m_window->page(), int(Sidebar::Settings));
  entry(3, u"Minimize"_s)->trigger();
  QVERIFY(m_window->isMinimized());
  entry(3, u"Bring All to Front"_s)->trigger();
  QVERIFY(!m_window->isMinimized());
}

void TestMacWindow::viewFollowsTheWindow() {
  QAction* sidebar = entry(2, u"Hide Sidebar"_s);
  QAction* fullScreen = entry(2, u"Enter Full Screen"_s);
  QVERIFY(sidebar && fullScreen);
  const auto shown = [&] {
    emit menu(2)->aboutToShow();
    return QStringList{sidebar->text(), fullScreen->text()};
  };
  m_window->setSidebarCollapsed(true);
  QCOMPARE(shown(), (QStringList{u"Show Sidebar"_s, u"Enter Full Screen"_s}));
  m_window->setSidebarCollapsed(false);
  m_window->showFullScreen();
  QCOMPARE(shown(), (QStringList{u"Hide Sidebar"_s, u"Exit Full Screen"_s}));
  fullScreen->trigger();
  QCOMPARE(shown(), (QStringList{u"Hide Sidebar"_s, u"Enter Full Screen"_s}));
}

void TestMacWindow::closingWithoutTheIconKeepsTheProgram() {
  QTimer::singleShot(0, m_window.get(), [this] {
    m_window->close();
    QTimer::singleShot(0, m_window.get(), [] { QCoreApplication::exit(3); }); // after what a quit would have posted
  });
  QCOMPARE(QApplication::exec(), 3);
  QVERIFY(m_window->isHidden());
  clickTheDock();
  QVERIFY(m_window->isVisible());
}

void TestMacWindow::dockBringsTheWindowBack() {
  m_window->showMinimized();
  clickTheDock();
  QVERIFY(m_window->isVisible() && !m_window->isMinimized());
  m_window->hide();
  clickTheDock();
  QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

// Then the system itself does what it does for every program.
void TestMacWindow::dockLeavesAWindowThatIsSeen() {
  QWidget other;
  other.show();
  other.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&other));
  clickTheDock();
  QVERIFY(!QTest::qWaitFor([this] { return m_window->isActiveWindow(); }, 100));
  QVERIFY(other.isActiveWindow());
}

void TestMacWindow::dockWithoutAWindow() {
  m_window.reset();
  clickTheDock(); // the handler outlives the window
  QVERIFY(!bar());
}

void TestMacWindow::eachStatusItemIsGuarded() {
  QCOMPARE(guarded, 0);
  AppSettings::instance().setShowInTray(true);
  QVERIFY(m_window->findChild<QSystemTrayIcon*>());
  QCOMPARE(guarded, 1);
  AppSettings::instance().setShowInTray(false);
  AppSettings::instance().setShowInTray(true);
  QCOMPARE(guarded, 2);
}

// The menu bar is there from the start, or never.
void TestMacWindow::nothingIsWaitedFor() {
  m_hasTray = false;
  AppSettings::instance().setShowInTray(true);
  m_window->hide();
  m_window->stayHidden();
  QVERIFY(m_window->isMinimized());
}

int main(int argc, char** argv) { return uitest::run<TestMacWindow>(argc, argv); }

#include "tst_mac_window.moc"
