#include "ui/paint.h"

#include "support/uitest.h"

#include <QImage>
#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace ui::paint;

namespace {

template <typename Paint>
QImage painted(const QSize& size, Paint&& paint) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  paint(&painter);
  return image;
}

/// As on a screen with so many pixels for each.
template <typename Paint>
QImage scaled(double ratio, Paint&& paint) {
  return painted(QSize(64, 64) * ratio, [&](QPainter* painter) {
    painter->scale(ratio, ratio);
    paint(painter);
  });
}

/// What lies on the way through a picture: the lengths of the pieces of wholly blue pixels; 0 for nothing at all, -1
/// for wholly red, -2 for anything mixed.
QList<int> runs(const QImage& image, QPoint at, const QPoint& step) {
  QList<int> found;
  QRgb before = 1;
  for (; image.rect().contains(at); at += step) {
    const QRgb seen = image.pixel(at);
    if (seen == qRgb(0, 0, 255) && seen == before)
      ++found.last();
    else if (seen != before)
      found << (seen == 0 ? 0 : seen == qRgb(0, 0, 255) ? 1 : seen == qRgb(255, 0, 0) ? -1 : -2);
    before = seen;
  }
  return found;
}

} // namespace

class TestPaint : public QObject {
  Q_OBJECT

 private slots:
  void alphaIsReplaced();
  void hairlineIsHalfAPixelInside();
  void pens();
  void hairlineBorderIsCrisp();
  void mirroredRectangles();
  void textsReadInTheirOwnDirection_data();
  void textsReadInTheirOwnDirection();
  void textFromAPointReadsInItsOwnDirection();
  void outlinesAreWholePixels_data();
  void outlinesAreWholePixels();
  void outlineStaysInside_data();
  void outlineStaysInside();
  void linesAreWholePixels_data();
  void linesAreWholePixels();
  void linesMeet();
  void turnedPaintersAreLeftAlone();
  void roundedRectWithoutOutline();
  void shadowLayers_data();
  void shadowLayers();
  void shadowPaintsNothingWithoutLayers();
  void arcs_data();
  void arcs();
  void arcIsDrawnClockwiseFromTheTop();
};

void TestPaint::alphaIsReplaced() {
  QCOMPARE(withAlpha(QColor(1, 2, 3, 200), 40), QColor(1, 2, 3, 40));
  QCOMPARE(withAlpha(QColor(1, 2, 3), 0), QColor(1, 2, 3, 0));
  QCOMPARE(withAlphaF(QColor(1, 2, 3, 200), 0.5).alpha(), 128);
  QCOMPARE(withAlphaF(QColor(1, 2, 3), 1).rgba(), QColor(1, 2, 3).rgba());
}

void TestPaint::hairlineIsHalfAPixelInside() { QCOMPARE(hairline(QRectF(10, 20, 30, 40)), QRectF(10.5, 20.5, 29, 39)); }

void TestPaint::pens() {
  const QPen plain = pen(Qt::red);
  QCOMPARE(plain.widthF(), 1.0);
  QCOMPARE(plain.style(), Qt::SolidLine);
  QCOMPARE(plain.capStyle(), Qt::SquareCap);
  QCOMPARE(plain.joinStyle(), Qt::BevelJoin);
  QCOMPARE(plain.color(), QColor(Qt::red));
  const QPen round = roundPen(Qt::red, 2.5);
  QCOMPARE(round.widthF(), 2.5);
  QCOMPARE(round.capStyle(), Qt::RoundCap);
  QCOMPARE(round.joinStyle(), Qt::RoundJoin);
}

void TestPaint::hairlineBorderIsCrisp() {
  const QImage image = painted({20, 20}, [](QPainter* painter) {
    roundedRect(painter, hairline(QRectF(0, 0, 20, 20)), 4, Qt::white, pen(Qt::red));
  });
  QCOMPARE(image.pixelColor(10, 0), QColor(Qt::red));
  QCOMPARE(image.pixelColor(10, 1), QColor(Qt::white));
  QCOMPARE(image.pixelColor(19, 10), QColor(Qt::red));
  QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
}

void TestPaint::mirroredRectangles() {
  const QRectF whole(10, 0, 200, 40);
  const QRectF icon(22, 12, 16, 16);
  QCOMPARE(mirrored(icon, whole, Qt::LeftToRight), icon);
  QCOMPARE(mirrored(icon, whole, Qt::RightToLeft), QRectF(182, 12, 16, 16));
  QCOMPARE(mirrored(whole, whole, Qt::RightToLeft), whole);
  QCOMPARE(mirrored(QMargins(1, 2, 3, 4), Qt::LeftToRight), QMargins(1, 2, 3, 4));
  QCOMPARE(mirrored(QMargins(1, 2, 3, 4), Qt::RightToLeft), QMargins(3, 2, 1, 4));
  QVERIFY(mirrored(QRectF(), whole, Qt::RightToLeft).isNull()); // still not there
}

