#include "core/LinkSet.h"
#include "core/TreeWalk.h"
#include "core/fs.h"
#include "core/fs_files.h"
#include "core/names.h"
#include "core/sys.h"

#include <QDir>
#include <QSet>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <limits>
#include <optional>

namespace fs {
namespace {

constexpr int kProgressEvery = 400; ///< files

/// The text of the current folder's path; made only when somebody asks.
QString pathOf(const QString& root, const TreeWalk& walk) {
  QString path = root;
  for (size_t depth = 1; depth <= walk.depth(); ++depth) path = join(path, names::decode(walk.nameAt(depth)));
  return path;
}

/// The folders that a measure leaves out. Asked by the last name first, so that few paths are put together.
class Excludes {
 public:
  explicit Excludes(const QList<QString>& paths) {
    for (const QString& path : paths) {
      const QString clean = QDir::cleanPath(path);
      m_paths.insert(clean);
      m_names.insert(clean.mid(clean.lastIndexOf(QLatin1Char('/')) + 1));
    }
  }
  [[nodiscard]] bool hold(const QString& root, const TreeWalk& walk, const char* rawName) const {
    if (m_paths.isEmpty()) return false;
    const QString name = names::decode(QByteArrayView(rawName));
    return m_names.contains(name) && m_paths.contains(QDir::cleanPath(join(pathOf(root, walk), name)));
  }

 private:
  QSet<QString> m_paths;
  QSet<QString> m_names;
};

class Measure {
 public:
  Measure(const QString& root, dev_t device, const Progress& progress, const QList<QString>& exclude)
      : m_root(root), m_device(device), m_links(device), m_excludes(exclude), m_progress(progress) {
    if (progress) m_untilTell = kProgressEvery;
  }

  void folder(TreeWalk* walk) {
    const int fd = walk->fd();
    struct stat status;
    walk->reader().drain([&](const dirent& entry) {
      if (::fstatat(fd, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        missed(errno);
        return;
      }
      if (sys::isDataless(status)) return;
      if (S_ISREG(status.st_mode)) {
        count(*walk, status, status.st_blocks);
      } else if (!S_ISDIR(status.st_mode)) {
        count(*walk, status, 0);
      } else if (!leavesDevice(status.st_dev, m_device) && !m_excludes.hold(m_root, *walk, entry.d_name)) {
        walk->push(entry);
      }
    });
    if (walk->reader().error() != 0) ++m_unread;
  }

  [[nodiscard]] Totals totals(const TreeWalk& walk) const {
    return {bytes(), m_files, sys::toMs(m_newest), m_unread + walk.unread()};
  }

 private:
  void count(const TreeWalk& walk, const struct stat& status, qint64 blocks) {
    if (status.st_nlink >= 2 && !isFirstOfLinks(status)) return;
    m_blocks += blocks;
    ++m_files;
    raise(sys::modifiedTime(status));
    if (--m_untilTell == 0) tell(walk);
  }

  [[gnu::cold, gnu::noinline]] void missed(int error) {
    if (error != ENOENT) ++m_unread;
  }

  [[nodiscard]] qint64 bytes() const { return m_blocks * 512; }

  // What is rare is kept out of the loop over a folder, where a compiler would otherwise make room for it.
  [[gnu::cold, gnu::noinline]] bool isFirstOfLinks(const struct stat& status) {
    return status.st_ino == 0 || m_links.insert(status.st_dev, status.st_ino);
  }

  void raise(const timespec& time) {
    if (time.tv_sec < m_newest.tv_sec) return;
    if (time.tv_sec > m_newest.tv_sec || time.tv_nsec > m_newest.tv_nsec) m_newest = time;
  }

  [[gnu::cold, gnu::noinline]] void tell(const TreeWalk& walk) {
    m_untilTell += kProgressEvery;
    m_progress(pathOf(m_root, walk), bytes(), m_files);
  }

  qint64 m_blocks = 0; ///< of 512 bytes
  timespec m_newest{};
  qint64 m_files = 0;
  qint64 m_unread = 0;
  const QString& m_root;
  dev_t m_device;
  LinkSet m_links;
  Excludes m_excludes;
  const Progress& m_progress;
  qint64 m_untilTell = std::numeric_limits<qint64>::max(); ///< files until the next progress
};

/// The root itself couldn't be looked at.
Totals unread(int error) { return {.unread = error == ENOENT || error == ENOTDIR ? 0 : 1}; }

/// A tree by its top. @p path is its text, for showing.
class Tree {
 public:
  Tree(const QString& path, const struct stat& top) : m_path(path), m_top(top) {}

  /// What it holds where there is nothing to walk.
  [[nodiscard]] std::optional<Totals> leaf() const {
    if (sys::isDataless(m_top)) return Totals();
    if (S_ISDIR(m_top.st_mode)) return std::nullopt;
    Entry entry;
    fill(&entry, m_top);
    return Totals{entry.allocated, 1, entry.modifiedMs};
  }
  /// Walks it from its open top folder.
  [[nodiscard]] Totals walk(UniqueFd top, const std::atomic<bool>& cancel, const Progress& progress,
                            const QList<QString>& exclude) const {
    if (!top) return unread(errno);
    Measure measure(m_path, m_top.st_dev, progress, exclude);
    TreeWalk walk(std::move(top), cancel);
    while (walk.next() == TreeWalk::Step::Folder) measure.folder(&walk);
    return measure.totals(walk);
  }

 private:
  const QString& m_path;
  const struct stat& m_top;
};

} // namespace

Totals measure(const QString& path, const std::atomic<bool>& cancel, const Progress& progress,
               const QList<QString>& exclude) {
  struct stat top;
  if (!statusOf(path, &top)) return unread(errno);
  const Tree tree(path, top);
  if (const std::optional<Totals> leaf = tree.leaf()) return *leaf;
  return tree.walk(openFolder(path, O_NOFOLLOW), cancel, progress, exclude);
}

Totals measureEntry(const QString& dir, const QByteArray& rawName, const std::atomic<bool>& cancel,
                    const Progress& progress) {
  const UniqueFd folder = openFolder(dir);
  struct stat top;
  if (!folder || ::fstatat(folder.get(), rawName.constData(), &top, AT_SYMLINK_NOFOLLOW) != 0) return unread(errno);
  const QString path = join(dir, names::decode(rawName));
  const Tree tree(path, top);
  if (const std::optional<Totals> leaf = tree.leaf()) return *leaf;
  return tree.walk(openFolderAt(folder.get(), rawName), cancel, progress, {});
}

} // namespace fs
