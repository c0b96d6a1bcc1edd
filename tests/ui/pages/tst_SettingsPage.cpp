// The Settings page: its rows on both hosts and in both metric sets, what each control stores, and the rules.
#include "ui/pages/SettingsPage.h"

#include "app/AppState.h"
#include "app/identity.h"
#include "core/appguard.h"
#include "core/deployment.h"
#include "core/login.h"
#include "core/safety.h"
#include "engines/Cleaner.h"
#include "engines/LargeFileFinder.h"
#include "support/Desktop.h"
#include "support/pixels.h"
#include "support/settings.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/Note.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/Select.h"
#include "ui/controls/Switch.h"
#include "ui/i18n.h"

#include <QAccessible>
#include <QDir>
#include <QFileDialog>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {

struct Row {
  QString title;
  QString description;
};

QString tipOf(const QWidget* row) { return windowtest::plain(row->toolTip()); }

/// Answers the next dialog for a folder.
void choose(const QString& folder) {
  QTimer::singleShot(0, qApp, [folder] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog) qFatal("nobody asks for a folder");
    if (folder.isEmpty()) return dialog->reject();
    dialog->selectFile(folder);
    static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
  });
}

} // namespace

class TestSettingsPage : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    records::registerMetaTypes();
    Theme::get().install(qApp);
  }
  void init();
  void cleanup();

  void rows_data();
  void rows();
  void controlsShowThePresent();
  void switchesStore_data();
  void switchesStore();
  void choicesStore_data();
  void choicesStore();
  void unknownValueShowsTheFirst();
  void largeSizeSearchesAnewOnceSearched();
  void themeTakesEffectAtOnce();
  void closeActionFollowsOthers();
  void onlyTheCloseActionFollows();
  void languages();
  void restartIsOfferedWhileAnotherIsChosen();
  void systemDefaultNeedsNoRestart();
  void loginWritesItsEntry();
  void loginThatFailsGoesBack();
  void rulesAreListed();
  void rulesLookLikeThemselves();
  void removesARule();
  void removesARuleThatStandsTwice();
  void removesTheDefaultRule();
  void focusStaysAmongTheRules();
  void addsAFolder();
  void addedFolderIsCovered_data();
  void addedFolderIsCovered();
  void addsNothingTwice();
  void opensTheLogs();
  void asksForUpdates();
  void updatesCanBeLeftOut();
  void damagedStoreAsksToLook();
  void acceptedRulesAreKept();
  void failureToAcceptIsTold();
  void showsTheRulesOnDemand();
  void measures_data();
  void measures();
  void keyboardReachesEverything();
  void everyControlHasAName();

 private:
  void open(const char* host = "linux", bool mac = true);
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
  [[nodiscard]] QStringList headings() const {
    QStringList all;
    for (const QLabel* one : m_page->findChildren<QLabel*>())
      if (one->contentsMargins() == QMargins(2, 0, 0, 10)) all << one->text();
    return all;
  }
  [[nodiscard]] QList<Row> shownRows() const {
    QList<Row> all;
    for (const IconTile* tile : m_page->findChildren<IconTile*>()) {
      const QWidget* of = tile->parentWidget();
      all << Row{of->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly)->text(), tipOf(of)};
    }
    return all;
  }
  [[nodiscard]] QList<Button*> removeButtons() const {
    QList<Button*> all;
    for (Button* one : m_page->findChildren<Button*>())
      if (one->toolTip() == u"Remove"_s && one->isVisibleTo(m_page.get())) all << one;
    return all;
  }
  [[nodiscard]] QStringList shownRules() const {
    QStringList all;
    for (const Button* one : removeButtons()) all << one->parentWidget()->findChild<ElidedLabel*>()->text();
    return all;
  }
  [[nodiscard]] Note* note() const { return m_page->findChild<Note*>(); }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<SettingsPage> m_page;
};

void TestSettingsPage::init() {
  m_home = std::make_unique<FixtureHome>();
  settingsstore::stayWithTheFirst();
  settingsstore::forget();
}

void TestSettingsPage::cleanup() {
  m_page.reset();
  m_state.reset();
  m_home.reset();
  qunsetenv("TARNWICK_HOST");
  Theme::get().mac = true;
}

void TestSettingsPage::open(const char* host, bool mac) {
  qputenv("TARNWICK_HOST", host);
  Theme::get().mac = mac;
  m_page.reset();
  m_state = std::make_unique<AppState>();
  m_page = std::make_unique<SettingsPage>(m_state.get());
  m_page->resize(944, 780);
  m_page->show();
  m_page->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
  settle();
}

