#include "ui/shell/Sidebar.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/controls/factory.h"
#include "ui/desktop.h"
#include "ui/paint.h"
#include "ui/shell/DriveCard.h"
#include "ui/shell/NavButton.h"
#include "ui/shell/SidebarToggle.h"
#include "ui/shell/words.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QSettings>
#include <QVariantAnimation>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

const QString kCollapsedKey = u"ui/sidebarCollapsed"_s;
constexpr int kSlideMs = 170;
// Lengths in pixels.
constexpr int kGap = 3;
constexpr int kSide = 12;
constexpr int kCompactSide = 8;
constexpr int kTopWin = 6;
constexpr int kBottom = 14;
constexpr int kTopRowHeight = 40;
constexpr QMargins kTopRow(0, 6, 0, 0);
constexpr QMargins kHeading(12, 8, 0, 6);
constexpr int kAboveDrive = 8;
constexpr int kBelowDrive = 6;
constexpr int kFootGap = 2;
constexpr Qt::Alignment kToggleInRow = Qt::AlignRight | Qt::AlignVCenter; // at the right also if it stands alone
constexpr int kLabelPx = 13;
constexpr int kLabelWeight = 600;
constexpr int kBesideLabel = 100;
constexpr int kMinWidth = 236;
constexpr int kMaxWidth = 300;
constexpr int kRail = 56;

struct Entry {
  Sidebar::Page page;
  const char* text;
  const char16_t* icon;
};
constexpr Entry kEntries[] = {
    {Sidebar::Overview, QT_TRANSLATE_NOOP("Sidebar", "Smart Scan"), u"sparkle"},
    //: Noun: the page for cleaning
    {Sidebar::Cleanup, QT_TRANSLATE_NOOP("Sidebar", "Cleanup"), u"trash"},
    {Sidebar::SpaceMap, QT_TRANSLATE_NOOP("Sidebar", "Space Map"), u"layers"},
    {Sidebar::Settings, QT_TRANSLATE_NOOP("Sidebar", "Settings"), u"menu-settings"},
    {Sidebar::SystemData, QT_TRANSLATE_NOOP("Sidebar", "System Data"), u"drive"},
};
/// Those above the foot, from top to bottom.
constexpr int kUpper[] = {Sidebar::Overview, Sidebar::Cleanup, Sidebar::SpaceMap, Sidebar::SystemData};

} // namespace

int sidebarWidth(int widestText) { return qBound(kMinWidth, widestText + kBesideLabel, kMaxWidth); }

