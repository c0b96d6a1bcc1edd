#include "engines/CleanRun.h"

#include "core/names.h"
#include "core/places.h"
#include "core/platform.h"
#include "core/runlock.h"
#include "core/trash.h"

#include <QCoreApplication>
#include <QDir>
#include <QThread>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kAttempts = 3;
constexpr std::chrono::milliseconds kFirstWait = 500ms;
constexpr qsizetype kSamples = 5;
constexpr std::chrono::milliseconds kBetweenProgress = 60ms;
constexpr qint64 kFilesPerLook = 64; ///< files between two looks at the clock

/// The measuring pass isn't cut short: what a stopped run left must not count as freed.
const std::atomic<bool> kNever{false};

/// Where the scan found the item: the root itself, or the one that it is a child of.
const ScanRoot* rootOf(const CleanItem& item, const CategoryDef& def) {
  const QString folder = item.wholeRoot ? item.path : item.path.section(u'/', 0, -2);
  const auto found = std::find_if(def.roots.begin(), def.roots.end(), [&](const ScanRoot& root) {
    return root.path == folder && root.label.isEmpty() != item.wholeRoot;
  });
  return found == def.roots.end() ? nullptr : &*found;
}

/// The real path goes by what the scan resolved. It isn't resolved anew: a folder that was swapped for a link since
/// then must not be followed.
CleanWork workFor(const CleanItem& item, const CategoryDef& def, bool toTrash) {
  CleanWork work{.item = &item, .def = &def, .place = {item.path, item.path}, .toTrash = toTrash};
  work.isTrash = def.id == u"trash";
  const ScanRoot* root = rootOf(item, def);
  if (!root) return work;
  work.ownOnly = root->ownOnly;
  if (!root->realPath.isEmpty())
    work.place.realPath =
        item.wholeRoot ? root->realPath : fs::join(root->realPath, item.path.sliced(root->path.size() + 1));
  work.isOnePath = work.place.isOne();
  return work;
}

/// Of the items alone: a scan's own figure counts also what gave no item, and that isn't dealt with.
qint64 sumOfFiles(const CategoryResult& result) {
  if (result.def.usesRecycleBin) return result.files;
  return std::accumulate(result.items.begin(), result.items.end(), qint64{0},
                         [](qint64 sum, const CleanItem& item) { return sum + item.files; });
}

SkipReason reasonFor(removal::Kept kept) {
  switch (kept) {
  case removal::Kept::ProtectedData:
    return SkipReason::ProtectedData;
  case removal::Kept::ProtectedLocation:
    return SkipReason::ProtectedLocation;
  case removal::Kept::AnotherVolume:
    return SkipReason::AnotherVolume;
  case removal::Kept::NoTrash:
    return SkipReason::NoTrash;
  case removal::Kept::Excluded:
  case removal::Kept::Open:
  case removal::Kept::NotWhole: // not asked for
    break;
  }
  return SkipReason::Open;
}

QString sampleOf(const removal::Node& node) {
  return node.isText ? QDir::toNativeSeparators(node.path) : LoggedPath(node).text;
}

} // namespace

CleanRun::CleanRun(Order order, const CleanerWorld& world, const std::atomic<bool>& stopped, Progress progress,
                   FilesProgress filesProgress)
    : m_order(std::move(order)),
      m_world(world),
      m_stopped(stopped),
      m_progress(std::move(progress)),
      m_filesProgress(std::move(filesProgress)) {}

CleanReport CleanRun::run() {
  for (const CategoryResult& result : m_order.results) {
    m_step.totalBytes += result.bytes;
    m_step.totalFiles += sumOfFiles(result);
  }
  std::optional<RunLock> lock;
  m_report.refusal = refusal(&lock);
  if (m_report.refusal.isEmpty()) {
    openLog();
    for (const CategoryResult& result : m_order.results) {
      if (m_stopped) break;
      cleanCategory(result);
      m_log.flush();
    }
    retry();
    measure();
    end();
  }
  deal(m_step.totalBytes - m_step.doneBytes, m_step.totalFiles - m_step.doneFiles);
  tell({}, {});
  return m_report;
}

void CleanRun::tell(const QString& category, const QString& path) {
  m_step.category = category;
  m_step.path = path;
  m_askedFiles = 0;
  m_sinceTold.start();
  m_progress(m_step);
}

void CleanRun::deal(qint64 bytes, qint64 files) {
  m_step.doneBytes += bytes;
  m_step.doneFiles += files;
}

