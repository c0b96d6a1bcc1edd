/// Who a path belongs to goes by its text: the first part that names a running app decides. Beyond that, on Linux a
/// cache that bears the very name of something that runs belongs to it.
#include "core/appguard.h"

#include "core/names.h"
#include "core/places.h"
#include "core/platform.h"

#include <QDir>

#include <span>

using namespace Qt::StringLiterals;

namespace appguard {

namespace {
/// A part of a path that stands for an app: @c segment, followed by @c nextSegment where there is one.
struct OwnerRow {
  QStringView segment;
  QStringView nextSegment;
  QStringView bundleId;
  QStringView process;
  QStringView displayName;
};
constexpr OwnerRow kOwners[] = {
    {u"google", u"chrome", u"com.google.chrome", u"chrome", u"Google Chrome"},
    {u"microsoft", u"edge", u"com.microsoft.edgemac", u"msedge", u"Microsoft Edge"},
    {u"com.microsoft.edgemac", u"", u"com.microsoft.edgemac", u"msedge", u"Microsoft Edge"},
    {u"bravesoftware", u"", u"com.brave.browser", u"brave", u"Brave"},
    {u"mozilla", u"firefox", u"org.mozilla.firefox", u"firefox", u"Firefox"},
    {u"firefox", u"", u"org.mozilla.firefox", u"firefox", u"Firefox"},
    {u"com.apple.safari", u"", u"com.apple.safari", u"safari", u"Safari"},
    {u"code", u"", u"com.microsoft.vscode", u"code", u"Visual Studio Code"},
    {u"slack", u"", u"com.tinyspeck.slackmacgap", u"slack", u"Slack"},
    {u"spotify", u"", u"com.spotify.client", u"spotify", u"Spotify"},
    {u"discord", u"", u"com.hnc.discord", u"discord", u"Discord"},
};
/// Asked after those above, on the Linux host alone. The ids are those of the Flatpaks.
constexpr OwnerRow kLinuxOwners[] = {
    {u"google-chrome", u"", u"com.google.chrome", u"chrome", u"Google Chrome"},
    {u"google-chrome-beta", u"", u"com.google.chrome", u"chrome", u"Google Chrome"},
    {u"chromium", u"", u"org.chromium.chromium", u"chromium", u"Chromium"},
    {u"microsoft-edge", u"", u"com.microsoft.edge", u"msedge", u"Microsoft Edge"},
    {u"vivaldi", u"", u"com.vivaldi.vivaldi", u"vivaldi", u"Vivaldi"},
    {u"opera", u"", u"com.opera.opera", u"opera", u"Opera"},
};

/// Folders of packaged apps below the home folder: the app's id, then what leads to its cache root.
struct Packaged {
  QLatin1StringView folder;
  QLatin1StringView toCache;
};
constexpr Packaged kPackaged[] = {{"/.var/app"_L1, "cache"_L1}, {"/snap"_L1, "common/.cache"_L1}};

bool applies(const OwnerRow& row, const QStringList& parts, qsizetype at) {
  if (parts.at(at) != row.segment) return false;
  return row.nextSegment.isEmpty() || (at + 1 < parts.size() && parts.at(at + 1) == row.nextSegment);
}

QString runningRow(std::span<const OwnerRow> rows, const QStringList& parts, qsizetype at, const RunningApps& apps) {
  for (const OwnerRow& row : rows) {
    if (!applies(row, parts, at)) continue;
    if (apps.bundleIds.contains(row.bundleId.toString()) || apps.processes.contains(row.process.toString()))
      return row.displayName.toString();
  }
  return {};
}

/// The owner that the part of a lower-case path at @p at names.
QString ownerByPart(const QStringList& parts, qsizetype at, const RunningApps& apps) {
  const QString& part = parts.at(at);
  QString owner = runningRow(kOwners, parts, at, apps);
  if (owner.isEmpty() && platform::host() == platform::Host::Linux) owner = runningRow(kLinuxOwners, parts, at, apps);
  if (owner.isEmpty() && part.count(u'.') >= 2 && apps.bundleIds.contains(part))
    owner = apps.appNames.value(part, part);
  return owner;
}

QStringList split(const QString& path) { return path.split(u'/', Qt::SkipEmptyParts); }

/// The parts of @p path below @p root; none if it doesn't lie there.
QStringList partsBelow(const QString& path, const QString& root) {
  if (root.isEmpty() || !path.startsWith(root + u'/')) return {};
  return split(path.mid(root.size()));
}

/// The owner of a folder or a package that bears this name, if that runs.
QString runningByName(const QString& name, const RunningApps& apps) {
  const QString key = name.toLower();
  const bool runs = apps.bundleIds.contains(key) || apps.processes.contains(key);
  return runs ? apps.appNames.value(key, name) : QString();
}

/// The owner by the name of the package whose cache root holds @p path, or of the folder directly below a cache root.
QString ownerBelowCacheRoot(const QString& path, const RunningApps& apps) {
  const QString home = places::home();
  if (home.isEmpty()) return {};
  const QStringList own = partsBelow(path, places::cache());
  if (!own.isEmpty()) return runningByName(own.first(), apps);
  for (const Packaged& kind : kPackaged) {
    const QStringList parts = partsBelow(path, home + kind.folder);
    const QStringList toCache = split(QString(kind.toCache));
    if (parts.size() <= toCache.size() || parts.mid(1, toCache.size()) != toCache) continue;
    const QString package = runningByName(parts.first(), apps);
    const QString folder = parts.value(1 + toCache.size());
    return package.isEmpty() ? runningByName(folder, apps) : package;
  }
  return {};
}
} // namespace

void OpenFiles::add(const QString& path) {
  files.insert(path);
  for (qsizetype slash = path.lastIndexOf(u'/'); slash > 0; slash = path.lastIndexOf(u'/', slash - 1)) {
    const QString parent = path.left(slash);
    // What is in already came with all that stands above it.
    if (parents.contains(parent)) return;
    parents.insert(parent);
  }
}

bool OpenFiles::contains(const QString& path) const { return files.contains(QDir::cleanPath(path)); }

bool OpenFiles::containsUnder(const QString& path) const { return parents.contains(QDir::cleanPath(path)); }

QString runningOwner(const QString& path, const RunningApps& apps) {
  const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
  const QStringList parts = split(clean.toLower());
  QString owner;
  for (qsizetype at = 0; at < parts.size() && owner.isEmpty(); ++at) owner = ownerByPart(parts, at, apps);
  if (owner.isEmpty() && platform::host() == platform::Host::Linux) owner = ownerBelowCacheRoot(clean, apps);
  // Some names are a package's or a folder's own, and they are shown and logged.
  return names::escaped(owner);
}

QString knownAppName(const QString& name) {
  for (const std::span<const OwnerRow> rows :
       {std::span<const OwnerRow>(kOwners), std::span<const OwnerRow>(kLinuxOwners)})
    for (const OwnerRow& row : rows)
      if (row.bundleId == name || row.process == name) return row.displayName.toString();
  return {};
}

} // namespace appguard
