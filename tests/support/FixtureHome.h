/// A home folder of its own for a test: HOME, the XDG folders, the temporary folder and the settings all lie in a
/// temporary directory that goes with the object. Make one before anything reads the environment.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

class FixtureHome {
 public:
  FixtureHome();
  ~FixtureHome();

  /// The fixture's root: a place outside the home folder for what a test must not lose.
  [[nodiscard]] QString outside(const QString& relative = {}) const;
  /// The home folder, or a path below it.
  [[nodiscard]] QString path(const QString& relative = {}) const;
  /// The temporary folder, or a path below it.
  [[nodiscard]] QString temp(const QString& relative = {}) const;

  /// Makes a folder (and those above it) below the home folder; returns its path.
  QString folder(const QString& relative) const;
  /// Makes a file of @p bytes really written bytes below the home folder, or at an absolute path; returns its path.
  QString file(const QString& relative, qint64 bytes = 4096) const;
  /// Makes a symbolic link; @p target stands as given.
  QString link(const QString& relative, const QString& target) const;
  /// Exclusion rules for any real run: they keep it from what the catalogue finds beside the home folder, the tester's
  /// own crash reports and the Trashes of further volumes.
  [[nodiscard]] static QStringList rulesForOutside();
  /// Sets the modification and access time of @p path, and of all below it, to @p when.
  static void age(const QString& path, const QDateTime& when);

 private:
  QTemporaryDir m_dir;
  QByteArray m_oldHome;
};
