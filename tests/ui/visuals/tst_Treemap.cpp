#include "ui/visuals/Treemap.h"

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/paint.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QToolTip>

using namespace Qt::StringLiterals;
using pixels::difference;
using pixels::faded;
using pixels::isBlank;
using pixels::isNear;
using pixels::over;
using pixels::rendered;
using pixels::setLook;
using ui::Treemap;
using ui::paint::withAlpha;

namespace {

constexpr QColor kRed(190, 50, 60);
constexpr QColor kBlue(40, 90, 210);
constexpr QColor kGreen(30, 150, 90);

/// Four equal tiles in two columns of a map of 400 by 200: a over b at the left, c over d at the right.
QList<Treemap::Item> four() {
  return {{u"a"_s, u""_s, u""_s, 100, kRed},
          {u"b"_s, u""_s, u""_s, 100, kBlue},
          {u"c"_s, u""_s, u""_s, 100, kBlue},
          {u"d"_s, u""_s, u""_s, 100, kGreen}};
}

/// @p count items of which the first is the largest, by the name "0".
QList<Treemap::Item> many(int count) {
  QList<Treemap::Item> items;
  for (int i = 0; i < count; ++i)
    items << Treemap::Item{QString::number(i), u"File %1"_s.arg(i), u"%1 MB"_s.arg(100 - i), 100 - i, kBlue};
  return items;
}

void move(Treemap& map, const QPointF& to) {
  QMouseEvent event(QEvent::MouseMove, to, map.mapToGlobal(to), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&map, &event);
}

void leave(Treemap& map) {
  QEvent event(QEvent::Leave);
  QApplication::sendEvent(&map, &event);
}

void focus(Treemap& map, Qt::FocusReason reason) {
  QFocusEvent event(QEvent::FocusIn, reason);
  QApplication::sendEvent(&map, &event);
}

/// Of the upper left tile of four, at (150, 50), where no text is: the gradient goes from 1 to 0.92 of the opacity.
QColor bodyThere(const QColor& colour, double opacity) { return faded(colour, opacity * 0.9433); }

/// The layers of a glow from @p first, which are the outer ones, to @p last, laid over @p upon.
QColor glow(const QColor& colour, int first, int last, QColor upon) {
  for (int k = first; k >= last; --k) upon = over(faded(colour, (1 - k / 7.0) * (1 - k / 7.0) * 0.32), upon);
  return upon;
}

/// Whether what came upon the first picture is text in @p ink: where it differs most it covers a whole pixel, and is
/// ink there, no stronger and no fainter.
bool hasInk(const QImage& before, const QImage& after, const QColor& ink) {
  const auto distance = [&](const QPoint& at) {
    const QColor one = before.pixelColor(at);
    const QColor other = after.pixelColor(at);
    return qAbs(one.red() - other.red()) + qAbs(one.green() - other.green()) + qAbs(one.blue() - other.blue()) +
           qAbs(one.alpha() - other.alpha());
  };
  const QRect area = difference(before, after);
  if (area.isEmpty()) return false;
  QPoint most = area.topLeft();
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      if (distance({x, y}) > distance(most)) most = {x, y};
  return isNear(after.pixelColor(most), over(ink, before.pixelColor(most)));
}

} // namespace

class TestTreemap : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }
  void cleanup();

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
  void hoverSurvivesItems();
  void tipShowsNamesAsTheyAre();

  void paintsBodies();
  void paintsDimmed();
  void paintsHover();
  void hoverLooksAsIfAllWerePainted();
  void pictureFollowsTheScale();
  void liesOnWhatIsBelow();
  void paintsGlow();
  void paintsRingAndTick();
  void selectionOutlivesItems();
  void paintsNewLook();
  void textPlaces();
  void textStaysClearOfTheTick();
  void loneDetail();
  void detailStaysBesideTheTick();
  void textInk_data();
  void textInk();

  void arrowsGoByGeometry();
  void keysActivate();
  void keyboardPassesByWhatHasNoTile();
  void ringIsForTheKeyboard();
  void ringStaysWithItsKey();
  void keyboardTellsWhatHasNoText();
  void isReadOut();
  void focusIsReadOut();
};

void TestTreemap::cleanup() {
  QToolTip::hideText();
  QTRY_VERIFY(!QToolTip::isVisible());
}

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

