#include "core/fs.h"

#include "core/DirChain.h"
#include "core/names.h"
#include "support/FixtureHome.h"
#include "support/plainwalk.h"
#include "support/trees.h"

#include <QTest>

#include <sys/mount.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const std::atomic<bool> kNever = false;

struct Seen {
  QString path;
  fs::Entry entry;
};

QList<Seen> visit(const QString& root) {
  QList<Seen> seen;
  if (!fs::visitFiles(root, kNever, {}, [&](const QString& path, const fs::Entry& entry) {
        seen << Seen{path, entry};
      }))
    qFatal("the visit says that it was cancelled");
  return seen;
}

QStringList pathsOf(const QList<Seen>& seen) {
  QStringList paths;
  for (const Seen& one : seen) paths << one.path;
  paths.sort();
  return paths;
}

} // namespace

class TestFsVisit : public QObject {
  Q_OBJECT

 private slots:
  void visitsNothingWhereThereIsNoFolder();
  void visitsEverythingButFoldersAndLinks();
  void visitsEveryHardLink();
  void handsOutTheEntryThatStatGives();
  void walksThroughARootThatIsALink();
  void goesIntoTheLastFolderFirst();
  void agreesWithAPlainWalk();
  void asksWhichFoldersToSkip();
  void callsNothingWhereItWasCancelledBefore();
  void endsBeforeTheNextFolderOnceCancelled();
  void isCompleteWhereTheLastFolderCancels();
  void staysOnItsDevice();
  void tellsWhatNoTextReaches();
  void tellsFoldersThatJoinWrongly();
  void keepsBothFormsApart();
  void seesTreesBeyondThePathLimit();
  void endsWhereAFolderWasMoved();
  void followsNoLinkThatTookAFoldersPlace();
  void throwsWithoutAVisitor();
  void lazyVisitTellsTheSame();
  void lazyVisitCanBeAskedInAnyOrder();
  void lazyVisitCancelsAndSkipsAlike();

 private:
  FixtureHome m_home;
};

void TestFsVisit::visitsNothingWhereThereIsNoFolder() {
  QVERIFY(visit(m_home.path(u"missing"_s)).isEmpty());
  QVERIFY(visit(m_home.file(u"a file"_s)).isEmpty());
  QVERIFY(visit(m_home.folder(u"empty"_s)).isEmpty());
  QVERIFY(visit(QString()).isEmpty());
}

void TestFsVisit::visitsEverythingButFoldersAndLinks() {
  const QString dir = m_home.folder(u"kinds"_s);
  const QStringList expected = {m_home.file(u"kinds/.hidden"_s), m_home.file(u"kinds/folder/file"_s), dir + u"/pipe"_s};
  QCOMPARE(::mkfifo(trees::raw(dir + u"/pipe"_s).constData(), 0600), 0);
  m_home.link(u"kinds/link to folder"_s, u"folder"_s);
  m_home.link(u"kinds/link to file"_s, u"folder/file"_s);
  m_home.link(u"kinds/dangling"_s, u"nowhere"_s);
  QCOMPARE(pathsOf(visit(dir)), expected);
  QCOMPARE(pathsOf(visit(dir + u'/')), expected);
}

void TestFsVisit::visitsEveryHardLink() {
  const QString one = m_home.file(u"links/one"_s);
  const QString two = m_home.path(u"links/two"_s);
  QCOMPARE(::link(trees::raw(one).constData(), trees::raw(two).constData()), 0);
  QCOMPARE(pathsOf(visit(m_home.path(u"links"_s))), (QStringList{one, two}));
}

