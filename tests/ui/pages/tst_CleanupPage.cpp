// The frame of the Cleanup page: which view a phase shows, the start, the scan, and the whole journey over real files.
#include "CleanupTest.h"
#include "support/pixels.h"
#include "ui/pages/CleanupScanView.h"
#include "ui/pages/furniture.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/ScanStepRow.h"

#include <QFileInfo>
#include <QGraphicsEffect>
#include <QPointer>
#include <QSemaphore>
#include <QSignalSpy>

using namespace cleanuptest;

class TestCleanupPage : public CleanupTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void viewFollowsThePhase();
  void unknownPhaseChangesNothing();
  void builtInAnyPhase();
  void emptyView();
  void startButtonScans();
  void glowsAreWhole();
  void sides();
  void fractions();
  void remaining();
  void scanWithoutCategories();
  void scanBeforeTheFirstStep();
  void stepsFollowTheScan();
  void progressWithinAStepLeavesTheRows();
  void anotherScanRebuildsTheRows();
  void longPathNeverWidensTheCard();
  void pathIsPlainText();
  void stopEndsTheScan();
  void coloursFollowTheLook();
  void journey();
  void resultsOfAScanAreBuiltOnce();
  void doneGoesHome();
  void focusGoesAlong();

 private:
  /// As a scan of the first few categories.
  void scanning(int count) {
    m_state->scanDefs = categories::forLinux().mid(0, count);
    m_state->scanResults = QList<CategoryResult>(count);
    m_state->scanCategory = -1;
    m_state->setPhase(AppState::Scanning);
  }
  [[nodiscard]] QList<ui::ScanStepRow*> steps() const { return view()->findChildren<ui::ScanStepRow*>(); }
  [[nodiscard]] QStringList stepValues() const {
    QStringList values;
    for (const ui::ScanStepRow* row : steps()) values << row->findChildren<QLabel*>().last()->text();
    return values;
  }
};

void TestCleanupPage::viewFollowsThePhase() {
  QCOMPARE(viewIndex(), 0);
  for (const auto phase : {AppState::Scanning, AppState::Review, AppState::Cleaning, AppState::Done, AppState::Empty}) {
    m_state->setPhase(phase);
    QCOMPARE(viewIndex(), int(phase));
  }
}

void TestCleanupPage::unknownPhaseChangesNothing() {
  m_state->setPhase(AppState::Review);
  m_state->setPhase(AppState::Phase(7));
  QCOMPARE(viewIndex(), 2);
  m_state->setPhase(AppState::Phase(5));
  QCOMPARE(viewIndex(), 2);
}

void TestCleanupPage::builtInAnyPhase() {
  for (int phase = 0; phase <= 4; ++phase) {
    m_page.reset();
    m_state->phase = AppState::Phase(phase);
    makePage();
    QCOMPARE(viewIndex(), phase);
  }
}

void TestCleanupPage::emptyView() {
  QCOMPARE(texts(view()),
           QStringList({u"Cleanup"_s, u"Nothing scanned yet"_s, u"Find caches, temporary files and leftovers."_s}));
  const QPushButton* start = button(view(), u"Start Smart Scan"_s);
  QVERIFY(start);
  QCOMPARE(start->property("kind").toString(), u"primary"_s);
  QCOMPARE(start->property("size").toString(), u"lg"_s);
  QVERIFY(start->parentWidget()->width() <= 460);
  const int middle = start->mapTo(m_page.get(), start->rect().center()).x();
  QVERIFY2(qAbs(middle - m_page->width() / 2) <= 1, qPrintable(QString::number(middle)));
  const QRect glow = start->graphicsEffect()->boundingRectFor(start->rect()).toAlignedRect();
  QVERIFY(start->parentWidget()->rect().contains(glow.translated(start->pos())));
}

void TestCleanupPage::startButtonScans() {
  QTest::mouseClick(button(view(), u"Start Smart Scan"_s), Qt::LeftButton);
  QCOMPARE(viewIndex(), 1);
  QTRY_COMPARE(viewIndex(), 2);
}

