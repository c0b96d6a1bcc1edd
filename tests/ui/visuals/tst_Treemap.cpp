// The map of sizes: where its tiles lie, and what the mouse does to them.
#include "TreemapTest.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace treemaptest;
using pixels::isBlank;
using pixels::rendered;
using ui::Treemap;

class TestTreemap : public TreemapTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void sizes();
  void emptyMap();
  void sizesOfNothing();
  void largestFirst();
  void only24();
  void oneTile();
  void resizing();

  void clickTellsTheKey();
  void anyButton();
  void gapsBelongToTheirTiles();
  void pressChangesNothing();
  void receiverMaySetItems();
  void hover();
  void tipShowsNamesAsTheyAre();
};

void TestTreemap::sizes() {
  const Treemap map;
  QCOMPARE(map.minimumHeight(), 200);
  QCOMPARE(map.maximumHeight(), 200);
  QVERIFY(map.hasMouseTracking());
}

void TestTreemap::emptyMap() {
  Treemap map;
  map.resize(400, 200);
  QSignalSpy toggled(&map, &Treemap::toggled);
  map.setItems({});
  QVERIFY(map.rects().isEmpty());
  QVERIFY(isBlank(rendered(map)));
  focus(map, Qt::TabFocusReason);
  QVERIFY(isBlank(rendered(map)));
  QTest::mouseClick(&map, Qt::LeftButton, {}, {50, 50});
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Right, Qt::Key_Home, Qt::Key_End})
    QTest::keyClick(&map, key);
  QVERIFY(toggled.isEmpty());
}

void TestTreemap::sizesOfNothing() {
  Treemap map;
  map.resize(400, 200);
  QSignalSpy toggled(&map, &Treemap::toggled);
  QSignalSpy opened(&map, &Treemap::opened);
  map.setItems({{u"a"_s, u"A"_s, u"0 KB"_s, 0, kRed}, {u"b"_s, u"B"_s, u"0 KB"_s, 0, kRed}});
  map.setSelected({u"a"_s});
  QCOMPARE(map.rects(), QList<QRectF>(2));
  QVERIFY(isBlank(rendered(map)));
  QTest::mouseClick(&map, Qt::LeftButton, {}, {0, 0});
  focus(map, Qt::TabFocusReason);
  for (const Qt::Key key : {Qt::Key_End, Qt::Key_Space, Qt::Key_Return}) QTest::keyClick(&map, key);
  QVERIFY(isBlank(rendered(map))); // no ring around nothing
  QVERIFY(toggled.isEmpty() && opened.isEmpty());
  QVERIFY(QAccessible::queryAccessibleInterface(&map)->child(0)->state().invisible);
}

void TestTreemap::tipShowsNamesAsTheyAre() {
  Treemap map;
  map.resize(400, 200);
  map.setItems({{u"a"_s, u"<b>bold</b>.mov"_s, u"3 GB"_s, 7, kRed}});
  move(map, {50, 50});
  QVERIFY(map.toolTip().contains(u"&lt;b&gt;bold&lt;/b&gt;.mov"_s));
}

void TestTreemap::largestFirst() {
  Treemap map;
  map.resize(300, 200);
  map.setItems({{u"small"_s, u""_s, u""_s, 1, kRed}, {u"large"_s, u""_s, u""_s, 2, kBlue}});
  QCOMPARE(map.rects(), QList<QRectF>({QRectF(0, 0, 200, 200), QRectF(200, 0, 100, 200)}));
  QSignalSpy toggled(&map, &Treemap::toggled);
  QTest::mouseClick(&map, Qt::LeftButton, {}, {20, 20});
  QCOMPARE(toggled[0][0].toString(), u"large"_s);
}

void TestTreemap::only24() {
  Treemap map;
  map.resize(400, 200);
  QList<Treemap::Item> items = many(25);
  std::reverse(items.begin(), items.end());
  map.setItems(items);
  QCOMPARE(map.itemCount(), 24);
  QCOMPARE(map.rects().size(), 24);
  double area = 0;
  for (const QRectF& rect : map.rects()) area += rect.width() * rect.height();
  QVERIFY(qAbs(area - 400 * 200) < 1e-6); // the rest fill the whole map
  for (int i = 0; i < 24; ++i) QCOMPARE(map.itemAt(i).name, u"File %1"_s.arg(i));
  map.setItems(many(24));
  QCOMPARE(map.itemCount(), 24);
}

