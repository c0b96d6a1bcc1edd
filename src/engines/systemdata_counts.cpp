#include "engines/systemdata_counts.h"

#include "core/fs.h"
#include "core/process.h"
#include "engines/systemdata_table.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace systemdata {
namespace {

const QString kSnapshotPrefix = u"com.apple.TimeMachine."_s;

/// One sub-folder for each snapshot.
constexpr const char* kSnapshotFolders[] = {"timeshift/snapshots", ".snapshots"};

} // namespace

int countFolders(const QString& dir) {
  const QList<fs::Entry> entries = fs::list(dir);
  return static_cast<int>(std::count_if(entries.begin(), entries.end(), [](const auto& one) { return one.isDir; }));
}

QStringList localSnapshots(const SystemDataWorld& world) {
  const QString text = process::run(world.tmutil, {u"listlocalsnapshots"_s, u"/"_s}, world.listLimitMs, nullptr,
                                    process::Read::OutputAndErrors);
  QStringList names;
  for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts))
    if (line.startsWith(kSnapshotPrefix)) names << line.trimmed();
  return names;
}

KeptSnapshots keptSnapshots(const SystemDataWorld& world) {
  KeptSnapshots kept;
  for (const char* folder : kSnapshotFolders) {
    const QString path = pathOf(Base::Root, QLatin1String(folder), world);
    kept.count += countFolders(path);
    kept.denied = kept.denied || !fs::isReadable(path);
  }
  return kept;
}

} // namespace systemdata
