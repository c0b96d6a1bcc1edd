#include "app/AppSettings.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/FocusRing.h"
#include "ui/controls/Segmented.h"
#include "ui/controls/Switch.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFocusFrame>
#include <QLineEdit>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

/// A window with a field and, behind it, what may have a ring.
struct Window : QWidget {
  explicit Window(QWidget* control) : field(new QLineEdit(this)), tried(control) {
    tried->setParent(this);
    field->setGeometry(20, 10, 100, 30);
    tried->setGeometry(30, 60, 120, 30);
    resize(300, 200);
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this)) qFatal("no active window");
    field->setFocus();
  }
  /// The ring that is seen.
  QFocusFrame* ring() const {
    for (auto* frame : findChildren<QFocusFrame*>())
      if (frame->isVisible()) return frame;
    return nullptr;
  }
  bool tab() {
    QTest::keyClick(field, Qt::Key_Tab);
    return tried->hasFocus();
  }
  QLineEdit* field;
  QWidget* tried;
};

bool isOver(const QColor& seen, const QColor& bare, const QColor& colour) {
  const auto near = [&](int is, int under, int part) {
    return qAbs(is - qRound(under + colour.alpha() / 255.0 * (part - under))) <= 2;
  };
  return near(seen.red(), bare.red(), colour.red()) && near(seen.green(), bare.green(), colour.green()) &&
         near(seen.blue(), bare.blue(), colour.blue());
}

} // namespace

class TestFocusRing : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }

  void layout();
  void keyboardShowsIt_data();
  void keyboardShowsIt();
  void clickDoesnt();
  void othersHaveNone();
  void showFocusAsksForIt();
  void isPainted_data();
  void isPainted();
  void softWithoutTheKeyboard();
  void followsItsWidget();
  void goesWithItsWidget();
  void goesWithItsWindow();
  void neitherMouseNorReaderSeesIt();
};

void TestFocusRing::layout() {
  const ui::FocusRingLayout layout = ui::focusRingLayout({30, 60, 120, 40});
  QCOMPARE(layout.frame, QRect(26, 56, 128, 48));
  QCOMPARE(layout.ring, QRectF(4.5, 4.5, 119, 39));
}

void TestFocusRing::keyboardShowsIt_data() {
  QTest::addColumn<QWidget*>("control");
  for (const char* kind : {"primary", "danger", "ghost", "link", "none"})
    QTest::newRow(kind) << static_cast<QWidget*>(new ui::Button(u"Go"_s, kind));
  QTest::newRow("check box") << static_cast<QWidget*>(new QCheckBox(u"Go"_s));
  QTest::newRow("switch") << static_cast<QWidget*>(new ui::Switch);
  QTest::newRow("radio button") << static_cast<QWidget*>(new QRadioButton(u"Go"_s));
}

void TestFocusRing::keyboardShowsIt() {
  QFETCH(QWidget*, control);
  Window window(control);
  QVERIFY(!window.ring());
  QVERIFY(window.tab());
  QVERIFY(window.ring());
  QCOMPARE(window.ring()->geometry(), window.tried->geometry().adjusted(-4, -4, 4, 4));
  window.field->setFocus();
  QVERIFY(!window.ring());
  QVERIFY(window.tab());
  QVERIFY(window.ring());
  control->setEnabled(false);
  QVERIFY(!window.ring());
}

void TestFocusRing::clickDoesnt() {
  Window window(new ui::Button(u"Go"_s, "primary"));
  window.tried->setFocusPolicy(Qt::StrongFocus);
  QTest::mouseClick(window.tried, Qt::LeftButton);
  QVERIFY(window.tried->hasFocus());
  QVERIFY(!window.ring());
  window.field->setFocus();
  QVERIFY(window.tab());
  QVERIFY(window.ring());
  QTest::mousePress(window.tried, Qt::LeftButton);
  QVERIFY(!window.ring());
}

void TestFocusRing::othersHaveNone() {
  Window window(new ui::Segmented({u"One"_s, u"Two"_s})); // paints its own
  QVERIFY(window.tab());
  QVERIFY(!window.ring());
  QVERIFY(!window.field->findChild<ui::FocusRing*>());
  QVERIFY(!window.tried->findChild<ui::FocusRing*>());
}

void TestFocusRing::showFocusAsksForIt() {
  Window window(new ui::Button(u"Go"_s, "primary"));
  window.tried->setFocus(Qt::OtherFocusReason);
  QVERIFY(!window.ring());
  window.tried->setProperty("showFocus", true);
  QVERIFY(window.ring());
  window.tried->setFocusPolicy(Qt::NoFocus);
  window.tried->setProperty("showFocus", false);
  window.tried->setProperty("showFocus", true);
  QVERIFY(!window.ring());
  window.tried->setFocusPolicy(Qt::StrongFocus);
  window.tried->setFocus(Qt::OtherFocusReason);
  window.tried->setProperty("showFocus", false);
  QVERIFY(!window.ring());
}

