// What a user does with System Data: the buttons of its rows, the keyboard and the screen reader, while all of it is
// built anew.
#include "SystemDataResultsTest.h"

#include <QPointer>

using namespace systemdatatest;
using ui::SystemDataRow;

class TestSystemDataResultsUse : public SystemDataResultsTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void buttons_data();
  void buttons();
  void revealActsAtOnce();
  void revealOfWhatIsGone();
  void questions_data();
  void questions();
  void cleanupIsOpened();
  void itemThatWentMeanwhile();
  void readerHearsRows();
  void readerHearsTheHeadline();
  void tabOrder();
  void tabBringsRowsIntoView();
  void buttonKeepsTheFocus();
  void focusWaitsForTheEndOfTheWork();
  void focusOfARowThatWent();
  void focusIsTakenFromNobody();
  void scrolledPlaceStays();
};

void TestSystemDataResultsUse::buttons_data() {
  QTest::addColumn<int>("action");
  QTest::addColumn<QString>("onLinux");
  QTest::addColumn<QString>("onMac");
  const auto row = [](SystemDataItem::Action action, const char* label) {
    QTest::newRow(label) << int(action) << QString::fromLatin1(label) << QString::fromLatin1(label);
  };
  QTest::newRow("reveal") << int(SystemDataItem::RevealInFinder) << u"Show in Files"_s << u"Review in Finder"_s;
  row(SystemDataItem::MoveToTrash, "Move to Trash");
  row(SystemDataItem::RemoveSnapshots, "Remove snapshots");
  row(SystemDataItem::DeleteUnavailable, "Delete unavailable");
  row(SystemDataItem::CleanInCleanup, "Clean in Cleanup");
  row(SystemDataItem::OpenXcode, "Open Xcode");
  QTest::newRow("none") << int(SystemDataItem::None) << QString() << QString();
}

void TestSystemDataResultsUse::buttons() {
  QFETCH(const int, action);
  QFETCH(const QString, onLinux);
  QFETCH(const QString, onMac);
  for (const char* host : kHosts) {
    makePage(host);
    put({item(u"a"_s, kGB, SystemDataItem::Action(action))});
    const QString label = host == kHosts[0] ? onLinux : onMac;
    QCOMPARE(buttonOf(u"a"_s) != nullptr, !label.isEmpty());
    if (!label.isEmpty()) QCOMPARE(buttonOf(u"a"_s)->text(), label);
  }
  // Of what is only counted there may be none.
  SystemDataItem none = denied(snapshots(0, u"0 snapshots"_s));
  none.action = SystemDataItem::Action(action);
  put({none});
  if (buttonOf(u"snapshots"_s)) QVERIFY(!buttonOf(u"snapshots"_s)->isEnabled());
  none.count = 1;
  put({none});
  if (buttonOf(u"snapshots"_s)) QVERIFY(buttonOf(u"snapshots"_s)->isEnabled());
}

void TestSystemDataResultsUse::revealActsAtOnce() {
  SystemDataItem one = item(u"data"_s, kGB);
  one.paths = {m_home->folder(u".local/share"_s)};
  put({one});
  show();
  QSignalSpy asked(m_page.get(), &ui::SystemDataPage::confirmAction);
  QSignalSpy cleanup(m_page.get(), &ui::SystemDataPage::openCleanup);
  QTest::mouseClick(buttonOf(u"data"_s), Qt::LeftButton);
  QCOMPARE(m_opened, one.paths);
  QCOMPARE(asked.count() + cleanup.count(), 0);
  QVERIFY(!m_state->systemDataBusy);
}

void TestSystemDataResultsUse::revealOfWhatIsGone() {
  SystemDataItem one = item(u"data"_s, kGB);
  one.paths = {m_home->path(u"gone"_s)};
  put({one});
  show();
  QSignalSpy said(m_state.get(), &AppState::toast);
  QTest::mouseClick(buttonOf(u"data"_s), Qt::LeftButton);
  QVERIFY(m_opened.isEmpty());
  QCOMPARE(said.count(), 1);
  QCOMPARE(said[0][0].toString(), u"Couldn't open "_s + one.paths[0]);
}

