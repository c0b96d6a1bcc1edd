#include "core/Guard.h"

#include "core/patterns.h"
#include "core/rules.h"
#include "core/safety.h"

struct Guard::Data {
  rules::RuleSet rules;
  const patterns::Matcher& names;
  std::shared_ptr<const safety::Locations> locations;
};

Guard::Guard(const QList<QString>& exclusionRules)
    : d(std::make_shared<const Data>(Data{rules::RuleSet(exclusionRules), patterns::Matcher::of(patterns::inForce()),
                                          safety::Locations::current()})) {}
Guard::~Guard() = default;
Guard::Guard(const Guard&) = default;
Guard& Guard::operator=(const Guard&) = default;

Guard::Verdict Guard::ask(const QString& path, Exclusions exclusions) const {
  const QString normalized = safety::normalized(path);
  if (exclusions == Exclusions::Ask && !d->rules.isEmpty() && d->rules.covers(rules::Subject(normalized)))
    return Verdict::Excluded;
  if (d->names.matchesPath(path)) return Verdict::ProtectedData;
  return d->locations->hold(normalized) ? Verdict::ProtectedLocation : Verdict::Free;
}

Guard::Verdict Guard::askBelow(const QString& path, Exclusions exclusions) const {
  const QStringView leaf = QStringView(path).sliced(path.lastIndexOf(u'/') + 1);
  if (exclusions == Exclusions::Ask && !d->rules.isEmpty() &&
      (!leaf.isValidUtf16() || d->rules.coversBelow(path, leaf)))
    return Verdict::Excluded;
  if (d->names.matchesName(leaf)) return Verdict::ProtectedData;
  return d->locations->holdBelow(path) ? Verdict::ProtectedLocation : Verdict::Free;
}
