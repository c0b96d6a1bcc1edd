// What becomes of the Trash afterwards: things are put back, or forgotten once they are gone, and its sizes are kept
// true.
#include "TrashTest.h"
#include "support/Arrivals.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using trash::Outcome;

class TestTrashAfter : public TrashTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void restores();
  void restoresWithoutOverwriting();
  void restoresOnlyWhatIsWhole();
  void forgets();
  void forgetsNothingElse();
  void keepsTheSizeCacheUpToDate();
  void replacesTheSizeCacheOnceForAll();
};

void TestTrashAfter::restores() {
  const QString file = m_home.file(u"a/file"_s, 7);
  const Outcome outcome = move(file);
  QCOMPARE(trash::restore(outcome.trashedPath, outcome.infoPath, file), 0);
  QCOMPARE(contentsOf(file), "xxxxxxx");
  QVERIFY(!isThere(outcome.trashedPath) && !isThere(outcome.infoPath));
}

void TestTrashAfter::restoresWithoutOverwriting() {
  const QString file = m_home.file(u"a/file"_s, 7);
  const Outcome outcome = move(file);
  m_home.file(u"a/file"_s, 1);
  QCOMPARE(trash::restore(outcome.trashedPath, outcome.infoPath, file), EEXIST);
  QCOMPARE(contentsOf(file), "x");
  QVERIFY(isThere(outcome.trashedPath) && isThere(outcome.infoPath));
  QFile::remove(file);
  m_home.link(u"a/file"_s, u"/no/such/file"_s);
  QCOMPARE(trash::restore(outcome.trashedPath, outcome.infoPath, file), EEXIST);
}

void TestTrashAfter::restoresOnlyWhatIsWhole() {
  const QString file = m_home.file(u"a/file"_s);
  const Outcome outcome = move(file);
  QDir(m_home.path(u"a"_s)).removeRecursively();
  QCOMPARE(trash::restore(outcome.trashedPath, outcome.infoPath, file), ENOENT);
  QVERIFY(isThere(outcome.trashedPath) && isThere(outcome.infoPath));
  QCOMPARE(trash::restore(outcome.trashedPath + u"x"_s, outcome.infoPath, m_home.path(u"b"_s)), ENOENT);
  QCOMPARE(trash::restore({}, {}, file), ENOENT);
  // An info file that isn't the thing's own stays.
  const QString other = m_home.file(m_trash + u"/info/other.trashinfo"_s);
  QCOMPARE(trash::restore(outcome.trashedPath, other, m_home.path(u"b"_s)), 0);
  QVERIFY(isThere(other) && isThere(m_home.path(u"b"_s)));
}

void TestTrashAfter::forgets() {
  const Outcome outcome = move(m_home.file(u"a/file.txt"_s));
  trash::forget(m_trash + u"/files"_s, {"file.txt"}); // still there
  QVERIFY(isThere(outcome.infoPath));
  QFile::remove(outcome.trashedPath);
  trash::forget(m_trash + u"/files"_s, {"file.txt"});
  QVERIFY(!isThere(outcome.infoPath));
  QVERIFY(isThere(m_trash + u"/info"_s));
}

void TestTrashAfter::forgetsNothingElse() {
  // A folder that only looks like a Trash.
  m_home.folder(u"fake/files"_s);
  const QString info = m_home.file(u"fake/info/a.trashinfo"_s);
  trash::forget(m_home.path(u"fake/files"_s), {"a"});
  trash::forget(m_home.path(u"fake"_s), {"a"});
  trash::forget({}, {"a"});
  QVERIFY(isThere(info));
  // The real one, with names that lead elsewhere.
  const Outcome outcome = move(m_home.file(u"b"_s));
  const QString outside = m_home.file(u".local/share/Trash/x.trashinfo"_s);
  trash::forget(m_trash + u"/files"_s, {"../x"});
  trash::forget(m_trash + u"/files"_s, {""});
  QVERIFY(isThere(outside) && isThere(outcome.infoPath));
  // A planted link in the place of the info folder.
  QDir().rename(m_trash + u"/info"_s, m_home.path(u"old info"_s));
  m_home.link(u".local/share/Trash/info"_s, m_home.path(u"old info"_s));
  QFile::remove(outcome.trashedPath);
  trash::forget(m_trash + u"/files"_s, {"b"});
  QVERIFY(isThere(m_home.path(u"old info/b.trashinfo"_s)));
}

void TestTrashAfter::keepsTheSizeCacheUpToDate() {
  m_home.file(u"one two/file"_s);
  m_home.file(u"three/file"_s);
  const Outcome first = move(m_home.path(u"one two"_s));
  const Outcome second = move(m_home.path(u"three"_s));
  QFile cache(m_trash + u"/directorysizes"_s);
  QVERIFY(cache.open(QIODevice::WriteOnly));
  cache.write("4096 1700000000 one%20two\n4096 1700000000 three\n4096 1700000000 other\n");
  cache.close();
  QDir(first.trashedPath).removeRecursively();
  trash::forget(m_trash + u"/files"_s, {"one two"});
  QCOMPARE(contentsOf(cache.fileName()), "4096 1700000000 three\n4096 1700000000 other\n");
  QCOMPARE(trash::restore(second.trashedPath, second.infoPath, m_home.path(u"three"_s)), 0);
  QCOMPARE(contentsOf(cache.fileName()), "4096 1700000000 other\n");
  QCOMPARE(namesIn(m_trash), (QStringList{u"directorysizes"_s, u"files"_s, u"info"_s}));
  // A link in its place is left alone.
  cache.remove();
  const QString target = m_home.file(u"target"_s, 1);
  QFile::link(target, cache.fileName());
  trash::forget(m_trash + u"/files"_s, {"other"});
  QVERIFY(QFileInfo(cache.fileName()).isSymLink());
  QCOMPARE(contentsOf(target), "x");
}

void TestTrashAfter::replacesTheSizeCacheOnceForAll() {
  QByteArrayList names;
  QByteArray sizes;
  for (int i = 0; i < 300; ++i) {
    names << "folder " + QByteArray::number(i);
    sizes += "4096 1700000000 " + names.last().toPercentEncoding() + '\n';
    m_home.file(m_trash + u"/info/folder %1.trashinfo"_s.arg(i));
  }
  m_home.folder(m_trash + u"/files/folder 7"_s); // still there
  QFile cache(m_trash + u"/directorysizes"_s);
  QVERIFY(cache.open(QIODevice::WriteOnly));
  cache.write(sizes + "1 1 other\n");
  cache.close();

  const Arrivals arrivals(m_trash);
  trash::forget(m_trash + u"/files"_s, names);
  QCOMPARE(arrivals.count("directorysizes"), 1);
  QCOMPARE(contentsOf(cache.fileName()), "4096 1700000000 folder%207\n1 1 other\n");
  QCOMPARE(namesIn(m_trash + u"/info"_s), QStringList{u"folder 7.trashinfo"_s});
  trash::forget(m_trash + u"/files"_s, names);
  trash::forget(m_trash + u"/files"_s, {});
  QCOMPARE(arrivals.count("directorysizes"), 0); // there was nothing to take out
}

QTEST_GUILESS_MAIN(TestTrashAfter)
#include "tst_trash_after.moc"
