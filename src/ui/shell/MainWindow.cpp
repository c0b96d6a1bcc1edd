#include "ui/shell/MainWindow.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "app/identity.h"
#include "core/deployment.h"
#include "engines/Cleaner.h"
#include "engines/systemdata.h"
#include "ui/Theme.h"
#include "ui/accessible.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/factory.h"
#include "ui/icons.h"
#include "ui/pages/CleanupPage.h"
#include "ui/pages/LargeFilesPage.h"
#include "ui/pages/OverviewPage.h"
#include "ui/pages/SettingsPage.h"
#include "ui/pages/SystemDataPage.h"
#include "ui/paint.h"
#include "ui/shell/AboutDialog.h"
#include "ui/shell/ConfirmCleanDialog.h"
#include "ui/shell/ConfirmDialog.h"
#include "ui/shell/Overlay.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/SidebarToggle.h"
#include "ui/shell/TitleBar.h"
#include "ui/shell/Toast.h"
#include "ui/shell/Updates.h"
#include "ui/shell/website.h"
#include "ui/shell/words.h"
#include "update/Updater.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

const QString kGeometryKey = u"ui/windowGeometry"_s;
// Lengths in pixels.
constexpr QSize kMinimum(960, 640);
constexpr QSize kInitial(1180, 780);
constexpr int kToggleStrip = 42; // the toggle's middle is that of this height
constexpr int kToggleX = 82;     // right of the system's buttons
constexpr int kToggleXAlone = 12;
constexpr int kToggleGap = 10; // between the toggle and what the headers hold

/// Adds nothing: the named host of the pages and of the floating toggle.
class ContentLayer : public QWidget {
 public:
  ContentLayer() { setLayout(vbox()); }
};

/// Everything below the title bar: what dialogs cover and messages stand in.
class ClientArea : public QWidget, public AccessibleArea {
 public:
  [[nodiscard]] QWidget* coveringDialog() const override {
    for (Overlay* dialog : findChildren<Overlay*>(QString(), Qt::FindDirectChildrenOnly))
      if (dialog->isVisible()) return dialog;
    return nullptr;
  }
};

} // namespace

MainWindow::MainWindow(AppState* state, QWidget* parent, const TrayDesktop& desktop)
    : QWidget(parent), m_state(state), m_frame(frame::kind()) {
  setWindowTitle(identity::kName);
  setWindowIcon(icons::appIcon());
  setMinimumSize(kMinimum);
  resize(kInitial);
  buildFrame();
  buildContent();
  buildPages();
  if (Theme::get().mac) buildFloatingToggle();
  m_toast = new Toast(m_central);
  buildTray(desktop);
  if (deployment::updatesItself()) m_updates = new Updates(m_central, Updater::defaultFeed(), this);
  QCoreApplication::instance()->installEventFilter(this);
  QGuiApplication::setQuitOnLastWindowClosed(false);
  connectPages();
  connectState();
  frame::setUp(this, m_frame, m_sidebar->topRow(), m_sidebar->toggleButton());
  setupMenuBar();
}

MainWindow::~MainWindow() = default;

void MainWindow::buildFrame() {
  QVBoxLayout* column = vbox();
  setLayout(column);
  if (m_frame == frame::Kind::Drawn) {
    m_titleBar = new TitleBar(this);
    connect(m_titleBar, &TitleBar::menuRequested, this, &MainWindow::showAppMenu);
    column->addWidget(m_titleBar);
  }
  m_central = new ClientArea;
  column->addWidget(m_central, 1);
}

void MainWindow::buildContent() {
  QList<int> numbers{Sidebar::Overview, Sidebar::Cleanup, Sidebar::SpaceMap, Sidebar::Settings};
  if (systemdata::supported()) numbers << Sidebar::SystemData;
  QHBoxLayout* row = hbox();
  m_central->setLayout(row);
  m_sidebar = new Sidebar(m_state, numbers);
  m_content = new ContentLayer;
  m_pages = new QStackedWidget;
  m_content->layout()->addWidget(m_pages);
  row->addWidget(m_sidebar);
  row->addWidget(m_content, 1);
}

void MainWindow::buildPages() {
  m_overviewPage = new OverviewPage(m_state);
  m_cleanupPage = new CleanupPage(m_state);
  addPage(Sidebar::Overview, m_overviewPage);
  addPage(Sidebar::Cleanup, m_cleanupPage);
  addPage(Sidebar::SpaceMap, new LargeFilesPage(m_state));
  m_settingsPage = new SettingsPage(m_state);
  addPage(Sidebar::Settings, m_settingsPage);
  if (systemdata::supported()) addPage(Sidebar::SystemData, buildSystemData());
}

QWidget* MainWindow::buildSystemData() {
  auto* page = new SystemDataPage(m_state);
  connect(page, &SystemDataPage::openCleanup, this, [this] { go(Sidebar::Cleanup); });
  connect(page, &SystemDataPage::confirmAction, this, &MainWindow::confirmAction);
  return page;
}

void MainWindow::addPage(int number, QWidget* page) {
  m_pages->addWidget(page);
  m_numbered.insert(number, page);
}

