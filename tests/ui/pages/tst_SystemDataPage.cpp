// The System Data page: its three views and when each is shown, and the measuring as it is watched.
#include "SystemDataTest.h"

#include "ui/controls/Spinner.h"
#include "ui/pages/furniture.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/ScanStepRow.h"

using namespace systemdatatest;
using windowtest::shows;

class TestSystemDataPage : public SystemDataTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void frame();
  void startView();
  void scanView_data();
  void scanView();
  void stepRowsAreTheCatalogue_data();
  void stepRowsAreTheCatalogue();

  void openingMeasures();
  void openingMeasuresOnce();
  void openingWithFiguresMeasuresNothing();
  void startButtonMeasures();
  void cancelledFirstRunFallsBack();
  void completeRunShowsResults();
  void rescanStaysOnTheResults();
  void cancelledRescanKeepsTheFigures();

  void steps_data();
  void steps();
  void stepsOfARunInOrder();
  void measuredOutsideTheListIsIgnored();
  void runningTotal();
  void tickMovesOnlyTheClocks();
  void clocksRun();
  void remainingComesLate();
  void pathIsShortened();
  void rowInWorkIsInView();
  void rowInWorkStaysInView();
  void nextRunBeginsAnew();
  void deniedStepsLookLikeOthers();
  void colours();
  void stepsScrollByKeyboard();
  void readerHearsTheSteps();
  void contexts();

 private:
  [[nodiscard]] QList<ui::ScanStepRow*> stepRows() const {
    return views()->widget(Scan)->findChildren<ui::ScanStepRow*>();
  }
  [[nodiscard]] static QString valueOf(const ui::ScanStepRow* row) {
    return row->findChildren<QLabel*>().last()->text();
  }
  [[nodiscard]] static int stateOf(const ui::ScanStepRow* row) { return row->findChild<ui::StepBar*>()->state(); }
  [[nodiscard]] QString elapsed() const { return find<QLabel>("elapsedValue")->text(); }
  [[nodiscard]] QString remaining() const { return find<QLabel>("remainingValue")->text(); }
  [[nodiscard]] ui::Radar* radar() const { return m_page->findChild<ui::Radar*>(); }
  [[nodiscard]] QScrollArea* stepsArea() const { return views()->widget(Scan)->findChild<QScrollArea*>(); }
  /// The page at a measuring that isn't under way, so that the test alone moves it.
  void watch() {
    m_state->systemDataReady = true; // so that showing it starts nothing
    show();
    m_state->systemDataReady = false;
    m_page->startScanView();
    settle();
  }
  void measured(int index, qint64 bytes, bool refused = false) {
    emit m_state->systemDataMeasured(index, bytes, refused);
  }
};

// ---- what it is built of

void TestSystemDataPage::frame() {
  const auto* root = boxOf(m_page.get());
  QCOMPARE(root->spacing(), 0);
  QCOMPARE(root->contentsMargins(), QMargins());
  const auto* header = qobject_cast<ui::PageHeader*>(root->itemAt(0)->widget());
  QVERIFY(header);
  QCOMPARE(header->findChildren<QLabel*>().at(1)->text(), u"System Data"_s);
  const auto* rescan = header->findChild<ui::Button*>();
  QCOMPARE(rescan->text(), u"Rescan"_s);
  QVERIFY(!rescan->icon().isNull());
  QVERIFY(rescan->property("kind").toString().isEmpty());
  QCOMPARE(root->itemAt(1)->widget(), views());
  QCOMPARE(root->stretch(1), 1);
  QCOMPARE(views()->count(), 3);
  QCOMPARE(viewIndex(), int(Start));
}

