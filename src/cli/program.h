/// The headless program from its arguments to its exit code.
#pragma once

#include "engines/Cleaner.h"

namespace cli {

/// Runs it, once a process. Removes or moves files where the arguments say so.
/// @param world  what a clean takes from the outside; tests bend it
/// @return the exit code
[[nodiscard]] int run(int argc, char** argv, const CleanerWorld& world = {});

} // namespace cli
