#include "ui/pages/CleanupDoneView.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "engines/Cleaner.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/GradientText.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupNotes.h"
#include "ui/pages/CleanupWords.h"
#include "ui/pages/DoneBadge.h"
#include "ui/pages/furniture.h"
#include "ui/visuals/hues.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QUrl>
#include <QVBoxLayout>

#include <limits>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kColumnWidth = 640;
constexpr int kColumnSpacing = 6;
constexpr int kAboveBadge = 40;
constexpr int kBelowBadge = 6;
constexpr int kFreedSize = 54;
constexpr int kFreedWeight = 600;
constexpr int kBelowSummary = 16;
constexpr int kCounterSpacing = 40;
constexpr StatSizes kCounterSizes{.value = 17, .caption = 12};
constexpr int kBelowCounters = 12;
constexpr int kBelowNotes = 18;
constexpr int kButtonSpacing = 10;
constexpr int kExampleWidth = 360;

QString skippedText(const CleanReport& report, const QFontMetrics& metrics) {
  const int count = int(qMin<qint64>(report.skipped, std::numeric_limits<int>::max()));
  QString text = CleanupWords::tr("<b>%Ln file(s) skipped</b> because they were in use or protected. Quit the apps "
                                  "using them and rescan to remove them.",
                                  nullptr, count);
  if (report.skippedSamples.isEmpty()) return text;
  const QString sample = metrics.elidedText(report.skippedSamples.first(), Qt::ElideMiddle, kExampleWidth);
  //: %1: a path; follows “… files skipped …”
  return text + u' ' + CleanupWords::tr("For example: %1").arg(sample.toHtmlEscaped());
}

QString runningText(const QStringList& apps) {
  return CleanupWords::tr("<b>Left caches of running apps alone:</b> %1. Quit them and clean again to include them.")
      .arg(fmt::list(apps).toHtmlEscaped());
}

void openLocal(const QString& path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }

} // namespace

QString heldBackText(const CleanReport& report, const QFontMetrics& metrics) {
  QStringList lines;
  if (!report.runningApps.isEmpty()) lines << runningText(report.runningApps);
  if (report.skipped >= 1) lines << skippedText(report, metrics);
  return lines.join("<br>"_L1);
}

CleanupDoneView::CleanupDoneView(AppState* state, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_freedValue(new GradientText(Theme::get().mono(kFreedSize, kFreedWeight))),
      m_doneSummary(label({}, "sub")) {
  auto* column = new QWidget;
  column->setMaximumWidth(kColumnWidth);
  column->setLayout(buildColumn());
  QHBoxLayout* row = hbox();
  row->addStretch();
  row->addWidget(column, 1); // as wide as it may be
  row->addStretch();
  QVBoxLayout* page = nullptr;
  QScrollArea* scroll = scrollPage(&page);
  page->addLayout(row);
  page->addStretch();
  QVBoxLayout* root = vbox();
  setLayout(root);
  root->addWidget(scroll, 1);
}

QVBoxLayout* CleanupDoneView::buildColumn() {
  QVBoxLayout* column = vbox(kColumnSpacing, {0, 0, 0, kGlowRoom});
  addResult(column);
  addCounters(column);
  addNotes(column);
  addButtons(column);
  return column;
}

void CleanupDoneView::addResult(QVBoxLayout* column) {
  m_freedValue->stops = {hues::kEmerald, hues::kCyan};
  m_doneSummary->setObjectName("doneSummary"_L1);
  m_doneSummary->setAlignment(Qt::AlignCenter);
  m_doneSummary->setWordWrap(true);
  QLabel* heading = eyebrow(CleanupWords::tr("Cleanup complete"));
  heading->setAlignment(Qt::AlignCenter);
  column->addSpacing(kAboveBadge);
  column->addWidget(new DoneBadge, 0, Qt::AlignHCenter);
  column->addSpacing(kBelowBadge);
  column->addWidget(heading);
  column->addWidget(m_freedValue, 0, Qt::AlignHCenter);
  column->addWidget(m_doneSummary);
  column->addSpacing(kBelowSummary);
}

void CleanupDoneView::addCounters(QVBoxLayout* column) {
  //: Free space on the disk before the cleanup, over a size
  const StatPair before = statPair(CleanupWords::tr("Available before"), kCounterSizes);
  //: Free space on the disk after the cleanup, over a size
  const StatPair now = statPair(CleanupWords::tr("Available now"), kCounterSizes);
  m_beforeValue = before.value;
  m_nowValue = now.value;
  m_beforeValue->setObjectName("beforeValue"_L1);
  m_nowValue->setObjectName("nowValue"_L1);
  QHBoxLayout* row = hbox(kCounterSpacing);
  row->addStretch();
  row->addLayout(before.layout);
  row->addLayout(now.layout);
  row->addStretch();
  column->addLayout(row);
  column->addSpacing(kBelowCounters);
}

void CleanupDoneView::addNotes(QVBoxLayout* column) {
  m_skippedNote = spokenNote(Note::Caution, u"alert"_s, {});
  m_skippedNote->setObjectName("skippedNote"_L1);
  m_adminNote = administratorNote();
  m_adminNote->setObjectName("adminNote"_L1);
  addNote(column, m_skippedNote);
  addNote(column, m_adminNote);
  column->addSpacing(kBelowNotes);
}

void CleanupDoneView::addButtons(QVBoxLayout* column) {
  auto* log = new Button(CleanupWords::tr("View log"), nullptr, u"file"_s);
  connect(log, &Button::clicked, this, &CleanupDoneView::openLog);
  //: Button that closes the report
  m_done = new Button(CleanupWords::tr("Done"), "primary");
  connect(m_done, &Button::clicked, this, &CleanupDoneView::dismissed);
  QHBoxLayout* row = hbox(kButtonSpacing);
  row->addStretch();
  row->addWidget(log);
  row->addWidget(m_done);
  row->addStretch();
  column->addLayout(row);
}

QWidget* CleanupDoneView::firstFocus() const { return m_done; }

void CleanupDoneView::refresh() {
  const CleanReport& report = m_state->report;
  m_freedValue->setText(fmt::bytes(report.freedBytes));
  m_doneSummary->setText(
      AppSettings::instance().moveToTrash()
          ? CleanupWords::tr("Moved to the %1. You can still restore anything.").arg(platform::trashName())
          : CleanupWords::tr("Items were deleted permanently."));
  m_beforeValue->setText(fmt::bytes(m_state->freeBeforeClean));
  m_nowValue->setText(fmt::bytes(m_state->volume.availableBytes));
  m_nowValue->setStyleSheet(u"font-size: 17px; color: %1;"_s.arg(Theme::get().ok.name()));
  const QString heldBack = heldBackText(report, fontMetrics());
  setNoteText(m_skippedNote, heldBack);
  m_skippedNote->setVisible(!heldBack.isEmpty());
  m_adminNote->setVisible(report.needsAdmin);
}

void CleanupDoneView::openLog() const {
  const QString& log = m_state->report.logPath;
  openLocal(!log.isEmpty() && QFileInfo::exists(log) ? log : Cleaner::logDir());
}

} // namespace ui
