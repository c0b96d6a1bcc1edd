// fs::measure over a folder.
#include "core/fs.h"
#include "figure.h"

int main(int argc, char** argv) {
  const QString folder = QString::fromLocal8Bit(bench::folderArgument(argc, argv));
  const std::atomic<bool> cancel = false;
  const bench::Clock clock;
  const fs::Totals totals = fs::measure(folder, cancel);
  bench::report("measure", clock.ms(), totals.bytes, totals.files);
}
