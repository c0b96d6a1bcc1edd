#include "ui/pages/LegendItem.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kLineSpacing = 3;
constexpr int kSpacing = 7;
constexpr int kSwatchSide = 8;
constexpr double kSwatchRadius = 2;
// A short label stays whole where there is little room; a longer one gives way.
constexpr int kShort = 96; // of the whole item
constexpr int kLeastOfLong = 60;

class Swatch : public QWidget {
 public:
  explicit Swatch(const QBrush& brush) : m_brush(brush) { setFixedSize(kSwatchSide, kSwatchSide); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    const Theme& theme = Theme::get();
    const bool empty = m_brush.style() == Qt::NoBrush;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paint::roundedRect(&painter, paint::hairline(rect()), kSwatchRadius, empty ? QBrush(theme.track) : m_brush,
                       empty ? paint::pen(theme.lineStrong) : QPen(Qt::NoPen));
  }

 private:
  QBrush m_brush;
};

} // namespace

LegendItem::LegendItem(const QString& label, const QString& amount, const QBrush& swatch, QWidget* parent)
    : QWidget(parent), m_shown(fmt::list({label, amount})) {
  QHBoxLayout* caption = hbox(kSpacing);
  caption->addWidget(new Swatch(swatch), 0, Qt::AlignVCenter);
  caption->addWidget(new ElidedLabel(label, "caption"), 1);
  QLabel* figure = ui::label(amount, "num");
  figure->setStyleSheet(u"font-size: 15px;"_s);
  QVBoxLayout* lines = vbox(kLineSpacing);
  lines->addLayout(caption);
  lines->addWidget(figure);
  setLayout(lines);
  const int whole = sizeHint().width();
  setMinimumWidth(whole <= kShort ? whole : std::max(kLeastOfLong, figure->sizeHint().width()));
}

} // namespace ui
