/// Whether the program starts when the user logs in: the setting, and the system's entry that makes it true.
/// User-interface thread only.
#pragma once

#include <QString>

namespace loginentry {

/// Puts the entry in place or takes it away, and then stores the choice. Where the entry can't be put in place nothing
/// is stored, so that the setting never promises what doesn't happen.
/// @return words for the user; empty when it is done
[[nodiscard]] QString set(bool on);

/// Brings the entry to what the setting says, for the place where the program is now. Once, at the program's start.
/// Does nothing where the setting was never touched, or the settings can't be read.
void keep();

} // namespace loginentry
