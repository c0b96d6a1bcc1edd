/// The walks that only look: which folders may leave as a whole, and what stays behind a dry run.
#pragma once

#include "core/fs.h"
#include "core/removal_tree.h"

#include <QPair>
#include <QSet>

namespace removal {

/// Finds out whether a folder may leave as a whole, and if it may not, which folders in it may. Asks the judge of every
/// node, changes nothing.
class Survey : public TreeWalk {
 public:
  using Judge = std::function<Verdict(const Node&)>;

  /// What was found.
  struct Result {
    bool holds = true;     ///< something in it must stay
    QSet<quint64> clean{}; ///< inodes of the folders that may leave whole, in folders that may not
  };

  /// @p top is the folder in question, which itself was asked before.
  Survey(sys::DirReader& reader, UniqueFd top, const NodePath& path, const Volume& volume, const Judge& judge)
      : TreeWalk(reader, std::move(top), path, volume), m_judge(judge) {}

  /// Goes through the tree once.
  [[nodiscard]] Result run();

 protected:
  void file() override;
  bool folder() override;
  void closed(int error) override;
  void unknown(int error) override;
  void left() override;
  void lost() override;
  void entered() override;
  void finished() override;

 private:
  void takeClean();

  const Judge& m_judge;
  Result m_result;
  bool m_notWhole = false; ///< the verdict on the folder that is about to be entered
};

/// Sums what stays, the way fs::measure does: allocated bytes, files, hard links once, one device.
class StayCount {
 public:
  explicit StayCount(sys::DirReader& reader) : m_reader(reader) {}

  /// A new item begins: hard links count once within it.
  void beginItem() { m_linked.clear(); }
  /// Adds @p name in an open folder, with everything in it.
  void addNode(int dirFd, const char* name);
  /// Adds everything in an open folder.
  void addAll(int dirFd);
  [[nodiscard]] const fs::Totals& totals() const { return m_totals; }

 private:
  class Walk;
  void addFile(int dirFd, const char* name);
  void miss(int error);

  sys::DirReader& m_reader;
  fs::Totals m_totals;
  QSet<QPair<quint64, quint64>> m_linked; ///< device and inode of counted files with several links
};

} // namespace removal
