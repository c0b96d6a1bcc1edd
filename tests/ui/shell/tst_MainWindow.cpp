// The window: its pages, its dialogs and messages, its sidebar in both metrics, and what it paints itself.
#include "MainWindowTest.h"
#include "core/deployment.h"
#include "support/Desktop.h"
#include "ui/controls/PageHeader.h"
#include "ui/pages/CleanupPage.h"
#include "ui/pages/OverviewPage.h"
#include "ui/pages/SystemDataPage.h"
#include "ui/shell/AboutDialog.h"
#include "ui/shell/AppMenu.h"
#include "ui/shell/CaptionButton.h"
#include "ui/shell/ConfirmDialog.h"
#include "ui/shell/NavButton.h"
#include "ui/shell/SidebarToggle.h"
#include "ui/shell/TitleBar.h"
#include "ui/shell/UpdateDialog.h"
#include "update/Updater.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace ui;
using windowtest::click;

namespace {

CategoryResult found(const QString& id, qint64 bytes) {
  CategoryResult result;
  result.def.id = id;
  result.def.title = id;
  result.bytes = bytes;
  return result;
}

} // namespace

class TestMainWindow : public MainWindowTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void firstSight();
  void menuButtonOpensTheMenu();
  void pagesByNumber();
  void scanBringsItsPage();
  void overviewOpensACategory();
  void doneGoesHome();
  void cleanIsAskedFor();
  void noSecondVeilWhileAsking();
  void systemDataAsksInRed();
  void systemDataGoesToCleanup();
  void messages();
  void collapsedInTheMacMetrics();
  void floatingToggleStandsAtTheEdge();
  void floatingToggleMirrored();
  void noToggleOfItsOwnInTheOthers();
  void backdropIsPainted();
  void outlineWhileNotMaximised();
  void updatesAreAskedForFromTheSettings();
  void helpOpensInTheBrowser();
  void logFolderIsMadeFirst();
  void aboutIsShown();
};

void TestMainWindow::firstSight() {
  QCOMPARE(m_window->windowTitle(), u"Tarnwick"_s);
  QCOMPARE(m_window->minimumSize(), QSize(960, 640));
  QCOMPARE(m_window->size(), QSize(1180, 780));
  QVERIFY(!m_window->windowIcon().isNull());
  QCOMPARE(m_window->page(), int(Sidebar::Overview));
  QVERIFY(m_window->findChild<TitleBar*>());
  QCOMPARE(m_window->findChild<TitleBar*>()->width(), 1180);
  QCOMPARE(m_window->findChildren<NavButton*>().size(), 5); // of the pages that there are
}

void TestMainWindow::menuButtonOpensTheMenu() {
  for (CaptionButton* one : m_window->findChildren<CaptionButton*>()) {
    QVERIFY(one->isVisible());
    if (one->kind() != CaptionButton::Menu) continue;
    QTest::mouseClick(one, Qt::LeftButton);
    const auto* menu = qobject_cast<AppMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QPoint wanted = one->mapToGlobal(QPoint(0, one->height())) - QPoint(14, 10);
    wanted.setX(qMin(wanted.x(), menu->screen()->geometry().right() + 1 - menu->width())); // it stays on the screen
    QCOMPARE(menu->pos(), wanted);
  }
  QVERIFY(QApplication::activePopupWidget());
  QApplication::activePopupWidget()->close();
}

void TestMainWindow::pagesByNumber() {
  m_window->go(Sidebar::Cleanup);
  QCOMPARE(m_window->page(), int(Sidebar::Cleanup));
  QVERIFY(m_window->findChild<CleanupPage*>()->isVisible());
  m_window->go(99); // not there
  QCOMPARE(m_window->page(), int(Sidebar::Cleanup));
  m_window->go(Sidebar::SystemData);
  QCOMPARE(m_window->page(), int(Sidebar::SystemData));
  QVERIFY(m_window->findChild<SystemDataPage*>()->isVisible());
  emit m_window->findChild<Sidebar*>()->navigate(Sidebar::Overview);
  QCOMPARE(m_window->page(), int(Sidebar::Overview));
}

void TestMainWindow::scanBringsItsPage() {
  m_state->startScan();
  QCOMPARE(m_window->page(), int(Sidebar::Cleanup));
  m_window->go(Sidebar::Overview);
  QTRY_COMPARE(m_state->phase, AppState::Review);
  QCOMPARE(m_window->page(), int(Sidebar::Overview)); // the end of a scan moves nobody
}

