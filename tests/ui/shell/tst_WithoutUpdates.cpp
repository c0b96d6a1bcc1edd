// The program as a distribution builds it that updates its programs itself: nothing in it offers, or asks for, updates.
#include "core/deployment.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/shell/AppMenu.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/UpdateDialog.h"
#include "update/Updater.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;
using namespace ui;

// In place of the library's own.
bool deployment::updatesItself() { return false; }
QString deployment::domain() { return u"tarnwick.example"_s; }
QString deployment::releaseHost() { return u"releases.tarnwick.example"_s; }
QString deployment::website() { return u"https://tarnwick.example"_s; }

namespace {

TrayDesktop desktop() {
  return {.available = [] { return true; },
          .watch = [](QObject*, std::function<void()>) {},
          .mayComeLater = [] { return false; }};
}

QStringList textsOf(const QList<QAction*>& actions) {
  QStringList texts;
  for (const QAction* one : actions) texts << one->text();
  return texts;
}

} // namespace

class TestWithoutUpdates : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void nobodyIsAsked();
  void noMenuOffersIt();
  void theSettingsDoNotEither();
  void theWishIsNone();

 private:
  static void assertNoUpdates(const QStringList& texts) {
    QVERIFY2(texts.size() > 2, "nothing to look at");
    for (const QString& text : texts) QVERIFY2(!text.contains(u"update"_s, Qt::CaseInsensitive), qPrintable(text));
  }

  std::unique_ptr<AppState> m_state;
  std::unique_ptr<MainWindow> m_window;
};

void TestWithoutUpdates::initTestCase() {
  Theme::get().install(qApp);
  AppSettings::instance().setShowInTray(true);
  AppSettings::instance().setLowSpaceAlerts(false);
  m_state = std::make_unique<AppState>();
  m_window = std::make_unique<MainWindow>(m_state.get(), nullptr, desktop());
  m_window->show();
}

void TestWithoutUpdates::nobodyIsAsked() { QVERIFY(!m_window->findChild<Updater*>()); }

void TestWithoutUpdates::noMenuOffersIt() {
  assertNoUpdates(textsOf(m_window->actions()));
  assertNoUpdates(textsOf(m_window->findChild<QSystemTrayIcon*>()->contextMenu()->actions()));
  m_window->showAppMenu(m_window->mapToGlobal(QPoint(100, 100)));
  auto* menu = m_window->findChild<AppMenu*>();
  assertNoUpdates(textsOf(menu->actions()));
  menu->close();
}

void TestWithoutUpdates::theSettingsDoNotEither() {
  m_window->go(Sidebar::Settings);
  QStringList texts;
  for (const auto* one : m_window->findChildren<QAbstractButton*>())
    if (one->isVisible()) texts << one->text();
  QVERIFY(texts.contains(u"Open logs"_s));
  assertNoUpdates(texts);
}

void TestWithoutUpdates::theWishIsNone() {
  m_window->checkForUpdates();
  QVERIFY(!m_window->findChild<UpdateDialog*>());
}

int main(int argc, char** argv) { return uitest::run<TestWithoutUpdates>(argc, argv); }

#include "tst_WithoutUpdates.moc"
