// The search for large files: what it finds and leaves out, and in which order.
#include "engines/LargeFileTest.h"
#include "support/trees.h"

#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A language in which the kinds of files stand in angle brackets.
class Kinds : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char*, int) const override {
    return qstrcmp(context, "LargeFileFinder") == 0 ? u"<%1>"_s.arg(QLatin1String(text)) : QString();
  }
};

qint64 allocated(const QString& path) {
  fs::Entry entry;
  return fs::stat(path, &entry) ? entry.allocated : -1;
}

void setTimes(const QString& path, qint64 accessedMs, qint64 modifiedMs) {
  const auto toTimespec = [](qint64 ms) { return timespec{ms / 1000, (ms % 1000) * 1'000'000}; };
  const timespec times[2] = {toTimespec(accessedMs), toTimespec(modifiedMs)};
  if (::utimensat(AT_FDCWD, trees::raw(path).constData(), times, 0) != 0) qFatal("cannot set times");
}

} // namespace

class tst_LargeFileFinder : public LargeFileTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void kinds_data();
  void kinds();
  void describesAFile();
  void takesWhatHoldsEnough();
  void judgesASparseFileByItsBlocks();
  void takesTheLaterOfBothTimes();
  void leavesOutFolders_data();
  void leavesOutFolders();
  void leavesOutFoldersOnly();
  void followsNoLink();
  void leavesOutWhatRulesName_data();
  void leavesOutWhatRulesName();
  void leavesOutNamesThatAreNoText();
  void sortsLargestFirst();
  void handsOverFiveHundred();
};

void tst_LargeFileFinder::kinds_data() {
  QTest::addColumn<QString>("label");
  QTest::addColumn<QString>("suffixes");
  const auto row = [](const char* label, const char* suffixes) {
    QTest::newRow(label) << QString::fromLatin1(label) << QString::fromLatin1(suffixes);
  };
  row("Disk image", "iso img dmg vhd vhdx vmdk vdi qcow2 hdd wim esd vmem vmsn nvram");
  row("Partial download", "part crdownload download partial tmp");
  row("Video", "mp4 mov mkv avi wmv m4v webm mts m2ts flv MOV MkV");
  row("Archive", "zip rar 7z tar gz tgz bz2 xz zst cab tar.gz ZIP");
  row("Installer", "exe msi msix appx pkg mpkg apk ipa");
  row("Audio", "mp3 wav flac aac m4a aiff ogg");
  row("Image", "psd psb tif tiff raw cr2 nef arw dng png jpg heic");
  row("Document", "pdf csv json xlsx docx pptx txt log sql db sqlite parquet");
  row("Backup", "bak backup tm");
  row("File", "jpeg doc aif oga deb rpm hidden vmdk2 mp iso. zip/x mov~");
}

void tst_LargeFileFinder::kinds() {
  QFETCH(QString, label);
  QFETCH(QString, suffixes);
  for (const QString& suffix : suffixes.split(u' ')) QCOMPARE(LargeFileFinder::kindFor(u"a name."_s + suffix), label);
  QCOMPARE(LargeFileFinder::kindFor(u"noext"_s), u"File"_s);
  QCOMPARE(LargeFileFinder::kindFor(u".hidden"_s), u"File"_s);
  QCOMPARE(LargeFileFinder::kindFor(u"Movie.MOV"_s), u"Video"_s);
  QCOMPARE(LargeFileFinder::kindFor(u"x.tm"_s), u"Backup"_s);
  QCOMPARE(LargeFileFinder::kindName(u"Backup"_s), u"Backup"_s);
  Kinds kinds;
  QCoreApplication::installTranslator(&kinds);
  QCOMPARE(LargeFileFinder::kindName(LargeFileFinder::kindFor(u"x.mov"_s)), u"<Video>"_s);
  QCOMPARE(LargeFileFinder::kindName(LargeFileFinder::kindFor(u"noext"_s)), u"<File>"_s);
  QCOMPARE(LargeFileFinder::kindFor(u"x.mov"_s), u"Video"_s); // the label itself is a key
}

