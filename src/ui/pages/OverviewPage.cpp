#include "ui/pages/OverviewPage.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "engines/categories.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/Headline.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/factory.h"
#include "ui/pages/CategoryTile.h"
#include "ui/pages/Chip.h"
#include "ui/pages/ChipRow.h"
#include "ui/pages/LegendItem.h"
#include "ui/pages/StatCard.h"
#include "ui/visuals/DiskOrb.h"
#include "ui/visuals/Sparkline.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(OverviewPage)
};

// Lengths in pixels.
constexpr int kHeroGap = 14; // below the hero
constexpr int kHeroSpacing = 30;
constexpr QMargins kHeroMargins(22, 22, 32, 22);
constexpr int kHeadlinePx = 30;
constexpr int kEyebrowGap = 8;
constexpr int kHeadlineGap = 10;
constexpr int kLegendGap = 22; // above and below the legend
constexpr int kLegendSpacing = 26;
constexpr int kStatSpacing = 14;
constexpr int kHistoryIconSize = 26;
constexpr int kCalendarIconSize = 30;
constexpr QMargins kTilesHeadMargins(0, 26, 0, 12);
constexpr int kTileSpacing = 10;
constexpr double kSwatchGradientEnd = 8;

constexpr int kTileColumns = 4;
constexpr qsizetype kMostResultTiles = 8;
constexpr int kHistoryMonths = 6;
constexpr double kAlmostFullAbove = 0.85;

constexpr QRgb kSwatchStartHue = 0xff6366f1; // hue: what can't be cleaned, at its upper left
constexpr QRgb kSwatchEndHue = 0xffa855f7;   // hue: what can't be cleaned, at its lower right
constexpr QRgb kReclaimableHue = 0xff22d3ee; // hue: what can be cleaned
constexpr QRgb kCalendarHue = 0xffa855f7;    // hue: the calendar

QBrush usedSwatch() {
  QLinearGradient gradient(0, 0, kSwatchGradientEnd, kSwatchGradientEnd);
  gradient.setColorAt(0, QColor::fromRgb(kSwatchStartHue));
  gradient.setColorAt(1, QColor::fromRgb(kSwatchEndHue));
  return gradient;
}

QString scheduleWord(AppSettings::Schedule schedule) {
  switch (schedule) {
  case AppSettings::Off:
    //: The scheduled scan is switched off
    return Words::tr("Off");
  case AppSettings::Weekly:
    //: How often the scheduled scan runs
    return Words::tr("Weekly");
  default:
    return Words::tr("Monthly");
  }
}

} // namespace

OverviewPage::OverviewPage(AppState* state, QWidget* parent) : QWidget(parent), m_state(state) {
  auto* column = vbox();
  setLayout(column);
  column->addWidget(buildHeader());
  QVBoxLayout* content = nullptr;
  column->addWidget(scrollPage(&content), 1);
  content->addWidget(buildHero());
  content->addSpacing(kHeroGap);
  content->addWidget(buildStats());
  content->addLayout(buildTilesHead());
  m_tiles = new QGridLayout;
  m_tiles->setSpacing(kTileSpacing);
  for (int i = 0; i < kTileColumns; ++i) m_tiles->setColumnStretch(i, 1);
  content->addLayout(m_tiles);
  content->addStretch();

  for (const auto changed : {&AppState::resultsChanged, &AppState::volumeChanged, &AppState::phaseChanged})
    connect(state, changed, this, &OverviewPage::refreshIfSeen);
  connect(&AppSettings::instance(), &AppSettings::changed, this, &OverviewPage::refreshIfSeen);
  connect(&Theme::get(), &Theme::changed, this, &OverviewPage::refreshIfSeen);
  refresh();
}

QWidget* OverviewPage::buildHeader() {
  auto* header = new PageHeader(Words::tr("Smart Scan"));
  //: Small heading over “Smart Scan”
  header->setEyebrow(Words::tr("Overview"));
  //: Button: scan again
  m_rescanButton = new Button(Words::tr("Rescan"), nullptr, u"refresh"_s);
  header->addAction(m_rescanButton);
  connect(m_rescanButton, &Button::clicked, this, [this] {
    m_state->startScan();
    emit openCleanup({});
  });
  return header;
}

QWidget* OverviewPage::buildHero() {
  auto* hero = new Card;
  m_orb = new DiskOrb;
  connect(m_orb, &DiskOrb::clicked, this, &OverviewPage::primaryAction);
  QHBoxLayout* row = hbox(kHeroSpacing, kHeroMargins);
  row->addWidget(m_orb, 0, Qt::AlignVCenter);
  row->addLayout(buildHeroText(), 1);
  hero->setLayout(row);
  return hero;
}