void TestSystemDataPage::startView() {
  const QWidget* start = views()->widget(Start);
  const auto* column = boxOf(start);
  QCOMPARE(column->spacing(), 8);
  QCOMPARE(column->contentsMargins(), QMargins(32, 60, 32, 32));
  auto* tile = qobject_cast<ui::IconTile*>(column->itemAt(0)->widget());
  QCOMPARE(tile->size(), QSize(56, 56));
  QCOMPARE(column->itemAt(0)->alignment(), Qt::AlignHCenter);
  for (const bool dark : {false, true}) {
    pixels::setLook(dark);
    ui::IconTile wanted(u"drive"_s, Theme::get().accent, 56);
    QCOMPARE(pixels::rendered(*tile), pixels::rendered(wanted));
  }
  QCOMPARE(column->itemAt(1)->sizeHint().height(), 8);
  const auto* title = qobject_cast<QLabel*>(column->itemAt(2)->widget());
  QCOMPARE(title->text(), u"See what's inside System Data"_s);
  QCOMPARE(roleOf(title), u"h2"_s);
  QCOMPARE(title->alignment(), Qt::AlignCenter);
  const auto* text = qobject_cast<QLabel*>(column->itemAt(3)->widget());
  QCOMPARE(text->text(), u"Snapshots, backups, developer files, caches and more."_s);
  QCOMPARE(roleOf(text), u"sub"_s);
  QCOMPARE(text->alignment(), Qt::AlignCenter);
  QVERIFY(text->wordWrap());
  QCOMPARE(column->itemAt(4)->sizeHint().height(), 12);
  const auto* scan = qobject_cast<ui::Button*>(column->itemAt(5)->widget());
  QCOMPARE(scan->text(), u"Scan System Data"_s);
  QCOMPARE(scan->property("kind").toString(), u"primary"_s);
  QVERIFY(scan->isLarge());
  QVERIFY(!scan->icon().isNull());
  QCOMPARE(column->itemAt(5)->alignment(), Qt::AlignHCenter);
  QVERIFY(column->itemAt(6)->spacerItem());
  QCOMPARE(column->count(), 7);
}

void TestSystemDataPage::scanView_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("side");
  QTest::newRow("mac") << true << 28;
  QTest::newRow("win") << false << 32;
}

