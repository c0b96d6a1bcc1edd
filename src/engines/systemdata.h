/// The catalogue of what makes up the system's own, unexplained share of the disk, and what can be done about each row.
#pragma once

#include "app/records.h"
#include "core/appguard.h"

#include <functional>

/// What the catalogue, its measuring and its actions take from the outside world, for tests to bend.
struct SystemDataWorld {
  QString root = QStringLiteral("/"); ///< stands before every place that isn't told by the environment or by the system
  QString tmutil = QStringLiteral("/usr/bin/tmutil");
  QString osascript = QStringLiteral("/usr/bin/osascript");
  QString xcrun = QStringLiteral("/usr/bin/xcrun");
  QString open = QStringLiteral("/usr/bin/open");
  int listLimitMs = 20'000;       ///< for listing the local snapshots
  int removalLimitMs = 600'000;   ///< for removing them, with the time that the user takes for the password
  int simulatorLimitMs = 300'000; ///< for deleting simulators
  appguard::Sources sources;      ///< of open files, and of the list of swap files
  std::function<void(const QString&)> openFolder; ///< on the Linux host; empty: the file manager
};

namespace systemdata {

/// The rows of the host in force, in their order, with nothing measured yet. Reads the disk: some rows depend on what
/// lies there now.
[[nodiscard]] QList<SystemDataItem> definitions(const SystemDataWorld& world = {});

/// Whether the host in force has such a catalogue; without one the program shows nothing of it.
[[nodiscard]] bool supported();

/// Carries out the action of @p item, without asking. Blocks until it is through, up to ten minutes; any thread, one
/// action at a time. But on the Linux host RevealInFinder returns at once, and needs an event loop on the application's
/// thread.
/// @param ok          receives whether it succeeded
/// @param exclusions  rules of what never moves to the Trash
/// @return what there is to say to the user, translated; may be empty
[[nodiscard]] QString perform(const SystemDataItem& item, bool* ok, const QList<QString>& exclusions = {},
                              const SystemDataWorld& world = {});

} // namespace systemdata
