// The window: its pages, its close rule, its geometry, and the whole journey of a Smart Scan by mouse and by keyboard.
#include "ui/shell/MainWindow.h"

#include "app/AppState.h"
#include "engines/Cleaner.h"
#include "engines/systemdata.h"
#include "support/Desktop.h"
#include "support/SampleHome.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/PageHeader.h"
#include "ui/pages/CleanupPage.h"
#include "ui/pages/OverviewPage.h"
#include "ui/pages/SystemDataPage.h"
#include "ui/shell/AboutDialog.h"
#include "ui/shell/AppMenu.h"
#include "ui/shell/CaptionButton.h"
#include "ui/shell/ConfirmCleanDialog.h"
#include "ui/shell/ConfirmDialog.h"
#include "ui/shell/NavButton.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/SidebarToggle.h"
#include "ui/shell/TitleBar.h"
#include "ui/shell/Toast.h"
#include "ui/shell/UpdateDialog.h"
#include "ui/shell/program.h"
#include "update/Updater.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace ui;
using windowtest::click;
using windowtest::tabTo;

namespace {

const QString kGeometryKey = u"ui/windowGeometry"_s;

CategoryResult found(const QString& id, qint64 bytes) {
  CategoryResult result;
  result.def.id = id;
  result.def.title = id;
  result.bytes = bytes;
  return result;
}

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

class TestMainWindow : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup();

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
  void geometryComesBack();
  void refusedGeometryIsNone();
  void closingWithoutATrayQuits();
  void quitSavesTheGeometry();
  void backdropIsPainted();
  void outlineWhileNotMaximised();
  void updatesAreAskedForFromTheSettings();
  void helpOpensInTheBrowser();
  void logFolderIsMadeFirst();
  void aboutIsShown();
  void everyControlHasAName_data();
  void everyControlHasAName();
  void readerStaysInTheDialog();
  void startOptionsAreExact();
  void backgroundWithoutATrayIsMinimised();
  void lowSpace_data();
  void lowSpace();
  void stepsAfterStartAreIndependent();
  void journeyByMouse();
  void journeyByKeyboard();
  void escapeLeavesTheQuestion();

 private:
  void startAgain();
  [[nodiscard]] bool there(const QString& relative) const { return QFile::exists(m_home->path(relative)); }
  [[nodiscard]] QString toastText() const {
    const auto* toast = m_window->findChild<Toast*>();
    return toast->isHidden() ? QString() : toast->accessibleName();
  }
  [[nodiscard]] ConfirmCleanDialog* question() const { return m_window->findChild<ConfirmCleanDialog*>(); }
  void scanWithButton();

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<MainWindow> m_window;
};

void TestMainWindow::init() {
  Theme::get().mac = true;
  m_home = std::make_unique<FixtureHome>();
  QSettings().clear();
  pixels::setLook(false);
  AppSettings::instance().setMoveToTrash(false);
  fillSampleHome(*m_home);
  startAgain();
}

