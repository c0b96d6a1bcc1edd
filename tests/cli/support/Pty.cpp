#include "support/Pty.h"

#include "support/CliRun.h"

#include <QFile>

#include <array>
#include <csignal>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kPatienceMs = 60'000;
constexpr unsigned short kLines = 40;

void redirect(const QByteArray& path, int flags, int fd) {
  if (path.isEmpty()) return;
  const int file = ::open(path.constData(), flags, 0600);
  ::dup2(file, fd);
  ::close(file);
}

} // namespace

Pty::Pty(const QStringList& arguments, const Options& options) {
  std::vector<QByteArray> words = {QFile::encodeName(cliProgram())};
  for (const QString& argument : arguments) words.push_back(argument.toUtf8());
  std::vector<char*> argv;
  for (QByteArray& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  const QByteArray in = options.inFromNothing ? "/dev/null" : "";
  const QByteArray out = QFile::encodeName(options.outTo);
  const QByteArray err = QFile::encodeName(options.errTo);
  winsize size{kLines, static_cast<unsigned short>(options.columns), 0, 0};
  m_pid = ::forkpty(&m_fd, nullptr, nullptr, &size);
  if (m_pid != 0) return;
  redirect(in, O_RDONLY, STDIN_FILENO);
  redirect(out, O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
  redirect(err, O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
  ::execv(argv.front(), argv.data());
  ::_exit(127);
}

Pty::~Pty() {
  hangUp();
  if (m_pid <= 0) return;
  ::kill(m_pid, SIGKILL);
  ::waitpid(m_pid, nullptr, 0);
}

bool Pty::read() {
  pollfd waiting{m_fd, POLLIN, 0};
  if (m_fd < 0 || ::poll(&waiting, 1, kPatienceMs) <= 0) return false;
  std::array<char, 4096> bytes{};
  const ssize_t count = ::read(m_fd, bytes.data(), bytes.size()); // EIO once the program is gone
  if (count > 0) m_shown.append(bytes.data(), count);
  return count > 0;
}

bool Pty::shows(const QByteArray& text) {
  while (!m_shown.contains(text))
    if (!read()) return m_shown.contains(text);
  return true;
}

void Pty::type(const QByteArray& keys) {
  [[maybe_unused]] const ssize_t count = ::write(m_fd, keys.constData(), static_cast<size_t>(keys.size()));
}

void Pty::hangUp() {
  if (m_fd >= 0) ::close(m_fd);
  m_fd = -1;
}

int Pty::finish() {
  while (read()) {
  }
  int status = 0;
  ::waitpid(m_pid, &status, 0);
  m_pid = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
