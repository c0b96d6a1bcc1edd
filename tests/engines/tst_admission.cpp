// Which entries of the temporary folder count as leftovers: one test for each rule.
#include "core/fs.h"
#include "engines/ProcStandIn.h"
#include "engines/Unprivileged.h"
#include "engines/categories.h"
#include "support/FixtureHome.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;
using categories::Admission;

class tst_admission : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    qputenv("TARNWICK_HOST", "linux");
    m_home = std::make_unique<FixtureHome>();
    m_proc = std::make_unique<ProcStandIn>(*m_home);
  }
  void cleanup() {
    m_proc.reset();
    m_home.reset();
    qunsetenv("TARNWICK_HOST");
  }

  void oldFileAndFolder();
  void macAdmitsAll();
  void othersFiles();
  void desktopNames_data();
  void desktopNames();
  void similarNames_data();
  void similarNames();
  void changedLately();
  void changedBelow();
  void folderChangedBelow();
  void exactlyADayOld();
  void fromTheFuture();
  void accessTimeDoesNotCount();
  void sockets();
  void pipes();
  void pipeBelow();
  void linkIsPlain();
  void lockOnIt();
  void lockBelow();
  void lockFormats();
  void realLock();
  void workingFolder();
  void workingFolderBelow();
  void workingFolderBeside();
  void rootOfAProcess();
  void mountOnIt();
  void mountBelow();
  void unreadableBelow();
  void noDescriptorToLookWith();
  void nameThatIsNoTextBelow();
  void cancelled();

 private:
  /// Makes a file of this name in the temporary folder, or below it, two days old with all above it.
  QString oldFile(const QString& relative) const {
    const QString path = m_home->file(m_home->temp(relative));
    makeOld(relative);
    return path;
  }
  void makeOld(const QString& relative) const {
    FixtureHome::age(m_home->temp(relative.section(u'/', 0, 0)), QDateTime::currentDateTime().addDays(-2));
  }
  [[nodiscard]] bool admits(const QString& name) const { return admits(name, Admission::now(m_proc->root())); }
  [[nodiscard]] bool admits(const QString& name, const Admission& admission) const {
    fs::Entry entry;
    if (!fs::stat(m_home->temp(name), &entry)) qFatal("no entry %s", qPrintable(name));
    return categories::admits(entry, m_home->temp(name), admission);
  }
  [[nodiscard]] quint64 inode(const QString& relative) const {
    fs::Entry entry;
    return fs::stat(m_home->temp(relative), &entry) ? entry.inode : 0;
  }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<ProcStandIn> m_proc;
};

void tst_admission::oldFileAndFolder() {
  oldFile(u"leftover.bin"_s);
  oldFile(u"folder/sub/deep.bin"_s);
  QVERIFY(admits(u"leftover.bin"_s));
  QVERIFY(admits(u"folder"_s));
}

void tst_admission::macAdmitsAll() {
  m_home->file(m_home->temp(u"fresh"_s));
  QVERIFY(!admits(u"fresh"_s));
  qputenv("TARNWICK_HOST", "mac");
  QVERIFY(admits(u"fresh"_s));
}

void tst_admission::othersFiles() {
  oldFile(u"leftover.bin"_s);
  fs::Entry entry;
  QVERIFY(fs::stat(m_home->temp(u"leftover.bin"_s), &entry));
  const Admission admission = Admission::now(m_proc->root());
  QCOMPARE(entry.owner, quint32(::geteuid()));
  QVERIFY(categories::admits(entry, m_home->temp(u"leftover.bin"_s), admission));
  entry.owner = ::geteuid() + 1;
  QVERIFY(!categories::admits(entry, m_home->temp(u"leftover.bin"_s), admission));
}

