// What a clean does with what stays, how it ends early, and when it isn't begun.
#include "core/runlock.h"
#include "engines/CleanTest.h"
#include "engines/Unprivileged.h"

#include <QDir>
#include <QSemaphore>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_Cleaner_ends : public CleanTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void retriesAfterGrowingWaits();
  void retrySucceedsAndPrunes();
  void retryThatFindsItGone();
  void retryAsksAgain();
  void retryBelowAFolderThatTheRunChanged_data();
  void retryBelowAFolderThatTheRunChanged();
  void retryFollowsNoLink();
  void unreachableIsNotGone();
  void whatBecomesUnreadableIsNotFreed_data();
  void whatBecomesUnreadableIsNotFreed();
  void whatWasNeverReadableIsNoMatter();
  void needsAdmin_data();
  void needsAdmin();
  void stopFinishesTheItem();
  void stopEndsTheRetries();
  void destructionEndsTheRun();
  void secondStartChangesNothing();
  void refusedWhileAnotherRuns();
  void refusedWithoutALock();
  void refusedInAForeignHome();
  void lockIsFreeAfterwards();

 private:
  /// A file whose folder doesn't let it go. For a user without privileges.
  QString stuckFile(const QString& folder) {
    const QString path = m_bench->home.file(folder + "/stuck"_L1);
    m_stuckFolder = QFile::encodeName(m_bench->home.path(folder));
    return path;
  }
  void stick() const { QCOMPARE(::chmod(m_stuckFolder.constData(), 0500), 0); }
  void unstick() const { ::chmod(m_stuckFolder.constData(), 0700); }

  QByteArray m_stuckFolder;
};

void tst_Cleaner_ends::retriesAfterGrowingWaits() {
  const QString stuck = stuckFile(u"a/folder"_s);
  const QString other = m_bench->home.file(u"b/other"_s);
  const Unprivileged user(m_bench->home);
  stick();
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(stuck)}),
                CleanBench::category(u"y"_s, {CleanBench::item(other)})});
  unstick();
  QCOMPARE(m_bench->waits, (QList<int>{500, 1000, 1500}));
  QVERIFY(CleanBench::isThere(stuck));
  QCOMPARE(m_bench->report.skipped, 1);
  QCOMPARE(m_bench->report.skippedSamples, QStringList{stuck});
  QCOMPARE(m_bench->report.freedBytes, 4096); // the other one's
  QCOMPARE(m_bench->report.cleanedIds, (QStringList{u"x"_s, u"y"_s}));
  // The failed attempt stands in its category, what became of it after the last one.
  QCOMPARE(m_bench->log.mid(4), (QStringList{
                                    u"== X (4 KB)"_s,
                                    u"BUSY     %1  (error 0, will retry)"_s.arg(stuck),
                                    u"== Y (4 KB)"_s,
                                    u"SKIPPED  %1  (in use or access denied)"_s.arg(stuck),
                                    QString(),
                                    u"DELETED  %1  0 KB"_s.arg(stuck),
                                    u"DELETED  %1  4 KB"_s.arg(other),
                                    u"Freed 4 KB, removed 1 files, skipped 1."_s,
                                    QString(),
                                }));
}

void tst_Cleaner_ends::retrySucceedsAndPrunes() {
  const QString stuck = stuckFile(u"a/root/sub/deep"_s);
  const QString root = m_bench->home.path(u"a/root"_s);
  const Unprivileged user(m_bench->home);
  stick();
  m_bench->whileWaiting = [this] {
    if (m_bench->waits.size() == 2) unstick();
  };
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(root, true)})});
  unstick();
  QCOMPARE(m_bench->waits, (QList<int>{500, 1000}));
  QVERIFY(!CleanBench::isThere(m_bench->home.path(u"a/root/sub"_s)));
  QVERIFY(CleanBench::isThere(root));
  QCOMPARE(m_bench->report.skipped, 0);
  QCOMPARE(m_bench->report.freedBytes, 4096);
  QCOMPARE(m_bench->lines("BUSY").size(), 1);
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList());
}

