/// A folder that looks like the process file system, for tests that need locks, mounts, working folders or open files
/// without having them.
#pragma once

#include "support/FixtureHome.h"

#include <QFile>

class ProcStandIn {
 public:
  explicit ProcStandIn(const FixtureHome& home)
      : m_home(home), m_root(home.folder(home.outside(QStringLiteral("proc")))) {
    home.folder(m_root + QStringLiteral("/self"));
    write(QStringLiteral("/self/mountinfo"), "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n");
    write(QStringLiteral("/locks"), {});
  }

  [[nodiscard]] QString root() const { return m_root; }

  /// A process with this working folder and this executable.
  void addProcess(int pid, const QString& workingFolder, const QString& executable = QStringLiteral("/usr/bin/idle")) {
    const QString process = m_root + QStringLiteral("/%1").arg(pid);
    m_home.folder(process + QStringLiteral("/fd"));
    m_home.link(process + QStringLiteral("/cwd"), workingFolder);
    m_home.link(process + QStringLiteral("/exe"), executable);
  }
  /// A process that was added has this folder as its root.
  void setRoot(int pid, const QString& folder) { m_home.link(m_root + QStringLiteral("/%1/root").arg(pid), folder); }
  /// A process that was added holds this file open.
  void addOpenFile(int pid, const QString& path) {
    m_home.link(m_root + QStringLiteral("/%1/fd/%2").arg(pid).arg(++m_descriptors), path);
  }
  void addMount(const QByteArray& escapedPoint) {
    append(QStringLiteral("/self/mountinfo"),
           "90 22 0:40 / " + escapedPoint + " rw,relatime shared:1 - tmpfs tmpfs rw\n");
  }
  void addLock(quint64 inode) {
    append(QStringLiteral("/locks"), "1: FLOCK  ADVISORY  WRITE 4711 08:01:" + QByteArray::number(inode) + " 0 EOF\n");
  }

 private:
  void write(const QString& relative, const QByteArray& text, QIODevice::OpenMode mode = QIODevice::WriteOnly) const {
    QFile file(m_root + relative);
    if (!file.open(mode)) qFatal("cannot write %s", qPrintable(relative));
    file.write(text);
  }
  void append(const QString& relative, const QByteArray& text) const { write(relative, text, QIODevice::Append); }

  const FixtureHome& m_home;
  QString m_root;
  int m_descriptors = 2;
};
