// The round visuals of work in progress: gauge, ring and radar.

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/visuals/Gauge.h"
#include "ui/visuals/ProgressRing.h"
#include "ui/visuals/Radar.h"

#include <QAccessible>
#include <QtMath>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace pixels;

namespace {

const QColor kCyan(34, 211, 238);
const QColor kEmerald(52, 211, 153);

/// On a circle, in degrees clockwise from 12 o'clock.
QPointF clockwise(const QPointF& centre, double radius, double degrees) {
  const double angle = qDegreesToRadians(degrees);
  return centre + QPointF(radius * std::sin(angle), -radius * std::cos(angle));
}

/// Whether the text of a box is there, by a pixel that is wholly of its colour.
bool hasInk(const QImage& image, const QRectF& box, const QColor& colour) { return count(image, box, colour) > 0; }

QAccessibleInterface* face(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); }

} // namespace

class TestDials : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void gaugeLayout();
  void gaugeArcs();
  void gaugeTones_data();
  void gaugeTones();
  void gaugeClamps();
  void gaugePaints_data();
  void gaugePaints();
  void gaugeIsReadOut();

  void ringLayout();
  void ringPoints();
  void ringEases();
  void ringOrbits();
  void ringReachesItsTargetAndRests();
  void ringFallsAtOnce();
  void ringOfNoNumber();
  void ringKeepsItsOrbit();
  void ringTurnsWhileShown();
  void ringPaints();
  void ringPaintsItsDot();
  void ringIsReadOut();

  void radarLayout();
  void radarSweeps();
  void radarRunsAndStands();
  void radarPaintsItsBeam();
  void radarBeamHasASmoothEdge();
  void radarPaintsRingsAndCore();
  void radarFollowsTheScreen();
  void radarIsReadOut();

  void looksDontHangOnTheMetricSet();
};

// ---- Gauge ------------------------------------------------------------------------------------------------------

void TestDials::gaugeLayout() {
  const ui::GaugeLayout layout = ui::gaugeLayout({148, 148});
  QCOMPARE(layout.dial, QRectF(12, 12, 124, 124));
  QCOMPARE(layout.text.headline, QRectF(0, 48, 148, 36));
  QCOMPARE(layout.text.caption, QRectF(0, 86, 148, 16));
}

void TestDials::gaugeArcs() {
  QCOMPARE(ui::gaugeArc(1).start, 3600);
  QCOMPARE(ui::gaugeArc(1).span, -4320);
  QCOMPARE(ui::gaugeArc(0.5).span, -2160);
  QCOMPARE(ui::gaugeArc(0.9999).span, -4319); // truncated
  QCOMPARE(ui::gaugeArc(0.0001).span, 0);
}

void TestDials::gaugeTones_data() {
  QTest::addColumn<double>("value");
  QTest::addColumn<int>("tone");
  QTest::newRow("nothing") << 0.0 << int(Tone::Accent);
  QTest::newRow("up to eight tenths") << 0.8 << int(Tone::Accent);
  QTest::newRow("above") << 0.801 << int(Tone::Warn);
  QTest::newRow("up to nine tenths") << 0.9 << int(Tone::Warn);
  QTest::newRow("above that") << 0.901 << int(Tone::Bad);
  QTest::newRow("all") << 1.0 << int(Tone::Bad);
}

void TestDials::gaugeTones() {
  QFETCH(double, value);
  QFETCH(int, tone);
  QCOMPARE(int(ui::gaugeTone(value)), tone);
}

void TestDials::gaugeClamps() {
  ui::Gauge gauge;
  QCOMPARE(gauge.minimumSize(), QSize(148, 148));
  QCOMPARE(gauge.maximumSize(), QSize(148, 148));
  QCOMPARE(gauge.value(), 0.0);
  gauge.setValue(-1);
  QCOMPARE(gauge.value(), 0.0);
  QCOMPARE(gauge.valueText(), u"0% used"_s);
  gauge.setValue(1.5);
  QCOMPARE(gauge.value(), 1.0);
  QCOMPARE(gauge.valueText(), u"100% used"_s);
  gauge.setValue(std::numeric_limits<double>::quiet_NaN());
  QCOMPARE(gauge.value(), 0.0);
  gauge.setValue(0.125);
  QCOMPARE(gauge.valueText(), u"13% used"_s); // to the nearest
}

