#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/factory.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QMouseEvent mouse(QEvent::Type type, Qt::MouseButton button) {
  return {type, QPointF(5, 5), QPointF(5, 5), button, button, Qt::NoModifier};
}

/// A formatted label that has had these directions, one after the other.
QImage grabbedLabel(const QList<Qt::LayoutDirection>& directions) {
  const std::unique_ptr<QLabel> label(ui::label(u"<b>80 MB</b> of 4 GB"_s));
  label->resize(300, 24);
  for (const Qt::LayoutDirection one : directions) label->setLayoutDirection(one);
  return label->grab().toImage();
}

} // namespace

class TestFactory : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }

  void labelHasTextRoleAndParent();
  void labelTurnsWithItsLayout();
  void labelStaysInTheMiddle();
  void labelWithoutRole();
  void labelStandsAtTheSideOfItsLayout_data();
  void labelStandsAtTheSideOfItsLayout();
  void eyebrowIsAnOverline();
  void setRoleDressesAtOnce();
  void boxesHaveSpacingAndMargins();
  void boxesAreMirrored();
  void clearLayoutEmptiesAllLevels();
  void clearLayoutFromWithin();
  void scrollPageIsAColumn_data();
  void scrollPageIsAColumn();
  void scrollPageScrollsOnlyDown();
  void scrollPageKeepsItsEdge();
  void dragTakesTheLeftButtonOnly();
  void dragNeedsAWindow();
  void zoomTogglesTheWindow();
  void zoomLeavesOtherButtonsAlone();
};

void TestFactory::labelHasTextRoleAndParent() {
  QWidget parent;
  const QLabel* label = ui::label(u"Words"_s, "h2", &parent);
  QCOMPARE(label->text(), u"Words"_s);
  QCOMPARE(label->property("role"), QVariant(u"h2"_s));
  QCOMPARE(label->parentWidget(), &parent);
  QCOMPARE(label->textFormat(), Qt::AutoText);
  label->ensurePolished();
  QCOMPARE(label->font().pixelSize(), 18);
}

void TestFactory::labelStandsAtTheSideOfItsLayout_data() {
  QTest::addColumn<bool>("shortens");
  QTest::addColumn<QString>("text");
  QTest::addColumn<Qt::LayoutDirection>("direction");
  QTest::addColumn<bool>("isAtRight");
  const QString plain = u"80 MB"_s;
  const QString formatted = u"<b>80 MB</b> of 4 GB"_s;
  QTest::newRow("label") << false << plain << Qt::LeftToRight << false;
  QTest::newRow("label, mirrored") << false << plain << Qt::RightToLeft << true;
  QTest::newRow("formatted") << false << formatted << Qt::LeftToRight << false;
  QTest::newRow("formatted, mirrored") << false << formatted << Qt::RightToLeft << true;
  QTest::newRow("one that shortens") << true << plain << Qt::LeftToRight << false;
  QTest::newRow("one that shortens, mirrored") << true << plain << Qt::RightToLeft << true;
}

// As a plain label that stands there: the size keeps its unit at its end.
void TestFactory::labelStandsAtTheSideOfItsLayout() {
  QFETCH(bool, shortens);
  QFETCH(QString, text);
  QFETCH(Qt::LayoutDirection, direction);
  QFETCH(bool, isAtRight);
  QLabel plain(text);
  plain.setLayoutDirection(Qt::LeftToRight);
  plain.setAlignment((isAtRight ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft) | Qt::AlignVCenter);
  const std::unique_ptr<QLabel> label(shortens ? new ui::ElidedLabel(plain.text()) : ui::label(plain.text()));
  label->setLayoutDirection(direction);
  for (QLabel* one : {&plain, label.get()}) one->resize(300, 24);
  QCOMPARE(label->grab().toImage(), plain.grab().toImage());
}

void TestFactory::labelTurnsWithItsLayout() {
  const QImage here = grabbedLabel({});
  const QImage there = grabbedLabel({Qt::RightToLeft});
  QVERIFY(here != there);
  QCOMPARE(grabbedLabel({Qt::RightToLeft, Qt::LeftToRight}), here);
  QCOMPARE(grabbedLabel({Qt::RightToLeft, Qt::LeftToRight, Qt::RightToLeft}), there);
}

void TestFactory::labelStaysInTheMiddle() {
  const std::unique_ptr<QLabel> label(ui::label(u"<b>80 MB</b> of 4 GB"_s));
  label->setAlignment(Qt::AlignCenter);
  label->setLayoutDirection(Qt::RightToLeft);
  QCOMPARE(label->alignment(), Qt::AlignCenter);
}

