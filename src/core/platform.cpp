#include "core/platform.h"

#include "core/places.h"

#include <QCoreApplication>
#include <QDir>
#include <QStorageInfo>

namespace platform {

Host host() {
  const QByteArray wish = qgetenv("TARNWICK_HOST");
  if (wish == "mac") return Host::Mac;
  if (wish == "linux") return Host::Linux;
  return builtFor();
}

bool isPreview() { return host() != builtFor(); }

Volume systemVolume() {
  const QString home = places::home();
  const QStorageInfo info(home.isEmpty() ? QDir::rootPath() : home);
  Volume volume;
  volume.rootPath = info.rootPath();
  volume.name =
      volumeName(info.name(), volume.rootPath, info == QStorageInfo::root() ? VolumeRole::Root : VolumeRole::Other);
  volume.fileSystem = QString::fromLatin1(info.fileSystemType()).toUpper();
  // A volume that can't be asked answers -1.
  volume.totalBytes = qMax<qint64>(0, info.bytesTotal());
  volume.availableBytes = qMax<qint64>(0, info.bytesAvailable());
  applyImportantCapacity(&volume, importantCapacity(volume.rootPath));
  return volume;
}

QString volumeName(const QString& label, const QString& mountPoint, VolumeRole role) {
  const bool root = role == VolumeRole::Root;
  if (host() == Host::Mac) return root || label.isEmpty() ? QStringLiteral("Macintosh HD") : label;
  if (!label.isEmpty()) return label;
  const QString name = mountPoint.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
  //: The name of the disk that the system starts from
  return root || name.isEmpty() ? QCoreApplication::translate("Platform", "System disk") : name;
}

void applyImportantCapacity(Volume* volume, qint64 importantBytes) {
  if (importantBytes <= volume->availableBytes) return;
  volume->purgeableBytes = importantBytes - volume->availableBytes;
  volume->availableBytes = importantBytes;
}

QString trashName() {
  //: The Trash of macOS by its name in this language; stands in other texts as “%1”
  if (host() == Host::Mac) return QCoreApplication::translate("Platform", "Trash");
  //: The Trash of Linux desktops by its name in this language; stands in other texts as “%1”
  return QCoreApplication::translate("Platform", "Trash", "Linux");
}

QString fileManagerName() {
  //: The file manager of macOS; stands in other texts as “%1”
  if (host() == Host::Mac) return QCoreApplication::translate("Platform", "Finder");
  //: The file manager of Linux desktops; stands in other texts as “%1”
  return QCoreApplication::translate("Platform", "Files");
}

bool queryRecycleBin(qint64* /*bytes*/, qint64* /*items*/) { return false; }
bool emptyRecycleBin() { return false; }
bool isElevated() { return false; }
bool relaunchElevated() { return false; }

} // namespace platform