QVBoxLayout* OverviewPage::buildHeroText() {
  m_headline = new Headline(kHeadlinePx);
  m_diskLine = label({}, "sub");
  m_diskLine->setWordWrap(true); // with purgeable space it's too long for the narrowest window
  m_legend = hbox(kLegendSpacing);
  QVBoxLayout* column = vbox();
  column->addStretch(1); // before the headline, which would take room too
  //: Small heading
  column->addWidget(eyebrow(Words::tr("Disk health")));
  column->addSpacing(kEyebrowGap);
  column->addWidget(m_headline);
  column->addSpacing(kHeadlineGap);
  column->addWidget(m_diskLine);
  column->addSpacing(kLegendGap);
  column->addLayout(m_legend);
  column->addSpacing(kLegendGap);
  column->addWidget(buildChips());
  column->addStretch(1);
  return column;
}

ChipRow* OverviewPage::buildChips() {
  m_scanChipText = new ElidedLabel({}, "mono");
  m_scanChipText->setStyleSheet(u"font-size: 12px;"_s);
  //: Mark with a green dot: they are never touched
  auto* safe = new Chip(new ElidedLabel(Words::tr("System files protected"), "caption"), Chip::Dot::Good);
  return new ChipRow({safe, new Chip(m_scanChipText)});
}

QWidget* OverviewPage::buildStats() {
  m_sparkline = new Sparkline;
  m_sparkline->setValueFormat(fmt::bytes);
  //: Said by a screen reader of a small chart; %1: 6
  m_sparkline->setAccessibleName(Words::tr("Freed in the last %1 months", nullptr, kHistoryMonths).arg(kHistoryMonths));
  m_freed = new StatCard(m_sparkline);
  m_lastScan = new StatCard(new IconView(u"history"_s, Tone::Accent, kHistoryIconSize));
  m_schedule = new StatCard(new IconTile(u"calendar"_s, QColor::fromRgb(kCalendarHue), kCalendarIconSize));
  auto* stats = new QWidget;
  QHBoxLayout* row = hbox(kStatSpacing);
  for (StatCard* card : {m_freed, m_lastScan, m_schedule}) row->addWidget(card, 1);
  stats->setLayout(row);
  return stats;
}

QHBoxLayout* OverviewPage::buildTilesHead() {
  m_tilesHeading = label({}, "h3");
  m_tilesHeading->setContentsMargins(kTilesHeadMargins);
  //: Button: all categories
  m_seeAllButton = new Button(Words::tr("See all"), "link");
  connect(m_seeAllButton, &Button::clicked, this, [this] { emit openCleanup({}); });
  QVBoxLayout* buttonColumn = vbox(0, kTilesHeadMargins);
  buttonColumn->addWidget(m_seeAllButton);
  QHBoxLayout* row = hbox();
  row->addWidget(m_tilesHeading);
  row->addStretch();
  row->addLayout(buttonColumn);
  return row;
}

bool OverviewPage::hasResults() const { return !m_state->results.isEmpty(); }

void OverviewPage::primaryAction() {
  if (!hasResults()) m_state->startScan();
  emit openCleanup({});
}

// A scan and a clean end with several changes at once, while the user looks at another page.
void OverviewPage::refreshIfSeen() {
  if (m_away)
    m_stale = true;
  else
    refresh();
}

void OverviewPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  m_away = false;
  if (m_stale) refresh();
}

void OverviewPage::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  m_away = true;
}

void OverviewPage::refresh() {
  m_stale = false;
  showDisk();
  showDiskLine();
  showLegend();
  showLastScan();
  showFreed();
  m_schedule->set(scheduleWord(AppSettings::instance().schedule()), Words::tr("Scheduled scan"));
  m_rescanButton->setVisible(hasResults());
  m_seeAllButton->setVisible(hasResults());
  showTiles();
}

void OverviewPage::showDisk() {
  const qint64 total = m_state->volume.totalBytes;
  const qint64 available = m_state->volume.availableBytes;
  const qint64 reclaimable = m_state->totalReclaimable();
  const double usedFraction = total < 1 ? 0.0 : double(total - available) / double(total);
  m_orb->setDisk(total, total - available, reclaimable);
  //: Under the size of the free space; %1: the size of the disk
  m_orb->setCenter(fmt::bytes(available), Words::tr("free of %1").arg(fmt::bytes(total)),
                   //: Button: look at what was found
                   hasResults() ? Words::tr("Review") : Words::tr("Scan"));
  if (hasResults())
    //: Headline; %1: a size, which is painted in colours
    m_headline->set(Words::tr("%1 ready to clean"), fmt::bytes(reclaimable));
  else if (usedFraction > kAlmostFullAbove)
    m_headline->set(Words::tr("Your startup disk is almost full"));
  else
    m_headline->set(Words::tr("Keep your disk in shape"));
}

