#include "core/DirChain.h"

#include <sys/stat.h>

DirChain::DirChain(UniqueFd top) { m_levels.emplace_back(std::move(top)); }

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

bool DirChain::reopenAbove() {
  Level& above = m_levels[depth() - 1];
  UniqueFd parent(::openat(fd(), "..", kFlags));
  struct stat status;
  const bool same =
      parent && ::fstat(parent.get(), &status) == 0 && status.st_dev == above.device && status.st_ino == above.inode;
  if (!same) {
    m_levels.erase(m_levels.begin() + 1, m_levels.end());
    m_open = 1;
    return false;
  }
  above.fd = std::move(parent);
  ++m_open;
  return true;
}
