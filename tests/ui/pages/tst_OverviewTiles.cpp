// The Overview: its tiles and buttons, by mouse, by keyboard, and as a screen reader hears them.
#include "OverviewTest.h"

using namespace overviewtest;
using ui::CategoryTile;
using ui::OverviewPage;

class TestOverviewTiles : public OverviewTest {
  Q_OBJECT

 private slots:
  void initTestCase() { installOnce(); }
  void init() { reset(); }

  void tilesHead();
  void tilesWithoutResults_data();
  void tilesWithoutResults();
  void tilesWithResults();
  void nineResults();
  void emptyResultsGiveNoTiles();
  void tilesShareTheWidth();
  void clickOnATileWithoutResults();
  void clickOnATile();
  void orbWithoutResultsStartsAScan();
  void orbWithResultsOnlyOpens();
  void rescanStartsAScan();
  void seeAllOnlyOpens();
  void rebuildsInsideATilesClick();
  void rebuildsInsideATilesKey();
  void scrollingSurvivesARebuild();
  void focusSurvivesARebuild_data();
  void focusSurvivesARebuild();
  void focusOfATileThatIsGone();
  void tabOrder();
  void everythingIsReadOut();
  void keysScroll();
};

void TestOverviewTiles::tilesHead() {
  const Shown shown;
  const auto* area = shown.only<QScrollArea>();
  const auto* row = qobject_cast<QHBoxLayout*>(area->widget()->layout()->itemAt(3)->layout());
  QCOMPARE(row->spacing(), 0);
  QCOMPARE(row->contentsMargins(), QMargins());
  const QWidget* heading = row->itemAt(0)->widget();
  QCOMPARE(roleOf(heading), u"h3"_s);
  QCOMPARE(heading->contentsMargins(), QMargins(0, 26, 0, 12));
  QVERIFY(row->itemAt(1)->spacerItem());
  const QLayout* button = row->itemAt(2)->layout();
  QCOMPARE(button->contentsMargins(), QMargins(0, 26, 0, 12));
  QCOMPARE(button->itemAt(0)->widget(), shown.seeAll());
  QCOMPARE(shown.seeAll()->property("kind").toString(), u"link"_s);
  QCOMPARE(shown.grid()->horizontalSpacing(), 10);
  QCOMPARE(shown.grid()->verticalSpacing(), 10);
}

void TestOverviewTiles::tilesWithoutResults_data() {
  QTest::addColumn<QByteArray>("host");
  QTest::newRow("mac") << QByteArray("mac");
  QTest::newRow("linux") << QByteArray("linux");
}

void TestOverviewTiles::tilesWithoutResults() {
  QFETCH(QByteArray, host);
  qputenv("TARNWICK_HOST", host);
  const Shown shown;
  QCOMPARE(shown.tilesHeading(), u"What Smart Scan looks at"_s);
  QStringList titles;
  for (const CategoryDef& def : categories::forThisPlatform()) titles << def.title;
  QCOMPARE(titles.size(), 8);
  QCOMPARE(shown.tileNames(), titles);
  for (const CategoryTile* tile : shown.tiles()) {
    QVERIFY(!tile->isPressable());
    QVERIFY(!tile->toolTip().isEmpty());
  }
}

void TestOverviewTiles::tilesWithResults() {
  Shown shown;
  shown.setResults({found(u"temp"_s, 2 * kGB), found(u"logs"_s, 0), found(u"browser"_s, 5 * kGB), found(u"dev"_s, 1)});
  QCOMPARE(shown.tilesHeading(), u"Top recommendations"_s);
  QCOMPARE(shown.tileNames(),
           (QStringList{u"Title of browser, 5.0 GB"_s, u"Title of temp, 2.0 GB"_s, u"Title of dev, 1 KB"_s}));
  QCOMPARE(shown.tiles()[0]->toolTip(), u"About browser"_s);
  QCOMPARE(shown.state.results.first().def.id, u"temp"_s); // sorted is a copy
}

