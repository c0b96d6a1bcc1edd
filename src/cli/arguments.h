/// What the user asks of the headless program.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace cli {

enum class Verb { Scan, Clean, Large, System };

/// A command that makes sense.
struct Command {
  Verb verb = Verb::Scan;
  QStringList only;                ///< category ids, each once; empty means all, or for a clean the recommended ones
  QStringList exclude;             ///< rules for this run
  std::optional<bool> moveToTrash; ///< empty: as the settings say
  std::optional<int> minMegabytes; ///< of a large file, decimal; empty: as the settings say
  bool json = false;
  bool dryRun = false;
  bool yes = false;
};

/// What became of the arguments.
struct Parsed {
  enum class Outcome {
    Run,   ///< the command
    Show,  ///< the text, on standard output: help or version
    Usage, ///< the text, on standard error: there was no verb at all
    Error, ///< the text, on standard error behind the program's name: why nothing is done
  };
  Outcome outcome = Outcome::Error;
  QString text;
  Command command;
};

/// @param arguments  with the program's name first
/// @param categoryIds  the ids that --only takes
[[nodiscard]] Parsed parse(const QStringList& arguments, const QStringList& categoryIds);

} // namespace cli