void TestTreemap::keyboardPassesByWhatHasNoTile() {
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

void TestTreemap::hoverSurvivesItems() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  move(map, {250, 50});
  map.setItems({four()[0]}); // now it lies beyond the list
  QVERIFY(isNear(rendered(map).pixelColor(4, 100), faded(kRed, 0.98)));
  map.setItems(four());
  const QImage image = rendered(map);
  QVERIFY(isNear(image.pixelColor(350, 50), bodyThere(kBlue.lighter(115), 1)));
}

void TestTreemap::paintsBodies() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  for (const bool dark : {true, false}) {
    setLook(dark);
    const QImage image = rendered(map);
    QVERIFY(isNear(image.pixelColor(150, 50), bodyThere(kRed, 1)));
    QVERIFY(isNear(image.pixelColor(350, 150), bodyThere(kGreen, 1)));
    QVERIFY(isNear(image.pixelColor(10, 4), faded(kRed, 0.997)));
    QVERIFY(isNear(image.pixelColor(190, 95), faded(kRed, 0.923)));
    for (const QPoint gap : {QPoint(198, 50), QPoint(201, 50), QPoint(50, 98), QPoint(50, 101), QPoint(0, 50)})
      QCOMPARE(image.pixelColor(gap).alpha(), 0);
    QVERIFY(image.pixelColor(3, 3).alpha() < 30); // the corner is round
  }
}

void TestTreemap::paintsDimmed() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  map.setSelected({u"d"_s});
  QVERIFY(isNear(rendered(map).pixelColor(150, 50), bodyThere(kRed, 0.45)));
  // The glow goes on below its tile, which isn't quite opaque.
  QVERIFY(isNear(rendered(map).pixelColor(350, 150), over(bodyThere(kGreen, 1), glow(kGreen, 6, 1, Qt::transparent))));
  map.setSelected({u"not shown"_s});
  QVERIFY(isNear(rendered(map).pixelColor(350, 150), bodyThere(kGreen, 0.45)));
  map.setSelected({});
  QVERIFY(isNear(rendered(map).pixelColor(150, 50), bodyThere(kRed, 1)));
}

void TestTreemap::paintsHover() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  move(map, {50, 50});
  QVERIFY(isNear(rendered(map).pixelColor(150, 50), bodyThere(kRed.lighter(115), 1)));
  QVERIFY(isNear(rendered(map).pixelColor(350, 150), bodyThere(kGreen, 1)));
  map.setSelected({u"b"_s});
  QVERIFY(isNear(rendered(map).pixelColor(150, 50), bodyThere(kRed.lighter(115), 0.45)));
  leave(map);
  map.setSelected({});
  QVERIFY(isNear(rendered(map).pixelColor(150, 50), bodyThere(kRed, 1)));
}

// A hovered tile is painted anew between the glows of its neighbours, and looks as if all had been.
void TestTreemap::hoverLooksAsIfAllWerePainted() {
  for (const double ratio : {1.0, 1.5, 2.0}) {
    Treemap map;
    map.resize(403, 200);
    map.setItems(many(24));
    const QSet<QString> selected = {u"1"_s, u"6"_s, u"7"_s, u"20"_s};
    map.setSelected(selected);
    const QImage plain = rendered(map, ratio);
    for (int i = 0; i < 24; ++i) {
      move(map, map.rects()[i].center());
      const QImage partly = rendered(map, ratio);
      map.setSelected(selected); // paints all
      QCOMPARE(partly, rendered(map, ratio));
      QVERIFY(partly != plain);
    }
    leave(map);
    QCOMPARE(rendered(map, ratio), plain);
  }
}

void TestTreemap::pictureFollowsTheScale() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  for (const int ratio : {1, 4, 2}) { // a gap of 4 between the bodies, in whole pixels
    const QImage image = rendered(map, ratio);
    QCOMPARE(image.pixelColor(198 * ratio, 50 * ratio).alpha(), 0);
    QVERIFY(image.pixelColor(198 * ratio - 1, 50 * ratio).alpha() > 230);
    QCOMPARE(image.pixelColor(202 * ratio - 1, 50 * ratio).alpha(), 0);
    QVERIFY(image.pixelColor(202 * ratio, 50 * ratio).alpha() > 230);
  }
}

