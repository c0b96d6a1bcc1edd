/// Questions to the X server that Qt doesn't ask.
#pragma once

namespace x11 {

/// Whether the program runs on X11 at all.
[[nodiscard]] bool isUsed();
/// Whether the selection of this name has an owner. False off X11. Two round trips to the server.
[[nodiscard]] bool hasOwner(const char* selection);
/// Whether the window manager lists this protocol ("_NET_WM_MOVERESIZE") among what it supports. False off X11 and
/// without a window manager. Three round trips.
[[nodiscard]] bool managerSupports(const char* protocol);

} // namespace x11
