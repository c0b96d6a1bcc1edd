/// Where things lie: the home folder, the XDG folders, the user's own folders, cache roots. Every function reads the
/// environment afresh, and the disk only where it says so.
#pragma once

#include <QString>
#include <QStringList>

#include <span>

namespace places {

/// The home folder: HOME if it is absolute and not "/", else the password database's; clean. Empty: there is none.
[[nodiscard]] QString home();
/// The home folder that the password database names for the effective user; empty if it names none. Read once.
[[nodiscard]] QString passwordHome();
/// Whether home() belongs to the user that the program runs as. False also where there is no home.
[[nodiscard]] bool homeIsOwn();

/// The XDG folders, or their defaults below home(). A variable counts only if it is absolute and is not "/", the home
/// folder, a folder above it, or one of the user's own folders. Empty where there is no home.
[[nodiscard]] QString config();
[[nodiscard]] QString data();
/// Likewise; its variable doesn't count either if it is one of keptFolders(), config(), data(), or a folder above
/// those: what lies directly in a cache is cleaned.
[[nodiscard]] QString cache();
/// The user's download folder; empty if it is the home folder or lies above it.
[[nodiscard]] QString downloads();
/// The temporary folder, as TMPDIR spells it; empty where it is missing or, in that spelling or with links resolved,
/// "/", the home folder, above it, one of the user's folders or inside one, one of keptFolders(), an XDG folder, or
/// above one of those. Reads the disk.
[[nodiscard]] QString temp();

/// The names of the user's own folders below a home folder that need no list, in every language of the desktop.
[[nodiscard]] std::span<const QLatin1String> usualFolders();
/// Folders of a Linux home folder, by their path below it, that hold what is no cache and stay as a whole.
[[nodiscard]] std::span<const QLatin1String> keptFolders();

/// The user's own folders by their localised names (user-dirs.dirs), absolute and clean. Read once a home folder.
[[nodiscard]] QStringList userDirs();

/// What holds app caches on Linux: cache(), and those of Flatpaks and snaps by name.
struct CacheRoot {
  enum class Kind { Session, Flatpak, Snap };
  QString path;
  QString id; ///< the Flatpak id or the snap's name; empty for the session's own
  Kind kind = Kind::Session;
};
/// Those that are there. cache() may be reached through a link; of the others, no folder below the home folder is one.
/// Reads the disk.
[[nodiscard]] QList<CacheRoot> cacheRoots();

} // namespace places
