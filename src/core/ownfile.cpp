#include "core/ownfile.h"

#include "core/UniqueFd.h"
#include "core/names.h"
#include "core/sys.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ownfile {
namespace {

constexpr qint64 kMostBytes = 1'000'000;
constexpr mode_t kMode = 0644;
constexpr int kMostNames = 1000; // of files set aside, and of temporary ones
/// A pipe that somebody put there must not make the program wait.
constexpr int kReadFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

/// The folder of a path, open, and the name in it.
struct Place {
  UniqueFd folder;
  QByteArray name;
};

Place placeOf(const QString& path) {
  const QByteArray raw = names::encode(path);
  const qsizetype slash = raw.lastIndexOf('/');
  const QByteArray folder = slash > 0 ? raw.left(slash) : QByteArray("/");
  return {UniqueFd(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)), raw.mid(slash + 1)};
}

bool readAll(int fd, qint64 size, QByteArray* bytes) {
  bytes->resize(size + 1); // one more, so that a file that has grown is seen
  qint64 filled = 0;
  while (filled < bytes->size()) {
    const ssize_t got = ::read(fd, bytes->data() + filled, static_cast<size_t>(bytes->size() - filled));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    if (got == 0) break;
    filled += got;
  }
  bytes->resize(filled);
  return filled <= size;
}

bool writeAll(int fd, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t done = ::write(fd, bytes.data(), static_cast<size_t>(bytes.size()));
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) return false;
    bytes = bytes.sliced(done);
  }
  return ::fsync(fd) == 0;
}

/// Makes a file of a name that nothing has, beside that of @p place. @param name  receives it
UniqueFd makeTemporary(const Place& place, QByteArray* name) {
  for (int number = 0; number < kMostNames; ++number) {
    *name = '.' + place.name + '.' + QByteArray::number(::getpid()) + '-' + QByteArray::number(number);
    UniqueFd fd(
        ::openat(place.folder.get(), name->constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kMode));
    if (fd || errno != EEXIST) return fd;
  }
  return {};
}

} // namespace

Content read(const QString& path) {
  const Place place = placeOf(path);
  if (!place.folder) return {errno == ENOENT ? Kind::Nothing : Kind::Other};
  const UniqueFd fd(::openat(place.folder.get(), place.name.constData(), kReadFlags));
  if (!fd) return {errno == ENOENT ? Kind::Nothing : Kind::Other};
  struct stat status;
  Content found{Kind::File};
  const bool isSmallFile =
      ::fstat(fd.get(), &status) == 0 && S_ISREG(status.st_mode) && qint64{status.st_size} <= kMostBytes;
  if (!isSmallFile || !readAll(fd.get(), status.st_size, &found.bytes)) return {Kind::Other};
  return found;
}

int write(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  const Place place = placeOf(path);
  if (!place.folder) return errno;
  QByteArray temporary;
  const UniqueFd fd = makeTemporary(place, &temporary);
  if (!fd) return errno;
  const bool replaced = writeAll(fd.get(), bytes) && ::renameat(place.folder.get(), temporary.constData(),
                                                                place.folder.get(), place.name.constData()) == 0;
  if (replaced) return 0;
  const int error = errno;
  ::unlinkat(place.folder.get(), temporary.constData(), 0);
  return error;
}

int remove(const QString& path) {
  const Place place = placeOf(path);
  const bool gone = place.folder && ::unlinkat(place.folder.get(), place.name.constData(), 0) == 0;
  return gone || errno == ENOENT ? 0 : errno;
}

QString setAside(const QString& path, const QString& word) {
  const Place place = placeOf(path);
  if (!place.folder) return {};
  for (int number = 1; number <= kMostNames; ++number) {
    const QString tail = QLatin1Char('.') + word + (number > 1 ? QStringLiteral("-%1").arg(number) : QString());
    const int error = sys::renameNoReplace(place.folder.get(), place.name.constData(), place.folder.get(),
                                           (place.name + names::encode(tail)).constData());
    if (error == 0) return path + tail;
    if (error != EEXIST) return {};
  }
  return {};
}

} // namespace ownfile
