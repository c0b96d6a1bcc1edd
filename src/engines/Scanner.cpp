#include "engines/Scanner.h"

#include "core/fs.h"
#include "core/platform.h"
#include "engines/Spelled.h"
#include "engines/categories.h"

#include <QDir>
#include <QElapsedTimer>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds kBetweenProgress{60};

/// What a whole scan shares.
struct Scan {
  Guard guard;
  appguard::RunningApps apps;
  const ScannerWorld& world;
  std::optional<categories::Admission> admission; ///< read when the first entry asks for it
  const std::atomic<bool>& cancelled;
  std::function<void(qint64, qint64, const QString&)> report;
  qint64 bytesBefore = 0; ///< of the completed categories
  qint64 files = 0;       ///< visited so far

  const categories::Admission& admissionNow() {
    if (!admission) admission = categories::Admission::now(world.sources.procRoot);
    return *admission;
  }
};

/// The work on one category.
class CategoryScan {
 public:
  CategoryScan(const CategoryDef& def, Scan* scan) : m_scan(*scan), m_filesBefore(scan->files) {
    m_result.def = def;
    m_hasOwners = def.id == u"appcache" || def.id == u"browser";
    m_timer.start();
  }

  CategoryResult run() {
    if (m_result.def.usesRecycleBin) return recycleBin();
    for (const ScanRoot& root : m_result.def.roots) {
      if (m_scan.cancelled) break;
      scanRoot(root);
    }
    std::stable_sort(m_result.items.begin(), m_result.items.end(),
                     [](const CleanItem& a, const CleanItem& b) { return a.bytes > b.bytes; });
    for (const CleanItem& item : m_result.items) m_result.bytes += item.bytes;
    m_result.files = m_scan.files - m_filesBefore;
    return m_result;
  }

 private:
  static bool isProtectedData(const Spelled& place) {
    return appguard::isProtectedAppData(place.path) || (!place.isOne() && appguard::isProtectedAppData(place.realPath));
  }

  void scanRoot(const ScanRoot& root) {
    const Spelled place{root.path, root.realPath.isEmpty() ? root.path : root.realPath};
    if (isProtectedData(place)) return;
    if (!fs::isReadable(place.realPath)) {
      m_result.accessDenied = true;
      return;
    }
    if (root.label.isEmpty())
      scanEntries(root, place);
    else
      scanWhole(root, place);
  }

  void scanEntries(const ScanRoot& root, const Spelled& place) {
    for (const fs::Entry& entry : fs::list(place.realPath)) {
      if (m_scan.cancelled) return;
      if (!root.patterns.isEmpty() && !QDir::match(root.patterns, entry.name)) continue;
      if (root.ownOnly && entry.owner != ::geteuid()) continue;
      const Spelled full{fs::join(place.path, entry.name), fs::join(place.realPath, entry.name)};
      if (full.ask(m_scan.guard) != Guard::Verdict::Free) continue;
      if (m_result.def.id == u"temp" &&
          !categories::admits(entry, full.realPath, m_scan.admissionNow(), &m_scan.cancelled))
        continue;
      scanEntry(place, entry, full);
    }
  }

  void scanEntry(const Spelled& folder, const fs::Entry& entry, const Spelled& full) {
    const fs::Totals totals = measureEntry(folder, entry, full);
    if (!entry.reachable) { // no item: no path of ours leads to it
      count(totals);
      return;
    }
    CleanItem item;
    item.name = entry.name;
    item.modified = std::max(entry.modifiedMs, totals.newestMs);
    add(full, totals, std::move(item));
  }

  /// No question about protected locations here: the clean asks it of each child.
  void scanWhole(const ScanRoot& root, const Spelled& place) {
    if (place.ask(m_scan.guard) == Guard::Verdict::Excluded) return;
    const fs::Totals totals = measure(place.realPath);
    CleanItem item;
    item.name = root.label;
    item.wholeRoot = true;
    item.modified = totals.newestMs;
    add(place, totals, std::move(item));
  }

