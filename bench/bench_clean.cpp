// A whole clean by deletion: removes DIR with everything in it, as one item. "ms" is the removal itself with its
// measuring and its log, "whole_ms" the run with its snapshots too.
#include "cleaning.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  const QString dir = QFileInfo(QString::fromLocal8Bit(bench::folderArgument(argc, argv))).canonicalFilePath();
  const QTemporaryDir home(QStringLiteral("/var/tmp/tarnwick-bench-home-XXXXXX"));
  qputenv("HOME", home.path().toLocal8Bit());
  for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qunsetenv(name);
  const QCoreApplication app(argc, argv);
  const bench::Cleaned cleaned = bench::clean({bench::categoryOf(QStringLiteral("bench"), {bench::itemAt(dir)})},
                                              home.filePath(QStringLiteral("lock")));
  std::printf("name=clean ms=%.1f cpu_ms=%.1f whole_ms=%.1f bytes=%lld files=%lld skipped=%lld peak_kib=%ld\n",
              cleaned.ms, cleaned.cpuMs, cleaned.wholeMs, static_cast<long long>(cleaned.report.freedBytes),
              static_cast<long long>(cleaned.report.removedFiles), static_cast<long long>(cleaned.report.skipped),
              bench::peakKib());
  return cleaned.isWhole() ? 0 : 1;
}
