// The tray on a desktop of X11, as far as a program can see one: it comes and goes, or was there before. The screen is
// one of the test's own, on which it runs itself again: Qt settles for one kind of tray in a process.
#include "DesktopTest.h"
#include "support/SelectionOwner.h"
#include "ui/shell/program.h"

#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;
using namespace ui;

class TestX11Tray : public DesktopTest {
  Q_OBJECT

 private slots:
  void initTestCase() {
    QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
    Theme::get().install(qApp);
  }
  void init() { openWindow(); }
  void cleanup() { closeWindow(); }

  void trayComesAndGoes();
  void trayThatWasThereBefore();
};

void TestX11Tray::trayComesAndGoes() {
  QVERIFY(!tray()->isShown());
  showAtStart(m_window.get(), {.background = true});
  QVERIFY(m_window->isHidden());
  {
    const SelectionOwner owner("_NET_SYSTEM_TRAY_S0", SelectionOwner::Told::Everybody);
    QTRY_VERIFY(tray()->isShown());
    QVERIFY(m_window->findChild<QSystemTrayIcon*>());
    QVERIFY(m_window->isHidden());
  }
  QTRY_VERIFY(!m_window->findChild<QSystemTrayIcon*>());
}

void TestX11Tray::trayThatWasThereBefore() {
  closeWindow();
  const SelectionOwner owner("_NET_SYSTEM_TRAY_S0");
  openWindow();
  QVERIFY(tray()->isShown());
}

/// What is told where there is no screen to start.
class TestNothing : public QObject {
  Q_OBJECT

 private slots:
  void needsAScreen() { QSKIP("no Xvfb here"); }
};

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsSet(desktoptest::kChild)) return desktoptest::runOnDesktop<TestX11Tray>(argc, argv);
  const QCoreApplication app(argc, argv);
  servers::Server screen;
  if (servers::startScreen(&screen)) return desktoptest::startOn(screen);
  TestNothing nothing;
  return QTest::qExec(&nothing, argc, argv);
}

#include "tst_tray_x11.moc"