void TestFactory::labelWithoutRole() {
  const std::unique_ptr<QLabel> label(ui::label(u"Words"_s));
  QVERIFY(!label->property("role").isValid());
  QVERIFY(!label->dynamicPropertyNames().contains("role"));
}

void TestFactory::eyebrowIsAnOverline() {
  const std::unique_ptr<QLabel> label(ui::eyebrow(u"Overview"_s));
  QCOMPARE(label->text(), u"Overview"_s);
  QCOMPARE(label->property("role"), QVariant(u"micro"_s));
  label->ensurePolished();
  QCOMPARE(label->font().capitalization(), QFont::AllUppercase);
  QCOMPARE(label->font().families(), Theme::get().eyebrow(11).families());
  QCOMPARE(label->font().pixelSize(), 11);
  // Its font sets letter by letter in capitals, of which this one has none.
  QCOMPARE(std::unique_ptr<QLabel>(ui::eyebrow(u"Größte Straße"_s))->text(), u"Grösste Strasse"_s);
}

void TestFactory::setRoleDressesAtOnce() {
  const std::unique_ptr<QLabel> label(ui::label(u"Words"_s, "h2"));
  label->ensurePolished();
  ui::setRole(label.get(), "caption");
  QCOMPARE(label->font().pixelSize(), 12);
  QCOMPARE(label->palette().color(label->foregroundRole()), Theme::get().text2);
  ui::setRole(label.get(), nullptr);
  QCOMPARE(label->property("role"), QVariant(QString()));
  QCOMPARE(label->font().pixelSize(), 13);
}

void TestFactory::boxesHaveSpacingAndMargins() {
  const std::unique_ptr<QHBoxLayout> row(ui::hbox(7, {1, 2, 3, 4}));
  QCOMPARE(row->spacing(), 7);
  QCOMPARE(row->contentsMargins(), QMargins(1, 2, 3, 4));
  const std::unique_ptr<QVBoxLayout> column(ui::vbox());
  QCOMPARE(column->spacing(), 0);
  QCOMPARE(column->contentsMargins(), QMargins());
}

void TestFactory::boxesAreMirrored() {
  const pixels::Mirrored mirrored;
  const std::unique_ptr<QHBoxLayout> row(ui::hbox(7, {1, 2, 3, 4}));
  QCOMPARE(row->contentsMargins(), QMargins(3, 2, 1, 4));
  const std::unique_ptr<QVBoxLayout> column(ui::vbox(0, {1, 2, 3, 4}));
  QCOMPARE(column->contentsMargins(), QMargins(3, 2, 1, 4));
}

void TestFactory::clearLayoutEmptiesAllLevels() {
  QWidget window;
  auto* outer = ui::vbox();
  window.setLayout(outer);
  auto* inner = ui::hbox();
  auto* innermost = ui::vbox();
  QPointer<QLabel> first(new QLabel(u"1"_s));
  QPointer<QLabel> second(new QLabel(u"2"_s));
  QPointer<QLabel> third(new QLabel(u"3"_s));
  const QPointer<QHBoxLayout> innerAlive(inner);
  outer->addWidget(first);
  outer->addSpacing(10);
  outer->addStretch();
  outer->addLayout(inner);
  inner->addWidget(second);
  inner->addLayout(innermost);
  innermost->addWidget(third);
  window.show();
  QVERIFY(third->isVisible());

  ui::clearLayout(outer);
  QCOMPARE(outer->count(), 0);
  QVERIFY(!innerAlive);
  for (const QPointer<QLabel>& label : {first, second, third}) {
    QVERIFY(label); // goes later
    QVERIFY(!label->isVisible());
    QVERIFY(!label->parent());
    QVERIFY(!label->testAttribute(Qt::WA_WState_Polished)); // nor was it dressed again on its way
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY(!first && !second && !third);
  QVERIFY(window.findChildren<QWidget*>().isEmpty());
  ui::clearLayout(outer); // an empty one stays empty
  QCOMPARE(outer->count(), 0);
}

// A button may clear the layout that it stands in.
void TestFactory::clearLayoutFromWithin() {
  QWidget window;
  auto* column = ui::vbox();
  window.setLayout(column);
  QPointer<QPushButton> button(new QPushButton(u"Rebuild"_s));
  column->addWidget(button);
  connect(button, &QPushButton::clicked, this, [&] {
    ui::clearLayout(column);
    column->addWidget(new QLabel(u"new"_s));
  });
  window.show();
  QTest::mouseClick(button, Qt::LeftButton);
  QCOMPARE(column->count(), 1);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY(!button);
}

void TestFactory::scrollPageIsAColumn_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("margin");
  QTest::newRow("mac") << true << 28;
  QTest::newRow("win") << false << 32;
}