void TestTreemap::liesOnWhatIsBelow() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  map.setSelected({u"d"_s});
  QImage image(400, 200, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::yellow);
  map.render(&image, {}, {}, {});
  QCOMPARE(image.pixelColor(200, 20), QColor(Qt::yellow)); // a gap
  QVERIFY(isNear(image.pixelColor(150, 50), over(bodyThere(kRed, 0.45), Qt::yellow)));
}

void TestTreemap::paintsGlow() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  map.setSelected({u"a"_s});
  const QImage image = rendered(map);
  // The body ends at 198; layer k ends k beyond it, at the bottom one more and at the top one less.
  QVERIFY(isNear(image.pixelColor(198, 50), glow(kRed, 6, 1, Qt::transparent)));
  QVERIFY(isNear(image.pixelColor(199, 50), glow(kRed, 6, 2, Qt::transparent)));
  QVERIFY(isNear(image.pixelColor(100, 99), glow(kRed, 6, 1, Qt::transparent)));
  QVERIFY(isNear(image.pixelColor(100, 1), glow(kRed, 6, 2, Qt::transparent)));
  QVERIFY(image.pixelColor(199, 50).alpha() < image.pixelColor(198, 50).alpha());
  // It lies over the neighbours, though they come later in the list.
  const QColor body = image.pixelColor(206, 50);
  QVERIFY(isNear(image.pixelColor(202, 50), glow(kRed, 6, 5, body)));
  QVERIFY(image.pixelColor(202, 50).red() > body.red());
  QVERIFY(isBlank(image.copy(198, 110, 4, 80))); // and around no other tile
}

void TestTreemap::paintsRingAndTick() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  map.setSelected({u"a"_s});
  const QImage image = rendered(map);
  const QColor ring = over(QColor(255, 255, 255, 210), faded(kRed, 0.97));
  QVERIFY(isNear(image.pixelColor(3, 50), ring)); // its middle is 3.5 from the map's edge
  QVERIFY(isNear(image.pixelColor(50, 96), ring));
  QVERIFY(!isNear(image.pixelColor(5, 50), ring));
  QCOMPARE(image.pixelColor(182, 11), QColor(Qt::white));
  QVERIFY(isNear(image.pixelColor(180, 20), kRed.darker(115)));
  map.setSelected({});
  QVERIFY(isNear(rendered(map).pixelColor(182, 11), faded(kRed, 0.935)));
}

void TestTreemap::selectionOutlivesItems() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(four());
  map.setSelected({u"d"_s});
  map.setItems({four()[0]});
  QVERIFY(!map.itemAt(0).checked);
  QVERIFY(isNear(rendered(map).pixelColor(4, 100), faded(kRed, 0.45 * 0.98))); // still dimmed
  map.setItems(four());
  QVERIFY(map.itemAt(3).checked);
}

void TestTreemap::paintsNewLook() {
  Treemap map;
  map.resize(400, 200);
  map.setItems(many(4));
  map.setSelected({u"0"_s});
  map.show();
  QVERIFY(QTest::qWaitForWindowExposed(&map));
  const QImage before = rendered(map);
  setLook(true);
  QVERIFY(rendered(map) != before);
}

void TestTreemap::textPlaces() {
  Treemap map;
  map.resize(400, 200);
  QList<Treemap::Item> items = four();
  map.setItems(items);
  const QImage plain = rendered(map);
  const QFontMetricsF label(Theme::get().font(12, 600));
  const QFontMetricsF detail(Theme::get().mono(11, 400));
  // The body of the upper left tile is (2, 2, 196, 96), its text box (11, 9, 178, 82).
  items[0].label = u"HHH"_s;
  map.setItems(items);
  QRect area = difference(plain, rendered(map));
  QVERIFY(qAbs(area.left() - 11) <= 2);
  QVERIFY(qAbs(area.bottom() + 1 - (9 + label.ascent())) <= 1); // it stands on its base line
  items[0].label = u"A very long name of a file that no tile has room for.tar.gz"_s;
  map.setItems(items);
  area = difference(plain, rendered(map));
  QVERIFY(area.right() <= 189 && area.right() > 150);
  items[0].label.clear();
  items[0].detail = u"HHH"_s;
  map.setItems(items);
  area = difference(plain, rendered(map));
  QVERIFY(qAbs(area.left() - 11) <= 2);
  QVERIFY(qAbs(area.bottom() + 1 - (91 - detail.descent())) <= 1);
}

