/// Who runs and what is open, told by the system's tools.
#include "core/appguard.h"

#include <QSettings>

namespace appguard {

RunningApps runningApps(const Sources& sources) { return tools::runningApps(sources); }

OpenFiles openFiles(const Sources& sources) { return tools::openFiles(sources); }

bool isFileInUse(const QString& path, const Sources& sources) { return tools::isFileInUse(path, sources); }

namespace tools {
QString bundleIdentifier(const QString& plistPath) {
  return QSettings(plistPath, QSettings::NativeFormat).value(QStringLiteral("CFBundleIdentifier")).toString();
}
} // namespace tools

} // namespace appguard
