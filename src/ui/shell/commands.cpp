#include "ui/shell/commands.h"

#include "core/deployment.h"
#include "engines/systemdata.h"
#include "ui/shell/words.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui::commands {
namespace {

using enum Id;
constexpr auto kNone = QKeySequence::UnknownKey;
constexpr auto kNoRole = QAction::NoRole;
constexpr auto kWorks = UnderDialog::Works;

constexpr Entry kEntries[] = {
    {Menu::File, About, QT_TRANSLATE_NOOP("MenuBar", "About Tarnwick"), kNone, "", QAction::AboutRole},
    {Menu::File, CheckForUpdates, QT_TRANSLATE_NOOP("MenuBar", "Check for Updates…"), kNone, "",
     QAction::ApplicationSpecificRole},
    {Menu::File, OpenSettings, QT_TRANSLATE_NOOP("MenuBar", "Settings…"), QKeySequence::Preferences, "Ctrl+,",
     QAction::PreferencesRole},
    {Menu::File, Quit, QT_TRANSLATE_NOOP("MenuBar", "Quit Tarnwick"), QKeySequence::Quit, "Ctrl+Q", QAction::QuitRole,
     kWorks},
    {Menu::File, SmartScan, QT_TRANSLATE_NOOP("MenuBar", "Smart Scan"), kNone, "Ctrl+R"},
    {Menu::File, FindLargeFiles, QT_TRANSLATE_NOOP("MenuBar", "Find Large Files"), kNone, "Ctrl+Shift+L"},
    {Menu::File, Separator},
    {Menu::File, CloseWindow, QT_TRANSLATE_NOOP("MenuBar", "Close Window"), QKeySequence::Close, "Ctrl+W", kNoRole,
     kWorks},
    {Menu::Edit, Undo, QT_TRANSLATE_NOOP("MenuBar", "Undo"), QKeySequence::Undo, "Ctrl+Z", kNoRole, kWorks},
    {Menu::Edit, Redo, QT_TRANSLATE_NOOP("MenuBar", "Redo"), QKeySequence::Redo, "Ctrl+Shift+Z", kNoRole, kWorks},
    {Menu::Edit, Separator},
    {Menu::Edit, Cut, QT_TRANSLATE_NOOP("MenuBar", "Cut"), QKeySequence::Cut, "Ctrl+X", kNoRole, kWorks},
    {Menu::Edit, Copy, QT_TRANSLATE_NOOP("MenuBar", "Copy"), QKeySequence::Copy, "Ctrl+C", kNoRole, kWorks},
    {Menu::Edit, Paste, QT_TRANSLATE_NOOP("MenuBar", "Paste"), QKeySequence::Paste, "Ctrl+V", kNoRole, kWorks},
    {Menu::Edit, SelectAll, QT_TRANSLATE_NOOP("MenuBar", "Select All"), QKeySequence::SelectAll, "Ctrl+A", kNoRole,
     kWorks},
    {Menu::View, GoOverview, QT_TRANSLATE_NOOP("MenuBar", "Smart Scan"), kNone, "Ctrl+1"},
    //: Entry of the menu View: the page Cleanup
    {Menu::View, GoCleanup, QT_TRANSLATE_NOOP("MenuBar", "Cleanup"), kNone, "Ctrl+2"},
    {Menu::View, GoSpaceMap, QT_TRANSLATE_NOOP("MenuBar", "Space Map"), kNone, "Ctrl+3"},
    {Menu::View, GoSystemData, QT_TRANSLATE_NOOP("MenuBar", "System Data"), kNone, "Ctrl+4"},
    {Menu::View, Separator},
    {Menu::View, ToggleSidebar, QT_TRANSLATE_NOOP("MenuBar", "Hide Sidebar"), kNone, "Ctrl+Meta+S"},
    {Menu::View, ToggleFullScreen, QT_TRANSLATE_NOOP("MenuBar", "Enter Full Screen"), QKeySequence::FullScreen, "F11",
     kNoRole, kWorks},
    {Menu::Window, Minimize, QT_TRANSLATE_NOOP("MenuBar", "Minimize"), kNone, "Ctrl+M", kNoRole, kWorks},
    //: Entry of the menu Window: make the window large, or as it was
    {Menu::Window, Zoom, QT_TRANSLATE_NOOP("MenuBar", "Zoom"), kNone, "", kNoRole, kWorks},
    {Menu::Window, Separator},
    {Menu::Window, BringToFront, QT_TRANSLATE_NOOP("MenuBar", "Bring All to Front"), kNone, "", kNoRole, kWorks},
    //: Entry of the menu Help: the guide on the website
    {Menu::Help, Guide, QT_TRANSLATE_NOOP("MenuBar", "Guide"), kNone, "", kNoRole, kWorks},
    //: Entry of the menu Help: frequently asked questions
    {Menu::Help, Faq, QT_TRANSLATE_NOOP("MenuBar", "FAQ"), kNone, "", kNoRole, kWorks},
    //: Entry of the menu Help: the folder with the logs of cleanups
    {Menu::Help, LogFolder, QT_TRANSLATE_NOOP("MenuBar", "Open Log Folder"), kNone, "", kNoRole, kWorks},
    {Menu::Help, OpenMenu, QT_TRANSLATE_NOOP("MenuBar", "Open Menu"), kNone, "F10", kNoRole, kWorks,
     Where::WithoutMenuBar},
    {Menu::Help, Shortcuts, QT_TRANSLATE_NOOP("MenuBar", "Keyboard Shortcuts"), kNone, "Ctrl+?", kNoRole,
     UnderDialog::Rests, Where::WithoutMenuBar},
};

//: Title of a menu
constexpr const char* kTitles[] = {QT_TRANSLATE_NOOP("MenuBar", "File"), QT_TRANSLATE_NOOP("MenuBar", "Edit"),
                                   QT_TRANSLATE_NOOP("MenuBar", "View"), QT_TRANSLATE_NOOP("MenuBar", "Window"),
                                   QT_TRANSLATE_NOOP("MenuBar", "Help")};

} // namespace

std::span<const Entry> entries() { return kEntries; }

const Entry* entry(Id id) {
  const auto* found = std::ranges::find(kEntries, id, &Entry::id);
  return id == Separator || found == std::end(kEntries) ? nullptr : found;
}

bool isOffered(const Entry& entry) {
  if (entry.id == GoSystemData) return systemdata::supported();
  if (entry.id == CheckForUpdates) return deployment::updatesItself();
  return true;
}

QList<QKeySequence> keysOf(const Entry& entry) {
  QList<QKeySequence> keys;
  if (entry.standard != kNone) keys = QKeySequence::keyBindings(entry.standard);
  if (!*entry.keys) return keys;
  const QKeySequence usual(QString::fromLatin1(entry.keys), QKeySequence::PortableText);
  if (keys.isEmpty() || keys.removeOne(usual)) keys.prepend(usual);
  return keys;
}

QString textOf(const Entry& entry) { return MenuBarWords::tr(entry.text); }

QString textOf(const Entry& entry, const Situation& situation) {
  if (entry.id == ToggleSidebar && situation.isSidebarCollapsed) return MenuBarWords::tr("Show Sidebar");
  if (entry.id == ToggleFullScreen && situation.isFullScreen) return MenuBarWords::tr("Exit Full Screen");
  return textOf(entry);
}

QString titleOf(Menu menu) { return MenuBarWords::tr(kTitles[int(menu)]); }

} // namespace ui::commands
