/// The settings of the program, typed, each with its default in one place. User-interface thread only.
#pragma once

#include "app/settingsfile.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QSettings>
#include <QVariant>

#include <optional>

/// A store that is damaged, or has lost what it held, never weakens what protects the user's files. It is told apart
/// from a sound one by its text and by a second file beside it, in which the program remembers the "Never touch these"
/// rules. From then on nothing is written to either of them until the user has looked at the rules: what is set
/// meanwhile holds in this process alone.
class AppSettings : public QObject {
  Q_OBJECT

 public:
  enum Schedule { Off = 0, Weekly = 1, Monthly = 2 };
  enum CloseAction { Ask = 0, KeepInTray = 1, Quit = 2 };
  enum ThemeMode { System = 0, Light = 1, Dark = 2 };

  /// The one object, made on first use; the application's names must be set before.
  static AppSettings& instance();

  /// What the store is worth.
  enum class Store {
    Sound,      ///< the getters give what the user chose; so is one that never held anything
    Unreadable, ///< it can't be opened, isn't in the store's form, or holds rules that are no list
    Lost,       ///< it is in order, and has lost its keys, or rules that the program remembers
  };
  /// Looks at the store now, and takes in what others have written to it. Reads the disk. Tells by changed() if it is
  /// worth something else than before.
  Store look();
  /// Whether look() finds it sound.
  [[nodiscard]] bool isReadable() { return look() == Store::Sound; }
  /// What the last look() found.
  [[nodiscard]] Store lastLook() const { return m_worth; }
  /// The user has looked at what exclusions() gives, and it is right. Keeps what is left of a store that isn't sound
  /// beside it, under a name that ends in ".damaged", and writes a new one: these rules, what could still be read, and
  /// what was set meanwhile.
  /// @return false if that can't be written; nothing is lost then
  bool acceptExclusions();
  /// The store's file, and the one in which the rules are remembered.
  [[nodiscard]] QString path() const;
  [[nodiscard]] QString memoryPath() const;

  /// Whether a value was ever stored under this key.
  [[nodiscard]] bool holds(const char* key) const;
  /// What the store holds, or @p def.
  [[nodiscard]] QVariant get(const char* key, const QVariant& def) const;
  /// Stores at once and tells, unless the store already holds the value (compared as the value's type, since a store of
  /// text gives back text). Writing a key's default while the key is absent does store it.
  void put(const char* key, const QVariant& value);

  // Each getter gives the default where the store holds what can't be its value: a word for a number, an unknown
  // choice, a negative size.

  /// Whether a clean moves to the Trash rather than deletes.
  [[nodiscard]] bool moveToTrash() const;
  void setMoveToTrash(bool on);
  /// The "Never touch these" rules. Where the store isn't sound, with those that the program remembers.
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
  /// Some setting took a new value, or the store is worth something else.
  void changed();

 private:
  AppSettings();
  [[nodiscard]] Store judge();
  [[nodiscard]] bool isPropertyList() const;
  [[nodiscard]] bool fileIsWhole(const QString& path) const;
  [[nodiscard]] bool fallbacksAreWhole() const;
  [[nodiscard]] bool rulesAreAList() const;
  [[nodiscard]] bool hasLost() const;
  [[nodiscard]] QStringList rememberedRules() const;
  [[nodiscard]] std::optional<QVariant> stored(const char* key) const;
  void store(const QString& name, const QVariant& value);
  void storeHeld();
  void forgetAllBut(const QStringList& rules);
  void remember();
  bool write(const settingsfile::Memory& memory);
  [[nodiscard]] QVariantMap ownValues() const;

  mutable QSettings m_store;    ///< holds nothing that isn't written, or couldn't be
  Store m_worth = Store::Sound; ///< of the last look
  /// What the second file says, if there is one; nothing at all where it is damaged.
  std::optional<settingsfile::Memory> m_memory;
  QVariantMap m_held; ///< set while the store wasn't sound
};
