/// What the terminal can do, and how much room a text takes on it.
#pragma once

#include <QString>

namespace cli::terminal {

constexpr int kInput = 0;  ///< standard input
constexpr int kOutput = 1; ///< standard output
constexpr int kErrors = 2; ///< standard error

[[nodiscard]] bool isTerminal(int fd);
/// Columns of the terminal at @p fd; 80 where it doesn't tell.
[[nodiscard]] int width(int fd);
/// Whether escape sequences mean something there: a terminal that isn't "dumb".
[[nodiscard]] bool takesEscapes(int fd);
/// Whether to use colours there: takesEscapes(), and the user has not set NO_COLOR.
[[nodiscard]] bool takesColours(int fd);

/// Columns that @p text takes: two for a wide character of East Asia, none for a mark on the one before.
[[nodiscard]] int columns(const QString& text);
/// @p text in at most @p most columns, with "…" for what its middle had to lose.
[[nodiscard]] QString elided(const QString& text, int most);
/// @p text with line breaks instead of blanks, and where a script writes without blanks also between its characters, so
/// that no line takes more than @p most columns, where its words let it. Its own line breaks stay.
/// @param indent  blanks before each further line
/// @param used    columns that are taken already on the first line
[[nodiscard]] QString wrapped(const QString& text, int most, int indent = 0, int used = 0);

} // namespace cli::terminal