// While the sidebar is away, this stands in for its own toggle, and the headers become one compact line beside it.
void MainWindow::buildFloatingToggle() {
  m_floatingToggle = new SidebarToggle(m_content);
  const QString tip = SidebarWords::tr("Expand sidebar");
  m_floatingToggle->setToolTip(tip);
  m_floatingToggle->setAccessibleName(tip);
  m_floatingToggle->resize(m_floatingToggle->sizeHint());
  const bool besideButtons = m_frame == frame::Kind::SystemButtons;
  m_togglePlace =
      QRect(QPoint(besideButtons ? kToggleX : kToggleXAlone, (kToggleStrip - m_floatingToggle->height()) / 2),
            m_floatingToggle->size());
  placeFloatingToggle();
  connect(m_floatingToggle, &QAbstractButton::clicked, this, [this] { m_sidebar->setCollapsed(false, true); });
  connect(m_sidebar, &Sidebar::collapsedChanged, this, &MainWindow::applyToolbars);
  applyToolbars(m_sidebar->isCollapsed());
}

void MainWindow::placeFloatingToggle() {
  m_floatingToggle->setGeometry(QStyle::visualRect(layoutDirection(), m_content->rect(), m_togglePlace));
}

void MainWindow::applyToolbars(bool collapsed) {
  const int reserve = m_togglePlace.right() + 1 + kToggleGap;
  for (PageHeader* header : m_pages->findChildren<PageHeader*>()) header->setToolbar(collapsed, reserve);
  m_floatingToggle->setVisible(collapsed);
  m_floatingToggle->raise();
}

void MainWindow::connectPages() {
  connect(m_sidebar, &Sidebar::navigate, this, &MainWindow::go);
  connect(m_overviewPage, &OverviewPage::openCleanup, this, [this](const QString& id) {
    go(Sidebar::Cleanup);
    m_cleanupPage->focusCategory(id);
  });
  connect(m_cleanupPage, &CleanupPage::goHome, this, [this] { go(Sidebar::Overview); });
  connect(m_cleanupPage, &CleanupPage::confirmRequested, this, &MainWindow::confirmClean);
  connect(m_cleanupPage, &CleanupPage::rulesRequested, this, [this] {
    go(Sidebar::Settings);
    m_settingsPage->showExclusions();
  });
  connect(m_settingsPage, &SettingsPage::checkForUpdates, this, &MainWindow::checkForUpdates);
}

void MainWindow::connectState() {
  connect(m_state, &AppState::phaseChanged, this, [this] {
    if (m_state->phase == AppState::Scanning) go(Sidebar::Cleanup);
  });
  connect(m_state, &AppState::toast, this, &MainWindow::showToast);
  connect(m_toast, &Toast::undo, m_state, &AppState::undoLastTrash);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

// A dialog that was closed lives on for a moment.
bool MainWindow::isAsking() const {
  const QList<Overlay*> dialogs = m_central->findChildren<Overlay*>(QString(), Qt::FindDirectChildrenOnly);
  return std::ranges::any_of(dialogs, [](const Overlay* one) { return !one->isHidden(); });
}

void MainWindow::confirmClean() {
  if (isAsking()) return;
  auto* dialog = new ConfirmCleanDialog(m_state, m_central);
  connect(dialog, &ConfirmCleanDialog::accepted, m_state, [state = m_state] { state->clean(); });
  dialog->open();
}

void MainWindow::confirmAction(const QString& title, const QString& body, const QString& confirm, const QString& id) {
  if (isAsking()) return;
  auto* dialog = new ConfirmDialog(m_central, title, body, confirm, true);
  connect(dialog, &ConfirmDialog::accepted, m_state, [state = m_state, id] { state->runSystemDataAction(id); });
  dialog->open();
}

void MainWindow::go(int page) {
  QWidget* widget = m_numbered.value(page);
  if (!widget) return;
  m_pages->setCurrentWidget(widget);
  m_sidebar->setCurrent(page);
}

int MainWindow::page() const { return m_numbered.key(m_pages->currentWidget()); }

void MainWindow::showToast(const QString& text, bool undoable) { m_toast->show(text, undoable); }

void MainWindow::showAbout() { (new AboutDialog(m_central))->open(); }

void MainWindow::openGuide() { website::open(u"/guide/get-started-with-tarnwick/"); }

void MainWindow::openFaq() { website::open(u"/support-center/"); }

void MainWindow::openLogFolder() {
  const QString path = Cleaner::logDir();
  QDir().mkpath(path); // a user who never cleaned gets an empty folder rather than an error
  QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void MainWindow::setSidebarCollapsed(bool collapsed) { m_sidebar->setCollapsed(collapsed, false); }

void MainWindow::restoreWindowState() {
  const QByteArray stored = QSettings().value(kGeometryKey).toByteArray();
  if (!stored.isEmpty() && restoreGeometry(stored)) return;
  const QRect available = screen()->availableGeometry();
  resize(size().boundedTo(available.size()));
  QRect placed(QPoint(), size());
  placed.moveCenter(available.center());
  move(placed.topLeft());
}

// A damaged store is left as it is.
void MainWindow::saveWindowState() const {
  if (AppSettings::instance().isReadable()) QSettings().setValue(kGeometryKey, saveGeometry());
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == QCoreApplication::instance() && event->type() == QEvent::Quit) m_quitting = true;
  if (m_floatingToggle && watched == m_content && event->type() == QEvent::Resize) placeFloatingToggle();
  return QWidget::eventFilter(watched, event);
}

void MainWindow::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setClipRegion(event->region());
  Theme::get().paintBackdrop(&painter, rect());
  if (m_frame == frame::Kind::Drawn && !isMaximized() && !isFullScreen()) paintOutline(&painter);
}

// Nothing else tells the window from a bright one below it.
void MainWindow::paintOutline(QPainter* painter) const {
  const auto [path, width] = paint::outlineOn(painter, rect());
  painter->setPen(paint::pen(Theme::get().line, width));
  painter->drawRect(path);
}

} // namespace ui
