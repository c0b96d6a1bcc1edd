#include "cli/output.h"

#include "cli/terminal.h"

#include <cerrno>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

/// Whoever gave us the descriptor may have it not wait by itself. Comes back also where the next write is an error.
void waitForRoom(int fd) {
  pollfd room{fd, POLLOUT, 0};
  ::poll(&room, 1, -1);
}

} // namespace

void prepareDescriptors() {
  std::signal(SIGPIPE, SIG_IGN);
  for (const int fd : {terminal::kInput, terminal::kOutput, terminal::kErrors}) {
    if (::fcntl(fd, F_GETFD) != -1) continue;
    // The other way round, so that using it is still an error; the lowest free number is this one.
    [[maybe_unused]] const int same = ::open("/dev/null", fd == terminal::kInput ? O_WRONLY : O_RDONLY);
  }
}

void Output::write(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  for (qsizetype done = 0; done < bytes.size() && !failed();) {
    const ssize_t count = ::write(m_fd, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
    if (count >= 0)
      done += count;
    else if (errno == EAGAIN)
      waitForRoom(m_fd);
    else if (errno != EINTR)
      m_error = errno;
  }
}

QString Output::failure() const { return QString::fromLocal8Bit(std::strerror(m_error)); }

void complain(const QString& message) { Output(terminal::kErrors).write(u"tarnwick-cli: "_s + message + u'\n'); }

} // namespace cli
