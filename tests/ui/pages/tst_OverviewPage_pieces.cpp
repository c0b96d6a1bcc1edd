#include "app/records.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/factory.h"
#include "ui/pages/CategoryTile.h"
#include "ui/pages/Chip.h"
#include "ui/pages/ChipRow.h"
#include "ui/pages/LegendItem.h"
#include "ui/pages/StatCard.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;
using pixels::faded;
using pixels::isNear;
using pixels::over;
using pixels::rendered;
using pixels::setLook;
using ui::CategoryTile;
using ui::Chip;
using ui::LegendItem;
using ui::StatCard;

namespace {

const QColor kTeal(20, 150, 140);

CategoryDef browserCaches() {
  CategoryDef def;
  def.id = u"browser"_s;
  def.title = u"Browser caches"_s;
  def.blurb = u"Pages that were kept"_s;
  def.icon = u"globe"_s;
  def.colour = kTeal;
  return def;
}

QAccessibleInterface* accessible(QWidget& widget) { return QAccessible::queryAccessibleInterface(&widget); }
QString nameOf(QWidget& widget) { return accessible(widget)->text(QAccessible::Name); }
QStringList actionsOf(QWidget& widget) { return accessible(widget)->actionInterface()->actionNames(); }

QString roleOf(const QWidget* widget) { return widget->property("role").toString(); }

void release(QWidget& widget, const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mousePress(&widget, button, {}, {5, 5});
  QTest::mouseRelease(&widget, button, {}, at);
}

/// A hairline on the edge of a fill, which covers half of that pixel.
QColor outlined(const QColor& line, const QColor& fill) { return over(line, faded(fill, fill.alphaF() / 2)); }

void giveFocus(QWidget& widget, Qt::FocusReason reason) {
  QFocusEvent event(QEvent::FocusIn, reason);
  QApplication::sendEvent(&widget, &event);
}

} // namespace

class TestOverviewPagePieces : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void chipLayout();
  void chipMargins_data();
  void chipMargins();
  void chipIsAsWideAsItsText();
  void chipFollowsItsText();
  void chipGivesWay();
  void chipPaints();
  void chipIsReadOut();

  void legendItemHolds();
  void legendItemPaintsItsSwatch();
  void legendItemGivesWay();
  void legendItemIsReadOut();

  void statCardHolds();
  void statCardIsReadOut();
  void statCardMakesAWordSmaller();

  void chipsStandBesideEachOtherWhereTheyFit();

  void tileHolds();
  void tileWithoutAmount();
  void tilePaints();
  void tileWithoutActionDoesNotLightUp();
  void tileRepaintsUnderTheMouse();
  void tileByMouse();
  void tileWithoutActionDoesNothing();
  void tileByKeyboard_data();
  void tileByKeyboard();
  void tileRingIsForTheKeyboard();
  void tileIsReadOut();
};

void TestOverviewPagePieces::chipLayout() {
  const ui::ChipLayout layout = ui::chipLayout({120, 28});
  QCOMPARE(layout.body, QRectF(0.5, 0.5, 119, 27));
  QCOMPARE(layout.halo, QRectF(9, 9, 10, 10));
  QCOMPARE(layout.dot, QRectF(11, 11, 6, 6));
  QCOMPARE(ui::chipLayout({40, 41}).dot.top(), 17.5);
  const ui::ChipLayout mirrored = ui::chipLayout({120, 28}, Qt::RightToLeft);
  QCOMPARE(mirrored.body, layout.body);
  QCOMPARE(mirrored.halo, QRectF(101, 9, 10, 10));
  QCOMPARE(mirrored.dot, QRectF(103, 11, 6, 6));
}

void TestOverviewPagePieces::chipMargins_data() {
  QTest::addColumn<Chip::Dot>("dot");
  QTest::addColumn<QMargins>("margins");
  QTest::newRow("plain") << Chip::Dot::None << QMargins(11, 0, 11, 0);
  QTest::newRow("dotted") << Chip::Dot::Good << QMargins(24, 0, 11, 0);
}

