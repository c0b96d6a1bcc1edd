// ctest: LABELS journey
// ctest: TIMEOUT 600
// From the review to the result: asked and left alone, moved to the Trash, deleted, held back by a running app and by
// an open file; then the disk, the log, the settings and the screen are looked at.
#include "JourneyTest.h"

#include "support/child.h"
#include "ui/controls/GradientText.h"
#include "ui/controls/Note.h"
#include "ui/shell/NavButton.h"
#include "ui/shell/Toast.h"

#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>

#include <algorithm>
#include <fstream>
#include <iterator>

using namespace windowtest;

namespace {

const QStringList kAll = {u"temp"_s,   u"appcache"_s, u"browser"_s, u"logs"_s,
                          u"thumbs"_s, u"update"_s,   u"dev"_s,     u"trash"_s};
const QStringList kSafe = kAll.mid(0, 5);

bool isBelow(const std::string& path, const std::string& folder) {
  return path.size() > folder.size() && path.compare(0, folder.size(), folder) == 0 && path[folder.size()] == '/';
}

/// A running program of this name: a stand-in that waits to be ended.
class StandIn {
 public:
  StandIn(const FixtureHome& home, const QString& name) {
    const QString path = home.folder(home.outside(u"bin"_s)) + u'/' + name;
    if (!QFile::copy(QStandardPaths::findExecutable(u"sleep"_s), path)) qFatal("no stand-in at %s", qPrintable(path));
    m_process.setChildProcessModifier(child::dieWithParent);
    m_process.start(path, {u"1000"_s});
    if (!m_process.waitForStarted()) qFatal("the stand-in doesn't run");
  }
  ~StandIn() { quit(); }
  StandIn(const StandIn&) = delete;
  StandIn& operator=(const StandIn&) = delete;

  void quit() {
    m_process.kill();
    m_process.waitForFinished();
  }

 private:
  QProcess m_process;
};

} // namespace

class TestJourneyClean : public JourneyTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void cleanup() { close(); }

  void leavingTheQuestionChangesNothing();
  void deletes_data() { hosts(); }
  void deletes();
  void movesToTheTrash_data() { hosts(); }
  void movesToTheTrash();
  void emptiesTheTrashWhileMoving();
  void quitAppsGiveTheirCachesBack();
  void openFilesStay();
  void aSecondCleanIsRefusedInWords();
  void whatWasRuledOutMeanwhileStays();
  void resultsFollowTheClean();
  void quittingMeanwhileEndsTheLog();

 private:
  [[nodiscard]] QString freedOnScreen() const { return JourneyTest::cleanup()->findChild<ui::GradientText*>()->text(); }
  [[nodiscard]] const ui::Note* heldBack() const {
    return JourneyTest::cleanup()->findChild<ui::Note*>(u"skippedNote"_s);
  }
  /// Paths that must not go: what the demo home tells, and what belongs to apps that run.
  [[nodiscard]] QStringList kept() const {
    QStringList paths = m_demo->stays();
    for (const CategoryResult& result : m_state->results)
      for (const CleanItem& item : result.items)
        if (!item.owner.isEmpty()) paths << item.path;
    return paths;
  }
  /// Of @p before, what a clean of these categories takes.
  [[nodiscard]] Paths goes(const Paths& before, const QStringList& ids, const QStringList& staying) const {
    const auto stays = [&](const std::string& path) {
      for (const QString& one : staying) {
        const std::string kept = QFile::encodeName(one).toStdString();
        if (path == kept || isBelow(path, kept) || isBelow(kept, path)) return true;
      }
      return false;
    };
    Paths gone;
    for (const QString& id : ids)
      for (const DemoItem& item : m_demo->items(id)) {
        const std::string top = QFile::encodeName(item.path).toStdString();
        for (const std::string& path : before)
          if ((isBelow(path, top) || (path == top && !item.wholeRoot)) && !stays(path)) gone.insert(path);
      }
    return gone;
  }
  static Paths without(const Paths& all, const Paths& less) {
    Paths rest;
    std::set_difference(all.begin(), all.end(), less.begin(), less.end(), std::inserter(rest, rest.end()));
    return rest;
  }
  /// Each thing that came into the Trash has its info file.
  static void checkTrash(const Paths& came) {
    const std::filesystem::path trash = qgetenv("XDG_DATA_HOME").toStdString() + "/Trash";
    int things = 0;
    for (const std::filesystem::path path : came) {
      if (path.parent_path() != trash / "files") continue;
      ++things;
      std::ifstream info(trash / "info" / (path.filename().string() + ".trashinfo"));
      std::string head;
      std::string from;
      QVERIFY2(std::getline(info, head) && std::getline(info, from), path.c_str());
      QCOMPARE(head, std::string("[Trash Info]"));
      QVERIFY2(from.rfind("Path=", 0) == 0, from.c_str());
    }
    QVERIFY(things > 0);
  }
  void step(Qt::Key key) {
    press(*m_window, key);
    settle();
  }
  void checkResult() const {
    QVERIFY(shows(*m_window, u"Cleanup complete"_s));
    QCOMPARE(freedOnScreen(), fmt::bytes(m_state->report.freedBytes));
    QVERIFY(m_state->report.freedBytes > 0);
    QCOMPARE(AppSettings::instance().freedHistory(1).last(), m_state->report.freedBytes);
    const QStringList lines = log();
    QVERIFY2(lines.first().startsWith(u"Tarnwick cleanup "_s), qPrintable(lines.first()));
    QVERIFY(lines.join(u'\n').contains(u"Freed %1"_s.arg(fmt::bytes(m_state->report.freedBytes))));
  }
};

