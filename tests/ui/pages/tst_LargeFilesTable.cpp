// The Space Map's list by mouse, by keyboard, and as a screen reader finds it.
#include "ui/pages/LargeFilesTable.h"

#include "LargeFilesTest.h"
#include "support/Desktop.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/pages/LargeFileDelegate.h"
#include "ui/pages/LargeFilesHeader.h"
#include "ui/pages/LargeFilesModel.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace largetest;
using ui::LargeFilesModel;

namespace {} // namespace

class TestLargeFilesTable : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup();

  void anyCellTicks();
  void otherButtonsDoNothing();
  void doubleClickShows();
  void headingSorts();
  void headingOfNoColumnTurnsTheOrder();
  void arrowsMove();
  void homeAndEnd();
  void pages();
  void firstFocusTakesTheFirstRow();
  void spaceTicksOnce();
  void enterShows();
  void keysWithoutRows();
  void clickMovesTheKeyboard();
  void keyboardComesIntoView();
  void workedRowIsSeen();
  void placeFollowsTheSorting();
  void placeFollowsTheFilter();
  void placeOfWhatIsGone();
  void tabLeaves();
  void ringIsForTheKeyboard();
  void ringGoesWithThePress();
  void headerByKeys();
  void headerKeysMirrored();
  void headerLine_data();
  void headerLine();
  void headerStops();
  void headerRing();
  void spokenTable();
  void spokenTicks();
  void spokenHeader();

 private:
  void put(const QStringList& names) {
    QList<LargeFile> files;
    qint64 size = 1000;
    for (const QString& name : names) files << file(name, size--, u"Video"_s, u"/d/"_s + name);
    m_model->setFiles(files);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] QPoint middle(int row, int column) const {
    return m_table->visualRect(m_model->index(row, column)).center();
  }
  void click(int row, int column, Qt::MouseButton which = Qt::LeftButton) {
    QTest::mouseClick(m_table->viewport(), which, {}, middle(row, column));
  }
  void clickHeading(int column) {
    const QPoint place(header()->sectionViewportPosition(column) + 20, header()->height() / 2);
    QTest::mouseClick(header()->viewport(), Qt::LeftButton, {}, place);
  }
  [[nodiscard]] ui::LargeFilesHeader* header() const {
    return qobject_cast<ui::LargeFilesHeader*>(m_table->horizontalHeader());
  }
  void key(Qt::Key one) { QTest::keyClick(QApplication::focusWidget(), one); }
  [[nodiscard]] bool ticked(const QString& name) const {
    return m_model->selection().contains(u"/d/"_s + name + u'/' + name);
  }
  [[nodiscard]] QStringList order() const { return namesOf(m_model->files()); }
  [[nodiscard]] QString current() const {
    const int row = m_table->currentIndex().row();
    return row < 0 ? QString() : order().at(row);
  }
  [[nodiscard]] QImage picture(QWidget* of) const {
    QCoreApplication::processEvents();
    return of->grab().toImage();
  }

  std::unique_ptr<LargeFilesModel> m_model;
  std::unique_ptr<QWidget> m_window;
  QWidget* m_before = nullptr;
  ui::LargeFilesTable* m_table = nullptr;
};

void TestLargeFilesTable::init() {
  pixels::setLook(false);
  QCursor::setPos(2, 2);
  m_model = std::make_unique<LargeFilesModel>();
  m_window = std::make_unique<QWidget>();
  m_window->resize(600, 320);
  m_window->move(50, 50);
  m_before = new QWidget(m_window.get());
  m_before->setFocusPolicy(Qt::StrongFocus);
  m_before->setGeometry(0, 0, 600, 20);
  m_table = new ui::LargeFilesTable(m_model.get(), m_window.get());
  m_table->setGeometry(0, 20, 600, 300);
  m_window->show();
  m_window->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
  m_before->setFocus();
  put({u"c"_s, u"a"_s, u"b"_s, u"e"_s, u"d"_s, u"g"_s, u"f"_s, u"h"_s});
}

void TestLargeFilesTable::cleanup() {
  m_window.reset();
  m_model.reset();
}

// By mouse

void TestLargeFilesTable::anyCellTicks() {
  for (const int column : {0, 1, 3, 4})
    for (const bool on : {true, false}) {
      click(1, column);
      QCOMPARE(ticked(u"a"_s), on);
      QCOMPARE(m_model->selection().size(), on ? 1 : 0);
    }
}

void TestLargeFilesTable::otherButtonsDoNothing() {
  click(1, 1, Qt::RightButton);
  click(1, 1, Qt::MiddleButton);
  QVERIFY(m_model->selection().isEmpty());
}

