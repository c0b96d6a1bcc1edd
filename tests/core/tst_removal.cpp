// What a removal takes and what it leaves, asks and tells, where nobody comes between.
#include "RemovalRecorder.h"
#include "support/FixtureHome.h"

#include <QDir>
#include <QTest>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/resource.h>

#include <linux/fs.h>

using namespace Qt::StringLiterals;
using removal::Kept;
using removal::Options;
using removal::Remover;
using removal::Target;
using removal::Verdict;

namespace {

/// A chain of @p depth folders with a file in the deepest; made step by step, as its path is too long for one call.
void deepChain(const QString& top, const QByteArray& name, int depth) {
  int fd = ::open(QFile::encodeName(top).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  for (int i = 0; i < depth; ++i) {
    if (::mkdirat(fd, name.constData(), 0700) != 0) qFatal("cannot make level %d", i);
    const int below = ::openat(fd, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ::close(fd);
    fd = below;
  }
  ::close(::openat(fd, "leaf", O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
  ::close(fd);
}

bool setImmutable(const QString& path, bool on) {
  const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  int flags = 0;
  bool done = ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
  flags = on ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
  done = done && ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
  ::close(fd);
  return done;
}

} // namespace

class TestRemoval : public QObject {
  Q_OBJECT

 private slots:
  void removesAFile();
  void removesATree();
  void leavesTheFolderOfRemoveChildren();
  void saysNothingOfWhatIsGone();
  void refusesOddTargets();
  void removesALinkAndNotItsTarget();
  void refusesAFolderBehindALink();
  void keepsWhatIsJudged();
  void asksNothingBelowWhatStays();
  void keepsHardLinksApart();
  void removesNamesThatAreNoText();
  void removesBeyondThePathLimit();
  void removesAWideFolderCompletely();
  void seesBothSpellings();
  void tellsUnreadableFolders();
  void tellsImmutableFiles();
  void touchesNothingInADryRun();
  void countsWhatWouldStay();
  void boundsItsDescriptors();

 private:
  FixtureHome m_home;
};

void TestRemoval::removesAFile() {
  const QString path = m_home.file(u"a/file"_s);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  remover.remove(at(path));
  QVERIFY(!isThere(path));
  QVERIFY(isThere(m_home.path(u"a"_s)));
  QCOMPARE(seen.asked, QStringList{path});
  QVERIFY(seen.busy.isEmpty() && seen.kept.isEmpty());
  QCOMPARE(remover.removedNodes(), 1);
}

void TestRemoval::removesATree() {
  const QString top = m_home.folder(u"tree"_s);
  for (int i = 0; i < 30; ++i) m_home.file(u"tree/%1/%2/file"_s.arg(i % 3).arg(i));
  m_home.folder(u"tree/empty/emptier"_s);
  m_home.file(u"tree/.hidden"_s);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  remover.remove(at(top));
  QVERIFY(!isThere(top));
  QCOMPARE(remover.removedNodes(), 1 + 3 + 30 + 30 + 2 + 1);
  QCOMPARE(seen.asked.size(), 67);
  QCOMPARE(seen.asked.first(), top);
  QVERIFY(seen.busy.isEmpty() && seen.kept.isEmpty());
}

void TestRemoval::leavesTheFolderOfRemoveChildren() {
  const QString top = m_home.folder(u"cache"_s);
  m_home.file(u"cache/a/b"_s);
  m_home.file(u"cache/c"_s);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  remover.removeChildren(at(top));
  QVERIFY(isThere(top));
  QVERIFY(QDir(top).isEmpty());
  QVERIFY(!seen.asked.contains(top));
  QCOMPARE(remover.removedNodes(), 3);
}

void TestRemoval::saysNothingOfWhatIsGone() {
  const QString file = m_home.file(u"gone/file"_s);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  remover.remove(at(m_home.path(u"gone/not there"_s)));
  remover.remove(at(m_home.path(u"no such folder/not there"_s)));
  remover.remove(at(file + u"/below a file"_s));
  remover.removeChildren(at(m_home.path(u"no such folder"_s)));
  QVERIFY(seen.asked.isEmpty() && seen.busy.isEmpty() && seen.kept.isEmpty());
  QVERIFY(isThere(file));
}

void TestRemoval::refusesOddTargets() {
  const QString file = m_home.file(u"odd/file"_s);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  for (const QString& path : {u""_s, u"/"_s, u"odd/file"_s, m_home.path(u"odd"_s) + u"/."_s,
                              m_home.path(u"odd"_s) + u"/.."_s, m_home.path(u"odd"_s) + u"/"_s})
    remover.remove(at(path));
  QCOMPARE(seen.busy.size(), 6);
  for (const removal::Stay& stay : std::as_const(seen.busy)) QCOMPARE(stay.error, EINVAL);
  QVERIFY(isThere(file));
  // Emptying what is no folder.
  seen.clear();
  remover.removeChildren(at(file));
  QCOMPARE(seen.busyPaths(), QStringList{file});
  QVERIFY(isThere(file));
}

void TestRemoval::removesALinkAndNotItsTarget() {
  const QString precious = m_home.file(u"precious/file"_s);
  const QString folder = m_home.folder(u"links"_s);
  m_home.link(u"links/to folder"_s, m_home.path(u"precious"_s));
  m_home.link(u"links/to file"_s, precious);
  m_home.link(u"links/dangling"_s, u"/no/such/file"_s);
  m_home.link(u"links/loop"_s, u"loop"_s);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  remover.remove(at(folder + u"/to folder"_s));
  QVERIFY(!isThere(folder + u"/to folder"_s));
  m_home.link(u"links/to folder"_s, m_home.path(u"precious"_s));
  remover.remove(at(folder));
  QVERIFY(!isThere(folder));
  QVERIFY(isThere(precious));
  QVERIFY(seen.busy.isEmpty());
}

void TestRemoval::refusesAFolderBehindALink() {
  const QString file = m_home.file(u"real/in/file"_s);
  m_home.link(u"alias"_s, m_home.path(u"real"_s));
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  remover.remove(at(m_home.path(u"alias/in/file"_s)));
  remover.removeChildren(at(m_home.path(u"alias"_s)));
  QVERIFY(isThere(file));
  QCOMPARE(seen.busy.size(), 2);
  QVERIFY(seen.busy.at(0).error == ELOOP || seen.busy.at(0).error == ENOTDIR);
  // With the real path beside it, it goes, and is told by the user's spelling.
  seen.clear();
  remover.remove({m_home.path(u"alias/in"_s), m_home.path(u"real/in"_s)});
  QVERIFY(!isThere(file));
  QCOMPARE(seen.asked, (QStringList{m_home.path(u"alias/in"_s), m_home.path(u"alias/in/file"_s)}));
}

void TestRemoval::keepsWhatIsJudged() {
  const QString top = m_home.folder(u"mixed"_s);
  const QList<std::pair<QString, std::pair<Verdict, Kept>>> table = {
      {u"a/excluded"_s, {Verdict::KeepExcluded, Kept::Excluded}},
      {u"b/data"_s, {Verdict::KeepProtectedData, Kept::ProtectedData}},
      {u"c/place"_s, {Verdict::KeepProtectedLocation, Kept::ProtectedLocation}},
      {u"d/e/open"_s, {Verdict::KeepOpen, Kept::Open}},
  };
  RemovalRecorder seen;
  QList<std::pair<QString, Kept>> expected;
  for (const auto& [name, what] : table) {
    const QString path = m_home.file(u"mixed/"_s + name);
    m_home.file(u"mixed/"_s + name + u" goes"_s);
    seen.verdicts.insert(path, what.first);
    expected.append({path, what.second});
  }
  seen.verdicts.insert(m_home.path(u"mixed/d"_s), Verdict::NotWhole);
  m_home.file(u"mixed/f/file"_s);
  Remover({}, seen.handlers()).remove(at(top));
  std::sort(seen.kept.begin(), seen.kept.end());
  QCOMPARE(seen.kept, expected);
  QVERIFY(seen.busy.isEmpty());
  for (const auto& [path, why] : expected) {
    QVERIFY(isThere(path));
    QVERIFY(!isThere(path + u" goes"_s));
  }
  QVERIFY(!isThere(m_home.path(u"mixed/f"_s)));
}

void TestRemoval::asksNothingBelowWhatStays() {
  const QString kept = m_home.folder(u"ask/kept"_s);
  m_home.file(u"ask/kept/below/file"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(kept, Verdict::KeepExcluded);
  Remover({}, seen.handlers()).remove(at(m_home.path(u"ask"_s)));
  QCOMPARE(seen.asked, (QStringList{m_home.path(u"ask"_s), kept}));
  QVERIFY(isThere(kept + u"/below/file"_s));
  // A target that must stay is all that is asked.
  seen.clear();
  Remover({}, seen.handlers()).remove(at(kept));
  QCOMPARE(seen.asked, QStringList{kept});
  QCOMPARE(seen.keptPaths(), QStringList{kept});
}

void TestRemoval::keepsHardLinksApart() {
  const QString one = m_home.file(u"hard/one"_s);
  const QString other = m_home.path(u"other link"_s);
  QCOMPARE(::link(QFile::encodeName(one).constData(), QFile::encodeName(other).constData()), 0);
  RemovalRecorder seen;
  Remover({}, seen.handlers()).remove(at(m_home.path(u"hard"_s)));
  QVERIFY(!isThere(one));
  QVERIFY(isThere(other));
}

void TestRemoval::removesNamesThatAreNoText() {
  const QString top = m_home.folder(u"raw"_s);
  const QByteArrayList odd = {"\xff\xfe", "caf\xe9", "nul\x01", "line\nbreak", "\xc3\xa9", "e\xcc\x81", "a\\b", "%41"};
  for (const QByteArray& name : odd) rawFile(top, name);
  const QByteArray folder = QFile::encodeName(top) + "/dir\xff";
  QCOMPARE(::mkdir(folder.constData(), 0700), 0);
  ::close(::open((folder + "/plain").constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
  QHash<QByteArray, bool> isText;
  removal::Handlers handlers{.judge = [&](const removal::Node& node) {
    isText.insert(node.realRaw.mid(QFile::encodeName(top).size() + 1), node.isText);
    return Verdict::Remove;
  }};
  Remover({}, handlers).removeChildren(at(top));
  QVERIFY(QDir(top).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot));
  QCOMPARE(isText.size(), odd.size() + 2);
  QCOMPARE(isText.value("\xff\xfe"), false);
  QCOMPARE(isText.value("caf\xe9"), false);
  QCOMPARE(isText.value("line\nbreak"), true);
  QCOMPARE(isText.value("e\xcc\x81"), true);
  QCOMPARE(isText.value("dir\xff/plain"), false);
}

void TestRemoval::removesBeyondThePathLimit() {
  const QString top = m_home.folder(u"deep"_s);
  deepChain(top, QByteArray(200, 'd'), 70);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  remover.remove(at(top));
  QVERIFY(!isThere(top));
  QCOMPARE(remover.removedNodes(), 72);
  QVERIFY(seen.busy.isEmpty());
}

void TestRemoval::removesAWideFolderCompletely() {
  const QString top = m_home.folder(u"wide"_s);
  for (int i = 0; i < 10'000; ++i) rawFile(top, "file " + QByteArray::number(i));
  for (int i = 0; i < 500; ++i) QDir(top).mkdir(u"folder %1"_s.arg(i));
  RemovalRecorder seen;
  const QString kept = top + u"/file 77"_s;
  seen.verdicts.insert(kept, Verdict::KeepOpen);
  Remover remover({}, seen.handlers());
  remover.remove(at(top));
  QCOMPARE(QDir(top).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList{u"file 77"_s});
  QCOMPARE(seen.kept.size(), 1);
  QCOMPARE(seen.asked.size(), 10'501);
  seen.verdicts.clear();
  remover.remove(at(top));
  QVERIFY(!isThere(top));
}

void TestRemoval::seesBothSpellings() {
  m_home.file(u"spelling/real/x/y"_s);
  const Target target{m_home.path(u"spelling/user/x"_s), m_home.path(u"spelling/real/x"_s)};
  QList<removal::Node> nodes;
  removal::Handlers handlers{.judge = [&](const removal::Node& node) {
    nodes.append(node);
    return Verdict::Remove;
  }};
  Remover({}, handlers).remove(target);
  QCOMPARE(nodes.size(), 2);
  QCOMPARE(nodes.at(0).path, target.path);
  QCOMPARE(nodes.at(0).realPath, target.realPath);
  QVERIFY(nodes.at(0).isDir);
  QCOMPARE(nodes.at(1).path, target.path + u"/y"_s);
  QCOMPARE(nodes.at(1).realRaw, QFile::encodeName(target.realPath + u"/y"_s));
  QVERIFY(!nodes.at(1).isDir && nodes.at(1).isText);
}

void TestRemoval::tellsUnreadableFolders() {
  const QString top = m_home.folder(u"shut"_s);
  m_home.file(u"shut/closed/file"_s);
  m_home.file(u"shut/fixed/file"_s);
  m_home.file(u"shut/open/file"_s);
  giveToPlainUser(top);
  ::chmod(QFile::encodeName(top + u"/closed"_s).constData(), 0);
  ::chmod(QFile::encodeName(top + u"/fixed"_s).constData(), 0500);
  const auto child = [&] {
    for (const bool dryRun : {true, false}) {
      RemovalRecorder seen;
      Remover remover({.dryRun = dryRun}, seen.handlers());
      remover.removeChildren(at(top));
      if (seen.busyPaths() != QStringList{top + u"/closed"_s, top + u"/fixed/file"_s}) return 1;
      for (const removal::Stay& stay : std::as_const(seen.busy))
        if (stay.error != EACCES || stay.topRaw != QFile::encodeName(top)) return 2;
      if (!seen.kept.isEmpty()) return 3;
      if (isThere(top + u"/open"_s) != dryRun) return 4;
      if (remover.wouldStay().files != (dryRun ? 1 : 0)) return 5;
    }
    return 0;
  };
  const int result = asPlainUser(child);
  struct stat status;
  QCOMPARE(::stat(QFile::encodeName(top + u"/closed"_s).constData(), &status), 0);
  QCOMPARE(status.st_mode & 0777u, 0u); // modes are never changed
  ::chmod(QFile::encodeName(top + u"/closed"_s).constData(), 0700);
  ::chmod(QFile::encodeName(top + u"/fixed"_s).constData(), 0700);
  QCOMPARE(result, 0);
}

void TestRemoval::tellsImmutableFiles() {
  const QString top = m_home.folder(u"immutable"_s);
  const QString file = m_home.file(u"immutable/a/file"_s);
  m_home.file(u"immutable/a/other"_s);
  if (!setImmutable(file, true)) QSKIP("no permission to make a file immutable here");
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  remover.remove(at(top));
  removal::Stay stay = seen.busy.value(0);
  const auto again = remover.retry(&stay);
  setImmutable(file, false);
  QVERIFY(isThere(file));
  QVERIFY(!isThere(top + u"/a/other"_s));
  QCOMPARE(seen.busyPaths(), QStringList{file});
  QCOMPARE(seen.busy.first().error, EPERM);
  QCOMPARE(seen.busy.first().topRaw, QFile::encodeName(m_home.path()));
  QVERIFY(again == Remover::Retry::Stayed);
  QVERIFY(remover.retry(&stay) == Remover::Retry::Gone);
  QVERIFY(!isThere(top)); // its emptied folders went with it
  QVERIFY(isThere(m_home.path()));
}

void TestRemoval::touchesNothingInADryRun() {
  const QString top = m_home.folder(u"dry"_s);
  m_home.file(u"dry/a/file"_s);
  const QString kept = m_home.file(u"dry/a/kept"_s);
  const Pause pause([](const removal::Node&) { QFAIL("nothing is about to be removed"); });
  for (const bool toTrash : {false, true}) {
    RemovalRecorder seen;
    seen.verdicts.insert(kept, Verdict::KeepOpen);
    Remover remover({.toTrash = toTrash, .dryRun = true}, seen.handlers());
    remover.remove(at(top));
    QVERIFY(isThere(top + u"/a/file"_s));
    QCOMPARE(seen.keptPaths(), QStringList{kept});
    QVERIFY(seen.asked.contains(top + u"/a/file"_s));
    QCOMPARE(remover.wouldStay().files, 1);
    QCOMPARE(remover.removedNodes(), 0);
    QVERIFY(!isThere(m_home.path(u".local"_s)));
  }
}

void TestRemoval::countsWhatWouldStay() {
  m_home.file(u"count/kept/one"_s, 10'000);
  m_home.file(u"count/kept/below/two"_s, 5'000);
  m_home.link(u"count/kept/link"_s, u"one"_s);
  const QByteArray kept = QFile::encodeName(m_home.path(u"count/kept"_s));
  QCOMPARE(::link((kept + "/one").constData(), (kept + "/again").constData()), 0);
  QCOMPARE(::link((kept + "/one").constData(), (kept + "/../kept too").constData()), 0);
  m_home.file(u"count/goes"_s, 70'000);
  RemovalRecorder seen;
  seen.verdicts.insert(m_home.path(u"count/kept"_s), Verdict::KeepExcluded);
  seen.verdicts.insert(m_home.path(u"count/kept too"_s), Verdict::KeepOpen);
  Remover remover({.dryRun = true}, seen.handlers());
  remover.remove(at(m_home.path(u"count"_s)));
  const std::atomic<bool> go{false};
  QCOMPARE(remover.wouldStay(), (fs::Totals{.bytes = 12'288 + 8'192, .files = 3, .newestMs = 0}));
  QCOMPARE(remover.wouldStay().bytes, fs::measure(m_home.path(u"count/kept"_s), go).bytes);
  // A second target counts the same file afresh, as measuring each item does.
  remover.remove(at(m_home.path(u"count/kept too"_s)));
  QCOMPARE(remover.wouldStay().files, 4);
}

void TestRemoval::boundsItsDescriptors() {
  const QString top = m_home.folder(u"levels"_s);
  deepChain(top, "d", 300);
  rlimit before{};
  QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
  rlimit small = before;
  small.rlim_cur = 90;
  QCOMPARE(::setrlimit(RLIMIT_NOFILE, &small), 0);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  remover.remove(at(top));
  ::setrlimit(RLIMIT_NOFILE, &before);
  QVERIFY(!isThere(top));
  QCOMPARE(remover.removedNodes(), 302);
}

QTEST_GUILESS_MAIN(TestRemoval)
#include "tst_removal.moc"
