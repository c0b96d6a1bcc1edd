#include "ui/visuals/TreemapLayout.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <numeric>

using ui::TileText;
using ui::treemapLayout;
using ui::treemapTile;

namespace {

using Rects = QList<QRectF>;

bool isNear(double a, double b) { return std::abs(a - b) < 1e-9; }

bool isNear(const QRectF& a, const QRectF& b) {
  return isNear(a.x(), b.x()) && isNear(a.y(), b.y()) && isNear(a.width(), b.width()) && isNear(a.height(), b.height());
}

bool isNear(const Rects& a, const Rects& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const QRectF& one, const QRectF& other) { return isNear(one, other); });
}

/// Sizes as a home folder has them, largest first: a few large ones and a long tail.
QList<qint64> randomSizes(QRandomGenerator* random) {
  QList<qint64> sizes(random->bounded(1, 25));
  for (qint64& size : sizes) size = qint64(std::pow(10.0, random->bounded(8.0) + 3));
  std::sort(sizes.begin(), sizes.end(), std::greater<>());
  return sizes;
}

double area(const QRectF& rect) { return rect.width() * rect.height(); }

} // namespace

class TestTreemapLayout : public QObject {
  Q_OBJECT

 private slots:
  void knownMap();
  void nothingToLayOut();
  void emptySizesGetNothing();
  void oneFillsTheMap();
  void twoEqualInASquare();
  void twoEqualAreHalvesOfAnySquare();
  void firstRowAlongTheShorterSide();
  void rowGrowsOnEqualRatios();
  void tiniestStaysInside();
  void fillsTheMapInProportion();

  void tilePieces();
  void tileRadius();
  void tileTooSmallToPaint();
  void tileTick();
  void tileWords_data();
  void tileWords();
  void ringLiesInTheGap();

  void hitTest();
  void beyondGoesByGeometry();
  void beyondStaysAtTheEdge();
  void beyondSkipsEmptyTiles();
  void beyondReachesEveryTile();
};

// The example with which the algorithm was published.
void TestTreemapLayout::knownMap() {
  const Rects rects = treemapLayout({6, 6, 4, 3, 2, 2, 1}, {6, 4});
  const double strip = 7 / 3.0;
  const double rest = 5 / 3.0;
  QVERIFY(isNear(rects, {QRectF(0, 0, 3, 2), QRectF(0, 2, 3, 2), QRectF(3, 0, 12 / 7.0, strip),
                         QRectF(3 + 12 / 7.0, 0, 9 / 7.0, strip), QRectF(3, strip, 1.2, rest),
                         QRectF(4.2, strip, 1.2, rest), QRectF(5.4, strip, 0.6, rest)}));
}

void TestTreemapLayout::nothingToLayOut() {
  QVERIFY(treemapLayout({}, {300, 200}).isEmpty());
  QCOMPARE(treemapLayout({0, 0, 0}, {300, 200}), Rects(3));
  QCOMPARE(treemapLayout({5, -5}, {300, 200}), Rects(2));
  QCOMPARE(treemapLayout({3, 2}, {0.9, 200}), Rects(2));
  QVERIFY(isNear(treemapLayout({3, 2}, {1, 200}), {QRectF(0, 0, 1, 120), QRectF(0, 120, 1, 80)}));
  QCOMPARE(treemapLayout({3, 2}, {300, 0}), Rects(2));
}

void TestTreemapLayout::emptySizesGetNothing() {
  QCOMPARE(treemapLayout({7, 0, 0}, {300, 200}), Rects({QRectF(0, 0, 300, 200), QRectF(), QRectF()}));
}

void TestTreemapLayout::oneFillsTheMap() {
  QCOMPARE(treemapLayout({1}, {317, 200}), Rects({QRectF(0, 0, 317, 200)}));
  QCOMPARE(treemapTile({0, 0, 317, 200}, false).body, QRectF(2, 2, 313, 196));
}

// Alone the first has the ratio 2, and so have both in one row: on equal ratios the row grows. A row of a square is a
// column at the left, in which the first stands above the second.
void TestTreemapLayout::twoEqualInASquare() {
  QVERIFY(isNear(treemapLayout({8, 8}, {100, 100}), {QRectF(0, 0, 100, 50), QRectF(0, 50, 100, 50)}));
}

// In other squares rounding may keep the second out of the row; then it stands beside the first. Halves they are
// always, with the first in the corner.
void TestTreemapLayout::twoEqualAreHalvesOfAnySquare() {
  for (int side = 1; side <= 500; ++side)
    for (const qint64 size : {1, 7, 12345}) {
      const double half = side / 2.0;
      const double whole = side;
      const Rects rects = treemapLayout({size, size}, QSizeF(whole, whole));
      const Rects stacked = {QRectF(0, 0, whole, half), QRectF(0, half, whole, half)};
      const Rects abreast = {QRectF(0, 0, half, whole), QRectF(half, 0, half, whole)};
      QVERIFY2(isNear(rects, stacked) || isNear(rects, abreast), qPrintable(QString::number(side)));
    }
}

