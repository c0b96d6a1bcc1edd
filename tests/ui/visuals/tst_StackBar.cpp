#include "ui/visuals/StackBar.h"

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::StringLiterals;
using pixels::faded;
using pixels::isNear;
using pixels::over;
using pixels::rendered;
using pixels::setLook;
using ui::StackBar;

namespace {

constexpr QColor kRed(200, 40, 60);
constexpr QColor kBlue(30, 90, 220);
constexpr QColor kGreen(20, 160, 80);

/// A tool tip is asked for at this place of the bar; whether the bar took the event.
bool askForTip(StackBar& bar, const QPoint& at) {
  QHelpEvent event(QEvent::ToolTip, at, bar.mapToGlobal(at));
  return QApplication::sendEvent(&bar, &event);
}

} // namespace

class TestStackBar : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }
  void cleanup();

  void widthsAndGaps();
  void smallestShareCanBeSeen();
  void emptySegmentsTakeNoRoom();
  void nothingIsScaledToFit();
  void heightDecidesOnGapAndRadius_data();
  void heightDecidesOnGapAndRadius();
  void hatching();
  void startsEmpty();
  void scaleIsAtLeastOne();
  void paintsTrackAndSegments();
  void paintsStripes();
  void cornersAreCut();
  void hugeSegmentsArePainted();
  void tipOfASegment();
  void noTipHidesTheOpenOne();
  void isReadOut();
};

void TestStackBar::cleanup() {
  QToolTip::hideText();
  QTRY_VERIFY(!QToolTip::isVisible());
}

void TestStackBar::widthsAndGaps() {
  const QList<QRectF> rects = ui::stackBarLayout({50, 25, 10}, 100, {200, 20});
  QCOMPARE(rects, QList<QRectF>({QRectF(0, 0, 100, 20), QRectF(102, 0, 50, 20), QRectF(154, 0, 20, 20)}));
  QVERIFY(ui::stackBarLayout({}, 100, {200, 20}).isEmpty());
  QCOMPARE(ui::stackBarLayout({1}, 3, {200, 20}).first().width(), 200 / 3.0);
}

void TestStackBar::smallestShareCanBeSeen() {
  const QList<QRectF> rects = ui::stackBarLayout({1, 1}, 1'000'000'000'000, {200, 6});
  QCOMPARE(rects, QList<QRectF>({QRectF(0, 0, 2, 6), QRectF(3, 0, 2, 6)}));
}

void TestStackBar::emptySegmentsTakeNoRoom() {
  const QList<QRectF> rects = ui::stackBarLayout({10, 0, -40, 10}, 100, {100, 22});
  QCOMPARE(rects,
           QList<QRectF>({QRectF(0, 0, 10, 22), QRectF(12, 0, 0, 22), QRectF(12, 0, 0, 22), QRectF(12, 0, 10, 22)}));
}

void TestStackBar::nothingIsScaledToFit() {
  const QList<QRectF> rects = ui::stackBarLayout({60, 60}, 100, {100, 22});
  QCOMPARE(rects, QList<QRectF>({QRectF(0, 0, 60, 22), QRectF(62, 0, 60, 22)}));
}

void TestStackBar::heightDecidesOnGapAndRadius_data() {
  QTest::addColumn<int>("height");
  QTest::addColumn<double>("gap");
  QTest::addColumn<double>("radius");
  QTest::newRow("footer") << 6 << 1.0 << 3.0;
  QTest::newRow("highest pill") << 10 << 1.0 << 5.0;
  QTest::newRow("lowest bar") << 11 << 2.0 << 8.0;
  QTest::newRow("page") << 22 << 2.0 << 8.0;
}

void TestStackBar::heightDecidesOnGapAndRadius() {
  QFETCH(int, height);
  QFETCH(double, gap);
  QFETCH(double, radius);
  StackBar bar(height);
  bar.resize(100, height);
  bar.setSegments({{.bytes = 10, .colour = kRed}, {.bytes = 10, .colour = kBlue}}, 100);
  QCOMPARE(bar.layoutSegments()[1].left() - bar.layoutSegments()[0].right(), gap);
  QCOMPARE(bar.layoutSegments()[1].height(), double(height));
  QCOMPARE(ui::stackBarRadius(height), radius);
}

