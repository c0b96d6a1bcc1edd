#include "ui/pages/ChipRow.h"

#include "ui/controls/factory.h"
#include "ui/pages/Chip.h"

#include <QEvent>
#include <QHBoxLayout>

namespace ui {

namespace {
constexpr int kSpacing = 8; // px
} // namespace

ChipRow::ChipRow(const QList<Chip*>& chips, QWidget* parent) : QWidget(parent), m_chips(chips), m_box(hbox(kSpacing)) {
  for (Chip* chip : chips) m_box->addWidget(chip, 1);
  m_box->addStretch();
  setLayout(m_box);
}

bool ChipRow::isStacked() const { return m_box->direction() == QBoxLayout::TopToBottom; }

// A text may have become another one.
bool ChipRow::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) arrange();
  return QWidget::event(event);
}

void ChipRow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange();
}

void ChipRow::arrange() {
  int wanted = -kSpacing;
  for (const Chip* chip : m_chips) wanted += kSpacing + chip->sizeHint().width();
  const auto direction = wanted > width() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
  if (m_box->direction() != direction) m_box->setDirection(direction);
}

} // namespace ui
