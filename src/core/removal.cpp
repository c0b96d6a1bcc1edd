#include "core/removal.h"

#include "core/names.h"
#include "core/removal_walk.h"

#include <cerrno>
#include <sys/stat.h>

namespace removal {

namespace {

std::function<void(const Node&)>& pauseHook() {
  static std::function<void(const Node&)> hook;
  return hook;
}

/// Folder and last name of an absolute path; an empty name where it has none that could be removed.
struct Split {
  QByteArray folder;
  QByteArray name;
};

Split split(const QByteArray& raw) {
  const qsizetype slash = raw.lastIndexOf('/');
  Split parts{raw.left(qMax(slash, qsizetype(1))), raw.mid(slash + 1)};
  const bool valid = raw.startsWith('/') && parts.name != "." && parts.name != ".." && !raw.contains('\0');
  if (!valid) parts.name.clear();
  return parts;
}

QString folderOf(const QString& path) { return path.left(qMax(path.lastIndexOf(u'/'), qsizetype(1))); }

Node nodeOf(const Target& target, const QByteArray& raw, bool isDir) {
  return {target.path, target.realPath, raw, isDir, names::survives(raw)};
}

} // namespace

void setPauseHook(std::function<void(const Node&)> hook) { pauseHook() = std::move(hook); }

void pauseBefore(const Node& node) {
  if (pauseHook()) pauseHook()(node);
}

bool isGone(const QByteArray& raw) {
  struct stat status;
  return ::lstat(raw.constData(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

struct Remover::Data : Run {
  using Run::Run;

  void refuse(const Target& target, const QByteArray& raw, const QByteArray& topRaw, int error);
  void keepAll(const Target& target, const QByteArray& raw, int fd);
};

// The folder to begin in couldn't be opened.
void Remover::Data::refuse(const Target& target, const QByteArray& raw, const QByteArray& topRaw, int error) {
  if (error != EINVAL && isGone(raw)) return;
  struct stat status;
  const bool isDir = ::lstat(raw.constData(), &status) == 0 && S_ISDIR(status.st_mode);
  if (handlers.busy) handlers.busy({nodeOf(target, raw, isDir), topRaw, error});
}

// No Trash for what lies in the open folder; nothing to say where nothing lies in it.
void Remover::Data::keepAll(const Target& target, const QByteArray& raw, int fd) {
  sys::RawName any;
  if (!reader.start(fd) || !reader.next(&any)) return;
  if (handlers.kept) handlers.kept(nodeOf(target, raw, true), Kept::NoTrash);
  if (options.dryRun) stayCount.addAll(fd);
}

Remover::Remover(Options options, Handlers handlers) : d(std::make_unique<Data>(options, std::move(handlers))) {}

Remover::~Remover() = default;

void Remover::remove(const Target& target) {
  d->stayCount.beginItem();
  const QByteArray raw = names::encode(target.realPath);
  const Split parts = split(raw);
  if (parts.name.isEmpty()) {
    d->refuse(target, raw, parts.folder, EINVAL);
    return;
  }
  UniqueFd folder(sys::openFolderNoLinks(parts.folder));
  const std::optional<Volume> volume = folder ? Volume::of(folder.get()) : std::nullopt;
  if (!volume) {
    d->refuse(target, raw, parts.folder, errno);
    return;
  }
  const NodePath path(folderOf(target.path), folderOf(target.realPath), parts.folder);
  RemovalWalk(*d, std::move(folder), path, *volume, RemovalWalk::Extent::Child).walkChild(parts.name);
}

void Remover::removeChildren(const Target& target) {
  d->stayCount.beginItem();
  const QByteArray raw = names::encode(target.realPath);
  UniqueFd folder(sys::openFolderNoLinks(raw));
  const std::optional<Volume> volume = folder ? Volume::of(folder.get()) : std::nullopt;
  if (!volume) {
    d->refuse(target, raw, raw, errno);
    return;
  }
  const int fd = folder.get();
  RemovalWalk walk(*d, std::move(folder), NodePath(target.path, target.realPath, raw), *volume,
                   RemovalWalk::Extent::All);
  if (walk.canMove())
    walk.walkAll();
  else
    d->keepAll(target, raw, fd);
}

Remover::Retry Remover::retry(Stay* stay) { return retryNode(*d, *stay); }

fs::Totals Remover::wouldStay() const { return d->stayCount.totals(); }

qint64 Remover::removedNodes() const { return d->removedNodes; }

} // namespace removal
