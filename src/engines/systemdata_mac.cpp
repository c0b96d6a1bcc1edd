// What makes up System Data on macOS. Some rows lie inside others and count in both.
#include "core/fs.h"
#include "engines/systemdata_table.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace systemdata {
namespace {

using Item = SystemDataItem;

constexpr bool kReclaim = true;  // the user can
constexpr bool kManaged = false; // by the system

constexpr Row kRows[] = {
    {"snapshots", "history", "#0ea5e9", kReclaim, Item::RemoveSnapshots,
     QT_TRANSLATE_NOOP("SystemData", "Time Machine local snapshots"),
     QT_TRANSLATE_NOOP(
         "SystemData",
         "Hourly snapshots macOS keeps on this disk until Time Machine can reach its backup drive. macOS "
         "frees them when space runs low; removing them now is safe, but you lose those restore points.")},
    {"backups", "archive", "#8b5cf6", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "iPhone & iPad backups"),
     QT_TRANSLATE_NOOP("SystemData", "Device backups made by Finder. Delete old ones from Finder (General → Manage "
                                     "Backups) once a newer or iCloud backup exists.")},
    {"devicesupport", "code", "#6366f1", kReclaim, Item::MoveToTrash,
     QT_TRANSLATE_NOOP("SystemData", "Xcode device support"),
     QT_TRANSLATE_NOOP("SystemData", "Debug symbols Xcode copies from every iOS, watchOS and tvOS version you've "
                                     "connected. Xcode copies them again the next time you connect that device.")},
    {"simulators", "box", "#f59e0b", kReclaim, Item::DeleteUnavailable,
     QT_TRANSLATE_NOOP("SystemData", "iOS Simulator devices"),
     QT_TRANSLATE_NOOP("SystemData", "Simulator devices and their app data. Removing unavailable devices (for runtimes "
                                     "you no longer have) is safe.")},
    {"runtimes", "box", "#f97316", kReclaim, Item::OpenXcode,
     QT_TRANSLATE_NOOP("SystemData", "Simulator runtimes & caches"),
     QT_TRANSLATE_NOOP("SystemData", "iOS, watchOS and visionOS simulator runtimes Xcode downloaded, plus their shared "
                                     "caches. Remove runtimes you don't use in Xcode › Settings › Components.")},
    {"usercaches", "clock", "#6366f1", kReclaim, Item::CleanInCleanup,
     QT_TRANSLATE_NOOP("SystemData", "Your app caches"),
     QT_TRANSLATE_NOOP("SystemData",
                       "Caches apps keep in your Library folder. The safe ones can be cleaned from Cleanup.")},
    {"hidden", "folder", "#0d9488", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Hidden folders in your home folder"),
     QT_TRANSLATE_NOOP("SystemData", "Caches, settings and installs that developer tools and apps keep in hidden "
                                     "folders such as .cache, .npm and .nvm. Caches are safe to clear; keep tool "
                                     "installs.")},
    {"archives", "archive", "#a855f7", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Xcode archives"),
     QT_TRANSLATE_NOOP("SystemData", "Builds you archived for distribution. Keep the ones you may need to symbolicate "
                                     "crash reports for.")},
    {"docker", "disc", "#2563eb", kReclaim, Item::RevealInFinder, QT_TRANSLATE_NOOP("SystemData", "Docker disk image"),
     QT_TRANSLATE_NOOP("SystemData", "The virtual disk holding Docker's images and containers. Shrink it with “docker "
                                     "system prune” or Docker Desktop's settings.")},
    {"mail", "download", "#14b8a6", kReclaim, Item::RevealInFinder, QT_TRANSLATE_NOOP("SystemData", "Mail attachments"),
     QT_TRANSLATE_NOOP("SystemData",
                       "Attachments Mail saved after you opened them. The originals stay in your mailbox.")},
    {"messages", "image", "#ec4899", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Messages attachments"),
     QT_TRANSLATE_NOOP("SystemData", "Photos, videos and files from your conversations. Remove large ones from "
                                     "Messages (Settings → General → Storage) to keep chats consistent.")},
    {"syscaches", "clock", "#64748b", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "System caches"),
     QT_TRANSLATE_NOOP("SystemData", "Caches shared by all users and system services. macOS trims these itself.")},
    {"logs", "file", "#78716c", kManaged, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "System logs & diagnostics"),
     QT_TRANSLATE_NOOP("SystemData",
                       "Unified logs and diagnostic reports. macOS rotates and deletes them automatically.")},
    {"vm", "drive", "#475569", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "Virtual memory & sleep image"),
     QT_TRANSLATE_NOOP("SystemData", "Swap files and the hibernation image. They grow and shrink with memory use and "
                                     "reset when you restart.")},
    {"assets", "download", "#0891b2", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "macOS assets & updates"),
     QT_TRANSLATE_NOOP("SystemData", "Downloaded system assets (fonts, dictionaries, language and AI models) and "
                                     "staged software updates.")},
    {"library", "folder", "#475569", kManaged, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Other Library data"),
     QT_TRANSLATE_NOOP("SystemData", "Everything else in your Library folder: preferences, keychains, logs, and data "
                                     "for system services.")},
    {"systemdb", "layers", "#64748b", kManaged, Item::None,
     QT_TRANSLATE_NOOP("SystemData", "System databases & temporary files"),
     QT_TRANSLATE_NOOP("SystemData", "Databases and per-app temporary folders used by macOS services. macOS manages "
                                     "these.")},
    {"appdata", "layers", "#334155", kManaged, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "App data & containers"),
     QT_TRANSLATE_NOOP("SystemData", "Settings, databases and files apps keep for you. Remove an app's data by "
                                     "uninstalling the app or from within the app.")},
};

