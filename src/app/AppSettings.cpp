#include "app/AppSettings.h"

#include "core/fs.h"

#include <QFile>
#include <QRegularExpression>
#include <QtNumeric>

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Keys and defaults, each in one place.
template <typename T>
struct Key {
  const char* name;
  T def;
  T min{};
  T max{};
};

constexpr Key<bool> kMoveToTrash{"clean/moveToTrash", true};
constexpr Key<bool> kLowSpaceAlerts{"auto/lowSpaceAlerts", true};
constexpr Key<bool> kStartAtLogin{"auto/startAtLogin", false};
constexpr Key<bool> kShowInTray{"ui/showInTray", true};
constexpr Key<int> kSchedule{"auto/schedule", AppSettings::Weekly, AppSettings::Off, AppSettings::Monthly};
constexpr Key<int> kCloseAction{"ui/closeAction", AppSettings::Ask, AppSettings::Ask, AppSettings::Quit};
constexpr Key<int> kTheme{"ui/theme", AppSettings::System, AppSettings::System, AppSettings::Dark};
constexpr Key<int> kThresholdMB{"large/thresholdMB", 500, 0, std::numeric_limits<int>::max()};
constexpr Key<int> kOldMonths{"large/oldMonths", 6, 0, std::numeric_limits<int>::max()};
constexpr const char* kExclusions = "clean/exclusions";
constexpr const char* kLanguage = "ui/language";
constexpr const char* kLastScan = "history/lastScan";
constexpr const char* kFreed = "history/freed";

constexpr qint64 kWeeklyDays = 7;
constexpr qint64 kMonthlyDays = 30;

/// QVariant takes any text but "", "0" and "false" for true; a setting that someone mistyped is no yes.
std::optional<QVariant> asBool(const QVariant& stored) {
  const QString word = stored.toString().toLower();
  if (word == "true"_L1 || word == "1"_L1) return QVariant(true);
  if (word == "false"_L1 || word == "0"_L1) return QVariant(false);
  return std::nullopt;
}

/// @p stored as a value of @p type; none where it can't be one.
std::optional<QVariant> converted(QVariant stored, QMetaType type) {
  if (!stored.isValid()) { // how a store of text gives back an empty list, and whatever it can't make out
    if (type == QMetaType::fromType<QStringList>()) return QVariant(type);
    return std::nullopt;
  }
  if (stored.metaType() == type) return stored;
  if (type == QMetaType::fromType<bool>()) return asBool(stored);
  if (stored.convert(type)) return stored;
  return std::nullopt;
}

template <typename T>
T read(const QSettings& store, const char* key, const T& def) {
  const QString name = QLatin1String(key);
  if (!store.contains(name)) return def;
  const std::optional<QVariant> value = converted(store.value(name), QMetaType::fromType<T>());
  return value ? value->value<T>() : def;
}

bool read(const QSettings& store, const Key<bool>& key) { return read(store, key.name, key.def); }

int read(const QSettings& store, const Key<int>& key) {
  const int value = read(store, key.name, key.def);
  return value >= key.min && value <= key.max ? value : key.def;
}

/// Whether the store's file holds rules that are no text at all. Read back they are as invalid as an empty list is.
bool holdsBinaryRules(const QByteArray& text) {
  static const QRegularExpression line(u"^\\s*exclusions\\s*=\\s*\"?@Variant\\("_s,
                                       QRegularExpression::MultilineOption);
  return line.match(QString::fromLatin1(text)).hasMatch();
}

QString monthKey(const QDate& date) { return date.toString(u"yyyy-MM"); }

} // namespace

AppSettings& AppSettings::instance() {
  static AppSettings settings;
  return settings;
}

// Of the store's errors only the one about its form counts: it also remembers that it couldn't write, and what can't be
// written can still be read.
bool AppSettings::isReadable() const {
  if (!m_openedWell || m_store.status() == QSettings::FormatError) return false;
  QFile file(m_store.fileName());
  if (fs::exists(file.fileName()) && !file.open(QIODevice::ReadOnly)) return false;
  const QString rules = QLatin1String(kExclusions);
  if (!m_store.contains(rules)) return true;
  const QVariant stored = m_store.value(rules);
  if (!stored.isValid()) return !holdsBinaryRules(file.readAll());
  return converted(stored, QMetaType::fromType<QStringList>()).has_value();
}

