#include "ui/pages/DoneBadge.h"

#include "ui/paint.h"
#include "ui/visuals/hues.h"

#include <QPainter>
#include <QRadialGradient>

namespace ui {

namespace {

// Lengths in pixels.
constexpr QSize kSize(120, 120);
constexpr double kGlowRadius = 60;
constexpr double kDiscRadius = 36;
constexpr double kCheckWidth = 3.2;
constexpr QPointF kCheck[] = {{-13, 1}, {-4, 10}, {14, -9}}; // from the centre
constexpr int kGlowAlpha = 70;

QRectF around(const QPointF& centre, double radius) {
  return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

void paintGlow(QPainter* painter, const QRectF& glow) {
  QRadialGradient gradient(glow.center(), glow.width() / 2);
  gradient.setColorAt(0, paint::withAlpha(hues::kEmerald, kGlowAlpha));
  gradient.setColorAt(1, paint::withAlpha(hues::kEmerald, 0));
  painter->setBrush(gradient);
  painter->drawEllipse(glow);
}

void paintDisc(QPainter* painter, const QRectF& disc) {
  QLinearGradient gradient(disc.topLeft(), disc.bottomRight());
  gradient.setColorAt(0, hues::kEmerald);
  gradient.setColorAt(1, hues::kCyan);
  painter->setBrush(gradient);
  painter->drawEllipse(disc);
}

} // namespace

DoneBadgeLayout doneBadgeLayout(const QSize& size) {
  const QPointF centre = QRectF(QPointF(), size).center();
  DoneBadgeLayout layout{.glow = around(centre, kGlowRadius), .disc = around(centre, kDiscRadius), .check = {}};
  for (const QPointF& point : kCheck) layout.check << centre + point;
  return layout;
}

DoneBadge::DoneBadge(QWidget* parent) : QWidget(parent) { setFixedSize(kSize); }

void DoneBadge::paintEvent(QPaintEvent* /*event*/) {
  const DoneBadgeLayout layout = doneBadgeLayout(size());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  paintGlow(&painter, layout.glow);
  paintDisc(&painter, layout.disc);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(paint::roundPen(Qt::white, kCheckWidth));
  painter.drawPolyline(layout.check);
}

} // namespace ui