void TestSystemDataResultsUse::questions_data() {
  QTest::addColumn<int>("action");
  QTest::addColumn<QString>("label");
  QTest::addColumn<QString>("body");
  QTest::newRow("snapshots")
      << int(SystemDataItem::RemoveSnapshots) << u"Remove snapshots"_s
      << u"macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren't affected. macOS will ask for your administrator password."_s;
  QTest::newRow("simulators")
      << int(SystemDataItem::DeleteUnavailable) << u"Delete unavailable"_s
      << u"Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data."_s;
  QTest::newRow("device support")
      << int(SystemDataItem::MoveToTrash) << u"Move to Trash"_s
      << u"2.5 GB will be moved to the Trash. Xcode recreates it when you connect a device again."_s;
}

// Nothing is done before the user has said yes.
void TestSystemDataResultsUse::questions() {
  QFETCH(const int, action);
  QFETCH(const QString, label);
  QFETCH(const QString, body);
  makePage("mac");
  SystemDataItem one = item(u"some"_s, 2500 * kMB, SystemDataItem::Action(action));
  one.paths = {m_home->folder(u"held"_s)};
  m_home->file(u"held/thing"_s);
  put({one});
  show();
  QSignalSpy asked(m_page.get(), &ui::SystemDataPage::confirmAction);
  QTest::mouseClick(buttonOf(u"some"_s), Qt::LeftButton);
  QCOMPARE(asked.count(), 1);
  QCOMPARE(asked[0], QVariantList({label + u'?', body, label, u"some"_s}));
  QVERIFY(!m_state->systemDataBusy);
  QVERIFY(QFile::exists(m_home->path(u"held/thing"_s)));
}

void TestSystemDataResultsUse::cleanupIsOpened() {
  put({item(u"usercaches"_s, kGB, SystemDataItem::CleanInCleanup)});
  show();
  QSignalSpy cleanup(m_page.get(), &ui::SystemDataPage::openCleanup);
  QTest::mouseClick(buttonOf(u"usercaches"_s), Qt::LeftButton);
  QCOMPARE(cleanup.count(), 1);
  QVERIFY(!m_state->systemDataBusy); // nothing runs, nothing is measured anew
  QVERIFY(!m_state->systemDataScanner->isRunning());
}

void TestSystemDataResultsUse::itemThatWentMeanwhile() {
  put({item(u"usercaches"_s, kGB, SystemDataItem::CleanInCleanup)});
  show();
  m_state->systemData.clear(); // and nobody was told
  QSignalSpy cleanup(m_page.get(), &ui::SystemDataPage::openCleanup);
  QTest::mouseClick(buttonOf(u"usercaches"_s), Qt::LeftButton);
  QCOMPARE(cleanup.count(), 0);
}

void TestSystemDataResultsUse::readerHearsRows() {
  put({withDetail(item(u"hidden"_s, kGB), u".npm, .nvm"_s), denied(managed(u"logs"_s, 0))});
  QCOMPARE(reader(row(u"hidden"_s))->text(QAccessible::Name), u"Title of hidden, 1.0 GB, Largest: .npm, .nvm"_s);
  QCOMPARE(reader(row(u"hidden"_s))->text(QAccessible::Description), u"About hidden"_s);
  QCOMPARE(reader(row(u"logs"_s))->text(QAccessible::Name), u"Title of logs, No permission to read"_s);
  QCOMPARE(reader(buttonOf(u"hidden"_s))->text(QAccessible::Name), u"Show in Files, Title of hidden"_s);
}

void TestSystemDataResultsUse::readerHearsTheHeadline() {
  put({item(u"a"_s, 3 * kGB), managed(u"b"_s, 5 * kGB)});
  QCOMPARE(reader(headlineCard())->text(QAccessible::Name),
           u"8.0 GB measured in System Data · 3.0 GB you can act on"_s);
  QCOMPARE(reader(stackBar())->text(QAccessible::Name), u"System Data"_s);
  QVERIFY(reader(stackBar())->text(QAccessible::Value).contains(u"Title of b · 5.0 GB"_s));
}

void TestSystemDataResultsUse::tabOrder() {
  makePage("mac"); // the note has a button there
  const auto after = std::make_unique<ui::Button>(u"A button of another page"_s);
  after->setParent(m_page.get());
  put({denied(item(u"b"_s, 2 * kGB)), item(u"c"_s, kGB), item(u"a"_s, 3 * kGB)});
  show();
  button(u"Rescan"_s)->setFocus(Qt::TabFocusReason);
  for (QWidget* next :
       {static_cast<QWidget*>(note()->findChild<QPushButton*>()), static_cast<QWidget*>(buttonOf(u"a"_s)),
        static_cast<QWidget*>(buttonOf(u"b"_s)), static_cast<QWidget*>(buttonOf(u"c"_s))}) {
    windowtest::press(*m_page, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), next);
  }
}

