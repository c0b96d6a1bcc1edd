#include "ui/pages/ShareBar.h"

#include "ui/Theme.h"
#include "ui/paint.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>

namespace ui {

namespace {
constexpr double kRadius = 1.5;
constexpr double kLeastWidth = 3; // of a share above 0
constexpr int kPercent = 100;
} // namespace

QRectF shareBarFill(const QSizeF& bar, double share) {
  const double least = share > 0 ? kLeastWidth : 0;
  return {0, 0, std::max(bar.width() * share, least), bar.height()};
}

QString ShareBar::valueText() const { return QLocale().toString(qRound(share * kPercent)) + QLocale().percent(); }

void ShareBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, rect(), kRadius, Theme::get().track);
  const QRectF fill = paint::mirrored(shareBarFill(size(), share), rect(), layoutDirection());
  paint::roundedRect(&painter, fill, kRadius, colour);
}

} // namespace ui
