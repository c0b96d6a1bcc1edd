/// The program's window, each time over a state of its own. What it tells comes from the home folder and the disk that
/// it finds; it reads them and changes nothing.
#pragma once

class QWidget;

namespace gallery {

// Before there was a scan.
[[nodiscard]] QWidget* overviewAtStart();
[[nodiscard]] QWidget* cleanupAtStart();

// With what a scan found; they return when that is through.
[[nodiscard]] QWidget* overviewAfterScan();
[[nodiscard]] QWidget* cleanupAfterScan();

// With something over the page; shown already.
[[nodiscard]] QWidget* cleanQuestion();
[[nodiscard]] QWidget* aboutDialog();
[[nodiscard]] QWidget* toast();

} // namespace gallery
