// Where the user decides: by keyboard, and as a screen reader hears it.
#include "CleanupTest.h"
#include "ui/controls/Note.h"
#include "ui/pages/CleanupDetail.h"
#include "ui/visuals/StackBar.h"

#include <QAccessible>
#include <QScrollArea>
#include <QScrollBar>

using namespace cleanuptest;

class TestCleanupKeys : public CleanupTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void tabOrder();
  void arrowKeys();
  void rowKeys();
  void focusOutlivesTheRebuild();
  void ringIsForTheKeyboard();
  void keyboardGoesOnAfterShowMore();
  void spokenNames();
  void spokenRowOnShow();
  void doneScrollsByKeys();
  void detailShowsItsRing();

 private:
  void tab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
};

void TestCleanupKeys::tabOrder() {
  review({category(u"temp"_s, {2, 1}), category(u"update"_s, {3})});
  m_state->setItemSelected(u"temp"_s, u"/c/temp/n0"_s, false); // rows are built anew
  m_page->focusCategory(u"update"_s);                          // and the detail
  settle();
  const QList<QWidget*> expected = {button(view(), u"Select recommended"_s),
                                    button(view(), u"Rescan"_s),
                                    find("selectAll"),
                                    row(u"temp"_s),
                                    rowBox(u"temp"_s),
                                    row(u"update"_s),
                                    rowBox(u"update"_s),
                                    find("detailScroll"),
                                    button(detail(), u"Show in Files"_s),
                                    find("detailSelectAll"),
                                    itemBoxes().at(0),
                                    cleanButton()};
  expected.first()->setFocus(Qt::TabFocusReason);
  for (const QWidget* stop : expected) {
    QCOMPARE(static_cast<const QWidget*>(QApplication::focusWidget()), stop);
    tab();
  }
}

void TestCleanupKeys::arrowKeys() {
  review({category(u"temp"_s, {2}), category(u"appcache"_s, {2}), blocked(u"logs"_s), category(u"update"_s, {3})});
  const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
  row(u"temp"_s)->setFocus(Qt::TabFocusReason);
  press(Qt::Key_Up);
  QVERIFY(row(u"temp"_s)->hasFocus());
  press(Qt::Key_Down);
  QVERIFY(row(u"appcache"_s)->hasFocus());
  press(Qt::Key_End);
  QVERIFY(row(u"update"_s)->hasFocus());
  press(Qt::Key_Down);
  QVERIFY(row(u"update"_s)->hasFocus());
  press(Qt::Key_Up);
  QVERIFY(row(u"logs"_s)->hasFocus());
  press(Qt::Key_Home);
  QVERIFY(row(u"temp"_s)->hasFocus());
  QVERIFY(row(u"temp"_s)->isKeyboardFocused());
  rowBox(u"temp"_s)->setFocus(Qt::TabFocusReason);
  press(Qt::Key_Down);
  QVERIFY(rowBox(u"appcache"_s)->hasFocus());
  press(Qt::Key_Down);
  QVERIFY(row(u"logs"_s)->hasFocus()); // whose box can't be worked
  QVERIFY(row(u"temp"_s)->active);     // moving chooses nothing
}

void TestCleanupKeys::rowKeys() {
  review({category(u"temp"_s, {2}), category(u"thumbs"_s, {1})});
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    m_page->focusCategory(u"temp"_s);
    row(u"thumbs"_s)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(row(u"thumbs"_s), key);
    settle();
    QVERIFY(row(u"thumbs"_s)->active);
    QVERIFY(row(u"thumbs"_s)->hasFocus());
    QVERIFY(row(u"thumbs"_s)->isKeyboardFocused());
  }
}

void TestCleanupKeys::focusOutlivesTheRebuild() {
  review({category(u"temp"_s, {2}), category(u"thumbs"_s, {1})});
  rowBox(u"thumbs"_s)->setFocus(Qt::TabFocusReason);
  for (const bool ticked : {false, true, false}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    settle();
    QVERIFY(rowBox(u"thumbs"_s)->hasFocus());
    QCOMPARE(rowBox(u"thumbs"_s)->isChecked(), ticked);
  }
  review({category(u"temp"_s, {2})}); // its category is gone
  QVERIFY(find<QCheckBox>("selectAll")->hasFocus());
  // A tick in the detail leaves the focus there.
  itemBoxes().at(0)->setFocus(Qt::TabFocusReason);
  QTest::keyClick(itemBoxes().at(0), Qt::Key_Space);
  settle();
  QVERIFY(itemBoxes().at(0)->hasFocus());
  QCOMPARE(m_state->selectedBytes(), 0);
}

