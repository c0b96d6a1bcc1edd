/// The system calls that differ between systems, behind one face. Nothing here knows what a cleaner is.
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <sys/stat.h>

#include <memory>
#include <optional>

namespace sys {

/// One name in a folder, as the system lists it. Valid until the next call of DirReader::next.
struct RawName {
  const char* name = nullptr; ///< ends with a zero byte
  size_t length = 0;
  unsigned char type = 0; ///< a DT_ value; DT_UNKNOWN where the file system doesn't tell
};

/// Reads the names of open folders, one folder after the other, with one buffer. Never yields "." and "..".
class DirReader {
 public:
  DirReader();
  ~DirReader();
  DirReader(const DirReader&) = delete;
  DirReader& operator=(const DirReader&) = delete;

  /// Begins to read @p fd, an open folder, from its start; the descriptor stays the caller's. False: errno tells why.
  [[nodiscard]] bool start(int fd);
  /// The next name; false at the end, or on an error, which error() tells.
  [[nodiscard]] bool next(RawName* out);
  /// 0, or the errno that ended the listing early.
  [[nodiscard]] int error() const;

 private:
  struct State;
  std::unique_ptr<State> d;
};

/// Modification and access time in ms since the epoch, nanoseconds truncated.
[[nodiscard]] qint64 modifiedMs(const struct stat& status);
[[nodiscard]] qint64 accessedMs(const struct stat& status);
/// Whether the entry has no contents on this disk (a placeholder of a cloud folder). False on systems without such.
[[nodiscard]] bool isDataless(const struct stat& status);

/// What tells one mount from another, bind mounts included, of an open file. Empty where the system doesn't say.
[[nodiscard]] std::optional<quint64> mountId(int fd);
/// The same of @p name in the open folder @p dirFd, without following a link and without opening it.
[[nodiscard]] std::optional<quint64> mountIdAt(int dirFd, const char* name);

/// Renames without ever replacing what stands at the new name. @return 0 or the errno (EEXIST if something is there)
[[nodiscard]] int renameNoReplace(int oldDirFd, const char* oldName, int newDirFd, const char* newName);

/// The absolute path by which the system knows an open descriptor now; empty if it doesn't tell (it was removed, or the
/// path is beyond the system's limit). Raw bytes.
[[nodiscard]] QByteArray descriptorPath(int fd);

/// Opens the folder @p name, relative to @p dirFd or AT_FDCWD, only to pass through it to what lies below: asks for no
/// more than the permission to search it where the system can do so. Follows links. @return -1 with errno set on
/// failure
[[nodiscard]] int openPassage(int dirFd, const char* name);

/// Opens the folder @p path, an absolute raw path that must hold no symbolic link at all, for listing and as the
/// start of relative calls. The folders above it need only be searchable where the system can do so. @p path may be
/// longer than the system's path limit. @return the descriptor, or -1 with errno set (ELOOP or ENOTDIR where a link was
/// met, EINVAL for a relative path)
[[nodiscard]] int openFolderNoLinks(const QByteArray& path);

} // namespace sys
