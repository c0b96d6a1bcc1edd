/// The plain values that travel between catalogue, engines, state and pages. Copies are cheap and share their payload.
#pragma once

#include <QColor>
#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// How much a user must think before cleaning a category.
enum Safety {
  Safe = 0,      ///< rebuilt by the system or the apps
  Review = 1,    ///< the user may still want it
  Permanent = 2, ///< cleaning can't be undone: always deleted, never moved to the Trash
};

/// One place on disk that a category looks at.
struct ScanRoot {
  QString path;         ///< absolute, clean; a folder that existed when the catalogue was built
  QStringList patterns; ///< wildcard filters for the children's names; empty means every child
  QString label;        ///< empty: each child is an item; else the whole folder is one item with this label
  QString realPath;     ///< path with its links resolved when the catalogue was built; empty means the same
  bool ownOnly = false; ///< only entries that belong to the user that the program runs as
};

/// One entry of the catalogue.
struct CategoryDef {
  QString id;           ///< stable key, never translated
  QString title;        ///< translated
  QString locationHint; ///< where it looks, in a few words; not translated
  QString blurb;        ///< translated explanation
  QString icon;
  QColor colour;
  Safety safety = Safe;
  bool needsAdmin = false;
  bool needsFullDiskAccess = false;
  bool usesRecycleBin = false; ///< stands for the system's recycle bin as a whole rather than for paths
  QList<ScanRoot> roots;       ///< may be empty
};

/// One line of a result, and the unit that a user can untick.
struct CleanItem {
  QString path;           ///< absolute; the item's key. Empty for a recycle bin
  QString name;           ///< file name, or the label of its root
  bool wholeRoot = false; ///< the contents of path go and the folder stays
  QString owner;          ///< running app that it belongs to, or empty
  qint64 bytes = 0;       ///< on disk; at least 1
  qint64 files = 0;
  qint64 modified = 0; ///< newest, ms since the epoch; 0 unknown
  qint64 unread = 0;   ///< what of it the scan couldn't look into
};

/// What a scan found in a category.
struct CategoryResult {
  CategoryDef def;
  qint64 bytes = 0;          ///< sum over items
  qint64 files = 0;          ///< files visited, also where they gave no item
  bool accessDenied = false; ///< a root could not be read
  QList<CleanItem> items;    ///< largest first
};

/// What one clean leaves.
struct CleanReport {
  qint64 freedBytes = 0; ///< what really left the disk or went to the Trash
  qint64 removedFiles = 0;
  qint64 skipped = 0;         ///< paths that stayed with a reason; not excluded ones, nor those of running apps
  QStringList skippedSamples; ///< the first five of them, native separators
  QStringList cleanedIds;     ///< categories that the run went through to their end
  QString logPath;            ///< full path of the log of this run
  bool needsAdmin = false;    ///< administrator rights could have helped
  QStringList runningApps;    ///< whose data was skipped, in order of first meeting
  QString refusal;            ///< why nothing was begun, in words for the user; empty when the clean ran
  QString dryRunLog;          ///< text of the log of a dry run, which writes no file
};

/// A large file of the Space Map.
struct LargeFile {
  QString path;
  QString name;
  QString dir;        ///< folder, native separators
  QString kind;       ///< untranslated label
  qint64 size = 0;    ///< allocated bytes
  QDateTime lastUsed; ///< later of access and modification
};

/// Tells one file from another, whatever they are called, for as long as both are there.
struct FileId {
  qint64 device = 0;
  quint64 inode = 0;

  bool operator==(const FileId&) const = default;
};

/// One move to the Trash that can be taken back.
struct TrashUndoEntry {
  QString originalPath;
  QString trashedPath; ///< where it lies now; may be empty: then it can't be brought back
  QString infoPath;    ///< its info file; empty on systems without such
};

/// One row of the System Data breakdown.
struct SystemDataItem {
  enum Action : qint32 {
    None = 0,
    RevealInFinder = 1,    ///< show it in the file manager
    MoveToTrash = 2,       ///< move the contents of its folders to the Trash
    RemoveSnapshots = 3,   ///< have the system remove its local snapshots
    DeleteUnavailable = 4, ///< have the developer tools delete simulators without a runtime
    CleanInCleanup = 5,    ///< the Cleanup page does it
    OpenXcode = 6,
  };

  QString id; ///< stable key, never translated
  QString title;
  QString blurb; ///< what it is, and who trims it
  QString icon;
  QColor color;
  bool actionable = false; ///< the user can reclaim it
  Action action = None;
  QList<QString> paths;    ///< places to measure
  QList<QString> excludes; ///< exact folders below them that aren't entered
  qint64 bytes = 0;        ///< allocated; 0 until measured
  qint64 files = 0;
  bool denied = false; ///< a place that exists couldn't be read
  qint32 count = -1;   ///< number of objects that the size doesn't tell; -1: doesn't apply
  QString detail;      ///< short text under the title

  /// The text of its button; empty for None and for what isn't an action.
  [[nodiscard]] QString actionLabel() const;
  /// Whether the user must be asked first.
  [[nodiscard]] bool destructive() const;
};

Q_DECLARE_METATYPE(CategoryResult)
Q_DECLARE_METATYPE(CategoryDef)
Q_DECLARE_METATYPE(CleanReport)
Q_DECLARE_METATYPE(LargeFile)
Q_DECLARE_METATYPE(SystemDataItem)

namespace records {
/// Registers the types that cross threads in signals. Before any engine exists.
void registerMetaTypes();
} // namespace records
