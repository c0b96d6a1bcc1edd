#include "core/fs.h"

#include "core/fs_files.h"
#include "core/names.h"
#include "core/sys.h"

#include <QDir>

#include <fcntl.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>

namespace fs {
namespace {

constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC;

/// A path made ready for the system: where to start, and what to ask there. Paths beyond the system's limit are walked
/// in pieces that it takes.
struct Place {
  UniqueFd start;
  QByteArray rest;

  [[nodiscard]] int at() const { return start ? start.get() : AT_FDCWD; }
};

Place placeOf(const QString& path) {
  Place place{UniqueFd(), names::encode(path)};
  while (place.rest.size() >= PATH_MAX) {
    const qsizetype cut = place.rest.lastIndexOf('/', PATH_MAX - 2);
    if (cut <= 0) break;
    UniqueFd next(sys::openPassage(place.at(), place.rest.left(cut).constData(), sys::Links::Follow));
    if (!next) break; // what is left is too long for any call, which then fails
    place.start = std::move(next);
    qsizetype begin = cut;
    while (begin < place.rest.size() && place.rest[begin] == '/') ++begin;
    place.rest = begin < place.rest.size() ? place.rest.mid(begin) : QByteArrayLiteral(".");
  }
  return place;
}

} // namespace

bool statusOf(const QString& path, struct stat* status) {
  const Place place = placeOf(path);
  return ::fstatat(place.at(), place.rest.constData(), status, AT_SYMLINK_NOFOLLOW) == 0;
}

UniqueFd openFolder(const QString& path, int moreFlags) {
  const Place place = placeOf(path);
  return UniqueFd(::openat(place.at(), place.rest.constData(), kFolderFlags | moreFlags));
}

UniqueFd openFolderAt(int dirFd, const QByteArray& rawName) {
  return UniqueFd(::openat(dirFd, rawName.constData(), kFolderFlags | O_NOFOLLOW));
}

void fill(Entry* entry, const struct stat& status) {
  const bool regular = S_ISREG(status.st_mode);
  entry->isDir = S_ISDIR(status.st_mode);
  entry->isSymlink = S_ISLNK(status.st_mode);
  entry->allocated = regular ? qint64{status.st_blocks} * 512 : 0;
  entry->size = regular ? qint64{status.st_size} : 0;
  entry->inode = status.st_ino;
  entry->links = static_cast<quint32>(status.st_nlink);
  entry->modifiedMs = sys::modifiedMs(status);
  entry->accessedMs = sys::accessedMs(status);
  entry->device = static_cast<qint64>(status.st_dev);
  entry->dataless = sys::isDataless(status);
  entry->owner = status.st_uid;
  entry->type = static_cast<quint32>(status.st_mode & S_IFMT);
}

bool reaches(int dirFd, QByteArrayView name, const struct stat& status) {
  return names::survives(name) || reachesAnyway(dirFd, name, status);
}

bool reachesAnyway(int dirFd, QByteArrayView name, const struct stat& status) {
  if (!name.isValidUtf8()) return false;
  const QByteArray asked = names::encode(names::decode(name));
  struct stat other;
  if (::fstatat(dirFd, asked.constData(), &other, AT_SYMLINK_NOFOLLOW) != 0) return false;
  return other.st_dev == status.st_dev && other.st_ino == status.st_ino;
}

QString join(const QString& dir, const QString& name) {
  if (dir.endsWith(QLatin1Char('/')) || dir.endsWith(QLatin1Char('\\'))) return dir + name;
  return dir + QLatin1Char('/') + name;
}

QList<Entry> list(const QString& dir, bool* complete) {
  QList<Entry> entries;
  const UniqueFd fd = openFolder(dir);
  sys::DirReader reader;
  if (complete) *complete = static_cast<bool>(fd);
  if (!fd) return entries;
  reader.startFresh(fd.get());
  sys::RawName raw;
  struct stat status;
  while (reader.next(&raw)) {
    if (::fstatat(fd.get(), raw.name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
      if (complete && errno != ENOENT) *complete = false;
      continue;
    }
    const QByteArrayView name(raw.name, static_cast<qsizetype>(raw.length));
    Entry& entry = entries.emplace_back();
    entry.name = names::decode(name);
    entry.reachable = !joinsWrongly(dir) && reaches(fd.get(), name, status);
    if (!entry.reachable) entry.rawName = name.toByteArray();
    fill(&entry, status);
  }
  if (complete && reader.error() != 0) *complete = false;
  return entries;
}

bool stat(const QString& path, Entry* out) {
  struct stat status;
  if (!statusOf(path, &status)) return false;
  *out = Entry{};
  out->name = QDir(path).dirName();
  fill(out, status);
  return true;
}

bool exists(const QString& path) {
  struct stat status;
  return statusOf(path, &status) || (errno != ENOENT && errno != ENOTDIR);
}

bool isReadable(const QString& dir) { return openFolder(dir) || (errno != EACCES && errno != EPERM); }

QString resolved(const QString& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(names::encode(path).constData(), nullptr),
                                                         &std::free);
  if (!real) return {};
  const QByteArrayView raw(real.get());
  return raw.isValidUtf8() ? names::decode(raw) : QString();
}

} // namespace fs
