/// A home folder of its own for a program that scans: the cache is a tree that is there already, everything else is
/// empty.
#pragma once

#include <QDir>
#include <QFile>
#include <QString>

namespace bench {

/// Makes @p home the home folder of this process and of those that it starts, with @p tree as its cache, so that each
/// folder in the tree is a root. Before anything reads the environment.
inline void moveInto(const QString& home, const QString& tree) {
  for (const char* folder : {"tmp", "run"}) QDir(home).mkpath(QString::fromLatin1(folder));
  QFile::setPermissions(home + QStringLiteral("/run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  QFile::link(QDir(tree).absolutePath(), home + QStringLiteral("/.cache"));
  qputenv("HOME", home.toLocal8Bit());
  qputenv("TMPDIR", (home + QStringLiteral("/tmp")).toLocal8Bit());
  qputenv("XDG_RUNTIME_DIR", (home + QStringLiteral("/run")).toLocal8Bit());
  for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qunsetenv(name);
}

} // namespace bench
