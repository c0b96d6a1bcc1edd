/// What the tests of the tray on a desktop share: a window there, and how a test program runs itself again on a screen
/// of its own.
#pragma once

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "engines/Cleaner.h"
#include "support/servers.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Tray.h"

#include <QSettings>

#include <memory>

class DesktopTest : public QObject {
 protected:
  void openWindow() {
    m_home = std::make_unique<FixtureHome>();
    QSettings().clear();
    m_home->file(QStringLiteral(".cache/acme/1"));
    AppSettings& settings = AppSettings::instance();
    settings.setExclusions(FixtureHome::rulesForOutside());
    settings.setLowSpaceAlerts(false);
    settings.setShowInTray(true);
    CleanerWorld world;
    world.lockPath = m_home->outside(QStringLiteral("clean.lock"));
    m_state = std::make_unique<AppState>(nullptr, world);
    m_window = std::make_unique<ui::MainWindow>(m_state.get());
  }
  void closeWindow() {
    m_window.reset();
    m_state.reset();
    m_home.reset();
  }
  [[nodiscard]] ui::Tray* tray() const { return m_window->findChild<ui::Tray*>(); }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<ui::MainWindow> m_window;
};

namespace desktoptest {

inline constexpr char kChild[] = "TARNWICK_TEST_CHILD"; ///< set in the program that runs on the screen
inline constexpr char kBus[] = "TARNWICK_TEST_BUS";     ///< the bus's address there; empty is none

/// Runs @p Test on the screen, and the bus, that this child was started on.
template <typename Test>
int runOnDesktop(int argc, char** argv) {
  const QByteArray address = qgetenv(kBus);
  uitest::isolate();
  if (!address.isEmpty()) qputenv("DBUS_SESSION_BUS_ADDRESS", address);
  const FixtureHome home;
  QApplication app(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QGuiApplication::setDesktopFileName(QStringLiteral("tarnwick"));
  Test test;
  return QTest::qExec(&test, argc, argv);
}

/// Starts this program again. @return its exit code, or 1 if it didn't end well
inline int startOn(const servers::Server& screen, const QString& bus = {}) {
  QProcess child;
  QProcessEnvironment environment = servers::onScreen(screen);
  environment.insert(QString::fromLatin1(kChild), QStringLiteral("yes"));
  environment.insert(QString::fromLatin1(kBus), bus);
  child.setProcessEnvironment(environment);
  child.setProcessChannelMode(QProcess::ForwardedChannels);
  child.start(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
  return child.waitForFinished(60000) && child.exitStatus() == QProcess::NormalExit ? child.exitCode() : 1;
}

} // namespace desktoptest