void TestLargeFilesTable::doubleClickShows() {
  const Desktop desktop;
  click(2, 1);
  QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, {}, middle(2, 1));
  QTRY_COMPARE(desktop.opened, QStringList{u"/d/b"_s});
}

void TestLargeFilesTable::headingSorts() {
  clickHeading(1);
  QCOMPARE(order().first(), u"a"_s);
  clickHeading(1);
  QCOMPARE(order().first(), u"h"_s);
  clickHeading(4);
  QCOMPARE(order().first(), u"h"_s);
  clickHeading(4);
  QCOMPARE(order().first(), u"c"_s); // the largest
  QCOMPARE(m_model->headerData(4, Qt::Horizontal).toString(), u"SIZE  ↓"_s);
}

void TestLargeFilesTable::headingOfNoColumnTurnsTheOrder() {
  QCOMPARE(order().first(), u"c"_s);
  clickHeading(0);
  QCOMPARE(m_model->sortColumn(), 4);
  QCOMPARE(order().first(), u"h"_s); // the smallest
}

// By keyboard

void TestLargeFilesTable::arrowsMove() {
  m_table->setFocus(Qt::TabFocusReason);
  QCOMPARE(current(), u"c"_s);
  key(Qt::Key_Down);
  QCOMPARE(current(), u"a"_s);
  key(Qt::Key_Down);
  key(Qt::Key_Up);
  QCOMPARE(current(), u"a"_s);
  key(Qt::Key_Up);
  key(Qt::Key_Up);
  QCOMPARE(current(), u"c"_s);
  QVERIFY(m_model->selection().isEmpty()); // moving ticks nothing
}

void TestLargeFilesTable::homeAndEnd() {
  m_table->setFocus(Qt::TabFocusReason);
  key(Qt::Key_End);
  QCOMPARE(current(), u"h"_s);
  key(Qt::Key_Right); // along the row
  QCOMPARE(current(), u"h"_s);
  key(Qt::Key_Home);
  QCOMPARE(current(), u"c"_s);
}

void TestLargeFilesTable::pages() {
  m_table->setFocus(Qt::TabFocusReason);
  key(Qt::Key_PageDown);
  const int there = m_table->currentIndex().row();
  QVERIFY(there >= 3);
  key(Qt::Key_PageUp);
  QCOMPARE(current(), u"c"_s);
}

void TestLargeFilesTable::firstFocusTakesTheFirstRow() {
  QCOMPARE(current(), QString());
  m_table->setFocus(Qt::TabFocusReason);
  QCOMPARE(current(), u"c"_s);
  QCOMPARE(m_table->currentIndex().column(), 0); // which tells its tick
}

void TestLargeFilesTable::spaceTicksOnce() {
  m_table->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Down);
  key(Qt::Key_Space);
  QVERIFY(ticked(u"a"_s));
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
  QCoreApplication::sendEvent(m_table, &held);
  QVERIFY(ticked(u"a"_s));
  key(Qt::Key_Space);
  QVERIFY(m_model->selection().isEmpty());
}

void TestLargeFilesTable::enterShows() {
  const Desktop desktop;
  m_table->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Return);
  QTRY_COMPARE(desktop.opened, QStringList{u"/d/c"_s});
  key(Qt::Key_Down);
  key(Qt::Key_Enter);
  QTRY_COMPARE(desktop.opened, (QStringList{u"/d/c"_s, u"/d/a"_s}));
  QVERIFY(m_model->selection().isEmpty());
}

void TestLargeFilesTable::keysWithoutRows() {
  put({});
  m_table->setFocus(Qt::TabFocusReason);
  for (const Qt::Key one : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Home, Qt::Key_End, Qt::Key_Down, Qt::Key_PageDown})
    key(one);
  QVERIFY(m_model->selection().isEmpty());
  QCOMPARE(current(), QString());
}

void TestLargeFilesTable::clickMovesTheKeyboard() {
  click(2, 1);
  QVERIFY(m_table->hasFocus());
  key(Qt::Key_Down);
  QCOMPARE(current(), u"e"_s);
}

void TestLargeFilesTable::keyboardComesIntoView() {
  m_table->setFocus(Qt::TabFocusReason);
  QVERIFY(m_table->verticalScrollBar()->maximum() > 0);
  key(Qt::Key_End);
  QCOMPARE(m_table->verticalScrollBar()->value(), m_table->verticalScrollBar()->maximum());
}

