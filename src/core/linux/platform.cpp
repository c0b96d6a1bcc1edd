#include "core/platform.h"

#include <QDir>
#include <QStorageInfo>

namespace platform {

Host builtFor() { return Host::Linux; }

Volume systemVolume() {
  const QStorageInfo info(QDir::homePath());
  const VolumeRole role = info == QStorageInfo::root() ? VolumeRole::Root : VolumeRole::Other;
  Volume volume;
  volume.name = volumeName(info.name(), info.rootPath(), role);
  volume.fileSystem = QString::fromLatin1(info.fileSystemType()).toUpper();
  volume.rootPath = info.rootPath();
  // An invalid volume answers -1.
  volume.totalBytes = qMax<qint64>(0, info.bytesTotal());
  volume.availableBytes = qMax<qint64>(0, info.bytesAvailable());
  return volume;
}

void openFullDiskAccessSettings() {}

} // namespace platform
