// How long fs::measure goes on after its flag was raised, over a folder that is best large: raised at moments spread
// over a whole walk, the worst and the median wait.
#include "core/fs.h"
#include "figure.h"

#include <algorithm>
#include <thread>
#include <vector>

namespace {

constexpr int kTries = 40;

struct Try {
  double waitMs;
  fs::Totals totals;
};

Try cancelAfter(const QString& folder, double delayMs) {
  std::atomic<bool> cancel = false;
  fs::Totals totals;
  bench::Clock begun;
  std::thread walker([&] { totals = fs::measure(folder, cancel); });
  std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(delayMs));
  const bench::Clock clock;
  cancel = true;
  walker.join();
  return {clock.ms(), totals};
}

} // namespace

int main(int argc, char** argv) {
  const QString folder = QString::fromLocal8Bit(bench::folderArgument(argc, argv));
  const std::atomic<bool> never = false;
  const bench::Clock clock;
  const fs::Totals whole = fs::measure(folder, never);
  const double wholeMs = clock.ms();
  std::vector<double> waits;
  for (int i = 0; i < kTries; ++i) waits.push_back(cancelAfter(folder, wholeMs * i / kTries).waitMs);
  std::sort(waits.begin(), waits.end());
  std::printf("name=cancel ms=%.1f median_ms=%.1f whole_ms=%.1f bytes=%lld files=%lld peak_kib=%ld\n", waits.back(),
              waits[waits.size() / 2], wholeMs, static_cast<long long>(whole.bytes),
              static_cast<long long>(whole.files), bench::peakKib());
}