void TestCleanupPage::glowsAreWhole() {
  pixels::setLook(true);
  for (const auto& [phase, text] : {std::pair(AppState::Empty, u"Start Smart Scan"_s), {AppState::Done, u"Done"_s}}) {
    m_state->setPhase(phase);
    settle();
    const QPushButton* shining = button(view(), text);
    const QPoint below = shining->mapTo(view(), QPoint(shining->width() / 2, shining->height() + 6));
    const QImage image = view()->grab().toImage();
    QVERIFY2(image.pixelColor(below) != image.pixelColor(5, below.y()), qPrintable(text));
  }
  pixels::setLook(false);
}

void TestCleanupPage::sides() {
  QCOMPARE(ui::pageSide(), 28);
  scanning(2);
  settle();
  const ui::Radar* radar = view()->findChild<ui::Radar*>();
  QCOMPARE(radar->parentWidget()->mapTo(m_page.get(), QPoint()).x(), 28);
  Theme::get().mac = false;
  QCOMPARE(ui::pageSide(), 32);
}

void TestCleanupPage::fractions() {
  QCOMPARE(ui::scanFraction(0, 0), 0.0);
  QCOMPARE(ui::scanFraction(3, -1), 0.0);
  QCOMPARE(ui::scanFraction(-1, 8), 0.0625);
  QCOMPARE(ui::scanFraction(0, 4), 0.125);
  QCOMPARE(ui::scanFraction(1, 4), 0.375);
  QCOMPARE(ui::scanFraction(7, 8), 0.9375);
  QCOMPARE(ui::scanFraction(9, 8), 1.0);
}

void TestCleanupPage::remaining() {
  QCOMPARE(ui::scanRemaining(0, 100), u"—"_s);
  QCOMPARE(ui::scanRemaining(0.125, 100), u"—"_s);
  QCOMPARE(ui::scanRemaining(0.15, 100), u"—"_s);
  QCOMPARE(ui::scanRemaining(0.375, 30), u"~0:50"_s);
  QCOMPARE(ui::scanRemaining(0.6, 100), u"~1:06"_s);
  QCOMPARE(ui::scanRemaining(1, 100), u"~0:00"_s);
}

void TestCleanupPage::scanWithoutCategories() {
  scanning(0);
  emit m_state->scanProgressChanged();
  QVERIFY(steps().isEmpty());
  QCOMPARE(find<QLabel>("remainingValue")->text(), u"—"_s);
  QCOMPARE(find<QLabel>("itemsValue")->text(), u"0"_s);
}

void TestCleanupPage::scanBeforeTheFirstStep() {
  scanning(4);
  QCOMPARE(stepValues(), QStringList(4, u"—"_s));
  for (const ui::ScanStepRow* row : steps()) QVERIFY(!row->isActive());
}

void TestCleanupPage::stepsFollowTheScan() {
  scanning(4);
  QCOMPARE(steps().size(), 4);
  QCOMPARE(steps()[2]->objectName(), u"step2"_s);
  m_state->scanTimer.start();
  m_state->scanCategory = 0;
  emit m_state->scanProgressChanged();
  QCOMPARE(stepValues(), QStringList({u"…"_s, u"—"_s, u"—"_s, u"—"_s}));
  QCOMPARE(find<QLabel>("remainingValue")->text(), u"—"_s);
  m_state->scanResults[0].bytes = 12'000'000;
  m_state->scanCategory = 1;
  emit m_state->scanProgressChanged();
  QCOMPARE(stepValues(), QStringList({u"12 MB"_s, u"…"_s, u"—"_s, u"—"_s}));
  QVERIFY(find<QLabel>("remainingValue")->text().startsWith(u'~'));
  QVERIFY(view()->findChild<ui::Radar*>()->isRunning());
  m_state->scanBytes = 34'000'000;
  emit m_state->scanProgressChanged();
  QVERIFY(view()->findChild<ui::Radar*>()->valueText().contains(u"34 MB"_s));
  QVERIFY(view()->findChild<ui::Radar*>()->valueText().contains(u"found"_s));
  ui::Radar* radar = view()->findChild<ui::Radar*>();
  m_state->setPhase(AppState::Review);
  QVERIFY(!radar->isRunning());
}

