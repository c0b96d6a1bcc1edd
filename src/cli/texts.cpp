#include "cli/texts.h"

#include "cli/sheet.h"
#include "cli/terminal.h"
#include "cli/words.h"
#include "core/fmt.h"
#include "core/names.h"
#include "core/platform.h"
#include "engines/categories.h"

#include <QMap>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

constexpr auto kLeft = Table::Side::Left;
constexpr auto kRight = Table::Side::Right;

/// By Safety.
constexpr std::array kSafetyTones = {Tone::Good, Tone::Careful, Tone::Grave};

Tone toneOf(const CategoryResult& one) { return kSafetyTones.at(one.def.safety); }

qint64 sum(const QList<CategoryResult>& all, qint64 CategoryResult::*figure) {
  qint64 total = 0;
  for (const CategoryResult& one : all) total += one.*figure;
  return total;
}

bool isDeleted(const CategoryResult& one, bool toTrash) { return !toTrash || one.def.safety == Permanent; }

// ---- the scan

QList<Cell> scanRow(const CategoryResult& one, qint64 largest, bool bars) {
  const Tone tone = one.bytes > 0 ? Tone::Plain : Tone::Faint;
  QList<Cell> row = {{one.def.title, tone},
                     {fmt::bytes(one.bytes), one.bytes > 0 ? Tone::Strong : Tone::Faint},
                     {fmt::count(one.files), tone},
                     {categories::safetyLabel(one.def.safety), toneOf(one)}};
  const double share = largest > 0 ? static_cast<double>(one.bytes) / static_cast<double>(largest) : 0;
  if (bars) row << Cell{bar(share, kBarCells), toneOf(one)};
  return row << Cell{one.def.locationHint, Tone::Faint};
}

Table scanTable(const QList<CategoryResult>& all, bool bars) {
  QList<Table::Side> columns = {kLeft, kRight, kRight, kLeft};
  QList<Cell> head = {{Words::tr("Category"), Tone::Faint},
                      //: Head of a column
                      {Words::tr("Size"), Tone::Faint},
                      //: Head of a column: how many
                      {Words::tr("Files"), Tone::Faint},
                      //: Head of a column: safe, review or permanent
                      {Words::tr("Rating"), Tone::Faint}};
  if (bars) {
    columns << kLeft;
    head << Cell{};
  }
  Table table(columns << kLeft);
  //: Head of a column: the folder
  table.add(head << Cell{Words::tr("Where"), Tone::Faint});
  qint64 largest = 0;
  for (const CategoryResult& one : all) largest = std::max(largest, one.bytes);
  for (const CategoryResult& one : all) table.add(scanRow(one, largest, bars));
  table.addRule();
  table.add({{Words::tr("Total"), Tone::Strong},
             {fmt::bytes(sum(all, &CategoryResult::bytes)), Tone::Strong},
             {fmt::count(sum(all, &CategoryResult::files)), Tone::Strong}});
  return table;
}

QString deniedNote(const QList<CategoryResult>& all) {
  QStringList denied;
  for (const CategoryResult& one : all)
    if (one.accessDenied) denied << one.def.title;
  return unreadNote(denied);
}

QString safeNote(const QList<CategoryResult>& all) {
  qint64 bytes = 0;
  for (const CategoryResult& one : all)
    if (one.def.safety == Safe) bytes += one.bytes;
  if (bytes < 1) return {};
  //: %1: a size; the command stays as it is
  return Words::tr("%1 of it is safe to clean: tarnwick-cli clean").arg(fmt::bytes(bytes));
}

// ---- the plan

/// Running apps whose data is among what was chosen, with its bytes: it will stay.
QString runningNote(const QList<CategoryResult>& chosen) {
  QMap<QString, qint64> owners;
  for (const CategoryResult& one : chosen)
    for (const CleanItem& item : one.items)
      if (!item.owner.isEmpty()) owners[item.owner] += item.bytes;
  QStringList notes; // a line each
  for (auto owner = owners.cbegin(); owner != owners.cend(); ++owner)
    //: %1: an app; %2: a size
    notes << Words::tr("%1 is running, so %2 of its data will stay.")
                 .arg(names::escaped(owner.key()), fmt::bytes(owner.value()));
  return notes.join(u'\n');
}

QString leftNote(const QList<CategoryResult>& left) {
  if (left.isEmpty()) return {};
  QStringList parts;
  QStringList ids;
  for (const CategoryResult& one : left) {
    //: %1: the title of a category; %2: a size
    parts << Words::tr("%1 (%2)").arg(one.def.title, fmt::bytes(one.bytes));
    ids << one.def.id;
  }
  //: %1: titles with sizes; %2: ids
  return Words::tr("Left alone unless you name it: %1. To clean it: --only %2").arg(fmt::list(parts), ids.join(u','));
}

QString withoutTrashNote(qint64 bytes) {
  if (bytes < 1) return {};
  //: %1: a size; %2: the Trash
  return Words::tr("%1 of it lies on a volume without a %2 and will stay, unless you say --delete.")
      .arg(fmt::bytes(bytes), platform::trashName());
}

