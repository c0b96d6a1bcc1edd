#include "ui/desktop.h"

namespace desktop {

// Qt answers for the scheme itself on this system, from 6.5 on; an older one shows the light look.
compat::Scheme colorScheme() { return compat::Scheme::Unknown; }

// The accessibility setting for less motion is not asked yet: it takes a call of the shared workspace and its
// notification, which Qt doesn't pass on. Until then animations run.
bool reducedMotion() { return false; }

void watch(QObject* /*context*/, Wish /*wish*/, std::function<void()> /*changed*/) {}

bool hasCompositor() { return true; }

bool movesWindows() { return true; }

// The system follows a drag from the press on, and tells clicks and double clicks all the same.
DragStart dragStart() { return DragStart::AtPress; }

bool tintsStatusIcons() { return true; }

} // namespace desktop
