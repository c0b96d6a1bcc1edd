// The system has a menu bar from the start, and shows messages through the icon in it.
#include "ui/shell/trayhost.h"

#include <QSystemTrayIcon>

namespace ui::trayhost {

bool available() { return QSystemTrayIcon::isSystemTrayAvailable(); }

void watch(QObject* /*context*/, std::function<void()> /*changed*/) {}

bool mayComeLater() { return false; }

void show(QObject* /*context*/, const Message& /*message*/, std::function<void()> /*clicked*/,
          std::function<void()> failed) {
  failed();
}

} // namespace ui::trayhost