// ---- rows

namespace {

const QString kTrayText = u"Closing the window keeps Tarnwick running there, so scheduled scans and low space alerts "
                          "keep working."_s;
const QString kLoginText = u"Starts Tarnwick in the background so scheduled scans can run."_s;

QList<Row> expectedRows(const QString& host, bool mac) {
  const bool isLinux = host == u"linux"_s;
  QList<Row> rows = {
      {u"Move items to the Trash"_s, u"Recommended. Turn off to delete files permanently."_s},
      {u"Large file size"_s, u"Files bigger than this appear in Large & Old Files."_s},
      {u"Consider files old after"_s, u"Used by the “Unused” filter."_s},
      {u"Scheduled scan"_s,
       u"Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own."_s},
      {u"Low space alerts"_s, u"Warn when free space drops below 10%."_s},
  };
  rows << Row{isLinux || mac ? u"Open at login"_s : u"Start with Windows"_s, kLoginText};
  if (isLinux)
    rows << Row{u"Show Tarnwick in the system tray"_s, kTrayText};
  else if (mac)
    rows << Row{u"Show Tarnwick in the menu bar"_s, kTrayText};
  else
    rows << Row{u"When closing the window"_s,
                u"In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working."_s};
  rows << Row{u"Theme"_s, u"Follow the system, or always use light or dark."_s}
       << Row{u"Language"_s, u"Tarnwick restarts to switch languages."_s}
       << Row{u"Never touch these"_s, u"Folders and patterns Tarnwick always skips."_s}
       << Row{u"Protected system locations"_s, safety::protectedSummary() + u" — always skipped."_s}
       << Row{u"Protected apps"_s,
              appguard::protectedSummary() +
                  u" — their data is never cleaned. Caches of running apps and open files are skipped too."_s};
  if (!isLinux)
    rows << (mac ? Row{u"Full Disk Access"_s, u"Needed to clean Safari's cache and the Trash."_s}
                 : Row{u"Administrator access"_s, u"Only needed to clean Windows Update leftovers."_s});
  rows << Row{u"Tarnwick 1.0.0"_s,
              deployment::updatesItself()
                  ? u"Every cleanup writes a log you can review. Tarnwick checks for updates when it starts."_s
                  : u"Every cleanup writes a log you can review."_s};
  return rows;
}

} // namespace

void TestSettingsPage::rows_data() {
  QTest::addColumn<QString>("host");
  QTest::addColumn<bool>("mac");
  for (const char* host : {"linux", "mac"})
    for (const bool mac : {true, false})
      QTest::addRow("%s, %s metrics", host, mac ? "mac" : "other") << QString::fromLatin1(host) << mac;
}

void TestSettingsPage::rows() {
  QFETCH(QString, host);
  QFETCH(bool, mac);
  open(host.toLatin1().constData(), mac);
  QCOMPARE(headings(), (QStringList{u"Cleaning"_s, u"Automation"_s, u"Appearance"_s, u"Exclusions"_s,
                                    host == u"linux"_s ? u"About"_s : u"Permissions & about"_s}));
  const QList<Row> shown = shownRows();
  const QList<Row> expected = expectedRows(host, mac);
  for (qsizetype i = 0; i < std::min(shown.size(), expected.size()); ++i) {
    QCOMPARE(shown.at(i).title, expected.at(i).title);
    QCOMPARE(shown.at(i).description, expected.at(i).description);
    QVERIFY(!windowtest::shownTexts(*m_page).contains(expected.at(i).description)); // in the tip alone
  }
  QCOMPARE(shown.size(), expected.size());
  QCOMPARE(m_page->findChildren<Divider*>().size(), expected.size() - headings().size());
  for (const IconTile* tile : m_page->findChildren<IconTile*>()) QVERIFY(tile->muted);
  if (host == u"mac"_s) QVERIFY(button(mac ? u"Open Settings"_s : u"Restart as admin"_s));
  QVERIFY(windowtest::shows(*m_page, u"Settings"_s));
  // A control for what isn't there would be a riddle.
  QCOMPARE(m_page->findChildren<Switch*>().size(), host == u"linux"_s || mac ? 4 : 3);
  QCOMPARE(m_page->findChildren<Select*>().size(), host == u"linux"_s || mac ? 5 : 6);
}

