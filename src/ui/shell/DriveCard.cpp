#include "ui/shell/DriveCard.h"

#include "app/AppState.h"
#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/paint.h"
#include "ui/shell/words.h"

#include <QPainter>

namespace ui {
namespace {

// Lengths in pixels.
constexpr int kHeight = 64;
constexpr int kCompactHeight = 44;
constexpr double kRadius = 12;
constexpr double kRing = 36;
constexpr double kStroke = 4;
constexpr double kRingX = 12;
constexpr double kCompactRing = 26;
constexpr double kCompactStroke = 3;
constexpr double kTextGap = 12;
constexpr double kTextRight = 10;
constexpr double kLine = 18;
constexpr double kFirstLine = -1; // from the ring's top
constexpr double kSecondLine = 18;
constexpr int kNamePx = 12;
constexpr int kNameWeight = 600;
constexpr int kFreePx = 11;
constexpr int kFreeWeight = 400;
// Of the disk.
constexpr double kWarnAbove = 0.85;
constexpr double kBadAbove = 0.9;

} // namespace

DriveCardLayout driveCardLayout(const QSize& size, bool compact, Qt::LayoutDirection direction) {
  const double ring = compact ? kCompactRing : kRing;
  DriveCardLayout layout;
  layout.stroke = compact ? kCompactStroke : kStroke;
  const QRectF box(compact ? (size.width() - ring) / 2 : kRingX, (size.height() - ring) / 2, ring, ring);
  const double inset = 0.5 + layout.stroke / 2;
  layout.circle = box.adjusted(inset, inset, -inset, -inset);
  if (compact) return layout;
  layout.body = paint::hairline(QRectF(QPointF(), size));
  const double x = box.right() + kTextGap;
  layout.name = QRectF(x, box.top() + kFirstLine, size.width() - x - kTextRight, kLine);
  layout.free = QRectF(x, box.top() + kSecondLine, size.width() - x - kTextRight, kLine);
  const QRectF whole(0, 0, size.width(), size.height());
  for (QRectF* rect : {&layout.circle, &layout.name, &layout.free}) *rect = paint::mirrored(*rect, whole, direction);
  return layout;
}

QBrush driveRingBrush(double used, const QRectF& circle) {
  const Theme& theme = Theme::get();
  if (used > kBadAbove) return theme.bad;
  if (used > kWarnAbove) return theme.warn;
  return Theme::gradient(circle);
}

DriveCard::DriveCard(AppState* state, QWidget* parent) : QWidget(parent), m_state(state) {
  setCompact(false);
  connect(state, &AppState::volumeChanged, this, &DriveCard::refresh);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
  refresh();
}

void DriveCard::setCompact(bool compact) {
  m_compact = compact;
  setFixedHeight(compact ? kCompactHeight : kHeight);
  update();
}

QString DriveCard::valueText() const {
  const platform::Volume& volume = m_state->volume;
  //: Sizes of the free space and of the disk
  return SidebarWords::tr("%1 available of %2").arg(fmt::bytes(volume.availableBytes), fmt::bytes(volume.totalBytes));
}

double DriveCard::valueFraction() const {
  const platform::Volume& volume = m_state->volume;
  if (volume.totalBytes < 1) return 0;
  return double(volume.totalBytes - volume.availableBytes) / double(volume.totalBytes);
}

void DriveCard::refresh() {
  setAccessibleName(m_state->volume.name);
  setToolTip(valueText());
  update();
  accessibleValueChanged(this);
}

void DriveCard::paintEvent(QPaintEvent* /*event*/) {
  setToolTip(valueText()); // pages and tests may put other figures in place
  const Theme& theme = Theme::get();
  const DriveCardLayout layout = driveCardLayout(size(), m_compact, layoutDirection());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!m_compact) paint::roundedRect(&painter, layout.body, kRadius, theme.card, paint::pen(theme.line));
  paintRing(&painter, layout);
  if (!m_compact) paintTexts(&painter, layout);
}

void DriveCard::paintRing(QPainter* painter, const DriveCardLayout& layout) const {
  painter->setBrush(Qt::NoBrush);
  painter->setPen(paint::pen(Theme::get().track, layout.stroke));
  painter->drawEllipse(layout.circle);
  const double used = valueFraction();
  if (used <= 0) return;
  painter->setPen(paint::roundPen(driveRingBrush(used, layout.circle), layout.stroke));
  const paint::ArcAngles arc = paint::arcInTurns(0, used);
  painter->drawArc(layout.circle, arc.start, arc.span);
}

void DriveCard::paintTexts(QPainter* painter, const DriveCardLayout& layout) const {
  const Theme& theme = Theme::get();
  const auto line = [painter](const QRectF& box, const QFont& font, const QColor& ink, const QString& text) {
    painter->setFont(font);
    painter->setPen(ink);
    const QString shown = painter->fontMetrics().elidedText(text, Qt::ElideRight, int(box.width()));
    paint::text(painter, box, Qt::AlignLeft | Qt::AlignVCenter, shown);
  };
  const platform::Volume& volume = m_state->volume;
  line(layout.name, theme.font(kNamePx, kNameWeight), theme.text, volume.name);
  line(layout.free, theme.mono(kFreePx, kFreeWeight), theme.text3,
       //: %1: the size of the free space
       SidebarWords::tr("%1 free").arg(fmt::bytes(volume.availableBytes)));
}

} // namespace ui
