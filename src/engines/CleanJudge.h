/// Asks every safety question about what a clean is about to remove, at that moment: what a scan allowed earlier proves
/// nothing.
#pragma once

#include "app/records.h"
#include "core/Guard.h"
#include "core/appguard.h"
#include "core/removal.h"
#include "engines/Spelled.h"
#include "engines/categories.h"

#include <QSet>

#include <functional>
#include <optional>
#include <utility>

/// One item of a run, with what the clean must know beside it. The pointers are into the run's own copy of the results.
struct CleanWork {
  const CleanItem* item = nullptr;
  const CategoryDef* def = nullptr;
  Spelled place;        ///< the item's path; its real path goes by where the scan found its root
  bool ownOnly = false; ///< as its root asks
  bool toTrash = false;
  bool isOnePath = true; ///< whether both names of the place are the same, and so those of all below it
  bool isTrash = false;  ///< of the category of the Trash
};

/// Holds the snapshots of one run. One thread.
class CleanJudge {
 public:
  /// Takes the snapshots. @p isOwnLog tells whether a path is the run's own log file.
  CleanJudge(const QList<QString>& exclusions, const appguard::Sources& sources,
             std::function<bool(const QString&)> isOwnLog);

  /// Counts @p path as open, under all its spellings.
  void addOpen(const QString& path);

  /// What the rules and the protected app data say of a whole item.
  [[nodiscard]] Guard::Verdict askItem(const CleanWork& work) const { return work.place.ask(m_guard); }
  /// The running app that an item belongs to; empty if none, and for categories without owners.
  [[nodiscard]] QString runningOwner(const CleanWork& work) const;
  /// Says that from now on nodes are asked about that stayed. A folder that was admitted isn't measured again, as what
  /// the run took out of it made it look new; a file in it is.
  void beginRetries() { m_isRetrying = true; }
  /// The verdict on a node of @p work.
  [[nodiscard]] removal::Verdict judge(const CleanWork& work, const removal::Node& node);

 private:
  [[nodiscard]] removal::Verdict judgeTarget(const CleanWork& work, const removal::Node& node);
  [[nodiscard]] removal::Verdict judgeOpen(const CleanWork& work, const removal::Node& node) const;
  [[nodiscard]] bool liesInARoot(const CleanWork& work) const;
  [[nodiscard]] bool isAdmitted(const CleanWork& work, const removal::Node& node);
  [[nodiscard]] bool isAdmittedBelow(const CleanWork& work, const removal::Node& node);
  [[nodiscard]] const categories::Admission& admission();
  [[nodiscard]] bool holdsMoreThanCache(const removal::Node& node) const;

  Guard m_guard;
  appguard::Sources m_sources;
  appguard::RunningApps m_apps;
  appguard::OpenFiles m_open;
  QSet<QString> m_cacheRoots; ///< of the Linux host, under all their spellings
  std::optional<categories::Admission> m_admission;
  QSet<std::pair<qint64, quint64>> m_admitted; ///< folders, by device and inode
  bool m_isRetrying = false;
  std::function<bool(const QString&)> m_isOwnLog;
};
