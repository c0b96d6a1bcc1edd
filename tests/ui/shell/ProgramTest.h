/// Tests of the program as it runs: the test program is also the program, once it is started as a child.
#pragma once

#include "ui/shell/program.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTest>

namespace programtest {

inline constexpr char kStore[] = "TARNWICK_TEST_STORE"; ///< folder of the settings; set in a child
inline constexpr int kPatienceMs = 60'000;
inline constexpr int kLookMs = 20; ///< how often a child looks at its window

/// Starts a child, whose settings are those of the test.
/// @param further  what else stands in its environment
inline void start(QProcess* process, const QStringList& arguments, const QProcessEnvironment& further = {}) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QString::fromLatin1(kStore), QFileInfo(QFileInfo(QSettings().fileName()).path()).path());
  environment.insert(further);
  process->setProcessEnvironment(environment);
  process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process->start(QCoreApplication::applicationFilePath(), arguments);
}

/// The main of such a test: runs @p Test, and in a child the program.
/// @param inChild  called as soon as the child has its application
template <typename Test>
int run(int argc, char** argv, QtStartUpFunction inChild) {
  if (!qEnvironmentVariableIsSet(kStore)) {
    QCoreApplication::setApplicationName(QStringLiteral("Tarnwick"));
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwick"));
    for (const char* name : {"DBUS_SESSION_BUS_ADDRESS", "TARNWICK_LANG", "TARNWICK_LOOK"}) qunsetenv(name);
    QCoreApplication app(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
  }
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, qEnvironmentVariable(kStore));
  qAddPreRoutine(inChild);
  return ui::runProgram(argc, argv);
}

} // namespace programtest
