// The window's commands: one table for the menu bar and the shortcuts, each of which is pressed on a real window.
#include "MenusTest.h"
#include "engines/LargeFileFinder.h"
#include "offered.h"
#include "ui/controls/Button.h"
#include "ui/shell/CommandSet.h"
#include "ui/shell/Sidebar.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QStackedWidget>

using namespace Qt::StringLiterals;
using namespace ui;
using commands::Id;

namespace {

/// Counts what the editing commands call, and takes no keys itself.
class Editable : public QWidget {
  Q_OBJECT

 public:
  explicit Editable(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }
  QStringList called;

 public slots:
  void undo() { called << u"undo"_s; }
  void redo() { called << u"redo"_s; }
  void cut() { called << u"cut"_s; }
  void copy() { called << u"copy"_s; }
  void paste() { called << u"paste"_s; }
  void selectAll() { called << u"selectAll"_s; }
};

} // namespace

class TestMenus : public MenusTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void menuBarAsDesigned();
  void menuBarActs();
  void everyCommandActs();
  void everyKeyCallsItsCommand();
  void noKeyTwice();
  void keysWhereThePlatformHasNone_data();
  void keysWhereThePlatformHasNone();
  void textsFollowTheWindow();
  void pages_data();
  void pages();
  void smartScanShowsBothPages();
  void findLargeFiles();
  void settings();
  void sidebar();
  void fullScreen();
  void minimize();
  void zoomAndFront();
  void closeWindow();
  void quit();
  void editCallsTheFocusedWidget_data();
  void editCallsTheFocusedWidget();
  void editIsHarmless();
  void lineEditKeepsItsKeys();
  void pagesRestUnderADialog();
  void windowKeysWorkUnderADialog();
};

// Menu, text, keys of ours, role; an empty text is a line.
void TestMenus::menuBarAsDesigned() {
  struct Row {
    const char* menu;
    const char* text;
    QAction::MenuRole role = QAction::NoRole;
    QKeySequence::StandardKey standard = QKeySequence::UnknownKey;
    const char* keys = "";
  };
  QList<Row> wanted = {
      {"File", "About Tarnwick", QAction::AboutRole},
      {"File", "Check for Updates…", QAction::ApplicationSpecificRole},
      {"File", "Settings…", QAction::PreferencesRole, QKeySequence::Preferences, "Ctrl+,"},
      {"File", "Quit Tarnwick", QAction::QuitRole, QKeySequence::Quit, "Ctrl+Q"},
      {"File", "Smart Scan", QAction::NoRole, QKeySequence::UnknownKey, "Ctrl+R"},
      {"File", "Find Large Files", QAction::NoRole, QKeySequence::UnknownKey, "Ctrl+Shift+L"},
      {"File", ""},
      {"File", "Close Window", QAction::NoRole, QKeySequence::Close},
      {"Edit", "Undo", QAction::NoRole, QKeySequence::Undo},
      {"Edit", "Redo", QAction::NoRole, QKeySequence::Redo},
      {"Edit", ""},
      {"Edit", "Cut", QAction::NoRole, QKeySequence::Cut},
      {"Edit", "Copy", QAction::NoRole, QKeySequence::Copy},
      {"Edit", "Paste", QAction::NoRole, QKeySequence::Paste},
      {"Edit", "Select All", QAction::NoRole, QKeySequence::SelectAll},
      {"View", "Smart Scan", QAction::NoRole, QKeySequence::UnknownKey, "Ctrl+1"},
      {"View", "Cleanup", QAction::NoRole, QKeySequence::UnknownKey, "Ctrl+2"},
      {"View", "Space Map", QAction::NoRole, QKeySequence::UnknownKey, "Ctrl+3"},
      {"View", "System Data", QAction::NoRole, QKeySequence::UnknownKey, "Ctrl+4"},
      {"View", ""},
      {"View", "Hide Sidebar", QAction::NoRole, QKeySequence::UnknownKey, "Ctrl+Meta+S"},
      {"View", "Enter Full Screen", QAction::NoRole, QKeySequence::FullScreen, "F11"},
      {"Window", "Minimize", QAction::NoRole, QKeySequence::UnknownKey, "Ctrl+M"},
      {"Window", "Zoom"},
      {"Window", ""},
      {"Window", "Bring All to Front"},
      {"Help", "Guide"},
      {"Help", "FAQ"},
      {"Help", "Open Log Folder"},
  };
  wanted.removeIf([](const Row& row) { return offered({QString::fromUtf8(row.text)}).isEmpty(); });
  QMenuBar bar;
  CommandSet set(this);
  set.fill(&bar);
  QStringList titles;
  QList<std::pair<QString, QAction*>> found;
  for (const QAction* top : bar.actions()) {
    titles << top->text();
    for (QAction* action : top->menu()->actions()) found.append({top->text(), action});
  }
  QCOMPARE(titles, (QStringList{u"File"_s, u"Edit"_s, u"View"_s, u"Window"_s, u"Help"_s}));
  QCOMPARE(found.size(), wanted.size());
  for (qsizetype i = 0; i < wanted.size(); ++i) {
    const QAction* action = found.at(i).second;
    const Row& row = wanted.at(i);
    QCOMPARE(found.at(i).first, QString::fromLatin1(row.menu));
    QCOMPARE(action->isSeparator(), *row.text == 0);
    if (action->isSeparator()) continue;
    QCOMPARE(action->text(), QString::fromUtf8(row.text));
    QCOMPARE(action->menuRole(), row.role);
    QList<QKeySequence> keys = QKeySequence::keyBindings(row.standard);
    if (keys.isEmpty() && *row.keys) keys << QKeySequence(QString::fromLatin1(row.keys));
    const QList<QKeySequence> shortcuts = action->shortcuts();
    QCOMPARE(QSet<QKeySequence>(shortcuts.begin(), shortcuts.end()), QSet<QKeySequence>(keys.begin(), keys.end()));
  }
}

