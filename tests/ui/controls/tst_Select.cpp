// The select while it is closed: its sizes, its paint, its keys, and what is read out of it.
#include "SelectTest.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using pixels::isNear;
using pixels::over;
using pixels::rendered;
using pixels::setLook;
using selecttest::popup;
using selecttest::Shown;
using ui::Select;

class TestSelect : public SelectTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void sizes();
  void layout();
  void paints();
  void focusEdge();
  void ringIsForTheKeyboard();
  void arrowOfBothMetrics();

  void emptyOpensNothing();
  void keysOpen();
  void wheelGoesToThePage();
  void isReadOut();
  void readersChoose();
};

void TestSelect::sizes() {
  Select select;
  QCOMPARE(select.sizeHint(), QSize(46, 30));
  QCOMPARE(select.minimumSizeHint(), QSize(80, 30));
  select.addItems({u"One"_s, u"The widest of all"_s, u"Two"_s});
  select.ensurePolished();
  const int widest = select.fontMetrics().horizontalAdvance(u"The widest of all"_s);
  QCOMPARE(select.sizeHint(), QSize(widest + 46, 30));
  Theme::get().mac = false;
  QCOMPARE(select.sizeHint(), QSize(widest + 46, 34));
  QCOMPARE(select.minimumSizeHint(), QSize(80, 34));
  QVERIFY(select.testAttribute(Qt::WA_Hover));
  QCOMPARE(select.focusPolicy(), Qt::StrongFocus);
}

void TestSelect::layout() {
  const ui::SelectLayout closed = ui::selectLayout({161, 31}, false);
  QCOMPARE(closed.body, QRectF(0.5, 0.5, 160, 30));
  QCOMPARE(closed.text, QRectF(10.5, 0.5, 116, 30));
  QCOMPARE(closed.chip, QRectF(141, 7.5, 16, 16));
  QCOMPARE(closed.chevron, QPointF(144, 15.5));
  QCOMPARE(ui::selectLayout({161, 31}, true).chevron, QPointF(144, 16));
  const ui::SelectLayout mirrored = ui::selectLayout({161, 31}, false, Qt::RightToLeft);
  QCOMPARE(mirrored.body, closed.body);
  QCOMPARE(mirrored.text, QRectF(34.5, 0.5, 116, 30));
  QCOMPARE(mirrored.chip, QRectF(4, 7.5, 16, 16));
  QCOMPARE(mirrored.chevron, QPointF(17, 15.5));
}

void TestSelect::paints() {
  Select select;
  select.resize(120, 30);
  const auto body = [&] { return rendered(select).pixelColor(60, 15); };
  const auto chip = [&] { return rendered(select).pixelColor(101, 15); };
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    QCOMPARE(body(), theme.surface);
    QVERIFY(isNear(chip(), theme.accent));
    select.setAttribute(Qt::WA_UnderMouse, true);
    QCOMPARE(body(), theme.surface2);
    select.setEnabled(false);
    QCOMPARE(body(), theme.surface);
    QVERIFY(isNear(chip(), over(theme.lineStrong, theme.surface)));
    select.setEnabled(true);
    select.setAttribute(Qt::WA_UnderMouse, false);
  }
}

void TestSelect::focusEdge() {
  Shown shown;
  QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
  shown.window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&shown.window));
  const auto edge = [&] { return rendered(*shown.select).pixelColor(80, 0); };
  Theme::get().mac = false;
  shown.select->setFocus(Qt::MouseFocusReason);
  QTRY_VERIFY(shown.select->hasFocus());
  QVERIFY(isNear(edge(), Theme::get().accent));
  Theme::get().mac = true;
  QVERIFY(!isNear(edge(), Theme::get().accent));
  Theme::get().mac = false;
  shown.select->clearFocus();
  QVERIFY(!isNear(edge(), Theme::get().accent));
}

void TestSelect::ringIsForTheKeyboard() {
  Select select;
  select.resize(120, 30);
  const QImage plain = rendered(select);
  QFocusEvent byMouse(QEvent::FocusIn, Qt::MouseFocusReason);
  QApplication::sendEvent(&select, &byMouse);
  QCOMPARE(rendered(select), plain);
  QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&select, &byTab);
  QVERIFY(rendered(select) != plain);
}

void TestSelect::arrowOfBothMetrics() {
  Select select;
  select.resize(120, 34);
  Theme::get().mac = false;
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage image = rendered(select);
    QCOMPARE(image.pixelColor(109, 12), theme.surface);         // no chip
    QVERIFY(!isNear(image.pixelColor(103, 18), theme.surface)); // the tip of the arrow
  }
}

void TestSelect::emptyOpensNothing() {
  Shown shown;
  shown.select->clear();
  QVERIFY(!shown.open());
  QVERIFY(!shown.select->isOpen());
}

void TestSelect::keysOpen() {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    Shown shown;
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    QTest::keyClick(shown.select, key);
    QVERIFY(popup());
    popup()->close();
  }
  Shown shown;
  QTest::keyClick(shown.select, Qt::Key_Down);
  QCOMPARE(shown.select->currentIndex(), 2);
}

void TestSelect::wheelGoesToThePage() {
  struct Page : QWidget {
    int turns = 0;
    void wheelEvent(QWheelEvent* /*event*/) override { ++turns; }
  } page;
  Select select(&page);
  select.addItems({u"One"_s, u"Two"_s});
  page.show();
  select.setFocus();
  QWheelEvent down({5, 5}, QPointF(select.mapToGlobal(QPoint(5, 5))), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&down); // else it isn't passed on, whoever ignores it
  qApp->notify(&select, &down);
  QCOMPARE(select.currentIndex(), 0);
  QCOMPARE(page.turns, 1);
}

void TestSelect::isReadOut() {
  Shown shown;
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(shown.select.data());
  QVERIFY(face);
  QCOMPARE(face->role(), QAccessible::ComboBox);
  QCOMPARE(face->text(QAccessible::Name), u"Light"_s); // better than nothing
  shown.select->setAccessibleName(u"Look"_s);
  QCOMPARE(face->text(QAccessible::Name), u"Look"_s);
  QCOMPARE(face->text(QAccessible::Value), u"Light"_s);
  QVERIFY(face->state().focusable);
  QVERIFY(face->state().hasPopup);
  QVERIFY(face->state().expandable);
  QVERIFY(face->state().collapsed);
  QCOMPARE(face->childCount(), 3);
  QCOMPARE(face->child(0)->text(QAccessible::Name), u"System"_s);
  QVERIFY(face->child(1)->state().selected);
  QVERIFY(!face->child(0)->state().selected);
  QVERIFY(face->child(0)->state().invisible);

  QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
  const QString open = QAccessibleActionInterface::showMenuAction();
  QVERIFY(face->actionInterface()->actionNames().contains(open));
  face->actionInterface()->doAction(open);
  QVERIFY(popup());
  QVERIFY(face->state().expanded);
  QVERIFY(!face->state().collapsed);
  face->actionInterface()->doAction(open);
  QVERIFY(!popup());
  QVERIFY(face->state().collapsed);
  shown.select->setEnabled(false);
  face->actionInterface()->doAction(open);
  QVERIFY(!popup());
}

void TestSelect::readersChoose() {
  Shown shown;
  QSignalSpy activated(shown.select, &QComboBox::activated);
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(shown.select.data());
  for (int round = 0; round < 2; ++round) {
    face->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(shown.select->currentIndex(), 2);
    QCOMPARE(activated.count(), 1); // the second time it is the current one
  }
}

int main(int argc, char** argv) { return uitest::run<TestSelect>(argc, argv); }

#include "tst_Select.moc"
