#include "ui/controls/Button.h"

#include "ui/Theme.h"
#include "ui/icons.h"
#include "ui/paint.h"

#include <QEvent>
#include <QGraphicsDropShadowEffect>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr char kKind[] = "kind";
constexpr QLatin1StringView kPrimary("primary");
constexpr QLatin1StringView kDanger("danger");
constexpr QLatin1StringView kGhost("ghost");
constexpr QLatin1StringView kLink("link");
constexpr QLatin1StringView kLarge("lg");

// Lengths in pixels.
constexpr int kIconSize = 16;
constexpr double kIconRatios[] = {1, 1.5, 2}; // of device pixels, as icons come
constexpr int kIconStep = 24;                 // from the icon's left edge to the text
constexpr int kSideRoom = 32;                 // both sides together
constexpr int kSideRoomLarge = 44;
constexpr int kHeight = 30;
constexpr int kLargeExtra = 8;
constexpr int kWinExtra = 4;
constexpr double kRadius = 10;
constexpr double kRadiusLarge = 12;
constexpr int kTextSlack = 2;
constexpr int kFontPx = 13;
constexpr int kFontPxLarge = 14;
constexpr int kFontWeight = 600;

struct Glow {
  double blur;
  double offsetY;
};
constexpr Glow kGlow = {20, 5};
constexpr Glow kGlowLarge = {26, 7};
constexpr QColor kGlowColour(99, 102, 241); // hue: the middle of the brand gradient
constexpr int kGlowAlphaDark = 130;
constexpr int kGlowAlphaLight = 60;

constexpr int kHighlightAlpha = 60;
// Percentages of QColor::lighter.
constexpr int kPrimaryHovered = 108;
constexpr int kPrimaryPressed = 95;
constexpr int kDangerHovered = 110;

} // namespace

ButtonLayout buttonLayout(const QSize& size, int textWidth, bool withIcon, bool large, Qt::LayoutDirection direction) {
  ButtonLayout layout;
  layout.body = paint::hairline(QRectF(QPointF(), QSizeF(size)));
  layout.radius = large ? kRadiusLarge : kRadius;
  const QRectF& body = layout.body;
  const int before = withIcon ? kIconStep : 0;
  const double left = body.center().x() - (textWidth + before) / 2.0;
  if (withIcon) layout.icon = QRectF(left, body.center().y() - kIconSize / 2.0, kIconSize, kIconSize);
  layout.text = QRectF(left + before, body.top(), textWidth + kTextSlack, body.height());
  for (QRectF* rect : {&layout.icon, &layout.text}) *rect = paint::mirrored(*rect, body, direction);
  return layout;
}

Button::Button(const QString& text, const char* kind, const QString& iconName, const char* size, QWidget* parent)
    : QPushButton(text, parent), m_iconName(iconName), m_sizeName(QString::fromLatin1(size)) {
  if (kind) setProperty(kKind, QString::fromLatin1(kind));
  setIconSize({kIconSize, kIconSize});
  setAttribute(Qt::WA_Hover);
  connect(&Theme::get(), &Theme::changed, this, &Button::refreshIcon);
  connect(&Theme::get(), &Theme::changed, this, &Button::refreshGlow);
  refreshIcon();
  refreshGlow();
}

void Button::setIconName(const QString& iconName) {
  m_iconName = iconName;
  refreshIcon();
}

void Button::setKind(const char* kind) {
  setProperty(kKind, QString::fromLatin1(kind));
  style()->unpolish(this);
  style()->polish(this);
  holdHeight();
  refreshIcon();
  refreshGlow();
}

void Button::setOwnHeight(int height) {
  m_ownHeight = height;
  holdHeight();
  updateGeometry();
}

void Button::setSizeName(const QString& name) {
  m_sizeName = name;
  style()->unpolish(this);
  style()->polish(this);
  holdHeight();
  refreshGlow();
  updateGeometry();
}

bool Button::isPrimary() const { return property(kKind).toString() == kPrimary; }
bool Button::isFilled() const { return isPrimary() || property(kKind).toString() == kDanger; }
bool Button::isLarge() const { return m_sizeName == kLarge; }
bool Button::isHovered() const { return underMouse() && !isDown(); }

QFont Button::filledFont() const { return Theme::get().font(isLarge() ? kFontPxLarge : kFontPx, kFontWeight); }

QColor Button::iconColour() const {
  const Theme& theme = Theme::get();
  const QString kind = property(kKind).toString();
  if (isFilled()) return Qt::white;
  if (kind == kGhost) return theme.text2;
  return kind == kLink ? theme.accent : theme.text;
}

// Disabled, the icon takes the colour of the disabled text: what Qt makes of the idle one is brighter than that.
void Button::refreshIcon() {
  if (m_iconName.isEmpty()) {
    setIcon({});
    return;
  }
  QIcon icon = icons::icon(m_iconName, iconColour(), kIconSize);
  const QIcon disabled = icons::icon(m_iconName, Theme::get().text3, kIconSize);
  for (const double ratio : kIconRatios)
    icon.addPixmap(disabled.pixmap(QSize(kIconSize, kIconSize), ratio), QIcon::Disabled);
  setIcon(icon);
}