// Wherever the wheel has gone meanwhile.
void TestLargeFilesTable::workedRowIsSeen() {
  QScrollBar* bar = m_table->verticalScrollBar();
  click(0, 1);
  QVERIFY(ticked(u"c"_s));
  bar->setValue(bar->maximum());
  key(Qt::Key_Space);
  QVERIFY(!ticked(u"c"_s));
  QCOMPARE(bar->value(), 0);
  m_before->setFocus();
  bar->setValue(bar->maximum());
  m_table->setFocus(Qt::TabFocusReason);
  QCOMPARE(bar->value(), 0);
}

void TestLargeFilesTable::placeFollowsTheSorting() {
  m_table->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Down); // a
  m_table->sortByColumn(1, Qt::DescendingOrder);
  QCOMPARE(current(), u"a"_s);
  QCOMPARE(m_table->currentIndex().row(), 7);
}

void TestLargeFilesTable::placeFollowsTheFilter() {
  m_table->sortByColumn(1, Qt::DescendingOrder);
  m_table->setFocus(Qt::TabFocusReason);
  for (int i = 0; i < 3; ++i) key(Qt::Key_Down);
  QCOMPARE(current(), u"e"_s);
  put({u"b"_s, u"e"_s, u"h"_s});
  QCOMPARE(current(), u"e"_s);
  QCOMPARE(m_table->currentIndex().row(), 1);
}

// The next row has come into its place.
void TestLargeFilesTable::placeOfWhatIsGone() {
  m_table->sortByColumn(1, Qt::DescendingOrder);
  m_table->setFocus(Qt::TabFocusReason);
  for (int i = 0; i < 3; ++i) key(Qt::Key_Down);
  put({u"c"_s, u"a"_s, u"b"_s, u"d"_s, u"g"_s, u"f"_s, u"h"_s}); // without e
  QCOMPARE(current(), u"d"_s);
  put({u"c"_s, u"a"_s});
  QCOMPARE(current(), u"a"_s); // the last
}

void TestLargeFilesTable::tabLeaves() {
  m_table->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Tab);
  QVERIFY(!m_table->hasFocus());
}

void TestLargeFilesTable::ringIsForTheKeyboard() {
  QWidget* viewport = m_table->viewport();
  click(1, 1);
  click(1, 1);
  const QImage plain = picture(viewport);
  m_before->setFocus();
  QCOMPARE(picture(viewport), plain);
  m_table->setFocus(Qt::TabFocusReason);
  const QRect ring = pixels::difference(plain, picture(viewport));
  const QRect row = m_table->visualRect(m_model->index(1, 0)) | m_table->visualRect(m_model->index(1, 4));
  QVERIFY(row.contains(ring));
  QVERIFY(ring.width() > row.width() - 16 && ring.height() > row.height() - 16);
  key(Qt::Key_Down);
  const QRect below = pixels::difference(plain, picture(viewport));
  QCOMPARE(below, ring.translated(0, 54));
}

void TestLargeFilesTable::ringGoesWithThePress() {
  QWidget* viewport = m_table->viewport();
  m_table->setFocus(Qt::TabFocusReason);
  const QImage ringed = picture(viewport);
  click(0, 1);
  click(0, 1);
  const QImage plain = picture(viewport);
  QVERIFY(plain != ringed);
  key(Qt::Key_Up); // a key brings it back
  QCOMPARE(picture(viewport), ringed);
}

// The heading

void TestLargeFilesTable::headerByKeys() {
  header()->setFocus(Qt::TabFocusReason);
  QCOMPARE(header()->worked(), 1);
  key(Qt::Key_Space);
  QCOMPARE(order().first(), u"a"_s);
  key(Qt::Key_Return);
  QCOMPARE(order().first(), u"h"_s);
  key(Qt::Key_Right);
  QCOMPARE(header()->worked(), 3); // the hidden column is passed by
  key(Qt::Key_Right);
  key(Qt::Key_Right);
  QCOMPARE(header()->worked(), 4);
  key(Qt::Key_Enter);
  QCOMPARE(m_model->sortColumn(), 4);
  QCOMPARE(m_model->sortOrder(), Qt::AscendingOrder);
  key(Qt::Key_Home);
  QCOMPARE(header()->worked(), 1);
  key(Qt::Key_Left);
  QCOMPARE(header()->worked(), 1);
  key(Qt::Key_End);
  QCOMPARE(header()->worked(), 4);
  key(Qt::Key_Left);
  QCOMPARE(header()->worked(), 3);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
  QCoreApplication::sendEvent(header(), &held);
  QCOMPARE(m_model->sortColumn(), 4);
}

void TestLargeFilesTable::headerKeysMirrored() {
  m_table->setLayoutDirection(Qt::RightToLeft);
  header()->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Left); // where the next column is
  QCOMPARE(header()->worked(), 3);
  key(Qt::Key_Right);
  QCOMPARE(header()->worked(), 1);
}

