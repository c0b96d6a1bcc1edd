// What pages paint themselves, in a program that goes from right to left.

#include "LargeFilesTest.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/pages/Chip.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesTable.h"
#include "ui/pages/ShareBar.h"
#include "ui/pages/SystemDataRow.h"
#include "ui/pages/furniture.h"

#include <QHeaderView>
#include <QLayout>

using namespace Qt::StringLiterals;
using namespace pixels;

namespace {
constexpr QColor kRed(200, 40, 60);
} // namespace

class TestPagesMirrored : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void shareBarFillsFromTheRight();
  void pathReadsInItsOwnDirection();
  void dotStandsBeforeTheText();
  void listTurnsWithItsView();
  void titleOfARowStandsBesideItsTile();
};

void TestPagesMirrored::shareBarFillsFromTheRight() {
  ui::ShareBar bar;
  bar.resize(120, 3);
  bar.share = 0.25;
  bar.colour = kRed;
  const QImage here = rendered(bar);
  QCOMPARE(here.pixelColor(15, 1), kRed);
  const Mirrored mirrored;
  QCOMPARE(rendered(bar), here.mirrored(true, false));
}

// The home folder's sign stays before what lies in it.
void TestPagesMirrored::pathReadsInItsOwnDirection() {
  ui::PathLabel label;
  label.resize(240, 20);
  label.setPath(u"~/Films/"_s, 240);
  const QImage here = rendered(label);
  const Mirrored mirrored;
  QCOMPARE(rendered(label), here);
}

void TestPagesMirrored::dotStandsBeforeTheText() {
  const Mirrored mirrored;
  auto* text = new ui::ElidedLabel(u"Protected"_s);
  ui::Chip chip(text, ui::Chip::Dot::Good);
  chip.resize(120, 28);
  chip.layout()->activate();
  QCOMPARE(chip.layout()->contentsMargins(), QMargins(11, 0, 24, 0));
  QCOMPARE(rendered(chip).pixelColor(106, 14), Theme::get().ok);
  QVERIFY(!isNear(rendered(chip).pixelColor(14, 14), Theme::get().ok));
}

// The direction is the view's, which may be another one than the program's.
void TestPagesMirrored::listTurnsWithItsView() {
  ui::LargeFilesModel model;
  model.setFiles({largetest::file(u"a.mov"_s, 80)});
  model.toggle(model.files().first().path);
  ui::LargeFilesTable table(&model);
  table.resize(600, 120);
  table.setLayoutDirection(Qt::RightToLeft);
  table.show();
  const QRect check = table.visualRect(model.index(0, ui::LargeFilesModel::Check));
  QCOMPARE(check.right(), table.viewport()->width() - 1);
  const QImage image = rendered(*table.viewport());
  // The tick's box lies 12 pixels from the end of the first cell, which is the right one.
  const QColor box = image.pixelColor(check.right() - 12 - 3, check.center().y() + 5);
  const QColor beside = image.pixelColor(check.left() + 12 - 3, check.center().y() + 5);
  QVERIFY2(box.alpha() > 200 && box.blue() > 150, qPrintable(box.name(QColor::HexArgb)));
  QVERIFY2(beside.alpha() < 60, qPrintable(beside.name(QColor::HexArgb)));
}

void TestPagesMirrored::titleOfARowStandsBesideItsTile() {
  SystemDataItem item;
  item.id = u"logs"_s;
  item.title = u"80 logs"_s;
  item.icon = u"folder"_s;
  item.color = kRed;
  item.bytes = 80'000'000;
  const auto picture = [&](const QString& title) {
    item.title = title;
    ui::SystemDataRow row(item, 150, false);
    row.resize(600, 56);
    return row.grab().toImage();
  };
  const QRect here = difference(picture(u"80 logs"_s), picture({}));
  const Mirrored mirrored;
  const QRect there = difference(picture(u"80 logs"_s), picture({}));
  QVERIFY(!here.isEmpty());
  QCOMPARE(there.width(), here.width());
  QVERIFY2(qAbs(there.right() - (599 - here.left())) <= 3, qPrintable(QString::number(there.right())));
}

int main(int argc, char** argv) { return uitest::run<TestPagesMirrored>(argc, argv); }

#include "tst_PagesMirrored.moc"
