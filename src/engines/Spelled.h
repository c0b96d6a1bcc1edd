/// A place under both its names, so that no safety question can be dodged by a link.
#pragma once

#include "core/Guard.h"
#include "core/appguard.h"

#include <QString>

#include <algorithm>

struct Spelled {
  QString path;     ///< as the user knows it
  QString realPath; ///< with no link in it; equal to path in most cases

  [[nodiscard]] bool isOne() const { return path == realPath; }

  /// The gravest verdict on either name, in the order of Guard::Verdict.
  [[nodiscard]] Guard::Verdict ask(const Guard& guard, Guard::Exclusions exclusions = Guard::Exclusions::Ask) const {
    const Guard::Verdict verdict = guard.ask(path, exclusions);
    return isOne() ? verdict : graver(verdict, guard.ask(realPath, exclusions));
  }
  /// The same for a place of which the folder was asked and is Free under both names.
  [[nodiscard]] Guard::Verdict askBelow(const Guard& guard, Guard::Exclusions exclusions) const {
    const Guard::Verdict verdict = guard.askBelow(path, exclusions);
    return isOne() ? verdict : graver(verdict, guard.askBelow(realPath, exclusions));
  }
  [[nodiscard]] QString runningOwner(const appguard::RunningApps& apps) const {
    const QString owner = appguard::runningOwner(path, apps);
    return !owner.isEmpty() || isOne() ? owner : appguard::runningOwner(realPath, apps);
  }

 private:
  static Guard::Verdict graver(Guard::Verdict a, Guard::Verdict b) {
    if (a == Guard::Verdict::Free) return b;
    return b == Guard::Verdict::Free ? a : std::min(a, b);
  }
};
