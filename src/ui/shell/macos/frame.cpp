// The system's buttons stay and the content reaches to the window's top edge, by the frameless window library where the
// program was built with it; without it the window has the system's own frame.
#include "ui/shell/frame.h"

#include <QWidget>

#ifdef TARNWICK_FRAMELESS
#  include <QWKWidgets/widgetwindowagent.h>
#endif

namespace ui::frame {

#ifdef TARNWICK_FRAMELESS

namespace {

constexpr QRect kSystemButtons(16, 14, 64, 14); // px, in the window

} // namespace

Kind kind() { return Kind::SystemButtons; }

void setUp(QWidget* window, Kind /*kind*/, QWidget* strip, QWidget* toggle) {
  auto* agent = new QWK::WidgetWindowAgent(window);
  agent->setup(window);
  if (strip) agent->setTitleBar(strip); // clears what is hit-test visible, so it comes first
  if (toggle) agent->setHitTestVisible(toggle, true);
  agent->setSystemButtonAreaCallback([](const QSize& /*size*/) { return kSystemButtons; });
}

#else

Kind kind() { return Kind::System; }

void setUp(QWidget* /*window*/, Kind /*kind*/, QWidget* /*strip*/, QWidget* /*toggle*/) {}

#endif

} // namespace ui::frame
