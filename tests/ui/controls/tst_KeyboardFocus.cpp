#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/KeyboardFocus.h"

#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

class Control : public QWidget {
 public:
  Control() : focus(new ui::KeyboardFocus(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(60, 30);
  }
  ui::KeyboardFocus* focus;
  int paints = 0;

 protected:
  void paintEvent(QPaintEvent*) override {
    ++paints;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    focus->paintRing(&painter, QRectF(rect()).adjusted(10.5, 10.5, -10.5, -10.5), 4);
  }
};

/// A window with a field before the control.
struct Window : QWidget {
  Window() : field(new QLineEdit), control(new Control) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(field);
    layout->addWidget(control);
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this)) qFatal("no active window");
    field->setFocus();
  }
  QLineEdit* field;
  Control* control;
};

} // namespace

class TestKeyboardFocus : public QObject {
  Q_OBJECT

 private slots:
  void tabShowsIt();
  void backtabShowsIt();
  void shortcutShowsIt();
  void clickDoesnt();
  void codeDoesnt();
  void keyAfterAClickShowsIt();
  void heldModifierDoesnt();
  void pressTakesItAway();
  void leavingTakesItAway();
  void windowComesBackAsItWas_data();
  void windowComesBackAsItWas();
  void changesRepaint();
  void ringIsPainted();
};

void TestKeyboardFocus::tabShowsIt() {
  Window window;
  QTest::keyClick(window.field, Qt::Key_Tab);
  QVERIFY(window.control->hasFocus());
  QVERIFY(window.control->focus->isVisible());
}

void TestKeyboardFocus::backtabShowsIt() {
  Window window;
  QTest::keyClick(window.field, Qt::Key_Backtab);
  QVERIFY(window.control->hasFocus());
  QVERIFY(window.control->focus->isVisible());
}

void TestKeyboardFocus::shortcutShowsIt() {
  Window window;
  window.control->setFocus(Qt::ShortcutFocusReason);
  QVERIFY(window.control->focus->isVisible());
}

void TestKeyboardFocus::clickDoesnt() {
  Window window;
  QTest::mouseClick(window.control, Qt::LeftButton);
  QVERIFY(window.control->hasFocus());
  QVERIFY(!window.control->focus->isVisible());
}

void TestKeyboardFocus::codeDoesnt() {
  Window window;
  window.control->setFocus();
  QVERIFY(window.control->hasFocus());
  QVERIFY(!window.control->focus->isVisible());
}

void TestKeyboardFocus::keyAfterAClickShowsIt() {
  Window window;
  QTest::mouseClick(window.control, Qt::LeftButton);
  QTest::keyClick(window.control, Qt::Key_Right);
  QVERIFY(window.control->focus->isVisible());
}

void TestKeyboardFocus::heldModifierDoesnt() {
  Window window;
  QTest::mouseClick(window.control, Qt::LeftButton);
  for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta})
    QTest::keyClick(window.control, key);
  QVERIFY(!window.control->focus->isVisible());
}

void TestKeyboardFocus::pressTakesItAway() {
  Window window;
  QTest::keyClick(window.field, Qt::Key_Tab);
  QTest::mousePress(window.control, Qt::LeftButton);
  QVERIFY(window.control->hasFocus());
  QVERIFY(!window.control->focus->isVisible());
  QTest::mouseRelease(window.control, Qt::LeftButton);
  QVERIFY(!window.control->focus->isVisible());
}

void TestKeyboardFocus::leavingTakesItAway() {
  Window window;
  QTest::keyClick(window.field, Qt::Key_Tab);
  QTest::keyClick(window.control, Qt::Key_Tab);
  QVERIFY(!window.control->hasFocus());
  QVERIFY(!window.control->focus->isVisible());
  window.control->setFocus(); // back by code: what was shown before counts no longer
  QVERIFY(!window.control->focus->isVisible());
}

void TestKeyboardFocus::windowComesBackAsItWas_data() {
  QTest::addColumn<bool>("shown");
  QTest::addColumn<Qt::FocusReason>("reason");
  QTest::newRow("shown, another window") << true << Qt::ActiveWindowFocusReason;
  QTest::newRow("not shown, another window") << false << Qt::ActiveWindowFocusReason;
  QTest::newRow("shown, a popup") << true << Qt::PopupFocusReason;
  QTest::newRow("not shown, a popup") << false << Qt::PopupFocusReason;
}

void TestKeyboardFocus::windowComesBackAsItWas() {
  QFETCH(bool, shown);
  QFETCH(Qt::FocusReason, reason);
  Window window;
  if (shown)
    QTest::keyClick(window.field, Qt::Key_Tab);
  else
    QTest::mouseClick(window.control, Qt::LeftButton);
  QFocusEvent out(QEvent::FocusOut, reason);
  QApplication::sendEvent(window.control, &out);
  QVERIFY(!window.control->focus->isVisible());
  QFocusEvent in(QEvent::FocusIn, reason);
  QApplication::sendEvent(window.control, &in);
  QCOMPARE(window.control->focus->isVisible(), shown);
}

void TestKeyboardFocus::changesRepaint() {
  Window window;
  QTRY_VERIFY(window.control->paints > 0);
  int before = window.control->paints;
  QTest::keyClick(window.field, Qt::Key_Tab);
  QTRY_VERIFY(window.control->paints > before);
  before = window.control->paints;
  QTest::mousePress(window.control, Qt::LeftButton);
  QTRY_VERIFY(window.control->paints > before);
}

void TestKeyboardFocus::ringIsPainted() {
  Window window;
  const auto probe = [&](const QPoint& at) { return window.control->grab().toImage().pixelColor(at); };
  const QColor bare = probe({30, 8});
  QTest::keyClick(window.field, Qt::Key_Tab);
  // The rectangle begins at 10.5; the ring's middle lies 2 outside, and it is 3 wide: rows 7, 8 and 9, of which the
  // middle one has the fine line.
  const auto isOver = [&](const QColor& seen, const QColor& colour) {
    const auto over = [&](int under, int part) { return qRound(under + colour.alpha() / 255.0 * (part - under)); };
    return qAbs(seen.red() - over(bare.red(), colour.red())) <= 1 &&
           qAbs(seen.green() - over(bare.green(), colour.green())) <= 1 &&
           qAbs(seen.blue() - over(bare.blue(), colour.blue())) <= 1;
  };
  const QColor ring = probe({30, 7});
  QVERIFY(isOver(ring, Theme::get().accentSoft));
  QVERIFY(isOver(probe({30, 9}), Theme::get().accentSoft));
  QVERIFY(isOver(probe({30, 8}), Theme::get().accent));
  QVERIFY(ring != bare);
  QCOMPARE(probe({30, 12}), bare); // no fill
  QCOMPARE(probe({30, 4}), bare);
}

int main(int argc, char** argv) {
  uitest::isolate();
  const FixtureHome home;
  QApplication app(argc, argv);
  QApplication::setStyle(u"Fusion"_s);
  Theme::get().install(&app);
  TestKeyboardFocus test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_KeyboardFocus.moc"
