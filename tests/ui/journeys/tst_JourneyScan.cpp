// ctest: LABELS journey
// ctest: TIMEOUT 300
// From the start to the review: a scan is begun, watched, stopped, finished and repeated, and the window shows what is
// on the disk.
#include "JourneyTest.h"

#include "ui/pages/CategoryTile.h"
#include "ui/shell/NavButton.h"
#include "ui/visuals/DiskOrb.h"
#include "ui/visuals/ScanStepRow.h"

#include <QSet>

#include <sys/stat.h>
#include <unistd.h>

using namespace windowtest;

class TestJourneyScan : public JourneyTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void cleanup() { close(); }

  void findsWhatIsThere_data() { hosts(); }
  void findsWhatIsThere();
  void isWatched();
  void stoppedLeavesNothing();
  void stoppedRescanLeavesTheFindings();
  void rescanBeginsAnew();
  void startsFromTheOverview();
  void startsFromTheOverviewByKeyboard();
  void nothingFound();
  void unreadableFolder();
  void changesNothing();

 private:
  void goToOverview() {
    QTest::mouseClick(m_window->findChildren<ui::NavButton*>().first(), Qt::LeftButton);
    settle();
    QCOMPARE(m_window->page(), int(ui::Sidebar::Overview));
  }
  [[nodiscard]] ui::CategoryTile* tile(const QString& id) const {
    for (ui::CategoryTile* one : m_window->findChildren<ui::CategoryTile*>())
      if (one->id() == id && one->isVisible()) return one;
    return nullptr;
  }
  /// Makes every path so long to judge that a scan can't be through before it is stopped.
  void slowDown() const {
    addManyItems(*m_home, 100);
    QStringList rules = FixtureHome::rulesForOutside();
    for (int i = 0; i < 20'000; ++i) rules << u"/*a*e*o*%1*"_s.arg(i);
    AppSettings::instance().setExclusions(rules);
  }
};

void TestJourneyScan::findsWhatIsThere() {
  QFETCH(QString, host);
  openDemo(host);
  scan();
  QCOMPARE(m_window->page(), int(ui::Sidebar::Cleanup));
  qint64 total = 0;
  for (const char* name : {"temp", "appcache", "browser", "logs", "thumbs", "update", "dev", "trash"}) {
    const QString id = QString::fromLatin1(name);
    const CategoryResult* result = m_state->result(id);
    QVERIFY2(result, name);
    QSet<QString> found;
    for (const CleanItem& item : result->items) found << item.path;
    QSet<QString> expected;
    for (const DemoItem& item : m_demo->items(id)) expected << item.path;
    QCOMPARE(found, expected);
    QVERIFY2(row(id) && shows(*row(id), result->def.title) && shows(*row(id), fmt::bytes(result->bytes)), name);
    showDetail(id);
    QVERIFY2(shows(*detail(), result->items.first().name), name);
    total += result->bytes;
  }
  QVERIFY(shows(*m_window, fmt::bytes(total) + u" can be cleaned"_s));
  QVERIFY(shows(*m_window, u"Scanned today"_s));
  QVERIFY(qAbs(AppSettings::instance().lastScan().secsTo(QDateTime::currentDateTime())) < 3600);
  checkSum(bytesOf({u"temp"_s, u"appcache"_s, u"browser"_s, u"logs"_s, u"thumbs"_s}));
}