QString CleanRun::refusal(std::optional<RunLock>* lock) const {
  const auto words = [](const char* text) { return QCoreApplication::translate("Cleaner", text); };
  if (!places::homeIsOwn())
    return words(QT_TRANSLATE_NOOP("Cleaner", "The home folder belongs to another user. Nothing was cleaned."));
  if (isDry()) return {};
  lock->emplace(m_world.lockPath.isEmpty() ? RunLock::defaultPaths() : QStringList{m_world.lockPath});
  switch ((*lock)->state()) {
  case RunLock::State::Held:
    break;
  case RunLock::State::Busy:
    return words(QT_TRANSLATE_NOOP("Cleaner", "Another cleanup is already running."));
  case RunLock::State::Unavailable:
    return words(
        QT_TRANSLATE_NOOP("Cleaner", "There is no telling whether another cleanup is running. Nothing was cleaned."));
  }
  return {};
}

/// The log comes before the snapshot of open files, so that it is among them.
void CleanRun::openLog() {
  const QDateTime now = m_world.now ? m_world.now() : QDateTime::currentDateTime();
  if (!isDry()) {
    m_report.logPath = m_log.openFile(CleanLog::pathFor(now));
  }
  m_judge.emplace(m_order.exclusions, m_world.sources, [this](const QString& path) { return m_log.isOwnFile(path); });
  if (!isDry()) m_judge->addOpen(m_report.logPath);
  m_log.head(now, m_order.moveToTrash, m_step.totalBytes);
  m_log.flush();
}

void CleanRun::cleanCategory(const CategoryResult& result) {
  m_log.category(result.def.title, result.bytes);
  if (result.def.usesRecycleBin) {
    emptyRecycleBin(result);
    return;
  }
  for (const CleanItem& item : result.items) {
    if (m_stopped) return;
    cleanItem(result, item);
  }
  m_report.cleanedIds.append(result.def.id);
}

void CleanRun::emptyRecycleBin(const CategoryResult& result) {
  const QString name = platform::trashName();
  tell(result.def.title, name);
  const bool emptied = isDry() || (m_world.emptyRecycleBin ? m_world.emptyRecycleBin() : platform::emptyRecycleBin());
  if (emptied) {
    m_report.freedBytes += result.bytes;
    m_report.removedFiles += result.files;
    m_log.emptied(name);
  } else {
    skip(name, name, SkipReason::CouldNotEmpty);
  }
  m_report.cleanedIds.append(result.def.id);
  deal(result.bytes, result.files);
}

void CleanRun::cleanItem(const CategoryResult& result, const CleanItem& item) {
  tell(result.def.title, QDir::toNativeSeparators(item.path));
  deal(item.bytes, item.files);
  // What can't be undone is said to be deleted, whatever the setting: emptying the Trash into the Trash frees nothing.
  const bool toTrash = m_order.moveToTrash && result.def.safety != Permanent;
  const CleanWork& work = m_works.emplace_back(workFor(item, result.def, toTrash));
  if (mayBegin(work)) carryOut(work);
}

bool CleanRun::mayBegin(const CleanWork& work) {
  const QString& path = work.item->path;
  const Guard::Verdict verdict = m_judge->askItem(work);
  if (verdict == Guard::Verdict::Excluded) {
    m_log.excluded(path);
    return false;
  }
  if (verdict == Guard::Verdict::ProtectedData) {
    skip(path, path, SkipReason::ProtectedData);
    return false;
  }
  const QString app = m_judge->runningOwner(work);
  if (app.isEmpty()) return true;
  m_log.running(path, app);
  if (!m_report.runningApps.contains(app)) m_report.runningApps.append(app);
  return false;
}

void CleanRun::carryOut(const CleanWork& work) {
  m_work = &work;
  m_itemRefused = false;
  removal::Remover& remover = removerFor(work);
  const fs::Totals before = remover.wouldStay();
  const removal::Target target{.path = work.place.path, .realPath = work.place.realPath};
  if (work.item->wholeRoot)
    remover.removeChildren(target);
  else
    remover.remove(target);
  const fs::Totals after = remover.wouldStay();
  m_done.push_back({&work, m_itemRefused ? fs::Totals{work.item->bytes, work.item->files, 0}
                                         : fs::Totals{after.bytes - before.bytes, after.files - before.files, 0,
                                                      after.unread - before.unread}});
}

removal::Remover& CleanRun::removerFor(const CleanWork& work) {
  std::optional<removal::Remover>& remover = work.toTrash ? m_trasher : m_deleter;
  if (!remover)
    remover.emplace(removal::Options{.toTrash = work.toTrash, .dryRun = isDry()},
                    removal::Handlers{
                        .judge =
                            [this](const removal::Node& node) {
                              onAsked(node);
                              return m_judge->judge(*m_work, node);
                            },
                        .kept = [this](const removal::Node& node, removal::Kept kept) { onKept(node, kept); },
                        .busy = [this](const removal::Stay& stay) { onBusy(stay); },
                    });
  return *remover;
}