  void count(const fs::Totals& totals) {
    m_scan.files += totals.files;
    m_bytes += totals.bytes;
  }

  /// Counts what was measured; only what holds bytes is an item.
  void add(const Spelled& place, const fs::Totals& totals, CleanItem item) {
    count(totals);
    if (totals.bytes < 1) return;
    item.path = place.path;
    item.bytes = totals.bytes;
    item.files = totals.files;
    item.unread = totals.unread;
    if (m_hasOwners) item.owner = place.runningOwner(m_scan.apps);
    m_result.items.append(std::move(item));
  }

  fs::Totals measureEntry(const Spelled& folder, const fs::Entry& entry, const Spelled& full) {
    if (!entry.isDir || entry.isSymlink) return {entry.allocated, 1, entry.modifiedMs};
    if (entry.reachable) return measure(full.realPath);
    return fs::measureEntry(folder.realPath, entry.rawName, m_scan.cancelled, throttled());
  }

  fs::Totals measure(const QString& path) { return fs::measure(path, m_scan.cancelled, throttled()); }

  fs::Progress throttled() {
    return [this](const QString& folder, qint64 bytes, qint64 files) {
      if (m_timer.elapsed() < kBetweenProgress.count()) return;
      m_timer.restart();
      m_scan.report(m_scan.bytesBefore + m_bytes + bytes, m_scan.files + files, folder);
    };
  }

  CategoryResult recycleBin() {
    qint64 bytes = 0;
    qint64 count = 0;
    const auto& stand = m_scan.world.queryRecycleBin;
    const bool known = stand ? stand(&bytes, &count) : platform::queryRecycleBin(&bytes, &count);
    m_scan.files += count;
    if (!known || bytes < 1) return m_result;
    m_result.bytes = bytes;
    m_result.files = count;
    CleanItem item;
    item.name = u"Recycle Bin (all drives)"_s;
    item.bytes = bytes;
    item.files = count;
    m_result.items.append(item);
    return m_result;
  }

  Scan& m_scan;
  qint64 m_filesBefore;
  qint64 m_bytes = 0; ///< running sum of the category, items or not
  bool m_hasOwners = false;
  CategoryResult m_result;
  QElapsedTimer m_timer; ///< since the last progress
};

} // namespace

Scanner::Scanner(QObject* parent, ScannerWorld world) : QObject(parent), m_world(std::move(world)) {}

Scanner::~Scanner() = default;

void Scanner::start(const QList<QString>& exclusions, const QStringList& only) {
  m_job.start([this, exclusions, only] { run(exclusions, only); });
}

void Scanner::cancel() { m_job.cancel(); }

bool Scanner::isRunning() const { return m_job.isRunning(); }

void Scanner::run(const QList<QString>& exclusions, const QStringList& only) {
  const QList<CategoryDef> defs = m_world.catalogue ? m_world.catalogue() : categories::forThisPlatform();
  emit started(defs);
  Scan scan{.guard = Guard(exclusions),
            .apps = appguard::runningApps(m_world.sources),
            .world = m_world,
            .admission = {},
            .cancelled = m_job.cancelled(),
            .report = [this](qint64 bytes, qint64 files, const QString& path) { emit progress(bytes, files, path); }};
  QList<CategoryResult> results;
  for (int i = 0; i < defs.size() && !scan.cancelled; ++i) {
    if (!only.isEmpty() && !only.contains(defs[i].id)) {
      results.append(CategoryResult{.def = defs[i], .items = {}});
      continue;
    }
    emit categoryStarted(i);
    const CategoryResult result = CategoryScan(defs[i], &scan).run();
    if (scan.cancelled) break;
    scan.bytesBefore += result.bytes;
    results.append(result);
    emit categoryFinished(i, result);
    emit progress(scan.bytesBefore, scan.files, {});
  }
  emit finished(results, scan.cancelled);
}

#include "moc_Scanner.cpp"
