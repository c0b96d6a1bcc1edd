/// The session bus, where the desktop's services are.
#pragma once

namespace desktop {

/// Whether there is one. Asking Qt for a bus that isn't there may start one, which takes time and helps nobody, so ask
/// this first.
[[nodiscard]] bool hasSessionBus();

} // namespace desktop