Sidebar::Sidebar(AppState* state, const QList<int>& pages, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_group(new QButtonGroup(this)),
      m_toggle(new SidebarToggle),
      m_drive(new DriveCard(state)) {
  m_group->setExclusive(true);
  QVBoxLayout* column = vbox(kGap, {kSide, Theme::get().mac ? 0 : kTopWin, kSide, kBottom});
  setLayout(column);
  buildEntries(column, pages);
  buildFoot(column, pages);
  fitWidth();
  connect(m_toggle, &QAbstractButton::clicked, this, &Sidebar::toggle);
  setCollapsed(QSettings().value(kCollapsedKey, false).toBool(), false);
  connect(m_group, &QButtonGroup::idClicked, this, &Sidebar::navigate);
  connect(state, &AppState::resultsChanged, this, &Sidebar::refreshBadge);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
  setCurrent(Overview);
  refreshBadge();
}

void Sidebar::buildEntries(QVBoxLayout* column, const QList<int>& pages) {
  if (Theme::get().mac) {
    m_topRow = new QWidget;
    m_topRow->setFixedHeight(kTopRowHeight);
    QHBoxLayout* row = hbox(0, kTopRow); // the stretch keeps the toggle clear of the window's buttons
    row->addStretch();
    row->addWidget(m_toggle, 0, Qt::AlignVCenter);
    m_topRow->setLayout(row);
    column->addWidget(m_topRow);
  }
  //: Heading over the pages of the sidebar: what one comes here for
  m_heading = eyebrow(SidebarWords::tr("Clean"));
  m_heading->setContentsMargins(paint::mirrored(kHeading, layoutDirection()));
  column->addWidget(m_heading);
  for (const int page : kUpper)
    if (pages.contains(page)) column->addWidget(makeEntry(page));
}

void Sidebar::buildFoot(QVBoxLayout* column, const QList<int>& pages) {
  column->addStretch();
  column->addSpacing(kAboveDrive);
  column->addWidget(m_drive);
  column->addSpacing(kBelowDrive);
  NavButton* settings = pages.contains(int(Settings)) ? makeEntry(Settings) : nullptr;
  if (Theme::get().mac) {
    if (settings) column->addWidget(settings);
    return;
  }
  m_foot = hbox(kFootGap);
  if (settings) m_foot->addWidget(settings, 1);
  m_foot->addWidget(m_toggle, 0, kToggleInRow);
  column->addLayout(m_foot);
}

NavButton* Sidebar::makeEntry(int page) {
  const Entry& entry = kEntries[page];
  auto* button = new NavButton(QString::fromUtf16(entry.icon), SidebarWords::tr(entry.text));
  m_group->addButton(button, page);
  if (page == Cleanup) m_cleanup = button;
  return button;
}

// A language with longer words gets a wider column. The tool tip is for the rail, where no text is to be seen.
void Sidebar::fitWidth() {
  const QFontMetrics metrics(Theme::get().font(kLabelPx, kLabelWeight));
  int widest = 0;
  for (QAbstractButton* button : m_group->buttons()) {
    widest = qMax(widest, metrics.horizontalAdvance(button->text()));
    button->setToolTip(button->text());
  }
  m_expandedWidth = sidebarWidth(widest);
}

int Sidebar::compactWidth() const { return Theme::get().mac ? 0 : kRail; }

void Sidebar::setCurrent(int page) {
  if (QAbstractButton* button = m_group->button(page)) button->setChecked(true);
}

void Sidebar::toggle() { setCollapsed(!m_collapsed, true); }

void Sidebar::setCollapsed(bool collapsed, bool animate) {
  m_collapsed = collapsed;
  if (AppSettings::instance().isReadable()) QSettings().setValue(kCollapsedKey, collapsed); // else nothing is written
  emit collapsedChanged(collapsed);
  const QString tip = collapsed ? SidebarWords::tr("Expand sidebar") : SidebarWords::tr("Collapse sidebar");
  m_toggle->setToolTip(tip);
  m_toggle->setAccessibleName(tip);
  if (!collapsed) {
    applyCompact(false);
    if (testAttribute(Qt::WA_WState_ExplicitShowHide) && isHidden()) show(); // as the last collapse hid it
  }
  const int target = collapsed ? compactWidth() : m_expandedWidth;
  if (animate && isVisible() && !desktop::reducedMotion()) {
    slideTo(target);
    return;
  }
  delete m_slide;
  m_slide = nullptr;
  setFixedWidth(target);
  endOfSlide();
}

void Sidebar::slideTo(int target) {
  delete m_slide; // a second wish starts from the width reached
  m_slide = new QVariantAnimation(this);
  m_slide->setStartValue(width());
  m_slide->setEndValue(target);
  m_slide->setDuration(kSlideMs);
  m_slide->setEasingCurve(QEasingCurve::OutCubic);
  connect(m_slide, &QVariantAnimation::valueChanged, this,
          [this](const QVariant& value) { setFixedWidth(value.toInt()); });
  connect(m_slide, &QVariantAnimation::finished, this, [this] {
    endOfSlide();
    m_slide->deleteLater();
    m_slide = nullptr;
  });
  m_slide->start();
}

void Sidebar::endOfSlide() {
  applyCompact(m_collapsed);
  if (m_collapsed && Theme::get().mac) hide();
}

void Sidebar::applyCompact(bool compact) {
  for (QAbstractButton* button : m_group->buttons()) {
    static_cast<NavButton*>(button)->setCompact(compact);
    layout()->setAlignment(button, compact ? Qt::AlignHCenter : Qt::Alignment());
  }
  m_drive->setCompact(compact);
  m_heading->setVisible(!compact);
  QMargins margins = layout()->contentsMargins();
  margins.setLeft(compact ? kCompactSide : kSide);
  margins.setRight(margins.left());
  layout()->setContentsMargins(margins);
  if (m_foot) applyCompactFoot(compact);
}

void Sidebar::applyCompactFoot(bool compact) {
  m_foot->setDirection(compact ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  m_foot->setStretch(0, compact ? 0 : 1);
  m_foot->setAlignment(m_toggle, compact ? Qt::AlignHCenter : kToggleInRow);
}

void Sidebar::refreshBadge() {
  if (!m_cleanup) return;
  const qint64 bytes = m_state->totalReclaimable();
  m_cleanup->setBadge(bytes >= 1 ? fmt::bytes(bytes) : QString());
}

void Sidebar::mousePressEvent(QMouseEvent* event) {
  if (!dragWindowFrom(this, event)) QWidget::mousePressEvent(event);
}

void Sidebar::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!zoomWindowFrom(this, event)) QWidget::mouseDoubleClickEvent(event);
}

void Sidebar::paintEvent(QPaintEvent* /*event*/) {
  const int x = layoutDirection() == Qt::RightToLeft ? 0 : width() - 1; // towards the pages
  QPainter painter(this);
  paint::line(&painter, QRectF(x, 0, 1, height()), Theme::get().line);
}

} // namespace ui
