#include "RemovalRecorder.h"
#include "core/UniqueFd.h"
#include "core/trash.h"
#include "support/FixtureHome.h"

#include <QDir>
#include <QTest>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>

using namespace Qt::StringLiterals;
using removal::Kept;
using removal::Remover;
using removal::Target;
using removal::Verdict;

namespace {

QByteArray raw(const QString& path) { return QFile::encodeName(path); }

bool writeText(const char* path, const QByteArray& text) {
  const UniqueFd fd(::open(path, O_WRONLY | O_CLOEXEC));
  return fd && ::write(fd.get(), text.constData(), static_cast<size_t>(text.size())) == text.size();
}

/// Mounts of our own, that nobody else sees and that end with the process. A plain user gets a user namespace for it.
bool enterMountNamespace() {
  const uid_t user = ::geteuid();
  const gid_t group = ::getegid();
  if (::unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  if (user != 0) {
    const bool mapped = writeText("/proc/self/setgroups", "deny") &&
                        writeText("/proc/self/uid_map", "0 " + QByteArray::number(user) + " 1") &&
                        writeText("/proc/self/gid_map", "0 " + QByteArray::number(group) + " 1");
    if (!mapped) return false;
  }
  return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool g_mayMount = false;

/// A mount for the length of a test.
class Mount {
 public:
  static std::unique_ptr<Mount> bind(const QString& from, const QString& to) {
    return make(::mount(raw(from).constData(), raw(to).constData(), nullptr, MS_BIND, nullptr), to);
  }
  static std::unique_ptr<Mount> memory(const QString& to) {
    return make(::mount("tmpfs", raw(to).constData(), "tmpfs", 0, "size=1m"), to);
  }
  explicit Mount(QString to) : m_to(std::move(to)) {}
  Mount(const Mount&) = delete;
  Mount& operator=(const Mount&) = delete;
  ~Mount() { ::umount2(raw(m_to).constData(), MNT_DETACH); }

 private:
  static std::unique_ptr<Mount> make(int result, const QString& to) {
    return result == 0 ? std::make_unique<Mount>(to) : nullptr;
  }
  QString m_to;
};

} // namespace

class TestRemovalMounts : public QObject {
  Q_OBJECT

 public:
  // Before there is a second thread, as a user namespace wants it.
  static void initMain() { g_mayMount = enterMountNamespace(); }

 private slots:
  void initTestCase() {
    if (!g_mayMount) QSKIP("no permission to mount anything here");
  }
  void cleanup() { wipe(m_home.path()); }
  void leavesMountsAlone_data();
  void leavesMountsAlone();
  void leavesAMountedFileAlone_data();
  void leavesAMountedFileAlone();
  void leavesAMountedTargetAlone();
  void emptiesAMountThatIsTheTarget();
  void retryLeavesMountsAlone();
  void noTrashInMemory();
  void homeTrashInMemory();
  void trashAtTheTop();
  void trashAtTheTopFollowsNothing();
  void sharedTrashAtTheTop();
  void sharedTrashMustBeSticky();

 private:
  FixtureHome m_home;
};

void TestRemovalMounts::leavesMountsAlone_data() {
  QTest::addColumn<bool>("isBind");
  QTest::addColumn<bool>("toTrash");
  QTest::addColumn<bool>("dryRun");
  for (const bool isBind : {false, true})
    for (const bool toTrash : {false, true})
      for (const bool dryRun : {true, false})
        QTest::addRow("%s %s %s", isBind ? "bind" : "tmpfs", toTrash ? "trash" : "delete", dryRun ? "dry" : "real")
            << isBind << toTrash << dryRun;
}

void TestRemovalMounts::leavesMountsAlone() {
  QFETCH(bool, isBind);
  QFETCH(bool, toTrash);
  QFETCH(bool, dryRun);
  const QString outside = m_home.folder(u"outside"_s);
  const QString point = m_home.folder(u"in/tree/a/point"_s);
  m_home.file(u"in/tree/a/goes"_s);
  m_home.file(u"in/tree/b/goes"_s);
  const auto mount = isBind ? Mount::bind(outside, point) : Mount::memory(point);
  QVERIFY(mount);
  m_home.file(point + u"/precious"_s);
  RemovalRecorder seen;
  Remover({.toTrash = toTrash, .dryRun = dryRun}, seen.handlers()).remove(at(m_home.path(u"in/tree"_s)));
  QCOMPARE(seen.keptPaths(), QStringList{point});
  QVERIFY(seen.kept.first().second == Kept::AnotherVolume);
  QVERIFY(seen.busy.isEmpty());
  QVERIFY(isThere(point + u"/precious"_s));
  QVERIFY(!seen.asked.contains(point + u"/precious"_s));
  QCOMPARE(namesIn(m_home.path(u"in/tree/a"_s)),
           dryRun ? (QStringList{u"goes"_s, u"point"_s}) : QStringList{u"point"_s});
  QCOMPARE(isThere(m_home.path(u"in/tree/b"_s)), dryRun);
}

void TestRemovalMounts::leavesAMountedFileAlone_data() { leavesMountsAlone_data(); }

void TestRemovalMounts::leavesAMountedFileAlone() {
  QFETCH(bool, isBind);
  QFETCH(bool, toTrash);
  QFETCH(bool, dryRun);
  if (!isBind) return;
  const QString outside = m_home.file(u"outside/file"_s);
  const QString point = m_home.file(u"in/tree/a/point"_s);
  m_home.file(u"in/tree/a/goes"_s);
  const auto mount = Mount::bind(outside, point);
  QVERIFY(mount);
  RemovalRecorder seen;
  Remover({.toTrash = toTrash, .dryRun = dryRun}, seen.handlers()).remove(at(m_home.path(u"in/tree"_s)));
  QCOMPARE(seen.keptPaths(), QStringList{point});
  QVERIFY(seen.kept.first().second == Kept::AnotherVolume);
  QVERIFY(seen.busy.isEmpty() && isThere(outside) && isThere(point));
  QCOMPARE(isThere(m_home.path(u"in/tree/a/goes"_s)), dryRun);
}

void TestRemovalMounts::leavesAMountedTargetAlone() {
  const QString point = m_home.folder(u"in/point"_s);
  const auto mount = Mount::bind(m_home.folder(u"outside"_s), point);
  m_home.file(u"outside/precious"_s);
  for (const bool toTrash : {false, true}) {
    RemovalRecorder seen;
    Remover({.toTrash = toTrash}, seen.handlers()).remove(at(point));
    QCOMPARE(seen.kept, (QList<std::pair<QString, Kept>>{{point, Kept::AnotherVolume}}));
    QVERIFY(isThere(point + u"/precious"_s));
  }
}

void TestRemovalMounts::emptiesAMountThatIsTheTarget() {
  const QString point = m_home.folder(u"in/point"_s);
  const auto mount = Mount::memory(point);
  m_home.file(point + u"/a/file"_s);
  RemovalRecorder seen;
  Remover({}, seen.handlers()).removeChildren(at(point));
  QVERIFY(namesIn(point).isEmpty() && isThere(point));
  QVERIFY(seen.kept.isEmpty());
}

void TestRemovalMounts::retryLeavesMountsAlone() {
  const QString point = m_home.folder(u"in/a/point"_s);
  const auto mount = Mount::bind(m_home.folder(u"outside"_s), point);
  const QString precious = m_home.file(u"outside/precious"_s);
  for (const QString& path : {point + u"/precious"_s, point}) {
    RemovalRecorder seen;
    Remover remover({}, seen.handlers());
    removal::Stay stay{{path, path, raw(path), false, true}, raw(m_home.path(u"in"_s)), EBUSY};
    QVERIFY(remover.retry(&stay) == Remover::Retry::Kept);
    QCOMPARE(seen.kept, (QList<std::pair<QString, Kept>>{{path, Kept::AnotherVolume}}));
    QVERIFY(isThere(precious) && isThere(point));
  }
}

void TestRemovalMounts::noTrashInMemory() {
  const QString point = m_home.folder(u"in/point"_s);
  const auto mount = Mount::memory(point);
  const QString tree = point + u"/tree"_s;
  m_home.file(tree + u"/file"_s, 5000);
  m_home.file(tree + u"/other"_s, 5000);
  for (const bool dryRun : {true, false}) {
    RemovalRecorder seen;
    Remover remover({.toTrash = true, .dryRun = dryRun}, seen.handlers());
    remover.remove(at(tree));
    QCOMPARE(seen.kept, (QList<std::pair<QString, Kept>>{{tree, Kept::NoTrash}}));
    QCOMPARE(seen.asked, QStringList{tree});
    seen.clear();
    remover.removeChildren(at(tree));
    QCOMPARE(seen.kept, (QList<std::pair<QString, Kept>>{{tree, Kept::NoTrash}}));
    QVERIFY(seen.asked.isEmpty() && seen.busy.isEmpty());
    QVERIFY(isThere(tree + u"/file"_s));
    QCOMPARE(namesIn(point), QStringList{u"tree"_s}); // nothing was made
    if (dryRun) QCOMPARE(remover.wouldStay().files, 4);
    // What holds nothing needs no word, and a reason to stay comes first.
    seen.clear();
    m_home.folder(point + u"/empty"_s);
    remover.removeChildren(at(point + u"/empty"_s));
    QVERIFY(seen.kept.isEmpty());
    QDir(point).rmdir(u"empty"_s);
    seen.verdicts.insert(tree, Verdict::KeepExcluded);
    remover.remove(at(tree));
    QCOMPARE(seen.kept, (QList<std::pair<QString, Kept>>{{tree, Kept::Excluded}}));
  }
}

void TestRemovalMounts::homeTrashInMemory() {
  // A live system's home folder: its Trash lives as long as the files would.
  const auto mount = Mount::memory(m_home.path());
  const QString file = m_home.file(u"in/file"_s);
  RemovalRecorder seen;
  Remover({.toTrash = true}, seen.handlers()).remove(at(file));
  QVERIFY(seen.kept.isEmpty() && !isThere(file));
  QVERIFY(isThere(m_home.path(u".local/share/Trash/files/file"_s)));
}

void TestRemovalMounts::trashAtTheTop() {
  const QString volume = m_home.folder(u"volume"_s);
  const auto mount = Mount::bind(m_home.folder(u"disk"_s), volume);
  const QString file = m_home.file(volume + u"/a b/c/file"_s);
  RemovalRecorder seen;
  Remover remover({.toTrash = true}, seen.handlers());
  remover.remove(at(file));
  QVERIFY(!isThere(file));
  const QString trash = volume + u"/.Trash-%1"_s.arg(::geteuid());
  QVERIFY(isThere(trash + u"/files/file"_s));
  struct stat status {};
  ::lstat(raw(trash).constData(), &status);
  QCOMPARE(status.st_mode & 07777u, 0700u);
  QFile info(trash + u"/info/file.trashinfo"_s);
  QVERIFY(info.open(QIODevice::ReadOnly));
  QVERIFY(info.readAll().startsWith("[Trash Info]\nPath=a%20b/c/file\nDeletionDate=2"));
  QVERIFY(!isThere(m_home.path(u".local"_s)));
}

void TestRemovalMounts::trashAtTheTopFollowsNothing() {
  const QString volume = m_home.folder(u"volume"_s);
  const auto mount = Mount::bind(m_home.folder(u"disk"_s), volume);
  const QString file = m_home.file(volume + u"/file"_s);
  const QString elsewhere = m_home.folder(u"elsewhere"_s);
  const QString trash = volume + u"/.Trash-%1"_s.arg(::geteuid());
  m_home.link(trash, elsewhere);
  RemovalRecorder seen;
  Remover({.toTrash = true}, seen.handlers()).remove(at(file));
  QCOMPARE(seen.kept, (QList<std::pair<QString, Kept>>{{file, Kept::NoTrash}}));
  QVERIFY(isThere(file) && namesIn(elsewhere).isEmpty());
}

void TestRemovalMounts::sharedTrashAtTheTop() {
  const QString volume = m_home.folder(u"volume"_s);
  const auto mount = Mount::bind(m_home.folder(u"disk"_s), volume);
  const QString file = m_home.file(volume + u"/file"_s);
  ::chmod(raw(m_home.folder(volume + u"/.Trash"_s)).constData(), 01777);
  RemovalRecorder seen;
  Remover({.toTrash = true}, seen.handlers()).remove(at(file));
  const QString user = QString::number(::geteuid());
  QVERIFY(isThere(volume + u"/.Trash/"_s + user + u"/files/file"_s));
  QVERIFY(!isThere(volume + u"/.Trash-"_s + user));
}

void TestRemovalMounts::sharedTrashMustBeSticky() {
  const QString user = QString::number(::geteuid());
  const auto shared = [&](const QString& volume) { return volume + u"/.Trash"_s; };
  const QString volume = m_home.folder(u"volume"_s);
  for (const bool isLink : {false, true}) {
    const auto mount = Mount::bind(m_home.folder(isLink ? u"disk 1"_s : u"disk 2"_s), volume);
    const QString sticky = m_home.folder(u"sticky"_s);
    ::chmod(raw(sticky).constData(), 01777);
    if (isLink)
      m_home.link(shared(volume), sticky);
    else
      ::chmod(raw(m_home.folder(shared(volume))).constData(), 0777);
    RemovalRecorder seen;
    Remover({.toTrash = true}, seen.handlers()).remove(at(m_home.file(volume + u"/file"_s)));
    QVERIFY(isThere(volume + u"/.Trash-"_s + user + u"/files/file"_s));
    QVERIFY(namesIn(sticky).isEmpty());
  }
}

QTEST_GUILESS_MAIN(TestRemovalMounts)
#include "tst_removal_mounts.moc"
