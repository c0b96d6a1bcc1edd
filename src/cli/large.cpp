#include "app/AppSettings.h"
#include "cli/Session.h"
#include "cli/json.h"
#include "cli/texts.h"

#include <QElapsedTimer>

namespace cli {

ExitCode large(const Command& command, Output* out) {
  const int megabytes = command.minMegabytes.value_or(AppSettings::instance().largeFileMB());
  Session session;
  QElapsedTimer clock;
  clock.start();
  const Session::LargeSearch search = session.searchLarge(megabytes);
  const bool cancelled = session.interrupted();
  if (command.json)
    out->write(json::text(json::Large{search.files, search.summary, cancelled}));
  else if (!cancelled)
    out->write(largeText(search.files, search.summary, megabytes, clock.elapsed(), Paper::of(out->fd())));
  if (cancelled) complain(Words::tr("the search was cancelled"));
  return cancelled ? kInterrupted : kDone;
}

} // namespace cli
