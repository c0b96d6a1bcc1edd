#include "core/runlock.h"

#include "core/names.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// O_NONBLOCK: a pipe that somebody put there must not make the program wait.
constexpr int kLockFlags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
constexpr mode_t kLockMode = 0600;
/// How often the file may be replaced under our hands before we give up.
constexpr int kMaxAttempts = 16;

bool isOwnFile(const struct stat& status) { return S_ISREG(status.st_mode) && status.st_uid == ::geteuid(); }

int lockNow(int fd) {
  while (::flock(fd, LOCK_EX | LOCK_NB) != 0)
    if (errno != EINTR) return errno;
  return 0;
}

} // namespace

RunLock::RunLock(const QString& path) {
  const QByteArray raw = names::encode(path);
  for (int attempt = 0; attempt < kMaxAttempts; ++attempt) {
    UniqueFd fd(::open(raw.constData(), kLockFlags, kLockMode));
    struct stat own;
    if (!fd || ::fstat(fd.get(), &own) != 0 || !isOwnFile(own)) return;
    if (const int error = lockNow(fd.get()); error != 0) {
      if (error == EWOULDBLOCK) m_state = State::Busy;
      return;
    }
    // A file that was removed meanwhile locks nobody out: then the one that stands there now is the lock.
    struct stat there;
    if (::lstat(raw.constData(), &there) == 0 && there.st_dev == own.st_dev && there.st_ino == own.st_ino) {
      m_fd = std::move(fd);
      m_state = State::Held;
      return;
    }
  }
}

QString RunLock::defaultPath() { return QStringLiteral("/tmp/tarnwick-%1.lock").arg(::geteuid()); }
