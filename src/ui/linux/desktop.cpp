#include "ui/desktop.h"

#include "ui/linux/Portal.h"
#include "ui/linux/x11.h"

namespace desktop {

compat::Scheme colorScheme() { return Portal::get().scheme(); }

bool reducedMotion() { return Portal::get().reducedMotion(); }

void watch(QObject* context, Wish wish, std::function<void()> changed) {
  const auto signal = wish == Wish::ColorScheme ? &Portal::schemeChanged : &Portal::reducedMotionChanged;
  QObject::connect(&Portal::get(), signal, context, std::move(changed));
}

bool hasCompositor() { return !x11::isUsed() || x11::hasOwner("_NET_WM_CM_S0"); }

bool movesWindows() { return !x11::isUsed() || x11::managerSupports("_NET_WM_MOVERESIZE"); }

DragStart dragStart() { return DragStart::AtFirstMove; }

bool tintsStatusIcons() { return false; }

} // namespace desktop
