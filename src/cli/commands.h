/// The two verbs.
#pragma once

#include "cli/arguments.h"
#include "cli/output.h"
#include "cli/words.h"
#include "engines/Cleaner.h"

namespace cli {

/// Measures, and shows what it found. Changes nothing, the time of the last scan included.
[[nodiscard]] ExitCode scan(const Command& command, Output* out);

/// Scans, shows the plan, asks, and cleans: moves to the Trash or deletes, unless it is a dry run.
[[nodiscard]] ExitCode clean(const Command& command, Output* out, const CleanerWorld& world);

} // namespace cli
