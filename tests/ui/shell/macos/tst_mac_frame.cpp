// The window as it is on macOS, with the frameless library's stand-in: no title bar of its own, room for the system's
// buttons, and what the library is told.
#include "app/AppState.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/SidebarToggle.h"
#include "ui/shell/TitleBar.h"
#include "ui/shell/frame.h"

#include <QMenu>
#include <QSettings>

#include <QWKWidgets/widgetwindowagent.h>

using namespace Qt::StringLiterals;
using namespace ui;
using Agent = QWK::WidgetWindowAgent;

class TestMacFrame : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() {
    QSettings().clear();
    Agent::told.clear();
    Agent::titleBar = Agent::visible = nullptr;
  }
  void cleanup() { Theme::get().mac = true; }

  void libraryIsTold();
  void otherMetricsHaveNoStrip();
  void toggleStandsBesideTheButtons();
  void menuOpensWithoutATitleBar();
};

void TestMacFrame::libraryIsTold() {
  QCOMPARE(frame::kind(), frame::Kind::SystemButtons);
  AppState state;
  const MainWindow window(&state);
  const auto* sidebar = window.findChild<Sidebar*>();
  // The title bar first, as that forgets what was made visible to clicks.
  QCOMPARE(Agent::told, (QStringList{u"setup"_s, u"title bar"_s, u"hit test"_s, u"buttons"_s}));
  QVERIFY(sidebar->topRow());
  QCOMPARE(Agent::titleBar, sidebar->topRow());
  QCOMPARE(Agent::visible, sidebar->toggleButton());
  QCOMPARE(Agent::buttons, QRect(16, 14, 64, 14));
  QVERIFY(!window.findChild<TitleBar*>());
}

void TestMacFrame::otherMetricsHaveNoStrip() {
  Theme::get().mac = false;
  AppState state;
  const MainWindow window(&state);
  QVERIFY(!Agent::told.contains(u"title bar"_s));
  QVERIFY(Agent::told.contains(u"buttons"_s));
}

void TestMacFrame::toggleStandsBesideTheButtons() {
  AppState state;
  MainWindow window(&state);
  window.show();
  window.setSidebarCollapsed(true);
  int shown = 0;
  for (const SidebarToggle* one : window.findChildren<SidebarToggle*>())
    if (one->isVisible()) {
      ++shown;
      QCOMPARE(one->pos(), QPoint(82, (42 - one->height()) / 2));
    }
  QCOMPARE(shown, 1);
}

void TestMacFrame::menuOpensWithoutATitleBar() {
  AppState state;
  MainWindow window(&state);
  window.show();
  window.perform(commands::Id::OpenMenu);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  QVERIFY(menu);
  menu->close();
}

int main(int argc, char** argv) { return uitest::run<TestMacFrame>(argc, argv); }

#include "tst_mac_frame.moc"
