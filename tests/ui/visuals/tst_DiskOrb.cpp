// The disk orb: its paint by points, its one button by mouse, keyboard and reader.

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/visuals/DiskOrb.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QtMath>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace pixels;
using ui::DiskOrb;

namespace {

const QColor kIndigo(99, 102, 241);
const QColor kCyan(34, 211, 238);
const QPointF kCentre(140, 140);
const QRectF kRing(12, 12, 256, 256);
const QRectF kCore(52, 52, 176, 176);

/// On a circle around the centre, in turns clockwise from 12 o'clock.
QPointF clockwise(double radius, double turns) {
  const double angle = 2 * M_PI * turns;
  return kCentre + QPointF(radius * std::sin(angle), -radius * std::cos(angle));
}

QColor usedAt(const QPointF& point) {
  QLinearGradient gradient(kRing.topLeft(), kRing.bottomRight());
  gradient.setColorAt(0, kIndigo);
  gradient.setColorAt(1, QColor(168, 85, 247));
  return brushAt(gradient, point);
}

void moveTo(DiskOrb* orb, const QPointF& point) {
  QMouseEvent move(QEvent::MouseMove, point, orb->mapToGlobal(point), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(orb, &move);
}
void press(DiskOrb* orb, const QPointF& point, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mousePress(orb, button, {}, point.toPoint());
}
void release(DiskOrb* orb, const QPointF& point, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mouseRelease(orb, button, {}, point.toPoint());
}

} // namespace

class TestDiskOrb : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void keepsFigures();
  void sizes();
  void paintsAnEmptyRing();
  void paintsBothArcs();
  void paintsAFullDisk();
  void paintsOnlyWhatCanBeCleaned();
  void paintsTheCore();
  void paintsTheHalo();
  void paintsNumberUnitAndCaption();
  void paintsThePill();
  void pillHangsOnTheBaseline();
  void looksDontHangOnTheMetricSet();

  void hovers();
  void clicks();
  void takesThePressOnItsCore();
  void reactsWithoutAnAction();
  void keys();
  void ringIsForTheKeyboard();
  void isReadOut();
};

// ---- Paint ------------------------------------------------------------------------------------------------------

void TestDiskOrb::keepsFigures() {
  DiskOrb orb;
  QCOMPARE(orb.disk().total, 1);
  orb.setDisk(0, 0, 0);
  QCOMPARE(orb.disk().total, 1);
  orb.setDisk(100, 150, 500);
  QCOMPARE(orb.disk().total, 100);
  QCOMPARE(orb.disk().used, 100);
  QCOMPARE(orb.disk().cleanable, 100);
  QCOMPARE(orb.coreRect(), kCore);
}

void TestDiskOrb::sizes() {
  const DiskOrb orb;
  QCOMPARE(orb.minimumSize(), QSize(280, 280));
  QCOMPARE(orb.maximumSize(), QSize(280, 280));
  QVERIFY(orb.testAttribute(Qt::WA_MouseTracking));
}

void TestDiskOrb::paintsAnEmptyRing() {
  DiskOrb orb;
  orb.setDisk(0, 0, 0);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage image = rendered(orb);
    for (double turns = 0.01; turns < 1; turns += 0.02) QVERIFY(isNear(at(image, clockwise(128, turns)), theme.track));
    // Between the ticks there is nothing; each long one covers 104 to 112, each other one 108 to 112.
    QCOMPARE(at(image, clockwise(118, 0.01)).alpha(), 0);
    QCOMPARE(at(image, clockwise(116, 0)).alpha(), 0);
    QVERIFY(at(image, clockwise(110, 1 / 60.0)).alpha() > theme.lineStrong.alpha() / 3);
    QVERIFY(at(image, {250, 140}).alpha() >= theme.lineStrong.alpha() / 3);
    QCOMPARE(at(image, {5, 5}).alpha(), 0);
  }
}

void TestDiskOrb::paintsBothArcs() {
  DiskOrb orb;
  orb.setDisk(1000, 900, 250); // nine tenths are still well
  for (const bool dark : {true, false}) {
    setLook(dark);
    const QImage image = rendered(orb);
    for (const double turns : {0.05, 0.3, 0.6}) {
      const QPointF point = clockwise(128, turns);
      QVERIFY(isNear(at(image, point), usedAt(point)));
    }
    for (const double turns : {0.68, 0.75, 0.88}) QVERIFY(isNear(at(image, clockwise(128, turns)), kCyan));
    QVERIFY(isNear(at(image, clockwise(128, 0.95)), Theme::get().track));
    // The glow lies outside of the stroke in three steps, each as faint as the other: at 7, 9 and 11 pixels.
    const QColor one = QColor(99, 102, 241, 18);
    QVERIFY(isNear(at(image, clockwise(128 + 10, 0.3)), one));
    QVERIFY(isNear(at(image, clockwise(128 + 8, 0.3)), over(one, one)));
    QVERIFY(at(image, clockwise(128 + 12, 0.3)).alpha() == 0);
    QVERIFY(isNear(at(image, clockwise(128 + 10, 0.8)), QColor(34, 211, 238, 18)));
    QVERIFY(at(image, clockwise(128 + 10, 0.95)).alpha() == 0);
  }
}