void TestSettingsPage::controlsShowThePresent() {
  settings().setMoveToTrash(false);
  settings().setLargeFileMB(1000);
  settings().setOldMonths(24);
  settings().setSchedule(AppSettings::Monthly);
  settings().setLowSpaceAlerts(false);
  settings().setStartAtLogin(true);
  settings().setShowInTray(false);
  settings().setCloseAction(AppSettings::KeepInTray);
  settings().setThemeMode(AppSettings::Dark);
  settings().setLanguage(u"de"_s);
  QSignalSpy changed(&settings(), &AppSettings::changed);
  open();
  QVERIFY(!control<Switch>(u"Move items to the Trash"_s)->isChecked());
  QCOMPARE(control<Select>(u"Large file size"_s)->currentText(), u"1 GB"_s);
  QCOMPARE(control<Select>(u"Consider files old after"_s)->currentText(), u"24 months"_s);
  QCOMPARE(control<Select>(u"Scheduled scan"_s)->currentText(), u"Monthly"_s);
  QVERIFY(!control<Switch>(u"Low space alerts"_s)->isChecked());
  QVERIFY(control<Switch>(u"Open at login"_s)->isChecked());
  QVERIFY(!control<Switch>(u"Show Tarnwick in the system tray"_s)->isChecked());
  QCOMPARE(control<Select>(u"Theme"_s)->currentText(), u"Dark"_s);
  QCOMPARE(control<Select>(u"Language"_s)->currentText(), u"Deutsch"_s);
  QVERIFY(!QFile::exists(login::path())); // to look is not to choose
  open("mac", false);
  QCOMPARE(control<Select>(u"When closing the window"_s)->currentText(), u"Keep running in the tray"_s);
  QCOMPARE(changed.count(), 0);
}

// ---- what they store

void TestSettingsPage::switchesStore_data() {
  QTest::addColumn<QString>("host");
  QTest::addColumn<QString>("title");
  QTest::addColumn<QString>("key");
  QTest::addColumn<bool>("first");
  QTest::newRow("trash") << u"linux"_s << u"Move items to the Trash"_s << u"clean/moveToTrash"_s << true;
  QTest::newRow("alerts") << u"linux"_s << u"Low space alerts"_s << u"auto/lowSpaceAlerts"_s << true;
  QTest::newRow("login") << u"linux"_s << u"Open at login"_s << u"auto/startAtLogin"_s << false;
  QTest::newRow("tray") << u"linux"_s << u"Show Tarnwick in the system tray"_s << u"ui/showInTray"_s << true;
  QTest::newRow("menu bar") << u"mac"_s << u"Show Tarnwick in the menu bar"_s << u"ui/showInTray"_s << true;
}

void TestSettingsPage::switchesStore() {
  QFETCH(QString, host);
  QFETCH(QString, title);
  QFETCH(QString, key);
  QFETCH(bool, first);
  open(host.toLatin1().constData());
  auto* one = control<Switch>(title);
  QCOMPARE(one->isChecked(), first);
  QVERIFY(!QSettings().contains(key));
  QTest::mouseClick(one, Qt::LeftButton);
  QCOMPARE(QSettings().value(key).toBool(), !first);
  QTest::keyClick(one, Qt::Key_Space);
  QCOMPARE(QSettings().value(key).toBool(), first);
  QCOMPARE(QSettings().allKeys(), QStringList{key});
}

void TestSettingsPage::choicesStore_data() {
  QTest::addColumn<QString>("host");
  QTest::addColumn<bool>("mac");
  QTest::addColumn<QString>("title");
  QTest::addColumn<QStringList>("texts");
  QTest::addColumn<QList<int>>("values");
  QTest::addColumn<QString>("key");
  QTest::addColumn<int>("first");
  QTest::newRow("large") << u"linux"_s << true << u"Large file size"_s
                         << QStringList{u"100 MB"_s, u"250 MB"_s, u"500 MB"_s, u"1 GB"_s}
                         << QList<int>{100, 250, 500, 1000} << u"large/thresholdMB"_s << 2;
  QTest::newRow("old") << u"linux"_s << true << u"Consider files old after"_s
                       << QStringList{u"3 months"_s, u"6 months"_s, u"12 months"_s, u"24 months"_s}
                       << QList<int>{3, 6, 12, 24} << u"large/oldMonths"_s << 1;
  QTest::newRow("schedule") << u"linux"_s << false << u"Scheduled scan"_s
                            << QStringList{u"Off"_s, u"Weekly"_s, u"Monthly"_s} << QList<int>{0, 1, 2}
                            << u"auto/schedule"_s << 1;
  QTest::newRow("theme") << u"mac"_s << true << u"Theme"_s << QStringList{u"System"_s, u"Light"_s, u"Dark"_s}
                         << QList<int>{0, 1, 2} << u"ui/theme"_s << 0;
  QTest::newRow("close") << u"mac"_s << false << u"When closing the window"_s
                         << QStringList{u"Ask every time"_s, u"Keep running in the tray"_s, u"Quit Tarnwick"_s}
                         << QList<int>{0, 1, 2} << u"ui/closeAction"_s << 0;
}

