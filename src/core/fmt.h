/// Numbers, dates and paths as the user reads them, in the language in force. Sizes are decimal. Any thread.
#pragma once

#include <QDateTime>
#include <QString>

namespace fmt {

/// Bytes in a kilobyte.
[[nodiscard]] constexpr qint64 unit() { return 1000; }
/// A size, never smaller than "1 KB" but for 0 and less, which is "0 KB".
[[nodiscard]] QString bytes(qint64 bytes);
/// A count with group separators.
[[nodiscard]] QString count(qint64 n);
/// Whole calendar months from @p when to today; 0 for an invalid or future date.
[[nodiscard]] int monthsSince(const QDateTime& when);
/// How long ago, in words; empty for an invalid date.
[[nodiscard]] QString age(const QDateTime& when);
/// Minutes and seconds, "62:05"; a negative value counts as 0.
[[nodiscard]] QString clock(qint64 seconds);
/// @p path in native separators with the home folder at its start as "~".
[[nodiscard]] QString shortPath(const QString& path);

}  // namespace fmt