/// "hidden" and the first places of "runtimes" are looked up.
constexpr Place kPlaces[] = {
    {"backups", Base::Home, "Library/Application Support/MobileSync/Backup"},
    {"devicesupport", Base::Home, "Library/Developer/Xcode/iOS DeviceSupport"},
    {"devicesupport", Base::Home, "Library/Developer/Xcode/watchOS DeviceSupport"},
    {"devicesupport", Base::Home, "Library/Developer/Xcode/tvOS DeviceSupport"},
    {"devicesupport", Base::Home, "Library/Developer/Xcode/visionOS DeviceSupport"},
    {"simulators", Base::Home, "Library/Developer/CoreSimulator/Devices"},
    {"runtimes", Base::Root, "Library/Developer"},
    {"usercaches", Base::Home, "Library/Caches"},
    {"archives", Base::Home, "Library/Developer/Xcode/Archives"},
    {"docker", Base::Home, "Library/Containers/com.docker.docker/Data/vms"},
    {"mail", Base::Home, "Library/Containers/com.apple.mail/Data/Library/Mail Downloads"},
    {"messages", Base::Home, "Library/Messages/Attachments"},
    {"syscaches", Base::Root, "Library/Caches"},
    {"logs", Base::Root, "private/var/log"},
    {"logs", Base::Root, "private/var/db/diagnostics"},
    {"logs", Base::Root, "Library/Logs"},
    {"vm", Base::Root, "private/var/vm"},
    {"assets", Base::Root, "System/Library/AssetsV2"},
    {"assets", Base::Root, "Library/Updates"},
    {"library", Base::Home, "Library"},
    {"systemdb", Base::Root, "private/var/db"},
    {"systemdb", Base::Root, "private/var/folders"},
    {"appdata", Base::Home, "Library/Containers"},
    {"appdata", Base::Home, "Library/Group Containers"},
    {"appdata", Base::Home, "Library/Application Support"},
};

/// Below the home folder: what other rows count, or what stands for data in a cloud.
constexpr const char* kNotOtherLibrary[] = {
    "Library/Caches",   "Library/Application Support", "Library/Containers",       "Library/Group Containers",
    "Library/Messages", "Library/Developer",           "Library/Mobile Documents", "Library/CloudStorage",
};

constexpr const char* kAssets = "System/Library/AssetsV2";

QList<QString> simulatorRuntimes(const SystemDataWorld& world) {
  QList<QString> paths;
  const QString assets = pathOf(Base::Root, QLatin1String(kAssets), world);
  for (const fs::Entry& entry : fs::list(assets))
    if (entry.isDir && entry.name.contains(u"SimulatorRuntime"_s)) paths << fs::join(assets, entry.name);
  return paths;
}

} // namespace

QList<SystemDataItem> forMac(const SystemDataWorld& world) {
  QList<SystemDataItem> rows = build(kRows, kPlaces, world);
  const QList<QString> runtimes = simulatorRuntimes(world);
  SystemDataItem& runtimesRow = rowOf(&rows, "runtimes"_L1);
  runtimesRow.paths = runtimes + runtimesRow.paths;
  rowOf(&rows, "assets"_L1).excludes = runtimes;
  rowOf(&rows, "hidden"_L1).paths = hiddenFolders();
  for (const char* folder : kNotOtherLibrary)
    if (const QString path = pathOf(Base::Home, QLatin1String(folder), world); !path.isEmpty())
      rowOf(&rows, "library"_L1).excludes << path;
  return rows;
}

} // namespace systemdata
