// The painted texts: the heading with a shining part, and the line in a gradient.

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/GradientText.h"
#include "ui/controls/Headline.h"

#include <QAccessible>
#include <QTextLayout>
#include <QVBoxLayout>

#include <cmath>

using namespace Qt::StringLiterals;
using pixels::rendered;
using pixels::setLook;
using ui::GradientText;
using ui::Headline;

namespace {

/// The colour of the strongest ink in the columns from @p left to @p right.
QColor ink(const QImage& image, int left, int right) {
  QColor strongest(0, 0, 0, 0);
  for (int x = qMax(left, 0); x < qMin(right, image.width()); ++x)
    for (int y = 0; y < image.height(); ++y)
      if (image.pixelColor(x, y).alpha() > strongest.alpha()) strongest = image.pixelColor(x, y);
  return strongest;
}

bool isNear(const QColor& a, const QColor& b, int slack = 24) {
  return qAbs(a.red() - b.red()) <= slack && qAbs(a.green() - b.green()) <= slack && qAbs(a.blue() - b.blue()) <= slack;
}

QFont headlineFont() { return Theme::get().font(30, 600); }

/// The height of a text in lines of this width.
int heightOf(const QString& text, double width) {
  QTextLayout layout(text, headlineFont());
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  double height = 0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    height += line.height();
  }
  layout.endLayout();
  return int(std::ceil(height));
}

const QString kLong = u"A heading so long that it takes more than one line wherever it is shown"_s;

} // namespace

class TestHeadline : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void accent_data();
  void accent();
  void policy();
  void sizesOfOneLine();
  void sizesOfALongText();
  void heightFollowsTheWidth();
  void neverLaidOutBelow80();
  void paintsInkAndShine();
  void standsAtTheRightIfMirrored();
  void withoutAccentNothingShines();
  void wrapsWhereItIsPainted();
  void givesWayInALayout();
  void isReadOut();

  void gradientSizes();
  void gradientBox();
  void gradientStops_data();
  void gradientStops();
  void gradientTextReadsInItsOwnDirection();
  void gradientIsCentred();
  void gradientIsReadOut();
};

void TestHeadline::accent_data() {
  QTest::addColumn<QString>("format");
  QTest::addColumn<QString>("value");
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("start");
  QTest::addColumn<int>("length");
  QTest::newRow("at the start") << u"%1 ready to clean"_s << u"12 GB"_s << u"12 GB ready to clean"_s << 0 << 5;
  QTest::newRow("inside") << u"There are %1 left"_s << u"12 GB"_s << u"There are 12 GB left"_s << 10 << 5;
  QTest::newRow("the first only") << u"%1 and %1"_s << u"A"_s << u"A and %1"_s << 0 << 1;
  QTest::newRow("a value like a place") << u"x %1 y"_s << u"%1"_s << u"x %1 y"_s << 2 << 2;
  QTest::newRow("none") << u"Keep your disk in shape"_s << u"12 GB"_s << u"Keep your disk in shape"_s << 0 << 0;
  QTest::newRow("empty value") << u"a %1"_s << QString() << u"a "_s << 2 << 0;
}

void TestHeadline::accent() {
  QFETCH(QString, format);
  QFETCH(QString, value);
  QFETCH(QString, text);
  QFETCH(int, start);
  QFETCH(int, length);
  Headline headline(30);
  QCOMPARE(headline.accentStart(), 0);
  QCOMPARE(headline.accentLength(), 0);
  headline.set(u"abc %1 def"_s, u"before"_s);
  headline.set(format, value);
  QCOMPARE(headline.text(), text);
  QCOMPARE(headline.accentStart(), start);
  QCOMPARE(headline.accentLength(), length);
}

