/// What the tests of the catalogue share: a new home for each case, and a look at the roots of a category.
#pragma once

#include "engines/categories.h"
#include "support/FixtureHome.h"

#include <QObject>

#include <algorithm>
#include <memory>

inline const CategoryDef& category(const QList<CategoryDef>& defs, const QString& id) {
  const auto found = std::find_if(defs.begin(), defs.end(), [&](const CategoryDef& def) { return def.id == id; });
  if (found == defs.end()) qFatal("no category %s", qPrintable(id));
  return *found;
}

inline const ScanRoot* rootAt(const QList<CategoryDef>& defs, const QString& id, const QString& path) {
  const QList<ScanRoot>& roots = category(defs, id).roots;
  const auto found = std::find_if(roots.begin(), roots.end(), [&](const ScanRoot& root) { return root.path == path; });
  return found == roots.end() ? nullptr : &*found;
}

/// "path|label|patterns" of each root of a category, in order.
inline QStringList rootsOf(const QList<CategoryDef>& defs, const QString& id) {
  QStringList lines;
  for (const ScanRoot& root : category(defs, id).roots)
    lines << root.path + QLatin1Char('|') + root.label + QLatin1Char('|') + root.patterns.join(QLatin1Char(' '));
  return lines;
}

/// The same without an order.
inline QStringList sortedRootsOf(const QList<CategoryDef>& defs, const QString& id) {
  QStringList lines = rootsOf(defs, id);
  lines.sort();
  return lines;
}

inline QStringList sorted(QStringList lines) {
  lines.sort();
  return lines;
}

class CatalogueTest : public QObject {
 protected:
  void make() {
    qunsetenv("TARNWICK_HOST");
    m_home = std::make_unique<FixtureHome>();
  }
  void drop() {
    m_home.reset();
    for (const char* name : {"TARNWICK_HOST", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qunsetenv(name);
  }

  /// A path below the home folder.
  [[nodiscard]] QString at(const QString& relative) const { return m_home->path(relative); }

  std::unique_ptr<FixtureHome> m_home;
};
