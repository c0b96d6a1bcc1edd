#include "RemovalRecorder.h"
#include "support/FixtureHome.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using removal::Kept;
using removal::Remover;
using removal::Target;
using removal::Verdict;

class TestRemovalTrash : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void movesAFolderWhole();
  void movesEachChild();
  void movesALinkAsAFile();
  void emptiesAFolderAroundWhatStays();
  void opensAFolderThatMustNotLeaveWhole();
  void keepsATargetThatIsJudged();
  void asksTwiceAtTheMost();
  void tellsOnce();
  void opensWhatNoSurveySaw();
  void opensAFolderThatDoesNotMove();
  void neverDeletesWhatDoesNotMove();
  void tellsUnreadableFolders();
  void retriesByMoving();
  void surveysDeepAndNamelessTrees();
  void leavesAFolderThatBecameALink();
  void dryRunTellsTheSame();
  void tellsWhatMoved();
  void leavesAFolderInOnePieceOrAsItIs();

 private:
  [[nodiscard]] QString trash(const QString& name = {}) const {
    return m_home.path(u".local/share/Trash/files/"_s + name);
  }

  FixtureHome m_home;
};

void TestRemovalTrash::cleanup() { wipe(m_home.path()); }

void TestRemovalTrash::movesAFolderWhole() {
  m_home.file(u"in/tree/a/file"_s);
  m_home.file(u"in/tree/b"_s);
  RemovalRecorder seen;
  Remover remover({.toTrash = true}, seen.handlers());
  remover.remove(at(m_home.path(u"in/tree"_s)));
  QVERIFY(namesIn(m_home.path(u"in"_s)).isEmpty());
  QCOMPARE(namesIn(trash()), QStringList{u"tree"_s});
  QVERIFY(isThere(trash(u"tree/a/file"_s)) && isThere(trash(u"tree/b"_s)));
  QCOMPARE(remover.removedNodes(), 1);
  QCOMPARE(seen.asked.size(), 4); // every node, though one moves
}

