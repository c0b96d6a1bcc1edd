#include "ui/visuals/Sparkline.h"

#include "core/fmt.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"

#include <QAccessible>

using namespace Qt::StringLiterals;
using pixels::isBlank;
using pixels::isNear;
using pixels::rendered;
using pixels::setLook;
using ui::Sparkline;

class TestSparkline : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void layout();
  void flatAlongTheBaseline();
  void oneValue();
  void negativeRunsBelow();
  void size();
  void noValuesPaintNothing();
  void paintsLineAndArea();
  void paintsOneValueAsADot();
  void sameInBothLooks();
  void isReadOut();
};

void TestSparkline::layout() {
  const ui::SparklineLayout chart = ui::sparklineLayout({0, 5, 10, 5, 0}, {92, 32});
  QCOMPARE(chart.line, QPolygonF({{2, 29}, {24, 16}, {46, 3}, {68, 16}, {90, 29}}));
  QCOMPARE(chart.area, QPolygonF({{2, 29}, {24, 16}, {46, 3}, {68, 16}, {90, 29}, {90, 32}, {2, 32}}));
  // The baseline is 0, not the least value.
  QCOMPARE(ui::sparklineLayout({10, 10}, {92, 32}).line, QPolygonF({{2, 3}, {90, 3}}));
  QCOMPARE(ui::sparklineLayout({5, 10}, {92, 32}).line, QPolygonF({{2, 16}, {90, 3}}));
}

void TestSparkline::flatAlongTheBaseline() {
  QCOMPARE(ui::sparklineLayout({0, 0, 0}, {92, 32}).line, QPolygonF({{2, 29}, {46, 29}, {90, 29}}));
  Sparkline chart;
  chart.setValues({0, 0, 0});
  const QImage image = rendered(chart);
  QVERIFY(image.pixelColor(46, 28).alpha() == 255 && image.pixelColor(46, 29).alpha() == 255);
  QCOMPARE(image.pixelColor(46, 26).alpha(), 0);
}

void TestSparkline::oneValue() {
  const ui::SparklineLayout chart = ui::sparklineLayout({7}, {92, 32});
  QCOMPARE(chart.line, QPolygonF(QList<QPointF>({{2, 3}})));
  QCOMPARE(chart.area, QPolygonF({{2, 3}, {2, 32}, {2, 32}}));
}

void TestSparkline::negativeRunsBelow() {
  QCOMPARE(ui::sparklineLayout({-10, 10}, {92, 32}).line, QPolygonF({{2, 55}, {90, 3}}));
  // Without a value above 0 the peak is 1.
  QCOMPARE(ui::sparklineLayout({-1, 0}, {92, 32}).line, QPolygonF({{2, 55}, {90, 29}}));
}

void TestSparkline::size() {
  const Sparkline chart;
  QCOMPARE(chart.minimumSize(), QSize(92, 32));
  QCOMPARE(chart.maximumSize(), QSize(92, 32));
}

void TestSparkline::noValuesPaintNothing() {
  QVERIFY(ui::sparklineLayout({}, {92, 32}).line.isEmpty());
  QVERIFY(ui::sparklineLayout({}, {92, 32}).area.isEmpty());
  Sparkline chart;
  QVERIFY(isBlank(rendered(chart)));
  chart.setValues({1, 2});
  QVERIFY(!isBlank(rendered(chart)));
  chart.setValues({});
  QVERIFY(isBlank(rendered(chart)));
}

void TestSparkline::paintsLineAndArea() {
  Sparkline chart;
  chart.setValues({10, 10});
  const QImage image = rendered(chart);
  // The line lies on y = 3, so it covers the rows 2 and 3; its colours run over the whole width of the widget.
  QVERIFY(isNear(image.pixelColor(2, 3), QColor(u"#25d0ee"_s)));
  QVERIFY(isNear(image.pixelColor(46, 2), QColor(u"#6694f3"_s)));
  QVERIFY(isNear(image.pixelColor(89, 2), QColor(u"#a457f7"_s)));
  QCOMPARE(image.pixelColor(46, 0).alpha(), 0);
  // The area's alpha is 0.35 x 255 at the top and 0 at the bottom.
  QVERIFY(isNear(image.pixelColor(46, 8), QColor(0x63, 0x66, 0xf1, 66)));
  QVERIFY(isNear(image.pixelColor(46, 16), QColor(0x63, 0x66, 0xf1, 43)));
  QVERIFY(image.pixelColor(46, 31).alpha() <= 3);
  QCOMPARE(image.pixelColor(0, 16).alpha(), 0);
}

void TestSparkline::paintsOneValueAsADot() {
  Sparkline chart;
  chart.setValues({7});
  const QImage image = rendered(chart);
  QVERIFY(image.pixelColor(1, 2).alpha() > 150);
  QVERIFY(image.pixelColor(2, 3).alpha() > 150);
  QCOMPARE(image.pixelColor(2, 16).alpha(), 0); // its area has no width
  QCOMPARE(image.pixelColor(5, 3).alpha(), 0);
}

void TestSparkline::sameInBothLooks() {
  Sparkline chart;
  chart.setValues({1, 4, 2, 8});
  const QImage light = rendered(chart);
  setLook(true);
  QCOMPARE(rendered(chart), light);
}

void TestSparkline::isReadOut() {
  Sparkline chart;
  chart.setAccessibleName(u"Freed"_s);
  chart.setValues({1000, 4000, 3000});
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&chart);
  QVERIFY(face);
  QCOMPARE(face->text(QAccessible::Name), u"Freed"_s);
  QCOMPARE(face->text(QAccessible::Value), u"%1, %2, %3"_s.arg(fmt::count(1000), fmt::count(4000), fmt::count(3000)));
  QCOMPARE(face->valueInterface()->currentValue().toDouble(), 0.75);
  chart.setValueFormat(fmt::bytes);
  QCOMPARE(face->text(QAccessible::Value), u"1 KB, 4 KB, 3 KB"_s);
  chart.setValues({});
  QCOMPARE(face->text(QAccessible::Value), QString());
  QCOMPARE(face->valueInterface()->currentValue().toDouble(), 0.0);
  chart.setValues({5, -5});
  QCOMPARE(face->valueInterface()->currentValue().toDouble(), 0.0);
}

int main(int argc, char** argv) { return uitest::run<TestSparkline>(argc, argv); }

#include "tst_Sparkline.moc"
