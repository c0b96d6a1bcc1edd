#include "core/names.h"
#include "core/removal_walk.h"

#include <QByteArrayList>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace removal {

namespace {

/// @p text without its last @p count components.
template <typename Text, typename Char>
Text withoutTail(Text text, qsizetype count, Char slash) {
  for (; count > 0; --count) text.truncate(qMax(text.lastIndexOf(slash), qsizetype(0)));
  if (text.isEmpty()) text.append(slash);
  return text;
}

/// One more attempt at one node, from its top folder down, every question asked again.
class Attempt {
 public:
  Attempt(Run& run, Stay& stay, QByteArrayList below, UniqueFd top, const Volume& volume)
      : m_run(run),
        m_stay(stay),
        m_below(std::move(below)),
        m_chain(std::move(top)),
        m_volume(volume),
        m_path(withoutTail(stay.node.path, m_below.size(), u'/'), withoutTail(stay.node.realPath, m_below.size(), u'/'),
               stay.topRaw) {}

  Remover::Retry make() {
    for (qsizetype i = 0; i + 1 < m_below.size(); ++i) {
      toChild(m_below.at(i), true);
      if (const auto end = enterFolder()) return *end;
    }
    toChild(m_below.last(), false);
    return removeNode();
  }

 private:
  using Retry = Remover::Retry;

  void toChild(const QByteArray& name, bool isDir) {
    m_path.toChild(m_path.mark(), name.constData(), static_cast<size_t>(name.size()), isDir);
  }

  // Nothing: the walk goes on below it.
  std::optional<Retry> enterFolder() {
    if (const auto kept = keptNow()) return kept;
    const bool stays = m_staysItself;
    if (!m_chain.enter(m_path.name())) return notEntered(errno);
    if (stays) m_lowestStaying = m_chain.depth();
    const std::optional<Volume> own = Volume::of(m_chain.fd());
    if (!own) return stayed(errno);
    if (*own != m_volume) return keep(Kept::AnotherVolume);
    return std::nullopt;
  }

  Retry notEntered(int error) {
    if (error == ENOENT) return gone();
    struct stat status;
    const bool there = ::fstatat(m_chain.fd(), m_path.name(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    if (!there && errno == ENOENT) return gone();
    const bool isFile = there && !S_ISDIR(status.st_mode) && !S_ISLNK(status.st_mode);
    if (isFile) return gone(); // what lay below the folder went with it
    return stayed(there && S_ISLNK(status.st_mode) ? ELOOP : error);
  }

  Retry removeNode() {
    struct stat status;
    if (::fstatat(m_chain.fd(), m_path.name(), &status, AT_SYMLINK_NOFOLLOW) != 0)
      return errno == ENOENT ? gone() : stayed(errno);
    m_path.setDir(S_ISDIR(status.st_mode));
    m_stay.node.isDir = m_path.node().isDir;
    if (const auto kept = keptNow()) return *kept;
    if (m_staysItself) return keep(Kept::Open);
    pauseBefore(m_path.node());
    const Act act = this->act();
    if (act.noTrash) return keep(Kept::NoTrash);
    if (act.error == 0) ++m_run.removedNodes;
    if (act.error == 0 || act.error == ENOENT) return gone();
    return stayed(act.error);
  }

  Act act() {
    const int folder = m_chain.fd();
    if (m_path.node().isDir) return {.error = removeEmptyFolder(folder, m_path.name())};
    if (m_run.options.toTrash) return moveToTrash(m_run, folder, m_path.node());
    return {.error = removeFile(folder, m_path.name())};
  }

  std::optional<Retry> keptNow() {
    const Verdict verdict = m_run.handlers.judge(m_path.node());
    if (const std::optional<Kept> reason = keptBy(verdict)) return keep(*reason);
    m_staysItself = verdict == Verdict::KeepFolder;
    if (m_volume.endsAt(m_chain.fd(), m_path.name())) return keep(Kept::AnotherVolume);
    return std::nullopt;
  }

  Retry keep(Kept reason) {
    if (m_run.handlers.kept) m_run.handlers.kept(m_stay.node, reason);
    return Retry::Kept;
  }

  Retry stayed(int error) {
    m_stay.error = error;
    return Retry::Stayed;
  }

  // The folders on the way up to the top go too while they are empty and may go; they were asked on the way down.
  Retry gone() {
    for (size_t depth = m_chain.depth(); depth > m_lowestStaying; --depth) {
      const QByteArray& name = m_below.at(static_cast<qsizetype>(depth) - 1);
      if (!m_chain.leave() || removeEmptyFolder(m_chain.fd(), name.constData()) != 0) break;
      ++m_run.removedNodes;
    }
    return Retry::Gone;
  }

  Run& m_run;
  Stay& m_stay;
  QByteArrayList m_below; ///< the names from below the top to the node
  DirChain m_chain;
  Volume m_volume;
  NodePath m_path;
  bool m_staysItself = false; ///< the folder that was asked last
  size_t m_lowestStaying = 0; ///< depth of the lowest folder on the way that stays itself; 0: none does
};

/// The components of @p raw below @p top; empty where it doesn't lie below it.
QByteArrayList componentsBelow(const QByteArray& top, const QByteArray& raw) {
  const QByteArray prefix = top.endsWith('/') ? top : top + '/';
  if (!raw.startsWith(prefix)) return {};
  QByteArrayList names = raw.mid(prefix.size()).split('/');
  for (const QByteArray& name : names)
    if (name.isEmpty() || name == "." || name == "..") return {};
  return names;
}

} // namespace

Remover::Retry retryNode(Run& run, Stay& stay) {
  if (run.options.dryRun) return Remover::Retry::Stayed;
  QByteArrayList below = componentsBelow(stay.topRaw, stay.node.realRaw);
  UniqueFd top(below.isEmpty() ? -1 : sys::openFolderNoLinks(stay.topRaw));
  const int error = below.isEmpty() ? EINVAL : errno;
  const std::optional<Volume> volume = top ? Volume::of(top.get()) : std::nullopt;
  if (volume) return Attempt(run, stay, std::move(below), std::move(top), *volume).make();
  if (!below.isEmpty() && isGone(stay.node.realRaw)) return Remover::Retry::Gone;
  stay.error = error;
  return Remover::Retry::Stayed;
}

} // namespace removal
