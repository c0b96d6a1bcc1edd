// The log of a clean: its place, its file, and each kind of line.
#include "engines/CleanLog.h"
#include "engines/CleanTest.h"

#include <QDir>
#include <QStandardPaths>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_CleanLog : public CleanTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() {
    drop();
    QStandardPaths::setTestModeEnabled(false);
    qunsetenv("XDG_DATA_HOME");
  }

  void folder();
  void fileName();
  void head_data();
  void head();
  void everyKindOfLine();
  void reasons_data();
  void reasons();
  void oddCharacters_data();
  void oddCharacters();
  void oddNamesMakeNoLines();
  void fileIsTheUsersAlone();
  void sameSecondHasAFileOfItsOwn();
  void ownFileIsKnownByItsNumber();
  void neverThroughALink();
  void neverIntoASecondName();
  void neverIntoAPipe();
  void unwritableFolderIsNoMatter();
  void flushedAfterHeadAndCategories();

 private:
  void clean(const QStringList& names) {
    QList<CleanItem> items;
    for (const QString& name : names) items << CleanBench::item(m_bench->home.file(u"a/"_s + name));
    m_bench->run({CleanBench::category(u"x"_s, items)});
  }
  [[nodiscard]] static QString logPath(int number = 1) {
    const QString more = number == 1 ? QString() : u"-%1"_s.arg(number);
    return Cleaner::logDir() + u"/cleanup-20240506-070809%1.log"_s.arg(more);
  }
  [[nodiscard]] static QString textOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
  }
};

void tst_CleanLog::folder() {
  QCOMPARE(Cleaner::logDir(), m_bench->home.path(u".local/share/Tarnwick/Tarnwick/logs"_s));
  qputenv("XDG_DATA_HOME", m_bench->home.outside(u"data"_s).toUtf8());
  QCOMPARE(Cleaner::logDir(), m_bench->home.outside(u"data/Tarnwick/Tarnwick/logs"_s));
  qunsetenv("XDG_DATA_HOME");
  qputenv("TARNWICK_HOST", "mac");
  QCOMPARE(Cleaner::logDir(), m_bench->home.path(u"Library/Logs/Tarnwick"_s));
  QStandardPaths::setTestModeEnabled(true);
  QCOMPARE(Cleaner::logDir(),
           QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Tarnwick/logs"_L1);
  QVERIFY(Cleaner::logDir().contains("test"_L1));
  QVERIFY(!CleanBench::isThere(Cleaner::logDir()));
}

void tst_CleanLog::fileName() {
  clean({u"one"_s});
  QCOMPARE(m_bench->report.logPath, logPath());
  QVERIFY(CleanBench::isThere(m_bench->report.logPath));
}

void tst_CleanLog::head_data() {
  QTest::addColumn<bool>("toTrash");
  QTest::addColumn<QString>("mode");
  QTest::newRow("delete") << false << u"Mode: delete permanently"_s;
  QTest::newRow("trash") << true << u"Mode: move to Trash"_s;
}

void tst_CleanLog::head() {
  QFETCH(bool, toTrash);
  QFETCH(QString, mode);
  const CleanItem one = CleanBench::item(m_bench->home.file(u"a/one"_s, 8192));
  const CleanItem two = CleanBench::item(m_bench->home.file(u"a/two"_s, 4096));
  m_bench->run({CleanBench::category(u"x"_s, {one}), CleanBench::category(u"trash"_s, {two})}, toTrash);
  QCOMPARE(m_bench->log, (QStringList{
                             u"Tarnwick cleanup 2024-05-06T07:08:09"_s,
                             mode,
                             u"Selected: 12 KB"_s,
                             QString(),
                             u"== X (8 KB)"_s,
                             u"== TRASH (4 KB)"_s,
                             QString(),
                             (toTrash ? u"TRASHED  %1  8 KB"_s : u"DELETED  %1  8 KB"_s).arg(one.path),
                             u"DELETED  %1  4 KB"_s.arg(two.path),
                             u"Freed 12 KB, removed 2 files, skipped 0."_s,
                             QString(),
                         }));
}

void tst_CleanLog::everyKindOfLine() {
  CleanLog log;
  log.head(QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)), false, 1500000000);
  log.category(u"App caches"_s, 999);
  log.excluded(u"/a/b"_s);
  log.running(u"/a/b"_s, u"Firefox"_s);
  log.skipped(u"/a/b"_s, SkipReason::InUse);
  log.skipped(u"/a/b"_s, SkipReason::InUse, 13);
  log.busy(u"/a/b"_s, 0);
  log.emptied(u"Trash"_s);
  log.emptyLine();
  log.removed(true, u"/a/b"_s, 4096);
  log.removed(false, u"/a/b"_s, 0);
  log.summary(1234567890, 1234567, 1000);
  log.flush();
  QCOMPARE(log.text().split(u'\n'), (QStringList{
                                        u"Tarnwick cleanup 2024-05-06T07:08:09"_s,
                                        u"Mode: delete permanently"_s,
                                        u"Selected: 1.5 GB"_s,
                                        QString(),
                                        u"== App caches (1 KB)"_s,
                                        u"EXCLUDED /a/b"_s,
                                        u"SKIPPED  /a/b  (Firefox is running)"_s,
                                        u"SKIPPED  /a/b  (in use or access denied)"_s,
                                        u"SKIPPED  /a/b  (in use or access denied, error 13)"_s,
                                        u"BUSY     /a/b  (error 0, will retry)"_s,
                                        u"EMPTIED  Trash"_s,
                                        QString(),
                                        u"TRASHED  /a/b  4 KB"_s,
                                        u"DELETED  /a/b  0 KB"_s,
                                        u"Freed 1.2 GB, removed 1234567 files, skipped 1000."_s,
                                        QString(),
                                    }));
}

