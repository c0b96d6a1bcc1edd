// What the window does at a command, and the menus that give commands.
#include "ui/shell/MainWindow.h"

#include "app/AppState.h"
#include "app/identity.h"
#include "core/platform.h"
#include "ui/shell/AppMenu.h"
#include "ui/shell/CommandSet.h"
#include "ui/shell/ShortcutsOverlay.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/TitleBar.h"
#include "ui/shell/Updates.h"
#include "ui/shell/words.h"

#include <QApplication>
#include <QMenuBar>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

using commands::Id;
// From where a menu is opened to its corner, so that its card stands there in spite of the room around it; pixels.
constexpr QPoint kCardShift(14, 10);

enum class Kind { Separator, Command, HelpMenu };
struct MenuRow {
  Kind kind = Kind::Separator;
  Id command = Id::Separator;
  const char* text = "";
  QLatin1StringView icon = {};
  QLatin1StringView trailing = {};
};
constexpr MenuRow kRows[] = {
    {Kind::Command, Id::OpenSettings, QT_TRANSLATE_NOOP("MenuBar", "Settings"), "menu-settings"_L1},
    {},
    {Kind::Command, Id::CheckForUpdates, QT_TRANSLATE_NOOP("MenuBar", "Check for Updates"), "menu-update"_L1},
    {Kind::HelpMenu, {}, QT_TRANSLATE_NOOP("MenuBar", "Help"), "menu-help"_L1},
    {Kind::Command, Id::About, QT_TRANSLATE_NOOP("MenuBar", "About Tarnwick"), "menu-info"_L1, identity::kVersion},
    {},
    {Kind::Command, Id::Quit, QT_TRANSLATE_NOOP("MenuBar", "Quit Tarnwick"), "menu-power"_L1},
};

constexpr Id kHelp[] = {Id::Guide, Id::Faq, Id::LogFolder, Id::Shortcuts};

bool rests(Id id, bool isAsking) {
  return isAsking && commands::entry(id)->underDialog == commands::UnderDialog::Rests;
}

} // namespace

void MainWindow::perform(Id command) {
  using enum commands::Id;
  struct Deed {
    Id id;
    void (*run)(MainWindow* window);
  };
  static constexpr Deed kDeeds[] = {
      {About, [](MainWindow* w) { w->showAbout(); }},
      {CheckForUpdates, [](MainWindow* w) { w->checkForUpdates(); }},
      {OpenSettings, [](MainWindow* w) { w->go(Sidebar::Settings); }},
      {Quit, [](MainWindow* /*w*/) { QCoreApplication::quit(); }},
      {SmartScan, [](MainWindow* w) { w->go(Sidebar::Overview), w->m_state->startScan(); }},
      {FindLargeFiles, [](MainWindow* w) { w->go(Sidebar::SpaceMap), w->m_state->startLargeScan(); }},
      {CloseWindow, [](MainWindow* w) { w->close(); }},
      {Undo, [](MainWindow* /*w*/) { CommandSet::edit(Undo); }},
      {Redo, [](MainWindow* /*w*/) { CommandSet::edit(Redo); }},
      {Cut, [](MainWindow* /*w*/) { CommandSet::edit(Cut); }},
      {Copy, [](MainWindow* /*w*/) { CommandSet::edit(Copy); }},
      {Paste, [](MainWindow* /*w*/) { CommandSet::edit(Paste); }},
      {SelectAll, [](MainWindow* /*w*/) { CommandSet::edit(SelectAll); }},
      {GoOverview, [](MainWindow* w) { w->go(Sidebar::Overview); }},
      {GoCleanup, [](MainWindow* w) { w->go(Sidebar::Cleanup); }},
      {GoSpaceMap, [](MainWindow* w) { w->go(Sidebar::SpaceMap); }},
      {GoSystemData, [](MainWindow* w) { w->go(Sidebar::SystemData); }},
      {ToggleSidebar, [](MainWindow* w) { w->m_sidebar->setCollapsed(!w->m_sidebar->isCollapsed(), true); }},
      {ToggleFullScreen, [](MainWindow* w) { w->isFullScreen() ? w->showNormal() : w->showFullScreen(); }},
      {Minimize, [](MainWindow* w) { w->showMinimized(); }},
      {Zoom, [](MainWindow* w) { w->isMaximized() ? w->showNormal() : w->showMaximized(); }},
      {BringToFront, [](MainWindow* w) { w->bringToFront(); }},
      {Guide, [](MainWindow* w) { w->openGuide(); }},
      {Faq, [](MainWindow* w) { w->openFaq(); }},
      {LogFolder, [](MainWindow* w) { w->openLogFolder(); }},
      {Shortcuts, [](MainWindow* w) { w->showShortcuts(); }},
      {OpenMenu, [](MainWindow* w) { w->openMenuByKey(); }},
  };
  const auto* deed = std::ranges::find(kDeeds, command, &Deed::id);
  if (deed != std::end(kDeeds) && !rests(command, isAsking())) deed->run(this);
}