void TestJourneyClean::leavingTheQuestionChangesNothing() {
  open();
  scan();
  const auto before = wholeTree(*m_home);
  const qint64 selected = m_state->selectedBytes();
  const QList<std::function<void()>> ways = {
      [this] { QTest::keyClick(question(), Qt::Key_Escape); },
      [this] { QTest::mouseClick(question(), Qt::LeftButton, {}, QPoint(3, question()->height() - 3)); },
      [this] { click(*question(), u"Cancel"_s); },
  };
  for (const auto& leave : ways) {
    clickClean();
    QVERIFY(question());
    QTest::mouseClick(question()->panel, Qt::LeftButton, {}, QPoint(3, 3)); // inside it, where there is nothing
    settle();
    QVERIFY(question());
    leave();
    settle();
    QVERIFY(!question());
    QCOMPARE(m_state->phase, AppState::Review);
    checkSum(selected);
  }
  QVERIFY(!m_state->cleaner->isRunning());
  QCOMPARE(wholeTree(*m_home), before);
}

// By mouse, all there is, while an app runs.
void TestJourneyClean::deletes() {
  QFETCH(QString, host);
  openDemo(host);
  const StandIn chrome(*m_home, u"chrome"_s);
  scan();
  showDetail(u"browser"_s);
  QVERIFY(shows(*detail(), u"Google Chrome is running"_s));
  clickBox(selectAllBox());
  const Paths before = pathsBelow(m_demo->top());
  const Paths expected = goes(before, kAll, kept());
  clickClean();
  QVERIFY(shows(*question(), u"Permanent delete is on. These files can't be recovered."_s));
  QVERIFY(shownTexts(*question()).join(u'\n').contains(u" of it will stay while these apps are open: "_s));
  click(*question(), u"Clean and delete"_s);
  QVERIFY(shows(*m_window, u"Cleaning"_s));
  waitFor(AppState::Done);
  const Paths after = pathsBelow(m_demo->top());
  Paths gone = without(before, after);
  for (const std::string& path : without(gone, expected)) {
    QVERIFY2(path.find("/Trash/info/") != std::string::npos, path.c_str()); // goes with what it tells of
    gone.erase(path);
  }
  QVERIFY(gone == expected);
  for (const QString& path : kept()) QVERIFY2(QFile::exists(path), qPrintable(path));
  QVERIFY(shows(*m_window, u"Items were deleted permanently."_s));
  QVERIFY(heldBack()->isVisible());
  QVERIFY(plain(heldBack()->text()).startsWith(u"Left caches of running apps alone:"_s));
  QVERIFY(plain(heldBack()->text()).contains(u"Google Chrome"_s));
  QVERIFY(log().join(u'\n').contains(u"(Google Chrome is running)"_s));
  checkResult();
}

