// The large files: a search, what a move to the Trash takes and leaves, and how it is taken back.
#include "FlowTest.h"
#include "core/fmt.h"
#include "core/fs.h"
#include "core/names.h"
#include "engines/LargeFileFinder.h"

#include <QPoint>
#include <QSignalSpy>
#include <QThread>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMB = 1'000'000;

LargeFile listed(const QString& path, qint64 size = 7) {
  LargeFile file;
  file.path = path;
  file.name = path.section(u'/', -1);
  file.size = size;
  return file;
}

QStringList paths(const QList<LargeFile>& files) {
  QStringList all;
  for (const LargeFile& file : files) all << file.path;
  return all;
}

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

class tst_AppState_large : public FlowTest {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { empty(); }

  void starts();
  void searchTakesTheSettings();
  void searchOverAnotherSize();
  void searchTellsItsBeginningAndEnd();
  void startDuringASearchChangesNothing();
  void startBeforeTheEndIsHeardChangesNothing();
  void progressIsPassedOn();
  void cancelledSearchLeavesTheOldList();
  void leavingDuringASearch();
  void movesOneFile();
  void movesSeveralFiles();
  void tellsInOrder();
  void emptyListForgetsAndTells();
  void aPathTwiceIsOneFile();
  void keepsTheOrderOfTheRest();
  void skips_data();
  void skips();
  void skipsSomeAndMovesTheRest();
  void skipsWhatIsAnotherFileNow();
  void movesNothingWhereTheRulesAreUnknown();
  void movedDuringASearchStaysAway();
  void undoBringsBackAndSearches();
  void undoDuringASearchSearchesAgain();
  void undoNeverOverwrites();
  void undoOfNothing();
  void undoPassesOverWhatCannotComeBack();
  void undoOnlyOfTheLast();

 private:
  /// A file on the disk and in the list, as a search would have it.
  QString add(const QString& relative, qint64 bytes = 20'000) {
    const QString path = m_home->file(relative, bytes);
    m_state->largeFiles << listed(path);
    return path;
  }
  void search() {
    QSignalSpy told(m_state.get(), &AppState::largeFilesChanged);
    m_state->startLargeScan();
    QTRY_COMPARE_WITH_TIMEOUT(told.count(), 2, kPatienceMs);
  }
  /// What a move of these files tells.
  QVariantList trash(const QStringList& wanted) {
    QSignalSpy toasts(m_state.get(), &AppState::toast);
    m_state->trashLargeFiles(wanted);
    return toasts.count() == 1 ? toasts.first() : QVariantList();
  }
  QVariantList undo() {
    QSignalSpy toasts(m_state.get(), &AppState::toast);
    m_state->undoLastTrash();
    return toasts.count() == 1 ? toasts.first() : QVariantList();
  }
  void settle() { QTRY_VERIFY_WITH_TIMEOUT(!m_state->largeFinder->isRunning(), kPatienceMs); }
  [[nodiscard]] QStringList inTrash() const {
    QStringList names;
    for (const fs::Entry& entry : fs::list(m_home->path(u".local/share/Trash/files"_s))) names << entry.name;
    names.sort();
    return names;
  }
  [[nodiscard]] qsizetype infoCount() const { return fs::list(m_home->path(u".local/share/Trash/info"_s)).size(); }
};

void tst_AppState_large::init() {
  fill();
  AppSettings::instance().setLargeFileMB(1);
}

void tst_AppState_large::starts() {
  QCOMPARE(m_state->largeFinder->parent(), m_state.get());
  QVERIFY(m_state->children().indexOf(m_state->cleaner) < m_state->children().indexOf(m_state->largeFinder));
  QVERIFY(m_state->largeFiles.isEmpty() && !m_state->largeScanned && m_state->trashUndo.isEmpty());
  QCOMPARE(m_state->largeProgressCount, 0);
}

