// The course of a measuring of System Data: how often it tells where it is, and how it ends, by itself or cancelled.
#include "engines/MeasuringTest.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kBetweenProgressMs = 81;
constexpr int kFilesForOneWord = 400; ///< the walk tells where it is after so many

/// A tmutil that waits until the test lets it go, and tells that it was called.
const QByteArray kGate = "while [ ! -e \"${0%/*}/go\" ]; do sleep 0.02; done";

} // namespace

class tst_SystemDataScanner_course : public MeasuringTest {
  Q_OBJECT

 private slots:
  void init() { make("mac"); }
  void cleanup() { drop(); }

  void progressIsThrottled();
  void progressCountsEarlierPlaces();
  void aSecondStartDoesNothing();
  void isOverOnceToldSo();
  void cancelled();
  void cancelledMidwayKeepsWhatWasCounted();
  void endsWithItsObject();

 private:
  void addFiles(const QString& folder, int count) const {
    for (int i = 0; i < count; ++i) m_home->file(folder + u'/' + QString::number(i), 1);
  }
  void letGo() const { m_home->file(tool("go")); }
};

// Without a throttle there would be a word after every four hundredth file.
void tst_SystemDataScanner_course::progressIsThrottled() {
  addFiles(u"Library/Caches/a"_s, kFilesForOneWord * 10);
  QElapsedTimer clock;
  clock.start();
  Course course;
  run(&course);
  const qint64 most = clock.elapsed() / kBetweenProgressMs;
  const auto words = std::count_if(course.progress.begin(), course.progress.end(),
                                   [](const Course::Progress& one) { return one.bytes > 0; });
  QVERIFY2(words <= most, qPrintable(u"%1 words, %2 at most"_s.arg(words).arg(most)));
}

// The tool takes longer than the throttle, so that the first word on files is said; from then on this test is slower
// than the throttle itself.
void tst_SystemDataScanner_course::progressCountsEarlierPlaces() {
  putTool("tmutil", "sleep 0.1");
  for (const char* folder : {".a", ".b"}) addFiles(QLatin1String(folder), kFilesForOneWord);
  const std::atomic<bool> cancel = false;
  const qint64 each = fs::measure(m_home->path(u".a"_s), cancel).bytes;
  SystemDataScanner scanner(nullptr, m_world);
  Course course;
  course.listen(&scanner);
  connect(
      &scanner, &SystemDataScanner::progress, &scanner,
      [](int, int, const QString&, qint64 bytes) {
        QElapsedTimer clock;
        for (clock.start(); bytes > 0 && clock.elapsed() <= kBetweenProgressMs;) {
        }
      },
      Qt::DirectConnection);
  scanner.start();
  QTRY_VERIFY_WITH_TIMEOUT(!scanner.isRunning(), kPatienceMs);
  QStringList folders;
  QList<qint64> bytes;
  for (const Course::Progress& one : course.progress) {
    if (one.bytes == 0) continue;
    QCOMPARE(rows()[one.index].id, u"hidden"_s);
    folders << one.path;
    bytes << one.bytes;
  }
  QCOMPARE(folders, QStringList(rowOf(course.items, u"hidden"_s).paths));
  QCOMPARE(bytes, (QList<qint64>{each, each * 2}));
}

void tst_SystemDataScanner_course::aSecondStartDoesNothing() {
  putTool("tmutil", kGate);
  SystemDataScanner scanner(nullptr, m_world);
  Course course;
  course.listen(&scanner);
  QVERIFY(!scanner.isRunning());
  scanner.start();
  QVERIFY(scanner.isRunning());
  scanner.start();
  letGo();
  scanner.start();
  QTRY_VERIFY_WITH_TIMEOUT(!scanner.isRunning(), kPatienceMs);
  QCOMPARE(course.finished.load(), 1);
  QCOMPARE(course.order.last(), u"finished"_s);
  QCOMPARE(course.order.count(u"progress 0"_s), 1);
  scanner.start(); // but now
  QTRY_VERIFY_WITH_TIMEOUT(!scanner.isRunning(), kPatienceMs);
  QCOMPARE(course.finished.load(), 2);
}

// A page that hears of the end asks whether it is over, and may start anew at once.
void tst_SystemDataScanner_course::isOverOnceToldSo() {
  SystemDataScanner scanner(nullptr, m_world);
  QList<bool> running;
  connect(&scanner, &SystemDataScanner::finished, this, [&] {
    running << scanner.isRunning();
    if (running.size() < 3) scanner.start();
  });
  scanner.start();
  QTRY_COMPARE_WITH_TIMEOUT(running, (QList<bool>{false, false, false}), kPatienceMs);
  QVERIFY(!scanner.isRunning());
}

void tst_SystemDataScanner_course::cancelled() {
  putTool("tmutil", kGate + "; echo com.apple.TimeMachine.1");
  m_home->file(u"Library/Caches/a"_s);
  SystemDataScanner scanner(nullptr, m_world);
  Course course;
  course.listen(&scanner);
  scanner.start();
  QTRY_VERIFY_WITH_TIMEOUT(fs::exists(callsOf("tmutil")), kPatienceMs);
  scanner.cancel();
  letGo();
  QTRY_VERIFY_WITH_TIMEOUT(!scanner.isRunning(), kPatienceMs);
  QCOMPARE(course.order, (QStringList{u"progress 0"_s, u"finished"_s}));
  QVERIFY(course.cancelled);
  QCOMPARE(course.items.size(), 18);
  QCOMPARE(rowOf(course.items, u"usercaches"_s).bytes, 0);
  scanner.start(); // the next one isn't
  QTRY_VERIFY_WITH_TIMEOUT(!scanner.isRunning(), kPatienceMs);
  QVERIFY(!course.cancelled);
  QVERIFY(rowOf(course.items, u"usercaches"_s).bytes > 0);
}

void tst_SystemDataScanner_course::cancelledMidwayKeepsWhatWasCounted() {
  putTool("tmutil", "sleep 0.1");
  addFiles(u"Library/Caches/a"_s, kFilesForOneWord);
  addFiles(u"Library/Caches/b"_s, kFilesForOneWord);
  SystemDataScanner scanner(nullptr, m_world);
  Course course;
  course.listen(&scanner);
  connect(
      &scanner, &SystemDataScanner::progress, &scanner,
      [&](int, int, const QString&, qint64 bytes) {
        if (bytes > 0) scanner.cancel();
      },
      Qt::DirectConnection);
  scanner.start();
  QTRY_VERIFY_WITH_TIMEOUT(!scanner.isRunning(), kPatienceMs);
  QVERIFY(course.cancelled);
  const SystemDataItem row = rowOf(course.items, u"usercaches"_s);
  QCOMPARE(row.files, kFilesForOneWord); // the one folder, and not the other
  QCOMPARE(course.order.mid(course.order.size() - 2), (QStringList{u"progress 5"_s, u"finished"_s}));
}

void tst_SystemDataScanner_course::endsWithItsObject() {
  putTool("tmutil", "exec sleep 60");
  m_world.listLimitMs = 500;
  Course course;
  {
    SystemDataScanner scanner(nullptr, m_world);
    course.listen(&scanner);
    scanner.start();
    QTRY_VERIFY_WITH_TIMEOUT(fs::exists(callsOf("tmutil")), kPatienceMs);
  }
  QCOMPARE(course.order, (QStringList{u"progress 0"_s, u"finished"_s}));
  QVERIFY(course.cancelled);
}

QTEST_GUILESS_MAIN(tst_SystemDataScanner_course)
#include "tst_SystemDataScanner_course.moc"
