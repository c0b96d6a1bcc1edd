/// The objects that scripts read. Their keys are a promise: none goes, none changes its meaning.
#pragma once

#include "app/records.h"
#include "engines/LargeFileFinder.h"

#include <QString>

namespace cli::json {

struct Scan {
  QList<CategoryResult> categories; ///< in catalogue order
  bool cancelled = false;
  qint64 elapsedMs = 0;
};

struct Clean {
  CleanReport report;
  bool dryRun = false;
  bool toTrash = true;
};

struct Large {
  QList<LargeFile> files; ///< largest first
  LargeFileFinder::Summary summary;
  bool cancelled = false;
};

struct SystemData {
  QList<SystemDataItem> items; ///< in the catalogue's order
  bool cancelled = false;
};

/// One object on a line of its own.
[[nodiscard]] QString text(const Scan& scan);
[[nodiscard]] QString text(const Clean& clean);
[[nodiscard]] QString text(const Large& large);
[[nodiscard]] QString text(const SystemData& data);

} // namespace cli::json
