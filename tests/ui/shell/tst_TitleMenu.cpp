// The menu of the title bar: its entries as they stand there, and every one of them used.
#include "MenusTest.h"
#include "app/identity.h"
#include "offered.h"
#include "support/Desktop.h"
#include "ui/shell/AboutDialog.h"
#include "ui/shell/ShortcutsOverlay.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/UpdateDialog.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace ui;

class TestTitleMenu : public MenusTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void appMenuRows();
  void appMenuMirrored();
  void appMenuEntriesAct();
  void appMenuAsksForUpdates();
  void appMenuUnderADialog();
  void appMenuByKey();
  void helpMenu();

 private:
  void choose(const QStringList& way) const;
};

/// Opens the menu and takes one entry after another, as the keyboard does.
void TestTitleMenu::choose(const QStringList& way) const {
  QMenu* menu = showMenu();
  for (const QString& text : way) {
    QVERIFY2(menu, qPrintable(text));
    QAction* action = entryOf(menu, text);
    QVERIFY2(action, qPrintable(text));
    menu->setActiveAction(action);
    QTest::keyClick(menu, action->menu() ? Qt::Key_Right : Qt::Key_Return);
    menu = action->menu();
  }
}

void TestTitleMenu::appMenuRows() {
  const AppMenu* menu = showMenu();
  QVERIFY(menu);
  QStringList texts;
  for (const QAction* action : menu->actions())
    texts << (action->isSeparator() ? u"-"_s
                                    : action->text() + u'|' + action->property("appMenuTrailingText").toString());
  QCOMPARE(texts, offered({u"Settings|"_s, u"-"_s, u"Check for Updates|"_s, u"Help|"_s,
                           u"About Tarnwick|"_s + identity::kVersion, u"-"_s, u"Quit Tarnwick|"_s}));
  for (const QAction* action : menu->actions()) QCOMPARE(action->icon().isNull(), action->isSeparator());
  QCOMPARE(menu->parentWidget(), m_window.get());
  QCOMPARE(menu->pos(), m_window->mapToGlobal(QPoint(200, 60)) - QPoint(14, 10));
  const auto* help = qobject_cast<AppMenu*>(entryOf(menu, u"Help"_s)->menu());
  QVERIFY(help);
  texts.clear();
  for (const QAction* action : help->actions()) texts << action->text();
  QCOMPARE(texts, (QStringList{u"Guide"_s, u"FAQ"_s, u"Open Log Folder"_s, u"Keyboard Shortcuts"_s}));
  QPointer<AppMenu> gone = openMenu();
  gone->close();
  QTRY_VERIFY(!gone);
}

// The other upper corner of its card stands there.
void TestTitleMenu::appMenuMirrored() {
  const pixels::Mirrored mirrored;
  m_window->move(0, 0);
  m_window->showAppMenu(QPoint(500, 60));
  const AppMenu* menu = openMenu();
  QVERIFY(menu);
  QCOMPARE(menu->geometry().right() + 1 - 14, 500);
  QCOMPARE(menu->y() + 10, 60);
}

void TestTitleMenu::appMenuEntriesAct() {
  choose({u"Settings"_s});
  QCOMPARE(m_window->page(), int(Sidebar::Settings));
  choose({u"About Tarnwick"_s});
  QVERIFY(m_window->findChild<AboutDialog*>());
  dialogs().first()->close();
  const Desktop desktop({u"https"_s, u"file"_s});
  choose({u"Help"_s, u"Guide"_s});
  choose({u"Help"_s, u"FAQ"_s});
  choose({u"Help"_s, u"Open Log Folder"_s});
  QCOMPARE(desktop.opened,
           (QStringList{u"/guide/get-started-with-tarnwick/"_s, u"/support-center/"_s, Cleaner::logDir()}));
  QTRY_VERIFY(dialogs().isEmpty());
  choose({u"Help"_s, u"Keyboard Shortcuts"_s});
  QVERIFY(m_window->findChild<ShortcutsOverlay*>());
  QSignalSpy leaving(qApp, &QCoreApplication::aboutToQuit);
  QTimer::singleShot(0, m_window.get(), [this] { choose({u"Quit Tarnwick"_s}); });
  QApplication::exec();
  QCOMPARE(leaving.count(), 1);
}

void TestTitleMenu::appMenuAsksForUpdates() {
  if (!deployment::updatesItself()) QSKIP("this build has no updates");
  choose({u"Check for Updates"_s});
  QVERIFY(m_window->findChild<UpdateDialog*>());
}

void TestTitleMenu::appMenuUnderADialog() {
  m_window->showAbout();
  const AppMenu* menu = showMenu();
  for (const QString& text : offered({u"Settings"_s, u"Check for Updates"_s, u"About Tarnwick"_s}))
    QVERIFY2(!entryOf(menu, text)->isEnabled(), qPrintable(text));
  QVERIFY(entryOf(menu, u"Quit Tarnwick"_s)->isEnabled());
  const QMenu* help = entryOf(menu, u"Help"_s)->menu();
  QVERIFY(entryOf(help, u"Guide"_s)->isEnabled());
  QVERIFY(!entryOf(help, u"Keyboard Shortcuts"_s)->isEnabled());
}

void TestTitleMenu::appMenuByKey() {
  press("F10");
  QVERIFY(openMenu());
  QCOMPARE(openMenu()->activeAction(), openMenu()->actions().first());
  QTest::keyClick(openMenu(), Qt::Key_Escape);
  QVERIFY(!QApplication::activePopupWidget());
  m_window->showAbout();
  press("F10");
  QVERIFY(openMenu());
  QCOMPARE(openMenu()->activeAction()->text(), u"Quit Tarnwick"_s); // the first that can be chosen
}

void TestTitleMenu::helpMenu() {
  AppMenu* menu = showMenu();
  menu->setActiveAction(entryOf(menu, u"Help"_s));
  QTest::keyClick(menu, Qt::Key_Right);
  auto* help = qobject_cast<AppMenu*>(QApplication::activePopupWidget());
  QVERIFY(help && help != menu);
  QCOMPARE(entryOf(help, u"Keyboard Shortcuts"_s)->property("appMenuTrailingText").toString(), u"Ctrl+?"_s);
}

int main(int argc, char** argv) { return uitest::run<TestTitleMenu>(argc, argv); }

#include "tst_TitleMenu.moc"
