#include "core/TreeWalk.h"
#include "core/fs.h"
#include "core/fs_files.h"
#include "core/names.h"
#include "core/sys.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cstring>
#include <vector>

namespace fs {
namespace {

/// Where a visit stands, as text: the folder's path, and beside it a buffer with the same path and a separator, to
/// which each file's name is set. Both are extended once a folder, and not made anew for each file.
class TextPath {
 public:
  explicit TextPath(const QString& root) : m_folder(root), m_reachable(!joinsWrongly(root)) { beginFiles(); }

  /// Follows @p walk to the folder that it has just reached.
  void follow(const TreeWalk& walk) {
    if (walk.depth() == 0) return;
    while (m_levels.size() >= walk.depth()) leave();
    enter(walk.nameAt(walk.depth()));
  }

  [[nodiscard]] const QString& folder() const { return m_folder; }
  /// Whether the folder's path, as text, leads to the folder, and joining names to it to what lies there.
  [[nodiscard]] bool reachable() const { return m_reachable; }
  [[nodiscard]] const QString& fileOf(const QString& name) {
    m_file.resize(m_prefix + name.size());
    std::memcpy(m_file.data() + m_prefix, name.constData(), static_cast<size_t>(name.size()) * sizeof(QChar));
    return m_file;
  }

 private:
  struct Level {
    qsizetype length;
    bool reachable;
  };

  void enter(QByteArrayView name) {
    m_levels.push_back({m_folder.size(), m_reachable});
    separate(&m_folder);
    const bool survives = names::decodeAt(&m_folder, m_folder.size(), name);
    m_reachable = m_reachable && survives && !joinsWrongly(m_folder);
    beginFiles();
  }
  void leave() {
    m_folder.truncate(m_levels.back().length);
    m_reachable = m_levels.back().reachable;
    m_levels.pop_back();
  }
  void beginFiles() {
    m_file.resize(0);
    m_file.append(m_folder);
    separate(&m_file);
    m_prefix = m_file.size();
  }
  static void separate(QString* path) {
    if (!path->endsWith(QLatin1Char('/')) && !joinsWrongly(*path)) path->append(QLatin1Char('/'));
  }

  QString m_folder;
  QString m_file;
  qsizetype m_prefix = 0;
  bool m_reachable;
  std::vector<Level> m_levels; ///< of the folders above
};

using SkipDir = std::function<bool(const QString&, const QString&)>;
using Visit = std::function<void(const QString&, const Entry&)>;

class FileVisit {
 public:
  FileVisit(const QString& root, dev_t device, const SkipDir& skipDir, const Visit& visit)
      : m_path(root), m_device(device), m_skipDir(skipDir), m_visit(visit) {}

  void folder(TreeWalk* walk) {
    m_path.follow(*walk);
    const int fd = walk->fd();
    struct stat status;
    walk->reader().drain([&](const dirent& entry) {
      const char* name = entry.d_name;
      if (::fstatat(fd, name, &status, AT_SYMLINK_NOFOLLOW) != 0) return;
      if (S_ISLNK(status.st_mode) || sys::isDataless(status)) return;
      if (!S_ISDIR(status.st_mode)) {
        file(fd, QByteArrayView(name), status);
      } else if (!leavesDevice(status.st_dev, m_device) && !isSkipped(name)) {
        walk->push(entry);
      }
    });
  }

 private:
  bool isSkipped(const char* name) const {
    return m_skipDir && m_skipDir(m_path.folder(), names::decode(QByteArrayView(name)));
  }

  void file(int dirFd, QByteArrayView name, const struct stat& status) {
    const bool survives = names::decodeAt(&m_entry.name, 0, name);
    fill(&m_entry, status);
    m_entry.reachable = m_path.reachable() && (survives || reachesAnyway(dirFd, name, status));
    m_visit(m_path.fileOf(m_entry.name), m_entry);
  }

  TextPath m_path;
  dev_t m_device;
  const SkipDir& m_skipDir;
  const Visit& m_visit;
  Entry m_entry;
};

} // namespace

bool visitFiles(const QString& root, const std::atomic<bool>& cancel, const SkipDir& skipDir, const Visit& visit) {
  struct stat status;
  const dev_t device = statusOf(root, &status) ? status.st_dev : 0;
  if (cancel) return false;
  UniqueFd top = openFolder(root);
  if (!top) return true;
  FileVisit files(root, device, skipDir, visit);
  TreeWalk walk(std::move(top), cancel);
  for (;;) {
    const TreeWalk::Step step = walk.next();
    if (step != TreeWalk::Step::Folder) return step == TreeWalk::Step::End;
    files.folder(&walk);
  }
}

} // namespace fs
