// What a user does with the files of the Space Map: ticks, what comes of them, and all of it by keyboard.
#include "LargeFilesPageTest.h"
#include "support/Desktop.h"

#include <QHeaderView>
#include <QPoint>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace largetest;
using windowtest::button;
using windowtest::click;

class TestLargeFilesPageTicks : public LargeFilesPageTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void tickInTheMap();
  void tickInTheList();
  void ticksOutliveASearch();
  void shows();
  void showsWhatIsThere();
  void showsFromTheMap();
  void moves();
  void whatIsHiddenStays();
  void whatIsHeldStays();
  void refusedMoveShowsNoTicks();
  void undoSearches();
  void keyboardAfterTheMove();
  void keyboardLeavesNoHiddenView();
  void scrollingOutlivesTheSettings();
  void filterMovesNoRowsUnderTheMouse();
  void tabOrder();
};

void TestLargeFilesPageTicks::tickInTheMap() {
  putFound({file(u"a"_s, 300), file(u"b"_s, 200)});
  const QPoint inFirst = map()->rects().at(0).center().toPoint();
  for (const bool on : {true, false}) {
    QTest::mouseClick(map(), Qt::LeftButton, {}, inFirst);
    QCOMPARE(model()->index(0, 0).data(ui::LargeFilesModel::CheckedRole).toBool(), on);
    QVERIFY(isTile(u"a"_s, on));
    QVERIFY(isTile(u"b"_s, false));
    QCOMPARE(sum(), (on ? u"300 MB"_s : u"0 KB"_s) + u" selected of 500 MB · 2 files"_s);
  }
}

void TestLargeFilesPageTicks::tickInTheList() {
  putFound({file(u"a"_s, 300), file(u"b"_s, 200)});
  for (const bool on : {true, false}) {
    clickRow(1);
    QVERIFY(isTile(u"b"_s, on));
    QCOMPARE(sum(), (on ? u"200 MB"_s : u"0 KB"_s) + u" selected of 500 MB · 2 files"_s);
  }
}

void TestLargeFilesPageTicks::ticksOutliveASearch() {
  putFound({file(u"a"_s, 300), file(u"b"_s, 200)});
  clickRow(0);
  beginSearch();
  putFound({file(u"c"_s, 400), file(u"a"_s, 300)});
  QCOMPARE(sum(), u"300 MB selected of 700 MB · 2 files"_s);
}

void TestLargeFilesPageTicks::shows() {
  const Desktop desktop;
  putFound({file(u"a"_s, 300, u"Video"_s, u"/one"_s), file(u"b"_s, 200, u"Video"_s, u"/two"_s)});
  clickRow(1);
  click(*m_page, u"Show in Files"_s);
  QTRY_COMPARE(desktop.opened, QStringList{u"/two"_s});
  clickRow(0);
  click(*m_page, u"Show in Files"_s);
  QTRY_COMPARE(desktop.opened, (QStringList{u"/two"_s, u"/one"_s})); // the uppermost of several
}

// A ticked file that the filter hides isn't what the user looks at.
void TestLargeFilesPageTicks::showsWhatIsThere() {
  const Desktop desktop;
  putFound({file(u"a"_s, 300, u"Video"_s, u"/one"_s), file(u"b"_s, 200, u"Video"_s, u"/two"_s)});
  clickRow(0);
  clickRow(1);
  search()->setText(u"two"_s);
  click(*m_page, u"Show in Files"_s);
  QTRY_COMPARE(desktop.opened, QStringList{u"/two"_s});
}

void TestLargeFilesPageTicks::showsFromTheMap() {
  const Desktop desktop;
  putFound({file(u"a"_s, 300, u"Video"_s, u"/one"_s), file(u"b"_s, 200, u"Video"_s, u"/two"_s)});
  map()->setFocus(Qt::TabFocusReason);
  QTest::keyClick(map(), Qt::Key_End);
  QTest::keyClick(map(), Qt::Key_Return);
  QTRY_COMPARE(desktop.opened, QStringList{u"/two"_s});
  QVERIFY(model()->selection().isEmpty());
}

void TestLargeFilesPageTicks::moves() {
  QSignalSpy toast(m_state.get(), &AppState::toast);
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200),
                                  real(u"Films/c.mov"_s, 100)};
  putFound(files);
  clickRow(0);
  clickRow(2);
  click(*m_page, u"Move to Trash"_s);
  settle();
  QVERIFY(!QFile::exists(files.at(0).path) && !QFile::exists(files.at(2).path));
  QVERIFY(QFile::exists(files.at(1).path));
  QVERIFY(QFile::exists(m_home->path(u".local/share/Trash/files/a.mov"_s)));
  QCOMPARE(shown(), QStringList{u"b.mov"_s});
  QVERIFY(model()->selection().isEmpty());
  QCOMPARE(sum(), u"0 KB selected of 200 MB · 1 files"_s);
  QCOMPARE(toast.size(), 1);
  QVERIFY2(toast.first().at(0).toString().startsWith(u"2 files "_s), qPrintable(toast.first().at(0).toString()));
  QCOMPARE(toast.first().at(1).toBool(), true);
}

