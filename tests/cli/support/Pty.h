/// Runs tarnwick-cli on a terminal of its own.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class Pty {
 public:
  struct Options {
    int columns = 100;
    QString outTo{};            ///< a file that takes standard output instead of the terminal
    QString errTo{};            ///< the same for standard error
    bool inFromNothing = false; ///< standard input is /dev/null
  };

  /// Starts the program as the leader of a session whose terminal this is.
  explicit Pty(const QStringList& arguments) : Pty(arguments, Options()) {}
  Pty(const QStringList& arguments, const Options& options);
  /// Ends the program if it still runs.
  ~Pty();
  Pty(const Pty&) = delete;
  Pty& operator=(const Pty&) = delete;

  /// Reads until the terminal has shown @p text, or the program is gone. Whether it was shown.
  [[nodiscard]] bool shows(const QByteArray& text);
  /// Types.
  void type(const QByteArray& keys);
  /// Hangs the terminal up, as when its window is closed.
  void hangUp();
  /// Reads to the end. The exit code; -1 after a crash.
  [[nodiscard]] int finish();
  /// All that was shown so far.
  [[nodiscard]] const QByteArray& shown() const { return m_shown; }
  [[nodiscard]] qint64 pid() const { return m_pid; }

 private:
  /// Waits for output and takes it. False at the end.
  bool read();

  int m_fd = -1;
  int m_pid = -1;
  QByteArray m_shown;
};
