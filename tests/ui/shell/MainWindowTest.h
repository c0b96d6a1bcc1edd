/// What the tests of the window share: one over a sample home, and what it tells and asks.
#pragma once

#include "app/AppState.h"
#include "engines/Cleaner.h"
#include "engines/systemdata.h"
#include "support/SampleHome.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/shell/ConfirmCleanDialog.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/Toast.h"

#include <QFile>
#include <QSettings>

#include <memory>

class MainWindowTest : public QObject {
 protected:
  /// Before each case.
  void make() {
    Theme::get().mac = true;
    m_home = std::make_unique<FixtureHome>();
    QSettings().clear();
    pixels::setLook(false);
    AppSettings::instance().setMoveToTrash(false);
    fillSampleHome(*m_home);
    startAgain();
  }
  /// After it.
  void drop() {
    m_window.reset();
    m_state.reset();
    m_home.reset();
    Theme::get().mac = true;
  }
  /// Another window, over what the last one left.
  void startAgain() {
    m_window.reset();
    CleanerWorld world;
    world.lockPath = m_home->outside(QStringLiteral("clean.lock")); // so that no test waits for another one
    SystemDataWorld systemData;
    systemData.root = m_home->outside(QStringLiteral("disk")); // as empty on every machine
    m_state = std::make_unique<AppState>(nullptr, world, systemData);
    m_window = std::make_unique<ui::MainWindow>(m_state.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
  }
  void scanWithButton() {
    m_window->go(ui::Sidebar::Cleanup);
    windowtest::click(*m_window, QStringLiteral("Start Smart Scan"));
    QTRY_COMPARE(m_state->phase, AppState::Review);
  }

  [[nodiscard]] bool there(const QString& relative) const { return QFile::exists(m_home->path(relative)); }
  [[nodiscard]] QString toastText() const {
    const auto* toast = m_window->findChild<ui::Toast*>();
    return toast->isHidden() ? QString() : toast->accessibleName();
  }
  [[nodiscard]] ui::ConfirmCleanDialog* question() const { return m_window->findChild<ui::ConfirmCleanDialog*>(); }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<ui::MainWindow> m_window;
};
