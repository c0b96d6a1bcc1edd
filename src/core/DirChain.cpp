#include "core/DirChain.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace {
constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
}

DirChain::DirChain(UniqueFd top) { m_levels.push_back(Level{std::move(top)}); }

bool DirChain::enter(const char* name) {
  if (m_open == kMaxOpen) closeOldest();
  UniqueFd child(::openat(fd(), name, kFolderFlags));
  if (!child) return false;
  m_levels.push_back(Level{std::move(child)});
  ++m_open;
  return true;
}

bool DirChain::leave() {
  if (depth() == 0) return false;
  if (!m_levels[depth() - 1].fd && !reopen()) {
    m_levels.resize(1);
    m_open = 1;
    return false;
  }
  m_levels.pop_back();
  --m_open;
  return true;
}

// The open levels below the top are always the deepest ones, so the oldest of them stands this far from the end.
void DirChain::closeOldest() {
  Level& oldest = m_levels[m_levels.size() - (m_open - 1)];
  struct stat status;
  if (::fstat(oldest.fd.get(), &status) == 0) {
    oldest.device = status.st_dev;
    oldest.inode = status.st_ino;
  }
  oldest.fd.reset();
  --m_open;
}

bool DirChain::reopen() {
  Level& above = m_levels[depth() - 1];
  UniqueFd parent(::openat(fd(), "..", kFolderFlags));
  struct stat status;
  if (!parent || ::fstat(parent.get(), &status) != 0) return false;
  if (status.st_dev != above.device || status.st_ino != above.inode) return false;
  above.fd = std::move(parent);
  ++m_open;
  return true;
}
