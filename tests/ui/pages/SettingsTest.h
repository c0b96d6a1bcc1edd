/// What the tests of the Settings page share: a page over an empty store, and its rows by their titles.
#pragma once

#include "app/AppState.h"
#include "support/FixtureHome.h"
#include "support/settings.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/pages/SettingsPage.h"

#include <QLabel>
#include <QPushButton>

#include <memory>

class SettingsTest : public QObject {
 protected:
  SettingsTest() { records::registerMetaTypes(); }

  /// Before each case.
  void make() {
    m_home = std::make_unique<FixtureHome>();
    settingsstore::stayWithTheFirst();
    settingsstore::forget();
  }
  /// After it.
  void drop() {
    m_page.reset();
    m_state.reset();
    m_home.reset();
    qunsetenv("TARNWICK_HOST");
    Theme::get().mac = true;
  }
  /// Makes the page anew, in the words of @p host.
  void open(const char* host = "linux", bool mac = true) {
    qputenv("TARNWICK_HOST", host);
    Theme::get().mac = mac;
    m_page.reset();
    m_state = std::make_unique<AppState>();
    m_page = std::make_unique<ui::SettingsPage>(m_state.get());
    m_page->resize(944, 780);
    m_page->show();
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    settle();
  }
  static AppSettings& settings() { return AppSettings::instance(); }
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  /// The widget with a row's title in it.
  [[nodiscard]] QWidget* row(const QString& title) const {
    for (const QLabel* one : m_page->findChildren<QLabel*>())
      if (one->text() == title) return one->parentWidget();
    qFatal("there is no row %s", qPrintable(title));
  }
  /// What its tip says, without markup.
  [[nodiscard]] static QString tipOf(const QWidget* row) { return windowtest::plain(row->toolTip()); }
  template <typename Control>
  [[nodiscard]] Control* control(const QString& title) const {
    const QList<Control*> all = row(title)->findChildren<Control*>();
    if (all.isEmpty()) qFatal("the row %s has no such control", qPrintable(title));
    return all.last();
  }
  [[nodiscard]] QPushButton* button(const QString& text) const {
    for (QPushButton* one : m_page->findChildren<QPushButton*>())
      if (one->text() == text) return one;
    return nullptr;
  }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<ui::SettingsPage> m_page;
};
