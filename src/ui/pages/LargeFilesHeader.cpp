#include "ui/pages/LargeFilesHeader.h"

#include "ui/Theme.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/paint.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {
// Lengths in pixels.
constexpr double kRingInset = 4;
constexpr double kRingBottom = 9; // the texts stand above the middle
constexpr double kRingRadius = 6;
} // namespace

LargeFilesHeader::LargeFilesHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), m_focus(new KeyboardFocus(this, [this] { viewport()->update(); })) {
  setSectionsClickable(true);
  setFocusPolicy(Qt::TabFocus);
  viewport()->installEventFilter(m_focus);                                        // which gets the presses of the mouse
  setStyleSheet(u"QHeaderView::section { border-bottom-color: transparent; }"_s); // it is painted here
  connect(this, &QHeaderView::sortIndicatorChanged, this, [this] { accessibleItemsChanged(this, m_stop); });
}

QList<int> LargeFilesHeader::stops() const {
  QList<int> columns;
  for (int column = 0; column < count(); ++column)
    if (!isSectionHidden(column) && LargeFilesModel::isSortable(column)) columns << column;
  return columns;
}

AccessibleItems::Item LargeFilesHeader::itemAt(int index) const {
  const int column = stops().at(index);
  return {.name = model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString(),
          .rect = sectionRect(column),
          .current = index == m_stop};
}

QRect LargeFilesHeader::sectionRect(int column) const {
  return {sectionViewportPosition(column), 0, sectionSize(column), height()};
}

// As a click would.
void LargeFilesHeader::activateItem(int index) {
  const int column = stops().value(index, -1);
  if (column < 0) return;
  const bool again = column == sortIndicatorSection() && sortIndicatorOrder() == Qt::AscendingOrder;
  setSortIndicator(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void LargeFilesHeader::moveTo(int stop) {
  m_stop = std::clamp(stop, 0, std::max(0, itemCount() - 1));
  viewport()->update();
  accessibleItemsChanged(this, m_stop);
}

void LargeFilesHeader::keyPressEvent(QKeyEvent* event) {
  const int toRight = layoutDirection() == Qt::RightToLeft ? -1 : 1;
  switch (event->key()) {
  case Qt::Key_Left:
    return moveTo(m_stop - toRight);
  case Qt::Key_Right:
    return moveTo(m_stop + toRight);
  case Qt::Key_Home:
    return moveTo(0);
  case Qt::Key_End:
    return moveTo(itemCount() - 1);
  case Qt::Key_Space:
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (!event->isAutoRepeat()) activateItem(m_stop);
    return;
  default:
    event->ignore(); // what the base class does is for rows
  }
}

void LargeFilesHeader::paintEvent(QPaintEvent* event) {
  QHeaderView::paintEvent(event);
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  // In one piece: section by section it would be blurred on some screens, with a gap between two.
  paint::line(&painter, QRectF(0, viewport()->height() - 1, viewport()->width(), 1), Theme::get().line);
  if (worked() < 0) return;
  const QRectF section = sectionRect(worked());
  m_focus->paintRing(&painter, section.adjusted(kRingInset, kRingInset, -kRingInset, -kRingBottom), kRingRadius);
}

} // namespace ui