void tst_LargeFileFinder::describesAFile() {
  const QString path = large(u"Films/of the year/Holiday.mov"_s, 9);
  setTimes(path, 1'600'000'000'123, 1'500'000'000'000);
  Run run;
  run.search();
  QCOMPARE(run.files.size(), 1);
  const LargeFile& file = run.files.first();
  QCOMPARE(file.path, path);
  QCOMPARE(file.name, u"Holiday.mov"_s);
  QCOMPARE(file.dir, m_home->path(u"Films/of the year"_s));
  QCOMPARE(file.kind, u"Video"_s);
  QCOMPARE(file.size, allocated(path));
  QCOMPARE(file.lastUsed.toMSecsSinceEpoch(), 1'600'000'000'123);
  fs::Entry entry;
  QVERIFY(fs::stat(path, &entry));
  QCOMPARE(run.finder.summary().ids.value(path), (FileId{entry.device, entry.inode}));
  QVERIFY(!run.cancelled && run.ends == 1);
}

void tst_LargeFileFinder::takesWhatHoldsEnough() {
  large(u"enough"_s, 4);
  large(u"too little"_s, 3);
  Run run;
  run.search(4 * kBlock);
  QCOMPARE(run.names(), QStringList{u"enough"_s});
  run.search(4 * kBlock + 1);
  QCOMPARE(run.names(), QStringList{});
  run.search(0);
  QCOMPARE(run.names().size(), 2);
}

