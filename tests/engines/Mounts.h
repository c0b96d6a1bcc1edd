/// Mounts for tests, in a namespace of the process's own: nobody else sees them, and they end with it.
#pragma once

#include <QFile>
#include <QString>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace mounts {

/// Enters the namespace; a user without privileges becomes the root of one. Before there is a second thread.
/// False: the system doesn't allow it.
inline bool enter() {
  const uid_t user = ::geteuid();
  const auto write = [](const char* path, const QByteArray& text) {
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(text) == text.size();
  };
  const QByteArray map = "0 " + QByteArray::number(user) + " 1";
  const QByteArray groups = "0 " + QByteArray::number(::getegid()) + " 1";
  if (::unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  if (user != 0 && !(write("/proc/self/setgroups", "deny") && write("/proc/self/uid_map", map) &&
                     write("/proc/self/gid_map", groups)))
    return false;
  return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// A mount that ends with the object.
class Mount {
 public:
  /// A file system in memory at @p point, or another face of the folder @p source.
  explicit Mount(const QString& point, const QString& source = {}) : m_point(QFile::encodeName(point)) {
    const QByteArray from = QFile::encodeName(source);
    m_mounted = source.isEmpty() ? ::mount("tmpfs", m_point.constData(), "tmpfs", 0, "size=4m,mode=0700") == 0
                                 : ::mount(from.constData(), m_point.constData(), nullptr, MS_BIND, nullptr) == 0;
    if (!m_mounted) qFatal("cannot mount at %s", m_point.constData());
  }
  ~Mount() { ::umount2(m_point.constData(), MNT_DETACH); }
  Mount(const Mount&) = delete;
  Mount& operator=(const Mount&) = delete;

 private:
  QByteArray m_point;
  bool m_mounted = false;
};

} // namespace mounts