void TestSettingsPage::choicesStore() {
  QFETCH(QString, host);
  QFETCH(bool, mac);
  QFETCH(QString, title);
  QFETCH(QStringList, texts);
  QFETCH(QList<int>, values);
  QFETCH(QString, key);
  QFETCH(int, first);
  open(host.toLatin1().constData(), mac);
  auto* one = control<Select>(title);
  QCOMPARE(one->count(), texts.size());
  QCOMPARE(one->currentIndex(), first);
  QCOMPARE(one->minimumWidth(), key == u"ui/closeAction"_s ? 200 : 130);
  QVERIFY(!QSettings().contains(key));
  for (int i = 0; i < one->count(); ++i) {
    const int chosen = (first + 1 + i) % one->count(); // another one at first
    one->activateItem(chosen);
    QCOMPARE(one->currentText(), texts.at(chosen));
    QCOMPARE(QSettings().value(key).toInt(), values.at(chosen));
  }
  QCOMPARE(QSettings().allKeys(), QStringList{key});
}

void TestSettingsPage::unknownValueShowsTheFirst() {
  settings().setLargeFileMB(300);
  settings().setOldMonths(7);
  QSettings().setValue(u"ui/theme"_s, 9);
  settings().setLanguage(u"xx"_s);
  const QByteArray before = settingsstore::bytes(settings().path());
  open();
  QCOMPARE(control<Select>(u"Large file size"_s)->currentIndex(), 0);
  QCOMPARE(control<Select>(u"Consider files old after"_s)->currentIndex(), 0);
  QCOMPARE(control<Select>(u"Theme"_s)->currentIndex(), 0);
  QCOMPARE(control<Select>(u"Language"_s)->currentIndex(), 0);
  QCOMPARE(settingsstore::bytes(settings().path()), before);
  QCOMPARE(settings().largeFileMB(), 300);
}

void TestSettingsPage::largeSizeSearchesAnewOnceSearched() {
  open();
  QSignalSpy searches(m_state->largeFinder, &LargeFileFinder::finished);
  control<Select>(u"Large file size"_s)->activateItem(0);
  QVERIFY(!m_state->largeFinder->isRunning());
  m_state->startLargeScan();
  QTRY_VERIFY(m_state->largeScanned && !m_state->largeFinder->isRunning());
  const auto before = searches.count();
  control<Select>(u"Large file size"_s)->activateItem(1);
  QTRY_COMPARE(searches.count(), before + 1);
  QTRY_VERIFY(!m_state->largeFinder->isRunning());
}

void TestSettingsPage::themeTakesEffectAtOnce() {
  settings().setThemeMode(AppSettings::Light);
  open();
  QVERIFY(!Theme::get().dark);
  control<Select>(u"Theme"_s)->activateItem(2);
  QVERIFY(Theme::get().dark);
  control<Select>(u"Theme"_s)->activateItem(1);
  QVERIFY(!Theme::get().dark);
}

void TestSettingsPage::closeActionFollowsOthers() {
  open("mac", false);
  auto* one = control<Select>(u"When closing the window"_s);
  QSignalSpy told(one, &QComboBox::currentIndexChanged);
  settings().setCloseAction(AppSettings::Quit);
  QCOMPARE(one->currentIndex(), 2);
  QCOMPARE(told.count(), 0);
  QCOMPARE(settings().closeAction(), AppSettings::Quit);
}

void TestSettingsPage::onlyTheCloseActionFollows() {
  open();
  settings().setShowInTray(false);
  settings().setOldMonths(24);
  QVERIFY(control<Switch>(u"Show Tarnwick in the system tray"_s)->isChecked());
  QCOMPARE(control<Select>(u"Consider files old after"_s)->currentText(), u"6 months"_s);
}

// ---- the language

void TestSettingsPage::languages() {
  open();
  const auto* one = control<Select>(u"Language"_s);
  QCOMPARE(one->count(), 11);
  QCOMPARE(one->itemText(0), u"System default (%1)"_s.arg(i18n::nativeName(i18n::systemLanguage())));
  QCOMPARE(one->itemData(0).toString(), QString());
  for (int i = 0; i < 10; ++i) {
    QCOMPARE(one->itemText(i + 1), i18n::languages().at(i).name);
    QCOMPARE(one->itemData(i + 1).toString(), i18n::languages().at(i).code);
  }
  QCOMPARE(one->minimumWidth(), 200);
  QVERIFY(!button(u"Restart now"_s)->isVisible());
  QVERIFY(button(u"Restart now"_s)->property("kind").toString() == u"primary"_s);
}

