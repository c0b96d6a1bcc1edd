/// The system's Trash: moving things into it, out of it again, and where it lies.
/// On Linux by the freedesktop.org trash rules, version 1.0. Only core/removal and undo call what moves.
#pragma once

#include <QByteArrayList>
#include <QList>
#include <QString>

#include <memory>

namespace trash {

enum class Result {
  Moved,
  NoTrash, ///< no Trash can be made on the file's volume: nothing was tried, nothing will help
  Failed,  ///< the system refused; error tells why, and the file stands where it stood
};

struct Outcome {
  Result result = Result::Failed;
  int error = 0;            ///< errno of a failure; ENOENT only where the thing itself has gone
  QString trashedPath = {}; ///< where a moved file lies now
  QString infoPath = {};    ///< its info file; empty on systems without such
};

/// Moves any number of things; knows the Trash of each volume after the first. One thread at a time.
class Session {
 public:
  Session();
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// Moves @p name out of the open folder @p dirFd, never following a link, never replacing, never to another device.
  /// The info file comes first. @p realPath is the absolute raw path that restoring goes back to.
  [[nodiscard]] Outcome move(int dirFd, const QByteArray& name, const QByteArray& realPath);
  /// Whether things on the volume of the open folder @p dirFd could be moved at all. Makes nothing.
  [[nodiscard]] bool hasTrash(int dirFd);
  /// Makes what was moved last through a power cut; once at the end of a run. Called by the destructor too.
  void sync();

 private:
  struct Data;
  std::unique_ptr<Data> d;
};

/// Moves a trashed file back to @p originalPath, never overwriting, and removes its info file.
/// @return 0 or the errno; EEXIST where something stands at the old place
[[nodiscard]] int restore(const QString& trashedPath, const QString& infoPath, const QString& originalPath);

/// The folders that hold the trashed things of the user: the home Trash and that of every mounted local volume that the
/// user can write to, in this order. Existing ones only: real folders of the user's own, no links, that a text path
/// reaches. Reads the disk.
[[nodiscard]] QList<QString> filesFolders();

/// Removes the info files of things that were deleted from the Trash folder @p filesFolder, and brings the size cache
/// file up to date: read once and replaced once at most, however many @p names there are. Passes over what is still
/// there, and does nothing for a folder that is no Trash of the user's.
void forget(const QString& filesFolder, const QByteArrayList& names);

} // namespace trash
