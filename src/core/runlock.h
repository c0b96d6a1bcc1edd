/// One clean at a time for each user, over all processes.
#pragma once

#include "core/UniqueFd.h"

#include <QString>

/// Holds an advisory lock on a file of the user's own until it is destroyed. The kernel frees it when the process ends,
/// however that happens.
class RunLock {
 public:
  enum class State { Held, Busy, Unavailable };

  /// Tries once, without waiting. The file is created with mode 0600, never through a link, and stays.
  explicit RunLock(const QString& path = defaultPath());

  [[nodiscard]] State state() const { return m_state; }
  /// The same place for every process of the effective user, whatever its environment.
  [[nodiscard]] static QString defaultPath();

 private:
  UniqueFd m_fd;
  State m_state = State::Unavailable;
};