void TestCleanupKeys::ringIsForTheKeyboard() {
  review({category(u"temp"_s, {2}), category(u"thumbs"_s, {1})});
  const auto picture = [&] {
    settle();
    QApplication::sendPostedEvents();
    return row(u"thumbs"_s)->grab().toImage();
  };
  QTest::mouseClick(row(u"thumbs"_s), Qt::LeftButton);
  QVERIFY(!row(u"thumbs"_s)->isKeyboardFocused());
  QVERIFY(row(u"thumbs"_s)->hasFocus()); // so that the arrow keys work from here
  const QImage plain = picture();
  QTest::mouseClick(rowBox(u"thumbs"_s), Qt::LeftButton);
  QTest::mouseClick(rowBox(u"thumbs"_s), Qt::LeftButton);
  QVERIFY(!row(u"thumbs"_s)->isKeyboardFocused());
  row(u"thumbs"_s)->setFocus(Qt::TabFocusReason);
  QVERIFY(row(u"thumbs"_s)->isKeyboardFocused());
  QVERIFY(picture() != plain);
}

void TestCleanupKeys::keyboardGoesOnAfterShowMore() {
  review({category(u"temp"_s, sizes(40))});
  QPushButton* more = button(detail(), u"Show 25 more"_s);
  more->setFocus(Qt::TabFocusReason);
  QTest::keyClick(more, Qt::Key_Space);
  settle();
  QVERIFY(itemBoxes().at(15)->hasFocus());
}

void TestCleanupKeys::spokenNames() {
  review({category(u"temp"_s, {3'000'000, 1'000'000}), blocked(u"logs"_s)});
  QCOMPARE(nameOf(row(u"temp"_s)), u"Temporary files, 4 MB"_s);
  QCOMPARE(nameOf(rowBox(u"temp"_s)), u"Temporary files, 4 MB"_s);
  QCOMPARE(nameOf(row(u"logs"_s)), u"Logs & crash reports, No permission to read"_s);
  QCOMPARE(QAccessible::queryAccessibleInterface(row(u"temp"_s))->role(), QAccessible::Button);
  QCOMPARE(QAccessible::queryAccessibleInterface(row(u"temp"_s))->text(QAccessible::Description),
           u"Safe, Details shown"_s);
  QCOMPARE(nameOf(itemBoxes().at(1)), u"n1, 1 MB"_s);
  QCOMPARE(nameOf(find("detailScroll")), u"Temporary files"_s);
  QCOMPARE(nameOf(view()->findChild<ui::StackBar*>()), u"Selection"_s);
  m_page->focusCategory(u"logs"_s);
  QCOMPARE(nameOf(noteIn(detail())), u"You have no permission to read some of these folders."_s);
  QAccessible::queryAccessibleInterface(row(u"temp"_s))
      ->actionInterface()
      ->doAction(QAccessibleActionInterface::pressAction());
  QVERIFY(row(u"temp"_s)->active);
}

void TestCleanupKeys::spokenRowOnShow() {
  review({category(u"temp"_s, {2}), category(u"update"_s, {1})});
  const auto told = [&](const QString& id) {
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(row(id));
    return std::pair(spoken->state().selectable && spoken->state().selected, spoken->text(QAccessible::Description));
  };
  QCOMPARE(told(u"temp"_s), std::pair(true, u"Safe, Details shown"_s));
  QCOMPARE(told(u"update"_s), std::pair(false, u"Review"_s));
  m_page->focusCategory(u"update"_s);
  QCOMPARE(told(u"temp"_s), std::pair(false, u"Safe"_s));
  QCOMPARE(told(u"update"_s), std::pair(true, u"Review, Details shown"_s));
}

// The page around the buttons is no stop of its own, and yet it scrolls.
void TestCleanupKeys::doneScrollsByKeys() {
  m_state->report.runningApps = QStringList(400, u"An app"_s); // a long report
  m_state->setPhase(AppState::Done);
  settle();
  QPushButton* log = button(view(), u"View log"_s);
  QScrollArea* area = view()->findChild<QScrollArea*>();
  QVERIFY(area->verticalScrollBar()->maximum() > 0);
  log->setFocus(Qt::TabFocusReason);
  area->verticalScrollBar()->setValue(0);
  QTest::keyClick(log, Qt::Key_PageDown);
  QVERIFY(area->verticalScrollBar()->value() > 0);
  tab();
  QVERIFY(button(view(), u"Done"_s)->hasFocus());
  tab();
  QVERIFY(log->hasFocus());
}

void TestCleanupKeys::detailShowsItsRing() {
  review({category(u"temp"_s, {1})});
  QWidget* panel = view()->findChild<ui::CleanupDetail*>();
  const auto picture = [&](Qt::FocusReason reason) {
    cleanButton()->setFocus(Qt::OtherFocusReason);
    detail()->setFocus(reason);
    settle();
    return panel->grab().toImage();
  };
  const QImage plain = picture(Qt::MouseFocusReason);
  const QImage ringed = picture(Qt::TabFocusReason);
  const int middle = panel->width() / 2;
  QVERIFY(ringed.pixelColor(middle, 3) != plain.pixelColor(middle, 3));
  QVERIFY(ringed.pixelColor(3, panel->height() / 2) != plain.pixelColor(3, panel->height() / 2));
  QCOMPARE(ringed.pixelColor(middle, panel->height() - 30), plain.pixelColor(middle, panel->height() - 30));
}

int main(int argc, char** argv) { return uitest::run<TestCleanupKeys>(argc, argv); }

#include "tst_CleanupKeys.moc"