void tst_Cleaner_ends::retryThatFindsItGone() {
  const QString stuck = stuckFile(u"a/folder"_s);
  const Unprivileged user(m_bench->home);
  stick();
  m_bench->whileWaiting = [this, stuck] {
    unstick();
    QFile::remove(stuck);
  };
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(m_bench->home.path(u"a/folder"_s))})});
  QCOMPARE(m_bench->waits, QList<int>{500});
  QCOMPARE(m_bench->report.skipped, 0);
  QVERIFY(!CleanBench::isThere(m_bench->home.path(u"a/folder"_s)));
  QVERIFY(CleanBench::isThere(m_bench->home.path(u"a"_s)));
}

void tst_Cleaner_ends::retryAsksAgain() {
  const QString left = m_bench->home.file(m_bench->home.temp(u"left"_s));
  m_stuckFolder = QFile::encodeName(m_bench->home.temp());
  FixtureHome::age(left, QDateTime::currentDateTime().addDays(-2));
  const Unprivileged user(m_bench->home);
  stick();
  m_bench->whileWaiting = [this, left] {
    unstick();
    FixtureHome::age(left, QDateTime::currentDateTime());
  };
  m_bench->run({CleanBench::category(u"temp"_s, {CleanBench::item(left)})});
  QVERIFY(CleanBench::isThere(left));
  QCOMPARE(m_bench->waits, QList<int>{500});
  QCOMPARE(m_bench->lines("BUSY").size(), 1);
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (open in an app)"_s.arg(left)});
  QCOMPARE(m_bench->report.skipped, 1);
}

void tst_Cleaner_ends::retryBelowAFolderThatTheRunChanged_data() {
  QTest::addColumn<bool>("isTouched");
  QTest::addColumn<QList<int>>("waits");
  QTest::addColumn<QString>("reason");
  QTest::newRow("left alone") << false << QList<int>{500, 1000, 1500} << u"in use or access denied"_s;
  QTest::newRow("touched meanwhile") << true << QList<int>{500} << u"open in an app"_s;
}

// What was removed in the first pass made the folder look new.
void tst_Cleaner_ends::retryBelowAFolderThatTheRunChanged() {
  QFETCH(bool, isTouched);
  const QString other = m_bench->home.file(m_bench->home.temp(u"left/other"_s));
  const QString stuck = m_bench->home.file(m_bench->home.temp(u"left/folder/stuck"_s));
  m_stuckFolder = QFile::encodeName(m_bench->home.temp(u"left/folder"_s));
  FixtureHome::age(m_bench->home.temp(u"left"_s), QDateTime::currentDateTime().addDays(-2));
  const Unprivileged user(m_bench->home);
  stick();
  m_bench->whileWaiting = [isTouched, stuck] {
    if (isTouched) FixtureHome::age(stuck, QDateTime::currentDateTime());
  };
  m_bench->run({CleanBench::category(u"temp"_s, {CleanBench::item(m_bench->home.temp(u"left"_s))})});
  unstick();
  QVERIFY(!CleanBench::isThere(other));
  QVERIFY(CleanBench::isThere(stuck));
  QTEST(m_bench->waits, "waits");
  QFETCH(QString, reason);
  QCOMPARE(m_bench->lines("BUSY").size(), 1);
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (%2)"_s.arg(stuck, reason)});
}

void tst_Cleaner_ends::retryFollowsNoLink() {
  const QString stuck = stuckFile(u"a/folder"_s);
  const QString precious = m_bench->home.file(u"precious/stuck"_s);
  const Unprivileged user(m_bench->home);
  stick();
  m_bench->whileWaiting = [this] {
    if (m_bench->waits.size() > 1) return;
    unstick();
    QDir().rename(m_bench->home.path(u"a/folder"_s), m_bench->home.path(u"a/was"_s));
    m_bench->home.link(u"a/folder"_s, m_bench->home.path(u"precious"_s));
  };
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(stuck)})});
  m_stuckFolder = QFile::encodeName(m_bench->home.path(u"a/was"_s));
  unstick();
  QVERIFY(CleanBench::isThere(precious));
  QVERIFY(CleanBench::isThere(m_bench->home.path(u"a/was/stuck"_s)));
}

