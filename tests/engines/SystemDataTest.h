/// What the tests of System Data share: for each case a new home, a stand-in for the root of the disk, and outside
/// tools that are scripts of the test.
#pragma once

#include "core/fs.h"
#include "engines/ProcStandIn.h"
#include "engines/systemdata.h"
#include "support/FixtureHome.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QTest>

#include <algorithm>
#include <memory>

inline const SystemDataItem& rowOf(const QList<SystemDataItem>& rows, const QString& id) {
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const SystemDataItem& row) { return row.id == id; });
  if (found == rows.end()) qFatal("no row %s", qPrintable(id));
  return *found;
}

/// All of a file; empty where there is none.
inline QString textOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

class SystemDataTest : public QObject {
 protected:
  SystemDataTest() { records::registerMetaTypes(); }

  /// @p host  "mac" or "linux"
  void make(const char* host) {
    qputenv("TARNWICK_HOST", host);
    m_home = std::make_unique<FixtureHome>();
    m_proc = std::make_unique<ProcStandIn>(*m_home);
    m_world = {};
    m_world.root = m_home->folder(m_home->outside(QStringLiteral("disk")));
    m_world.sources.procRoot = m_proc->root();
    m_world.tmutil = tool("tmutil");
    m_world.osascript = tool("osascript");
    m_world.xcrun = tool("xcrun");
    m_world.open = tool("open");
  }
  void drop() {
    m_proc.reset();
    m_home.reset();
    for (const char* name : {"TARNWICK_HOST", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qunsetenv(name);
  }

  /// A path below what stands for the root of the disk.
  [[nodiscard]] QString disk(const QString& relative) const { return m_world.root + QLatin1Char('/') + relative; }
  /// Where a tool is looked for, and where it leaves what it was called with.
  [[nodiscard]] QString tool(const char* name) const {
    return m_home->outside(QStringLiteral("tools/") + QLatin1String(name));
  }
  [[nodiscard]] QString callsOf(const char* name) const { return tool(name) + QStringLiteral(".calls"); }

  /// Puts a shell script in the place of a tool. It notes its arguments, one a line and each call whole at once, before
  /// @p body runs.
  void putTool(const char* name, const QByteArray& body) const {
    const QString path = m_home->file(tool(name), 0);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write %s", name);
    file.write("#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$0.now\"; mv \"$0.now\" \"$0.calls\"\n" + body + '\n');
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
  }
  /// A tmutil that lists what the file "list" beside it holds.
  void putSnapshots(const QByteArray& list) const {
    putTool("tmutil", "cat \"${0%/*}/list\"");
    writeList(list);
  }
  void writeList(const QByteArray& list) const {
    QFile file(m_home->file(tool("list"), 0));
    if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write the list");
    file.write(list);
  }

  /// What must be true of every row before anything is measured.
  void checkNothingIsMeasured() const {
    for (const SystemDataItem& row : rows()) {
      QCOMPARE(row.bytes, 0);
      QCOMPARE(row.files, 0);
      QCOMPARE(row.denied, false);
      QCOMPARE(row.count, -1);
      QCOMPARE(row.detail, QString());
    }
  }

  [[nodiscard]] QList<SystemDataItem> rows() const { return systemdata::definitions(m_world); }
  [[nodiscard]] SystemDataItem row(const char* id) const { return rowOf(rows(), QLatin1String(id)); }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<ProcStandIn> m_proc;
  SystemDataWorld m_world;
};
