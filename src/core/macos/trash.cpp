#include "core/trash.h"

#include "core/UniqueFd.h"
#include "core/names.h"
#include "core/places.h"
#include "core/sys.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>

namespace trash {

namespace {

constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

QByteArray folderOf(const QByteArray& path) { return path.left(qMax(path.lastIndexOf('/'), qsizetype(1))); }
QByteArray nameOf(const QByteArray& path) { return path.mid(path.lastIndexOf('/') + 1); }

} // namespace

// The system keeps its Trash itself and takes a path; there is nothing to remember between two moves.
struct Session::Data {};

Session::Session() : d(std::make_unique<Data>()) {}

Session::~Session() = default;

Outcome Session::move(int dirFd, const QByteArray& name, const QByteArray&) {
  const auto failed = [](int error) { return Outcome{Result::Failed, error, {}, {}}; };
  struct stat status;
  if (::fstatat(dirFd, name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0) return failed(errno);
  // Where the open folder is now, whatever became of the path that led to it.
  const QByteArray folder = sys::descriptorPath(dirFd);
  if (folder.isEmpty() || !names::survives(folder) || !names::survives(name)) return failed(EILSEQ);
  QString trashed;
  if (!QFile::moveToTrash(names::decode(folder + '/' + name), &trashed)) return failed(EACCES);
  return {Result::Moved, 0, trashed, {}};
}

bool Session::hasTrash(int) { return true; }

void Session::sync() {}

int restore(const QString& trashedPath, const QString&, const QString& originalPath) {
  const QByteArray trashed = names::encode(trashedPath);
  const QByteArray original = names::encode(originalPath);
  const UniqueFd from(::open(folderOf(trashed).constData(), kFolderFlags));
  if (!from) return errno;
  const UniqueFd to(::open(folderOf(original).constData(), kFolderFlags));
  if (!to) return errno;
  return sys::renameNoReplace(from.get(), nameOf(trashed).constData(), to.get(), nameOf(original).constData());
}

QList<QString> filesFolders() {
  const QString home = places::home();
  if (home.isEmpty()) return {};
  const QString trash = home + QStringLiteral("/.Trash");
  const UniqueFd folder(::open(names::encode(trash).constData(), kFolderFlags | O_NOFOLLOW));
  return folder ? QList<QString>{trash} : QList<QString>{};
}

// The system keeps no info files.
void forget(const QString&, const QByteArrayList&) {}

} // namespace trash
