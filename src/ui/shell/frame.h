/// How the window is framed: where it has its buttons, and who moves it. One implementation a system.
#pragma once

class QWidget;

namespace ui::frame {

enum class Kind {
  SystemButtons, ///< the content reaches to the top, the system's buttons lie on it at the left
  Drawn,         ///< no frame of the system's: the window draws a title bar and resizes itself
  System,        ///< the system's own frame around the content
};

/// What this system and its window manager can do now. Needs the application. A window manager that is only starting
/// may be able to do more a moment later, so a window asks once.
[[nodiscard]] Kind kind();
/// Before @p window is shown, once: takes the system's frame away.
/// @param kind    what the window was built for
/// @param strip   the part of the content that moves the window; may be null
/// @param toggle  a button in it that takes clicks of its own; may be null
void setUp(QWidget* window, Kind kind, QWidget* strip, QWidget* toggle);

} // namespace ui::frame