void TestTreemap::textStaysClearOfTheTick() {
  Treemap map;
  map.resize(400, 200);
  QList<Treemap::Item> items = four();
  map.setItems(items);
  map.setSelected({u"a"_s});
  const QImage plain = rendered(map);
  items[0].label = u"A very long name of a file that no tile has room for.tar.gz"_s;
  map.setItems(items);
  QVERIFY(difference(plain, rendered(map)).right() <= 189 - 22);
}

// In tiles that are wide enough for a detail, but too low for two lines.
void TestTreemap::loneDetail() {
  Treemap map;
  map.setFixedHeight(44); // bodies of 40
  const auto item = [](const QString& label, const QString& detail) {
    return Treemap::Item{u"a"_s, label, detail, 1, kRed};
  };
  for (const int width : {70, 300}) {
    map.resize(width, 44);
    map.setSelected({});
    map.setItems({item({}, {})});
    const QImage plain = rendered(map);
    map.setItems({item(u"Label"_s, {})});
    QCOMPARE(rendered(map), plain);
    map.setItems({item(u"Label"_s, u"12"_s)});
    QVERIFY(difference(plain, rendered(map)).isValid());
    map.setItems({item(u"Label"_s, u"123456789012345678901234567890123456789012345678901234567890"_s)});
    QVERIFY(difference(plain, rendered(map)).right() < width - 5); // elided inside the tile
  }
}

// The tick takes room from the label alone.
void TestTreemap::detailStaysBesideTheTick() {
  Treemap map;
  map.setFixedHeight(44);
  map.resize(70, 44);
  map.setSelected({u"a"_s});
  const auto item = [](const QString& detail) { return Treemap::Item{u"a"_s, {}, detail, 1, kRed}; };
  map.setItems({item({})});
  const QImage plain = rendered(map);
  map.setItems({item(u"123 MB"_s)});
  const QRect area = difference(plain, rendered(map));
  const double width = QFontMetricsF(Theme::get().mono(11, 400)).horizontalAdvance(u"123 MB"_s);
  QVERIFY(qAbs(area.left() - 11) <= 2);
  QVERIFY(area.right() > 11 + width - 4);
}

void TestTreemap::textInk_data() {
  QTest::addColumn<bool>("dark");
  QTest::addColumn<bool>("dimmed");
  QTest::addColumn<QColor>("ink");
  QTest::newRow("dark") << true << false << QColor(Qt::white);
  QTest::newRow("light") << false << false << QColor(Qt::white);
  QTest::newRow("dark, dimmed") << true << true << kRed.lighter(150);
  QTest::newRow("light, dimmed") << false << true << kRed.darker(175);
}

void TestTreemap::textInk() {
  QFETCH(bool, dark);
  QFETCH(bool, dimmed);
  QFETCH(QColor, ink);
  setLook(dark);
  Treemap map;
  map.resize(400, 200);
  if (dimmed) map.setSelected({u"d"_s});
  QList<Treemap::Item> items = four();
  map.setItems(items);
  const QImage plain = rendered(map, 4); // large enough for whole pixels of ink
  items[0].label = u"HHH"_s;
  map.setItems(items);
  QVERIFY(hasInk(plain, rendered(map, 4), withAlpha(ink, 245)));
  items[0].label.clear();
  items[0].detail = u"HHH"_s;
  map.setItems(items);
  QVERIFY(hasInk(plain, rendered(map, 4), withAlpha(ink, 210)));
  map.setFixedHeight(80); // bodies of 36
  map.resize(400, 80);
  const QImage low = rendered(map, 4);
  items[0].detail.clear();
  map.setItems(items);
  QVERIFY(hasInk(rendered(map, 4), low, withAlpha(ink, 225)));
}

void TestTreemap::arrowsGoByGeometry() {
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

void TestTreemap::keysActivate() {
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

void TestTreemap::ringIsForTheKeyboard() {
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

void TestTreemap::ringStaysWithItsKey() {
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

void TestTreemap::keyboardTellsWhatHasNoText() {
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

void TestTreemap::isReadOut() {
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

void TestTreemap::focusIsReadOut() {
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

int main(int argc, char** argv) { return uitest::run<TestTreemap>(argc, argv); }

#include "tst_Treemap.moc"
