#include "support/uitest.h"
#include "ui/accessible.h"
#include "ui/controls/Select.h"

#include <QAccessibleInterface>
#include <QtTest/qtestaccessible.h>

using namespace Qt::StringLiterals;

namespace {

class Gauge : public QWidget, public ui::AccessibleValue {
 public:
  using QWidget::QWidget;
  double fraction = 0.62;

  [[nodiscard]] QString valueText() const override { return u"%1% used"_s.arg(qRound(fraction * 100)); }
  [[nodiscard]] double valueFraction() const override { return fraction; }
};

class Orb : public QWidget, public ui::AccessibleValue, public ui::AccessibleButton {
 public:
  using QWidget::QWidget;
  int presses = 0;

  [[nodiscard]] QString valueText() const override { return u"12 GB can go"_s; }
  [[nodiscard]] double valueFraction() const override { return 0.25; }
  [[nodiscard]] QString buttonText() const override { return u"Clean now"_s; }
  void press() override { ++presses; }
};

class Segments : public QWidget, public ui::AccessibleItems {
 public:
  using QWidget::QWidget;
  QStringList names = {u"All"_s, u"Unused"_s, u"Downloads"_s};
  int current = 0;
  QList<int> activated;

  [[nodiscard]] QAccessible::Role itemsRole() const override { return QAccessible::PageTabList; }
  [[nodiscard]] QAccessible::Role itemRole() const override { return QAccessible::RadioButton; }
  [[nodiscard]] int itemCount() const override { return int(names.size()); }
  [[nodiscard]] Item itemAt(int index) const override {
    return {.name = names.at(index),
            .rect = QRect(index * 50, 0, 50, 20),
            .checkable = true,
            .checked = index == current,
            .current = index == current};
  }
  void activateItem(int index) override { activated << index; }
};

QAccessibleInterface* face(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); }

} // namespace

class TestAccessible : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void cleanup() { QTestAccessibility::clearEvents(); }
  void cleanupTestCase() { QTestAccessibility::cleanup(); }

  void plainWidgetsKeepTheirFace();
  void valueIsToldAsNumberAndText();
  void noValueIsBusy();
  void namesGoBeforeValues();
  void buttonWithAValue();
  void disabledButtonCantBePressed();
  void partsAreChildren();
  void partsHaveStatesAndPlaces();
  void partsAreFoundByPlace();
  void partsAreActivated();
  void keyboardFocusIsAPart();
  void partsThatGoAreInvalid();
  void partsOutliveTheirControlHarmlessly();
  void valueChangeIsTold();
  void partChangeIsTold();
  void dropDownIsTold();
  void textIsTold();
  void nothingIsToldOfPlainWidgets();
};

void TestAccessible::initTestCase() {
  ui::installAccessibility();
  ui::installAccessibility();
  QTestAccessibility::initialize();
  // Where there is a bus for it, the tools come to know of the application a little later.
  if (qEnvironmentVariableIsSet("TARNWICK_TEST_READER")) QTRY_VERIFY(QAccessible::isActive());
}

void TestAccessible::plainWidgetsKeepTheirFace() {
  QWidget widget;
  QCOMPARE(face(&widget)->role(), QAccessible::Client);
}

