#include "ui/shell/trayhost.h"

#include "ui/linux/x11.h"
#include "ui/shell/linux/Notifications.h"
#include "ui/shell/linux/StatusNotifier.h"

#include <QSystemTrayIcon>

namespace ui::trayhost {
namespace {

constexpr char kX11Tray[] = "_NET_SYSTEM_TRAY_S0";

/// What shows the icons that Qt makes. It settles for one at its first question, for good, and asks anew each time at
/// the price of a connection to the bus; so it is asked once, when there is something to find.
enum class Kind { Unknown, None, Panel, X11Tray };

Kind settledKind() {
  static Kind kind = Kind::Unknown;
  if (kind != Kind::Unknown) return kind;
  const bool hasPanel = StatusNotifier::get().hasHost();
  if (!hasPanel && !x11::hasOwner(kX11Tray)) return Kind::Unknown;
  const bool qtFindsIt = QSystemTrayIcon::isSystemTrayAvailable();
  kind = !qtFindsIt ? Kind::None : hasPanel ? Kind::Panel : Kind::X11Tray;
  return kind;
}

} // namespace

bool available() {
  switch (settledKind()) {
  case Kind::Panel:
    return StatusNotifier::get().hasHost();
  case Kind::X11Tray:
    return x11::hasOwner(kX11Tray);
  default:
    return false;
  }
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
