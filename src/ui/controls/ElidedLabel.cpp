#include "ui/controls/ElidedLabel.h"

#include "ui/TipStyler.h"
#include "ui/paint.h"

#include <QEvent>
#include <QPainter>

namespace ui {

namespace {
constexpr QChar kEllipsis(0x2026);
constexpr int kSpareWidth = 8;
} // namespace

ElidedLabel::ElidedLabel(const QString& text, const char* role, QWidget* parent) : QLabel(text, parent) {
  setProperty("role", QString::fromLatin1(role)); // it is dressed later, once
  setToolTip(plainTip(text));
  setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
  allowShrinking();
}

// By its size policy a layout would take the whole text for the least that the label needs; a minimum width of its own
// goes before that.
void ElidedLabel::allowShrinking() {
  if (minimumWidth() != m_leastWidth) return; // somebody knows better
  m_leastWidth = leastWidth();
  setMinimumWidth(m_leastWidth);
}

void ElidedLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange) allowShrinking();
}

QSize ElidedLabel::minimumSizeHint() const { return {leastWidth(), QLabel::minimumSizeHint().height()}; }

// Asking for the height would dress the label before it has a parent, and once more when it has one.
int ElidedLabel::leastWidth() const { return fontMetrics().horizontalAdvance(kEllipsis) + kSpareWidth; }

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  const QRect room = contentsRect();
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  paint::text(&painter, room, Qt::AlignLeft | Qt::AlignVCenter,
              fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}

} // namespace ui
