#include "ui/controls/FooterBar.h"

#include "ui/Theme.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"

#include <QHBoxLayout>
#include <QPainter>

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kSpacing = 18;
constexpr QMargins kMarginsMac(48, 24, 40, 32);
constexpr QMargins kMarginsWin(52, 24, 44, 32);
constexpr double kBodySideMac = 28.5;
constexpr double kBodySideWin = 32.5;
constexpr double kBodyTop = 12.5;
constexpr double kBodyRoom = 33; // above and below together
constexpr double kRadius = 16;

constexpr int kShadowLayers = 10; // each as strong as the others
constexpr double kShadowOffset = 2;
constexpr QColor kShadowDark(0, 0, 0, 5);     // hue: black
constexpr QColor kShadowLight(15, 23, 42, 1); // hue: the light look's ink
constexpr double kFillAlpha = 0.94;

void paintShadow(QPainter* painter, const QRectF& body) {
  const QColor colour = Theme::get().dark ? kShadowDark : kShadowLight;
  for (int grow = 1; grow <= kShadowLayers; ++grow)
    paint::roundedRect(painter, body.adjusted(-grow, -grow, grow, grow).translated(0, kShadowOffset), kRadius + grow,
                       colour);
}

} // namespace

QRectF footerBody(const QSize& size, bool mac) {
  const double side = mac ? kBodySideMac : kBodySideWin;
  return {side, kBodyTop, size.width() - 2 * side, size.height() - kBodyRoom};
}

FooterBar::FooterBar(QWidget* parent)
    : QWidget(parent), m_row(hbox(kSpacing, Theme::get().mac ? kMarginsMac : kMarginsWin)) {
  setLayout(m_row);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void FooterBar::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const QRectF body = footerBody(size(), theme.mac);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintShadow(&painter, body);
  paint::roundedRect(&painter, body, kRadius, paint::withAlphaF(theme.surface2, kFillAlpha),
                     paint::pen(theme.dark ? theme.lineStrong : theme.line));
}

} // namespace ui