void TestTreemapLayout::firstRowAlongTheShorterSide() {
  QVERIFY(isNear(treemapLayout({2, 1}, {300, 100}), {QRectF(0, 0, 200, 100), QRectF(200, 0, 100, 100)}));
  QVERIFY(isNear(treemapLayout({2, 1}, {100, 300}), {QRectF(0, 0, 100, 200), QRectF(0, 200, 100, 100)}));
}

void TestTreemapLayout::rowGrowsOnEqualRatios() {
  QVERIFY(isNear(treemapLayout({1, 1, 1, 1}, {400, 200}), {QRectF(0, 0, 200, 100), QRectF(0, 100, 200, 100),
                                                           QRectF(200, 0, 200, 100), QRectF(200, 100, 200, 100)}));
}

void TestTreemapLayout::tiniestStaysInside() {
  for (const QList<qint64>& sizes : {QList<qint64>{1'000'000'000'000'000'000, 1}, {9'000'000'000'000'000'000, 3, 1, 1}})
    for (const QRectF& rect : treemapLayout(sizes, {613, 200})) {
      QVERIFY(std::isfinite(rect.width()) && std::isfinite(rect.height()));
      QVERIFY(QRectF(0, 0, 613, 200).adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(rect) || rect.isEmpty());
    }
}

void TestTreemapLayout::fillsTheMapInProportion() {
  QRandomGenerator random(5);
  for (int round = 0; round < 300; ++round) {
    const QList<qint64> sizes = randomSizes(&random);
    const QSizeF map(random.bounded(40, 1200), random.bounded(40, 400));
    const Rects rects = treemapLayout(sizes, map);
    const double scale = map.width() * map.height() / std::accumulate(sizes.begin(), sizes.end(), 0.0);
    QCOMPARE(rects.size(), sizes.size());
    QCOMPARE(rects[0].topLeft(), QPointF(0, 0));
    for (qsizetype i = 0; i < rects.size(); ++i) {
      QVERIFY(std::abs(area(rects[i]) - double(sizes[i]) * scale) < 1e-6);
      QVERIFY(QRectF(QPointF(), map).adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(rects[i]));
      for (qsizetype k = 0; k < i; ++k) QVERIFY(area(rects[i] & rects[k]) < 1e-6);
    }
  }
}

void TestTreemapLayout::tilePieces() {
  const ui::TreemapTile plain = treemapTile({10, 20, 204, 104}, false);
  QCOMPARE(plain.body, QRectF(12, 22, 200, 100));
  QCOMPARE(plain.radius, 8.0);
  QCOMPARE(plain.text, QRectF(21, 29, 182, 86));
  QCOMPARE(plain.labelWidth, 182.0);
  QVERIFY(plain.tick.isNull());

  const ui::TreemapTile selected = treemapTile({10, 20, 204, 104}, true);
  QCOMPARE(selected.ring, QRectF(13.5, 23.5, 197, 97));
  QCOMPARE(selected.ringRadius, 7.0);
  QCOMPARE(selected.tick, QRectF(187, 29, 18, 18)); // around (196, 38)
  QCOMPARE(selected.check, QPolygonF({{191.8, 38.2}, {194.8, 41.2}, {200.4, 35.2}}));
  QCOMPARE(selected.labelWidth, 160.0);
}

void TestTreemapLayout::tileRadius() {
  QCOMPARE(treemapTile({0, 0, 28, 204}, false).radius, 8.0);
  QCOMPARE(treemapTile({0, 0, 25, 204}, false).radius, 7.0);
  QCOMPARE(treemapTile({0, 0, 204, 10}, false).radius, 2.0);
}

void TestTreemapLayout::tileTooSmallToPaint() {
  QVERIFY(treemapTile({0, 0, 4.9, 100}, false).body.isNull());
  QVERIFY(treemapTile({0, 0, 100, 4.9}, true).body.isNull());
  QVERIFY(treemapTile({}, true).body.isNull());
  QCOMPARE(treemapTile({0, 0, 5, 100}, false).body, QRectF(2, 2, 1, 96));
  QCOMPARE(ui::firstTileAt({QRectF(0, 0, 4, 100)}, {1, 50}), 0); // but it is hit
}

void TestTreemapLayout::tileTick() {
  QVERIFY(treemapTile({0, 0, 34, 100}, true).tick.isNull());
  QVERIFY(treemapTile({0, 0, 100, 34}, true).tick.isNull());
  QVERIFY(treemapTile({0, 0, 34, 34}, true).check.isEmpty());
  QCOMPARE(treemapTile({0, 0, 34, 34}, true).ring, QRectF(3.5, 3.5, 27, 27));
  QCOMPARE(treemapTile({0, 0, 34.5, 34.5}, true).tick, QRectF(7.5, 9, 18, 18));
}