void TestOverviewPagePieces::chipMargins() {
  QFETCH(Chip::Dot, dot);
  QFETCH(QMargins, margins);
  auto* text = new QLabel(u"Words"_s);
  const Chip chip(text, dot);
  QCOMPARE(chip.layout()->contentsMargins(), margins);
  QCOMPARE(chip.layout()->spacing(), 7);
  QCOMPARE(qobject_cast<QHBoxLayout*>(chip.layout())->stretch(0), 1);
  QCOMPARE(chip.sizePolicy(), QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed));
  QCOMPARE(chip.minimumHeight(), 28);
  QCOMPARE(chip.maximumHeight(), 28);
  QCOMPARE(text->parentWidget(), &chip);
}

void TestOverviewPagePieces::chipIsAsWideAsItsText() {
  auto* text = new ui::ElidedLabel(u"System files protected"_s, "caption");
  const Chip chip(text, Chip::Dot::Good);
  const QSize hint = chip.sizeHint();
  QCOMPARE(text->font().pixelSize(), 12); // the sheet's, not the application's
  QCOMPARE(hint, QSize(24 + 11 + text->fontMetrics().horizontalAdvance(text->text()) + 4, 28));
}

void TestOverviewPagePieces::chipFollowsItsText() {
  QWidget window;
  auto* row = new QHBoxLayout(&window);
  auto* text = new ui::ElidedLabel({}, "mono");
  auto* chip = new Chip(text);
  row->addWidget(chip, 1);
  row->addStretch();
  window.resize(600, 60);
  window.show();
  text->setText(u"Scanned yesterday"_s);
  QTRY_COMPARE(chip->width(), chip->sizeHint().width());
  QVERIFY(text->width() >= text->fontMetrics().horizontalAdvance(text->text()));
}

void TestOverviewPagePieces::chipGivesWay() {
  QWidget window;
  auto* row = new QHBoxLayout(&window);
  row->setContentsMargins({});
  auto* chip = new Chip(new ui::ElidedLabel(u"System files protected, and much more to say"_s));
  row->addWidget(chip, 1);
  window.resize(90, 60);
  window.show();
  QTRY_COMPARE(chip->width(), 90);
}

void TestOverviewPagePieces::chipPaints() {
  Chip plain(new QLabel);
  Chip dotted(new QLabel, Chip::Dot::Good);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    for (Chip* chip : {&plain, &dotted}) {
      chip->resize(100, 28);
      const QImage image = rendered(*chip);
      QVERIFY(isNear(image.pixelColor(50, 14), theme.card));
      QVERIFY(isNear(image.pixelColor(50, 0), outlined(theme.line, theme.card)));
      QCOMPARE(image.pixelColor(0, 0).alpha(), 0); // round
    }
    QVERIFY(isNear(rendered(plain).pixelColor(14, 14), theme.card));
    QCOMPARE(rendered(dotted).pixelColor(14, 14), theme.ok);
    QColor halo = theme.ok;
    halo.setAlpha(60);
    QVERIFY(isNear(rendered(dotted).pixelColor(10, 14), over(halo, theme.card)));
    QVERIFY(isNear(rendered(dotted).pixelColor(7, 14), theme.card));
  }
}

void TestOverviewPagePieces::chipIsReadOut() {
  Chip chip(new QLabel(u"Never scanned"_s));
  QCOMPARE(nameOf(chip), u"Never scanned"_s);
  QCOMPARE(accessible(chip)->role(), QAccessible::StaticText);
  chip.text()->setText(u"Scanned today"_s);
  QCOMPARE(nameOf(chip), u"Scanned today"_s);
}

