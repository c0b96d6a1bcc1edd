#include "support/CliRun.h"

#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {
constexpr int kPatienceMs = 100'000;

/// Whether the process has put a handler of its own in the place of the signal's default.
bool handles(qint64 pid, int signal) {
  QFile status(u"/proc/%1/status"_s.arg(pid));
  if (!status.open(QIODevice::ReadOnly)) return false;
  const QRegularExpression mask(u"^SigCgt:\\s*([0-9a-f]+)"_s, QRegularExpression::MultilineOption);
  const QString caught = mask.match(QString::fromLatin1(status.readAll())).captured(1);
  return (caught.toULongLong(nullptr, 16) >> (signal - 1)) & 1U;
}
} // namespace

QString cliProgram() { return QStringLiteral(TARNWICK_CLI); }

QString shippedProgram() { return QStringLiteral(TARNWICK_CLI_SHIPPED); }

QJsonObject CliRun::json() const {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(out, &error);
  return error.error == QJsonParseError::NoError && out.count('\n') == 1 && out.endsWith('\n') ? document.object()
                                                                                               : QJsonObject();
}

CliRun finish(QProcess* process) {
  if (process->state() != QProcess::NotRunning && !process->waitForFinished(kPatienceMs)) return {};
  const bool crashed = process->exitStatus() != QProcess::NormalExit;
  return {crashed ? -1 : process->exitCode(), process->readAllStandardOutput(), process->readAllStandardError()};
}

CliRun runCli(const QStringList& arguments) {
  QProcess process;
  process.start(cliProgram(), arguments);
  process.closeWriteChannel();
  return finish(&process);
}

void startCli(QProcess* process, const QStringList& arguments) {
  process->setChildProcessModifier([] { std::signal(SIGHUP, SIG_DFL); }); // also where the test runs under nohup
  process->start(cliProgram(), arguments);
  process->closeWriteChannel();
  process->waitForStarted();
  while (process->state() == QProcess::Running && !handles(process->processId(), SIGHUP)) process->waitForFinished(1);
}
