#include "ui/shell/NavButton.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/icons.h"
#include "ui/paint.h"

#include <QPainter>

namespace ui {
namespace {

// Lengths in pixels.
constexpr int kHeightMac = 34;
constexpr int kHeightWin = 38;
constexpr int kWidth = 200;
constexpr int kCompactWidth = 40;
constexpr double kRadius = 9;
constexpr double kMarkerWidth = 3;
constexpr double kMarkerInset = 10;
constexpr double kIcon = 16;
constexpr double kIconX = 12;
constexpr double kLabelX = 40;
constexpr double kLabelLess = 48; // of the width, beside what the badge reserves
constexpr int kLabelPx = 13;
constexpr int kBadgePx = 11;
constexpr int kInkWeight = 500;
constexpr double kBadgePadding = 14;
constexpr double kBadgeHeight = 20;
constexpr double kBadgeGap = 8; // right of the badge, and left of it
constexpr double kBadgeRadius = 6;
constexpr double kBadgeAlpha = 0.12;
constexpr double kDot = 7;
constexpr double kDotShift = 1; // of its centre from the icon's corner, both ways
constexpr double kDotRim = 1.5;

QFont badgeFont() { return Theme::get().mono(kBadgePx, kInkWeight); }
QFont labelFont() { return Theme::get().font(kLabelPx, kInkWeight); }

NavButtonLayout compactLayout(const QSize& size, bool withBadge) {
  NavButtonLayout layout;
  layout.icon = QRectF((size.width() - kIcon) / 2, (size.height() - kIcon) / 2, kIcon, kIcon);
  if (!withBadge) return layout;
  layout.badge = QRectF(0, 0, kDot, kDot);
  layout.badge.moveCenter(layout.icon.topRight() + QPointF(kDotShift, kDotShift));
  return layout;
}

NavButtonLayout leftToRight(const QSize& size, bool compact, int badgeTextWidth) {
  const bool withBadge = badgeTextWidth >= 0;
  NavButtonLayout layout = compact ? compactLayout(size, withBadge) : NavButtonLayout{};
  layout.marker = QRectF(0, kMarkerInset, kMarkerWidth, size.height() - 2 * kMarkerInset);
  if (compact) return layout;
  layout.icon = QRectF(kIconX, (size.height() - kIcon) / 2, kIcon, kIcon);
  double reserve = 0;
  if (withBadge) {
    const double width = badgeTextWidth + kBadgePadding;
    layout.badge = QRectF(size.width() - kBadgeGap - width, (size.height() - kBadgeHeight) / 2, width, kBadgeHeight);
    reserve = width + kBadgeGap;
  }
  layout.label = QRectF(kLabelX, 0, size.width() - kLabelLess - reserve, size.height());
  return layout;
}

} // namespace

NavButtonLayout navButtonLayout(const QSize& size, bool compact, int badgeTextWidth, Qt::LayoutDirection direction) {
  NavButtonLayout layout = leftToRight(size, compact, badgeTextWidth);
  const QRectF whole(0, 0, size.width(), size.height());
  for (QRectF* rect : {&layout.marker, &layout.icon, &layout.label, &layout.badge})
    *rect = paint::mirrored(*rect, whole, direction);
  return layout;
}

NavButton::NavButton(const QString& icon, const QString& text, QWidget* parent) : PaintedButton(parent), m_icon(icon) {
  setText(text);
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void NavButton::setBadge(const QString& badge) {
  m_badge = badge;
  setAccessibleName(badge.isEmpty() ? text() : fmt::list({text(), badge}));
  update();
}

void NavButton::setCompact(bool compact) {
  m_compact = compact;
  if (compact)
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  else
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  updateGeometry();
  update();
}

QSize NavButton::sizeHint() const {
  return {m_compact ? kCompactWidth : kWidth, Theme::get().mac ? kHeightMac : kHeightWin};
}

void NavButton::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const QColor ink = isChecked() || isHovered() ? theme.text : theme.text2;
  const int badgeWidth = m_badge.isEmpty() ? -1 : QFontMetrics(badgeFont()).horizontalAdvance(m_badge);
  const NavButtonLayout layout = navButtonLayout(size(), m_compact, badgeWidth, layoutDirection());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintBody(&painter, layout);
  icons::paint(&painter, layout.icon, m_icon, ink);
  if (!m_badge.isEmpty()) paintBadge(&painter, layout);
  if (!m_compact) {
    painter.setFont(labelFont());
    painter.setPen(ink);
    const QString shown = painter.fontMetrics().elidedText(text(), Qt::ElideRight, int(layout.label.width()));
    paint::text(&painter, layout.label, Qt::AlignLeft | Qt::AlignVCenter, shown);
  }
  paintFocus(&painter, kRadius);
}

void NavButton::paintBody(QPainter* painter, const NavButtonLayout& layout) const {
  const Theme& theme = Theme::get();
  if (isChecked()) {
    paint::roundedRect(painter, rect(), kRadius, theme.dark ? theme.cardHover : theme.surface);
    paint::roundedRect(painter, layout.marker, layout.marker.width() / 2, Theme::gradient(layout.marker));
  } else if (isHovered()) {
    paint::roundedRect(painter, rect(), kRadius, theme.hover);
  }
}

void NavButton::paintBadge(QPainter* painter, const NavButtonLayout& layout) const {
  const Theme& theme = Theme::get();
  if (m_compact) { // punched out of the background
    painter->setPen(paint::pen(theme.bg, kDotRim));
    painter->setBrush(theme.accent);
    painter->drawEllipse(layout.badge);
    return;
  }
  paint::roundedRect(painter, layout.badge, kBadgeRadius, paint::withAlphaF(theme.accent, kBadgeAlpha));
  painter->setFont(badgeFont());
  painter->setPen(theme.accent);
  paint::text(painter, layout.badge, Qt::AlignCenter, m_badge);
}

} // namespace ui
