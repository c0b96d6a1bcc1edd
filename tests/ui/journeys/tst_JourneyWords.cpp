// ctest: LABELS journey
// ctest: TIMEOUT 300
// Every text of the window, on all its views and in all its dialogs: on Linux none of them speaks of another system.
#include "JourneyTest.h"

#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesPage.h"
#include "ui/shell/AboutDialog.h"
#include "ui/shell/CloseDialog.h"
#include "ui/shell/program.h"

#include <QRegularExpression>

using namespace windowtest;

namespace {

const QRegularExpression
    kForeign(uR"(\b(Finder|Full Disk Access|Xcode|macOS|Mac|Time Machine|Applications|[Mm]enu bar|Windows)\b)"_s);

} // namespace

class TestJourneyWords : public JourneyTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void cleanup() { close(); }

  void noneOfAnotherSystem_data();
  void noneOfAnotherSystem();
  void theWalkFindsThem();

 private:
  void look() {
    settle();
    for (const QString& text : allTexts(m_window.get())) m_met.insert(text);
  }
  /// Results as an unlucky scan leaves them: nothing could be read, everything needs rights, every app is running.
  void makeTrouble() {
    for (CategoryResult& result : m_state->results) {
      result.accessDenied = true;
      result.def.needsAdmin = result.def.id != u"logs"_s;
      if (!result.items.isEmpty()) result.items.first().owner = u"Acme"_s;
    }
    m_state->results.last().bytes = 0;
    m_state->results.last().items.clear();
    emit m_state->resultsChanged();
  }
  void lookAtAllDetails() {
    for (const CategoryResult& result : QList<CategoryResult>(m_state->results)) {
      if (row(result.def.id)) showDetail(result.def.id); // else there was nothing
      look();
    }
  }
  void walk();
  void walkTheClean();
  void walkSpaceMap();
  void walkSystemData();
  void walkTheDialogs();
  [[nodiscard]] QStringList foreign() const {
    QStringList found;
    for (const QString& text : m_met)
      if (kForeign.match(text).hasMatch()) found << text;
    return found;
  }

  QSet<QString> m_met;
};

void TestJourneyWords::walk() {
  m_met.clear();
  look();
  m_window->go(ui::Sidebar::Cleanup);
  look();
  click(*m_window, u"Start Smart Scan"_s);
  look();
  waitFor(AppState::Review);
  lookAtAllDetails();
  m_window->go(ui::Sidebar::Overview);
  look();
  m_window->go(ui::Sidebar::Cleanup);
  walkTheClean();
  walkSpaceMap();
  walkSystemData();
  walkTheDialogs();
}

void TestJourneyWords::walkTheClean() {
  for (const bool toTrash : {true, false}) {
    AppSettings::instance().setMoveToTrash(toTrash);
    makeTrouble();
    lookAtAllDetails();
    clickBox(selectAllBox());
    clickClean();
    look();
    QTest::keyClick(question(), Qt::Key_Escape);
    settle();
    clickBox(selectAllBox());
  }
  m_state->selectAll(true);
  m_state->setPhase(AppState::Cleaning);
  look();
  m_state->report.skipped = 3;
  m_state->report.skippedSamples = {u"/c/held"_s};
  m_state->report.runningApps = {u"Acme"_s};
  m_state->report.needsAdmin = true;
  m_state->setPhase(AppState::Done);
  look();
}

/// With a file to be moved, and one that stays.
void TestJourneyWords::walkSpaceMap() {
  AppSettings::instance().setLargeFileMB(1);
  const QString held = m_home->file(u"Films/held.mov"_s, 2'000'000);
  m_home->file(u"Films/film.mov"_s, 1'500'000);
  QFile open(held);
  QVERIFY(open.open(QIODevice::ReadOnly));
  m_window->go(ui::Sidebar::SpaceMap);
  look();
  QTRY_VERIFY_WITH_TIMEOUT(m_state->largeScanned, kPatienceMs);
  look();
  auto* model = m_window->findChild<ui::LargeFilesModel*>();
  for (const LargeFile& file : QList<LargeFile>(model->files())) model->toggle(file.path);
  look();
  click(*m_window->findChild<ui::LargeFilesPage*>(), u"Move to Trash"_s);
  look();
  m_state->undoLastTrash();
  look();
  QTRY_VERIFY_WITH_TIMEOUT(!m_state->largeSearching, kPatienceMs);
}

/// With every row on show, of which one could be read in part and the others not at all.
void TestJourneyWords::walkSystemData() {
  m_window->go(ui::Sidebar::SystemData);
  look();
  QTRY_VERIFY_WITH_TIMEOUT(m_state->systemDataReady, kPatienceMs);
  look();
  for (SystemDataItem& item : m_state->systemData) item.denied = true;
  m_state->systemData.first().bytes = 1000;
  for (const bool busy : {true, false}) {
    m_state->systemDataBusy = busy;
    emit m_state->systemDataChanged();
    look();
  }
}

void TestJourneyWords::walkTheDialogs() {
  m_window->showAbout();
  look();
  m_state->volume.totalBytes = 1000;
  m_state->volume.availableBytes = 1;
  ui::afterStart(m_window.get(), m_state.get(), {.background = false, .updated = true});
  look();
  const QStringList words = allTexts(std::make_unique<ui::CloseDialog>(m_window.get()).get());
  m_met.unite(QSet<QString>(words.begin(), words.end()));
  m_window->showShortcuts();
  look();
  m_window->showAppMenu({});
  for (const QAction* action : m_window->findChildren<QAction*>()) m_met << action->text() << action->toolTip();
  QApplication::activePopupWidget()->close();
}

void TestJourneyWords::noneOfAnotherSystem_data() {
  QTest::addColumn<bool>("mac");
  QTest::newRow("mac metrics") << true;
  QTest::newRow("other metrics") << false;
}

void TestJourneyWords::noneOfAnotherSystem() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  open();
  walk();
  Theme::get().mac = true;
  QVERIFY2(foreign().isEmpty(), qPrintable(foreign().join(u'\n')));
  // It went everywhere.
  const QString all = QStringList(m_met.begin(), m_met.end()).join(u'\n');
  for (const char* met : {"Nothing scanned yet",
                          "Scanning",
                          "Clean and delete",
                          "Show in Files",
                          "Version 1.0.0",
                          "Keep in tray",
                          "You have no permission to read some of these folders.",
                          "No permission to read",
                          "Show Tarnwick in the system tray",
                          "Open at login",
                          "Cleanup complete",
                          "Some files belong to the system and were left alone.",
                          "Acme is open",
                          "Trash",
                          "Find what's taking up space",
                          "Looking for large files…",
                          " moved to the Trash",
                          "in use, skipped",
                          "See what's inside System Data",
                          "Measuring System Data…",
                          "Managed by the system",
                          "at least 1 KB",
                          "Only what you may read is counted."})
    QVERIFY2(all.contains(QString::fromUtf8(met)), met);
}

// On the other host the same walk meets the words that it looks for.
void TestJourneyWords::theWalkFindsThem() {
  open(Small::Mac);
  walk();
  const QString found = foreign().join(u'\n');
  for (const char* word : {"Finder", "Full Disk Access", "Xcode", "Time Machine"})
    QVERIFY2(found.contains(QString::fromLatin1(word)), word);
}

int main(int argc, char** argv) { return uitest::run<TestJourneyWords>(argc, argv); }

#include "tst_JourneyWords.moc"
