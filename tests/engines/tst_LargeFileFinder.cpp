// The search for large files: what it finds and leaves out, in which order, and what it tells on the way.
#include "engines/LargeFileFinder.h"

#include "core/fs.h"
#include "support/FixtureHome.h"
#include "support/trees.h"

#include <QSemaphore>
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

constexpr int kPatienceMs = 60'000;
constexpr qint64 kBlock = 4096; ///< what sizes on disk are whole numbers of
constexpr qint64 kMin = 4 * kBlock;
constexpr int kFilesPerLook = 16;

/// A language in which the kinds of files stand in angle brackets.
class Kinds : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char*, int) const override {
    return qstrcmp(context, "LargeFileFinder") == 0 ? u"<%1>"_s.arg(QLatin1String(text)) : QString();
  }
};

struct Told {
  qint64 filesSeen;
  QString dir;
  int found;
  qint64 bytesFound;
  QList<LargeFile> top;
};

/// A finder with a clock of the test's, and all that it tells. The clock moves on by a step each time it is asked.
class Run {
 public:
  explicit Run(std::chrono::milliseconds step = 0ms)
      : finder(nullptr, [this, step] {
          if (onLook) onLook();
          return m_time += step;
        }) {
    QObject::connect(
        &finder, &LargeFileFinder::progress, &finder,
        [this](qint64 seen, const QString& dir, int found, qint64 bytes, const QList<LargeFile>& top) {
          told << Told{seen, dir, found, bytes, top};
        },
        Qt::DirectConnection);
    QObject::connect(
        &finder, &LargeFileFinder::finished, &finder,
        [this](const QList<LargeFile>& list, bool wasCancelled) {
          files = list;
          cancelled = wasCancelled;
          ++ends;
          m_done.release();
        },
        Qt::DirectConnection);
  }
  /// Searches to the end.
  void search(qint64 minBytes = kMin, const QStringList& rules = {}) {
    finder.start(minBytes, rules);
    wait();
  }
  /// Returns when the search has told its end.
  void wait() { QVERIFY(m_done.tryAcquire(1, kPatienceMs)); }
  [[nodiscard]] QStringList names() const {
    QStringList all;
    for (const LargeFile& file : files) all << file.name;
    return all;
  }
  [[nodiscard]] QStringList sortedNames() const {
    QStringList all = names();
    all.sort();
    return all;
  }

  std::function<void()> onLook; ///< on the worker, each time the clock is looked at; the first when the search begins
  QList<Told> told;
  QList<LargeFile> files;
  bool cancelled = false;
  std::atomic<int> ends = 0;

 private:
  std::chrono::milliseconds m_time{1'000'000};
  QSemaphore m_done;

 public:
  LargeFileFinder finder;
};

qint64 allocated(const QString& path) {
  fs::Entry entry;
  return fs::stat(path, &entry) ? entry.allocated : -1;
}

QList<qint64> blocks(const QList<LargeFile>& files) {
  QList<qint64> all;
  for (const LargeFile& file : files) all << file.size / kBlock;
  return all;
}

void setTimes(const QString& path, qint64 accessedMs, qint64 modifiedMs) {
  const auto toTimespec = [](qint64 ms) { return timespec{ms / 1000, (ms % 1000) * 1'000'000}; };
  const timespec times[2] = {toTimespec(accessedMs), toTimespec(modifiedMs)};
  if (::utimensat(AT_FDCWD, trees::raw(path).constData(), times, 0) != 0) qFatal("cannot set times");
}

} // namespace

class tst_LargeFileFinder : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { m_home.reset(); }

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
  void keepsTheLargestOnTop();
  void keepsTheFirstOfEqualOnesOnTop();
  void tellsHowFarItIs();
  void tellsAtMostEvery81Ms_data();
  void tellsAtMostEvery81Ms();
  void startDuringASearchChangesNothing();
  void cancelledSearchHandsOverWhatItHas();
  void cancelBeforeTheStartDoesNothing();
  void endsWithItsOwner();
  void searchesAgain();
  void homeThatIsNotThere();

 private:
  QString large(const QString& relative, qint64 sizeInBlocks = 5) const {
    return m_home->file(relative, sizeInBlocks * kBlock);
  }
  /// Files that nobody looks for, in a folder that is walked after all that lies in the home folder itself.
  void addSmall(const QString& folder, int count = kFilesPerLook) const {
    for (int i = 0; i < count; ++i) m_home->file(folder + u"/small %1"_s.arg(i), 0);
  }

  std::unique_ptr<FixtureHome> m_home;
};

void tst_LargeFileFinder::init() {
  records::registerMetaTypes();
  m_home = std::make_unique<FixtureHome>();
}

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

void tst_LargeFileFinder::keepsTheLargestOnTop() {
  for (const int size : {3, 8, 1, 9, 2, 6, 4, 7, 5}) large(u"file %1"_s.arg(size), 10 + size);
  addSmall(u"later"_s, 2 * kFilesPerLook);
  Run run(81ms);
  run.search(10 * kBlock);
  QVERIFY(!run.told.isEmpty());
  QCOMPARE(blocks(run.told.last().top), (QList<qint64>{19, 18, 17, 16, 15, 14, 13, 12}));
  QCOMPARE(run.told.last().found, 9);
}

