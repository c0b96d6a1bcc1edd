// System Data: its measuring, and the actions of its rows.
#include "app/AppSettings.h"
#include "app/AppState.h"
#include "engines/SystemDataScanner.h"

#include <QFutureWatcher>
#include <QtConcurrentRun>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

/// Whether it went well, and what there is to say.
using Performed = std::pair<bool, QString>;

/// These only hand over to another program.
bool isLight(SystemDataItem::Action action) {
  return action == SystemDataItem::RevealInFinder || action == SystemDataItem::OpenXcode;
}

/// A copy, as the list may be another by the time that the action is through.
std::optional<SystemDataItem> itemOf(const QList<SystemDataItem>& items, const QString& id) {
  const auto found = std::find_if(items.cbegin(), items.cend(), [&](const auto& one) { return one.id == id; });
  return found == items.cend() ? std::nullopt : std::optional(*found);
}

} // namespace

void AppState::connectSystemData() {
  connect(systemDataScanner, &SystemDataScanner::progress, this, &AppState::systemDataProgress);
  connect(systemDataScanner, &SystemDataScanner::measured, this, &AppState::systemDataMeasured);
  connect(systemDataScanner, &SystemDataScanner::finished, this,
          [this](const QList<SystemDataItem>& items, bool cancelled) {
            if (!cancelled) {
              systemData = items;
              systemDataReady = true;
            }
            emit systemDataChanged();
          });
}

void AppState::startSystemDataScan() {
  if (systemDataScanner->isRunning()) return;
  systemDataScanner->start();
  emit systemDataChanged();
}

void AppState::runSystemDataAction(const QString& id) {
  if (systemDataBusy) return;
  const std::optional<SystemDataItem> item = itemOf(systemData, id);
  if (!item) return;
  if (item->action == SystemDataItem::MoveToTrash && !AppSettings::instance().isReadable()) {
    emit toast(tr("The settings can't be read, so the rules on what to keep are unknown. Nothing was moved."), false);
  } else if (!isLight(item->action)) {
    performInBackground(*item);
  } else {
    bool ok = false;
    const QString text = systemdata::perform(*item, &ok, {}, systemDataScanner->world());
    if (!ok) emit toast(text, false);
  }
}

void AppState::performInBackground(const SystemDataItem& item) {
  systemDataBusy = true;
  emit systemDataChanged();
  auto* watcher = new QFutureWatcher<Performed>(this);
  connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher] {
    const QString text = watcher->result().second;
    watcher->deleteLater();
    onSystemDataPerformed(text);
  });
  watcher->setFuture(QtConcurrent::run(
      [item, exclusions = AppSettings::instance().exclusions(), world = systemDataScanner->world()]() -> Performed {
        bool ok = false;
        const QString text = systemdata::perform(item, &ok, exclusions, world);
        return {ok, text};
      }));
}

void AppState::onSystemDataPerformed(const QString& text) {
  systemDataBusy = false;
  refreshVolume();
  if (!text.isEmpty()) emit toast(text, false);
  if (systemDataScanner->isRunning()) emit systemDataChanged();
  startSystemDataScan(); // so that the figures follow
}
