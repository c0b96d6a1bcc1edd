#include "core/trash.h"

#include "core/linux/trash_places.h"
#include "core/names.h"
#include "core/trashinfo.h"

#include <QFile>
#include <QHash>
#include <QSet>

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <vector>

namespace trash {

namespace {

constexpr int kInfoFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
constexpr mode_t kFileMode = 0600;
/// So many names of one stem may be taken before a move is given up.
constexpr int kMostNames = 1'000'000;

/// Writes all of @p text. 0 or the errno.
int writeAll(int fd, const QByteArray& text) {
  for (qsizetype done = 0; done < text.size();) {
    const ssize_t wrote = ::write(fd, text.constData() + done, static_cast<size_t>(text.size() - done));
    if (wrote < 0 && errno != EINTR) return errno;
    if (wrote > 0) done += wrote;
  }
  return 0;
}

/// Makes a file that must not be there, whole or not at all. 0 or the errno.
int writeNew(int dirFd, const QByteArray& name, const QByteArray& text) {
  UniqueFd file(::openat(dirFd, name.constData(), kInfoFlags, kFileMode));
  if (!file) return errno;
  int error = writeAll(file.get(), text);
  // The last moment at which some file systems tell that there was no room.
  if (error == 0 && ::close(file.release()) != 0 && errno != EINTR) error = errno;
  if (error != 0) ::unlinkat(dirFd, name.constData(), 0);
  return error;
}

bool isThere(int dirFd, const QByteArray& name) {
  struct stat status;
  return ::fstatat(dirFd, name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0 || errno != ENOENT;
}

/// The local time as info files tell it, made once a second.
class Clock {
 public:
  Clock() { ::tzset(); }
  const QByteArray& now() {
    const std::time_t second = std::time(nullptr);
    if (second == m_second) return m_text;
    std::tm parts{};
    ::localtime_r(&second, &parts);
    char text[32];
    m_text = QByteArray(text, static_cast<qsizetype>(std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &parts)));
    m_second = second;
    return m_text;
  }

 private:
  std::time_t m_second = -1;
  QByteArray m_text;
};

} // namespace

/// What a session knows of one volume.
struct Known {
  Volume volume;
  std::optional<Plan> plan;    ///< nothing: no Trash
  std::optional<Place> place;  ///< once something is to be moved
  QHash<QByteArray, int> next; ///< for names that were taken: the number to try
  bool moved = false;          ///< since the last sync
};

struct Session::Data {
  std::vector<Known> volumes;
  Clock clock;

