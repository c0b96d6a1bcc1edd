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

constexpr qint64 kBlockBytes = 512;

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

/// Hands each file to @p Take, which is called with this object.
template <class Take>
class FileVisit final : public VisitedFile {
 public:
  FileVisit(const QString& root, dev_t device, const SkipDir& skipDir, const Take& take)
      : m_path(root), m_device(device), m_skipDir(skipDir), m_take(take) {}
  virtual ~FileVisit() = default;

  void visitFolder(TreeWalk* walk) {
    m_path.follow(*walk);
    m_fd = walk->fd();
    walk->reader().drain([&](const dirent& entry) {
      const char* name = entry.d_name;
      if (::fstatat(m_fd, name, &m_status, AT_SYMLINK_NOFOLLOW) != 0) return;
      if (S_ISLNK(m_status.st_mode) || sys::isDataless(m_status)) return;
      if (!S_ISDIR(m_status.st_mode)) {
        file(name);
      } else if (!leavesDevice(m_status.st_dev, m_device) && !isSkipped(name)) {
        walk->push(entry);
      }
    });
  }

  [[nodiscard]] const QString& folder() const override { return m_path.folder(); }
  [[nodiscard]] const QString& path() override { return m_path.fileOf(entry().name); }
  [[nodiscard]] const Entry& entry() override {
    if (!m_isFilled) fillEntry();
    return m_entry;
  }

 private:
  bool isSkipped(const char* name) const {
    return m_skipDir && m_skipDir(m_path.folder(), names::decode(QByteArrayView(name)));
  }

  void file(const char* name) {
    m_name = name;
    m_isFilled = false;
    m_allocated = S_ISREG(m_status.st_mode) ? qint64{m_status.st_blocks} * kBlockBytes : 0;
    m_take(*this);
  }

  void fillEntry() {
    const QByteArrayView name(m_name);
    const bool survives = names::decodeAt(&m_entry.name, 0, name);
    fill(&m_entry, m_status);
    m_entry.reachable = m_path.reachable() && (survives || reachesAnyway(m_fd, name, m_status));
    m_isFilled = true;
  }

  TextPath m_path;
  dev_t m_device;
  const SkipDir& m_skipDir;
  const Take& m_take;
  Entry m_entry;
  // Of the file in hand:
  int m_fd = -1;
  const char* m_name = nullptr;
  struct stat m_status {};
  bool m_isFilled = false; ///< m_entry is this file's
};

template <class Take>
bool walkFiles(const QString& root, const std::atomic<bool>& cancel, const SkipDir& skipDir, const Take& take) {
  struct stat status;
  const dev_t device = statusOf(root, &status) ? status.st_dev : 0;
  if (cancel) return false;
  UniqueFd top = openFolder(root);
  if (!top) return true;
  FileVisit files(root, device, skipDir, take);
  TreeWalk walk(std::move(top), cancel);
  for (;;) {
    const TreeWalk::Step step = walk.next();
    if (step != TreeWalk::Step::Folder) return step == TreeWalk::Step::End;
    files.visitFolder(&walk);
  }
}

} // namespace

bool visitFiles(const QString& root, const std::atomic<bool>& cancel, const SkipDir& skipDir,
                const std::function<void(const QString&, const Entry&)>& visit) {
  return walkFiles(root, cancel, skipDir, [&](auto& file) { visit(file.path(), file.entry()); });
}

bool visitFilesLazily(const QString& root, const std::atomic<bool>& cancel, const SkipDir& skipDir,
                      const std::function<void(VisitedFile&)>& visit) {
  return walkFiles(root, cancel, skipDir, visit);
}

} // namespace fs
