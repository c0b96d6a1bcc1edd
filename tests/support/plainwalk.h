/// The two walkers written down the plain way: whole paths, fs::list, a list of paths that is used from its end. What
/// the real ones must agree with, call for call, on trees that a plain way can see.
#pragma once

#include "core/fs.h"

#include <QDir>
#include <QSet>

namespace plainwalk {

struct Told {
  QString folder;
  qint64 bytes;
  qint64 files;

  bool operator==(const Told&) const = default;
};

struct Measured {
  fs::Totals totals;
  QList<Told> told;
};

inline bool leavesDevice(const fs::Entry& entry, const fs::Entry& root) {
  return entry.device != root.device && entry.device != 0 && root.device != 0;
}

inline Measured measure(const QString& path, const QList<QString>& exclude = {}) {
  Measured out;
  fs::Entry root;
  if (!fs::stat(path, &root)) return out;
  if (!root.isDir) {
    out.totals = {root.allocated, 1, root.modifiedMs};
    return out;
  }
  QSet<QString> excluded;
  for (const QString& one : exclude) excluded.insert(QDir::cleanPath(one));
  QSet<std::pair<qint64, quint64>> seen;
  QList<QString> stack = {path};
  while (!stack.isEmpty()) {
    const QString dir = stack.takeLast();
    for (const fs::Entry& entry : fs::list(dir)) {
      const QString child = fs::join(dir, entry.name);
      if (entry.isDir) {
        if (!leavesDevice(entry, root) && !excluded.contains(QDir::cleanPath(child))) stack << child;
        continue;
      }
      const std::pair file(entry.device, entry.inode);
      if (entry.links >= 2 && seen.contains(file)) continue;
      seen.insert(file);
      out.totals.bytes += entry.allocated;
      out.totals.newestMs = std::max(out.totals.newestMs, entry.modifiedMs);
      if (++out.totals.files % 400 == 0) out.told << Told{dir, out.totals.bytes, out.totals.files};
    }
  }
  return out;
}

/// What a visit calls, in order: "skip? PARENT NAME" and "visit PATH".
inline QStringList visit(const QString& root, const QStringList& skipped = {}) {
  QStringList calls;
  fs::Entry top;
  if (!fs::stat(root, &top)) return calls;
  QList<QString> stack = {root};
  while (!stack.isEmpty()) {
    const QString dir = stack.takeLast();
    for (const fs::Entry& entry : fs::list(dir)) {
      if (entry.isSymlink) continue;
      if (!entry.isDir) {
        calls << QStringLiteral("visit ") + fs::join(dir, entry.name);
      } else if (!leavesDevice(entry, top)) {
        calls << QStringLiteral("skip? ") + dir + QLatin1Char(' ') + entry.name;
        if (!skipped.contains(entry.name)) stack << fs::join(dir, entry.name);
      }
    }
  }
  return calls;
}

} // namespace plainwalk