void TestOverviewTiles::nineResults() {
  Shown shown;
  QList<CategoryResult> results;
  for (int i = 1; i <= 9; ++i) results << found(QString::number(i), i * kGB);
  shown.setResults(results);
  QCOMPARE(shown.tiles().size(), 8);
  QCOMPARE(shown.grid()->rowCount(), 2);
  QCOMPARE(shown.grid()->columnCount(), 4);
  for (int i = 0; i < 8; ++i) {
    const auto* tile = qobject_cast<CategoryTile*>(shown.grid()->itemAtPosition(i / 4, i % 4)->widget());
    QCOMPARE(tile->id(), QString::number(9 - i));
  }
}

void TestOverviewTiles::emptyResultsGiveNoTiles() {
  Shown shown;
  shown.show();
  shown.setResults({found(u"temp"_s, 0), found(u"browser"_s, 0)});
  QCOMPARE(shown.tiles().size(), 0);
  QCOMPARE(shown.tilesHeading(), u"Top recommendations"_s);
  QVERIFY(shown.seeAll()->isVisible());
  QVERIFY(shown.rescan()->isVisible());
  QCOMPARE(shown.headline(), u"0 KB ready to clean"_s);
  QCOMPARE(shown.orb()->action(), u"Review"_s);
}

void TestOverviewTiles::tilesShareTheWidth() {
  Shown shown;
  QList<CategoryResult> results = someResults();
  results[0].def.title = u"Caches of applications with a name that is much too long for any tile"_s;
  shown.setResults(results);
  shown.show();
  const QWidget* content = shown.only<QScrollArea>()->widget();
  const int share = (content->width() - 2 * 28 - 2 * 10) / 4;
  for (const CategoryTile* tile : shown.tiles())
    QVERIFY2(qAbs(tile->width() - share) <= 8, qPrintable(u"%1 of %2"_s.arg(tile->width()).arg(share)));
}

void TestOverviewTiles::clickOnATileWithoutResults() {
  Shown shown;
  const QSignalSpy opened(&shown.page, &OverviewPage::openCleanup);
  shown.show();
  QTest::mouseClick(shown.tiles()[0], Qt::LeftButton);
  QCOMPARE(opened.count(), 0);
  QCOMPARE(shown.state.phase, AppState::Empty);
}

void TestOverviewTiles::clickOnATile() {
  Shown shown;
  const QSignalSpy opened(&shown.page, &OverviewPage::openCleanup);
  shown.setResults(someResults());
  shown.show();
  QTest::mouseClick(shown.tiles()[1], Qt::LeftButton);
  QTest::keyClick(shown.tiles()[0], Qt::Key_Space);
  QCOMPARE(opened.count(), 2);
  QCOMPARE(opened[0][0].toString(), u"temp"_s);
  QCOMPARE(opened[1][0].toString(), u"browser"_s);
  QCOMPARE(shown.state.phase, AppState::Empty);
}

void TestOverviewTiles::orbWithoutResultsStartsAScan() {
  Shown shown;
  const QSignalSpy opened(&shown.page, &OverviewPage::openCleanup);
  int phaseAtOpening = -1;
  connect(&shown.page, &OverviewPage::openCleanup, this, [&] { phaseAtOpening = shown.state.phase; });
  shown.show();
  QTest::mouseClick(shown.orb(), Qt::LeftButton);
  QCOMPARE(opened.count(), 1);
  QVERIFY(opened[0][0].toString().isEmpty());
  QCOMPARE(phaseAtOpening, int(AppState::Scanning));
  QTRY_VERIFY(shown.state.phase != AppState::Scanning);
  QTRY_VERIFY(!shown.state.scanner->isRunning());
}

void TestOverviewTiles::orbWithResultsOnlyOpens() {
  Shown shown;
  shown.setResults(someResults());
  const QSignalSpy opened(&shown.page, &OverviewPage::openCleanup);
  shown.show();
  QTest::mouseClick(shown.orb(), Qt::LeftButton);
  QCOMPARE(opened.count(), 1);
  QVERIFY(opened[0][0].toString().isEmpty());
  QCOMPARE(shown.state.phase, AppState::Empty);
  QVERIFY(!shown.state.scanner->isRunning());
}

