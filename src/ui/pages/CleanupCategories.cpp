#include "ui/pages/CleanupCategories.h"

#include "app/AppState.h"
#include "core/fmt.h"
#include "engines/categories.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/factory.h"
#include "ui/pages/CategoryRow.h"
#include "ui/pages/CleanupWords.h"
#include "ui/pages/ShareBar.h"
#include "ui/pages/furniture.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr QMargins kFrame(1, 1, 1, 1);
constexpr QMargins kListMargins(8, 8, 8, 8);
constexpr QMargins kSelectAllMargins(10, 6, 10, 6);
constexpr int kRowGap = 2;
constexpr QMargins kHeadingMargins(12, 14, 12, 6);
constexpr int kRowSpacing = 12;
constexpr QMargins kRowMargins(12, 10, 12, 10);
constexpr int kTile = 30;
constexpr int kTitleSpacing = 7;
constexpr int kBlockedSpacing = 5;
constexpr int kLock = 13;
constexpr int kBarHeight = 3;
constexpr int kSizeWidth = 72;

struct Group {
  Safety safety;
  const char* heading;
};
constexpr Group kGroups[] = {
    //: Heading over some categories, always in capitals
    {Safe, QT_TRANSLATE_NOOP("CleanupPage", "SAFE TO CLEAN")},
    {Review, QT_TRANSLATE_NOOP("CleanupPage", "REVIEW BEFORE CLEANING")},
    {Permanent, QT_TRANSLATE_NOOP("CleanupPage", "CANNOT BE UNDONE")},
};

bool isBlocked(const CategoryResult& result) { return result.bytes == 0 && result.accessDenied; }
bool isListed(const CategoryResult& result) { return result.bytes > 0 || result.accessDenied; }

/// What a sighted user reads of the row.
QString spoken(const CategoryResult& result) {
  return fmt::list({result.def.title, isBlocked(result) ? CleanupWords::blocked() : fmt::bytes(result.bytes)});
}

/// What its group tells of the row, and its look of being the one on show.
QString describing(const CategoryResult& result, bool active) {
  const QString safety = categories::safetyLabel(result.def.safety);
  //: Said by a screen reader of the category whose items are shown beside the list
  return active ? fmt::list({safety, CleanupWords::tr("Details shown")}) : safety;
}

ElidedLabel* styledLabel(const QString& text, const char* role, const QString& style) {
  auto* result = new ElidedLabel(text, role);
  result->setStyleSheet(style);
  return result;
}

QHBoxLayout* blockedLine() {
  QHBoxLayout* line = hbox(kBlockedSpacing);
  line->addWidget(new IconView(u"lock"_s, Tone::Warn, kLock));
  line->addWidget(styledLabel(CleanupWords::blocked(), "warn", u"font-size: 12px;"_s), 1);
  return line;
}

ShareBar* shareBar(const CategoryResult& result, qint64 largest) {
  auto* bar = new ShareBar;
  bar->share = double(result.bytes) / double(largest);
  bar->colour = result.def.colour;
  bar->setFixedHeight(kBarHeight);
  bar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  bar->setAccessibleName(result.def.title);
  return bar;
}

QVBoxLayout* titleColumn(const CategoryResult& result, qint64 largest) {
  QVBoxLayout* column = vbox(kTitleSpacing);
  column->addWidget(styledLabel(result.def.title, nullptr, u"font-weight: 500;"_s));
  if (isBlocked(result))
    column->addLayout(blockedLine());
  else
    column->addWidget(shareBar(result, largest));
  return column;
}

QLabel* sizeLabel(qint64 bytes) {
  QLabel* size = label(fmt::bytes(bytes), "num");
  size->setMinimumWidth(kSizeWidth);
  size->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return size;
}

/// The row that a key leads to, or -1 for another key. It may lie beyond the list.
int target(int key, int from, int rows) {
  switch (key) {
  case Qt::Key_Up:
    return from - 1;
  case Qt::Key_Down:
    return from + 1;
  case Qt::Key_Home:
    return 0;
  case Qt::Key_End:
    return rows - 1;
  default:
    return from;
  }
}

bool isMove(int key) { return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End; }

} // namespace

qsizetype filledCategories(const AppState& state) {
  return std::count_if(state.results.cbegin(), state.results.cend(),
                       [](const CategoryResult& one) { return one.bytes > 0; });
}

qsizetype pickedCategories(const AppState& state) {
  return std::count_if(state.results.cbegin(), state.results.cend(),
                       [&](const CategoryResult& one) { return state.selectedBytesOf(one.def.id) > 0; });
}

CleanupCategories::CleanupCategories(AppState* state, QWidget* parent)
    : Card(parent),
      m_state(state),
      m_scroll(new QScrollArea),
      m_selectAll(new QCheckBox(CleanupWords::tr("Select all"))),
      m_categoryLayout(vbox(kRowGap)) {
  m_selectAll->setTristate(true);
  m_selectAll->setObjectName("selectAll"_L1);
  // The box ignores its own cycle: it selects everything unless everything is selected.
  connect(m_selectAll, &QCheckBox::clicked, this,
          [this] { m_state->selectAll(pickedCategories(*m_state) < filledCategories(*m_state)); });

  auto* content = new QWidget;
  QVBoxLayout* column = vbox(0, kListMargins);
  content->setLayout(column);
  QHBoxLayout* top = hbox(0, kSelectAllMargins);
  top->addWidget(m_selectAll);
  column->addLayout(top);
  column->addLayout(m_categoryLayout);
  column->addStretch();

  m_scroll->setWidgetResizable(true);
  m_scroll->setFrameShape(QFrame::NoFrame);
  m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_scroll->setFocusPolicy(Qt::NoFocus); // its rows take the focus, and come into view with it
  m_scroll->setWidget(content);
  QVBoxLayout* frame = vbox(0, kFrame);
  setLayout(frame);
  frame->addWidget(m_scroll);
}

