// What holds for all visuals: they are painted anew when they or the look change and only then, and don't hang on the
// metric set.

#include "support/Sentinel.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/visuals/DiskOrb.h"
#include "ui/visuals/Gauge.h"
#include "ui/visuals/ProgressRing.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/ScanStepRow.h"
#include "ui/visuals/Sparkline.h"
#include "ui/visuals/StackBar.h"
#include "ui/visuals/StepBar.h"
#include "ui/visuals/Treemap.h"

#include <QMouseEvent>

#include <functional>

using namespace Qt::StringLiterals;
using namespace pixels;

namespace {

constexpr QColor kRed(200, 40, 60);

void pointAt(QWidget& widget, const QPointF& place) {
  QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(&widget, &move);
}
void leave(QWidget& widget) {
  QEvent event(QEvent::Leave);
  QApplication::sendEvent(&widget, &event);
}

QWidget* orb() {
  auto* orb = new ui::DiskOrb;
  orb->setDisk(100, 50, 10);
  orb->setCenter(u"190 GB"_s, u"free"_s, u"Scan"_s);
  return orb;
}
QList<ui::Treemap::Item> tiles() {
  return {{u"a"_s, u"Film.mov"_s, u"3 GB"_s, 3, kRed}, {u"b"_s, u"Song.wav"_s, u"1 GB"_s, 1, kRed}};
}
QWidget* treemap() {
  auto* map = new ui::Treemap;
  map->setMinimumWidth(300);
  map->setItems(tiles());
  map->setSelected({u"b"_s});
  return map;
}
QWidget* gauge() {
  auto* gauge = new ui::Gauge;
  gauge->setValue(0.5);
  return gauge;
}
QWidget* ring() {
  auto* ring = new ui::ProgressRing;
  ring->setText(u"50%"_s, u"Cleaning"_s);
  return ring;
}
QWidget* radar() {
  auto* radar = new ui::Radar;
  radar->setText(u"3 GB"_s, u"found"_s);
  return radar;
}
QWidget* stepBar() {
  auto* bar = new ui::StepBar;
  bar->setState(ui::StepBar::Done);
  return bar;
}
QWidget* stepRow() {
  auto* row = new ui::ScanStepRow(u"folder"_s, kRed, u"App caches"_s);
  row->set(ui::StepBar::Running, u"3 GB"_s);
  for (QWidget* part : row->findChildren<QWidget*>()) part->hide(); // whose repaints are the row's too
  return row;
}
QList<ui::StackBar::Segment> segments() {
  return {{.bytes = 3, .colour = kRed}, {.bytes = 2, .colour = kRed, .hatched = true}};
}
QWidget* stackBar() {
  auto* bar = new ui::StackBar(14);
  bar->setSegments(segments(), 10);
  return bar;
}
QWidget* sparkline() {
  auto* line = new ui::Sparkline;
  line->setValues({1, 3, 2});
  return line;
}

struct Visual {
  const char* name;
  QWidget* (*make)();
};
constexpr Visual kVisuals[] = {
    {"orb", orb},          {"treemap", treemap},  {"gauge", gauge},        {"ring", ring},           {"radar", radar},
    {"step bar", stepBar}, {"step row", stepRow}, {"stack bar", stackBar}, {"sparkline", sparkline},
};

void addVisuals() {
  QTest::addColumn<int>("visual");
  for (int i = 0; i < int(std::size(kVisuals)); ++i) QTest::newRow(kVisuals[i].name) << i;
}

/// Something that happens to a visual.
struct Change {
  const char* name;
  QWidget* (*make)();
  std::function<void(QWidget&)> before;
  std::function<void(QWidget&)> happens;
  bool repaints = true;
};

template <typename Widget>
std::function<void(QWidget&)> with(void (*call)(Widget&)) {
  return [call](QWidget& widget) { call(static_cast<Widget&>(widget)); };
}
std::function<void(QWidget&)> pointing(double x, double y) {
  return [=](QWidget& widget) { pointAt(widget, {x, y}); };
}
void nothing(QWidget& /*widget*/) {}

const QList<Change>& changes() {
  static const QList<Change> all = {
      {"orb's disk", orb, nothing, with<ui::DiskOrb>([](ui::DiskOrb& it) { it.setDisk(100, 60, 10); })},
      {"orb's centre", orb, nothing, with<ui::DiskOrb>([](ui::DiskOrb& it) { it.setCenter(u"1"_s, {}, {}); })},
      {"pointer comes to the core", orb, nothing, pointing(140, 140)},
      {"pointer stays on the core", orb, pointing(140, 140), pointing(150, 150), false},
      {"pointer stays off the core", orb, pointing(5, 5), pointing(6, 6), false},
      {"pointer leaves the core", orb, pointing(140, 140), leave},
      {"treemap's items", treemap, nothing, with<ui::Treemap>([](ui::Treemap& it) { it.setItems({tiles()[0]}); })},
      {"treemap's selection", treemap, nothing, with<ui::Treemap>([](ui::Treemap& it) { it.setSelected({}); })},
      {"pointer comes to a tile", treemap, nothing, pointing(20, 20)},
      {"pointer stays on a tile", treemap, pointing(20, 20), pointing(30, 30), false},
      {"pointer leaves a tile", treemap, pointing(20, 20), leave},
      {"gauge's value", gauge, nothing, with<ui::Gauge>([](ui::Gauge& it) { it.setValue(0.7); })},
      {"ring's text", ring, nothing, with<ui::ProgressRing>([](ui::ProgressRing& it) { it.setText(u"1"_s, {}); })},
      {"radar's text", radar, nothing, with<ui::Radar>([](ui::Radar& it) { it.setText(u"1"_s, {}); })},
      {"radar stops", radar, nothing, with<ui::Radar>([](ui::Radar& it) { it.setRunning(false); }), false},
      {"bar's segments", stackBar, nothing, with<ui::StackBar>([](ui::StackBar& it) { it.setSegments({}, 1); })},
      {"line's values", sparkline, nothing, with<ui::Sparkline>([](ui::Sparkline& it) { it.setValues({}); })},
  };
  return all;
}

} // namespace