void TestOverviewTiles::rescanStartsAScan() {
  Shown shown;
  shown.setResults(someResults());
  const QSignalSpy opened(&shown.page, &OverviewPage::openCleanup);
  shown.show();
  QTest::mouseClick(shown.rescan(), Qt::LeftButton);
  QCOMPARE(opened.count(), 1);
  QVERIFY(opened[0][0].toString().isEmpty());
  QCOMPARE(shown.state.phase, AppState::Scanning);
  QTRY_VERIFY(shown.state.phase != AppState::Scanning);
  QTRY_VERIFY(!shown.state.scanner->isRunning());
}

void TestOverviewTiles::seeAllOnlyOpens() {
  Shown shown;
  shown.setResults(someResults());
  const QSignalSpy opened(&shown.page, &OverviewPage::openCleanup);
  shown.show();
  QTest::mouseClick(shown.seeAll(), Qt::LeftButton);
  QCOMPARE(opened.count(), 1);
  QVERIFY(opened[0][0].toString().isEmpty());
  QVERIFY(!shown.state.scanner->isRunning());
}

void TestOverviewTiles::rebuildsInsideATilesClick() {
  Shown shown;
  shown.setResults(someResults());
  shown.show();
  const QPointer<CategoryTile> clicked = shown.tiles()[0];
  connect(&shown.page, &OverviewPage::openCleanup, this, [&] {
    shown.setResults({found(u"new"_s, kGB)});
    QVERIFY(clicked); // deleted later
    QVERIFY(clicked->isHidden());
  });
  QTest::mouseClick(clicked, Qt::LeftButton);
  QCOMPARE(shown.tileNames(), QStringList{u"Title of new, 1.0 GB"_s});
  QTRY_VERIFY(!clicked);
}

void TestOverviewTiles::rebuildsInsideATilesKey() {
  Shown shown;
  shown.setResults(someResults());
  shown.show();
  const QPointer<CategoryTile> pressed = shown.tiles()[0];
  pressed->setFocus(Qt::TabFocusReason);
  int opened = 0;
  connect(&shown.page, &OverviewPage::openCleanup, this, [&] {
    ++opened;
    shown.setResults({found(u"new"_s, kGB)});
  });
  QTest::keyClick(pressed, Qt::Key_Return);
  QCOMPARE(opened, 1);
  QTRY_VERIFY(!pressed);
  QCOMPARE(shown.tiles().size(), 1);
}

void TestOverviewTiles::scrollingSurvivesARebuild() {
  Shown shown;
  shown.setResults(someResults());
  shown.page.resize(724, 400);
  shown.show();
  QScrollBar* bar = shown.only<QScrollArea>()->verticalScrollBar();
  QTRY_VERIFY(bar->maximum() > 100);
  bar->setValue(bar->maximum());
  const int scrolled = bar->value();
  const QSignalSpy moved(bar, &QScrollBar::valueChanged);
  shown.setResults(someResults());
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  QCOMPARE(bar->value(), scrolled);
  QCOMPARE(moved.count(), 0);
}

void TestOverviewTiles::focusSurvivesARebuild_data() {
  QTest::addColumn<Qt::FocusReason>("reason");
  QTest::addColumn<bool>("ring");
  QTest::newRow("by Tab") << Qt::TabFocusReason << true;
  QTest::newRow("by mouse") << Qt::MouseFocusReason << false;
}

void TestOverviewTiles::focusSurvivesARebuild() {
  QFETCH(Qt::FocusReason, reason);
  QFETCH(bool, ring);
  Shown shown;
  shown.setResults(someResults());
  shown.show();
  const QPointer<CategoryTile> old = shown.tiles()[1];
  old->setFocus(reason);
  QVERIFY(old->hasFocus());
  const QSignalSpy moves(qApp, &QApplication::focusChanged);
  QList<CategoryResult> grown = someResults();
  grown.first().bytes = 9 * kGB; // now the largest
  shown.setResults(grown);
  QVERIFY(shown.tiles()[0] != old);
  QCOMPARE(shown.tiles()[0]->id(), u"temp"_s);
  QVERIFY(shown.tiles()[0]->hasFocus());
  QCOMPARE(shown.tiles()[0]->showsFocus(), ring);
  QCOMPARE(moves.count(), 2); // off the old one, onto the new one, and nowhere else
}

