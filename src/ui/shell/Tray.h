/// The program's icon among those of the desktop: the way to reach it while its window is hidden, and the channel for
/// messages then.
#pragma once

#include "ui/shell/trayhost.h"

#include <QObject>
#include <QPointer>

#include <chrono>
#include <functional>

class AppState;
class QAction;
class QMenu;
class QSystemTrayIcon;

namespace ui {

class MainWindow;

/// What the tray asks of the desktop; tests put their own in place.
struct TrayDesktop {
  std::function<bool()> available = trayhost::available;
  std::function<void(QObject*, std::function<void()>)> watch = trayhost::watch;
  std::function<bool()> mayComeLater = trayhost::mayComeLater;
  std::function<void(QObject*, const trayhost::Message&, std::function<void()>, std::function<void()>)> show =
      trayhost::show;
  /// How long a hidden window waits for a tray.
  std::chrono::milliseconds patience{10'000};
};

/// Follows the setting and the desktop by itself: the icon exists while the user wants it and something shows it.
class Tray : public QObject {
  Q_OBJECT

 public:
  /// @param window, state  outlive it; the icon's menu is a child of the window
  Tray(MainWindow* window, AppState* state, TrayDesktop desktop = {});
  ~Tray() override;

  /// Whether the desktop shows icons at all.
  [[nodiscard]] bool available() const { return m_desktop.available(); }
  /// Whether the icon is there to be seen, now.
  [[nodiscard]] bool isShown() const;
  /// Whether the icon isn't there but may still come by itself.
  [[nodiscard]] bool mayAppear() const;

  /// A message of the system, shown for six seconds; a click on it brings the window to the front. Without an icon
  /// nothing happens.
  void notify(const QString& title, const QString& text);

 public slots:
  /// Makes or removes the icon as the setting and the desktop have it.
  void sync();

 signals:
  /// The icon came or went.
  void shownChanged();

 private:
  void makeIcon();
  void removeIcon();
  void buildMenu();
  void refreshStatus();

  MainWindow* m_window;
  AppState* m_state;
  const TrayDesktop m_desktop;
  QSystemTrayIcon* m_icon = nullptr; ///< a child; null while there is none
  QPointer<QMenu> m_menu;            ///< the icon's; a child of the window
  QAction* m_status = nullptr;       ///< of that menu
};

} // namespace ui