void tst_LargeFileFinder::keepsTheFirstOfEqualOnesOnTop() {
  for (int i = 0; i < 12; ++i) large(u"same %1"_s.arg(i));
  large(u"larger"_s, 6);
  QStringList inOrder; // as the folder lists them, which is how they are found
  for (const fs::Entry& entry : fs::list(m_home->path()))
    if (entry.name.startsWith(u"same"_s)) inOrder << entry.name;
  addSmall(u"later"_s, 2 * kFilesPerLook);
  Run run(81ms);
  run.search();
  QStringList top;
  for (const LargeFile& file : run.told.last().top) top << file.name;
  QCOMPARE(top, QStringList{u"larger"_s} + inOrder.first(7));
}

void tst_LargeFileFinder::tellsHowFarItIs() {
  large(u"film.mov"_s, 7);
  large(u"other.mov"_s, 6);
  addSmall(u"one/deep"_s, 20);
  addSmall(u"two"_s, 20);
  Run run(81ms);
  run.search();
  QCOMPARE(run.told.size(), 2); // at the 16th and the 32nd file
  QCOMPARE(run.told.at(0).filesSeen, 16);
  QCOMPARE(run.told.at(1).filesSeen, 32);
  for (const Told& told : run.told) {
    QCOMPARE(told.found, 2);
    QCOMPARE(told.bytesFound, 13 * kBlock);
    QCOMPARE(blocks(told.top), (QList<qint64>{7, 6}));
    QCOMPARE(told.top.first().path, m_home->path(u"film.mov"_s));
  }
  QStringList dirs{run.told.at(0).dir, run.told.at(1).dir};
  dirs.sort();
  QCOMPARE(dirs, (QStringList{m_home->path(u"one/deep"_s), m_home->path(u"two"_s)}));
}

void tst_LargeFileFinder::tellsAtMostEvery81Ms_data() {
  QTest::addColumn<int>("stepMs"); // between two looks at the clock
  QTest::addColumn<int>("signalCount");
  QTest::newRow("a clock that stands") << 0 << 0;
  QTest::newRow("just too early") << 16 << 1; // 80 ms aren't enough, and then it counts from there
  QTest::newRow("each second look") << 41 << 5;
  QTest::newRow("just so") << 81 << 10;
}

void tst_LargeFileFinder::tellsAtMostEvery81Ms() {
  QFETCH(int, stepMs);
  QFETCH(int, signalCount);
  addSmall(u"many"_s, 10 * kFilesPerLook);
  Run run{std::chrono::milliseconds(stepMs)};
  run.search();
  QCOMPARE(run.told.size(), signalCount);
}

void tst_LargeFileFinder::startDuringASearchChangesNothing() {
  large(u"a.iso"_s, 5);
  large(u"b.mov"_s, 9);
  QSemaphore go;
  Run run;
  run.onLook = [&] { go.acquire(); };
  run.finder.start(kMin, {u"*.iso"_s});
  QVERIFY(run.finder.isRunning());
  run.finder.start(0, {});
  go.release();
  run.wait();
  QCOMPARE(run.names(), QStringList{u"b.mov"_s});
  QCOMPARE(run.ends.load(), 1);
  QVERIFY(!run.finder.isRunning());
}

void tst_LargeFileFinder::cancelledSearchHandsOverWhatItHas() {
  large(u"first.iso"_s, 5);
  large(u"second.iso"_s, 6);
  addSmall(u"."_s);
  large(u"folder/late.iso"_s);
  Run run;
  int looks = 0;
  run.onLook = [&] {
    if (++looks == 2) run.finder.cancel(); // within the home folder, which is walked to its end
  };
  run.search();
  QCOMPARE(run.ends.load(), 1);
  QVERIFY(run.cancelled);
  QCOMPARE(run.names(), (QStringList{u"second.iso"_s, u"first.iso"_s}));
  QCOMPARE(run.finder.summary().found, 2);
  QCOMPARE(run.finder.summary().filesSeen, 18);
}

void tst_LargeFileFinder::cancelBeforeTheStartDoesNothing() {
  large(u"a.iso"_s);
  Run run;
  run.finder.cancel();
  run.search();
  QVERIFY(!run.cancelled && run.files.size() == 1);
}

void tst_LargeFileFinder::endsWithItsOwner() {
  addSmall(u"many"_s);
  std::atomic<bool> begun = false;
  {
    LargeFileFinder finder(nullptr, [&] {
      begun = true;
      return 0ms;
    });
    finder.start(kMin, {});
    QTRY_VERIFY_WITH_TIMEOUT(begun.load(), kPatienceMs);
  }
  QVERIFY(begun); // and nothing of the search touches what has gone: a sanitizer looks
}

void tst_LargeFileFinder::searchesAgain() {
  const QString one = large(u"one.iso"_s);
  Run run;
  run.search();
  QVERIFY(QFile::remove(one));
  const QString two = large(u"two.iso"_s);
  run.search();
  QCOMPARE(run.names(), QStringList{u"two.iso"_s});
  QCOMPARE(run.finder.summary().found, 1);
  QCOMPARE(run.finder.summary().ids.keys(), QStringList{two});
}

void tst_LargeFileFinder::homeThatIsNotThere() {
  qputenv("HOME", m_home->path(u"missing"_s).toUtf8());
  Run run;
  run.search();
  QVERIFY(run.ends == 1 && run.files.isEmpty() && !run.cancelled);
  qputenv("HOME", m_home->path().toUtf8());
}

QTEST_GUILESS_MAIN(tst_LargeFileFinder)
#include "tst_LargeFileFinder.moc"
