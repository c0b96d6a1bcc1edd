#include "cli/Session.h"

#include "cli/output.h"
#include "cli/terminal.h"
#include "cli/words.h"
#include "engines/SystemDataScanner.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <array>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

/// Whether a line was ended, and is a yes. The English ones are a yes in every language.
bool meansYes(const QByteArray& line) {
  const QString word = QString::fromUtf8(line).trimmed().toLower();
  //: What is a yes when it is typed: in small letters, with blanks between. Nothing that could be typed for a no
  const QStringList own = Words::tr("y yes").split(u' ', Qt::SkipEmptyParts);
  return line.contains('\n') && (word == u"y" || word == u"yes" || own.contains(word));
}

/// Takes what standard input has to give into @p line. False at its end.
bool readInput(QByteArray* line) {
  std::array<char, 256> bytes{};
  const ssize_t count = ::read(terminal::kInput, bytes.data(), bytes.size());
  if (count > 0) line->append(bytes.data(), count);
  return count > 0;
}

} // namespace

qint64 Session::scan(const RunOptions& options) {
  m_state.startScan(options);
  //: What the program does now, in a line that tells how far it is
  waitWhile(AppState::Scanning, Words::tr("cancelling…"), &AppState::cancelScan);
  return m_state.scanTimer.elapsed();
}

void Session::clean(const RunOptions& options) {
  m_state.clean(options);
  waitWhile(AppState::Cleaning, Words::tr("finishing this item, then stopping…"), &AppState::stopClean);
}

Session::LargeSearch Session::searchLarge(int megabytes) {
  LargeFileFinder* finder = m_state.largeFinder;
  LargeSearch search;
  connect(finder, &LargeFileFinder::finished, this, [&](const QList<LargeFile>& files) { search.files = files; });
  waitFor(
      finder, &LargeFileFinder::finished, Words::tr("cancelling…"), [=] { finder->cancel(); },
      [&] { m_state.startLargeScanOver(megabytes); });
  disconnect(finder, nullptr, this, nullptr);
  search.summary = finder->summary();
  return search;
}

QList<SystemDataItem> Session::measureSystemData() {
  SystemDataScanner* scanner = m_state.systemDataScanner;
  QList<SystemDataItem> rows;
  connect(scanner, &SystemDataScanner::finished, this, [&](const QList<SystemDataItem>& all) { rows = all; });
  waitFor(
      scanner, &SystemDataScanner::finished, Words::tr("cancelling…"), [=] { scanner->cancel(); },
      [this] { m_state.startSystemDataScan(); });
  disconnect(scanner, nullptr, this, nullptr);
  return rows;
}

void Session::waitWhile(AppState::Phase phase, const QString& noteOfStopping, void (AppState::*stop)()) {
  if (m_state.phase == phase)
    waitFor(&m_state, &AppState::phaseChanged, noteOfStopping, [this, stop] { (m_state.*stop)(); });
}

template <typename Sender, typename Signal>
void Session::waitFor(Sender* sender, Signal ended, const QString& noteOfStopping, const std::function<void()>& stop,
                      const std::function<void()>& start) {
  QEventLoop loop;
  connect(sender, ended, &loop, &QEventLoop::quit);
  connect(&m_interrupts, &Interrupts::interrupted, &loop, [&] {
    m_progress.setNote(noteOfStopping);
    stop();
  });
  start();
  m_progress.show();
  loop.exec();
  m_progress.hide();
}

Session::Answer Session::ask(const QString& question, int fd) {
  Output out(fd);
  out.write(question + u' ');
  QByteArray line;
  QEventLoop loop;
  QSocketNotifier input(terminal::kInput, QSocketNotifier::Read);
  connect(&input, &QSocketNotifier::activated, &loop, [&] {
    if (!readInput(&line) || line.contains('\n')) loop.quit();
  });
  connect(&m_interrupts, &Interrupts::interrupted, &loop, &QEventLoop::quit);
  if (!interrupted()) loop.exec();
  if (!line.contains('\n')) out.write(u"\n"_s);
  return meansYes(line) && !interrupted() ? Answer::Yes : Answer::No;
}

} // namespace cli
