// What a category's row paints, and the furniture that the pages share.
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/factory.h"
#include "ui/pages/CategoryRow.h"
#include "ui/pages/ShareBar.h"
#include "ui/pages/furniture.h"

#include <QAccessible>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using pixels::at;
using pixels::isNear;
using pixels::rendered;
using pixels::setLook;

class TestCleanupRow : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() {
    Theme::get().mac = true;
    setLook(false);
  }

  void rowPaints();
  void rowRepaintsUnderTheMouse();
  void rowCallsItsOwner();
  void barPaints();
  void centredBlock();
  void startBlock();
  void startTileFollowsTheLook();
  void statPair();
  void bareCheckBox();
  void pathLabel();
  void radarCard();
};

void TestCleanupRow::rowPaints() {
  ui::CategoryRow row;
  row.resize(200, 50);
  const QPoint middle(100, 25);
  for (const bool dark : {false, true}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    row.active = false;
    row.setAttribute(Qt::WA_UnderMouse, false);
    QCOMPARE(at(rendered(row), middle).alpha(), 0);
    row.setAttribute(Qt::WA_UnderMouse, true);
    QVERIFY(isNear(at(rendered(row), middle), theme.hover));
    QVERIFY(isNear(at(rendered(row), {100, 1}), theme.hover)); // without a border
    row.active = true;
    const QColor fill = dark ? theme.cardHover : theme.surface;
    QVERIFY(isNear(at(rendered(row), middle), fill));
    QVERIFY(!isNear(at(rendered(row), {100, 0}), fill));
    QCOMPARE(at(rendered(row), {0, 0}).alpha(), 0); // its corners are round
  }
}

void TestCleanupRow::rowRepaintsUnderTheMouse() {
  ui::CategoryRow row;
  row.resize(200, 50);
  row.show();
  QVERIFY(QTest::qWaitForWindowExposed(&row));
  QCoreApplication::processEvents();
  pixels::Repaints repaints(&row);
  for (const auto type : {QEvent::HoverEnter, QEvent::HoverLeave}) {
    const int before = repaints.count;
    QHoverEvent hover(type, QPointF(5, 5), QPointF(5, 5), QPointF());
    QCoreApplication::sendEvent(&row, &hover);
    QTRY_VERIFY(repaints.count > before);
  }
}

void TestCleanupRow::rowCallsItsOwner() {
  ui::CategoryRow row;
  row.resize(200, 50);
  row.press(); // nobody listens
  int calls = 0;
  row.onClick = [&] {
    ++calls;
    row.onClick = nullptr; // as if it were taken away meanwhile
  };
  QTest::mouseClick(&row, Qt::LeftButton);
  QTest::mouseClick(&row, Qt::LeftButton);
  QCOMPARE(calls, 1);
}

void TestCleanupRow::barPaints() {
  ui::ShareBar bar;
  bar.resize(100, 3);
  bar.colour = QColor(200, 30, 40);
  for (const bool dark : {false, true}) {
    setLook(dark);
    bar.share = 0.5;
    QVERIFY(isNear(at(rendered(bar), {25, 1}), bar.colour));
    QVERIFY(isNear(at(rendered(bar), {75, 1}), Theme::get().track));
    bar.share = 0.001;
    QVERIFY(isNear(at(rendered(bar), {1, 1}), bar.colour));
    QVERIFY(isNear(at(rendered(bar), {4, 1}), Theme::get().track));
    bar.share = 0;
    QVERIFY(isNear(at(rendered(bar), {1, 1}), Theme::get().track));
  }
}

void TestCleanupRow::centredBlock() {
  auto* inner = new QWidget;
  inner->setMinimumHeight(40);
  QVBoxLayout* block = ui::vbox(0, {0, 0, 0, 7});
  block->addWidget(inner);
  const std::unique_ptr<QWidget> whole(ui::centred(block, 460));
  QCOMPARE(whole->layout()->contentsMargins(), QMargins(32, 24, 32, 24));
  QCOMPARE(block->contentsMargins(), QMargins(0, 0, 0, 7)); // its own
  whole->resize(1000, 600);
  whole->show();
  QCoreApplication::processEvents();
  const QRect placed(inner->mapTo(whole.get(), QPoint()), inner->size());
  QCOMPARE(placed.width(), 460);
  QVERIFY(qAbs(placed.center().x() - 500) <= 1);
  whole->resize(300, 600);
  QCoreApplication::processEvents();
  QCOMPARE(inner->width(), 300 - 64);
}