void TestSettingsPage::restartIsOfferedWhileAnotherIsChosen() {
  settings().setLanguage(u"fr"_s);
  open();
  auto* one = control<Select>(u"Language"_s);
  const QPushButton* restart = button(u"Restart now"_s);
  QVERIFY(!restart->isVisible());
  one->activateItem(one->findData(u"ja"_s));
  QVERIFY(restart->isVisible());
  QCOMPARE(settings().language(), u"ja"_s);
  one->activateItem(one->findData(u"fr"_s));
  QVERIFY(!restart->isVisible());
  QCOMPARE(settings().language(), u"fr"_s);
  one->activateItem(0); // the system's is another one
  QCOMPARE(restart->isVisible(), i18n::systemLanguage() != u"fr"_s);
  QVERIFY(i18n::systemLanguage() != u"fr"_s);
  QCOMPARE(settings().language(), QString());
}

void TestSettingsPage::systemDefaultNeedsNoRestart() {
  open();
  auto* one = control<Select>(u"Language"_s);
  one->activateItem(one->findData(i18n::systemLanguage()));
  QVERIFY(!button(u"Restart now"_s)->isVisible());
  QCOMPARE(settings().language(), i18n::systemLanguage());
  one->activateItem(0);
  QVERIFY(!button(u"Restart now"_s)->isVisible());
  QCOMPARE(settings().language(), QString());
}

// ---- login

void TestSettingsPage::loginWritesItsEntry() {
  open();
  auto* one = control<Switch>(u"Open at login"_s);
  QTest::mouseClick(one, Qt::LeftButton);
  QCOMPARE(settingsstore::bytes(login::path()), login::desktopEntry(QCoreApplication::applicationFilePath()));
  QTest::mouseClick(one, Qt::LeftButton);
  QVERIFY(!QFile::exists(login::path()));
}

void TestSettingsPage::loginThatFailsGoesBack() {
  m_home->file(u".config/autostart"_s, 1); // no place for an entry
  open();
  auto* one = control<Switch>(u"Open at login"_s);
  QSignalSpy toasts(m_state.get(), &AppState::toast);
  QTest::mouseClick(one, Qt::LeftButton);
  QVERIFY(!one->isChecked());
  QVERIFY(!settings().startAtLogin());
  QCOMPARE(toasts.count(), 1);
  QVERIFY(toasts[0][0].toString().startsWith(u"~/.config/autostart/tarnwick.desktop can't be written"_s));
  QCOMPARE(toasts[0][1].toBool(), false);
}

// ---- the rules

void TestSettingsPage::rulesAreListed() {
  open();
  QCOMPARE(shownRules(), QStringList{u"**/.git"_s});
  settings().setExclusions({u"b"_s, u"a"_s, u"~/Dir, with comma"_s});
  open();
  QCOMPARE(shownRules(), (QStringList{u"b"_s, u"a"_s, u"~/Dir, with comma"_s}));
  settings().setExclusions({});
  open();
  QVERIFY(shownRules().isEmpty());
}

void TestSettingsPage::rulesLookLikeThemselves() {
  settings().setExclusions({u"<b>bold</b> & more"_s, u"/"_s + QString(400, u'x')});
  pixels::setLook(false);
  open();
  const Button* remove = removeButtons().first();
  auto* card = qobject_cast<Card*>(remove->parentWidget());
  QVERIFY(card && !card->bordered);
  QCOMPARE(card->fill, Theme::get().hover);
  const auto* text = card->findChild<ElidedLabel*>();
  QCOMPARE(text->textFormat(), Qt::PlainText);
  QCOMPARE(text->property("role").toString(), u"mono"_s);
  QCOMPARE(text->font().pixelSize(), 12);
  QCOMPARE(text->palette().color(text->foregroundRole()), Theme::get().text);
  QCOMPARE(remove->size(), QSize(24, 24));
  QCOMPARE(remove->property("kind").toString(), u"ghost"_s);
  pixels::setLook(true);
  QCOMPARE(card->fill, Theme::get().hover);
  QVERIFY(m_page->findChild<QScrollArea*>()->widget()->width() <= 944); // a long one gives way
}