void TestDials::gaugePaints_data() {
  QTest::addColumn<double>("value");
  QTest::newRow("empty") << 0.0;
  QTest::newRow("half") << 0.5;
  QTest::newRow("caution") << 0.85;
  QTest::newRow("danger") << 0.95;
}

void TestDials::gaugePaints() {
  QFETCH(double, value);
  ui::Gauge gauge;
  gauge.setValue(value);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage image = rendered(gauge);
    const QColor filled = theme.tone(ui::gaugeTone(value));
    // The arc begins 135 degrees before 12 o'clock.
    for (const double share : {0.02, 0.3, 0.45, 0.55, 0.8, 0.98}) {
      const QColor seen = at(image, clockwise({74, 74}, 62, -135 + 270 * share));
      if (qAbs(share - value) < 0.06) continue; // under the round end
      if (share < value)
        QVERIFY(isNear(seen, over(filled, theme.lineStrong)));
      else
        QVERIFY(isNear(seen, theme.lineStrong));
    }
    QCOMPARE(at(image, clockwise({74, 74}, 62, 180)).alpha(), 0); // open below
    const ui::GaugeLayout layout = ui::gaugeLayout(gauge.size());
    QVERIFY(hasInk(image, layout.text.headline, theme.text));
    QVERIFY(hasInk(image, layout.text.caption, theme.text2));
  }
}

void TestDials::gaugeIsReadOut() {
  ui::Gauge gauge;
  gauge.setValue(0.62);
  QVERIFY(face(&gauge));
  QCOMPARE(face(&gauge)->text(QAccessible::Value), u"62% used"_s);
  QCOMPARE(face(&gauge)->valueInterface()->currentValue().toDouble(), 0.62);
  QVERIFY(face(&gauge)->state().readOnly);
}

// ---- ProgressRing -----------------------------------------------------------------------------------------------

void TestDials::ringLayout() {
  const ui::ProgressRingLayout layout = ui::progressRingLayout({240, 240});
  QCOMPARE(layout.circle, QRectF(10, 10, 220, 220));
  QCOMPARE(layout.text.headline, QRectF(0, 88, 240, 46));
  QCOMPARE(layout.text.caption, QRectF(0, 138, 240, 18));
}

void TestDials::ringPoints() {
  const QRectF circle(10, 10, 220, 220);
  const auto isAt = [&](double degrees, const QPointF& wanted) {
    return QLineF(ui::ringPoint(circle, degrees), wanted).length() < 1e-9;
  };
  QVERIFY(isAt(0, {120, 10}));
  QVERIFY(isAt(90, {230, 120}));
  QVERIFY(isAt(180, {120, 230}));
  QVERIFY(isAt(270, {10, 120}));
  QCOMPARE(ui::ringPoint({0, 0, 200, 100}, 90), QPointF(200, 50));
}

void TestDials::ringEases() {
  QCOMPARE(ui::ringEased(0, 1), 0.15);
  QCOMPARE(ui::ringEased(0.5, 0.7), 0.53);
  QCOMPARE(ui::ringEased(0.4985, 0.5), 0.4985 + 0.0015 * 0.15); // more than a thousandth is left
  QVERIFY(ui::ringEased(0.4989, 0.5) == 0.5);
  double shown = 0;
  int beats = 0;
  for (; shown != 1.0 && beats < 100; ++beats) shown = ui::ringEased(shown, 1);
  QCOMPARE(beats, 43);
}

void TestDials::ringOrbits() {
  QCOMPARE(ui::ringOrbited(0), 3.6);
  QCOMPARE(ui::ringOrbited(358), 358 + 3.6 - 360);
  double orbit = 0;
  for (int beat = 0; beat < 99; ++beat) orbit = ui::ringOrbited(orbit);
  QVERIFY(qAbs(orbit - 356.4) < 1e-6); // a beat before the round is whole
}

void TestDials::ringReachesItsTargetAndRests() {
  ui::ProgressRing ring;
  QCOMPARE(ring.minimumSize(), QSize(240, 240));
  QCOMPARE(ring.maximumSize(), QSize(240, 240));
  QVERIFY(!ring.isMoving());
  ring.setProgress(1.5);
  QCOMPARE(ring.target(), 1.0);
  QCOMPARE(ring.shown(), 0.0); // unseen, it waits
  QVERIFY(ring.isMoving());
  ring.show();
  QTRY_VERIFY(ring.shown() > 0 && ring.shown() < 1);
  QTRY_COMPARE(ring.shown(), 1.0);
  QVERIFY(!ring.isMoving());
}

