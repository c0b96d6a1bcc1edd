#include "ui/pages/CleanupReviewView.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "core/platform.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/FooterBar.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupCategories.h"
#include "ui/pages/CleanupDetail.h"
#include "ui/pages/CleanupNotes.h"
#include "ui/pages/CleanupWords.h"
#include "ui/pages/furniture.h"
#include "ui/visuals/StackBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kBodySpacing = 14;
constexpr int kListMin = 280;
constexpr int kDetailMin = 340;
constexpr int kStackHeight = 6;
// Shares of the room.
constexpr int kListStretch = 10;
constexpr int kDetailStretch = 11;

constexpr int kFigureSize = 13;
constexpr int kFigureWeight = 400;

/// Sizes stand in the font of numbers, within a text in another one.
QString figureFamily() { return Theme::get().mono(kFigureSize, kFigureWeight).family(); }

/// What will become of what is selected.
QString fate() {
  //: What will become of the selected files, as the tip of the button that cleans them
  if (!AppSettings::instance().moveToTrash()) return CleanupWords::tr("deleted permanently");
  //: What will become of the selected files, as the tip of the button that cleans them; %1: the Trash
  return CleanupWords::tr("moved to the %1").arg(platform::trashName());
}

} // namespace

CleanupReviewView::CleanupReviewView(AppState* state, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_root(vbox()),
      m_reviewHeader(buildHeader()),
      m_categories(new CleanupCategories(state)),
      m_detail(new CleanupDetail(state)),
      m_selectionLabel(label({}, "sub")),
      m_stackBar(new StackBar(kStackHeight)),
      m_cleanButton(new Button({}, "primary", {}, "lg")) {
  m_categories->setMinimumWidth(kListMin);
  m_detail->setMinimumWidth(kDetailMin);
  connect(m_categories, &CleanupCategories::chosen, this, &CleanupReviewView::focusCategory);
  connect(m_detail, &CleanupDetail::rebuilt, this, &CleanupReviewView::placeInTabOrder);
  connect(m_cleanButton, &Button::clicked, this, &CleanupReviewView::confirmRequested);
  QHBoxLayout* body = hbox(kBodySpacing, {pageSide(), 0, pageSide(), 0});
  body->addWidget(m_categories, kListStretch);
  body->addWidget(m_detail, kDetailStretch);
  setLayout(m_root);
  m_root->addWidget(m_reviewHeader);
  m_root->addLayout(body, 1);
  m_root->addWidget(buildFooter());
  buildSettingsNote();
}

PageHeader* CleanupReviewView::buildHeader() {
  auto* header = new PageHeader({});
  //: Button: tick the recommended categories
  auto* recommended = new Button(CleanupWords::tr("Select recommended"), "ghost");
  connect(recommended, &Button::clicked, m_state, &AppState::selectRecommended);
  //: Button: scan again
  auto* rescan = new Button(CleanupWords::tr("Rescan"), nullptr, u"refresh"_s);
  connect(rescan, &Button::clicked, m_state, [state = m_state] { state->startScan(); });
  header->addAction(recommended);
  header->addAction(rescan);
  return header;
}

FooterBar* CleanupReviewView::buildFooter() {
  m_selectionLabel->setObjectName("selectionLabel"_L1);
  m_cleanButton->setObjectName("cleanButton"_L1);
  //: Said by a screen reader of the bar that shows what is ticked
  m_stackBar->setAccessibleName(CleanupWords::tr("Selection"));
  auto* footer = new FooterBar;
  footer->row()->addWidget(m_selectionLabel);
  footer->row()->addWidget(m_stackBar, 1);
  footer->row()->addWidget(m_cleanButton);
  return footer;
}

void CleanupReviewView::buildSettingsNote() {
  m_settingsNote = spokenNote(Note::Caution, u"alert"_s, {});
  m_settingsNote->setObjectName("settingsNote"_L1);
  const QPushButton* show = m_settingsNote->addAction(CleanupWords::tr("Show the rules"));
  connect(show, &QPushButton::clicked, this, &CleanupReviewView::rulesRequested);
  m_settingsRow = new QWidget(this);
  QVBoxLayout* column = vbox(0, {pageSide(), 0, pageSide(), kBodySpacing});
  m_settingsRow->setLayout(column);
  addNote(column, m_settingsNote);
  m_settingsRow->hide();
}

void CleanupReviewView::focusCategory(const QString& id) {
  if (id.isEmpty() || id == m_focusedId) return;
  m_focusedId = id;
  m_categories->rebuild(m_focusedId);
  m_detail->showCategory(m_focusedId);
}

void CleanupReviewView::refresh() {
  AppSettings::instance().look();
  m_detail->forgetLimits();
  refreshTitle();
  refreshFocus();
  m_detail->showCategory(m_focusedId);
  if (m_state->phase == AppState::Review)
    refreshSelection(); // builds the list too
  else
    m_categories->rebuild(m_focusedId);
}

void CleanupReviewView::refreshTitle() {
  const QString total =
      u"<span style=\"font-family:'%1'\">%2</span>"_s.arg(figureFamily(), fmt::bytes(m_state->totalReclaimable()));
  //: Heading; %1: a size
  m_reviewHeader->setTitle(CleanupWords::tr("%1 can be cleaned").arg(total));
  m_reviewHeader->setEyebrow(
      QCoreApplication::translate("OverviewPage", "Scanned %1").arg(fmt::ageWithin(m_state->lastScan)));
  m_reviewHeader->setSubtitle({});
}

void CleanupReviewView::refreshFocus() {
  if (m_state->result(m_focusedId)) return;
  m_focusedId.clear();
  const QList<CategoryResult>& results = m_state->results;
  const auto first =
      std::find_if(results.cbegin(), results.cend(), [](const CategoryResult& one) { return one.bytes > 0; });
  if (first != results.cend()) m_focusedId = first->def.id;
}

void CleanupReviewView::refreshSelection() {
  if (m_state->phase != AppState::Review) return;
  refreshSettingsNote();
  refreshFooter();
  m_categories->refreshSelectAll();
  m_categories->rebuild(m_focusedId);
  m_detail->refreshTicks();
  placeInTabOrder();
}

void CleanupReviewView::refreshFooter() {
  QList<StackBar::Segment> segments;
  for (const CategoryResult& result : std::as_const(m_state->results))
    if (const qint64 bytes = m_state->selectedBytesOf(result.def.id); bytes > 0)
      segments << StackBar::Segment{.bytes = bytes, .colour = result.def.colour, .tip = result.def.title};
  m_stackBar->setSegments(segments, std::max<qint64>(1, m_state->totalReclaimable()));

  const qint64 selected = m_state->selectedBytes();
  const QString size = fmt::bytes(selected);
  const QString look = u"%1; font-family:'%2'; font-size:15px"_s.arg(Theme::get().text.name(), figureFamily());
  //: Follows “… selected”: some of it needs administrator rights
  const QString admin = m_state->selectionNeedsAdmin() ? CleanupWords::tr(" · some need admin") : QString();
  //: %2: a size; %3: nothing or “ · some need admin”; leave the tag as it is
  m_selectionLabel->setText(CleanupWords::tr("<b style='color:%1'>%2</b> selected%3").arg(look, size, admin));
  m_cleanButton->setToolTip(fate());
  //: Button; %1: a size
  m_cleanButton->setText(CleanupWords::tr("Clean %1").arg(size));
  m_cleanButton->setEnabled(selected >= 1 && AppSettings::instance().lastLook() == AppSettings::Store::Sound);
}

void CleanupReviewView::refreshSettingsNote() {
  const AppSettings::Store worth = AppSettings::instance().lastLook();
  const bool isSound = worth == AppSettings::Store::Sound;
  if (isSound)
    m_root->removeWidget(m_settingsRow);
  else if (m_root->indexOf(m_settingsRow) < 0)
    m_root->insertWidget(1, m_settingsRow);
  m_settingsRow->setVisible(!isSound);
  if (isSound) return;
  setNoteText(m_settingsNote, worth == AppSettings::Store::Lost
                                  ? CleanupWords::tr("<b>Rules on what to keep have gone from the settings.</b> "
                                                     "Nothing is cleaned until you have looked at them.")
                                  : CleanupWords::tr("<b>The settings can't be read.</b> Nothing is cleaned until you "
                                                     "have looked at the rules on what to keep."));
}

// What is built anew would come last.
void CleanupReviewView::placeInTabOrder() {
  const QList<QWidget*> stops = m_categories->focusStops() + m_detail->focusStops() << m_cleanButton;
  for (qsizetype i = 1; i < stops.size(); ++i) QWidget::setTabOrder(stops.at(i - 1), stops.at(i));
}

} // namespace ui
