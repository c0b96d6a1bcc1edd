#include "ui/pages/LargeFilesPage.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "ui/controls/Button.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/factory.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesResultsView.h"
#include "ui/pages/LargeFilesScanView.h"
#include "ui/pages/LargeFilesWords.h"
#include "ui/pages/furniture.h"

#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {

LargeFilesPage::LargeFilesPage(AppState* state, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_model(new LargeFilesModel(this)),
      //: Name of the page with the map of large files
      m_header(new PageHeader(LargeFilesWords::tr("Space Map"))),
      //: Button: search again
      m_rescan(new Button(LargeFilesWords::tr("Rescan"), nullptr, u"refresh"_s)),
      m_views(new QStackedWidget),
      m_startView(buildStart()),
      m_scanView(new LargeFilesScanView),
      m_resultsView(new LargeFilesResultsView(state, m_model)) {
  m_header->addAction(m_rescan);
  m_views->setObjectName("views"_L1);
  for (QWidget* view : {m_startView, static_cast<QWidget*>(m_scanView), static_cast<QWidget*>(m_resultsView)})
    m_views->addWidget(view);
  QVBoxLayout* root = vbox();
  setLayout(root);
  root->addWidget(m_header);
  root->addWidget(m_views, 1);
  connect(m_rescan, &Button::clicked, state, &AppState::startLargeScan);
  connect(state, &AppState::largeFilesChanged, this, &LargeFilesPage::syncState);
  connect(state, &AppState::largeProgress, m_scanView, &LargeFilesScanView::setProgress);
  connect(&AppSettings::instance(), &AppSettings::changed, this, &LargeFilesPage::applyFilter);
  syncState();
}

QWidget* LargeFilesPage::buildStart() {
  const StartView start =
      startView({.icon = u"layers"_s,
                 .title = LargeFilesWords::tr("Find what's taking up space"),
                 .text = LargeFilesWords::tr("Big files in your home folder. You decide what goes."),
                 .button = LargeFilesWords::tr("Find large files"),
                 .buttonIcon = u"search"_s});
  connect(start.start, &Button::clicked, m_state, &AppState::startLargeScan);
  return start.view;
}

void LargeFilesPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!m_state->largeScanned && !m_state->largeSearching) m_state->startLargeScan();
}

void LargeFilesPage::syncState() {
  m_header->setSubtitle({});
  //: Small heading; %1: the least size of files that are listed
  m_header->setEyebrow(LargeFilesWords::tr("Home folder · over %1")
                           .arg(fmt::bytes(AppSettings::instance().largeFileMB() * fmt::unit() * fmt::unit())));
  if (m_state->largeSearching) {
    m_scanView->begin();
    showView(m_scanView);
    return;
  }
  m_scanView->end();
  if (m_state->largeScanned) {
    applyFilter();
    showView(m_resultsView);
  } else {
    showView(m_startView);
  }
}

// The keyboard isn't left in a view that is hidden: it would come out anywhere.
void LargeFilesPage::showView(QWidget* view) {
  const QWidget* focused = window()->focusWidget();
  const bool leaves = focused && m_views->currentWidget() != view && m_views->isAncestorOf(focused);
  m_views->setCurrentWidget(view);
  if (leaves) m_rescan->setFocus(Qt::OtherFocusReason);
}

void LargeFilesPage::refreshFooter() { m_resultsView->refreshFooter(); }
void LargeFilesPage::applyFilter() { m_resultsView->applyFilter(); }
void LargeFilesPage::showLargest(const QList<LargeFile>& files) { m_scanView->showLargest(files); }

} // namespace ui
