#include "core/sys.h"

#include "core/names.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/param.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

names::Codec names::systemCodec() { return Codec::Normalized; }

namespace sys {
namespace {

constexpr size_t kListBufferBytes = size_t{32} * 1024;

size_t rounded(size_t bytes) { return (bytes + alignof(dirent) - 1) / alignof(dirent) * alignof(dirent); }

/// The device tells the mount: each has its own, and a folder can't be mounted a second time.
std::optional<quint64> deviceOf(bool known, const struct stat& status) {
  if (!known) return std::nullopt;
  return static_cast<quint64>(status.st_dev);
}

} // namespace

struct DirReader::State {
  ~State() { close(); }

  /// Reads through a copy of @p fd, with which it shares the position, and which goes with the listing.
  bool open(int fd) {
    close();
    const int copy = ::fcntl(fd, F_DUPFD_CLOEXEC, 0);
    if (copy >= 0) dir = ::fdopendir(copy);
    if (copy >= 0 && !dir) ::close(copy);
    return dir != nullptr;
  }
  void close() {
    if (dir) ::closedir(dir);
    dir = nullptr;
  }

  DIR* dir = nullptr;
  alignas(dirent) char buffer[kListBufferBytes];
};

DirReader::DirReader() : d(new State) {}
DirReader::~DirReader() = default;

// The C library gives one entry at a time, and the walkers want a buffer of them: as many as surely fit.
bool DirReader::fill() {
  if (std::exchange(m_isFresh, false) && !d->open(m_fd)) m_error = errno;
  char* end = d->buffer;
  while (d->dir && d->buffer + sizeof d->buffer - end >= static_cast<ptrdiff_t>(sizeof(dirent))) {
    errno = 0;
    const dirent* entry = ::readdir(d->dir);
    if (!entry) {
      m_error = errno;
      d->close();
      break;
    }
    std::memcpy(end, entry, entry->d_reclen);
    auto* copy = reinterpret_cast<dirent*>(end);
    copy->d_reclen = static_cast<decltype(copy->d_reclen)>(rounded(entry->d_reclen));
    end += copy->d_reclen;
  }
  m_next = d->buffer;
  m_end = end;
  return m_next != m_end;
}

std::optional<quint64> mountId(int fd) {
  struct stat status;
  return deviceOf(::fstat(fd, &status) == 0, status);
}

std::optional<quint64> mountIdAt(int dirFd, const char* name) {
  struct stat status;
  return deviceOf(::fstatat(dirFd, name, &status, AT_SYMLINK_NOFOLLOW) == 0, status);
}

int renameNoReplace(int oldDirFd, const char* oldName, int newDirFd, const char* newName) {
  if (::renameatx_np(oldDirFd, oldName, newDirFd, newName, RENAME_EXCL) == 0) return 0;
  return errno == ENOTSUP ? renameBySteps(oldDirFd, oldName, newDirFd, newName) : errno;
}

QByteArray descriptorPath(int fd) {
  struct stat status;
  if (::fstat(fd, &status) != 0 || status.st_nlink == 0) return {};
  char path[MAXPATHLEN];
  return ::fcntl(fd, F_GETPATH, path) == 0 ? QByteArray(path) : QByteArray();
}

int openPassage(int dirFd, const char* name, Links links) {
  const int noFollow = links == Links::Refuse ? O_NOFOLLOW : 0;
  return ::openat(dirFd, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC | noFollow);
}

int openFolderNoLinks(const QByteArray& path) {
  if (!path.startsWith('/')) {
    errno = EINVAL;
    return -1;
  }
  return openFolderBySteps(path);
}

} // namespace sys
