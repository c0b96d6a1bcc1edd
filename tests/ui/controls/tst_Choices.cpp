// The controls with which one chooses: the switch and the segments.

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Segmented.h"
#include "ui/controls/Switch.h"

#include <QAccessible>
#include <QFocusFrame>
#include <QPainter>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using pixels::isNear;
using pixels::over;
using pixels::rendered;
using pixels::setLook;
using ui::Segmented;
using ui::Switch;

namespace {

const QList<QString> kItems = {u"Small"_s, u"Middling"_s, u"Big"_s};

int textWidth(const QString& text) { return QFontMetrics(Theme::get().font(13, 500)).horizontalAdvance(text); }

} // namespace

class TestChoices : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() {
    Theme::get().mac = true;
    setLook(false);
  }

  void switchLayout();
  void switchPaints();
  void switchLightsUpUnderTheMouse();
  void switchByMouse();
  void switchByKeyboard();
  void switchRingIsForTheKeyboard();
  void switchIsReadOut();

  void segmentLayout();
  void segmentedSizes();
  void arrowsFollowTheDirection();
  void segmentedWithoutItems();
  void segmentedPaints();
  void segmentedByMouse();
  void segmentedSetCurrent();
  void segmentedItemText();
  void segmentedByKeyboard();
  void segmentedRingIsForTheKeyboard();
  void segmentedIsReadOut();
};

void TestChoices::switchLayout() {
  const ui::SwitchLayout off = ui::switchLayout({40, 22}, false);
  QCOMPARE(off.track, QRectF(0.5, 0.5, 39, 21));
  QCOMPARE(off.knob, QRectF(3.5, 3.5, 15, 15));
  const ui::SwitchLayout on = ui::switchLayout({40, 22}, true);
  QCOMPARE(on.track, off.track);
  QCOMPARE(on.knob, QRectF(39.5 - 18, 3.5, 15, 15));
  QCOMPARE(ui::switchLayout({60, 32}, false).track, QRectF(0.5, 5.5, 39, 21));
  QCOMPARE(ui::switchLayout({40, 22}, true, Qt::RightToLeft).knob, off.knob);
  QCOMPARE(ui::switchLayout({40, 22}, false, Qt::RightToLeft).knob, on.knob);
}

void TestChoices::switchPaints() {
  Switch control;
  QCOMPARE(control.sizeHint(), QSize(40, 22));
  QCOMPARE(control.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
  control.resize(control.sizeHint());
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    control.setChecked(false);
    QVERIFY(isNear(rendered(control).pixelColor(30, 11), theme.track));
    QVERIFY(isNear(rendered(control).pixelColor(11, 11), over(theme.text2, theme.track)));
    control.setChecked(true);
    QCOMPARE(rendered(control).pixelColor(29, 11), QColor(Qt::white));
    QImage expected(40, 22, QImage::Format_ARGB32);
    QPainter(&expected).fillRect(expected.rect(), Theme::gradient(QRectF(0.5, 0.5, 39, 21)));
    QVERIFY(isNear(rendered(control).pixelColor(11, 11), expected.pixelColor(11, 11)));
  }
}

void TestChoices::switchLightsUpUnderTheMouse() {
  Switch control;
  control.resize(control.sizeHint());
  QVERIFY(control.testAttribute(Qt::WA_Hover));
  for (const bool dark : {true, false}) {
    setLook(dark);
    const QColor idle = rendered(control).pixelColor(25, 0);
    control.setAttribute(Qt::WA_UnderMouse, true);
    const QColor hovered = rendered(control).pixelColor(25, 0);
    control.setAttribute(Qt::WA_UnderMouse, false);
    QVERIFY(isNear(hovered, Theme::get().text3));
    QVERIFY(!isNear(idle, Theme::get().text3));
  }
}

void TestChoices::switchByMouse() {
  Switch control;
  control.resize(control.sizeHint());
  QVERIFY(control.isCheckable());
  QSignalSpy toggled(&control, &Switch::toggled);
  QTest::mouseClick(&control, Qt::LeftButton);
  QVERIFY(control.isChecked());
  QTest::mouseClick(&control, Qt::LeftButton);
  QVERIFY(!control.isChecked());
  QCOMPARE(toggled.count(), 2);
}

void TestChoices::switchByKeyboard() {
  Switch control;
  QVERIFY(control.focusPolicy() & Qt::TabFocus);
  QSignalSpy clicked(&control, &Switch::clicked);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    const bool before = control.isChecked();
    QTest::keyClick(&control, key);
    QCOMPARE(control.isChecked(), !before);
  }
  QVERIFY(control.isChecked());
  QCOMPARE(clicked.count(), 3);
  QTest::keyClick(&control, Qt::Key_Right);
  QVERIFY(control.isChecked());
  QTest::keyClick(&control, Qt::Key_Left);
  QVERIFY(!control.isChecked());
  QTest::keyClick(&control, Qt::Key_Left);
  QVERIFY(!control.isChecked());
  QTest::keyClick(&control, Qt::Key_Right);
  QVERIFY(control.isChecked());
  QCOMPARE(clicked.count(), 5);
}

