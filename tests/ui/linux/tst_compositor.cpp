// What translucent popups look like on an X11 screen with and without a compositor. The test runs itself again on a
// screen of its own.

#include "app/AppSettings.h"
#include "support/SelectionOwner.h"
#include "support/servers.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/desktop.h"
#include "ui/popup.h"

#include <QCursor>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb kBehind = 0xff2060c0;

/// The selection by which a compositor is known.
struct StandInCompositor {
  SelectionOwner owner{"_NET_WM_CM_S0"};
};

/// The whole screen.
QImage screenshot() { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); }

QLabel* tip() {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget->inherits("QTipLabel") && widget->isVisible()) return qobject_cast<QLabel*>(widget);
  return nullptr;
}

} // namespace

class TestCompositor : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void compositorIsAskedAfresh();
  void popupIsTrimmedToItsBody();
  void tipHasNoBlackMargin();
  void menuHasNoBlackCorners();

 private:
  std::unique_ptr<QWidget> m_behind;
};

void TestCompositor::initTestCase() {
  QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
  Theme::get().install(qApp);
  AppSettings::instance().setThemeMode(AppSettings::Light);
  m_behind = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
  m_behind->setObjectName(u"behind"_s);
  m_behind->setStyleSheet(u"#behind { background: #2060c0; }"_s);
  m_behind->setGeometry(0, 0, 1280, 1024);
  m_behind->show();
  QVERIFY(QTest::qWaitForWindowExposed(m_behind.get()));
  QTRY_COMPARE(screenshot().pixel(640, 512), kBehind);
}

void TestCompositor::compositorIsAskedAfresh() {
  QVERIFY(!desktop::hasCompositor());
  {
    const StandInCompositor compositor;
    QVERIFY(desktop::hasCompositor());
  }
  QTRY_VERIFY(!desktop::hasCompositor());
}

void TestCompositor::popupIsTrimmedToItsBody() {
  QWidget popup(nullptr, Qt::Popup | Qt::FramelessWindowHint);
  popup.resize(200, 100);
  const QRectF body(14, 14, 172, 72);
  QVERIFY(ui::trimWithoutCompositor(&popup, body, 8));
  QCOMPARE(popup.mask().boundingRect(), body.toRect());
  QVERIFY(!popup.mask().contains(QPoint(14, 14))); // the corner is round
  QVERIFY(popup.mask().contains(QPoint(100, 14)));
  {
    const StandInCompositor compositor;
    QVERIFY(!ui::trimWithoutCompositor(&popup, body, 8));
    QVERIFY(popup.mask().isEmpty());
  }
}

void TestCompositor::tipHasNoBlackMargin() {
  QCursor::setPos(400, 300);
  QToolTip::showText({400, 300}, u"Some words of help"_s);
  QTRY_VERIFY(tip());
  const QRect frame = tip()->geometry();
  QVERIFY(!tip()->mask().isEmpty());
  const QPoint inside(frame.center().x(), frame.top() + 11);
  QTRY_COMPARE(QColor(screenshot().pixel(inside)), Theme::get().surface);
  const QImage image = screenshot();
  for (const QPoint& outside : {frame.topLeft(), QPoint(frame.center().x(), frame.top() + 4),
                                QPoint(frame.left() + 4, frame.center().y()), frame.bottomRight()})
    QCOMPARE(image.pixel(outside), kBehind);
  // The bubble's own corners hold no black either.
  for (int y = 0; y < frame.height(); ++y)
    for (int x = 0; x < 16; ++x) {
      const QColor pixel(image.pixel(frame.left() + x, frame.top() + y));
      QVERIFY2(pixel.blue() > 150, qPrintable(u"%1 at %2,%3"_s.arg(pixel.name()).arg(x).arg(y)));
    }
}

void TestCompositor::menuHasNoBlackCorners() {
  QMenu menu;
  menu.addAction(u"One entry"_s);
  menu.addAction(u"Another"_s);
  menu.popup({200, 200});
  QTRY_VERIFY(menu.isVisible());
  const QRect frame = menu.geometry();
  QVERIFY(!menu.mask().isEmpty());
  QTRY_COMPARE(QColor(screenshot().pixel(frame.center().x(), frame.top() + 2)), Theme::get().surface);
  const QImage image = screenshot();
  for (const QPoint& corner : {frame.topLeft(), frame.topRight(), frame.bottomLeft(), frame.bottomRight()})
    QCOMPARE(image.pixel(corner), kBehind);
  for (int y = 0; y < frame.height(); ++y)
    for (int x = 0; x < 12; ++x) {
      const QColor pixel(image.pixel(frame.left() + x, frame.top() + y));
      QVERIFY2(pixel.blue() > 150, qPrintable(u"%1 at %2,%3"_s.arg(pixel.name()).arg(x).arg(y)));
    }
}

/// What is told where there is no X server to start.
class TestNothing : public QObject {
  Q_OBJECT

 private slots:
  void needsAScreen() { QSKIP("no Xvfb here"); }
};

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsSet("TARNWICK_TEST_SCREEN")) return uitest::run<TestCompositor>(argc, argv);
  const QCoreApplication app(argc, argv);
  servers::Server screen;
  if (!servers::startScreen(&screen)) {
    TestNothing nothing;
    return QTest::qExec(&nothing, argc, argv);
  }
  QProcess child;
  QProcessEnvironment environment = servers::onScreen(screen);
  environment.insert(u"TARNWICK_TEST_SCREEN"_s, screen.answer());
  child.setProcessEnvironment(environment);
  child.setProcessChannelMode(QProcess::ForwardedChannels);
  child.start(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
  return child.waitForFinished(100000) && child.exitStatus() == QProcess::NormalExit ? child.exitCode() : 1;
}

#include "tst_compositor.moc"
