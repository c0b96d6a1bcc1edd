/// The ways out: standard output, which must arrive, and words on standard error, which may.
#pragma once

#include <QString>

namespace cli {

/// Makes a reader that went away an error of the write instead of the end of the program, and keeps the numbers of the
/// standard descriptors from files that are opened later, where the caller closed one. Before anything else.
void prepareDescriptors();

/// Writes to a descriptor, everything at once, and remembers what went wrong first.
class Output {
 public:
  explicit Output(int fd) : m_fd(fd) {}

  /// Writes @p text as UTF-8; nothing after a failure.
  void write(const QString& text);
  [[nodiscard]] bool failed() const { return m_error != 0; }
  /// The system's words for the failure.
  [[nodiscard]] QString failure() const;
  [[nodiscard]] int fd() const { return m_fd; }

 private:
  int m_fd;
  int m_error = 0; // errno
};

/// "tarnwick-cli: " and @p message on standard error.
void complain(const QString& message);

} // namespace cli
