#include "core/sys.h"

#include "core/UniqueFd.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace sys {
namespace {

int renameFolderBySteps(int oldDirFd, const char* oldName, int newDirFd, const char* newName) {
  if (::mkdirat(newDirFd, newName, 0700) != 0) return errno;
  if (::renameat(oldDirFd, oldName, newDirFd, newName) == 0) return 0;
  const int error = errno;
  ::unlinkat(newDirFd, newName, AT_REMOVEDIR);
  return error;
}

} // namespace

int renameBySteps(int oldDirFd, const char* oldName, int newDirFd, const char* newName) {
  struct stat status;
  if (::fstatat(oldDirFd, oldName, &status, AT_SYMLINK_NOFOLLOW) != 0) return errno;
  if (S_ISDIR(status.st_mode)) return renameFolderBySteps(oldDirFd, oldName, newDirFd, newName);
  if (::linkat(oldDirFd, oldName, newDirFd, newName, 0) != 0) return errno;
  if (::unlinkat(oldDirFd, oldName, 0) == 0) return 0;
  const int error = errno;
  ::unlinkat(newDirFd, newName, 0);
  return error;
}

int openFolderBySteps(const QByteArray& path) {
  UniqueFd at(openPassage(AT_FDCWD, "/", Links::Refuse));
  qsizetype begin = 0;
  while (at) {
    while (begin < path.size() && path[begin] == '/') ++begin;
    if (begin == path.size()) return ::openat(at.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    qsizetype end = path.indexOf('/', begin);
    if (end < 0) end = path.size();
    at = UniqueFd(openPassage(at.get(), path.mid(begin, end - begin).constData(), Links::Refuse));
    begin = end;
  }
  return -1;
}

} // namespace sys
