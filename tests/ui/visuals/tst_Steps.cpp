// The visuals of a list of steps: the bar and the row.

#include "support/Sentinel.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/visuals/ScanStepRow.h"
#include "ui/visuals/StepBar.h"

#include <QAccessible>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;
using namespace pixels;

namespace {

const QColor kCyan(34, 211, 238);

QAccessibleInterface* face(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); }

/// A row and its parts.
struct Row : ui::ScanStepRow {
  Row() : ScanStepRow(u"folder"_s, kCyan, u"App caches"_s) {}
  const ui::IconTile* tile = findChild<ui::IconTile*>();
  ui::ElidedLabel* title = findChild<ui::ElidedLabel*>();
  ui::StepBar* bar = findChild<ui::StepBar*>();
  QLabel* value = [this] {
    for (QLabel* label : findChildren<QLabel*>())
      if (label != title) return label;
    return static_cast<QLabel*>(nullptr);
  }();
};

} // namespace

class TestSteps : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void bandOfABar();
  void barSweeps();
  void barStates();
  void barSameStateIsNothing();
  void barPaints();
  void barIsReadOut();

  void rowIsBuilt();
  void rowStates_data();
  void rowStates();
  void rowRepaintsWhenItsStateChanges();
  void rowPaints();
  void rowIsReadOut();

  void looksDontHangOnTheMetricSet();
};

// ---- StepBar ----------------------------------------------------------------------------------------------------

void TestSteps::bandOfABar() {
  QCOMPARE(ui::stepBand({100, 4}, 0), QRectF(-35, 0, 35, 4)); // outside still
  QCOMPARE(ui::stepBand({100, 4}, 0.5), QRectF(32.5, 0, 35, 4));
  QCOMPARE(ui::stepBand({100, 4}, 1), QRectF(100, 0, 35, 4));
  QCOMPARE(ui::stepBand({40, 4}, 0.25).left(), 1.35 * 40 * 0.25 - 14);
}

void TestSteps::barSweeps() {
  QCOMPARE(ui::stepAdvanced(0), 0.012);
  QCOMPARE(ui::stepAdvanced(0.995), 0.995 + 0.012 - 1);
  double phase = 0;
  int beats = 0;
  for (double before = -1; phase > before && beats < 200; ++beats) {
    before = phase;
    phase = ui::stepAdvanced(phase);
  }
  QCOMPARE(beats, 84); // the beat that begins anew
}

void TestSteps::barStates() {
  QCOMPARE(int(ui::StepBar::Pending), 0);
  QCOMPARE(int(ui::StepBar::Running), 1);
  QCOMPARE(int(ui::StepBar::Done), 2);
  ui::StepBar bar;
  QCOMPARE(bar.state(), ui::StepBar::Pending);
  QCOMPARE(bar.minimumHeight(), 4);
  QCOMPARE(bar.maximumHeight(), 4);
  QCOMPARE(bar.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
  bar.show();
  QVERIFY(!bar.isSweeping());
  bar.setState(ui::StepBar::Running);
  QVERIFY(bar.isSweeping());
  QTRY_VERIFY(bar.phase() > 0);
  bar.hide();
  QVERIFY(!bar.isSweeping());
  const double before = bar.phase();
  bar.show();
  QVERIFY(bar.isSweeping());
  for (const auto other : {ui::StepBar::Done, ui::StepBar::Pending}) {
    bar.setState(ui::StepBar::Running);
    bar.setState(other);
    QVERIFY(!bar.isSweeping());
  }
  QVERIFY(bar.phase() >= before);
}

void TestSteps::barSameStateIsNothing() {
  auto* bar = new ui::StepBar;
  Sentinel sentinel(bar);
  QVERIFY(sentinel.settles());
  bar->setState(ui::StepBar::Pending);
  QCOMPARE(sentinel.pending(), 0);
  bar->setState(ui::StepBar::Done);
  QCOMPARE(sentinel.pending(), 1);
  bar->setState(ui::StepBar::Done);
  QCOMPARE(sentinel.pending(), 0);
}

void TestSteps::barPaints() {
  ui::StepBar bar;
  bar.resize(100, 4);
  const auto paints = [&](double x) { return at(rendered(bar), {x, 2}); };
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    bar.setState(ui::StepBar::Pending);
    for (const double x : {5.0, 50.0, 95.0}) QVERIFY(isNear(paints(x), theme.track));
    QVERIFY(rendered(bar).pixelColor(0, 0).alpha() < theme.track.alpha()); // round
    bar.setState(ui::StepBar::Done);
    const QBrush brush = Theme::gradient(QRectF(0, 0, 100, 4));
    for (const double x : {5.0, 50.0, 95.0}) QVERIFY(isNear(paints(x), brushAt(brush, {x, 2})));
    QVERIFY(rendered(bar).pixelColor(0, 0).alpha() < 255);
  }
  // The band is where its phase says, and its gradient its own.
  bar.setState(ui::StepBar::Running);
  bar.show();
  QTRY_VERIFY(bar.phase() > 0.4 && bar.phase() < 0.6);
  bar.hide();
  const QRectF band = ui::stepBand(bar.size(), bar.phase());
  QVERIFY(band.left() > 15 && band.right() < 85);
  QVERIFY(isNear(paints(band.left() - 3), Theme::get().track));
  QVERIFY(isNear(paints(band.right() + 3), Theme::get().track));
  for (const double x : {band.left() + 2, band.center().x(), band.right() - 2})
    QVERIFY(isNear(paints(x), brushAt(Theme::gradient(band), {x, 2})));
}

