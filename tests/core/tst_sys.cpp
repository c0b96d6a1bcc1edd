#include "core/sys.h"

#include "core/UniqueFd.h"
#include "core/names.h"
#include "support/FixtureHome.h"
#include "support/trees.h"

#include <QTest>

#include <fcntl.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

/// What a stat record of the other kind of system looks like.
struct OtherStatus {
  timespec st_mtimespec;
  timespec st_atimespec;
  quint32 st_flags;
};

UniqueFd openFolder(const QString& path) {
  return UniqueFd(::open(trees::raw(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

QStringList namesIn(sys::DirReader* reader) {
  QStringList seen;
  for (sys::RawName raw; reader->next(&raw);) {
    seen << QString::fromUtf8(raw.name);
    if (raw.length != std::strlen(raw.name)) seen << u"wrong length"_s;
  }
  seen.sort();
  return seen;
}

ino_t inodeOf(int fd) {
  struct stat status;
  return ::fstat(fd, &status) == 0 ? status.st_ino : 0;
}

using Rename = int (*)(int, const char*, int, const char*);
using Open = int (*)(const QByteArray&);

} // namespace

Q_DECLARE_METATYPE(Rename)
Q_DECLARE_METATYPE(Open)

class TestSys : public QObject {
  Q_OBJECT

 private slots:
  void readsTimesOfEitherKindOfSystem();
  void tellsDatalessEntries();
  void listsEveryNameButTheDots();
  void listsMoreThanOneBuffer();
  void listsAgainFromTheStart();
  void tellsWhyAListingFailed();
  void renamesWithoutReplacing_data();
  void renamesWithoutReplacing();
  void refusesToRename_data();
  void refusesToRename();
  void opensFoldersWithoutLinks_data();
  void opensFoldersWithoutLinks();
  void opensFoldersBeyondThePathLimit_data();
  void opensFoldersBeyondThePathLimit();
  void tellsTheMount();
  void tellsTheDescriptorsPath();

 private:
  FixtureHome m_home;
};

void TestSys::readsTimesOfEitherKindOfSystem() {
  const OtherStatus other = {{12, 345'999'999}, {-1, 999'999'999}, 0};
  QCOMPARE(sys::modifiedMs(other), qint64{12'345});
  QCOMPARE(sys::accessedMs(other), qint64{-1});
  const QString file = m_home.file(u"times"_s);
  const timespec both[2] = {{1'600'000'000, 1'999'999}, {1'700'000'000, 2'000'000}};
  QCOMPARE(::utimensat(AT_FDCWD, trees::raw(file).constData(), both, 0), 0);
  struct stat status;
  QCOMPARE(::lstat(trees::raw(file).constData(), &status), 0);
  QCOMPARE(sys::accessedMs(status), qint64{1'600'000'000'001});
  QCOMPARE(sys::modifiedMs(status), qint64{1'700'000'000'002});
}

void TestSys::tellsDatalessEntries() {
  QVERIFY(sys::isDataless(OtherStatus{{}, {}, 0x40000000U}));
  QVERIFY(sys::isDataless(OtherStatus{{}, {}, 0x40000020U}));
  QVERIFY(!sys::isDataless(OtherStatus{{}, {}, 0x20U}));
}

void TestSys::listsEveryNameButTheDots() {
  const QStringList names = {u"..."_s, u"..x"_s, u".hidden"_s, u"a"_s, u"b c"_s};
  for (const QString& name : names) m_home.file(u"list/"_s + name, 0);
  const UniqueFd fd = openFolder(m_home.path(u"list"_s));
  sys::DirReader reader;
  QVERIFY(reader.start(fd.get()));
  QCOMPARE(namesIn(&reader), names);
  QCOMPARE(reader.error(), 0);
  sys::RawName raw;
  QVERIFY(!reader.next(&raw));
  QVERIFY(::fcntl(fd.get(), F_GETFD) >= 0); // the descriptor stays the caller's
}

void TestSys::listsMoreThanOneBuffer() {
  const QString folder = m_home.folder(u"many"_s);
  const QByteArray longName = trees::raw(folder) + '/' + QByteArray(240, 'n');
  for (int i = 0; i < 1000; ++i) trees::touch(longName + QByteArray::number(1000 + i));
  const UniqueFd fd = openFolder(folder);
  sys::DirReader reader;
  QVERIFY(reader.start(fd.get()));
  const QStringList seen = namesIn(&reader);
  QCOMPARE(seen.size(), 1000);
  QCOMPARE(QSet<QString>(seen.begin(), seen.end()).size(), 1000);
  qsizetype drained = 0;
  const UniqueFd again = openFolder(folder);
  reader.startFresh(again.get());
  reader.drain([&](const dirent& entry) { drained += entry.d_name[0] == 'n' ? 1 : 1000; });
  QCOMPARE(drained, 1000);
}

void TestSys::listsAgainFromTheStart() {
  m_home.file(u"again/one"_s, 0);
  m_home.file(u"again/two"_s, 0);
  m_home.file(u"other/three"_s, 0);
  const UniqueFd fd = openFolder(m_home.path(u"again"_s));
  const UniqueFd other = openFolder(m_home.path(u"other"_s));
  sys::DirReader reader;
  sys::RawName raw;
  QVERIFY(reader.start(fd.get()));
  QVERIFY(reader.next(&raw));
  QVERIFY(reader.start(other.get())); // in the middle of the first
  QCOMPARE(namesIn(&reader), QStringList{u"three"_s});
  QVERIFY(reader.start(fd.get()));
  QCOMPARE(namesIn(&reader), (QStringList{u"one"_s, u"two"_s}));
  QVERIFY(reader.start(fd.get()));
  QCOMPARE(namesIn(&reader), (QStringList{u"one"_s, u"two"_s}));
}

void TestSys::tellsWhyAListingFailed() {
  sys::DirReader reader;
  QVERIFY(!reader.start(-1));
  QCOMPARE(errno, EBADF);
  const UniqueFd file(::open(trees::raw(m_home.file(u"plain"_s)).constData(), O_RDONLY | O_CLOEXEC));
  reader.startFresh(file.get());
  sys::RawName raw;
  QVERIFY(!reader.next(&raw));
  QCOMPARE(reader.error(), ENOTDIR);
  const UniqueFd folder = openFolder(m_home.folder(u"empty"_s));
  reader.startFresh(folder.get());
  QVERIFY(!reader.next(&raw));
  QCOMPARE(reader.error(), 0);
}

void TestSys::renamesWithoutReplacing_data() {
  QTest::addColumn<Rename>("rename");
  QTest::newRow("by the system") << Rename{sys::renameNoReplace};
  QTest::newRow("by steps") << Rename{sys::renameBySteps};
}

void TestSys::renamesWithoutReplacing() {
  QFETCH(Rename, rename);
  const QString base = QLatin1String(QTest::currentDataTag());
  const UniqueFd from = openFolder(m_home.folder(base + u"/from"_s));
  const UniqueFd to = openFolder(m_home.folder(base + u"/to"_s));
  m_home.file(base + u"/from/file"_s, 5);
  m_home.file(base + u"/from/folder/inside"_s, 7);
  m_home.link(base + u"/from/link"_s, u"nowhere"_s);
  for (const char* name : {"file", "folder", "link"}) {
    struct stat before, after;
    QCOMPARE(::fstatat(from.get(), name, &before, AT_SYMLINK_NOFOLLOW), 0);
    QCOMPARE(rename(from.get(), name, to.get(), name), 0);
    QCOMPARE(::fstatat(to.get(), name, &after, AT_SYMLINK_NOFOLLOW), 0);
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(after.st_mode, before.st_mode);
    QCOMPARE(::fstatat(from.get(), name, &before, AT_SYMLINK_NOFOLLOW), -1);
  }
  QVERIFY(QFile::exists(m_home.path(base + u"/to/folder/inside"_s)));
  QCOMPARE(rename(from.get(), "missing", to.get(), "name"), ENOENT);
}

void TestSys::refusesToRename_data() {
  QTest::addColumn<Rename>("rename");
  QTest::addColumn<QString>("what");
  QTest::addColumn<QString>("taken");
  const std::pair<const char*, Rename> ways[] = {{"system", sys::renameNoReplace}, {"steps", sys::renameBySteps}};
  for (const auto& [way, rename] : ways) {
    for (const char* what : {"file", "folder", "link"}) {
      for (const char* taken : {"file", "folder", "full", "link"})
        QTest::addRow("%s: %s over %s", way, what, taken)
            << rename << QString::fromLatin1(what) << QString::fromLatin1(taken);
    }
  }
}

void TestSys::refusesToRename() {
  QFETCH(Rename, rename);
  QFETCH(QString, what);
  QFETCH(QString, taken);
  const QString base = QString::fromLatin1(QTest::currentDataTag());
  for (const QString& side : {u"/from/"_s, u"/to/"_s}) {
    m_home.file(base + side + u"file"_s, 5);
    m_home.folder(base + side + u"folder"_s);
    m_home.file(base + side + u"full/inside"_s, 5);
    m_home.link(base + side + u"link"_s, u"nowhere"_s);
  }
  const UniqueFd from = openFolder(m_home.path(base + u"/from"_s));
  const UniqueFd to = openFolder(m_home.path(base + u"/to"_s));
  const QByteArray there = taken.toLatin1();
  struct stat before, after;
  QCOMPARE(::fstatat(to.get(), there.constData(), &before, AT_SYMLINK_NOFOLLOW), 0);
  QCOMPARE(rename(from.get(), what.toLatin1().constData(), to.get(), there.constData()), EEXIST);
  QCOMPARE(::fstatat(to.get(), there.constData(), &after, AT_SYMLINK_NOFOLLOW), 0);
  QCOMPARE(after.st_ino, before.st_ino);
  QCOMPARE(::fstatat(from.get(), what.toLatin1().constData(), &after, AT_SYMLINK_NOFOLLOW), 0);
}

void TestSys::opensFoldersWithoutLinks_data() {
  QTest::addColumn<Open>("open");
  QTest::newRow("by the system") << Open{sys::openFolderNoLinks};
  QTest::newRow("by steps") << Open{sys::openFolderBySteps};
}

void TestSys::opensFoldersWithoutLinks() {
  QFETCH(Open, open);
  const QString deep = m_home.folder(u"real/folder/deep"_s);
  if (!QFileInfo(m_home.path(u"real/link"_s)).isSymLink()) m_home.link(u"real/link"_s, u"folder"_s);
  m_home.file(u"real/file"_s);
  const auto errorOf = [&](const QString& path) {
    const UniqueFd fd(open(trees::raw(path)));
    return fd ? 0 : errno;
  };
  const UniqueFd fd(open(trees::raw(deep)));
  QVERIFY(fd);
  QCOMPARE(inodeOf(fd.get()), inodeOf(openFolder(deep).get()));
  sys::DirReader reader;
  QVERIFY(reader.start(fd.get()));
  QCOMPARE(namesIn(&reader), QStringList());
  QVERIFY(::fcntl(fd.get(), F_GETFD) & FD_CLOEXEC);
  QCOMPARE(errorOf(u"/"_s), 0);
  QCOMPARE(errorOf(m_home.path(u"real"_s) + u"//folder/./deep/"_s), 0);
  QCOMPARE(errorOf(m_home.path(u"real/missing"_s)), ENOENT);
  QCOMPARE(errorOf(m_home.path(u"real/file"_s)), ENOTDIR);
  const QList<int> refusals = {ELOOP, ENOTDIR};
  QVERIFY(refusals.contains(errorOf(m_home.path(u"real/link"_s))));
  QVERIFY(refusals.contains(errorOf(m_home.path(u"real"_s) + u"/link/"_s)));
  QVERIFY(refusals.contains(errorOf(m_home.path(u"real"_s) + u"/link/deep"_s)));
  QCOMPARE(sys::openFolderNoLinks("real/folder"), -1);
  QCOMPARE(errno, EINVAL);
}

void TestSys::opensFoldersBeyondThePathLimit_data() { opensFoldersWithoutLinks_data(); }

void TestSys::opensFoldersBeyondThePathLimit() {
  QFETCH(Open, open);
  const QByteArray name(200, 'd');
  const QString top = m_home.folder(u"long"_s);
  ino_t deepest = 0;
  trees::makeChain(top, 30, name, [&](int fd, int) { deepest = inodeOf(fd); });
  const UniqueFd fd(open(trees::raw(trees::chainPath(top, 30, name))));
  QVERIFY2(fd, std::strerror(errno));
  QCOMPARE(inodeOf(fd.get()), deepest);
  QCOMPARE(sys::descriptorPath(fd.get()), QByteArray()); // too long for the system to tell
  trees::removeWhole(top);
}

void TestSys::tellsTheMount() {
  const UniqueFd home = openFolder(m_home.folder(u"mounts"_s));
  m_home.file(u"mounts/file"_s);
  m_home.link(u"mounts/link"_s, u"/proc"_s);
  const std::optional<quint64> here = sys::mountId(home.get());
  QVERIFY(here);
  QCOMPARE(sys::mountIdAt(home.get(), "file"), here);
  QCOMPARE(sys::mountIdAt(home.get(), "link"), here); // the link itself, not what it leads to
  QVERIFY(!sys::mountIdAt(home.get(), "missing"));
  QVERIFY(!sys::mountId(-1));
  const UniqueFd root = openFolder(u"/"_s);
  const std::optional<quint64> elsewhere = sys::mountIdAt(root.get(), "dev");
  if (!elsewhere || elsewhere == sys::mountId(root.get())) QSKIP("no other mount to compare with");
  QVERIFY(elsewhere != here);
}

void TestSys::tellsTheDescriptorsPath() {
  const QString old = m_home.folder(u"path/old"_s);
  const UniqueFd fd = openFolder(old);
  QCOMPARE(sys::descriptorPath(fd.get()), trees::raw(old));
  const QString moved = m_home.path(u"path/new"_s);
  QCOMPARE(::rename(trees::raw(old).constData(), trees::raw(moved).constData()), 0);
  QCOMPARE(sys::descriptorPath(fd.get()), trees::raw(moved));
  QCOMPARE(::rmdir(trees::raw(moved).constData()), 0);
  QCOMPARE(sys::descriptorPath(fd.get()), QByteArray());
  QCOMPARE(sys::descriptorPath(-1), QByteArray());
}

QTEST_GUILESS_MAIN(TestSys)
#include "tst_sys.moc"
