// ctest: LABELS journey
// The settings as a user works them: by mouse and keyboard, over a restart of the window, and with a damaged store.
#include "JourneyTest.h"

#include "core/login.h"
#include "support/settings.h"
#include "ui/controls/Note.h"
#include "ui/controls/Select.h"
#include "ui/controls/SelectPopup.h"
#include "ui/controls/Switch.h"
#include "ui/pages/SettingsPage.h"
#include "ui/shell/NavButton.h"
#include "ui/shell/Toast.h"

#include <QSettings>

using namespace windowtest;

class TestJourneySettings : public JourneyTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { settingsstore::forget(); }
  void cleanup() {
    close();
    Theme::get().mac = true;
    AppSettings::instance().setThemeMode(AppSettings::Light);
  }

  void sidebarLeadsThere_data();
  void sidebarLeadsThere();
  void everyControlLastsOverARestart();
  void byKeyboardAlone();
  void trashChoiceReachesTheClean();
  void ruleKeepsAFolder();
  void damagedStoreOnTheWay_data();
  void damagedStoreOnTheWay();
  void damagedStoreIsLeftByTheWindow();

 private:
  [[nodiscard]] ui::SettingsPage* page() const { return m_window->findChild<ui::SettingsPage*>(); }
  template <typename Control>
  [[nodiscard]] Control* control(const QString& name) const {
    for (Control* one : page()->findChildren<Control*>())
      if (one->accessibleName() == name) return one;
    qFatal("there is no %s", qPrintable(name));
  }
  void flip(const QString& name) const { QTest::mouseClick(control<ui::Switch>(name), Qt::LeftButton); }
  void pick(const QString& name, const QString& text) const {
    auto* one = control<ui::Select>(name);
    one->activateItem(one->findText(text));
    QCOMPARE(one->currentText(), text);
  }
  /// Closes the window and opens another one over the same home and store.
  void restartWindow() {
    m_window.reset();
    m_state.reset();
    QSettings().sync();
    m_state = std::make_unique<AppState>();
    m_window = std::make_unique<ui::MainWindow>(m_state.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_window->go(ui::Sidebar::Settings);
  }
  void begin(Small kind) {
    open(kind);
    settingsstore::stayWithTheFirst();
  }
  static QString store() { return AppSettings::instance().path(); }
};

void TestJourneySettings::sidebarLeadsThere_data() {
  QTest::addColumn<bool>("mac");
  QTest::newRow("mac metrics") << true;
  QTest::newRow("other metrics") << false;
}

void TestJourneySettings::sidebarLeadsThere() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  begin(Small::Empty);
  QAbstractButton* entry = button(*m_window, u"Settings"_s);
  QVERIFY(entry);
  QTest::mouseClick(entry, Qt::LeftButton);
  QCOMPARE(m_window->page(), int(ui::Sidebar::Settings));
  QVERIFY(page()->isVisible());
  QVERIFY(entry->isChecked());
}

void TestJourneySettings::everyControlLastsOverARestart() {
  begin(Small::Empty);
  m_window->go(ui::Sidebar::Settings);
  for (const char* name :
       {"Move items to the Trash", "Low space alerts", "Open at login", "Show Tarnwick in the system tray"})
    flip(QString::fromLatin1(name));
  pick(u"Large file size"_s, u"250 MB"_s);
  pick(u"Consider files old after"_s, u"24 months"_s);
  pick(u"Scheduled scan"_s, u"Monthly"_s);
  pick(u"Theme"_s, u"Dark"_s);
  QVERIFY(Theme::get().dark);
  pick(u"Language"_s, u"Deutsch"_s);
  QVERIFY(shows(*page(), u"Restart now"_s));
  QVERIFY(QFile::exists(login::path()));

  restartWindow();
  const AppSettings& settings = AppSettings::instance();
  QVERIFY(settings.moveToTrash()); // a journey begins with it off
  QVERIFY(!settings.lowSpaceAlerts() && settings.startAtLogin() && !settings.showInTray());
  QVERIFY(control<ui::Switch>(u"Move items to the Trash"_s)->isChecked());
  QVERIFY(!control<ui::Switch>(u"Low space alerts"_s)->isChecked());
  QVERIFY(control<ui::Switch>(u"Open at login"_s)->isChecked());
  QVERIFY(!control<ui::Switch>(u"Show Tarnwick in the system tray"_s)->isChecked());
  QCOMPARE(control<ui::Select>(u"Large file size"_s)->currentText(), u"250 MB"_s);
  QCOMPARE(control<ui::Select>(u"Consider files old after"_s)->currentText(), u"24 months"_s);
  QCOMPARE(control<ui::Select>(u"Scheduled scan"_s)->currentText(), u"Monthly"_s);
  QCOMPARE(control<ui::Select>(u"Theme"_s)->currentText(), u"Dark"_s);
  QCOMPARE(control<ui::Select>(u"Language"_s)->currentText(), u"Deutsch"_s);
  // What another process would read.
  const QByteArray text = settingsstore::bytes(store());
  for (const char* line : {"moveToTrash=true", "lowSpaceAlerts=false", "startAtLogin=true", "showInTray=false",
                           "thresholdMB=250", "oldMonths=24", "schedule=2", "theme=2", "language=de"})
    QVERIFY2(text.contains(line), line);
}