void TestMenus::menuBarActs() {
  QMenuBar bar;
  CommandSet set(this);
  set.fill(&bar);
  QSignalSpy told(&set, &CommandSet::triggered);
  QSignalSpy shown(&set, &CommandSet::aboutToShow);
  QMenu* window = bar.actions()[3]->menu();
  emit window->aboutToShow();
  QCOMPARE(shown.count(), 1);
  entryOf(window, u"Zoom"_s)->trigger();
  QCOMPARE(told.count(), 1);
  QCOMPARE(told[0][0].value<Id>(), Id::Zoom);
}

// None is only a line in the table.
void TestMenus::everyCommandActs() {
  for (const commands::Entry& entry : commands::entries()) {
    if (entry.id == Id::Separator || !commands::isOffered(entry)) continue;
    bool carried = false;
    for (const QAction* action : m_window->actions())
      carried =
          carried || (action->text() == commands::textOf(entry) && action->shortcuts() == commands::keysOf(entry));
    QVERIFY2(carried, entry.text);
  }
}

void TestMenus::everyKeyCallsItsCommand() {
  auto* set = m_window->findChild<CommandSet*>();
  QVERIFY(disconnect(set, &CommandSet::triggered, m_window.get(), nullptr)); // nothing comes of it
  QList<Id> heard;
  connect(set, &CommandSet::triggered, this, [&](Id id) { heard << id; });
  auto* widget = new Editable(m_window.get());
  widget->show();
  widget->setFocus();
  int pressed = 0;
  for (const commands::Entry& entry : commands::entries()) {
    if (entry.id == Id::Separator || !commands::isOffered(entry)) continue;
    for (const QKeySequence& keys : commands::keysOf(entry)) {
      heard.clear();
      QTest::keySequence(widget, keys);
      QVERIFY2(heard == QList<Id>{entry.id}, qPrintable(keys.toString()));
      ++pressed;
    }
  }
  QVERIFY(pressed >= 20);
}

void TestMenus::noKeyTwice() {
  QHash<QKeySequence, QString> owners;
  for (const QAction* action : m_window->actions())
    for (const QKeySequence& keys : action->shortcuts()) {
      QVERIFY2(!owners.contains(keys), qPrintable(action->text() + u" and "_s + owners.value(keys)));
      owners.insert(keys, action->text());
    }
}

void TestMenus::keysWhereThePlatformHasNone_data() {
  QTest::addColumn<Id>("id");
  QTest::addColumn<QKeySequence::StandardKey>("standard");
  QTest::addColumn<QString>("keys");
  QTest::newRow("settings") << Id::OpenSettings << QKeySequence::Preferences << u"Ctrl+,"_s;
  QTest::newRow("quit") << Id::Quit << QKeySequence::Quit << u"Ctrl+Q"_s;
  QTest::newRow("full screen") << Id::ToggleFullScreen << QKeySequence::FullScreen << u"F11"_s;
}

void TestMenus::keysWhereThePlatformHasNone() {
  QFETCH(Id, id);
  QFETCH(QKeySequence::StandardKey, standard);
  QFETCH(QString, keys);
  commands::Entry entry = *commands::entry(id);
  QCOMPARE(entry.standard, standard);
  entry.standard = QKeySequence::UnknownKey; // what a platform without it gives
  QCOMPARE(commands::keysOf(entry), QList{QKeySequence(keys)});
  QVERIFY(!commands::keysOf(*commands::entry(id)).isEmpty());
}