void TestTreemap::oneTile() {
  Treemap map;
  map.resize(100, 200);
  map.setItems({{u"a"_s, u""_s, u""_s, 7, kRed}});
  QCOMPARE(map.rects(), QList<QRectF>({QRectF(0, 0, 100, 200)}));
  const QImage image = rendered(map);
  for (const QPoint outside : {QPoint(1, 100), QPoint(98, 100), QPoint(50, 1), QPoint(50, 198)})
    QCOMPARE(image.pixelColor(outside).alpha(), 0);
  for (const QPoint inside : {QPoint(2, 100), QPoint(97, 100), QPoint(50, 2), QPoint(50, 197)})
    QVERIFY(image.pixelColor(inside).alpha() > 230);
}

void TestTreemap::resizing() {
  Treemap map;
  map.resize(400, 200);
  map.setItems({{u"a"_s, u""_s, u""_s, 7, kRed}});
  map.show();
  QVERIFY(QTest::qWaitForWindowExposed(&map));
  map.resize(250, 200);
  QTRY_COMPARE(map.rects(), QList<QRectF>({QRectF(0, 0, 250, 200)}));
}

void TestTreemap::clickTellsTheKey() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  QSignalSpy toggled(&map, &Treemap::toggled);
  for (const QPoint at : {QPoint(50, 50), QPoint(50, 150), QPoint(250, 50), QPoint(250, 150)})
    QTest::mousePress(&map, Qt::LeftButton, {}, at);
  QCOMPARE(toggled.count(), 4);
  for (int i = 0; i < 4; ++i) QCOMPARE(toggled[i][0].toString(), four()[i].key);
}

void TestTreemap::anyButton() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  QSignalSpy toggled(&map, &Treemap::toggled);
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
    QTest::mousePress(&map, button, {}, {50, 50});
  QCOMPARE(toggled.count(), 3);
}

void TestTreemap::gapsBelongToTheirTiles() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  QSignalSpy toggled(&map, &Treemap::toggled);
  QTest::mousePress(&map, Qt::LeftButton, {}, {199, 50});
  QTest::mousePress(&map, Qt::LeftButton, {}, {201, 50});
  QTest::mousePress(&map, Qt::LeftButton, {}, {200, 50}); // on the line: the first
  QCOMPARE(toggled.count(), 3);
  QCOMPARE(toggled[0][0].toString(), u"a"_s);
  QCOMPARE(toggled[1][0].toString(), u"c"_s);
  QCOMPARE(toggled[2][0].toString(), u"a"_s);
}

void TestTreemap::pressChangesNothing() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  const QImage before = rendered(map);
  QTest::mousePress(&map, Qt::LeftButton, {}, {50, 50});
  QCOMPARE(rendered(map), before);
  QVERIFY(!map.itemAt(0).checked);
}

void TestTreemap::receiverMaySetItems() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  QString told;
  connect(&map, &Treemap::toggled, &map, [&](const QString& key) {
    map.setItems({});
    told = key;
  });
  QTest::mousePress(&map, Qt::LeftButton, {}, {250, 150});
  QCOMPARE(told, u"d"_s);
  QCOMPARE(map.itemCount(), 0);
}

void TestTreemap::hover() {
  Treemap map;
  map.resize(400, 200);
  QList<Treemap::Item> items = four();
  items[2].label = u"Film.mov"_s;
  items[2].detail = u"3 GB"_s;
  map.setItems(items);
  move(map, {250, 50});
  QCOMPARE(map.toolTip(), u"Film.mov · 3 GB"_s);
  leave(map);
  QCOMPARE(map.toolTip(), u"Film.mov · 3 GB"_s);
  move(map, {200, 50}); // on the line: the last
  QCOMPARE(map.toolTip(), u"Film.mov · 3 GB"_s);
  move(map, {50, 50});
  QCOMPARE(map.toolTip(), u" · "_s);
  move(map, {500, 50});
  QCOMPARE(map.toolTip(), QString());
  move(map, {250, 50});
  map.setItems({});
  move(map, {250, 51});
  QCOMPARE(map.toolTip(), QString());
}

int main(int argc, char** argv) { return uitest::run<TestTreemap>(argc, argv); }

#include "tst_Treemap.moc"
