/// Which data belongs to security-sensitive apps, which apps are running, and which files are open.
#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace appguard {

/// Whether a component of @p path is the data of a password manager, an input method, a security agent or a VPN.
/// Goes by the text alone, in any case of letters. Any thread.
[[nodiscard]] bool isProtectedAppData(const QString& path);
/// The same for one component.
[[nodiscard]] bool isProtectedName(QStringView component);
/// What isProtectedAppData guards, translated, for showing.
[[nodiscard]] QString protectedSummary();

/// The running applications at one moment.
struct RunningApps {
  QSet<QString> bundleIds;          ///< lower case; on Linux Flatpak ids and snap names
  QHash<QString, QString> appNames; ///< lower-case id to display name
  QSet<QString> processes;          ///< lower-case names of executables; on Linux also without version, "-bin", "-esr"
  QList<QString> processDirs;       ///< folder of each executable, lower case, with a "/" at the end; may repeat
};

/// The user's open files at one moment. A folder that some process works in, or holds open, counts as open itself; that
/// says nothing of what lies in it.
struct OpenFiles {
  QSet<QString> files;   ///< clean absolute paths
  QSet<QString> parents; ///< every folder above them, except "/"
  QSet<QString> roots;   ///< of files, the folders that are some process's root: all in them is in use. On Linux alone

  /// Adds a clean absolute path and the folders above it.
  void add(const QString& path);
  /// Whether the file itself is open.
  [[nodiscard]] bool contains(const QString& path) const;
  /// Whether something below this folder is open.
  [[nodiscard]] bool containsUnder(const QString& path) const;
};

/// Where the snapshots come from, for tests.
struct Sources {
  QString procRoot = QStringLiteral("/proc");
  QString ps = QStringLiteral("/bin/ps");
  QString lsof = QStringLiteral("/usr/sbin/lsof");
  int toolLimitMs = 10000;      ///< for ps and for the question about one file
  int openFilesLimitMs = 30000; ///< for the list of open files
};

/// Takes a snapshot. Blocks for as long as the system's source takes; never fails, an unreadable source is empty. On
/// Linux only what this process may read counts: all of the user's, and of others no more than a name. What a process
/// reached through a mount of its own, as in a container, bears the name that it has there.
[[nodiscard]] RunningApps runningApps(const Sources& sources = {});
[[nodiscard]] OpenFiles openFiles(const Sources& sources = {});
/// Whether some process has exactly this file open now, under whatever name, or works in this folder. False where that
/// can't be told.
[[nodiscard]] bool isFileInUse(const QString& path, const Sources& sources = {});

/// Display name of the running app that @p path belongs to, fit for a log; empty if none. Goes by the path's text: the
/// first part of it that names a running app, in any case of letters, decides. On the Linux host more folder names are
/// known, a package's cache root belongs to the package, and a folder directly below a cache root to what runs under
/// its name. Any thread; reads no disk.
[[nodiscard]] QString runningOwner(const QString& path, const RunningApps& apps);
/// Display name of the app with this lower-case id or executable; empty for one that the program has no name for.
[[nodiscard]] QString knownAppName(const QString& name);

/// The macOS route, whole on every system so that tests hold it: what the tools print, taken apart.
namespace tools {
/// @p psOutput is one executable path a line; reads the Info.plist of bundles on the way, each once a process.
[[nodiscard]] RunningApps parseProcesses(const QString& psOutput);
/// @p lsofOutput is in lsof's field form with names only. A path with escapes in it counts as it stands and undone.
[[nodiscard]] OpenFiles parseOpenFiles(const QString& lsofOutput);
[[nodiscard]] RunningApps runningApps(const Sources& sources);
[[nodiscard]] OpenFiles openFiles(const Sources& sources);
[[nodiscard]] bool isFileInUse(const QString& path, const Sources& sources);
/// The bundle's id, as a property list names it; empty if that can't be read. Reads the XML form, and on macOS the
/// binary one too.
[[nodiscard]] QString bundleIdentifier(const QString& plistPath);
/// The same out of the text of a property list in XML.
[[nodiscard]] QString identifierFromXml(const QByteArray& plist);
} // namespace tools

} // namespace appguard
