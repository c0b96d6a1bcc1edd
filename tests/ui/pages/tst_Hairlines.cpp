// Lines of a pixel on screens of all scales: as many whole pixels on every side of a control, wherever it lies.

#include "engines/categories.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/Note.h"
#include "ui/controls/Segmented.h"
#include "ui/pages/CategoryTile.h"
#include "ui/pages/Chip.h"

#include <QLabel>

#include <cmath>
#include <iterator>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor kGround(250, 240, 230);

using Made = std::unique_ptr<QWidget>;

Made card() { return std::make_unique<ui::Card>(); }
Made chip() { return std::make_unique<ui::Chip>(new QLabel); }
Made tile() { return std::make_unique<ui::IconTile>(QString(), Qt::red, 30); }
Made note() { return std::make_unique<ui::Note>(ui::Note::Neutral, QString(), QString()); }
Made segments() { return std::make_unique<ui::Segmented>(QStringList{}); }
Made category() { return std::make_unique<ui::CategoryTile>(CategoryDef(), QString()); }

constexpr struct {
  const char* name;
  Made (*make)();
} kFramed[] = {{"card", card}, {"chip", chip},         {"tile", tile},
               {"note", note}, {"segments", segments}, {"category", category}};

constexpr double kRatios[] = {1, 1.25, 1.5, 1.75, 2};

/// How many pixels lie on the way into a picture between the ground and where a control's fill begins.
int lineWidth(const QImage& image, QPoint at, const QPoint& step) {
  while (image.pixelColor(at) == kGround) at += step;
  int width = 0;
  for (; image.pixelColor(at) != image.pixelColor(at + step); at += step) ++width;
  return width;
}

} // namespace

class TestHairlines : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }

  void frames_data();
  void frames();
  void dividers_data();
  void dividers();
};

void TestHairlines::frames_data() {
  QTest::addColumn<int>("control");
  QTest::addColumn<double>("ratio");
  QTest::addColumn<bool>("dark");
  for (int i = 0; i < int(std::size(kFramed)); ++i)
    for (const double ratio : kRatios)
      for (const bool dark : {false, true})
        QTest::addRow("%s at %g, %s", kFramed[i].name, ratio, dark ? "dark" : "light") << i << ratio << dark;
}

void TestHairlines::frames() {
  QFETCH(int, control);
  QFETCH(double, ratio);
  QFETCH(bool, dark);
  pixels::setLook(dark);
  for (int at = 0; at < 8; ++at) {
    QWidget parent;
    parent.resize(160, 120);
    parent.setPalette(kGround);
    QWidget* shown = kFramed[control].make().release();
    shown->setParent(&parent);
    shown->setGeometry(7 + at, 9 + at, shown->maximumWidth() < 100 ? shown->width() : 100 + at, 40);
    QImage image(parent.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    parent.render(&image);
    const QPoint middle = (QRectF(shown->geometry()).center() * ratio).toPoint();
    const int wanted = int(std::floor(ratio));
    QCOMPARE(lineWidth(image, {0, middle.y()}, {1, 0}), wanted);
    QCOMPARE(lineWidth(image, {image.width() - 1, middle.y()}, {-1, 0}), wanted);
    QCOMPARE(lineWidth(image, {middle.x(), 0}, {0, 1}), wanted);
    QCOMPARE(lineWidth(image, {middle.x(), image.height() - 1}, {0, -1}), wanted);
  }
}

void TestHairlines::dividers_data() {
  QTest::addColumn<double>("ratio");
  for (const double ratio : kRatios) QTest::addRow("%g", ratio) << ratio;
}

// A list of them looks as if drawn with one pen.
void TestHairlines::dividers() {
  QFETCH(double, ratio);
  pixels::setLook(false);
  QWidget parent;
  parent.resize(60, 200);
  parent.setPalette(kGround);
  for (int i = 0; i < 9; ++i) (new ui::Divider(&parent))->setGeometry(10, 10 + i * 19, 40, 1);
  QImage image(parent.size() * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  parent.render(&image);
  const QColor line = pixels::over(Theme::get().line, kGround);
  int lined = 0;
  for (int y = 0; y < image.height(); ++y) {
    const QColor seen = image.pixelColor(int(30 * ratio), y);
    if (pixels::isNear(seen, kGround)) continue;
    QVERIFY2(pixels::isNear(seen, line), qPrintable(seen.name()));
    ++lined;
  }
  QCOMPARE(lined, 9 * int(std::floor(ratio)));
}

int main(int argc, char** argv) { return uitest::run<TestHairlines>(argc, argv); }

#include "tst_Hairlines.moc"
