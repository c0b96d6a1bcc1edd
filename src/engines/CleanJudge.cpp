#include "engines/CleanJudge.h"

#include "core/fs.h"
#include "core/places.h"
#include "core/platform.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

removal::Verdict verdictOf(Guard::Verdict verdict) {
  switch (verdict) {
  case Guard::Verdict::Free:
    return removal::Verdict::Remove;
  case Guard::Verdict::Excluded:
    return removal::Verdict::KeepExcluded;
  case Guard::Verdict::ProtectedData:
    return removal::Verdict::KeepProtectedData;
  case Guard::Verdict::ProtectedLocation:
    return removal::Verdict::KeepProtectedLocation;
  }
  return removal::Verdict::KeepProtectedLocation;
}

QSet<QString> cacheRoots() {
  QSet<QString> paths;
  if (platform::host() != platform::Host::Linux) return paths;
  for (const places::CacheRoot& root : places::cacheRoots()) paths << root.path << fs::resolved(root.path);
  return paths;
}

bool isDirectlyBelow(const QString& path, const QString& folder) {
  return path.startsWith(folder) && path.lastIndexOf(u'/') == folder.size();
}

} // namespace

CleanJudge::CleanJudge(const QList<QString>& exclusions, const appguard::Sources& sources,
                       std::function<bool(const QString&)> isOwnLog)
    : m_guard(exclusions),
      m_sources(sources),
      m_apps(appguard::runningApps(sources)),
      m_open(appguard::openFiles(sources)),
      m_cacheRoots(cacheRoots()),
      m_isOwnLog(std::move(isOwnLog)) {}

void CleanJudge::addOpen(const QString& path) {
  m_open.add(path);
  const QString real = fs::resolved(path);
  if (!real.isEmpty()) m_open.add(real);
}

QString CleanJudge::runningOwner(const CleanWork& work) const {
  if (work.def->id != u"browser" && work.def->id != u"appcache") return {};
  return work.place.runningOwner(m_apps);
}

removal::Verdict CleanJudge::judge(const CleanWork& work, const removal::Node& node) {
  const bool isItem = node.path.size() == work.place.path.size();
  if (isItem && work.item->wholeRoot) return removal::Verdict::NotWhole;
  if (isItem || (work.item->wholeRoot && isDirectlyBelow(node.path, work.place.path))) return judgeTarget(work, node);

  // What the user threw away as a whole can be emptied, whatever the rules say of what lies in it.
  const auto exclusions = work.isTrash ? Guard::Exclusions::Ignore : Guard::Exclusions::Ask;
  const auto verdict = work.isOnePath ? m_guard.askBelow(node.path, exclusions)
                                      : Spelled{node.path, node.realPath}.askBelow(m_guard, exclusions);
  if (verdict != Guard::Verdict::Free) return verdictOf(verdict);
  return isAdmittedBelow(work, node) ? judgeOpen(work, node) : removal::Verdict::KeepOpen;
}

removal::Verdict CleanJudge::judgeTarget(const CleanWork& work, const removal::Node& node) {
  const auto verdict = Spelled{node.path, node.realPath}.ask(m_guard);
  if (verdict != Guard::Verdict::Free) return verdictOf(verdict);
  if (holdsMoreThanCache(node)) return removal::Verdict::KeepProtectedData;
  if (liesInARoot(work)) return removal::Verdict::KeepOpen;
  if (!isAdmitted(work, node)) return removal::Verdict::KeepOpen;
  return judgeOpen(work, node);
}

/// The folder of a whole root is never asked about, so its children are.
bool CleanJudge::liesInARoot(const CleanWork& work) const {
  return work.item->wholeRoot && (m_open.roots.contains(work.place.path) || m_open.roots.contains(work.place.realPath));
}

/// A folder that is itself in use, as some process works in it or holds it open, stays in its place: that process must
/// find it again. It is emptied around what is open in it, like any folder with something open inside. But where a
/// process has its root, all that it can ever open lies in there, and all of it stays.
removal::Verdict CleanJudge::judgeOpen(const CleanWork& work, const removal::Node& node) const {
  const auto in = [&](const QSet<QString>& set) {
    return set.contains(node.path) || (!work.isOnePath && set.contains(node.realPath));
  };
  const bool isOpen = in(m_open.files);
  if (isOpen) return node.isDir && !in(m_open.roots) ? removal::Verdict::KeepFolder : removal::Verdict::KeepOpen;
  if (node.isDir) return in(m_open.parents) ? removal::Verdict::NotWhole : removal::Verdict::Remove;
  return m_isOwnLog(node.realPath) ? removal::Verdict::KeepOpen : removal::Verdict::Remove;
}

bool CleanJudge::isAdmitted(const CleanWork& work, const removal::Node& node) {
  const bool isTemp = work.def->id == u"temp";
  if (!isTemp && !work.ownOnly) return true;
  fs::Entry entry;
  if (!fs::stat(node.realPath, &entry)) return !fs::exists(node.realPath);
  if (work.ownOnly && entry.owner != ::geteuid()) return false;
  if (!isTemp) return true;
  const std::pair<qint64, quint64> folder(entry.device, entry.inode);
  if (m_isRetrying && entry.isDir && m_admitted.contains(folder)) return true;
  if (!categories::admits(entry, node.realPath, admission())) return false;
  if (entry.isDir) m_admitted.insert(folder);
  return true;
}

/// The first time the admission of the item looked at all below it.
bool CleanJudge::isAdmittedBelow(const CleanWork& work, const removal::Node& node) {
  if (!m_isRetrying || node.isDir || work.def->id != u"temp") return true;
  fs::Entry entry;
  if (!fs::stat(node.realPath, &entry)) return !fs::exists(node.realPath);
  return categories::admitsBelow(entry, admission());
}

const categories::Admission& CleanJudge::admission() {
  if (!m_admission) m_admission = categories::Admission::now(m_sources.procRoot);
  return *m_admission;
}

bool CleanJudge::holdsMoreThanCache(const removal::Node& node) const {
  const qsizetype slash = node.path.lastIndexOf(u'/');
  return !m_cacheRoots.isEmpty() && categories::holdsMoreThanCache(QStringView(node.path).sliced(slash + 1)) &&
         (m_cacheRoots.contains(node.path.first(slash)) ||
          m_cacheRoots.contains(node.realPath.first(node.realPath.lastIndexOf(u'/'))));
}
