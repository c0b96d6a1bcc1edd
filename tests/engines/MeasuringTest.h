/// What the tests of measuring System Data share: all that a scanner tells, taken down in order.
#pragma once

#include "engines/SystemDataScanner.h"
#include "engines/SystemDataTest.h"

#include <QTest>

#include <atomic>

/// All that one measuring tells, in order, taken down on its worker.
struct Course {
  struct Progress {
    int index;
    int total;
    QString path;
    qint64 bytes;
  };
  QStringList order; ///< "progress 0", "measured 0", "finished"; of progress only the first word on a row
  QList<Progress> progress;
  QList<qint64> bytes; ///< by measured
  QList<bool> denied;
  QList<SystemDataItem> items;
  bool cancelled = false;
  std::atomic<int> finished = 0;

  void listen(SystemDataScanner* scanner) {
    const auto direct = Qt::DirectConnection;
    QObject::connect(
        scanner, &SystemDataScanner::progress, scanner,
        [this](int index, int total, const QString& path, qint64 counted) {
          if (progress.isEmpty() || progress.last().index != index) order << QStringLiteral("progress %1").arg(index);
          progress << Progress{index, total, path, counted};
        },
        direct);
    QObject::connect(
        scanner, &SystemDataScanner::measured, scanner,
        [this](int index, qint64 counted, bool refused) {
          order << QStringLiteral("measured %1").arg(index);
          bytes << counted;
          denied << refused;
        },
        direct);
    QObject::connect(
        scanner, &SystemDataScanner::finished, scanner,
        [this](const QList<SystemDataItem>& all, bool wasCancelled) {
          order << QStringLiteral("finished");
          items = all;
          cancelled = wasCancelled;
          ++finished;
        },
        direct);
  }
};

class MeasuringTest : public SystemDataTest {
 protected:
  static constexpr int kPatienceMs = 60'000;

  void run(Course* course) {
    SystemDataScanner scanner(nullptr, m_world);
    course->listen(&scanner);
    scanner.start();
    QTRY_VERIFY_WITH_TIMEOUT(!scanner.isRunning(), kPatienceMs);
  }
  SystemDataItem measured(const char* id) {
    Course course;
    run(&course);
    return rowOf(course.items, QLatin1String(id));
  }
};