void TestChoices::switchRingIsForTheKeyboard() {
  QWidget window;
  Switch control(&window);
  control.setGeometry(20, 20, 40, 22);
  window.show();
  const auto ring = [&] { return window.findChild<QFocusFrame*>(); };
  const QImage plain = rendered(control);
  QFocusEvent byMouse(QEvent::FocusIn, Qt::MouseFocusReason);
  QApplication::sendEvent(&control, &byMouse);
  QVERIFY(!ring());
  QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&control, &byTab);
  QVERIFY(ring());
  QCOMPARE(ring()->geometry(), QRect(16, 16, 48, 30));
  QCOMPARE(rendered(control), plain); // the ring lies around it
}

void TestChoices::switchIsReadOut() {
  Switch control;
  control.setAccessibleName(u"Ask first"_s);
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&control);
  QVERIFY(face);
  QCOMPARE(face->role(), QAccessible::CheckBox);
  QCOMPARE(face->text(QAccessible::Name), u"Ask first"_s);
  QVERIFY(!face->state().checked);
  face->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QVERIFY(control.isChecked());
  QVERIFY(face->state().checked);
}

void TestChoices::segmentLayout() {
  QCOMPARE(ui::segmentLayout({10, 30}, 34), QList<QRectF>({QRectF(2, 2, 34, 30), QRectF(36, 2, 54, 30)}));
  QVERIFY(ui::segmentLayout({}, 30).isEmpty());
  const QList<QRectF> mirrored{QRectF(56, 2, 34, 30), QRectF(2, 2, 54, 30)};
  QCOMPARE(ui::segmentLayout({10, 30}, 34, Qt::RightToLeft), mirrored);
}

void TestChoices::segmentedSizes() {
  Segmented control(kItems);
  QCOMPARE(control.font(), Theme::get().font(13, 500));
  QCOMPARE(control.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
  int width = 4;
  for (const QString& item : kItems) width += textWidth(item) + 24;
  QCOMPARE(control.sizeHint(), QSize(width, 30));
  Theme::get().mac = false;
  QCOMPARE(control.sizeHint(), QSize(width, 34));
  control.resize(control.sizeHint());
  const QList<QRectF> segments = control.segments();
  QCOMPARE(segments.size(), 3);
  QCOMPARE(segments[0], QRectF(2, 2, textWidth(u"Small"_s) + 24, 30));
  QCOMPARE(segments[1].left(), segments[0].right());
  QCOMPARE(segments[2].right(), width - 2.0);
}

// The arrow towards a segment, or towards the side where the knob lies.
void TestChoices::arrowsFollowTheDirection() {
  Segmented segments(kItems);
  segments.setLayoutDirection(Qt::RightToLeft);
  QTest::keyClick(&segments, Qt::Key_Left);
  QTest::keyClick(&segments, Qt::Key_Space);
  QCOMPARE(segments.current(), 1);
  QTest::keyClick(&segments, Qt::Key_Right);
  QTest::keyClick(&segments, Qt::Key_Space);
  QCOMPARE(segments.current(), 0);
  Switch control;
  control.setLayoutDirection(Qt::RightToLeft);
  QTest::keyClick(&control, Qt::Key_Right);
  QVERIFY(!control.isChecked());
  QTest::keyClick(&control, Qt::Key_Left);
  QVERIFY(control.isChecked());
  QTest::keyClick(&control, Qt::Key_Left);
  QVERIFY(control.isChecked());
  QTest::keyClick(&control, Qt::Key_Right);
  QVERIFY(!control.isChecked());
}

void TestChoices::segmentedWithoutItems() {
  Segmented control({});
  QCOMPARE(control.sizeHint(), QSize(4, 30));
  QVERIFY(control.segments().isEmpty());
  QSignalSpy changed(&control, &Segmented::currentChanged);
  control.setCurrent(0);
  control.resize(60, 30);
  QVERIFY(isNear(rendered(control).pixelColor(30, 15), Theme::get().card));
  QTest::mouseClick(&control, Qt::LeftButton);
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Space})
    QTest::keyClick(&control, key);
  QVERIFY(changed.isEmpty());
}

