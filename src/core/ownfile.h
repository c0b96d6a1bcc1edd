/// Small files that the program itself keeps among the user's: written whole or not at all, and never through a link.
/// Any thread.
#pragma once

#include <QByteArray>
#include <QString>

namespace ownfile {

/// What stands at a path.
enum class Kind {
  Nothing,
  File,  ///< a regular file that could be read
  Other, ///< anything else: a link, a folder, what can't be read or is larger than such a file ever is
};
struct Content {
  Kind kind = Kind::Nothing;
  QByteArray bytes = {}; ///< of a File
};

/// Reads @p path itself, never through a link.
[[nodiscard]] Content read(const QString& path);

/// Puts a file with these bytes at @p path in one step, in the place of a file or link that stands there, and makes the
/// folders above it. It is on the disk when this returns. @return 0 or the errno
[[nodiscard]] int write(const QString& path, const QByteArray& bytes);

/// Deletes the file or link at @p path; never a folder. @return 0, also where there was nothing, or the errno
[[nodiscard]] int remove(const QString& path);

/// Gives what stands at @p path another name in its folder: the first free one of "NAME.WORD", "NAME.WORD-2" and so on.
/// A link, a folder or what can't be read moves as it is. @return the new path; empty if it couldn't be moved
[[nodiscard]] QString setAside(const QString& path, const QString& word);

} // namespace ownfile
