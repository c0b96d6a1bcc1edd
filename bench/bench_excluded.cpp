/// Times safety::isExcluded with ten rules over 100,000 paths against a plain loop over the rules' expressions; and the
/// questions of a Guard with the rule that the program starts with.
#include "core/Guard.h"
#include "core/safety.h"

#include "../tests/support/expressions.h"
#include "../tests/support/realistic_paths.h"
#include "figure.h"

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kPaths = 100000;
constexpr int kRounds = 5; // of both, in turn; the medians are told

template <typename Question>
double msOf(const QList<QString>& all, Question question) {
  const bench::Clock clock;
  for (const QString& path : all) question(path);
  return clock.ms();
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void compare(const char* name, const QList<QString>& all, const QList<QString>& rules) {
  const QList<expressions::Rule> list = expressions::compiled(rules);
  qsizetype differ = 0;
  qsizetype excluded = 0;
  for (const QString& path : all) {
    const bool ours = safety::isExcluded(path, rules);
    excluded += ours ? 1 : 0;
    differ += ours != expressions::isExcluded(path, list) ? 1 : 0;
  }
  volatile bool sink = false;
  std::vector<double> ours;
  std::vector<double> peers;
  for (int round = 0; round < kRounds; ++round) {
    peers.push_back(msOf(all, [&](const QString& path) { sink = expressions::isExcluded(path, list); }));
    ours.push_back(msOf(all, [&](const QString& path) { sink = safety::isExcluded(path, rules); }));
  }
  const double ms = median(ours);
  const double peerMs = median(peers);
  std::printf("name=%s paths=%lld excluded=%lld differ=%lld ms=%.2f peer_ms=%.1f ratio=%.1f\n", name,
              static_cast<long long>(all.size()), static_cast<long long>(excluded), static_cast<long long>(differ), ms,
              peerMs, peerMs / ms);
}

void timeGuard(const QList<QString>& all) {
  const Guard guard({u"**/.git"_s});
  volatile int sink = 0;
  const auto ask = [&](const QString& path) { sink = static_cast<int>(guard.ask(path)); };
  const auto askBelow = [&](const QString& path) { sink = static_cast<int>(guard.askBelow(path)); };
  std::vector<double> whole;
  std::vector<double> below;
  for (int round = 0; round < kRounds; ++round) {
    whole.push_back(msOf(all, ask));
    below.push_back(msOf(all, askBelow));
  }
  const double nsPerMs = 1e6 / static_cast<double>(all.size());
  const double askNs = median(whole) * nsPerMs;
  const double belowNs = median(below) * nsPerMs;
  std::printf("name=guard paths=%lld ask_ns=%.0f askBelow_ns=%.0f\n", static_cast<long long>(all.size()), askNs,
              belowNs);
}

} // namespace

int main() {
  const QList<QString> all = paths::realistic(kPaths);
  compare("excluded", all,
          {u"**/.git"_s, u"node_modules"_s, u"*.iso"_s, u"~/Projects/keep"_s, u"~/work/**/release"_s,
           u"/Volumes/Backup"_s, u"/home/*/Photos"_s, u"secret-?"_s, u"~/Documents"_s, u"*.kdbx"_s});
  compare("excluded-names", all,
          {u"a"_s, u"b.txt"_s, u"keep"_s, u"*.iso"_s, u"backup*"_s, u"*-final*"_s, u"secret-?"_s, u"vault"_s,
           u"*.kdbx"_s, u"x*y*z"_s});
  compare("excluded-paths", all,
          {u"**/.git"_s, u"**/*.kdbx"_s, u"**/a/b"_s, u"~/x"_s, u"~/work/**/release"_s, u"/home/*/Photos/**"_s,
           u"/home/ada/**/final*"_s, u"**/keep/*.txt"_s, u"/Users/*/Library/x"_s, u"**final**"_s});
  timeGuard(all);
  return 0;
}
