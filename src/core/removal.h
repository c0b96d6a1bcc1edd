/// The one primitive that removes the user's things or moves them to the Trash.
///
/// It opens the folder of an item once, through no link, and works from that descriptor down, on raw name bytes, with
/// an explicit stack and a bounded number of descriptors. Every node is asked before it goes. It never crosses a mount,
/// never changes modes, never follows a link, never copies.
#pragma once

#include "core/fs.h"
#include "core/trash.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace removal {

/// An item, or the folder of which the contents are to go.
struct Target {
  QString path;     ///< as the user knows it; absolute and clean
  QString realPath; ///< the same with no link in the folders above it; equal to path in most cases
};

/// One thing on its way out.
struct Node {
  QString path;       ///< as the user knows it; lossy where a name is no text
  QString realPath;   ///< as the system knows it
  QByteArray realRaw; ///< the same in the system's bytes
  bool isDir = false; ///< a folder, not a link to one
  bool isText = true; ///< whether the text paths reach it
};

enum class Verdict {
  Remove,
  KeepExcluded,
  KeepProtectedData,
  KeepProtectedLocation,
  KeepOpen,
  NotWhole,   ///< a folder that must not leave as a whole, because something below it must stay
  KeepFolder, ///< a folder that itself stays, told as Kept::Open; what lies in it is asked one by one
};

/// Why something stays for good.
enum class Kept {
  Excluded,
  ProtectedData,
  ProtectedLocation,
  Open,
  AnotherVolume,
  NoTrash,
  NotWhole, ///< a folder that was to leave whole or not at all, and in which something must stay
};

/// A node that the system refused to let go, kept for another attempt.
struct Stay {
  Node node;
  QByteArray topRaw; ///< raw path of the folder that was opened first; nothing above it is touched
  int error = 0;     ///< errno of the last attempt
};

/// What the caller decides and learns, all on the removing thread.
struct Handlers {
  /// Asked of every node: first of the target, then only of what lies in folders that don't stay with all in them;
  /// never of the folder that removeChildren() empties. Where things move to the Trash, what lies in a folder that has
  /// to be opened is asked twice, as a folder is surveyed before it may leave whole. May not be empty.
  std::function<Verdict(const Node&)> judge;
  /// The node stays, with all that lies in it. Each is told once. May be empty, as may busy.
  std::function<void(const Node&, Kept)> kept = {};
  /// The system refused; the node stays for now. Told of a folder that can't be entered or read to its end, or that
  /// stays although nothing told to stay lies in it; a folder that stays for what it holds is no word.
  std::function<void(const Stay&)> busy = {};
  /// The node went to the Trash, a folder with all in it; tells where it lies now. May be empty.
  std::function<void(const Node&, const trash::Outcome&)> moved = {};
};

struct Options {
  bool toTrash = false; ///< move to the Trash rather than delete; a failed move never becomes a delete
  bool dryRun = false;  ///< ask and tell everything, touch nothing
  /// Where things move to the Trash: a folder goes in one piece or stays as it is; it is never opened and emptied.
  bool wholeOnly = false;
};

/// Removes any number of targets. One thread at a time.
class Remover {
 public:
  Remover(Options options, Handlers handlers);
  ~Remover();
  Remover(const Remover&) = delete;
  Remover& operator=(const Remover&) = delete;

  /// Removes the target with everything in it. A folder of which something must stay is emptied around it and stays.
  /// What is already gone is no word. A target whose folder can't be opened without following a link is told as busy.
  void remove(const Target& target);
  /// Removes everything in the target, a folder that itself stays and isn't asked about. Where its volume has no Trash,
  /// kept is told once, of the target.
  void removeChildren(const Target& target);

  enum class Retry { Gone, Stayed, Kept };
  /// Tries one node again, asking every question again (Kept: the answer is now a reason to stay, and was told).
  /// Only the node itself: a folder is removed only if it is empty. Gone also where it went meanwhile. The folders
  /// above it, below the target's own folder (or below the target for removeChildren), go too where they are now empty.
  /// Stayed brings @p stay's error up to date.
  [[nodiscard]] Retry retry(Stay* stay);

  /// In a dry run: what the targets so far would leave behind, in allocated bytes and files, and how much of that
  /// couldn't be looked into.
  [[nodiscard]] fs::Totals wouldStay() const;
  /// Nodes that went, links and folders not told apart; for tests and benchmarks.
  [[nodiscard]] qint64 removedNodes() const;

 private:
  struct Data;
  std::unique_ptr<Data> d;
};

/// For tests: called between the question about a node and its removal, and again before an emptied folder is removed.
/// Empty in the program. Not for use while a Remover works on another thread.
void setPauseHook(std::function<void(const Node&)> hook);

} // namespace removal