void TestRemovalTrash::movesEachChild() {
  m_home.file(u"cache/a/file"_s);
  m_home.file(u"cache/b"_s);
  m_home.file(u"cache/c"_s);
  RemovalRecorder seen;
  Remover remover({.toTrash = true}, seen.handlers());
  remover.removeChildren(at(m_home.path(u"cache"_s)));
  QVERIFY(isThere(m_home.path(u"cache"_s)) && namesIn(m_home.path(u"cache"_s)).isEmpty());
  QCOMPARE(namesIn(trash()), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
  QVERIFY(!seen.asked.contains(m_home.path(u"cache"_s)));
}

void TestRemovalTrash::movesALinkAsAFile() {
  const QString precious = m_home.file(u"precious/file"_s);
  const QString link = m_home.link(u"in/link"_s, m_home.path(u"precious"_s));
  const QString dangling = m_home.link(u"in/dangling"_s, u"/no/such"_s);
  RemovalRecorder seen;
  Remover remover({.toTrash = true}, seen.handlers());
  remover.remove(at(link));
  remover.remove(at(dangling));
  QVERIFY(isThere(precious) && !isThere(link) && !isThere(dangling));
  QCOMPARE(namesIn(trash()), (QStringList{u"dangling"_s, u"link"_s}));
  QVERIFY(QFileInfo(trash(u"link"_s)).isSymLink());
}

void TestRemovalTrash::emptiesAFolderAroundWhatStays() {
  const QString kept = m_home.file(u"in/tree/a/b/kept"_s);
  m_home.file(u"in/tree/a/b/goes"_s);
  m_home.file(u"in/tree/a/clean/deep/file"_s);
  m_home.file(u"in/tree/other/file"_s);
  m_home.file(u"in/tree/file"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(kept, Verdict::KeepExcluded);
  Remover remover({.toTrash = true}, seen.handlers());
  remover.remove(at(m_home.path(u"in/tree"_s)));
  QCOMPARE(namesIn(trash()), (QStringList{u"clean"_s, u"file"_s, u"goes"_s, u"other"_s}));
  QVERIFY(isThere(trash(u"clean/deep/file"_s)));
  QVERIFY(isThere(kept));
  QCOMPARE(namesIn(m_home.path(u"in/tree"_s)), QStringList{u"a"_s});
  QCOMPARE(namesIn(m_home.path(u"in/tree/a"_s)), QStringList{u"b"_s});
  QCOMPARE(namesIn(m_home.path(u"in/tree/a/b"_s)), QStringList{u"kept"_s});
  QCOMPARE(seen.keptPaths(), QStringList{kept});
  QVERIFY(seen.busy.isEmpty());
}

void TestRemovalTrash::opensAFolderThatMustNotLeaveWhole() {
  m_home.file(u"in/tree/a/file"_s);
  m_home.file(u"in/tree/b/file"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(m_home.path(u"in/tree/a"_s), Verdict::NotWhole);
  Remover remover({.toTrash = true}, seen.handlers());
  remover.remove(at(m_home.path(u"in/tree"_s)));
  // The emptied folders go by themselves.
  QCOMPARE(namesIn(trash()), (QStringList{u"b"_s, u"file"_s}));
  QVERIFY(!isThere(m_home.path(u"in/tree"_s)));
  seen.clear();
  m_home.file(u"in/tree/c/file"_s);
  seen.verdicts = {{m_home.path(u"in/tree"_s), Verdict::NotWhole}};
  remover.remove(at(m_home.path(u"in/tree"_s)));
  QVERIFY(isThere(trash(u"c/file"_s)) && !isThere(m_home.path(u"in/tree"_s)));
}

void TestRemovalTrash::keepsATargetThatIsJudged() {
  const QString file = m_home.file(u"in/file"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(file, Verdict::KeepOpen);
  seen.verdicts.insert(m_home.path(u"in"_s), Verdict::KeepProtectedData);
  Remover remover({.toTrash = true}, seen.handlers());
  remover.remove(at(file));
  remover.remove(at(m_home.path(u"in"_s)));
  QCOMPARE(seen.kept.size(), 2);
  QVERIFY(seen.kept.at(0).second == Kept::Open && seen.kept.at(1).second == Kept::ProtectedData);
  QVERIFY(isThere(file) && namesIn(trash()).isEmpty());
}

void TestRemovalTrash::asksTwiceAtTheMost() {
  // In a tree of folders that have to be opened the questions grow with the nodes, not with their depth.
  QString folder = u"in/tree"_s;
  RemovalRecorder seen;
  int nodes = 1;
  for (int level = 0; level < 40; ++level) {
    seen.verdicts.insert(m_home.file(folder + u"/kept"_s, 1), Verdict::KeepOpen);
    m_home.file(folder + u"/goes"_s, 1);
    m_home.file(folder + u"/clean/file"_s, 1);
    nodes += 5;
    folder += u"/sub"_s;
    m_home.folder(folder);
  }
  Remover({.toTrash = true}, seen.handlers()).remove(at(m_home.path(u"in/tree"_s)));
  QCOMPARE(seen.kept.size(), 40);
  QVERIFY2(seen.asked.size() <= 2 * nodes, qPrintable(QString::number(seen.asked.size())));
  for (const QString& path : std::as_const(seen.asked)) QVERIFY(seen.asked.count(path) <= 2);
}

void TestRemovalTrash::tellsOnce() {
  const QString one = m_home.folder(u"cache/a/one"_s);
  m_home.file(u"cache/a/one/below"_s);
  const QString two = m_home.file(u"cache/two"_s);
  const QString three = m_home.folder(u"cache/three"_s);
  RemovalRecorder seen;
  seen.verdicts = {{one, Verdict::KeepProtectedLocation}, {two, Verdict::KeepOpen}, {three, Verdict::KeepExcluded}};
  Remover({.toTrash = true}, seen.handlers()).removeChildren(at(m_home.path(u"cache"_s)));
  QCOMPARE(seen.keptPaths(), (QStringList{one, three, two}));
  QVERIFY(isThere(one + u"/below"_s) && isThere(two) && isThere(three));
}

void TestRemovalTrash::opensWhatNoSurveySaw() {
  // A folder that comes while the item is being emptied may hold what must stay.
  const QString kept = m_home.file(u"in/tree/a/kept"_s);
  const QString late = m_home.path(u"in/tree/a/late/deep/kept"_s);
  m_home.file(u"in/tree/a/known/file"_s);
  bool came = false;
  const Pause pause([&](const removal::Node& node) {
    if (node.path != m_home.path(u"in/tree/a"_s) || came) return;
    came = true;
    m_home.file(late);
    m_home.file(u"in/tree/a/late/deep/goes"_s);
  });
  RemovalRecorder seen;
  seen.verdicts = {{kept, Verdict::KeepOpen}, {late, Verdict::KeepExcluded}};
  Remover({.toTrash = true}, seen.handlers()).remove(at(m_home.path(u"in/tree"_s)));
  QVERIFY(came && isThere(late) && isThere(kept));
  QCOMPARE(seen.keptPaths(), (QStringList{kept, late}));
  QCOMPARE(namesIn(trash()), (QStringList{u"goes"_s, u"known"_s}));
}

void TestRemovalTrash::opensAFolderThatDoesNotMove() {
  if (::geteuid() != 0) QSKIP("needs a folder of another user");
  // A folder that isn't the user's to write can't get another parent; what the folder above holds besides can go.
  m_home.file(u"in/tree/fixed/sub/file"_s);
  m_home.file(u"in/tree/file"_s);
  const QString fixed = m_home.path(u"in/tree/fixed"_s);
  m_home.folder(u".local/share"_s);
  giveToPlainUser(m_home.path());
  QFile(fixed).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  QCOMPARE(::chown(QFile::encodeName(fixed).constData(), 0, 65534), 0);
  QFile(fixed).setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup);
  const int result = asPlainUser([&] {
    RemovalRecorder seen;
    Remover remover({.toTrash = true}, seen.handlers());
    remover.remove(at(m_home.path(u"in/tree"_s)));
    return seen.busyPaths().isEmpty() ? 0 : 1; // the folder above can move, with it
  });
  QCOMPARE(result, 0);
  QVERIFY(isThere(trash(u"tree/fixed/sub/file"_s)));
  // Now the one that can't move is the item itself.
  m_home.file(u"in2/fixed/sub/file"_s);
  giveToPlainUser(m_home.path(u"in2"_s));
  const QString item = m_home.path(u"in2/fixed"_s);
  QCOMPARE(::chown(QFile::encodeName(item).constData(), 0, 65534), 0);
  QFile(item).setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup);
  const int second = asPlainUser([&] {
    RemovalRecorder seen;
    Remover remover({.toTrash = true}, seen.handlers());
    remover.remove(at(item));
    // Its own folder can't leave it; the file in there can.
    if (seen.busyPaths() != QStringList{item + u"/sub"_s}) return 1;
    return seen.busy.first().error == EACCES ? 0 : 2;
  });
  QCOMPARE(second, 0);
  QVERIFY(isThere(trash(u"file"_s)) && isThere(item + u"/sub"_s));
}

void TestRemovalTrash::neverDeletesWhatDoesNotMove() {
  const QString file = m_home.file(u"in/fixed/file"_s);
  const QString beside = m_home.file(u"in/beside"_s);
  m_home.folder(u".local/share"_s);
  giveToPlainUser(m_home.path());
  QFile(m_home.path(u"in/fixed"_s)).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  const int result = asPlainUser([&] {
    RemovalRecorder seen;
    Remover remover({.toTrash = true}, seen.handlers());
    remover.remove(at(file));
    if (seen.busyPaths() != QStringList{file} || seen.busy.first().error != EACCES) return 1;
    removal::Stay stay = seen.busy.first();
    if (remover.retry(&stay) != Remover::Retry::Stayed || stay.error != EACCES) return 2;
    remover.remove(at(beside));
    return isThere(beside) ? 3 : 0;
  });
  QCOMPARE(result, 0);
  QVERIFY(isThere(file));
  QCOMPARE(namesIn(m_home.path(u".local/share/Trash/info"_s)), QStringList{u"beside.trashinfo"_s});
}

void TestRemovalTrash::tellsUnreadableFolders() {
  // What can't be looked into must not leave as a part of something.
  const QString closed = m_home.folder(u"in/tree/a/closed"_s);
  m_home.file(u"in/tree/a/closed/file"_s);
  m_home.file(u"in/tree/b/file"_s);
  m_home.folder(u".local/share"_s);
  giveToPlainUser(m_home.path());
  ::chmod(QFile::encodeName(closed).constData(), 0);
  const int result = asPlainUser([&] {
    RemovalRecorder seen;
    Remover remover({.toTrash = true}, seen.handlers());
    remover.remove(at(m_home.path(u"in/tree"_s)));
    if (seen.busyPaths() != QStringList{closed} || seen.busy.first().error != EACCES) return 1;
    return isThere(closed) && isThere(trash(u"b/file"_s)) ? 0 : 2;
  });
  ::chmod(QFile::encodeName(closed).constData(), 0700);
  QCOMPARE(result, 0);
}

void TestRemovalTrash::retriesByMoving() {
  const QString file = m_home.file(u"in/a/file"_s);
  RemovalRecorder seen;
  Remover remover({.toTrash = true}, seen.handlers());
  removal::Stay stay{
      {file, file, QFile::encodeName(file), false, true}, QFile::encodeName(m_home.path(u"in"_s)), EBUSY};
  QVERIFY(remover.retry(&stay) == Remover::Retry::Gone);
  QCOMPARE(namesIn(trash()), QStringList{u"file"_s});
  QVERIFY(!isThere(m_home.path(u"in/a"_s)) && isThere(m_home.path(u"in"_s)));
}

void TestRemovalTrash::surveysDeepAndNamelessTrees() {
  const QByteArray top = QFile::encodeName(m_home.folder(u"in/tree"_s));
  const QByteArray odd = top + "/dir\xff";
  QCOMPARE(::mkdir(odd.constData(), 0700), 0);
  QCOMPARE(::symlink("x", (odd + "/\xfe").constData()), 0);
  QString deep = u"in/tree"_s;
  for (int i = 0; i < 100; ++i) deep += u"/d"_s;
  const QString kept = m_home.file(deep + u"/kept"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(kept, Verdict::KeepOpen);
  Remover({.toTrash = true}, seen.handlers()).remove(at(m_home.path(u"in/tree"_s)));
  QVERIFY(isThere(kept));
  QCOMPARE(seen.keptPaths(), QStringList{kept});
  QCOMPARE(::access(odd.constData(), F_OK), -1);
  QCOMPARE(::access((QFile::encodeName(trash()) + "/dir\xff").constData(), F_OK), 0);
}

void TestRemovalTrash::leavesAFolderThatBecameALink() {
  // Whatever stands there when its turn comes is moved as what it is, and nothing behind it.
  const QString precious = m_home.file(u"outside/precious"_s);
  const QString tree = m_home.folder(u"in/tree"_s);
  m_home.file(u"in/tree/file"_s);
  const Pause pause([&](const removal::Node& node) {
    if (node.path != tree) return;
    QDir().rename(tree, m_home.path(u"was tree"_s));
    m_home.link(u"in/tree"_s, m_home.path(u"outside"_s));
  });
  RemovalRecorder seen;
  Remover({.toTrash = true}, seen.handlers()).remove(at(tree));
  QVERIFY(isThere(precious) && isThere(m_home.path(u"was tree/file"_s)));
  QVERIFY(QFileInfo(trash(u"tree"_s)).isSymLink());
}

void TestRemovalTrash::dryRunTellsTheSame() {
  RemovalRecorder seen;
  for (int i = 0; i < 5; ++i) {
    m_home.file(u"in/tree/%1/file"_s.arg(i));
    seen.verdicts.insert(m_home.file(u"in/tree/%1/kept"_s.arg(i), 100), Verdict::KeepOpen);
  }
  Remover dry({.toTrash = true, .dryRun = true}, seen.handlers());
  dry.remove(at(m_home.path(u"in/tree"_s)));
  const QStringList told = seen.keptPaths();
  QCOMPARE(told.size(), 5);
  QCOMPARE(dry.wouldStay(), (fs::Totals{.bytes = 5 * 4096, .files = 5, .newestMs = 0}));
  QVERIFY(!isThere(trash()));
  seen.clear();
  Remover({.toTrash = true}, seen.handlers()).remove(at(m_home.path(u"in/tree"_s)));
  QCOMPARE(seen.keptPaths(), told);
}

void TestRemovalTrash::tellsWhatMoved() {
  const QString kept = m_home.file(u"in/tree/a/kept"_s);
  const QString goes = m_home.file(u"in/tree/a/goes"_s);
  m_home.file(u"in/tree/whole/file"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(kept, Verdict::KeepOpen);
  QMap<QString, QString> moved;
  removal::Handlers handlers = seen.handlers();
  handlers.moved = [&](const removal::Node& node, const ::trash::Outcome& where) {
    moved.insert(node.path, where.trashedPath);
    QVERIFY(isThere(where.trashedPath) && isThere(where.infoPath));
  };
  Remover({.toTrash = true}, handlers).remove(at(m_home.path(u"in/tree"_s)));
  const QMap<QString, QString> expected{{goes, trash(u"goes"_s)}, {m_home.path(u"in/tree/whole"_s), trash(u"whole"_s)}};
  QCOMPARE(moved, expected);
}

void TestRemovalTrash::leavesAFolderInOnePieceOrAsItIs() {
  const QString tree = m_home.path(u"in/tree"_s);
  const QString deep = m_home.file(u"in/tree/a/b/file"_s);
  m_home.file(u"in/tree/c/file"_s);
  RemovalRecorder seen;
  Remover remover({.toTrash = true, .wholeOnly = true}, seen.handlers());
  const QList<std::pair<QString, Verdict>> reasons{
      {deep, Verdict::KeepOpen}, {m_home.path(u"in/tree/a"_s), Verdict::NotWhole}, {tree, Verdict::NotWhole}};
  for (const auto& [path, verdict] : reasons) {
    seen.clear();
    seen.verdicts = {{path, verdict}};
    remover.remove(at(tree));
    QCOMPARE(seen.kept.size(), 1);
    QVERIFY(seen.kept.first().first == tree && seen.kept.first().second == Kept::NotWhole);
    QVERIFY(isThere(deep) && isThere(m_home.path(u"in/tree/c/file"_s)) && namesIn(trash()).isEmpty());
  }
  seen.verdicts = {};
  remover.remove(at(tree));
  QCOMPARE(namesIn(trash()), QStringList{u"tree"_s});
  QVERIFY(isThere(trash(u"tree/a/b/file"_s)) && isThere(trash(u"tree/c/file"_s)));
}

QTEST_GUILESS_MAIN(TestRemovalTrash)
#include "tst_removal_trash.moc"
