#include "core/runlock.h"
#include "support/FixtureHome.h"

#include <QFile>
#include <QTest>

#include <pwd.h>
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
  void refusesWhatOthersCanOpen();
  void refusesAFolderOfOthers();
  void goesOnWhereAPlaceIsTaken();
  void meetsThoseWhoFindOtherPlaces();
  void liesWhereTheEnvironmentHasNoSay();

 private:
  FixtureHome m_home;
};

namespace {

constexpr uid_t kSomebody = 4711;

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
  const QString path = m_home.outside(u"once.lock"_s);
  {
    const RunLock first(path);
    QVERIFY(first.state() == State::Held);
    QVERIFY(RunLock(path).state() == State::Busy);
    QVERIFY(RunLock(m_home.outside(u"other.lock"_s)).state() == State::Held);
  }
  QVERIFY(RunLock(path).state() == State::Held);
}

void TestRunLock::holdsOverProcesses() {
  const QString path = m_home.outside(u"processes.lock"_s);
  QVERIFY(inChild(path) == State::Held);
  const RunLock own(path);
  QVERIFY(inChild(path) == State::Busy);
}

void TestRunLock::isFreeAfterADeath() {
  const QString path = m_home.outside(u"death.lock"_s);
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
  const QString path = m_home.outside(u"mode.lock"_s);
  const mode_t before = ::umask(0);
  { const RunLock lock(path); }
  ::umask(before);
  QCOMPARE(modeOf(path) & 07777u, 0600u);
  QVERIFY(S_ISREG(modeOf(path))); // it stays
}

void TestRunLock::refusesWhatIsNoFile() {
  const QString target = m_home.file(u"target"_s);
  QVERIFY(RunLock(m_home.link(m_home.outside(u"link.lock"_s), target)).state() == State::Unavailable);
  QVERIFY(RunLock(m_home.link(m_home.outside(u"dangling.lock"_s), m_home.path(u"made through a link"_s))).state() ==
          State::Unavailable);
  QVERIFY(!QFile::exists(m_home.path(u"made through a link"_s)));
  QVERIFY(RunLock(m_home.folder(m_home.outside(u"folder.lock"_s))).state() == State::Unavailable);
  const QString pipe = m_home.outside(u"pipe.lock"_s);
  QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  QVERIFY(RunLock(pipe).state() == State::Unavailable);
  QVERIFY(RunLock(m_home.path(u"no such folder/a.lock"_s)).state() == State::Unavailable);
  QVERIFY(RunLock(QString()).state() == State::Unavailable);
}

void TestRunLock::refusesAForeignFile() {
  if (::geteuid() != 0) QSKIP("only root can give a file away");
  const QString path = m_home.file(m_home.outside(u"foreign.lock"_s));
  const QByteArray raw = QFile::encodeName(path);
  QCOMPARE(::chmod(raw.constData(), 0600), 0);
  QVERIFY(RunLock(path).state() == State::Held);
  QCOMPARE(::chown(raw.constData(), kSomebody, kSomebody), 0);
  QVERIFY(RunLock(path).state() == State::Unavailable);
}

void TestRunLock::survivesItsRemoval() {
  const QString path = m_home.outside(u"removed.lock"_s);
  const RunLock old(path);
  QVERIFY(QFile::remove(path));
  QVERIFY(RunLock(path).state() == State::Held);
}

void TestRunLock::refusesWhatOthersCanOpen() {
  const QString path = m_home.outside(u"readable.lock"_s);
  const QByteArray raw = QFile::encodeName(m_home.file(path));
  for (const mode_t mode : {0644u, 0660u, 0606u}) {
    QCOMPARE(::chmod(raw.constData(), mode), 0);
    QVERIFY(RunLock(path).state() == State::Unavailable);
  }
  QCOMPARE(::chmod(raw.constData(), 0600), 0);
  QVERIFY(RunLock(path).state() == State::Held);
  QCOMPARE(::link(raw.constData(), (raw + ".second").constData()), 0);
  QVERIFY(RunLock(path).state() == State::Unavailable);
}

