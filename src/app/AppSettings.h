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

  /// Whether what the getters give is what the user chose, the "Never touch these" rules above all. False where the
  /// store's file is there but can't be opened, isn't in the store's form, or holds rules that are no list. A store
  /// that isn't there is readable. Reads the disk.
  [[nodiscard]] bool isReadable() const;
  /// What the store holds, or @p def.
  [[nodiscard]] QVariant get(const char* key, const QVariant& def) const;
  /// Stores and tells, unless the store already holds the value (compared as the value's type, since a store of text
  /// gives back text). Writing a key's default while the key is absent does store it.
  void put(const char* key, const QVariant& value);

  // Each getter gives the default where the store holds what can't be its value: a word for a number, an unknown
  // choice, a negative size.

  /// Whether a clean moves to the Trash rather than deletes.
  [[nodiscard]] bool moveToTrash() const;
  void setMoveToTrash(bool on);
  /// The "Never touch these" rules.
  [[nodiscard]] QStringList exclusions() const;
  void setExclusions(const QStringList& rules);
  /// How often a scan starts by itself when the program starts.
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
  /// Age in months from which a file counts as old.
  [[nodiscard]] int oldMonths() const;
  void setOldMonths(int months);
  /// End of the last complete scan; invalid if there was none.
  [[nodiscard]] QDateTime lastScan() const;
  void setLastScan(const QDateTime& when);

  /// Bytes freed in each of the last @p months, oldest first; the last is the month of @p today, a local date.
  [[nodiscard]] QList<qint64> freedHistory(int months, const QDate& today = QDate::currentDate()) const;
  /// Adds to the month of @p today, also to what another process has added meanwhile; 0 and less change nothing.
  void addFreed(qint64 bytes, const QDate& today = QDate::currentDate());
  /// Whether a scan should start by itself at @p now. Never for a user who has not scanned yet.
  [[nodiscard]] bool scheduledScanDue(const QDateTime& now = QDateTime::currentDateTime()) const;

 signals:
  /// Some setting took a new value.
  void changed();

 private:
  AppSettings() = default;
  QSettings m_store;
  const bool m_openedWell = m_store.status() == QSettings::NoError; // so far it has only read
};
