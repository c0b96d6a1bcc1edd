#include "ui/shell/macsupport.h"

namespace macsupport {

void onDockReopen(std::function<void()> /*handler*/) {}

bool guardStatusItemMenu() { return true; }

} // namespace macsupport
