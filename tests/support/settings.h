/// What tests of the settings do to the store behind the program's back.
#pragma once

#include "app/AppSettings.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace settingsstore {

/// Empties it as if the program had never run.
inline void forget() {
  AppSettings& settings = AppSettings::instance();
  for (int i = 0; i < 2; ++i) {     // what the settings held back while it was damaged is stored in between
    QFile::remove(settings.path()); // which is where it was first, wherever home is now
    QFile::remove(settings.memoryPath());
    settings.look();
  }
}

/// Makes new objects for the settings read the store that the program has been using, where a further home has changed
/// that.
inline void stayWithTheFirst() {
  const QString folder = QFileInfo(QFileInfo(AppSettings::instance().path()).path()).path();
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
}

/// Sets every setting but what was freed, each to another value than its default.
inline void setAll(const QDateTime& lastScan) {
  AppSettings& settings = AppSettings::instance();
  settings.setMoveToTrash(false);
  settings.setExclusions({QStringLiteral("~/Keep, this"), QStringLiteral("*.iso")});
  settings.setSchedule(AppSettings::Monthly);
  settings.setLowSpaceAlerts(false);
  settings.setStartAtLogin(true);
  settings.setCloseAction(AppSettings::Quit);
  settings.setShowInTray(false);
  settings.setThemeMode(AppSettings::Dark);
  settings.setLanguage(QStringLiteral("pt_BR"));
  settings.setLargeFileMB(100);
  settings.setOldMonths(24);
  settings.setLastScan(lastScan);
}

inline QByteArray bytes(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Puts these bytes in the place of a file's.
inline void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write %s", qPrintable(path));
  file.write(bytes);
}

} // namespace settingsstore
