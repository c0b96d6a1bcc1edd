/// Pages as they look in the window, each over a state of its own. What they tell comes from the home folder and the
/// disk that they find; they read them and change nothing.
#pragma once

class QWidget;

namespace gallery {

/// The overview before there was a scan.
[[nodiscard]] QWidget* overviewAtStart();
/// The overview with what a scan found; returns when that is through.
[[nodiscard]] QWidget* overviewAfterScan();

} // namespace gallery
