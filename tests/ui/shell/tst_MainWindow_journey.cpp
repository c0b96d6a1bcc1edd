// A Smart Scan from its button to its report, by mouse and by keyboard, and what a screen reader finds on the way.
#include "MainWindowTest.h"
#include "ui/controls/Button.h"
#include "ui/pages/CleanupPage.h"
#include "ui/pages/OverviewPage.h"
#include "ui/shell/NavButton.h"

#include <QAccessible>

using namespace Qt::StringLiterals;
using namespace ui;
using windowtest::click;
using windowtest::tabTo;

namespace {

/// Those on show that take the focus, by Tab or by a click, and of which a screen reader could say nothing.
QList<QWidget*> namelessControls(const QWidget& window) {
  QList<QWidget*> found;
  for (QWidget* one : window.findChildren<QWidget*>()) {
    if (one->focusPolicy() == Qt::NoFocus || !one->isVisible()) continue;
    const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(one);
    if (!heard || heard->text(QAccessible::Name).isEmpty() || heard->role() == QAccessible::NoRole) found << one;
  }
  return found;
}

} // namespace

class TestMainWindowJourney : public MainWindowTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void everyControlHasAName_data();
  void everyControlHasAName();
  void readerStaysInTheDialog();
  void journeyByMouse();
  void journeyByKeyboard();
  void escapeLeavesTheQuestion();
};

void TestMainWindowJourney::everyControlHasAName_data() {
  QTest::addColumn<bool>("mac");
  QTest::newRow("mac") << true;
  QTest::newRow("win") << false;
}

// Through the pages that a user sees on the way from a scan to its review, and the question.
void TestMainWindowJourney::everyControlHasAName() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  startAgain();
  const auto check = [this] {
    const QList<QWidget*> nameless = namelessControls(*m_window);
    for (const QWidget* one : nameless) qWarning() << "without a name:" << one << one->parentWidget();
    QVERIFY(nameless.isEmpty());
  };
  check();
  m_window->go(Sidebar::Cleanup);
  check();
  scanWithButton();
  check();
  emit m_window->findChild<OverviewPage*>()->openCleanup(u"dev"_s);
  check();
  m_window->go(Sidebar::SpaceMap);
  check();
  QTRY_VERIFY(m_state->largeScanned);
  check();
  m_window->go(Sidebar::SystemData);
  check();
  QTRY_VERIFY(m_state->systemDataReady);
  check();
  emit m_window->findChild<CleanupPage*>()->confirmRequested();
  check();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  QTRY_VERIFY(!question());
  m_window->showAbout();
  check();
}

void TestMainWindowJourney::readerStaysInTheDialog() {
  const auto* sidebar = m_window->findChild<Sidebar*>();
  QAccessibleInterface* area = QAccessible::queryAccessibleInterface(sidebar->parentWidget());
  const int usually = area->childCount();
  QVERIFY(usually >= 2);
  emit m_window->findChild<CleanupPage*>()->confirmRequested();
  QCOMPARE(area->childCount(), 1);
  QCOMPARE(area->child(0)->object(), question());
  QCOMPARE(area->child(0)->role(), QAccessible::Dialog);
  QCOMPARE(area->indexOfChild(area->child(0)), 0);
  QCOMPARE(area->child(0)->parent()->object(), area->object());
  QVERIFY(!area->child(1));
  question()->close();
  QTRY_VERIFY(!question());
  QCOMPARE(area->childCount(), usually);
  QCOMPARE(area->indexOfChild(QAccessible::queryAccessibleInterface(const_cast<Sidebar*>(sidebar))),
           area->indexOfChild(area->child(0)));
}

void TestMainWindowJourney::journeyByMouse() {
  scanWithButton();
  const qint64 selected = m_state->selectedBytes();
  QVERIFY(selected > 0);
  QVERIFY(m_window->findChildren<NavButton*>()[1]->badge().size() > 0);
  Button* clean = nullptr;
  for (Button* one : m_window->findChildren<Button*>())
    if (one->text().startsWith(u"Clean "_s) && one->isVisible()) clean = one;
  QVERIFY(clean && clean->isEnabled());
  QTest::mouseClick(clean, Qt::LeftButton);
  QVERIFY(question());
  click(*question(), u"Clean and delete"_s);
  QTRY_COMPARE(m_state->phase, AppState::Done);
  QVERIFY(!there(u".cache/acme-notes/index"_s));
  QVERIFY(there(u".cache/pip/http/1"_s));            // to be reviewed, so not recommended
  QVERIFY(there(u"Downloads/tool_1.0_amd64.deb"_s)); // as well
  QVERIFY(there(u".local/share/Trash/files/old-letter.odt"_s));
  QVERIFY(there(u"Documents/book.odt"_s));
  QVERIFY(QFile::exists(m_state->report.logPath));
  QCOMPARE(AppSettings::instance().freedHistory(1).last(), m_state->report.freedBytes);
  click(*m_window, u"Done"_s);
  QCOMPARE(m_window->page(), int(Sidebar::Overview));
  QCOMPARE(m_state->phase, AppState::Review); // what was not cleaned is still there
}

void TestMainWindowJourney::journeyByKeyboard() {
  m_window->activateWindow();
  tabTo(*m_window, u"Smart Scan"_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down); // among the pages, arrow keys go on
  QCOMPARE(m_window->page(), int(Sidebar::Cleanup));
  tabTo(*m_window, u"Start Smart Scan"_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  QTRY_COMPARE(m_state->phase, AppState::Review);
  tabTo(*m_window, u"Clean "_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  QVERIFY(question());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // the default action
  QTRY_COMPARE(m_state->phase, AppState::Done);
  QVERIFY(!there(u".cache/acme-notes/index"_s));
  tabTo(*m_window, u"Done"_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  QCOMPARE(m_window->page(), int(Sidebar::Overview));
}

void TestMainWindowJourney::escapeLeavesTheQuestion() {
  scanWithButton();
  emit m_window->findChild<CleanupPage*>()->confirmRequested();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  QTRY_VERIFY(!question());
  QCOMPARE(m_state->phase, AppState::Review);
  QVERIFY(there(u".cache/acme-notes/index"_s));
}

int main(int argc, char** argv) { return uitest::run<TestMainWindowJourney>(argc, argv); }

#include "tst_MainWindow_journey.moc"
