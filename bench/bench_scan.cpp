// A full scan by the catalogue, and how long a cancelled one goes on. Without an argument it scans the home folder;
// with DIR a home folder of its own, whose cache DIR is, so that each folder in DIR is a root.
#include "engines/Scanner.h"
#include "figure.h"
#include "home.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QTemporaryDir>

#include <algorithm>
#include <thread>
#include <vector>

namespace {

constexpr int kTries = 40;

struct Figures {
  double ms = 0;
  qint64 bytes = 0;
  qint64 files = 0;
};

/// Scans to the end, or raises the flag after @p cancelAfterMs; then the time counts from there.
Figures scan(double cancelAfterMs = -1) {
  Figures figures;
  Scanner scanner;
  QSemaphore done;
  QObject::connect(
      &scanner, &Scanner::finished, &scanner,
      [&](const QList<CategoryResult>& results, bool) {
        for (const CategoryResult& result : results) {
          figures.bytes += result.bytes;
          figures.files += result.files;
        }
        done.release();
      },
      Qt::DirectConnection);
  bench::Clock clock;
  scanner.start({});
  if (cancelAfterMs >= 0) {
    std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(cancelAfterMs));
    clock = bench::Clock();
    scanner.cancel();
  }
  done.acquire();
  figures.ms = clock.ms();
  return figures;
}

} // namespace

int main(int argc, char** argv) {
  const QTemporaryDir home(QStringLiteral("/var/tmp/tarnwick-bench-home-XXXXXX"));
  if (argc >= 2) bench::moveInto(home.path(), QString::fromLocal8Bit(argv[1]));
  const QCoreApplication app(argc, argv);
  const Figures whole = scan();
  std::vector<double> waits;
  for (int i = 0; i < kTries; ++i) waits.push_back(scan(whole.ms * i / kTries).ms);
  std::sort(waits.begin(), waits.end());
  std::printf("name=scan ms=%.1f files=%lld bytes=%lld peak_kib=%ld cancel_worst_ms=%.1f cancel_median_ms=%.1f\n",
              whole.ms, static_cast<long long>(whole.files), static_cast<long long>(whole.bytes), bench::peakKib(),
              waits.back(), waits[waits.size() / 2]);
}
