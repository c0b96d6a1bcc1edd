/// Numbers, dates and paths as the user reads them, in the language in force. Sizes are decimal. Any thread.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <limits>

namespace fmt {

/// Bytes in a kilobyte.
[[nodiscard]] constexpr qint64 unit() { return 1000; }
/// A size, never smaller than "1 KB" but for 0 and less, which is "0 KB". One decimal from a terabyte on and from one
/// to a hundred gigabytes, else whole numbers. The unit follows from the exact count and not from the rounded figure,
/// so 999,999,999 is "1,000 MB".
[[nodiscard]] QString bytes(qint64 bytes);
/// A count with group separators.
[[nodiscard]] QString count(qint64 n);
/// A share of a whole, 0.62 say, in whole percent: "62%". Some languages have a blank before the sign.
[[nodiscard]] QString percent(double share);
/// Things one behind the other, with what the language sets between them: "Slack, Zoom". Names, or a name and what
/// there is to say of it; not ids, which are typed with commas.
[[nodiscard]] QString list(const QStringList& things);
/// What stands between two things of a list.
[[nodiscard]] QString listSeparator();
/// @p n as the number that a translated text chooses its plural form by, where count() shows it: one that fits, with
/// the same form in every language, which goes by the last two digits at most and by whether it is 0 or 1.
[[nodiscard]] constexpr int plural(qint64 n) {
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kRound = 1'000'000'000;
  return n <= kMost ? static_cast<int>(n) : kRound + static_cast<int>(n % 1'000'000);
}
/// Whole calendar months from @p when to today; 0 for an invalid or future date. A month is whole on the same day of
/// the month: from January 31 to February 28 there are none.
[[nodiscard]] int monthsSince(const QDateTime& when);
/// How long ago, in words: "Today" (future dates too), "Yesterday", then days, weeks, months, years; empty for an
/// invalid date.
[[nodiscard]] QString age(const QDateTime& when);
/// The same within a sentence: its first letter, and no other, is a small one ("today", "vor 3 Tagen").
[[nodiscard]] QString ageWithin(const QDateTime& when);
/// Both as seen on the day @p today, which the above take from the clock.
[[nodiscard]] int monthsSince(const QDateTime& when, QDate today);
[[nodiscard]] QString age(const QDateTime& when, QDate today);
/// Minutes and seconds, "62:05"; a negative value counts as 0.
[[nodiscard]] QString clock(qint64 seconds);
/// @p path in native separators with the home folder at its start as "~". Goes by the text alone, in any case of
/// letters and without asking for a separator: below a home of "/home/me" the path "/home/mebackup/x" is "~backup/x".
[[nodiscard]] QString shortPath(const QString& path);

} // namespace fmt