void TestFocusRing::isPainted_data() {
  QTest::addColumn<bool>("dark");
  QTest::addColumn<bool>("large");
  QTest::newRow("dark") << true << false;
  QTest::newRow("light") << false << false;
  QTest::newRow("large") << true << true;
}

void TestFocusRing::isPainted() {
  QFETCH(bool, dark);
  QFETCH(bool, large);
  AppSettings::instance().setThemeMode(dark ? AppSettings::Dark : AppSettings::Light);
  Window window(new ui::Button(u"Go"_s, "danger", {}, large ? "lg" : nullptr));
  const QRect around = window.tried->geometry();
  const auto probe = [&](int x, int y) { return window.grab().toImage().pixelColor(x, y); };
  const int middle = around.center().x();
  const QColor bare = probe(middle, around.top() - 2);
  QVERIFY(window.tab());
  const Theme& theme = Theme::get();
  // Its middle is 2 outside of the body's edge, which is half a pixel in: rows -3 to -1.
  QVERIFY(isOver(probe(middle, around.top() - 3), bare, theme.accentSoft));
  QVERIFY(isOver(probe(middle, around.top() - 2), bare, theme.accent));
  QVERIFY(isOver(probe(middle, around.top() - 1), bare, theme.accentSoft));
  QCOMPARE(probe(middle, around.top() - 4), bare);
  QCOMPARE(probe(around.right() + 2, around.center().y()), probe(middle, around.top() - 2));
  QCOMPARE(probe(middle, around.bottom() + 2), probe(middle, around.top() - 2));
  // Its corners are rounder than the body's by the 2: on the diagonal it lies (radius + 2) x (1 - 1/sqrt 2) in.
  const int corner = qRound((large ? 14 : 12) * 0.2929) - 2;
  QVERIFY(probe(around.left() + corner, around.top() + corner) != bare);
  QCOMPARE(probe(around.left() - 2, around.top() - 2), bare);
}

void TestFocusRing::softWithoutTheKeyboard() {
  Window window(new ui::Button(u"Go"_s, "danger"));
  const QRect around = window.tried->geometry();
  const auto probe = [&] { return window.grab().toImage().pixelColor(around.center().x(), around.top() - 2); };
  const QColor bare = probe();
  window.tried->setProperty("showFocus", true);
  window.tried->setFocus(Qt::OtherFocusReason);
  QVERIFY(isOver(probe(), bare, Theme::get().accentSoft));
}

void TestFocusRing::followsItsWidget() {
  Window window(new ui::Button(u"Go"_s));
  QVERIFY(window.tab());
  window.tried->move(80, 100);
  QCOMPARE(window.ring()->pos(), QPoint(76, 96));
  window.tried->resize(60, 30);
  QCOMPARE(window.ring()->size(), QSize(68, 38));
  QWidget other(&window);
  other.setGeometry(0, 100, 200, 100);
  other.show();
  window.tried->hide();
  QVERIFY(!window.ring());
  window.tried->setParent(&other);
  window.tried->show();
  window.tried->setFocus(Qt::TabFocusReason);
  QVERIFY(window.ring());
  QCOMPARE(window.ring()->parentWidget(), &other);
}

void TestFocusRing::goesWithItsWidget() {
  Window window(new ui::Button(u"Go"_s));
  QVERIFY(window.tab());
  const QPointer<QFocusFrame> ring(window.ring());
  QVERIFY(ring);
  delete window.tried;
  QTRY_VERIFY(!ring);
  // And a window that goes with a ring in it goes in one piece.
  auto* second = new Window(new QCheckBox(u"Go"_s));
  QVERIFY(second->tab());
  QVERIFY(second->ring());
  delete second;
}

void TestFocusRing::goesWithItsWindow() {
  Window window(new QPushButton(u"Do"_s));
  QVERIFY(window.tab());
  const QPointer<QFocusFrame> ring(window.ring());
  QVERIFY(ring);
  window.close(); // goes through its children to hide them, and none of them may be gone by then
  QVERIFY(ring);
  QVERIFY(!window.ring());
  QTRY_VERIFY(!ring);
}

void TestFocusRing::neitherMouseNorReaderSeesIt() {
  Window window(new ui::Button(u"Go"_s));
  const int before = QAccessible::queryAccessibleInterface(&window)->childCount();
  QVERIFY(window.tab());
  QVERIFY(window.ring()->testAttribute(Qt::WA_TransparentForMouseEvents));
  QCOMPARE(window.ring()->focusPolicy(), Qt::NoFocus);
  QCOMPARE(QAccessible::queryAccessibleInterface(&window)->childCount(), before);
  QCOMPARE(window.childAt(window.tried->geometry().center()), window.tried);
}

int main(int argc, char** argv) { return uitest::run<TestFocusRing>(argc, argv); }

#include "tst_FocusRing.moc"
