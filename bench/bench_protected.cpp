/// Times appguard::isProtectedAppData over 100,000 paths against asking each of the common expressions of each
/// component.
#include "core/appguard.h"
#include "core/patterns.h"

#include "../tests/support/expressions.h"
#include "../tests/support/realistic_paths.h"
#include "figure.h"

#include <cstdio>

namespace {

constexpr qsizetype kPaths = 100000;
constexpr int kRounds = 20; // of ours; one takes too little time to be told

/// Asks each expression of the common list; the times compared leave the Linux additions to ours alone.
double msOfExpressions(const QList<QString>& all, QList<bool>* answers) {
  const QList<QRegularExpression> list = expressions::wildcards(patterns::common());
  const bench::Clock clock;
  for (const QString& path : all) answers->append(expressions::isProtectedData(path, list));
  return clock.ms();
}

double msOfMatcher(const QList<QString>& all, qsizetype* hits) {
  const bench::Clock clock;
  for (int round = 0; round < kRounds; ++round)
    for (const QString& path : all) *hits += appguard::isProtectedAppData(path) ? 1 : 0;
  *hits /= kRounds;
  return clock.ms() / kRounds;
}

qsizetype differences(const QList<QString>& all, const QList<bool>& common) {
  const QList<QRegularExpression> additions = expressions::wildcards(patterns::linuxAdditions());
  const bool withLinux = patterns::inForce() == patterns::Set::WithLinux;
  qsizetype result = 0;
  for (qsizetype i = 0; i < all.size(); ++i) {
    const bool expected = common[i] || (withLinux && expressions::isProtectedData(all[i], additions));
    result += appguard::isProtectedAppData(all[i]) != expected ? 1 : 0;
  }
  return result;
}

} // namespace

int main() {
  const QList<QString> all = paths::realistic(kPaths);
  QList<bool> answers;
  qsizetype hits = 0;
  const double peerMs = msOfExpressions(all, &answers);
  const double ms = msOfMatcher(all, &hits);
  const qsizetype differ = differences(all, answers);
  std::printf("name=protected paths=%lld protected=%lld differ=%lld ms=%.2f peer_ms=%.1f ratio=%.1f\n",
              static_cast<long long>(kPaths), static_cast<long long>(hits), static_cast<long long>(differ), ms, peerMs,
              peerMs / ms);
  return differ == 0 ? 0 : 1;
}
