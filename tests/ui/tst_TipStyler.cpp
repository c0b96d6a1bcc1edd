#include "app/AppSettings.h"
#include "support/uitest.h"
#include "ui/Theme.h"

#include <QCursor>
#include <QLabel>
#include <QScreen>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

QLabel* tip() {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget->inherits("QTipLabel") && widget->isVisible()) return qobject_cast<QLabel*>(widget);
  return nullptr;
}

/// Shows a stock tool tip at @p position, with the pointer there.
QLabel* showTip(const QPoint& position, const QString& text = u"Some words of help"_s) {
  QToolTip::hideText();
  if (!QTest::qWaitFor([] { return !tip(); })) return nullptr;
  QCursor::setPos(position);
  QToolTip::showText(position, text);
  return tip();
}

void setLook(AppSettings::ThemeMode mode) { AppSettings::instance().setThemeMode(mode); }

/// Tells what Qt did with a tip before the filter of the theme saw it.
class MoveLog : public QObject {
 public:
  QList<QPoint> places;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Move && watched->inherits("QTipLabel"))
      places << static_cast<QWidget*>(watched)->pos();
    return false;
  }
};

} // namespace

class TestTipStyler : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    Theme::get().install(qApp);
    setLook(AppSettings::Light);
  }
  void cleanup() { QToolTip::hideText(); }

  void tipIsTranslucentAndBare();
  void ownMarginGoesAndTheTextStaysWhole();
  void wordingAndFontStay();
  void belowTheCursor();
  void aboveTheCursor();
  void ownMoveIsLeftAlone();
  void everyShowIsPlacedAnew();
  void bubbleAndShadow_data();
  void bubbleAndShadow();
  void otherLabelsPassUntouched();
};

void TestTipStyler::tipIsTranslucentAndBare() {
  const QLabel* label = showTip({300, 300});
  QVERIFY(label);
  QVERIFY(label->testAttribute(Qt::WA_TranslucentBackground));
  QVERIFY(label->windowFlags().testFlag(Qt::FramelessWindowHint));
  QVERIFY(label->windowFlags().testFlag(Qt::NoDropShadowWindowHint));
  QCOMPARE(label->windowType(), Qt::ToolTip);
  QVERIFY(label->mask().isEmpty()); // this platform blends windows
}

void TestTipStyler::ownMarginGoesAndTheTextStaysWhole() {
  const QLabel* label = showTip({300, 300});
  QVERIFY(label);
  QCOMPARE(label->margin(), 0);
  QCOMPARE(label->size(), label->sizeHint() + QSize(1, 0));
  // 8 of shadow and 5 or 10 of padding on either side.
  const QFontMetrics metrics(label->font());
  QVERIFY(qAbs(label->width() - (metrics.horizontalAdvance(label->text()) + 2 * 18)) <= 3);
  QVERIFY(qAbs(label->height() - (metrics.height() + 2 * 13)) <= 2);
}

void TestTipStyler::wordingAndFontStay() {
  const QLabel* label = showTip({300, 300}, u"A <b>bold</b> word"_s);
  QVERIFY(label);
  QCOMPARE(label->text(), u"A <b>bold</b> word"_s);
  QCOMPARE(label->font().family(), QToolTip::font().family());
  QCOMPARE(label->font().pixelSize(), QToolTip::font().pixelSize());
  QCOMPARE(label->palette().color(label->foregroundRole()), Theme::get().text);
}

void TestTipStyler::belowTheCursor() {
  MoveLog log;
  qApp->installEventFilter(&log); // filters that come later see events first
  const QLabel* label = showTip({300, 200});
  QVERIFY(label);
  QVERIFY(!log.places.isEmpty());
  QCOMPARE(label->y(), 200 + 14);
  QCOMPARE(label->x(), log.places.first().x() - 8);
}

void TestTipStyler::aboveTheCursor() {
  const QRect screen = QApplication::primaryScreen()->geometry();
  MoveLog log;
  qApp->installEventFilter(&log);
  const QLabel* label = showTip({300, screen.bottom() - 4});
  QVERIFY(label);
  QVERIFY(!log.places.isEmpty());
  QVERIFY(log.places.first().y() < screen.bottom() - 4);
  QCOMPARE(label->pos(), log.places.first() + QPoint(-8, 8));
}

