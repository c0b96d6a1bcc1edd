#include "ui/visuals/StackBar.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/paint.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace ui {

namespace {
// Lengths in pixels.
constexpr double kHighFrom = 11; // bars from this height on have wide gaps and fixed corners
constexpr double kHighRadius = 8;
constexpr double kHighGap = 2;
constexpr double kLowGap = 1;
constexpr double kLeastWidth = 2;
constexpr double kStripeStep = 8;
constexpr double kStripeWidth = 4;
constexpr double kHatchedAlpha = 0.55;

constexpr double kOnePercent = 0.01;

void paintSegment(QPainter* painter, const QRectF& rect, const StackBar::Segment& segment, const QRectF& bar) {
  const QRectF seen = rect & bar; // what overflows may be very wide
  if (!segment.hatched) return painter->fillRect(seen, segment.colour);
  painter->fillRect(seen, paint::withAlphaF(segment.colour, kHatchedAlpha));
  painter->save();
  painter->setClipRect(seen, Qt::IntersectClip);
  painter->setPen(paint::pen(segment.colour, kStripeWidth));
  painter->drawLines(stackBarHatching(seen));
  painter->restore();
}

QString share(qint64 bytes, qint64 scale) {
  const double share = double(bytes) / double(scale);
  return share < kOnePercent / 2 ? u'<' + fmt::percent(kOnePercent) : fmt::percent(share);
}

QString named(const QString& what, const QString& share) {
  //: Said by a screen reader; %1: what takes space; %2: its share, such as “62%”
  return QCoreApplication::translate("StackBar", "%1: %2").arg(what, share);
}

} // namespace

double stackBarRadius(double height) { return height >= kHighFrom ? kHighRadius : height / 2; }

QList<QRectF> stackBarLayout(const QList<qint64>& sizes, qint64 scale, const QSizeF& bar) {
  const double gap = bar.height() >= kHighFrom ? kHighGap : kLowGap;
  QList<QRectF> segments;
  segments.reserve(sizes.size());
  double left = 0;
  for (const qint64 size : sizes) {
    const double exact = double(size) * bar.width() / double(scale);
    const double width = std::max(exact, size > 0 ? kLeastWidth : 0);
    segments << QRectF(left, 0, width, bar.height());
    if (width > 0) left += width + gap;
  }
  return segments;
}

QList<QLineF> stackBarHatching(const QRectF& segment) {
  QList<QLineF> lines;
  const double height = segment.height();
  const int count = int(std::ceil((segment.width() + 2 * height) / kStripeStep));
  for (int i = 0; i < count; ++i) {
    const double foot = segment.left() - height + i * kStripeStep;
    lines << QLineF(foot, segment.bottom(), foot + height, segment.top());
  }
  return lines;
}

StackBar::StackBar(int height, QWidget* parent) : QWidget(parent) {
  setFixedHeight(height);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void StackBar::setSegments(const QList<Segment>& segments, qint64 scale) {
  m_segments = segments;
  m_scale = std::max<qint64>(1, scale);
  update();
  accessibleValueChanged(this);
}

QList<QRectF> StackBar::layoutSegments() const {
  QList<qint64> sizes;
  for (const Segment& segment : m_segments) sizes << segment.bytes;
  QList<QRectF> rects = stackBarLayout(sizes, m_scale, size());
  for (QRectF& one : rects) one = paint::mirrored(one, rect(), layoutDirection());
  return rects;
}

QString StackBar::valueText() const {
  QStringList shares;
  for (const Segment& segment : m_segments) {
    if (segment.bytes <= 0) continue;
    const QString told = share(segment.bytes, m_scale);
    shares << (segment.tip.isEmpty() ? told : named(segment.tip, told));
  }
  return fmt::list(shares);
}

double StackBar::valueFraction() const {
  double sum = 0;
  for (const Segment& segment : m_segments) sum += double(std::max<qint64>(0, segment.bytes));
  return std::min(1.0, sum / double(m_scale));
}

void StackBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double radius = stackBarRadius(height());
  QPainterPath outline;
  outline.addRoundedRect(rect(), radius, radius);
  painter.setClipPath(outline);
  painter.fillRect(rect(), Theme::get().track);
  const QList<QRectF> rects = layoutSegments();
  for (qsizetype i = 0; i < m_segments.size(); ++i)
    if (m_segments[i].bytes > 0) paintSegment(&painter, rects[i], m_segments[i], rect());
}

bool StackBar::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  QToolTip::showText(help->globalPos(), tipAt(help->pos()), this); // an empty text hides
  return true;
}

QString StackBar::tipAt(const QPointF& point) const {
  const QList<QRectF> rects = layoutSegments();
  for (qsizetype i = 0; i < m_segments.size(); ++i)
    if (rects[i].contains(point) && !m_segments[i].tip.isEmpty()) return m_segments[i].tip;
  return {};
}

} // namespace ui