void TestJourneyScan::isWatched() {
  open();
  m_window->go(ui::Sidebar::Cleanup);
  QVERIFY(shows(*m_window, u"Nothing scanned yet"_s));
  QStringList stages; // what the rows said each time that the scan told of itself
  connect(m_state.get(), &AppState::scanProgressChanged, this, [&] {
    QStringList words;
    for (QWidget* row : JourneyTest::cleanup()->findChildren<ui::ScanStepRow*>()) words << allTexts(row);
    stages << words.join(u'\n');
  });
  click(*m_window, u"Start Smart Scan"_s);
  QVERIFY(shows(*m_window, u"Scanning"_s));
  QVERIFY(button(*m_window, u"Stop"_s));
  QVERIFY(!button(*m_window, u"Rescan"_s));
  waitFor(AppState::Review);
  disconnect(m_state.get(), &AppState::scanProgressChanged, this, nullptr);
  QVERIFY(!button(*m_window, u"Stop"_s));
  QVERIFY(stages.size() > 8); // at least one for each category
  for (const CategoryResult& result : std::as_const(m_state->results))
    QVERIFY2(stages.last().contains(result.def.title), qPrintable(stages.last()));
  QVERIFY(stages.last().contains(fmt::bytes(m_state->results.first().bytes))); // the first was through
  QVERIFY(!stages.first().contains(fmt::bytes(m_state->results.first().bytes)));
}

void TestJourneyScan::stoppedLeavesNothing() {
  open();
  slowDown();
  m_window->go(ui::Sidebar::Cleanup);
  click(*m_window, u"Start Smart Scan"_s);
  click(*m_window, u"Stop"_s);
  waitFor(AppState::Empty);
  QVERIFY(button(*m_window, u"Start Smart Scan"_s));
  QVERIFY(m_state->results.isEmpty());
  QVERIFY(!AppSettings::instance().lastScan().isValid());
}

