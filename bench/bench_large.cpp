// The search for large files over a folder as the home folder, with a size that almost nothing has, and with one that
// everything has; each beside fs::measure over the same tree, in turns.
#include "core/fs.h"
#include "engines/LargeFileFinder.h"
#include "figure.h"

#include <QCoreApplication>
#include <QSemaphore>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

constexpr int kRounds = 9;
constexpr qint64 kLarge = 15 * 1024;

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

double timeOf(const std::function<void()>& work) {
  const bench::Clock clock;
  work();
  return clock.ms();
}

/// Searches to the end, on this thread's time.
LargeFileFinder::Summary search(qint64 minBytes) {
  QSemaphore done;
  LargeFileFinder finder;
  QObject::connect(
      &finder, &LargeFileFinder::finished, &finder, [&] { done.release(); }, Qt::DirectConnection);
  finder.start(minBytes, {});
  done.acquire();
  return finder.summary();
}

} // namespace

int main(int argc, char** argv) {
  const char* folder = bench::folderArgument(argc, argv);
  qputenv("HOME", folder);
  const QCoreApplication app(argc, argv);
  const std::atomic<bool> never = false;
  LargeFileFinder::Summary summary;
  std::vector<double> measure, few, all;
  (void)fs::measure(QString::fromLocal8Bit(folder), never); // warms the disk's cache
  const auto measureOnce = [&] { (void)fs::measure(QString::fromLocal8Bit(folder), never); };
  for (int round = 0; round < kRounds; ++round) {
    measure.push_back(timeOf(measureOnce));
    few.push_back(timeOf([&] { summary = search(kLarge); }));
    all.push_back(timeOf([] { (void)search(0); }));
  }
  std::printf("name=large ms=%.1f files=%lld found=%d peak_kib=%ld measure_ms=%.1f x_measure=%.3f all_ms=%.1f "
              "all_x_measure=%.3f\n",
              median(few), static_cast<long long>(summary.filesSeen), summary.found, bench::peakKib(), median(measure),
              median(few) / median(measure), median(all), median(all) / median(measure));
}
