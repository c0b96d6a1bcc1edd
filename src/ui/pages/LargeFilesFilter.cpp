#include "ui/pages/LargeFilesFilter.h"

#include "core/fmt.h"
#include "core/places.h"
#include "core/platform.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace ui {

bool LargeFilesFilter::keeps(const LargeFile& file) const {
  if (segment == Unused && fmt::monthsSince(file.lastUsed) < months) return false;
  if (segment == Downloads && !file.dir.startsWith(downloads, Qt::CaseInsensitive)) return false;
  return needle.isEmpty() || file.name.contains(needle, Qt::CaseInsensitive) ||
         file.dir.contains(needle, Qt::CaseInsensitive);
}

QList<LargeFile> LargeFilesFilter::kept(const QList<LargeFile>& files) const {
  QList<LargeFile> kept;
  for (const LargeFile& file : files)
    if (keeps(file)) kept << file;
  return kept;
}

// On Linux the folder has a name in the user's language, or any that the user gave it.
QString downloadsPrefix() {
  const QString named = platform::host() == platform::Host::Linux ? places::downloads() : QString();
  return QDir::toNativeSeparators(named.isEmpty() ? QDir::homePath() + "/Downloads"_L1 : named);
}

} // namespace ui
