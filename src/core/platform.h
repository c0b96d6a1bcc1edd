/// What differs between desktop systems, in words and services.
#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

namespace platform {

enum class Host { Mac, Linux };

/// Whose tables and words are in force: the system that the program was built for, unless the environment variable
/// TARNWICK_HOST says "mac" or "linux". Read afresh each time, so that a test can change it.
[[nodiscard]] Host host();
/// The system that the program was built for; sources (processes, removal, Trash, names) follow this.
[[nodiscard]] Host builtFor();
/// Whether host() is another one than builtFor(): the protected lists of both then hold together.
[[nodiscard]] bool isPreview();

/// The volume with the user's home on it. Sizes in bytes.
struct Volume {
  QString name;       ///< display name
  QString fileSystem; ///< type in capitals, such as "APFS" or "EXT4"
  QString rootPath;   ///< mount point
  qint64 totalBytes = 0;
  qint64 availableBytes = 0; ///< what the user can count on, purgeable space included
  qint64 purgeableBytes = 0; ///< the part of it that the system frees when it must; 0 when unknown
};

/// Reads the figures now; zeros where the system doesn't tell. May wait for the disk.
[[nodiscard]] Volume systemVolume();
/// How the host in force names a volume. macOS: the label, but "Macintosh HD" for the root volume and for one without a
/// label. Linux: the label, else "System disk" for the root volume, else the last part of the mount point.
enum class VolumeRole { Root, Other };
[[nodiscard]] QString volumeName(const QString& label, const QString& mountPoint, VolumeRole role);
/// What the system could make free on the volume mounted at @p rootPath for something important, in bytes; 0 where it
/// doesn't tell, as on Linux.
[[nodiscard]] qint64 importantCapacity(const QString& rootPath);
/// Folds the system's figure for important usage into @p volume: the larger figure counts, the difference is purgeable.
void applyImportantCapacity(Volume* volume, qint64 importantBytes);

/// "Trash", and the file manager's name, translated as other texts take them for "%1". Some languages name both by
/// host.
[[nodiscard]] QString trashName();
[[nodiscard]] QString fileManagerName();

/// For systems with a recycle bin that is emptied as a whole, or with elevation; on both hosts false and without
/// effect.
[[nodiscard]] bool queryRecycleBin(qint64* bytes, qint64* items);
[[nodiscard]] bool emptyRecycleBin();
[[nodiscard]] bool isElevated();
[[nodiscard]] bool relaunchElevated();

/// Shows the file in the file manager. Returns at once. On Linux, where no file manager answers on the session bus, the
/// file's folder is opened in the desktop's way instead; needs an event loop, and does nothing without one.
/// @param done  called once with whether something was asked to show it: on macOS before this returns, on Linux from
/// the
///              application's event loop, once the file manager has answered; may be empty
void revealInFileManager(const QString& path, const std::function<void(bool)>& done = {});
/// Opens a folder in the file manager, in the same ways.
void openFolder(const QString& path);
/// Opens the system's pane for Full Disk Access; nothing in a build for Linux.
void openFullDiskAccessSettings();

} // namespace platform
