/// What System Data counts rather than measures, and the words for it. Used by the measuring and by the actions.
#pragma once

#include "engines/systemdata.h"

#include <QCoreApplication>
#include <QStringList>

namespace systemdata {

/// The context of all texts of System Data.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(SystemData)
};

/// The folders directly in @p dir; a link is none. 0 where it can't be read.
[[nodiscard]] int countFolders(const QString& dir);

/// The names of the local snapshots of macOS, as its tool lists them; empty where that fails. Blocks for as long as the
/// tool takes.
[[nodiscard]] QStringList localSnapshots(const SystemDataWorld& world);

/// The snapshots that tools keep in folders of a Linux system.
struct KeptSnapshots {
  int count = 0;
  bool denied = false; ///< one of the folders may not be read, or not even be looked for
};
[[nodiscard]] KeptSnapshots keptSnapshots(const SystemDataWorld& world);

} // namespace systemdata