void TestTreemapLayout::tileWords_data() {
  QTest::addColumn<QSizeF>("body");
  QTest::addColumn<TileText>("words");
  QTest::newRow("both") << QSizeF(96.5, 52.5) << TileText::LabelAndDetail;
  QTest::newRow("not wide enough for both") << QSizeF(96, 52.5) << TileText::Detail;
  QTest::newRow("not high enough for both") << QSizeF(96.5, 52) << TileText::Detail;
  QTest::newRow("detail") << QSizeF(56.5, 30.5) << TileText::Detail;
  QTest::newRow("not wide enough") << QSizeF(56, 200) << TileText::None;
  QTest::newRow("not high enough") << QSizeF(200, 30) << TileText::None;
}

void TestTreemapLayout::tileWords() {
  QFETCH(QSizeF, body);
  QFETCH(TileText, words);
  QCOMPARE(treemapTile({QPointF(), body + QSizeF(4, 4)}, false).words, words);
}

void TestTreemapLayout::ringLiesInTheGap() {
  QCOMPARE(ui::treemapRing({10, 20, 204, 104}).rect, QRectF(11, 21, 202, 102)); // 2 wide: it ends where the gap does
  QCOMPARE(ui::treemapRing({10, 20, 204, 104}).radius, 9.0);
  QCOMPARE(ui::treemapRing({10, 20, 2, 104}).rect, QRectF(9, 21, 4, 102));
  QCOMPARE(ui::treemapRing({}).rect.size(), QSizeF(4, 4));
}

void TestTreemapLayout::hitTest() {
  const Rects rects = {QRectF(0, 0, 100, 100), QRectF(100, 0, 100, 100), QRectF()};
  QCOMPARE(ui::firstTileAt(rects, {1, 50}), 0); // in the gap, which belongs to the tile
  QCOMPARE(ui::firstTileAt(rects, {150, 50}), 1);
  QCOMPARE(ui::firstTileAt(rects, {250, 50}), -1);
  QCOMPARE(ui::firstTileAt({}, {0, 0}), -1);
  QCOMPARE(ui::lastTileAt(rects, {1, 50}), 0);
  QCOMPARE(ui::lastTileAt(rects, {250, 50}), -1);
  // On the line between them.
  QCOMPARE(ui::firstTileAt(rects, {100, 50}), 0);
  QCOMPARE(ui::lastTileAt(rects, {100, 50}), 1);
}

// A large tile, and three small ones over each other at its right.
static const Rects kMap = {QRectF(0, 0, 200, 120), QRectF(200, 0, 80, 30), QRectF(200, 30, 80, 50),
                           QRectF(200, 80, 80, 40)};

void TestTreemapLayout::beyondGoesByGeometry() {
  QCOMPARE(ui::tileBeyond(kMap, 0, Qt::RightEdge), 2); // in line with its middle
  for (const int small : {1, 2, 3}) QCOMPARE(ui::tileBeyond(kMap, small, Qt::LeftEdge), 0);
  QCOMPARE(ui::tileBeyond(kMap, 1, Qt::BottomEdge), 2);
  QCOMPARE(ui::tileBeyond(kMap, 2, Qt::BottomEdge), 3);
  QCOMPARE(ui::tileBeyond(kMap, 3, Qt::TopEdge), 2);
  QCOMPARE(ui::tileBeyond(kMap, 2, Qt::TopEdge), 1);
  // The nearest of those in line, whatever their order; the first of two that are as near.
  QCOMPARE(ui::tileBeyond({QRectF(0, 0, 10, 10), QRectF(20, 0, 10, 10), QRectF(10, 0, 10, 10)}, 0, Qt::RightEdge), 2);
  QCOMPARE(ui::tileBeyond({QRectF(0, 0, 10, 10), QRectF(10, 0, 10, 5), QRectF(10, 5, 10, 5)}, 0, Qt::RightEdge), 1);
}

void TestTreemapLayout::beyondStaysAtTheEdge() {
  QCOMPARE(ui::tileBeyond(kMap, 0, Qt::LeftEdge), 0);
  QCOMPARE(ui::tileBeyond(kMap, 0, Qt::TopEdge), 0);
  QCOMPARE(ui::tileBeyond(kMap, 0, Qt::BottomEdge), 0);
  QCOMPARE(ui::tileBeyond(kMap, 2, Qt::RightEdge), 2);
}

void TestTreemapLayout::beyondSkipsEmptyTiles() {
  const Rects rects = {QRectF(10, 0, 100, 100), QRectF(), QRectF()};
  for (const Qt::Edge edge : {Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge, Qt::BottomEdge})
    QCOMPARE(ui::tileBeyond(rects, 0, edge), 0);
}

void TestTreemapLayout::beyondReachesEveryTile() {
  QRandomGenerator random(9);
  for (int round = 0; round < 300; ++round) {
    const Rects rects = treemapLayout(randomSizes(&random), QSizeF(random.bounded(200, 1200), 200));
    QList<int> reached = {0};
    for (qsizetype next = 0; next < reached.size(); ++next)
      for (const Qt::Edge edge : {Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge, Qt::BottomEdge}) {
        const int tile = ui::tileBeyond(rects, reached[next], edge);
        if (!reached.contains(tile)) reached << tile;
      }
    QCOMPARE(reached.size(), rects.size());
  }
}

QTEST_APPLESS_MAIN(TestTreemapLayout)

#include "tst_TreemapLayout.moc"
