#include "ui/linux/bus.h"

#include <QFile>
#include <QString>

using namespace Qt::StringLiterals;

namespace desktop {

bool hasSessionBus() {
  if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !runtime.isEmpty() && QFile::exists(runtime + "/bus"_L1);
}

} // namespace desktop
