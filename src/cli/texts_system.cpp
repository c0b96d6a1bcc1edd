#include "cli/sheet.h"
#include "cli/words.h"
#include "core/fmt.h"
#include "core/names.h"
#include "core/platform.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

constexpr auto kLeft = Table::Side::Left;
constexpr auto kRight = Table::Side::Right;

bool isMac() { return platform::host() == platform::Host::Mac; }

qint64 sum(const QList<SystemDataItem>& items) {
  qint64 bytes = 0;
  for (const SystemDataItem& one : items) bytes += one.bytes;
  return bytes;
}

/// Those of one half that there is something to tell of, largest first.
QList<SystemDataItem> half(QList<SystemDataItem> items, bool actionable) {
  items.removeIf([&](const SystemDataItem& one) {
    return one.actionable != actionable || (one.bytes < 1 && !one.denied && one.count < 1);
  });
  std::stable_sort(items.begin(), items.end(),
                   [](const SystemDataItem& a, const SystemDataItem& b) { return a.bytes > b.bytes; });
  return items;
}

QString sizeText(const SystemDataItem& item) {
  if (item.bytes < 1) return u"—"_s;
  //: %1: a size; not everything could be measured
  return item.denied ? Words::tr("at least %1").arg(fmt::bytes(item.bytes)) : fmt::bytes(item.bytes);
}

/// The places of a row that are there.
QString placesText(const SystemDataItem& item) {
  QStringList places;
  for (const QString& path : item.paths)
    if (QFileInfo::exists(path)) places << names::escaped(fmt::shortPath(path));
  return fmt::list(places);
}

QString detailText(const SystemDataItem& item) {
  if (item.bytes < 1 && item.count < 1 && item.denied)
    return isMac() ? Words::tr("Needs Full Disk Access") : Words::tr("No permission to read");
  if (item.detail.isEmpty()) return placesText(item);
  const QString detail = names::escaped(item.detail);
  //: %1: names of folders, with commas
  return item.id == u"hidden" ? Words::tr("Largest: %1").arg(detail) : detail;
}

QList<Cell> row(const SystemDataItem& item, qint64 largest, bool bars) {
  QList<Cell> cells = {{item.title}, {sizeText(item), item.bytes > 0 ? Tone::Strong : Tone::Faint}};
  const double share = largest > 0 ? static_cast<double>(item.bytes) / static_cast<double>(largest) : 0;
  if (bars) cells << Cell{bar(share, kBarCells), item.actionable ? Tone::Good : Tone::Faint};
  return cells << Cell{detailText(item), Tone::Faint};
}

Table table(const QList<SystemDataItem>& items, bool bars) {
  QList<Table::Side> columns = {kLeft, kRight, kLeft};
  if (bars) columns << kLeft;
  Table table(columns);
  qint64 largest = 0;
  for (const SystemDataItem& one : items) largest = std::max(largest, one.bytes);
  const auto add = [&](const QString& head, const QList<SystemDataItem>& some) {
    if (some.isEmpty()) return;
    table.add({{head, Tone::Faint}});
    for (const SystemDataItem& one : some) table.add(row(one, largest, bars));
    table.addRule();
  };
  //: Heading over the rows that the user can do something about
  add(Words::tr("You can reclaim"), half(items, true));
  //: Heading over the rows that the user can do nothing about
  add(isMac() ? Words::tr("Managed by macOS") : Words::tr("Managed by the system"), half(items, false));
  table.add({{Words::tr("Total"), Tone::Strong}, {fmt::bytes(sum(items)), Tone::Strong}});
  return table;
}

QString actNote(QList<SystemDataItem> items) {
  items.removeIf([](const SystemDataItem& one) { return !one.actionable; });
  const qint64 bytes = sum(items);
  //: %1: a size
  return bytes < 1 ? QString() : Words::tr("%1 of it you can act on.").arg(fmt::bytes(bytes));
}

QString deniedNote(const QList<SystemDataItem>& items) {
  QStringList denied;
  for (const SystemDataItem& one : items)
    if (one.denied) denied << one.title;
  return unreadNote(denied);
}

} // namespace

QString systemDataText(const QList<SystemDataItem>& items, qint64 elapsedMs, const Paper& paper) {
  const QString time = Words::tr("Measured in %1. Nothing was changed.").arg(timeText(elapsedMs));
  return tableText(table(items, hasRoomForBars(paper)), paper) + paragraph({deniedNote(items), actNote(items)}, paper) +
         paragraph({toned(time, Tone::Faint, paper.colours)}, paper);
}

} // namespace cli
