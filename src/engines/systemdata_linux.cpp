// What makes up System Data on a Linux desktop. No folder counts in two rows.
#include "core/fs.h"
#include "core/names.h"
#include "core/places.h"
#include "core/proctext.h"
#include "engines/systemdata_table.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace systemdata {
namespace {

using Item = SystemDataItem;

constexpr bool kReclaim = true;  // the user can
constexpr bool kManaged = false; // by the system

constexpr const char* kHidden = "hidden";

constexpr Row kRows[] = {
    {"usercaches", "clock", "#6366f1", kReclaim, Item::CleanInCleanup,
     QT_TRANSLATE_NOOP("SystemData", "Your app caches"),
     QT_TRANSLATE_NOOP("SystemData",
                       "Caches that apps keep in your cache folder. The safe ones can be cleaned from Cleanup.")},
    {kHidden, "folder", "#0d9488", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Hidden folders in your home folder"),
     QT_TRANSLATE_NOOP("SystemData", "Caches, settings and installs that developer tools and apps keep in hidden "
                                     "folders such as .npm, .cargo and .nvm. Caches are safe to clear; keep tool "
                                     "installs.")},
    {"flatpakdata", "layers", "#8b5cf6", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Flatpak app data"),
     QT_TRANSLATE_NOOP("SystemData", "Settings, files and caches of your Flatpak apps, which each keep their own. "
                                     "“flatpak uninstall --delete-data” removes those of apps that are gone.")},
    {"userflatpak", "box", "#f59e0b", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Your Flatpak apps and runtimes"),
     QT_TRANSLATE_NOOP("SystemData", "Apps that Flatpak installed for you alone, and the runtimes that they need. "
                                     "“flatpak uninstall --user --unused” removes runtimes that no app needs any "
                                     "more.")},
    {"containers", "disc", "#2563eb", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Containers and images"),
     QT_TRANSLATE_NOOP("SystemData", "Images, containers and volumes that Docker and Podman keep. “docker system "
                                     "prune” and “podman system prune” remove what no container uses.")},
    {"machines", "drive", "#0ea5e9", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Virtual machines"),
     QT_TRANSLATE_NOOP("SystemData", "Disk images of virtual machines, kept by the program that made them. Delete a "
                                     "machine there, or with “virsh undefine --remove-all-storage”.")},
    {"games", "film", "#ec4899", kReclaim, Item::RevealInFinder, QT_TRANSLATE_NOOP("SystemData", "Game libraries"),
     QT_TRANSLATE_NOOP("SystemData", "Games, kept by Steam and other launchers. Uninstall a game in its launcher.")},
    {"data", "layers", "#334155", kReclaim, Item::RevealInFinder, QT_TRANSLATE_NOOP("SystemData", "App data"),
     QT_TRANSLATE_NOOP("SystemData", "Databases and files that apps keep for you, and your Trash. Remove an app's data "
                                     "from within the app, or after uninstalling it.")},
    {"config", "sliders", "#475569", kReclaim, Item::RevealInFinder,
     QT_TRANSLATE_NOOP("SystemData", "Settings of your apps"),
     QT_TRANSLATE_NOOP("SystemData", "Settings that apps keep for you; some keep profiles and caches beside them. An "
                                     "app without its settings starts afresh.")},
    {"journal", "history", "#78716c", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "System journal"),
     QT_TRANSLATE_NOOP("SystemData", "The log of the system and its services, which journald keeps within a limit. "
                                     "“journalctl --vacuum-size=200M” trims it at once.")},
    {"logs", "file", "#78716c", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "System logs"),
     QT_TRANSLATE_NOOP("SystemData", "Log files of services and of the package manager. logrotate compresses and "
                                     "deletes old ones.")},
    {"crash", "alert", "#ef4444", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "Crash dumps"),
     QT_TRANSLATE_NOOP("SystemData", "What was in the memory of programs that crashed, kept for reports. The system "
                                     "deletes old ones; “coredumpctl” lists them.")},
    {"packages", "download", "#0891b2", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "Package downloads"),
     QT_TRANSLATE_NOOP("SystemData", "Packages that the package manager downloaded and has installed since. “apt-get "
                                     "clean”, “dnf clean packages”, “pacman -Sc” or “zypper clean” removes them.")},
    {"snaps", "box", "#f97316", kManaged, Item::None,
     QT_TRANSLATE_NOOP("SystemData", "Snap packages and old revisions"),
     QT_TRANSLATE_NOOP("SystemData", "Snap packages, with earlier revisions that snapd keeps to go back to. “snap set "
                                     "system refresh.retain=2” keeps fewer.")},
    {"flatpak", "box", "#14b8a6", kManaged, Item::None,
     QT_TRANSLATE_NOOP("SystemData", "Flatpak apps and runtimes of the system"),
     QT_TRANSLATE_NOOP("SystemData", "Apps that Flatpak installed for all users, and the runtimes that they need. "
                                     "“flatpak uninstall --unused” removes runtimes that no app needs any more.")},
    {"kernels", "code", "#64748b", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "Kernels and their modules"),
     QT_TRANSLATE_NOOP("SystemData", "The kernels that the system can start, with their drivers. The package manager "
                                     "keeps the newest; “apt-get autoremove” removes older ones.")},
    {"swap", "drive", "#475569", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "Swap and hibernation files"),
     QT_TRANSLATE_NOOP("SystemData", "Room on the disk for what doesn't fit into memory, and for memory itself during "
                                     "hibernation. The system's settings fix its size; “swapon --show” lists it.")},
    {"snapshots", "history", "#0ea5e9", kManaged, Item::None, QT_TRANSLATE_NOOP("SystemData", "System snapshots"),
     QT_TRANSLATE_NOOP("SystemData", "Earlier states of the system, which Timeshift or Snapper keeps. They share what "
                                     "didn't change, so they have no size of their own; “timeshift --delete” or "
                                     "“snapper delete” removes one.")},
};

