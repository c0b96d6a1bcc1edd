/// What the desktop around the program tells beyond Qt: its wishes for the look, and what its window manager can do.
/// One implementation a system. User-interface thread only.
#pragma once

#include "ui/compat.h"

class QObject;

namespace desktop {

/// The scheme that the desktop portal names; Unknown where there is no portal, or it has no preference.
/// The first call waits for the answer, but no longer than 150 ms; a portal that is slower is heard when it answers.
[[nodiscard]] compat::Scheme colorScheme();
/// Whether the desktop asks for less motion. False until its answer is there; never waits.
[[nodiscard]] bool reducedMotion();

enum class Wish { ColorScheme, ReducedMotion };
/// Calls @p changed whenever the wish takes another value, for as long as @p context lives.
void watch(QObject* context, Wish wish, std::function<void()> changed);

/// Whether translucent windows blend with what lies behind them. Without it their transparent parts are black.
/// Costs two round trips to the X server, where there is one; always true elsewhere.
[[nodiscard]] bool hasCompositor();

/// Whether the window manager moves and resizes a window when the window asks for it, so that one can do without the
/// system's frame. Costs three round trips to the X server, where there is one; always true elsewhere.
[[nodiscard]] bool movesWindows();

/// When moving the window by its empty areas begins.
enum class DragStart { AtPress, AtFirstMove };
/// The first move on X11 and Wayland, where a move that begins with the press swallows clicks and double clicks.
[[nodiscard]] DragStart dragStart();

/// Whether the system paints a one-coloured icon of its status area in the colour that can be read there. Without it a
/// panel shows the icon as it is, on a ground that nobody tells.
[[nodiscard]] bool tintsStatusIcons();

} // namespace desktop
