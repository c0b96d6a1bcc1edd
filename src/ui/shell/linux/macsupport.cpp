#include "ui/shell/macsupport.h"

namespace macsupport {

// NOLINTNEXTLINE(performance-unnecessary-value-param): it is kept where there is a dock
void onDockReopen(std::function<void()> /*handler*/) {}

bool guardStatusItemMenu() { return true; }

} // namespace macsupport
