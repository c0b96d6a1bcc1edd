#include "core/fs.h"

#include "core/DirChain.h"
#include "core/names.h"
#include "support/FixtureHome.h"
#include "support/plainwalk.h"
#include "support/trees.h"

#include <QDateTime>
#include <QTest>

#include <sys/mount.h>
#include <sys/stat.h>

#include <thread>

using namespace Qt::StringLiterals;
using plainwalk::Told;

namespace {

const std::atomic<bool> kNever = false;

qint64 blocksOf(const QString& path) {
  struct stat status {};
  if (::lstat(trees::raw(path).constData(), &status) != 0) qFatal("no %s", qPrintable(path));
  return qint64{status.st_blocks} * 512;
}

void hardLink(const QString& from, const QString& to) {
  if (::link(trees::raw(from).constData(), trees::raw(to).constData()) != 0) qFatal("cannot link %s", qPrintable(to));
}

} // namespace

class TestFsMeasure : public QObject {
  Q_OBJECT

 private slots:
  void givesZerosForWhatIsMissing();
  void measuresAPlainFile();
  void measuresALinkAsOneFileOfNothing_data();
  void measuresALinkAsOneFileOfNothing();
  void countsFilesAndNotFolders();
  void countsHardLinksOnce();
  void countsHardLinksOnceInEachCall();
  void measuresASparseFileAsItsBlocks();
  void takesTheLatestTime();
  void tellsEvery400thFile_data();
  void tellsEvery400thFile();
  void tellsSumsAndFolder();
  void leavesOutExcludedFolders_data();
  void leavesOutExcludedFolders();
  void returnsNothingWhereItWasCancelledBefore();
  void endsBeforeTheNextFolderOnceCancelled();
  void staysOnItsDevice();
  void agreesWithAPlainWalk();
  void seesTreesBeyondThePathLimit();
  void seesNamesOfBothForms();
  void seesNamesThatAreNoText();
  void measuresAnEntryByItsBytes();
  void endsWhereAFolderWasMoved();
  void runsOnManyThreads();

 private:
  FixtureHome m_home;
};

void TestFsMeasure::givesZerosForWhatIsMissing() {
  QCOMPARE(fs::measure(m_home.path(u"missing"_s), kNever), fs::Totals{});
  QCOMPARE(fs::measure(QString(), kNever), fs::Totals{});
  QCOMPARE(fs::measure(m_home.folder(u"empty"_s), kNever), fs::Totals{});
}