void TestRunLock::refusesAFolderOfOthers() {
  const QString folder = m_home.folder(m_home.outside(u"shared"_s));
  const QByteArray raw = QFile::encodeName(folder);
  for (const mode_t mode : {0777u, 0720u}) {
    QCOMPARE(::chmod(raw.constData(), mode), 0);
    QVERIFY(RunLock(folder + u"/a.lock"_s).state() == State::Unavailable);
  }
  QVERIFY(!QFile::exists(folder + u"/a.lock"_s));
  QCOMPARE(::chmod(raw.constData(), 01777), 0); // nobody takes away what is another's there
  QVERIFY(RunLock(folder + u"/a.lock"_s).state() == State::Held);
  QCOMPARE(::chmod(raw.constData(), 0755), 0);
  QVERIFY(RunLock(folder + u"/a.lock"_s).state() == State::Held);
  if (::geteuid() != 0) return; // only root can give a folder away
  QCOMPARE(::chown(raw.constData(), kSomebody, kSomebody), 0);
  QVERIFY(RunLock(folder + u"/a.lock"_s).state() == State::Unavailable);
}

void TestRunLock::goesOnWhereAPlaceIsTaken() {
  const QString missing = m_home.outside(u"no such folder/lock"_s);
  const QString taken = m_home.link(m_home.outside(u"taken.lock"_s), u"/dev/null"_s);
  const QString own = m_home.outside(u"own.lock"_s);
  const RunLock lock(QStringList{missing, taken, own});
  QVERIFY(lock.state() == State::Held);
  QVERIFY(RunLock(own).state() == State::Busy);
  QVERIFY(RunLock(QStringList{missing, taken}).state() == State::Unavailable);
}

void TestRunLock::meetsThoseWhoFindOtherPlaces() {
  const QString first = m_home.outside(u"logged in/lock"_s);
  const QString second = m_home.outside(u"always.lock"_s);
  const QStringList places{first, second};
  {
    const RunLock early(places); // before there is the first place
    QVERIFY(early.state() == State::Held);
    m_home.folder(m_home.outside(u"logged in"_s));
    QCOMPARE(::chmod(QFile::encodeName(m_home.outside(u"logged in"_s)).constData(), 0700), 0);
    QVERIFY(RunLock(places).state() == State::Busy);
    QVERIFY(RunLock(first).state() == State::Held); // who was refused holds nothing
  }
  const RunLock late(places);
  QVERIFY(late.state() == State::Held);
  QVERIFY(inChild(first) == State::Busy);
  QVERIFY(inChild(second) == State::Busy);
  // What isn't there yet isn't made beside a lock that is held.
  const RunLock two(QStringList{m_home.outside(u"one.lock"_s), m_home.outside(u"two.lock"_s)});
  QVERIFY(QFile::exists(m_home.outside(u"one.lock"_s)) && !QFile::exists(m_home.outside(u"two.lock"_s)));
}

void TestRunLock::liesWhereTheEnvironmentHasNoSay() {
  const QStringList before = RunLock::defaultPaths();
  for (const char* name : {"TMPDIR", "HOME", "XDG_RUNTIME_DIR", "XDG_STATE_HOME", "USER"})
    qputenv(name, m_home.folder(u"elsewhere"_s).toUtf8());
  QCOMPARE(RunLock::defaultPaths(), before);
  const QString user = QString::number(::geteuid());
  QCOMPARE(before.first(), u"/run/user/%1/tarnwick.lock"_s.arg(user));
  QCOMPARE(before.last(), u"/tmp/tarnwick-%1.lock"_s.arg(user));
  if (const passwd* entry = ::getpwuid(::geteuid()))
    QCOMPARE(before.value(1), QString::fromLocal8Bit(entry->pw_dir) + u"/.tarnwick.lock"_s);
}

QTEST_GUILESS_MAIN(TestRunLock)
#include "tst_runlock.moc"