void TestLargeFilesPageTicks::whatIsHiddenStays() {
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200)};
  putFound(files);
  clickRow(0);
  clickRow(1);
  search()->setText(u"b.mov"_s);
  click(*m_page, u"Move to Trash"_s);
  QVERIFY(QFile::exists(files.at(0).path));
  QVERIFY(!QFile::exists(files.at(1).path));
  QCOMPARE(model()->selection(), QSet<QString>{files.at(0).path}); // and keeps its tick
}

void TestLargeFilesPageTicks::whatIsHeldStays() {
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200)};
  putFound(files);
  QFile held(files.at(0).path);
  QVERIFY(held.open(QIODevice::ReadOnly));
  clickRow(0);
  clickRow(1);
  click(*m_page, u"Move to Trash"_s);
  settle();
  QVERIFY(QFile::exists(files.at(0).path));
  QCOMPARE(shown(), QStringList{u"a.mov"_s});
  QVERIFY(model()->selection().isEmpty());
}

void TestLargeFilesPageTicks::refusedMoveShowsNoTicks() {
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200)};
  putFound(files);
  clickRow(0);
  AppSettings::instance().put("clean/exclusions", QPoint(1, 2)); // no list
  QVERIFY(!AppState::settingsRefusal().isEmpty());               // and known before
  click(*m_page, u"Move to Trash"_s);
  const QString shownSum = sum();
  const bool isMarked = isTile(u"a.mov"_s, true);
  AppSettings::instance().setExclusions({}); // shows everything anew
  QVERIFY(AppSettings::instance().acceptExclusions());
  QVERIFY(QFile::exists(files.at(0).path));
  QVERIFY(model()->selection().isEmpty());
  QCOMPARE(shownSum, u"0 KB selected of 500 MB · 2 files"_s);
  QVERIFY(!isMarked);
}

void TestLargeFilesPageTicks::undoSearches() {
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300)};
  putFound(files);
  clickRow(0);
  click(*m_page, u"Move to Trash"_s);
  QVERIFY(!QFile::exists(files.at(0).path));
  m_state->undoLastTrash();
  QVERIFY(QFile::exists(files.at(0).path));
  QCOMPARE(view(), int(Scan));
  endOfSearch();
  QCOMPARE(view(), int(Results));
}

void TestLargeFilesPageTicks::keyboardAfterTheMove() {
  putFound({real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200)});
  clickRow(0);
  find("moveButton")->setFocus(Qt::TabFocusReason);
  QTest::keyClick(find("moveButton"), Qt::Key_Space);
  settle();
  QVERIFY(table()->hasFocus());
  QCOMPARE(table()->currentIndex().row(), 0); // the place that became free
  QTest::keyClick(table(), Qt::Key_Space);
  QVERIFY(isTile(u"b.mov"_s, true));
}

void TestLargeFilesPageTicks::keyboardLeavesNoHiddenView() {
  putFound({file(u"a"_s, 300)});
  QWidget* rescan = button(*m_page, u"Rescan"_s);
  table()->setFocus(Qt::TabFocusReason);
  beginSearch();
  QVERIFY(rescan->hasFocus());
  putFound({file(u"a"_s, 300)});
  QVERIFY(rescan->hasFocus());
  search()->setFocus(Qt::TabFocusReason);
  emit m_state->largeFilesChanged(); // the same view stays
  QVERIFY(search()->hasFocus());
}

void TestLargeFilesPageTicks::scrollingOutlivesTheSettings() {
  QList<LargeFile> files;
  for (int i = 0; i < 100; ++i) files << file(QString::number(i), 1000 - i);
  putFound(files);
  QScrollBar* bar = table()->verticalScrollBar();
  bar->setValue(1234);
  AppSettings::instance().setOldMonths(7);
  settle();
  QCOMPARE(bar->value(), 1234);
}

// What was clicked last isn't run after, unless the keyboard works there.
void TestLargeFilesPageTicks::filterMovesNoRowsUnderTheMouse() {
  QList<LargeFile> files;
  for (int i = 0; i < 100; ++i) files << file(u"%1 %2"_s.arg(i % 2 == 0 ? u"even"_s : u"odd"_s).arg(i), 1000 - i);
  putFound(files);
  QScrollBar* bar = table()->verticalScrollBar();
  table()->scrollTo(model()->index(90, 0));
  clickRow(90);
  bar->setValue(0);
  search()->setFocus(Qt::MouseFocusReason);
  search()->setText(u"even"_s);
  settle();
  QCOMPARE(shown().size(), 50);
  QCOMPARE(bar->value(), 0);
  table()->setFocus(Qt::TabFocusReason);
  search()->setText(u"o"_s); // as a search that ends meanwhile
  settle();
  QVERIFY(bar->value() > 0);
}

void TestLargeFilesPageTicks::tabOrder() {
  putFound({file(u"a"_s, 300)});
  clickRow(0);
  const QList<QWidget*> stops = {
      button(*m_page, u"Rescan"_s), segments(),        search(), map(), table()->horizontalHeader(), table(),
      find("revealButton"),         find("moveButton")};
  stops.first()->setFocus(Qt::TabFocusReason);
  for (const QWidget* stop : stops) {
    QCOMPARE(static_cast<const QWidget*>(QApplication::focusWidget()), stop);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(QApplication::focusWidget(), stops.first());
}

int main(int argc, char** argv) { return uitest::run<TestLargeFilesPageTicks>(argc, argv); }

#include "tst_LargeFilesPage_ticks.moc"
