// The course of a search for large files: what it tells on the way, how often, and how it ends.
#include "engines/LargeFileTest.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class tst_LargeFileFinder_course : public LargeFileTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void keepsTheLargestOnTop();
  void keepsTheFirstOfEqualOnesOnTop();
  void tellsHowFarItIs();
  void tellsAtMostEvery81Ms_data();
  void tellsAtMostEvery81Ms();
  void startDuringASearchChangesNothing();
  void cancelledSearchHandsOverWhatItHas();
  void cancelBeforeTheStartDoesNothing();
  void endsWithItsOwner();
  void searchesAgain();
  void homeThatIsNotThere();
};

void tst_LargeFileFinder_course::keepsTheLargestOnTop() {
  for (const int size : {3, 8, 1, 9, 2, 6, 4, 7, 5}) large(u"file %1"_s.arg(size), 10 + size);
  addSmall(u"later"_s, 2 * kFilesPerLook);
  Run run(81ms);
  run.search(10 * kBlock);
  QVERIFY(!run.told.isEmpty());
  QCOMPARE(blocks(run.told.last().top), (QList<qint64>{19, 18, 17, 16, 15, 14, 13, 12}));
  QCOMPARE(run.told.last().found, 9);
}

void tst_LargeFileFinder_course::keepsTheFirstOfEqualOnesOnTop() {
  for (int i = 0; i < 12; ++i) large(u"same %1"_s.arg(i));
  large(u"larger"_s, 6);
  QStringList inOrder; // as the folder lists them, which is how they are found
  for (const fs::Entry& entry : fs::list(m_home->path()))
    if (entry.name.startsWith(u"same"_s)) inOrder << entry.name;
  addSmall(u"later"_s, 2 * kFilesPerLook);
  Run run(81ms);
  run.search();
  QStringList top;
  for (const LargeFile& file : run.told.last().top) top << file.name;
  QCOMPARE(top, QStringList{u"larger"_s} + inOrder.first(7));
}

void tst_LargeFileFinder_course::tellsHowFarItIs() {
  large(u"film.mov"_s, 7);
  large(u"other.mov"_s, 6);
  addSmall(u"one/deep"_s, 20);
  addSmall(u"two"_s, 20);
  Run run(81ms);
  run.search();
  QCOMPARE(run.told.size(), 2); // at the 16th and the 32nd file
  QCOMPARE(run.told.at(0).filesSeen, 16);
  QCOMPARE(run.told.at(1).filesSeen, 32);
  for (const Told& told : run.told) {
    QCOMPARE(told.found, 2);
    QCOMPARE(told.bytesFound, 13 * kBlock);
    QCOMPARE(blocks(told.top), (QList<qint64>{7, 6}));
    QCOMPARE(told.top.first().path, m_home->path(u"film.mov"_s));
  }
  QStringList dirs{run.told.at(0).dir, run.told.at(1).dir};
  dirs.sort();
  QCOMPARE(dirs, (QStringList{m_home->path(u"one/deep"_s), m_home->path(u"two"_s)}));
}

void tst_LargeFileFinder_course::tellsAtMostEvery81Ms_data() {
  QTest::addColumn<int>("stepMs"); // between two looks at the clock
  QTest::addColumn<int>("signalCount");
  QTest::newRow("a clock that stands") << 0 << 0;
  QTest::newRow("just too early") << 16 << 1; // 80 ms aren't enough, and then it counts from there
  QTest::newRow("each second look") << 41 << 5;
  QTest::newRow("just so") << 81 << 10;
}

void tst_LargeFileFinder_course::tellsAtMostEvery81Ms() {
  QFETCH(int, stepMs);
  QFETCH(int, signalCount);
  addSmall(u"many"_s, 10 * kFilesPerLook);
  Run run{std::chrono::milliseconds(stepMs)};
  run.search();
  QCOMPARE(run.told.size(), signalCount);
}

void tst_LargeFileFinder_course::startDuringASearchChangesNothing() {
  large(u"a.iso"_s, 5);
  large(u"b.mov"_s, 9);
  QSemaphore go;
  Run run;
  run.onLook = [&] { go.acquire(); };
  run.finder.start(kMin, {u"*.iso"_s});
  QVERIFY(run.finder.isRunning());
  run.finder.start(0, {});
  go.release();
  run.wait();
  QCOMPARE(run.names(), QStringList{u"b.mov"_s});
  QCOMPARE(run.ends.load(), 1);
  QVERIFY(!run.finder.isRunning());
}

void tst_LargeFileFinder_course::cancelledSearchHandsOverWhatItHas() {
  large(u"first.iso"_s, 5);
  large(u"second.iso"_s, 6);
  addSmall(u"."_s);
  large(u"folder/late.iso"_s);
  Run run;
  int looks = 0;
  run.onLook = [&] {
    if (++looks == 2) run.finder.cancel(); // within the home folder, which is walked to its end
  };
  run.search();
  QCOMPARE(run.ends.load(), 1);
  QVERIFY(run.cancelled);
  QCOMPARE(run.names(), (QStringList{u"second.iso"_s, u"first.iso"_s}));
  QCOMPARE(run.finder.summary().found, 2);
  QCOMPARE(run.finder.summary().filesSeen, 18);
}

void tst_LargeFileFinder_course::cancelBeforeTheStartDoesNothing() {
  large(u"a.iso"_s);
  Run run;
  run.finder.cancel();
  run.search();
  QVERIFY(!run.cancelled && run.files.size() == 1);
}

void tst_LargeFileFinder_course::endsWithItsOwner() {
  addSmall(u"many"_s);
  std::atomic<bool> begun = false;
  {
    LargeFileFinder finder(nullptr, [&] {
      begun = true;
      return 0ms;
    });
    finder.start(kMin, {});
    QTRY_VERIFY_WITH_TIMEOUT(begun.load(), kPatienceMs);
  }
  QVERIFY(begun); // and nothing of the search touches what has gone: a sanitizer looks
}

void tst_LargeFileFinder_course::searchesAgain() {
  const QString one = large(u"one.iso"_s);
  Run run;
  run.search();
  QVERIFY(QFile::remove(one));
  const QString two = large(u"two.iso"_s);
  run.search();
  QCOMPARE(run.names(), QStringList{u"two.iso"_s});
  QCOMPARE(run.finder.summary().found, 1);
  QCOMPARE(run.finder.summary().ids.keys(), QStringList{two});
}

void tst_LargeFileFinder_course::homeThatIsNotThere() {
  qputenv("HOME", m_home->path(u"missing"_s).toUtf8());
  Run run;
  run.search();
  QVERIFY(run.ends == 1 && run.files.isEmpty() && !run.cancelled);
  qputenv("HOME", m_home->path().toUtf8());
}

QTEST_GUILESS_MAIN(tst_LargeFileFinder_course)
#include "tst_LargeFileFinder_course.moc"
