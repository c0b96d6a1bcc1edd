#include "app/AppSettings.h"

#include "core/fs.h"
#include "core/ownfile.h"
#include "core/platform.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtNumeric>

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

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
constexpr const char* kAll[] = {kMoveToTrash.name,
                                kExclusions,
                                kSchedule.name,
                                kLowSpaceAlerts.name,
                                kStartAtLogin.name,
                                kCloseAction.name,
                                kShowInTray.name,
                                kTheme.name,
                                kLanguage,
                                kThresholdMB.name,
                                kOldMonths.name,
                                kLastScan,
                                kFreed};
const QString kDefaultRule = u"**/.git"_s;
const QString kAside = u"damaged"_s; // ends the name of what was set aside

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
T read(const std::optional<QVariant>& stored, const T& def) {
  if (!stored) return def;
  const std::optional<QVariant> value = converted(*stored, QMetaType::fromType<T>());
  return value ? value->value<T>() : def;
}

bool read(const std::optional<QVariant>& stored, const Key<bool>& key) { return read(stored, key.def); }

int read(const std::optional<QVariant>& stored, const Key<int>& key) {
  const int value = read(stored, key.def);
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

AppSettings::AppSettings() { m_worth = judge(); }

QString AppSettings::path() const { return m_store.fileName(); }

QString AppSettings::memoryPath() const {
  const QFileInfo file(path());
  return file.path() + u'/' + file.completeBaseName() + u"-rules.json"_s;
}

AppSettings::Store AppSettings::look() {
  const Store before = std::exchange(m_worth, judge());
  if (m_worth == Store::Sound) storeHeld();
  if (m_worth != before) emit changed();
  return m_worth;
}

AppSettings::Store AppSettings::judge() {
  const ownfile::Content memory = ownfile::read(memoryPath());
  m_memory.reset();
  if (memory.kind != ownfile::Kind::Nothing)
    m_memory = settingsfile::fromBytes(memory.bytes).value_or(settingsfile::Memory());
  if (!fileIsWhole(path())) return Store::Unreadable;
  m_store.sync();
  if (!fallbacksAreWhole() || !rulesAreAList()) return Store::Unreadable;
  return hasLost() ? Store::Lost : Store::Sound;
}

bool AppSettings::isPropertyList() const {
  return m_store.format() == QSettings::NativeFormat && platform::builtFor() == platform::Host::Mac;
}

// QSettings itself tells a bad form once, and never again while it keeps what it made of the file.
bool AppSettings::fileIsWhole(const QString& path) const {
  QFile file(path);
  if (!fs::exists(path)) return true;
  if (!file.open(QIODevice::ReadOnly)) return false;
  return isPropertyList() ? settingsfile::isPropertyList(file.readAll()) : settingsfile::isIni(file.readAll());
}

// The files behind the user's own, which may hold rules for all users. They don't matter where the user has a list.
bool AppSettings::fallbacksAreWhole() const {
  m_store.setFallbacksEnabled(false);
  const bool hasOwn = m_store.contains(QLatin1String(kExclusions));
  m_store.setFallbacksEnabled(true);
  if (hasOwn) return true;
  const QString organisation = m_store.organizationName();
  const auto isWhole = [&](QSettings::Scope scope, const QString& application) {
    return fileIsWhole(QSettings(m_store.format(), scope, organisation, application).fileName());
  };
  return isWhole(QSettings::UserScope, {}) && isWhole(QSettings::SystemScope, m_store.applicationName()) &&
         isWhole(QSettings::SystemScope, {});
}

bool AppSettings::rulesAreAList() const {
  const QString rules = QLatin1String(kExclusions);
  if (!m_store.contains(rules)) return true;
  const QVariant value = m_store.value(rules);
  if (value.isValid()) return converted(value, QMetaType::fromType<QStringList>()).has_value();
  QFile file(path());
  return !file.open(QIODevice::ReadOnly) || !holdsBinaryRules(file.readAll());
}

// A rule that somebody added with an editor is no loss; one that has gone is.
bool AppSettings::hasLost() const {
  if (!m_memory) return false;
  const auto isThere = [this](const char* key) { return m_store.contains(QLatin1String(key)); };
  if (std::none_of(std::begin(kAll), std::end(kAll), isThere)) return true;
  if (!m_memory->rules) return false;
  if (!isThere(kExclusions)) return true;
  const QStringList rules = read(m_store.value(QLatin1String(kExclusions)), QStringList());
  const QStringList& remembered = *m_memory->rules;
  return std::any_of(remembered.cbegin(), remembered.cend(),
                     [&](const QString& rule) { return !rules.contains(rule); });
}

QStringList AppSettings::rememberedRules() const {
  return m_memory ? m_memory->rules.value_or(QStringList()) : QStringList();
}

std::optional<QVariant> AppSettings::stored(const char* key) const {
  const QString name = QLatin1String(key);
  if (m_held.contains(name)) return m_held.value(name);
  if (m_store.contains(name)) return m_store.value(name);
  return std::nullopt;
}

bool AppSettings::holds(const char* key) const { return stored(key).has_value(); }

QVariant AppSettings::get(const char* key, const QVariant& def) const { return stored(key).value_or(def); }

void AppSettings::put(const char* key, const QVariant& value) {
  // Of what a damaged store holds it isn't known whether it is the user's.
  const QString name = QLatin1String(key);
  const bool isKnown = look() == Store::Sound ? m_store.contains(name) : m_held.contains(name);
  if (isKnown && converted(*stored(key), value.metaType()) == value) return;
  store(name, value);
  emit changed();
}

// Written now rather than when the event loop comes to it: what is held back could fall on a store that was damaged
// meanwhile, and would replace it.
void AppSettings::store(const QString& name, const QVariant& value) {
  if (m_worth != Store::Sound) {
    m_held.insert(name, value);
    return;
  }
  if (name == QLatin1String(kExclusions)) forgetAllBut(value.toStringList());
  m_store.setValue(name, value);
  m_store.sync();
  remember();
}

// What is taken out is forgotten before it goes from the store, and what is added is remembered after it came: so a
// power cut in between, or another process that looks then, finds nothing lost.
void AppSettings::forgetAllBut(const QStringList& rules) {
  if (!m_memory || !m_memory->rules) return;
  settingsfile::Memory fewer = *m_memory;
  fewer.rules->removeIf([&](const QString& rule) { return !rules.contains(rule); });
  if (fewer != *m_memory) write(fewer);
}

/// Somebody has mended the store: what was set meanwhile goes into it. Of the rules those that were added, as the list
/// that they were added to wasn't whole.
void AppSettings::storeHeld() {
  QVariantMap held = std::exchange(m_held, {});
  const QString name = QLatin1String(kExclusions);
  if (const auto added = held.find(name); added != held.end()) {
    QStringList rules = exclusions();
    for (const QString& rule : added->toStringList())
      if (!rules.contains(rule)) rules << rule;
    held.insert(name, rules);
  }
  for (auto one = held.cbegin(); one != held.cend(); ++one) store(one.key(), one.value());
}

void AppSettings::remember() {
  settingsfile::Memory memory;
  if (const auto rules = stored(kExclusions)) memory.rules = read(rules, QStringList());
  if (m_memory != memory) write(memory);
}

/// @return whether it was written
bool AppSettings::write(const settingsfile::Memory& memory) {
  const QByteArray bytes = settingsfile::toBytes(memory);
  bool done = ownfile::write(memoryPath(), bytes) == 0;
  if (!done && ownfile::read(memoryPath()).kind == ownfile::Kind::Other && // a folder, say, is in the way
      !ownfile::setAside(memoryPath(), kAside).isEmpty())
    done = ownfile::write(memoryPath(), bytes) == 0;
  if (done) m_memory = memory;
  return done;
}

/// What could be read of the store itself, without the files for all users behind it.
QVariantMap AppSettings::ownValues() const {
  m_store.setFallbacksEnabled(false);
  QVariantMap values;
  for (const QString& name : m_store.allKeys())
    if (const QVariant value = m_store.value(name); value.isValid()) values.insert(name, value);
  m_store.setFallbacksEnabled(true);
  return values;
}

// What is remembered comes first: it tells whether anything can be written here, and if the rest fails, the rules that
// the user has seen are safe.
bool AppSettings::acceptExclusions() {
  if (look() == Store::Sound) return true;
  QVariantMap kept = ownValues();
  kept.insert(m_held);
  kept.insert(QLatin1String(kExclusions), exclusions());
  if (!write(settingsfile::Memory{exclusions()})) return false;
  if (fs::exists(path()) && ownfile::setAside(path(), kAside).isEmpty()) return false;
  m_store.sync(); // takes in that there is nothing
  for (auto one = kept.cbegin(); one != kept.cend(); ++one) m_store.setValue(one.key(), one.value());
  m_store.sync();
  // Its own status may still be that of the damaged file. Where the system keeps the store, its file comes later.
  if (!isPropertyList() && QFileInfo(path()).size() == 0) return false;
  m_held.clear();
  look();
  emit changed();
  return true;
}

bool AppSettings::moveToTrash() const { return read(stored(kMoveToTrash.name), kMoveToTrash); }
void AppSettings::setMoveToTrash(bool on) { put(kMoveToTrash.name, on); }

QStringList AppSettings::exclusions() const {
  const auto own = stored(kExclusions);
  if (m_worth == Store::Sound || m_held.contains(QLatin1String(kExclusions)))
    return read(own, QStringList{kDefaultRule});
  QStringList rules = own || !m_memory || !m_memory->rules ? read(own, QStringList{kDefaultRule}) : QStringList();
  for (const QString& rule : rememberedRules())
    if (!rules.contains(rule)) rules << rule;
  return rules;
}
void AppSettings::setExclusions(const QStringList& rules) { put(kExclusions, rules); }

AppSettings::Schedule AppSettings::schedule() const {
  return static_cast<Schedule>(read(stored(kSchedule.name), kSchedule));
}
void AppSettings::setSchedule(Schedule schedule) { put(kSchedule.name, static_cast<int>(schedule)); }

bool AppSettings::lowSpaceAlerts() const { return read(stored(kLowSpaceAlerts.name), kLowSpaceAlerts); }
void AppSettings::setLowSpaceAlerts(bool on) { put(kLowSpaceAlerts.name, on); }

bool AppSettings::startAtLogin() const { return read(stored(kStartAtLogin.name), kStartAtLogin); }
void AppSettings::setStartAtLogin(bool on) { put(kStartAtLogin.name, on); }

AppSettings::CloseAction AppSettings::closeAction() const {
  return static_cast<CloseAction>(read(stored(kCloseAction.name), kCloseAction));
}
void AppSettings::setCloseAction(CloseAction action) { put(kCloseAction.name, static_cast<int>(action)); }

bool AppSettings::showInTray() const { return read(stored(kShowInTray.name), kShowInTray); }
void AppSettings::setShowInTray(bool on) { put(kShowInTray.name, on); }

AppSettings::ThemeMode AppSettings::themeMode() const {
  return static_cast<ThemeMode>(read(stored(kTheme.name), kTheme));
}
void AppSettings::setThemeMode(ThemeMode mode) { put(kTheme.name, static_cast<int>(mode)); }

QString AppSettings::language() const { return read(stored(kLanguage), QString()); }
void AppSettings::setLanguage(const QString& code) { put(kLanguage, code); }

int AppSettings::largeFileMB() const { return read(stored(kThresholdMB.name), kThresholdMB); }
void AppSettings::setLargeFileMB(int megabytes) { put(kThresholdMB.name, megabytes); }

int AppSettings::oldMonths() const { return read(stored(kOldMonths.name), kOldMonths); }
void AppSettings::setOldMonths(int months) { put(kOldMonths.name, months); }

QDateTime AppSettings::lastScan() const { return read(stored(kLastScan), QDateTime()); }
void AppSettings::setLastScan(const QDateTime& when) { put(kLastScan, when); }

QList<qint64> AppSettings::freedHistory(int months, const QDate& today) const {
  const QVariantMap freed = read(stored(kFreed), QVariantMap());
  QList<qint64> history;
  for (int back = months; back >= 1; --back)
    history << qMax<qint64>(0, freed.value(monthKey(today.addMonths(1 - back))).toLongLong());
  return history;
}

void AppSettings::addFreed(qint64 bytes, const QDate& today) {
  if (bytes <= 0) return;
  look(); // takes in what another process has stored
  QVariantMap freed = read(stored(kFreed), QVariantMap());
  qint64 sum = 0;
  if (qAddOverflow(freed.value(monthKey(today)).toLongLong(), bytes, &sum)) sum = std::numeric_limits<qint64>::max();
  freed.insert(monthKey(today), sum);
  put(kFreed, freed);
}

bool AppSettings::scheduledScanDue(const QDateTime& now) const {
  if (schedule() == Off || !lastScan().isValid()) return false;
  return lastScan().daysTo(now) >= (schedule() == Weekly ? kWeeklyDays : kMonthlyDays);
}

#include "moc_AppSettings.cpp"
