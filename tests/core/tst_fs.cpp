#include "core/fs.h"

#include "core/names.h"
#include "support/FixtureHome.h"
#include "support/trees.h"

#include <QDir>
#include <QTest>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>

using namespace Qt::StringLiterals;

namespace {

QStringList namesOf(const QList<fs::Entry>& entries) {
  QStringList names;
  for (const fs::Entry& entry : entries) names << entry.name;
  names.sort();
  return names;
}

fs::Entry entryOf(const QString& dir, const QString& name) {
  for (const fs::Entry& entry : fs::list(dir))
    if (entry.name == name) return entry;
  return {.name = u"not listed"_s};
}

struct stat statusOf(const QString& path) {
  struct stat status {};
  if (::lstat(trees::raw(path).constData(), &status) != 0) qFatal("no %s", qPrintable(path));
  return status;
}

} // namespace

class TestFs : public QObject {
  Q_OBJECT

 private slots:
  void joins_data();
  void joins();
  void hasAnEmptyDefaultEntry();
  void listsAllButTheDots();
  void listsAnUnreadableFolderAsEmpty();
  void listsThroughALinkToAFolder();
  void fillsEntriesByType_data();
  void fillsEntriesByType();
  void fillsTheWholeEntry();
  void leavesTheEntryAloneWhereStatFails();
  void namesTheStatEntryByTheLastComponent();
  void findsNamesOfBothForms();
  void tellsNamesThatAreNoText();
  void tellsFoldersThatJoinWrongly();
  void findsNothingByWhatNoNameHolds();
  void exists_data();
  void exists();
  void isReadable();
  void resolvesLinks();
  void worksBeyondThePathLimit();

 private:
  FixtureHome m_home;
};

void TestFs::joins_data() {
  QTest::addColumn<QString>("dir");
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("joined");
  QTest::newRow("root") << u"/"_s << u"a"_s << u"/a"_s;
  QTest::newRow("folder") << u"/a"_s << u"b"_s << u"/a/b"_s;
  QTest::newRow("trailing slash") << u"/a/"_s << u"b"_s << u"/a/b"_s;
  QTest::newRow("name that begins with a slash") << u"/a"_s << u"/b"_s << u"/a//b"_s;
  QTest::newRow("folder that ends with a backslash") << u"C:\\"_s << u"b"_s << u"C:\\b"_s;
  QTest::newRow("no folder") << QString() << u"b"_s << u"/b"_s;
  QTest::newRow("no name") << u"/a"_s << QString() << u"/a/"_s;
}

void TestFs::joins() {
  QFETCH(QString, dir);
  QFETCH(QString, name);
  QTEST(fs::join(dir, name), "joined");
}

void TestFs::hasAnEmptyDefaultEntry() {
  const fs::Entry entry;
  QVERIFY(entry.name.isEmpty() && !entry.isDir && !entry.isSymlink && !entry.dataless && entry.reachable);
  QCOMPARE(entry.links, 1U);
  QCOMPARE(entry.allocated + entry.size + entry.modifiedMs + entry.accessedMs + entry.device, qint64{0});
  QCOMPARE(entry.inode + entry.owner + entry.type, quint64{0});
}

void TestFs::listsAllButTheDots() {
  const QStringList names = {u"..."_s, u"..b"_s, u".hidden"_s, u"folder"_s, u"link"_s, u"plain"_s};
  for (const QString& name : {names[0], names[1], names[2], names[5]}) m_home.file(u"list/"_s + name, 0);
  m_home.folder(u"list/folder"_s);
  m_home.link(u"list/link"_s, u"nowhere"_s);
  QCOMPARE(namesOf(fs::list(m_home.path(u"list"_s))), names);
  QCOMPARE(namesOf(fs::list(m_home.path(u"list"_s) + u"//"_s)), names);
  QVERIFY(fs::list(m_home.folder(u"empty"_s)).isEmpty());
}

void TestFs::listsAnUnreadableFolderAsEmpty() {
  QVERIFY(fs::list(m_home.path(u"missing"_s)).isEmpty());
  QVERIFY(fs::list(m_home.file(u"a file"_s)).isEmpty());
  QVERIFY(fs::list(QString()).isEmpty());
}