// Only "no such file" means gone: what can't be looked at stayed, and isn't freed.
void tst_Cleaner_ends::unreachableIsNotGone() {
  const QString stuck = stuckFile(u"a/folder"_s);
  const Unprivileged user(m_bench->home);
  const CleanItem item = CleanBench::item(stuck);
  QCOMPARE(::chmod(m_stuckFolder.constData(), 0), 0);
  m_bench->run({CleanBench::category(u"x"_s, {item})});
  unstick();
  QVERIFY(CleanBench::isThere(stuck));
  QCOMPARE(m_bench->lines("BUSY").size(), 1);
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (in use or access denied)"_s.arg(stuck)});
  QCOMPARE(m_bench->report.freedBytes, 0);
  QCOMPARE(m_bench->report.removedFiles, 0);
}

void tst_Cleaner_ends::whatBecomesUnreadableIsNotFreed_data() {
  QTest::addColumn<int>("mode");
  QTest::addColumn<bool>("wholeRoot");
  QTest::newRow("closed") << 0 << false;
  QTest::newRow("closed, in a root") << 0 << true;
  QTest::newRow("not to be listed") << 0300 << true;
  QTest::newRow("not to be searched") << 0400 << true;
}

// A dry run finds it so from its beginning.
void tst_Cleaner_ends::whatBecomesUnreadableIsNotFreed() {
  QFETCH(int, mode);
  QFETCH(bool, wholeRoot);
  const QString top = m_bench->home.path(u"a/top"_s);
  m_bench->home.file(u"a/top/other"_s, 4096);
  const QString inside = m_bench->home.file(u"a/top/sub/closed/inside"_s, 8192);
  const QByteArray closed = QFile::encodeName(m_bench->home.path(u"a/top/sub/closed"_s));
  const QString next = m_bench->home.file(u"b/next"_s, 4096);
  const QList<CleanItem> items{CleanBench::item(top, wholeRoot), CleanBench::item(next)};
  const Unprivileged user(m_bench->home);
  m_bench->onProgress = [&](const QString& path) {
    if (path == top) ::chmod(closed.constData(), static_cast<mode_t>(mode));
  };
  for (const bool dry : {true, false}) {
    dry ? m_bench->runDry({CleanBench::category(u"x"_s, items)}) : m_bench->run({CleanBench::category(u"x"_s, items)});
    ::chmod(closed.constData(), 0700);
    QVERIFY(CleanBench::isThere(inside));
    QCOMPARE(m_bench->report.freedBytes, 4096); // the next item's
    QCOMPARE(m_bench->report.removedFiles, 1);
    QCOMPARE(m_bench->lines("DELETED").first(), u"DELETED  %1  0 KB"_s.arg(top));
  }
  m_bench->onProgress = {};
}

// What the scan couldn't count doesn't take from what went.
void tst_Cleaner_ends::whatWasNeverReadableIsNoMatter() {
  const QString top = m_bench->home.path(u"a/top"_s);
  m_bench->home.file(u"a/top/other"_s, 4096);
  m_bench->home.file(u"a/top/closed/inside"_s, 8192);
  const QByteArray closed = QFile::encodeName(m_bench->home.path(u"a/top/closed"_s));
  const Unprivileged user(m_bench->home);
  ::chmod(closed.constData(), 0);
  const CleanItem item = CleanBench::item(top);
  QCOMPARE(item.unread, 1);
  for (const bool dry : {true, false}) {
    dry ? m_bench->runDry({CleanBench::category(u"x"_s, {item})})
        : m_bench->run({CleanBench::category(u"x"_s, {item})});
    QCOMPARE(m_bench->report.freedBytes, 4096);
    QCOMPARE(m_bench->report.removedFiles, 1);
  }
  ::chmod(closed.constData(), 0700);
}

