/// Times appguard::isProtectedAppData over 100,000 paths against asking each of the common expressions of each
/// component.
#include "core/appguard.h"
#include "core/patterns.h"

#include "../tests/support/expressions.h"
#include "../tests/support/realistic_paths.h"

#include <QElapsedTimer>

#include <cstdio>

namespace {

constexpr qsizetype kPaths = 100000;
constexpr int kRounds = 20; // of ours; one takes too little time to be told

} // namespace

int main() {
  const QList<QString> all = paths::realistic(kPaths);
  const QList<QRegularExpression> common = expressions::wildcards(patterns::common());
  const QList<QRegularExpression> additions = expressions::wildcards(patterns::linuxAdditions());
  const bool withLinux = patterns::inForce() == patterns::Set::WithLinux;

  QElapsedTimer clock;
  QList<bool> peer;
  clock.start();
  for (const QString& path : all) peer << expressions::isProtectedData(path, common);
  const double peerMs = static_cast<double>(clock.nsecsElapsed()) / 1e6;

  qsizetype hits = 0;
  clock.start();
  for (int round = 0; round < kRounds; ++round)
    for (const QString& path : all) hits += appguard::isProtectedAppData(path) ? 1 : 0;
  const double ms = static_cast<double>(clock.nsecsElapsed()) / 1e6 / kRounds;

  qsizetype differ = 0;
  for (qsizetype i = 0; i < all.size(); ++i) {
    const bool expected = peer[i] || (withLinux && expressions::isProtectedData(all[i], additions));
    differ += appguard::isProtectedAppData(all[i]) != expected ? 1 : 0;
  }
  std::printf("name=protected paths=%lld protected=%lld differ=%lld ms=%.2f peer_ms=%.1f ratio=%.1f\n",
              static_cast<long long>(all.size()), static_cast<long long>(hits / kRounds),
              static_cast<long long>(differ), ms, peerMs, peerMs / ms);
  return differ == 0 ? 0 : 1;
}