void TestOverviewPagePieces::legendItemHolds() {
  const LegendItem item(u"Apps, documents & system"_s, u"210 GB"_s);
  QCOMPARE(item.layout()->spacing(), 3);
  QCOMPARE(item.layout()->contentsMargins(), QMargins());
  auto* caption = qobject_cast<QHBoxLayout*>(item.layout()->itemAt(0)->layout());
  QCOMPARE(caption->spacing(), 7);
  QCOMPARE(caption->contentsMargins(), QMargins());
  QCOMPARE(caption->itemAt(0)->widget()->minimumSize(), QSize(8, 8));
  QCOMPARE(caption->itemAt(0)->widget()->maximumSize(), QSize(8, 8));
  QCOMPARE(caption->itemAt(0)->alignment(), Qt::AlignVCenter);
  auto* label = qobject_cast<ui::ElidedLabel*>(caption->itemAt(1)->widget());
  QVERIFY(label);
  QCOMPARE(caption->stretch(1), 1);
  QCOMPARE(roleOf(label), u"caption"_s);
  QCOMPARE(label->text(), u"Apps, documents & system"_s);
  auto* amount = qobject_cast<QLabel*>(item.layout()->itemAt(1)->widget());
  QCOMPARE(roleOf(amount), u"num"_s);
  QCOMPARE(amount->text(), u"210 GB"_s);
  amount->ensurePolished();
  QCOMPARE(amount->font().pixelSize(), 15);
  QCOMPARE(int(amount->font().weight()), 600);
}

void TestOverviewPagePieces::legendItemPaintsItsSwatch() {
  const auto swatchOf = [](const LegendItem& item) { return item.layout()->itemAt(0)->layout()->itemAt(0)->widget(); };
  const LegendItem solid(u"a"_s, u"b"_s, kTeal);
  const LegendItem none(u"a"_s, u"b"_s);
  for (QWidget* swatch : {swatchOf(solid), swatchOf(none)}) swatch->resize(8, 8);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage filled = rendered(*swatchOf(solid));
    QCOMPARE(filled.pixelColor(4, 4), kTeal);
    QVERIFY(filled.pixelColor(0, 4).alpha() < 255); // no outline: half of the first pixel
    const QImage empty = rendered(*swatchOf(none));
    QVERIFY(isNear(empty.pixelColor(4, 4), theme.track));
    QVERIFY(isNear(empty.pixelColor(4, 0), outlined(theme.lineStrong, theme.track)));
  }
}

void TestOverviewPagePieces::legendItemGivesWay() {
  const LegendItem shortOne(u"Free"_s, u"2 GB"_s);
  QCOMPARE(shortOne.minimumWidth(), shortOne.sizeHint().width());
  const LegendItem longOne(u"Apps, documents & system"_s, u"2 GB"_s);
  QCOMPARE(longOne.minimumWidth(), 60);
  QVERIFY(longOne.sizeHint().width() > 96);
}

void TestOverviewPagePieces::legendItemIsReadOut() {
  LegendItem item(u"Available"_s, u"210 GB"_s);
  QCOMPARE(nameOf(item), u"Available, 210 GB"_s);
  QCOMPARE(accessible(item)->role(), QAccessible::StaticText);
}

void TestOverviewPagePieces::statCardHolds() {
  auto* visual = new ui::IconView(u"history"_s, Tone::Accent, 26);
  StatCard card(visual);
  card.set(u"Weekly"_s, u"Scheduled scan"_s);
  QCOMPARE(card.value(), u"Weekly"_s);
  QCOMPARE(card.caption(), u"Scheduled scan"_s);
  auto* row = qobject_cast<QHBoxLayout*>(card.layout());
  QCOMPARE(row->spacing(), 14);
  QCOMPARE(row->contentsMargins(), QMargins(18, 15, 18, 15));
  QCOMPARE(row->stretch(0), 1);
  QCOMPARE(row->itemAt(1)->widget(), visual);
  QCOMPARE(row->itemAt(1)->alignment(), Qt::AlignVCenter);
  QLayout* lines = row->itemAt(0)->layout();
  QCOMPARE(lines->spacing(), 2);
  QCOMPARE(lines->contentsMargins(), QMargins());
  QCOMPARE(roleOf(lines->itemAt(0)->widget()), u"value"_s);
  QWidget* caption = lines->itemAt(1)->widget();
  QCOMPARE(roleOf(caption), u"micro"_s);
  caption->ensurePolished();
  QCOMPARE(caption->font().pixelSize(), 12);
}