void TestSettingsPage::removesARule() {
  settings().setExclusions({u"a"_s, u"b"_s, u"c"_s});
  open();
  settings().setExclusions({u"a"_s, u"b"_s, u"c"_s, u"d"_s}); // another one has come meanwhile
  QTest::mouseClick(removeButtons().at(1), Qt::LeftButton);
  settle();
  QCOMPARE(settings().exclusions(), (QStringList{u"a"_s, u"c"_s, u"d"_s}));
  QCOMPARE(shownRules(), (QStringList{u"a"_s, u"c"_s, u"d"_s}));
}

void TestSettingsPage::removesARuleThatStandsTwice() {
  settings().setExclusions({u"a"_s, u"b"_s, u"a"_s});
  open();
  QTest::mouseClick(removeButtons().first(), Qt::LeftButton);
  settle();
  QCOMPARE(settings().exclusions(), QStringList{u"b"_s});
}

void TestSettingsPage::removesTheDefaultRule() {
  open();
  QTest::mouseClick(removeButtons().first(), Qt::LeftButton);
  settle();
  QCOMPARE(settings().exclusions(), QStringList());
  QVERIFY(QSettings().contains(u"clean/exclusions"_s));
  open();
  QVERIFY(shownRules().isEmpty());
  QVERIFY(settings().isReadable());
}

