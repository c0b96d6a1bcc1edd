#include "ui/visuals/StepBar.h"

#include "ui/Theme.h"
#include "ui/compat.h"
#include "ui/controls/Ticker.h"
#include "ui/paint.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace ui {

namespace {
constexpr int kHeight = 4;
constexpr double kRadius = 2;
constexpr double kBandShare = 0.35; // of the bar's width
constexpr double kPhaseStep = 0.012;
constexpr double kWholeSweep = 1;
constexpr double kStillPhase = 0.5; // where the band is seen whole
} // namespace

QRectF stepBand(const QSize& size, double phase) {
  const double band = kBandShare * size.width();
  return {(size.width() + band) * phase - band, 0, band, double(size.height())};
}

double stepAdvanced(double phase) { return std::fmod(phase + kPhaseStep, kWholeSweep); }

StepBar::StepBar(QWidget* parent) : QWidget(parent), m_ticker(new Ticker(this, [this] { advance(); })) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setFixedHeight(kHeight);
  const auto repaint = [this] { update(); };
  connect(&Theme::get(), &Theme::changed, this, repaint);
  compat::watchReducedMotion(this, repaint);
}

void StepBar::setState(State state) {
  if (state == m_state) return;
  m_state = state;
  m_ticker->setRunning(state == Running);
  update();
  accessibleValueChanged(this);
}

bool StepBar::isSweeping() const { return m_ticker->isBeating(); }

QString StepBar::valueText() const {
  switch (m_state) {
  case Pending:
    //: State of a step of the scan, said by a screen reader
    return QCoreApplication::translate("StepBar", "Waiting");
  case Running:
    return QCoreApplication::translate("StepBar", "In progress");
  case Done:
    //: State of a step of the scan, said by a screen reader
    return QCoreApplication::translate("StepBar", "Done");
  }
  return {};
}

double StepBar::valueFraction() const {
  if (m_state == Running) return -1;
  return m_state == Done ? 1 : 0;
}

void StepBar::advance() {
  m_phase = stepAdvanced(m_phase);
  update();
}

void StepBar::paintEvent(QPaintEvent* /*event*/) {
  QPainterPath track;
  track.addRoundedRect(rect(), kRadius, kRadius);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(track, Theme::get().track);
  if (m_state == Pending) return;
  const bool still = compat::reducedMotion();
  const QRectF band = paint::mirrored(stepBand(size(), still ? kStillPhase : m_phase), rect(), layoutDirection());
  const QRectF filled = m_state == Done ? QRectF(rect()) : band;
  painter.setClipPath(track);
  painter.fillRect(filled, Theme::gradient(filled));
}

} // namespace ui
