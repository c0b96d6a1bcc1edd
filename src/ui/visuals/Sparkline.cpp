#include "ui/visuals/Sparkline.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/paint.h"
#include "ui/visuals/hues.h"

#include <QLinearGradient>
#include <QPainter>
#include <QStringList>

#include <algorithm>

namespace ui {

namespace {
// Lengths in pixels.
constexpr QSize kSize(92, 32);
constexpr double kSideRoom = 2;
constexpr double kEndRoom = 3; // at top and bottom
constexpr double kLineWidth = 2;

constexpr double kAreaAlpha = 0.35; // at the top; it fades out to the bottom

qint64 peakOf(const QList<qint64>& values) {
  return values.isEmpty() ? 1 : std::max<qint64>(1, *std::max_element(values.begin(), values.end()));
}

QLinearGradient areaBrush(const QRectF& chart) {
  QLinearGradient gradient(chart.topLeft(), chart.bottomLeft());
  gradient.setColorAt(0, paint::withAlphaF(hues::kIndigo, kAreaAlpha));
  gradient.setColorAt(1, paint::withAlphaF(hues::kIndigo, 0));
  return gradient;
}

QLinearGradient lineBrush(const QRectF& chart) {
  QLinearGradient gradient(chart.topLeft(), chart.topRight());
  gradient.setColorAt(0, hues::kCyan);
  gradient.setColorAt(1, hues::kViolet);
  return gradient;
}

} // namespace

SparklineLayout sparklineLayout(const QList<qint64>& values, const QSizeF& chart) {
  if (values.isEmpty()) return {};
  const double step = values.size() > 1 ? (chart.width() - 2 * kSideRoom) / double(values.size() - 1) : 0;
  const double baseline = chart.height() - kEndRoom;
  const double room = chart.height() - 2 * kEndRoom;
  const double peak = double(peakOf(values));
  SparklineLayout layout;
  for (qsizetype i = 0; i < values.size(); ++i)
    layout.line << QPointF(kSideRoom + double(i) * step, baseline - double(values[i]) * room / peak);
  layout.area = layout.line;
  layout.area << QPointF(layout.line.last().x(), chart.height()) << QPointF(kSideRoom, chart.height());
  return layout;
}

Sparkline::Sparkline(QWidget* parent) : QWidget(parent), m_format(fmt::count) {
  setFixedSize(kSize);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Sparkline::setValues(const QList<qint64>& values) {
  m_values = values;
  update();
  accessibleValueChanged(this);
}

void Sparkline::setValueFormat(QString (*format)(qint64)) {
  m_format = format;
  accessibleValueChanged(this);
}

QString Sparkline::valueText() const {
  QStringList told;
  for (const qint64 value : m_values) told << m_format(value);
  return fmt::list(told);
}

double Sparkline::valueFraction() const {
  if (m_values.isEmpty()) return 0;
  return std::max(0.0, double(m_values.last()) / double(peakOf(m_values)));
}

void Sparkline::paintEvent(QPaintEvent* /*event*/) {
  if (m_values.isEmpty()) return;
  const SparklineLayout layout = sparklineLayout(m_values, size());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(areaBrush(rect()));
  painter.drawPolygon(layout.area);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(paint::roundPen(lineBrush(rect()), kLineWidth));
  if (layout.line.size() == 1)
    painter.drawPoint(layout.line.first()); // a polyline of one point paints nothing
  else
    painter.drawPolyline(layout.line);
}

} // namespace ui
