/// One clean at a time for each user, over all processes.
#pragma once

#include "core/UniqueFd.h"

#include <QString>
#include <QStringList>

#include <vector>

/// Holds an advisory lock on files of the user's own until it is destroyed. The kernel frees it when the process ends,
/// however that happens.
class RunLock {
 public:
  enum class State { Held, Busy, Unavailable };

  /// Tries @p path alone, once, without waiting. The file is created with mode 0600, never through a link, and stays.
  /// Unavailable where it, or its folder, isn't safe from other users.
  explicit RunLock(const QString& path) : RunLock(QStringList{path}) {}
  /// Tries several places in their order: makes the file in the first that is safe, and of the others takes those that
  /// are there. Busy if somebody holds one of them. So two processes that find different places usable meet all the
  /// same.
  explicit RunLock(const QStringList& paths = defaultPaths());

  [[nodiscard]] State state() const { return m_state; }
  /// The same places for every process of the effective user, whatever its environment: the user's folder for running
  /// programs, the home folder that the password database names, and, for users who have neither, /tmp, where another
  /// user can be in the way.
  [[nodiscard]] static QStringList defaultPaths();

 private:
  enum class Missing { Make, PassOver };
  [[nodiscard]] State take(const QString& path, Missing missing);

  std::vector<UniqueFd> m_fds;
  State m_state = State::Unavailable;
};