void TestFactory::scrollPageIsAColumn() {
  QFETCH(bool, mac);
  QFETCH(int, margin);
  Theme::get().mac = mac;
  QVBoxLayout* column = nullptr;
  const std::unique_ptr<QScrollArea> area(ui::scrollPage(&column));
  Theme::get().mac = true;
  QVERIFY(column);
  QCOMPARE(area->widget()->layout(), column);
  QCOMPARE(column->contentsMargins(), QMargins(margin, 4, margin, margin));
  QCOMPARE(column->spacing(), 0);
  QVERIFY(area->widgetResizable());
  QCOMPARE(area->frameShape(), QFrame::NoFrame);
  QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
  QCOMPARE(area->focusPolicy(), Qt::NoFocus);
}

void TestFactory::scrollPageScrollsOnlyDown() {
  QVBoxLayout* column = nullptr;
  const std::unique_ptr<QScrollArea> area(ui::scrollPage(&column));
  auto* large = new QWidget;
  large->setFixedSize(900, 900);
  column->addWidget(large);
  area->resize(300, 300);
  area->show();
  QVERIFY(QTest::qWaitForWindowExposed(area.get()));
  QVERIFY(!area->horizontalScrollBar()->isVisible());
  QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);
}

void TestFactory::scrollPageKeepsItsEdge() {
  QVBoxLayout* column = nullptr;
  const std::unique_ptr<QScrollArea> area(ui::scrollPage(&column));
  auto* content = new QWidget;
  content->setFixedHeight(50);
  column->addWidget(content);
  column->addStretch();
  area->resize(400, 300);
  area->show();
  const auto edge = [&] { return content->mapTo(area.get(), QPoint(content->width(), 0)).x(); };
  QTRY_COMPARE(edge(), 400 - 28);
  content->setFixedHeight(900);
  QTRY_VERIFY(area->verticalScrollBar()->isVisible());
  QTRY_COMPARE(edge(), 400 - 28);
  content->setFixedHeight(50);
  QTRY_VERIFY(!area->verticalScrollBar()->isVisible());
  QTRY_COMPARE(edge(), 400 - 28);
  area->setLayoutDirection(Qt::RightToLeft);
  content->setFixedHeight(900);
  QTRY_VERIFY(area->verticalScrollBar()->isVisible());
  QTRY_COMPARE(content->mapTo(area.get(), QPoint()).x(), 28); // beside the bar, which is at the left then
}

void TestFactory::dragTakesTheLeftButtonOnly() {
  QWidget window;
  auto* area = new QWidget(&window);
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    QMouseEvent press = mouse(QEvent::MouseButtonPress, button);
    QVERIFY(!ui::dragWindowFrom(area, &press));
  }
  QMouseEvent press = mouse(QEvent::MouseButtonPress, Qt::LeftButton);
  QVERIFY(ui::dragWindowFrom(area, &press));
}

void TestFactory::dragNeedsAWindow() {
  QWidget window; // never shown: there is nothing to move
  QMouseEvent press = mouse(QEvent::MouseButtonPress, Qt::LeftButton);
  QVERIFY(!ui::dragWindowFrom(&window, &press));
}

void TestFactory::zoomTogglesTheWindow() {
  QWidget window;
  auto* area = new QWidget(&window);
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QMouseEvent twice = mouse(QEvent::MouseButtonDblClick, Qt::LeftButton);
  QVERIFY(ui::zoomWindowFrom(area, &twice));
  QTRY_VERIFY(window.isMaximized());
  QVERIFY(ui::zoomWindowFrom(area, &twice));
  QTRY_VERIFY(!window.isMaximized());
}

void TestFactory::zoomLeavesOtherButtonsAlone() {
  QWidget window;
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QMouseEvent twice = mouse(QEvent::MouseButtonDblClick, Qt::RightButton);
  QVERIFY(!ui::zoomWindowFrom(&window, &twice));
  QVERIFY(!window.isMaximized());
}

int main(int argc, char** argv) { return uitest::run<TestFactory>(argc, argv); }

#include "tst_factory.moc"
