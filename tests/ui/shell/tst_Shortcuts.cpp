// The list of the shortcuts: what stands on it, how it comes and goes, and the caps that its keys are painted as.
#include "MenusTest.h"
#include "support/window.h"
#include "ui/shell/KeyCaps.h"
#include "ui/shell/ShortcutsOverlay.h"

#include <QAccessible>

using namespace Qt::StringLiterals;
using namespace ui;

class TestShortcuts : public MenusTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void shortcutsAreListed();
  void shortcutsByKey();
  void keyNamesAreSplit_data();
  void keyNamesAreSplit();
  void capsStandInARow();
  void shortcutsFitTheSmallestWindow();
};

// Every command with keys, and no other, is on the list, with its first keys.
void TestShortcuts::shortcutsAreListed() {
  m_window->setSidebarCollapsed(true);
  m_window->showShortcuts();
  const auto* list = m_window->findChild<ShortcutsOverlay*>();
  QVERIFY(list && list->isVisible());
  QCOMPARE(list->accessibleName(), u"Keyboard shortcuts"_s);
  const QStringList texts = windowtest::shownTexts(*list);
  QStringList shown;
  for (const KeyCaps* caps : list->findChildren<KeyCaps*>()) shown << caps->shownText();
  QStringList wanted;
  for (const QAction* action : m_window->actions()) {
    if (action->shortcut().isEmpty()) continue;
    wanted << action->shortcut().toString(QKeySequence::NativeText);
    QString text = action->text();
    QVERIFY2(texts.contains(text.remove(u'…')), qPrintable(text));
  }
  shown.sort();
  wanted.sort();
  QCOMPARE(shown, wanted);
  for (const char* keys : {"Ctrl+Shift+L", "Ctrl+W", "Ctrl+Shift+Z"}) // of several, the one that everybody knows
    QVERIFY2(shown.contains(QString::fromLatin1(keys)), keys);
  for (const char* title : {"File", "Edit", "View", "Window", "Help", "Show Sidebar", "Keyboard shortcuts"})
    QVERIFY2(texts.contains(QString::fromLatin1(title)), title);
  QVERIFY(!texts.contains(u"Zoom"_s));
}

void TestShortcuts::shortcutsByKey() {
  press("Ctrl+?");
  QCOMPARE(m_window->findChildren<ShortcutsOverlay*>().size(), 1);
  press("Ctrl+?");
  QCOMPARE(m_window->findChildren<ShortcutsOverlay*>().size(), 1);
  windowtest::press(*m_window, Qt::Key_Escape);
  QTRY_VERIFY(!m_window->findChild<ShortcutsOverlay*>());
  press("Ctrl+?");
  windowtest::press(*m_window, Qt::Key_Return); // the button to close it
  QTRY_VERIFY(!m_window->findChild<ShortcutsOverlay*>());
}

void TestShortcuts::keyNamesAreSplit_data() {
  QTest::addColumn<QString>("keys");
  QTest::addColumn<QStringList>("names");
  QTest::newRow("one") << u"F10"_s << QStringList{u"F10"_s};
  QTest::newRow("three") << u"Ctrl+Shift+L"_s << QStringList{u"Ctrl"_s, u"Shift"_s, u"L"_s};
  QTest::newRow("plus") << u"Ctrl++"_s << QStringList{u"Ctrl"_s, u"+"_s};
  QTest::newRow("comma") << u"Ctrl+,"_s << QStringList{u"Ctrl"_s, u","_s};
  QTest::newRow("none") << QString() << QStringList();
}

void TestShortcuts::keyNamesAreSplit() {
  QFETCH(QString, keys);
  QTEST(keyNames(QKeySequence(keys)), "names");
}

void TestShortcuts::capsStandInARow() {
  const QList<QRectF> boxes = keyCapsLayout({20, 3});
  QCOMPARE(boxes, (QList<QRectF>{{0, 0, 34, 22}, {38, 0, 22, 22}}));
  QVERIFY(keyCapsLayout({}).isEmpty());
  KeyCaps caps(QKeySequence(u"Ctrl+R"_s));
  caps.resize(caps.sizeHint());
  QVERIFY(caps.width() > 22 + 4 + 22);
  const QImage image = pixels::rendered(caps);
  QVERIFY(pixels::count(image, image.rect(), Theme::get().surface2) > 0);
  QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
  const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&caps);
  QCOMPARE(heard->text(QAccessible::Name), u"Ctrl+R"_s);
}

void TestShortcuts::shortcutsFitTheSmallestWindow() {
  m_window->resize(m_window->minimumSize());
  for (const bool mac : {true, false}) {
    Theme::get().mac = mac;
    m_window->showShortcuts();
    const auto* list = m_window->findChild<ShortcutsOverlay*>();
    QTRY_VERIFY(list->rect().contains(list->panel->geometry()));
    dialogs().first()->close();
    QTRY_VERIFY(dialogs().isEmpty());
  }
  Theme::get().mac = true;
}

int main(int argc, char** argv) { return uitest::run<TestShortcuts>(argc, argv); }

#include "tst_Shortcuts.moc"
