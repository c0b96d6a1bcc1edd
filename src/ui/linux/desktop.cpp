#include "ui/desktop.h"

#include "ui/linux/Portal.h"

namespace desktop {

compat::Scheme colorScheme() { return Portal::get().scheme(); }

bool reducedMotion() { return Portal::get().reducedMotion(); }

void watch(QObject* context, Wish wish, std::function<void()> changed) {
  const auto signal = wish == Wish::ColorScheme ? &Portal::schemeChanged : &Portal::reducedMotionChanged;
  QObject::connect(&Portal::get(), signal, context, std::move(changed));
}

DragStart dragStart() { return DragStart::AtFirstMove; }

bool tintsStatusIcons() { return false; }

} // namespace desktop