// By keyboard alone, what is recommended.
void TestJourneyClean::movesToTheTrash() {
  QFETCH(QString, host);
  openDemo(host);
  AppSettings::instance().setMoveToTrash(true);
  tabTo(*m_window, u"Smart Scan"_s);
  step(Qt::Key_Down); // among the pages, arrow keys go on
  QCOMPARE(m_window->page(), int(ui::Sidebar::Cleanup));
  tabTo(*m_window, u"Start Smart Scan"_s);
  step(Qt::Key_Space);
  waitFor(AppState::Review);
  const Paths before = pathsBelow(m_demo->top());
  const Paths expected = goes(before, kSafe, kept());
  tabTo(*m_window, u"Clean "_s);
  step(Qt::Key_Space);
  QVERIFY(question());
  QVERIFY(shows(*question(), u"Everything will be moved to the Trash, so you can restore it later."_s));
  step(Qt::Key_Escape);
  QVERIFY(!question());
  QCOMPARE(QApplication::focusWidget(), cleanButton()); // goes on where it was
  step(Qt::Key_Space);
  step(Qt::Key_Return); // the default action
  waitFor(AppState::Done);
  const Paths after = pathsBelow(m_demo->top());
  QVERIFY(without(before, after) == expected);
  checkTrash(without(after, before));
  QVERIFY(shows(*m_window, u"Moved to the Trash. You can still restore anything."_s));
  checkResult();
  for (const QString& line : log()) QVERIFY2(!line.startsWith(u"DELETED"_s), qPrintable(line));
  tabTo(*m_window, u"Done"_s);
  step(Qt::Key_Space);
  QCOMPARE(m_window->page(), int(ui::Sidebar::Overview));
}

void TestJourneyClean::emptiesTheTrashWhileMoving() {
  open();
  AppSettings::instance().setMoveToTrash(true);
  scan();
  clickBox(rowBox(u"trash"_s));
  clickClean();
  QVERIFY(shows(*question(), u"Emptying the Trash can't be undone. Everything else goes to the Trash."_s));
  click(*question(), u"Clean and delete"_s);
  waitFor(AppState::Done);
  QVERIFY(!there(u".local/share/Trash/files/old-letter.odt"_s));
  QVERIFY(!there(u".local/share/Trash/info/old-letter.odt.trashinfo"_s));
  QVERIFY(!there(u".xsession-errors.old"_s));
  QVERIFY(there(u".local/share/Trash/files/.xsession-errors.old"_s)); // and what came with this clean stays in it
}

void TestJourneyClean::quitAppsGiveTheirCachesBack() {
  open();
  StandIn notes(*m_home, u"acme-notes"_s);
  scan();
  showDetail(u"appcache"_s);
  QVERIFY(shows(*detail(), u"acme-notes is running"_s));
  QVERIFY(shows(*detail(), u"acme-notes is open. Quit it to include its cache."_s));
  clean(u"Clean and delete"_s);
  QVERIFY(there(u".cache/acme-notes/index"_s));
  QVERIFY(!there(u".cache/acme-paint/brushes"_s));
  notes.quit();
  click(*m_window, u"Done"_s);
  m_window->go(ui::Sidebar::Cleanup);
  rescan();
  QVERIFY(!shows(*detail(), u"acme-notes is open"_s));
  clean(u"Clean and delete"_s);
  QVERIFY(!there(u".cache/acme-notes/index"_s));
  QVERIFY(!heldBack()->isVisible()); // nothing is left of the first
}

void TestJourneyClean::openFilesStay() {
  open();
  QFile held(m_home->path(u".cache/acme-notes/pages/1"_s));
  QVERIFY(held.open(QIODevice::ReadOnly));
  scan();
  clean(u"Clean and delete"_s);
  QVERIFY(there(u".cache/acme-notes/pages/1"_s));
  QVERIFY(!there(u".cache/acme-notes/index"_s)); // beside it
  QCOMPARE(m_state->report.skipped, 1);
  QVERIFY(heldBack()->isVisible());
  QVERIFY(plain(heldBack()->text()).startsWith(u"1 file"_s));
  QVERIFY(plain(heldBack()->text()).contains(u"For example: "_s));
  QVERIFY(log().contains(u"SKIPPED  %1  (open in an app)"_s.arg(held.fileName())));
}