void OverviewPage::showDiskLine() {
  const platform::Volume& volume = m_state->volume;
  QString line = QCoreApplication::translate("Sidebar", "%1 available of %2")
                     .arg(fmt::bytes(volume.availableBytes), fmt::bytes(volume.totalBytes));
  //: %1: the size of what the system gives back by itself when space runs low
  if (volume.purgeableBytes > 0) line += u" · "_s + Words::tr("%1 purgeable").arg(fmt::bytes(volume.purgeableBytes));
  m_diskLine->setText(line);
}

void OverviewPage::showLegend() {
  const qint64 available = m_state->volume.availableBytes;
  const qint64 reclaimable = m_state->totalReclaimable();
  const qint64 rest = m_state->volume.totalBytes - (available + reclaimable);
  clearLayout(m_legend);
  m_legend->addWidget(new LegendItem(Words::tr("Apps, documents & system"), fmt::bytes(rest), usedSwatch()));
  if (reclaimable > 0)
    m_legend->addWidget(
        //: Legend of the disk: what can be cleaned
        new LegendItem(Words::tr("Reclaimable"), fmt::bytes(reclaimable), QColor::fromRgb(kReclaimableHue)));
  //: Legend of the disk: what is free
  m_legend->addWidget(new LegendItem(Words::tr("Available"), fmt::bytes(available)));
  m_legend->addStretch();
}

void OverviewPage::showLastScan() {
  const QDateTime& when = m_state->lastScan;
  const bool scanned = when.isValid();
  //: %1: when, as “today”, “yesterday” or “3 days ago”
  const QString chip = scanned ? Words::tr("Scanned %1").arg(fmt::ageWithin(when)) : Words::tr("Never scanned");
  m_scanChipText->setText(chip);
  m_scanChipText->setToolTip(chip);
  //: Caption under when it was
  m_lastScan->set(scanned ? fmt::age(when) : u"—"_s, scanned ? Words::tr("Last scan") : Words::tr("Never scanned"));
}

void OverviewPage::showFreed() {
  const QList<qint64> history = AppSettings::instance().freedHistory(kHistoryMonths);
  //: Caption under a size
  m_freed->set(fmt::bytes(history.last()), Words::tr("Freed this month"));
  m_sparkline->setValues(history);
}

QList<CategoryResult> OverviewPage::tilesToShow() const {
  QList<CategoryResult> list;
  if (!hasResults()) {
    for (const CategoryDef& def : categories::forThisPlatform()) {
      list << CategoryResult();
      list.last().def = def;
    }
    return list;
  }
  list = m_state->results;
  list.removeIf([](const CategoryResult& result) { return result.bytes < 1; });
  std::ranges::stable_sort(list, std::ranges::greater{}, &CategoryResult::bytes);
  list.resize(std::min(list.size(), kMostResultTiles));
  return list;
}

CategoryTile* OverviewPage::makeTile(const CategoryResult& category) {
  if (!hasResults()) return new CategoryTile(category.def, {});
  return new CategoryTile(category.def, fmt::bytes(category.bytes),
                          [this, id = category.def.id] { emit openCleanup(id); });
}

CategoryTile* OverviewPage::focusedTile() const {
  auto* tile = qobject_cast<CategoryTile*>(window()->focusWidget());
  return tile && isAncestorOf(tile) ? tile : nullptr;
}

/// The focus is taken off the old tiles before they go, so that it doesn't wander over the page, and is given back to
/// the tile of the same category.
void OverviewPage::showTiles() {
  CategoryTile* focused = focusedTile();
  const QString focusedId = focused ? focused->id() : QString();
  const Qt::FocusReason reason = focused && focused->showsFocus() ? Qt::TabFocusReason : Qt::OtherFocusReason;
  if (focused) focused->clearFocus();
  clearLayout(m_tiles);

  m_tilesHeading->setText(hasResults() ? Words::tr("Top recommendations") : Words::tr("What Smart Scan looks at"));
  QList<CategoryTile*> tiles;
  for (const CategoryResult& category : tilesToShow()) {
    const auto index = int(tiles.size());
    tiles << makeTile(category);
    m_tiles->addWidget(tiles.last(), index / kTileColumns, index % kTileColumns);
  }
  putInTabOrder(tiles);
  for (CategoryTile* tile : tiles) {
    tile->show(); // before the layout does: a page that is shorter for a moment would forget how far it is scrolled
    if (focused && tile->id() == focusedId) tile->setFocus(reason);
  }
}

/// Behind the button above them; as the newest of the window they would come after all that it holds.
void OverviewPage::putInTabOrder(const QList<CategoryTile*>& tiles) {
  QWidget* before = m_seeAllButton;
  for (CategoryTile* tile : tiles) {
    setTabOrder(before, tile);
    before = tile;
  }
}

} // namespace ui