void TestStackBar::hatching() {
  const QList<QLineF> lines = ui::stackBarHatching({10, 0, 20, 12});
  QList<QLineF> wanted;
  for (const double foot : {-2, 6, 14, 22, 30, 38})
    wanted << QLineF(foot, 12, foot + 12, 0); // 46 is no longer below 42
  QCOMPARE(lines, wanted);
  QCOMPARE(ui::stackBarHatching({10.5, 0, 20, 12}).first(), QLineF(-1.5, 12, 10.5, 0)); // moves with its segment
}

void TestStackBar::startsEmpty() {
  StackBar bar(22);
  QCOMPARE(bar.minimumHeight(), 22);
  QCOMPARE(bar.maximumHeight(), 22);
  QCOMPARE(bar.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
  QVERIFY(bar.layoutSegments().isEmpty());
  bar.resize(100, 22);
  for (const bool dark : {true, false}) {
    setLook(dark);
    for (const int x : {20, 50, 80}) QVERIFY(isNear(rendered(bar).pixelColor(x, 11), Theme::get().track));
  }
}

void TestStackBar::scaleIsAtLeastOne() {
  StackBar bar(22);
  bar.resize(50, 22);
  const QList<StackBar::Segment> segments = {{.bytes = 3, .colour = kRed}, {.bytes = 1, .colour = kBlue}};
  for (const qint64 scale : {qint64(1), qint64(0), qint64(-7)}) {
    bar.setSegments(segments, scale);
    QCOMPARE(bar.layoutSegments(), QList<QRectF>({QRectF(0, 0, 150, 22), QRectF(152, 0, 50, 22)}));
  }
  bar.setSegments(segments, 2);
  QCOMPARE(bar.layoutSegments()[0].width(), 75.0);
  // The first overflows, and nothing is painted outside the bar.
  bar.setSegments(segments, 0);
  QImage image(100, 40, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  bar.render(&painter, {10, 10}, {}, {});
  painter.end();
  QCOMPARE(image.pixelColor(50, 20), kRed);
  QCOMPARE(image.pixelColor(61, 20).alpha(), 0);
  QCOMPARE(image.pixelColor(9, 20).alpha(), 0);
}

void TestStackBar::paintsTrackAndSegments() {
  StackBar bar(22);
  bar.resize(100, 22);
  bar.setSegments({{.bytes = 30, .colour = kRed},
                   {.bytes = 0, .colour = kGreen},
                   {.bytes = -5, .colour = kGreen},
                   {.bytes = 20, .colour = kBlue}},
                  100);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const QImage image = rendered(bar);
    QCOMPARE(image.pixelColor(29, 11), kRed);
    QVERIFY(isNear(image.pixelColor(30, 11), Theme::get().track)); // the gap of two
    QVERIFY(isNear(image.pixelColor(31, 11), Theme::get().track));
    QCOMPARE(image.pixelColor(32, 11), kBlue);
    QCOMPARE(image.pixelColor(51, 0), kBlue);
    QCOMPARE(image.pixelColor(51, 21), kBlue);
    QVERIFY(isNear(image.pixelColor(52, 11), Theme::get().track));
  }
}

void TestStackBar::paintsStripes() {
  StackBar bar(12);
  bar.resize(100, 12);
  bar.setSegments({{.bytes = 16, .colour = kGreen}, {.bytes = 50, .colour = kRed, .hatched = true}}, 100);
  const QImage image = rendered(bar);
  // The segment begins at 18: a line's foot is at 18 - 12 + 3 x 8 = 30, and half way up it is at 36.
  const QColor between = over(faded(kRed, 0.55), Theme::get().track);
  QVERIFY(isNear(image.pixelColor(35, 6), kRed));
  QVERIFY(isNear(image.pixelColor(43, 6), kRed));
  QVERIFY(isNear(image.pixelColor(39, 6), between));
  QVERIFY(isNear(image.pixelColor(47, 6), between));
  // They don't leave their segment.
  QCOMPARE(image.pixelColor(15, 6), kGreen);
  QVERIFY(isNear(image.pixelColor(17, 6), Theme::get().track));
  for (const int y : {0, 3, 6, 9, 11}) QVERIFY(isNear(image.pixelColor(68, y), Theme::get().track));
}

void TestStackBar::cornersAreCut() {
  for (const int height : {6, 22}) {
    StackBar bar(height);
    bar.resize(100, height);
    bar.setSegments({{.bytes = 1, .colour = kRed}}, 1);
    const QImage image = rendered(bar);
    for (const QPoint corner : {QPoint(0, 0), QPoint(99, 0), QPoint(0, height - 1), QPoint(99, height - 1)})
      QVERIFY(image.pixelColor(corner).alpha() < 40);
    QCOMPARE(image.pixelColor(10, 0), kRed);
    QVERIFY(image.pixelColor(0, height / 2).alpha() > 200);
  }
}

// A whole disk on a scale of one byte: only what is seen is painted, stripes too, in no time.
void TestStackBar::hugeSegmentsArePainted() {
  for (const bool hatched : {false, true}) {
    StackBar bar(12);
    bar.resize(100, 12);
    bar.setSegments({{.bytes = 4'000'000'000'000, .colour = kRed, .hatched = hatched},
                     {.bytes = 4'000'000'000'000, .colour = kBlue, .hatched = hatched}},
                    1);
    const QImage image = rendered(bar);
    // A line's foot is at -12 + 5 x 8 = 28, and half way up it is at 34.
    QVERIFY(isNear(image.pixelColor(33, 6), kRed));
    QVERIFY(isNear(image.pixelColor(37, 6), hatched ? over(faded(kRed, 0.55), Theme::get().track) : kRed));
    QVERIFY(image.pixelColor(0, 0).alpha() < 40); // still round
  }
}

void TestStackBar::tipOfASegment() {
  StackBar bar(22);
  bar.resize(100, 22);
  bar.setSegments({{.bytes = 30, .colour = kRed, .tip = u"Logs · 3 GB"_s},
                   {.bytes = 30, .colour = kBlue},
                   {.bytes = 30, .colour = kGreen, .tip = u"Trash · 3 GB"_s}},
                  100);
  bar.show();
  QVERIFY(QTest::qWaitForWindowExposed(&bar));
  QVERIFY(askForTip(bar, {10, 11}));
  QTRY_VERIFY(QToolTip::isVisible());
  QCOMPARE(QToolTip::text(), u"Logs · 3 GB"_s);
  QVERIFY(askForTip(bar, {70, 11}));
  QTRY_COMPARE(QToolTip::text(), u"Trash · 3 GB"_s);
}

void TestStackBar::noTipHidesTheOpenOne() {
  StackBar bar(22);
  bar.resize(100, 22);
  bar.setSegments({{.bytes = 30, .colour = kRed, .tip = u"Logs"_s}, {.bytes = 30, .colour = kBlue}}, 100);
  bar.show();
  QVERIFY(QTest::qWaitForWindowExposed(&bar));
  for (const QPoint nowhere : {QPoint(31, 11), QPoint(40, 11), QPoint(90, 11)}) { // a gap, no tip, beyond the last
    QVERIFY(askForTip(bar, {10, 11}));
    QTRY_VERIFY(QToolTip::isVisible());
    QVERIFY(askForTip(bar, nowhere));
    QTRY_VERIFY(!QToolTip::isVisible());
  }
}

void TestStackBar::isReadOut() {
  StackBar bar(22);
  bar.setAccessibleName(u"System Data"_s);
  bar.setSegments({{.bytes = 300, .colour = kRed, .tip = u"Logs"_s},
                   {.bytes = 125, .colour = kBlue},
                   {.bytes = 0, .colour = kGreen, .tip = u"Trash"_s},
                   {.bytes = 1, .colour = kGreen, .tip = u"Caches"_s}},
                  1000);
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&bar);
  QVERIFY(face);
  QCOMPARE(face->role(), QAccessible::ProgressBar);
  QCOMPARE(face->text(QAccessible::Name), u"System Data"_s);
  QCOMPARE(face->text(QAccessible::Value), u"Logs: 30%, 13%, Caches: <1%"_s);
  QCOMPARE(face->valueInterface()->currentValue().toDouble(), 0.426);
  bar.setSegments({{.bytes = 30, .colour = kRed}}, 10);
  QCOMPARE(face->valueInterface()->currentValue().toDouble(), 1.0);
}

int main(int argc, char** argv) { return uitest::run<TestStackBar>(argc, argv); }

#include "tst_StackBar.moc"