void TestAccessible::valueIsToldAsNumberAndText() {
  Gauge gauge;
  QAccessibleInterface* one = face(&gauge);
  QCOMPARE(one->role(), QAccessible::ProgressBar);
  QCOMPARE(one->text(QAccessible::Value), u"62% used"_s);
  QVERIFY(one->state().readOnly);
  QVERIFY(!one->state().busy);
  QAccessibleValueInterface* value = one->valueInterface();
  QVERIFY(value);
  QCOMPARE(value->currentValue().toDouble(), 0.62);
  QCOMPARE(value->minimumValue().toDouble(), 0.0);
  QCOMPARE(value->maximumValue().toDouble(), 1.0);
  value->setCurrentValue(0.1);
  QCOMPARE(gauge.fraction, 0.62);
  QVERIFY(!one->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
}

void TestAccessible::noValueIsBusy() {
  Gauge bar;
  bar.fraction = -1;
  QVERIFY(face(&bar)->state().busy);
  QVERIFY(!face(&bar)->valueInterface()->currentValue().isValid());
}

void TestAccessible::namesGoBeforeValues() {
  Gauge gauge;
  QCOMPARE(face(&gauge)->text(QAccessible::Name), u"62% used"_s);
  gauge.setAccessibleName(u"Disk"_s);
  QCOMPARE(face(&gauge)->text(QAccessible::Name), u"Disk"_s);
  QCOMPARE(face(&gauge)->text(QAccessible::Description), u"62% used"_s);
  gauge.setAccessibleDescription(u"of the system disk"_s);
  QCOMPARE(face(&gauge)->text(QAccessible::Description), u"of the system disk"_s);
}

void TestAccessible::buttonWithAValue() {
  Orb orb;
  QAccessibleInterface* one = face(&orb);
  QCOMPARE(one->role(), QAccessible::Button);
  QCOMPARE(one->text(QAccessible::Name), u"Clean now"_s);
  QCOMPARE(one->text(QAccessible::Value), u"12 GB can go"_s);
  QCOMPARE(one->valueInterface()->currentValue().toDouble(), 0.25);
  QVERIFY(!one->state().readOnly);
  QVERIFY(one->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  one->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCOMPARE(orb.presses, 1);
}

void TestAccessible::disabledButtonCantBePressed() {
  Orb orb;
  orb.setEnabled(false);
  QVERIFY(!face(&orb)->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  face(&orb)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCOMPARE(orb.presses, 0);
  QVERIFY(face(&orb)->state().disabled);
}

void TestAccessible::partsAreChildren() {
  Segments segments;
  QAccessibleInterface* one = face(&segments);
  QCOMPARE(one->role(), QAccessible::PageTabList);
  QCOMPARE(one->childCount(), 3);
  for (int i = 0; i < 3; ++i) {
    QAccessibleInterface* part = one->child(i);
    QVERIFY(part);
    QVERIFY(part->isValid());
    QCOMPARE(part->role(), QAccessible::RadioButton);
    QCOMPARE(part->text(QAccessible::Name), segments.names.at(i));
    QCOMPARE(part->parent(), one);
    QCOMPARE(one->indexOfChild(part), i);
    QCOMPARE(one->child(i), part); // made once
    QCOMPARE(part->childCount(), 0);
  }
  QCOMPARE(one->child(3), nullptr);
  QCOMPARE(one->child(-1), nullptr);
  QCOMPARE(one->indexOfChild(one), -1);
}

void TestAccessible::partsHaveStatesAndPlaces() {
  Segments segments;
  segments.setFocusPolicy(Qt::StrongFocus);
  segments.setGeometry(100, 100, 150, 20);
  segments.current = 1;
  segments.show();
  QVERIFY(QTest::qWaitForWindowExposed(&segments));
  QAccessibleInterface* part = face(&segments)->child(1);
  QCOMPARE(part->rect(), QRect(segments.mapToGlobal(QPoint(50, 0)), QSize(50, 20)));
  QVERIFY(part->state().checkable);
  QVERIFY(part->state().checked);
  QVERIFY(part->state().focusable);
  QVERIFY(!part->state().disabled);
  QVERIFY(!part->state().invisible);
  QVERIFY(!face(&segments)->child(0)->state().checked);
  QCOMPARE(part->window(), segments.windowHandle());
  segments.setEnabled(false);
  QVERIFY(part->state().disabled);
  QVERIFY(part->actionInterface()->actionNames().isEmpty());
  segments.hide();
  QVERIFY(part->state().invisible);
}

void TestAccessible::partsAreFoundByPlace() {
  Segments segments;
  segments.setGeometry(100, 100, 200, 20);
  segments.show();
  QVERIFY(QTest::qWaitForWindowExposed(&segments));
  const auto at = [&](int x) {
    const QPoint global = segments.mapToGlobal(QPoint(x, 10));
    return face(&segments)->childAt(global.x(), global.y());
  };
  QCOMPARE(at(10), face(&segments)->child(0));
  QCOMPARE(at(110), face(&segments)->child(2));
  QCOMPARE(at(160), nullptr);
}

void TestAccessible::partsAreActivated() {
  Segments segments;
  QAccessibleActionInterface* action = face(&segments)->child(2)->actionInterface();
  QCOMPARE(action->actionNames(), QStringList(QAccessibleActionInterface::toggleAction()));
  action->doAction(QAccessibleActionInterface::toggleAction());
  QCOMPARE(segments.activated, QList<int>({2}));
  action->doAction(QAccessibleActionInterface::increaseAction());
  QCOMPARE(segments.activated, QList<int>({2}));
}

void TestAccessible::keyboardFocusIsAPart() {
  Segments segments;
  segments.setFocusPolicy(Qt::StrongFocus);
  segments.current = 2;
  segments.show();
  segments.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&segments));
  segments.setFocus();
  QVERIFY(segments.hasFocus());
  QCOMPARE(face(&segments)->focusChild(), face(&segments)->child(2));
  QVERIFY(face(&segments)->child(2)->state().focused);
  QVERIFY(!face(&segments)->child(1)->state().focused);
  segments.clearFocus();
  QVERIFY(!face(&segments)->child(2)->state().focused);
}

void TestAccessible::partsThatGoAreInvalid() {
  Segments segments;
  QAccessibleInterface* last = face(&segments)->child(2);
  segments.names.removeLast();
  QVERIFY(!last->isValid());
  QVERIFY(last->state().invalid);
  QCOMPARE(last->text(QAccessible::Name), QString());
  QCOMPARE(last->rect(), QRect());
  last->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QVERIFY(segments.activated.isEmpty());
  QCOMPARE(face(&segments)->childCount(), 2);
  QCOMPARE(face(&segments)->child(2), nullptr);
}

void TestAccessible::partsOutliveTheirControlHarmlessly() {
  QAccessible::Id id = 0;
  {
    Segments segments;
    id = QAccessible::uniqueId(face(&segments)->child(1));
    QVERIFY(QAccessible::accessibleInterface(id));
  }
  QCOMPARE(QAccessible::accessibleInterface(id), nullptr);
}

void TestAccessible::valueChangeIsTold() {
  if (!QAccessible::isActive()) QSKIP("no assistive tool is there to be told");
  Gauge gauge;
  gauge.fraction = 0.7;
  ui::accessibleValueChanged(&gauge);
  QAccessibleValueChangeEvent event(&gauge, 0.7);
  QVERIFY(QTestAccessibility::containsEvent(&event));
}

void TestAccessible::partChangeIsTold() {
  if (!QAccessible::isActive()) QSKIP("no assistive tool is there to be told");
  Segments segments;
  segments.setFocusPolicy(Qt::StrongFocus);
  segments.show();
  segments.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&segments));
  segments.setFocus();
  segments.current = 1;
  ui::accessibleItemsChanged(&segments, 1);
  QAccessible::State touched;
  touched.checked = true;
  QAccessibleStateChangeEvent state(face(&segments)->child(1), touched);
  QVERIFY(QTestAccessibility::containsEvent(&state));
  QAccessibleEvent focus(&segments, QAccessible::Focus);
  focus.setChild(1);
  QVERIFY(QTestAccessibility::containsEvent(&focus));

  QTestAccessibility::clearEvents();
  segments.names.clear();
  ui::accessibleItemsChanged(&segments, -1);
  QAccessibleEvent reorder(&segments, QAccessible::ObjectReorder);
  QVERIFY(QTestAccessibility::containsEvent(&reorder));
}

