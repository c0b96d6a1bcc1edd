#include "ui/pages/CleanupScanView.h"

#include "app/AppState.h"
#include "core/fmt.h"
#include "ui/controls/Button.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupWords.h"
#include "ui/pages/furniture.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/ScanStepRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr QMargins kStepsMargins(8, 8, 8, 8);
constexpr int kStepSpacing = 2;
constexpr int kPathWidth = 280;

constexpr ScanShares kShares{.radar = 2, .results = 3};

QString dash() { return u"—"_s; }
QString stepName(qsizetype index) { return u"step%1"_s.arg(index); }

} // namespace

CleanupScanView::CleanupScanView(AppState* state, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      //: Heading while a scan runs
      m_radarCard(new RadarCard(CleanupWords::tr("Scanning"))),
      //: Caption of a counter
      m_itemsValue(m_radarCard->addCounter(CleanupWords::tr("Items checked"))),
      //: Caption of a counter: time since the start
      m_elapsedValue(m_radarCard->addCounter(CleanupWords::tr("Elapsed"))),
      //: Caption of a counter: time until the end
      m_remainingValue(m_radarCard->addCounter(CleanupWords::tr("Remaining"))),
      m_stepsLayout(vbox(kStepSpacing)) {
  m_radarCard->path()->setObjectName("scanPath"_L1);
  m_itemsValue->setObjectName("itemsValue"_L1);
  m_elapsedValue->setObjectName("elapsedValue"_L1);
  m_remainingValue->setObjectName("remainingValue"_L1);

  auto* header = new PageHeader(CleanupWords::tr("Scanning"));
  header->setEyebrow(CleanupWords::tr("In progress"));
  auto* stop = new Button(CleanupWords::tr("Stop"));
  connect(stop, &Button::clicked, state, &AppState::cancelScan);
  header->addAction(stop);

  auto* steps = new Card;
  QVBoxLayout* column = vbox(0, kStepsMargins);
  steps->setLayout(column);
  column->addLayout(m_stepsLayout);
  column->addStretch();

  QVBoxLayout* root = vbox();
  setLayout(root);
  root->addWidget(header);
  root->addLayout(scanBody(m_radarCard, steps, kShares), 1);
}

void CleanupScanView::rebuildSteps() {
  clearLayout(m_stepsLayout);
  const QList<CategoryDef>& defs = m_state->scanDefs;
  for (qsizetype i = 0; i < defs.size(); ++i) {
    const CategoryDef& def = defs.at(i);
    auto* row = new ScanStepRow(def.icon, def.colour, def.title);
    row->setObjectName(stepName(i));
    m_stepsLayout->addWidget(row);
  }
  m_shownStepCount = defs.size();
}

void CleanupScanView::paintSteps() {
  const int current = m_state->scanCategory;
  for (qsizetype i = 0; i < m_shownStepCount; ++i) {
    auto* row = m_stepsLayout->parentWidget()->findChild<ScanStepRow*>(stepName(i));
    if (!row) continue;
    if (i < current)
      row->set(StepBar::Done, fmt::bytes(m_state->sizeOfScanned(int(i))));
    else if (i == current)
      row->set(StepBar::Running, u"…"_s);
    else
      row->set(StepBar::Pending, dash());
  }
}

void CleanupScanView::refresh() {
  const int current = m_state->scanCategory;
  const qsizetype count = m_state->scanDefs.size();
  if (m_shownStepCount != count) {
    rebuildSteps();
    forgetColours();
  }
  if (current != m_shownStepIndex) paintSteps();
  m_shownStepIndex = current;

  Radar* radar = m_radarCard->radar();
  radar->setRunning(m_state->phase == AppState::Scanning);
  //: Under a size: so much was found until now
  radar->setText(fmt::bytes(m_state->scanBytes), CleanupWords::tr("found"));
  m_radarCard->path()->setPath(m_state->scanPath, kPathWidth);
  const qint64 seconds = elapsedSeconds(m_state->scanTimer);
  m_itemsValue->setText(fmt::count(m_state->scanFiles));
  m_elapsedValue->setText(fmt::clock(seconds));
  m_remainingValue->setText(scanRemaining(scanFraction(current, count), seconds));
}

void CleanupScanView::stopRadar() { m_radarCard->radar()->setRunning(false); }

} // namespace ui