void tst_AppState_large::searchTakesTheSettings() {
  const QString enough = m_home->file(u"Films/enough.mov"_s, kMB);
  m_home->file(u"Films/too little.mov"_s, kMB - 100'000);
  m_home->file(u"Films/excluded.iso"_s, kMB);
  AppSettings::instance().setExclusions({u"*.iso"_s});
  search();
  QCOMPARE(paths(m_state->largeFiles), QStringList{enough});
  QVERIFY(m_state->largeScanned);
}

void tst_AppState_large::searchOverAnotherSize() {
  AppSettings::instance().setLargeFileMB(500);
  const QString film = m_home->file(u"Films/film.mov"_s, 2 * kMB);
  m_state->startLargeScanOver(2);
  QTRY_VERIFY_WITH_TIMEOUT(m_state->largeScanned, kPatienceMs);
  QCOMPARE(paths(m_state->largeFiles), QStringList{film});
  m_state->startLargeScanOver(3);
  QTRY_VERIFY_WITH_TIMEOUT(m_state->largeFiles.isEmpty(), kPatienceMs);
}

void tst_AppState_large::searchTellsItsBeginningAndEnd() {
  QList<bool> running;
  connect(m_state.get(), &AppState::largeFilesChanged, this, [&] { running << m_state->largeFinder->isRunning(); });
  m_state->largeProgressCount = 9;
  // The worker is through at once, and then its last signal is still on its way.
  m_state->startLargeScan();
  QCOMPARE(running.size(), 1);
  QCOMPARE(m_state->largeProgressCount, 0);
  QTRY_COMPARE_WITH_TIMEOUT(running.size(), 2, kPatienceMs);
  QCOMPARE(running.last(), false);
}

void tst_AppState_large::startDuringASearchChangesNothing() {
  m_home->file(u"Films/film.mov"_s, 2 * kMB);
  QSignalSpy told(m_state.get(), &AppState::largeFilesChanged);
  QSignalSpy ends(m_state->largeFinder, &LargeFileFinder::finished);
  m_state->startLargeScan();
  AppSettings::instance().setLargeFileMB(100);
  m_state->startLargeScan();
  QCOMPARE(told.count(), 1);
  QTRY_COMPARE_WITH_TIMEOUT(told.count(), 2, kPatienceMs);
  QCOMPARE(ends.count(), 1);
  QCOMPARE(m_state->largeFiles.size(), 1);
}

void tst_AppState_large::startBeforeTheEndIsHeardChangesNothing() {
  QSignalSpy told(m_state.get(), &AppState::largeFilesChanged);
  m_state->startLargeScan();
  while (m_state->largeFinder->isRunning()) QThread::yieldCurrentThread(); // and nothing of it arrives here
  m_state->startLargeScan();
  QCOMPARE(told.count(), 1);
  QTRY_COMPARE_WITH_TIMEOUT(told.count(), 2, kPatienceMs);
  search(); // now it does start again
}

void tst_AppState_large::progressIsPassedOn() {
  QSignalSpy told(m_state.get(), &AppState::largeProgress);
  const QList<LargeFile> top{listed(u"/a"_s, 9)};
  emit m_state->largeFinder->progress(12, u"/dir"_s, 3, 99, top);
  QCOMPARE(m_state->largeProgressCount, 12);
  QCOMPARE(told.count(), 1);
  QCOMPARE(told.first().mid(0, 4), (QVariantList{12, u"/dir"_s, 3, 99}));
  QCOMPARE(paths(told.first().at(4).value<QList<LargeFile>>()), QStringList{u"/a"_s});
}

void tst_AppState_large::cancelledSearchLeavesTheOldList() {
  m_state->largeFiles = {listed(u"/old"_s)};
  QSignalSpy told(m_state.get(), &AppState::largeFilesChanged);
  emit m_state->largeFinder->finished({listed(u"/new"_s)}, true);
  QCOMPARE(told.count(), 1);
  QCOMPARE(paths(m_state->largeFiles), QStringList{u"/old"_s});
  QVERIFY(!m_state->largeScanned);
  emit m_state->largeFinder->finished({listed(u"/new"_s)}, false);
  QCOMPARE(told.count(), 2);
  QCOMPARE(paths(m_state->largeFiles), QStringList{u"/new"_s});
  QVERIFY(m_state->largeScanned);
}

void tst_AppState_large::leavingDuringASearch() {
  m_state->startLargeScan();
  m_state.reset(); // ends it, and nothing of it arrives anywhere
  QCoreApplication::processEvents();
}

void tst_AppState_large::movesOneFile() {
  const QString film = add(u"Films/film.mov"_s, 20'000);
  fs::Entry entry;
  QVERIFY(fs::stat(film, &entry));
  QCOMPARE(trash({film}), (QVariantList{u"1 file (%1) moved to the Trash"_s.arg(fmt::bytes(entry.allocated)), true}));
  QVERIFY(!fs::exists(film));
  QCOMPARE(inTrash(), QStringList{u"film.mov"_s});
  QVERIFY(m_state->largeFiles.isEmpty());
  QCOMPARE(m_state->trashUndo.size(), 1);
  QCOMPARE(m_state->trashUndo.first().originalPath, film);
  QCOMPARE(m_state->trashUndo.first().trashedPath, m_home->path(u".local/share/Trash/files/film.mov"_s));
  QVERIFY(fs::exists(m_state->trashUndo.first().infoPath));
}

void tst_AppState_large::movesSeveralFiles() {
  const QString one = add(u"Films/one.mov"_s, 20'480);
  const QString two = add(u"Films/two.mov"_s, 40'960);
  QCOMPARE(trash({one, two}), (QVariantList{u"2 files (%1) moved to the Trash"_s.arg(fmt::bytes(61'440)), true}));
  QCOMPARE(inTrash(), (QStringList{u"one.mov"_s, u"two.mov"_s}));
  QCOMPARE(m_state->trashUndo.size(), 2);
  QCOMPARE(m_state->trashUndo.at(1).originalPath, two);
}

void tst_AppState_large::tellsInOrder() {
  const QString film = add(u"Films/film.mov"_s);
  QStringList order;
  connect(m_state.get(), &AppState::volumeChanged, this, [&] { order << u"volume"_s; });
  connect(m_state.get(), &AppState::largeFilesChanged, this,
          [&] { order << u"files %1"_s.arg(m_state->largeFiles.size()); });
  connect(m_state.get(), &AppState::toast, this, [&] { order << u"toast"_s; });
  m_state->trashLargeFiles({film});
  QCOMPARE(order, (QStringList{u"volume"_s, u"files 0"_s, u"toast"_s}));
}

void tst_AppState_large::emptyListForgetsAndTells() {
  trash({add(u"Films/film.mov"_s)});
  QSignalSpy volume(m_state.get(), &AppState::volumeChanged);
  QSignalSpy files(m_state.get(), &AppState::largeFilesChanged);
  QCOMPARE(trash({}), (QVariantList{u"0 files (0 KB) moved to the Trash"_s, false}));
  QVERIFY(m_state->trashUndo.isEmpty());
  QCOMPARE(volume.count(), 1);
  QCOMPARE(files.count(), 1);
}

void tst_AppState_large::aPathTwiceIsOneFile() {
  const QString film = add(u"Films/film.mov"_s, 20'480);
  QCOMPARE(trash({film, film}).first().toString(), u"1 file (20 KB) moved to the Trash"_s);
  QVERIFY(m_state->largeFiles.isEmpty());
}

void tst_AppState_large::keepsTheOrderOfTheRest() {
  QStringList all;
  for (const char* name : {"d", "b", "e", "a", "c"}) all << add(u"Films/"_s + QString::fromLatin1(name));
  trash({all.at(3), all.at(1)});
  QCOMPARE(paths(m_state->largeFiles), (QStringList{all.at(0), all.at(2), all.at(4)}));
}

void tst_AppState_large::skips_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<QStringList>("rules");
  QTest::addColumn<bool>("open");
  QTest::newRow("open") << u"Films/film.mov"_s << QStringList{} << true;
  QTest::newRow("excluded") << u"Films/film.mov"_s << QStringList{u"~/Films"_s} << false;
  QTest::newRow("protected data") << u"Backups/KeePassXC/vault.kdbx"_s << QStringList{} << false;
  QTest::newRow("protected location") << u".ssh/id"_s << QStringList{} << false;
}

void tst_AppState_large::skips() {
  QFETCH(QString, file);
  QFETCH(QStringList, rules);
  QFETCH(bool, open);
  const QString path = add(file);
  AppSettings::instance().setExclusions(rules);
  QFile held(path);
  QVERIFY(!open || held.open(QIODevice::ReadOnly));
  QCOMPARE(trash({path}), (QVariantList{u"0 files (0 KB) moved to the Trash · 1 in use, skipped"_s, false}));
  QVERIFY(fs::exists(path));
  QCOMPARE(paths(m_state->largeFiles), QStringList{path});
  QVERIFY(m_state->trashUndo.isEmpty() && inTrash().isEmpty());
}

void tst_AppState_large::skipsSomeAndMovesTheRest() {
  const QString film = add(u"Films/film.mov"_s, 20'480);
  const QString open = add(u"Films/open.mov"_s);
  const QString gone = add(u"Films/gone.mov"_s);
  QFile held(open);
  QVERIFY(held.open(QIODevice::ReadOnly) && QFile::remove(gone));
  QCOMPARE(trash({open, film, gone}), (QVariantList{u"1 file (20 KB) moved to the Trash · 2 in use, skipped"_s, true}));
  QCOMPARE(paths(m_state->largeFiles), (QStringList{open, gone}));
  QCOMPARE(m_state->trashUndo.size(), 1);
}

void tst_AppState_large::skipsWhatIsAnotherFileNow() {
  const QString film = m_home->file(u"Films/film.mov"_s, kMB);
  const QString other = m_home->file(u"Films/other.mov"_s, kMB);
  search();
  QCOMPARE(m_state->largeFiles.size(), 2);
  QCOMPARE(::rename(names::encode(other).constData(), names::encode(film).constData()), 0);
  QVERIFY(trash({film}).first().toString().endsWith(u" · 1 in use, skipped"_s));
  QVERIFY(fs::exists(film));
  search(); // lists what stands there now, and that may go
  QVERIFY(trash({film}).first().toString().startsWith(u"1 file ("_s));
  QVERIFY(!fs::exists(film));
}

void tst_AppState_large::movesNothingWhereTheRulesAreUnknown() {
  const QString film = add(u"Films/film.mov"_s);
  const QString first = add(u"Films/first.mov"_s);
  trash({first});
  AppSettings::instance().put("clean/exclusions", QPoint(1, 2)); // no list
  QSignalSpy files(m_state.get(), &AppState::largeFilesChanged);
  QCOMPARE(trash({film}), (QVariantList{u"The settings can't be read, so the rules on what to keep are unknown. "
                                        "Nothing was cleaned."_s,
                                        false}));
  AppSettings::instance().setExclusions({});
  QVERIFY(AppSettings::instance().acceptExclusions());
  QVERIFY(fs::exists(film));
  QCOMPARE(files.count(), 1);
  QCOMPARE(m_state->trashUndo.size(), 1); // nothing was done in its place
}

void tst_AppState_large::movedDuringASearchStaysAway() {
  const QString film = add(u"Films/film.mov"_s);
  const QString other = add(u"Films/other.mov"_s);
  const QList<LargeFile> both = m_state->largeFiles;
  m_state->startLargeScan();
  trash({film});
  emit m_state->largeFinder->finished(both, false); // it had come by before
  QCOMPARE(paths(m_state->largeFiles), QStringList{other});
  m_state->startLargeScan();
  emit m_state->largeFinder->finished(both, false); // a new one is taken at its word
  QCOMPARE(m_state->largeFiles.size(), 2);
}

void tst_AppState_large::undoBringsBackAndSearches() {
  const QString film = m_home->file(u"Films/film.mov"_s, kMB);
  const QString disc = m_home->file(u"Discs/disc.iso"_s, kMB);
  search();
  trash({film, disc});
  QVERIFY(m_state->largeFiles.isEmpty());
  QSignalSpy volume(m_state.get(), &AppState::volumeChanged);
  QSignalSpy files(m_state.get(), &AppState::largeFilesChanged);
  QCOMPARE(undo(), (QVariantList{u"Restored 2 file(s)"_s, false})); // no catalogue is installed here
  QCOMPARE(volume.count(), 1);
  QVERIFY(fs::exists(film) && fs::exists(disc));
  QVERIFY(inTrash().isEmpty() && infoCount() == 0);
  QVERIFY(m_state->trashUndo.isEmpty());
  QTRY_COMPARE_WITH_TIMEOUT(files.count(), 2, kPatienceMs);
  QCOMPARE(m_state->largeFiles.size(), 2);
}

void tst_AppState_large::undoDuringASearchSearchesAgain() {
  const QString film = m_home->file(u"Films/film.mov"_s, kMB);
  search();
  trash({film});
  QSignalSpy ends(m_state->largeFinder, &LargeFileFinder::finished);
  m_state->startLargeScan();
  while (m_state->largeFinder->isRunning()) QThread::yieldCurrentThread(); // and has found nothing
  QCOMPARE(undo().first().toString(), u"Restored 1 file(s)"_s);
  QCOMPARE(undo().first().toString(), u"Restored 0 file(s)"_s); // which asks for nothing, and forgets nothing
  QTRY_COMPARE_WITH_TIMEOUT(ends.count(), 2, kPatienceMs);
  QTRY_COMPARE_WITH_TIMEOUT(paths(m_state->largeFiles), QStringList{film}, kPatienceMs);
  QVERIFY(!m_state->largeSearching); // and not once more
}

void tst_AppState_large::undoNeverOverwrites() {
  const QString film = add(u"Films/film.mov"_s);
  const QString other = add(u"Films/other.mov"_s);
  trash({film, other});
  m_home->file(u"Films/film.mov"_s, 3);
  QCOMPARE(undo(), (QVariantList{u"Restored 1 file(s)"_s, false}));
  QCOMPARE(contents(film), QByteArray("xxx"));
  QCOMPARE(inTrash(), QStringList{u"film.mov"_s}); // it can still be brought back by hand
  QCOMPARE(infoCount(), 1);
  QVERIFY(fs::exists(other));
  settle();
}

void tst_AppState_large::undoOfNothing() {
  QSignalSpy files(m_state.get(), &AppState::largeFilesChanged);
  QCOMPARE(undo(), (QVariantList{u"Restored 0 file(s)"_s, false}));
  QCOMPARE(files.count(), 0);
  QVERIFY(!m_state->largeFinder->isRunning());
}

void tst_AppState_large::undoPassesOverWhatCannotComeBack() {
  const QString film = m_home->path(u"Films/film.mov"_s);
  m_state->trashUndo = {{film, QString(), QString()}, {film, m_home->path(u"no/such"_s), QString()}};
  QCOMPARE(undo().first().toString(), u"Restored 0 file(s)"_s);
  QVERIFY(m_state->trashUndo.isEmpty() && !m_state->largeFinder->isRunning());
}

void tst_AppState_large::undoOnlyOfTheLast() {
  const QString one = add(u"Films/one.mov"_s);
  const QString two = add(u"Films/two.mov"_s);
  trash({one});
  trash({two});
  QCOMPARE(undo().first().toString(), u"Restored 1 file(s)"_s);
  QVERIFY(!fs::exists(one) && fs::exists(two));
  QCOMPARE(undo().first().toString(), u"Restored 0 file(s)"_s);
  settle();
}

QTEST_GUILESS_MAIN(tst_AppState_large)
#include "tst_AppState_large.moc"