void TestOverviewTiles::focusOfATileThatIsGone() {
  Shown shown;
  shown.setResults(someResults());
  shown.show();
  shown.tiles()[1]->setFocus(Qt::TabFocusReason);
  shown.setResults({found(u"browser"_s, kGB)});
  QVERIFY(!shown.tiles()[0]->hasFocus());
}

void TestOverviewTiles::tabOrder() {
  QWidget window;
  AppState state;
  auto* page = new OverviewPage(&state, &window);
  auto* later = new QPushButton(u"Made after the page"_s, &window);
  state.results = someResults();
  emit state.resultsChanged();
  window.resize(724, 640);
  window.show();
  window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&window));
  later->setFocus();
  QStringList order;
  for (int i = 0; i < 7; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    const QWidget* at = QApplication::focusWidget();
    if (const auto* tile = qobject_cast<const CategoryTile*>(at))
      order << tile->id();
    else if (const auto* button = qobject_cast<const QPushButton*>(at))
      order << button->text();
    else
      order << QString::fromLatin1(at->metaObject()->className());
  }
  QCOMPARE(order, (QStringList{u"Rescan"_s, u"ui::DiskOrb"_s, u"See all"_s, u"browser"_s, u"temp"_s, u"trash"_s,
                               u"Made after the page"_s}));
  Q_UNUSED(page)
}

void TestOverviewTiles::everythingIsReadOut() {
  Shown shown;
  shown.setResults(someResults());
  shown.setLastScan(QDateTime::currentDateTime());
  const auto nameOf = [](QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
  };
  QStringList names;
  for (auto* card : shown.page.findChildren<ui::StatCard*>()) names << nameOf(card);
  for (auto* chip : shown.page.findChildren<ui::Chip*>()) names << nameOf(chip);
  for (auto* item : shown.page.findChildren<ui::LegendItem*>()) names << nameOf(item);
  for (auto* tile : shown.tiles()) names << nameOf(tile);
  names << nameOf(shown.only<ui::Headline>()) << nameOf(shown.orb()) << nameOf(shown.rescan()) << nameOf(shown.seeAll())
        << nameOf(shown.only<ui::Sparkline>());
  QCOMPARE(names, (QStringList{u"Freed this month, 0 KB"_s, u"Last scan, Today"_s, u"Scheduled scan, Weekly"_s,
                               u"System files protected"_s, u"Scanned today"_s, u"Apps, documents & system, 592 GB"_s,
                               u"Reclaimable, 8.0 GB"_s, u"Available, 400 GB"_s, u"Title of browser, 5.0 GB"_s,
                               u"Title of temp, 2.0 GB"_s, u"Title of trash, 1.0 GB"_s, u"8.0 GB ready to clean"_s,
                               u"Review"_s, u"Rescan"_s, u"See all"_s, u"Freed in the last 6 months"_s}));
}

// What lies below the fold can be seen without a mouse, also where nothing there takes the focus.
void TestOverviewTiles::keysScroll() {
  Shown shown;
  shown.page.resize(724, 400);
  shown.show();
  QScrollBar* bar = shown.only<QScrollArea>()->verticalScrollBar();
  QTRY_VERIFY(bar->maximum() > 100);
  shown.orb()->setFocus(Qt::TabFocusReason);
  bar->setValue(0);
  QTest::keyClick(shown.orb(), Qt::Key_Down);
  const int step = bar->value();
  QVERIFY(step > 0);
  QTest::keyClick(shown.orb(), Qt::Key_PageDown);
  QVERIFY(bar->value() > step);
}

int main(int argc, char** argv) { return uitest::run<TestOverviewTiles>(argc, argv); }

#include "tst_OverviewTiles.moc"
