/// What the headless program shows to people.
#pragma once

#include "app/records.h"
#include "engines/LargeFileFinder.h"

#include <QString>

namespace cli {

/// Where a text is going to stand.
struct Paper {
  int width = 80; ///< columns
  bool isTerminal = false;
  bool colours = false;
  /// What the descriptor @p fd can take.
  [[nodiscard]] static Paper of(int fd);
};

/// What a scan found, as a table.
[[nodiscard]] QString scanText(const QList<CategoryResult>& categories, qint64 elapsedMs, const Paper& paper);

/// Which large files a search has found, as a table. @p megabytes is what it looked for.
[[nodiscard]] QString largeText(const QList<LargeFile>& files, const LargeFileFinder::Summary& summary, int megabytes,
                                qint64 elapsedMs, const Paper& paper);

/// What System Data was measured to be, as two tables: what the user can reclaim, and what the system manages.
[[nodiscard]] QString systemDataText(const QList<SystemDataItem>& items, qint64 elapsedMs, const Paper& paper);

/// What a clean is about to do.
struct Plan {
  QList<CategoryResult> chosen; ///< what goes
  QList<CategoryResult> left;   ///< found, and not chosen
  bool toTrash = true;          ///< what isn't rated Permanent moves to the Trash
  qint64 bytesWithoutTrash = 0; ///< of what should move: they lie where no Trash can be, and stay
};
[[nodiscard]] QString planText(const Plan& plan, const Paper& paper);
/// The question that goes with a plan.
[[nodiscard]] QString planQuestion(const Plan& plan);

/// What a clean did.
[[nodiscard]] QString reportText(const CleanReport& report, bool dryRun, bool toTrash, const Paper& paper);

} // namespace cli
