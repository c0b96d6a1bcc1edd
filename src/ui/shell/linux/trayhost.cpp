#include "ui/shell/trayhost.h"

#include "ui/linux/x11.h"
#include "ui/shell/linux/Notifications.h"
#include "ui/shell/linux/StatusNotifier.h"

#include <QSystemTrayIcon>

namespace ui::trayhost {
namespace {

constexpr char kX11Tray[] = "_NET_SYSTEM_TRAY_S0";

} // namespace

// Qt remembers its first answer on the desktop's service for good, so it is asked only when there is something to find.
bool available() {
  const bool somethingIsThere = StatusNotifier::get().hasHost() || x11::hasOwner(kX11Tray);
  return somethingIsThere && QSystemTrayIcon::isSystemTrayAvailable();
}

void watch(QObject* context, std::function<void()> changed) {
  QObject::connect(&StatusNotifier::get(), &StatusNotifier::changed, context, changed);
  x11::watchSelection(context, kX11Tray, std::move(changed));
}

bool mayComeLater() { return true; }

// Qt would draw the message itself beside an icon of the X11 tray.
void show(QObject* context, const Message& message, std::function<void()> clicked, std::function<void()> failed) {
  Notifications::get().show(context, message, std::move(clicked), std::move(failed));
}

} // namespace ui::trayhost