void TestFsMeasure::measuresAPlainFile() {
  const QString path = m_home.file(u"plain"_s, 12'000);
  FixtureHome::age(path, QDateTime::fromSecsSinceEpoch(1'234'567));
  QVERIFY(blocksOf(path) >= 12'000);
  QCOMPARE(fs::measure(path, kNever), (fs::Totals{blocksOf(path), 1, 1'234'567'000}));
  const std::atomic<bool> cancel = true; // asked once a folder, and there is none
  QCOMPARE(fs::measure(path, cancel).files, qint64{1});
}

void TestFsMeasure::measuresALinkAsOneFileOfNothing_data() {
  QTest::addColumn<QString>("target");
  QTest::newRow("to a folder") << u"link target"_s;
  QTest::newRow("to a file") << u"link target/file"_s;
  QTest::newRow("to nothing") << u"nowhere"_s;
  QTest::newRow("with blocks of its own") << QString(2000, u'x');
}

void TestFsMeasure::measuresALinkAsOneFileOfNothing() {
  m_home.file(u"link target/file"_s, 12'000);
  QFETCH(QString, target);
  const QString folder = m_home.folder(QString::fromLatin1(QTest::currentDataTag()));
  const QString link = m_home.link(folder + u"/link"_s, u"../"_s + target);
  for (const QString& path : {link, folder}) {
    const fs::Totals totals = fs::measure(path, kNever);
    QCOMPARE(totals.bytes, qint64{0});
    QCOMPARE(totals.files, qint64{1});
    QVERIFY(totals.newestMs > 0);
  }
}

void TestFsMeasure::countsFilesAndNotFolders() {
  const QString dir = m_home.folder(u"kinds"_s);
  const qint64 bytes = blocksOf(m_home.file(u"kinds/a"_s, 5000)) + blocksOf(m_home.file(u"kinds/in/b"_s, 100'000)) +
                       blocksOf(m_home.file(u"kinds/.hidden/c"_s, 1));
  m_home.folder(u"kinds/in/empty"_s);
  QCOMPARE(::mkfifo(trees::raw(dir + u"/pipe"_s).constData(), 0600), 0);
  const fs::Totals totals = fs::measure(dir, kNever);
  QCOMPARE(totals.bytes, bytes);
  QCOMPARE(totals.files, qint64{4});
}

void TestFsMeasure::countsHardLinksOnce() {
  const QString dir = m_home.folder(u"links"_s);
  const QString first = m_home.file(u"links/first"_s, 8192);
  hardLink(first, dir + u"/second"_s);
  QCOMPARE(blocksOf(first), qint64{8192});
  QCOMPARE(fs::measure(dir, kNever).bytes, qint64{8192});
  QCOMPARE(fs::measure(dir, kNever).files, qint64{1});
  m_home.folder(u"links/below"_s);
  hardLink(first, dir + u"/below/third"_s);
  hardLink(first, m_home.folder(u"beside"_s) + u"/fourth"_s);
  QCOMPARE(fs::measure(dir, kNever).files, qint64{1});
}

void TestFsMeasure::countsHardLinksOnceInEachCall() {
  const QString one = m_home.file(u"call one/file"_s, 8192);
  const QString other = m_home.folder(u"call two"_s);
  hardLink(one, other + u"/file"_s);
  QCOMPARE(fs::measure(m_home.path(u"call one"_s), kNever).bytes, qint64{8192});
  QCOMPARE(fs::measure(other, kNever).bytes, qint64{8192});
}

void TestFsMeasure::measuresASparseFileAsItsBlocks() {
  const QString path = m_home.file(u"sparse/file"_s, 4096);
  QCOMPARE(::truncate(trees::raw(path).constData(), 1'000'000'000), 0);
  const fs::Totals totals = fs::measure(m_home.path(u"sparse"_s), kNever);
  QCOMPARE(totals.bytes, blocksOf(path));
  QVERIFY(totals.bytes < 1'000'000);
  QCOMPARE(fs::measure(path, kNever).bytes, blocksOf(path));
}

void TestFsMeasure::takesTheLatestTime() {
  const QString dir = m_home.folder(u"times"_s);
  const auto make = [&](const QString& name, timespec time) {
    const QString path = m_home.file(u"times/"_s + name, 0);
    const timespec both[2] = {time, time};
    ::utimensat(AT_FDCWD, trees::raw(path).constData(), both, 0);
  };
  make(u"before the epoch"_s, {-1000, 0});
  QCOMPARE(fs::measure(dir, kNever).newestMs, qint64{0});
  make(u"early"_s, {1'000'000'000, 999'000'000});
  QCOMPARE(fs::measure(dir, kNever).newestMs, qint64{1'000'000'000'999});
  make(u"in/late"_s, {1'000'000'001, 5'999'999});
  QCOMPARE(fs::measure(dir, kNever).newestMs, qint64{1'000'000'001'005});
  make(u"in/later in the same second"_s, {1'000'000'001, 6'000'000});
  make(u"in/earlier in it"_s, {1'000'000'001, 4'000'000});
  m_home.folder(u"times/a folder's own time is none"_s);
  QCOMPARE(fs::measure(dir, kNever).newestMs, qint64{1'000'000'001'006});
}

void TestFsMeasure::tellsEvery400thFile_data() {
  QTest::addColumn<int>("files");
  QTest::addColumn<qsizetype>("calls");
  QTest::newRow("399") << 399 << qsizetype{0};
  QTest::newRow("400") << 400 << qsizetype{1};
  QTest::newRow("799") << 799 << qsizetype{1};
  QTest::newRow("800") << 800 << qsizetype{2};
}

void TestFsMeasure::tellsEvery400thFile() {
  QFETCH(int, files);
  const QString dir = m_home.folder(u"progress "_s + QString::number(files));
  for (int i = 0; i < files; ++i) trees::touch(trees::raw(dir) + '/' + QByteArray::number(i));
  QList<Told> told;
  const fs::Progress progress = [&](const QString& folder, qint64 bytes, qint64 count) {
    told << Told{folder, bytes, count};
  };
  QCOMPARE(fs::measure(dir, kNever, progress).files, qint64{files});
  QTEST(told.size(), "calls");
  for (qsizetype i = 0; i < told.size(); ++i) QCOMPARE(told[i], (Told{dir, 0, 400 * (i + 1)}));
}

void TestFsMeasure::tellsSumsAndFolder() {
  const QString first = m_home.file(u"sums/a"_s, 5000);
  for (int i = 0; i < 9; ++i) hardLink(first, m_home.path(u"sums/again %1"_s.arg(i))); // counted once
  for (int i = 1; i < 399; ++i) trees::touch(trees::raw(m_home.path(u"sums"_s)) + '/' + QByteArray::number(i));
  const QString last = m_home.file(u"sums/in/caf\u00e9/the 400th"_s, 7000);
  QList<Told> told;
  const fs::Progress progress = [&](const QString& folder, qint64 bytes, qint64 count) {
    told << Told{folder, bytes, count};
  };
  const fs::Totals totals = fs::measure(m_home.path(u"sums"_s), kNever, progress);
  QCOMPARE(totals.files, qint64{400});
  QCOMPARE(told, QList<Told>{(Told{m_home.path(u"sums/in/caf\u00e9"_s), blocksOf(first) + blocksOf(last), 400})});
}

void TestFsMeasure::leavesOutExcludedFolders_data() {
  QTest::addColumn<QString>("root");
  QTest::addColumn<QString>("exclude");
  QTest::addColumn<qint64>("files");
  const auto row = [](const char* tag, const QString& root, const QString& exclude, qint64 files) {
    QTest::newRow(tag) << root << exclude << files;
  };
  const QString top = m_home.path(u"exclude"_s);
  row("nothing", top, QString(), 4);
  row("folder", top, top + u"/out"_s, 2);
  row("trailing slash", top, top + u"/out/"_s, 2);
  row("doubled slash", top, top + u"//out"_s, 2);
  row("dots", top, top + u"/./keep/../out"_s, 2);
  row("root with a trailing slash", top + u'/', top + u"/out"_s, 2);
  row("root with a doubled slash", top + u"//"_s, top + u"/out"_s, 2);
  row("folder below", top, top + u"/out/deep"_s, 3);
  row("the root itself isn't compared", top, top, 4);
  row("nor what lies above", top, m_home.path(), 4);
  row("a file isn't looked up", top, top + u"/file"_s, 4);
  row("the same name elsewhere", top, top + u"/keep/out"_s, 4);
  row("the beginning of a name", top, top + u"/ou"_s, 4);
  row("not by another case", top, top + u"/OUT"_s, 4);
}

void TestFsMeasure::leavesOutExcludedFolders() {
  m_home.file(u"exclude/file"_s);
  m_home.file(u"exclude/keep/file"_s);
  m_home.file(u"exclude/out/file"_s);
  m_home.file(u"exclude/out/deep/file"_s);
  QFETCH(QString, root);
  QFETCH(QString, exclude);
  QList<QString> list;
  if (!exclude.isEmpty()) list = {m_home.path(u"something else"_s), exclude};
  QTEST(fs::measure(root, kNever, {}, list).files, "files");
}

void TestFsMeasure::returnsNothingWhereItWasCancelledBefore() {
  m_home.file(u"cancelled/file"_s);
  const std::atomic<bool> cancel = true;
  QCOMPARE(fs::measure(m_home.path(u"cancelled"_s), cancel), fs::Totals{});
}

void TestFsMeasure::endsBeforeTheNextFolderOnceCancelled() {
  const QString dir = m_home.folder(u"cancel"_s);
  for (int i = 0; i < 500; ++i) trees::touch(trees::raw(dir) + '/' + QByteArray::number(i));
  m_home.file(u"cancel/below/file"_s);
  std::atomic<bool> cancel = false;
  const auto raise = [&](const QString&, qint64, qint64) { cancel = true; };
  QCOMPARE(fs::measure(dir, cancel, raise).files, qint64{500}); // this folder to its end, and no other
}

void TestFsMeasure::staysOnItsDevice() {
  const QString dir = m_home.folder(u"device"_s);
  const QString mount = m_home.folder(u"device/mounted"_s);
  m_home.file(u"device/file"_s);
  if (::mount("none", trees::raw(mount).constData(), "tmpfs", 0, "size=1m") != 0) QSKIP("mounting is not permitted");
  m_home.file(u"device/mounted/inside"_s);
  const fs::Totals above = fs::measure(dir, kNever);
  const fs::Totals inside = fs::measure(mount, kNever);
  ::umount(trees::raw(mount).constData());
  QCOMPARE(above.files, qint64{1});
  QCOMPARE(inside.files, qint64{1});
}

void TestFsMeasure::agreesWithAPlainWalk() {
  const QString dir = m_home.folder(u"plain walk"_s);
  QString first;
  for (int i = 0; i < 2000; ++i) {
    const int folder = i * 7919 % 131;
    QString path = dir;
    for (int bits = folder; bits > 0; bits /= 4) path += u"/f%1"_s.arg(bits % 4);
    const QString file = m_home.file(path + u"/file %1"_s.arg(i), i % 3 * 3000);
    if (i % 50 == 0) first = file;
    if (i % 50 == 1) hardLink(first, file + u" again"_s);
    if (i % 70 == 0) m_home.link(file + u" link"_s, dir);
  }
  for (const QList<QString>& exclude : {QList<QString>{}, {dir + u"/f1/f2/"_s, dir + u"/f3//f3"_s}}) {
    QList<Told> told;
    const fs::Progress progress = [&](const QString& in, qint64 bytes, qint64 count) {
      told << Told{in, bytes, count};
    };
    const fs::Totals totals = fs::measure(dir, kNever, progress, exclude);
    const plainwalk::Measured plain = plainwalk::measure(dir, exclude);
    QVERIFY(totals.files > 1000);
    QCOMPARE(totals, plain.totals);
    QCOMPARE(told, plain.told);
  }
}

void TestFsMeasure::seesTreesBeyondThePathLimit() {
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
  QStringList folders;
  const fs::Progress progress = [&](const QString& folder, qint64, qint64) {
    most = std::max(most, trees::openDescriptors() - before);
    folders << folder;
  };
  const fs::Totals totals = fs::measure(top, kNever, progress);
  QCOMPARE(totals.files, qint64{3 * (kLevels + 1)});
  QCOMPARE(folders.size(), (kLevels + 1) * 3 / 400);
  QVERIFY(std::any_of(folders.begin(), folders.end(), [](const QString& folder) { return folder.size() > 4096; }));
  QVERIFY(most > 0 && most <= static_cast<qsizetype>(DirChain::kMaxOpen));
  const QString longRoot = trees::chainPath(top, kLevels - 10, name);
  QCOMPARE(fs::measure(longRoot, kNever).files, qint64{3 * 11});
  trees::removeWhole(top);
}

void TestFsMeasure::seesNamesOfBothForms() {
  if (names::systemCodec() != names::Codec::Bytes) QSKIP("the system takes both forms for one name");
  const QByteArray dir = trees::raw(m_home.folder(u"forms"_s));
  for (const QByteArray& name : {"/caf\xc3\xa9"_ba, "/cafe\xcc\x81"_ba}) {
    QCOMPARE(::mkdir((dir + name).constData(), 0755), 0);
    trees::touch(dir + name + "/caf\xc3\xa9");
    trees::touch(dir + name + "/cafe\xcc\x81");
  }
  QCOMPARE(fs::measure(m_home.path(u"forms"_s), kNever).files, qint64{4});
  const QList<QString> exclude = {m_home.path(u"forms/cafe\u0301"_s)};
  QCOMPARE(fs::measure(m_home.path(u"forms"_s), kNever, {}, exclude).files, qint64{2});
}

void TestFsMeasure::seesNamesThatAreNoText() {
  const QByteArray dir = trees::raw(m_home.folder(u"no text"_s));
  for (const QByteArray& name : {"/caf\xe9"_ba, "/\xff\xfe"_ba, "/a\nb\\"_ba}) {
    QCOMPARE(::mkdir((dir + name).constData(), 0755), 0);
    trees::touch(dir + name + "/\xff");
    QCOMPARE(::mkdir((dir + name + "/\xff\xff").constData(), 0755), 0);
    trees::touch(dir + name + "/\xff\xff/file");
  }
  QCOMPARE(fs::measure(m_home.path(u"no text"_s), kNever).files, qint64{6});
}

void TestFsMeasure::measuresAnEntryByItsBytes() {
  const QString dir = m_home.folder(u"by bytes"_s);
  const QByteArray odd = trees::raw(dir) + "/caf\xe9";
  QCOMPARE(::mkdir(odd.constData(), 0755), 0);
  for (int i = 0; i < 400; ++i) trees::touch(odd + '/' + QByteArray::number(i));
  m_home.file(u"by bytes/plain"_s, 8192);
  QCOMPARE(::rename(trees::raw(m_home.path(u"by bytes/plain"_s)).constData(), (odd + "/\xff").constData()), 0);
  QCOMPARE(::symlink(odd.constData(), (odd + "-link").constData()), 0);
  QStringList told;
  const auto tell = [&](const QString& folder, qint64, qint64) { told << folder; };
  const fs::Totals totals = fs::measureEntry(dir, "caf\xe9", kNever, tell);
  QCOMPARE(totals.files, qint64{401});
  QCOMPARE(totals.bytes, qint64{8192});
  QVERIFY(totals.newestMs > 0);
  QCOMPARE(told, QStringList{dir + u"/caf\ufffd"_s});
  QCOMPARE(fs::measureEntry(dir, "caf\xe9-link", kNever).files, qint64{1});
  QCOMPARE(fs::measureEntry(dir, "missing", kNever), fs::Totals());
  QCOMPARE(fs::measureEntry(m_home.path(u"missing"_s), "x", kNever), fs::Totals());
  const std::atomic<bool> cancelled{true};
  QCOMPARE(fs::measureEntry(dir, "caf\xe9", cancelled), fs::Totals());
}

void TestFsMeasure::endsWhereAFolderWasMoved() {
  const QString top = m_home.folder(u"moved/top"_s);
  const QString away = m_home.folder(u"moved/away"_s);
  m_home.file(u"moved/outside"_s);
  trees::makeChain(top, 100, "d", [](int fd, int level) {
    for (int i = 0; i < (level == 100 ? 400 : 1); ++i) trees::touchAt(fd, QByteArray::number(i).constData());
    ::mkdirat(fd, "side", 0755);
    trees::touchAt(fd, "side/file");
  });
  int moves = 0;
  const fs::Progress move = [&](const QString&, qint64, qint64) {
    if (::rename(trees::raw(trees::chainPath(top, 10, "d")).constData(), trees::raw(away + u"/d"_s).constData()) == 0)
      ++moves;
  };
  const fs::Totals totals = fs::measure(top, kNever, move);
  QCOMPARE(moves, 1);
  QVERIFY(totals.files >= 500); // what lay on the way down
  QVERIFY(totals.files <= 601); // and no file twice, nor one from outside
}

void TestFsMeasure::runsOnManyThreads() {
  for (int i = 0; i < 300; ++i) m_home.file(u"threads/%1/%2"_s.arg(i % 17).arg(i), 10);
  const QString dir = m_home.path(u"threads"_s);
  const fs::Totals expected = fs::measure(dir, kNever);
  QCOMPARE(expected.files, qint64{300});
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      for (int turn = 0; turn < 20; ++turn)
        if (fs::measure(dir, kNever) != expected) ++wrong;
    });
  }
  for (std::thread& thread : threads) thread.join();
  QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(TestFsMeasure)
#include "tst_fs_measure.moc"
