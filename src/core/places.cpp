#include "core/places.h"

#include "core/safety.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QStandardPaths>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace places {
namespace {

/// More is no list of folders.
constexpr qint64 kUserDirsLimitBytes = 65536;

constexpr QLatin1String kUsualFolders[] = {"Documents"_L1, "Desktop"_L1,       "Downloads"_L1,       "Pictures"_L1,
                                           "Music"_L1,     "Videos"_L1,        "Movies"_L1,          "Library"_L1,
                                           "AppData"_L1,   "AppData/Local"_L1, "AppData/Roaming"_L1, "OneDrive"_L1};

constexpr QLatin1String kKeptFolders[] = {".config"_L1,      ".local"_L1,     ".local/share"_L1,
                                          ".local/state"_L1, ".local/bin"_L1, ".var"_L1,
                                          ".var/app"_L1,     "snap"_L1,       "bin"_L1};

/// The value of an environment variable as a clean path; empty unless it is absolute and not "/".
QString pathVariable(const char* name) {
  const QString value = QFile::decodeName(qgetenv(name));
  if (!value.startsWith(u'/')) return {};
  const QString clean = safety::normalized(value);
  return clean == "/"_L1 ? QString() : clean;
}

/// Whether @p path is @p folder or lies below it.
bool isAtOrBelow(const QString& path, const QString& folder) {
  return path.startsWith(folder) && (path.size() == folder.size() || path[folder.size()] == u'/');
}

bool isHomeOrAbove(const QString& path) { return isAtOrBelow(home(), path); }

/// The path that user-dirs.dirs gives in one line, such as XDG_MUSIC_DIR="$HOME/Musik"; empty if it gives none.
QString folderOfLine(const QString& line) {
  const QString text = line.trimmed();
  const qsizetype equals = text.indexOf(u'=');
  if (equals < 0 || !text.startsWith("XDG_"_L1) || !text.first(equals).trimmed().endsWith("_DIR"_L1)) return {};
  QString value = text.sliced(equals + 1).trimmed();
  if (value.size() > 1 && value.startsWith(u'"') && value.endsWith(u'"')) value = value.sliced(1, value.size() - 2);
  QString plain;
  for (qsizetype i = 0; i < value.size(); ++i) {
    if (value[i] == u'\\' && i + 1 < value.size()) ++i;
    plain += value[i];
  }
  if (plain == "$HOME"_L1 || plain.startsWith("$HOME/"_L1)) plain = home() + plain.sliced(5);
  return plain.startsWith(u'/') ? safety::normalized(plain) : QString();
}

QStringList readUserDirs(const QString& configFolder) {
  QFile file(configFolder + "/user-dirs.dirs"_L1);
  if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) return {};
  QStringList result;
  for (const QString& line : QString::fromUtf8(file.read(kUserDirsLimitBytes)).split(u'\n')) {
    const QString folder = folderOfLine(line);
    if (!folder.isEmpty() && folder != "/"_L1 && !isHomeOrAbove(folder)) result << folder;
  }
  result.removeDuplicates();
  return result;
}

QStringList belowHome(std::span<const QLatin1String> names) {
  QStringList result;
  for (const QLatin1String name : names) result << home() + u'/' + name;
  return result;
}

/// The usual ones and the localised ones.
QStringList ownFolders() { return userDirs() + belowHome(kUsualFolders); }

/// Whether @p path is one of @p folders or lies above one.
bool holdsOneOf(const QString& path, const QStringList& folders) {
  return std::any_of(folders.cbegin(), folders.cend(), [&](const QString& one) { return isAtOrBelow(one, path); });
}

bool liesInOneOf(const QString& path, const QStringList& folders) {
  return std::any_of(folders.cbegin(), folders.cend(), [&](const QString& one) { return isAtOrBelow(path, one); });
}

/// @p folders, and those that they are once links are resolved.
QStringList bothSpellings(const QStringList& folders) {
  QStringList result = folders;
  for (const QString& folder : folders)
    if (const QString resolved = QFileInfo(folder).canonicalFilePath(); !resolved.isEmpty()) result << resolved;
  return result;
}

/// The folder that an XDG variable names, if it counts.
QString namedFolder(const char* variable) {
  const QString value = pathVariable(variable);
  return value.isEmpty() || isHomeOrAbove(value) || ownFolders().contains(value) ? QString() : value;
}