QVariant AppSettings::get(const char* key, const QVariant& def) const { return m_store.value(QLatin1String(key), def); }

void AppSettings::put(const char* key, const QVariant& value) {
  const QString name = QLatin1String(key);
  if (m_store.contains(name) && converted(m_store.value(name), value.metaType()) == value) return;
  m_store.setValue(name, value);
  emit changed();
}

bool AppSettings::moveToTrash() const { return read(m_store, kMoveToTrash); }
void AppSettings::setMoveToTrash(bool on) { put(kMoveToTrash.name, on); }

QStringList AppSettings::exclusions() const { return read(m_store, kExclusions, QStringList{u"**/.git"_s}); }
void AppSettings::setExclusions(const QStringList& rules) { put(kExclusions, rules); }

AppSettings::Schedule AppSettings::schedule() const { return static_cast<Schedule>(read(m_store, kSchedule)); }
void AppSettings::setSchedule(Schedule schedule) { put(kSchedule.name, static_cast<int>(schedule)); }

bool AppSettings::lowSpaceAlerts() const { return read(m_store, kLowSpaceAlerts); }
void AppSettings::setLowSpaceAlerts(bool on) { put(kLowSpaceAlerts.name, on); }

bool AppSettings::startAtLogin() const { return read(m_store, kStartAtLogin); }
void AppSettings::setStartAtLogin(bool on) { put(kStartAtLogin.name, on); }

AppSettings::CloseAction AppSettings::closeAction() const {
  return static_cast<CloseAction>(read(m_store, kCloseAction));
}
void AppSettings::setCloseAction(CloseAction action) { put(kCloseAction.name, static_cast<int>(action)); }

bool AppSettings::showInTray() const { return read(m_store, kShowInTray); }
void AppSettings::setShowInTray(bool on) { put(kShowInTray.name, on); }

AppSettings::ThemeMode AppSettings::themeMode() const { return static_cast<ThemeMode>(read(m_store, kTheme)); }
void AppSettings::setThemeMode(ThemeMode mode) { put(kTheme.name, static_cast<int>(mode)); }

QString AppSettings::language() const { return read(m_store, kLanguage, QString()); }
void AppSettings::setLanguage(const QString& code) { put(kLanguage, code); }

int AppSettings::largeFileMB() const { return read(m_store, kThresholdMB); }
void AppSettings::setLargeFileMB(int megabytes) { put(kThresholdMB.name, megabytes); }

int AppSettings::oldMonths() const { return read(m_store, kOldMonths); }
void AppSettings::setOldMonths(int months) { put(kOldMonths.name, months); }

QDateTime AppSettings::lastScan() const { return read(m_store, kLastScan, QDateTime()); }
void AppSettings::setLastScan(const QDateTime& when) { put(kLastScan, when); }

QList<qint64> AppSettings::freedHistory(int months, const QDate& today) const {
  const QVariantMap freed = read(m_store, kFreed, QVariantMap());
  QList<qint64> history;
  for (int back = months; back >= 1; --back)
    history << qMax<qint64>(0, freed.value(monthKey(today.addMonths(1 - back))).toLongLong());
  return history;
}

void AppSettings::addFreed(qint64 bytes, const QDate& today) {
  if (bytes <= 0) return;
  m_store.sync();
  QVariantMap freed = read(m_store, kFreed, QVariantMap());
  qint64 sum = 0;
  if (qAddOverflow(freed.value(monthKey(today)).toLongLong(), bytes, &sum)) sum = std::numeric_limits<qint64>::max();
  freed.insert(monthKey(today), sum);
  put(kFreed, freed);
  m_store.sync();
}

bool AppSettings::scheduledScanDue(const QDateTime& now) const {
  if (schedule() == Off || !lastScan().isValid()) return false;
  return lastScan().daysTo(now) >= (schedule() == Weekly ? kWeeklyDays : kMonthlyDays);
}

#include "moc_AppSettings.cpp"
