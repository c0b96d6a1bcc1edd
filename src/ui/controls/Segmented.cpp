#include "ui/controls/Segmented.h"

#include "ui/Theme.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/paint.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace ui {

namespace {
// Lengths in pixels.
constexpr int kFontPx = 13;
constexpr int kFontWeight = 500;
constexpr int kMargin = 2; // around all segments
constexpr int kTextRoom = 24;
constexpr int kHeightMac = 30;
constexpr int kHeightWin = 34;
constexpr double kRadius = 10;
constexpr double kSegmentInset = 1;
constexpr double kSegmentRadius = 7;
constexpr double kRingInset = 3;
} // namespace

QList<QRectF> segmentLayout(const QList<int>& textWidths, int height, Qt::LayoutDirection direction) {
  QList<QRectF> segments;
  double left = kMargin;
  for (const int textWidth : textWidths) {
    segments << QRectF(left, kMargin, textWidth + kTextRoom, height - 2 * kMargin);
    left = segments.last().right();
  }
  const QRectF whole(0, 0, left + kMargin, height);
  for (QRectF& segment : segments) segment = paint::mirrored(segment, whole, direction);
  return segments;
}

Segmented::Segmented(const QList<QString>& items, QWidget* parent)
    : QWidget(parent), m_items(items), m_focus(new KeyboardFocus(this)) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setFont(Theme::get().font(kFontPx, kFontWeight));
  setFocusPolicy(Qt::StrongFocus);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Segmented::setCurrent(int index) {
  if (index < 0 || index == m_current || index >= m_items.size()) return;
  m_current = index;
  m_cursor = index;
  update();
  accessibleItemsChanged(this, index);
  emit currentChanged(index);
}

void Segmented::setItemText(int index, const QString& text) {
  if (index < 0 || index >= m_items.size()) return;
  m_items[index] = text;
  updateGeometry();
  update();
  accessibleItemsChanged(this, -1);
}

QList<int> Segmented::textWidths() const {
  QList<int> widths;
  for (const QString& item : m_items) widths << fontMetrics().horizontalAdvance(item);
  return widths;
}

QList<QRectF> Segmented::segments() const { return segmentLayout(textWidths(), height(), layoutDirection()); }

QSize Segmented::sizeHint() const {
  int width = 2 * kMargin;
  for (const int textWidth : textWidths()) width += textWidth + kTextRoom;
  return {width, Theme::get().mac ? kHeightMac : kHeightWin};
}

AccessibleItems::Item Segmented::itemAt(int index) const {
  return {.name = m_items.value(index),
          .rect = segments().value(index).toRect(),
          .checkable = true,
          .checked = index == m_current,
          .current = index == m_cursor};
}

void Segmented::mousePressEvent(QMouseEvent* event) {
  const QList<QRectF> all = segments();
  for (int index = 0; index < all.size(); ++index)
    if (index != m_current && all[index].contains(event->position())) {
      setCurrent(index);
      return;
    }
}

void Segmented::keyPressEvent(QKeyEvent* event) {
  const int toRight = layoutDirection() == Qt::RightToLeft ? -1 : 1;
  switch (event->key()) {
  case Qt::Key_Left:
    return moveCursor(m_cursor - toRight);
  case Qt::Key_Right:
    return moveCursor(m_cursor + toRight);
  case Qt::Key_Home:
    return moveCursor(0);
  case Qt::Key_End:
    return moveCursor(int(m_items.size()) - 1);
  case Qt::Key_Space:
  case Qt::Key_Return:
  case Qt::Key_Enter:
    return setCurrent(m_cursor);
  default:
    QWidget::keyPressEvent(event);
  }
}

void Segmented::focusInEvent(QFocusEvent* event) {
  m_cursor = m_current;
  QWidget::focusInEvent(event);
}

void Segmented::moveCursor(int index) {
  m_cursor = std::clamp(index, 0, std::max(0, int(m_items.size()) - 1));
  update();
  accessibleItemsChanged(this, m_cursor);
}

void Segmented::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const QList<QRectF> all = segments();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, paint::hairline(rect()), kRadius, theme.card, paint::pen(theme.line));
  for (int index = 0; index < all.size(); ++index) paintSegment(&painter, all[index], index);
}

void Segmented::paintSegment(QPainter* painter, const QRectF& segment, int index) const {
  const Theme& theme = Theme::get();
  if (index == m_current)
    paint::roundedRect(painter, segment.adjusted(kSegmentInset, kSegmentInset, -kSegmentInset, -kSegmentInset),
                       kSegmentRadius, theme.dark ? theme.cardHover : theme.surface, paint::pen(theme.line));
  painter->setPen(index == m_current ? theme.text : theme.text2);
  paint::text(painter, segment, Qt::AlignCenter, m_items[index]);
  if (index == m_cursor)
    m_focus->paintRing(painter, segment.adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset),
                       kSegmentRadius - kRingInset + 1);
}

} // namespace ui
