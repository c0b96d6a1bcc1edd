/// Where things lie: the home folder, the XDG folders, the user's own folders, cache roots. Every function reads the
/// environment afresh, and the disk only where it says so.
#pragma once

#include <QString>
#include <QStringList>

namespace places {

/// The home folder: HOME if it is absolute and not "/", else the password database's; clean. Empty: there is none.
[[nodiscard]] QString home();
/// The home folder that the password database names for the effective user; empty if it names none. Read once.
[[nodiscard]] QString passwordHome();
/// Whether home() belongs to the user that the program runs as. False also where there is no home.
[[nodiscard]] bool homeIsOwn();

/// The XDG folders, or their defaults below home(). A variable counts only if it is absolute and is not "/", the home
/// folder, a folder above it, or one of the user's own folders. Empty where there is no home.
[[nodiscard]] QString cache();
[[nodiscard]] QString config();
[[nodiscard]] QString data();
/// The user's download folder; empty if it is the home folder or lies above it.
[[nodiscard]] QString downloads();
/// The temporary folder; empty where it is empty, "/", the home folder, above it, or one of the user's folders or
/// inside one.
[[nodiscard]] QString temp();

/// The user's own folders by their localised names (user-dirs.dirs), absolute and clean. Read once a home folder.
[[nodiscard]] QStringList userDirs();

/// What holds app caches on Linux. Reads the disk.
struct CacheRoot {
  enum class Kind { Session, Flatpak, Snap };
  QString path;
  QString id; ///< the Flatpak id or the snap's name; empty for the session's own
  Kind kind = Kind::Session;
};
[[nodiscard]] QList<CacheRoot> cacheRoots();

} // namespace places
