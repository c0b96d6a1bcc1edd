#include "ui/controls/SelectPopup.h"

#include "ui/Theme.h"
#include "ui/icons.h"
#include "ui/paint.h"
#include "ui/popup.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kRowsTop = 18; // and left, right, bottom: the shadow's margin and a little of the body
constexpr int kTextRoom = 38;
constexpr int kCentredHeight = 34; // of what is centred over the control
constexpr int kTextEnd = 10;
constexpr double kRadius = 8;
constexpr int kShadowOffset = 4;
constexpr int kShadowPeakDark = 46;
constexpr int kShadowPeakLight = 26;
constexpr double kRowRadiusMac = 5;
constexpr double kCheckLeft = 7;
constexpr double kCheckSize = 12;
constexpr double kRowRadiusWin = 4;
constexpr double kMarkerWidth = 3;
constexpr double kMarkerHeight = 16;
constexpr double kMarkerRadius = 1.5;
constexpr int kFadeMs = 110;

int widestText(const QComboBox& select) {
  int widest = 0;
  for (int row = 0; row < select.count(); ++row)
    widest = std::max(widest, select.fontMetrics().horizontalAdvance(select.itemText(row)));
  return widest;
}

} // namespace

SelectPopupLayout::SelectPopupLayout(bool mac)
    : rowHeight(mac ? 26 : 34),
      inset(mac ? 24 : 12),
      overhang(mac ? 20 : 0),
      extraWidth(mac ? 16 : 0),
      extraHeight(mac ? 8 : 0) {}

QSize SelectPopupLayout::popupSize(int widestText, int selectWidth, int rows) const {
  return {std::max(widestText + inset + kTextRoom, selectWidth + extraWidth) + 2 * kMargin,
          rowHeight * rows + 2 * kRowsTop};
}

QPoint SelectPopupLayout::popupPlace(const QRect& select, int row, const QSize& popup, const QRect& available,
                                     Qt::LayoutDirection direction) const {
  const int centred = (select.height() + extraHeight - kCentredHeight) / 2;
  const int atLeft = select.left() - overhang - kMargin;
  const int atRight = select.right() + 1 + overhang + kMargin - popup.width();
  const QPoint wanted(direction == Qt::RightToLeft ? atRight : atLeft,
                      select.top() + centred - kRowsTop - std::max(row, 0) * rowHeight);
  const QPoint least(available.left() - kMargin, available.top() - kMargin);
  const QPoint most(available.right() - popup.width() + kMargin, available.bottom() - popup.height() + kMargin);
  // A popup larger than the screen keeps its upper left part on it.
  return {std::max(std::min(wanted.x(), most.x()), least.x()), std::max(std::min(wanted.y(), most.y()), least.y())};
}

QRectF SelectPopupLayout::rowRect(int row, int popupWidth) const {
  return QRectF(kRowsTop, rowHeight * row + kRowsTop, popupWidth - 2 * kRowsTop, rowHeight);
}

int SelectPopupLayout::rowAt(const QPointF& point, int rows, int popupWidth) const {
  for (int row = 0; row < rows; ++row)
    if (rowRect(row, popupWidth).contains(point)) return row;
  return -1;
}

QRectF SelectPopupLayout::body(const QSize& popup) {
  return QRectF(QPointF(), QSizeF(popup)).adjusted(kMargin, kMargin, -kMargin, -kMargin);
}

SelectPopup::SelectPopup(QComboBox* select)
    : QWidget(nullptr, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint),
      m_select(select),
      m_layout(Theme::get().mac),
      m_hovered(select->currentIndex()) {
  setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_DeleteOnClose);
  setMouseTracking(true);
  setFont(select->font());
  setLayoutDirection(select->layoutDirection());
  setAccessibleName(select->accessibleName());
}

void SelectPopup::open() {
  const QScreen* screen = m_select->screen() ? m_select->screen() : QGuiApplication::primaryScreen();
  const QRect control(m_select->mapToGlobal(QPoint()), m_select->size());
  resize(m_layout.popupSize(widestText(*m_select), control.width(), rows()));
  move(m_layout.popupPlace(control, current(), size(), screen->availableGeometry(), layoutDirection()));
  trimWithoutCompositor(this, SelectPopupLayout::body(size()), kRadius);
  setWindowOpacity(0);
  m_sinceOpening.start();
  show();
  fadeIn();
  accessibleExpandedChanged(m_select);
  accessibleItemsChanged(this, m_hovered);
}

void SelectPopup::fadeIn() {
  auto* animation = new QPropertyAnimation(this, "windowOpacity", this);
  animation->setStartValue(0.0);
  animation->setEndValue(1.0);
  animation->setDuration(kFadeMs);
  animation->start(QAbstractAnimation::DeleteWhenStopped);
}

