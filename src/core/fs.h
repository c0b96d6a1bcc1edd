/// Directories and file metadata: list, stat, measure and visit, without ever following a link that a folder holds.
/// The one place where the engines read the disk. Paths may be longer than the system's limit. Keeps no state; every
/// function runs on any thread at any time, reads only, and reports no error: an unreadable folder is an empty one, a
/// vanished entry is none.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <atomic>
#include <functional>

namespace fs {

/// One directory entry. Sizes of everything but a regular file are 0.
struct Entry {
  QString name; ///< without a folder
  bool isDir = false;
  bool isSymlink = false;
  qint64 allocated = 0; ///< bytes that it holds on disk (blocks of 512)
  qint64 size = 0;      ///< logical length in bytes
  quint64 inode = 0;
  quint32 links = 1;
  qint64 modifiedMs = 0; ///< ms since the epoch
  qint64 accessedMs = 0; ///< ms since the epoch
  qint64 device = 0;
  bool dataless = false; ///< has no contents on this disk; the walkers leave it alone
  quint32 owner = 0;     ///< user id
  quint32 type = 0;      ///< the type bits of the mode (S_IFMT)
  /// Whether the path that goes with this entry, by its text, reaches this very file. False where a name on the way is
  /// no text: the entry is measured, and is never acted on through a text path.
  bool reachable = true;
  QByteArray rawName = {}; ///< the name's bytes; from list() alone, and only where the name itself isn't reachable
};

/// What a tree holds.
struct Totals {
  qint64 bytes = 0;    ///< allocated
  qint64 files = 0;    ///< everything but folders
  qint64 newestMs = 0; ///< latest modification of what was counted; 0 when nothing was
  qint64 unread = 0;   ///< folders and entries that couldn't be looked at, with all below them; not what had gone

  bool operator==(const Totals&) const = default;
};

/// Called with the current folder and the sums so far, in bytes and files.
using Progress = std::function<void(const QString&, qint64, qint64)>;

/// @p dir and @p name with one "/" between them, unless @p dir ends with "/" or a backslash.
[[nodiscard]] QString join(const QString& dir, const QString& name);

/// The entries of a folder in the system's order, hidden ones too; empty if it can't be opened. A @p dir that is a link
/// to a folder is that folder. An entry's reachable tells of its own name, as @p dir is a text.
/// @param complete  receives whether the folder could be opened, read to its end, and every entry in it looked at (what
///                  vanished meanwhile doesn't count); may be null
[[nodiscard]] QList<Entry> list(const QString& dir, bool* complete = nullptr);

/// Metadata of @p path itself, a link included. False leaves @p out untouched.
[[nodiscard]] bool stat(const QString& path, Entry* out);

/// Whether something stands at @p path, a dangling link included. Only "no such file" counts as gone: a refusal, a
/// loop or an I/O error is true.
[[nodiscard]] bool exists(const QString& path);

/// False only if permission to list @p dir was refused; a path that is missing or no folder is true.
[[nodiscard]] bool isReadable(const QString& dir);

/// @p path with every link in it resolved; empty if it doesn't exist, or if no text reaches what it leads to.
[[nodiscard]] QString resolved(const QString& path);

/// Sums what the tree under @p path holds on disk.
/// Folders count nothing; a link counts as one file of 0 bytes; the hard links of one file count once. Stays on the
/// device of @p path. Sees trees deeper than the system's path limit, and names that aren't text. What can't be read
/// adds nothing but to Totals::unread.
/// @param progress  called on this thread after every 400th file with the current folder and the sums; may be empty
/// @param exclude   exact folder paths that aren't entered; the root isn't compared
/// @return what was counted until the end, or until @p cancel was raised (asked once a folder)
[[nodiscard]] Totals measure(const QString& path, const std::atomic<bool>& cancel, const Progress& progress = {},
                             const QList<QString>& exclude = {});

/// The same for the entry of the folder @p dir that bears this name in bytes: for what no text path reaches.
[[nodiscard]] Totals measureEntry(const QString& dir, const QByteArray& rawName, const std::atomic<bool>& cancel,
                                  const Progress& progress = {});

/// Calls @p visit for every entry below @p root that is neither folder nor link, with its path and metadata; both are
/// valid during the call and may be copied. No hard-link logic, no throttle. Stays on the device of @p root, which may
/// be a link to a folder. Like measure(), goes into the folder that was listed last first, and ends early, as if it
/// were the end, where the way back is lost because a folder on it was moved.
/// @param skipDir  asked with the parent path and a folder's name; true leaves it out; may be empty
/// @return false if @p cancel ended the walk (asked once a folder)
/// @throws std::bad_function_call if @p visit is empty
bool visitFiles(const QString& root, const std::atomic<bool>& cancel,
                const std::function<bool(const QString&, const QString&)>& skipDir,
                const std::function<void(const QString&, const Entry&)>& visit);

/// A file that a walk has come to; valid during the call. What takes time to make is made when it is asked for.
class VisitedFile {
 public:
  /// Bytes that it holds on disk.
  [[nodiscard]] qint64 allocated() const { return m_allocated; }
  /// The path of its folder.
  [[nodiscard]] virtual const QString& folder() const = 0;
  /// Its own path and metadata, as visitFiles() gives them.
  [[nodiscard]] virtual const QString& path() = 0;
  [[nodiscard]] virtual const Entry& entry() = 0;

 protected:
  ~VisitedFile() = default;

  qint64 m_allocated = 0;
};

/// The walk of visitFiles() for those who want to know much about few files: takes about as long as measure().
bool visitFilesLazily(const QString& root, const std::atomic<bool>& cancel,
                      const std::function<bool(const QString&, const QString&)>& skipDir,
                      const std::function<void(VisitedFile&)>& visit);

} // namespace fs
