/// The life of the program with a window, from its first line to its exit code.
#pragma once

#include <QStringList>

class AppState;

namespace ui {

class MainWindow;

/// The switches of the command line; anything else on it is ignored.
struct StartOptions {
  bool background = false; ///< "--background": without showing the window
  bool updated = false;    ///< "--updated": tell that an update was installed
};
/// @param arguments  all of them; each switch is compared as a whole
[[nodiscard]] StartOptions startOptions(const QStringList& arguments);

/// Shows the window; for a start in the background only minimised, and only where no tray can bring it back.
void showAtStart(MainWindow* window, const StartOptions& options);
/// What the program does on its own, once, shortly after its start: warns of a full disk, tells of a finished update,
/// and starts a scan that is due.
void afterStart(MainWindow* window, AppState* state, const StartOptions& options);

/// All of main. @return the exit code
int runProgram(int argc, char** argv);

} // namespace ui