/// An XDG folder: the variable if it counts, else @p fallback below the home folder.
QString xdgFolder(const char* variable, QLatin1String fallback) {
  if (home().isEmpty()) return {};
  const QString value = namedFolder(variable);
  return value.isEmpty() ? home() + u'/' + fallback : value;
}

/// The real folders in @p parent, sorted by name.
QStringList foldersIn(const QString& parent) {
  return QDir(parent).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
}

bool isRealFolder(const QString& path) {
  const QFileInfo info(path);
  return info.isDir() && !info.isSymLink();
}

} // namespace

QString passwordHome() {
  static const QString known = [] {
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
      return QString();
    const QString value = QFile::decodeName(found->pw_dir);
    if (!value.startsWith(u'/')) return QString();
    const QString clean = safety::normalized(value);
    return clean == "/"_L1 ? QString() : clean;
  }();
  return known;
}

QString home() {
  const QString named = pathVariable("HOME");
  return named.isEmpty() ? passwordHome() : named;
}

bool homeIsOwn() {
  struct stat status {};
  const QString path = home();
  return !path.isEmpty() && ::stat(QFile::encodeName(path).constData(), &status) == 0 && status.st_uid == ::geteuid();
}

QString config() { return xdgFolder("XDG_CONFIG_HOME", ".config"_L1); }
QString data() { return xdgFolder("XDG_DATA_HOME", ".local/share"_L1); }

QString cache() {
  const QString path = xdgFolder("XDG_CACHE_HOME", ".cache"_L1);
  if (path.isEmpty() || !holdsOneOf(path, belowHome(kKeptFolders) << config() << data())) return path;
  return home() + "/.cache"_L1;
}

QString downloads() {
  const QString own = home();
  if (own.isEmpty()) return {};
  const bool qtAgrees = safety::normalized(QDir::homePath()) == own;
  const QString named = qtAgrees ? QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) : QString();
  const QString path = safety::normalized(named.isEmpty() ? own + "/Downloads"_L1 : named);
  return !path.startsWith(u'/') || path == "/"_L1 || isHomeOrAbove(path) ? QString() : path;
}

QString temp() {
  const QString resolved = safety::normalized(QDir::tempPath());
  if (!resolved.startsWith(u'/') || resolved == "/"_L1) return {};
  const QString named = pathVariable("TMPDIR");
  const QString path = QFileInfo(named).canonicalFilePath() == resolved ? named : resolved;
  if (home().isEmpty()) return path;
  const QStringList own = bothSpellings(ownFolders());
  const QStringList whole = bothSpellings(belowHome(kKeptFolders) << home() << cache() << config() << data());
  const auto isOthers = [&](const QString& spelling) {
    return liesInOneOf(spelling, own) || holdsOneOf(spelling, whole);
  };
  return isOthers(path) || isOthers(resolved) ? QString() : path;
}

std::span<const QLatin1String> usualFolders() { return kUsualFolders; }
std::span<const QLatin1String> keptFolders() { return kKeptFolders; }

QStringList userDirs() {
  static QBasicMutex mutex;
  static QHash<QString, QStringList> known;
  const QString own = home();
  if (own.isEmpty()) return {};
  const QString named = pathVariable("XDG_CONFIG_HOME");
  const QMutexLocker lock(&mutex);
  const QString key = own + u'\n' + named;
  const auto found = known.constFind(key);
  if (found != known.cend()) return *found;
  QStringList folders = readUserDirs(own + "/.config"_L1);
  if (!named.isEmpty()) folders += readUserDirs(named);
  folders.removeDuplicates();
  return *known.insert(key, folders);
}

QList<CacheRoot> cacheRoots() {
  QList<CacheRoot> result;
  const QString own = home();
  if (own.isEmpty()) return result;
  if (QFileInfo(cache()).isDir()) result.append({cache(), {}, CacheRoot::Kind::Session});
  const auto addBelow = [&](const QString& parent, QLatin1String relative, CacheRoot::Kind kind) {
    for (const QString& id : foldersIn(parent)) {
      const QString path = parent + u'/' + id + relative;
      if (isRealFolder(QFileInfo(path).path()) && isRealFolder(path)) result.append({path, id, kind});
    }
  };
  if (isRealFolder(own + "/.var"_L1) && isRealFolder(own + "/.var/app"_L1))
    addBelow(own + "/.var/app"_L1, "/cache"_L1, CacheRoot::Kind::Flatpak);
  if (isRealFolder(own + "/snap"_L1)) addBelow(own + "/snap"_L1, "/common/.cache"_L1, CacheRoot::Kind::Snap);
  return result;
}

} // namespace places