void TestPaint::textsReadInTheirOwnDirection_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("flags");
  QTest::addColumn<Qt::LayoutDirection>("direction");
  QTest::addColumn<int>("result");
  const QString size = u"80 MB"_s;
  const QString hebrew = u"\u05d0\u05d1\u05d2"_s;
  const int left = Qt::AlignLeft;
  const int right = Qt::AlignRight;
  const int centre = Qt::AlignCenter;
  const int absolute = Qt::AlignAbsolute;
  const int toRight = int(Qt::TextForceLeftToRight) | absolute;
  const int toLeft = int(Qt::TextForceRightToLeft) | absolute;
  const int oneLine = Qt::TextSingleLine;
  const auto ltr = Qt::LeftToRight;
  const auto rtl = Qt::RightToLeft;
  QTest::newRow("left") << size << left << ltr << (left | toRight);
  QTest::newRow("right") << size << right << ltr << (right | toRight);
  QTest::newRow("left, mirrored") << size << left << rtl << (right | toRight);
  QTest::newRow("right, mirrored") << size << right << rtl << (left | toRight);
  QTest::newRow("centre") << size << centre << rtl << (centre | toRight);
  QTest::newRow("fixed side") << size << (left | absolute) << rtl << (left | toRight);
  QTest::newRow("one line") << size << (left | oneLine) << rtl << (right | oneLine | toRight);
  QTest::newRow("Hebrew") << hebrew << left << rtl << (right | toLeft);
  QTest::newRow("Hebrew in an English layout") << hebrew << left << ltr << (left | toRight);
}

void TestPaint::textsReadInTheirOwnDirection() {
  QFETCH(QString, text);
  QFETCH(int, flags);
  QFETCH(Qt::LayoutDirection, direction);
  QTEST(textFlags(text, flags, direction), "result");
}

void TestPaint::textFromAPointReadsInItsOwnDirection() {
  const auto drawn = [](Qt::LayoutDirection direction) {
    return painted({90, 30}, [&](QPainter* painter) {
      painter->setLayoutDirection(direction);
      text(painter, QPointF(5, 20), u"80 MB"_s);
      QCOMPARE(painter->layoutDirection(), direction);
    });
  };
  QCOMPARE(drawn(Qt::RightToLeft), drawn(Qt::LeftToRight));
}

void TestPaint::outlinesAreWholePixels_data() {
  QTest::addColumn<double>("ratio");
  QTest::addColumn<int>("width");
  QTest::newRow("1") << 1.0 << 1;
  QTest::newRow("1.25") << 1.25 << 1;
  QTest::newRow("1.5") << 1.5 << 1;
  QTest::newRow("1.75") << 1.75 << 1;
  QTest::newRow("2") << 2.0 << 2;
  QTest::newRow("2.5") << 2.5 << 2;
}

// Wherever it lies: on every side as many pixels of its colour, with nothing mixed beside them.
void TestPaint::outlinesAreWholePixels() {
  QFETCH(double, ratio);
  QFETCH(int, width);
  for (int at = 0; at < 8; ++at) {
    const QRectF rect(3 + at, 5 + at, 40, 20 + at);
    const QImage image =
        scaled(ratio, [&](QPainter* painter) { roundedRect(painter, hairline(rect), 4, Qt::red, pen(Qt::blue)); });
    const QPoint middle = (rect.center() * ratio).toPoint();
    QCOMPARE(runs(image, {0, middle.y()}, {1, 0}), (QList<int>{0, width, -1, width, 0}));
    QCOMPARE(runs(image, {middle.x(), 0}, {0, 1}), (QList<int>{0, width, -1, width, 0}));
  }
}

void TestPaint::outlineStaysInside_data() { outlinesAreWholePixels_data(); }

void TestPaint::outlineStaysInside() {
  QFETCH(double, ratio);
  QFETCH(int, width);
  for (int at = 0; at < 8; ++at) {
    const QRectF rect(3 + at, 5 + at, 40, 20 + at);
    (void)scaled(ratio, [&](QPainter* painter) {
      const Outline outline = outlineOn(painter, rect);
      QVERIFY(qAbs(outline.width * ratio - width) < 1e-6);
      const double half = outline.width / 2;
      const QRectF outside = outline.path.adjusted(-half, -half, half, half);
      QVERIFY(rect.adjusted(-1e-3, -1e-3, 1e-3, 1e-3).contains(outside));
      QVERIFY(outside.width() * ratio > rect.width() * ratio - 2);
      if (ratio == 1 || ratio == 2) QCOMPARE(outline.path, hairline(rect));
    });
  }
}

void TestPaint::linesAreWholePixels_data() { outlinesAreWholePixels_data(); }

void TestPaint::linesAreWholePixels() {
  QFETCH(double, ratio);
  QFETCH(int, width);
  for (const bool smooth : {false, true})
    for (int at = 0; at < 8; ++at) {
      const QImage image = scaled(ratio, [&](QPainter* painter) {
        painter->setRenderHint(QPainter::Antialiasing, smooth);
        line(painter, QRectF(4, 5 + at, 20, 1), Qt::blue);
        line(painter, QRectF(30 + at, 5, 1, 20), Qt::blue);
      });
      QCOMPARE(runs(image, {int(10 * ratio), 0}, {0, 1}), (QList<int>{0, width, 0}));
      QCOMPARE(runs(image, {int(26 * ratio), int(15 * ratio)}, {1, 0}), (QList<int>{0, width, 0}));
    }
}

