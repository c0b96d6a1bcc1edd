#include "ui/pages/SystemDataScanView.h"

#include "core/fmt.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupWords.h"
#include "ui/pages/SystemDataWords.h"
#include "ui/pages/furniture.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/ScanStepRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kRowSpacing = 2;
constexpr int kLeastPath = 80;
constexpr int kBelowRow = 40; // what of the list stays in view below and above the row in work

constexpr auto kTick = 1000ms;

QString heading() { return SystemDataWords::tr("Measuring System Data…"); }

} // namespace

SystemDataScanView::SystemDataScanView(QWidget* parent)
    : QWidget(parent),
      m_radarCard(new RadarCard(heading())),
      m_elapsedValue(m_radarCard->addCounter(CleanupWords::tr("Elapsed"))),
      m_remainingValue(m_radarCard->addCounter(CleanupWords::tr("Remaining"))),
      m_scroll(new QScrollArea),
      m_rows(vbox(kRowSpacing)),
      m_tickTimer(new QTimer(this)) {
  m_radarCard->path()->setObjectName("scanPath"_L1);
  m_elapsedValue->setObjectName("elapsedValue"_L1);
  m_remainingValue->setObjectName("remainingValue"_L1);
  setLayout(scanBody(m_radarCard, buildSteps()));
  m_tickTimer->setInterval(kTick);
  connect(m_tickTimer, &QTimer::timeout, this, [this] { showProgress(m_currentIndex, -1); });
}

QWidget* SystemDataScanView::buildSteps() {
  auto* content = new QWidget;
  QVBoxLayout* column = vbox();
  content->setLayout(column);
  column->addLayout(m_rows);
  column->addStretch();
  m_scroll->setWidgetResizable(true);
  m_scroll->setFrameShape(QFrame::NoFrame);
  m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_scroll->setWidget(content);
  m_scroll->setAccessibleName(heading());
  // Also when the list becomes shorter; later, as by then the rows have their places.
  connect(m_scroll->verticalScrollBar(), &QScrollBar::rangeChanged, this, &SystemDataScanView::keepInView,
          Qt::QueuedConnection);
  auto* card = new ListCard(heading());
  card->column()->addWidget(m_scroll, 1);
  card->ringFor(m_scroll);
  return card;
}

void SystemDataScanView::begin(const QList<SystemDataItem>& items) {
  clearLayout(m_rows);
  m_steps.clear();
  for (const SystemDataItem& item : items) {
    m_steps << Step{.row = new ScanStepRow(item.icon, item.color, item.title)};
    m_rows->addWidget(m_steps.last().row);
  }
  showPath({});
  m_scanClock.start();
  m_tickTimer->start();
  m_radarCard->radar()->setRunning(true);
  showProgress(0, 0);
}

void SystemDataScanView::end() {
  m_tickTimer->stop();
  m_radarCard->radar()->setRunning(false);
}

bool SystemDataScanView::isLive() const { return m_tickTimer->isActive(); }

void SystemDataScanView::showPath(const QString& path) {
  PathLabel* line = m_radarCard->path();
  line->setPath(path, std::max(kLeastPath, line->width()));
}

void SystemDataScanView::setMeasured(int index, qint64 bytes, bool denied) {
  if (index < 0 || index >= m_steps.size()) return;
  m_steps[index].bytes = bytes;
  m_steps[index].denied = denied;
  showProgress(index + 1, 0);
}

void SystemDataScanView::showProgress(int index, qint64 bytes) {
  if (bytes >= 0) {
    m_currentIndex = index;
    m_currentBytes = bytes;
    showSteps();
  }
  showClocks();
}

void SystemDataScanView::refreshLook() { showSteps(); }

void SystemDataScanView::showSteps() {
  qint64 total = m_currentBytes;
  for (qsizetype i = 0; i < m_steps.size(); ++i) {
    showStep(m_steps.at(i), i == m_currentIndex);
    total += std::max<qint64>(0, m_steps.at(i).bytes);
  }
  keepInView();
  //: Under a size: so much was measured until now
  m_radarCard->radar()->setText(fmt::bytes(total), SystemDataWords::tr("measured"));
}

void SystemDataScanView::keepInView() {
  if (m_currentIndex >= 0 && m_currentIndex < m_steps.size())
    m_scroll->ensureWidgetVisible(m_steps.at(m_currentIndex).row, 0, kBelowRow);
}

void SystemDataScanView::showStep(const Step& step, bool inWork) {
  const QString dash = u"—"_s;
  if (step.bytes >= 0)
    step.row->set(StepBar::Done, step.bytes > 0 ? fmt::bytes(step.bytes) : dash);
  else if (inWork)
    step.row->set(StepBar::Running, m_currentBytes > 0 ? fmt::bytes(m_currentBytes) : u"…"_s);
  else
    step.row->set(StepBar::Pending, dash);
}

void SystemDataScanView::showClocks() {
  const qint64 seconds = elapsedSeconds(m_scanClock);
  m_elapsedValue->setText(fmt::clock(seconds));
  m_remainingValue->setText(scanRemaining(scanFraction(m_currentIndex, m_steps.size()), seconds));
}

} // namespace ui
