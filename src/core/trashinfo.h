/// The texts of the freedesktop.org trash rules: info files, names that fit, the size cache, mounts. No disk.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QSet>

namespace trashinfo {

/// What an info file says. @p path is raw: absolute for the home Trash, else relative to the volume's top folder;
/// @p deletedAt is local time as "2024-02-29T13:05:00".
[[nodiscard]] QByteArray contents(const QByteArray& path, const QByteArray& deletedAt);

/// The name of an info file for a thing that is called @p name in the Trash.
[[nodiscard]] QByteArray infoName(const QByteArray& name);

/// The @p number-th name to try for a thing called @p name: the name itself for 1, "stem.2.ext" for 2, and so on;
/// shortened before its extension, at a character's edge, so that its info file's name has at most @p nameMax bytes.
[[nodiscard]] QByteArray candidate(const QByteArray& name, int number, qsizetype nameMax);

/// The text of a "directorysizes" file without the lines for @p names, in one pass. The same text where there are none.
[[nodiscard]] QByteArray withoutSizes(const QByteArray& sizes, const QSet<QByteArray>& names);

/// Mount points of the volumes that can hold a Trash of the user's to be emptied, from the text of a mountinfo file,
/// raw: disks and the like, mounted for writing; no network, FUSE, autofs, loop or bind mounts, nothing in memory.
[[nodiscard]] QByteArrayList localMountPoints(const QByteArray& mountinfo);

} // namespace trashinfo