void TestDials::ringFallsAtOnce() {
  ui::ProgressRing ring;
  ring.show();
  ring.setProgress(0.8);
  QTRY_COMPARE(ring.shown(), 0.8);
  ring.setProgress(0.2);
  QCOMPARE(ring.shown(), 0.2);
  QVERIFY(!ring.isMoving());
  ring.setProgress(-3);
  QCOMPARE(ring.target(), 0.0);
  QCOMPARE(ring.shown(), 0.0);
}

void TestDials::ringOfNoNumber() {
  ui::ProgressRing ring;
  ring.setProgress(std::numeric_limits<double>::quiet_NaN());
  QCOMPARE(ring.target(), 0.0);
  QVERIFY(!ring.isMoving());
}

void TestDials::ringKeepsItsOrbit() {
  ui::ProgressRing ring;
  QCOMPARE(ring.orbit(), -1.0);
  ring.setOrbiting(true);
  QCOMPARE(ring.orbit(), 0.0);
  QVERIFY(ring.isMoving());
  ring.show();
  QTRY_VERIFY(ring.orbit() > 0);
  ring.hide();
  const double before = ring.orbit();
  ring.setOrbiting(true);
  QCOMPARE(ring.orbit(), before);
  ring.setOrbiting(false);
  QCOMPARE(ring.orbit(), -1.0);
  QVERIFY(!ring.isMoving());
  ring.setOrbiting(true);
  QCOMPARE(ring.orbit(), 0.0);
}

void TestDials::ringTurnsWhileShown() {
  ui::ProgressRing ring;
  ring.setOrbiting(true);
  ring.setProgress(0.3);
  ring.show();
  QTRY_COMPARE(ring.shown(), 0.3);
  QVERIFY(ring.isMoving()); // the dot goes on
  const double steps = ring.orbit() / 3.6;
  QVERIFY(qAbs(steps - std::round(steps)) < 1e-6);
}

void TestDials::ringPaints() {
  ui::ProgressRing ring;
  ring.setText(u"1.2 GB"_s, u"of 3 GB"_s);
  const ui::ProgressRingLayout layout = ui::progressRingLayout(ring.size());
  const auto on = [&](double degrees) { return ui::ringPoint(layout.circle, degrees); };
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage empty = rendered(ring);
    for (const double degrees : {0.0, 90.0, 200.0}) QVERIFY(isNear(at(empty, on(degrees)), theme.track));
    QVERIFY(hasInk(empty, layout.text.headline, theme.text));
    QVERIFY(hasInk(empty, layout.text.caption, theme.text3));
  }
  ring.setProgress(0.5);
  ring.show();
  QTRY_COMPARE(ring.shown(), 0.5);
  ring.hide();
  for (const bool success : {false, true})
    for (const bool dark : {true, false}) {
      setLook(dark);
      ring.success = success;
      const QImage half = rendered(ring);
      QLinearGradient good(layout.circle.topLeft(), layout.circle.bottomRight());
      good.setColorAt(0, kEmerald);
      good.setColorAt(1, kCyan);
      const QBrush brush = success ? QBrush(good) : QBrush(Theme::gradient(layout.circle));
      for (const double degrees : {5.0, 90.0, 170.0})
        QVERIFY(isNear(at(half, on(degrees)), brushAt(brush, on(degrees))));
      for (const double degrees : {200.0, 270.0, 345.0}) QVERIFY(isNear(at(half, on(degrees)), Theme::get().track));
      QVERIFY(!isNear(at(half, on(181)), Theme::get().track)); // a round end
    }
}

