/// The contexts in which the shell's texts are translated.
#pragma once

#include <QCoreApplication>

namespace ui {

struct OverlayWords {
  Q_DECLARE_TR_FUNCTIONS(Overlay)
};
struct MenuBarWords {
  Q_DECLARE_TR_FUNCTIONS(MenuBar)
};
struct SidebarWords {
  Q_DECLARE_TR_FUNCTIONS(Sidebar)
};
struct TitleBarWords {
  Q_DECLARE_TR_FUNCTIONS(TitleBar)
};

} // namespace ui
