// Which entries of the temporary folder are leftovers, and what must be known of the system to tell.
#include "core/names.h"
#include "core/platform.h"
#include "core/proctext.h"
#include "engines/catalogue.h"
#include "engines/categories.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds kOldEnough = 24h;
constexpr qsizetype kLongestPath = 4000; ///< bytes; a folder with a longer path may not open, and looks empty then

/// What a running desktop keeps in the temporary folder, however old it is.
constexpr const char16_t* kDesktopNames[] = {
    u".X*-lock",         u".X11-unix", u".ICE-unix",       u".font-unix",
    u".XIM-unix",        u"xauth*",    u"ssh-*",           u"gpg-*",
    u"krb5cc_*",         u"dbus-*",    u"runtime-*",       u"systemd-private-*",
    u"snap-private-tmp", u"snap.*",    u".Trash-*",        u"tmux-*",
    u"screen-*",         u"pulse-*",   u".org.chromium.*", u"com.google.Chrome.*",
    u".wine-*",          u"emacs*",    u"vscode-*",        u".mount_*",
    u"hsperfdata_*",     u"kde*",      u"plasma*",         u".esd-*"};

/// Adds @p path and every folder above it, but "/".
void addWithParents(QSet<QString>* folders, const QString& path) {
  for (QString dir = path; !dir.isEmpty() && !folders->contains(dir); dir = dir.section(u'/', 0, -2))
    folders->insert(dir);
}

QSet<QString> workingFolders(const QString& procRoot) {
  QSet<QString> folders;
  for (const fs::Entry& entry : fs::list(procRoot)) {
    bool isProcess = false;
    (void)entry.name.toUInt(&isProcess);
    if (!isProcess) continue;
    for (const QString& place : {u"cwd"_s, u"root"_s}) {
      const QString folder = QFileInfo(fs::join(fs::join(procRoot, entry.name), place)).symLinkTarget();
      if (folder != u"/") addWithParents(&folders, folder);
    }
  }
  return folders;
}

/// All of a file of /proc, which tells no size.
QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// One lock a line; its file is a field "major:minor:inode".
QSet<quint64> readLocks(const QString& procRoot) {
  QSet<quint64> inodes;
  for (const QByteArray& line : contents(fs::join(procRoot, u"locks"_s)).split('\n')) {
    for (const QByteArray& field : line.simplified().split(' ')) {
      const QList<QByteArray> parts = field.split(':');
      bool isNumber = false;
      const quint64 inode = parts.size() == 3 ? parts[2].toULongLong(&isNumber) : 0;
      if (isNumber) inodes.insert(inode);
    }
  }
  return inodes;
}

bool isPlain(quint32 type) { return type == S_IFREG || type == S_IFDIR || type == S_IFLNK; }

bool isOldAndPlain(const fs::Entry& entry, const categories::Admission& admission) {
  return isPlain(entry.type) && entry.modifiedMs <= admission.nowMs - kOldEnough.count() &&
         !admission.lockedInodes.contains(entry.inode);
}

/// Whether all that lies below is as old and plain as the top must be.
bool isLeftoverBelow(const fs::Entry& top, const QString& path, const categories::Admission& admission,
                     const std::atomic<bool>* cancel) {
  QList<QString> pending = {path};
  while (!pending.isEmpty()) {
    if (cancel && *cancel) return false;
    const QString dir = pending.takeLast();
    if (names::encode(dir).size() > kLongestPath) return false;
    bool complete = false;
    const QList<fs::Entry> entries = fs::list(dir, &complete);
    if (!complete) return false;
    for (const fs::Entry& entry : entries) {
      if (!isOldAndPlain(entry, admission)) return false;
      if (!entry.isDir) continue;
      if (!entry.reachable || entry.device != top.device) return false;
      pending.append(fs::join(dir, entry.name));
    }
  }
  return true;
}

} // namespace

QSet<QString> categories::mountPoints(const QString& procRoot) {
  QSet<QString> points;
  for (const QByteArray& line : contents(fs::join(procRoot, u"self/mountinfo"_s)).split('\n')) {
    const QList<QByteArray> fields = line.split(' ');
    if (fields.size() > 4) points.insert(names::decode(proctext::unescaped(fields[4])));
  }
  return points;
}

categories::Admission categories::Admission::now(const QString& procRoot) {
  Admission admission;
  admission.nowMs = QDateTime::currentMSecsSinceEpoch();
  admission.busyFolders = workingFolders(procRoot);
  for (const QString& point : mountPoints(procRoot))
    if (point != u"/") addWithParents(&admission.mountFolders, point);
  admission.lockedInodes = readLocks(procRoot);
  return admission;
}

bool categories::admits(const fs::Entry& entry, const QString& path, const Admission& admission,
                        const std::atomic<bool>* cancel) {
  if (platform::host() == platform::Host::Mac) return true;
  if (entry.owner != ::geteuid() || !entry.reachable) return false;
  if (catalogue::matchesAny(entry.name, kDesktopNames)) return false;
  if (admission.busyFolders.contains(path) || admission.mountFolders.contains(path)) return false;
  if (!isOldAndPlain(entry, admission)) return false;
  return !entry.isDir || isLeftoverBelow(entry, path, admission, cancel);
}

bool categories::admitsBelow(const fs::Entry& entry, const Admission& admission) {
  return platform::host() == platform::Host::Mac || isOldAndPlain(entry, admission);
}
