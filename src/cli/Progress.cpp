#include "cli/Progress.h"

#include "app/AppState.h"
#include "cli/output.h"
#include "cli/terminal.h"
#include "cli/words.h"
#include "core/fmt.h"
#include "core/names.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace cli {
namespace {

constexpr auto kRedraw = 100ms;
constexpr qint64 kMsPerSecond = 1000;
const QString kWipe = u"\r\x1b[K"_s;
const QString kGap = u"  "_s;

} // namespace

Progress::Progress(const AppState& state) : m_state(state), m_possible(terminal::takesEscapes(terminal::kErrors)) {
  connect(&m_timer, &QTimer::timeout, this, &Progress::draw);
  connect(&state, &AppState::cleanProgress, this, [this](qint64 done, qint64 total, const QString& path) {
    m_done = done;
    m_total = total;
    m_path = path;
  });
}

Progress::~Progress() { hide(); }

void Progress::show() {
  if (!m_possible) return;
  m_elapsed.start();
  m_timer.start(kRedraw);
  draw();
}

void Progress::hide() {
  if (!m_timer.isActive()) return;
  m_timer.stop();
  Output(terminal::kErrors).write(kWipe);
}

void Progress::setNote(const QString& note) {
  m_note = note;
  if (m_timer.isActive()) draw();
}

QString Progress::scanning() const {
  const QString title = m_state.scanDefs.value(m_state.scanCategory).title;
  return (title.isEmpty() ? Words::tr("Scanning") : title) + kGap + fmt::bytes(m_state.scanBytes) + kGap +
         Words::tr("%1 files").arg(fmt::count(m_state.scanFiles)); // always many, so that the line stands still
}

QString Progress::cleaning() const {
  const QString& title = m_state.cleanCategory;
  return (title.isEmpty() ? Words::tr("Cleaning") : title) + kGap +
         Words::tr("%1 of %2").arg(fmt::bytes(m_done), fmt::bytes(m_total)) + kGap +
         Words::tr("%1 of %2 files").arg(fmt::count(m_state.cleanFiles), fmt::count(m_state.cleanFilesTotal));
}

void Progress::draw() const {
  const bool cleans = m_state.phase == AppState::Cleaning;
  const QString head =
      (cleans ? cleaning() : scanning()) + kGap + fmt::clock(m_elapsed.elapsed() / kMsPerSecond) + kGap;
  const QString path = names::escaped(fmt::shortPath(cleans ? m_path : m_state.scanPath));
  const int most = terminal::width(terminal::kErrors) - 1; // a full line would wrap
  const QString tail = terminal::elided(m_note.isEmpty() ? path : m_note, most - terminal::columns(head));
  Output(terminal::kErrors).write(kWipe + terminal::elided(head + tail, most));
}

} // namespace cli
