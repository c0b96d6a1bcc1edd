#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/FooterBar.h"

#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::StringLiterals;
using pixels::rendered;
using pixels::setLook;

namespace {

/// What these alphas, of 255, make together where they lie on each other.
double stacked(int alpha, int layers) {
  double clear = 1;
  for (int layer = 0; layer < layers; ++layer) clear *= 1 - alpha / 255.0;
  return (1 - clear) * 255;
}

} // namespace

class TestFooterBar : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() {
    Theme::get().mac = true;
    setLook(false);
  }

  void body();
  void row_data();
  void row();
  void rowMirrored();
  void rowLiesInTheBody_data();
  void rowLiesInTheBody();
  void bodyAndEdge_data();
  void bodyAndEdge();
  void shadow_data();
  void shadow();
};

void TestFooterBar::body() {
  QCOMPARE(ui::footerBody({400, 94}, true), QRectF(28.5, 12.5, 343, 61));
  QCOMPARE(ui::footerBody({400, 94}, false), QRectF(32.5, 12.5, 335, 61));
}

void TestFooterBar::row_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<QMargins>("margins");
  QTest::newRow("mac") << true << QMargins(48, 24, 40, 32);
  QTest::newRow("win") << false << QMargins(52, 24, 44, 32);
}

void TestFooterBar::row() {
  QFETCH(bool, mac);
  QFETCH(QMargins, margins);
  Theme::get().mac = mac;
  const ui::FooterBar bar;
  QCOMPARE(bar.layout(), bar.row());
  QCOMPARE(bar.row()->contentsMargins(), margins);
  QCOMPARE(bar.row()->spacing(), 18);
}

void TestFooterBar::rowMirrored() {
  const pixels::Mirrored mirrored;
  QCOMPARE(ui::FooterBar().row()->contentsMargins(), QMargins(40, 24, 48, 32));
}

void TestFooterBar::rowLiesInTheBody_data() { row_data(); }

void TestFooterBar::rowLiesInTheBody() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  ui::FooterBar bar;
  auto* child = new QWidget;
  child->setFixedHeight(38);
  bar.row()->addWidget(child);
  bar.resize(400, bar.sizeHint().height());
  QCOMPARE(bar.height(), 24 + 38 + 32);
  bar.layout()->activate();
  const QRectF body = ui::footerBody(bar.size(), mac);
  QVERIFY(body.contains(QRectF(child->geometry())));
  // As much above it as below, but for the half pixel of the edge.
  QCOMPARE(child->y() - body.top(), 11.5);
  QCOMPARE(body.bottom() - (child->y() + child->height()), 11.5);
}

void TestFooterBar::bodyAndEdge_data() {
  QTest::addColumn<bool>("dark");
  QTest::addColumn<bool>("mac");
  QTest::newRow("dark mac") << true << true;
  QTest::newRow("light mac") << false << true;
  QTest::newRow("dark win") << true << false;
  QTest::newRow("light win") << false << false;
}

void TestFooterBar::bodyAndEdge() {
  QFETCH(bool, dark);
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  setLook(dark);
  const Theme& theme = Theme::get();
  ui::FooterBar bar;
  bar.resize(300, 94);
  const QImage image = rendered(bar);
  // Seen by itself: all layers of the shadow, and the fill over them.
  const double under = stacked(dark ? 5 : 1, 10) / 255;
  const int alpha = qRound(255 * (1 - (1 - under) * (1 - 0.94)));
  const QColor middle = image.pixelColor(150, 40);
  QVERIFY2(qAbs(middle.alpha() - alpha) <= 2, qPrintable(QString::number(middle.alpha())));
  QVERIFY(qAbs(middle.red() - theme.surface2.red()) <= 4);
  QVERIFY(qAbs(middle.blue() - theme.surface2.blue()) <= 4);
  // Its left edge, a hairline of one pixel, half over the fill.
  const int side = mac ? 28 : 32;
  QImage edge(1, 1, QImage::Format_ARGB32);
  edge.fill(Qt::transparent);
  {
    QColor half = theme.surface2;
    half.setAlphaF(0.94F / 2);
    QPainter painter(&edge);
    for (int layer = 0; layer < 10; ++layer)
      painter.fillRect(0, 0, 1, 1, dark ? QColor(0, 0, 0, 5) : QColor(15, 23, 42, 1));
    painter.fillRect(0, 0, 1, 1, half);
    painter.fillRect(0, 0, 1, 1, dark ? theme.lineStrong : theme.line);
  }
  const QColor seen = image.pixelColor(side, 40);
  const QColor wanted = edge.pixelColor(0, 0);
  QVERIFY2(qAbs(seen.alpha() - wanted.alpha()) <= 6 && qAbs(seen.red() - wanted.red()) <= 8,
           qPrintable(seen.name(QColor::HexArgb) + wanted.name(QColor::HexArgb)));
  // Round corners: at (4, 4) inside of the body's corner there is only shadow.
  QVERIFY(image.pixelColor(side + 3, 12 + 3).alpha() < 60);
}

void TestFooterBar::shadow_data() {
  QTest::addColumn<bool>("dark");
  QTest::addColumn<int>("alpha");
  QTest::newRow("dark") << true << 5;
  QTest::newRow("light") << false << 1;
}

void TestFooterBar::shadow() {
  QFETCH(bool, dark);
  QFETCH(int, alpha);
  setLook(dark);
  ui::FooterBar bar;
  bar.resize(300, 94);
  const QImage image = rendered(bar);
  // The body ends at 73.5, the layers 2 and i below it. Pixel y is covered whole by those that end at y + 1 or later.
  for (const int y : {76, 79, 82, 85}) {
    int layers = 0;
    double partly = 0;
    for (int i = 1; i <= 10; ++i) {
      const double end = 75.5 + i;
      if (end >= y + 1)
        ++layers;
      else if (end > y)
        partly = end - y;
    }
    const double wanted = stacked(alpha, layers) + partly * alpha;
    QVERIFY2(qAbs(image.pixelColor(150, y).alpha() - wanted) <= 2,
             qPrintable(u"%1: %2, not %3"_s.arg(y).arg(image.pixelColor(150, y).alpha()).arg(wanted)));
  }
  QVERIFY(image.pixelColor(150, 76).alpha() >= 8 * alpha - 2);
  QCOMPARE(image.pixelColor(150, 86).alpha(), 0);
  // It falls down.
  QVERIFY(image.pixelColor(150, 76).alpha() > image.pixelColor(150, 9).alpha());
}

int main(int argc, char** argv) { return uitest::run<TestFooterBar>(argc, argv); }

#include "tst_FooterBar.moc"
