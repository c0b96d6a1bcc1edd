/// The system calls that differ between systems, behind one face. Nothing here knows what a cleaner is.
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
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
  [[nodiscard]] bool start(int fd) {
    startFresh(fd);
    return ::lseek(fd, 0, SEEK_SET) == 0;
  }
  /// The same for a folder that was just opened and never read, which spares a call.
  void startFresh(int fd) {
    m_fd = fd;
    m_isFresh = true;
    m_error = 0;
    m_next = m_end = nullptr;
  }
  /// The next name; false at the end, or on an error, which error() tells.
  [[nodiscard]] bool next(RawName* out) {
    while (m_next != m_end || fill()) {
      const dirent& entry = entryAt(m_next);
      m_next += entry.d_reclen;
      if (isDots(entry.d_name)) continue;
      *out = {entry.d_name, std::strlen(entry.d_name), entry.d_type};
      return true;
    }
    return false;
  }
  /// Calls @p take(const dirent&) with each name to the end. For walks, which feel every instruction here.
  template <class Take>
  void drain(const Take& take) {
    while (fill()) {
      const char* const end = m_end;
      for (const char* at = m_next; at != end;) {
        const dirent& entry = entryAt(at);
        at += entry.d_reclen;
        if (!isDots(entry.d_name)) take(entry);
      }
    }
    m_next = m_end;
  }
  /// 0, or the errno that ended the listing early.
  [[nodiscard]] int error() const { return m_error; }

 private:
  struct State;

  static const dirent& entryAt(const char* at) { return *reinterpret_cast<const dirent*>(at); }
  static bool isDots(const char* name) {
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
  }
  /// Puts more entries between m_next and m_end; false at the end of the folder.
  bool fill();

  std::unique_ptr<State> d;
  const char* m_next = nullptr; ///< the unread part of the buffer: whole entries, one after the other
  const char* m_end = nullptr;
  int m_fd = -1;
  int m_error = 0;
  bool m_isFresh = false; ///< nothing was read since the start
};

// What the systems name differently in a stat record is found by its name, so that a walk pays no call for it. Status
// is the system's struct stat.

/// Time of the last modification and access.
template <class Status>
[[nodiscard]] const timespec& modifiedTime(const Status& status) {
  if constexpr (requires { status.st_mtimespec; })
    return status.st_mtimespec;
  else
    return status.st_mtim;
}
template <class Status>
[[nodiscard]] const timespec& accessedTime(const Status& status) {
  if constexpr (requires { status.st_atimespec; })
    return status.st_atimespec;
  else
    return status.st_atim;
}

/// Milliseconds since the epoch, nanoseconds truncated.
[[nodiscard]] inline qint64 toMs(const timespec& time) { return qint64{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000; }
template <class Status>
[[nodiscard]] qint64 modifiedMs(const Status& status) {
  return toMs(modifiedTime(status));
}
template <class Status>
[[nodiscard]] qint64 accessedMs(const Status& status) {
  return toMs(accessedTime(status));
}

/// Whether the entry has no contents on this disk (a placeholder of a cloud folder). False on systems without such.
template <class Status>
[[nodiscard]] bool isDataless([[maybe_unused]] const Status& status) {
  if constexpr (requires { status.st_flags; })
    return (status.st_flags & 0x40000000U) != 0; // SF_DATALESS
  else
    return false;
}

/// What tells one mount from another, bind mounts included, of an open file. Empty where the system doesn't say.
[[nodiscard]] std::optional<quint64> mountId(int fd);
/// The same of @p name in the open folder @p dirFd, without following a link and without opening it.
[[nodiscard]] std::optional<quint64> mountIdAt(int dirFd, const char* name);

/// Renames without ever replacing what stands at the new name. @return 0 or the errno (EEXIST if something is there)
[[nodiscard]] int renameNoReplace(int oldDirFd, const char* oldName, int newDirFd, const char* newName);

/// The absolute path by which the system knows an open descriptor now; empty if it doesn't tell (it was removed, or the
/// path is beyond the system's limit). Raw bytes.
[[nodiscard]] QByteArray descriptorPath(int fd);

/// What a call does where the last name of a path is a symbolic link.
enum class Links { Follow, Refuse };

/// Opens the folder @p name, relative to @p dirFd or AT_FDCWD, only to pass through it to what lies below: asks for no
/// more than the permission to search it where the system can do so. @return -1 with errno set on failure
[[nodiscard]] int openPassage(int dirFd, const char* name, Links links);

/// Opens the folder @p path, an absolute raw path that must hold no symbolic link at all, for listing and as the
/// start of relative calls. The folders above it need only be searchable where the system can do so. @p path may be
/// longer than the system's path limit. @return the descriptor, or -1 with errno set (ELOOP or ENOTDIR where a link was
/// met, EINVAL for a relative path)
[[nodiscard]] int openFolderNoLinks(const QByteArray& path);

// The slower ways of the two calls above, for where the system has no call of its own for it; the same everywhere.

/// renameNoReplace in two steps: a file gets its new name by a hard link, a folder by a rename over an empty folder
/// made here; each fails if the new name is taken. Not atomic: a crash between them leaves both names, or an empty
/// folder.
[[nodiscard]] int renameBySteps(int oldDirFd, const char* oldName, int newDirFd, const char* newName);
/// openFolderNoLinks by one openPassage after the other.
[[nodiscard]] int openFolderBySteps(const QByteArray& path);

} // namespace sys