void TestChoices::segmentedPaints() {
  Segmented control(kItems);
  control.setCurrent(1);
  control.resize(control.sizeHint());
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const auto inside = [&](int index) {
      const QRectF segment = control.segments()[index];
      return rendered(control).pixelColor(int(segment.left()) + 6, int(segment.center().y()));
    };
    QVERIFY(isNear(inside(0), theme.card));
    QVERIFY(isNear(inside(1), over(dark ? theme.cardHover : theme.surface, theme.card)));
    QVERIFY(isNear(inside(2), theme.card));
  }
}

void TestChoices::segmentedByMouse() {
  Segmented control(kItems);
  control.resize(control.sizeHint());
  QSignalSpy changed(&control, &Segmented::currentChanged);
  const auto press = [&](const QPointF& at) { QTest::mousePress(&control, Qt::LeftButton, {}, at.toPoint()); };
  press(control.segments()[0].center());
  press(QPointF(control.width() / 2.0, 0));
  QVERIFY(changed.isEmpty());
  press(control.segments()[2].center());
  QCOMPARE(changed.count(), 1);
  QCOMPARE(changed[0][0].toInt(), 2);
  QCOMPARE(control.current(), 2);
  press(control.segments()[2].center());
  QCOMPARE(changed.count(), 1);
}

void TestChoices::segmentedSetCurrent() {
  Segmented control(kItems);
  QCOMPARE(control.current(), 0);
  QSignalSpy changed(&control, &Segmented::currentChanged);
  for (const int ignored : {0, -1, 3}) control.setCurrent(ignored);
  QVERIFY(changed.isEmpty());
  QCOMPARE(control.current(), 0);
  control.setCurrent(2);
  QCOMPARE(changed.count(), 1);
  QCOMPARE(changed[0][0].toInt(), 2);
}

void TestChoices::segmentedItemText() {
  Segmented control(kItems);
  QSignalSpy changed(&control, &Segmented::currentChanged);
  const int before = control.sizeHint().width();
  control.setItemText(-1, u"Much longer than it was"_s);
  control.setItemText(3, u"Much longer than it was"_s);
  QCOMPARE(control.sizeHint().width(), before);
  control.setItemText(0, u"Much longer than it was"_s);
  QCOMPARE(control.sizeHint().width(), before + textWidth(u"Much longer than it was"_s) - textWidth(u"Small"_s));
  QVERIFY(changed.isEmpty());
}

void TestChoices::segmentedByKeyboard() {
  Segmented control(kItems);
  QVERIFY(control.focusPolicy() & Qt::TabFocus);
  QSignalSpy changed(&control, &Segmented::currentChanged);
  QTest::keyClick(&control, Qt::Key_Left); // stops at the first
  QTest::keyClick(&control, Qt::Key_Right);
  QVERIFY(control.itemAt(1).current);
  QVERIFY(changed.isEmpty());
  QTest::keyClick(&control, Qt::Key_Space);
  QCOMPARE(control.current(), 1);
  QTest::keyClick(&control, Qt::Key_End);
  QTest::keyClick(&control, Qt::Key_Right); // stops at the last
  QTest::keyClick(&control, Qt::Key_Return);
  QCOMPARE(control.current(), 2);
  QTest::keyClick(&control, Qt::Key_Home);
  QTest::keyClick(&control, Qt::Key_Enter);
  QCOMPARE(control.current(), 0);
  QCOMPARE(changed.count(), 3);
  QTest::keyClick(&control, Qt::Key_End);
  QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&control, &in);
  QVERIFY(control.itemAt(0).current); // begins at the chosen one
}

void TestChoices::segmentedRingIsForTheKeyboard() {
  Segmented control(kItems);
  control.resize(control.sizeHint());
  const QImage plain = rendered(control);
  QFocusEvent byMouse(QEvent::FocusIn, Qt::MouseFocusReason);
  QApplication::sendEvent(&control, &byMouse);
  QCOMPARE(rendered(control), plain);
  QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&control, &byTab);
  QVERIFY(rendered(control) != plain);
}

void TestChoices::segmentedIsReadOut() {
  Segmented control(kItems);
  control.setAccessibleName(u"Size"_s);
  control.resize(control.sizeHint());
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&control);
  QVERIFY(face);
  QCOMPARE(face->role(), QAccessible::Grouping);
  QCOMPARE(face->text(QAccessible::Name), u"Size"_s);
  QCOMPARE(face->childCount(), 3);
  QCOMPARE(face->child(1)->role(), QAccessible::RadioButton);
  QCOMPARE(face->child(1)->text(QAccessible::Name), u"Middling"_s);
  QVERIFY(face->child(0)->state().checked);
  QVERIFY(!face->child(1)->state().checked);
  face->child(1)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QCOMPARE(control.current(), 1);
  QVERIFY(face->child(1)->state().checked);
}

int main(int argc, char** argv) { return uitest::run<TestChoices>(argc, argv); }

#include "tst_Choices.moc"
