#include "ui/controls/Headline.h"

#include "ui/Theme.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr int kFontWeight = 600;
// Lengths in pixels.
constexpr int kWidestHint = 518;
constexpr int kSpareWidth = 2;
constexpr int kLeastWidth = 120;
constexpr int kLeastLayoutWidth = 80;

/// The brand gradient from corner to corner of whatever it fills.
QBrush shine() {
  QLinearGradient gradient(0, 0, 1, 1);
  gradient.setCoordinateMode(QGradient::ObjectMode);
  gradient.setStops(Theme::gradient({}).stops());
  return gradient;
}

} // namespace

Headline::Headline(int pixelSize, QWidget* parent)
    : QWidget(parent), m_font(Theme::get().font(pixelSize, kFontWeight, true)) {
  QSizePolicy policy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  setMinimumWidth(kLeastWidth); // by its policy alone, a layout would give it room for its hint and never wrap it
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Headline::set(const QString& format, const QString& value) {
  const auto place = int(format.indexOf("%1"_L1));
  m_text = format;
  if (place >= 0) m_text.replace(place, 2, value);
  m_accentStart = std::max(place, 0);
  m_accentLength = place >= 0 ? int(value.size()) : 0;
  updateGeometry();
  update();
  accessibleTextChanged(this);
}

double Headline::layOut(QTextLayout* layout, double width) const {
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
  layout->setTextOption(option);
  double height = 0;
  layout->beginLayout();
  for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, height});
    height += line.height();
  }
  layout->endLayout();
  return height;
}

int Headline::heightForWidth(int width) const {
  QTextLayout layout(m_text, m_font);
  return int(std::ceil(layOut(&layout, std::max(width, kLeastLayoutWidth))));
}

QSize Headline::sizeHint() const {
  const int width = std::min(QFontMetrics(m_font).horizontalAdvance(m_text), kWidestHint) + kSpareWidth;
  return {width, heightForWidth(width)};
}

QSize Headline::minimumSizeHint() const { return {kLeastWidth, QFontMetrics(m_font).lineSpacing()}; }

void Headline::paintEvent(QPaintEvent* /*event*/) {
  QTextLayout layout(m_text, m_font);
  if (m_accentLength > 0) {
    QTextCharFormat format;
    format.setForeground(shine());
    // A format of the layout rather than a selection of draw(), whose gradient would run over the whole line.
    layout.setFormats({QTextLayout::FormatRange{m_accentStart, m_accentLength, format}});
  }
  layOut(&layout, width());
  QPainter painter(this);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setPen(Theme::get().text);
  layout.draw(&painter, {});
}

} // namespace ui
