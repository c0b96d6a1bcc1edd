// The visuals in a program that goes from right to left: shapes without a direction stay as they are, with their texts;
// bars fill from the right.

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/visuals/DiskOrb.h"
#include "ui/visuals/Gauge.h"
#include "ui/visuals/ProgressRing.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/Sparkline.h"
#include "ui/visuals/StackBar.h"
#include "ui/visuals/StepBar.h"
#include "ui/visuals/Treemap.h"

#include <QHelpEvent>
#include <QToolTip>

#include <iterator>
#include <memory>

using namespace Qt::StringLiterals;
using namespace pixels;

namespace {

constexpr QColor kRed(200, 40, 60);
constexpr QColor kBlue(30, 90, 220);

using Made = std::unique_ptr<QWidget>;

Made gauge() {
  auto made = std::make_unique<ui::Gauge>();
  made->setValue(0.4);
  return made;
}

Made ring() {
  auto made = std::make_unique<ui::ProgressRing>();
  made->setText(u"80 MB"_s, u"3 of 80 GB"_s);
  return made;
}

Made radar() {
  auto made = std::make_unique<ui::Radar>();
  made->setText(u"80 MB"_s, u"3 of 80 GB"_s);
  return made;
}

Made orb() {
  auto made = std::make_unique<ui::DiskOrb>();
  made->setDisk(100, 60, 20);
  made->setCenter(u"80 MB"_s, u"3 of 80 GB"_s, u"9 to go"_s);
  return made;
}

Made treemap() {
  auto made = std::make_unique<ui::Treemap>();
  made->resize(400, 200);
  made->setItems({{.key = u"a"_s, .label = u"80 days.mov"_s, .detail = u"80 MB"_s, .bytes = 80, .color = kRed},
                  {.key = u"b"_s, .label = u"x.iso"_s, .detail = u"20 MB"_s, .bytes = 20, .color = kBlue}});
  return made;
}

Made sparkline() {
  auto made = std::make_unique<ui::Sparkline>();
  made->setValues({3, 1, 4, 1, 5, 9});
  return made;
}

constexpr struct {
  const char* name;
  Made (*make)();
} kShapes[] = {{"gauge", gauge}, {"ring", ring},       {"radar", radar},
               {"orb", orb},     {"treemap", treemap}, {"sparkline", sparkline}};

/// The columns of a picture in which something else than the track is seen at half its height.
QPair<int, int> filled(const QImage& image) {
  int first = image.width();
  int last = -1;
  for (int x = 0; x < image.width(); ++x) {
    if (isNear(image.pixelColor(x, image.height() / 2), Theme::get().track)) continue;
    first = qMin(first, x);
    last = x;
  }
  return {first, last};
}

} // namespace

class TestVisualsMirrored : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void shapesStay_data();
  void shapesStay();
  void stackBarFillsFromTheRight();
  void stackBarTellsWhatIsUnderThePointer();
  void stepBarSweepsToTheLeft();
};

void TestVisualsMirrored::shapesStay_data() {
  QTest::addColumn<int>("shape");
  for (int i = 0; i < int(std::size(kShapes)); ++i) QTest::newRow(kShapes[i].name) << i;
}

void TestVisualsMirrored::shapesStay() {
  QFETCH(int, shape);
  const auto make = kShapes[shape].make;
  const QImage here = rendered(*make());
  QVERIFY(!isBlank(here));
  const Mirrored mirrored;
  QCOMPARE(rendered(*make()), here);
}

void TestVisualsMirrored::stackBarFillsFromTheRight() {
  ui::StackBar bar(22);
  bar.resize(100, 22);
  bar.setSegments({{.bytes = 30, .colour = kRed}, {.bytes = 20, .colour = kBlue}}, 100);
  const QImage here = rendered(bar);
  const Mirrored mirrored;
  QCOMPARE(bar.layoutSegments(), QList<QRectF>({QRectF(70, 0, 30, 22), QRectF(48, 0, 20, 22)}));
  const QImage there = rendered(bar);
  for (int x = 0; x < 100; ++x) QCOMPARE(there.pixelColor(x, 11), here.pixelColor(99 - x, 11));
  bar.setSegments({{.bytes = 300, .colour = kRed}}, 100);
  QCOMPARE(bar.layoutSegments().first(), QRectF(-200, 0, 300, 22)); // what is too much is lost at the far end
}

void TestVisualsMirrored::stackBarTellsWhatIsUnderThePointer() {
  const Mirrored mirrored;
  ui::StackBar bar(22);
  bar.resize(100, 22);
  bar.setSegments({{.bytes = 30, .colour = kRed, .tip = u"Logs"_s}, {.bytes = 60, .colour = kBlue, .tip = u"Trash"_s}},
                  100);
  bar.show();
  QVERIFY(QTest::qWaitForWindowExposed(&bar));
  const auto tipAt = [&](int x) {
    QHelpEvent event(QEvent::ToolTip, {x, 11}, bar.mapToGlobal(QPoint(x, 11)));
    QApplication::sendEvent(&bar, &event);
    return QToolTip::text();
  };
  QCOMPARE(tipAt(95), u"Logs"_s);
  QCOMPARE(tipAt(20), u"Trash"_s);
  QToolTip::hideText();
  QTRY_VERIFY(!QToolTip::isVisible());
}

void TestVisualsMirrored::stepBarSweepsToTheLeft() {
  ui::StepBar bar;
  bar.resize(200, 4);
  bar.setState(ui::StepBar::Running);
  bar.show();
  QTRY_VERIFY(bar.phase() > 0.3 && bar.phase() < 0.45);
  bar.hide(); // where the band stands still
  const auto [first, last] = filled(rendered(bar));
  QVERIFY(first > 0 && last > first);
  const Mirrored mirrored;
  const auto [firstThere, lastThere] = filled(rendered(bar));
  QVERIFY2(qAbs(firstThere - (199 - last)) <= 1, qPrintable(QString::number(firstThere)));
  QVERIFY2(qAbs(lastThere - (199 - first)) <= 1, qPrintable(QString::number(lastThere)));
}

int main(int argc, char** argv) { return uitest::run<TestVisualsMirrored>(argc, argv); }

#include "tst_VisualsMirrored.moc"
