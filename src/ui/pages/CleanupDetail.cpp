#include "ui/pages/CleanupDetail.h"

#include "app/AppState.h"
#include "core/fmt.h"
#include "core/platform.h"
#include "ui/TipStyler.h"
#include "ui/controls/Button.h"
#include "ui/controls/Divider.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/Pill.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupNotes.h"
#include "ui/pages/CleanupWords.h"
#include "ui/pages/furniture.h"
#include "ui/paint.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr qsizetype kFirstItems = 15;
constexpr qsizetype kMoreItems = 50;
constexpr qsizetype kLongestSuffix = 4; // in characters, without its dot: what still looks like a file

// Lengths in pixels.
constexpr QMargins kFrame(1, 1, 1, 1);
constexpr QMargins kMargins(22, 22, 22, 22);
constexpr int kHeaderSpacing = 16;
constexpr int kHeaderTile = 44;
constexpr int kTitleSpacing = 4;
constexpr int kPillSpacing = 8;
constexpr QMargins kBlurbMargins(60, 6, 0, 0);
constexpr int kBelowBlurb = 18;
constexpr int kAboveNote = 10;
constexpr QMargins kItemsHeadingMargins(0, 22, 0, 8);
constexpr QMargins kSelectAllMargins(2, 10, 2, 10);
constexpr int kItemSpacing = 12;
constexpr QMargins kItemMargins(2, 8, 2, 8);
constexpr int kItemIconSpacing = 10;
constexpr int kItemIcon = 18;
constexpr int kItemLineSpacing = 1;
constexpr int kAgeWidth = 84;
constexpr int kRoomForAges = 400; // of the panel; a narrower one leaves them out
constexpr int kSizeWidth = 80;
constexpr QMargins kRemainderMargins(12, 9, 2, 0);
constexpr double kRingRadius = 10;
constexpr double kRingInset = 5;

bool isBlocked(const CategoryResult& result) { return result.bytes == 0 && result.accessDenied; }

/// What the labels of items have of their own, by their property "cell". One sheet for all of them, as a sheet for each
/// label would cost most of the time that it takes to open a category.
QString cellStyles() {
  return uR"(
QLabel[cell="name"] { font-weight: 500; }
QLabel[cell="owner"] { font-size: 11px; }
QLabel[cell="folder"] { font-size: 10px; }
QLabel[cell="age"] { font-size: 12px; }
)"_s;
}

/// A shortened line of what comes from the disk.
ElidedLabel* cell(const char* name, const QString& text, const char* role) {
  auto* line = new ElidedLabel(text, role);
  line->setTextFormat(Qt::PlainText);
  line->setToolTip(plainTip(text));
  line->setProperty("cell", QString::fromLatin1(name));
  return line;
}

QLabel* rightLabel(const QString& text, const char* role) {
  QLabel* result = label(text, role);
  result->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return result;
}

QWidget* sizeColumn(const CategoryResult& result) {
  const bool blocked = isBlocked(result);
  QLabel* value = rightLabel(blocked ? u"—"_s : fmt::bytes(result.bytes), "value");
  value->setStyleSheet(u"font-size: 26px;"_s);
  value->setObjectName("detailValue"_L1);
  QLabel* caption = rightLabel(
      //: Under the size of a category; %1: how many files it holds
      blocked ? CleanupWords::blocked()
              : CleanupWords::tr("%1 items", nullptr, fmt::plural(result.files)).arg(fmt::count(result.files)),
      "mono");
  caption->setObjectName("detailCaption"_L1);
  QVBoxLayout* column = vbox();
  column->addWidget(value);
  column->addWidget(caption);
  auto* holder = new QWidget;
  holder->setLayout(column);
  return holder;
}

ElidedLabel* secondLine(const CleanItem& item) {
  if (item.owner.isEmpty()) return cell("folder", fmt::shortPath(QFileInfo(item.path).path()), "mono");
  //: Mark of a row; %1: an app
  return cell("owner", CleanupWords::tr("%1 is running").arg(item.owner), "warn");
}

