/// The walk that removes, and what the targets of one Remover share.
#pragma once

#include "core/removal_survey.h"
#include "core/removal_tree.h"
#include "core/trash.h"

#include <optional>

namespace removal {

/// One Remover's run: what it was told, and what it keeps from target to target.
struct Run {
  Run(Options asked, Handlers given) : options(asked), handlers(std::move(given)) {}

  Options options;
  Handlers handlers;
  sys::DirReader reader;
  trash::Session session;
  StayCount stayCount{reader};
  qint64 removedNodes = 0;
};

/// The reason to stay that a verdict gives, if it gives one.
[[nodiscard]] std::optional<Kept> keptBy(Verdict verdict);
/// Calls the tests' hook.
void pauseBefore(const Node& node);

/// What came of one act on one node.
struct Act {
  int error = 0;        ///< 0 or the errno
  bool noTrash = false; ///< the volume has no Trash; nothing was tried
};
/// Removes the folder or the other thing @p name; neither is ever taken for the other.
[[nodiscard]] int removeEmptyFolder(int dirFd, const char* name);
[[nodiscard]] int removeFile(int dirFd, const char* name);
/// Moves @p node, @p name in the open folder, to the Trash.
[[nodiscard]] Act moveToTrash(Run& run, int dirFd, const Node& node);

/// Whether nothing stands at @p raw, which is the one thing that a failed question may mean for good.
[[nodiscard]] bool isGone(const QByteArray& raw);
/// What Remover::retry does.
[[nodiscard]] Remover::Retry retryNode(Run& run, Stay& stay);

/// Removes what lies below one open folder, or moves it to the Trash.
class RemovalWalk : public TreeWalk {
 public:
  enum class Extent { Child, All };

  /// @p top stands for @p path and stays itself; @p extent tells whether walkChild() or walkAll() will be called.
  RemovalWalk(Run& run, UniqueFd top, const NodePath& path, const Volume& volume, Extent extent);

  /// Whether what lies in the top folder could go to the Trash; true where it is to be deleted.
  [[nodiscard]] bool canMove() const { return m_hasTrash; }

 protected:
  void file() override;
  bool folder() override;
  void closed(int error) override;
  void unknown(int error) override;
  void left() override;
  void lost() override;
  bool topAgain() override;
  void entered() override;

 private:
  enum class Whole { Settled, Open };

  [[nodiscard]] bool mayGo(Verdict verdict);
  [[nodiscard]] bool isClean();
  [[nodiscard]] bool surveyIsClean();
  [[nodiscard]] Whole moveWhole();
  [[nodiscard]] int predictedRefusal();
  [[nodiscard]] int predictedFolderRefusal();
  [[nodiscard]] int removeOwnFolder();
  void leftStaying();
  void settle(int error);
  void keep(Kept reason);
  void busy(int error);
  void stays();

  Run& m_run;
  QByteArray m_topRaw;
  bool m_all = false;
  bool m_hasTrash = true;
  QSet<quint64> m_clean; ///< what the last survey found
  // Of the folder that is about to be entered:
  bool m_entersClean = false;   ///< it was found clean
  bool m_entersStaying = false; ///< it stays itself
};

} // namespace removal