Table planTable(const Plan& plan) {
  Table table({kLeft, kRight, kRight, kLeft});
  for (const CategoryResult& one : plan.chosen) {
    const bool deleted = isDeleted(one, plan.toTrash);
    table.add({{one.def.title},
               {fmt::bytes(one.bytes), Tone::Strong},
               {filesText(one.files)},
               //: In a table: what will become of a category; %1: the Trash
               {deleted ? Words::tr("deleted for good") : Words::tr("moved to the %1").arg(platform::trashName()),
                deleted ? Tone::Grave : Tone::Good}});
  }
  table.addRule();
  table.add({{Words::tr("Total"), Tone::Strong},
             {fmt::bytes(sum(plan.chosen, &CategoryResult::bytes)), Tone::Strong},
             {filesText(sum(plan.chosen, &CategoryResult::files)), Tone::Strong}});
  return table;
}

// ---- the report

QString skippedText(const CleanReport& report) {
  if (report.skipped < 1) return {};
  //: A list of files follows; %1: how many
  QString text = Words::tr("Skipped, %1 in all; the log tells why:", nullptr, fmt::plural(report.skipped))
                     .arg(fmt::count(report.skipped));
  for (const QString& path : report.skippedSamples) text += u"\n  "_s + names::escaped(path);
  if (report.skipped > report.skippedSamples.size()) text += u"\n  …"_s;
  return text;
}

QString runningText(const CleanReport& report) {
  if (report.runningApps.isEmpty()) return {};
  //: %1: apps, with commas
  return Words::tr("Left alone, because they are running: %1.").arg(names::escaped(fmt::list(report.runningApps)));
}

QString trashText(const CleanReport& report, bool toTrash) {
  if (!toTrash || report.freedBytes < 1) return {};
  //: %1: the Trash
  return Words::tr("What was moved to the %1 takes its room until you empty it.").arg(platform::trashName());
}

} // namespace

Paper Paper::of(int fd) { return {terminal::width(fd), terminal::isTerminal(fd), terminal::takesColours(fd)}; }

QString scanText(const QList<CategoryResult>& categories, qint64 elapsedMs, const Paper& paper) {
  const bool bars = hasRoomForBars(paper);
  //: %1: a time such as “2.1 s”
  const QString time = Words::tr("Scanned in %1. Nothing was changed.").arg(timeText(elapsedMs));
  return tableText(scanTable(categories, bars), paper) +
         paragraph({deniedNote(categories), safeNote(categories)}, paper) +
         paragraph({toned(time, Tone::Faint, paper.colours)}, paper);
}

QString planText(const Plan& plan, const Paper& paper) {
  if (plan.chosen.isEmpty()) return paragraph({Words::tr("There is nothing to clean."), leftNote(plan.left)}, paper);
  return tableText(planTable(plan), paper) +
         paragraph({runningNote(plan.chosen), withoutTrashNote(plan.bytesWithoutTrash), leftNote(plan.left)}, paper) +
         u'\n';
}

QString planQuestion(const Plan& plan) {
  qint64 deleted = 0;
  qint64 moved = 0;
  for (const CategoryResult& one : plan.chosen) (isDeleted(one, plan.toTrash) ? deleted : moved) += one.bytes;
  //: %1 and %2: sizes; %3: the Trash
  const QString pattern = moved == 0     ? Words::tr("Delete %1 for good?")
                          : deleted == 0 ? Words::tr("Move %2 to the %3?")
                                         : Words::tr("Delete %1 for good and move %2 to the %3?");
  QString question = pattern;
  question.replace(u"%1"_s, fmt::bytes(deleted))
      .replace(u"%2"_s, fmt::bytes(moved))
      .replace(u"%3"_s, platform::trashName());
  //: How a question can be answered; the capital is what Enter alone means. The first letter must be a yes (“y yes”)
  return question + u' ' + Words::tr("[y/N]");
}

QString reportText(const CleanReport& report, bool dryRun, bool toTrash, const Paper& paper) {
  if (dryRun) return report.dryRunLog + paragraph({Words::tr("This was a dry run: nothing was touched.")}, paper);
  const QString head =
      //: %1: a size; %2: “1 file” or “%1 files”, which the forms count
      Words::tr("Freed %1, removed %2.", nullptr, fmt::plural(report.removedFiles))
          .arg(fmt::bytes(report.freedBytes), filesText(report.removedFiles));
  const QString admin =
      report.needsAdmin ? Words::tr("Some files belong to the system and were left alone.") : QString();
  QString text = toned(head, Tone::Strong, paper.colours) + u'\n';
  for (const QString& one :
       {trashText(report, toTrash), skippedText(report), runningText(report), admin,
        toned(Words::tr("Log: %1").arg(names::escaped(report.logPath)), Tone::Faint, paper.colours)})
    if (!one.isEmpty()) text += one + u'\n';
  return text;
}

} // namespace cli
