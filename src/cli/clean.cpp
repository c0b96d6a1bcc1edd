#include "app/AppSettings.h"
#include "cli/Session.h"
#include "cli/commands.h"
#include "cli/json.h"
#include "cli/terminal.h"
#include "cli/texts.h"
#include "core/names.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

constexpr int kNowhere = -1;

/// The descriptor of a terminal where the user sees a question and that doesn't get in the way of the output; kNowhere
/// if there is none, or nobody to answer.
int placeToAsk(const Command& command) {
  if (!terminal::isTerminal(terminal::kInput)) return kNowhere;
  if (!command.json && terminal::isTerminal(terminal::kOutput)) return terminal::kOutput;
  return terminal::isTerminal(terminal::kErrors) ? terminal::kErrors : kNowhere;
}

class Clean {
 public:
  Clean(const Command& command, Output* out, const World& world)
      : m_command(command),
        m_out(out),
        m_toTrash(command.moveToTrash.value_or(AppSettings::instance().moveToTrash())),
        m_session(world) {}

  ExitCode run();

 private:
  void select();
  [[nodiscard]] Plan plan();
  [[nodiscard]] bool agreed(const Plan& plan);
  [[nodiscard]] ExitCode ended(const CleanReport& report);
  [[nodiscard]] RunOptions options() const;
  [[nodiscard]] bool mustAsk() const { return !m_command.yes && !m_command.dryRun; }
  [[nodiscard]] bool willBeRefused() const { return !AppSettings::instance().isReadable(); }

  const Command& m_command;
  Output* m_out;
  const bool m_toTrash;
  Session m_session;
};

RunOptions Clean::options() const {
  return {.only = m_command.only,
          .furtherExclusions = m_command.exclude,
          .moveToTrash = m_toTrash,
          .recordLastScan = false,
          .dryRun = m_command.dryRun};
}

/// After the scan the recommended categories are ticked; what the user named stands in their place.
void Clean::select() {
  if (m_command.only.isEmpty()) return;
  m_session.state().selectAll(false);
  for (const QString& id : m_command.only) m_session.state().setSelected(id, true);
}

Plan Clean::plan() {
  AppState& state = m_session.state();
  Plan plan{.chosen = state.selectedResults(), .left = state.results, .toTrash = m_toTrash};
  if (m_toTrash) plan.bytesWithoutTrash = state.selectedBytesWithoutTrash();
  plan.left.removeIf([&](const CategoryResult& one) { return one.bytes < 1 || state.selected.contains(one.def.id); });
  return plan;
}

/// Shows the plan and asks, where that is wanted.
bool Clean::agreed(const Plan& plan) {
  if (!mustAsk()) {
    if (!m_command.json) m_out->write(planText(plan, Paper::of(m_out->fd())));
    return !m_out->failed(); // what can't be shown isn't done
  }
  const int place = placeToAsk(m_command);
  Output(place).write(planText(plan, Paper::of(place)));
  if (m_session.ask(planQuestion(plan), place) == Session::Answer::Yes) return true;
  Output(place).write(Words::tr("Nothing was cleaned.") + u'\n');
  return false;
}

/// What to do about settings for which a clean is refused, for those who have no window to look at them.
QString wayOut() {
  const AppSettings& settings = AppSettings::instance();
  if (settings.lastLook() == AppSettings::Store::Sound) return {};
  //: %1, %2: paths
  return u' ' + Words::tr("Look at the rules in the settings of Tarnwick; or mend %1, or remove it together with %2.")
                    .arg(names::escaped(settings.path()), names::escaped(settings.memoryPath()));
}

ExitCode Clean::ended(const CleanReport& report) {
  if (m_command.json) m_out->write(json::text(json::Clean{report, m_command.dryRun, m_toTrash}));
  if (m_session.interrupted()) return kInterrupted;
  if (!report.refusal.isEmpty()) {
    complain(report.refusal + wayOut());
    return kStayed;
  }
  return report.skipped > 0 || !report.runningApps.isEmpty() ? kStayed : kDone;
}

ExitCode Clean::run() {
  m_session.scan(options());
  if (m_session.interrupted()) {
    complain(Words::tr("the scan was cancelled, and nothing was cleaned"));
    return ended({});
  }
  select();
  const Plan what = plan();
  if (what.chosen.isEmpty()) {
    if (!m_command.json) m_out->write(planText(what, Paper::of(m_out->fd())));
    return ended({});
  }
  // What is going to be refused isn't asked about.
  if ((!willBeRefused() && !agreed(what)) || m_session.interrupted()) return ended({});
  m_session.clean(options());
  const CleanReport& report = m_session.state().report;
  if (!m_command.json && report.refusal.isEmpty())
    m_out->write(reportText(report, m_command.dryRun, m_toTrash, Paper::of(m_out->fd())));
  return ended(report);
}

} // namespace

ExitCode clean(const Command& command, Output* out, const World& world) {
  if (!command.yes && !command.dryRun && placeToAsk(command) == kNowhere) {
    complain(Words::tr("there is no terminal to ask on, so nothing is cleaned without --yes"));
    return kUsage;
  }
  return Clean(command, out, world).run();
}

} // namespace cli
