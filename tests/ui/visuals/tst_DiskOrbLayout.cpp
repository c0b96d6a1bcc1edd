// The disk orb's geometry: figures in, angles and rectangles out, without a screen.

#include "ui/visuals/DiskOrbLayout.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
namespace orb = ui::orb;

namespace {
const QPointF kCentre(140, 140);
const QRectF kRing(12, 12, 256, 256);
const QRectF kCore(52, 52, 176, 176);
constexpr double kTinyShare = 1e-9;
} // namespace

class TestDiskOrbLayout : public QObject {
  Q_OBJECT

 private slots:
  void figuresAreClamped_data();
  void figuresAreClamped();
  void shares();
  void arcs_data();
  void arcs();
  void tinyAndEmptyArcs();
  void layout();
  void ticks();
  void hits();
  void values_data();
  void values();
  void texts();
  void pillGlow();
};

void TestDiskOrbLayout::figuresAreClamped_data() {
  QTest::addColumn<QList<qint64>>("given");
  QTest::addColumn<QList<qint64>>("kept");
  QTest::newRow("none") << QList<qint64>{0, 0, 0} << QList<qint64>{1, 0, 0};
  QTest::newRow("negative") << QList<qint64>{-5, -5, -5} << QList<qint64>{1, 0, 0};
  QTest::newRow("one") << QList<qint64>{1, 1, 1} << QList<qint64>{1, 1, 1};
  QTest::newRow("plain") << QList<qint64>{100, 60, 20} << QList<qint64>{100, 60, 20};
  QTest::newRow("too much") << QList<qint64>{100, 150, 500} << QList<qint64>{100, 100, 100};
  QTest::newRow("more cleanable than used") << QList<qint64>{100, 60, 70} << QList<qint64>{100, 60, 60};
  const qint64 most = std::numeric_limits<qint64>::max();
  QTest::newRow("most") << QList<qint64>{most, most, most} << QList<qint64>{most, most, most};
}

void TestDiskOrbLayout::figuresAreClamped() {
  QFETCH(QList<qint64>, given);
  QFETCH(QList<qint64>, kept);
  const orb::Disk disk = orb::disk(given[0], given[1], given[2]);
  QCOMPARE(disk.total, kept[0]);
  QCOMPARE(disk.used, kept[1]);
  QCOMPARE(disk.cleanable, kept[2]);
}

void TestDiskOrbLayout::shares() {
  const orb::Shares shares = orb::shares({.total = 200, .used = 100, .cleanable = 30});
  QCOMPARE(shares.fixed, 0.35);
  QCOMPARE(shares.clean, 0.15);
  QVERIFY(!shares.nearlyFull);
  QVERIFY(!orb::shares({.total = 100, .used = 90, .cleanable = 0}).nearlyFull);
  QVERIFY(orb::shares({.total = 1000, .used = 901, .cleanable = 900}).nearlyFull);
}

void TestDiskOrbLayout::arcs_data() {
  QTest::addColumn<double>("start");
  QTest::addColumn<double>("share");
  QTest::addColumn<int>("startAngle");
  QTest::addColumn<int>("spanAngle");
  // Sixteenths of a degree, truncated; 21.49 of them are the gap.
  QTest::newRow("whole") << 0.0 << 1.0 << 1440 << -5738;
  QTest::newRow("first half") << 0.0 << 0.5 << 1440 << -2858;
  QTest::newRow("second half") << 0.5 << 0.5 << -1440 << -2858;
  QTest::newRow("a tenth from a third") << 1 / 3.0 << 0.1 << -480 << -554;
  QTest::newRow("truncated start") << 0.3001 << 0.5 << -288 << -2858;
  QTest::newRow("hardly more than the gap") << 0.25 << 0.005 << 0 << -8;
  QTest::newRow("just above the least") << 0.25 << 0.0053 << 0 << -9;
}

void TestDiskOrbLayout::arcs() {
  QFETCH(double, start);
  QFETCH(double, share);
  const auto arc = orb::arc(start, share);
  QVERIFY(arc);
  QTEST(arc->start, "startAngle");
  QTEST(arc->span, "spanAngle");
}

void TestDiskOrbLayout::tinyAndEmptyArcs() {
  QCOMPARE(orb::arc(0, kTinyShare)->span, -8); // half a degree
  QVERIFY(!orb::arc(0, 0));
  QVERIFY(!orb::arc(0, -0.1));
}