void TestOverviewPagePieces::statCardIsReadOut() {
  StatCard card(new QWidget);
  card.set(u"Weekly"_s, u"Scheduled scan"_s);
  QCOMPARE(nameOf(card), u"Scheduled scan, Weekly"_s);
  QCOMPARE(accessible(card)->role(), QAccessible::StaticText);
  card.set(u"—"_s, u"Never scanned"_s);
  QCOMPARE(nameOf(card), u"Never scanned"_s);
}

void TestOverviewPagePieces::statCardMakesAWordSmaller() {
  auto* visual = new QWidget;
  visual->setFixedSize(30, 30);
  StatCard card(visual);
  card.set(u"Hebdomadaire"_s, u"Analyse"_s);
  auto* value = qobject_cast<QLabel*>(card.layout()->itemAt(0)->layout()->itemAt(0)->widget());
  const auto pxAt = [&](int width) {
    card.resize(width, 80);
    card.show();
    QCoreApplication::processEvents();
    return value->font().pixelSize();
  };
  QCOMPARE(pxAt(400), 20);
  const int least = pxAt(card.minimumSizeHint().width());
  QCOMPARE(least, 15);
  QVERIFY(QFontMetrics(value->font()).horizontalAdvance(value->text()) <= value->width());
  const int between = pxAt((card.minimumSizeHint().width() + 232) / 2);
  QVERIFY2(between > 15 && between < 20, qPrintable(QString::number(between)));
  QCOMPARE(pxAt(400), 20);
}

void TestOverviewPagePieces::chipsStandBesideEachOtherWhereTheyFit() {
  auto* first = new Chip(new ui::ElidedLabel(u"System files protected"_s));
  auto* second = new Chip(new ui::ElidedLabel(u"Scanned today"_s));
  ui::ChipRow row({first, second});
  row.show();
  const int wanted = row.sizeHint().width();
  QCOMPARE(wanted, first->sizeHint().width() + 8 + second->sizeHint().width());
  QCOMPARE(row.heightForWidth(wanted), 28);
  QCOMPARE(row.heightForWidth(wanted - 1), 28 + 8 + 28);
  row.resize(wanted, 28);
  QCOMPARE(first->geometry(), QRect(QPoint(), first->sizeHint()));
  QCOMPARE(second->geometry(), QRect(QPoint(first->width() + 8, 0), second->sizeHint()));
  row.resize(wanted - 1, 64);
  QCOMPARE(second->geometry(), QRect(QPoint(0, 36), second->sizeHint()));
  row.setLayoutDirection(Qt::RightToLeft);
  row.resize(wanted + 50, 28);
  QCOMPARE(first->geometry().right() + 1, row.width());
  row.setLayoutDirection(Qt::LeftToRight);
  row.resize(wanted, 28);
  second->text()->setText(u"Scanned "_s.repeated(30)); // which makes it longer than the row
  QTRY_COMPARE(second->geometry(), QRect(0, 36, wanted, 28));
}

