/// Runs an outside tool and waits for it.
#pragma once

#include <QString>
#include <QStringList>

namespace process {

/// What of a tool's text is returned.
enum class Read {
  Output,          ///< standard output alone
  OutputAndErrors, ///< with standard error in between, as it was written
};

/// Runs @p program without a shell and returns its text, read as UTF-8. Blocks the calling thread for @p limitMs at
/// most, plus 1000 ms to end it. Any thread; needs no event loop.
/// @param exitCode  receives the exit code, or -1 after a crash, a time-out or a failed start; may be null
/// @return empty after a time-out or a failed start
QString run(const QString& program, const QStringList& arguments, int limitMs, int* exitCode = nullptr,
            Read read = Read::Output);

} // namespace process
