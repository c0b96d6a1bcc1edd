#include "ui/controls/Label.h"

#include "ui/paint.h"

#include <QEvent>
#include <QPainter>

namespace ui {

namespace {
constexpr Qt::Alignment kAtStart = Qt::AlignLeft;
constexpr Qt::Alignment kAtRight = Qt::AlignRight | Qt::AlignAbsolute;
} // namespace

Label::Label(const QString& text, QWidget* parent) : QLabel(text, parent) { keepSide(); }

void Label::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::LayoutDirectionChange) keepSide();
}

// A formatted text knows its own direction alone, and has to be told the side by name.
void Label::keepSide() {
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  const Qt::Alignment across = alignment() & Qt::AlignHorizontal_Mask;
  if (across == (isMirrored ? kAtStart : kAtRight))
    setAlignment((isMirrored ? kAtRight : kAtStart) | (alignment() & Qt::AlignVertical_Mask));
}

void Label::paintEvent(QPaintEvent* event) {
  const bool isPlain = textFormat() == Qt::PlainText || (textFormat() == Qt::AutoText && !Qt::mightBeRichText(text()));
  if (layoutDirection() == Qt::LeftToRight || !isPlain || text().isEmpty()) return QLabel::paintEvent(event);
  QPainter painter(this);
  drawFrame(&painter);
  const int flags = int(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0);
  const QRect box = contentsRect().marginsRemoved({margin(), margin(), margin(), margin()});
  painter.setPen(palette().color(foregroundRole()));
  paint::text(&painter, box, flags, text());
}

} // namespace ui