QHBoxLayout* itemText(const CategoryDef& def, const CleanItem& item) {
  ElidedLabel* name = cell("name", item.name, nullptr);
  name->setToolTip(plainTip(QDir::toNativeSeparators(item.path)));
  QVBoxLayout* lines = vbox(kItemLineSpacing);
  lines->addWidget(name);
  lines->addWidget(secondLine(item));
  QHBoxLayout* text = hbox(kItemIconSpacing);
  text->addWidget(new IconView(itemIcon(def, item), Tone::Text3, kItemIcon));
  text->addLayout(lines, 1);
  return text;
}

ElidedLabel* ageLabel(qint64 modified) {
  const QString age = modified >= 1 ? fmt::age(QDateTime::fromMSecsSinceEpoch(modified)) : QString();
  ElidedLabel* result = cell("age", age, "micro");
  result->setFixedWidth(kAgeWidth);
  return result;
}

QLabel* sizeLabel(qint64 bytes) {
  QLabel* size = rightLabel(fmt::bytes(bytes), "num");
  size->setFixedWidth(kSizeWidth);
  return size;
}

void setQuietly(QCheckBox* box, Qt::CheckState state) {
  const QSignalBlocker quiet(box);
  box->setCheckState(state);
}

} // namespace

QString itemIcon(const CategoryDef& def, const CleanItem& item) {
  if (def.id == "browser"_L1) return u"globe"_s;
  if (item.wholeRoot) return u"folder"_s;
  const qsizetype dot = item.name.lastIndexOf(u'.');
  return dot >= 0 && item.name.size() - dot - 1 <= kLongestSuffix ? u"file"_s : u"folder"_s;
}

CleanupDetail::CleanupDetail(AppState* state, QWidget* parent)
    : Card(parent),
      m_state(state),
      m_detailScroll(new QScrollArea),
      m_detailLayout(vbox(0, kMargins)),
      m_scrollFocus(new KeyboardFocus(m_detailScroll)) {
  auto* content = new QWidget;
  content->setLayout(m_detailLayout);
  content->setStyleSheet(cellStyles());
  m_detailScroll->setWidgetResizable(true);
  m_detailScroll->setFrameShape(QFrame::NoFrame);
  m_detailScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_detailScroll->setWidget(content);
  m_detailScroll->setObjectName("detailScroll"_L1);
  QVBoxLayout* frame = vbox(0, kFrame);
  setLayout(frame);
  frame->addWidget(m_detailScroll);
}

void CleanupDetail::showCategory(const QString& id) {
  if (id != m_id) m_detailScroll->verticalScrollBar()->setValue(0);
  m_id = id;
  rebuild();
}

