#include "core/runlock.h"

#include "core/names.h"
#include "core/places.h"
#include "core/sys.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// O_NONBLOCK: a pipe that somebody put there must not make the program wait.
constexpr int kLockFlags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
constexpr mode_t kLockMode = 0600;
/// How often the file may be replaced under our hands before we give up.
constexpr int kMaxAttempts = 16;

/// Whether nobody else can take away a file that the user has in the open folder @p fd, and put another there.
bool keepsOwnFiles(int fd) {
  struct stat status;
  if (::fstat(fd, &status) != 0) return false;
  if ((status.st_mode & S_ISVTX) != 0) return true;
  return status.st_uid == ::geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// Whether nobody else can open the file, and so lock it.
bool isPrivateFile(const struct stat& status) {
  return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink <= 1 &&
         (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

int lockNow(int fd) {
  while (::flock(fd, LOCK_EX | LOCK_NB) != 0)
    if (errno != EINTR) return errno;
  return 0;
}

} // namespace

RunLock::RunLock(const QStringList& paths) {
  for (const QString& path : paths) {
    if (take(path, m_fds.empty() ? Missing::Make : Missing::PassOver) != State::Busy) continue;
    m_fds.clear();
    m_state = State::Busy;
    return;
  }
  if (!m_fds.empty()) m_state = State::Held;
}

RunLock::State RunLock::take(const QString& path, Missing missing) {
  const QByteArray raw = names::encode(path);
  const qsizetype slash = raw.lastIndexOf('/');
  const QByteArray name = raw.mid(slash + 1);
  if (slash < 0) return State::Unavailable;
  // Links above are root's or the user's own: what counts is the folder that they lead to.
  const UniqueFd folder(
      sys::openPassage(AT_FDCWD, raw.left(qMax(slash, qsizetype(1))).constData(), sys::Links::Follow));
  if (!folder || !keepsOwnFiles(folder.get())) return State::Unavailable;
  const int flags = kLockFlags | (missing == Missing::Make ? O_CREAT : 0);
  for (int attempt = 0; attempt < kMaxAttempts; ++attempt) {
    UniqueFd fd(::openat(folder.get(), name.constData(), flags, kLockMode));
    struct stat own;
    if (!fd || ::fstat(fd.get(), &own) != 0 || !isPrivateFile(own)) return State::Unavailable;
    if (const int error = lockNow(fd.get()); error != 0) return error == EWOULDBLOCK ? State::Busy : State::Unavailable;
    // A file that was removed meanwhile locks nobody out: then the one that stands there now is the lock.
    struct stat there;
    if (::fstatat(folder.get(), name.constData(), &there, AT_SYMLINK_NOFOLLOW) == 0 && there.st_dev == own.st_dev &&
        there.st_ino == own.st_ino) {
      m_fds.push_back(std::move(fd));
      return State::Held;
    }
  }
  return State::Unavailable;
}

// Asked of the system and the password database, as two processes may have been told different things by their
// environment. The first place is there only while the user is logged in.
QStringList RunLock::defaultPaths() {
  const QString home = places::passwordHome();
  QStringList paths{QStringLiteral("/run/user/%1/tarnwick.lock").arg(::geteuid())};
  if (!home.isEmpty()) paths.append(home + QStringLiteral("/.tarnwick.lock"));
  paths.append(QStringLiteral("/tmp/tarnwick-%1.lock").arg(::geteuid()));
  return paths;
}