void TestDiskOrbLayout::layout() {
  const orb::Layout layout = orb::layout({280, 280});
  QCOMPARE(layout.centre, kCentre);
  QCOMPARE(layout.ring, kRing);
  QCOMPARE(layout.core, kCore);
}

void TestDiskOrbLayout::ticks() {
  const QList<QLineF> ticks = orb::layout({280, 280}).ticks;
  QCOMPARE(ticks.size(), 60);
  for (int index = 0; index < 60; ++index) {
    QCOMPARE(QLineF(kCentre, ticks[index].p1()).length(), 112.0);
    QCOMPARE(QLineF(kCentre, ticks[index].p2()).length(), index % 5 == 0 ? 104.0 : 108.0);
    QVERIFY(qAbs(QLineF(kCentre, ticks[index].p1()).angleTo(QLineF(kCentre, ticks[(index + 1) % 60].p1())) - 354) <
            1e-6);
  }
  QCOMPARE(ticks[0], QLineF(252, 140, 244, 140));
}

void TestDiskOrbLayout::hits() {
  const orb::Layout layout = orb::layout({280, 280});
  QVERIFY(orb::isOnCore(layout, kCentre));
  QVERIFY(orb::isOnCore(layout, {228, 140}));
  QVERIFY(orb::isOnCore(layout, {140, 52}));
  QVERIFY(!orb::isOnCore(layout, {228.01, 140}));
  QVERIFY(!orb::isOnCore(layout, {140, 51.99}));
  QVERIFY(!orb::isOnCore(layout, {60, 60})); // in the square, not in the circle
}

void TestDiskOrbLayout::values_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QString>("number");
  QTest::addColumn<QString>("unit");
  QTest::newRow("with a unit") << u"12.4 GB"_s << u"12.4"_s << u"GB"_s;
  QTest::newRow("without") << u"1234"_s << u"1234"_s << QString();
  QTest::newRow("the last space counts") << u"1 234 MB"_s << u"1 234"_s << u"MB"_s;
  QTest::newRow("one that keeps the line together") << u"1\u202f234\u00a0Mo"_s << u"1\u202f234"_s << u"Mo"_s;
  QTest::newRow("one at the start doesn't") << u" GB"_s << u" GB"_s << QString();
  QTest::newRow("one at the start, and another") << u" 5 GB"_s << u" 5"_s << u"GB"_s;
  QTest::newRow("one at the end") << u"5 "_s << u"5"_s << QString();
  QTest::newRow("nothing") << QString() << QString() << QString();
}

void TestDiskOrbLayout::values() {
  QFETCH(QString, text);
  const orb::Value value = orb::value(text);
  QTEST(value.number, "number");
  QTEST(value.unit, "unit");
}

void TestDiskOrbLayout::texts() {
  const orb::TextLayout both = orb::textLayout(kCore, {.number = 80, .unit = 21, .action = 50});
  QCOMPARE(both.number, QPointF(140 - 52, 128)); // 80 + 3 + 21 around the axis
  QCOMPARE(both.unit, QPointF(140 - 52 + 83, 128));
  QCOMPARE(both.caption, QRectF(62, 136, 156, 16));
  QCOMPARE(both.pill, QRectF(140 - 43, 162, 86, 28));
  const orb::TextLayout alone = orb::textLayout(kCore, {.number = 80, .unit = 0, .action = 50});
  QCOMPARE(alone.number, QPointF(100, 128)); // no gap either
  QCOMPARE(alone.pill, both.pill);
}

void TestDiskOrbLayout::pillGlow() {
  const QList<orb::GlowLayer> layers = orb::pillGlow({100, 200, 80, 28});
  const QRectF rects[] = {{92, 196, 96, 44}, {94, 198, 92, 40}, {96, 200, 88, 36}, {98, 202, 84, 32}};
  const double radii[] = {22, 20, 18, 16};
  QCOMPARE(layers.size(), 4);
  for (int index = 0; index < 4; ++index) {
    QCOMPARE(layers[index].rect, rects[index]);
    QCOMPARE(layers[index].radius, radii[index]);
  }
}

QTEST_APPLESS_MAIN(TestDiskOrbLayout)

#include "tst_DiskOrbLayout.moc"
