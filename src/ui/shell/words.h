/// The contexts in which the shell's texts are translated.
#pragma once

#include <QCoreApplication>

namespace ui::words {

struct Overlay {
  Q_DECLARE_TR_FUNCTIONS(Overlay)
};
struct MenuBar {
  Q_DECLARE_TR_FUNCTIONS(MenuBar)
};
struct Sidebar {
  Q_DECLARE_TR_FUNCTIONS(Sidebar)
};
struct TitleBar {
  Q_DECLARE_TR_FUNCTIONS(TitleBar)
};

} // namespace ui::words