int SelectPopup::rows() const { return m_select ? m_select->count() : 0; }
int SelectPopup::current() const { return m_select ? m_select->currentIndex() : -1; }

AccessibleItems::Item SelectPopup::itemAt(int index) const {
  return {.name = m_select ? m_select->itemText(index) : QString(),
          .rect = m_layout.rowRect(index, width()).toRect(),
          .selectable = true,
          .selected = index == current(),
          .current = index == m_hovered};
}

void SelectPopup::setHovered(int row) {
  if (row == m_hovered) return;
  m_hovered = row;
  update();
  accessibleItemsChanged(this, row);
}

// What is told of the choice may delete the select.
void SelectPopup::choose(int row) {
  if (row >= 0 && row < rows()) {
    const int before = current();
    m_select->setCurrentIndex(row);
    if (m_select && current() != before) emit m_select->activated(row);
  }
  close();
}

void SelectPopup::mouseMoveEvent(QMouseEvent* event) {
  const int row = m_layout.rowAt(event->position(), rows(), width());
  if (row >= 0) setHovered(row);
}

void SelectPopup::mouseReleaseEvent(QMouseEvent* event) {
  if (m_sinceOpening.elapsed() < kReleaseGraceMs) return;
  const int row = m_layout.rowAt(event->position(), rows(), width());
  if (row >= 0)
    choose(row);
  else if (!SelectPopupLayout::body(size()).contains(event->position()))
    close();
}

void SelectPopup::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
  case Qt::Key_Escape:
    close();
    break;
  case Qt::Key_Return:
  case Qt::Key_Enter:
  case Qt::Key_Space:
    choose(m_hovered);
    break;
  case Qt::Key_Up:
    setHovered(std::max(m_hovered - 1, 0));
    break;
  case Qt::Key_Down:
    setHovered(std::min(m_hovered + 1, rows() - 1));
    break;
  default:
    QWidget::keyPressEvent(event);
  }
}

// The select's open look ends.
void SelectPopup::closeEvent(QCloseEvent* event) {
  if (m_select) m_select->update();
  QWidget::closeEvent(event);
}

void SelectPopup::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (m_select) accessibleExpandedChanged(m_select);
}

void SelectPopup::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintBody(&painter);
  for (int row = 0; row < rows(); ++row) paintRow(&painter, row);
}

void SelectPopup::paintBody(QPainter* painter) const {
  const Theme& theme = Theme::get();
  const QRectF body = SelectPopupLayout::body(size());
  const QColor fill = !theme.mac && theme.dark ? theme.surface2 : theme.surface;
  if (!mask().isEmpty()) painter->fillRect(body, fill);
  paint::shadow(painter, body,
                {.layers = SelectPopupLayout::kMargin,
                 .offsetY = kShadowOffset,
                 .radius = kRadius,
                 .peak = theme.dark ? kShadowPeakDark : kShadowPeakLight});
  paint::roundedRect(painter, body, kRadius, fill, paint::pen(theme.mac ? theme.lineStrong : theme.line));
}

void SelectPopup::paintRow(QPainter* painter, int row) const {
  const QRectF rect = m_layout.rowRect(row, width());
  const QColor ink = Theme::get().mac ? markMac(painter, rect, row) : markWin(painter, rect, row);
  const QRectF room = paint::mirrored(rect.adjusted(m_layout.inset, 0, -kTextEnd, 0), rect, layoutDirection());
  painter->setPen(ink);
  paint::text(painter, room, Qt::AlignLeft | Qt::AlignVCenter,
              fontMetrics().elidedText(m_select->itemText(row), Qt::ElideRight, int(room.width())));
}

QColor SelectPopup::markMac(QPainter* painter, const QRectF& rect, int row) const {
  const Theme& theme = Theme::get();
  const QColor ink = row == m_hovered ? QColor(Qt::white) : theme.text;
  if (row == m_hovered) paint::roundedRect(painter, rect, kRowRadiusMac, theme.accent);
  const QRectF check(rect.left() + kCheckLeft, rect.center().y() - kCheckSize / 2, kCheckSize, kCheckSize);
  if (row == current()) icons::paint(painter, paint::mirrored(check, rect, layoutDirection()), u"check"_s, ink);
  return ink;
}

QColor SelectPopup::markWin(QPainter* painter, const QRectF& rect, int row) const {
  const Theme& theme = Theme::get();
  if (row == m_hovered || row == current())
    paint::roundedRect(painter, rect, kRowRadiusWin, row == m_hovered ? theme.hover : theme.press);
  const QRectF marker(rect.left(), rect.center().y() - kMarkerHeight / 2, kMarkerWidth, kMarkerHeight);
  if (row == current())
    paint::roundedRect(painter, paint::mirrored(marker, rect, layoutDirection()), kMarkerRadius, theme.accent);
  return theme.text;
}

} // namespace ui