void TestSystemDataPage::scanView() {
  QFETCH(const bool, mac);
  QFETCH(const int, side);
  Theme::get().mac = mac;
  makePage();
  const auto* body = boxOf(views()->widget(Scan));
  QCOMPARE(body->spacing(), 18);
  QCOMPARE(body->contentsMargins(), QMargins(side, 0, side, 28));

  const auto* left = qobject_cast<ui::RadarCard*>(body->itemAt(0)->widget());
  QVERIFY(left->minimumWidth() >= 290);
  QCOMPARE(left->maximumWidth(), 340);
  QCOMPARE(body->stretch(0), 0);
  const auto* column = boxOf(left);
  QCOMPARE(column->spacing(), 18);
  QCOMPARE(column->contentsMargins(), QMargins(26, 26, 26, 26));
  QStringList captions;
  for (const QLabel* label : left->findChildren<QLabel*>())
    if (roleOf(label) == u"micro") captions << label->text();
  QCOMPARE(captions, QStringList({u"Elapsed"_s, u"Remaining"_s}));
  for (const char* name : {"elapsedValue", "remainingValue"}) {
    QCOMPARE(find<QLabel>(name)->text(), u"—"_s);
    QCOMPARE(roleOf(find(name)), u"num"_s);
  }

  const auto* right = qobject_cast<ui::Card*>(body->itemAt(1)->widget());
  QCOMPARE(body->stretch(1), 1);
  const auto* list = boxOf(right);
  QCOMPARE(list->spacing(), 0);
  QCOMPARE(list->contentsMargins(), QMargins(8, 8, 8, 8));
  const auto* head = boxOf(list->itemAt(0));
  QCOMPARE(head->contentsMargins(), QMargins(12, 14, 12, 8));
  const auto* heading = qobject_cast<QLabel*>(head->itemAt(0)->widget());
  QCOMPARE(heading->text(), u"Measuring System Data…"_s);
  QCOMPARE(heading->font().capitalization(), QFont::AllUppercase);
  QCOMPARE(list->itemAt(1)->widget(), stepsArea());
  QVERIFY(stepsArea()->widgetResizable());
  QCOMPARE(stepsArea()->frameShape(), QFrame::NoFrame);
  QCOMPARE(stepsArea()->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
  QCOMPARE(boxOf(boxOf(stepsArea()->widget())->itemAt(0))->spacing(), 2);
}

void TestSystemDataPage::stepRowsAreTheCatalogue_data() {
  QTest::addColumn<QString>("host");
  QTest::newRow("linux") << u"linux"_s;
  QTest::newRow("mac") << u"mac"_s;
}

void TestSystemDataPage::stepRowsAreTheCatalogue() {
  QFETCH(const QString, host);
  makePage(qPrintable(host));
  m_page->startScanView();
  const QList<SystemDataItem> catalogue = systemdata::definitions();
  QCOMPARE(stepRows().size(), catalogue.size());
  for (qsizetype i = 0; i < catalogue.size(); ++i) {
    QCOMPARE(stepRows()[i]->accessibleName(), catalogue[i].title);
    auto* tile = stepRows()[i]->findChild<ui::IconTile*>();
    ui::IconTile wanted(catalogue[i].icon, catalogue[i].color, tile->width());
    QCOMPARE(pixels::rendered(*tile), pixels::rendered(wanted));
  }
}

// ---- which view

void TestSystemDataPage::openingMeasures() {
  const Held held(m_state->systemDataScanner);
  QVERIFY(!m_state->systemDataScanner->isRunning());
  show();
  QVERIFY(m_state->systemDataScanner->isRunning());
  QCOMPARE(viewIndex(), int(Scan));
  QVERIFY(radar()->isRunning());
}

void TestSystemDataPage::openingMeasuresOnce() {
  Held held(m_state->systemDataScanner);
  QSignalSpy ends(m_state->systemDataScanner, &SystemDataScanner::finished);
  show();
  const QList<ui::ScanStepRow*> rows = stepRows();
  m_page->hide();
  show();
  emit m_state->systemDataChanged();
  QCOMPARE(stepRows(), rows); // not begun anew
  held.letGo();
  QTRY_VERIFY_WITH_TIMEOUT(m_state->systemDataReady, kPatienceMs);
  QCOMPARE(ends.count(), 1);
}

void TestSystemDataPage::openingWithFiguresMeasuresNothing() {
  put({item(u"data"_s, kGB)});
  show();
  QVERIFY(!m_state->systemDataScanner->isRunning());
  QCOMPARE(viewIndex(), int(Results));
}

void TestSystemDataPage::startButtonMeasures() {
  const Held held(m_state->systemDataScanner);
  m_state->systemDataReady = true; // so that showing it starts nothing
  show();
  m_state->systemDataReady = false;
  emit m_state->systemDataChanged();
  QCOMPARE(viewIndex(), int(Start));
  QVERIFY(!radar()->isRunning());
  QTest::mouseClick(button(u"Scan System Data"_s), Qt::LeftButton);
  QVERIFY(m_state->systemDataScanner->isRunning());
  QCOMPARE(viewIndex(), int(Scan));
}

void TestSystemDataPage::cancelledFirstRunFallsBack() {
  Held held(m_state->systemDataScanner);
  show();
  QCOMPARE(viewIndex(), int(Scan));
  m_state->systemDataScanner->cancel();
  held.letGo();
  QTRY_COMPARE_WITH_TIMEOUT(viewIndex(), int(Start), kPatienceMs);
  QVERIFY(!m_state->systemDataReady);
  QVERIFY(!radar()->isRunning());
  QVERIFY(!m_page->findChild<ui::SystemDataScanView*>()->isLive());
}

void TestSystemDataPage::completeRunShowsResults() {
  m_home->file(u".local/share/flatpak/repo/object"_s, 3 * kMB);
  show();
  QTRY_COMPARE_WITH_TIMEOUT(viewIndex(), int(Results), kPatienceMs);
  QVERIFY(row(u"userflatpak"_s));
  QCOMPARE(sizeOf(row(u"userflatpak"_s))->text(), u"3 MB"_s);
  QVERIFY(!radar()->isRunning());
  QVERIFY(!m_page->findChild<ui::SystemDataScanView*>()->isLive());
}

void TestSystemDataPage::rescanStaysOnTheResults() {
  put({item(u"data"_s, kGB)});
  show();
  Held held(m_state->systemDataScanner);
  QTest::mouseClick(button(u"Rescan"_s), Qt::LeftButton);
  QVERIFY(m_state->systemDataScanner->isRunning());
  settle();
  QCOMPARE(viewIndex(), int(Results));
  QVERIFY(shows(*view(), u"Updating…"_s));
  QVERIFY(row(u"data"_s)); // what was there stays
  held.letGo();
  QTRY_VERIFY_WITH_TIMEOUT(!shows(*view(), u"Updating…"_s), kPatienceMs);
  QCOMPARE(viewIndex(), int(Results));
  QVERIFY(!row(u"data"_s)); // the home is empty
}

void TestSystemDataPage::cancelledRescanKeepsTheFigures() {
  put({item(u"data"_s, kGB)});
  show();
  Held held(m_state->systemDataScanner);
  QTest::mouseClick(button(u"Rescan"_s), Qt::LeftButton);
  m_state->systemDataScanner->cancel();
  held.letGo();
  QTRY_VERIFY_WITH_TIMEOUT(!shows(*view(), u"Updating…"_s), kPatienceMs);
  QCOMPARE(sizeOf(row(u"data"_s))->text(), u"1.0 GB"_s);
}

// ---- the measuring

void TestSystemDataPage::steps_data() {
  QTest::addColumn<qint64>("figure"); // of the row, -1 while unknown
  QTest::addColumn<int>("current");
  QTest::addColumn<qint64>("bytes");
  QTest::addColumn<int>("state");
  QTest::addColumn<QString>("text");
  QTest::newRow("measured") << 5 * kMB << 4 << qint64(0) << int(ui::StepBar::Done) << u"5 MB"_s;
  QTest::newRow("measured, a byte") << qint64(1) << 4 << qint64(0) << int(ui::StepBar::Done) << u"1 KB"_s;
  QTest::newRow("nothing there") << qint64(0) << 4 << qint64(0) << int(ui::StepBar::Done) << u"—"_s;
  QTest::newRow("measured, though in work") << 5 * kMB << 3 << 7 * kMB << int(ui::StepBar::Done) << u"5 MB"_s;
  QTest::newRow("in work") << qint64(-1) << 3 << 7 * kMB << int(ui::StepBar::Running) << u"7 MB"_s;
  QTest::newRow("in work, nothing yet") << qint64(-1) << 3 << qint64(0) << int(ui::StepBar::Running) << u"…"_s;
  QTest::newRow("waiting") << qint64(-1) << 2 << 7 * kMB << int(ui::StepBar::Pending) << u"—"_s;
  QTest::newRow("passed over") << qint64(-1) << 4 << 7 * kMB << int(ui::StepBar::Pending) << u"—"_s;
}

void TestSystemDataPage::steps() {
  QFETCH(const qint64, figure);
  QFETCH(const int, current);
  QFETCH(const qint64, bytes);
  m_page->startScanView();
  if (figure >= 0) measured(3, figure);
  m_page->showScanProgress(current, bytes);
  QTEST(stateOf(stepRows()[3]), "state");
  QTEST(valueOf(stepRows()[3]), "text");
}

void TestSystemDataPage::stepsOfARunInOrder() {
  m_page->startScanView();
  QCOMPARE(stateOf(stepRows()[0]), int(ui::StepBar::Running));
  QCOMPARE(valueOf(stepRows()[0]), u"…"_s);
  emit m_state->systemDataProgress(0, 18, u"/a"_s, 2 * kMB);
  QCOMPARE(valueOf(stepRows()[0]), u"2 MB"_s);
  measured(0, 3 * kMB);
  QCOMPARE(stateOf(stepRows()[0]), int(ui::StepBar::Done));
  QCOMPARE(valueOf(stepRows()[0]), u"3 MB"_s);
  QCOMPARE(stateOf(stepRows()[1]), int(ui::StepBar::Running));
  QCOMPARE(stateOf(stepRows()[2]), int(ui::StepBar::Pending));
  for (int i = 1; i < stepRows().size(); ++i) measured(i, 0);
  for (const ui::ScanStepRow* row : stepRows()) QCOMPARE(stateOf(row), int(ui::StepBar::Done));
}

void TestSystemDataPage::measuredOutsideTheListIsIgnored() {
  m_page->startScanView();
  measured(4, kMB);
  QStringList before;
  for (const ui::ScanStepRow* row : stepRows()) before << row->valueText();
  for (const int index : {-1, int(stepRows().size()), 99}) measured(index, kGB);
  QStringList after;
  for (const ui::ScanStepRow* row : stepRows()) after << row->valueText();
  QCOMPARE(after, before);
  QVERIFY(stepRows()[5]->isActive());
}

void TestSystemDataPage::runningTotal() {
  m_page->startScanView();
  QCOMPARE(radar()->valueText(), u"0 KB measured"_s);
  measured(0, 3 * kMB);
  measured(1, 0);
  measured(2, 40 * kMB);
  m_page->showScanProgress(3, 7 * kMB);
  QCOMPARE(radar()->valueText(), u"50 MB measured"_s);
  m_page->showScanProgress(3, 0);
  QCOMPARE(radar()->valueText(), u"43 MB measured"_s);
}

void TestSystemDataPage::tickMovesOnlyTheClocks() {
  m_page->startScanView();
  m_page->showScanProgress(5, 7 * kMB);
  for (ui::ScanStepRow* row : stepRows()) row->set(ui::StepBar::Done, u"untouched"_s);
  radar()->setText(u"untouched"_s, {});
  find<QLabel>("elapsedValue")->clear();
  find<QLabel>("remainingValue")->clear();
  m_page->showScanProgress(0, -1);
  for (const ui::ScanStepRow* row : stepRows()) QCOMPARE(valueOf(row), u"untouched"_s);
  QVERIFY(radar()->valueText().startsWith(u"untouched"_s));
  QCOMPARE(elapsed(), u"0:00"_s);
  QCOMPARE(remaining(), u"~0:00"_s); // still at the sixth of eighteen
}

void TestSystemDataPage::clocksRun() {
  m_page->startScanView();
  m_page->showScanProgress(3, 0);
  QCOMPARE(elapsed(), u"0:00"_s);
  QTRY_COMPARE(elapsed(), u"0:01"_s); // without anything being told meanwhile
  QVERIFY(remaining().startsWith(u'~'));
}

void TestSystemDataPage::remainingComesLate() {
  m_page->startScanView();
  QCOMPARE(stepRows().size(), 18);
  for (const int index : {0, 1, 2}) {
    m_page->showScanProgress(index, 0);
    QCOMPARE(remaining(), u"—"_s);
  }
  m_page->showScanProgress(3, 0); // 3.5 of 18
  QCOMPARE(remaining(), u"~0:00"_s);
}

void TestSystemDataPage::pathIsShortened() {
  watch();
  auto* line = find<ui::PathLabel>("scanPath");
  const QString path = u"/home/robin/.local/share/an-app-with-a-long-name/cache/of/very/many/things/entry-1"_s;
  emit m_state->systemDataProgress(0, 18, path, 0);
  QCOMPARE(line->text(), line->fontMetrics().elidedText(path, Qt::ElideMiddle, line->width()));
  QVERIFY(line->text() != path);
  QCOMPARE(line->accessibleName(), path);
  line->resize(20, line->height());
  emit m_state->systemDataProgress(0, 18, path, 0);
  QCOMPARE(line->text(), line->fontMetrics().elidedText(path, Qt::ElideMiddle, 80));
}

void TestSystemDataPage::rowInWorkIsInView() {
  watch();
  const auto isSeen = [this](int index) {
    const QWidget* row = stepRows()[index];
    return stepsArea()->viewport()->rect().contains(QRect(row->mapTo(stepsArea()->viewport(), QPoint()), row->size()));
  };
  const int last = int(stepRows().size()) - 1;
  QTRY_VERIFY(isSeen(0));
  QVERIFY(!isSeen(last));
  for (int i = 0; i < last; ++i) {
    measured(i, kMB);
    QVERIFY2(isSeen(i + 1), qPrintable(QString::number(i + 1)));
  }
  measured(last, kMB); // and none is next
  QVERIFY(isSeen(last));
}

void TestSystemDataPage::rowInWorkStaysInView() {
  watch();
  for (int i = 0; i < 6; ++i) measured(i, kMB);
  const QWidget* row = stepRows()[6];
  const auto bottom = [&] { return row->mapTo(stepsArea()->viewport(), row->rect().bottomLeft()).y(); };
  m_page->resize(m_page->width(), 900);
  QTRY_COMPARE(stepsArea()->verticalScrollBar()->value(), 0);
  QVERIFY(bottom() < stepsArea()->viewport()->height());
  m_page->resize(m_page->width(), 300);
  QTRY_VERIFY(bottom() < stepsArea()->viewport()->height());
  QVERIFY(stepsArea()->verticalScrollBar()->value() > 0);
}

void TestSystemDataPage::nextRunBeginsAnew() {
  m_page->startScanView();
  emit m_state->systemDataProgress(0, 18, u"/a/b"_s, kMB);
  for (int i = 0; i < 6; ++i) measured(i, kGB);
  m_page->startScanView();
  settle();
  QCOMPARE(stepRows().size(), 18);
  QCOMPARE(stateOf(stepRows()[0]), int(ui::StepBar::Running));
  for (int i = 1; i < stepRows().size(); ++i) QCOMPARE(stateOf(stepRows()[i]), int(ui::StepBar::Pending));
  QCOMPARE(find<QLabel>("scanPath")->text(), QString());
  QCOMPARE(radar()->valueText(), u"0 KB measured"_s);
  QCOMPARE(remaining(), u"—"_s);
}

void TestSystemDataPage::deniedStepsLookLikeOthers() {
  m_page->startScanView();
  measured(0, 0, true);
  measured(1, kMB, true);
  QCOMPARE(valueOf(stepRows()[0]), u"—"_s);
  QCOMPARE(valueOf(stepRows()[1]), u"1 MB"_s);
}

void TestSystemDataPage::colours() {
  m_page->startScanView();
  measured(0, kMB);
  const QLabel* value = stepRows()[0]->findChildren<QLabel*>().last();
  QVERIFY(value->styleSheet().contains(Theme::get().text.name()));
  pixels::setLook(true);
  QVERIFY(value->styleSheet().contains(Theme::get().text.name()));
  QCOMPARE(valueOf(stepRows()[0]), u"1 MB"_s);
  QVERIFY(stepRows()[1]->isActive()); // where it was
  QCOMPARE(radar()->valueText(), u"1 MB measured"_s);
}

// Nothing in the list takes the focus, so the list itself does.
void TestSystemDataPage::stepsScrollByKeyboard() {
  watch();
  QTRY_VERIFY(stepsArea()->verticalScrollBar()->maximum() > 0);
  button(u"Rescan"_s)->setFocus(Qt::TabFocusReason);
  QWidget* card = stepsArea()->parentWidget();
  const QImage before = pixels::rendered(*card);
  QTest::keyClick(m_page->focusWidget(), Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget(), stepsArea());
  QVERIFY(pixels::difference(before, pixels::rendered(*card)).width() > card->width() / 2); // the ring
  QCOMPARE(stepsArea()->accessibleName(), u"Measuring System Data…"_s);
  QTest::keyClick(stepsArea(), Qt::Key_PageDown);
  QVERIFY(stepsArea()->verticalScrollBar()->value() > 0);
}

void TestSystemDataPage::readerHearsTheSteps() {
  m_page->startScanView();
  measured(0, kMB);
  QCOMPARE(reader(stepRows()[0])->text(QAccessible::Name), systemdata::definitions()[0].title);
  QVERIFY(reader(stepRows()[0])->text(QAccessible::Value).endsWith(u"1 MB"_s));
  QCOMPARE(reader(radar())->text(QAccessible::Name), u"Measuring System Data…"_s);
}

void TestSystemDataPage::contexts() {
  Marking marking;
  QCoreApplication::installTranslator(&marking);
  makePage();
  m_page->startScanView();
  const QStringList texts = windowtest::allTexts(m_page.get());
  QCoreApplication::removeTranslator(&marking);
  for (const char* text : {"System Data", "Rescan", "See what's inside System Data", "Scan System Data",
                           "Snapshots, backups, developer files, caches and more.", "Measuring System Data…"})
    QVERIFY2(texts.contains(u"[SystemDataPage]"_s + QString::fromUtf8(text)), text);
  for (const char* text : {"Elapsed", "Remaining"})
    QVERIFY2(texts.contains(u"[CleanupPage]"_s + QString::fromUtf8(text)), text);
  QVERIFY(texts.join(u'\n').contains(u"[SystemDataPage]measured"_s));
}

int main(int argc, char** argv) { return uitest::run<TestSystemDataPage>(argc, argv); }

#include "tst_SystemDataPage.moc"
