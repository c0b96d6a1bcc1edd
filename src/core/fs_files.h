/// What the walkers and the calls on single paths share.
#pragma once

#include "core/UniqueFd.h"
#include "core/fs.h"

#include <sys/stat.h>

namespace fs {

/// lstat of @p path, which may be longer than the system's limit.
[[nodiscard]] bool statusOf(const QString& path, struct stat* status);
/// Opens the folder @p path for listing. @p moreFlags may hold O_NOFOLLOW.
[[nodiscard]] UniqueFd openFolder(const QString& path, int moreFlags = 0);
/// Opens the folder @p rawName of an open folder for listing, never through a link.
[[nodiscard]] UniqueFd openFolderAt(int dirFd, const QByteArray& rawName);
/// Everything of an entry but its name and whether it is reachable.
void fill(Entry* entry, const struct stat& status);
/// Whether the text of @p name leads to this file in the open folder @p dirFd.
[[nodiscard]] bool reaches(int dirFd, QByteArrayView name, const struct stat& status);
/// The same where names::survives() is known to be false: a system may take both normalization forms for one name.
[[nodiscard]] bool reachesAnyway(int dirFd, QByteArrayView name, const struct stat& status);
/// A folder whose text ends with a backslash: join() puts nothing between it and a name, and the text leads elsewhere.
[[nodiscard]] inline bool joinsWrongly(const QString& dir) { return dir.endsWith(QLatin1Char('\\')); }
/// Whether a walk that began on @p root leaves its device here. 0 means unknown.
[[nodiscard]] inline bool leavesDevice(dev_t device, dev_t root) {
  if (device == root) return false;
  return device != 0 && root != 0;
}

} // namespace fs
