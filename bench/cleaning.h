/// One clean by the engine, timed.
#pragma once

#include "core/fs.h"
#include "engines/Cleaner.h"
#include "figure.h"

#include <QSemaphore>

#include <atomic>

namespace bench {

/// An item as a scan would list it now.
inline CleanItem itemAt(const QString& path) {
  const std::atomic<bool> never = false;
  const fs::Totals totals = fs::measure(path, never);
  CleanItem item;
  item.path = path;
  item.name = path.section(QLatin1Char('/'), -1);
  item.bytes = totals.bytes;
  item.files = totals.files;
  return item;
}

/// A category of these items.
inline CategoryResult categoryOf(const QString& id, const QList<CleanItem>& items) {
  CategoryResult result;
  result.def.id = id;
  result.def.title = id;
  result.items = items;
  for (const CleanItem& item : items) {
    result.bytes += item.bytes;
    result.files += item.files;
  }
  return result;
}

struct Cleaned {
  double ms = 0;      ///< from the first item to the last line of the log
  double cpuMs = 0;   ///< of that, what a processor worked
  double wholeMs = 0; ///< with the snapshots before it
  CleanReport report;

  /// Whether all went.
  [[nodiscard]] bool isWhole() const { return report.refusal.isEmpty() && report.skipped == 0; }
};

/// Cleans for real, deleting; needs a QCoreApplication.
inline Cleaned clean(const QList<CategoryResult>& order, const QString& lockPath) {
  CleanerWorld world;
  world.lockPath = lockPath;
  Cleaner cleaner(nullptr, world);
  QSemaphore done;
  Cleaned cleaned;
  bool begun = false;
  Clock whole;
  Clock items;
  QObject::connect(
      &cleaner, &Cleaner::progress, &cleaner,
      [&] {
        if (!std::exchange(begun, true)) items = Clock();
      },
      Qt::DirectConnection);
  QObject::connect(
      &cleaner, &Cleaner::finished, &cleaner,
      [&](const CleanReport& report) {
        cleaned = {items.ms(), items.cpuMs(), whole.ms(), report};
        done.release();
      },
      Qt::DirectConnection);
  whole = Clock();
  cleaner.start(order, false, {});
  done.acquire();
  return cleaned;
}

} // namespace bench
