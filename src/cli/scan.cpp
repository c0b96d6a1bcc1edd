#include "cli/Session.h"
#include "cli/commands.h"
#include "cli/json.h"
#include "cli/texts.h"

namespace cli {
namespace {

/// Those of @p all that the user asked for.
QList<CategoryResult> wanted(const QList<CategoryResult>& all, const QStringList& only) {
  QList<CategoryResult> some = all;
  if (!only.isEmpty()) some.removeIf([&](const CategoryResult& one) { return !only.contains(one.def.id); });
  return some;
}

/// What a scan measured until it was cancelled: the categories it didn't come to are there, with nothing found.
QList<CategoryResult> measuredSoFar(const AppState& state) {
  QList<CategoryResult> all = state.scanResults;
  for (qsizetype i = 0; i < all.size(); ++i) all[i].def = state.scanDefs.at(i);
  return all;
}

} // namespace

ExitCode scan(const Command& command, Output* out) {
  Session session;
  const qint64 elapsedMs = session.scan(
      {.only = command.only, .furtherExclusions = command.exclude, .moveToTrash = {}, .recordLastScan = false});
  const bool cancelled = session.interrupted();
  const QList<CategoryResult> found = cancelled ? measuredSoFar(session.state()) : session.state().results;
  if (command.json)
    out->write(json::text({found, cancelled, elapsedMs}));
  else if (!cancelled)
    out->write(scanText(wanted(found, command.only), elapsedMs, Paper::of(out->fd())));
  if (cancelled) complain(Words::tr("the scan was cancelled"));
  return cancelled ? kInterrupted : kDone;
}

} // namespace cli
