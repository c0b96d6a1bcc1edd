#include "gallery/views.h"

#include "app/AppSettings.h"
#include "core/platform.h"
#include "ui/pages/CleanupPage.h"
#include "ui/shell/CloseDialog.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/Toast.h"

#include <QDir>
#include <QEventLoop>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

using enum ui::Sidebar::Page;

constexpr qint64 kDiskBytes = 494'384'795'648;
constexpr qint64 kAvailableBytes = 163'208'757'248;
constexpr qint64 kMb = 1'000'000;
constexpr qint64 kFreedMb[] = {3'100, 1'450, 2'300, 900, 4'200, 2'750}; // the present month last

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

void about(Scene* scene) { scene->window.showAbout(); }

void closeDialog(Scene* scene) {
  QWidget* clientArea = scene->window.findChild<ui::Toast*>()->parentWidget();
  (new ui::CloseDialog(clientArea))->open();
}

void toast(Scene* scene) { scene->window.showToast(u"Moved 12 items to the Trash"_s, true); }

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
    {"clean-question", Cleanup, true, cleanQuestion},
    {"about", Overview, true, about},
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

std::unique_ptr<Scene> openView(const ViewEntry& entry) {
  auto scene = std::make_unique<Scene>();
  scene->window.setSidebarCollapsed(false); // which the settings remember
  if (entry.scanned) scene->scan();
  scene->window.go(entry.page);
  scene->window.show();
  if (entry.set) entry.set(scene.get());
  return scene;
}

} // namespace gallery
