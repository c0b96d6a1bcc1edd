#include "ui/shell/SidebarToggle.h"

#include "ui/Theme.h"
#include "ui/paint.h"

#include <QPainter>

namespace ui {
namespace {

// Lengths in pixels.
constexpr QSize kSizeMac(30, 26);
constexpr QSize kSizeWin(36, 36);
constexpr double kRadius = 10;
constexpr double kPanel = 13;
constexpr double kPanelRadius = 2.6;
constexpr double kDividerX = 5.2;
constexpr double kStroke = 1.2;

} // namespace

SidebarToggleLayout sidebarToggleLayout(const QSize& size, Qt::LayoutDirection direction) {
  SidebarToggleLayout layout;
  layout.panel = QRectF((size.width() - kPanel) / 2, (size.height() - kPanel) / 2, kPanel, kPanel);
  const bool mirrored = direction == Qt::RightToLeft; // as the sidebar itself
  const double x = mirrored ? layout.panel.right() - kDividerX : layout.panel.left() + kDividerX;
  layout.divider = QLineF(x, layout.panel.top(), x, layout.panel.bottom());
  return layout;
}

SidebarToggle::SidebarToggle(QWidget* parent) : PaintedButton(parent) {
  setFixedSize(SidebarToggle::sizeHint());
  setFocusPolicy(Qt::TabFocus);
}

QSize SidebarToggle::sizeHint() const { return Theme::get().mac ? kSizeMac : kSizeWin; }

void SidebarToggle::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const bool lit = isHovered() || isDown();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (lit) paint::roundedRect(&painter, rect(), kRadius, isDown() ? theme.press : theme.hover);
  const SidebarToggleLayout layout = sidebarToggleLayout(size(), layoutDirection());
  const QPen ink = paint::pen(lit && !theme.mac ? theme.text : theme.text2, kStroke);
  paint::roundedRect(&painter, layout.panel, kPanelRadius, Qt::NoBrush, ink);
  painter.setPen(ink);
  painter.drawLine(layout.divider);
  paintFocus(&painter, kRadius);
}

} // namespace ui
