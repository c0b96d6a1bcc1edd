/// The settings of the program, typed, each with its default in one place. User-interface thread only.
#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QSettings>
#include <QVariant>

class AppSettings : public QObject {
  Q_OBJECT

 public:
  enum Schedule { Off = 0, Weekly = 1, Monthly = 2 };
  enum CloseAction { Ask = 0, KeepInTray = 1, Quit = 2 };
  enum ThemeMode { System = 0, Light = 1, Dark = 2 };

  /// The one object, made on first use; the application's names must be set before.
  static AppSettings& instance();

  [[nodiscard]] QVariant get(const char* key, const QVariant& def) const;
  /// Stores and tells, unless the store already holds the value (compared as the value's type).
  void put(const char* key, const QVariant& value);

  [[nodiscard]] bool moveToTrash() const;
  void setMoveToTrash(bool on);
  [[nodiscard]] QStringList exclusions() const;
  void setExclusions(const QStringList& rules);
  [[nodiscard]] Schedule schedule() const;
  void setSchedule(Schedule schedule);
  [[nodiscard]] bool lowSpaceAlerts() const;
  void setLowSpaceAlerts(bool on);
  [[nodiscard]] bool startAtLogin() const;
  void setStartAtLogin(bool on);
  [[nodiscard]] CloseAction closeAction() const;
  void setCloseAction(CloseAction action);
  [[nodiscard]] bool showInTray() const;
  void setShowInTray(bool on);
  [[nodiscard]] ThemeMode themeMode() const;
  void setThemeMode(ThemeMode mode);
  /// Catalogue code; empty follows the system.
  [[nodiscard]] QString language() const;
  void setLanguage(const QString& code);
  /// Smallest size that the Space Map lists, in decimal megabytes.
  [[nodiscard]] int largeFileMB() const;
  void setLargeFileMB(int megabytes);
  [[nodiscard]] int oldMonths() const;
  void setOldMonths(int months);
  [[nodiscard]] QDateTime lastScan() const;
  void setLastScan(const QDateTime& when);

  /// Bytes freed in each of the last @p months, oldest first; the last is the current month.
  [[nodiscard]] QList<qint64> freedHistory(int months) const;
  /// Adds to the current month; 0 and less change nothing.
  void addFreed(qint64 bytes);
  /// Whether a scan should start by itself now.
  [[nodiscard]] bool scheduledScanDue() const;

 signals:
  /// Some setting took a new value.
  void changed();

 private:
  AppSettings() = default;
  QSettings m_store;
};