void TestOverviewPagePieces::tileHolds() {
  const CategoryTile tile(browserCaches(), u"1.2 GB"_s, [] {});
  QCOMPARE(tile.id(), u"browser"_s);
  QCOMPARE(tile.toolTip(), u"Pages that were kept"_s);
  QCOMPARE(tile.minimumHeight(), 98);
  QVERIFY(tile.testAttribute(Qt::WA_Hover));
  QCOMPARE(tile.layout()->spacing(), 10);
  QCOMPARE(tile.layout()->contentsMargins(), QMargins(14, 14, 14, 13));
  auto* icon = qobject_cast<ui::IconTile*>(tile.layout()->itemAt(0)->widget());
  QVERIFY(icon);
  QCOMPARE(icon->size(), QSize(30, 30));
  QVERIFY(tile.layout()->itemAt(1)->spacerItem());
  QLayout* lines = tile.layout()->itemAt(2)->layout();
  QCOMPARE(lines->spacing(), 2);
  QCOMPARE(lines->contentsMargins(), QMargins());
  auto* title = qobject_cast<ui::ElidedLabel*>(lines->itemAt(0)->widget());
  QVERIFY(title);
  QCOMPARE(title->text(), u"Browser caches"_s);
  QCOMPARE(roleOf(title), u"strong"_s);
  auto* amount = qobject_cast<QLabel*>(lines->itemAt(1)->widget());
  QCOMPARE(amount->text(), u"1.2 GB"_s);
  QCOMPARE(roleOf(amount), u"mono"_s);
}

void TestOverviewPagePieces::tileWithoutAmount() {
  const CategoryTile tile(browserCaches(), {});
  QCOMPARE(qobject_cast<QLabel*>(tile.layout()->itemAt(2)->layout()->itemAt(1)->widget())->text(), u"—"_s);
}

void TestOverviewPagePieces::tilePaints() {
  CategoryTile tile(browserCaches(), u"1.2 GB"_s, [] {});
  tile.resize(160, 110);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage idle = rendered(tile);
    tile.setAttribute(Qt::WA_UnderMouse, true);
    const QImage hot = rendered(tile);
    tile.setAttribute(Qt::WA_UnderMouse, false);
    QVERIFY(isNear(idle.pixelColor(120, 60), theme.card));
    QVERIFY(isNear(idle.pixelColor(80, 0), outlined(theme.line, theme.card)));
    QVERIFY(isNear(hot.pixelColor(120, 60), theme.cardHover));
    QVERIFY(isNear(hot.pixelColor(80, 0), outlined(theme.lineStrong, theme.cardHover)));
    QCOMPARE(idle.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(idle.pixelColor(2, 2).alpha(), 0); // a radius of 14 leaves the corner free
  }
}

void TestOverviewPagePieces::tileWithoutActionDoesNotLightUp() {
  CategoryTile tile(browserCaches(), {});
  tile.resize(160, 110);
  const QImage idle = rendered(tile);
  tile.setAttribute(Qt::WA_UnderMouse, true);
  QCOMPARE(rendered(tile), idle);
}

void TestOverviewPagePieces::tileRepaintsUnderTheMouse() {
  class Counting : public CategoryTile {
   public:
    using CategoryTile::CategoryTile;
    int paints = 0;

   protected:
    void paintEvent(QPaintEvent* event) override {
      ++paints;
      CategoryTile::paintEvent(event);
    }
  };
  Counting tile(browserCaches(), u"1 KB"_s, [] {});
  tile.show();
  QVERIFY(QTest::qWaitForWindowExposed(&tile));
  QTRY_VERIFY(tile.paints > 0);
  for (const QEvent::Type type : {QEvent::HoverEnter, QEvent::HoverLeave}) {
    QCoreApplication::processEvents();
    const int before = tile.paints;
    QHoverEvent event(type, {5, 5}, {5, 5}, {-1, -1});
    QApplication::sendEvent(&tile, &event);
    QTRY_VERIFY(tile.paints > before);
  }
}

