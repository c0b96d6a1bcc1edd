/// What the tests of the Trash share: a home folder with a Trash of its own, and how a file gets there.
#pragma once

#include "RemovalRecorder.h"
#include "core/UniqueFd.h"
#include "core/trash.h"
#include "support/FixtureHome.h"

#include <QFileInfo>
#include <QObject>

#include <fcntl.h>

inline QByteArray raw(const QString& path) { return QFile::encodeName(path); }

inline UniqueFd openFolder(const QString& path) {
  return UniqueFd(::open(raw(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

inline QByteArray contentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

class TrashTest : public QObject {
 protected:
  /// Before each case.
  void make() {
    qunsetenv("XDG_DATA_HOME");
    m_trash = m_home.path(QStringLiteral(".local/share/Trash"));
  }
  /// After it.
  void drop() { wipe(m_home.path()); }

  /// Moves one thing to the Trash, in a session of its own.
  static trash::Outcome move(const QString& path) {
    trash::Session session;
    const QFileInfo info(path);
    return session.move(openFolder(info.path()).get(), raw(info.fileName()), raw(path));
  }

  FixtureHome m_home;
  QString m_trash;
};