void TestCleanupRow::startBlock() {
  const ui::StartBlock block = ui::startBlock(
      {.icon = u"sparkle"_s, .title = u"Title"_s, .text = u"Text"_s, .button = u"Go"_s, .buttonIcon = {}});
  QWidget holder;
  holder.setLayout(block.layout);
  QCOMPARE(block.layout->spacing(), 8);
  QCOMPARE(holder.findChild<ui::IconTile*>()->size(), QSize(56, 56));
  const QList<QLabel*> labels = holder.findChildren<QLabel*>();
  QCOMPARE(labels.size(), 2);
  QCOMPARE(labels[0]->property("role").toString(), u"h2"_s);
  QCOMPARE(labels[1]->property("role").toString(), u"sub"_s);
  QVERIFY(!labels[0]->wordWrap() && labels[1]->wordWrap());
  for (const QLabel* label : labels) QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignCenter));
  QVERIFY(block.start->isFilled() && block.start->isLarge());
}

void TestCleanupRow::startTileFollowsTheLook() {
  const ui::StartBlock block = ui::startBlock({.icon = {}, .title = {}, .text = {}, .button = {}, .buttonIcon = {}});
  QWidget holder;
  holder.setLayout(block.layout);
  auto* tile = holder.findChild<ui::IconTile*>();
  for (const bool dark : {true, false}) {
    setLook(dark);
    ui::IconTile fresh({}, Theme::get().accent, 56);
    QCOMPARE(rendered(*tile), rendered(fresh));
  }
}

void TestCleanupRow::statPair() {
  const ui::StatPair pair = ui::statPair(u"Elapsed"_s);
  QWidget holder;
  holder.setLayout(pair.layout);
  QCOMPARE(pair.layout->spacing(), 2);
  QCOMPARE(pair.value->styleSheet(), u"font-size: 15px;"_s);
  QCOMPARE(pair.value->property("role").toString(), u"num"_s);
  const QLabel* caption = holder.findChildren<QLabel*>().last();
  QCOMPARE(caption->text(), u"Elapsed"_s);
  QCOMPARE(caption->property("role").toString(), u"micro"_s);
  QCOMPARE(caption->styleSheet(), QString());
  const ui::StatPair larger = ui::statPair({}, {.value = 17, .caption = 12});
  QWidget second;
  second.setLayout(larger.layout);
  QCOMPARE(larger.value->styleSheet(), u"font-size: 17px;"_s);
  QCOMPARE(second.findChildren<QLabel*>().last()->styleSheet(), u"font-size: 12px;"_s);
}

void TestCleanupRow::bareCheckBox() {
  const std::unique_ptr<QCheckBox> box(ui::bareCheckBox(u"Logs, 3 MB"_s));
  QCOMPARE(QAccessible::queryAccessibleInterface(box.get())->text(QAccessible::Name), u"Logs, 3 MB"_s);
  box->resize(box->sizeHint());
  QCOMPARE(box->width(), 16);
  QTest::mouseClick(box.get(), Qt::LeftButton, {}, QPoint(14, box->height() / 2));
  QVERIFY(box->isChecked());
}

void TestCleanupRow::pathLabel() {
  ui::PathLabel label;
  const QString path = u'/' + QString(100, u'w') + u"/end"_s;
  label.setPath(path, 200);
  QCOMPARE(label.text(), label.fontMetrics().elidedText(path, Qt::ElideMiddle, 200));
  QCOMPARE(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), path);
  // Where there is less room than that, the middle gives way and both ends are still there.
  label.resize(100, 20);
  const QImage narrow = rendered(label);
  label.setPath(path, 100);
  QCOMPARE(rendered(label), narrow);
}

void TestCleanupRow::radarCard() {
  ui::RadarCard card(u"Scanning"_s);
  const QLabel* counter = card.addCounter(u"Elapsed"_s);
  QCOMPARE(counter->text(), u"—"_s);
  QCOMPARE(card.maximumWidth(), 340);
  QVERIFY(card.minimumWidth() >= 290);
  QCOMPARE(card.layout()->contentsMargins(), QMargins(26, 26, 26, 26));
  QCOMPARE(card.layout()->spacing(), 18);
  QCOMPARE(card.path()->minimumWidth(), 10);
  QCOMPARE(card.path()->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
  QCOMPARE(card.path()->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
}

int main(int argc, char** argv) { return uitest::run<TestCleanupRow>(argc, argv); }

#include "tst_CleanupRow.moc"