void TestDiskOrb::paintsAFullDisk() {
  DiskOrb orb;
  orb.setDisk(1000, 901, 250);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage image = rendered(orb);
    for (const double turns : {0.05, 0.3, 0.6}) QVERIFY(isNear(at(image, clockwise(128, turns)), theme.bad));
    QVERIFY(isNear(at(image, clockwise(138, 0.3)), ui::paint::withAlpha(theme.bad, 18)));
    QVERIFY(isNear(at(image, clockwise(128, 0.75)), kCyan));
    QVERIFY(isNear(at(image, clockwise(138, 0.75)), ui::paint::withAlpha(kCyan, 18)));
  }
}

void TestDiskOrb::paintsOnlyWhatCanBeCleaned() {
  DiskOrb orb;
  orb.setDisk(100, 150, 500);
  const QImage image = rendered(orb);
  for (const double turns : {0.02, 0.25, 0.5, 0.75, 0.97}) QVERIFY(isNear(at(image, clockwise(128, turns)), kCyan));
  orb.setDisk(1'000'000'000, 1, 1); // a share that nobody would see
  QVERIFY(isNear(at(rendered(orb), clockwise(128, 0.0005)), kCyan));
  QVERIFY(isNear(at(rendered(orb), clockwise(128, 0.03)), Theme::get().track));
}

void TestDiskOrb::paintsTheCore() {
  DiskOrb orb;
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage image = rendered(orb);
    const auto light = [&](const QColor& colour, int peak, double centreY, double y) {
      const double left = 1 - qAbs(y - centreY) / (0.6 * 176);
      return ui::paint::withAlpha(colour, qRound(peak * qMax(0.0, left)));
    };
    for (const double y : {60.5, 104.5, 150.5, 200.5, 222.5}) {
      const QColor sheen = light(Qt::white, dark ? 26 : 160, 52 + 0.3 * 176, y);
      const QColor glow = light(kIndigo, dark ? 115 : 55, 228 + 0.2 * 176, y);
      QVERIFY2(isNear(at(image, {140.5, y}), over(glow, over(sheen, theme.core))), qPrintable(QString::number(y)));
    }
    // The border lies over all that, on the outermost pixel of the core and on no other.
    const QColor inside = at(image, {53.5, 140.5});
    QVERIFY(isNear(at(image, {52.5, 140.5}), over(theme.lineStrong, inside)));
    QVERIFY(!isNear(at(image, {52.5, 140.5}), inside));
  }
}

void TestDiskOrb::paintsTheHalo() {
  DiskOrb orb;
  for (const bool hovered : {false, true}) {
    moveTo(&orb, hovered ? kCentre : QPointF(1, 1));
    QCOMPARE(orb.isHovered(), hovered);
    const QImage image = rendered(orb);
    for (const double beyond : {3.0, 7.0, 11.0, 15.0}) {
      QColor wanted(0, 0, 0, 0);
      const double k = hovered ? 9 : 6;
      for (int r = 26; r >= 2; r -= 2)
        if (r > beyond) wanted = over(ui::paint::withAlpha(kIndigo, int((1 - r / 28.0) * k + 1)), wanted);
      if (beyond < 10) wanted = over(ui::paint::withAlpha(kIndigo, hovered ? 22 : 13), wanted);
      const QColor seen = at(image, clockwise(88 + beyond, 0.125 + 1 / 120.0)); // between two ticks
      QVERIFY(qAbs(seen.alpha() - wanted.alpha()) <= 2);
      QVERIFY(seen.blue() > seen.red());
    }
  }
}

