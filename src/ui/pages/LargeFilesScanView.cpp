#include "ui/pages/LargeFilesScanView.h"

#include "core/fmt.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupWords.h"
#include "ui/pages/LargeFileKind.h"
#include "ui/pages/LargeFilesWords.h"
#include "ui/pages/furniture.h"
#include "ui/visuals/Radar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ui {

namespace {

constexpr auto kTick = 1000ms;

// Lengths in pixels.
constexpr int kPathMin = 80;
constexpr int kRowGap = 2;
constexpr QMargins kWaitingMargins(12, 8, 12, 8);
constexpr int kRowSpacing = 14;
constexpr QMargins kRowMargins(12, 8, 14, 8);
constexpr int kTile = 30;
constexpr int kLineSpacing = 1;

/// A shortened line of what comes from the disk.
ElidedLabel* line(const QString& text, const char* role, const QString& style) {
  auto* result = new ElidedLabel(text, role);
  result->setTextFormat(Qt::PlainText);
  result->setStyleSheet(style);
  return result;
}

QHBoxLayout* fileRow(const LargeFile& file) {
  const KindStyle& style = kindStyle(file.kind);
  QVBoxLayout* lines = vbox(kLineSpacing);
  lines->addWidget(line(file.name, nullptr, u"font-weight: 500;"_s));
  lines->addWidget(line(fmt::shortPath(file.dir), "mono", u"font-size: 10px;"_s));
  QLabel* size = label(fmt::bytes(file.size), "num");
  size->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  QHBoxLayout* row = hbox(kRowSpacing, kRowMargins);
  row->addWidget(new IconTile(style.icon, style.colour, kTile));
  row->addLayout(lines, 1);
  row->addWidget(size);
  return row;
}

QList<QString> pathsOf(const QList<LargeFile>& files) {
  QList<QString> paths;
  for (const LargeFile& file : files) paths << file.path;
  return paths;
}

} // namespace

LargeFilesScanView::LargeFilesScanView(QWidget* parent)
    : QWidget(parent),
      m_radarCard(new RadarCard(LargeFilesWords::tr("Looking for large files…"))),
      m_itemsValue(m_radarCard->addCounter(CleanupWords::tr("Items checked"))),
      //: Caption of a counter
      m_foundValue(m_radarCard->addCounter(LargeFilesWords::tr("Large files"))),
      m_elapsedValue(m_radarCard->addCounter(CleanupWords::tr("Elapsed"))),
      m_largest(vbox(kRowGap)),
      m_waiting(label(LargeFilesWords::tr("Looking for large files…"), "sub")),
      m_tickTimer(new QTimer(this)) {
  m_radarCard->path()->setObjectName("scanPath"_L1);
  m_itemsValue->setObjectName("itemsValue"_L1);
  m_foundValue->setObjectName("foundValue"_L1);
  m_elapsedValue->setObjectName("elapsedValue"_L1);
  m_waiting->setObjectName("waiting"_L1);
  m_tickTimer->setInterval(kTick);
  connect(m_tickTimer, &QTimer::timeout, this, &LargeFilesScanView::showElapsed);
  m_waiting->setContentsMargins(kWaitingMargins);
  //: Heading of a list while the search runs
  auto* largest = new ListCard(LargeFilesWords::tr("Largest so far"));
  largest->column()->addLayout(m_largest);
  largest->column()->addWidget(m_waiting);
  largest->column()->addStretch();
  setLayout(scanBody(m_radarCard, largest));
}

void LargeFilesScanView::begin() {
  if (m_tickTimer->isActive()) return;
  m_scanClock.start();
  m_tickTimer->start();
  m_radarCard->radar()->setText(fmt::bytes(0), CleanupWords::tr("found"));
  m_radarCard->radar()->setRunning(true);
  m_itemsValue->setText(u"—"_s);
  m_foundValue->setText(u"0"_s);
  m_elapsedValue->setText(fmt::clock(0));
  m_radarCard->path()->setPath({}, 0);
  showLargest({});
}

void LargeFilesScanView::end() {
  m_tickTimer->stop();
  m_radarCard->radar()->setRunning(false);
}

void LargeFilesScanView::showElapsed() { m_elapsedValue->setText(fmt::clock(elapsedSeconds(m_scanClock))); }

void LargeFilesScanView::setProgress(qint64 filesSeen, const QString& dir, int found, qint64 bytesFound,
                                     const QList<LargeFile>& top) {
  m_radarCard->radar()->setText(fmt::bytes(bytesFound), CleanupWords::tr("found"));
  m_itemsValue->setText(fmt::count(filesSeen));
  m_foundValue->setText(fmt::count(found));
  m_radarCard->path()->setPath(dir, std::max(kPathMin, m_radarCard->path()->width()));
  showLargest(top);
}

void LargeFilesScanView::showLargest(const QList<LargeFile>& files) {
  m_waiting->setVisible(files.isEmpty());
  const QList<QString> paths = pathsOf(files);
  if (paths == m_shownLargest) return;
  m_shownLargest = paths;
  clearLayout(m_largest);
  for (const LargeFile& file : files) m_largest->addLayout(fileRow(file));
}

} // namespace ui
