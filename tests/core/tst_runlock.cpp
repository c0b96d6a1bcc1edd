#include "core/runlock.h"
#include "support/FixtureHome.h"

#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using State = RunLock::State;

class TestRunLock : public QObject {
  Q_OBJECT

 private slots:
  void holdsOnce();
  void holdsOverProcesses();
  void isFreeAfterADeath();
  void makesAPrivateFile();
  void refusesWhatIsNoFile();
  void refusesAForeignFile();
  void survivesItsRemoval();
  void liesWhereTheEnvironmentHasNoSay();

 private:
  FixtureHome m_home;
};

namespace {

/// Tries the lock in another process.
State inChild(const QString& path) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(static_cast<int>(RunLock(path).state()));
  int status = 0;
  ::waitpid(child, &status, 0);
  return static_cast<State>(WEXITSTATUS(status));
}

mode_t modeOf(const QString& path) {
  struct stat status {};
  ::lstat(QFile::encodeName(path).constData(), &status);
  return status.st_mode;
}

} // namespace

void TestRunLock::holdsOnce() {
  const QString path = m_home.path(u"once.lock"_s);
  {
    const RunLock first(path);
    QVERIFY(first.state() == State::Held);
    QVERIFY(RunLock(path).state() == State::Busy);
    QVERIFY(RunLock(m_home.path(u"other.lock"_s)).state() == State::Held);
  }
  QVERIFY(RunLock(path).state() == State::Held);
}

void TestRunLock::holdsOverProcesses() {
  const QString path = m_home.path(u"processes.lock"_s);
  QVERIFY(inChild(path) == State::Held);
  const RunLock own(path);
  QVERIFY(inChild(path) == State::Busy);
}

void TestRunLock::isFreeAfterADeath() {
  const QString path = m_home.path(u"death.lock"_s);
  int ready[2];
  QCOMPARE(::pipe(ready), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    const RunLock lock(path);
    const char held = lock.state() == State::Held ? 'y' : 'n';
    if (::write(ready[1], &held, 1) != 1) ::_exit(1);
    for (;;) ::pause();
  }
  char held = 0;
  QCOMPARE(::read(ready[0], &held, 1), ssize_t(1));
  QCOMPARE(held, 'y');
  QVERIFY(RunLock(path).state() == State::Busy);
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  QVERIFY(RunLock(path).state() == State::Held);
  ::close(ready[0]);
  ::close(ready[1]);
}

void TestRunLock::makesAPrivateFile() {
  const QString path = m_home.path(u"mode.lock"_s);
  const mode_t before = ::umask(0);
  { const RunLock lock(path); }
  ::umask(before);
  QCOMPARE(modeOf(path) & 07777u, 0600u);
  QVERIFY(S_ISREG(modeOf(path))); // it stays
}

void TestRunLock::refusesWhatIsNoFile() {
  const QString target = m_home.file(u"target"_s);
  QVERIFY(RunLock(m_home.link(u"link.lock"_s, target)).state() == State::Unavailable);
  QVERIFY(RunLock(m_home.link(u"dangling.lock"_s, m_home.path(u"made through a link"_s))).state() ==
          State::Unavailable);
  QVERIFY(!QFile::exists(m_home.path(u"made through a link"_s)));
  QVERIFY(RunLock(m_home.folder(u"folder.lock"_s)).state() == State::Unavailable);
  const QString pipe = m_home.path(u"pipe.lock"_s);
  QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  QVERIFY(RunLock(pipe).state() == State::Unavailable);
  QVERIFY(RunLock(m_home.path(u"no such folder/a.lock"_s)).state() == State::Unavailable);
  QVERIFY(RunLock(QString()).state() == State::Unavailable);
}

void TestRunLock::refusesAForeignFile() {
  const QString path = m_home.file(u"foreign.lock"_s);
  if (::chown(QFile::encodeName(path).constData(), 65534, 65534) != 0) QSKIP("only root can give a file away");
  QVERIFY(RunLock(path).state() == State::Unavailable);
}

void TestRunLock::survivesItsRemoval() {
  const QString path = m_home.path(u"removed.lock"_s);
  const RunLock old(path);
  QVERIFY(QFile::remove(path));
  QVERIFY(RunLock(path).state() == State::Held);
}

void TestRunLock::liesWhereTheEnvironmentHasNoSay() {
  const QString before = RunLock::defaultPath();
  qputenv("TMPDIR", m_home.folder(u"elsewhere"_s).toUtf8());
  QCOMPARE(RunLock::defaultPath(), before);
  QVERIFY(before.contains(QString::number(::geteuid())));
}

QTEST_GUILESS_MAIN(TestRunLock)
#include "tst_runlock.moc"
