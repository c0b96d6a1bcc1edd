#include "ui/pages/SystemDataPage.h"

#include "app/AppState.h"
#include "engines/SystemDataScanner.h"
#include "engines/systemdata.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/factory.h"
#include "ui/pages/SystemDataResults.h"
#include "ui/pages/SystemDataScanView.h"
#include "ui/pages/SystemDataWords.h"
#include "ui/pages/furniture.h"

#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

SystemDataPage::SystemDataPage(AppState* state, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_views(new QStackedWidget),
      m_scanView(new SystemDataScanView),
      m_resultsView(new SystemDataResults) {
  m_views->setObjectName("views"_L1);
  QVBoxLayout* root = vbox();
  setLayout(root);
  root->addWidget(buildHeader());
  root->addWidget(m_views, 1);
  m_startView = buildStart();
  for (QWidget* view : {m_startView, static_cast<QWidget*>(m_scanView), static_cast<QWidget*>(m_resultsView)})
    m_views->addWidget(view);
  m_resultsView->setTabAfter(m_rescanButton);

  connect(state, &AppState::systemDataChanged, this, &SystemDataPage::sync);
  connect(state, &AppState::systemDataProgress, this, [this](int index, int, const QString& path, qint64 bytes) {
    m_scanView->showPath(path);
    showScanProgress(index, bytes);
  });
  connect(state, &AppState::systemDataMeasured, m_scanView, &SystemDataScanView::setMeasured);
  connect(m_resultsView, &SystemDataResults::actionWanted, this, &SystemDataPage::act);
  connect(&Theme::get(), &Theme::changed, this, &SystemDataPage::refreshLook);
  sync();
}

QWidget* SystemDataPage::buildHeader() {
  //: Name of the page, and of what the system calls so in its own view of the disk
  auto* header = new PageHeader(SystemDataWords::tr("System Data"));
  //: Button: measure again
  auto* rescan = new Button(SystemDataWords::tr("Rescan"), nullptr, u"refresh"_s);
  connect(rescan, &Button::clicked, m_state, &AppState::startSystemDataScan);
  header->addAction(rescan);
  m_rescanButton = rescan;
  return header;
}

QWidget* SystemDataPage::buildStart() {
  const StartView start =
      startView({.icon = u"drive"_s,
                 .title = SystemDataWords::tr("See what's inside System Data"),
                 .text = SystemDataWords::tr("Snapshots, backups, developer files, caches and more."),
                 .button = SystemDataWords::tr("Scan System Data"),
                 .buttonIcon = u"sparkle"_s});
  connect(start.start, &Button::clicked, m_state, &AppState::startSystemDataScan);
  return start.view;
}

void SystemDataPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!m_state->systemDataReady) m_state->startSystemDataScan(); // does nothing while one runs
}

void SystemDataPage::sync() {
  if (m_state->systemDataScanner->isRunning() && !m_state->systemDataReady) {
    if (!m_scanView->isLive()) startScanView();
    return;
  }
  m_scanView->end();
  if (m_state->systemDataReady) rebuildResults();
  m_views->setCurrentWidget(m_state->systemDataReady ? static_cast<QWidget*>(m_resultsView) : m_startView);
}

void SystemDataPage::startScanView() {
  m_scanView->begin(systemdata::definitions(m_state->systemDataScanner->world()));
  m_views->setCurrentWidget(m_scanView);
}

void SystemDataPage::showScanProgress(int index, qint64 bytes) { m_scanView->showProgress(index, bytes); }

void SystemDataPage::rebuildResults() {
  const bool measuring = m_state->systemDataScanner->isRunning();
  m_resultsView->rebuild(m_state->systemData, m_state->systemDataBusy ? SystemDataWork::Acting
                                              : measuring             ? SystemDataWork::Measuring
                                                                      : SystemDataWork::None);
}

void SystemDataPage::act(const QString& id) {
  const QList<SystemDataItem>& items = m_state->systemData;
  const auto item = std::ranges::find(items, id, &SystemDataItem::id);
  if (item == items.end()) return;
  if (item->action == SystemDataItem::CleanInCleanup) return emit openCleanup();
  if (!item->destructive()) return m_state->runSystemDataAction(id);
  const SystemDataWords::Question question = SystemDataWords::questionFor(*item);
  emit confirmAction(question.title, question.body, question.confirm, id);
}

// Some texts carry colours of the look in force.
void SystemDataPage::refreshLook() {
  m_scanView->refreshLook();
  if (m_state->systemDataReady) rebuildResults();
}

} // namespace ui