void TestAccessible::dropDownIsTold() {
  if (!QAccessible::isActive()) QSKIP("no assistive tool is there to be told");
  ui::Select select;
  select.addItems({u"One"_s, u"Two"_s, u"Three"_s});
  select.show();
  QVERIFY(QTest::qWaitForWindowExposed(&select));
  QTestAccessibility::clearEvents();
  QAccessible::State expanded;
  expanded.expanded = true;
  QAccessibleStateChangeEvent opened(&select, expanded);

  select.showPopup();
  QWidget* list = QApplication::activePopupWidget();
  QVERIFY(list);
  QVERIFY(QTestAccessibility::containsEvent(&opened));
  const auto focusTold = [&](int row) {
    QAccessibleEvent focus(list, QAccessible::Focus);
    focus.setChild(row);
    return QTestAccessibility::containsEvent(&focus);
  };
  QVERIFY(focusTold(0));
  QVERIFY(!focusTold(1));
  QTest::keyClick(list, Qt::Key_Down);
  QVERIFY(focusTold(1));

  QTestAccessibility::clearEvents();
  QTest::keyClick(list, Qt::Key_Return);
  QVERIFY(!select.isOpen());
  QVERIFY(QTestAccessibility::containsEvent(&opened)); // the same event tells of the end
  QAccessibleValueChangeEvent value(&select, u"Two"_s);
  QVERIFY(QTestAccessibility::containsEvent(&value));
}

void TestAccessible::textIsTold() {
  struct Shown : QWidget, ui::AccessibleText {
    QString text = u"12 GB"_s;
    [[nodiscard]] QString shownText() const override { return text; }
  } shown;
  QCOMPARE(face(&shown)->role(), QAccessible::StaticText);
  QCOMPARE(face(&shown)->text(QAccessible::Name), u"12 GB"_s);
  QVERIFY(face(&shown)->text(QAccessible::Description).isEmpty());
  shown.setAccessibleName(u"Freed"_s);
  QCOMPARE(face(&shown)->text(QAccessible::Name), u"Freed"_s);
  if (!QAccessible::isActive()) QSKIP("no assistive tool is there to be told of changes");
  ui::accessibleTextChanged(&shown);
  QAccessibleEvent event(&shown, QAccessible::NameChanged);
  QVERIFY(QTestAccessibility::containsEvent(&event));
}

void TestAccessible::nothingIsToldOfPlainWidgets() {
  QWidget widget;
  ui::accessibleValueChanged(&widget);
  ui::accessibleItemsChanged(&widget, 0);
  QVERIFY(QTestAccessibility::events().isEmpty());
}

// A test that brings an accessibility bus of its own names the session bus that leads to it.
int main(int argc, char** argv) {
  const QByteArray bus = qgetenv("TARNWICK_TEST_READER");
  uitest::isolate();
  if (!bus.isEmpty()) qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
  const FixtureHome home;
  const QApplication app(argc, argv);
  TestAccessible test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_accessible.moc"
