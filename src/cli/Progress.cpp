#include "cli/Progress.h"

#include "app/AppState.h"
#include "cli/output.h"
#include "cli/terminal.h"
#include "cli/words.h"
#include "core/fmt.h"
#include "core/names.h"
#include "engines/LargeFileFinder.h"
#include "engines/SystemDataScanner.h"

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
  connect(&state, &AppState::largeProgress, this,
          [this](qint64 /*filesSeen*/, const QString& dir, int found, qint64 bytes) {
            m_path = dir;
            m_found = found;
            m_done = bytes;
          });
  connect(&state, &AppState::systemDataProgress, this,
          [this](int row, int /*rows*/, const QString& path, qint64 bytes) {
            m_row = row;
            m_path = path;
            m_done = bytes;
          });
}

Progress::~Progress() { hide(); }

void Progress::show() {
  if (!m_possible) return;
  m_elapsed.start();
  m_task = m_state.phase == AppState::Scanning      ? Task::Scan
           : m_state.phase == AppState::Cleaning    ? Task::Clean
           : m_state.systemDataScanner->isRunning() ? Task::Measure
                                                    : Task::Search;
  if (m_task == Task::Measure)
    for (const SystemDataItem& item : systemdata::definitions()) m_rows << item.title;
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
  //: What the program does now, in a line that tells how far it is
  return (title.isEmpty() ? Words::tr("Scanning") : title) + kGap + fmt::bytes(m_state.scanBytes) + kGap +
         Words::tr("%1 files", nullptr, fmt::plural(m_state.scanFiles)).arg(fmt::count(m_state.scanFiles));
}

QString Progress::cleaning() const {
  const QString& title = m_state.cleanCategory;
  //: What the program does now, in a line that tells how far it is
  return (title.isEmpty() ? Words::tr("Cleaning") : title) + kGap +
         //: %1, %2: sizes, or numbers of rows
         Words::tr("%1 of %2").arg(fmt::bytes(m_done), fmt::bytes(m_total)) + kGap +
         //: The forms count %2
         Words::tr("%1 of %2 files", nullptr, fmt::plural(m_state.cleanFilesTotal))
             .arg(fmt::count(m_state.cleanFiles), fmt::count(m_state.cleanFilesTotal));
}

QString Progress::searching() const {
  //: What the program does now, in a line that tells how far it is
  return Words::tr("Searching") + kGap + fmt::bytes(m_done) + kGap +
         Words::tr("%1 of %2 files", nullptr, fmt::plural(m_state.largeProgressCount))
             .arg(fmt::count(m_found), fmt::count(m_state.largeProgressCount));
}

QString Progress::measuring() const {
  return m_rows.value(m_row) + kGap + fmt::bytes(m_done) + kGap +
         Words::tr("%1 of %2").arg(fmt::count(m_row + 1), fmt::count(m_rows.size()));
}

QString Progress::figures() const {
  switch (m_task) {
  case Task::Scan:
    break;
  case Task::Clean:
    return cleaning();
  case Task::Search:
    return searching();
  case Task::Measure:
    return measuring();
  }
  return scanning();
}

void Progress::draw() const {
  const QString head = figures() + kGap + fmt::clock(m_elapsed.elapsed() / kMsPerSecond) + kGap;
  const QString path = names::escaped(fmt::shortPath(m_task == Task::Scan ? m_state.scanPath : m_path));
  const int most = terminal::width(terminal::kErrors) - 1; // a full line would wrap
  const QString tail = terminal::elided(m_note.isEmpty() ? path : m_note, most - terminal::columns(head));
  Output(terminal::kErrors).write(kWipe + terminal::elided(head + tail, most));
}

} // namespace cli
