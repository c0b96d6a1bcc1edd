#include "ui/pages/SystemDataResults.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/TipStyler.h"
#include "ui/accessible.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/Note.h"
#include "ui/controls/Spinner.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupNotes.h"
#include "ui/pages/SystemDataRow.h"
#include "ui/pages/SystemDataWords.h"
#include "ui/visuals/StackBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kHeadlineSpacing = 12;
constexpr QMargins kHeadlineMargins(20, 18, 20, 20);
constexpr int kLineSpacing = 10;
constexpr int kLeastText = 10;
constexpr int kSpinner = 14;
constexpr int kBarHeight = 22;
constexpr int kLegendSpacing = 18;
constexpr int kLegendItemSpacing = 7;
constexpr int kSwatch = 9;
constexpr int kAboveNote = 14;
constexpr QMargins kHeadingMargins(0, 26, 0, 10);

constexpr qsizetype kMostInLegend = 3;

QString plain(const QString& html) { return QTextDocumentFragment::fromHtml(html).toPlainText(); }

/// The largest first.
QList<SystemDataItem> sorted(QList<SystemDataItem> items) {
  std::ranges::stable_sort(items, std::ranges::greater{}, &SystemDataItem::bytes);
  return items;
}

qint64 sumOf(const QList<SystemDataItem>& items, bool actionableOnly) {
  qint64 sum = 0;
  for (const SystemDataItem& item : items)
    if (item.actionable || !actionableOnly) sum += item.bytes;
  return sum;
}

/// The card at the head. A reader hears its line as one text, and as its description why the total is what it is.
class HeadlineCard : public Card, public AccessibleText {
 public:
  HeadlineCard(const QString& total, const QString& text) : m_shown(total + u' ' + plain(text)) {
    setToolTip(SystemDataWords::explanation());
    setAccessibleDescription(plain(SystemDataWords::explanation()));
  }
  [[nodiscard]] QString shownText() const override { return m_shown; }

 protected:
  bool event(QEvent* event) override { return showTipInLines(this, event) || Card::event(event); }

 private:
  QString m_shown;
};

QString headlineText(const QList<SystemDataItem>& items) {
  //: Follows a size in large figures; %2: a size; leave the tag as it is
  return SystemDataWords::tr("measured in System Data · <b style='color:%1'>%2</b> you can act on")
      .arg(Theme::get().text.name(), fmt::bytes(sumOf(items, true)));
}

QLayout* headlineLine(const QString& total, const QString& html, SystemDataWork work) {
  QHBoxLayout* line = hbox(kLineSpacing);
  line->addWidget(label(total, "value"));
  QLabel* text = label(html, "sub");
  text->setWordWrap(true);
  text->setMinimumWidth(kLeastText);
  line->addWidget(text, 1, Qt::AlignBottom);
  if (work == SystemDataWork::None) return line;
  line->addWidget(new Spinner(kSpinner));
  line->addWidget(label(
      //: While what the user asked for is being done
      work == SystemDataWork::Acting ? SystemDataWords::tr("Working…") : SystemDataWords::tr("Updating…"), "caption"));
  return line;
}

/// @p items  the largest first
StackBar* shareBar(const QList<SystemDataItem>& items, qint64 total) {
  QList<StackBar::Segment> segments;
  for (const SystemDataItem& item : items) {
    if (item.bytes < 1) break;
    segments << StackBar::Segment{.bytes = item.bytes,
                                  .colour = item.color,
                                  //: %1: what it is; %2: its size
                                  .tip = SystemDataWords::tr("%1 · %2").arg(item.title, fmt::bytes(item.bytes))};
  }
  auto* bar = new StackBar(kBarHeight);
  bar->setSegments(segments, std::max<qint64>(1, total));
  bar->setAccessibleName(SystemDataWords::tr("System Data"));
  return bar;
}

QLayout* legendItem(const SystemDataItem& item) {
  auto* swatch = new QWidget;
  swatch->setFixedSize(kSwatch, kSwatch);
  swatch->setStyleSheet(u"background: %1; border-radius: 3px;"_s.arg(item.color.name()));
  QHBoxLayout* line = hbox(kLegendItemSpacing);
  line->addWidget(swatch);
  auto* title = new ElidedLabel(item.title, "caption");
  title->ensurePolished(); // in its own font
  QLabel* size = label(fmt::bytes(item.bytes), "num");
  // Neither takes more room than it needs, however much there is: they stand side by side.
  title->setMaximumWidth(title->sizeHint().width());
  size->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  line->addWidget(title, 1);
  line->addWidget(size);
  return line;
}

/// @p items  the largest first
QWidget* legend(const QList<SystemDataItem>& items) {
  auto* legend = new QWidget;
  legend->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  QHBoxLayout* row = hbox(kLegendSpacing);
  legend->setLayout(row);
  for (const SystemDataItem& item : items.first(std::min(items.size(), kMostInLegend))) {
    if (item.bytes < 1) break;
    row->addLayout(legendItem(item));
  }
  row->addStretch();
  return legend;
}

} // namespace