void tst_CleanLog::reasons_data() {
  QTest::addColumn<int>("reason");
  QTest::newRow("protected app data") << int(SkipReason::ProtectedData);
  QTest::newRow("protected location") << int(SkipReason::ProtectedLocation);
  QTest::newRow("open in an app") << int(SkipReason::Open);
  QTest::newRow("in use or access denied") << int(SkipReason::InUse);
  QTest::newRow("could not empty") << int(SkipReason::CouldNotEmpty);
  QTest::newRow("another volume") << int(SkipReason::AnotherVolume);
  QTest::newRow("no Trash on this volume") << int(SkipReason::NoTrash);
}

void tst_CleanLog::reasons() {
  QFETCH(int, reason);
  CleanLog log;
  log.skipped(u"/a"_s, static_cast<SkipReason>(reason));
  log.flush();
  QCOMPARE(log.text(), u"SKIPPED  /a  (%1)\n"_s.arg(QString::fromLatin1(QTest::currentDataTag())));
}

void tst_CleanLog::oddCharacters_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<QString>("shown");
  QTest::newRow("line feed") << u"/a\nDELETED  /b"_s << u"/a\\nDELETED  /b"_s;
  QTest::newRow("escape") << u"/a\x1b[2J"_s << u"/a\\x1b[2J"_s;
  QTest::newRow("override") << u"/a\u202eb"_s << u"/a\\u{202e}b"_s;
  QTest::newRow("plain") << u"/ä/日本/\\x"_s << u"/ä/日本/\\x"_s;
}

void tst_CleanLog::oddCharacters() {
  QFETCH(QString, path);
  QFETCH(QString, shown);
  CleanLog log;
  log.excluded(path);
  log.flush();
  QCOMPARE(log.text(), u"EXCLUDED "_s + shown + u'\n');
}

void tst_CleanLog::oddNamesMakeNoLines() {
  clean({u"one\nDELETED  fake  9 GB"_s});
  QCOMPARE(m_bench->lines("DELETED"),
           QStringList{u"DELETED  %1/one\\nDELETED  fake  9 GB  4 KB"_s.arg(m_bench->home.path(u"a"_s))});
}

void tst_CleanLog::fileIsTheUsersAlone() {
  const mode_t before = ::umask(0);
  clean({u"one"_s});
  ::umask(before);
  struct stat status = {};
  QCOMPARE(::lstat(QFile::encodeName(m_bench->report.logPath).constData(), &status), 0);
  QCOMPARE(status.st_mode & 07777, mode_t{0600});
}

