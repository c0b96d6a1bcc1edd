/// Runs tarnwick-cli with pipes for its three descriptors.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

/// Path of the program under test: all of the shipped one, but with a lock for cleans and a disk for System Data at the
/// root of the fixture, and with rules that keep it in there.
[[nodiscard]] QString cliProgram();
/// Path of the program as it ships, which takes the user's own lock.
[[nodiscard]] QString shippedProgram();
/// Where the program under test has its lock, from the home folder.
inline constexpr const char* kCleanLock = "../../clean.lock";
/// What stands for the root of the disk to its System Data, from the home folder.
inline constexpr const char* kSystemRoot = "../../system";

/// What one run left.
struct CliRun {
  int code = -1; ///< exit code; -1 after a crash or a run that didn't end
  QByteArray out;
  QByteArray err;

  /// Standard output as one JSON object; empty if it is anything else.
  [[nodiscard]] QJsonObject json() const;
};

/// Runs it to its end, with the environment of the test and nothing on standard input.
[[nodiscard]] CliRun runCli(const QStringList& arguments);
/// Collects what a started program leaves.
[[nodiscard]] CliRun finish(QProcess* process);
/// Starts it, and returns when it is ready to be told to stop.
void startCli(QProcess* process, const QStringList& arguments);