void TestCleanupPage::progressWithinAStepLeavesTheRows() {
  scanning(3);
  m_state->scanCategory = 1;
  emit m_state->scanProgressChanged();
  steps()[2]->set(ui::StepBar::Pending, u"untouched"_s);
  m_state->scanFiles = 12'345;
  m_state->scanPath = u"/a/b"_s;
  emit m_state->scanProgressChanged();
  QCOMPARE(stepValues()[2], u"untouched"_s);
  QCOMPARE(find<QLabel>("itemsValue")->text(), fmt::count(12'345));
  QCOMPARE(find<QLabel>("scanPath")->text(), u"/a/b"_s);
  m_state->scanCategory = 2;
  emit m_state->scanProgressChanged();
  QCOMPARE(stepValues()[2], u"…"_s);
}

void TestCleanupPage::anotherScanRebuildsTheRows() {
  scanning(3);
  const QPointer<ui::ScanStepRow> old = steps()[0];
  m_state->setPhase(AppState::Empty);
  scanning(3);
  settle();
  QVERIFY(!old);
  QCOMPARE(steps().size(), 3);
  QCOMPARE(stepValues(), QStringList(3, u"—"_s));
}

void TestCleanupPage::longPathNeverWidensTheCard() {
  for (const QSize& size : {QSize(724, 640), QSize(1600, 800)}) {
    m_page->resize(size);
    scanning(3);
    QLabel* path = find<QLabel>("scanPath");
    m_state->scanPath = u"/"_s + QString(400, u'w') + u"/end"_s;
    emit m_state->scanProgressChanged();
    settle();
    QCOMPARE(path->text(), path->fontMetrics().elidedText(m_state->scanPath, Qt::ElideMiddle, 280));
    QVERIFY(path->text().contains(u'…'));
    QVERIFY(path->text().endsWith(u"/end"_s));
    QVERIFY(path->parentWidget()->width() >= 290);
    QVERIFY(path->parentWidget()->width() <= 340);
    // Nothing in the card reaches beyond it.
    for (const QWidget* child : path->parentWidget()->findChildren<QWidget*>())
      QVERIFY(path->parentWidget()->rect().contains(child->geometry()));
    m_state->setPhase(AppState::Empty);
  }
}

void TestCleanupPage::pathIsPlainText() {
  scanning(1);
  m_state->scanPath = u"/a/<b>bold</b>"_s;
  emit m_state->scanProgressChanged();
  QCOMPARE(find<QLabel>("scanPath")->textFormat(), Qt::PlainText);
}

void TestCleanupPage::stopEndsTheScan() {
  QSemaphore gate;
  connect(
      m_state->scanner, &Scanner::categoryStarted, m_state->scanner, [&] { gate.acquire(); }, Qt::DirectConnection);
  m_state->startScan();
  QCOMPARE(viewIndex(), 1);
  QTest::mouseClick(button(view(), u"Stop"_s), Qt::LeftButton);
  gate.release(100);
  QTRY_COMPARE(viewIndex(), 0);
  QVERIFY(m_state->results.isEmpty());
}

void TestCleanupPage::coloursFollowTheLook() {
  pixels::setLook(false);
  scanning(2);
  m_state->scanCategory = 1;
  emit m_state->scanProgressChanged();
  const QLabel* value = steps()[0]->findChildren<QLabel*>().last();
  QVERIFY(value->styleSheet().contains(Theme::get().text.name()));
  pixels::setLook(true);
  QVERIFY(value->styleSheet().contains(Theme::get().text.name()));
  review({category(u"thumbs"_s, {1000})});
  QVERIFY(find<QLabel>("selectionLabel")->text().contains(Theme::get().text.name()));
  pixels::setLook(false);
  QVERIFY(find<QLabel>("selectionLabel")->text().contains(Theme::get().text.name()));
  m_state->setPhase(AppState::Done);
  pixels::setLook(true);
  QVERIFY(find<QLabel>("nowValue")->styleSheet().contains(Theme::get().ok.name()));
}

// Everything real: scan, untick, clean for good, read the result, go on.
void TestCleanupPage::journey() {
  QTest::mouseClick(button(view(), u"Start Smart Scan"_s), Qt::LeftButton);
  QTRY_COMPARE(viewIndex(), 2);
  settle();
  QVERIFY(row(kThumbs));
  QVERIFY(row(kUpdate));
  QCOMPARE(rowBox(kThumbs)->checkState(), Qt::Checked);
  QCOMPARE(rowBox(kUpdate)->checkState(), Qt::Unchecked);
  QTest::mouseClick(row(kUpdate), Qt::LeftButton, {}, QPoint(120, 10));
  settle();
  QCOMPARE(itemBoxes().size(), 2);
  QTest::mouseClick(itemBoxes()[0], Qt::LeftButton); // the larger one, alone
  settle();
  QCOMPARE(rowBox(kUpdate)->checkState(), Qt::PartiallyChecked);
  QSignalSpy asked(m_page.get(), &ui::CleanupPage::confirmRequested);
  QTest::mouseClick(find<QPushButton>("cleanButton"), Qt::LeftButton);
  QCOMPARE(asked.count(), 1);
  QCOMPARE(viewIndex(), 2);

  m_state->clean();
  QTRY_COMPARE_WITH_TIMEOUT(viewIndex(), 4, 30'000);
  QVERIFY(!QFileInfo::exists(m_home->path(u"Downloads/a.deb"_s)));
  QVERIFY(QFileInfo::exists(m_home->path(u"Downloads/b.deb"_s)));
  QVERIFY(!QFileInfo::exists(m_home->path(u".cache/thumbnails/normal/1.png"_s)));
  QCOMPARE(find<QLabel>("doneSummary")->text(), u"Items were deleted permanently."_s);
  QCOMPARE(find<QLabel>("beforeValue")->text(), fmt::bytes(m_state->freeBeforeClean));
  QVERIFY(QFileInfo::exists(m_state->report.logPath));

  QSignalSpy home(m_page.get(), &ui::CleanupPage::goHome);
  QTest::mouseClick(button(view(), u"Done"_s), Qt::LeftButton);
  QCOMPARE(home.count(), 1);
  QVERIFY(m_state->phase != AppState::Done);
  QCOMPARE(viewIndex(), int(m_state->phase));
}

void TestCleanupPage::resultsOfAScanAreBuiltOnce() {
  review({category(u"temp"_s, sizes(2))});
  const QPointer<ui::CategoryRow> old = row(u"temp"_s);
  scanning(1);
  m_state->results = {category(u"temp"_s, sizes(3))};
  emit m_state->resultsChanged();
  QCOMPARE(row(u"temp"_s), old); // nobody sees it yet
  QVERIFY(!old->isVisible());
  m_state->setPhase(AppState::Review);
  QVERIFY(row(u"temp"_s) != old);
  QCOMPARE(itemBoxes().size(), 3);
  m_state->results = {category(u"temp"_s, sizes(4))};
  emit m_state->resultsChanged(); // on show
  QCOMPARE(itemBoxes().size(), 4);
}

void TestCleanupPage::doneGoesHome() {
  m_state->setPhase(AppState::Done);
  QList<int> phases;
  connect(m_page.get(), &ui::CleanupPage::goHome, this, [&] { phases << m_state->phase; });
  QTest::mouseClick(button(view(), u"Done"_s), Qt::LeftButton);
  QCOMPARE(phases, QList<int>{AppState::Empty}); // acknowledged before it is told
}

// The keyboard alone: each view's first control is at hand when the view comes.
void TestCleanupPage::focusGoesAlong() {
  button(view(), u"Start Smart Scan"_s)->setFocus(Qt::TabFocusReason);
  scanning(2);
  QVERIFY(button(view(), u"Stop"_s)->hasFocus());
  review({category(u"thumbs"_s, {1000})});
  QVERIFY(view()->isAncestorOf(QApplication::focusWidget()));
  find<QPushButton>("cleanButton")->setFocus(Qt::TabFocusReason);
  m_state->setPhase(AppState::Cleaning);
  m_state->setPhase(AppState::Done);
  QVERIFY(button(view(), u"Done"_s)->hasFocus());
}

int main(int argc, char** argv) { return uitest::run<TestCleanupPage>(argc, argv); }

#include "tst_CleanupPage.moc"
