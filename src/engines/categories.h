/// The catalogue of what a Smart Scan looks at.
#pragma once

#include "app/records.h"
#include "core/fs.h"

#include <QList>
#include <QSet>
#include <QString>

namespace categories {

/// The eight categories of platform::host() with the roots that exist now, in the order of scanning and of all lists.
/// Reads the disk. Any thread.
[[nodiscard]] QList<CategoryDef> forThisPlatform();

/// The translated word for a rating; empty for any other value.
[[nodiscard]] QString safetyLabel(Safety safety);

/// What admits() must know of the whole system, read once a run.
struct Admission {
  qint64 nowMs = 0;                               ///< ms since the epoch
  QSet<QString> busyFolders;                      ///< working folders of processes, and the folders above them
  QSet<QPair<quint64, quint64>> lockedFiles;      ///< device and inode of every file with a lock on it
  /// Reads the clock and the process table now.
  [[nodiscard]] static Admission now(const QString& procRoot = QStringLiteral("/proc"));
};

/// Whether an entry of the temporary folder may be listed, and removed: asked by the scan and again by the clean.
/// On macOS always true. On Linux only the user's own old leftovers: not what a running desktop keeps there, nothing
/// changed during the last 24 hours, no sockets, pipes or devices, no locks, nobody's working folder, no mount.
/// @param path  absolute path of the entry. Reads the disk below it.
[[nodiscard]] bool admits(const fs::Entry& entry, const QString& path, const Admission& admission);

/// Both catalogues, whatever the host; for tests.
[[nodiscard]] QList<CategoryDef> forMac();
[[nodiscard]] QList<CategoryDef> forLinux();

}  // namespace categories
