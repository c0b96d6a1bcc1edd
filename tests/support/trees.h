/// Trees that are hard to make and harder to get rid of: beyond the system's path limit, with names that are no text.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QProcess>
#include <QString>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>

namespace trees {

inline QByteArray raw(const QString& path) { return path.toUtf8(); }

/// Makes an empty file at a raw path.
inline void touch(const QByteArray& path) {
  const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (fd < 0) qFatal("cannot make %s", path.constData());
  ::close(fd);
}

/// Makes an empty file in an open folder.
inline void touchAt(int dirFd, const char* name) {
  const int fd = ::openat(dirFd, name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (fd < 0) qFatal("cannot make %s", name);
  ::close(fd);
}

/// Below the folder @p top, which is there, makes a chain of @p levels folders that each bear @p name. @p fill is
/// called with each folder's descriptor and how far below the top it lies, the top (0) first. Needs no path of that
/// length.
inline void makeChain(const QString& top, int levels, const QByteArray& name,
                      const std::function<void(int, int)>& fill) {
  int fd = ::open(raw(top).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  for (int level = 0; fd >= 0; ++level) {
    fill(fd, level);
    if (level == levels) break;
    if (::mkdirat(fd, name.constData(), 0755) != 0) qFatal("cannot make level %d", level);
    const int child = ::openat(fd, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ::close(fd);
    fd = child;
  }
  if (fd < 0) qFatal("cannot enter the chain");
  ::close(fd);
}

/// The path of a chain's folder @p level levels below the top.
inline QString chainPath(const QString& top, int level, const QByteArray& name) {
  return top + (QLatin1Char('/') + QString::fromUtf8(name)).repeated(level);
}

/// Removes a tree that Qt can't: one with paths beyond the limit.
inline void removeWhole(const QString& path) { QProcess::execute(QStringLiteral("rm"), {QStringLiteral("-rf"), path}); }

/// How many descriptors this process holds open.
inline qsizetype openDescriptors() {
  return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size();
}

} // namespace trees