class TestVisuals : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void repaintsForANewLook_data() { addVisuals(); }
  void repaintsForANewLook();
  void repaintsForWhatChangesIt_data();
  void repaintsForWhatChangesIt();
  void doesntHangOnTheMetricSet_data() { addVisuals(); }
  void doesntHangOnTheMetricSet();
};

// The signal alone: a whole change of look brings a palette too, for which Qt itself paints everything anew.
void TestVisuals::repaintsForANewLook() {
  QFETCH(int, visual);
  Sentinel sentinel(kVisuals[visual].make());
  QVERIFY(sentinel.settles());
  emit Theme::get().changed();
  QVERIFY(sentinel.pending() > 0);
  Sentinel stranger(new QWidget);
  QVERIFY(stranger.settles());
  emit Theme::get().changed();
  QCOMPARE(stranger.pending(), 0);
}

void TestVisuals::repaintsForWhatChangesIt_data() {
  QTest::addColumn<int>("change");
  for (int i = 0; i < int(changes().size()); ++i) QTest::newRow(changes()[i].name) << i;
}

void TestVisuals::repaintsForWhatChangesIt() {
  QFETCH(int, change);
  const Change& tried = changes()[change];
  QWidget* visual = tried.make();
  Sentinel sentinel(visual);
  QVERIFY(sentinel.settles());
  tried.before(*visual);
  QVERIFY(sentinel.settles());
  tried.happens(*visual);
  QCOMPARE(sentinel.pending() > 0, tried.repaints);
}

void TestVisuals::doesntHangOnTheMetricSet() {
  QFETCH(int, visual);
  for (const bool dark : {true, false}) {
    setLook(dark);
    QList<QImage> pictures;
    for (const bool mac : {true, false}) {
      Theme::get().mac = mac;
      const std::unique_ptr<QWidget> made(kVisuals[visual].make());
      made->resize(made->sizeHint().expandedTo(made->minimumSize()).expandedTo({100, 4}));
      pictures << rendered(*made);
    }
    Theme::get().mac = true;
    QVERIFY(!isBlank(pictures[0]));
    QCOMPARE(pictures[0], pictures[1]);
  }
}

int main(int argc, char** argv) { return uitest::run<TestVisuals>(argc, argv); }

#include "tst_Visuals.moc"
