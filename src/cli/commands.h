/// The verbs.
#pragma once

#include "cli/arguments.h"
#include "cli/output.h"
#include "cli/words.h"
#include "engines/Cleaner.h"
#include "engines/systemdata.h"

namespace cli {

/// What the program takes from the outside world.
struct World {
  CleanerWorld cleaner;
  SystemDataWorld systemData;
};

/// Measures, and shows what it found. Changes nothing, the time of the last scan included.
[[nodiscard]] ExitCode scan(const Command& command, Output* out);

/// Scans, shows the plan, asks, and cleans: moves to the Trash or deletes, unless it is a dry run.
[[nodiscard]] ExitCode clean(const Command& command, Output* out, const World& world);

/// Searches the home folder for large files, and lists them. Changes nothing.
[[nodiscard]] ExitCode large(const Command& command, Output* out);

/// Measures System Data, and shows what there is and what can be done about it. Changes nothing.
[[nodiscard]] ExitCode systemData(const Command& command, Output* out, const World& world);

} // namespace cli