void TestPaint::linesMeet() {
  for (int at = 0; at < 8; ++at) {
    const QImage image = scaled(1.25, [&](QPainter* painter) {
      line(painter, QRectF(4, 9, 10 + at, 1), QColor(0, 0, 255, 100));
      line(painter, QRectF(14 + at, 9, 20, 1), QColor(0, 0, 255, 100));
    });
    for (int x = 6; x < 40; ++x) QCOMPARE(image.pixelColor(x, 11).alpha(), 100);
  }
}

void TestPaint::turnedPaintersAreLeftAlone() {
  (void)scaled(1.25, [](QPainter* painter) {
    painter->rotate(20);
    QCOMPARE(outlineOn(painter, QRectF(3, 3, 10, 10)).path, QRectF(3.5, 3.5, 9, 9));
  });
}

void TestPaint::roundedRectWithoutOutline() {
  const QImage image =
      painted({20, 20}, [](QPainter* painter) { roundedRect(painter, QRectF(2, 2, 16, 16), 4, Qt::blue); });
  QCOMPARE(image.pixelColor(2, 10), QColor(Qt::blue));
  QCOMPARE(image.pixelColor(1, 10).alpha(), 0);
}

// The tool tip's and the popup's: 8 layers of 40 or 18 two pixels down, 14 layers of 46 or 26 four pixels down.
void TestPaint::shadowLayers_data() {
  QTest::addColumn<int>("layers");
  QTest::addColumn<int>("peak");
  QTest::addColumn<int>("offset");
  QTest::newRow("tip, dark") << 8 << 40 << 2;
  QTest::newRow("tip, light") << 8 << 18 << 2;
  QTest::newRow("popup, dark") << 14 << 46 << 4;
  QTest::newRow("popup, light") << 14 << 26 << 4;
}

void TestPaint::shadowLayers() {
  QFETCH(int, layers);
  QFETCH(int, peak);
  QFETCH(int, offset);
  const QRectF body(30, 30, 60, 60);
  const Shadow options{.layers = layers, .offsetY = double(offset), .radius = 8, .colour = Qt::black, .peak = peak};
  const QImage image = painted({120, 130}, [&](QPainter* painter) { shadow(painter, body, options); });
  // From the middle of the lower edge down, a pixel is under all layers that grow beyond it.
  for (int below = 0; below < layers + offset + 3; ++below) {
    double clear = 1;
    for (int k = 1; k <= layers; ++k) {
      const double fade = 1 - double(k) / layers;
      if (offset + k > below) clear *= 1 - int(peak * fade * fade) / 255.0;
    }
    const int wanted = qRound((1 - clear) * 255);
    const int is = image.pixelColor(60, 90 + below).alpha();
    QVERIFY2(qAbs(is - wanted) <= 2, qPrintable(QStringLiteral("%1 below: %2, not %3").arg(below).arg(is).arg(wanted)));
  }
}

void TestPaint::shadowPaintsNothingWithoutLayers() {
  const QImage image =
      painted({40, 40}, [](QPainter* painter) { shadow(painter, QRectF(10, 10, 20, 20), {.layers = 0, .peak = 200}); });
  QCOMPARE(image.pixelColor(20, 20).alpha(), 0);
}

void TestPaint::arcs_data() {
  QTest::addColumn<double>("start");
  QTest::addColumn<double>("span");
  QTest::addColumn<int>("startAngle");
  QTest::addColumn<int>("spanAngle");
  QTest::newRow("whole turn") << 0.0 << 1.0 << 1440 << -5760;
  QTest::newRow("first quarter") << 0.0 << 0.25 << 1440 << -1440;
  QTest::newRow("from 3 o'clock") << 0.25 << 0.5 << 0 << -2880;
  QTest::newRow("from 9 o'clock") << 0.75 << 0.25 << -2880 << -1440;
  QTest::newRow("nothing") << 0.5 << 0.0 << -1440 << 0;
  QTest::newRow("truncated, not rounded") << 0.00017 << 0.00017 << 1439 << 0;
}

void TestPaint::arcs() {
  QFETCH(double, start);
  QFETCH(double, span);
  const ArcAngles angles = arcInTurns(start, span);
  QTEST(angles.start, "startAngle");
  QTEST(angles.span, "spanAngle");
}

void TestPaint::arcIsDrawnClockwiseFromTheTop() {
  const QImage image = painted({100, 100}, [](QPainter* painter) {
    painter->setPen(QPen(Qt::black, 6));
    const ArcAngles quarter = arcInTurns(0, 0.25);
    painter->drawArc(QRectF(10, 10, 80, 80), quarter.start, quarter.span);
  });
  QVERIFY(image.pixelColor(78, 22).alpha() > 200); // half past one
  QCOMPARE(image.pixelColor(22, 22).alpha(), 0);
  QCOMPARE(image.pixelColor(78, 78).alpha(), 0);
}

int main(int argc, char** argv) { return uitest::run<TestPaint>(argc, argv); }

#include "tst_paint.moc"