void TestTipStyler::ownMoveIsLeftAlone() {
  QLabel* label = showTip({300, 200});
  QVERIFY(label);
  const QPoint placed = label->pos();
  QCOMPARE(label->property("tkPlaced").toPoint(), placed);
  QMoveEvent again(placed, placed);
  QApplication::sendEvent(label, &again);
  QCOMPARE(label->pos(), placed);
  // A move to anywhere else is Qt's, and is placed in turn.
  label->move(100, 100);
  QCOMPARE(label->pos(), QPoint(92, 108)); // above the pointer: shifted by 8 in both directions
  QCOMPARE(label->property("tkPlaced").toPoint(), label->pos());
}

void TestTipStyler::everyShowIsPlacedAnew() {
  QVERIFY(showTip({300, 200}));
  const QPoint first = tip()->pos();
  QVERIFY(showTip({500, 260}));
  QCOMPARE(tip()->pos() - first, QPoint(200, 60));
}

void TestTipStyler::bubbleAndShadow_data() {
  QTest::addColumn<AppSettings::ThemeMode>("mode");
  QTest::addColumn<int>("peak");
  QTest::newRow("dark") << AppSettings::Dark << 40;
  QTest::newRow("light") << AppSettings::Light << 18;
}

void TestTipStyler::bubbleAndShadow() {
  QFETCH(AppSettings::ThemeMode, mode);
  QFETCH(int, peak);
  setLook(mode);
  QLabel* label = showTip({300, 200}, u"A rather long line of help to have room for probes"_s);
  QVERIFY(label);
  const QImage image = label->grab().toImage().convertToFormat(QImage::Format_ARGB32);
  const int w = label->width();
  const int h = label->height();
  QCOMPARE(image.size(), QSize(w, h));

  QCOMPARE(image.pixelColor(w / 2, 10), Theme::get().surface); // inside the bubble, above the text
  QCOMPARE(image.pixelColor(0, 0).alpha(), 0);                 // the outermost corner

  // The border is a hairline in the row of pixels 8, of which the fill takes one half.
  const int border = image.pixelColor(w / 2, 8).alpha();
  QVERIFY2(border > 130 && border < 190, qPrintable(QString::number(border)));

  // Below the bubble, in the middle of an edge, all layers that reach there lie on each other. Layer k goes down to
  // 2 below the bubble and k more.
  const auto shadowAlpha = [&](int below) {
    double clear = 1;
    for (int k = 8; k >= 1; --k)
      if (k + 2 > below) clear *= 1 - int(peak * (1 - k / 8.0) * (1 - k / 8.0)) / 255.0;
    return (1 - clear) * 255;
  };
  for (const int below : {1, 3, 5, 7}) {
    const QColor probe = image.pixelColor(w / 2, h - 8 + below);
    QVERIFY2(qAbs(probe.alpha() - shadowAlpha(below)) <= 2,
             qPrintable(u"%1 below: %2, not %3"_s.arg(below).arg(probe.alpha()).arg(shadowAlpha(below))));
    QVERIFY(probe.red() <= 8 && probe.green() <= 8 && probe.blue() <= 8);
  }
  // It falls down: there is more of it below than above.
  QVERIFY(image.pixelColor(w / 2, h - 5).alpha() > image.pixelColor(w / 2, 4).alpha());
}

void TestTipStyler::otherLabelsPassUntouched() {
  QLabel label(u"words"_s, nullptr, Qt::ToolTip);
  label.setMargin(3);
  QCursor::setPos(10, 10);
  label.move(100, 120);
  label.show();
  QVERIFY(QTest::qWaitForWindowExposed(&label));
  QCOMPARE(label.pos(), QPoint(100, 120));
  QCOMPARE(label.margin(), 3);
  QVERIFY(!label.testAttribute(Qt::WA_TranslucentBackground));
  QVERIFY(!label.property("tkPlaced").isValid());
}

int main(int argc, char** argv) { return uitest::run<TestTipStyler>(argc, argv); }

#include "tst_TipStyler.moc"
