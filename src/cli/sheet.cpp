#include "cli/sheet.h"

#include "cli/terminal.h"
#include "cli/words.h"
#include "core/fmt.h"

#include <QLocale>

namespace cli {
namespace {

constexpr int kWidthForBars = 90;
constexpr int kMsPerSecond = 1000;

} // namespace

bool hasRoomForBars(const Paper& paper) { return paper.isTerminal && paper.width >= kWidthForBars; }

QString filesText(qint64 files) {
  //: Stands alone or as %1 or %2 of another text
  return files == 1 ? Words::tr("1 file") : Words::tr("%1 files", nullptr, fmt::plural(files)).arg(fmt::count(files));
}

QString timeText(qint64 elapsedMs) {
  //: Milliseconds
  if (elapsedMs < kMsPerSecond) return Words::tr("%1 ms").arg(elapsedMs);
  //: Seconds
  return Words::tr("%1 s").arg(QLocale().toString(static_cast<double>(elapsedMs) / kMsPerSecond, 'f', 1));
}

QString unreadNote(const QStringList& titles) {
  //: %1: titles, with commas
  return titles.isEmpty() ? QString() : Words::tr("Not everything could be read: %1.").arg(fmt::list(titles));
}

QString paragraph(const QStringList& texts, const Paper& paper) {
  QString all;
  for (const QString& one : texts)
    if (!one.isEmpty()) all += terminal::wrapped(one, paper.width) + u'\n';
  return all.isEmpty() ? all : u'\n' + all;
}

QString tableText(const Table& table, const Paper& paper) {
  return u'\n' + table.text(paper.isTerminal ? paper.width : 0, paper.colours);
}

} // namespace cli
