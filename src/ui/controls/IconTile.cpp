#include "ui/controls/IconTile.h"

#include "ui/Theme.h"
#include "ui/icons.h"
#include "ui/paint.h"

#include <QPainter>

namespace ui {

namespace {
// Shares of the tile's side.
constexpr double kRadiusShare = 0.3;
constexpr double kIconShare = 0.54;
// Alphas of the tile's colour.
constexpr double kFillDark = 0.14;
constexpr double kFillLight = 0.12;
constexpr double kOutline = 0.22;
} // namespace

IconTileLayout iconTileLayout(const QSize& size) {
  const QRectF whole(0, 0, size.width(), size.height());
  const double side = kIconShare * size.width();
  QRectF icon(0, 0, side, side);
  icon.moveCenter(whole.center());
  return {.body = paint::hairline(whole), .radius = kRadiusShare * size.width(), .icon = icon};
}

IconTile::IconTile(const QString& icon, const QColor& colour, int size, QWidget* parent)
    : QWidget(parent), m_icon(icon), m_colour(colour) {
  setFixedSize(size, size);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void IconTile::set(const QString& icon, const QColor& colour) {
  m_icon = icon;
  m_colour = colour;
  update();
}

void IconTile::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const IconTileLayout layout = iconTileLayout(size());
  const QColor fill = muted ? theme.hover : paint::withAlphaF(m_colour, theme.dark ? kFillDark : kFillLight);
  const QColor outline = muted ? theme.line : paint::withAlphaF(m_colour, kOutline);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, layout.body, layout.radius, fill, paint::pen(outline));
  icons::paint(&painter, layout.icon, m_icon, muted ? theme.text2 : m_colour);
}

} // namespace ui
