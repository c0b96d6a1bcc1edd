#include "ui/visuals/dial.h"

#include "ui/paint.h"

#include <QPainter>

#include <algorithm>

namespace ui::dial {

namespace {
void paintLine(QPainter* painter, const QRectF& box, Qt::Alignment alignment, const Line& line) {
  painter->setFont(line.font);
  painter->setPen(line.colour);
  paint::text(painter, box, int(alignment), line.text);
}
} // namespace

double fraction(double value) { return value > 0 ? std::min(value, 1.0) : 0.0; }

void paintText(QPainter* painter, const TextBoxes& boxes, const Line& headline, const Line& caption) {
  paintLine(painter, boxes.headline, Qt::AlignCenter, headline);
  paintLine(painter, boxes.caption, Qt::AlignHCenter | Qt::AlignTop, caption);
}

QString spoken(const QString& headline, const QString& caption) { return QString(headline + u' ' + caption).trimmed(); }

} // namespace ui::dial