void TestFsVisit::handsOutTheEntryThatStatGives() {
  m_home.file(u"entries/a"_s, 5000);
  m_home.file(u"entries/in/a much longer name than that"_s, 1);
  m_home.file(u"entries/in/short"_s, 0);
  m_home.file(u"entries/in/caf\u00e9/caf\u00e9"_s, 70'000);
  const QList<Seen> seen = visit(m_home.path(u"entries"_s)); // copies, which outlive the calls
  QCOMPARE(seen.size(), 4);
  for (const Seen& one : seen) {
    fs::Entry entry;
    QVERIFY2(fs::stat(one.path, &entry), qPrintable(one.path));
    QCOMPARE(one.entry.name, entry.name);
    QCOMPARE(one.entry.inode, entry.inode);
    QCOMPARE(one.entry.device, entry.device);
    QCOMPARE(one.entry.allocated, entry.allocated);
    QCOMPARE(one.entry.size, entry.size);
    QCOMPARE(one.entry.modifiedMs, entry.modifiedMs);
    QCOMPARE(one.entry.owner, entry.owner);
    QCOMPARE(one.entry.type, entry.type);
    QCOMPARE(one.entry.links, entry.links);
    QVERIFY(one.entry.reachable && !one.entry.isDir && !one.entry.isSymlink);
  }
}

void TestFsVisit::walksThroughARootThatIsALink() {
  m_home.file(u"real root/in/file"_s);
  const QString link = m_home.link(u"root link"_s, u"real root"_s);
  QCOMPARE(pathsOf(visit(link)), QStringList{link + u"/in/file"_s});
}

void TestFsVisit::goesIntoTheLastFolderFirst() {
  for (int i = 0; i < 20; ++i) m_home.file(u"order/%1/file"_s.arg(i), 0);
  QStringList expected;
  for (const fs::Entry& entry : fs::list(m_home.path(u"order"_s)))
    expected.prepend(m_home.path(u"order/%1/file"_s.arg(entry.name)));
  QStringList paths;
  for (const Seen& one : visit(m_home.path(u"order"_s))) paths << one.path;
  QCOMPARE(paths, expected);
}

void TestFsVisit::agreesWithAPlainWalk() {
  const QString dir = m_home.folder(u"plain walk"_s);
  for (int i = 0; i < 1500; ++i) {
    QString path = dir;
    for (int bits = i * 7919 % 257; bits > 0; bits /= 3) path += u"/f%1"_s.arg(bits % 3);
    m_home.file(path + u"/file %1"_s.arg(i), 0);
    if (i % 70 == 0) m_home.link(path + u"/link %1"_s.arg(i), dir);
  }
  for (const QString& root : {dir, dir + u'/', dir + u"//"_s}) {
    for (const QStringList& skipped : {QStringList{}, QStringList{u"f2"_s}}) {
      QStringList calls;
      const auto skip = [&](const QString& parent, const QString& name) {
        calls << u"skip? "_s + parent + u' ' + name;
        return skipped.contains(name);
      };
      const auto take = [&](const QString& path, const fs::Entry&) { calls << u"visit "_s + path; };
      QVERIFY(fs::visitFiles(root, kNever, skip, take));
      QVERIFY(calls.size() > 300);
      QCOMPARE(calls, plainwalk::visit(root, skipped));
    }
  }
}

void TestFsVisit::asksWhichFoldersToSkip() {
  m_home.file(u"skip/in/deep/file"_s);
  m_home.file(u"skip/out/deep/file"_s);
  m_home.link(u"skip/link"_s, u"in"_s);
  const QString root = m_home.path(u"skip"_s);
  QStringList asked;
  const auto skip = [&](const QString& parent, const QString& name) {
    asked << parent + u" > "_s + name;
    return name == u"out"_s;
  };
  QStringList paths;
  QVERIFY(fs::visitFiles(root, kNever, skip, [&](const QString& path, const fs::Entry&) { paths << path; }));
  QCOMPARE(paths, QStringList{root + u"/in/deep/file"_s});
  asked.sort();
  QCOMPARE(asked, (QStringList{root + u" > in"_s, root + u" > out"_s, root + u"/in > deep"_s}));
}

void TestFsVisit::callsNothingWhereItWasCancelledBefore() {
  m_home.file(u"cancelled/in/file"_s);
  const std::atomic<bool> cancel = true;
  int calls = 0;
  const auto skip = [&](const QString&, const QString&) { return ++calls > 1000; };
  const auto take = [&](const QString&, const fs::Entry&) { ++calls; };
  QVERIFY(!fs::visitFiles(m_home.path(u"cancelled"_s), cancel, skip, take));
  QVERIFY(!fs::visitFiles(m_home.path(u"missing"_s), cancel, skip, take));
  QCOMPARE(calls, 0);
}

void TestFsVisit::endsBeforeTheNextFolderOnceCancelled() {
  for (int i = 0; i < 10; ++i) m_home.file(u"cancel/%1"_s.arg(i), 0);
  m_home.file(u"cancel/below/file"_s);
  std::atomic<bool> cancel = false;
  int files = 0;
  const auto take = [&](const QString&, const fs::Entry&) {
    ++files;
    cancel = true;
  };
  QVERIFY(!fs::visitFiles(m_home.path(u"cancel"_s), cancel, {}, take));
  QCOMPARE(files, 10); // this folder to its end, and no other
}

void TestFsVisit::isCompleteWhereTheLastFolderCancels() {
  m_home.file(u"last/in/file"_s);
  std::atomic<bool> cancel = false;
  QVERIFY(fs::visitFiles(m_home.path(u"last"_s), cancel, {}, [&](const QString&, const fs::Entry&) { cancel = true; }));
  QVERIFY(cancel);
}

void TestFsVisit::staysOnItsDevice() {
  const QString dir = m_home.folder(u"device"_s);
  const QString mount = m_home.folder(u"device/mounted"_s);
  const QString file = m_home.file(u"device/file"_s);
  if (::mount("none", trees::raw(mount).constData(), "tmpfs", 0, "size=1m") != 0) QSKIP("mounting is not permitted");
  const QString inside = m_home.file(u"device/mounted/inside"_s);
  bool asked = false;
  QStringList above;
  fs::visitFiles(
      dir, kNever, [&](const QString&, const QString&) { return (asked = true); },
      [&](const QString& path, const fs::Entry&) { above << path; });
  const QStringList below = pathsOf(visit(mount));
  ::umount(trees::raw(mount).constData());
  QCOMPARE(above, QStringList{file});
  QVERIFY(!asked);
  QCOMPARE(below, QStringList{inside});
}

void TestFsVisit::tellsWhatNoTextReaches() {
  const QString dir = m_home.folder(u"no text"_s);
  const QByteArray raw = trees::raw(dir);
  trees::touch(raw + "/caf\xe9");
  trees::touch(raw + "/plain");
  for (const QByteArray& folder : {"/\xff"_ba, "/text"_ba}) {
    QCOMPARE(::mkdir((raw + folder).constData(), 0755), 0);
    QCOMPARE(::mkdir((raw + folder + "/deep").constData(), 0755), 0);
    trees::touch(raw + folder + "/deep/file");
  }
  QMap<QString, bool> reachable;
  for (const Seen& one : visit(dir)) reachable[one.path.mid(dir.size())] = one.entry.reachable;
  const QMap<QString, bool> expected = {
      {u"/caf\ufffd"_s, false}, {u"/plain"_s, true}, {u"/\ufffd/deep/file"_s, false}, {u"/text/deep/file"_s, true}};
  QCOMPARE(reachable, expected);
}

void TestFsVisit::tellsFoldersThatJoinWrongly() {
  const QString dir = m_home.folder(u"joins"_s);
  m_home.file(u"joins/odd\\/in/file"_s);
  m_home.file(u"joins/plain"_s);
  for (const Seen& one : visit(dir)) {
    QCOMPARE(one.path, one.entry.name == u"plain"_s ? dir + u"/plain"_s : dir + u"/odd\\in/file"_s);
    QCOMPARE(one.entry.reachable, fs::exists(one.path));
  }
  const QList<Seen> below = visit(dir + u"/odd\\"_s);
  QCOMPARE(below.size(), 1);
  QVERIFY(!below[0].entry.reachable);
}

void TestFsVisit::keepsBothFormsApart() {
  if (names::systemCodec() != names::Codec::Bytes) QSKIP("the system takes both forms for one name");
  const QByteArray dir = trees::raw(m_home.folder(u"forms"_s));
  for (const QByteArray& name : {"/caf\xc3\xa9"_ba, "/cafe\xcc\x81"_ba}) {
    QCOMPARE(::mkdir((dir + name).constData(), 0755), 0);
    trees::touch(dir + name + "/file");
  }
  const QList<Seen> seen = visit(m_home.path(u"forms"_s));
  QCOMPARE(seen.size(), 2);
  QVERIFY(seen[0].path != seen[1].path);
  for (const Seen& one : seen) {
    fs::Entry entry;
    QVERIFY(one.entry.reachable && fs::stat(one.path, &entry));
    QCOMPARE(entry.inode, one.entry.inode);
  }
}

void TestFsVisit::seesTreesBeyondThePathLimit() {
  constexpr int kLevels = 300;
  const QByteArray name(60, 'd');
  const QString top = m_home.folder(u"deep"_s);
  trees::makeChain(top, kLevels, name, [](int fd, int) {
    trees::touchAt(fd, "file");
    ::mkdirat(fd, "a side", 0755); // on either side of the long name, so that one of them is entered on the way back
    ::mkdirat(fd, "z side", 0755);
    trees::touchAt(fd, "a side/file");
    trees::touchAt(fd, "z side/file");
  });
  const qsizetype before = trees::openDescriptors();
  qsizetype most = 0;
  QSet<QString> paths;
  QVERIFY(fs::visitFiles(top, kNever, {}, [&](const QString& path, const fs::Entry& entry) {
    most = std::max(most, trees::openDescriptors() - before);
    if (entry.reachable) paths.insert(path);
  }));
  QCOMPARE(paths.size(), 3 * (kLevels + 1));
  QVERIFY(most > 0 && most <= static_cast<qsizetype>(DirChain::kMaxOpen));
  for (int level : {0, 63, 64, 65, kLevels}) {
    const QString folder = trees::chainPath(top, level, name);
    for (const QString& file : {u"/file"_s, u"/a side/file"_s, u"/z side/file"_s})
      QVERIFY(paths.contains(folder + file));
  }
  QCOMPARE(visit(trees::chainPath(top, kLevels, name)).size(), 3);
  trees::removeWhole(top);
}

void TestFsVisit::endsWhereAFolderWasMoved() {
  const QString top = m_home.folder(u"moved/top"_s);
  const QString away = m_home.folder(u"moved/away"_s);
  m_home.file(u"moved/outside/file"_s);
  m_home.file(u"moved/away/outside/file"_s);
  trees::makeChain(top, 100, "d", [](int fd, int level) {
    trees::touchAt(fd, level == 100 ? "deepest" : "file");
    ::mkdirat(fd, "side", 0755);
    trees::touchAt(fd, "side/file");
  });
  QStringList paths;
  const bool complete = fs::visitFiles(top, kNever, {}, [&](const QString& path, const fs::Entry& entry) {
    paths << path;
    if (entry.name != u"deepest"_s) return;
    const QByteArray from = trees::raw(trees::chainPath(top, 10, "d"));
    if (::rename(from.constData(), trees::raw(away + u"/d"_s).constData()) != 0) qFatal("cannot move");
  });
  QVERIFY(complete); // nobody cancelled
  QVERIFY(paths.size() >= 101);
  QCOMPARE(QSet<QString>(paths.begin(), paths.end()).size(), paths.size());
  for (const QString& path : paths) QVERIFY(path.startsWith(top + u'/') && !path.contains(u"outside"_s));
}

void TestFsVisit::followsNoLinkThatTookAFoldersPlace() {
  const QString top = m_home.folder(u"swap/top"_s);
  const QString secret = m_home.file(u"swap/outside/secret"_s);
  for (int i = 0; i < 10; ++i) m_home.file(u"swap/top/victim %1/file"_s.arg(i));
  m_home.file(u"swap/top/file"_s);
  QStringList paths;
  const auto swapAll = [&](const QString& path, const fs::Entry&) {
    paths << path;
    if (path != top + u"/file"_s) return;
    for (int i = 0; i < 10; ++i) {
      const QString victim = top + u"/victim %1"_s.arg(i);
      if (::rename(trees::raw(victim).constData(), trees::raw(m_home.path(u"swap/%1"_s.arg(i))).constData()) != 0)
        qFatal("cannot move");
      m_home.link(victim, m_home.path(u"swap/outside"_s));
    }
  };
  QVERIFY(fs::visitFiles(top, kNever, {}, swapAll));
  QCOMPARE(paths, QStringList{top + u"/file"_s});
}

void TestFsVisit::throwsWithoutAVisitor() {
  m_home.file(u"throw/file"_s);
  const auto walk = [&] { fs::visitFiles(m_home.path(u"throw"_s), kNever, {}, {}); };
  const qsizetype before = trees::openDescriptors();
  QVERIFY_THROWS_EXCEPTION(std::bad_function_call, walk());
  QCOMPARE(trees::openDescriptors(), before);
}

void TestFsVisit::lazyVisitTellsTheSame() {
  const QString dir = m_home.folder(u"lazy"_s);
  m_home.file(u"lazy/a"_s, 5000);
  m_home.file(u"lazy/in/caf\u00e9/caf\u00e9"_s, 70'000);
  m_home.file(u"lazy/in/a much longer name than that"_s, 1);
  m_home.link(u"lazy/link"_s, u"a"_s);
  trees::touch(trees::raw(dir) + "/in/no-text-\xff");
  QCOMPARE(::mkfifo(trees::raw(dir + u"/in/pipe"_s).constData(), 0600), 0);
  const QList<Seen> expected = visit(dir);
  qsizetype at = 0;
  QVERIFY(fs::visitFilesLazily(dir, kNever, {}, [&](fs::VisitedFile& file) {
    const Seen& one = expected.at(at++);
    QCOMPARE(file.allocated(), one.entry.allocated);
    QCOMPARE(file.path(), one.path);
    QCOMPARE(file.folder(), one.path.section(u'/', 0, -2));
    QCOMPARE(file.entry().name, one.entry.name);
    QCOMPARE(file.entry().inode, one.entry.inode);
    QCOMPARE(file.entry().size, one.entry.size);
    QCOMPARE(file.entry().modifiedMs, one.entry.modifiedMs);
    QCOMPARE(file.entry().type, one.entry.type);
    QCOMPARE(file.entry().reachable, one.entry.reachable);
  }));
  QCOMPARE(at, expected.size());
  QCOMPARE(at, 5);
}

void TestFsVisit::lazyVisitCanBeAskedInAnyOrder() {
  for (int i = 0; i < 20; ++i) m_home.file(u"any order/%1/file %2"_s.arg(i % 3).arg(i), i * 5000);
  int asked = 0;
  (void)fs::visitFilesLazily(m_home.path(u"any order"_s), kNever, {}, [&](fs::VisitedFile& file) {
    if (++asked % 2 == 0) return; // what nobody asks about leaves nothing behind
    const QString path = asked % 3 == 0 ? file.path() : file.folder() + u'/' + file.entry().name;
    fs::Entry entry;
    QVERIFY2(fs::stat(path, &entry), qPrintable(path));
    QCOMPARE(file.path(), path);
    QCOMPARE(file.entry().inode, entry.inode);
    QCOMPARE(file.allocated(), entry.allocated);
  });
  QCOMPARE(asked, 20);
}

void TestFsVisit::lazyVisitCancelsAndSkipsAlike() {
  m_home.file(u"alike/skipped/file"_s);
  m_home.file(u"alike/file"_s);
  const QString dir = m_home.path(u"alike"_s);
  QStringList calls;
  const auto skip = [&](const QString& parent, const QString& name) {
    calls << parent + u" | "_s + name;
    return true;
  };
  std::atomic<bool> cancel = true;
  const auto take = [&](fs::VisitedFile& file) { calls << file.path(); };
  QVERIFY(!fs::visitFilesLazily(dir, cancel, skip, take));
  QVERIFY(calls.isEmpty());
  cancel = false;
  QVERIFY(fs::visitFilesLazily(dir, cancel, skip, take));
  calls.sort();
  QCOMPARE(calls, (QStringList{dir + u" | skipped"_s, dir + u"/file"_s}));
  QVERIFY_THROWS_EXCEPTION(std::bad_function_call, fs::visitFilesLazily(dir, cancel, {}, {}));
}

QTEST_GUILESS_MAIN(TestFsVisit)
#include "tst_fs_visit.moc"
