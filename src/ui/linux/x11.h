/// Questions to the X server that Qt doesn't ask.
#pragma once

#include <functional>

class QObject;

namespace x11 {

/// Whether the program runs on X11 at all.
[[nodiscard]] bool isUsed();
/// Whether the selection of this name has an owner. False off X11. Two round trips to the server.
[[nodiscard]] bool hasOwner(const char* selection);
/// Calls @p changed when the selection of this name, one that programs announce when they take it, gets an owner; and
/// when that owner's window goes, as far as Qt listens to it. For as long as @p context lives. Nothing off X11.
void watchSelection(QObject* context, const char* selection, std::function<void()> changed);
/// Whether the window manager lists this protocol ("_NET_WM_MOVERESIZE") among what it supports. False off X11 and
/// without a window manager. Three round trips.
[[nodiscard]] bool managerSupports(const char* protocol);

} // namespace x11
