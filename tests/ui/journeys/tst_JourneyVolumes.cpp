// ctest: LABELS journey
// ctest: TIMEOUT 300
// A part of the selection lies on a volume without a Trash: the question tells how much of it will stay, the clean
// leaves it, and the result says so.
#include "JourneyTest.h"

#include "engines/Mounts.h"
#include "ui/controls/Note.h"

using namespace windowtest;

namespace {
bool g_mayMount = false;
}

class TestJourneyVolumes : public JourneyTest {
  Q_OBJECT

 private slots:
  void initTestCase() {
    if (!g_mayMount) QSKIP("no permission to mount anything here");
    Theme::get().install(qApp);
  }
  void init();
  void cleanup() {
    m_memory.reset();
    close();
  }

  void whatHasNoTrashStays();
  void deletingTakesItAll();

 private:
  std::unique_ptr<mounts::Mount> m_memory;
};

void TestJourneyVolumes::init() {
  open();
  m_memory = std::make_unique<mounts::Mount>(m_home->path(u"Downloads"_s));
  m_home->file(u"Downloads/tool_2.0_amd64.deb"_s, 200'000);
}

void TestJourneyVolumes::whatHasNoTrashStays() {
  AppSettings::instance().setMoveToTrash(true);
  scan();
  clickBox(rowBox(u"update"_s));
  const qint64 staying = bytesOf({u"update"_s});
  QVERIFY(staying > 0);
  clickClean();
  QVERIFY(shows(*question(), u"%1 of it will stay: there is no Trash on its volume."_s.arg(fmt::bytes(staying))));
  click(*question(), u"Clean"_s);
  waitFor(AppState::Done);
  QVERIFY(there(u"Downloads/tool_2.0_amd64.deb"_s));
  QVERIFY(!there(u".cache/acme-notes/index"_s));
  QCOMPARE(m_state->report.skipped, 1);
  const QString line = u"SKIPPED  %1  (no Trash on this volume)"_s;
  QVERIFY(log().contains(line.arg(m_home->path(u"Downloads/tool_2.0_amd64.deb"_s))));
  QVERIFY(JourneyTest::cleanup()->findChild<ui::Note*>(u"skippedNote"_s)->isVisible());
}

void TestJourneyVolumes::deletingTakesItAll() {
  scan();
  clickBox(rowBox(u"update"_s));
  clickClean();
  QVERIFY(!shows(*question(), fmt::bytes(bytesOf({u"update"_s})) + u" of it will stay"_s));
  click(*question(), u"Clean and delete"_s);
  waitFor(AppState::Done);
  QVERIFY(!there(u"Downloads/tool_2.0_amd64.deb"_s));
  QCOMPARE(m_state->report.skipped, 0);
}

int main(int argc, char** argv) {
  g_mayMount = mounts::enter(); // while there is one thread
  return uitest::run<TestJourneyVolumes>(argc, argv);
}

#include "tst_JourneyVolumes.moc"