void TestJourneyScan::stoppedRescanLeavesTheFindings() {
  open();
  scan();
  clickBox(rowBox(u"appcache"_s));
  const qint64 selected = m_state->selectedBytes();
  m_home->file(u".cache/acme-new/index"_s, 90'000);
  slowDown();
  click(*m_window, u"Rescan"_s);
  QCOMPARE(m_state->phase, AppState::Scanning);
  click(*m_window, u"Stop"_s);
  waitFor(AppState::Review);
  checkSum(selected); // nor did the selection change
  showDetail(u"appcache"_s);
  QVERIFY(!itemBox(u"acme-new"_s));
}

void TestJourneyScan::rescanBeginsAnew() {
  open();
  addManyItems(*m_home, 20);
  scan();
  showDetail(u"update"_s);
  click(*m_window, u"Show 6 more"_s);
  settle();
  QCOMPARE(itemBoxes().size(), 21);
  clickBox(rowBox(u"update"_s));
  clickBox(rowBox(u"thumbs"_s));
  m_home->file(u".cache/acme-new/index"_s, 900'000);
  QVERIFY(QFile::remove(m_home->path(u".xsession-errors.old"_s)));
  rescan();
  QCOMPARE(itemBoxes().size(), 15); // of the category that was on show, collapsed
  QVERIFY(!row(u"logs"_s));
  showDetail(u"appcache"_s);
  QVERIFY(itemBox(u"acme-new"_s) && itemBox(u"acme-new"_s)->isChecked());
  checkSum(bytesOf({u"temp"_s, u"appcache"_s, u"browser"_s, u"thumbs"_s})); // what is recommended
}

void TestJourneyScan::startsFromTheOverview() {
  open();
  QCOMPARE(m_window->page(), int(ui::Sidebar::Overview));
  auto* orb = m_window->findChild<ui::DiskOrb*>();
  QCOMPARE(orb->action(), u"Scan"_s);
  QTest::mouseClick(orb, Qt::LeftButton, {}, orb->coreRect().center().toPoint());
  QCOMPARE(m_window->page(), int(ui::Sidebar::Cleanup));
  waitFor(AppState::Review);
  goToOverview();
  QCOMPARE(orb->action(), u"Review"_s);
  QVERIFY(allTexts(m_window.get()).contains(fmt::bytes(m_state->totalReclaimable()) + u" ready to clean"_s));
  QTest::mouseClick(tile(u"dev"_s), Qt::LeftButton);
  settle();
  QCOMPARE(m_window->page(), int(ui::Sidebar::Cleanup));
  QVERIFY(shows(*detail(), m_state->result(u"dev"_s)->def.title));
  goToOverview();
  click(*m_window, u"See all"_s);
  QCOMPARE(m_window->page(), int(ui::Sidebar::Cleanup));
  m_home->file(u".cache/acme-new/index"_s, 900'000);
  goToOverview();
  click(*m_window, u"Rescan"_s);
  QCOMPARE(m_window->page(), int(ui::Sidebar::Cleanup));
  waitFor(AppState::Review);
  showDetail(u"appcache"_s);
  QVERIFY(itemBox(u"acme-new"_s));
}

void TestJourneyScan::startsFromTheOverviewByKeyboard() {
  open();
  QVERIFY(tabUntil(*m_window, [](const QWidget* at) { return qobject_cast<const ui::DiskOrb*>(at); }));
  press(*m_window, Qt::Key_Space);
  QCOMPARE(m_state->phase, AppState::Scanning);
  waitFor(AppState::Review);
  goToOverview();
  QVERIFY(tabUntil(*m_window, [this](const QWidget* at) { return at == tile(u"update"_s); }));
  press(*m_window, Qt::Key_Return);
  settle();
  QCOMPARE(m_window->page(), int(ui::Sidebar::Cleanup));
  QVERIFY(shows(*detail(), m_state->result(u"update"_s)->def.title));
}

void TestJourneyScan::nothingFound() {
  open(Small::Empty);
  scan();
  QVERIFY(shows(*m_window, u"0 KB can be cleaned"_s));
  QVERIFY(shows(*detail(), u"Nothing left to clean. Rescan any time."_s));
  checkSum(0);
  clickClean(); // of a disabled button
  QVERIFY(!question());
  m_home->file(u".cache/acme-notes/index"_s, 50'000);
  rescan();
  QVERIFY(row(u"appcache"_s));
  QVERIFY(m_state->selectedBytes() > 0);
}

void TestJourneyScan::unreadableFolder() {
  if (::geteuid() == 0) QSKIP("root reads every folder");
  open();
  const QByteArray closed = QFile::encodeName(m_home->path(u".cache/acme-paint"_s));
  const QByteArray shut = QFile::encodeName(m_home->path(u".cache/thumbnails"_s));
  for (const QByteArray& folder : {closed, shut}) QCOMPARE(::chmod(folder.constData(), 0), 0);
  scan();
  QVERIFY(shows(*row(u"thumbs"_s), u"No permission to read"_s)); // nothing else is in it
  QVERIFY(!rowBox(u"thumbs"_s)->isEnabled());
  showDetail(u"thumbs"_s);
  QVERIFY(shows(*detail(), u"You have no permission to read some of these folders."_s));
  showDetail(u"appcache"_s);
  QVERIFY(shows(*detail(), u"You have no permission to read some of these folders."_s));
  QVERIFY(itemBox(u"acme-notes"_s));
  clean(u"Clean and delete"_s);
  for (const QByteArray& folder : {closed, shut}) QCOMPARE(::chmod(folder.constData(), 0700), 0);
  QVERIFY(there(u".cache/acme-paint/brushes"_s));
  QVERIFY(there(u".cache/thumbnails/normal/1.png"_s));
  QVERIFY(!there(u".cache/acme-notes/index"_s));
}

void TestJourneyScan::changesNothing() {
  open();
  const auto before = wholeTree(*m_home);
  scan();
  for (const char* id : {"temp", "appcache", "browser", "logs", "thumbs", "update", "dev", "trash"}) {
    showDetail(QString::fromLatin1(id));
    clickBox(rowBox(QString::fromLatin1(id)));
  }
  rescan();
  QCOMPARE(wholeTree(*m_home), before);
}

int main(int argc, char** argv) { return uitest::run<TestJourneyScan>(argc, argv); }

#include "tst_JourneyScan.moc"
