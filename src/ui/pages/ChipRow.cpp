#include "ui/pages/ChipRow.h"

#include "ui/pages/Chip.h"

#include <QEvent>
#include <QStyle>

#include <algorithm>

namespace ui {

namespace {
constexpr int kSpacing = 8; // px
} // namespace

// It has no layout, as one would learn of the other height only when it has the width.
ChipRow::ChipRow(const QList<Chip*>& chips, QWidget* parent) : QWidget(parent), m_chips(chips) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred); // a fixed height would be that of one line
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  for (Chip* chip : chips) {
    chip->setParent(this);
    chip->installEventFilter(this);
  }
}

QSize ChipRow::sizeHint() const {
  QSize hint(-kSpacing, 0);
  for (const Chip* chip : m_chips) {
    hint.rwidth() += kSpacing + chip->sizeHint().width();
    hint.setHeight(std::max(hint.height(), chip->sizeHint().height()));
  }
  return hint;
}

QSize ChipRow::minimumSizeHint() const { return {0, sizeHint().height()}; }

bool ChipRow::isStacked(int width) const { return sizeHint().width() > width; }

int ChipRow::heightForWidth(int width) const {
  const int line = sizeHint().height();
  return isStacked(width) ? int(m_chips.size()) * (line + kSpacing) - kSpacing : line;
}

// A chip's text has become another one. While it isn't on show, the chip alone hears of that.
bool ChipRow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) {
    updateGeometry();
    place();
  }
  return QWidget::eventFilter(watched, event);
}

void ChipRow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  place();
}

void ChipRow::place() {
  const bool stacked = isStacked(width());
  QPoint at;
  for (Chip* chip : m_chips) {
    const QSize hint = chip->sizeHint();
    const QRect box(at, QSize(std::min(hint.width(), width()), hint.height()));
    chip->setGeometry(QStyle::visualRect(layoutDirection(), rect(), box));
    at += stacked ? QPoint(0, hint.height() + kSpacing) : QPoint(hint.width() + kSpacing, 0);
  }
}

} // namespace ui
