/// The system mounts the disk image; what follows is in the user's hands.
#include "update/macos/launch.h"

#include "update/Updater.h"

#include <QProcess>

using namespace Qt::StringLiterals;

QString launch::with(const QString& tool, const QString& path) {
  return QProcess::startDetached(tool, {path}) ? QString() : Updater::tr("Could not open the update.");
}

// By its place, so that no search path leads elsewhere.
QString Updater::launchInstaller(const QString& path) { return launch::with(u"/usr/bin/open"_s, path); }
