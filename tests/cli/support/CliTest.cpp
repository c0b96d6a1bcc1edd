#include "support/CliTest.h"

#include "app/identity.h"

#include <QFile>
#include <QFileInfo>

#include <csignal>

#include <sys/stat.h>

namespace {
constexpr int kFewInstallers = 200;
constexpr int kMostInstallers = 13'000;
constexpr int kInterrupted = 130;
} // namespace

void CliTest::initTestCase() { identity::apply(); }

void CliTest::make() {
  m_home.reset();
  m_home = std::make_unique<FixtureHome>();
  qputenv("TARNWICK_HOST", "linux");
  fillSampleHome(*m_home);
}

void CliTest::drop() {
  qunsetenv("TARNWICK_HOST");
  m_home.reset();
}

bool CliTest::there(const QString& relative) const { return QFileInfo::exists(m_home->path(relative)); }

CliRun CliTest::interrupt(const Interruption& how, int* installers) {
  CliRun run;
  for (int many = kFewInstallers; many <= kMostInstallers; many *= 4) {
    make();
    addManyItems(*m_home, many);
    if (installers) *installers = many + 1; // with the one that is there already
    QProcess process;
    startCli(&process, how.arguments + slowRules());
    while (!how.isMidway() && process.state() == QProcess::Running) process.waitForFinished(1);
    if (process.state() == QProcess::Running) ::kill(static_cast<pid_t>(process.processId()), how.signal);
    run = finish(&process);
    if (run.code == kInterrupted && how.wasInTime()) break;
  }
  return run;
}

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qint64 allocated(const QString& path) {
  struct stat status {};
  return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_blocks * 512 : -1;
}
