// A signal handler may do next to nothing, so it writes a byte into a pipe, and the event loop reads it.
#include "core/Interrupts.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

std::array<int, 2> pipeEnds = {-1, -1}; // reading, writing; for the life of the process
volatile std::sig_atomic_t hasCome = 0;

void onSignal(int) {
  const int before = errno;
  hasCome = 1;
  const char byte = 0;
  [[maybe_unused]] const ssize_t count = ::write(pipeEnds[1], &byte, 1);
  errno = before;
}

void openPipe() {
  if (::pipe(pipeEnds.data()) != 0) qFatal("no pipe for signals");
  for (const int fd : pipeEnds) {
    ::fcntl(fd, F_SETFD, FD_CLOEXEC);
    ::fcntl(fd, F_SETFL, O_NONBLOCK);
  }
}

void handle(int signal) {
  struct sigaction action {};
  action.sa_handler = onSignal;
  action.sa_flags = SA_RESTART;
  ::sigaction(signal, &action, nullptr);
}

bool isIgnored(int signal) {
  struct sigaction action {};
  return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

Interrupts::Interrupts() {
  openPipe();
  auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, &Interrupts::onReadable);
  handle(SIGINT);
  handle(SIGTERM);
  if (!isIgnored(SIGHUP)) handle(SIGHUP);
}

bool Interrupts::raised() const { return hasCome != 0; }

void Interrupts::onReadable() {
  std::array<char, 16> bytes{};
  while (::read(pipeEnds[0], bytes.data(), bytes.size()) > 0) {
  }
  emit interrupted();
}
