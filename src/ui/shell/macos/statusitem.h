/// When the menu of the status item may open. Plain rules, so that they are tested on every system.
#pragma once

namespace macsupport {

/// From this version on the menu may begin to open without the user having asked for it.
constexpr bool needsStatusItemGuard(long majorVersion) { return majorVersion >= 27; }

/// Whether an event of this type, a number of the system's, is a button of the mouse going down or up.
constexpr bool isMouseButton(unsigned long eventType) {
  constexpr unsigned long kButtons[] = {1, 2, 3, 4, 25, 26}; // left, right and other; each down, then up
  for (const unsigned long one : kButtons)
    if (one == eventType) return true;
  return false;
}

} // namespace macsupport