void CleanupDetail::rebuild() {
  const QWidget* focused = window()->focusWidget();
  if (focused && m_detailScroll->widget()->isAncestorOf(focused))
    m_detailScroll->setFocus(Qt::OtherFocusReason); // else it would go to the next in line
  clearLayout(m_detailLayout);
  m_itemChecks.clear();
  m_ages.clear();
  m_detailSelectAll = nullptr;
  m_title = nullptr;
  m_focusStops = {m_detailScroll};
  const CategoryResult* result = m_state->result(m_id);
  m_detailScroll->setAccessibleName(result ? result->def.title : QString());
  if (result)
    fill(*result);
  else
    m_detailLayout->addWidget(label(CleanupWords::tr("Nothing left to clean. Rescan any time."), "sub"));
  m_detailLayout->addStretch();
  // At once, so that the panel doesn't shrink in between and keeps its scroll position. Each of them would lay the
  // panel out again.
  m_detailLayout->setEnabled(false);
  for (QWidget* child : m_detailScroll->widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    child->show();
  m_detailLayout->setEnabled(true);
  placeAges();
  placeSize();
  emit rebuilt();
}

// Where there is little room, names need it more.
void CleanupDetail::placeAges() {
  for (QLabel* age : std::as_const(m_ages)) age->setVisible(width() >= kRoomForAges);
}

void CleanupDetail::resizeEvent(QResizeEvent* event) {
  Card::resizeEvent(event);
  placeAges();
  placeSize();
}

void CleanupDetail::fill(const CategoryResult& result) {
  addHeader(result);
  addBlurb(result.def);
  addNotes(result);
  if (result.items.isEmpty()) return;
  const qsizetype shown = std::min(m_shownItemLimits.value(m_id, kFirstItems), result.items.size());
  addItemsHeading(result);
  if (!result.def.usesRecycleBin) addSelectAll(result.def.id);
  addItems(result, shown);
  addRemainder(result.items.size() - shown, shown);
}

void CleanupDetail::addHeader(const CategoryResult& result) {
  QHBoxLayout* pill = hbox(kPillSpacing);
  pill->addWidget(new Pill(result.def.safety));
  pill->addStretch();
  m_titleLines = vbox(kTitleSpacing);
  m_title = label(result.def.title, "h2");
  m_title->setWordWrap(true); // the list beside the panel shortens it
  m_titleLines->addWidget(m_title);
  m_titleLines->addLayout(pill);
  m_size = sizeColumn(result);
  m_header = hbox(kHeaderSpacing);
  m_header->addWidget(new IconTile(result.def.icon, result.def.colour, kHeaderTile), 0, Qt::AlignTop);
  m_header->addLayout(m_titleLines, 1);
  m_header->addWidget(m_size);
  m_detailLayout->addLayout(m_header);
}

// Where a word of the title is too long for its room beside the size, the size comes below.
void CleanupDetail::placeSize() {
  if (!m_title) return;
  m_title->ensurePolished(); // its font comes from the style sheet
  int longest = 0;
  for (const QString& word : m_title->text().split(u' '))
    longest = std::max(longest, m_title->fontMetrics().horizontalAdvance(word));
  const int bar = m_detailScroll->verticalScrollBar()->sizeHint().width();
  const int room = width() - kMargins.left() - kMargins.right() - kFrame.left() - kFrame.right() - bar - kHeaderTile -
                   2 * kHeaderSpacing - m_size->sizeHint().width();
  const bool isBelow = longest > room;
  if (isBelow == (m_titleLines->indexOf(m_size) >= 0)) return;
  (isBelow ? static_cast<QBoxLayout*>(m_header) : m_titleLines)->removeWidget(m_size);
  (isBelow ? static_cast<QBoxLayout*>(m_titleLines) : m_header)->addWidget(m_size);
  const Qt::Alignment side = isBelow ? Qt::AlignLeft : Qt::AlignRight;
  for (QLabel* line : m_size->findChildren<QLabel*>()) line->setAlignment(side | Qt::AlignVCenter);
}

// What can't be undone is said as a warning.
void CleanupDetail::addBlurb(const CategoryDef& def) {
  if (def.safety == Permanent) {
    m_detailLayout->addSpacing(kBelowBlurb);
    addNote(m_detailLayout, spokenNote(Note::Caution, u"alert"_s, def.blurb.toHtmlEscaped()));
    return;
  }
  QLabel* blurb = label(def.blurb, "sub");
  blurb->setWordWrap(true);
  blurb->setToolTip(def.locationHint);
  blurb->setContentsMargins(paint::mirrored(kBlurbMargins, layoutDirection()));
  m_detailLayout->addWidget(blurb);
  m_detailLayout->addSpacing(kBelowBlurb);
}

void CleanupDetail::addNotes(const CategoryResult& result) {
  for (Note* note : {accessNote(result), runningNote(result.items)}) {
    if (!note) continue;
    m_detailLayout->addSpacing(kAboveNote);
    addNote(m_detailLayout, note);
    if (auto* action = note->findChild<QPushButton*>()) m_focusStops << action;
  }
}

void CleanupDetail::addItemsHeading(const CategoryResult& result) {
  QHBoxLayout* heading = hbox(0, kItemsHeadingMargins);
  QLabel* title = eyebrow(CleanupWords::tr("Largest items"));
  title->setWordWrap(true); // the button beside it may take most of the room
  heading->addWidget(title, 1);
  const QString largest = result.items.first().path;
  if (!largest.isEmpty()) {
    //: Button; %1: the file manager, Finder or Files
    auto* reveal = new Button(CleanupWords::tr("Show in %1").arg(platform::fileManagerName()), "link", u"external"_s);
    connect(reveal, &Button::clicked, this, [largest] { platform::revealInFileManager(largest); });
    heading->addWidget(reveal);
    m_focusStops << reveal;
  }
  m_detailLayout->addLayout(heading);
  m_detailLayout->addWidget(new Divider);
}

void CleanupDetail::addSelectAll(const QString& id) {
  m_detailSelectAll = new QCheckBox(CleanupWords::tr("Select all"));
  m_detailSelectAll->setTristate(true);
  m_detailSelectAll->setObjectName("detailSelectAll"_L1);
  m_detailSelectAll->setCheckState(Qt::CheckState(m_state->selectionState(id)));
  connect(m_detailSelectAll, &QCheckBox::clicked, this,
          [this, id] { m_state->setSelected(id, m_state->selectionState(id) != Qt::Checked); });
  QHBoxLayout* line = hbox(0, kSelectAllMargins);
  line->addWidget(m_detailSelectAll);
  m_detailLayout->addLayout(line);
  m_detailLayout->addWidget(new Divider);
  m_focusStops << m_detailSelectAll;
}

void CleanupDetail::addItems(const CategoryResult& result, qsizetype shown) {
  for (qsizetype i = 0; i < shown; ++i) {
    addItem(result.def, result.items.at(i));
    m_detailLayout->addWidget(new Divider);
  }
}

void CleanupDetail::addItem(const CategoryDef& def, const CleanItem& item) {
  QHBoxLayout* row = hbox(kItemSpacing, kItemMargins);
  if (!def.usesRecycleBin) row->addWidget(buildItemBox(item));
  row->addLayout(itemText(def, item), 1);
  ElidedLabel* age = ageLabel(item.modified);
  m_ages << age;
  row->addWidget(age);
  row->addWidget(sizeLabel(item.bytes));
  m_detailLayout->addLayout(row);
}

QCheckBox* CleanupDetail::buildItemBox(const CleanItem& item) {
  QCheckBox* box = bareCheckBox(fmt::list({item.name, fmt::bytes(item.bytes)}));
  box->setChecked(m_state->isItemSelected(m_id, item.path));
  connect(box, &QCheckBox::toggled, this,
          [this, id = m_id, path = item.path](bool on) { m_state->setItemSelected(id, path, on); });
  m_itemChecks.append({box, item.path});
  m_focusStops << box;
  return box;
}

void CleanupDetail::addRemainder(qsizetype rest, qsizetype shown) {
  if (rest <= 0) return;
  const qsizetype step = std::min(rest, kMoreItems);
  //: Button under a list; %1: how many more rows it brings
  auto* more = new Button(CleanupWords::tr("Show %1 more", nullptr, fmt::plural(step)).arg(step), "link");
  connect(more, &Button::clicked, this, [this, limit = shown + step] { showMore(limit); });
  QHBoxLayout* line = hbox(kItemSpacing, kRemainderMargins);
  //: At the end of a list; %1: how many rows are not shown
  line->addWidget(
      label(CleanupWords::tr("and %1 more items", nullptr, fmt::plural(rest)).arg(fmt::count(rest)), "sub"));
  line->addStretch();
  line->addWidget(more);
  m_detailLayout->addLayout(line);
  m_focusStops << more;
  m_moreFocus = new KeyboardFocus(more);
}

void CleanupDetail::showMore(qsizetype limit) {
  const int at = m_detailScroll->verticalScrollBar()->value();
  const qsizetype firstNew = m_itemChecks.size();
  const bool byKeyboard = m_moreFocus && m_moreFocus->isVisible();
  m_shownItemLimits[m_id] = limit;
  rebuild();
  // The keyboard goes on with the first item that came, or with the button where items have no boxes.
  if (byKeyboard)
    (firstNew < m_itemChecks.size() ? m_itemChecks.at(firstNew).first.data() : m_focusStops.last())
        ->setFocus(Qt::TabFocusReason);
  QTimer::singleShot(0, this, [this, at] { m_detailScroll->verticalScrollBar()->setValue(at); });
}

void CleanupDetail::refreshTicks() {
  for (const auto& [box, path] : std::as_const(m_itemChecks))
    if (box) setQuietly(box, m_state->isItemSelected(m_id, path) ? Qt::Checked : Qt::Unchecked);
  if (m_detailSelectAll) setQuietly(m_detailSelectAll, Qt::CheckState(m_state->selectionState(m_id)));
}

void CleanupDetail::paintEvent(QPaintEvent* event) {
  Card::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  m_scrollFocus->paintRing(&painter, QRectF(rect()).adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset),
                           kRingRadius);
}

} // namespace ui
