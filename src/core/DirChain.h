/// The open folders from the top of a tree down to where a walk stands, with a bounded number of descriptors.
#pragma once

#include "core/UniqueFd.h"

#include <fcntl.h>
#include <sys/types.h>

#include <vector>

/// Descends by one name at a time (openat, never through a link) and comes back the same way. Only the top and the
/// deepest folders stay open; a folder that was closed is entered again through ".." and must be the same folder as
/// before (device and inode). Not for use by several threads at once.
class DirChain {
 public:
  static constexpr size_t kMaxOpen = 64; ///< descriptors held at the most, the top's included

  /// Takes the open folder at the top.
  explicit DirChain(UniqueFd top);

  /// Descriptor of the deepest folder; stays the chain's.
  [[nodiscard]] int fd() const { return m_levels.back().fd.get(); }
  /// How many folders lie below the top; 0 at the top.
  [[nodiscard]] size_t depth() const { return m_levels.size() - 1; }

  /// Opens @p name in the deepest folder and makes it the deepest. False with errno set: the deepest stays the deepest.
  [[nodiscard]] bool enter(const char* name) {
    if (m_open == kMaxOpen) closeOldest();
    const int child = ::openat(fd(), name, kFlags);
    if (child < 0) return false;
    m_levels.emplace_back(UniqueFd(child));
    ++m_open;
    return true;
  }

  /// Leaves the deepest folder for the one above it. False: that folder can't be reached again, as something was moved
  /// meanwhile; the chain then has only its top left, and the walk must end. At the top it does nothing, false.
  [[nodiscard]] bool leave() {
    if (depth() == 0 || (!m_levels[depth() - 1].fd && !reopenAbove())) return false;
    m_levels.pop_back();
    --m_open;
    return true;
  }

 private:
  static constexpr int kFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

  struct Level {
    explicit Level(UniqueFd folder) : fd(std::move(folder)) {}

    UniqueFd fd;
    dev_t device = 0; ///< known from when the level was closed
    ino_t inode = 0;
  };

  void closeOldest();
  bool reopenAbove();

  std::vector<Level> m_levels;
  size_t m_open = 1;
};
