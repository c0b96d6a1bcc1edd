/// The desktop's autostart folder.
#include "core/login.h"

#include "core/places.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace login {

// Where the desktop looks, so its variable counts wherever it points; a relative one counts nowhere.
QString path() {
  const QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
  const QString folder = QDir::isAbsolutePath(config) ? QDir::cleanPath(config) : places::home() + u"/.config"_s;
  return folder + u"/autostart/tarnwick.desktop"_s;
}

QByteArray text(const QString& program) { return desktopEntry(program); }

QByteArray brought(const QByteArray& entry, const QString& program) { return desktopEntry(entry, program); }

} // namespace login
