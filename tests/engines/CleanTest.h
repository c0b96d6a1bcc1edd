/// What the tests of the clean share: the Linux host, and a new bench for each case.
#pragma once

#include "app/records.h"
#include "engines/CleanBench.h"

#include <QObject>

#include <memory>

class CleanTest : public QObject {
 protected:
  CleanTest() { records::registerMetaTypes(); }

  void make() {
    qputenv("TARNWICK_HOST", "linux");
    m_bench = std::make_unique<CleanBench>();
  }
  void drop() {
    m_bench.reset();
    qunsetenv("TARNWICK_HOST");
  }

  /// A path below the home folder.
  [[nodiscard]] QString at(const QString& relative) const { return m_bench->home.path(relative); }
  /// Some process holds @p path open.
  void open(const QString& path) {
    m_bench->proc.addProcess(812, QStringLiteral("/"));
    m_bench->proc.addOpenFile(812, path);
  }
  /// The columns of a case that is the same for both modes.
  static void modes() {
    QTest::addColumn<bool>("toTrash");
    QTest::newRow("delete") << false;
    QTest::newRow("trash") << true;
  }

  std::unique_ptr<CleanBench> m_bench;
};
