/// What must never be removed: the fixed protected locations, and the user's "Never touch these" rules.
/// Both answers are final. Works on a path's text alone, without the disk.
#pragma once

#include <QList>
#include <QString>

namespace safety {

/// Whether @p path belongs to the system, or is one of the folders that a cleaner must never remove as a whole.
/// True for an empty, relative or shallow path. The lists of platform::host() hold, and in a preview those of both
/// hosts. Any thread; no lock.
[[nodiscard]] bool isProtected(const QString& path);

/// Whether one of @p rules matches @p path or a folder above it. A rule whose matching fails counts as a match.
/// Compiled once a process; any thread, one after another.
[[nodiscard]] bool isExcluded(const QString& path, const QList<QString>& rules);

/// A short, untranslated list of the best known protected locations, for showing.
[[nodiscard]] QString protectedSummary();

/// Slashes forward, no ".", ".." or doubled slash, no slash at the end but for "/" itself.
[[nodiscard]] QString normalized(const QString& path);

}  // namespace safety
