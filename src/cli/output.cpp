#include "cli/output.h"

#include "cli/terminal.h"

#include <cerrno>
#include <csignal>
#include <cstring>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace cli {

void ignoreBrokenPipes() { std::signal(SIGPIPE, SIG_IGN); }

void Output::write(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  for (qsizetype done = 0; done < bytes.size() && !failed();) {
    const ssize_t count = ::write(m_fd, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
    if (count >= 0)
      done += count;
    else if (errno != EINTR)
      m_error = errno;
  }
}

QString Output::failure() const { return QString::fromLocal8Bit(std::strerror(m_error)); }

void complain(const QString& message) { Output(terminal::kErrors).write(u"tarnwick-cli: "_s + message + u'\n'); }

} // namespace cli