/// Tells how far the item in hand is. The files of the item count as dealt with from when it was begun.
void CleanRun::onAsked(const removal::Node& node) {
  if (node.isDir || ++m_askedFiles % kFilesPerLook != 0 || !m_filesProgress) return;
  if (m_sinceTold.elapsed() < kBetweenProgress.count()) return;
  m_sinceTold.start();
  const qint64 before = m_step.doneFiles - m_work->item->files;
  m_filesProgress(m_step.category, std::min(before + m_askedFiles, m_step.doneFiles), m_step.totalFiles);
}

void CleanRun::onKept(const removal::Node& node, removal::Kept kept) {
  if (kept == removal::Kept::Excluded)
    m_log.excluded(node);
  else
    skip(sampleOf(node), node, reasonFor(kept));
}

void CleanRun::onBusy(const removal::Stay& stay) {
  if (stay.node.path.size() == m_work->place.path.size()) m_itemRefused = true;
  const Retry& retry = m_retries.emplace_back(Retry{.stay = stay, .work = m_work});
  m_log.busy(stay.node, retry.error);
}

void CleanRun::skip(const QString& sample, const LoggedPath& path, SkipReason reason, qint64 error) {
  ++m_report.skipped;
  if (m_report.skippedSamples.size() < kSamples) m_report.skippedSamples.append(QDir::toNativeSeparators(sample));
  m_log.skipped(path, reason, error);
}

void CleanRun::retry() {
  m_judge->beginRetries();
  for (int attempt = 1; attempt <= kAttempts && !m_retries.empty() && !m_stopped && !isDry(); ++attempt) {
    sleep(attempt * kFirstWait);
    retryRound();
  }
  for (const Retry& retry : m_retries) {
    skip(sampleOf(retry.stay.node), retry.stay.node, SkipReason::InUse, retry.error);
    if (retry.work->def->needsAdmin && !platform::isElevated()) m_report.needsAdmin = true;
  }
}

void CleanRun::retryRound() {
  std::vector<Retry> stayed;
  for (Retry& retry : std::exchange(m_retries, {})) {
    m_work = retry.work;
    if (removerFor(*m_work).retry(&retry.stay) == removal::Remover::Retry::Stayed) stayed.push_back(std::move(retry));
  }
  m_retries = std::move(stayed);
}

void CleanRun::sleep(std::chrono::milliseconds time) const {
  if (m_world.sleep) {
    m_world.sleep(time);
    return;
  }
  constexpr std::chrono::milliseconds kSlice = 20ms;
  for (; time > 0ms && !m_stopped; time -= kSlice)
    QThread::msleep(static_cast<unsigned long>(std::min(time, kSlice).count()));
}

void CleanRun::measure() {
  m_log.emptyLine();
  for (const Done& done : m_done) measureItem(done);
  forgetGone();
}

void CleanRun::measureItem(const Done& done) {
  const CleanItem& item = *done.work->item;
  fs::Totals left = isDry() ? done.wouldStay : measureLeft(*done.work);
  if (left.unread > item.unread) left = {item.bytes, item.files, 0}; // what can't be read isn't known to be free
  const qint64 freed = std::max<qint64>(0, item.bytes - left.bytes);
  m_report.freedBytes += freed;
  m_report.removedFiles += std::max<qint64>(0, item.files - left.files);
  m_log.removed(done.work->toTrash, item.path, freed);
}

/// What an item holds now. All of it where that can't be told, so that nothing counts as freed that may have stayed.
fs::Totals CleanRun::measureLeft(const CleanWork& work) {
  const CleanItem& item = *work.item;
  const QString& path = work.place.realPath;
  if (!item.wholeRoot && !fs::exists(path)) {
    if (work.isTrash) m_gone[path.section(u'/', 0, -2)].append(names::encode(path.section(u'/', -1)));
    return {};
  }
  const fs::Totals all{item.bytes, item.files, 0};
  fs::Entry entry;
  if (!fs::stat(path, &entry)) return fs::exists(path) ? all : fs::Totals{};
  // A folder to be emptied that is none any more was swapped for something else: nothing of it is known to have gone.
  if (item.wholeRoot && !entry.isDir) return all;
  return fs::measure(path, kNever);
}

/// Once a folder, as each time means reading what the Trash knows of all its folders.
void CleanRun::forgetGone() {
  for (auto folder = m_gone.cbegin(); folder != m_gone.cend(); ++folder) trash::forget(folder.key(), folder.value());
}

void CleanRun::end() {
  m_log.summary(m_report.freedBytes, m_report.removedFiles, m_report.skipped);
  m_log.flush();
  if (isDry()) m_report.dryRunLog = m_log.text();
}
