/// The one window of the program. It owns the sidebar, the pages and the toast, and the glue between them: pages and
/// engines never speak to one another, they send signals that become page switches, dialogs and calls of the state
/// here.
#pragma once

#include "ui/shell/Tray.h"
#include "ui/shell/commands.h"
#include "ui/shell/frame.h"

#include <QHash>
#include <QTimer>
#include <QWidget>

#include <memory>

class AppState;
class QMenuBar;
class QStackedWidget;
class QVBoxLayout;

namespace ui {

class AppMenu;
class CleanupPage;
class CommandSet;
class OverviewPage;
class SettingsPage;
class Sidebar;
class SidebarToggle;
class TitleBar;
class Toast;
class Updates;

class MainWindow : public QWidget {
  Q_OBJECT

 public:
  /// @param state    outlives the window
  /// @param desktop  what shows the tray's icon
  explicit MainWindow(AppState* state, QWidget* parent = nullptr, const TrayDesktop& desktop = {});
  ~MainWindow() override;

  /// Shows a page and checks its entry in the sidebar. A page that the window doesn't have does nothing.
  void go(int page);
  /// The page on show.
  [[nodiscard]] int page() const;

  /// A message at the window's foot, whether the window is to be seen or not.
  void showToast(const QString& text, bool undoable);
  /// A message for a user who may not be looking: at the window's foot while it can be seen, else by the tray. While
  /// the window waits for a tray, the message waits too; without one it is at the foot of the hidden window.
  void notify(const QString& text);

  /// Does what the command says; nothing while a dialog is up that it would act behind.
  void perform(commands::Id command);
  /// The menu of the title bar, with the upper corner of its card where a layout begins at @p pos, in global
  /// coordinates.
  void showAppMenu(const QPoint& pos);
  /// The user's wish. Nothing in a build that doesn't update itself.
  void checkForUpdates();
  void showAbout();
  /// The list of the keyboard's shortcuts.
  void showShortcuts();
  void openGuide();
  void openFaq();
  /// Opens the folder of the cleanup logs, and makes it before.
  void openLogFolder();
  void showFromTray();
  void hideToTray();
  /// Instead of showing the window at the start: it stays hidden where the tray can bring it back. It waits for a tray
  /// that may still come, and is minimised if none does.
  void stayHidden();
  /// Without a slide.
  void setSidebarCollapsed(bool collapsed);

  /// The stored geometry, or the middle of the screen.
  void restoreWindowState();
  void saveWindowState() const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void buildFrame();
  void buildContent();
  void buildPages();
  QWidget* buildSystemData();
  void addPage(int number, QWidget* page);
  void buildFloatingToggle();
  void placeFloatingToggle();
  void applyToolbars(bool collapsed);
  void connectPages();
  void connectState();
  /// Whether a dialog is open.
  [[nodiscard]] bool isAsking() const;
  void confirmClean();
  void confirmAction(const QString& title, const QString& body, const QString& confirm, const QString& id);
  void setupMenuBar();
  void refreshCommands();
  QAction* give(QAction* action, commands::Id command);
  void fillHelp(AppMenu* menu);
  void openMenuByKey();
  void bringToFront();
  void buildTray(const TrayDesktop& desktop);
  void followTray();
  void endWaiting();
  void paintOutline(QPainter* painter) const;

  AppState* m_state;
  const frame::Kind m_frame;
  Sidebar* m_sidebar = nullptr;
  QStackedWidget* m_pages = nullptr;
  CleanupPage* m_cleanupPage = nullptr;
  OverviewPage* m_overviewPage = nullptr;
  SettingsPage* m_settingsPage = nullptr;
  QWidget* m_central = nullptr; ///< the client area: parent of the overlays and of the toast
  QWidget* m_content = nullptr; ///< hosts the pages and the floating toggle
  SidebarToggle* m_floatingToggle = nullptr;
  QRect m_togglePlace;            ///< of the floating one, in a layout from left to right
  TitleBar* m_titleBar = nullptr; ///< null where the system frames the window
  Toast* m_toast = nullptr;
  Tray* m_tray = nullptr;
  Updates* m_updates = nullptr; ///< null in a build that doesn't update itself
  QTimer m_trayWait;            ///< runs while the hidden window waits for a tray
  QString m_waitingMessage;     ///< to be told when that is over
  CommandSet* m_commands = nullptr;
  std::unique_ptr<QMenuBar> m_menuBar; ///< of a system that has one for the whole screen
  QHash<int, QWidget*> m_numbered;
  bool m_quitting = false; ///< the application has received its quit event
};

} // namespace ui
