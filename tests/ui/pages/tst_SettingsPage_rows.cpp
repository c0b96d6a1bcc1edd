// The rows of the Settings page on both hosts and in both metric sets: their words, their measures, and how they are
// reached and heard.
#include "SettingsTest.h"
#include "core/appguard.h"
#include "core/deployment.h"
#include "core/login.h"
#include "core/safety.h"
#include "ui/controls/Divider.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/Select.h"
#include "ui/controls/Switch.h"

#include <QAccessible>
#include <QScrollArea>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {

struct Row {
  QString title;
  QString description;
};

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

class TestSettingsPageRows : public SettingsTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void rows_data();
  void rows();
  void controlsShowThePresent();
  void measures_data();
  void measures();
  void keyboardReachesEverything();
  void everyControlHasAName();

 private:
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
};

void TestSettingsPageRows::rows_data() {
  QTest::addColumn<QString>("host");
  QTest::addColumn<bool>("mac");
  for (const char* host : {"linux", "mac"})
    for (const bool mac : {true, false})
      QTest::addRow("%s, %s metrics", host, mac ? "mac" : "other") << QString::fromLatin1(host) << mac;
}

void TestSettingsPageRows::rows() {
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

void TestSettingsPageRows::controlsShowThePresent() {
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

void TestSettingsPageRows::measures_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("width");
  QTest::addColumn<int>("side");
  QTest::newRow("mac") << true << 820 << 28;
  QTest::newRow("other") << false << 824 << 32;
}

void TestSettingsPageRows::measures() {
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

void TestSettingsPageRows::keyboardReachesEverything() {
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

void TestSettingsPageRows::everyControlHasAName() {
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

int main(int argc, char** argv) { return uitest::run<TestSettingsPageRows>(argc, argv); }

#include "tst_SettingsPage_rows.moc"
