/// What the tests of the scan share: the Linux host, and a new home with a stand-in process file system for each case.
#pragma once

#include "app/records.h"
#include "engines/ProcStandIn.h"
#include "engines/ScanRun.h"
#include "engines/Scanner.h"
#include "support/FixtureHome.h"

#include <QObject>

#include <memory>

/// A catalogue entry with these roots.
inline CategoryDef categoryOf(const QString& id, const QList<ScanRoot>& roots) {
  CategoryDef def;
  def.id = id;
  def.roots = roots;
  return def;
}

inline ScanRoot rootOf(const QString& path, const QString& label = {}) {
  ScanRoot root;
  root.path = path;
  root.label = label;
  return root;
}

class ScanTest : public QObject {
 protected:
  ScanTest() { records::registerMetaTypes(); }

  void make() {
    qputenv("TARNWICK_HOST", "linux");
    m_home = std::make_unique<FixtureHome>();
    m_proc = std::make_unique<ProcStandIn>(*m_home);
  }
  void drop() {
    m_proc.reset();
    m_home.reset();
    qunsetenv("TARNWICK_HOST");
  }

  [[nodiscard]] ScannerWorld world() const {
    ScannerWorld bent;
    bent.sources.procRoot = m_proc->root();
    return bent;
  }
  [[nodiscard]] ScannerWorld worldWith(const QList<CategoryDef>& defs) const {
    ScannerWorld bent = world();
    bent.catalogue = [defs] { return defs; };
    return bent;
  }
  void scan(ScanRun* run, const QStringList& exclusions = {}, const QStringList& only = {}) const {
    Scanner scanner(nullptr, world());
    run->run(&scanner, exclusions, only);
  }
  void scanCatalogue(ScanRun* run, const QList<CategoryDef>& defs, const QStringList& exclusions = {}) const {
    Scanner scanner(nullptr, worldWith(defs));
    run->run(&scanner, exclusions);
  }
  /// Older than what may still be in use.
  static void makeOld(const QString& path) { FixtureHome::age(path, QDateTime::currentDateTime().addDays(-2)); }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<ProcStandIn> m_proc;
};
