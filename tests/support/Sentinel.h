/// Tells whether something repaints a widget, without waiting for what may never come.
#pragma once

#include "support/pixels.h"

#include <QHBoxLayout>
#include <QTest>

/// A widget beside another in a window: once it is painted, the other has been too if it was to be.
struct Sentinel {
  /// Takes the watched widget over and shows it.
  explicit Sentinel(QWidget* watched) : repaints(watched) {
    auto* row = new QHBoxLayout(&window);
    row->addWidget(watched);
    row->addWidget(other = new QWidget);
    other->setMinimumSize(10, 10);
    window.resize(600, 80);
    window.show();
  }
  /// Waits until it is shown and all that showing it brought is painted; false if that doesn't end.
  [[nodiscard]] bool settles() {
    return QTest::qWaitFor([&] { return repaints.count > 0; }) && QTest::qWaitFor([&] { return pending() == 0; });
  }
  /// Repaints of the watched widget by what is pending; -1 if nothing is painted at all.
  [[nodiscard]] int pending() {
    const int before = repaints.count;
    pixels::Repaints mine(other);
    other->update();
    if (!QTest::qWaitFor([&] { return mine.count > 0; })) return -1;
    return repaints.count - before;
  }

  QWidget window;
  QWidget* other;
  pixels::Repaints repaints;
};