void tst_LargeFileFinder::judgesASparseFileByItsBlocks() {
  const QString sparse = m_home->file(u"sparse.img"_s, 0);
  QCOMPARE(::truncate(trees::raw(sparse).constData(), 1'000'000'000), 0);
  Run run;
  run.search();
  QVERIFY(run.files.isEmpty());
  QCOMPARE(run.finder.summary().filesSeen, 1);
}

void tst_LargeFileFinder::takesTheLaterOfBothTimes() {
  setTimes(large(u"read later"_s), 1'600'000'000'000, 1'500'000'000'000);
  setTimes(large(u"written later"_s), 1'400'000'000'000, 1'500'000'000'000);
  Run run;
  run.search();
  QHash<QString, qint64> used;
  for (const LargeFile& file : run.files) used.insert(file.name, file.lastUsed.toMSecsSinceEpoch());
  QCOMPARE(used.value(u"read later"_s), 1'600'000'000'000);
  QCOMPARE(used.value(u"written later"_s), 1'500'000'000'000);
}

void tst_LargeFileFinder::leavesOutFolders_data() {
  QTest::addColumn<QString>("folder");
  QTest::addColumn<bool>("entered");
  for (const char* name : {".config", "node_modules", "Mobile Documents", "$Recycle.Bin", "CloudStorage"})
    QTest::newRow(name) << QString::fromLatin1(name) << false;
  for (const char* name : {"config.", "Node_modules", "node_modules2", "CloudStorage.old", "Recycle.Bin", "Trash"})
    QTest::newRow(name) << QString::fromLatin1(name) << true;
}

void tst_LargeFileFinder::leavesOutFolders() {
  QFETCH(QString, folder);
  QFETCH(bool, entered);
  large(folder + u"/in"_s);
  large(u"work/deep/"_s + folder + u"/further/in"_s);
  Run run;
  run.search();
  QCOMPARE(run.files.size(), entered ? 2 : 0);
  QCOMPARE(run.finder.summary().filesSeen, entered ? 2 : 0);
}

void tst_LargeFileFinder::leavesOutFoldersOnly() {
  large(u"work/node_modules"_s);
  large(u"work/.hidden"_s);
  large(u"CloudStorage"_s);
  Run run;
  run.search();
  QCOMPARE(run.sortedNames(), (QStringList{u".hidden"_s, u"CloudStorage"_s, u"node_modules"_s}));
}

void tst_LargeFileFinder::followsNoLink() {
  const QString outside = m_home->file(m_home->outside(u"elsewhere/film.mov"_s), 9 * kBlock);
  m_home->link(u"link"_s, outside);
  m_home->link(u"folder"_s, m_home->outside(u"elsewhere"_s));
  Run run;
  run.search();
  QVERIFY(run.files.isEmpty());
}

void tst_LargeFileFinder::leavesOutWhatRulesName_data() {
  QTest::addColumn<QStringList>("rules");
  QTest::addColumn<QStringList>("left");
  QTest::addColumn<int>("seen"); // what lies in a folder that a rule names isn't looked at
  const QStringList all{u"a.iso"_s, u"b.iso"_s, u"c.mov"_s};
  QTest::newRow("none") << QStringList{} << all << 3;
  QTest::newRow("blank") << QStringList{u"  "_s} << all << 3;
  QTest::newRow("files by name") << QStringList{u"*.iso"_s} << QStringList{u"c.mov"_s} << 3;
  QTest::newRow("a folder by name") << QStringList{u"Images"_s} << QStringList{u"c.mov"_s} << 1;
  QTest::newRow("a folder by path") << QStringList{u"~/Images/old"_s} << QStringList{u"a.iso"_s, u"c.mov"_s} << 2;
  QTest::newRow("a file by path") << QStringList{u"~/Images/a.iso"_s} << QStringList{u"b.iso"_s, u"c.mov"_s} << 3;
  QTest::newRow("one of two") << QStringList{u"nothing"_s, u"*.mov"_s} << QStringList{u"a.iso"_s, u"b.iso"_s} << 3;
  QTest::newRow("the home folder") << QStringList{u"~"_s} << QStringList{} << 1; // only what lies in it directly
  QTest::newRow("a part of the way to it") << QStringList{u"users"_s} << QStringList{} << 1;
  QTest::newRow("another case") << QStringList{u"images"_s} << all << 3;
}

void tst_LargeFileFinder::leavesOutWhatRulesName() {
  QFETCH(QStringList, rules);
  QFETCH(QStringList, left);
  QFETCH(int, seen);
  large(u"Images/a.iso"_s);
  large(u"Images/old/b.iso"_s);
  large(u"c.mov"_s);
  Run run;
  run.search(kMin, rules);
  QCOMPARE(run.sortedNames(), left);
  QCOMPARE(run.finder.summary().found, left.size());
  QCOMPARE(run.finder.summary().filesSeen, seen);
}

void tst_LargeFileFinder::leavesOutNamesThatAreNoText() {
  const QByteArray data(5 * kBlock, 'x');
  const QString folder = m_home->folder(u"odd"_s);
  for (const char* name : {"/bad-\xff.iso", "/line\nbreak.iso"}) {
    const int fd = ::open((trees::raw(folder) + name).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    QCOMPARE(::write(fd, data.constData(), static_cast<size_t>(data.size())), data.size());
    ::close(fd);
  }
  Run run;
  run.search();
  QCOMPARE(run.names(), QStringList{u"line\nbreak.iso"_s});
  QCOMPARE(run.finder.summary().found, 1);
  QCOMPARE(run.finder.summary().filesSeen, 2);
}

void tst_LargeFileFinder::sortsLargestFirst() {
  for (const int size : {6, 9, 5, 7, 8}) large(u"%1/file %1"_s.arg(size), size);
  large(u"twin b"_s, 7);
  large(u"twin a"_s, 7);
  Run run;
  run.search();
  QCOMPARE(blocks(run.files), (QList<qint64>{9, 8, 7, 7, 7, 6, 5}));
  QCOMPARE(run.names().mid(2, 3), (QStringList{u"file 7"_s, u"twin a"_s, u"twin b"_s})); // the same each time
}

void tst_LargeFileFinder::handsOverFiveHundred() {
  constexpr int kMany = 520;
  qint64 bytes = 0;
  for (int i = 0; i < kMany; ++i) bytes += allocated(large(u"%1/file %2"_s.arg(i % 7).arg(i), i < 20 ? 1 : 2 + i % 3));
  Run run(81ms);
  run.search(kBlock);
  QCOMPARE(run.files.size(), 500);
  QCOMPARE(blocks(run.files).first(), 4);
  QCOMPARE(run.files.last().size, 2 * kBlock); // the 20 smallest were left out
  QVERIFY(std::is_sorted(run.files.begin(), run.files.end(),
                         [](const LargeFile& a, const LargeFile& b) { return a.size > b.size; }));
  const LargeFileFinder::Summary summary = run.finder.summary();
  QCOMPARE(summary.filesSeen, kMany);
  QCOMPARE(summary.found, kMany);
  QCOMPARE(summary.bytesFound, bytes);
  QCOMPARE(summary.ids.size(), 500);
  for (const LargeFile& file : run.files) QVERIFY(summary.ids.contains(file.path));
  QVERIFY(run.told.last().found > 500 && run.told.last().found < kMany);
}

QTEST_GUILESS_MAIN(tst_LargeFileFinder)
#include "tst_LargeFileFinder.moc"
