/// The catalogue of what makes up the system's own, unexplained share of the disk, and what can be done about each row.
#pragma once

#include "app/records.h"

namespace systemdata {

/// The rows of the host in force, in their order, with nothing measured yet. Reads the disk: some rows depend on what
/// lies there now.
[[nodiscard]] QList<SystemDataItem> definitions();

/// Whether the host in force has such a catalogue; without one the program shows nothing of it.
[[nodiscard]] bool supported();

/// Carries out the action of @p item, without asking. Blocks until it is through, up to ten minutes; any thread, one
/// action at a time.
/// @param ok  receives whether it succeeded
/// @return what there is to say to the user, translated; may be empty
[[nodiscard]] QString perform(const SystemDataItem& item, bool* ok);

} // namespace systemdata
