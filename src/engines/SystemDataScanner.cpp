#include "engines/SystemDataScanner.h"

#include "core/fmt.h"
#include "core/fs.h"
#include "core/platform.h"
#include "engines/systemdata_counts.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <chrono>

using systemdata::Words;

namespace {

constexpr std::chrono::milliseconds kBetweenProgress{81};
constexpr qsizetype kNamedFolders = 3; ///< in the detail of "hidden"

/// A place of a row that was measured.
struct Location {
  qint64 bytes;
  QString name;
};

/// What may be learned of a place.
enum class Access { Granted, Refused, Missing };

/// The names of the largest, largest first.
QString largestOf(QList<Location> locations) {
  std::stable_sort(locations.begin(), locations.end(),
                   [](const Location& a, const Location& b) { return a.bytes > b.bytes; });
  QStringList names;
  for (const Location& one : locations.first(std::min(kNamedFolders, locations.size()))) names << one.name;
  return fmt::list(names);
}

QString snapshotsText(qsizetype count) {
  return count == 1 ? Words::tr("1 snapshot") : Words::tr("%1 snapshots", nullptr, fmt::plural(count)).arg(count);
}

void countLocalSnapshots(SystemDataItem* item, const SystemDataWorld& world) {
  item->count = static_cast<qint32>(systemdata::localSnapshots(world).size());
  item->detail = snapshotsText(item->count);
}

/// What couldn't be looked into is no "0 snapshots".
void countKeptSnapshots(SystemDataItem* item, const SystemDataWorld& world) {
  const systemdata::KeptSnapshots kept = systemdata::keptSnapshots(world);
  item->denied = kept.denied;
  if (kept.denied && kept.count == 0) {
    item->detail = Words::tr("No permission to read");
    return;
  }
  item->count = kept.count;
  //: %1: “1 snapshot” or “%1 snapshots”
  item->detail = kept.denied ? Words::tr("at least %1").arg(snapshotsText(kept.count)) : snapshotsText(kept.count);
}

void countDevices(SystemDataItem* item) {
  const int devices = systemdata::countFolders(item->paths.value(0));
  item->detail = devices == 1 ? Words::tr("1 device") : Words::tr("%1 devices", nullptr, devices).arg(devices);
}

} // namespace

/// One run over the catalogue.
class SystemDataScanner::Measuring {
 public:
  explicit Measuring(SystemDataScanner* scanner)
      : m_scanner(*scanner),
        m_isMac(platform::host() == platform::Host::Mac),
        m_items(systemdata::definitions(scanner->m_world)) {
    m_sinceProgress.start();
  }

  void run() {
    for (int i = 0; i < total() && !cancelled(); ++i) {
      emit m_scanner.progress(i, total(), m_items[i].paths.value(0), 0);
      const QList<Location> locations = measure(i);
      if (!cancelled()) complete(&m_items[i], locations);
      if (!cancelled()) emit m_scanner.measured(i, m_items[i].bytes, m_items[i].denied);
    }
    emit m_scanner.finished(m_items, cancelled());
  }

 private:
  [[nodiscard]] const std::atomic<bool>& cancelled() const { return m_scanner.m_job.cancelled(); }
  [[nodiscard]] int total() const { return static_cast<int>(m_items.size()); }

  /// Adds to the row what its places hold. Where one was refused, the figure is what could be read; Linux has places of
  /// which only a part may be read, and there a refusal anywhere counts.
  QList<Location> measure(int index) {
    SystemDataItem& item = m_items[index];
    QList<Location> locations;
    for (const QString& path : std::as_const(item.paths)) {
      if (cancelled()) break;
      const Access access = accessTo(path);
      item.denied = item.denied || access == Access::Refused;
      if (access != Access::Granted) continue;
      const fs::Totals totals = fs::measure(path, cancelled(), throttled(index), item.excludes);
      item.bytes += totals.bytes;
      item.files += totals.files;
      item.denied = item.denied || (!m_isMac && totals.unread > 0);
      locations << Location{totals.bytes, QFileInfo(path).fileName()};
    }
    return locations;
  }

  /// On Linux what lies in a folder that may not be entered is refused: nobody can tell whether it is there.
  [[nodiscard]] Access accessTo(const QString& path) const {
    const bool isThere = QFileInfo::exists(path);
    if (!isThere && m_isMac) return Access::Missing;
    if (!fs::isReadable(path)) return Access::Refused;
    return isThere ? Access::Granted : Access::Missing;
  }

  fs::Progress throttled(int index) {
    return [this, index](const QString& folder, qint64 bytes, qint64 /*files*/) {
      if (m_sinceProgress.elapsed() < kBetweenProgress.count()) return;
      m_sinceProgress.restart();
      emit m_scanner.progress(index, total(), folder, bytes + m_items[index].bytes);
    };
  }

  /// What a row tells beside its bytes.
  void complete(SystemDataItem* item, const QList<Location>& locations) const {
    if (item->id == u"hidden") item->detail = largestOf(locations);
    if (item->id == u"simulators") countDevices(item);
    if (item->id == u"snapshots")
      m_isMac ? countLocalSnapshots(item, m_scanner.m_world) : countKeptSnapshots(item, m_scanner.m_world);
  }

  SystemDataScanner& m_scanner;
  const bool m_isMac;
  QList<SystemDataItem> m_items;
  QElapsedTimer m_sinceProgress;
};

SystemDataScanner::SystemDataScanner(QObject* parent, SystemDataWorld world)
    : QObject(parent), m_world(std::move(world)) {
  connect(this, &SystemDataScanner::finished, this, [this] { m_running = false; }); // first of all who listen
}

SystemDataScanner::~SystemDataScanner() = default;

void SystemDataScanner::start() {
  if (m_running) return;
  m_running = true;
  m_job.wait(); // of the last run no more than the way out of its worker is left
  m_job.start([this] { run(); });
}

void SystemDataScanner::cancel() { m_job.cancel(); }

bool SystemDataScanner::isRunning() const { return m_running; }

void SystemDataScanner::run() { Measuring(this).run(); }

#include "moc_SystemDataScanner.cpp"
