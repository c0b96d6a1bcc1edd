#include "ui/visuals/DiskOrb.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/factory.h"
#include "ui/eyebrow.h"
#include "ui/visuals/dial.h"
#include "ui/visuals/hues.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRadialGradient>

namespace ui {

namespace {
// Lengths in pixels.
constexpr QSize kSize(280, 280);
constexpr double kStroke = 12;
constexpr double kArcGlowWidths[] = {22, 18, 14};
constexpr double kNearGlow = 10; // beyond the core
constexpr double kPillRadius = 14;
constexpr double kFocusGap = 3; // from the core to the middle of the ring
constexpr double kFocusStroke = 2;
constexpr int kNumberPx = 38;
constexpr int kUnitPx = 15;
constexpr int kCaptionPx = 10;
constexpr int kPillPx = 13;
constexpr int kBold = 600;
constexpr int kRegular = 400;

/// An alpha of 255 that depends on the pointer.
struct Light {
  int rest;
  int hovered;
  [[nodiscard]] constexpr int at(bool isHovered) const { return isHovered ? hovered : rest; }
};
constexpr int kArcGlowAlpha = 18;
constexpr Light kNearGlowAlpha{13, 22};
constexpr Light kPillGlowAlpha{14, 22};
// The halo: circles that shrink by a step; one step beyond the outermost nothing would be left of it.
constexpr int kHaloReach = 26;
constexpr int kHaloStep = 2;
constexpr double kHaloEnd = 28;
constexpr Light kHaloPeak{6, 9};

/// A round light over the core, of which the core shows a part.
struct CoreLight {
  double below; ///< its centre: this share of the core's height below the core's top
  QColor colour;
  int darkAlpha; ///< at its centre
  int lightAlpha;
};
constexpr double kCoreLightShare = 0.6; // its radius, of the core's width
constexpr CoreLight kSheen{0.3, hues::kSheen, 26, 160};
constexpr CoreLight kBottomGlow{1.2, hues::kIndigo, 115, 55};

QBrush usedBrush(const QRectF& ring) {
  QLinearGradient gradient(ring.topLeft(), ring.bottomRight());
  gradient.setColorAt(0, hues::kIndigo);
  gradient.setColorAt(1, hues::kViolet);
  return gradient;
}

void paintTrack(QPainter* painter, const orb::Layout& layout) {
  const Theme& theme = Theme::get();
  painter->setBrush(Qt::NoBrush);
  painter->setPen(paint::pen(theme.track, kStroke));
  painter->drawEllipse(layout.ring);
  painter->setPen(paint::pen(theme.lineStrong));
  painter->drawLines(layout.ticks);
}

void paintArc(QPainter* painter, const QRectF& ring, const paint::ArcAngles& angles, const QBrush& brush,
              const QColor& glow) {
  for (const double width : kArcGlowWidths) {
    painter->setPen(paint::roundPen(paint::withAlpha(glow, kArcGlowAlpha), width));
    painter->drawArc(ring, angles.start, angles.span);
  }
  painter->setPen(paint::roundPen(brush, kStroke));
  painter->drawArc(ring, angles.start, angles.span);
}

void paintCoreLight(QPainter* painter, const QRectF& core, const CoreLight& light) {
  const QPointF centre(core.center().x(), core.top() + light.below * core.height());
  QRadialGradient gradient(centre, kCoreLightShare * core.width());
  gradient.setColorAt(0, paint::withAlpha(light.colour, Theme::get().dark ? light.darkAlpha : light.lightAlpha));
  gradient.setColorAt(1, paint::withAlpha(light.colour, 0));
  painter->setBrush(gradient);
  painter->drawEllipse(core);
}

void paintCore(QPainter* painter, const QRectF& core) {
  const Theme& theme = Theme::get();
  painter->setPen(Qt::NoPen);
  painter->setBrush(theme.core);
  painter->drawEllipse(core);
  paintCoreLight(painter, core, kSheen);
  paintCoreLight(painter, core, kBottomGlow);
  painter->setPen(paint::pen(theme.lineStrong));
  painter->setBrush(Qt::NoBrush);
  painter->drawEllipse(paint::hairline(core));
}
/// In the full accent, as the soft ring of other controls is lost in the halo.
void paintFocus(QPainter* painter, const QRectF& core) {
  painter->setPen(paint::pen(Theme::get().accent, kFocusStroke));
  painter->setBrush(Qt::NoBrush);
  painter->drawEllipse(core.adjusted(-kFocusGap, -kFocusGap, kFocusGap, kFocusGap));
}
} // namespace

DiskOrb::DiskOrb(QWidget* parent) : QWidget(parent), m_focus(new KeyboardFocus(this)) {
  setFixedSize(kSize);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void DiskOrb::setDisk(qint64 total, qint64 used, qint64 cleanable) {
  m_disk = orb::disk(total, used, cleanable);
  update();
  accessibleValueChanged(this);
}

void DiskOrb::setCenter(const QString& value, const QString& caption, const QString& action) {
  m_value = value;
  m_caption = caption;
  m_action = action;
  update();
  accessibleValueChanged(this);
  QAccessibleEvent renamed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&renamed);
}

QRectF DiskOrb::coreRect() const { return orb::layout(size()).core; }

QString DiskOrb::buttonText() const { return m_action.isEmpty() ? dial::spoken(m_value, m_caption) : m_action; }

QString DiskOrb::valueText() const {
  QStringList parts{dial::spoken(m_value, m_caption)};
  if (m_disk.used > 0)
    //: Said by a screen reader; %1: how much of the disk, such as “62%”
    parts << QCoreApplication::translate("DiskOrb", "%1 used").arg(fmt::percent(valueFraction()));
  if (m_disk.cleanable > 0)
    //: Said by a screen reader; %1: a size
    parts << QCoreApplication::translate("DiskOrb", "%1 can be cleaned").arg(fmt::bytes(m_disk.cleanable));
  parts.removeAll(QString());
  return fmt::list(parts);
}

double DiskOrb::valueFraction() const { return double(m_disk.used) / double(m_disk.total); }

bool DiskOrb::isOnCore(const QPointF& point) const { return orb::isOnCore(orb::layout(size()), point); }

/// Taken, so that a page which is dragged by its empty areas doesn't move with its button.
void DiskOrb::mousePressEvent(QMouseEvent* event) { event->setAccepted(isOnCore(event->position())); }

void DiskOrb::mouseMoveEvent(QMouseEvent* event) {
  const bool hovered = isOnCore(event->position());
  if (hovered == m_hovered) return;
  m_hovered = hovered;
  update();
}

/// Where the press was doesn't matter.
void DiskOrb::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && isOnCore(event->position())) emit clicked();
}

