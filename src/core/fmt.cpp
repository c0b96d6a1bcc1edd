#include "core/fmt.h"

#include "core/places.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <cmath>

namespace fmt {

namespace {
enum class Figure { Fixed, Rounded };

/// One line of the table of sizes: the first whose @c from is reached is used.
struct Step {
  qint64 from;
  double divisor;
  Figure figure;
  int decimals;
  const char* unit;
};
constexpr Step kSteps[] = {
    //: A terabyte
    {1'000'000'000'000, 1e12, Figure::Fixed, 1, QT_TRANSLATE_NOOP("fmt", "TB")},
    {100'000'000'000, 1e9, Figure::Fixed, 0, QT_TRANSLATE_NOOP("fmt", "GB")},
    {1'000'000'000, 1e9, Figure::Fixed, 1, QT_TRANSLATE_NOOP("fmt", "GB")},
    {1'000'000, 1e6, Figure::Rounded, 0, QT_TRANSLATE_NOOP("fmt", "MB")},
    {1000, 1e3, Figure::Rounded, 0, QT_TRANSLATE_NOOP("fmt", "KB")},
};

constexpr double kPercent = 100;
constexpr qsizetype kGroup = 3; ///< digits between two separators

QString withUnit(const QString& number, const char* unit) {
  //: A size; %1: a number; %2: a unit such as “GB”
  return QCoreApplication::translate("fmt", "%1 %2").arg(number, QCoreApplication::translate("fmt", unit));
}

QString ago(const char* text, qint64 n) {
  return QCoreApplication::translate("fmt", text, nullptr, static_cast<int>(n));
}
} // namespace

QString bytes(qint64 n) {
  const QLocale locale;
  for (const Step& step : kSteps) {
    if (n < step.from) continue;
    const double value = static_cast<double>(n) / step.divisor;
    const bool fixed = step.figure == Figure::Fixed;
    return withUnit(fixed ? locale.toString(value, 'f', step.decimals)
                          : locale.toString(static_cast<qint64>(std::llround(value))),
                    step.unit);
  }
  return withUnit(locale.toString(n > 0 ? 1 : 0), "KB");
}

// Where numbers of four digits have no separator, as in Spanish, some versions of Qt set only the last one of longer
// ones.
QString count(qint64 n) {
  const QLocale locale;
  QString text = locale.toString(n);
  const QString separator = locale.groupSeparator();
  const qsizetype digits = n < 0 ? locale.negativeSign().size() : 0; // where they begin
  for (qsizetype at = text.indexOf(separator) - kGroup; at > digits; at -= kGroup) text.insert(at, separator);
  return text;
}

QString percent(double share) {
  //: A share; %1: a figure. With a no-break space before the sign where the language has one
  return QCoreApplication::translate("fmt", "%1%").arg(std::lround(share * kPercent));
}

QString list(const QStringList& things) { return things.join(listSeparator()); }

QString listSeparator() {
  //: Stands between the things of a list: names, or a name and what there is to say of it
  return QCoreApplication::translate("fmt", ", ");
}

int monthsSince(const QDateTime& when) { return monthsSince(when, QDate::currentDate()); }

int monthsSince(const QDateTime& when, QDate today) {
  if (!when.isValid()) return 0;
  const QDate then = when.date();
  const int months =
      (today.year() - then.year()) * 12 + today.month() - then.month() - (today.day() < then.day() ? 1 : 0);
  return qMax(0, months);
}

QString age(const QDateTime& when) { return age(when, QDate::currentDate()); }

QString ageWithin(const QDateTime& when) {
  const QString words = age(when);
  return words.left(1).toLower() + words.mid(1);
}

QString age(const QDateTime& when, QDate today) {
  if (!when.isValid()) return {};
  const qint64 days = when.date().daysTo(today);
  //: When something was done or opened last
  if (days < 1) return QCoreApplication::translate("fmt", "Today");
  if (days == 1) return QCoreApplication::translate("fmt", "Yesterday");
  if (days < 7) return ago(QT_TRANSLATE_N_NOOP("fmt", "%n day(s) ago"), days);
  if (days <= 30) return ago(QT_TRANSLATE_N_NOOP("fmt", "%n week(s) ago"), days / 7);
  const int months = monthsSince(when, today);
  if (months < 12) return ago(QT_TRANSLATE_N_NOOP("fmt", "%n month(s) ago"), qMax(1, months));
  return ago(QT_TRANSLATE_N_NOOP("fmt", "%n year(s) ago"), months / 12);
}

QString clock(qint64 seconds) {
  const qint64 whole = qMax<qint64>(0, seconds);
  return QStringLiteral("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QLatin1Char('0'));
}

QString shortPath(const QString& path) {
  const QString native = QDir::toNativeSeparators(path);
  const QString home = QDir::toNativeSeparators(places::home());
  if (home.isEmpty() || !native.startsWith(home, Qt::CaseInsensitive)) return native;
  return QLatin1Char('~') + native.mid(home.size());
}

} // namespace fmt
