// A whole clean by deletion: removes DIR with everything in it, as one item. "ms" is the removal itself, "whole_ms" the
// run with its snapshots, its measuring and its log.
#include "core/fs.h"
#include "engines/Cleaner.h"
#include "figure.h"

#include <QCoreApplication>
#include <QDir>
#include <QSemaphore>
#include <QTemporaryDir>

namespace {

CategoryResult orderFor(const QString& dir) {
  const std::atomic<bool> never = false;
  const fs::Totals totals = fs::measure(dir, never);
  CleanItem item;
  item.path = dir;
  item.name = QDir(dir).dirName();
  item.bytes = totals.bytes;
  item.files = totals.files;
  CategoryResult result;
  result.def.id = QStringLiteral("bench");
  result.def.title = QStringLiteral("Bench");
  result.bytes = totals.bytes;
  result.files = totals.files;
  result.items = {item};
  return result;
}

} // namespace

int main(int argc, char** argv) {
  const QString dir = QFileInfo(QString::fromLocal8Bit(bench::folderArgument(argc, argv))).canonicalFilePath();
  const QTemporaryDir home(QStringLiteral("/var/tmp/tarnwick-bench-home-XXXXXX"));
  qputenv("HOME", home.path().toLocal8Bit());
  for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qunsetenv(name);
  const QCoreApplication app(argc, argv);
  const CategoryResult order = orderFor(dir);

  CleanerWorld world;
  world.lockPath = home.filePath(QStringLiteral("lock"));
  Cleaner cleaner(nullptr, world);
  QSemaphore done;
  CleanReport report;
  bench::Clock whole;
  bench::Clock removal;
  double wholeMs = 0;
  double removalMs = 0;
  QObject::connect(
      &cleaner, &Cleaner::progress, &cleaner,
      [&](qint64, qint64, const QString& path) {
        if (!path.isEmpty()) removal = bench::Clock();
      },
      Qt::DirectConnection);
  QObject::connect(
      &cleaner, &Cleaner::finished, &cleaner,
      [&](const CleanReport& all) {
        removalMs = removal.ms();
        wholeMs = whole.ms();
        report = all;
        done.release();
      },
      Qt::DirectConnection);
  whole = bench::Clock();
  cleaner.start({order}, false, {});
  done.acquire();
  std::printf("name=clean ms=%.1f whole_ms=%.1f bytes=%lld files=%lld skipped=%lld peak_kib=%ld\n", removalMs, wholeMs,
              static_cast<long long>(report.freedBytes), static_cast<long long>(report.removedFiles),
              static_cast<long long>(report.skipped), bench::peakKib());
  return report.refusal.isEmpty() && report.skipped == 0 ? 0 : 1;
}
