// What the rows' actions do, and what they say afterwards.
#include "core/fmt.h"
#include "core/fs.h"
#include "core/places.h"
#include "core/platform.h"
#include "core/process.h"
#include "engines/Disposal.h"
#include "engines/systemdata.h"
#include "engines/systemdata_counts.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace systemdata {
namespace {

/// More than any disk holds, at the highest urgency: the system frees whatever it can.
const QString kThinSnapshots = u"/usr/bin/tmutil thinlocalsnapshots / 999999999999999 4"_s;
const QString kAsAdministrator = u"do shell script \"%1\" with administrator privileges"_s;
const QString kXcode = u"com.apple.dt.Xcode"_s;

/// How an action ended, and what there is to say.
struct Outcome {
  bool ok = false;
  QString text;
};

/// Hands over to another program, which goes on by itself.
bool handOver(const QString& program, const QStringList& arguments) {
  return QProcess::startDetached(program, arguments, QString());
}

// ---- reveal

/// The folder of a row that there is to show; of the hidden ones the largest, which the detail names first.
QString targetOf(const SystemDataItem& item) {
  if (item.id == u"hidden" && !item.detail.isEmpty())
    return fs::join(places::home(), item.detail.section(fmt::listSeparator(), 0, 0));
  if (platform::host() == platform::Host::Mac) return item.paths.value(0);
  const auto there = std::find_if(item.paths.begin(), item.paths.end(), qOverload<const QString&>(&QFileInfo::exists));
  return there == item.paths.end() ? item.paths.value(0) : *there;
}

/// Whether something was asked to show it.
bool show(const QString& target, const SystemDataWorld& world) {
  if (platform::host() == platform::Host::Mac) return handOver(world.open, {target});
  if (!QFileInfo::exists(target)) return false;
  world.openFolder ? world.openFolder(target) : platform::openFolder(target);
  return true;
}

Outcome reveal(const SystemDataItem& item, const SystemDataWorld& world) {
  const QString target = targetOf(item);
  if (show(target, world)) return {true, {}};
  //: %1: a path
  return {false, Words::tr("Couldn't open %1").arg(target)};
}

// ---- the Trash

struct Moves {
  int moved = 0;
  int failed = 0;
};

/// The folders themselves stay.
Moves moveContents(const QList<QString>& folders, const QList<QString>& exclusions, const SystemDataWorld& world) {
  Moves moves;
  Disposal disposal(exclusions, world.sources);
  for (const QString& folder : folders)
    for (const fs::Entry& entry : fs::list(folder)) {
      const FileId id{entry.device, entry.inode}; // should the folder be swapped for another meanwhile
      const bool moved =
          entry.reachable && disposal.move(fs::join(folder, entry.name), id).result == Disposal::Result::Moved;
      ++(moved ? moves.moved : moves.failed);
    }
  return moves;
}

Outcome moveToTrash(const SystemDataItem& item, const QList<QString>& exclusions, const SystemDataWorld& world) {
  const Moves moves = moveContents(item.paths, exclusions, world);
  const int n = fmt::plural(moves.moved);
  //: How many items were moved: %1 of “Moved %1 to the Trash”
  const QString count = moves.moved == 1 ? Words::tr("1 item") : Words::tr("%1 items", nullptr, n).arg(moves.moved);
  if (moves.failed > 0)
    //: %1: “1 item” or “%1 items”, which the forms count; %2: how many others
    return {false, Words::tr("Moved %1 to the Trash, %2 couldn't be moved", nullptr, n).arg(count).arg(moves.failed)};
  if (moves.moved == 0) return {true, Words::tr("Nothing to move")};
  //: %1: “1 item” or “%1 items”, which the forms count
  return {true, Words::tr("Moved %1 to the Trash", nullptr, n).arg(count)};
}

// ---- snapshots

/// @p text within the quotes of a string of AppleScript.
QString quoted(QString text) { return text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s); }

/// The system asks for the administrator's password in a dialog of its own.
Outcome removeSnapshots(const SystemDataWorld& world) {
  const qsizetype before = localSnapshots(world).size();
  if (before == 0) return {true, Words::tr("There are no local snapshots to remove")};
  int code = -1;
  process::run(world.osascript, {u"-e"_s, kAsAdministrator.arg(quoted(kThinSnapshots))}, world.removalLimitMs, &code,
               process::Read::OutputAndErrors);
  const qsizetype after = localSnapshots(world).size();
  if (code != 0) return {false, Words::tr("Snapshots were not removed")};
  const qsizetype gone = std::max<qsizetype>(before - after, 0); // new ones may have come
  //: The forms count %2, how many there were
  return {true, Words::tr("Removed %1 of %2 snapshots", nullptr, fmt::plural(before)).arg(gone).arg(before)};
}

// ---- simulators

Outcome deleteUnavailable(const SystemDataItem& item, const SystemDataWorld& world) {
  const QString folder = item.paths.value(0);
  const int before = countFolders(folder);
  int code = -1;
  const QString output = process::run(world.xcrun, {u"simctl"_s, u"delete"_s, u"unavailable"_s}, world.simulatorLimitMs,
                                      &code, process::Read::OutputAndErrors);
  //: %1: what the tool said, in English
  if (code != 0) return {false, Words::tr("Simulator cleanup failed: %1").arg(output.trimmed().section(u'\n', -1, -1))};
  const int gone = before - countFolders(folder);
  if (gone < 1) return {true, Words::tr("No unavailable simulator devices — nothing to delete")};
  if (gone == 1) return {true, Words::tr("Deleted 1 unavailable simulator device")};
  return {true, Words::tr("Deleted %1 unavailable simulator devices", nullptr, gone).arg(gone)};
}

// ---- the developer tools

/// The program that opens may start and only then find nothing; that isn't told.
Outcome openXcode(const SystemDataWorld& world) {
  if (handOver(world.open, {u"-b"_s, kXcode})) return {true, {}};
  return {false, Words::tr("Xcode isn't installed")};
}

Outcome outcomeOf(const SystemDataItem& item, const QList<QString>& exclusions, const SystemDataWorld& world) {
  switch (item.action) {
  case SystemDataItem::RevealInFinder:
    return reveal(item, world);
  case SystemDataItem::MoveToTrash:
    return moveToTrash(item, exclusions, world);
  case SystemDataItem::RemoveSnapshots:
    return removeSnapshots(world);
  case SystemDataItem::DeleteUnavailable:
    return deleteUnavailable(item, world);
  case SystemDataItem::CleanInCleanup:
    return {true, {}}; // the page goes there
  case SystemDataItem::OpenXcode:
    return openXcode(world);
  case SystemDataItem::None:
    break;
  }
  return {};
}

} // namespace

QString perform(const SystemDataItem& item, bool* ok, const QList<QString>& exclusions, const SystemDataWorld& world) {
  *ok = false;
  const Outcome outcome = outcomeOf(item, exclusions, world);
  *ok = outcome.ok;
  return outcome.text;
}

} // namespace systemdata