void TestSteps::barIsReadOut() {
  ui::StepBar bar;
  QCOMPARE(face(&bar)->text(QAccessible::Value), u"Waiting"_s);
  QCOMPARE(bar.valueFraction(), 0.0);
  bar.setState(ui::StepBar::Running);
  QCOMPARE(face(&bar)->text(QAccessible::Value), u"In progress"_s);
  QVERIFY(face(&bar)->state().busy);
  bar.setState(ui::StepBar::Done);
  QCOMPARE(face(&bar)->text(QAccessible::Value), u"Done"_s);
  QCOMPARE(bar.valueFraction(), 1.0);
}

// ---- ScanStepRow ------------------------------------------------------------------------------------------------

void TestSteps::rowIsBuilt() {
  const Row row;
  QCOMPARE(row.layout()->spacing(), 14);
  QCOMPARE(row.layout()->contentsMargins(), QMargins(12, 10, 14, 10));
  QCOMPARE(row.tile->minimumSize(), QSize(30, 30));
  QCOMPARE(row.title->text(), u"App caches"_s);
  QVERIFY(row.title->property("role").toString().isEmpty());
  QCOMPARE(row.title->styleSheet(), u"font-weight: 500;"_s);
  QCOMPARE(row.bar->minimumWidth(), 40);
  QCOMPARE(row.bar->maximumWidth(), 120);
  QCOMPARE(row.value->text(), u"—"_s);
  QCOMPARE(row.value->property("role").toString(), u"num"_s);
  QCOMPARE(row.value->minimumWidth(), 78);
  QCOMPARE(row.value->maximumWidth(), 78);
  QCOMPARE(row.value->alignment(), Qt::AlignRight | Qt::AlignVCenter);
  QVERIFY(!row.isActive());
  const auto* layout = qobject_cast<QHBoxLayout*>(row.layout());
  QVERIFY(layout);
  QCOMPARE(layout->count(), 4);
  const QWidget* order[] = {row.tile, row.title, row.bar, row.value};
  const int stretches[] = {0, 5, 2, 0};
  for (int index = 0; index < 4; ++index) {
    QCOMPARE(layout->itemAt(index)->widget(), order[index]);
    QCOMPARE(layout->stretch(index), stretches[index]);
  }
}