void TestDials::ringPaintsItsDot() {
  ui::ProgressRing ring;
  const QImage without = rendered(ring);
  ring.setOrbiting(true); // at 12 o'clock, (120, 10)
  for (const bool success : {false, true})
    for (const bool dark : {true, false}) {
      setLook(dark);
      ring.success = success;
      const Theme& theme = Theme::get();
      const QImage image = rendered(ring);
      const QColor colour = success ? theme.ok : theme.accent;
      QVERIFY(isNear(image.pixelColor(120, 10), colour));
      QVERIFY(isNear(image.pixelColor(121, 12), colour));
      // Seven pixels down, three tenths of the glow are left, and the track ends at four.
      const QColor glow = image.pixelColor(119, 16);
      QVERIFY(glow.alpha() > 20 && glow.alpha() < 60);
      QVERIFY(image.pixelColor(119, 21).alpha() == 0);
    }
  ring.setOrbiting(false);
  ring.success = false;
  QCOMPARE(rendered(ring), without);
}

void TestDials::ringIsReadOut() {
  ui::ProgressRing ring;
  ring.setProgress(0.4);
  QCOMPARE(face(&ring)->text(QAccessible::Value), u"40%"_s);
  ring.setText(u"1.2 GB"_s, u"of 3 GB"_s);
  QCOMPARE(face(&ring)->text(QAccessible::Value), u"1.2 GB of 3 GB"_s);
  QCOMPARE(face(&ring)->valueInterface()->currentValue().toDouble(), 0.4); // where it goes, not where it is
}

// ---- Radar ------------------------------------------------------------------------------------------------------

void TestDials::radarLayout() {
  const ui::RadarLayout layout = ui::radarLayout({250, 250});
  QCOMPARE(layout.centre, QPointF(125, 125));
  QCOMPARE(layout.radius, 124.0);
  QCOMPARE(layout.hollow, 0.55 * 124);
  QCOMPARE(layout.rings, QList<double>({74, 90, 106, 122, 123.5}));
  QCOMPARE(layout.coreRadius, 62.0);
  QCOMPARE(layout.text.headline, QRectF(63, 101, 124, 34));
  QCOMPARE(layout.text.caption, QRectF(63, 137, 124, 16));
}

void TestDials::radarSweeps() {
  QCOMPARE(ui::radarSwept(0), 3.2);
  QCOMPARE(ui::radarSwept(358.4), 358.4 + 3.2 - 360);
}

void TestDials::radarRunsAndStands() {
  ui::Radar radar;
  QCOMPARE(radar.minimumSize(), QSize(250, 250));
  QCOMPARE(radar.maximumSize(), QSize(250, 250));
  QCOMPARE(radar.angle(), 0.0);
  QVERIFY(!radar.isRunning());
  radar.show();
  radar.setRunning(true);
  radar.setRunning(true);
  QVERIFY(radar.isRunning());
  QTRY_VERIFY(radar.angle() > 60);
  radar.setRunning(false);
  QVERIFY(!radar.isRunning());
  const double stands = radar.angle();
  const QImage image = rendered(radar);
  // The tail, ten degrees behind the edge, is still there.
  const auto lit = [&](double degrees) { return at(image, clockwise({125, 125}, 98, 90 + degrees)).alpha(); };
  QVERIFY(lit(stands - 10) > 40);
  QVERIFY(lit(stands + 40) < 40);
  radar.setRunning(true);
  QTRY_VERIFY(radar.angle() > stands); // goes on from there
}

void TestDials::radarPaintsItsBeam() {
  ui::Radar radar; // the edge lies at 3 o'clock, the tail goes anticlockwise: above it
  const auto on = [](double degrees) { return clockwise({125, 125}, 98, 90 + degrees); };
  for (const bool dark : {true, false}) {
    setLook(dark);
    const QImage image = rendered(radar);
    const QColor edge = at(image, on(-2));
    QVERIFY(edge.alpha() > 150);
    QVERIFY(qAbs(edge.red() - 34) < 8 && qAbs(edge.green() - 211) < 8 && qAbs(edge.blue() - 238) < 8);
    // From 0.32 at a fiftieth of a turn to nothing at three tenths.
    const double there = 0.32 * (0.3 - 30 / 360.0) / 0.28;
    QVERIFY(qAbs(at(image, on(-30)).alphaF() - there) < 0.02);
    QVERIFY(at(image, on(-60)).alpha() < at(image, on(-30)).alpha());
    for (const double behind : {-110.0, -200.0, -340.0}) QCOMPARE(at(image, on(behind)).alpha(), 0);
    // The annulus, from 68.2 to 124.
    for (const double radius : {72.0, 122.0}) QVERIFY(at(image, clockwise({125, 125}, radius, 60)).alpha() > 50);
    QCOMPARE(at(image, clockwise({125, 125}, 125, 60)).alpha(), 0);
    QVERIFY(at(image, clockwise({125, 125}, 67, 80)).alpha() < 90);
  }
}

