/// Every question that a path must pass before it is listed or removed, prepared once for a run.
#pragma once

#include <QList>
#include <QString>

#include <memory>

/// Holds the user's rules, the protected app data and the protected locations in a form that answers quickly.
/// Gives the same answers as safety::isExcluded, appguard::isProtectedAppData and safety::isProtected. Immutable, cheap
/// to copy, any thread; reads no disk.
class Guard {
 public:
  /// In the order in which they are asked: the first that holds is the answer.
  enum class Verdict : quint8 { Free, Excluded, ProtectedData, ProtectedLocation };
  enum class Exclusions : quint8 { Ask, Ignore };

  /// Takes the lists of platform::host(), the home folder and the places as they are now.
  explicit Guard(const QList<QString>& exclusionRules = {});
  ~Guard();
  Guard(const Guard&);
  Guard& operator=(const Guard&);

  /// The verdict on any absolute path.
  [[nodiscard]] Verdict ask(const QString& path, Exclusions exclusions = Exclusions::Ask) const;
  /// The same verdict for a clean path whose folder was asked before and is Free: only what its last component adds is
  /// looked at.
  [[nodiscard]] Verdict askBelow(const QString& path, Exclusions exclusions = Exclusions::Ask) const;

 private:
  struct Data;
  std::shared_ptr<const Data> d;
};