  Known* find(int dirFd);
  bool open(Known* known);
  Outcome moveTo(Known* known, int dirFd, const QByteArray& name, const QByteArray& realPath);
};

// The plan is made once for a volume.
Known* Session::Data::find(int dirFd) {
  const std::optional<Volume> volume = Volume::of(dirFd);
  if (!volume) return nullptr;
  for (Known& known : volumes)
    if (known.volume == *volume) return &known;
  volumes.push_back({*volume, planFor(dirFd, *volume), {}, {}});
  return &volumes.back();
}

bool Session::Data::open(Known* known) {
  if (!known->place) known->place = openPlace(*known->plan, known->volume);
  return known->place.has_value();
}

namespace {

/// What the info file calls the thing; empty where it doesn't lie below the volume's top.
QByteArray pathForInfo(const Place& place, const QByteArray& realPath) {
  if (place.topDir.isEmpty()) return realPath;
  const QByteArray prefix = place.topDir == "/" ? place.topDir : place.topDir + '/';
  return realPath.startsWith(prefix) ? realPath.mid(prefix.size()) : QByteArray();
}

Outcome failed(int error) { return {.result = Result::Failed, .error = error}; }

} // namespace

Outcome Session::Data::moveTo(Known* known, int dirFd, const QByteArray& name, const QByteArray& realPath) {
  const Place& place = *known->place;
  const QByteArray path = pathForInfo(place, realPath);
  if (path.isEmpty()) return failed(EXDEV);
  const QByteArray text = trashinfo::contents(path, clock.now());
  int number = known->next.isEmpty() ? 1 : known->next.value(name, 1);
  for (; number < kMostNames; ++number) {
    const QByteArray own = trashinfo::candidate(name, number, place.nameMax);
    const QByteArray info = trashinfo::infoName(own);
    int error = writeNew(place.info.get(), info, text);
    if (error == EEXIST) continue;
    if (error != 0) return failed(error == ENOENT ? ESTALE : error);
    error = sys::renameNoReplace(dirFd, name.constData(), place.files.get(), own.constData());
    if (error == 0) {
      if (number > 1) known->next.insert(name, number + 1);
      known->moved = true;
      return {.result = Result::Moved,
              .trashedPath = names::decode(place.path + "/files/" + own),
              .infoPath = names::decode(place.path + "/info/" + info)};
    }
    ::unlinkat(place.info.get(), info.constData(), 0);
    if (error != EEXIST) return failed(error == ENOENT && isThere(dirFd, name) ? ESTALE : error);
  }
  return failed(EEXIST);
}

Session::Session() : d(std::make_unique<Data>()) {}

Session::~Session() { sync(); }

Outcome Session::move(int dirFd, const QByteArray& name, const QByteArray& realPath) {
  if (name.isEmpty() || name == "." || name == ".." || name.contains('/')) return failed(EINVAL);
  Known* known = d->find(dirFd);
  if (!known) return failed(errno);
  Outcome outcome;
  for (int attempt = 0; attempt < 2; ++attempt) {
    if (!known->plan) return {.result = Result::NoTrash};
    const bool isOpen = d->open(known);
    outcome = isOpen ? d->moveTo(known, dirFd, name, realPath) : failed(errno == ENOENT ? ESTALE : errno);
    if (known->place && outcome.error != ESTALE) return outcome;
    // Somebody else made the Trash meanwhile, or took it away: what holds now?
    known->place.reset();
    known->plan = planFor(dirFd, known->volume);
  }
  return outcome;
}

bool Session::hasTrash(int dirFd) {
  const Known* known = d->find(dirFd);
  return known && known->plan;
}

void Session::sync() {
  for (Known& known : d->volumes)
    if (std::exchange(known.moved, false) && known.place) ::syncfs(known.place->info.get());
}

namespace {

QByteArray folderOf(const QByteArray& path) { return path.left(qMax(path.lastIndexOf('/'), qsizetype(1))); }
QByteArray nameOf(const QByteArray& path) { return path.mid(path.lastIndexOf('/') + 1); }

/// Reads a regular file, never through a link; empty if it can't.
QByteArray readFile(int dirFd, const char* name) {
  const UniqueFd fd(::openat(dirFd, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status;
  if (!fd || ::fstat(fd.get(), &status) != 0 || !S_ISREG(status.st_mode)) return {};
  QFile file;
  return file.open(fd.get(), QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Takes @p names out of the size cache of an open Trash folder: a new file in the old one's place.
void forgetSizes(int trashFd, const QSet<QByteArray>& names) {
  constexpr char kSizes[] = "directorysizes";
  const QByteArray sizes = readFile(trashFd, kSizes);
  const QByteArray kept = trashinfo::withoutSizes(sizes, names);
  if (kept == sizes) return;
  const QByteArray fresh = kSizes + ("." + QByteArray::number(::getpid())) + ".new";
  if (writeNew(trashFd, fresh, kept) != 0) return;
  if (::renameat(trashFd, fresh.constData(), trashFd, kSizes) != 0) ::unlinkat(trashFd, fresh.constData(), 0);
}

/// Removes the info files and the cached sizes of things that aren't in the open Trash folder any more.
void forgetIn(int trashFd, const QSet<QByteArray>& names) {
  const UniqueFd info = openOwn(trashFd, "info");
  if (info)
    for (const QByteArray& name : names) ::unlinkat(info.get(), trashinfo::infoName(name).constData(), 0);
  forgetSizes(trashFd, names);
}

bool isSameFolder(int one, int other) {
  struct stat a;
  struct stat b;
  return ::fstat(one, &a) == 0 && ::fstat(other, &b) == 0 && a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/// Whether an open folder at @p path is a Trash of the user's, and no folder that only looks like one.
bool isTrash(int fd, const QByteArray& path) {
  const QByteArray user = QByteArray::number(::geteuid());
  const QByteArray name = nameOf(path);
  if (name == ".Trash-" + user || (name == user && nameOf(folderOf(path)) == ".Trash")) return true;
  const UniqueFd home = openOwn(AT_FDCWD, homeTrash());
  return home && isSameFolder(fd, home.get());
}

} // namespace

int restore(const QString& trashedPath, const QString& infoPath, const QString& originalPath) {
  const QByteArray trashed = names::encode(trashedPath);
  const QByteArray original = names::encode(originalPath);
  const UniqueFd files(::open(folderOf(trashed).constData(), kFolderFlags | O_NOFOLLOW));
  if (!files) return errno;
  const UniqueFd folder(::open(folderOf(original).constData(), kFolderFlags));
  if (!folder) return errno;
  const QByteArray name = nameOf(trashed);
  const int error = sys::renameNoReplace(files.get(), name.constData(), folder.get(), nameOf(original).constData());
  if (error != 0) return error;
  const UniqueFd trash(::openat(files.get(), "..", kFolderFlags));
  if (trash && nameOf(names::encode(infoPath)) == trashinfo::infoName(name)) forgetIn(trash.get(), {name});
  return 0;
}

namespace {

/// Where Trash folders of the user's may lie, the home Trash first.
QByteArrayList possibleTrashes() {
  const QByteArray user = QByteArray::number(::geteuid());
  QByteArrayList trashes = {homeTrash()};
  for (const QByteArray& point : trashinfo::localMountPoints(readFile(AT_FDCWD, "/proc/self/mountinfo"))) {
    const QByteArray prefix = point == "/" ? QByteArray() : point;
    struct stat shared;
    const bool sticky = ::lstat((prefix + "/.Trash").constData(), &shared) == 0 && S_ISDIR(shared.st_mode) &&
                        (shared.st_mode & S_ISVTX) != 0;
    if (sticky) trashes.append(prefix + "/.Trash/" + user);
    trashes.append(prefix + "/.Trash-" + user);
  }
  return trashes;
}

} // namespace

QList<QString> filesFolders() {
  QList<QString> folders;
  for (const QByteArray& trash : possibleTrashes()) {
    if (trash.isEmpty() || !names::survives(trash)) continue; // by its text another folder would be reached, or none
    const UniqueFd own = openOwn(AT_FDCWD, trash);
    const UniqueFd files = own ? openOwn(own.get(), "files") : UniqueFd();
    if (files && ::faccessat(files.get(), ".", W_OK | X_OK, AT_EACCESS) == 0)
      folders.append(names::decode(trash + "/files"));
  }
  return folders;
}

void forget(const QString& filesFolder, const QByteArrayList& things) {
  const QByteArray path = names::encode(filesFolder);
  if (nameOf(path) != "files") return;
  const UniqueFd trash = openOwn(AT_FDCWD, folderOf(path));
  const UniqueFd files = trash ? openOwn(trash.get(), "files") : UniqueFd();
  if (!files || !isTrash(trash.get(), folderOf(path))) return;
  QSet<QByteArray> gone;
  for (const QByteArray& name : things)
    if (!name.isEmpty() && !name.contains('/') && !isThere(files.get(), name)) gone.insert(name);
  if (!gone.isEmpty()) forgetIn(trash.get(), gone);
}

} // namespace trash