void DiskOrb::leaveEvent(QEvent* /*event*/) {
  m_hovered = false;
  update();
}

void DiskOrb::keyPressEvent(QKeyEvent* event) {
  if (!pressFrom(this, event)) QWidget::keyPressEvent(event);
}

void DiskOrb::paintEvent(QPaintEvent* /*event*/) {
  const orb::Layout layout = orb::layout(size());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintTrack(&painter, layout);
  paintRing(&painter, layout);
  paintHalo(&painter, layout);
  paintCore(&painter, layout.core);
  paintText(&painter, layout.core);
  if (m_focus->isVisible()) paintFocus(&painter, layout.core);
}

void DiskOrb::paintRing(QPainter* painter, const orb::Layout& layout) const {
  const auto [fixed, clean, nearlyFull] = orb::shares(m_disk);
  const QColor bad = Theme::get().bad;
  if (const auto angles = orb::arc(0, fixed))
    paintArc(painter, layout.ring, *angles, nearlyFull ? QBrush(bad) : usedBrush(layout.ring),
             nearlyFull ? bad : hues::kIndigo);
  if (const auto angles = orb::arc(fixed, clean)) paintArc(painter, layout.ring, *angles, hues::kCyan, hues::kCyan);
}

void DiskOrb::paintHalo(QPainter* painter, const orb::Layout& layout) const {
  const auto fillGrownBy = [&](double growth, int alpha) {
    painter->setBrush(paint::withAlpha(hues::kIndigo, alpha));
    painter->drawEllipse(layout.core.adjusted(-growth, -growth, growth, growth));
  };
  painter->setPen(Qt::NoPen);
  for (int reach = kHaloReach; reach > 0; reach -= kHaloStep) {
    const int alpha = int((1 - reach / kHaloEnd) * kHaloPeak.at(m_hovered) + 1);
    fillGrownBy(reach, alpha);
  }
  fillGrownBy(kNearGlow, kNearGlowAlpha.at(m_hovered));
}

void DiskOrb::paintText(QPainter* painter, const QRectF& core) const {
  const Theme& theme = Theme::get();
  const orb::Value value = orb::value(m_value);
  const QFont numberFont = theme.mono(kNumberPx, kBold);
  const QFont unitFont = theme.font(kUnitPx, kRegular);
  const QFont pillFont = theme.font(kPillPx, kBold);
  const auto width = [](const QFont& font, const QString& text) { return QFontMetricsF(font).horizontalAdvance(text); };
  const orb::TextLayout places = orb::textLayout(core, {.number = width(numberFont, value.number),
                                                        .unit = width(unitFont, value.unit),
                                                        .action = width(pillFont, m_action)});
  painter->setFont(numberFont);
  painter->setPen(theme.text);
  paint::text(painter, places.number, value.number);
  painter->setFont(unitFont);
  painter->setPen(theme.text2);
  paint::text(painter, places.unit, value.unit);
  painter->setFont(theme.eyebrow(kCaptionPx));
  painter->setPen(theme.text3);
  paint::text(painter, places.caption, Qt::AlignHCenter | Qt::AlignTop, eyebrowText(m_caption));
  painter->setFont(pillFont);
  if (!m_action.isEmpty()) paintPill(painter, places.pill);
}

void DiskOrb::paintPill(QPainter* painter, const QRectF& pill) const {
  for (const auto& [rect, radius] : orb::pillGlow(pill))
    paint::roundedRect(painter, rect, radius, paint::withAlpha(hues::kIndigo, kPillGlowAlpha.at(m_hovered)));
  paint::roundedRect(painter, pill, kPillRadius, Theme::gradient(pill));
  painter->setPen(Qt::white);
  paint::text(painter, pill, Qt::AlignCenter, m_action);
}

} // namespace ui
