#include "ui/shell/frame.h"

#include "ui/desktop.h"
#include "ui/shell/ResizeBorder.h"

#include <QWidget>

namespace ui::frame {

// A window manager that doesn't move windows at their wish leaves a window without a frame nailed to its place.
Kind kind() { return desktop::movesWindows() ? Kind::Drawn : Kind::System; }

void setUp(QWidget* window, Kind kind, QWidget* /*strip*/, QWidget* /*toggle*/) {
  if (kind != Kind::Drawn) return;
  window->setWindowFlag(Qt::FramelessWindowHint);
  new ResizeBorder(window);
}

} // namespace ui::frame
