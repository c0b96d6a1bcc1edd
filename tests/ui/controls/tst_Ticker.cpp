#include "support/uitest.h"
#include "ui/controls/Ticker.h"

#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using ui::Ticker;

namespace {

/// Beats in a widget, counted.
struct Beating : QWidget {
  explicit Beating(QWidget* parent = nullptr) : QWidget(parent), ticker(this, [this] { ++beats; }) {}
  int beats = 0;
  Ticker ticker;
};

bool show(QWidget* window) {
  window->resize(100, 100);
  window->show();
  return QTest::qWaitForWindowExposed(window);
}

} // namespace

class TestTicker : public QObject {
  Q_OBJECT

 private slots:
  void wantsNothingAtFirst();
  void beatsWhileShown();
  void beatsAbout60TimesASecond();
  void startBeforeShowWaits();
  void pausesWhileHidden();
  void pausesOnAnotherPage();
  void pausesWhileMinimised();
  void followsItsWidgetIntoAnotherWindow();
  void stopsForGood();
  void runningTwiceIsOnce();
  void goesWithItsWidget();
};

void TestTicker::wantsNothingAtFirst() {
  Beating widget;
  QVERIFY(show(&widget));
  QVERIFY(!widget.ticker.isRunning());
  QVERIFY(!widget.ticker.isBeating());
}

void TestTicker::beatsWhileShown() {
  Beating widget;
  QVERIFY(show(&widget));
  widget.ticker.setRunning(true);
  QVERIFY(widget.ticker.isRunning());
  QVERIFY(widget.ticker.isBeating());
  QTRY_VERIFY(widget.beats >= 3);
}

void TestTicker::beatsAbout60TimesASecond() {
  QCOMPARE(Ticker::kIntervalMs, 16);
  Beating widget;
  QVERIFY(show(&widget));
  QElapsedTimer clock;
  clock.start();
  widget.ticker.setRunning(true);
  QTRY_VERIFY(widget.beats >= 10);
  QVERIFY(clock.elapsed() >= 10 * 15 - 20); // a coarse timer may be early, by a twentieth
}

void TestTicker::startBeforeShowWaits() {
  Beating widget;
  widget.ticker.setRunning(true);
  QVERIFY(widget.ticker.isRunning());
  QVERIFY(!widget.ticker.isBeating());
  QVERIFY(show(&widget));
  QVERIFY(widget.ticker.isBeating());
}

void TestTicker::pausesWhileHidden() {
  Beating widget;
  QVERIFY(show(&widget));
  widget.ticker.setRunning(true);
  QTRY_VERIFY(widget.beats > 0);
  widget.hide();
  QVERIFY(widget.ticker.isRunning());
  QVERIFY(!widget.ticker.isBeating());
  const int before = widget.beats;
  QVERIFY(show(&widget));
  QVERIFY(widget.ticker.isBeating());
  QTRY_VERIFY(widget.beats > before);
}

void TestTicker::pausesOnAnotherPage() {
  QStackedWidget pages;
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  auto* widget = new Beating;
  layout->addWidget(widget);
  pages.addWidget(page);
  pages.addWidget(new QWidget);
  widget->ticker.setRunning(true);
  QVERIFY(show(&pages));
  QVERIFY(widget->ticker.isBeating());
  pages.setCurrentIndex(1);
  QVERIFY(widget->ticker.isRunning());
  QVERIFY(!widget->ticker.isBeating());
  pages.setCurrentIndex(0);
  QVERIFY(widget->ticker.isBeating());
}

void TestTicker::pausesWhileMinimised() {
  QWidget window;
  auto* widget = new Beating(&window);
  widget->ticker.setRunning(true);
  QVERIFY(show(&window));
  QVERIFY(widget->ticker.isBeating());
  window.showMinimized();
  QTRY_VERIFY(!widget->ticker.isBeating());
  QVERIFY(widget->ticker.isRunning());
  window.showNormal();
  QTRY_VERIFY(widget->ticker.isBeating());
}

void TestTicker::followsItsWidgetIntoAnotherWindow() {
  QWidget first;
  QWidget second;
  auto* widget = new Beating(&first);
  widget->ticker.setRunning(true);
  QVERIFY(show(&first));
  QVERIFY(show(&second));
  widget->setParent(&second);
  QVERIFY(!widget->ticker.isBeating()); // a widget is hidden when it moves
  widget->show();
  QVERIFY(widget->ticker.isBeating());
  first.showMinimized();
  QVERIFY(widget->ticker.isBeating());
  second.showMinimized();
  QTRY_VERIFY(!widget->ticker.isBeating());
}

void TestTicker::stopsForGood() {
  Beating widget;
  QVERIFY(show(&widget));
  widget.ticker.setRunning(true);
  QTRY_VERIFY(widget.beats > 0);
  widget.ticker.setRunning(false);
  QVERIFY(!widget.ticker.isRunning());
  QVERIFY(!widget.ticker.isBeating());
  widget.hide();
  widget.show();
  QVERIFY(!widget.ticker.isBeating());
}

void TestTicker::runningTwiceIsOnce() {
  Beating widget;
  QVERIFY(show(&widget));
  widget.ticker.setRunning(true);
  widget.ticker.setRunning(true);
  widget.ticker.setRunning(false);
  QVERIFY(!widget.ticker.isBeating());
}

void TestTicker::goesWithItsWidget() {
  auto* widget = new QWidget;
  auto* ticker = new Ticker(widget, [widget] { widget->deleteLater(); });
  const QPointer<Ticker> alive(ticker);
  QVERIFY(show(widget));
  ticker->setRunning(true);
  QTRY_VERIFY(!alive);
}

int main(int argc, char** argv) { return uitest::run<TestTicker>(argc, argv); }

#include "tst_Ticker.moc"
