/// The hues that the visuals own: the same in both looks.
#pragma once

#include <QColor>

namespace ui::hues {

inline constexpr QColor kCyan(34, 211, 238);    // hue: what can be cleaned, the radar's sweep, the end of a good ring
inline constexpr QColor kIndigo(99, 102, 241);  // hue: what is used, and the orb's light
inline constexpr QColor kViolet(168, 85, 247);  // hue: the far end of what is used
inline constexpr QColor kEmerald(52, 211, 153); // hue: the beginning of a good ring
inline constexpr QColor kSheen(255, 255, 255);  // hue: the light on the orb's core

} // namespace ui::hues
