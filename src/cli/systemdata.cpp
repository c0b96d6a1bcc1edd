#include "cli/Session.h"
#include "cli/json.h"
#include "cli/texts.h"

#include <QElapsedTimer>

namespace cli {

ExitCode systemData(const Command& command, Output* out, const World& world) {
  Session session(world);
  QElapsedTimer clock;
  clock.start();
  const QList<SystemDataItem> items = session.measureSystemData();
  const bool cancelled = session.interrupted();
  if (command.json)
    out->write(json::text(json::SystemData{items, cancelled}));
  else if (!cancelled)
    out->write(systemDataText(items, clock.elapsed(), Paper::of(out->fd())));
  if (cancelled) complain(Words::tr("the measuring was cancelled"));
  return cancelled ? kInterrupted : kDone;
}

} // namespace cli