void TestFs::listsThroughALinkToAFolder() {
  m_home.file(u"target/inside"_s);
  m_home.link(u"way"_s, u"target"_s);
  QCOMPARE(namesOf(fs::list(m_home.path(u"way"_s))), QStringList{u"inside"_s});
}

void TestFs::fillsEntriesByType_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<uint>("type");
  QTest::newRow("folder") << u"folder"_s << uint{S_IFDIR};
  QTest::newRow("file") << u"file"_s << uint{S_IFREG};
  QTest::newRow("link to a file") << u"to file"_s << uint{S_IFLNK};
  QTest::newRow("link to a folder") << u"to folder"_s << uint{S_IFLNK};
  QTest::newRow("dangling link") << u"dangling"_s << uint{S_IFLNK};
  QTest::newRow("link with blocks") << u"long link"_s << uint{S_IFLNK};
  QTest::newRow("pipe") << u"pipe"_s << uint{S_IFIFO};
  QTest::newRow("socket") << u"socket"_s << uint{S_IFSOCK};
}

void TestFs::fillsEntriesByType() {
  const QString dir = m_home.folder(u"types"_s);
  if (!QFile::exists(dir + u"/file"_s)) {
    m_home.folder(u"types/folder"_s);
    m_home.file(u"types/file"_s, 5000);
    m_home.link(u"types/to file"_s, u"file"_s);
    m_home.link(u"types/to folder"_s, u"folder"_s);
    m_home.link(u"types/dangling"_s, u"nowhere"_s);
    m_home.link(u"types/long link"_s, QString(2000, u'x'));
    QCOMPARE(::mkfifo(trees::raw(dir + u"/pipe"_s).constData(), 0600), 0);
    QCOMPARE(::mknod(trees::raw(dir + u"/socket"_s).constData(), S_IFSOCK | 0600, 0), 0);
  }
  QFETCH(QString, name);
  QFETCH(uint, type);
  fs::Entry direct;
  QVERIFY(fs::stat(fs::join(dir, name), &direct));
  for (const fs::Entry& entry : {entryOf(dir, name), direct}) {
    QCOMPARE(entry.name, name);
    QCOMPARE(entry.type, type);
    QCOMPARE(entry.isDir, type == S_IFDIR);
    QCOMPARE(entry.isSymlink, type == S_IFLNK);
    QCOMPARE(entry.size, qint64{type == S_IFREG ? 5000 : 0});
    QCOMPARE(entry.allocated, type == S_IFREG ? statusOf(fs::join(dir, name)).st_blocks * 512 : 0);
    QVERIFY(entry.reachable);
  }
}

