#include "support/FixtureHome.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include <cstdio>

#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
void makeFolder(const QString& path) {
  if (!QDir().mkpath(path)) qFatal("cannot make %s", qPrintable(path));
}

// By its bytes, since names that are no text would stay otherwise, and from folder to folder, however deep: a folder is
// told of, at last, from within.
void removeTree(const QByteArray& root) {
  ::nftw(
      root.constData(),
      [](const char* path, const struct stat*, int what, FTW* at) {
        const char* name = path + at->base;
        what == FTW_DP ? ::rmdir((QByteArray("../") + name).constData()) : std::remove(name);
        return 0;
      },
      16, FTW_DEPTH | FTW_PHYS | FTW_CHDIR);
}
} // namespace

FixtureHome::FixtureHome() : m_dir(QStringLiteral("/var/tmp/tarnwick-test-XXXXXX")), m_oldHome(qgetenv("HOME")) {
  makeFolder(path());
  makeFolder(temp());
  qputenv("HOME", path().toUtf8());
  qputenv("TMPDIR", temp().toUtf8());
  for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_DATA_DIRS"})
    qunsetenv(name);
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, outside(QStringLiteral("settings")));
}

FixtureHome::~FixtureHome() {
  // What the program's settings still hold back would make their file anew.
  if (!QCoreApplication::organizationName().isEmpty()) QSettings().sync();
  qputenv("HOME", m_oldHome);
  removeTree(QFile::encodeName(m_dir.path()));
}

QString FixtureHome::outside(const QString& relative) const {
  return QDir::cleanPath(m_dir.path() + QLatin1Char('/') + relative);
}

QString FixtureHome::path(const QString& relative) const {
  return QDir::cleanPath(m_dir.path() + QStringLiteral("/users/me/") + relative);
}

QString FixtureHome::temp(const QString& relative) const {
  return QDir::cleanPath(m_dir.path() + QStringLiteral("/scratch/T/") + relative);
}

QString FixtureHome::folder(const QString& relative) const {
  const QString full = QDir::isAbsolutePath(relative) ? relative : path(relative);
  makeFolder(full);
  return full;
}

QString FixtureHome::file(const QString& relative, qint64 bytes) const {
  const QString full = QDir::isAbsolutePath(relative) ? relative : path(relative);
  makeFolder(QFileInfo(full).path());
  QFile file(full);
  if (!file.open(QIODevice::WriteOnly)) qFatal("cannot make %s", qPrintable(full));
  file.write(QByteArray(bytes, 'x'));
  return full;
}

QString FixtureHome::link(const QString& relative, const QString& target) const {
  const QString full = QDir::isAbsolutePath(relative) ? relative : path(relative);
  makeFolder(QFileInfo(full).path());
  if (::symlink(QFile::encodeName(target).constData(), QFile::encodeName(full).constData()) != 0)
    qFatal("cannot link %s", qPrintable(full));
  return full;
}

QStringList FixtureHome::rulesForOutside() {
  const QString user = QString::number(::geteuid());
  return {QStringLiteral("/var/crash"), QStringLiteral(".Trash-") + user, QStringLiteral("/.Trash/") + user,
          QStringLiteral("/**/.Trash/") + user};
}

void FixtureHome::age(const QString& path, const QDateTime& when) {
  const auto touch = [&](const QString& one) {
    const timespec time{static_cast<time_t>(when.toSecsSinceEpoch()), 0};
    const timespec both[2] = {time, time};
    ::utimensat(AT_FDCWD, QFile::encodeName(one).constData(), both, AT_SYMLINK_NOFOLLOW);
  };
  QDirIterator below(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
  while (below.hasNext()) touch(below.next());
  touch(path);
}