void TestJourneySettings::byKeyboardAlone() {
  begin(Small::Empty);
  tabTo(*m_window, u"Smart Scan"_s);
  for (int i = 0; i < 5 && m_window->page() != ui::Sidebar::Settings; ++i) press(*m_window, Qt::Key_Down);
  QCOMPARE(m_window->page(), int(ui::Sidebar::Settings));
  const auto goTo = [&](const QString& name) {
    QVERIFY2(tabUntil(*m_window, [&](const QWidget* at) { return at->accessibleName() == name; }), qPrintable(name));
  };
  goTo(u"Low space alerts"_s);
  press(*m_window, Qt::Key_Space);
  QVERIFY(!AppSettings::instance().lowSpaceAlerts());
  goTo(u"Scheduled scan"_s);
  press(*m_window, Qt::Key_Down);
  QCOMPARE(AppSettings::instance().schedule(), AppSettings::Monthly);
  goTo(u"Remove .git"_s);
  press(*m_window, Qt::Key_Space);
  settle();
  QVERIFY(!AppSettings::instance().exclusions().contains(u".git"_s));
}

void TestJourneySettings::trashChoiceReachesTheClean() {
  begin(Small::Sample);
  m_window->go(ui::Sidebar::Settings);
  flip(u"Move items to the Trash"_s);
  scan();
  QCOMPARE(cleanButton()->toolTip(), u"moved to the Trash"_s);
  m_window->go(ui::Sidebar::Settings);
  flip(u"Move items to the Trash"_s);
  QCOMPARE(cleanButton()->toolTip(), u"deleted permanently"_s);
}

void TestJourneySettings::ruleKeepsAFolder() {
  begin(Small::Sample);
  AppSettings& settings = AppSettings::instance();
  settings.setExclusions(settings.exclusions() << m_home->path(u".cache/thumbnails"_s));
  scan();
  QVERIFY(!m_state->result(u"thumbs"_s) || m_state->result(u"thumbs"_s)->bytes == 0);
}

void TestJourneySettings::damagedStoreOnTheWay_data() {
  QTest::addColumn<QByteArray>("damage");
  QTest::addColumn<QString>("cleanup");
  QTest::addColumn<QString>("rules");
  QTest::newRow("broken") << QByteArray("broken") << u"The settings can't be read."_s
                          << u"The settings can't be read."_s;
  QTest::newRow("empty") << QByteArray() << u"Rules on what to keep have gone from the settings."_s
                         << u"Rules have gone from the settings."_s;
}

// It is damaged while the findings are on show; the user is told, looks at the rules, and cleans.
void TestJourneySettings::damagedStoreOnTheWay() {
  QFETCH(QByteArray, damage);
  QFETCH(QString, cleanup);
  QFETCH(QString, rules);
  begin(Small::Sample);
  const QStringList before = AppSettings::instance().exclusions();
  scan();
  auto* note = m_window->findChild<ui::Note*>(u"settingsNote"_s);
  QVERIFY(!note->isVisible() && cleanButton()->isEnabled());
  settingsstore::write(store(), damage);
  clickClean();
  QVERIFY(question());
  click(*question(), u"Clean and delete"_s);
  settle();
  QCOMPARE(m_state->phase, AppState::Review);
  QVERIFY(note->isVisible());
  QVERIFY2(note->accessibleName().startsWith(cleanup), qPrintable(note->accessibleName()));
  QVERIFY(!cleanButton()->isEnabled());
  QVERIFY(there(u".cache/thumbnails"_s));

  click(*note, u"Show the rules"_s);
  QCOMPARE(m_window->page(), int(ui::Sidebar::Settings));
  const auto* asks = page()->findChild<ui::Note*>();
  QVERIFY(asks->isVisible());
  QVERIFY(asks->accessibleName().startsWith(rules));
  settle();
  for (const QString& rule : before) QVERIFY2(shows(*page(), rule), qPrintable(rule));
  QCOMPARE(settingsstore::bytes(store()), damage);
  click(*asks, u"These are my rules"_s);
  QVERIFY(!asks->isVisible());
  QCOMPARE(settingsstore::bytes(store() + u".damaged"_s), damage);
  QCOMPARE(AppSettings::instance().exclusions(), before);

  m_window->go(ui::Sidebar::Cleanup);
  QVERIFY(!note->isVisible() && cleanButton()->isEnabled());
  clickClean();
  QVERIFY(question());
  QTest::keyClick(question(), Qt::Key_Escape);
  QVERIFY(QFile::remove(store() + u".damaged"_s));
}

// The window keeps its place and its sidebar's width in the same store.
void TestJourneySettings::damagedStoreIsLeftByTheWindow() {
  begin(Small::Empty);
  settingsstore::write(store(), "broken");
  m_window->setSidebarCollapsed(true);
  m_window->setSidebarCollapsed(false);
  m_window->resize(1000, 700);
  m_window->saveWindowState();
  restartWindow();
  QCoreApplication::processEvents();
  QCOMPARE(settingsstore::bytes(store()), QByteArray("broken"));
  m_window->go(ui::Sidebar::Settings);
  click(*page(), u"These are my rules"_s);
  m_window->saveWindowState();
  QVERIFY(settingsstore::bytes(store()).contains("windowGeometry"));
  QVERIFY(QFile::remove(store() + u".damaged"_s));
}

int main(int argc, char** argv) { return uitest::run<TestJourneySettings>(argc, argv); }

#include "tst_JourneySettings.moc"