void TestSteps::rowStates_data() {
  QTest::addColumn<int>("state");
  QTest::addColumn<int>("title");
  QTest::addColumn<int>("value");
  QTest::newRow("pending") << int(ui::StepBar::Pending) << int(Tone::Text2) << int(Tone::Text3);
  QTest::newRow("running") << int(ui::StepBar::Running) << int(Tone::Text) << int(Tone::Text3);
  QTest::newRow("done") << int(ui::StepBar::Done) << int(Tone::Text) << int(Tone::Text);
}

void TestSteps::rowStates() {
  QFETCH(int, state);
  QFETCH(int, title);
  QFETCH(int, value);
  Row row;
  for (const bool dark : {true, false}) {
    setLook(dark);
    row.set(ui::StepBar::State(state), u"1.2 GB"_s);
    const auto name = [](int tone) { return Theme::get().tone(Tone(tone)).name(); };
    QCOMPARE(int(row.bar->state()), state);
    QCOMPARE(row.value->text(), u"1.2 GB"_s);
    QCOMPARE(row.title->styleSheet(), u"font-weight: 500; color: %1;"_s.arg(name(title)));
    QCOMPARE(row.value->styleSheet(), u"color: %1;"_s.arg(name(value)));
    QCOMPARE(row.isActive(), state == ui::StepBar::Running);
  }
}

void TestSteps::rowRepaintsWhenItsStateChanges() {
  auto* row = new Row;
  for (QWidget* part : row->findChildren<QWidget*>()) part->hide(); // whose repaints are the row's too
  Sentinel sentinel(row);
  QVERIFY(sentinel.settles());
  row->set(ui::StepBar::Running, u"…"_s);
  QVERIFY(sentinel.pending() > 0);
  row->set(ui::StepBar::Running, u"4 MB"_s);
  QCOMPARE(row->value->text(), u"4 MB"_s);
  QCOMPARE(sentinel.pending(), 0);
  row->set(ui::StepBar::Done, u"5 MB"_s);
  QVERIFY(sentinel.pending() > 0);
  row->set(ui::StepBar::Pending, u"—"_s); // neither stands out
  QCOMPARE(sentinel.pending(), 0);
}

void TestSteps::rowPaints() {
  Row row;
  row.resize(400, 50);
  for (const bool dark : {true, false}) {
    setLook(dark);
    row.set(ui::StepBar::Pending, {});
    QCOMPARE(rendered(row).pixelColor(200, 2).alpha(), 0);
    row.set(ui::StepBar::Running, {});
    QVERIFY(isNear(rendered(row).pixelColor(200, 2), Theme::get().cardHover));
    QCOMPARE(rendered(row).pixelColor(1, 1).alpha(), 0); // round
    QVERIFY(isNear(rendered(row).pixelColor(0, 25), Theme::get().cardHover));
    row.set(ui::StepBar::Done, {});
    QCOMPARE(rendered(row).pixelColor(200, 2).alpha(), 0);
  }
}

void TestSteps::rowIsReadOut() {
  Row row;
  QCOMPARE(face(&row)->text(QAccessible::Name), u"App caches"_s);
  QCOMPARE(face(&row)->text(QAccessible::Value), u"Waiting"_s);
  row.set(ui::StepBar::Running, u"…"_s);
  QCOMPARE(face(&row)->text(QAccessible::Value), u"In progress"_s);
  QVERIFY(face(&row)->state().busy);
  row.set(ui::StepBar::Done, u"1.2 GB"_s);
  QCOMPARE(face(&row)->text(QAccessible::Value), u"Done, 1.2 GB"_s);
  QCOMPARE(face(row.bar)->text(QAccessible::Name), u"App caches"_s);
}

void TestSteps::looksDontHangOnTheMetricSet() {
  Row row;
  row.resize(400, 50);
  row.set(ui::StepBar::Running, u"…"_s);
  Theme::get().mac = true;
  const QImage mac = rendered(row);
  Theme::get().mac = false;
  QCOMPARE(rendered(row), mac);
  Theme::get().mac = true;
}

int main(int argc, char** argv) { return uitest::run<TestSteps>(argc, argv); }

#include "tst_Steps.moc"
