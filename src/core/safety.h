/// What must never be removed: the fixed protected locations, and the user's "Never touch these" rules.
/// Both answers are final. Works on a path's text alone; the disk is read once for an environment, to tell the user's
/// own folders and the links of the home folder.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <memory>
#include <vector>

namespace safety {

/// Whether @p path belongs to the system, or is one of the folders that a cleaner must never remove as a whole.
/// True for an empty, relative or shallow path. The lists of platform::host() hold, and in a preview those of both
/// hosts. Any thread; no lock but that of the environment.
[[nodiscard]] bool isProtected(const QString& path);

/// Whether one of @p rules matches @p path or a folder above it. A rule whose matching fails counts as a match: that is
/// so where path or rule is no valid UTF-16, and nowhere else.
/// Compiled once a process; any thread, one after another. The empty list costs no lock.
[[nodiscard]] bool isExcluded(const QString& path, const QList<QString>& rules);

/// A short, untranslated list of the best known protected locations, for showing: those of macOS on the macOS host,
/// else those of Linux.
[[nodiscard]] QString protectedSummary();

/// Slashes forward, no ".", ".." or doubled slash, no slash at the end but for "/" itself. Only a relative path may
/// keep a ".." at its start.
[[nodiscard]] QString normalized(const QString& path);

/// The protected locations of one environment, by their text. Immutable; any thread.
class Locations {
 public:
  /// Those of platform::host(), the home folder and the XDG folders as they are now; kept for the next call.
  [[nodiscard]] static std::shared_ptr<const Locations> current();
  /// The same where the password database names @p passwordHome; made anew. "/" and the empty one are no home.
  [[nodiscard]] static std::shared_ptr<const Locations> withPasswordHome(const QString& passwordHome);

  /// What isProtected answers for a normalized path.
  [[nodiscard]] bool hold(QStringView normalized) const;
  /// The same for a normalized path whose folder isn't protected.
  [[nodiscard]] bool holdBelow(QStringView normalized) const;

 private:
  enum class Reach : quint8 {
    None,
    Itself, // the folder, not what lies in it
    Root,   // with everything below but the exceptions
    Tree,   // with everything below
  };
  struct Place {
    QString path;
    Reach reach;
  };
  struct Sandboxes {
    QString parent;      // with a "/" at the end
    qsizetype homeDepth; // components from an app's folder to its home folder
  };

  explicit Locations(const QString& passwordHome);
  void add(const QString& path, Reach reach);
  void addHome(const QString& home);
  void addLinux(const QStringList& homes, const QString& passwordHome);
  void addHomeException(const QString& home);
  void addSecrets(const QString& config, const QString& data);
  void index();
  [[nodiscard]] Reach reachOf(QStringView path) const;
  [[nodiscard]] bool isException(QStringView path) const;
  [[nodiscard]] bool isBrowserData(QStringView path) const;

  std::vector<Place> m_places;        // shorter paths first
  std::vector<quint32> m_firstOfSize; // the first place of at least this many characters
  std::vector<QString> m_exceptions;  // with a "/" at the end
  std::vector<Sandboxes> m_sandboxes;
};

} // namespace safety
