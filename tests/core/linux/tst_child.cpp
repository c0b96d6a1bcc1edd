// The tests' own helpers: what a test starts must not outlive it.
#include "support/child.h"

#include <QFile>
#include <QTest>

#include <csignal>

#include <sys/ioctl.h>

using namespace Qt::StringLiterals;

class TestChild : public QObject {
  Q_OBJECT

 private slots:
  void diesWithItsParent() {
    int ends[2] = {-1, -1};
    QCOMPARE(::pipe(ends), 0);
    QCOMPARE(child::run("/", [&] { return startAndDie(ends[1]); }), -1);
    pid_t orphan = -1;
    QCOMPARE(::read(ends[0], &orphan, sizeof orphan), ssize_t{sizeof orphan});
    QTRY_VERIFY_WITH_TIMEOUT(!runs(orphan), 60'000);
    ::close(ends[0]);
    ::close(ends[1]);
  }

 private:
  /// Starts a process that waits for ever, tells its number, and is killed.
  static int startAndDie(int fd) {
    const pid_t waiting = ::fork();
    if (waiting == 0) {
      child::dieWithParent();
      const pid_t own = ::getpid();
      if (::write(fd, &own, sizeof own) != ssize_t{sizeof own}) ::_exit(1);
      for (;;) ::pause();
    }
    // Not before the child has said that it is ready: what it wrote is in the pipe then.
    int pending = 0;
    while (::ioctl(fd, FIONREAD, &pending) == 0 && pending == 0) {
    }
    ::raise(SIGKILL);
    return 0;
  }

  /// Whether the process is there and no mere entry that nobody has asked for yet.
  static bool runs(pid_t pid) {
    QFile status(u"/proc/%1/stat"_s.arg(pid));
    if (!status.open(QIODevice::ReadOnly)) return false;
    const QByteArray text = status.readAll();
    return !text.mid(text.lastIndexOf(')')).startsWith(") Z");
  }
};

QTEST_GUILESS_MAIN(TestChild)
#include "tst_child.moc"
