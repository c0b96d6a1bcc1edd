// Removal itself, with the questions that a clean asks of every node: removes the folder for good.
#include "core/Guard.h"
#include "core/appguard.h"
#include "core/removal.h"
#include "figure.h"

#include <QDir>

namespace {

/// Rules as a user writes them, and as many open files as a busy desktop has.
QList<QString> someRules() {
  return {QStringLiteral("/home/me/Documents/Keep"), QStringLiteral("*.keep"), QStringLiteral("*/My Project/*")};
}

appguard::OpenFiles someOpenFiles() {
  appguard::OpenFiles open;
  for (int i = 0; i < 3000; ++i)
    open.add(QStringLiteral("/home/me/.cache/app-%1/profile/open-%2.db").arg(i % 60).arg(i));
  return open;
}

removal::Verdict verdictOf(Guard::Verdict verdict) {
  switch (verdict) {
  case Guard::Verdict::Excluded:
    return removal::Verdict::KeepExcluded;
  case Guard::Verdict::ProtectedData:
    return removal::Verdict::KeepProtectedData;
  case Guard::Verdict::ProtectedLocation:
    return removal::Verdict::KeepProtectedLocation;
  case Guard::Verdict::Free:
    break;
  }
  return removal::Verdict::Remove;
}

} // namespace

int main(int argc, char** argv) {
  const QString folder =
      QDir::cleanPath(QDir().absoluteFilePath(QString::fromLocal8Bit(bench::folderArgument(argc, argv))));
  const Guard guard(someRules());
  const appguard::OpenFiles open = someOpenFiles();
  long long stayed = 0;
  const bench::Clock clock;
  removal::Remover remover({}, {.judge =
                                    [&](const removal::Node& node) {
                                      if (open.files.contains(node.path)) return removal::Verdict::KeepOpen;
                                      if (node.isDir && open.parents.contains(node.path))
                                        return removal::Verdict::NotWhole;
                                      return verdictOf(guard.askBelow(node.path));
                                    },
                                .kept = [&](const removal::Node&, removal::Kept) { ++stayed; },
                                .busy = [&](const removal::Stay&) { ++stayed; }});
  remover.remove({folder, folder});
  const double ms = clock.ms();
  const double cpuMs = clock.cpuMs();
  std::printf("name=remove ms=%.1f cpu_ms=%.1f nodes=%lld stayed=%lld peak_kib=%ld\n", ms, cpuMs,
              static_cast<long long>(remover.removedNodes()), stayed, bench::peakKib());
}
