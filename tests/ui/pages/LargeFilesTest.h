/// What the tests of the Space Map share: files as a search finds them.
#pragma once

#include "app/records.h"
#include "core/fmt.h"

#include <QDir>

namespace largetest {

inline constexpr qint64 kMb = 1'000'000;

/// A file in @p dir, last used today.
inline LargeFile file(const QString& name, qint64 megabytes, const QString& kind = QStringLiteral("Video"),
                      const QString& dir = QDir::homePath() + QStringLiteral("/Films")) {
  LargeFile made;
  made.name = name;
  made.dir = dir;
  made.path = dir + u'/' + name;
  made.kind = kind;
  made.size = megabytes * kMb;
  made.lastUsed = QDateTime::currentDateTime();
  return made;
}

/// The same, last used this many whole months ago, to the day.
inline LargeFile aged(LargeFile file, int months) {
  file.lastUsed = QDateTime::currentDateTime().addMonths(-months);
  return file;
}

/// The same, used a day too late for that.
inline LargeFile justYounger(LargeFile file, int months) {
  file.lastUsed = QDateTime::currentDateTime().addMonths(-months).addDays(1);
  return file;
}

inline QStringList namesOf(const QList<LargeFile>& files) {
  QStringList names;
  for (const LargeFile& one : files) names << one.name;
  return names;
}

} // namespace largetest