void TestJourneyClean::aSecondCleanIsRefusedInWords() {
  open();
  scan();
  const auto before = wholeTree(*m_home);
  const RunLock another(m_home->outside(u"clean.lock"_s));
  QCOMPARE(another.state(), RunLock::State::Held);
  const qint64 selected = m_state->selectedBytes();
  clickClean();
  click(*question(), u"Clean and delete"_s);
  waitFor(AppState::Review);
  const auto* toast = m_window->findChild<ui::Toast*>();
  QVERIFY(toast->isVisible());
  QVERIFY(shows(*toast, u"Another cleanup is already running."_s));
  checkSum(selected);
  auto after = wholeTree(*m_home);
  after.removeIf([&](const auto& entry) { return !before.contains(entry.key()); }); // the lock
  QCOMPARE(after.keys(), before.keys());
}

void TestJourneyClean::whatWasRuledOutMeanwhileStays() {
  open();
  scan();
  AppSettings::instance().setExclusions(AppSettings::instance().exclusions() << u"acme-paint"_s);
  clean(u"Clean and delete"_s);
  QVERIFY(there(u".cache/acme-paint/brushes"_s));
  QVERIFY(!there(u".cache/acme-notes/index"_s));
  QVERIFY(log().contains(u"EXCLUDED %1"_s.arg(m_home->path(u".cache/acme-paint"_s))));
}

void TestJourneyClean::resultsFollowTheClean() {
  open();
  scan();
  clean(u"Clean and delete"_s);
  click(*m_window, u"Done"_s);
  QCOMPARE(m_window->page(), int(ui::Sidebar::Overview));
  QTest::mouseClick(m_window->findChildren<ui::NavButton*>().at(1), Qt::LeftButton);
  for (const QString& id : kSafe) QVERIFY2(!row(id), qPrintable(id));
  checkSum(0); // what wasn't recommended is still there, and nothing of it is ticked
  QVERIFY(row(u"dev"_s) && row(u"trash"_s) && row(u"update"_s));
  clickBox(rowBox(u"dev"_s));
  clean(u"Clean and delete"_s);
  QVERIFY(!there(u".cache/pip/http/1"_s));
  QVERIFY(there(u"Downloads/tool_1.0_amd64.deb"_s));
}

// As when the program is told to quit: what was begun is finished and written down, the rest stays.
void TestJourneyClean::quittingMeanwhileEndsTheLog() {
  open();
  constexpr int kMany = 1'000;
  addManyItems(*m_home, kMany);
  scan();
  clickBox(rowBox(u"update"_s));
  QSignalSpy progress(m_state.get(), &AppState::cleanProgress);
  clickClean();
  click(*question(), u"Clean and delete"_s);
  QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty(), kPatienceMs);
  m_window.reset();
  m_state.reset();
  QCOMPARE(RunLock(m_home->outside(u"clean.lock"_s)).state(), RunLock::State::Held); // nobody has it
  const QStringList logs = QDir(Cleaner::logDir()).entryList(QDir::Files);
  QCOMPARE(logs.size(), 1);
  QFile log(Cleaner::logDir() + u'/' + logs.first());
  QVERIFY(log.open(QIODevice::ReadOnly));
  const QStringList lines = QString::fromUtf8(log.readAll()).split(u'\n');
  QVERIFY2(lines.last().isEmpty() && lines.at(lines.size() - 2).startsWith(u"Freed "_s), qPrintable(lines.last()));
  const QStringList told = lines.filter(u"Downloads/many-"_s);
  qsizetype gone = 0;
  for (int i = 0; i < kMany; ++i) {
    const QString path = m_home->path(u"Downloads/many-%1.deb"_s.arg(i));
    if (QFile::exists(path)) continue;
    ++gone;
    QVERIFY2(told.filter(u"DELETED  %1 "_s.arg(path)).size() == 1, qPrintable(path));
  }
  QCOMPARE(told.size(), gone);
}

int main(int argc, char** argv) { return uitest::run<TestJourneyClean>(argc, argv); }

#include "tst_JourneyClean.moc"