// Only while it glows does the button pay for its effect; once made, the effect stays.
void Button::refreshGlow() {
  auto* effect = qobject_cast<QGraphicsDropShadowEffect*>(graphicsEffect());
  if (!isPrimary() || !isEnabled()) {
    if (effect) effect->setEnabled(false);
    return;
  }
  if (!effect) {
    effect = new QGraphicsDropShadowEffect(this);
    setGraphicsEffect(effect);
  }
  const Glow& glow = isLarge() ? kGlowLarge : kGlow;
  effect->setBlurRadius(glow.blur);
  effect->setOffset(0, glow.offsetY);
  effect->setColor(paint::withAlpha(kGlowColour, Theme::get().dark ? kGlowAlphaDark : kGlowAlphaLight));
  effect->setEnabled(true);
}

bool Button::event(QEvent* event) {
  switch (event->type()) {
  case QEvent::EnabledChange:
    refreshGlow();
    break;
  case QEvent::Polish:
  case QEvent::StyleChange: {
    const bool taken = QPushButton::event(event);
    holdHeight();
    return taken;
  }
  default:
    break;
  }
  return QPushButton::event(event);
}

int Button::ownHeight() const {
  if (m_ownHeight > 0) return m_ownHeight;
  if (property(kKind).toString() == kLink && !isLarge()) return 0;
  return kHeight + (isLarge() ? kLargeExtra : 0) + (Theme::get().mac ? 0 : kWinExtra);
}

// The style sheet's heights are those of the content, to which it adds its borders: by them alone the button would be
// two pixels too high.
void Button::holdHeight() {
  if (const int height = ownHeight()) setFixedHeight(height);
}

QSize Button::sizeHint() const {
  if (!isFilled()) {
    const QSize dressed = QPushButton::sizeHint();
    return {dressed.width(), ownHeight() > 0 ? ownHeight() : dressed.height()};
  }
  const int textWidth = QFontMetrics(filledFont()).horizontalAdvance(text());
  return {textWidth + (isLarge() ? kSideRoomLarge : kSideRoom) + (m_iconName.isEmpty() ? 0 : kIconStep), ownHeight()};
}

void Button::paintEvent(QPaintEvent* event) {
  if (!isFilled()) {
    QPushButton::paintEvent(event);
    return;
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(filledFont());
  const int textWidth = QFontMetrics(filledFont()).horizontalAdvance(text());
  const ButtonLayout layout =
      buttonLayout(QWidget::size(), textWidth, !m_iconName.isEmpty(), isLarge(), layoutDirection());
  paintBody(&painter, layout);
  paintContent(&painter, layout);
}

// The ring that shows the keyboard's focus is drawn around the button; the style's own frame would show any focus.
void Button::initStyleOption(QStyleOptionButton* option) const {
  QPushButton::initStyleOption(option);
  option->state &= ~QStyle::State_HasFocus;
}

void Button::paintBody(QPainter* painter, const ButtonLayout& layout) const {
  const Theme& theme = Theme::get();
  if (!isEnabled()) {
    paint::roundedRect(painter, layout.body, layout.radius, theme.hover, paint::pen(theme.line));
  } else if (isPrimary()) {
    paint::roundedRect(painter, layout.body, layout.radius, primaryBrush(layout.body));
    paintHighlight(painter, layout);
  } else {
    paint::roundedRect(painter, layout.body, layout.radius,
                       isHovered() ? theme.bad.lighter(kDangerHovered) : theme.bad);
  }
}

QBrush Button::primaryBrush(const QRectF& body) const {
  QLinearGradient gradient = Theme::gradient(body);
  if (!isDown() && !underMouse()) return gradient;
  QGradientStops stops = gradient.stops();
  for (QGradientStop& stop : stops) stop.second = stop.second.lighter(isDown() ? kPrimaryPressed : kPrimaryHovered);
  gradient.setStops(stops);
  return gradient;
}

// A light edge on the upper side, as if lit from above.
void Button::paintHighlight(QPainter* painter, const ButtonLayout& layout) const {
  painter->save();
  painter->setClipRect(QRectF(layout.body.topLeft(), QSizeF(layout.body.width(), layout.radius)));
  paint::roundedRect(painter, paint::hairline(layout.body), layout.radius - 0.5, Qt::NoBrush,
                     paint::pen(paint::withAlpha(Qt::white, kHighlightAlpha)));
  painter->restore();
}

void Button::paintContent(QPainter* painter, const ButtonLayout& layout) const {
  const QColor ink = isEnabled() ? QColor(Qt::white) : Theme::get().text3;
  if (!layout.icon.isNull()) icons::paint(painter, layout.icon, m_iconName, ink);
  painter->setPen(ink);
  paint::text(painter, layout.text, Qt::AlignLeft | Qt::AlignVCenter, text());
}

} // namespace ui