void TestMainWindow::overviewOpensACategory() {
  m_state->results = {found(u"logs"_s, 10), found(u"dev"_s, 5)};
  m_state->setPhase(AppState::Review);
  emit m_state->resultsChanged();
  emit m_window->findChild<OverviewPage*>()->openCleanup(u"dev"_s);
  QCOMPARE(m_window->page(), int(Sidebar::Cleanup));
  bool shown = false;
  for (const QLabel* label : m_window->findChild<CleanupPage*>()->findChildren<QLabel*>())
    shown = shown || (label->text() == u"dev"_s && label->property("role").toString() == u"h2"_s);
  QVERIFY(shown);
}

void TestMainWindow::doneGoesHome() {
  m_window->go(Sidebar::Cleanup);
  emit m_window->findChild<CleanupPage*>()->goHome();
  QCOMPARE(m_window->page(), int(Sidebar::Overview));
}

void TestMainWindow::cleanIsAskedFor() {
  emit m_window->findChild<CleanupPage*>()->confirmRequested();
  QVERIFY(question() && question()->isVisible());
  QCOMPARE(m_state->phase, AppState::Empty);
}

void TestMainWindow::noSecondVeilWhileAsking() {
  emit m_window->findChild<CleanupPage*>()->confirmRequested();
  emit m_window->findChild<CleanupPage*>()->confirmRequested();
  QCOMPARE(m_window->findChildren<ConfirmCleanDialog*>().size(), 1);
}

void TestMainWindow::systemDataAsksInRed() {
  auto* page = m_window->findChild<SystemDataPage*>();
  emit page->confirmAction(u"Sure?"_s, u"It is gone then."_s, u"Do it"_s, u"snapshots"_s);
  emit page->confirmAction(u"Again?"_s, u"It is gone then."_s, u"Do it"_s, u"snapshots"_s);
  const auto dialogs = m_window->findChildren<ConfirmDialog*>();
  QCOMPARE(dialogs.size(), 1);
  QVERIFY(windowtest::shows(*dialogs[0], u"Sure?"_s));
  QVERIFY(windowtest::shows(*dialogs[0], u"It is gone then."_s));
  QCOMPARE(windowtest::button(*dialogs[0], u"Do it"_s)->property("kind").toString(), u"danger"_s);
  QVERIFY(!m_state->systemDataBusy);
}

void TestMainWindow::systemDataGoesToCleanup() {
  emit m_window->findChild<SystemDataPage*>()->openCleanup();
  QCOMPARE(m_window->page(), int(Sidebar::Cleanup));
}

void TestMainWindow::messages() {
  QCOMPARE(toastText(), QString());
  emit m_state->toast(u"Something was refused"_s, false);
  QCOMPARE(toastText(), u"Something was refused"_s);
  m_window->notify(u"Almost full"_s);
  QCOMPARE(toastText(), u"Almost full"_s);
  m_window->hide();
  m_window->notify(u"Waits in the hidden window"_s);
  QCOMPARE(toastText(), u"Waits in the hidden window"_s);
}

void TestMainWindow::collapsedInTheMacMetrics() {
  auto* sidebar = m_window->findChild<Sidebar*>();
  SidebarToggle* floating = nullptr;
  for (SidebarToggle* one : m_window->findChildren<SidebarToggle*>())
    if (!sidebar->isAncestorOf(one)) floating = one;
  QVERIFY(floating && floating->isHidden());
  m_window->setSidebarCollapsed(true);
  QVERIFY(floating->isVisible());
  QVERIFY(sidebar->isHidden());
  QCOMPARE(floating->y(), (42 - floating->height()) / 2);
  const QList<PageHeader*> headers = m_window->findChildren<PageHeader*>();
  QVERIFY(!headers.isEmpty());
  for (const PageHeader* header : headers) {
    QVERIFY(header->isToolbar());
    QVERIFY(header->layout()->contentsMargins().left() >= floating->geometry().right());
  }
  startAgain(); // as it was left
  QVERIFY(m_window->findChild<Sidebar*>()->isHidden());
  for (SidebarToggle* one : m_window->findChildren<SidebarToggle*>())
    if (one->isVisible()) QTest::mouseClick(one, Qt::LeftButton);
  QTRY_VERIFY(m_window->findChild<Sidebar*>()->isVisible());
  for (const PageHeader* header : m_window->findChildren<PageHeader*>()) QVERIFY(!header->isToolbar());
}

