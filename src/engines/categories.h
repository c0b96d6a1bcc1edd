/// The catalogue of what a Smart Scan looks at, and which entries of it count.
#pragma once

#include "app/records.h"
#include "core/fs.h"

#include <QList>
#include <QSet>
#include <QString>

#include <atomic>

namespace categories {

/// The eight categories of platform::host() with the roots that exist now, in the order of scanning and of all lists.
/// Reads the disk. Any thread.
[[nodiscard]] QList<CategoryDef> forThisPlatform();

/// The translated word for a rating; empty for any other value.
[[nodiscard]] QString safetyLabel(Safety safety);

/// What admits() must know of the whole system, read once a run.
struct Admission {
  qint64 nowMs = 0;           ///< ms since the epoch
  QSet<QString> busyFolders;  ///< working folders and roots of processes, and the folders above them
  QSet<QString> mountFolders; ///< mount points, and the folders above them
  /// Inodes of all files with a lock on them. Without their device: on some file systems the kernel's list of locks
  /// names another one than stat does, and a file that only shares the number is left alone at no harm.
  QSet<quint64> lockedInodes;
  /// Reads the clock and @p procRoot now.
  [[nodiscard]] static Admission now(const QString& procRoot = QStringLiteral("/proc"));
};

/// Whether an entry of the temporary folder may be listed, and removed: asked by the scan and again by the clean.
/// On the macOS host always true. On Linux only the user's own old leftovers: not what a running desktop keeps there,
/// nothing modified during the last 24 hours (folders and what lies below included), no sockets, pipes or devices, no
/// locks, nobody's working folder, no mount, and nothing that can't be looked into. Reads the disk below the entry.
/// @param path    absolute path of the entry, with no link above it
/// @param cancel  ends the look with false once raised (asked once a folder); may be null
[[nodiscard]] bool admits(const fs::Entry& entry, const QString& path, const Admission& admission,
                          const std::atomic<bool>* cancel = nullptr);

/// The part of admits() that concerns a file in an admitted folder: old, plain, not locked. On the macOS host always
/// true. No disk.
[[nodiscard]] bool admitsBelow(const fs::Entry& entry, const Admission& admission);

/// Whether a folder of this name, directly below a cache root of the Linux host, holds more than a cache and is left
/// alone by the scan and by the clean.
[[nodiscard]] bool holdsMoreThanCache(QStringView name);

/// The mount points that @p procRoot tells; empty where it tells none.
[[nodiscard]] QSet<QString> mountPoints(const QString& procRoot = QStringLiteral("/proc"));

/// Both catalogues, whatever the host; for tests.
[[nodiscard]] QList<CategoryDef> forMac();
[[nodiscard]] QList<CategoryDef> forLinux(const QString& procRoot = QStringLiteral("/proc"));

} // namespace categories