void TestHeadline::policy() {
  const Headline headline(30);
  QCOMPARE(headline.sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
  QCOMPARE(headline.sizePolicy().verticalPolicy(), QSizePolicy::MinimumExpanding);
  QVERIFY(headline.sizePolicy().hasHeightForWidth());
}

void TestHeadline::sizesOfOneLine() {
  Headline headline(30);
  headline.set(u"%1 ready"_s, u"12 GB"_s);
  const QFontMetrics metrics(headlineFont());
  const int width = metrics.horizontalAdvance(u"12 GB ready"_s) + 2;
  QCOMPARE(headline.sizeHint(), QSize(width, heightOf(u"12 GB ready"_s, width)));
  QVERIFY(qAbs(headline.sizeHint().height() - metrics.height()) <= 1); // one line
  QCOMPARE(headline.minimumSizeHint(), QSize(120, metrics.lineSpacing()));
}

void TestHeadline::sizesOfALongText() {
  Headline headline(30);
  headline.set(kLong);
  QVERIFY(QFontMetrics(headlineFont()).horizontalAdvance(kLong) > 518);
  QCOMPARE(headline.sizeHint(), QSize(520, heightOf(kLong, 520)));
}

void TestHeadline::heightFollowsTheWidth() {
  Headline headline(30);
  headline.set(kLong);
  for (const int width : {80, 150, 300, 700}) QCOMPARE(headline.heightForWidth(width), heightOf(kLong, width));
  QVERIFY(headline.heightForWidth(300) >= 2 * headline.heightForWidth(2000));
}

void TestHeadline::neverLaidOutBelow80() {
  Headline headline(30);
  headline.set(kLong);
  QCOMPARE(headline.heightForWidth(79), headline.heightForWidth(80));
  QCOMPARE(headline.heightForWidth(0), headline.heightForWidth(80));
  QVERIFY(headline.heightForWidth(80) > headline.heightForWidth(120));
}

void TestHeadline::paintsInkAndShine() {
  Headline headline(30);
  headline.set(u"MMMM %1"_s, u"MMMMMMMM"_s);
  headline.resize(headline.sizeHint());
  const QFontMetrics metrics(headlineFont());
  const int begin = metrics.horizontalAdvance(u"MMMM "_s);
  const int end = metrics.horizontalAdvance(u"MMMM MMMMMMMM"_s);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const QImage image = rendered(headline);
    QVERIFY(isNear(ink(image, 0, begin - 8), Theme::get().text, 4));
    // From one end of the gradient to the other, over the shining part alone.
    const QColor first = ink(image, begin, begin + 12);
    const int low = metrics.ascent() * 3 / 4;
    const QColor last = ink(image.copy(0, low, image.width(), image.height() - low), end - 12, end);
    QVERIFY2(first.green() > 190 && first.red() < 50 && first.blue() > 220, qPrintable(first.name()));
    QVERIFY2(last.red() > 120 && last.green() < 100 && last.blue() > 200, qPrintable(last.name()));
  }
}

void TestHeadline::standsAtTheRightIfMirrored() {
  Headline headline(30);
  headline.set(u"%1 free"_s, u"12 GB"_s);
  headline.resize(600, 40);
  QCOMPARE(ink(rendered(headline), 300, 600).alpha(), 0);
  headline.setLayoutDirection(Qt::RightToLeft);
  const QImage mirrored = rendered(headline);
  QCOMPARE(ink(mirrored, 0, 300).alpha(), 0);
  QVERIFY(isNear(ink(mirrored, 580, 600), Theme::get().text)); // the last word, in the text's own order
}

void TestHeadline::withoutAccentNothingShines() {
  Headline headline(30);
  headline.set(u"MMMM MMMM"_s, u"MMMM"_s);
  headline.resize(headline.sizeHint());
  const QImage image = rendered(headline);
  for (int x = 0; x < image.width(); ++x)
    for (int y = 0; y < image.height(); ++y)
      if (const QColor colour = image.pixelColor(x, y); colour.alpha() > 200)
        QVERIFY(isNear(colour, Theme::get().text, 4));
}

void TestHeadline::wrapsWhereItIsPainted() {
  Headline headline(30);
  headline.set(u"MMMM %1"_s, u"MMMM"_s);
  const int width = headline.sizeHint().width() * 2 / 3;
  headline.resize(width, headline.heightForWidth(width));
  const QImage image = rendered(headline);
  const int half = image.height() / 2;
  QVERIFY(isNear(ink(image.copy(0, 0, width, half), 0, width), Theme::get().text, 4));
  const QColor second = ink(image.copy(0, half, width, half), 0, width);
  QVERIFY(second.alpha() > 200);
  QVERIFY(!isNear(second, Theme::get().text, 4));
}

void TestHeadline::givesWayInALayout() {
  QWidget window;
  auto* column = new QVBoxLayout(&window);
  column->setContentsMargins({});
  auto* headline = new Headline(30);
  headline->set(kLong);
  column->addWidget(headline);
  auto* below = new QWidget;
  below->setFixedHeight(10);
  column->addWidget(below);
  QCOMPARE(column->minimumSize().width(), 120);
  QCOMPARE(column->sizeHint().width(), 520);
  window.resize(200, column->heightForWidth(200));
  window.show();
  QCOMPARE(headline->width(), 200);
  QVERIFY(headline->height() >= heightOf(kLong, 200)); // all of its lines are seen
}