void TestLargeFilesTable::headerLine_data() {
  QTest::addColumn<double>("ratio");
  QTest::addColumn<int>("top"); // of the line, of whole pixels
  QTest::newRow("1") << 1.0 << 31;
  QTest::newRow("1.25") << 1.25 << 39;
  QTest::newRow("1.5") << 1.5 << 47;
}

void TestLargeFilesTable::headerLine() {
  QFETCH(double, ratio);
  QFETCH(int, top);
  (void)picture(m_table); // lays it out
  const QImage image = pixels::rendered(*header()->viewport(), ratio);
  for (int x = 0; x < image.width(); ++x) {
    QCOMPARE(image.pixelColor(x, top - 1).alpha(), 0);
    const QColor seen = image.pixelColor(x, top);
    QVERIFY2(pixels::isNear(seen, Theme::get().line), qPrintable(u"%1 at %2"_s.arg(seen.name(QColor::HexArgb)).arg(x)));
    if (top + 1 < image.height()) QCOMPARE(image.pixelColor(x, top + 1).alpha(), 0);
  }
}

void TestLargeFilesTable::headerStops() {
  QCOMPARE(header()->stops(), (QList<int>{1, 3, 4}));
  clickHeading(1);
  QVERIFY(m_table->hasFocus()); // where the next key is of more use
}

void TestLargeFilesTable::headerRing() {
  QWidget* viewport = header()->viewport();
  const QImage plain = picture(viewport);
  header()->setFocus(Qt::TabFocusReason);
  const QRect ring = pixels::difference(plain, picture(viewport));
  const QRect section(header()->sectionViewportPosition(1), 0, header()->sectionSize(1), header()->height());
  QVERIFY(section.contains(ring));
  QVERIFY(ring.width() > section.width() - 16);
  key(Qt::Key_End);
  const QRect other = pixels::difference(plain, picture(viewport));
  QVERIFY(other.left() > ring.right());
  clickHeading(3);
  clickHeading(3);
  clickHeading(4);
  clickHeading(4);
  QCOMPARE(picture(viewport), plain); // sorted by size again, and no ring
}

// As it is told

void TestLargeFilesTable::spokenTable() {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(m_table);
  QCOMPARE(spoken->role(), QAccessible::Table);
  QCOMPARE(spoken->text(QAccessible::Name), u"Large files"_s);
  QAccessibleTableInterface* cells = spoken->tableInterface();
  QVERIFY(cells);
  QCOMPARE(cells->rowCount(), 8);
  QCOMPARE(cells->columnCount(), 5);
  QCOMPARE(cells->cellAt(1, 1)->text(QAccessible::Name), u"a"_s);
  QCOMPARE(cells->cellAt(1, 1)->text(QAccessible::Description), u"/d/a"_s);
  QCOMPARE(cells->cellAt(1, 3)->text(QAccessible::Name), u"Today"_s);
  QCOMPARE(cells->cellAt(1, 4)->text(QAccessible::Name), u"999 MB"_s);
  QCOMPARE(cells->columnDescription(4), m_model->headerData(4, Qt::Horizontal).toString());
}

void TestLargeFilesTable::spokenTicks() {
  QAccessibleTableInterface* cells = QAccessible::queryAccessibleInterface(m_table)->tableInterface();
  QAccessibleInterface* first = cells->cellAt(0, 0);
  QCOMPARE(first->text(QAccessible::Name), u"c, 1.0 GB"_s);
  QVERIFY(first->state().checkable && !first->state().checked);
  QVERIFY(!cells->cellAt(0, 1)->state().checkable);
  m_table->setFocus(Qt::TabFocusReason);
  QVERIFY(first->state().focused);
  key(Qt::Key_Space);
  QVERIFY(first->state().checked);
  QVERIFY(!cells->cellAt(1, 0)->state().checked);
}

void TestLargeFilesTable::spokenHeader() {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(header());
  QCOMPARE(spoken->text(QAccessible::Name), u"Sort by"_s);
  QCOMPARE(spoken->childCount(), 3);
  QCOMPARE(spoken->child(0)->text(QAccessible::Name), u"Name"_s);
  QCOMPARE(spoken->child(2)->text(QAccessible::Name), u"Size, descending"_s);
  QCOMPARE(spoken->child(0)->role(), QAccessible::ColumnHeader);
  header()->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Right);
  QVERIFY(spoken->child(1)->state().focused);
  spoken->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCOMPARE(order().first(), u"a"_s);
  QCOMPARE(spoken->child(0)->text(QAccessible::Name), u"Name, ascending"_s);
}

int main(int argc, char** argv) { return uitest::run<TestLargeFilesTable>(argc, argv); }

#include "tst_LargeFilesTable.moc"