void TestSettingsPage::focusStaysAmongTheRules() {
  settings().setExclusions({u"a"_s, u"b"_s, u"c"_s});
  open();
  for (const char* next : {"c", "a"}) {
    Button* one = removeButtons().at(1);
    one->setFocus();
    QTest::keyClick(one, Qt::Key_Space);
    settle();
    QVERIFY(QApplication::focusWidget());
    QCOMPARE(QApplication::focusWidget()->accessibleName(), u"Remove "_s + QString::fromLatin1(next));
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  settle();
  QCOMPARE(QApplication::focusWidget(), button(u"Add folder"_s));
}

void TestSettingsPage::addsAFolder() {
  const QString folder = m_home->folder(u"Pictures, old"_s);
  open();
  choose(folder);
  QTest::mouseClick(button(u"Add folder"_s), Qt::LeftButton);
  settle();
  QCOMPARE(settings().exclusions(), (QStringList{u"**/.git"_s, folder}));
  QCOMPARE(shownRules(), (QStringList{u"**/.git"_s, folder}));
  choose({});
  QTest::mouseClick(button(u"Add folder"_s), Qt::LeftButton);
  QCOMPARE(settings().exclusions().size(), 2);
}

void TestSettingsPage::addedFolderIsCovered_data() {
  QTest::addColumn<QString>("folder"); // below the home folder; empty is the root of all
  QTest::newRow("usual") << u"Pictures"_s;
  QTest::newRow("blank at its end") << u"Pictures  "_s;
  QTest::newRow("signs of a rule") << u"Pictures [*?] (old)"_s;
  QTest::newRow("everything") << QString();
}

void TestSettingsPage::addedFolderIsCovered() {
  QFETCH(QString, folder);
  const QString path = folder.isEmpty() ? u"/"_s : m_home->folder(folder);
  const QString below = folder.isEmpty() ? u"/var/tmp/kept"_s : path + u"/kept"_s;
  open();
  choose(path);
  QTest::mouseClick(button(u"Add folder"_s), Qt::LeftButton);
  QCOMPARE(settings().exclusions().size(), 2);
  const QStringList added{settings().exclusions().last()};
  QVERIFY2(safety::isExcluded(path, added), qPrintable(added.first()));
  QVERIFY2(safety::isExcluded(below, added), qPrintable(added.first()));
}

void TestSettingsPage::addsNothingTwice() {
  const QString folder = m_home->folder(u"Pictures"_s);
  settings().setExclusions({folder, u"a"_s});
  open();
  QSignalSpy changed(&settings(), &AppSettings::changed);
  choose(folder);
  QTest::mouseClick(button(u"Add folder"_s), Qt::LeftButton);
  QCOMPARE(settings().exclusions(), (QStringList{folder, u"a"_s}));
  QCOMPARE(changed.count(), 0);
}

// ---- the program

void TestSettingsPage::opensTheLogs() {
  open();
  const Desktop desktop;
  QVERIFY(!QFile::exists(Cleaner::logDir()));
  QTest::mouseClick(button(u"Open logs"_s), Qt::LeftButton);
  QCOMPARE(desktop.opened, QStringList{Cleaner::logDir()});
  QVERIFY(QFileInfo(Cleaner::logDir()).isDir());
}

void TestSettingsPage::asksForUpdates() {
  open();
  if (!deployment::updatesItself()) QSKIP("this build doesn't look for updates");
  QSignalSpy asked(m_page.get(), &SettingsPage::checkForUpdates);
  QPushButton* check = button(u"Check for updates"_s);
  QTest::mouseClick(check, Qt::LeftButton);
  QCOMPARE(asked.count(), 1);
  QVERIFY(check->x() < button(u"Open logs"_s)->x());
}

void TestSettingsPage::updatesCanBeLeftOut() {
  open();
  m_page->hideUpdates();
  QVERIFY(!button(u"Check for updates"_s)->isVisible());
  QCOMPARE(tipOf(row(u"Tarnwick 1.0.0"_s)), u"Every cleanup writes a log you can review."_s);
  QCOMPARE(button(u"Open logs"_s)->accessibleDescription(), u"Every cleanup writes a log you can review."_s);
}

// ---- a damaged store

void TestSettingsPage::damagedStoreAsksToLook() {
  settings().setExclusions({u"mine"_s, u"yours"_s});
  open();
  QVERIFY(!note()->isVisible());
  settingsstore::write(settings().path(), "[clean]\nexclusions=new\n");
  settings().look();
  QVERIFY(note()->isVisible());
  QVERIFY(note()->accessibleName().startsWith(u"Rules have gone from the settings."_s));
  settle();
  QCOMPARE(shownRules(), (QStringList{u"new"_s, u"mine"_s, u"yours"_s}));
  settingsstore::write(settings().path(), "broken");
  m_page->hide();
  m_page->show(); // looks by itself
  QVERIFY(note()->accessibleName().startsWith(u"The settings can't be read."_s));
  m_page.reset();
  open();
  QVERIFY(note()->isVisible());
}

void TestSettingsPage::acceptedRulesAreKept() {
  settings().setExclusions({u"mine"_s, u"yours"_s});
  settingsstore::write(settings().path(), "broken");
  settings().look();
  open();
  QTest::mouseClick(removeButtons().first(), Qt::LeftButton); // it may be edited before
  settle();
  QCOMPARE(shownRules(), QStringList{u"yours"_s});
  QCOMPARE(settingsstore::bytes(settings().path()), QByteArray("broken"));
  QSignalSpy toasts(m_state.get(), &AppState::toast);
  QPushButton* accept = button(u"These are my rules"_s);
  accept->setFocus();
  QTest::keyClick(accept, Qt::Key_Space);
  settle();
  QVERIFY(!note()->isVisible());
  QCOMPARE(QApplication::focusWidget(), button(u"Add folder"_s));
  QVERIFY(settings().isReadable());
  QCOMPARE(QSettings().value(u"clean/exclusions"_s).toStringList(), QStringList{u"yours"_s});
  QCOMPARE(shownRules(), QStringList{u"yours"_s});
  QCOMPARE(settingsstore::bytes(settings().path() + u".damaged"_s), QByteArray("broken"));
  QCOMPARE(toasts.count(), 1);
  QCOMPARE(toasts[0][0].toString(), u"The rules are kept. The damaged settings file stays beside the new one."_s);
  QVERIFY(QFile::remove(settings().path() + u".damaged"_s));
}

void TestSettingsPage::failureToAcceptIsTold() {
  const QString folder = QFileInfo(settings().path()).path();
  settings().setExclusions({u"mine"_s});
  QVERIFY(QDir().rename(folder, folder + u".away"_s));
  settingsstore::write(folder, "in the way");
  settings().look();
  open();
  QSignalSpy toasts(m_state.get(), &AppState::toast);
  QTest::mouseClick(button(u"These are my rules"_s), Qt::LeftButton);
  QVERIFY(note()->isVisible());
  QCOMPARE(toasts.count(), 1);
  QCOMPARE(toasts[0][0].toString(), u"The settings can't be written, so they stay as they are."_s);
  QVERIFY(QFile::remove(folder));
  QVERIFY(QDir().rename(folder + u".away"_s, folder));
}

void TestSettingsPage::showsTheRulesOnDemand() {
  QStringList many;
  for (int i = 0; i < 30; ++i) many << QString::number(i);
  settings().setExclusions(many);
  open();
  m_page->resize(944, 400);
  const auto* area = m_page->findChild<QScrollArea*>();
  QCOMPARE(area->verticalScrollBar()->value(), 0);
  m_page->showExclusions();
  const QPushButton* add = button(u"Add folder"_s);
  QCOMPARE(QApplication::focusWidget(), add);
  const auto isSeen = [&](const QWidget* one) {
    return area->viewport()->rect().contains(QRect(one->mapTo(area->viewport(), QPoint()), one->size()));
  };
  QTRY_VERIFY(isSeen(add));
  settingsstore::write(settings().path(), "broken");
  settings().look();
  area->verticalScrollBar()->setValue(0);
  m_page->showExclusions();
  QCOMPARE(QApplication::focusWidget(), button(u"These are my rules"_s));
  QTRY_VERIFY(isSeen(button(u"These are my rules"_s)));
}

// ---- what it looks like

void TestSettingsPage::measures_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("width");
  QTest::addColumn<int>("side");
  QTest::newRow("mac") << true << 820 << 28;
  QTest::newRow("other") << false << 824 << 32;
}

