#include "cli/sheet.h"
#include "cli/words.h"
#include "core/fmt.h"
#include "core/names.h"

using namespace Qt::StringLiterals;

namespace cli {
namespace {

constexpr auto kLeft = Table::Side::Left;
constexpr auto kRight = Table::Side::Right;

QList<Cell> row(const LargeFile& file, bool bars, qint64 largest) {
  QList<Cell> cells = {{fmt::bytes(file.size), Tone::Strong}};
  const double share = largest > 0 ? static_cast<double>(file.size) / static_cast<double>(largest) : 0;
  if (bars) cells << Cell{bar(share, kBarCells), Tone::Good};
  return cells << Cell{file.kind, Tone::Faint} << Cell{fmt::age(file.lastUsed), Tone::Faint}
               << Cell{names::escaped(fmt::shortPath(file.path))};
}

Table table(const QList<LargeFile>& files, const LargeFileFinder::Summary& summary, bool bars) {
  QList<Table::Side> columns = {kRight, kLeft, kLeft, kLeft};
  QList<Cell> head = {{Words::tr("Size"), Tone::Faint}};
  if (bars) {
    columns << kLeft;
    head << Cell{};
  }
  Table table(columns);
  table.add(head << Cell{Words::tr("Kind"), Tone::Faint} << Cell{Words::tr("Last used"), Tone::Faint}
                 << Cell{Words::tr("File"), Tone::Faint});
  const qint64 largest = files.isEmpty() ? 0 : files.first().size;
  for (const LargeFile& file : files) table.add(row(file, bars, largest));
  table.addRule();
  table.add({{fmt::bytes(summary.bytesFound), Tone::Strong}});
  return table;
}

/// Why the total is more than the list adds up to.
QString cutNote(const QList<LargeFile>& files, const LargeFileFinder::Summary& summary) {
  if (files.size() >= summary.found) return {};
  return Words::tr("The largest %1 of %2 files are listed.").arg(fmt::count(files.size()), fmt::count(summary.found));
}

} // namespace

QString largeText(const QList<LargeFile>& files, const LargeFileFinder::Summary& summary, int megabytes,
                  qint64 elapsedMs, const Paper& paper) {
  const QString size = fmt::bytes(qint64{megabytes} * fmt::unit() * fmt::unit());
  const QString found = files.isEmpty()
                            ? paragraph({Words::tr("No file in the home folder takes %1 or more.").arg(size)}, paper)
                            : tableText(table(files, summary, hasRoomForBars(paper)), paper) +
                                  paragraph({cutNote(files, summary)}, paper);
  const QString time =
      Words::tr("Searched %1 in %2. Nothing was changed.").arg(filesText(summary.filesSeen), timeText(elapsedMs));
  return found + paragraph({toned(time, Tone::Faint, paper.colours)}, paper);
}

} // namespace cli
