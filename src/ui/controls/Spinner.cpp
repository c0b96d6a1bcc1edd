#include "ui/controls/Spinner.h"

#include "ui/Theme.h"
#include "ui/controls/Ticker.h"
#include "ui/paint.h"

#include <QPainter>

namespace ui {

namespace {
constexpr int kStep = 8; // degrees a beat
constexpr int kFullTurn = 360;
constexpr int kQuarter = 90;
constexpr int kArcUnits = 16; // QPainter's angles are sixteenths of a degree
constexpr double kInset = 1.5;
constexpr double kStroke = 2;
} // namespace

Spinner::Spinner(int size, QWidget* parent) : QWidget(parent), m_ticker(new Ticker(this, [this] { turn(); })) {
  setFixedSize(size, size);
  m_ticker->setRunning(true);
}

bool Spinner::isTurning() const { return m_ticker->isBeating(); }

void Spinner::turn() {
  m_angle = (m_angle + kStep) % kFullTurn;
  update();
}

void Spinner::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const QRectF circle = QRectF(rect()).adjusted(kInset, kInset, -kInset, -kInset);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(paint::pen(theme.lineStrong, kStroke));
  painter.drawEllipse(circle);
  painter.setPen(paint::roundPen(theme.accent, kStroke));
  painter.drawArc(circle, -m_angle * kArcUnits, kQuarter * kArcUnits);
}

} // namespace ui