void TestMenus::textsFollowTheWindow() {
  CommandSet set(this);
  const auto texts = [&] {
    return QStringList{set.action(Id::ToggleSidebar)->text(), set.action(Id::ToggleFullScreen)->text()};
  };
  QCOMPARE(texts(), (QStringList{u"Hide Sidebar"_s, u"Enter Full Screen"_s}));
  set.setSituation({.isSidebarCollapsed = true});
  QCOMPARE(texts(), (QStringList{u"Show Sidebar"_s, u"Enter Full Screen"_s}));
  set.setSituation({.isFullScreen = true});
  QCOMPARE(texts(), (QStringList{u"Hide Sidebar"_s, u"Exit Full Screen"_s}));
}

void TestMenus::pages_data() {
  QTest::addColumn<QString>("keys");
  QTest::addColumn<int>("page");
  QTest::newRow("overview") << u"Ctrl+1"_s << int(Sidebar::Overview);
  QTest::newRow("cleanup") << u"Ctrl+2"_s << int(Sidebar::Cleanup);
  QTest::newRow("space map") << u"Ctrl+3"_s << int(Sidebar::SpaceMap);
  QTest::newRow("system data") << u"Ctrl+4"_s << int(Sidebar::SystemData);
}

void TestMenus::pages() {
  QFETCH(QString, keys);
  QFETCH(int, page);
  m_window->go(page == Sidebar::Cleanup ? Sidebar::Overview : Sidebar::Cleanup);
  press(QKeySequence(keys));
  QCOMPARE(m_window->page(), page);
}

void TestMenus::smartScanShowsBothPages() {
  for (const int from :
       {Sidebar::Overview, Sidebar::Cleanup, Sidebar::SpaceMap, Sidebar::Settings, Sidebar::SystemData}) {
    m_window->go(from);
    QCOMPARE(m_window->page(), from);
    auto* pages = m_window->findChild<QStackedWidget*>();
    QList<int> visited;
    const auto watching = connect(pages, &QStackedWidget::currentChanged, this, [&] { visited << m_window->page(); });
    press("Ctrl+R");
    disconnect(watching);
    const QList<int> wanted{Sidebar::Overview, Sidebar::Cleanup};
    QCOMPARE(visited, from == Sidebar::Overview ? wanted.mid(1) : wanted);
    QCOMPARE(m_state->phase, AppState::Scanning);
    QTRY_COMPARE(m_state->phase, AppState::Review);
  }
}

void TestMenus::findLargeFiles() {
  QSignalSpy changed(m_state.get(), &AppState::largeFilesChanged);
  press("Ctrl+Shift+L");
  QCOMPARE(m_window->page(), int(Sidebar::SpaceMap));
  QVERIFY(changed.count() > 0);
  QTRY_VERIFY(m_state->largeScanned);
}

void TestMenus::settings() {
  press(Id::OpenSettings);
  QCOMPARE(m_window->page(), int(Sidebar::Settings));
}

void TestMenus::sidebar() {
  auto* column = m_window->findChild<Sidebar*>();
  const bool before = column->isCollapsed();
  press("Ctrl+Meta+S");
  QCOMPARE(column->isCollapsed(), !before);
  press("Ctrl+Meta+S");
  QCOMPARE(column->isCollapsed(), before);
}

void TestMenus::fullScreen() {
  press(Id::ToggleFullScreen);
  QTRY_VERIFY(m_window->isFullScreen());
  press(Id::ToggleFullScreen);
  QTRY_VERIFY(!m_window->isFullScreen());
  QVERIFY(m_window->isVisible());
}

void TestMenus::minimize() {
  press("Ctrl+M");
  QVERIFY(m_window->isMinimized());
  m_window->perform(Id::BringToFront);
  QVERIFY(!m_window->isMinimized());
}

void TestMenus::zoomAndFront() {
  m_window->perform(Id::Zoom);
  QTRY_VERIFY(m_window->isMaximized());
  m_window->perform(Id::BringToFront);
  QVERIFY(m_window->isMaximized());
  m_window->perform(Id::Zoom);
  QTRY_VERIFY(!m_window->isMaximized());
}

void TestMenus::closeWindow() {
  press(Id::CloseWindow);
  QVERIFY(m_window->isHidden());
}

void TestMenus::quit() {
  QSignalSpy leaving(qApp, &QCoreApplication::aboutToQuit);
  QTimer::singleShot(0, m_window.get(), [this] { press(Id::Quit); });
  QApplication::exec(); // would not return
  QCOMPARE(leaving.count(), 1);
  QVERIFY(m_window->isHidden());
}