void TestMainWindow::startAgain() {
  m_window.reset();
  CleanerWorld world;
  world.lockPath = m_home->outside(u"clean.lock"_s); // so that no test waits for another one
  SystemDataWorld systemData;
  systemData.root = m_home->outside(u"disk"_s); // as empty on every machine
  m_state = std::make_unique<AppState>(nullptr, world, systemData);
  m_window = std::make_unique<MainWindow>(m_state.get());
  m_window->show();
  QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestMainWindow::cleanup() {
  m_window.reset();
  m_state.reset();
  m_home.reset();
  Theme::get().mac = true;
}

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

void TestMainWindow::geometryComesBack() {
  m_window->resize(1000, 700);
  m_window->saveWindowState();
  startAgain();
  m_window->restoreWindowState();
  QCOMPARE(m_window->size(), QSize(1000, 700));
}

void TestMainWindow::refusedGeometryIsNone() {
  for (const QByteArray& stored : {QByteArray(), QByteArray("nonsense")}) {
    QSettings().setValue(kGeometryKey, stored);
    m_window->resize(5000, 5000);
    m_window->restoreWindowState();
    const QRect available = m_window->screen()->availableGeometry();
    const QSize wanted = QSize(5000, 5000).boundedTo(available.size()).expandedTo(m_window->minimumSize());
    QCOMPARE(m_window->size(), wanted);
    const QPoint off = m_window->geometry().center() - available.center();
    QVERIFY2(off.manhattanLength() <= 2 || wanted.width() > available.width(), qPrintable(QString::number(off.x())));
  }
}

void TestMainWindow::closingWithoutATrayQuits() {
  QSettings().remove(kGeometryKey);
  QSignalSpy leaving(qApp, &QCoreApplication::aboutToQuit);
  QTimer::singleShot(0, m_window.get(), &QWidget::close);
  QApplication::exec(); // would not return
  QCOMPARE(leaving.count(), 1);
  QVERIFY(!QSettings().value(kGeometryKey).toByteArray().isEmpty());
}

void TestMainWindow::quitSavesTheGeometry() {
  QSettings().remove(kGeometryKey);
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QApplication::exec();
  QVERIFY(m_window->isHidden());
  QVERIFY(!QSettings().value(kGeometryKey).toByteArray().isEmpty());
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

void TestMainWindow::everyControlHasAName_data() {
  QTest::addColumn<bool>("mac");
  QTest::newRow("mac") << true;
  QTest::newRow("win") << false;
}

// Through the pages that a user sees on the way from a scan to its review, and the question.
void TestMainWindow::everyControlHasAName() {
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

void TestMainWindow::readerStaysInTheDialog() {
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

void TestMainWindow::startOptionsAreExact() {
  const StartOptions none = startOptions({u"tarnwick"_s, u"--Background"_s, u"--updated=1"_s, u"file"_s});
  QVERIFY(!none.background && !none.updated);
  const StartOptions both = startOptions({u"tarnwick"_s, u"--updated"_s, u"--background"_s});
  QVERIFY(both.background && both.updated);
}

void TestMainWindow::backgroundWithoutATrayIsMinimised() {
  AppSettings::instance().setShowInTray(false); // so that none is waited for
  m_window->hide();
  showAtStart(m_window.get(), {.background = true});
  QVERIFY(m_window->isMinimized());
  m_window->showFromTray();
  QVERIFY(!m_window->isMinimized() && m_window->isVisible());
}

void TestMainWindow::lowSpace_data() {
  QTest::addColumn<qint64>("total");
  QTest::addColumn<qint64>("available");
  QTest::addColumn<bool>("alerts");
  QTest::addColumn<bool>("told");
  QTest::newRow("a tenth") << qint64(1000) << qint64(100) << true << false;
  QTest::newRow("a byte less") << qint64(1000) << qint64(99) << true << true;
  QTest::newRow("a tenth, rounded down") << qint64(1009) << qint64(100) << true << false;
  QTest::newRow("unknown") << qint64(0) << qint64(-1) << true << false;
  QTest::newRow("not wanted") << qint64(1000) << qint64(1) << false << false;
}

void TestMainWindow::lowSpace() {
  QFETCH(qint64, total);
  QFETCH(qint64, available);
  QFETCH(bool, alerts);
  QFETCH(bool, told);
  AppSettings::instance().setLowSpaceAlerts(alerts);
  m_state->volume.name = u"System disk"_s;
  m_state->volume.totalBytes = total;
  m_state->volume.availableBytes = available;
  afterStart(m_window.get(), m_state.get(), {});
  QCOMPARE(toastText(), told ? u"System disk is almost full. Run Smart Scan to free up space."_s : QString());
  QCOMPARE(m_state->phase, AppState::Empty);
}

void TestMainWindow::stepsAfterStartAreIndependent() {
  AppSettings::instance().setLowSpaceAlerts(false);
  AppSettings::instance().setSchedule(AppSettings::Weekly);
  AppSettings::instance().setLastScan(QDateTime::currentDateTime().addDays(-30));
  afterStart(m_window.get(), m_state.get(), {.updated = true});
  QCOMPARE(toastText(), u"Tarnwick was updated to version 1.0.0."_s);
  QCOMPARE(m_state->phase, AppState::Scanning);
}

void TestMainWindow::scanWithButton() {
  m_window->go(Sidebar::Cleanup);
  click(*m_window, u"Start Smart Scan"_s);
  QTRY_COMPARE(m_state->phase, AppState::Review);
}

void TestMainWindow::journeyByMouse() {
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

void TestMainWindow::journeyByKeyboard() {
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

void TestMainWindow::escapeLeavesTheQuestion() {
  scanWithButton();
  emit m_window->findChild<CleanupPage*>()->confirmRequested();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  QTRY_VERIFY(!question());
  QCOMPARE(m_state->phase, AppState::Review);
  QVERIFY(there(u".cache/acme-notes/index"_s));
}

int main(int argc, char** argv) { return uitest::run<TestMainWindow>(argc, argv); }

#include "tst_MainWindow.moc"