void tst_Cleaner_ends::needsAdmin_data() {
  QTest::addColumn<bool>("category");
  QTest::addColumn<bool>("stays");
  QTest::newRow("stays") << true << true;
  QTest::newRow("goes") << true << false;
  QTest::newRow("another category") << false << true;
}

void tst_Cleaner_ends::needsAdmin() {
  QFETCH(bool, category);
  QFETCH(bool, stays);
  const QString stuck = stuckFile(u"a/folder"_s);
  const Unprivileged user(m_bench->home);
  if (stays) stick();
  CategoryResult result = CleanBench::category(u"x"_s, {CleanBench::item(stuck)});
  result.def.needsAdmin = category;
  m_bench->run({result});
  unstick();
  QCOMPARE(m_bench->report.needsAdmin, category && stays);
}

void tst_Cleaner_ends::stopFinishesTheItem() {
  const QString first = m_bench->home.file(u"a/first"_s);
  const QString second = m_bench->home.folder(u"a/second"_s);
  m_bench->home.file(u"a/second/one"_s);
  m_bench->home.file(u"a/second/two"_s);
  const QString third = m_bench->home.file(u"a/third"_s);
  const QString fourth = m_bench->home.file(u"a/fourth"_s);
  Cleaner cleaner(nullptr, m_bench->world);
  m_bench->onProgress = [&](const QString& path) {
    if (path == second) cleaner.stop();
  };
  m_bench->start(&cleaner, {CleanBench::category(u"x"_s, {CleanBench::item(first)}),
                            CleanBench::category(u"y"_s, {CleanBench::item(second), CleanBench::item(third)}),
                            CleanBench::category(u"z"_s, {CleanBench::item(fourth)})});
  m_bench->wait(&cleaner);
  QVERIFY(!CleanBench::isThere(first));
  QVERIFY(!CleanBench::isThere(second));
  QVERIFY(CleanBench::isThere(third));
  QVERIFY(CleanBench::isThere(fourth));
  QCOMPARE(m_bench->report.cleanedIds, QStringList{u"x"_s});
  QCOMPARE(m_bench->report.freedBytes, 3 * 4096);
  QCOMPARE(m_bench->report.removedFiles, 3);
  QCOMPARE(m_bench->progress.last().done, m_bench->progress.last().total);
  QCOMPARE(m_bench->lines("DELETED").size(), 2);
  QCOMPARE(m_bench->lines("==").size(), 2);
  QCOMPARE(m_bench->lines("Freed"), QStringList{u"Freed 12 KB, removed 3 files, skipped 0."_s});
}

// The measuring pass isn't cut short, so that nothing counts as freed that stayed.
void tst_Cleaner_ends::stopEndsTheRetries() {
  const QString stuck = stuckFile(u"a/folder"_s);
  const QString root = m_bench->home.path(u"a"_s);
  const Unprivileged user(m_bench->home);
  stick();
  Cleaner cleaner(nullptr, m_bench->world);
  m_bench->whileWaiting = [&] { cleaner.stop(); };
  m_bench->start(&cleaner, {CleanBench::category(u"x"_s, {CleanBench::item(root, true)})});
  m_bench->wait(&cleaner);
  unstick();
  QCOMPARE(m_bench->waits, QList<int>{500});
  QCOMPARE(m_bench->lines("SKIPPED").size(), 1);
  QCOMPARE(m_bench->report.cleanedIds, QStringList{u"x"_s});
  QCOMPARE(m_bench->report.freedBytes, 0);
  QVERIFY(CleanBench::isThere(stuck));
}