SystemDataResults::SystemDataResults(QWidget* parent) : QWidget(parent), m_content(vbox()) {
  QVBoxLayout* root = vbox();
  setLayout(root);
  QVBoxLayout* column = nullptr;
  root->addWidget(scrollPage(&column));
  column->addLayout(m_content);
  column->addStretch();
}

void SystemDataResults::rebuild(const QList<SystemDataItem>& items, SystemDataWork work) {
  const bool busy = work != SystemDataWork::None;
  takeFocus();
  clearLayout(m_content);
  m_rows.clear();
  m_note = nullptr;

  QList<SystemDataItem> actionable = sorted(items);
  QList<SystemDataItem> others = actionable;
  actionable.removeIf([](const SystemDataItem& item) { return !hasRow(item) || !item.actionable; });
  others.removeIf([](const SystemDataItem& item) { return !hasRow(item) || item.actionable; });
  const int column = systemDataColumn(items);
  addHeadline(items, work);
  if (std::ranges::any_of(items, &SystemDataItem::denied)) addNote();
  //: Heading over the rows that the user can do something about
  addList(SystemDataWords::tr("You can reclaim"), actionable, column, busy);
  addList(SystemDataWords::managed(), others, column, busy);

  // Before the layout does: a page that is shorter for a moment would forget how far it is scrolled.
  for (QWidget* child : m_content->parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    child->show();
  putInTabOrder();
  giveFocus(busy);
}

void SystemDataResults::addHeadline(const QList<SystemDataItem>& items, SystemDataWork work) {
  const QList<SystemDataItem> largestFirst = sorted(items);
  const qint64 total = sumOf(items, false);
  const QString text = headlineText(items);
  auto* card = new HeadlineCard(fmt::bytes(total), text);
  QVBoxLayout* lines = vbox(kHeadlineSpacing, kHeadlineMargins);
  card->setLayout(lines);
  lines->addLayout(headlineLine(fmt::bytes(total), text, work));
  lines->addWidget(shareBar(largestFirst, total));
  lines->addWidget(legend(largestFirst));
  m_content->addWidget(card);
}

void SystemDataResults::addNote() {
  m_content->addSpacing(kAboveNote);
  m_note = deniedNote();
  ui::addNote(m_content, m_note);
}

void SystemDataResults::addList(const QString& heading, const QList<SystemDataItem>& items, int column, bool busy) {
  if (items.isEmpty()) return;
  QLabel* head = label(heading, "h3");
  head->setContentsMargins(kHeadingMargins);
  m_content->addWidget(head);
  auto* card = new Card;
  QVBoxLayout* rows = vbox();
  card->setLayout(rows);
  for (const SystemDataItem& item : items) addRow(rows, item, column, busy);
  m_content->addWidget(card);
}

void SystemDataResults::addRow(QVBoxLayout* card, const SystemDataItem& item, int column, bool busy) {
  if (!card->isEmpty()) card->addWidget(new Divider);
  auto* row = new SystemDataRow(item, column, busy);
  card->addWidget(row);
  m_rows << row;
  if (!row->button()) return;
  connect(row->button(), &Button::clicked, this, [this, row] {
    m_place = Place{.id = row->id(), .byKeyboard = row->showsFocus()}; // a question may take the focus meanwhile
    emit actionWanted(row->id());
  });
}

/// As the newest of the window they would come after all that it holds.
void SystemDataResults::putInTabOrder() {
  QWidget* before = m_before;
  const auto append = [&before](QWidget* next) {
    if (!next) return;
    if (before) setTabOrder(before, next);
    before = next;
  };
  if (m_note) append(m_note->findChild<QPushButton*>());
  for (const SystemDataRow* row : std::as_const(m_rows)) append(row->button());
}

SystemDataRow* SystemDataResults::rowOf(const QString& id) const {
  const auto found = std::ranges::find(m_rows, id, &SystemDataRow::id);
  return found == m_rows.end() ? nullptr : *found;
}

/// Else it would wander over the page as the rows go.
void SystemDataResults::takeFocus() {
  QWidget* focused = window()->focusWidget(); // whether the window is active or not
  for (const SystemDataRow* row : std::as_const(m_rows)) {
    if (!focused || row->button() != focused) continue;
    m_place = Place{.id = row->id(), .byKeyboard = row->showsFocus()};
    focused->clearFocus();
    return;
  }
}

/// Only what nobody else has by now. A button that can't be pressed yet, or isn't to be seen, has to wait.
void SystemDataResults::giveFocus(bool busy) {
  if (!m_place || busy || !isVisible()) return;
  const Place place = *m_place;
  m_place.reset();
  const QWidget* focused = window()->focusWidget();
  if (focused && focused->isVisible()) return;
  const SystemDataRow* row = rowOf(place.id);
  QWidget* to = row && row->button() && row->button()->isEnabled() ? row->button() : m_before;
  if (to) to->setFocus(place.byKeyboard ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

} // namespace ui
