// The measuring of System Data as it is watched: what the view is built of, its steps, its clocks and its sum.
#include "SystemDataTest.h"

#include "ui/pages/furniture.h"

using namespace systemdatatest;

class TestSystemDataScanView : public SystemDataTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void scanView_data();
  void scanView();
  void stepRowsAreTheCatalogue_data();
  void stepRowsAreTheCatalogue();
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

 private:
  [[nodiscard]] static QString valueOf(const ui::ScanStepRow* row) {
    return row->findChildren<QLabel*>().last()->text();
  }
  [[nodiscard]] static int stateOf(const ui::ScanStepRow* row) { return row->findChild<ui::StepBar*>()->state(); }
  [[nodiscard]] QString elapsed() const { return find<QLabel>("elapsedValue")->text(); }
  [[nodiscard]] QString remaining() const { return find<QLabel>("remainingValue")->text(); }
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

void TestSystemDataScanView::scanView_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("side");
  QTest::newRow("mac") << true << 28;
  QTest::newRow("win") << false << 32;
}

void TestSystemDataScanView::scanView() {
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

void TestSystemDataScanView::stepRowsAreTheCatalogue_data() {
  QTest::addColumn<QString>("host");
  QTest::newRow("linux") << u"linux"_s;
  QTest::newRow("mac") << u"mac"_s;
}

void TestSystemDataScanView::stepRowsAreTheCatalogue() {
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

void TestSystemDataScanView::steps_data() {
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

void TestSystemDataScanView::steps() {
  QFETCH(const qint64, figure);
  QFETCH(const int, current);
  QFETCH(const qint64, bytes);
  m_page->startScanView();
  if (figure >= 0) measured(3, figure);
  m_page->showScanProgress(current, bytes);
  QTEST(stateOf(stepRows()[3]), "state");
  QTEST(valueOf(stepRows()[3]), "text");
}

void TestSystemDataScanView::stepsOfARunInOrder() {
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

void TestSystemDataScanView::measuredOutsideTheListIsIgnored() {
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

void TestSystemDataScanView::runningTotal() {
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

void TestSystemDataScanView::tickMovesOnlyTheClocks() {
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

void TestSystemDataScanView::clocksRun() {
  m_page->startScanView();
  m_page->showScanProgress(3, 0);
  QCOMPARE(elapsed(), u"0:00"_s);
  QTRY_COMPARE(elapsed(), u"0:01"_s); // without anything being told meanwhile
  QVERIFY(remaining().startsWith(u'~'));
}

void TestSystemDataScanView::remainingComesLate() {
  m_page->startScanView();
  QCOMPARE(stepRows().size(), 18);
  for (const int index : {0, 1, 2}) {
    m_page->showScanProgress(index, 0);
    QCOMPARE(remaining(), u"—"_s);
  }
  m_page->showScanProgress(3, 0); // 3.5 of 18
  QCOMPARE(remaining(), u"~0:00"_s);
}

void TestSystemDataScanView::pathIsShortened() {
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

void TestSystemDataScanView::rowInWorkIsInView() {
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

void TestSystemDataScanView::rowInWorkStaysInView() {
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

void TestSystemDataScanView::nextRunBeginsAnew() {
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

void TestSystemDataScanView::deniedStepsLookLikeOthers() {
  m_page->startScanView();
  measured(0, 0, true);
  measured(1, kMB, true);
  QCOMPARE(valueOf(stepRows()[0]), u"—"_s);
  QCOMPARE(valueOf(stepRows()[1]), u"1 MB"_s);
}

void TestSystemDataScanView::colours() {
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
void TestSystemDataScanView::stepsScrollByKeyboard() {
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

void TestSystemDataScanView::readerHearsTheSteps() {
  m_page->startScanView();
  measured(0, kMB);
  QCOMPARE(reader(stepRows()[0])->text(QAccessible::Name), systemdata::definitions()[0].title);
  QVERIFY(reader(stepRows()[0])->text(QAccessible::Value).endsWith(u"1 MB"_s));
  QCOMPARE(reader(radar())->text(QAccessible::Name), u"Measuring System Data…"_s);
}

int main(int argc, char** argv) { return uitest::run<TestSystemDataScanView>(argc, argv); }

#include "tst_SystemDataScanView.moc"
