#include "core/process.h"

#include <QProcess>

namespace process {

namespace {
constexpr int kGraceMs = 1000;
} // namespace

QString run(const QString& program, const QStringList& arguments, int limitMs, int* exitCode, Read read) {
  const auto report = [exitCode](int code) {
    if (exitCode != nullptr) *exitCode = code;
  };
  QProcess tool;
  if (read == Read::OutputAndErrors) tool.setProcessChannelMode(QProcess::MergedChannels);
  tool.start(program, arguments);
  if (!tool.waitForFinished(limitMs)) {
    tool.kill();
    tool.waitForFinished(kGraceMs);
    report(-1);
    return {};
  }
  report(tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1);
  return QString::fromUtf8(tool.readAllStandardOutput());
}

} // namespace process
