// The map of sizes without a mouse: the keyboard goes from tile to tile, and a screen reader hears them.
#include "TreemapTest.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace treemaptest;
using pixels::rendered;
using pixels::setLook;
using ui::Treemap;

class TestTreemapKeys : public TreemapTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void arrowsGoByGeometry();
  void keysActivate();
  void keyboardPassesByWhatHasNoTile();
  void ringIsForTheKeyboard();
  void ringStaysWithItsKey();
  void keyboardTellsWhatHasNoText();
  void isReadOut();
  void focusIsReadOut();
};

void TestTreemapKeys::arrowsGoByGeometry() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  QVERIFY(map.focusPolicy() & Qt::TabFocus);
  struct Step {
    Qt::Key key;
    int tile;
  };
  for (const auto& [key, tile] : {Step{Qt::Key_Right, 2},
                                  {Qt::Key_Right, 2},
                                  {Qt::Key_Down, 3},
                                  {Qt::Key_Left, 1},
                                  {Qt::Key_Up, 0},
                                  {Qt::Key_Up, 0},
                                  {Qt::Key_End, 3},
                                  {Qt::Key_Home, 0}}) {
    QTest::keyClick(&map, key);
    for (int i = 0; i < 4; ++i) QCOMPARE(map.itemAt(i).current, i == tile);
  }
}

void TestTreemapKeys::keysActivate() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  QSignalSpy toggled(&map, &Treemap::toggled);
  QSignalSpy opened(&map, &Treemap::opened);
  QTest::keyClick(&map, Qt::Key_Down);
  QVERIFY(toggled.isEmpty());
  QTest::keyClick(&map, Qt::Key_Space);
  QCOMPARE(toggled.count(), 1);
  QCOMPARE(toggled.first()[0].toString(), u"b"_s);
  QVERIFY(opened.isEmpty());
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) QTest::keyClick(&map, key);
  QCOMPARE(opened.count(), 2);
  for (const QList<QVariant>& told : opened) QCOMPARE(told[0].toString(), u"b"_s);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
    QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&map, &held);
  }
  QCOMPARE(toggled.count(), 1);
  QCOMPARE(opened.count(), 2);
  QTest::mousePress(&map, Qt::LeftButton, {}, {250, 150}); // the keyboard goes on from there
  QTest::keyClick(&map, Qt::Key_Up);
  QTest::keyClick(&map, Qt::Key_Space);
  QCOMPARE(toggled[2][0].toString(), u"c"_s);
}

void TestTreemapKeys::keyboardPassesByWhatHasNoTile() {
  Treemap map;
  map.resize(400, 200);
  QList<Treemap::Item> items = four();
  items[2].bytes = 0;
  items[3].bytes = 0;
  map.setItems(items);
  QTest::keyClick(&map, Qt::Key_End);
  QVERIFY(map.itemAt(1).current);
  items[1].bytes = 0; // now the ring's own tile is gone
  map.setItems(items);
  QSignalSpy toggled(&map, &Treemap::toggled);
  QTest::keyClick(&map, Qt::Key_Space);
  QVERIFY(toggled.isEmpty());
  QTest::keyClick(&map, Qt::Key_Home);
  QTest::keyClick(&map, Qt::Key_Space);
  QCOMPARE(toggled.count(), 1);
  QCOMPARE(toggled[0][0].toString(), u"a"_s);
}

void TestTreemapKeys::ringIsForTheKeyboard() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  for (const bool dark : {true, false}) {
    setLook(dark);
    const QImage plain = rendered(map);
    focus(map, Qt::MouseFocusReason);
    QCOMPARE(rendered(map), plain);
    focus(map, Qt::TabFocusReason);
    QCOMPARE(rendered(map).pixelColor(0, 50), Theme::get().text);
    QCOMPARE(rendered(map).pixelColor(198, 50), Theme::get().text);
    QCOMPARE(rendered(map).pixelColor(201, 50).alpha(), 0);
    QTest::mousePress(&map, Qt::LeftButton, {}, {50, 50});
    QCOMPARE(rendered(map), plain);
  }
}

void TestTreemapKeys::ringStaysWithItsKey() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  QTest::keyClick(&map, Qt::Key_Right);
  QVERIFY(map.itemAt(2).current);
  QList<Treemap::Item> items = four();
  items[2].bytes = 900;
  map.setItems(items);
  QVERIFY(map.itemAt(0).current);
  QTest::keyClick(&map, Qt::Key_End);
  QVERIFY(map.itemAt(3).current);
  map.setItems({items[0], items[1]}); // its key is gone
  QVERIFY(map.itemAt(1).current);
  map.setItems({});
  map.setItems(items);
  QVERIFY(map.itemAt(0).current);
}

void TestTreemapKeys::keyboardTellsWhatHasNoText() {
  Treemap map;
  map.resize(200, 200);
  map.setItems({{u"a"_s, u"Large"_s, u"90 GB"_s, 90, kRed},
                {u"b"_s, u"Small"_s, u"9 GB"_s, 9, kRed},
                {u"c"_s, u"Smaller"_s, u"8 GB"_s, 8, kRed}});
  map.show();
  QVERIFY(QTest::qWaitForWindowExposed(&map));
  QTest::keyClick(&map, Qt::Key_Right);
  QTRY_VERIFY(QToolTip::isVisible());
  QCOMPARE(QToolTip::text(), map.itemAt(1).current ? u"Small · 9 GB"_s : u"Smaller · 8 GB"_s);
  QTest::keyClick(&map, Qt::Key_Left);
  QTRY_VERIFY(!QToolTip::isVisible());
}

void TestTreemapKeys::isReadOut() {
  Treemap map;
  map.resize(400, 200);
  map.setAccessibleName(u"Largest files"_s);
  QList<Treemap::Item> items = four();
  items[1].label = u"Film.mov"_s;
  items[1].detail = u"3 GB"_s;
  map.setItems(items);
  map.setSelected({u"b"_s});
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&map);
  QVERIFY(face);
  QCOMPARE(face->role(), QAccessible::List);
  QCOMPARE(face->text(QAccessible::Name), u"Largest files"_s);
  QCOMPARE(face->childCount(), 4);
  QAccessibleInterface* tile = face->child(1);
  QCOMPARE(tile->role(), QAccessible::ListItem);
  QCOMPARE(tile->text(QAccessible::Name), u"Film.mov"_s);
  QCOMPARE(tile->text(QAccessible::Value), u"3 GB"_s);
  QCOMPARE(tile->text(QAccessible::Description), u"3 GB"_s);
  QCOMPARE(tile->rect(), QRect(map.mapToGlobal(QPoint(0, 100)), QSize(200, 100)));
  QCOMPARE(face->indexOfChild(tile), 1);
  QVERIFY(tile->state().selectable && tile->state().selected && tile->state().checked);
  QVERIFY(face->child(0)->state().selectable && !face->child(0)->state().selected);
  QSignalSpy toggled(&map, &Treemap::toggled);
  face->child(3)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QCOMPARE(toggled.count(), 1);
  QCOMPARE(toggled[0][0].toString(), u"d"_s);
  map.setItems({items[0]});
  QCOMPARE(face->childCount(), 1);
}

void TestTreemapKeys::focusIsReadOut() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  map.show();
  map.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&map));
  map.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&map, Qt::Key_Down);
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&map);
  QCOMPARE(face->focusChild(), face->child(1));
  QVERIFY(face->child(1)->state().focused);
  QVERIFY(!face->child(0)->state().focused);
}

int main(int argc, char** argv) { return uitest::run<TestTreemapKeys>(argc, argv); }

#include "tst_Treemap_keys.moc"
