/// The headless program from its arguments to its exit code.
#pragma once

#include "cli/commands.h"

namespace cli {

/// Runs it, once a process. Removes or moves files where the arguments say so.
/// @param world  what it takes from the outside; tests bend it
/// @return the exit code
[[nodiscard]] int run(int argc, char** argv, const World& world = {});

} // namespace cli
