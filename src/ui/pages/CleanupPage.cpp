#include "ui/pages/CleanupPage.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupDoneView.h"
#include "ui/pages/CleanupProgressView.h"
#include "ui/pages/CleanupReviewView.h"
#include "ui/pages/CleanupScanView.h"
#include "ui/pages/CleanupWords.h"
#include "ui/pages/furniture.h"

#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {

namespace {
constexpr int kStartWidth = 460; // pixels
}

CleanupPage::CleanupPage(AppState* state, QWidget* parent)
    : QWidget(parent), m_state(state), m_views(new QStackedWidget) {
  m_views->setObjectName("views"_L1);
  QVBoxLayout* root = vbox();
  setLayout(root);
  root->addWidget(m_views);
  for (QWidget* view : {buildEmpty(), buildScan(), buildReview(), buildCleaning(), buildDone()})
    m_views->addWidget(view);
  connect(state, &AppState::phaseChanged, this, &CleanupPage::syncPhase);
  connect(state, &AppState::scanProgressChanged, this, &CleanupPage::refreshScan);
  // In another phase the review isn't seen, and is brought up to date when its phase comes.
  connect(state, &AppState::resultsChanged, this, [this] {
    if (m_state->phase == AppState::Review) refreshReview();
  });
  connect(state, &AppState::selectionChanged, this, &CleanupPage::refreshSelection);
  connect(state, &AppState::cleanProgress, m_cleaningView, &CleanupProgressView::setProgress);
  connect(&AppSettings::instance(), &AppSettings::changed, this, &CleanupPage::refreshSelection);
  connect(&Theme::get(), &Theme::changed, this, &CleanupPage::refreshLook);
  syncPhase();
}

QWidget* CleanupPage::buildEmpty() {
  const StartBlock block = startBlock({.icon = u"sparkle"_s,
                                       .title = CleanupWords::tr("Nothing scanned yet"),
                                       .text = CleanupWords::tr("Find caches, temporary files and leftovers."),
                                       .button = CleanupWords::tr("Start Smart Scan"),
                                       .buttonIcon = u"sparkle"_s});
  connect(block.start, &Button::clicked, m_state, [state = m_state] { state->startScan(); });
  auto* view = new QWidget;
  QVBoxLayout* root = vbox();
  view->setLayout(root);
  //: Noun: the page for cleaning
  root->addWidget(new PageHeader(CleanupWords::tr("Cleanup")));
  root->addWidget(centred(block.layout, kStartWidth), 1);
  return view;
}

QWidget* CleanupPage::buildScan() { return m_scanView = new CleanupScanView(m_state); }

QWidget* CleanupPage::buildReview() {
  m_reviewView = new CleanupReviewView(m_state);
  connect(m_reviewView, &CleanupReviewView::confirmRequested, this, &CleanupPage::confirmRequested);
  connect(m_reviewView, &CleanupReviewView::rulesRequested, this, &CleanupPage::rulesRequested);
  return m_reviewView;
}

QWidget* CleanupPage::buildCleaning() { return m_cleaningView = new CleanupProgressView; }

QWidget* CleanupPage::buildDone() {
  m_doneView = new CleanupDoneView(m_state);
  connect(m_doneView, &CleanupDoneView::dismissed, this, &CleanupPage::finish);
  return m_doneView;
}

void CleanupPage::syncPhase() {
  switch (m_state->phase) {
  case AppState::Empty:
    break;
  case AppState::Scanning:
    m_scanView->forgetSteps();
    refreshScan();
    break;
  case AppState::Review:
    m_scanView->stopRadar();
    refreshReview();
    break;
  case AppState::Cleaning:
    m_cleaningView->reset(m_state->selectedBytes());
    break;
  case AppState::Done:
    refreshDone();
    break;
  default:
    return;
  }
  const QWidget* focused = window()->focusWidget();
  const bool hadFocus = focused && m_views->isAncestorOf(focused);
  m_views->setCurrentIndex(m_state->phase);
  if (hadFocus && m_state->phase == AppState::Done) m_doneView->firstFocus()->setFocus(Qt::OtherFocusReason);
}

void CleanupPage::refreshScan() { m_scanView->refresh(); }
void CleanupPage::refreshReview() { m_reviewView->refresh(); }
void CleanupPage::refreshSelection() { m_reviewView->refreshSelection(); }
void CleanupPage::refreshDone() { m_doneView->refresh(); }
void CleanupPage::focusCategory(const QString& id) { m_reviewView->focusCategory(id); }

// Some texts carry colours of the look in force.
void CleanupPage::refreshLook() {
  m_scanView->forgetColours();
  if (m_state->phase == AppState::Scanning) refreshScan();
  if (m_state->phase == AppState::Done) refreshDone();
  refreshSelection();
}

void CleanupPage::finish() {
  m_state->acknowledgeDone();
  emit goHome();
}

} // namespace ui