void tst_CleanLog::sameSecondHasAFileOfItsOwn() {
  clean({u"a"_s, u"b"_s, u"c"_s});
  const QString first = m_bench->report.logPath;
  const QString firstText = textOf(first);
  clean({u"d"_s});
  QCOMPARE(m_bench->report.logPath, logPath(2));
  QCOMPARE(m_bench->lines("DELETED").size(), 1);
  QCOMPARE(m_bench->lines("Freed"), QStringList{u"Freed 4 KB, removed 1 files, skipped 0."_s});
  clean({u"e"_s});
  QCOMPARE(m_bench->report.logPath, logPath(3));
  QCOMPARE(textOf(first), firstText);
}

void tst_CleanLog::ownFileIsKnownByItsNumber() {
  clean({u"a"_s});
  CleanLog log;
  const QString path = log.openFile(logPath());
  QCOMPARE(path, logPath(2));
  QVERIFY(log.isOwnFile(path));
  QVERIFY(!log.isOwnFile(logPath()));
}

void tst_CleanLog::neverThroughALink() {
  const QString precious = m_bench->home.file(u"precious"_s, 100);
  m_bench->home.link(logPath(), precious);
  m_bench->home.link(logPath(2), m_bench->home.path(u"made through a link"_s));
  clean({u"one"_s});
  QCOMPARE(textOf(precious).size(), 100);
  QVERIFY(!CleanBench::isThere(m_bench->home.path(u"made through a link"_s)));
  QCOMPARE(m_bench->report.logPath, logPath(3));
  QCOMPARE(m_bench->lines("DELETED").size(), 1);
}

void tst_CleanLog::neverIntoASecondName() {
  const QString precious = m_bench->home.file(u"precious"_s, 100);
  m_bench->home.folder(Cleaner::logDir());
  QCOMPARE(::link(QFile::encodeName(precious).constData(), QFile::encodeName(logPath()).constData()), 0);
  clean({u"one"_s});
  QCOMPARE(textOf(precious).size(), 100);
  QCOMPARE(m_bench->lines("DELETED").size(), 1);
}

void tst_CleanLog::neverIntoAPipe() {
  m_bench->home.folder(Cleaner::logDir());
  QCOMPARE(::mkfifo(QFile::encodeName(logPath()).constData(), 0600), 0);
  Cleaner cleaner(nullptr, m_bench->world);
  m_bench->start(&cleaner, {});
  QTRY_COMPARE_WITH_TIMEOUT(m_bench->finishedCount.load(), 1, 60'000); // doesn't wait for a reader
}

void tst_CleanLog::unwritableFolderIsNoMatter() {
  m_bench->home.file(m_bench->home.path(u".local/share/Tarnwick"_s)); // where the folder would be
  clean({u"one"_s});
  QCOMPARE(m_bench->report.logPath, logPath());
  QVERIFY(!CleanBench::isThere(m_bench->report.logPath));
  QCOMPARE(m_bench->report.removedFiles, 1);
  QCOMPARE(m_bench->report.dryRunLog, QString());
}

void tst_CleanLog::flushedAfterHeadAndCategories() {
  const CleanItem one = CleanBench::item(m_bench->home.file(u"a/one"_s));
  const CleanItem two = CleanBench::item(m_bench->home.file(u"a/two"_s));
  const CleanItem three = CleanBench::item(m_bench->home.file(u"a/three"_s));
  QStringList texts;
  m_bench->onProgress = [&](const QString&) { texts << textOf(logPath()); };
  m_bench->run({CleanBench::category(u"x"_s, {one}), CleanBench::category(u"y"_s, {two}),
                CleanBench::category(u"z"_s, {three})});
  QCOMPARE(texts.size(), 4);
  QVERIFY(texts[0].endsWith(u"Selected: 12 KB\n\n"));
  QVERIFY(texts[1].endsWith(u"== X (4 KB)\n"));
  QVERIFY(texts[2].endsWith(u"== Y (4 KB)\n"));
  QVERIFY(texts[3].endsWith(u"skipped 0.\n"));
}

QTEST_GUILESS_MAIN(tst_CleanLog)
#include "tst_CleanLog.moc"