void TestDials::radarBeamHasASmoothEdge() {
  setLook(true);
  ui::Radar radar;
  radar.show();
  radar.setRunning(true);
  QTRY_VERIFY(radar.angle() > 20); // off the grid of the pixels
  radar.setRunning(false);
  const QImage image = rendered(radar);
  const double turned = qDegreesToRadians(radar.angle());
  int partly = 0;
  int dark = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      // Where the middle of the pixel lies: along the edge, and before it.
      const QPointF middle(x + 0.5 - 125, y + 0.5 - 125);
      const double along = middle.x() * std::cos(turned) + middle.y() * std::sin(turned);
      const double before = middle.y() * std::cos(turned) - middle.x() * std::sin(turned);
      if (along < 75 || along > 118 || before < 0.05 || before > 0.3) continue;
      (image.pixelColor(x, y).alpha() > 24 ? partly : dark)++;
    }
  QVERIFY2(partly > 5 && partly > 4 * dark, qPrintable(u"%1 in part, %2 dark"_s.arg(partly).arg(dark)));
}

void TestDials::radarPaintsRingsAndCore() {
  ui::Radar radar;
  radar.setText(u"12 GB"_s, u"found"_s);
  const ui::RadarLayout layout = ui::radarLayout(radar.size());
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage image = rendered(radar);
    // Left of the centre there is no beam. A line on whole pixels covers half of two.
    for (const double radius : {90.0, 106.0}) {
      QVERIFY(at(image, {125 - radius, 125}).alpha() > 0);
      QCOMPARE(at(image, {125 - radius - 4, 125}).alpha(), 0);
    }
    QVERIFY(isNear(at(image, {125 - 123.5, 125}), theme.line));
    QVERIFY(isNear(at(image, {125, 125 - 50}), theme.core));
    QVERIFY(isNear(at(image, {125 - 50, 125 + 20}), theme.core));
    // The halo grows fainter outward: at radius 64 ten circles lie over each other, at 84 one.
    QColor near = at(image, {125 - 64.5, 125});
    QVERIFY(near.alpha() > 20 && near.alpha() < 50);
    QVERIFY(at(image, {125 - 82.5, 125}).alpha() <= 4);
    QVERIFY(at(image, {125 - 82.5, 125}).alpha() > 0);
    QVERIFY(hasInk(image, layout.text.headline, theme.text));
    QVERIFY(hasInk(image, layout.text.caption, theme.text3));
  }
}

void TestDials::radarFollowsTheScreen() {
  ui::Radar moved;
  for (const double ratio : {1.0, 2.0, 1.25, 1.0}) {
    ui::Radar fresh;
    QCOMPARE(rendered(moved, ratio), rendered(fresh, ratio));
  }
  for (const bool dark : {true, false}) {
    setLook(dark);
    ui::Radar fresh;
    QCOMPARE(rendered(moved), rendered(fresh));
  }
}

void TestDials::radarIsReadOut() {
  ui::Radar radar;
  radar.setText(u"12 GB"_s, u"found"_s);
  QCOMPARE(face(&radar)->text(QAccessible::Value), u"12 GB found"_s);
  QVERIFY(!face(&radar)->state().busy);
  radar.setRunning(true);
  QVERIFY(face(&radar)->state().busy);
  QVERIFY(!face(&radar)->valueInterface()->currentValue().isValid());
}

void TestDials::looksDontHangOnTheMetricSet() {
  ui::Gauge gauge;
  ui::ProgressRing ring;
  ui::Radar radar;
  gauge.setValue(0.5);
  const auto pictures = [&] { return QList<QImage>{rendered(gauge), rendered(ring), rendered(radar)}; };
  Theme::get().mac = true;
  const QList<QImage> mac = pictures();
  Theme::get().mac = false;
  QCOMPARE(pictures(), mac);
  Theme::get().mac = true;
}

int main(int argc, char** argv) { return uitest::run<TestDials>(argc, argv); }

#include "tst_Dials.moc"
