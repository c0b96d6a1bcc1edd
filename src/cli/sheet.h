/// What the texts for people are put together from.
#pragma once

#include "cli/Table.h"
#include "cli/texts.h"

#include <QStringList>

namespace cli {

constexpr int kBarCells = 12; ///< columns of the bars in a table

/// Whether a table may have a column of bars.
[[nodiscard]] bool hasRoomForBars(const Paper& paper);

[[nodiscard]] QString filesText(qint64 files);
[[nodiscard]] QString timeText(qint64 elapsedMs);
/// Names what couldn't be read whole; empty where that is nothing.
[[nodiscard]] QString unreadNote(const QStringList& titles);

/// The texts that aren't empty, each on lines of its own, and a blank line before them.
[[nodiscard]] QString paragraph(const QStringList& texts, const Paper& paper);
/// The table behind a blank line. Nothing is cut where it isn't for a terminal.
[[nodiscard]] QString tableText(const Table& table, const Paper& paper);

} // namespace cli
