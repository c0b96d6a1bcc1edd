/// What the window can be told to do, as one table: the menu bar of a system that has one, the window's shortcuts, and
/// the list of them that a user can look at are all made of it.
#pragma once

#include <QAction>
#include <QKeySequence>
#include <QList>
#include <QString>

#include <span>

namespace ui::commands {

enum class Menu { File, Edit, View, Window, Help };

enum class Id {
  Separator, ///< a line between two entries of the menu bar
  About,
  CheckForUpdates,
  OpenSettings,
  Quit,
  SmartScan,
  FindLargeFiles,
  CloseWindow,
  Undo,
  Redo,
  Cut,
  Copy,
  Paste,
  SelectAll,
  GoOverview,
  GoCleanup,
  GoSpaceMap,
  GoSystemData,
  ToggleSidebar,
  ToggleFullScreen,
  Minimize,
  Zoom,
  BringToFront,
  Guide,
  Faq,
  LogFolder,
  Shortcuts,
  OpenMenu,
};

/// Whether it works while a dialog covers the window. What would act on a page behind the dialog, or open a second one,
/// rests until the user has answered.
enum class UnderDialog { Rests, Works };

/// Who offers it.
enum class Where {
  Everywhere,
  WithoutMenuBar, ///< only where no menu bar shows the commands
};

struct Entry {
  Menu menu;
  Id id;
  const char* text = ""; ///< not yet translated
  QKeySequence::StandardKey standard = QKeySequence::UnknownKey;
  /// Where there is no standard key, or the platform has none for it; where it has several, the one to tell the user.
  const char* keys = "";
  QAction::MenuRole role = QAction::NoRole;
  UnderDialog underDialog = UnderDialog::Rests;
  Where where = Where::Everywhere;
};

/// All of them, menu by menu, in the menu bar's order.
[[nodiscard]] std::span<const Entry> entries();
/// Null for an unknown one, and for a separator.
[[nodiscard]] const Entry* entry(Id id);
/// Whether the host in force, and this build, have what the entry is about.
[[nodiscard]] bool isOffered(const Entry& entry);
/// The keys that call it on this platform, the usual ones first; empty if there are none.
[[nodiscard]] QList<QKeySequence> keysOf(const Entry& entry);
[[nodiscard]] QString textOf(const Entry& entry);
[[nodiscard]] QString titleOf(Menu menu);

/// What the texts of some entries follow.
struct Situation {
  bool isSidebarCollapsed = false;
  bool isFullScreen = false;
};
[[nodiscard]] QString textOf(const Entry& entry, const Situation& situation);

} // namespace ui::commands