void TestOverviewPagePieces::tileByMouse() {
  int clicks = 0;
  CategoryTile tile(browserCaches(), u"1.2 GB"_s, [&] { ++clicks; });
  tile.resize(160, 110);
  release(tile, {80, 50});
  QCOMPARE(clicks, 1);
  release(tile, {0, 0});
  release(tile, {159, 109});
  QCOMPARE(clicks, 3);
  release(tile, {160, 50});
  release(tile, {80, 110});
  release(tile, {-1, 50});
  QCOMPARE(clicks, 3);
  release(tile, {80, 50}, Qt::RightButton);
  QCOMPARE(clicks, 3);
}

void TestOverviewPagePieces::tileWithoutActionDoesNothing() {
  CategoryTile tile(browserCaches(), {});
  tile.resize(160, 110);
  release(tile, {80, 50});
  QTest::keyClick(&tile, Qt::Key_Return);
  tile.press();
  QCOMPARE(tile.focusPolicy(), Qt::NoFocus);
}

void TestOverviewPagePieces::tileByKeyboard_data() {
  QTest::addColumn<Qt::Key>("key");
  QTest::addColumn<bool>("autoRepeat");
  QTest::addColumn<int>("clicks");
  QTest::newRow("space") << Qt::Key_Space << false << 1;
  QTest::newRow("return") << Qt::Key_Return << false << 1;
  QTest::newRow("enter") << Qt::Key_Enter << false << 1;
  QTest::newRow("held") << Qt::Key_Return << true << 0;
  QTest::newRow("another") << Qt::Key_A << false << 0;
}

void TestOverviewPagePieces::tileByKeyboard() {
  QFETCH(Qt::Key, key);
  QFETCH(bool, autoRepeat);
  int clicks = 0;
  CategoryTile tile(browserCaches(), u"1.2 GB"_s, [&] { ++clicks; });
  QVERIFY(tile.focusPolicy() & Qt::TabFocus);
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), autoRepeat);
  QApplication::sendEvent(&tile, &event);
  QTEST(clicks, "clicks");
}

void TestOverviewPagePieces::tileRingIsForTheKeyboard() {
  CategoryTile tile(browserCaches(), u"1.2 GB"_s, [] {});
  tile.resize(160, 110);
  const QImage idle = rendered(tile);
  giveFocus(tile, Qt::MouseFocusReason);
  QVERIFY(!tile.showsFocus());
  QCOMPARE(rendered(tile), idle);
  giveFocus(tile, Qt::TabFocusReason);
  QVERIFY(tile.showsFocus());
  const QImage ringed = rendered(tile);
  QVERIFY(ringed.pixelColor(80, 2) != idle.pixelColor(80, 2));
  QCOMPARE(ringed.pixelColor(120, 60), idle.pixelColor(120, 60));
  QTest::mousePress(&tile, Qt::LeftButton);
  QCOMPARE(rendered(tile), idle);
}

void TestOverviewPagePieces::tileIsReadOut() {
  int clicks = 0;
  CategoryTile tile(browserCaches(), u"1.2 GB"_s, [&] { ++clicks; });
  QCOMPARE(nameOf(tile), u"Browser caches, 1.2 GB"_s);
  QCOMPARE(accessible(tile)->text(QAccessible::Description), u"Pages that were kept"_s);
  QCOMPARE(accessible(tile)->role(), QAccessible::Button);
  QVERIFY(accessible(tile)->state().focusable);
  QVERIFY(actionsOf(tile).contains(QAccessibleActionInterface::pressAction()));
  accessible(tile)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCOMPARE(clicks, 1);

  CategoryTile still(browserCaches(), {});
  QCOMPARE(nameOf(still), u"Browser caches"_s);
  QCOMPARE(accessible(still)->role(), QAccessible::StaticText);
  QVERIFY(!accessible(still)->state().focusable);
  QVERIFY(!actionsOf(still).contains(QAccessibleActionInterface::pressAction()));
}

int main(int argc, char** argv) { return uitest::run<TestOverviewPagePieces>(argc, argv); }

#include "tst_OverviewPage_pieces.moc"
