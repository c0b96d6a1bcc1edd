/// The main of a test that shows widgets: an application as the program makes it, in a home folder of its own, with no
/// desktop to ask.
#pragma once

#include "support/FixtureHome.h"

#include <QApplication>
#include <QTest>

namespace uitest {

/// Before the application: nothing of the desktop that the test runs on reaches it.
inline void isolate() {
  for (const char* name : {"DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "TARNWICK_LANG", "TARNWICK_LOOK"})
    qunsetenv(name);
  QCoreApplication::setApplicationName(QStringLiteral("Tarnwick"));
  QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick"));
}

/// Runs @p Test, whose objects are made when the application is there.
template <typename Test>
int run(int argc, char** argv) {
  isolate();
  const FixtureHome home;
  QApplication app(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  Test test;
  return QTest::qExec(&test, argc, argv);
}

} // namespace uitest
