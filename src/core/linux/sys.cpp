#include "core/sys.h"

#include "core/names.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstdio>

names::Codec names::systemCodec() { return Codec::Bytes; }

namespace sys {
namespace {

constexpr size_t kListBufferBytes = size_t{32} * 1024;

// The kernel's record is the C library's, but for the room that the latter gives to the name.
static_assert(sizeof(dirent::d_ino) == 8 && offsetof(dirent, d_reclen) == 16 && offsetof(dirent, d_type) == 18 &&
              offsetof(dirent, d_name) == 19);

std::optional<quint64> mountOf(int dirFd, const char* name, int flags) {
  struct statx status;
  if (::statx(dirFd, name, flags, STATX_MNT_ID, &status) != 0) return std::nullopt;
  if ((status.stx_mask & STATX_MNT_ID) == 0) return std::nullopt;
  return status.stx_mnt_id;
}

} // namespace

struct DirReader::State {
  alignas(dirent) char buffer[kListBufferBytes];
};

DirReader::DirReader() : d(new State) {}
DirReader::~DirReader() = default;

bool DirReader::fill() {
  const ssize_t got = ::getdents64(m_fd, d->buffer, sizeof d->buffer);
  if (got < 0) m_error = errno;
  m_next = d->buffer;
  m_end = m_next + std::max<ssize_t>(got, 0);
  return got > 0;
}

std::optional<quint64> mountId(int fd) { return mountOf(fd, "", AT_EMPTY_PATH); }

std::optional<quint64> mountIdAt(int dirFd, const char* name) {
  return mountOf(dirFd, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT);
}

int renameNoReplace(int oldDirFd, const char* oldName, int newDirFd, const char* newName) {
  if (::renameat2(oldDirFd, oldName, newDirFd, newName, RENAME_NOREPLACE) == 0) return 0;
  // EINVAL also answers a folder that is to move into itself, which the steps refuse likewise.
  if (errno != EINVAL && errno != ENOSYS) return errno;
  return renameBySteps(oldDirFd, oldName, newDirFd, newName);
}

QByteArray descriptorPath(int fd) {
  struct stat status;
  if (::fstat(fd, &status) != 0 || status.st_nlink == 0) return {};
  char link[32];
  std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
  QByteArray path(PATH_MAX, Qt::Uninitialized);
  const ssize_t length = ::readlink(link, path.data(), static_cast<size_t>(path.size()));
  if (length <= 0 || length == path.size() || path[0] != '/') return {};
  path.truncate(length);
  return path;
}

int openPassage(int dirFd, const char* name, Links links) {
  const int noFollow = links == Links::Refuse ? O_NOFOLLOW : 0;
  return ::openat(dirFd, name, O_PATH | O_DIRECTORY | O_CLOEXEC | noFollow);
}

int openFolderNoLinks(const QByteArray& path) {
  if (!path.startsWith('/')) {
    errno = EINVAL;
    return -1;
  }
  open_how how{};
  how.flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
  how.resolve = RESOLVE_NO_SYMLINKS;
  const long fd = ::syscall(SYS_openat2, AT_FDCWD, path.constData(), &how, sizeof how);
  if (fd >= 0) return static_cast<int>(fd);
  const bool bySteps = errno == ENOSYS || errno == EPERM || errno == ENAMETOOLONG;
  return bySteps ? openFolderBySteps(path) : -1;
}

} // namespace sys
