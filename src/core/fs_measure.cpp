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

#include <algorithm>
#include <vector>

namespace fs {
namespace {

constexpr int kProgressEvery = 400; ///< files

/// Where a measure stands, in the system's bytes below the root; a text only when somebody asks.
class RawPath {
 public:
  explicit RawPath(const QString& root)
      : m_root(root), m_rootSeparates(root.endsWith(QLatin1Char('/')) || joinsWrongly(root)) {}

  void enter(QByteArrayView name) {
    m_lengths.push_back(m_below.size());
    const bool separated = m_below.isEmpty() ? m_rootSeparates : m_below.endsWith('\\');
    if (!separated) m_below.append('/');
    m_below.append(name.data(), name.size());
  }
  void leave() {
    m_below.truncate(m_lengths.back());
    m_lengths.pop_back();
  }
  [[nodiscard]] QString text() const { return m_root + names::decode(m_below); }

 private:
  QString m_root;
  bool m_rootSeparates;
  QByteArray m_below;
  std::vector<qsizetype> m_lengths;
};

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
  [[nodiscard]] bool hold(const RawPath& dir, const sys::RawName& raw) const {
    if (m_paths.isEmpty()) return false;
    const QString name = names::decode(QByteArrayView(raw.name, static_cast<qsizetype>(raw.length)));
    return m_names.contains(name) && m_paths.contains(QDir::cleanPath(join(dir.text(), name)));
  }

 private:
  QSet<QString> m_paths;
  QSet<QString> m_names;
};

class Measure {
 public:
  Measure(const QString& root, dev_t device, const Progress& progress, const QList<QString>& exclude)
      : path(root), m_device(device), m_links(device), m_progress(progress), m_excludes(exclude) {}

  void folder(TreeWalk<RawPath>* walk) {
    sys::RawName name;
    struct stat status;
    while (walk->nextName(&name)) {
      if (::fstatat(walk->fd(), name.name, &status, AT_SYMLINK_NOFOLLOW) != 0 || sys::isDataless(status)) continue;
      if (!S_ISDIR(status.st_mode)) {
        count(status);
      } else if (!leavesDevice(status.st_dev, m_device) && !m_excludes.hold(path, name)) {
        walk->push(name);
      }
    }
  }

  RawPath path;
  Totals totals;

 private:
  void count(const struct stat& status) {
    if (status.st_nlink >= 2 && status.st_ino != 0 && !m_links.insert(status.st_dev, status.st_ino)) return;
    if (S_ISREG(status.st_mode)) totals.bytes += qint64{status.st_blocks} * 512;
    ++totals.files;
    totals.newestMs = std::max(totals.newestMs, sys::modifiedMs(status));
    if (++m_sinceProgress < kProgressEvery || !m_progress) return;
    m_sinceProgress = 0;
    m_progress(path.text(), totals.bytes, totals.files);
  }

  dev_t m_device;
  LinkSet m_links;
  const Progress& m_progress;
  Excludes m_excludes;
  int m_sinceProgress = 0;
};

} // namespace

Totals measure(const QString& path, const std::atomic<bool>& cancel, const Progress& progress,
               const QList<QString>& exclude) {
  struct stat root;
  if (!statusOf(path, &root) || sys::isDataless(root)) return {};
  if (!S_ISDIR(root.st_mode)) {
    Entry entry;
    fill(&entry, root);
    return {entry.allocated, 1, entry.modifiedMs};
  }
  if (cancel) return {};
  UniqueFd top = openFolder(path, O_NOFOLLOW);
  if (!top) return {};
  Measure measure(path, root.st_dev, progress, exclude);
  TreeWalk<RawPath> walk(&measure.path, cancel);
  using Step = TreeWalk<RawPath>::Step;
  for (Step step = walk.begin(std::move(top)); step == Step::Folder; step = walk.next()) measure.folder(&walk);
  return measure.totals;
}

} // namespace fs