/// "hidden" and "swap" are looked up; "snapshots" has none.
constexpr Place kPlaces[] = {
    {"usercaches", Base::Cache},
    {"flatpakdata", Base::Home, ".var/app"},
    {"userflatpak", Base::Data, "flatpak"},
    {"containers", Base::Data, "containers"},
    {"containers", Base::Root, "var/lib/docker"},
    {"containers", Base::Root, "var/lib/containers"},
    {"machines", Base::Data, "libvirt/images"},
    {"machines", Base::Data, "gnome-boxes/images"},
    {"machines", Base::Home, "VirtualBox VMs"},
    {"machines", Base::Root, "var/lib/libvirt/images"},
    {"games", Base::Data, "Steam"},
    {"games", Base::Home, ".steam"},
    {"games", Base::Home, "Games"},
    {"data", Base::Data},
    {"config", Base::Config},
    {"journal", Base::Root, "var/log/journal"},
    {"logs", Base::Root, "var/log"},
    {"crash", Base::Root, "var/lib/systemd/coredump"},
    {"crash", Base::Root, "var/crash"},
    {"packages", Base::Root, "var/cache/apt/archives"},
    {"packages", Base::Root, "var/cache/dnf"},
    {"packages", Base::Root, "var/cache/libdnf5"},
    {"packages", Base::Root, "var/cache/pacman/pkg"},
    {"packages", Base::Root, "var/cache/zypp"},
    {"snaps", Base::Root, "var/lib/snapd/snaps"},
    {"flatpak", Base::Root, "var/lib/flatpak"},
    {"kernels", Base::Root, "boot"},
    {"kernels", Base::Root, "usr/lib/modules"},
};

/// Hidden folders of the home folder that stand for rows of their own, wherever the variables point.
constexpr const char16_t* kNotHidden[] = {u".local", u".config", u".var", u".steam"};

QList<QString> otherHiddenFolders() {
  QList<QString> paths = hiddenFolders();
  paths.removeIf([](const QString& path) {
    const QString name = QFileInfo(path).fileName();
    return std::any_of(std::begin(kNotHidden), std::end(kNotHidden), [&](QStringView known) { return name == known; });
  });
  return paths;
}

/// A table with a head: path, type, size, used, priority. Partitions take nothing from a file system.
QList<QString> swapFiles(const SystemDataWorld& world) {
  QList<QString> paths;
  QFile table(fs::join(world.sources.procRoot, u"swaps"_s));
  if (!table.open(QIODevice::ReadOnly)) return paths;
  for (const QByteArray& line : table.readAll().split('\n')) {
    const QByteArrayList fields = line.simplified().split(' ');
    if (fields.size() > 1 && fields[1] == "file") paths << names::decode(proctext::unescaped(fields[0]));
  }
  return paths;
}

/// Gives every folder to one row. Each place is known by its path without links, as one folder may be reached in two
/// ways: of rows that name the same place only the first keeps it, and "hidden" never does; and the rows above a place
/// leave it out, in their own spelling. A place that is a link itself, as a cache on another disk may be, becomes what
/// it leads to.
class Sharing {
 public:
  explicit Sharing(QList<SystemDataItem>* rows) : m_rows(*rows) {
    for (qsizetype row = 0; row < m_rows.size(); ++row)
      for (const QString& path : std::as_const(m_rows[row].paths)) m_spots.push_back(spotAt(row, path));
    std::stable_partition(m_spots.begin(), m_spots.end(),
                          [&](const Spot& spot) { return m_rows[spot.row].id != QLatin1String(kHidden); });
  }

  void share() {
    for (SystemDataItem& row : m_rows) row.paths.clear();
    std::vector<Spot> kept;
    for (const Spot& spot : m_spots) {
      const auto isSame = [&](const Spot& other) { return other.real == spot.real; };
      if (std::any_of(kept.begin(), kept.end(), isSame)) continue;
      kept.push_back(spot);
      m_rows[spot.row].paths << spot.path;
    }
    for (const Spot& upper : kept)
      for (const Spot& lower : kept)
        if (const QString below = upper.real + u'/'; lower.real.startsWith(below))
          m_rows[upper.row].excludes << fs::join(upper.path, lower.real.sliced(below.size()));
  }

 private:
  struct Spot {
    qsizetype row;
    QString path;
    QString real;
  };

  [[nodiscard]] Spot spotAt(qsizetype row, const QString& path) const {
    const QFileInfo place(path);
    if (const QString real = fs::resolved(path); !real.isEmpty() && !(place.isSymLink() && holdsHome(real)))
      return {row, place.isSymLink() ? real : path, real};
    const QString folder = fs::resolved(place.path());
    return {row, path, folder.isEmpty() ? path : fs::join(folder, place.fileName())};
  }

  /// All that the user has isn't what a row is about, so a link to it counts as no more than a link.
  [[nodiscard]] bool holdsHome(const QString& folder) const {
    return folder == m_home || folder == u"/" || m_home.startsWith(folder + u'/');
  }

  QList<SystemDataItem>& m_rows;
  const QString m_home = fs::resolved(places::home());
  std::vector<Spot> m_spots; ///< those of "hidden" last
};

} // namespace

QList<SystemDataItem> forLinux(const SystemDataWorld& world) {
  QList<SystemDataItem> rows = build(kRows, kPlaces, world);
  rowOf(&rows, QLatin1String(kHidden)).paths = otherHiddenFolders();
  rowOf(&rows, "swap"_L1).paths = swapFiles(world);
  Sharing(&rows).share();
  return rows;
}

} // namespace systemdata
