/// What the tests of the window's menus share: a window over a home folder of its own, and how its keys are pressed.
#pragma once

#include "app/AppState.h"
#include "engines/Cleaner.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/shell/AppMenu.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Overlay.h"
#include "ui/shell/commands.h"

#include <QSettings>

#include <memory>

/// The menu that is open; null if it is none of the window's own.
inline ui::AppMenu* openMenu() { return qobject_cast<ui::AppMenu*>(QApplication::activePopupWidget()); }

/// The entry of this text; null if there is none.
inline QAction* entryOf(const QMenu* menu, const QString& text) {
  for (QAction* action : menu->actions())
    if (action->text() == text) return action;
  return nullptr;
}

class MenusTest : public QObject {
 protected:
  /// Before each case.
  void make() {
    m_home = std::make_unique<FixtureHome>();
    QSettings().clear();
    pixels::setLook(false);
    m_home->file(QStringLiteral(".cache/acme/1"));
    AppSettings::instance().setExclusions(FixtureHome::rulesForOutside());
    CleanerWorld world;
    world.lockPath = m_home->outside(QStringLiteral("clean.lock"));
    m_state = std::make_unique<AppState>(nullptr, world);
    m_window = std::make_unique<ui::MainWindow>(m_state.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
  }
  /// After it.
  void drop() {
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    m_window.reset();
    m_state.reset();
    m_home.reset();
  }

  void press(const QKeySequence& keys) const {
    QWidget* focused = QApplication::focusWidget();
    QTest::keySequence(focused ? focused : m_window.get(), keys);
  }
  void press(const char* keys) const { press(QKeySequence(QString::fromLatin1(keys))); }
  void press(ui::commands::Id id) const {
    const QList<QKeySequence> keys = ui::commands::keysOf(*ui::commands::entry(id));
    QVERIFY(!keys.isEmpty());
    press(keys.first());
  }
  [[nodiscard]] QList<ui::Overlay*> dialogs() const { return m_window->findChildren<ui::Overlay*>(); }
  ui::AppMenu* showMenu() const {
    m_window->showAppMenu(m_window->mapToGlobal(QPoint(200, 60)));
    return openMenu();
  }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<ui::MainWindow> m_window;
};