void tst_Cleaner_ends::destructionEndsTheRun() {
  const QString first = m_bench->home.file(u"a/first"_s);
  const QString second = m_bench->home.file(u"a/second"_s);
  auto cleaner = std::make_unique<Cleaner>(nullptr, m_bench->world);
  QSemaphore begun;
  QSemaphore goOn;
  m_bench->onProgress = [&](const QString& path) {
    if (path != first) return;
    begun.release();
    goOn.acquire();
  };
  m_bench->start(cleaner.get(), {CleanBench::category(u"x"_s, {CleanBench::item(first), CleanBench::item(second)})});
  begun.acquire();
  cleaner->stop();
  goOn.release();
  cleaner.reset();
  QCOMPARE(m_bench->finishedCount, 1);
  QVERIFY(!CleanBench::isThere(first));
  QVERIFY(CleanBench::isThere(second));
}

void tst_Cleaner_ends::secondStartChangesNothing() {
  const QString first = m_bench->home.file(u"a/first"_s);
  const QString second = m_bench->home.file(u"a/second"_s);
  Cleaner cleaner(nullptr, m_bench->world);
  QSemaphore begun;
  QSemaphore goOn;
  m_bench->onProgress = [&](const QString& path) {
    if (path != first) return;
    begun.release();
    goOn.acquire();
  };
  m_bench->start(&cleaner, {CleanBench::category(u"x"_s, {CleanBench::item(first)})});
  begun.acquire();
  QVERIFY(cleaner.isRunning());
  cleaner.start({CleanBench::category(u"x"_s, {CleanBench::item(second)})}, false, {});
  goOn.release();
  m_bench->wait(&cleaner);
  QVERIFY(CleanBench::isThere(second));
}

void tst_Cleaner_ends::refusedWhileAnotherRuns() {
  const QString file = m_bench->home.file(u"a/file"_s);
  const RunLock other(m_bench->world.lockPath);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(file)})});
  QCOMPARE(m_bench->report.refusal, u"Another cleanup is already running."_s);
  QVERIFY(CleanBench::isThere(file));
  QCOMPARE(m_bench->report.logPath, QString());
  QVERIFY(!CleanBench::isThere(Cleaner::logDir()));
  QCOMPARE(m_bench->report.cleanedIds, QStringList());
  QCOMPARE(m_bench->finishedCount, 1);
  QCOMPARE(m_bench->progress.size(), 1);
  QCOMPARE(m_bench->progress.last().done, m_bench->progress.last().total);
}

void tst_Cleaner_ends::refusedWithoutALock() {
  const QString file = m_bench->home.file(u"a/file"_s);
  m_bench->world.lockPath = m_bench->home.outside(u"no/such/folder/lock"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(file)})});
  QCOMPARE(m_bench->report.refusal, u"There is no telling whether another cleanup is running. Nothing was cleaned."_s);
  QVERIFY(CleanBench::isThere(file));
}

void tst_Cleaner_ends::refusedInAForeignHome() {
  const QString file = m_bench->home.file(u"a/file"_s);
  if (::geteuid() == 0)
    QCOMPARE(::chown(QFile::encodeName(m_bench->home.path()).constData(), 65534, 65534), 0);
  else
    qputenv("HOME", "/usr");
  for (const auto kind : {Cleaner::Run::ForReal, Cleaner::Run::Dry}) {
    m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(file)})}, false, {}, kind);
    QCOMPARE(m_bench->report.refusal, u"The home folder belongs to another user. Nothing was cleaned."_s);
    QVERIFY(CleanBench::isThere(file));
    QVERIFY(!CleanBench::isThere(m_bench->world.lockPath));
    QCOMPARE(m_bench->finishedCount, 1);
  }
}

void tst_Cleaner_ends::lockIsFreeAfterwards() {
  m_bench->run({});
  QCOMPARE(m_bench->report.refusal, QString());
  QCOMPARE(RunLock(m_bench->world.lockPath).state(), RunLock::State::Held);
}

QTEST_GUILESS_MAIN(tst_Cleaner_ends)
#include "tst_Cleaner_ends.moc"