void MainWindow::checkForUpdates() {
  if (m_updates) m_updates->check();
}

void MainWindow::bringToFront() {
  if (isMinimized()) showNormal();
  raise();
  activateWindow();
}

// A menu bar without a window is the one at the top of the screen. Elsewhere it would be nowhere.
void MainWindow::setupMenuBar() {
  m_commands = new CommandSet(this);
  connect(m_commands, &CommandSet::triggered, this, &MainWindow::perform);
  connect(m_commands, &CommandSet::aboutToShow, this, &MainWindow::refreshCommands);
  if (platform::builtFor() == platform::Host::Mac) {
    m_menuBar = std::make_unique<QMenuBar>();
    m_commands->fill(m_menuBar.get());
  } else {
    m_commands->addTo(this);
  }
}

void MainWindow::refreshCommands() {
  m_commands->setSituation({.isSidebarCollapsed = m_sidebar->isCollapsed(), .isFullScreen = isFullScreen()});
}

void MainWindow::showAppMenu(const QPoint& pos) {
  auto* menu = new AppMenu(this);
  for (const MenuRow& row : kRows) {
    if (row.kind == Kind::Separator)
      menu->addSeparator();
    else if (row.kind == Kind::HelpMenu)
      fillHelp(menu->addSubmenu(row.icon, MenuBarWords::tr(row.text)));
    else if (commands::isOffered(*commands::entry(row.command)))
      menu->setTrailingText(give(menu->addItem(row.icon, MenuBarWords::tr(row.text)), row.command), row.trailing);
  }
  connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
  const int beyond = layoutDirection() == Qt::RightToLeft ? menu->sizeHint().width() - 2 * kCardShift.x() : 0;
  menu->popup(pos - kCardShift - QPoint(beyond, 0));
}

// Lets @p action give a command, if it can be given now.
QAction* MainWindow::give(QAction* action, Id command) {
  action->setEnabled(!rests(command, isAsking()));
  connect(action, &QAction::triggered, this, [this, command] { perform(command); });
  return action;
}

void MainWindow::fillHelp(AppMenu* menu) {
  for (const Id id : kHelp) {
    QAction* action = give(menu->addAction(commands::textOf(*commands::entry(id))), id);
    menu->setTrailingText(action, m_commands->action(id)->shortcut().toString(QKeySequence::NativeText));
  }
}

void MainWindow::openMenuByKey() {
  m_titleBar ? m_titleBar->requestMenu()
             : showAppMenu(m_central->mapToGlobal(QStyle::visualPos(layoutDirection(), m_central->rect(), QPoint())));
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!menu) return;
  for (QAction* action : menu->actions())
    if (action->isEnabled() && !action->isSeparator() && !action->menu()) return menu->setActiveAction(action);
}

void MainWindow::showShortcuts() {
  refreshCommands();
  (new ShortcutsOverlay(*m_commands, m_central))->open();
}

} // namespace ui