void TestDiskOrb::paintsNumberUnitAndCaption() {
  DiskOrb orb;
  orb.setDisk(100, 50, 0);
  const QImage bare = rendered(orb);
  orb.setCenter(u"190 GB"_s, {}, {});
  const QImage withValue = rendered(orb);
  const QFontMetricsF number(Theme::get().mono(38, 600));
  const QFontMetricsF unit(Theme::get().font(15, 400));
  const double numberWidth = number.horizontalAdvance(u"190"_s);
  const double left = 140 - (numberWidth + 3 + unit.horizontalAdvance(u"GB"_s)) / 2;
  const QRect ink = difference(bare, withValue);
  QVERIFY(ink.left() >= left - 1 && ink.right() <= 280 - left + 1);
  QVERIFY(qAbs(ink.bottom() - 127) <= 1); // both stand on the baseline
  // The unit is small: above its own height there is only the number.
  const QRect above(0, 0, 280, 114);
  QVERIFY(difference(bare.copy(above), withValue.copy(above)).right() <= left + numberWidth + 1);
  const QRectF unitPlace(left + numberWidth + 3, 114, unit.horizontalAdvance(u"GB"_s), 14);
  for (const bool dark : {true, false}) {
    setLook(dark);
    orb.setCenter(u"190 GB"_s, u"free of 500 GB"_s, {});
    const QImage texts = rendered(orb);
    QVERIFY(count(texts, {left, 90, numberWidth, 38}, Theme::get().text) > 20);
    QVERIFY(count(texts, unitPlace, Theme::get().text2) > 2);
    QVERIFY(count(texts, {62, 136, 156, 16}, Theme::get().text3) > 2);
  }

  orb.setCenter(u"190"_s, {}, {});
  const QRect alone = difference(bare, rendered(orb));
  QVERIFY(qAbs(alone.center().x() - 140) <= 2);

  orb.setCenter({}, u"free of 500 GB"_s, {});
  const QRect caption = difference(bare, rendered(orb));
  QVERIFY(QRect(62, 136, 156, 16).contains(caption));
  QVERIFY(qAbs(caption.center().x() - 140) <= 2);
}

void TestDiskOrb::paintsThePill() {
  DiskOrb orb;
  for (const bool dark : {true, false}) {
    setLook(dark);
    orb.setCenter({}, {}, {});
    const QImage bare = rendered(orb);
    orb.setCenter({}, {}, u"Scan"_s);
    const QImage image = rendered(orb);
    const double width = QFontMetricsF(Theme::get().font(13, 600)).horizontalAdvance(u"Scan"_s) + 36;
    const QRectF pill(140 - width / 2, 162, width, 28);
    for (const double x : {pill.left() + 8, pill.right() - 8})
      QVERIFY(isNear(at(image, {x, 176}), brushAt(Theme::gradient(pill), {std::floor(x) + 0.5, 176.5})));
    QVERIFY(count(image, pill.adjusted(14, 4, -14, -4), Qt::white) > 3);
    // The light reaches 12 pixels below the pill, 4 above it and 8 to its sides.
    const QRect lit = difference(bare, image);
    QVERIFY(qAbs(lit.bottom() + 1 - 202) <= 1);
    QVERIFY(qAbs(lit.top() - 158) <= 1);
    QVERIFY(qAbs(lit.left() - (pill.left() - 8)) <= 1);
    const QColor below = at(bare, {140, 200});
    QVERIFY(isNear(at(image, {140, 200}), over(ui::paint::withAlpha(kIndigo, 14), below)));
    moveTo(&orb, kCentre);
    QVERIFY(isNear(at(rendered(orb), {140, 200}), over(ui::paint::withAlpha(kIndigo, 22), below)));
    moveTo(&orb, {1, 1});
  }
}

void TestDiskOrb::pillHangsOnTheBaseline() {
  DiskOrb orb;
  const QRectF around(80, 156, 120, 50);
  orb.setCenter(u"190 GB"_s, {}, u"Scan"_s);
  const QImage without = rendered(orb).copy(around.toRect());
  orb.setCenter(u"190 GB"_s, u"free of 500 GB"_s, u"Scan"_s);
  QCOMPARE(rendered(orb).copy(around.toRect()), without);
}

void TestDiskOrb::looksDontHangOnTheMetricSet() {
  DiskOrb orb;
  orb.setDisk(100, 50, 10);
  orb.setCenter(u"190 GB"_s, u"free of 500 GB"_s, u"Scan"_s);
  Theme::get().mac = true;
  const QImage mac = rendered(orb);
  Theme::get().mac = false;
  QCOMPARE(rendered(orb), mac);
  Theme::get().mac = true;
}

// ---- Use --------------------------------------------------------------------------------------------------------

void TestDiskOrb::hovers() {
  DiskOrb orb;
  const QImage rest = rendered(orb);
  moveTo(&orb, {228, 140});
  QVERIFY(orb.isHovered());
  QVERIFY(rendered(orb) != rest);
  moveTo(&orb, {228.01, 140});
  QVERIFY(!orb.isHovered());
  QCOMPARE(rendered(orb), rest);
  moveTo(&orb, kCentre);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&orb, &leave);
  QVERIFY(!orb.isHovered());
  QCOMPARE(rendered(orb), rest);
}