// No system's buttons lie there, so nothing keeps room for them.
void TestMainWindow::floatingToggleStandsAtTheEdge() {
  m_window->setSidebarCollapsed(true);
  for (const SidebarToggle* one : m_window->findChildren<SidebarToggle*>())
    if (one->isVisible()) QCOMPARE(one->pos(), QPoint(12, 8));
  for (const PageHeader* header : m_window->findChildren<PageHeader*>())
    QCOMPARE(header->layout()->contentsMargins().left(), 12 + 30 + 10);
}

void TestMainWindow::floatingToggleMirrored() {
  m_window->setLayoutDirection(Qt::RightToLeft);
  m_window->setSidebarCollapsed(true);
  for (const SidebarToggle* one : m_window->findChildren<SidebarToggle*>())
    if (one->isVisible()) QTRY_COMPARE(one->parentWidget()->width() - one->geometry().right() - 1, 12);
  for (const PageHeader* header : m_window->findChildren<PageHeader*>())
    QCOMPARE(header->layout()->contentsMargins().right(), 12 + 30 + 10);
}

void TestMainWindow::noToggleOfItsOwnInTheOthers() {
  Theme::get().mac = false;
  startAgain();
  QCOMPARE(m_window->findChildren<SidebarToggle*>().size(), 1);
  m_window->setSidebarCollapsed(true);
  for (const PageHeader* header : m_window->findChildren<PageHeader*>()) QVERIFY(!header->isToolbar());
}

void TestMainWindow::backdropIsPainted() {
  for (const bool dark : {false, true}) {
    pixels::setLook(dark);
    const QImage shown = pixels::rendered(*m_window);
    QCOMPARE(shown.pixelColor(590, 420).alpha(), 255);
    QVERIFY(pixels::isNear(shown.pixelColor(590, 420), Theme::get().bg));
  }
}

void TestMainWindow::outlineWhileNotMaximised() {
  const auto edge = [this] { return pixels::rendered(*m_window).pixelColor(0, 400); };
  const QColor inside = pixels::rendered(*m_window).pixelColor(1, 400);
  QVERIFY(pixels::isNear(edge(), pixels::over(Theme::get().line, inside)));
  m_window->showMaximized();
  QTRY_VERIFY(m_window->isMaximized());
  QVERIFY(pixels::isNear(edge(), pixels::rendered(*m_window).pixelColor(1, 400)));
}

void TestMainWindow::updatesAreAskedForFromTheSettings() {
  if (!deployment::updatesItself()) QSKIP("this build doesn't look for updates");
  auto* updater = m_window->findChild<Updater*>();
  updater->setState(Updater::Available); // so that nobody is asked
  m_window->go(Sidebar::Settings);
  click(*m_window, u"Check for updates"_s);
  QVERIFY(m_window->findChild<UpdateDialog*>()->isVisible());
}

void TestMainWindow::helpOpensInTheBrowser() {
  const Desktop desktop({u"https"_s});
  m_window->openGuide();
  m_window->openFaq();
  QCOMPARE(desktop.opened, (QStringList{u"/guide/get-started-with-tarnwick/"_s, u"/support-center/"_s}));
}

// A user who never cleaned sees an empty folder, not an error.
void TestMainWindow::logFolderIsMadeFirst() {
  const Desktop desktop;
  QVERIFY(!QFile::exists(Cleaner::logDir()));
  m_window->openLogFolder();
  QVERIFY(QFileInfo(Cleaner::logDir()).isDir());
  QCOMPARE(desktop.opened, QStringList{Cleaner::logDir()});
}

void TestMainWindow::aboutIsShown() {
  m_window->showAbout();
  const auto* about = m_window->findChild<AboutDialog*>();
  QVERIFY(about && about->isVisible());
  const Desktop desktop({u"https"_s});
  click(*about, u"Tarnwick Website"_s);
  QCOMPARE(desktop.opened, QStringList{u"/tarnwick/"_s});
}

int main(int argc, char** argv) { return uitest::run<TestMainWindow>(argc, argv); }

#include "tst_MainWindow.moc"
