#include "core/linux/trash_places.h"

#include "core/names.h"
#include "core/places.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace trash {

namespace {

constexpr int kLookFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;
constexpr int kOpenFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t kFolderMode = 0700;

bool isWritable(int fd) { return ::faccessat(fd, ".", W_OK | X_OK, AT_EACCESS) == 0; }

bool isOwn(int fd) {
  struct stat status;
  return ::fstat(fd, &status) == 0 && status.st_uid == ::geteuid();
}

bool livesInMemory(int fd) {
  struct statfs status;
  if (::fstatfs(fd, &status) != 0) return false;
  const auto type = static_cast<unsigned long>(status.f_type);
  return type == TMPFS_MAGIC || type == RAMFS_MAGIC;
}

QByteArray lastName(const QByteArray& path) { return path.mid(path.lastIndexOf('/') + 1); }

QByteArray folderOf(const QByteArray& path) { return path.left(qMax(path.lastIndexOf('/'), qsizetype(1))); }

/// Whether "files" or "info" is a folder of the user's own, or could become one.
bool isUsable(int trashFd, const char* name, const Volume& volume) {
  const UniqueFd own = openOwn(trashFd, name);
  if (!own) return errno == ENOENT && isWritable(trashFd);
  return isWritable(own.get()) && Volume::of(own.get()) == volume;
}

/// A plan for a Trash folder that is there.
std::optional<Plan> existing(UniqueFd trash, const QByteArray& path, const Volume& volume) {
  if (Volume::of(trash.get()) != volume) return std::nullopt;
  if (!isUsable(trash.get(), "files", volume) || !isUsable(trash.get(), "info", volume)) return std::nullopt;
  return Plan{std::move(trash), {}, path, {}};
}

/// A plan for the Trash folder @p name in the open folder @p dirFd, which may be missing.
std::optional<Plan> within(int dirFd, const QByteArray& dirPath, const QByteArray& name, const Volume& volume) {
  const QByteArray path = (dirPath == "/" ? QByteArray() : dirPath) + '/' + name;
  UniqueFd trash = openOwn(dirFd, name);
  if (trash) return existing(std::move(trash), path, volume);
  if (errno != ENOENT || !isWritable(dirFd) || Volume::of(dirFd) != volume) return std::nullopt;
  return Plan{UniqueFd(::openat(dirFd, ".", kLookFlags)), {name}, path, {}};
}

/// The home Trash, if it is on @p volume or would be. Links above the Trash folder itself are the user's choice.
std::optional<Plan> planHome(const Volume& volume) {
  const QByteArray path = homeTrash();
  if (path.isEmpty()) return std::nullopt;
  QByteArrayList missing = {lastName(path)};
  QByteArray above = folderOf(path);
  UniqueFd folder(::open(above.constData(), kLookFlags));
  for (; !folder && errno == ENOENT && above.size() > 1; above = folderOf(above)) {
    missing.prepend(lastName(above));
    folder.reset(::open(folderOf(above).constData(), kLookFlags));
  }
  if (!folder) return std::nullopt;
  if (missing.size() == 1) return within(folder.get(), above, missing.first(), volume);
  if (!isWritable(folder.get()) || Volume::of(folder.get()) != volume) return std::nullopt;
  return Plan{std::move(folder), missing, path, {}};
}

/// The highest folder above @p dirFd that is on the same volume.
UniqueFd topOf(int dirFd, const Volume& volume) {
  UniqueFd top(::openat(dirFd, ".", kLookFlags));
  struct stat own;
  while (top && ::fstat(top.get(), &own) == 0) {
    UniqueFd above(::openat(top.get(), "..", kLookFlags));
    struct stat status;
    if (!above || ::fstat(above.get(), &status) != 0) return UniqueFd();
    if (status.st_ino == own.st_ino && status.st_dev == own.st_dev) break;
    if (Volume::of(above.get()) != volume) break;
    top = std::move(above);
  }
  return top;
}

/// A ".Trash" that the administrator has made: a real folder, sticky.
UniqueFd sharedTrash(int topFd) {
  UniqueFd shared(::openat(topFd, ".Trash", kLookFlags | O_NOFOLLOW));
  struct stat status;
  const bool fit = shared && ::fstat(shared.get(), &status) == 0 && (status.st_mode & S_ISVTX) != 0;
  return fit ? std::move(shared) : UniqueFd();
}

std::optional<Plan> planTop(int dirFd, const Volume& volume) {
  const UniqueFd top = topOf(dirFd, volume);
  const QByteArray topDir = top ? sys::descriptorPath(top.get()) : QByteArray();
  if (topDir.isEmpty()) return std::nullopt;
  const QByteArray user = QByteArray::number(::geteuid());
  const QByteArray prefix = topDir == "/" ? QByteArray() : topDir;
  std::optional<Plan> plan;
  if (const UniqueFd shared = sharedTrash(top.get())) plan = within(shared.get(), prefix + "/.Trash", user, volume);
  if (!plan) plan = within(top.get(), topDir, ".Trash-" + user, volume);
  if (plan) plan->topDir = topDir;
  return plan;
}

/// The folder @p name in an open one, made if it is missing. What turns out to be somebody else's is taken back.
UniqueFd makeOwn(int dirFd, const QByteArray& name) {
  const bool made = ::mkdirat(dirFd, name.constData(), kFolderMode) == 0;
  if (!made && errno != EEXIST) return UniqueFd();
  UniqueFd folder(::openat(dirFd, name.constData(), kOpenFlags));
  if (!folder || isOwn(folder.get())) return folder;
  if (made) ::unlinkat(dirFd, name.constData(), AT_REMOVEDIR);
  errno = EPERM;
  return UniqueFd();
}

} // namespace

QByteArray homeTrash() {
  const QString data = places::data();
  return data.isEmpty() ? QByteArray() : names::encode(data) + "/Trash";
}

UniqueFd openOwn(int dirFd, const QByteArray& name) {
  UniqueFd folder(::openat(dirFd, name.constData(), kLookFlags | O_NOFOLLOW));
  if (!folder || isOwn(folder.get())) return folder;
  errno = EPERM;
  return UniqueFd();
}

std::optional<Plan> planFor(int dirFd, const Volume& volume) {
  if (std::optional<Plan> home = planHome(volume)) return home;
  if (livesInMemory(dirFd)) return std::nullopt;
  return planTop(dirFd, volume);
}

std::optional<Place> openPlace(const Plan& plan, const Volume& volume) {
  UniqueFd trash(::openat(plan.base.get(), ".", kOpenFlags));
  for (const QByteArray& name : plan.missing)
    if (trash) trash = makeOwn(trash.get(), name);
  if (!trash) return std::nullopt;
  Place place{makeOwn(trash.get(), "info"), makeOwn(trash.get(), "files"), plan.path, plan.topDir};
  if (!place.info || !place.files) return std::nullopt;
  if (Volume::of(place.info.get()) != volume || Volume::of(place.files.get()) != volume) {
    errno = EXDEV;
    return std::nullopt;
  }
  if (const long most = ::fpathconf(place.files.get(), _PC_NAME_MAX); most > 0) place.nameMax = most;
  return place;
}

} // namespace trash