void tst_admission::desktopNames_data() {
  QTest::addColumn<QString>("name");
  for (const char* name : {".X0-lock",
                           ".X1024-lock",
                           ".X11-unix",
                           ".ICE-unix",
                           ".font-unix",
                           ".XIM-unix",
                           "xauth_abc",
                           "ssh-XyZ",
                           "gpg-1",
                           "krb5cc_1000",
                           "dbus-abc",
                           "runtime-me",
                           "systemd-private-1-x",
                           "snap-private-tmp",
                           "snap.firefox",
                           ".Trash-1000",
                           "tmux-1000",
                           "screen-me",
                           "pulse-1",
                           ".org.chromium.Chromium.x",
                           "com.google.Chrome.abc",
                           ".wine-1000",
                           "emacs1000",
                           "vscode-ipc-1",
                           ".mount_App",
                           "hsperfdata_me",
                           "kde-me",
                           "plasma-x",
                           ".esd-1000"})
    QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_admission::desktopNames() {
  QFETCH(QString, name);
  oldFile(name + "/old"_L1);
  QVERIFY(!admits(name));
}

void tst_admission::similarNames_data() {
  QTest::addColumn<QString>("name");
  for (const char* name : {".X-", "X0-lock", ".X11-unix2", "my-ssh-1", "XAUTH", "snap-private-tmp2",
                           "asystemd-private-1", ".trash-1000", "Kde"})
    QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_admission::similarNames() {
  QFETCH(QString, name);
  oldFile(name);
  QVERIFY(admits(name));
}

void tst_admission::changedLately() {
  const QString path = oldFile(u"file"_s);
  FixtureHome::age(path, QDateTime::currentDateTime().addSecs(-23 * 3600));
  QVERIFY(!admits(u"file"_s));
}

void tst_admission::changedBelow() {
  const QString path = oldFile(u"folder/sub/deep"_s);
  FixtureHome::age(path, QDateTime::currentDateTime());
  QVERIFY(!admits(u"folder"_s));
}

void tst_admission::folderChangedBelow() {
  oldFile(u"folder/sub/deep"_s);
  QVERIFY(QDir().mkdir(m_home->temp(u"folder/sub/new"_s)));
  FixtureHome::age(m_home->temp(u"folder/sub/new"_s), QDateTime::currentDateTime().addDays(-2));
  QVERIFY(!admits(u"folder"_s)); // "sub" itself was changed just now
}

void tst_admission::exactlyADayOld() {
  oldFile(u"file"_s);
  fs::Entry entry;
  QVERIFY(fs::stat(m_home->temp(u"file"_s), &entry));
  constexpr qint64 kDayMs = 24 * 60 * 60 * 1000;
  Admission admission;
  admission.nowMs = entry.modifiedMs + kDayMs;
  QVERIFY(admits(u"file"_s, admission));
  --admission.nowMs;
  QVERIFY(!admits(u"file"_s, admission));
}

void tst_admission::fromTheFuture() {
  const QString path = oldFile(u"file"_s);
  FixtureHome::age(path, QDateTime::currentDateTime().addDays(300));
  QVERIFY(!admits(u"file"_s));
}

void tst_admission::accessTimeDoesNotCount() {
  const QString path = oldFile(u"file"_s);
  const timespec times[2] = {{::time(nullptr), 0}, {0, UTIME_OMIT}};
  QCOMPARE(::utimensat(AT_FDCWD, path.toUtf8().constData(), times, 0), 0);
  QVERIFY(admits(u"file"_s));
}

void tst_admission::sockets() {
  const QByteArray path = m_home->temp(u"s"_s).toUtf8();
  const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  QVERIFY(size_t(path.size()) < sizeof address.sun_path);
  qstrcpy(address.sun_path, path.constData());
  QCOMPARE(::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  makeOld(u"s"_s);
  QVERIFY(!admits(u"s"_s));
  ::close(fd);
}

void tst_admission::pipes() {
  QCOMPARE(::mkfifo(m_home->temp(u"pipe"_s).toUtf8().constData(), 0600), 0);
  makeOld(u"pipe"_s);
  QVERIFY(!admits(u"pipe"_s));
}

void tst_admission::pipeBelow() {
  m_home->file(m_home->temp(u"folder/sub/file"_s));
  QCOMPARE(::mkfifo(m_home->temp(u"folder/sub/pipe"_s).toUtf8().constData(), 0600), 0);
  makeOld(u"folder"_s);
  QVERIFY(!admits(u"folder"_s));
}

void tst_admission::linkIsPlain() {
  const QString fresh = m_home->file(u"fresh"_s);
  m_home->link(m_home->temp(u"folder/link"_s), fresh);
  makeOld(u"folder"_s);
  QVERIFY(admits(u"folder"_s)); // goes by the link's own time
}

void tst_admission::lockOnIt() {
  oldFile(u"file"_s);
  m_proc->addLock(inode(u"file"_s));
  QVERIFY(!admits(u"file"_s));
}

void tst_admission::lockBelow() {
  oldFile(u"folder/sub/file"_s);
  oldFile(u"other/sub/file"_s);
  m_proc->addLock(inode(u"folder/sub/file"_s));
  QVERIFY(!admits(u"folder"_s));
  QVERIFY(admits(u"other"_s));
}

void tst_admission::lockFormats() {
  QFile locks(m_proc->root() + "/locks"_L1);
  QVERIFY(locks.open(QIODevice::WriteOnly));
  locks.write("1: POSIX  ADVISORY  READ  812 08:01:101 1073741826 1073742335\n"
              "2: OFDLCK ADVISORY  WRITE -1 fd:00:202 0 EOF\n"
              "2: -> FLOCK  ADVISORY  WRITE 99 00:2f:303 0 EOF\n"
              "3: LEASE  ACTIVE    READ  7 08:01:404 0 EOF\n"
              "4: POSIX ADVISORY READ 5 <none>:0 0 EOF\n");
  locks.close();
  QCOMPARE(Admission::now(m_proc->root()).lockedInodes, (QSet<quint64>{101, 202, 303, 404}));
}

void tst_admission::realLock() {
  if (!QFile::exists(u"/proc/locks"_s)) QSKIP("the system doesn't tell its locks");
  QFile file(oldFile(u"folder/file"_s));
  QVERIFY(file.open(QIODevice::ReadOnly));
  QVERIFY(admits(u"folder"_s, Admission::now()));
  QCOMPARE(::flock(file.handle(), LOCK_EX), 0);
  QVERIFY(!admits(u"folder"_s, Admission::now()));
}

void tst_admission::workingFolder() {
  oldFile(u"folder/file"_s);
  QVERIFY(admits(u"folder"_s));
  m_proc->addProcess(812, m_home->temp(u"folder"_s));
  QVERIFY(!admits(u"folder"_s));
}

void tst_admission::workingFolderBelow() {
  oldFile(u"folder/sub/file"_s);
  m_proc->addProcess(812, m_home->temp(u"folder/sub"_s));
  QVERIFY(!admits(u"folder"_s));
}

void tst_admission::workingFolderBeside() {
  oldFile(u"folder/file"_s);
  m_proc->addProcess(812, m_home->folder(m_home->temp(u"folder2"_s)));
  m_proc->addProcess(813, u"/"_s);
  m_proc->addProcess(814, m_home->temp());
  QVERIFY(admits(u"folder"_s));
}

void tst_admission::rootOfAProcess() {
  oldFile(u"folder/tree/file"_s);
  oldFile(u"other/file"_s);
  m_proc->addProcess(812, u"/"_s);
  m_proc->setRoot(812, m_home->temp(u"folder/tree"_s));
  QVERIFY(!admits(u"folder"_s));
  QVERIFY(admits(u"other"_s));
}

void tst_admission::mountOnIt() {
  oldFile(u"folder/file"_s);
  m_proc->addMount(m_home->temp(u"folder"_s).toUtf8());
  QVERIFY(!admits(u"folder"_s));
}

void tst_admission::mountBelow() {
  oldFile(u"folder/sub/file"_s);
  oldFile(u"other/file"_s);
  m_proc->addMount(m_home->temp(u"folder/sub"_s).toUtf8());
  QVERIFY(!admits(u"folder"_s));
  QVERIFY(admits(u"other"_s));
}

void tst_admission::unreadableBelow() {
  oldFile(u"folder/sub/file"_s);
  const Unprivileged user(*m_home);
  QVERIFY(admits(u"folder"_s));
  const QByteArray closed = m_home->temp(u"folder/sub"_s).toUtf8();
  QCOMPARE(::chmod(closed.constData(), 0), 0);
  const bool admitted = admits(u"folder"_s);
  ::chmod(closed.constData(), 0700);
  QVERIFY(!admitted);
}

void tst_admission::noDescriptorToLookWith() {
  oldFile(u"folder/sub/file"_s);
  fs::Entry entry;
  QVERIFY(fs::stat(m_home->temp(u"folder"_s), &entry));
  const Admission admission = Admission::now(m_proc->root());
  rlimit before = {};
  QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
  const rlimit none = {0, before.rlim_max};
  QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
  const bool admitted = categories::admits(entry, m_home->temp(u"folder"_s), admission);
  ::setrlimit(RLIMIT_NOFILE, &before);
  QVERIFY(!admitted);
  QVERIFY(categories::admits(entry, m_home->temp(u"folder"_s), admission));
}

void tst_admission::nameThatIsNoTextBelow() {
  m_home->folder(m_home->temp(u"folder"_s));
  QByteArray path = m_home->temp(u"folder"_s).toUtf8() + "/\xff\xfe";
  QCOMPARE(::mkdir(path.constData(), 0700), 0);
  const timespec old[2] = {{1000, 0}, {1000, 0}};
  QCOMPARE(::utimensat(AT_FDCWD, path.constData(), old, 0), 0);
  makeOld(u"folder"_s);
  const bool admitted = admits(u"folder"_s);
  ::rmdir(path.constData());
  QVERIFY(!admitted); // nobody could look into it
}

void tst_admission::cancelled() {
  oldFile(u"folder/file"_s);
  fs::Entry entry;
  QVERIFY(fs::stat(m_home->temp(u"folder"_s), &entry));
  std::atomic<bool> cancel{false};
  const Admission admission = Admission::now(m_proc->root());
  QVERIFY(categories::admits(entry, m_home->temp(u"folder"_s), admission, &cancel));
  cancel = true;
  QVERIFY(!categories::admits(entry, m_home->temp(u"folder"_s), admission, &cancel));
}

QTEST_GUILESS_MAIN(tst_admission)
#include "tst_admission.moc"
