#include "app/AppState.h"

#include "app/AppSettings.h"
#include "engines/Cleaner.h"
#include "engines/LargeFileFinder.h"
#include "engines/Scanner.h"
#include "engines/SystemDataScanner.h"

#include <algorithm>
#include <numeric>

AppState::AppState(QObject* parent) : AppState(parent, CleanerWorld()) {}

AppState::AppState(QObject* parent, const CleanerWorld& world) : AppState(parent, world, SystemDataWorld()) {}

AppState::AppState(QObject* parent, const CleanerWorld& world, const SystemDataWorld& systemDataWorld)
    : QObject(parent),
      volume(platform::systemVolume()),
      scanner(new Scanner(this)),
      lastScan(AppSettings::instance().lastScan()),
      cleaner(new Cleaner(this, world)),
      largeFinder(new LargeFileFinder(this)),
      systemDataScanner(new SystemDataScanner(this, systemDataWorld)),
      m_sources(world.sources) {
  connectScanner();
  connectSystemData();
  connect(cleaner, &Cleaner::filesProgress, this, [this](const QString& category, qint64 done, qint64 total) {
    cleanCategory = category;
    cleanFiles = done;
    cleanFilesTotal = total;
  });
  connect(cleaner, &Cleaner::progress, this, &AppState::cleanProgress);
  connect(cleaner, &Cleaner::finished, this, &AppState::onCleanFinished);
  connectLargeFinder();
}

AppState::~AppState() = default;

// The engines emit on their workers; with this as context each of these runs on the user-interface thread.
void AppState::connectScanner() {
  connect(scanner, &Scanner::started, this, [this](const QList<CategoryDef>& defs) {
    scanDefs = defs;
    scanResults = QList<CategoryResult>(defs.size());
    emit scanProgressChanged();
  });
  connect(scanner, &Scanner::categoryStarted, this, [this](int index) {
    scanCategory = index;
    emit scanProgressChanged();
  });
  connect(scanner, &Scanner::categoryFinished, this, [this](int index, const CategoryResult& result) {
    if (index >= 0 && index < scanResults.size()) scanResults[index] = result;
  });
  connect(scanner, &Scanner::progress, this, [this](qint64 bytes, qint64 files, const QString& path) {
    scanBytes = bytes;
    scanFiles = files;
    if (!path.isEmpty()) scanPath = path;
    emit scanProgressChanged();
  });
  connect(scanner, &Scanner::finished, this, &AppState::onScanFinished);
}

void AppState::setPhase(Phase newPhase) {
  if (phase == newPhase) return;
  phase = newPhase;
  emit phaseChanged();
}

void AppState::refreshVolume() {
  volume = platform::systemVolume();
  emit volumeChanged();
}

// A worker may be through while its last signal is still on its way; the run lasts until that has arrived. The scanner
// alone may still be running for a moment after that, which a clean need not wait for.
bool AppState::isBusy() const { return phase == Scanning || phase == Cleaning || cleaner->isRunning(); }

void AppState::startScan(const RunOptions& options) {
  if (isBusy() || scanner->isRunning()) return;
  m_scanOptions = options;
  scanDefs.clear();
  scanResults.clear();
  scanCategory = -1;
  scanBytes = 0;
  scanFiles = 0;
  scanPath.clear();
  scanTimer.start();
  setPhase(Scanning);
  scanner->start(AppSettings::instance().exclusions() + options.furtherExclusions, options.only);
}

void AppState::cancelScan() { scanner->cancel(); }

void AppState::onScanFinished(const QList<CategoryResult>& found, bool cancelled) {
  if (cancelled) {
    setPhase(results.isEmpty() ? Empty : Review);
    return;
  }
  results = found;
  m_sums.follow(results, m_unticked); // now, rather than at the first tick
  if (m_scanOptions.recordLastScan) {
    lastScan = QDateTime::currentDateTime();
    AppSettings::instance().setLastScan(lastScan);
  }
  selectRecommended();
  emit resultsChanged();
  setPhase(Review);
}

void AppState::clean(const RunOptions& options) {
  const QList<CategoryResult> chosen = selectedResults();
  if (chosen.isEmpty() || isBusy()) return;
  const AppSettings& settings = AppSettings::instance();
  m_dryRun = options.dryRun;
  if (const QString why = settingsRefusal(); !why.isEmpty()) {
    refuse(why);
    return;
  }
  freeBeforeClean = volume.availableBytes;
  cleanCategory.clear();
  cleanFiles = 0;
  cleanFilesTotal = 0;
  setPhase(Cleaning);
  cleaner->start(chosen, options.moveToTrash.value_or(settings.moveToTrash()),
                 settings.exclusions() + options.furtherExclusions,
                 options.dryRun ? Cleaner::Run::Dry : Cleaner::Run::ForReal);
}

QString AppState::settingsRefusal() {
  switch (AppSettings::instance().look()) {
  case AppSettings::Store::Sound:
    break;
  case AppSettings::Store::Unreadable:
    return tr("The settings can't be read, so the rules on what to keep are unknown. Nothing was cleaned.");
  case AppSettings::Store::Lost:
    return tr("The settings have lost rules on what to keep. Nothing was cleaned.");
  }
  return {};
}

void AppState::refuse(const QString& why) {
  setPhase(Cleaning);
  CleanReport refused;
  refused.refusal = why;
  onCleanFinished(refused);
}

void AppState::stopClean() { cleaner->stop(); }

void AppState::onCleanFinished(const CleanReport& cleaned) {
  report = cleaned;
  if (!cleaned.refusal.isEmpty() || m_dryRun) {
    setPhase(Review);
    if (!cleaned.refusal.isEmpty()) emit toast(cleaned.refusal, false);
    return;
  }
  AppSettings::instance().addFreed(cleaned.freedBytes);
  results.removeIf([&](const CategoryResult& one) { return cleaned.cleanedIds.contains(one.def.id); });
  clearSelection();
  refreshVolume();
  emit resultsChanged();
  emit selectionChanged();
  setPhase(Done);
}

void AppState::acknowledgeDone() {
  if (phase == Done) setPhase(results.isEmpty() ? Empty : Review);
}

qint64 AppState::sizeOfScanned(int index) const {
  return index >= 0 && index < scanResults.size() ? scanResults.at(index).bytes : 0;
}

const CategoryResult* AppState::result(const QString& id) const {
  const auto found = std::find_if(results.cbegin(), results.cend(), [&](const auto& one) { return one.def.id == id; });
  return found == results.cend() ? nullptr : &*found;
}

qint64 AppState::totalReclaimable() const {
  return std::accumulate(results.cbegin(), results.cend(), qint64{0},
                         [](qint64 sum, const CategoryResult& one) { return sum + one.bytes; });
}

#include "moc_AppState.cpp"
