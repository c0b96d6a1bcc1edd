#include "core/sys.h"

#include "core/UniqueFd.h"
#include "core/names.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>

names::Codec names::systemCodec() { return Codec::Bytes; }

namespace sys {
namespace {

constexpr size_t kListBufferBytes = 32 * 1024;

/// What the kernel writes for each name; records stand one after the other, 8-byte aligned.
struct KernelName {
  ino64_t inode;
  off64_t offset;
  unsigned short recordBytes;
  unsigned char type;
  char name[1];
};

bool isDots(const char* name) { return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')); }

std::optional<quint64> mountOf(int dirFd, const char* name, int flags) {
  struct statx status;
  if (::statx(dirFd, name, flags, STATX_MNT_ID, &status) != 0) return std::nullopt;
  if ((status.stx_mask & STATX_MNT_ID) == 0) return std::nullopt;
  return status.stx_mnt_id;
}

qint64 toMs(const timespec& time) { return qint64{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000; }

/// For file systems that know no rename without replacing. A file gets its new name by a link, a folder by a rename
/// over an empty folder made here: each fails if the new name is taken.
int renameByHand(int oldDirFd, const char* oldName, int newDirFd, const char* newName) {
  struct stat status;
  if (::fstatat(oldDirFd, oldName, &status, AT_SYMLINK_NOFOLLOW) != 0) return errno;
  if (S_ISDIR(status.st_mode)) {
    if (::mkdirat(newDirFd, newName, 0700) != 0) return errno;
    if (::renameat(oldDirFd, oldName, newDirFd, newName) == 0) return 0;
    const int error = errno;
    ::unlinkat(newDirFd, newName, AT_REMOVEDIR);
    return error;
  }
  if (::linkat(oldDirFd, oldName, newDirFd, newName, 0) != 0) return errno;
  if (::unlinkat(oldDirFd, oldName, 0) == 0) return 0;
  const int error = errno;
  ::unlinkat(newDirFd, newName, 0);
  return error;
}

constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr int kPassageFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;

/// One component after the other, for paths that are too long for one call and kernels without openat2.
int openByComponents(const QByteArray& path) {
  UniqueFd at(::open("/", kPassageFlags));
  qsizetype begin = 0;
  while (at) {
    while (begin < path.size() && path[begin] == '/') ++begin;
    if (begin == path.size()) return ::openat(at.get(), ".", kFolderFlags);
    qsizetype end = path.indexOf('/', begin);
    if (end < 0) end = path.size();
    at = UniqueFd(::openat(at.get(), path.mid(begin, end - begin).constData(), kPassageFlags | O_NOFOLLOW));
    begin = end;
  }
  return -1;
}

} // namespace

struct DirReader::State {
  int fd = -1;
  int error = 0;
  size_t position = 0;
  size_t filled = 0;
  alignas(KernelName) char buffer[kListBufferBytes];
};

DirReader::DirReader() : d(new State) {}
DirReader::~DirReader() = default;

bool DirReader::start(int fd) {
  d->fd = fd;
  d->error = 0;
  d->position = d->filled = 0;
  return ::lseek(fd, 0, SEEK_SET) == 0;
}

bool DirReader::next(RawName* out) {
  for (;;) {
    if (d->position == d->filled) {
      const long got = ::syscall(SYS_getdents64, d->fd, d->buffer, sizeof d->buffer);
      if (got < 0) d->error = errno;
      d->position = 0;
      d->filled = got > 0 ? static_cast<size_t>(got) : 0;
      if (d->filled == 0) return false;
    }
    const auto* record = reinterpret_cast<const KernelName*>(d->buffer + d->position);
    d->position += record->recordBytes;
    if (isDots(record->name)) continue;
    *out = {record->name, std::strlen(record->name), record->type};
    return true;
  }
}

int DirReader::error() const { return d->error; }

qint64 modifiedMs(const struct stat& status) { return toMs(status.st_mtim); }
qint64 accessedMs(const struct stat& status) { return toMs(status.st_atim); }
bool isDataless(const struct stat&) { return false; }

std::optional<quint64> mountId(int fd) { return mountOf(fd, "", AT_EMPTY_PATH); }

std::optional<quint64> mountIdAt(int dirFd, const char* name) {
  return mountOf(dirFd, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT);
}

int renameNoReplace(int oldDirFd, const char* oldName, int newDirFd, const char* newName) {
  if (::renameat2(oldDirFd, oldName, newDirFd, newName, RENAME_NOREPLACE) == 0) return 0;
  // EINVAL is also the answer to a folder that is to move into itself, which a rename by hand refuses likewise.
  if (errno != EINVAL && errno != ENOSYS) return errno;
  return renameByHand(oldDirFd, oldName, newDirFd, newName);
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

int openPassage(int dirFd, const char* name) { return ::openat(dirFd, name, kPassageFlags); }

int openFolderNoLinks(const QByteArray& path) {
  if (!path.startsWith('/')) {
    errno = EINVAL;
    return -1;
  }
  open_how how{};
  how.flags = kFolderFlags;
  how.resolve = RESOLVE_NO_SYMLINKS;
  const long fd = ::syscall(SYS_openat2, AT_FDCWD, path.constData(), &how, sizeof how);
  if (fd >= 0) return static_cast<int>(fd);
  const bool retry = errno == ENOSYS || errno == EPERM || errno == ENAMETOOLONG;
  return retry ? openByComponents(path) : -1;
}

} // namespace sys