void TestSystemDataResultsUse::tabBringsRowsIntoView() {
  QList<SystemDataItem> many;
  for (int i = 0; i < 12; ++i) many << item(u"i%1"_s.arg(i), (20 - i) * kGB);
  put(many);
  show();
  button(u"Rescan"_s)->setFocus(Qt::TabFocusReason);
  for (const SystemDataItem& one : many) {
    windowtest::press(*m_page, Qt::Key_Tab);
    const QWidget* at = QApplication::focusWidget();
    QCOMPARE(at, static_cast<QWidget*>(buttonOf(one.id)));
    QVERIFY(area()->viewport()->rect().contains(QRect(at->mapTo(area()->viewport(), QPoint()), at->size())));
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp); // and the page scrolls from there
  QVERIFY(area()->verticalScrollBar()->value() < area()->verticalScrollBar()->maximum());
}

void TestSystemDataResultsUse::buttonKeepsTheFocus() {
  put({item(u"a"_s, 3 * kGB), item(u"b"_s, 2 * kGB)});
  show();
  for (const Qt::FocusReason reason : {Qt::TabFocusReason, Qt::MouseFocusReason}) {
    button(u"Rescan"_s)->setFocus();
    buttonOf(u"b"_s)->setFocus(reason);
    const QPointer<QWidget> before = buttonOf(u"b"_s);
    const bool ring = row(u"b"_s)->showsFocus();
    QCOMPARE(ring, reason == Qt::TabFocusReason);
    put({item(u"a"_s, kGB), item(u"b"_s, 9 * kGB)});
    QVERIFY(!before); // another one stands in its place
    QCOMPARE(QApplication::focusWidget(), buttonOf(u"b"_s));
    QCOMPARE(row(u"b"_s)->showsFocus(), ring);
  }
}

void TestSystemDataResultsUse::focusWaitsForTheEndOfTheWork() {
  put({item(u"a"_s, 3 * kGB), item(u"b"_s, 2 * kGB)});
  show();
  buttonOf(u"b"_s)->setFocus(Qt::TabFocusReason);
  setBusy(true);
  QVERIFY(!QApplication::focusWidget()); // it didn't wander to Rescan, which a Space meant for the row would press
  setBusy(false);
  QCOMPARE(QApplication::focusWidget(), buttonOf(u"b"_s));
  QVERIFY(row(u"b"_s)->showsFocus());
}

void TestSystemDataResultsUse::focusOfARowThatWent() {
  put({item(u"a"_s, 3 * kGB), item(u"b"_s, 2 * kGB)});
  show();
  buttonOf(u"b"_s)->setFocus(Qt::TabFocusReason);
  put({item(u"a"_s, 3 * kGB)});
  QCOMPARE(QApplication::focusWidget(), button(u"Rescan"_s));
}

void TestSystemDataResultsUse::focusIsTakenFromNobody() {
  put({item(u"a"_s, 3 * kGB)});
  show();
  buttonOf(u"a"_s)->setFocus(Qt::TabFocusReason);
  setBusy(true);
  button(u"Rescan"_s)->setFocus(Qt::TabFocusReason);
  setBusy(false);
  QCOMPARE(QApplication::focusWidget(), button(u"Rescan"_s));
}

void TestSystemDataResultsUse::scrolledPlaceStays() {
  QList<SystemDataItem> many;
  for (int i = 0; i < 18; ++i) many << item(u"i%1"_s.arg(i), (20 - i) * kGB);
  put(many);
  show();
  QScrollBar* bar = area()->verticalScrollBar();
  QTRY_VERIFY(bar->maximum() > 300);
  bar->setValue(300);
  for (const bool on : {true, false}) {
    setBusy(on);
    QCOMPARE(bar->value(), 300);
  }
}

int main(int argc, char** argv) { return uitest::run<TestSystemDataResultsUse>(argc, argv); }

#include "tst_SystemDataResults_use.moc"
