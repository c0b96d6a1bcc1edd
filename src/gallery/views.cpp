#include "gallery/views.h"

#include "app/AppSettings.h"
#include "core/fmt.h"
#include "core/platform.h"
#include "engines/systemdata.h"
#include "gallery/OpenMenu.h"
#include "ui/controls/Button.h"
#include "ui/pages/CleanupPage.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesPage.h"
#include "ui/pages/SettingsPage.h"
#include "ui/pages/SystemDataPage.h"
#include "ui/pages/SystemDataResults.h"
#include "ui/pages/SystemDataRow.h"
#include "ui/shell/CloseDialog.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/Toast.h"
#include "update/Updater.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

using enum ui::Sidebar::Page;

constexpr qint64 kDiskBytes = 494'384'795'648;
constexpr qint64 kAvailableBytes = 163'208'757'248;
constexpr qint64 kMb = 1'000'000;
constexpr qint64 kFreedMb[] = {3'100, 1'450, 2'300, 900, 4'200, 2'750}; // the present month last

/// What System Data is said to hold, on both hosts, as the real figures are those of the machine.
struct Figure {
  const char* id;
  qint64 megabytes;
  const char* detail = ""; ///< a text of System Data, if one
  int count = -1;
};
constexpr Figure kFigures[] = {
    {"usercaches", 6'400},
    {"hidden", 9'700, ".nvm, .cargo, .gradle"},
    {"flatpakdata", 3'100},
    {"userflatpak", 5'200},
    {"containers", 14'300},
    {"machines", 21'500},
    {"games", 38'900},
    {"data", 7'800},
    {"config", 1'250},
    {"journal", 2'900},
    {"logs", 640},
    {"packages", 1'800},
    {"snaps", 4'100},
    {"flatpak", 6'600},
    {"kernels", 1'150},
    {"swap", 8'600},
    {"snapshots", 0, "%1 snapshots", 3},
    {"backups", 24'800},
    {"devicesupport", 11'200},
    {"simulators", 7'700, "%1 devices", 6},
    {"runtimes", 16'900},
    {"archives", 2'300},
    {"docker", 18'400},
    {"mail", 310},
    {"messages", 5'600},
    {"syscaches", 1'900},
    {"vm", 4'300},
    {"assets", 9'900},
    {"library", 12'700},
    {"systemdb", 6'100},
    {"appdata", 31'800},
};
/// Those of which something can't be read, where that is shown; of some nothing can.
constexpr const char* kRefused[] = {"containers", "journal", "logs", "crash", "backups", "messages", "systemdb"};

/// What the program says, in the language in force; else @p text as it is. @param n  what it counts, if it does
QString said(const char* context, const char* text, int n = -1) {
  return QCoreApplication::translate(context, text, nullptr, n);
}

/// Something was freed in each of the last months.
void withHistory(Scene* /*scene*/) {
  int month = 1 - int(std::size(kFreedMb));
  for (const qint64 megabytes : kFreedMb)
    AppSettings::instance().addFreed(megabytes * kMb, QDate::currentDate().addMonths(month++));
}

/// A path below the largest item of the category at @p index.
QString somePath(const AppState& state, qsizetype index) {
  const QList<CategoryResult>& results = state.results;
  const bool any = index < results.size() && !results.at(index).items.isEmpty();
  return (any ? results.at(index).items.first().path : QDir::homePath()) + u"/data/entries/4f/8c21aa07b3"_s;
}

void scanHalfThrough(Scene* scene) {
  AppState& state = scene->state;
  state.scanCategory = int(state.scanDefs.size() / 2);
  state.scanBytes = 0;
  state.scanFiles = 0;
  for (int i = 0; i < state.scanCategory; ++i) {
    state.scanBytes += state.scanResults.at(i).bytes;
    state.scanFiles += state.scanResults.at(i).files;
  }
  state.scanPath = somePath(state, state.scanCategory);
  state.setPhase(AppState::Scanning);
}

void collapsed(Scene* scene) { scene->window.setSidebarCollapsed(true); }

/// A category with a few of its items ticked.
void partlyTicked(Scene* scene) {
  AppState& state = scene->state;
  for (const CategoryResult& result : QList<CategoryResult>(state.results)) {
    if (result.items.size() < 2) continue;
    scene->window.findChild<ui::CleanupPage*>()->focusCategory(result.def.id);
    state.setItemSelected(result.def.id, result.items.first().path, !state.selected.contains(result.def.id));
    return;
  }
}

/// The last group: what can't be undone.
void permanentInDetail(Scene* scene) {
  for (const CategoryResult& result : QList<CategoryResult>(scene->state.results))
    if (result.def.safety == Permanent) scene->window.findChild<ui::CleanupPage*>()->focusCategory(result.def.id);
}

void cleanHalfThrough(Scene* scene) {
  AppState& state = scene->state;
  const qint64 total = state.selectedBytes();
  state.setPhase(AppState::Cleaning);
  emit state.cleanProgress(total * 3 / 5, total, somePath(state, 1));
}

/// With something left alone for each reason.
void cleanReport(Scene* scene) {
  AppState& state = scene->state;
  const QString skipped = somePath(state, 1);
  CleanReport& report = state.report;
  report.freedBytes = state.selectedBytes();
  report.skipped = 3;
  report.skippedSamples = {skipped};
  report.needsAdmin = true;
  report.runningApps = {u"Firefox"_s, u"Slack"_s};
  state.freeBeforeClean = state.volume.availableBytes - report.freedBytes;
  state.results.removeIf([&](const CategoryResult& one) { return state.selected.contains(one.def.id); });
  emit state.resultsChanged();
  state.setPhase(AppState::Done);
}

void cleanQuestion(Scene* scene) {
  scene->state.selectAll(true);
  emit scene->window.findChild<ui::CleanupPage*>()->confirmRequested();
}

ui::SystemDataPage* systemDataPage(const Scene& scene) { return scene.window.findChild<ui::SystemDataPage*>(); }

/// Figures are in place, so nothing is measured when the page is shown.
void placeSystemData(AppState* state) {
  state->systemData = systemdata::definitions();
  for (SystemDataItem& item : state->systemData)
    for (const Figure& figure : kFigures) {
      if (item.id != QLatin1StringView(figure.id)) continue;
      item.bytes = figure.megabytes * kMb;
      item.count = figure.count;
      item.detail = said("SystemData", figure.detail, figure.count);
      if (figure.count >= 0) item.detail = item.detail.arg(figure.count);
    }
  state->systemDataReady = true;
  emit state->systemDataChanged();
}

void systemDataUnmeasured(Scene* scene) {
  scene->state.systemDataReady = false;
  emit scene->state.systemDataChanged();
}

void systemDataHalfThrough(Scene* scene) {
  AppState& state = scene->state;
  const QList<SystemDataItem> items = state.systemData;
  const int half = int(items.size() / 2);
  systemDataUnmeasured(scene);
  systemDataPage(*scene)->startScanView();
  for (int i = 0; i < half; ++i) emit state.systemDataMeasured(i, items[i].bytes, false);
  emit state.systemDataProgress(half, int(items.size()), somePath(state, half), items[half].bytes / 2);
}

void systemDataRefused(Scene* scene) {
  for (SystemDataItem& item : scene->state.systemData)
    item.denied = std::ranges::any_of(kRefused, [&](const char* id) { return item.id == QLatin1StringView(id); });
  emit scene->state.systemDataChanged();
}

/// The lower end of the page.
void systemDataManaged(Scene* scene) {
  systemDataRefused(scene);
  QScrollBar* bar =
      systemDataPage(*scene)->findChild<ui::SystemDataResults*>()->findChild<QScrollArea*>()->verticalScrollBar();
  QObject::connect(bar, &QScrollBar::rangeChanged, bar, [bar](int, int end) { bar->setValue(end); });
}

void systemDataBusy(Scene* scene) {
  scene->state.systemDataBusy = true;
  emit scene->state.systemDataChanged();
}

/// Of one host's rows none is dangerous, so the first is made so.
void systemDataQuestion(Scene* scene) {
  QList<SystemDataItem>& items = scene->state.systemData;
  auto asked = std::ranges::find_if(items, &SystemDataItem::destructive);
  if (asked == items.end()) {
    asked = items.begin();
    asked->action = SystemDataItem::MoveToTrash;
    emit scene->state.systemDataChanged();
  }
  for (const ui::SystemDataRow* row : systemDataPage(*scene)->findChildren<ui::SystemDataRow*>())
    if (row->id() == asked->id) return row->button()->click();
}

ui::SettingsPage* settingsPage(Scene* scene) { return scene->window.findChild<ui::SettingsPage*>(); }

/// The lower half of the settings, with rules of all kinds, and another language than the running one.
void settingsBelow(Scene* scene) {
  AppSettings& settings = AppSettings::instance();
  settings.setExclusions({u"**/.git"_s, QDir::homePath() + u"/Pictures"_s, u"*.iso"_s});
  for (auto* one : settingsPage(scene)->findChildren<QComboBox*>())
    if (const int index = one->findData(u"de"_s); index >= 0) one->setCurrentIndex(index);
  settingsPage(scene)->showExclusions();
  QObject::connect(&scene->state, &QObject::destroyed, &settings, [&settings] {
    settings.setLanguage({});
    settings.setExclusions({u"**/.git"_s});
  });
}

/// The settings' store is damaged until the scene is over.
void damagedSettings(Scene* scene) {
  AppSettings& settings = AppSettings::instance();
  settings.setExclusions({u"**/.git"_s, QDir::homePath() + u"/Pictures"_s, u"*.iso"_s});
  QFile store(settings.path());
  if (store.open(QIODevice::WriteOnly)) store.write("damaged");
  store.close();
  settings.look();
  if (scene->window.page() == Settings) settingsPage(scene)->showExclusions();
  QObject::connect(&scene->state, &QObject::destroyed, &settings, [&settings] {
    settings.acceptExclusions();
    settings.setExclusions({u"**/.git"_s});
  });
}

void about(Scene* scene) { scene->window.showAbout(); }

void closeDialog(Scene* scene) {
  QWidget* clientArea = scene->window.findChild<ui::Toast*>()->parentWidget();
  (new ui::CloseDialog(clientArea))->open();
}

struct SampleFile {
  const char* folder; ///< below the home folder
  const char* name;
  const char* kind;
  qint64 megabytes;
  int days; ///< since it was last used
};
constexpr SampleFile kLargeFiles[] = {
    {"VMs", "debian-testing.qcow2", "Disk image", 24'300, 12},
    {"Films/Summer", "lake-house-take-04.mov", "Video", 8'420, 210},
    {"Backups", "photos-before-the-move.tar.zst", "Archive", 6'130, 540},
    {"Films/Summer", "lake-house-take-02.mov", "Video", 5'870, 212},
    {"Downloads", "openlight-desktop-23.1-live.iso", "Disk image", 4'720, 35},
    {"Projects/survey/data", "responses-2019-2024.parquet", "Document", 3'940, 3},
    {"Films", "wedding-full-length.mkv", "Video", 3'610, 800},
    {"Projects/survey/data", "tracks.sqlite", "Document", 2'480, 0},
    {"Music/Sessions", "evening-mix-stereo.flac", "Audio", 1'890, 95},
    {"Downloads", "toolkit-sdk-linux.tar.gz", "Archive", 1'640, 64},
    {"Pictures/Scans", "map-sheet-14.tif", "Image", 1'220, 400},
    {"Downloads", "big-archive.zip.part", "Partial download", 980, 1},
    {"Pictures/Scans", "map-sheet-15.tif", "Image", 870, 401},
    {"Backups", "phone-2023.backup", "Backup", 760, 610},
    {"Films", "trailer-rough-cut.mp4", "Video", 640, 20},
    {"Games/saves", "world-of-blocks.dat", "File", 520, 150},
    {"Downloads", "office-suite.msi", "Installer", 410, 250},
    {"Music/Sessions", "evening-mix-drums.wav", "Audio", 380, 96},
    {"Pictures/2024", "harbour-panorama.psd", "Image", 310, 5},
    {"Documents", "thesis-all-figures.pdf", "Document", 240, 180},
};

/// The search that the visit has begun is through; what it found makes room for what the pictures show.
QList<LargeFile> sampleFiles(Scene* scene) {
  AppState& state = scene->state;
  QEventLoop loop;
  QObject::connect(&state, &AppState::largeFilesChanged, &loop, [&] {
    if (!state.largeSearching) loop.quit();
  });
  if (state.largeSearching) loop.exec();
  QList<LargeFile> files;
  for (const SampleFile& one : kLargeFiles) {
    LargeFile file;
    file.name = QString::fromLatin1(one.name);
    file.dir = QDir::homePath() + u'/' + QString::fromLatin1(one.folder);
    file.path = file.dir + u'/' + file.name;
    file.kind = QString::fromLatin1(one.kind);
    file.size = one.megabytes * kMb;
    file.lastUsed = QDateTime::currentDateTime().addDays(-one.days);
    files << file;
  }
  return files;
}

void spaceStart(Scene* scene) {
  (void)sampleFiles(scene);
  scene->state.largeScanned = false;
  emit scene->state.largeFilesChanged();
}

void spaceSearch(Scene* scene) {
  constexpr int kTop = 8;
  const QList<LargeFile> files = sampleFiles(scene);
  AppState& state = scene->state;
  state.largeSearching = true;
  emit state.largeFilesChanged();
  qint64 bytes = 0;
  for (const LargeFile& file : files) bytes += file.size;
  emit state.largeProgress(183'402, files.last().dir + u"/figures/appendix/c"_s, int(files.size()), bytes,
                           files.mid(0, kTop));
}

void spaceFound(Scene* scene) {
  scene->state.largeFiles = sampleFiles(scene);
  scene->state.largeScanned = true;
  emit scene->state.largeFilesChanged();
}

void spaceTicked(Scene* scene) {
  spaceFound(scene);
  auto* model = scene->window.findChild<ui::LargeFilesModel*>();
  for (const int row : {1, 2, 6, 12}) model->toggle(model->files().at(row).path);
}

void spaceNothingKept(Scene* scene) {
  spaceFound(scene);
  scene->window.findChild<ui::LargeFilesPage*>()->findChild<QLineEdit*>()->setText(u"quarterly report"_s);
}

/// The dialog over what a feed could have told; nobody is asked.
Updater* withUpdate(Scene* scene) {
  auto* updater = scene->window.findChild<Updater*>();
  if (!updater) qFatal("this build doesn't update itself");
  updater->release.version = u"1.2.0"_s;
  updater->release.date = u"14 November 2026"_s;
  updater->release.size = u"24 MB"_s;
  updater->release.changes = {
      u"The Space Map tells duplicates of a large file apart from the file itself, and never offers the last copy"_s,
      u"Caches of programs that run are measured, and still left alone"_s, u"Starts a third faster"_s};
  updater->setState(Updater::Available);
  scene->window.checkForUpdates();
  return updater;
}

void updateAvailable(Scene* scene) { (void)withUpdate(scene); }

void updateNotLoaded(Scene* scene) {
  Updater* updater = withUpdate(scene);
  updater->error = said("Updater", "The update could not be downloaded: %1")
                       .arg(said("Updater", "The update does not match the published checksum."));
  emit updater->stateChanged();
}

void updateDownloading(Scene* scene) {
  Updater* updater = withUpdate(scene);
  updater->total = 24 * kMb;
  updater->received = updater->total * 2 / 5;
  updater->setState(Updater::Downloading);
}

void updateCurrent(Scene* scene) { withUpdate(scene)->setState(Updater::UpToDate); }

void updateFailed(Scene* scene) {
  Updater* updater = withUpdate(scene);
  updater->error = u"Host not found"_s;
  updater->setState(Updater::Failed);
}

void updateInstalling(Scene* scene) { withUpdate(scene)->setState(Updater::Installing); }

void appMenu(Scene* scene) { new OpenMenu(&scene->window); }

void shortcuts(Scene* scene) { scene->window.showShortcuts(); }

void toast(Scene* scene) {
  constexpr int kMoved = 12;
  const QString files = said("AppState", "%1 files", kMoved).arg(kMoved);
  const QString text = said("AppState", "%1 (%2) moved to the %3", kMoved);
  scene->window.showToast(text.arg(files, fmt::bytes(kMoved * kMb), platform::trashName()), true);
}

constexpr ViewEntry kViews[] = {
    {"overview-empty", Overview, false, nullptr},
    {"overview-found", Overview, true, withHistory},
    {"cleanup-empty", Cleanup, false, nullptr},
    {"cleanup-scan", Cleanup, true, scanHalfThrough},
    {"cleanup-review", Cleanup, true, nullptr},
    {"cleanup-review-partly", Cleanup, true, partlyTicked},
    {"cleanup-review-permanent", Cleanup, true, permanentInDetail},
    {"cleanup-review-collapsed", Cleanup, true, collapsed},
    {"cleanup-cleaning", Cleanup, true, cleanHalfThrough},
    {"cleanup-done", Cleanup, true, cleanReport},
    {"space-start", SpaceMap, false, spaceStart},
    {"space-search", SpaceMap, false, spaceSearch},
    {"space-results", SpaceMap, false, spaceFound},
    {"space-results-ticked", SpaceMap, false, spaceTicked},
    {"space-results-none", SpaceMap, false, spaceNothingKept},
    {"clean-question", Cleanup, true, cleanQuestion},
    {"update-available", Overview, false, updateAvailable},
    {"update-not-loaded", Overview, false, updateNotLoaded},
    {"update-downloading", Overview, false, updateDownloading},
    {"update-current", Overview, false, updateCurrent},
    {"update-failed", Overview, false, updateFailed},
    {"update-installing", Overview, false, updateInstalling},
    {"system-data-start", SystemData, false, systemDataUnmeasured},
    {"system-data-scan", SystemData, false, systemDataHalfThrough},
    {"system-data-results", SystemData, false, nullptr},
    {"system-data-refused", SystemData, false, systemDataRefused},
    {"system-data-managed", SystemData, false, systemDataManaged},
    {"system-data-busy", SystemData, false, systemDataBusy},
    {"system-data-question", SystemData, false, systemDataQuestion},
    {"settings", Settings, false, nullptr},
    {"settings-below", Settings, false, settingsBelow},
    {"settings-damaged", Settings, false, damagedSettings},
    {"cleanup-review-damaged", Cleanup, true, damagedSettings},
    {"about", Overview, true, about},
    {"app-menu", Overview, true, appMenu},
    {"shortcuts", Overview, true, shortcuts},
    {"close-dialog", Overview, true, closeDialog},
    {"toast", Cleanup, true, toast},
};

constexpr QSize kSizes[] = {{960, 640}, {1180, 780}};

} // namespace

Scene::Scene() {
  state.volume = {.name = platform::volumeName({}, u"/"_s, platform::VolumeRole::Root),
                  .fileSystem = u"EXT4"_s,
                  .rootPath = u"/"_s,
                  .totalBytes = kDiskBytes,
                  .availableBytes = kAvailableBytes};
  emit state.volumeChanged();
}

void Scene::scan() {
  QEventLoop loop;
  QObject::connect(&state, &AppState::phaseChanged, &loop, [this, &loop] {
    if (state.phase != AppState::Scanning) loop.quit();
  });
  state.lastScan = QDateTime::currentDateTime();
  RunOptions options;
  options.recordLastScan = false;
  state.startScan(options);
  if (state.phase == AppState::Scanning) loop.exec();
}

std::span<const ViewEntry> views() { return kViews; }
std::span<const QSize> viewSizes() { return kSizes; }

void bringTo(Scene* scene, const ViewEntry& entry) {
  scene->window.setSidebarCollapsed(false); // which the settings remember
  if (entry.scanned && scene->state.results.isEmpty()) scene->scan();
  if (entry.page == SystemData) placeSystemData(&scene->state);
  scene->window.go(entry.page);
  scene->window.show();
  if (entry.set) entry.set(scene);
}

std::unique_ptr<Scene> openView(const ViewEntry& entry) {
  auto scene = std::make_unique<Scene>();
  bringTo(scene.get(), entry);
  return scene;
}

} // namespace gallery
