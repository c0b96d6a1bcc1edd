/// Who runs and what is open, read from the process file system (proc(5)) by descriptor and in raw bytes. What can't be
/// read, as other users' processes can't, is left out; a process that ends meanwhile is one that can't be read.
#include "core/UniqueFd.h"
#include "core/appguard.h"
#include "core/names.h"

#include <QFile>
#include <QSet>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace appguard {

namespace {
constexpr const char* kRoot = "root";
constexpr const char* kPlaces[] = {"cwd", kRoot, "exe"}; ///< links beside those of "fd"
constexpr QByteArrayView kDeleted = " (deleted)";
constexpr qsizetype kChunk = 65536;
constexpr qsizetype kSmallFile = 65536;

struct CloseFolder {
  void operator()(DIR* folder) const { ::closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

Folder openFolder(int dirFd, const char* path) {
  UniqueFd fd(::openat(dirFd, path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  DIR* folder = fd ? ::fdopendir(fd.get()) : nullptr;
  if (folder != nullptr) static_cast<void>(fd.release());
  return Folder(folder);
}

bool isNumber(const char* name) {
  return *name != 0 && std::all_of(name, name + qstrlen(name), [](char c) { return c >= '0' && c <= '9'; });
}

/// Calls @p visit with each number's name in the folder until it returns true. @return whether it did
template <typename Visit>
bool anyNumbered(DIR* folder, Visit visit) {
  while (folder != nullptr) {
    const dirent* entry = ::readdir(folder);
    if (entry == nullptr) break;
    if (isNumber(entry->d_name) && visit(entry->d_name)) return true;
  }
  return false;
}

/// Calls @p visit with the open folder of each process until it returns true. @return whether it did
template <typename Visit>
bool anyProcess(const QString& procRoot, Visit visit) {
  const Folder proc = openFolder(AT_FDCWD, names::encode(procRoot).constData());
  return anyNumbered(proc.get(), [&](const char* pid) {
    const UniqueFd process(::openat(::dirfd(proc.get()), pid, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return process && visit(process.get());
  });
}

/// Calls @p visit with folder and name of each link of a process until it returns true. @return whether it did
template <typename Visit>
bool anyLink(int process, Visit visit) {
  const Folder open = openFolder(process, "fd");
  if (anyNumbered(open.get(), [&](const char* name) { return visit(::dirfd(open.get()), name); })) return true;
  return std::any_of(std::begin(kPlaces), std::end(kPlaces), [&](const char* name) { return visit(process, name); });
}

/// Where a link leads. Empty: it can't be read, or is longer than the system tells.
QByteArray target(int dirFd, const char* name) {
  char buffer[PATH_MAX];
  const ssize_t length = ::readlinkat(dirFd, name, buffer, sizeof buffer);
  return length > 0 ? QByteArray(buffer, length) : QByteArray();
}

/// A small regular file whole; empty if it is none. Never waits for a writer.
QByteArray smallFile(int dirFd, const char* path) {
  const UniqueFd fd(::openat(dirFd, path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!fd || ::fstat(fd.get(), &status) != 0 || !S_ISREG(status.st_mode)) return {};
  QByteArray text(kSmallFile, Qt::Uninitialized);
  const ssize_t length = ::read(fd.get(), text.data(), static_cast<size_t>(text.size()));
  text.truncate(qMax<ssize_t>(0, length));
  return text;
}

// ---- who runs

/// Chops the number at the end of "name-1.2", "name_3", "name1.2", but not that of "name3", which is the name itself.
void chopVersion(QString& name) {
  qsizetype at = name.size();
  const auto belongs = [&](QChar c) { return c.isDigit() || c == u'.'; };
  while (at > 0 && belongs(name.at(at - 1))) --at;
  if (at == name.size()) return;
  const bool marked = at > 0 && (name.at(at - 1) == u'-' || name.at(at - 1) == u'_');
  if (marked) --at;
  if (at > 0 && (marked || name.indexOf(u'.', at) >= 0)) name.truncate(at);
}

/// The program's own name, without what packagers put behind it.
QString plainName(QString name) {
  for (const QLatin1StringView suffix : {"-bin"_L1, "-esr"_L1})
    if (name.endsWith(suffix) && name.size() > suffix.size()) name.chop(suffix.size());
  chopVersion(name);
  return name;
}

/// The snap that an executable came from: the part behind the folder of all snaps.
QString snapOf(const QString& executable) {
  for (const QLatin1StringView snaps : {"/snap/"_L1, "/var/lib/snapd/snap/"_L1})
    if (executable.startsWith(snaps) && executable.indexOf(u'/', snaps.size()) > 0)
      return executable.mid(snaps.size()).section(u'/', 0, 0);
  return {};
}

/// The id in the file that every sandbox of Flatpak has at its root. A runtime that runs by itself has its own group.
QString flatpakOf(int process) {
  bool named = false;
  for (const QByteArray& line : smallFile(process, "root/.flatpak-info").split('\n')) {
    if (line.startsWith('[')) named = line == "[Application]" || line == "[Runtime]";
    if (named && line.startsWith("name=")) return names::decode(line.sliced(5)).trimmed();
  }
  return {};
}

void addPackage(const QString& id, const QString& ownName, RunningApps& apps) {
  if (id.isEmpty()) return;
  const QString key = id.toLower();
  const QString known = knownAppName(key);
  apps.bundleIds.insert(key);
  if (!apps.appNames.contains(key)) apps.appNames.insert(key, known.isEmpty() ? ownName : known);
}

/// Adds the name of an executable as it is and without its suffixes: a cache may be named like either.
void addName(const QString& name, RunningApps& apps) {
  if (name.isEmpty()) return;
  apps.processes.insert(name);
  apps.processes.insert(plainName(name));
}

void addRunning(int process, RunningApps& apps) {
  QByteArray raw = target(process, "exe");
  if (raw.endsWith(kDeleted)) raw.chop(kDeleted.size());
  // The short name has no folder, though it may hold a slash, and is cut at 15 bytes.
  const bool known = raw.startsWith('/');
  const QString executable = names::decode(known ? raw : smallFile(process, "comm").trimmed());
  const qsizetype nameAt = known ? executable.lastIndexOf(u'/') + 1 : 0;
  if (executable.isEmpty()) return;
  addName(executable.mid(nameAt).toLower(), apps);
  apps.processDirs.append(executable.left(nameAt).toLower());
  const QString snap = snapOf(executable);
  addPackage(snap, snap, apps);
  const QString flatpak = flatpakOf(process);
  addPackage(flatpak, flatpak.section(u'.', -1), apps);
}

// ---- what is open

/// Whether @p raw is the path of a thing that stands on a disk: no socket, no pipe, and nothing that was deleted.
bool standsOnDisk(const QByteArray& raw) {
  if (!raw.startsWith('/') || raw.size() == 1) return false;
  struct stat status {};
  // A file may really be named like that.
  return !raw.endsWith(kDeleted) || ::lstat(raw.constData(), &status) == 0;
}

/// Calls @p visit with the path of each mapped file of a process until it returns true; what the system made up is
/// among them. A path comes as it is written, and a second time with its escaped line breaks undone.
template <typename Visit>
bool anyMapped(int process, Visit visit) {
  const UniqueFd fd(::openat(process, "maps", O_RDONLY | O_CLOEXEC));
  QByteArray buffer;
  QByteArray last;
  for (qsizetype held = 0; fd;) {
    buffer.resize(held + kChunk);
    const ssize_t got = ::read(fd.get(), buffer.data() + held, static_cast<size_t>(kChunk));
    if (got <= 0) break;
    const QByteArrayView text = QByteArrayView(buffer).first(held + got);
    qsizetype start = 0;
    for (qsizetype end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n', start)) {
      const QByteArrayView line = text.sliced(start, end - start);
      start = end + 1;
      const qsizetype slash = line.indexOf('/');
      if (slash < 0 || line.sliced(slash) == last) continue;
      last = line.sliced(slash).toByteArray();
      if (visit(last)) return true;
      if (last.contains("\\012") && visit(QByteArray(last).replace("\\012", "\n"))) return true;
    }
    held = text.size() - start;
    std::copy_n(buffer.constData() + start, held, buffer.data());
  }
  return false;
}

/// What tells one file from another, whatever it is called. Doesn't wait for a server.
struct Identity {
  quint32 major = 0;
  quint32 minor = 0;
  quint64 inode = 0;

  bool operator==(const Identity&) const = default;
};

std::optional<Identity> identity(int dirFd, const char* path, int flags) {
  struct statx status {};
  if (::statx(dirFd, path, flags | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC, STATX_INO, &status) != 0) return {};
  return Identity{status.stx_dev_major, status.stx_dev_minor, status.stx_ino};
}
} // namespace

RunningApps runningApps(const Sources& sources) {
  RunningApps apps;
  anyProcess(sources.procRoot, [&](int process) {
    addRunning(process, apps);
    return false;
  });
  return apps;
}

OpenFiles openFiles(const Sources& sources) {
  QSet<QByteArray> paths;
  QSet<QByteArray> roots;
  const auto keep = [&](const QByteArray& raw) {
    if (!paths.contains(raw) && standsOnDisk(raw)) paths.insert(raw);
    return false;
  };
  anyProcess(sources.procRoot, [&](int process) {
    anyLink(process, [&](int dirFd, const char* name) {
      const QByteArray raw = target(dirFd, name);
      if (qstrcmp(name, kRoot) == 0) roots.insert(raw);
      return keep(raw);
    });
    return anyMapped(process, keep);
  });
  OpenFiles open;
  for (const QByteArray& raw : std::as_const(paths)) open.add(names::decode(raw));
  for (const QByteArray& raw : roots.intersect(paths)) open.roots.insert(names::decode(raw));
  return open;
}

bool isFileInUse(const QString& path, const Sources& sources) {
  const QByteArray raw = names::encode(path);
  const auto wanted = identity(AT_FDCWD, raw.constData(), AT_SYMLINK_NOFOLLOW);
  if (!wanted) return false;
  return anyProcess(sources.procRoot, [&](int process) {
    const auto isIt = [&](int dirFd, const char* name) {
      const QByteArray text = target(dirFd, name);
      if (text == raw) return true;
      // Sockets and the like have no path; a path that is too long to be told is none either.
      const bool isPath = text.isEmpty() || text.startsWith('/');
      return isPath && identity(dirFd, name, 0) == wanted;
    };
    return anyLink(process, isIt) || anyMapped(process, [&](const QByteArray& mapped) { return mapped == raw; });
  });
}

namespace tools {
QString bundleIdentifier(const QString& plistPath) {
  constexpr qint64 kMostBytes = 1048576;
  QFile plist(plistPath);
  return plist.open(QIODevice::ReadOnly) ? identifierFromXml(plist.read(kMostBytes)) : QString();
}
} // namespace tools

} // namespace appguard
