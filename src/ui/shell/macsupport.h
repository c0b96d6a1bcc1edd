/// Two small interventions in the application object of macOS, for what Qt doesn't offer. On other systems both do
/// nothing. User-interface thread only; neither is ever undone.
#pragma once

#include <functional>

namespace macsupport {

/// Calls @p handler whenever the user clicks the program's icon in the dock, before Qt's own handling, which goes on
/// unchanged. It replaces the handler given before. Without an application delegate it isn't kept.
void onDockReopen(std::function<void()> handler);

/// From macOS 27 on, lets the status item's menu open only as the direct result of a mouse button.
/// @return false only where Qt has no such method to guard; true also where nothing was to be done
bool guardStatusItemMenu();

} // namespace macsupport