void TestDiskOrb::clicks() {
  DiskOrb orb;
  QSignalSpy clicked(&orb, &DiskOrb::clicked);
  const QPointF outside(10, 10);
  press(&orb, outside);
  release(&orb, kCentre);
  QCOMPARE(clicked.count(), 1);
  press(&orb, kCentre);
  QCOMPARE(clicked.count(), 1);
  release(&orb, outside);
  QCOMPARE(clicked.count(), 1);
  press(&orb, kCentre, Qt::RightButton);
  release(&orb, kCentre, Qt::RightButton);
  press(&orb, kCentre, Qt::MiddleButton);
  release(&orb, kCentre, Qt::MiddleButton);
  QCOMPARE(clicked.count(), 1);
  press(&orb, kCentre);
  release(&orb, kCentre);
  QCOMPARE(clicked.count(), 2);
}

void TestDiskOrb::takesThePressOnItsCore() {
  struct Page : QWidget {
    int presses = 0;
    void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
  } page;
  auto* orb = new DiskOrb(&page);
  page.resize(280, 280);
  page.show();
  press(orb, kCentre);
  release(orb, kCentre);
  QCOMPARE(page.presses, 0);
  press(orb, {10, 10});
  release(orb, {10, 10});
  QCOMPARE(page.presses, 1);
}

void TestDiskOrb::reactsWithoutAnAction() {
  DiskOrb orb;
  QSignalSpy clicked(&orb, &DiskOrb::clicked);
  orb.setCenter(u"190 GB"_s, u"free of 500 GB"_s, {});
  moveTo(&orb, kCentre);
  QVERIFY(orb.isHovered());
  press(&orb, kCentre);
  release(&orb, kCentre);
  QCOMPARE(clicked.count(), 1);
}

void TestDiskOrb::keys() {
  DiskOrb orb;
  QVERIFY(orb.focusPolicy() & Qt::TabFocus);
  QSignalSpy clicked(&orb, &DiskOrb::clicked);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) QTest::keyClick(&orb, key);
  QCOMPARE(clicked.count(), 3);
  QTest::keyClick(&orb, Qt::Key_A);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, {}, u" "_s, true);
  QApplication::sendEvent(&orb, &held);
  QCOMPARE(clicked.count(), 3);
}

void TestDiskOrb::ringIsForTheKeyboard() {
  DiskOrb orb;
  const QImage plain = rendered(orb);
  QFocusEvent byMouse(QEvent::FocusIn, Qt::MouseFocusReason);
  QApplication::sendEvent(&orb, &byMouse);
  QCOMPARE(rendered(orb), plain);
  QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&orb, &byTab);
  QVERIFY(isNear(at(rendered(orb), {140.5, 48.5}), Theme::get().accent));
  const QRect ring = difference(plain, rendered(orb));
  QVERIFY(ring.contains(kCore.toRect()));
  QVERIFY(kCore.toRect().adjusted(-5, -5, 5, 5).contains(ring));
}

void TestDiskOrb::isReadOut() {
  DiskOrb orb;
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&orb);
  QVERIFY(face);
  QCOMPARE(face->role(), QAccessible::Button);
  QCOMPARE(face->text(QAccessible::Value), QString());
  orb.setDisk(500'000'000'000, 310'000'000'000, 12'000'000'000);
  orb.setCenter(u"190 GB"_s, u"free of 500 GB"_s, {});
  QCOMPARE(face->text(QAccessible::Name), u"190 GB free of 500 GB"_s);
  orb.setCenter(u"190 GB"_s, u"free of 500 GB"_s, u"Review"_s);
  QCOMPARE(face->text(QAccessible::Name), u"Review"_s);
  QCOMPARE(face->text(QAccessible::Value), u"190 GB free of 500 GB, 62% used, 12.0 GB can be cleaned"_s);
  QCOMPARE(face->valueInterface()->currentValue().toDouble(), 0.62);
  orb.setDisk(500'000'000'000, 310'000'000'000, 0);
  QCOMPARE(face->text(QAccessible::Value), u"190 GB free of 500 GB, 62% used"_s);
  QSignalSpy clicked(&orb, &DiskOrb::clicked);
  face->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCOMPARE(clicked.count(), 1);
  QVERIFY(face->state().focusable);
}

int main(int argc, char** argv) { return uitest::run<TestDiskOrb>(argc, argv); }

#include "tst_DiskOrb.moc"