void TestMenus::editCallsTheFocusedWidget_data() {
  QTest::addColumn<Id>("id");
  QTest::addColumn<QString>("method");
  QTest::newRow("undo") << Id::Undo << u"undo"_s;
  QTest::newRow("redo") << Id::Redo << u"redo"_s;
  QTest::newRow("cut") << Id::Cut << u"cut"_s;
  QTest::newRow("copy") << Id::Copy << u"copy"_s;
  QTest::newRow("paste") << Id::Paste << u"paste"_s;
  QTest::newRow("select all") << Id::SelectAll << u"selectAll"_s;
}

void TestMenus::editCallsTheFocusedWidget() {
  QFETCH(Id, id);
  QFETCH(QString, method);
  auto* widget = new Editable(m_window.get());
  widget->show();
  widget->setFocus();
  press(id);
  QCOMPARE(widget->called, QStringList{method});
  m_window->perform(id);
  QCOMPARE(widget->called.size(), 2);
}

// A widget that knows no such thing keeps its keys, and nothing is complained of.
void TestMenus::editIsHarmless() {
  QTest::failOnWarning(QRegularExpression(u".*"_s));
  auto* button = new Button(u"Press"_s);
  button->setParent(m_window.get());
  button->show();
  button->setFocus();
  for (const Id id : {Id::Undo, Id::Redo, Id::Cut, Id::Copy, Id::Paste, Id::SelectAll}) {
    m_window->perform(id);
    press(id);
    for (const QAction* action : m_window->actions())
      if (action->text() == commands::textOf(*commands::entry(id))) QVERIFY(!action->isEnabled());
  }
  button->clearFocus();
  QVERIFY(!QApplication::focusWidget());
  m_window->perform(Id::Cut);
  press(Id::Cut);
}

// Its own keys reach it once: nothing is pasted twice, and no key has two claims.
void TestMenus::lineEditKeepsItsKeys() {
  QTest::failOnWarning(QRegularExpression(u"[Aa]mbiguous"_s));
  QSignalSpy told(m_window->findChild<CommandSet*>(), &CommandSet::triggered);
  auto* edit = new QLineEdit(m_window.get());
  edit->show();
  edit->setFocus();
  QTest::keyClicks(edit, u"abc"_s);
  press("Ctrl+A");
  QCOMPARE(edit->selectedText(), u"abc"_s);
  press("Ctrl+C");
  QCOMPARE(QGuiApplication::clipboard()->text(), u"abc"_s);
  press("Ctrl+X");
  QCOMPARE(edit->text(), QString());
  press("Ctrl+V");
  QCOMPARE(edit->text(), u"abc"_s);
  press("Ctrl+Z");
  QCOMPARE(edit->text(), QString());
  press(QKeySequence::keyBindings(QKeySequence::Redo).first());
  QCOMPARE(edit->text(), u"abc"_s);
  QCOMPARE(told.count(), 0);
  m_window->perform(Id::SelectAll);
  m_window->perform(Id::Cut);
  QCOMPARE(edit->text(), QString());
}

void TestMenus::pagesRestUnderADialog() {
  m_window->showAbout();
  QSignalSpy found(m_state.get(), &AppState::largeFilesChanged);
  const bool collapsed = m_window->findChild<Sidebar*>()->isCollapsed();
  for (const char* keys : {"Ctrl+2", "Ctrl+3", "Ctrl+4", "Ctrl+R", "Ctrl+Shift+L", "Ctrl+,", "Ctrl+Meta+S", "Ctrl+?"})
    press(keys);
  m_window->perform(Id::About);
  m_window->perform(Id::CheckForUpdates);
  QCOMPARE(m_window->page(), int(Sidebar::Overview));
  QCOMPARE(m_state->phase, AppState::Empty);
  QCOMPARE(found.count(), 0);
  QCOMPARE(m_window->findChild<Sidebar*>()->isCollapsed(), collapsed);
  QCOMPARE(dialogs().size(), 1);
  dialogs().first()->close();
  press("Ctrl+2"); // the dialog is away, if not yet gone
  QCOMPARE(m_window->page(), int(Sidebar::Cleanup));
}

void TestMenus::windowKeysWorkUnderADialog() {
  m_window->showAbout();
  press("Ctrl+M");
  QVERIFY(m_window->isMinimized());
  m_window->showNormal();
  m_window->perform(Id::Zoom);
  QTRY_VERIFY(m_window->isMaximized());
  press(Id::CloseWindow);
  QVERIFY(m_window->isHidden());
}

int main(int argc, char** argv) { return uitest::run<TestMenus>(argc, argv); }

#include "tst_Menus.moc"
