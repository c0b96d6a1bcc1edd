// The large files: searching for them, moving them to the Trash, and taking that back.
#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "core/fs.h"
#include "core/trash.h"
#include "engines/Disposal.h"
#include "engines/LargeFileFinder.h"

#include <utility>

namespace {

qint64 allocated(const QString& path) {
  fs::Entry entry;
  return fs::stat(path, &entry) ? entry.allocated : 0;
}

/// Each path once, in its order: what has gone can't go again, and isn't skipped either.
QList<QString> eachOnce(const QList<QString>& paths) {
  QSet<QString> seen;
  QList<QString> once;
  for (const QString& path : paths) {
    if (seen.contains(path)) continue;
    seen.insert(path);
    once << path;
  }
  return once;
}

} // namespace

/// What became of the files that were to be moved.
struct AppState::LargeMoves {
  QList<TrashUndoEntry> undo;
  QSet<QString> paths; ///< of those that went
  qint64 bytes = 0;    ///< that they hold on disk
  qsizetype skipped = 0;

  [[nodiscard]] QString text() const {
    const qsizetype moved = undo.size();
    const int n = fmt::plural(moved);
    //: How many files were moved: %1 of “%1 (%2) moved to the %3”
    const QString count = moved == 1 ? tr("1 file") : tr("%1 files", nullptr, n).arg(moved);
    //: %1: “1 file” or “%1 files”; %2: their size; %3: the Trash. The forms count the files
    const QString text = tr("%1 (%2) moved to the %3", nullptr, n).arg(count, fmt::bytes(bytes), platform::trashName());
    //: Follows “… moved to the Trash”; %1: how many files stayed, as they were open
    return skipped > 0 ? text + tr(" · %1 in use, skipped", nullptr, fmt::plural(skipped)).arg(skipped) : text;
  }
};

void AppState::connectLargeFinder() {
  connect(largeFinder, &LargeFileFinder::progress, this,
          [this](qint64 filesSeen, const QString& dir, int found, qint64 bytesFound, const QList<LargeFile>& top) {
            largeProgressCount = filesSeen;
            emit largeProgress(filesSeen, dir, found, bytesFound, top);
          });
  connect(largeFinder, &LargeFileFinder::finished, this, &AppState::onLargeFound);
}

void AppState::startLargeScan() { startLargeScanOver(AppSettings::instance().largeFileMB()); }

// A search lasts until its end has arrived here, also where the worker is through before.
void AppState::startLargeScanOver(int megabytes) {
  if (largeSearching || largeFinder->isRunning()) return;
  largeSearching = true;
  m_largeGone.clear();
  largeProgressCount = 0;
  largeFinder->start(qint64{megabytes} * fmt::unit() * fmt::unit(), AppSettings::instance().exclusions());
  emit largeFilesChanged();
}

void AppState::onLargeFound(const QList<LargeFile>& files, bool cancelled) {
  largeSearching = false;
  if (!cancelled) {
    largeFiles = files;
    largeFiles.removeIf([this](const LargeFile& file) { return m_largeGone.contains(file.path); });
    m_largeIds = largeFinder->summary().ids;
    largeScanned = true;
  }
  emit largeFilesChanged();
  if (std::exchange(m_largeSearchAgain, false)) startLargeScan();
}

AppState::LargeMoves AppState::moveLargeFiles(const QList<QString>& paths) const {
  LargeMoves moves;
  if (paths.isEmpty()) return moves;
  Disposal disposal(AppSettings::instance().exclusions(), m_sources);
  for (const QString& path : eachOnce(paths)) {
    const qint64 bytes = allocated(path);
    const auto id = m_largeIds.constFind(path);
    const Disposal::Outcome outcome =
        disposal.move(path, id == m_largeIds.cend() ? std::nullopt : std::optional<FileId>(*id));
    if (outcome.result != Disposal::Result::Moved) {
      ++moves.skipped;
      continue;
    }
    moves.undo << outcome.undo;
    moves.paths << path;
    moves.bytes += bytes;
  }
  return moves;
}

void AppState::trashLargeFiles(const QList<QString>& paths) {
  if (const QString why = paths.isEmpty() ? QString() : settingsRefusal(); !why.isEmpty()) {
    emit largeFilesChanged(); // who asked has taken their ticks away
    emit toast(why, false);
    return;
  }
  const LargeMoves moves = moveLargeFiles(paths);
  trashUndo = moves.undo;
  largeFiles.removeIf([&](const LargeFile& file) { return moves.paths.contains(file.path); });
  if (largeSearching) m_largeGone += moves.paths;
  refreshVolume();
  emit largeFilesChanged();
  emit toast(moves.text(), !moves.undo.isEmpty());
}

void AppState::undoLastTrash() {
  int restored = 0;
  for (const TrashUndoEntry& entry : std::as_const(trashUndo)) {
    if (entry.trashedPath.isEmpty()) continue;
    if (trash::restore(entry.trashedPath, entry.infoPath, entry.originalPath) != 0) continue;
    m_largeGone.remove(entry.originalPath);
    ++restored;
  }
  trashUndo.clear();
  refreshVolume();
  if (restored > 0) {
    m_largeSearchAgain = largeSearching; // the one under way may have come by before
    startLargeScan();
  }
  emit toast(tr("Restored %Ln file(s)", nullptr, restored), false);
}
