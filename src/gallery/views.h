/// The views of the program's window: every page in every state, and what opens over them.
#pragma once

#include "app/AppState.h"
#include "ui/shell/MainWindow.h"

#include <QSize>

#include <memory>
#include <span>

namespace gallery {

/// The program's window over a state of its own. What it finds comes from the home folder, in which it changes nothing;
/// the disk's figures are the same on every machine.
struct Scene {
  Scene();
  /// Returns when the scan is through. The settings don't learn of it, so that the next scene starts without one.
  void scan();

  AppState state; ///< before the window, as it must outlive it
  ui::MainWindow window{&state};
};

struct ViewEntry {
  const char* name; ///< stands at the head of the pictures' file names
  int page;         ///< of ui::Sidebar::Page
  bool scanned;     ///< whether a scan comes first
  /// Brings the scene from there to the view; null where it is the view already. A clean under way and its report are
  /// put in place: nothing is cleaned.
  void (*set)(Scene* scene);
};
[[nodiscard]] std::span<const ViewEntry> views();

/// The window's smallest size and the one that it opens with, in pixels.
[[nodiscard]] std::span<const QSize> viewSizes();

/// Brings @p scene, which is new or back where the view begins, to this view. Motion may still be under way.
void bringTo(Scene* scene, const ViewEntry& entry);
/// The same for a scene of its own.
[[nodiscard]] std::unique_ptr<Scene> openView(const ViewEntry& entry);

} // namespace gallery