void TestSettingsPage::measures() {
  QFETCH(bool, mac);
  QFETCH(int, width);
  QFETCH(int, side);
  open("linux", mac);
  const QWidget* content = m_page->findChild<QScrollArea*>()->widget();
  QCOMPARE(content->maximumWidth(), width);
  QCOMPARE(content->width(), width);
  const QWidget* trash = row(u"Move items to the Trash"_s);
  QCOMPARE(trash->minimumHeight(), 56);
  QCOMPARE(trash->layout()->contentsMargins(), QMargins(18, 10, 18, 10));
  QCOMPARE(trash->layout()->spacing(), 16);
  QCOMPARE(trash->findChild<IconTile*>()->size(), QSize(28, 28));
  QCOMPARE(trash->mapTo(content, QPoint()).x(), side);
  // 26 below a card, and the next heading.
  const QWidget* card = trash->parentWidget();
  const QLabel* heading = nullptr;
  for (const QLabel* one : m_page->findChildren<QLabel*>())
    if (one->text() == u"Automation"_s) heading = one;
  QCOMPARE(heading->y(), card->geometry().bottom() + 1 + 26);
  const auto* list =
      qobject_cast<QVBoxLayout*>(row(u"Never touch these"_s)->parentWidget()->layout()->itemAt(2)->layout());
  QVERIFY(list);
  QCOMPARE(list->contentsMargins(), QMargins(62, 0, 18, 14));
  QCOMPARE(list->spacing(), 6);
  const QWidget* locked = row(u"Protected apps"_s);
  QCOMPARE(locked->findChild<IconView*>()->size(), QSize(14, 14));
  QVERIFY(windowtest::shows(*locked, u"Locked"_s));
}

void TestSettingsPage::keyboardReachesEverything() {
  settings().setExclusions({u"a"_s, u"b"_s});
  open();
  QStringList stops;
  control<Switch>(u"Move items to the Trash"_s)->setFocus();
  for (int i = 0; i < 20; ++i) {
    const QWidget* at = QApplication::focusWidget();
    const auto* pressed = qobject_cast<const QAbstractButton*>(at);
    const QString name = pressed && !pressed->text().isEmpty() ? pressed->text() : at->accessibleName();
    if (stops.contains(name)) break;
    stops << name;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  if (!deployment::updatesItself()) stops.insert(stops.size() - 1, u"Check for updates"_s);
  QCOMPARE(stops.join(u'|'),
           (QStringList{u"Move items to the Trash"_s, u"Large file size"_s, u"Consider files old after"_s,
                        u"Scheduled scan"_s, u"Low space alerts"_s, u"Open at login"_s,
                        u"Show Tarnwick in the system tray"_s, u"Theme"_s, u"Language"_s, u"Add folder"_s,
                        u"Remove a"_s, u"Remove b"_s, u"Check for updates"_s, u"Open logs"_s}
                .join(u'|')));
}

void TestSettingsPage::everyControlHasAName() {
  open();
  for (QWidget* one : m_page->findChildren<QWidget*>()) {
    if (!(one->focusPolicy() & Qt::TabFocus) || !one->isVisible()) continue;
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(one);
    QVERIFY2(spoken && !spoken->text(QAccessible::Name).isEmpty(), one->metaObject()->className());
  }
  const auto* trash = QAccessible::queryAccessibleInterface(control<Switch>(u"Move items to the Trash"_s));
  QCOMPARE(trash->text(QAccessible::Name), u"Move items to the Trash"_s);
  QCOMPARE(trash->text(QAccessible::Description), u"Recommended. Turn off to delete files permanently."_s);
  QVERIFY(trash->state().checked);
  const auto* theme = QAccessible::queryAccessibleInterface(control<Select>(u"Theme"_s));
  QCOMPARE(theme->text(QAccessible::Value), u"System"_s);
}

int main(int argc, char** argv) { return uitest::run<TestSettingsPage>(argc, argv); }

#include "tst_SettingsPage.moc"