void TestFs::fillsTheWholeEntry() {
  const QString path = m_home.file(u"whole/file"_s, 8192);
  QCOMPARE(::link(trees::raw(path).constData(), trees::raw(m_home.path(u"whole/other"_s)).constData()), 0);
  const timespec both[2] = {{1'500'000'000, 1'999'999}, {-5, 999'999'999}};
  QCOMPARE(::utimensat(AT_FDCWD, trees::raw(path).constData(), both, 0), 0);
  if (::geteuid() == 0) QCOMPARE(::chown(trees::raw(path).constData(), 12345, 0), 0);
  const struct stat status = statusOf(path);
  fs::Entry direct;
  QVERIFY(fs::stat(path, &direct));
  for (const fs::Entry& entry : {entryOf(m_home.path(u"whole"_s), u"file"_s), direct}) {
    QCOMPARE(entry.allocated, qint64{status.st_blocks} * 512);
    QVERIFY(entry.allocated >= 8192);
    QCOMPARE(entry.size, qint64{8192});
    QCOMPARE(entry.inode, quint64{status.st_ino});
    QCOMPARE(entry.device, static_cast<qint64>(status.st_dev));
    QCOMPARE(entry.links, 2U);
    QCOMPARE(entry.owner, ::geteuid() == 0 ? 12345U : ::geteuid());
    QCOMPARE(entry.accessedMs, qint64{1'500'000'000'001});
    QCOMPARE(entry.modifiedMs, qint64{-5000 + 999});
    QVERIFY(!entry.dataless);
  }
}

void TestFs::leavesTheEntryAloneWhereStatFails() {
  fs::Entry entry;
  entry.name = u"before"_s;
  entry.links = 7;
  QVERIFY(!fs::stat(m_home.path(u"missing"_s), &entry));
  QVERIFY(!fs::stat(QString(), &entry));
  QCOMPARE(entry.name, u"before"_s);
  QCOMPARE(entry.links, 7U);
}

void TestFs::namesTheStatEntryByTheLastComponent() {
  fs::Entry entry;
  entry.reachable = false; // all of it is replaced
  QVERIFY(fs::stat(m_home.folder(u"some/folder"_s) + u'/', &entry));
  QCOMPARE(entry.name, u"folder"_s);
  QVERIFY(entry.reachable);
  QVERIFY(fs::stat(u"/"_s, &entry));
  QCOMPARE(entry.name, QDir(u"/"_s).dirName());
  QVERIFY(entry.isDir);
}

void TestFs::findsNamesOfBothForms() {
  const QString dir = m_home.folder(u"forms"_s);
  const QByteArray decomposed = trees::raw(dir) + "/cafe\xcc\x81";
  const QByteArray composed = trees::raw(dir) + "/caf\xc3\xa9";
  trees::touch(decomposed);
  fs::Entry found;
  const QList<fs::Entry> alone = fs::list(dir);
  QCOMPARE(alone.size(), 1);
  QCOMPARE(alone[0].name, names::decode("cafe\xcc\x81"));
  QVERIFY(fs::stat(fs::join(dir, alone[0].name), &found));
  QCOMPARE(found.inode, alone[0].inode);
  if (names::systemCodec() != names::Codec::Bytes) QSKIP("the system takes both forms for one name");
  trees::touch(composed);
  const QList<fs::Entry> both = fs::list(dir);
  QCOMPARE(both.size(), 2);
  QVERIFY(both[0].name != both[1].name);
  for (const fs::Entry& entry : both) {
    QVERIFY(entry.reachable);
    QVERIFY(fs::stat(fs::join(dir, entry.name), &found));
    QCOMPARE(found.inode, entry.inode);
  }
}

void TestFs::tellsNamesThatAreNoText() {
  const QString dir = m_home.folder(u"no text"_s);
  trees::touch(trees::raw(dir) + "/caf\xe9");
  trees::touch(trees::raw(dir) + "/caf\xef\xbf\xbd"); // what the other one's text leads to
  const QList<fs::Entry> entries = fs::list(dir);
  QCOMPARE(entries.size(), 2);
  QCOMPARE(entries[0].name, entries[1].name);
  QVERIFY(entries[0].reachable != entries[1].reachable);
  for (const fs::Entry& entry : entries)
    QCOMPARE(entry.rawName, entry.reachable ? QByteArray() : QByteArray("caf\xe9"));
  fs::Entry found;
  QVERIFY(fs::stat(fs::join(dir, entries[0].name), &found));
  QCOMPARE(found.inode, entries[entries[0].reachable ? 0 : 1].inode);
}

void TestFs::tellsFoldersThatJoinWrongly() {
  const QString dir = m_home.folder(u"odd\\"_s);
  m_home.file(u"odd\\/name"_s);
  const QList<fs::Entry> entries = fs::list(dir);
  QCOMPARE(entries.size(), 1);
  QVERIFY(!fs::exists(fs::join(dir, entries[0].name)));
  QVERIFY(!entries[0].reachable);
  QVERIFY(fs::list(dir + u'/')[0].reachable);
}

void TestFs::findsNothingByWhatNoNameHolds() {
  m_home.file(u"cut"_s);
  m_home.file(u"cut?"_s);
  fs::Entry entry;
  const QString zero = m_home.path(u"cut"_s) + QChar(u'\0') + u"behind"_s;
  const QString half = m_home.path(u"cut"_s) + QChar(0xd800);
  for (const QString& path : {zero, half}) {
    QVERIFY(!fs::stat(path, &entry));
    QVERIFY(!fs::exists(path));
    QVERIFY(fs::resolved(path).isEmpty());
  }
}

void TestFs::exists_data() {
  QTest::addColumn<QString>("relative");
  QTest::addColumn<bool>("there");
  QTest::newRow("file") << u"exists/file"_s << true;
  QTest::newRow("folder") << u"exists"_s << true;
  QTest::newRow("dangling link") << u"exists/dangling"_s << true;
  QTest::newRow("link in a circle") << u"exists/circle"_s << true;
  QTest::newRow("missing") << u"exists/missing"_s << false;
  QTest::newRow("below what is missing") << u"exists/missing/name"_s << false;
  QTest::newRow("below a file") << u"exists/file/name"_s << false;
  QTest::newRow("below a dangling link") << u"exists/dangling/name"_s << false;
  QTest::newRow("below a circle, which can't be told") << u"exists/circle/name"_s << true;
  QTest::newRow("a name too long to be told") << u"exists/"_s + QString(300, u'n') << true;
}

void TestFs::exists() {
  if (!fs::exists(m_home.path(u"exists"_s))) {
    m_home.file(u"exists/file"_s);
    m_home.link(u"exists/dangling"_s, u"nowhere"_s);
    m_home.link(u"exists/circle"_s, u"circle"_s);
  }
  QFETCH(QString, relative);
  QTEST(fs::exists(m_home.path(relative)), "there");
}

// Refusals need another user or a refused call: see linux/tst_refusals.
void TestFs::isReadable() {
  QVERIFY(fs::isReadable(m_home.folder(u"readable"_s)));
  QVERIFY(fs::isReadable(m_home.path(u"missing"_s)));
  QVERIFY(fs::isReadable(m_home.path(u"missing/below"_s)));
  QVERIFY(fs::isReadable(m_home.file(u"readable/file"_s)));
  QVERIFY(fs::isReadable(m_home.path(u"readable/file/below"_s)));
}

void TestFs::resolvesLinks() {
  const QString real = m_home.file(u"resolve/real/folder/file"_s);
  m_home.link(u"resolve/one"_s, u"real"_s);
  m_home.link(u"resolve/two"_s, m_home.path(u"resolve/one/folder"_s));
  m_home.link(u"resolve/dangling"_s, u"nowhere"_s);
  QCOMPARE(fs::resolved(m_home.path(u"resolve/two/file"_s)), real);
  QCOMPARE(fs::resolved(m_home.path(u"resolve"_s) + u"//one/./folder/../folder/file"_s), real);
  QCOMPARE(fs::resolved(real), real);
  QVERIFY(fs::resolved(m_home.path(u"resolve/dangling"_s)).isEmpty());
  QVERIFY(fs::resolved(m_home.path(u"resolve/missing"_s)).isEmpty());
  QCOMPARE(::symlink("caf\xe9", trees::raw(m_home.path(u"resolve/odd"_s)).constData()), 0);
  trees::touch(trees::raw(m_home.path(u"resolve"_s)) + "/caf\xe9");
  QVERIFY(fs::exists(m_home.path(u"resolve/odd"_s)));
  QVERIFY(fs::resolved(m_home.path(u"resolve/odd"_s)).isEmpty()); // no text leads there
}

void TestFs::worksBeyondThePathLimit() {
  const QByteArray name(200, 'd');
  const QString top = m_home.folder(u"long"_s);
  trees::makeChain(top, 45, name, [](int fd, int) { trees::touchAt(fd, "file"); });
  const QString deepest = trees::chainPath(top, 45, name);
  QVERIFY(deepest.size() > 2 * 4096);
  fs::Entry entry;
  QVERIFY(fs::stat(deepest, &entry));
  QVERIFY(entry.isDir);
  QVERIFY(fs::stat(deepest + u"/file"_s, &entry));
  QCOMPARE(entry.type, uint{S_IFREG});
  QCOMPARE(namesOf(fs::list(deepest)), QStringList{u"file"_s});
  QCOMPARE(namesOf(fs::list(deepest + QString(5000, u'/'))), QStringList{u"file"_s});
  QVERIFY(fs::exists(deepest + u"/file"_s));
  QVERIFY(!fs::exists(deepest + u"/missing"_s));
  QVERIFY(!fs::exists(deepest + u"/file/below"_s));
  QVERIFY(fs::isReadable(deepest));
  trees::removeWhole(top);
}

QTEST_GUILESS_MAIN(TestFs)
#include "tst_fs.moc"