void TestHeadline::isReadOut() {
  Headline headline(30);
  headline.set(u"%1 ready"_s, u"12 GB"_s);
  const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&headline);
  QVERIFY(face);
  QCOMPARE(face->role(), QAccessible::StaticText);
  QCOMPARE(face->text(QAccessible::Name), u"12 GB ready"_s);
}

void TestHeadline::gradientSizes() {
  const QFont font = Theme::get().mono(54, 600);
  GradientText text(font);
  QVERIFY(text.stops.isEmpty());
  QCOMPARE(text.sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
  QCOMPARE(text.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
  QCOMPARE(text.sizeHint(), QSize(4, QFontMetrics(font).height()));
  text.setText(u"12.4 GB"_s);
  QCOMPARE(text.sizeHint(), QSize(QFontMetrics(font).horizontalAdvance(u"12.4 GB"_s) + 4, QFontMetrics(font).height()));
}

void TestHeadline::gradientBox() {
  QCOMPARE(ui::gradientTextBox({201, 40}, 100), QRectF(50.5, 0, 100, 40));
  QCOMPARE(ui::gradientTextBox({80, 40}, 100), QRectF(-10, 0, 100, 40));
}

void TestHeadline::gradientStops_data() {
  QTest::addColumn<QList<QColor>>("stops");
  QTest::addColumn<QColor>("first");
  QTest::addColumn<QColor>("middle");
  QTest::addColumn<QColor>("last");
  const QColor red(255, 0, 0);
  const QColor green(0, 255, 0);
  const QColor blue(0, 0, 255);
  const QColor cyan(0x22, 0xd3, 0xee);
  const QColor indigo(0x5d, 0x70, 0xf1); // half way, a little before the middle stop
  const QColor purple(0xa8, 0x55, 0xf7);
  QTest::newRow("none") << QList<QColor>() << cyan << indigo << purple;
  QTest::newRow("one") << QList<QColor>{red} << cyan << indigo << purple;
  QTest::newRow("two") << QList<QColor>{red, blue} << red << QColor(128, 0, 128) << blue;
  QTest::newRow("three") << QList<QColor>{red, green, blue} << red << green << blue;
}

// A text of one height and without gaps, as good as a bar: the ink at a place is the gradient's colour there.
void TestHeadline::gradientStops() {
  QFETCH(QList<QColor>, stops);
  QFETCH(QColor, first);
  QFETCH(QColor, middle);
  QFETCH(QColor, last);
  GradientText text(Theme::get().mono(20, 600));
  text.setText(QString(60, u'\u2588')); // full blocks
  text.stops = stops;
  text.resize(text.sizeHint().width() + 40, text.sizeHint().height());
  const QImage image = rendered(text);
  const int width = text.sizeHint().width() - 4;
  const auto at = [&](double share) { return image.pixelColor(22 + int(width * share), image.height() / 2); };
  QVERIFY2(isNear(at(0.01), first), qPrintable(at(0.01).name()));
  QVERIFY2(isNear(at(0.5), middle), qPrintable(at(0.5).name()));
  QVERIFY2(isNear(at(0.99), last), qPrintable(at(0.99).name()));
}

void TestHeadline::gradientTextReadsInItsOwnDirection() {
  GradientText text(Theme::get().font(20, 600));
  text.setText(u"80 MB"_s);
  text.resize(200, 40);
  const QImage here = rendered(text);
  const pixels::Mirrored mirrored;
  QCOMPARE(rendered(text), here);
}

void TestHeadline::gradientIsCentred() {
  GradientText text(Theme::get().font(20, 600));
  text.setText(u"HH"_s);
  text.resize(text.sizeHint().width() + 100, text.sizeHint().height() + 20);
  const QImage image = rendered(text);
  int left = image.width();
  int right = 0;
  for (int x = 0; x < image.width(); ++x)
    if (ink(image, x, x + 1).alpha() > 128) {
      left = qMin(left, x);
      right = x;
    }
  QVERIFY(left > 40);
  QVERIFY(qAbs(left - (image.width() - 1 - right)) <= 2);
}

void TestHeadline::gradientIsReadOut() {
  GradientText text(Theme::get().font(20, 600));
  text.setText(u"12.4 GB"_s);
  const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&text);
  QVERIFY(face);
  QCOMPARE(face->role(), QAccessible::StaticText);
  QCOMPARE(face->text(QAccessible::Name), u"12.4 GB"_s);
  text.setAccessibleName(u"Freed: 12.4 GB"_s);
  QCOMPARE(face->text(QAccessible::Name), u"Freed: 12.4 GB"_s);
}

int main(int argc, char** argv) { return uitest::run<TestHeadline>(argc, argv); }

#include "tst_Headline.moc"
