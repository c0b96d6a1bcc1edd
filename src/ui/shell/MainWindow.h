/// The one window of the program. It owns the sidebar, the pages and the toast, and the glue between them: pages and
/// engines never speak to one another, they send signals that become page switches, dialogs and calls of the state
/// here.
#pragma once

#include "ui/shell/frame.h"

#include <QHash>
#include <QWidget>

class AppState;
class QStackedWidget;
class QVBoxLayout;

namespace ui {

class CleanupPage;
class OverviewPage;
class Sidebar;
class SidebarToggle;
class TitleBar;
class Toast;

class MainWindow : public QWidget {
  Q_OBJECT

 public:
  /// @param state  outlives the window
  explicit MainWindow(AppState* state, QWidget* parent = nullptr);

  /// Shows a page and checks its entry in the sidebar. A page that the window doesn't have does nothing.
  void go(int page);
  /// The page on show.
  [[nodiscard]] int page() const;

  /// A message at the window's foot, whether the window is to be seen or not.
  void showToast(const QString& text, bool undoable);
  /// A message for a user who may not be looking: at the window's foot while it can be seen.
  void notify(const QString& text);

  void showAbout();
  void openGuide();
  void openFaq();
  /// Opens the folder of the cleanup logs, and makes it before.
  void openLogFolder();
  void showFromTray();
  void hideToTray();
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
  void applyToolbars(bool collapsed);
  void connectPages();
  void connectState();
  /// Whether a dialog is open.
  [[nodiscard]] bool isAsking() const;
  void confirmClean();
  void confirmAction(const QString& title, const QString& body, const QString& confirm, const QString& id);
  void paintOutline(QPainter* painter) const;

  AppState* m_state;
  const frame::Kind m_frame;
  Sidebar* m_sidebar = nullptr;
  QStackedWidget* m_pages = nullptr;
  CleanupPage* m_cleanupPage = nullptr;
  OverviewPage* m_overviewPage = nullptr;
  QWidget* m_central = nullptr; ///< the client area: parent of the overlays and of the toast
  QWidget* m_content = nullptr; ///< hosts the pages and the floating toggle
  SidebarToggle* m_floatingToggle = nullptr;
  Toast* m_toast = nullptr;
  QHash<int, QWidget*> m_numbered;
  bool m_quitting = false; ///< the application has received its quit event
};

} // namespace ui
