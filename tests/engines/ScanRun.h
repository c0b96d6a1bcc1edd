/// Runs a scan to its end and keeps all that it told.
#pragma once

#include "engines/Scanner.h"

#include <QCoreApplication>
#include <QTest>

#include <algorithm>
#include <atomic>

struct ScanRun {
  struct Progress {
    qint64 bytes;
    qint64 files;
    QString path;
  };

  QStringList order; ///< "started", "start 0", "finish 0", "progress" (without a path alone), "finished"
  QList<CategoryDef> defs;
  QList<CategoryResult> told; ///< by categoryFinished
  QList<CategoryResult> results;
  QList<Progress> progress;
  bool cancelled = false;

  /// Connects to @p scanner; everything is told on the worker, one call at a time, before isDone().
  void listen(Scanner* scanner) {
    const auto direct = Qt::DirectConnection;
    QObject::connect(
        scanner, &Scanner::started, scanner,
        [this](const QList<CategoryDef>& all) {
          order << QStringLiteral("started");
          defs = all;
        },
        direct);
    QObject::connect(
        scanner, &Scanner::categoryStarted, scanner,
        [this](int index) { order << QStringLiteral("start %1").arg(index); }, direct);
    QObject::connect(
        scanner, &Scanner::categoryFinished, scanner,
        [this](int index, const CategoryResult& result) {
          order << QStringLiteral("finish %1").arg(index);
          told << result;
        },
        direct);
    QObject::connect(
        scanner, &Scanner::progress, scanner,
        [this](qint64 bytes, qint64 files, const QString& path) {
          if (path.isEmpty()) order << QStringLiteral("progress");
          progress << Progress{bytes, files, path};
        },
        direct);
    QObject::connect(
        scanner, &Scanner::finished, scanner,
        [this](const QList<CategoryResult>& all, bool wasCancelled) {
          order << QStringLiteral("finished");
          results = all;
          cancelled = wasCancelled;
          m_done = true;
        },
        direct);
  }
  [[nodiscard]] bool isDone() const { return m_done; }

  void run(Scanner* scanner, const QStringList& exclusions = {}, const QStringList& only = {}) {
    listen(scanner);
    scanner->start(exclusions, only);
    wait(scanner);
  }
  void wait(Scanner* scanner) { QTRY_VERIFY_WITH_TIMEOUT(m_done && !scanner->isRunning(), 60000); }

  [[nodiscard]] CategoryResult category(const QString& id) const {
    const auto found = std::find_if(results.begin(), results.end(), [&](const auto& one) { return one.def.id == id; });
    return found == results.end() ? CategoryResult() : *found;
  }
  /// Names of the items of a category, in their order.
  [[nodiscard]] QStringList names(const QString& id) const {
    QStringList names;
    for (const CleanItem& item : category(id).items) names << item.name;
    return names;
  }

 private:
  std::atomic<bool> m_done = false;
};
