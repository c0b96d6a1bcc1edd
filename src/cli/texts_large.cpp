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
  return cells << Cell{LargeFileFinder::kindName(file.kind), Tone::Faint} << Cell{fmt::age(file.lastUsed), Tone::Faint}
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
  //: Head of a column: the kind of a file
  head << Cell{Words::tr("Kind"), Tone::Faint};
  head << Cell{Words::tr("Last used"), Tone::Faint};
  //: Head of a column: a file's path
  head << Cell{Words::tr("File"), Tone::Faint};
  table.add(head);
  const qint64 largest = files.isEmpty() ? 0 : files.first().size;
  for (const LargeFile& file : files) table.add(row(file, bars, largest));
  table.addRule();
  table.add({{fmt::bytes(summary.bytesFound), Tone::Strong}});
  return table;
}

/// Why the total is more than the list adds up to.
QString cutNote(const QList<LargeFile>& files, const LargeFileFinder::Summary& summary) {
  if (files.size() >= summary.found) return {};
  //: The forms count %2
  return Words::tr("The largest %1 of %2 files are listed.", nullptr, fmt::plural(summary.found))
      .arg(fmt::count(files.size()), fmt::count(summary.found));
}

} // namespace

QString largeText(const QList<LargeFile>& files, const LargeFileFinder::Summary& summary, int megabytes,
                  qint64 elapsedMs, const Paper& paper) {
  const QString size = fmt::bytes(qint64{megabytes} * fmt::unit() * fmt::unit());
  const QString found = files.isEmpty()
                            //: %1: a size
                            ? paragraph({Words::tr("No file in the home folder takes %1 or more.").arg(size)}, paper)
                            : tableText(table(files, summary, hasRoomForBars(paper)), paper) +
                                  paragraph({cutNote(files, summary)}, paper);
  const QString time =
      //: %1: “1 file” or “%1 files”, which the forms count; %2: a time such as “2.1 s”
      Words::tr("Searched %1 in %2. Nothing was changed.", nullptr, fmt::plural(summary.filesSeen))
          .arg(filesText(summary.filesSeen), timeText(elapsedMs));
  return found + paragraph({toned(time, Tone::Faint, paper.colours)}, paper);
}

} // namespace cli
