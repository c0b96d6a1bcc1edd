// How the map of sizes is painted: bodies, glows, rings and ticks to the pixel, and texts where they have room.
#include "TreemapTest.h"
#include "ui/paint.h"

using namespace Qt::StringLiterals;
using namespace treemaptest;
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

class TestTreemapPaint : public TreemapTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void hoverSurvivesItems();
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
};

void TestTreemapPaint::hoverSurvivesItems() {
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

void TestTreemapPaint::paintsBodies() {
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

void TestTreemapPaint::paintsDimmed() {
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

void TestTreemapPaint::paintsHover() {
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
void TestTreemapPaint::hoverLooksAsIfAllWerePainted() {
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

void TestTreemapPaint::pictureFollowsTheScale() {
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

void TestTreemapPaint::liesOnWhatIsBelow() {
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

void TestTreemapPaint::paintsGlow() {
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

void TestTreemapPaint::paintsRingAndTick() {
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

void TestTreemapPaint::selectionOutlivesItems() {
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

void TestTreemapPaint::paintsNewLook() {
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

void TestTreemapPaint::textPlaces() {
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

void TestTreemapPaint::textStaysClearOfTheTick() {
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
void TestTreemapPaint::loneDetail() {
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
void TestTreemapPaint::detailStaysBesideTheTick() {
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

void TestTreemapPaint::textInk_data() {
  QTest::addColumn<bool>("dark");
  QTest::addColumn<bool>("dimmed");
  QTest::addColumn<QColor>("ink");
  QTest::newRow("dark") << true << false << QColor(Qt::white);
  QTest::newRow("light") << false << false << QColor(Qt::white);
  QTest::newRow("dark, dimmed") << true << true << kRed.lighter(150);
  QTest::newRow("light, dimmed") << false << true << kRed.darker(175);
}

void TestTreemapPaint::textInk() {
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

int main(int argc, char** argv) { return uitest::run<TestTreemapPaint>(argc, argv); }

#include "tst_Treemap_paint.moc"