void CleanupCategories::rebuild(const QString& activeId) {
  const Place place = focusPlace();
  if (!place.id.isEmpty()) window()->focusWidget()->clearFocus(); // else it would go to the next in line
  clearLayout(m_categoryLayout);
  m_rows.clear();
  qint64 largest = 1;
  for (const CategoryResult& result : m_state->results) largest = std::max(largest, result.bytes);
  for (const Group& group : kGroups) addGroup(group.safety, group.heading, largest, activeId);
  restoreFocus(place);
}

void CleanupCategories::addGroup(Safety safety, const char* heading, qint64 largest, const QString& activeId) {
  bool begun = false;
  for (const CategoryResult& result : m_state->results) {
    if (result.def.safety != safety || !isListed(result)) continue;
    if (!begun) {
      QLabel* title = eyebrow(CleanupWords::tr(heading));
      title->setContentsMargins(kHeadingMargins);
      m_categoryLayout->addWidget(title);
      title->show();
    }
    begun = true;
    addRow(result, largest, result.def.id == activeId);
  }
}

void CleanupCategories::addRow(const CategoryResult& result, qint64 largest, bool active) {
  auto* row = new CategoryRow;
  row->active = active;
  row->onClick = [this, id = result.def.id] { emit chosen(id); };
  row->setObjectName("category-"_L1 + result.def.id);
  row->setAccessibleName(spoken(result));
  row->setAccessibleDescription(describing(result, active));
  row->installEventFilter(this);
  QCheckBox* box = buildBox(result);
  QHBoxLayout* line = hbox(kRowSpacing, kRowMargins);
  row->setLayout(line);
  line->addWidget(box);
  line->addWidget(new IconTile(result.def.icon, result.def.colour, kTile));
  line->addLayout(titleColumn(result, largest), 1);
  if (!isBlocked(result)) line->addWidget(sizeLabel(result.bytes));
  m_categoryLayout->addWidget(row, 0);
  row->show(); // at once, so that the list doesn't shrink in between and keeps its scroll position
  m_rows << Row{.id = result.def.id, .row = row, .box = box, .boxFocus = new KeyboardFocus(box)};
}

QCheckBox* CleanupCategories::buildBox(const CategoryResult& result) {
  QCheckBox* box = bareCheckBox(spoken(result));
  const int state = m_state->selectionState(result.def.id);
  box->setCheckState(Qt::CheckState(state));
  box->setEnabled(result.bytes >= 1);
  box->installEventFilter(this);
  connect(box, &QCheckBox::clicked, this,
          [this, id = result.def.id, state] { m_state->setSelected(id, state != Qt::Checked); });
  return box;
}

void CleanupCategories::refreshSelectAll() {
  const qsizetype picked = pickedCategories(*m_state);
  const auto some = filledCategories(*m_state) > picked ? Qt::PartiallyChecked : Qt::Checked;
  m_selectAll->setCheckState(picked == 0 ? Qt::Unchecked : some);
}

QList<QWidget*> CleanupCategories::focusStops() const {
  QList<QWidget*> stops = {m_selectAll};
  for (const Row& row : m_rows) stops << row.row << row.box;
  return stops;
}

CleanupCategories::Place CleanupCategories::focusPlace() const {
  const QWidget* focused = window()->focusWidget(); // whether the window is active or not
  if (!focused) return {};
  for (const Row& row : m_rows) {
    if (row.row == focused) return {.id = row.id, .inBox = false, .byKeyboard = row.row->isKeyboardFocused()};
    if (row.box == focused) return {.id = row.id, .inBox = true, .byKeyboard = row.boxFocus->isVisible()};
  }
  return {};
}

void CleanupCategories::restoreFocus(const Place& place) {
  if (place.id.isEmpty()) return;
  const Qt::FocusReason reason = place.byKeyboard ? Qt::TabFocusReason : Qt::OtherFocusReason;
  const auto same = std::find_if(m_rows.cbegin(), m_rows.cend(), [&](const Row& row) { return row.id == place.id; });
  if (same == m_rows.cend()) {
    m_selectAll->setFocus(reason);
    return;
  }
  QWidget* part = place.inBox && same->box->isEnabled() ? static_cast<QWidget*>(same->box) : same->row;
  part->setFocus(reason);
}

bool CleanupCategories::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && moveFrom(watched, static_cast<QKeyEvent*>(event)->key())) return true;
  return Card::eventFilter(watched, event);
}

bool CleanupCategories::moveFrom(const QObject* from, int key) {
  if (!isMove(key)) return false;
  const auto here =
      std::find_if(m_rows.cbegin(), m_rows.cend(), [&](const Row& row) { return row.row == from || row.box == from; });
  if (here == m_rows.cend()) return false;
  const int rows = int(m_rows.size());
  const int to = std::clamp(target(key, int(here - m_rows.cbegin()), rows), 0, rows - 1);
  const Row& next = m_rows.at(to);
  QWidget* part = here->box == from && next.box->isEnabled() ? static_cast<QWidget*>(next.box) : next.row;
  part->setFocus(Qt::TabFocusReason);
  m_scroll->ensureWidgetVisible(next.row);
  return true;
}

} // namespace ui
