// What a clean asks again before anything goes, of the item and of all that lies in it.
#include "engines/CleanTest.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_Cleaner_questions : public CleanTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void excludedItem();
  void protectedDataItem();
  void protectedLocationItem();
  void protectedChildOfAWholeRoot();
  void firstAnswerDecides();
  void runningAppIsNamedOnce();
  void runningAppsCountForTwoCategoriesAlone();
  void excludedBelow_data();
  void excludedBelow();
  void protectedBelow_data();
  void protectedBelow();
  void trashIgnoresExclusionsBelow();
  void trashAsksExclusionsOfTheItem();
  void openFile_data();
  void openFile();
  void folderInUse_data();
  void folderInUse();
  void folderInUseAboveTheItems();
  void rootOfAProcess_data();
  void rootOfAProcess();
  void openFileOfOddName();
  void linkedRootAsksBothSpellings_data();
  void linkedRootAsksBothSpellings();
  void rootSwappedForALinkIsNotFollowed();
  void itemsFolderSwappedForALinkIsNotFollowed();
  void tempIsAdmittedAgain_data();
  void tempIsAdmittedAgain();
  void cacheThatHoldsMoreIsLeftAlone_data();
  void cacheThatHoldsMoreIsLeftAlone();
  void onlyOwnWhereTheRootAsks();
  void ownLogStays_data();
  void ownLogStays();
  void ownLogStaysUnderAnotherPath();
};

void tst_Cleaner_questions::excludedItem() {
  const QString keep = m_bench->home.file(u"a/keep.log"_s);
  const QString root = m_bench->home.folder(u"a/keep"_s);
  const QString inRoot = m_bench->home.file(u"a/keep/file"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(keep), CleanBench::item(root, true)})}, false,
               {u"*.log"_s, u"~/a/keep"_s});
  QVERIFY(CleanBench::isThere(keep) && CleanBench::isThere(inRoot));
  QCOMPARE(m_bench->lines("EXCLUDED"), (QStringList{u"EXCLUDED "_s + keep, u"EXCLUDED "_s + root}));
  QCOMPARE(m_bench->lines("DELETED") + m_bench->lines("SKIPPED"), QStringList());
  QCOMPARE(m_bench->report.skipped, 0);
  QCOMPARE(m_bench->report.skippedSamples, QStringList());
  QCOMPARE(m_bench->report.freedBytes, 0);
  QCOMPARE(m_bench->report.cleanedIds, QStringList{u"x"_s});
}

void tst_Cleaner_questions::protectedDataItem() {
  const QString vault = m_bench->home.file(u"a/bitwarden/vault"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(at(u"a/bitwarden"_s))})});
  QVERIFY(CleanBench::isThere(vault));
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (protected app data)"_s.arg(at(u"a/bitwarden"_s))});
  QCOMPARE(m_bench->report.skipped, 1);
  QCOMPARE(m_bench->report.skippedSamples, QStringList{at(u"a/bitwarden"_s)});
  QCOMPARE(m_bench->lines("DELETED"), QStringList());
}

void tst_Cleaner_questions::protectedLocationItem() {
  const QString letter = m_bench->home.file(u"Documents/letter"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(at(u"Documents"_s))})});
  QVERIFY(CleanBench::isThere(letter));
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (protected location)"_s.arg(at(u"Documents"_s))});
  QCOMPARE(m_bench->report.skipped, 1);
  // It was got to, and nothing of it went.
  QCOMPARE(m_bench->lines("DELETED"), QStringList{u"DELETED  %1  0 KB"_s.arg(at(u"Documents"_s))});
}

void tst_Cleaner_questions::protectedChildOfAWholeRoot() {
  m_bench->home.file(u"Documents/letter"_s);
  m_bench->home.file(u"plain/file"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(at({}), true)})});
  QVERIFY(CleanBench::isThere(at(u"Documents/letter"_s)));
  QVERIFY(!CleanBench::isThere(at(u"plain"_s)));
  QVERIFY(m_bench->lines("SKIPPED").contains(u"SKIPPED  %1  (protected location)"_s.arg(at(u"Documents"_s))));
}

// In the order of the questions: a rule, protected data, a running app.
void tst_Cleaner_questions::firstAnswerDecides() {
  m_bench->home.file(u".cache/firefox/bitwarden/a"_s);
  m_bench->proc.addProcess(812, u"/"_s, u"/usr/bin/firefox"_s);
  const QList<CategoryResult> results = {
      CleanBench::category(u"appcache"_s, {CleanBench::item(at(u".cache/firefox/bitwarden"_s), true)})};
  m_bench->run(results, false, {u"firefox"_s});
  QCOMPARE(m_bench->log[5], u"EXCLUDED "_s + at(u".cache/firefox/bitwarden"_s));
  m_bench->run(results);
  QCOMPARE(m_bench->log[5], u"SKIPPED  %1  (protected app data)"_s.arg(at(u".cache/firefox/bitwarden"_s)));
  QCOMPARE(m_bench->report.runningApps, QStringList());
}

void tst_Cleaner_questions::runningAppIsNamedOnce() {
  QList<CleanItem> items;
  for (const QString& profile : {u"one"_s, u"two"_s}) {
    m_bench->home.file(u".cache/mozilla/firefox/%1/cache2/a"_s.arg(profile));
    items << CleanBench::item(at(u".cache/mozilla/firefox/%1/cache2"_s.arg(profile)), true);
  }
  m_bench->home.file(u".cache/spotify/a"_s);
  items << CleanBench::item(at(u".cache/spotify"_s), true);
  items.last().owner = u"Someone else"_s; // what the scan stored is of yesterday
  m_bench->proc.addProcess(812, u"/"_s, u"/usr/lib/firefox/firefox"_s);
  m_bench->proc.addProcess(813, u"/"_s, u"/usr/share/spotify/spotify"_s);
  m_bench->run({CleanBench::category(u"browser"_s, items)});
  QCOMPARE(m_bench->report.runningApps, (QStringList{u"Firefox"_s, u"Spotify"_s}));
  QCOMPARE(m_bench->report.skipped, 0);
  QCOMPARE(m_bench->report.skippedSamples, QStringList());
  QCOMPARE(m_bench->lines("SKIPPED"), (QStringList{
                                          u"SKIPPED  %1  (Firefox is running)"_s.arg(items[0].path),
                                          u"SKIPPED  %1  (Firefox is running)"_s.arg(items[1].path),
                                          u"SKIPPED  %1  (Spotify is running)"_s.arg(items[2].path),
                                      }));
  QCOMPARE(m_bench->lines("DELETED"), QStringList());
  QVERIFY(CleanBench::isThere(at(u".cache/mozilla/firefox/one/cache2/a"_s)));
}

void tst_Cleaner_questions::runningAppsCountForTwoCategoriesAlone() {
  m_bench->home.file(u"a/firefox/file"_s);
  m_bench->proc.addProcess(812, u"/"_s, u"/usr/lib/firefox/firefox"_s);
  m_bench->run({CleanBench::category(u"logs"_s, {CleanBench::item(at(u"a/firefox"_s))})});
  QVERIFY(!CleanBench::isThere(at(u"a/firefox"_s)));
}

void tst_Cleaner_questions::excludedBelow_data() { modes(); }

// Its folder is emptied around it.
void tst_Cleaner_questions::excludedBelow() {
  QFETCH(bool, toTrash);
  m_bench->home.file(u"a/top/project/.git/config"_s);
  m_bench->home.file(u"a/top/project/build/out"_s, 8192);
  m_bench->home.file(u"a/top/other"_s);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(at(u"a/top"_s))})}, toTrash, {u"**/.git"_s, u".git"_s});
  QVERIFY(CleanBench::isThere(at(u"a/top/project/.git/config"_s)));
  QVERIFY(!CleanBench::isThere(at(u"a/top/project/build"_s)));
  QVERIFY(!CleanBench::isThere(at(u"a/top/other"_s)));
  QCOMPARE(m_bench->lines("EXCLUDED"), QStringList{u"EXCLUDED "_s + at(u"a/top/project/.git"_s)});
  QCOMPARE(m_bench->report.skipped, 0);
  QCOMPARE(m_bench->report.freedBytes, 12288);
  QCOMPARE(m_bench->report.removedFiles, 2);
  if (toTrash) QCOMPARE(m_bench->trashed(), (QStringList{u"build"_s, u"other"_s}));
}

void tst_Cleaner_questions::protectedBelow_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<QString>("stays");
  QTest::addColumn<QString>("reason");
  QTest::newRow("app data") << u"a/top"_s << u"a/top/sub/KeePassXC"_s << u"protected app data"_s;
  QTest::newRow("location") << u".docker"_s << u".docker/config.json"_s << u"protected location"_s;
}

void tst_Cleaner_questions::protectedBelow() {
  QFETCH(QString, item);
  QFETCH(QString, stays);
  QFETCH(QString, reason);
  m_bench->home.file(item + "/other/file"_L1);
  if (stays.endsWith(u"json"))
    m_bench->home.file(stays);
  else
    m_bench->home.file(stays + "/vault"_L1);
  for (const bool toTrash : {false, true}) {
    m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(at(item))})}, toTrash);
    QVERIFY(CleanBench::isThere(at(stays)));
    QVERIFY(!CleanBench::isThere(at(item + "/other"_L1)));
    QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (%2)"_s.arg(at(stays), reason)});
    QCOMPARE(m_bench->report.skipped, 1);
    QCOMPARE(m_bench->report.skippedSamples, QStringList{at(stays)});
    QCOMPARE(m_bench->waits, QList<int>());
    m_bench->home.file(item + "/other/file"_L1);
  }
}

// A repository that was thrown away can be emptied; protected data still stays.
void tst_Cleaner_questions::trashIgnoresExclusionsBelow() {
  const QString thrown = u".local/share/Trash/files/project"_s;
  m_bench->home.file(thrown + "/.git/config"_L1);
  m_bench->home.file(thrown + "/src/main"_L1);
  m_bench->run({CleanBench::category(u"trash"_s, {CleanBench::item(at(thrown))})}, false, {u"**/.git"_s, u".git"_s});
  QVERIFY(!CleanBench::isThere(at(thrown)));
  QCOMPARE(m_bench->lines("EXCLUDED"), QStringList());
  m_bench->home.file(thrown + "/1Password/vault"_L1);
  m_bench->run({CleanBench::category(u"trash"_s, {CleanBench::item(at(thrown))})});
  QVERIFY(CleanBench::isThere(at(thrown + "/1Password/vault"_L1)));
}

void tst_Cleaner_questions::trashAsksExclusionsOfTheItem() {
  const QString thrown = m_bench->home.file(u".local/share/Trash/files/keep"_s);
  m_bench->run({CleanBench::category(u"trash"_s, {CleanBench::item(thrown)})}, false, {u"keep"_s});
  QVERIFY(CleanBench::isThere(thrown));
  QCOMPARE(m_bench->lines("EXCLUDED"), QStringList{u"EXCLUDED "_s + thrown});
}

void tst_Cleaner_questions::openFile_data() { modes(); }

void tst_Cleaner_questions::openFile() {
  QFETCH(bool, toTrash);
  const QString used = m_bench->home.file(u"a/top/sub/used"_s);
  m_bench->home.file(u"a/top/sub/other"_s);
  m_bench->home.file(u"a/top/more/file"_s);
  open(used);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(at(u"a/top"_s))})}, toTrash);
  QVERIFY(CleanBench::isThere(used));
  QVERIFY(!CleanBench::isThere(at(u"a/top/sub/other"_s)));
  QVERIFY(!CleanBench::isThere(at(u"a/top/more"_s)));
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (open in an app)"_s.arg(used)});
  QCOMPARE(m_bench->waits, QList<int>());
  QCOMPARE(m_bench->report.freedBytes, 8192);
  if (toTrash) QCOMPARE(m_bench->trashed(), (QStringList{u"more"_s, u"other"_s}));
}

void tst_Cleaner_questions::folderInUse_data() {
  QTest::addColumn<bool>("toTrash");
  QTest::addColumn<bool>("works");
  QTest::newRow("worked in, delete") << false << true;
  QTest::newRow("worked in, trash") << true << true;
  QTest::newRow("held open, delete") << false << false;
  QTest::newRow("held open, trash") << true << false;
}

// It stays where it is, for the process to find it again, and keeps nothing in it but what is open itself.
void tst_Cleaner_questions::folderInUse() {
  QFETCH(bool, toTrash);
  QFETCH(bool, works);
  const QString work = at(u"a/top/work"_s);
  const QString used = m_bench->home.file(u"a/top/work/used"_s);
  m_bench->home.file(u"a/top/work/sub/file"_s);
  m_bench->home.file(u"a/top/other"_s);
  m_bench->proc.addProcess(812, works ? work : u"/"_s);
  if (!works) m_bench->proc.addOpenFile(812, work);
  m_bench->proc.addOpenFile(812, used);
  const QList<CategoryResult> results = {CleanBench::category(u"x"_s, {CleanBench::item(at(u"a/top"_s))})};
  const QStringList told = {u"SKIPPED  %1  (open in an app)"_s.arg(used), u"SKIPPED  %1  (open in an app)"_s.arg(work)};
  m_bench->runDry(results, toTrash);
  QCOMPARE(m_bench->lines("SKIPPED"), told);
  QCOMPARE(m_bench->report.freedBytes, 8192);
  m_bench->run(results, toTrash);
  QVERIFY(CleanBench::isThere(used));
  QVERIFY(!CleanBench::isThere(at(u"a/top/work/sub"_s)));
  QVERIFY(!CleanBench::isThere(at(u"a/top/other"_s)));
  QCOMPARE(m_bench->lines("SKIPPED"), told);
  QCOMPARE(m_bench->report.skipped, 2);
  QCOMPARE(m_bench->report.freedBytes, 8192);
  QCOMPARE(m_bench->waits, QList<int>());
}

// A shell that stands in the folder of all caches, or in a cache, keeps none of them.
void tst_Cleaner_questions::folderInUseAboveTheItems() {
  m_bench->home.file(u".cache/mine/file"_s);
  m_bench->proc.addProcess(812, at(u".cache"_s));
  m_bench->proc.addProcess(813, at(u".cache/mine"_s));
  m_bench->run({CleanBench::category(u"appcache"_s, {CleanBench::item(at(u".cache/mine"_s), true)})});
  QVERIFY(!CleanBench::isThere(at(u".cache/mine/file"_s)));
  QVERIFY(CleanBench::isThere(at(u".cache/mine"_s)));
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList());
}

void tst_Cleaner_questions::rootOfAProcess_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<bool>("wholeRoot");
  QTest::addColumn<QString>("told");
  QTest::newRow("below the item") << u"a"_s << false << u"a/tree"_s;
  QTest::newRow("the item") << u"a/tree"_s << false << u"a/tree"_s;
  QTest::newRow("a whole root") << u"a/tree"_s << true << u"a/tree/lib"_s;
}

// All that the process can open lies in there.
void tst_Cleaner_questions::rootOfAProcess() {
  QFETCH(QString, item);
  QFETCH(bool, wholeRoot);
  QFETCH(QString, told);
  m_bench->home.file(u"a/tree/lib/libc.so"_s);
  m_bench->home.file(u"a/other"_s);
  m_bench->proc.addProcess(812, u"/"_s);
  m_bench->proc.setRoot(812, at(u"a/tree"_s));
  for (const bool toTrash : {false, true}) {
    m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(at(item), wholeRoot)})}, toTrash);
    QVERIFY(CleanBench::isThere(at(u"a/tree/lib/libc.so"_s)));
    QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (open in an app)"_s.arg(at(told))});
  }
  QCOMPARE(CleanBench::isThere(at(u"a/other"_s)), item != u"a");
}

void tst_Cleaner_questions::openFileOfOddName() {
  const QString folder = m_bench->home.folder(u"a/top"_s);
  m_bench->home.file(u"a/top/other"_s);
  const QByteArray odd = QFile::encodeName(folder) + "/odd\xff";
  QCOMPARE(::mkdir(odd.constData(), 0700), 0);
  m_bench->proc.addProcess(812, u"/"_s);
  const QByteArray link = QFile::encodeName(m_bench->proc.root()) + "/812/fd/77";
  QCOMPARE(::symlink(odd.constData(), link.constData()), 0);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(folder)})});
  const bool stayed = ::rmdir(odd.constData()) == 0;
  QVERIFY(stayed);
  QVERIFY(!CleanBench::isThere(at(u"a/top/other"_s)));
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1/odd\\xff  (open in an app)"_s.arg(folder)});
  QCOMPARE(m_bench->report.skippedSamples, QStringList{folder + "/odd\\xff"_L1});
}

void tst_Cleaner_questions::linkedRootAsksBothSpellings_data() {
  QTest::addColumn<QString>("question");
  for (const char* question : {"none", "rule on the user's", "rule on the real", "rule below on the real",
                               "open on the user's", "open on the real", "data on the real"})
    QTest::newRow(question) << QString::fromLatin1(question);
}

void tst_Cleaner_questions::linkedRootAsksBothSpellings() {
  QFETCH(QString, question);
  const QString real =
      m_bench->home.folder(m_bench->home.outside(question == u"data on the real" ? u"tailscale"_s : u"volume"_s));
  const QString file = m_bench->home.file(real + "/mine/sub/file"_L1);
  m_bench->home.link(u"linked"_s, real);
  ScanRoot root;
  root.path = at(u"linked/mine"_s);
  root.realPath = real + "/mine"_L1;
  root.label = u"mine"_s;
  CleanItem item = CleanBench::item(root.realPath, true);
  item.path = root.path;
  CategoryResult result = CleanBench::category(u"x"_s, {item});
  result.def.roots = {root};
  if (question == u"open on the user's") open(at(u"linked/mine/sub/file"_s));
  if (question == u"open on the real") open(file);
  QStringList rules;
  if (question == u"rule on the user's") rules << u"~/linked"_s;
  if (question == u"rule on the real") rules << u"volume"_s;
  if (question == u"rule below on the real") rules << real + "/mine/sub/file"_L1;
  m_bench->run({result}, false, rules);
  QCOMPARE(CleanBench::isThere(file), question != u"none");
  QVERIFY(CleanBench::isThere(root.realPath));
  QCOMPARE(m_bench->report.freedBytes, question == u"none" ? 4096 : 0);
  const QString told = m_bench->log.join(u'\n');
  QVERIFY2(!told.contains(real), qPrintable(told)); // the user's spelling alone is shown
}

void tst_Cleaner_questions::rootSwappedForALinkIsNotFollowed() {
  const QString precious = m_bench->home.file(u"precious/file"_s);
  m_bench->home.file(u"a/root/file"_s);
  const CleanItem item = CleanBench::item(at(u"a/root"_s), true);
  QVERIFY(QDir().rename(at(u"a/root"_s), at(u"a/was"_s)));
  m_bench->home.link(u"a/root"_s, at(u"precious"_s));
  m_bench->run({CleanBench::category(u"x"_s, {item})});
  QVERIFY(CleanBench::isThere(precious));
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (in use or access denied)"_s.arg(item.path)});
  QCOMPARE(m_bench->report.freedBytes, 0);
  QCOMPARE(m_bench->report.removedFiles, 0);
}

void tst_Cleaner_questions::itemsFolderSwappedForALinkIsNotFollowed() {
  const QString precious = m_bench->home.file(u"precious/file"_s);
  m_bench->home.file(u"a/root/file"_s);
  const CleanItem item = CleanBench::item(at(u"a/root/file"_s));
  QVERIFY(QDir().rename(at(u"a/root"_s), at(u"a/was"_s)));
  m_bench->home.link(u"a/root"_s, at(u"precious"_s));
  for (const bool toTrash : {false, true}) {
    m_bench->run({CleanBench::category(u"x"_s, {item})}, toTrash);
    QVERIFY(CleanBench::isThere(precious));
    QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (in use or access denied)"_s.arg(item.path)});
  }
  m_bench->runDry({CleanBench::category(u"x"_s, {item})});
  QCOMPARE(m_bench->report.freedBytes, 0);
}

void tst_Cleaner_questions::tempIsAdmittedAgain_data() {
  QTest::addColumn<QString>("change");
  for (const char* change : {"none", "touched", "used", "locked"}) QTest::newRow(change) << QString::fromLatin1(change);
}

void tst_Cleaner_questions::tempIsAdmittedAgain() {
  QFETCH(QString, change);
  const QString file = m_bench->home.file(m_bench->home.temp(u"left/file"_s));
  const CleanItem item = CleanBench::item(m_bench->home.temp(u"left"_s));
  FixtureHome::age(item.path, QDateTime::currentDateTime().addDays(-2));
  fs::Entry entry;
  QVERIFY(fs::stat(file, &entry));
  if (change == u"touched") FixtureHome::age(file, QDateTime::currentDateTime());
  if (change == u"used") m_bench->proc.addProcess(812, item.path);
  if (change == u"locked") m_bench->proc.addLock(entry.inode);
  m_bench->run({CleanBench::category(u"temp"_s, {item})});
  QCOMPARE(CleanBench::isThere(file), change != u"none");
  QCOMPARE(m_bench->lines("SKIPPED"),
           change == u"none" ? QStringList() : QStringList{u"SKIPPED  %1  (open in an app)"_s.arg(item.path)});
}

void tst_Cleaner_questions::cacheThatHoldsMoreIsLeftAlone_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<bool>("wholeRoot");
  QTest::addColumn<QString>("stays");
  QTest::newRow("itself") << u".cache/JetBrains"_s << false << u".cache/JetBrains"_s;
  QTest::newRow("in a package's cache root")
      << u".var/app/org.example.Ide/cache"_s << true << u".var/app/org.example.Ide/cache/JetBrains"_s;
}

void tst_Cleaner_questions::cacheThatHoldsMoreIsLeftAlone() {
  QFETCH(QString, item);
  QFETCH(bool, wholeRoot);
  QFETCH(QString, stays);
  m_bench->home.file(stays + "/history"_L1);
  m_bench->run({CleanBench::category(u"appcache"_s, {CleanBench::item(at(item), wholeRoot)})});
  QVERIFY(CleanBench::isThere(at(stays + "/history"_L1)));
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (protected app data)"_s.arg(at(stays))});
  // A folder of that name elsewhere is a cache like any other.
  m_bench->home.file(u".cache/mine/JetBrains/file"_s);
  m_bench->run({CleanBench::category(u"appcache"_s, {CleanBench::item(at(u".cache/mine"_s), true)})});
  QVERIFY(!CleanBench::isThere(at(u".cache/mine/JetBrains"_s)));
}

void tst_Cleaner_questions::onlyOwnWhereTheRootAsks() {
  if (::geteuid() != 0) QSKIP("only root can make files of others");
  const QString other = m_bench->home.file(u"crash/other.crash"_s);
  const QString own = m_bench->home.file(u"crash/own.crash"_s);
  QCOMPARE(::chown(QFile::encodeName(other).constData(), 65534, 65534), 0);
  ScanRoot root;
  root.path = at(u"crash"_s);
  root.ownOnly = true;
  CategoryResult result = CleanBench::category(u"logs"_s, {CleanBench::item(other), CleanBench::item(own)});
  result.def.roots = {root};
  m_bench->run({result});
  QVERIFY(CleanBench::isThere(other));
  QVERIFY(!CleanBench::isThere(own));
}

void tst_Cleaner_questions::ownLogStays_data() {
  QTest::addColumn<bool>("toTrash");
  QTest::addColumn<bool>("wholeRoot");
  QTest::newRow("delete") << false << false;
  QTest::newRow("trash") << true << false;
  QTest::newRow("delete in a whole root") << false << true;
  QTest::newRow("trash in a whole root") << true << true;
}

// On macOS the logs lie in a folder that is cleaned itself.
void tst_Cleaner_questions::ownLogStays() {
  QFETCH(bool, toTrash);
  QFETCH(bool, wholeRoot);
  qputenv("TARNWICK_HOST", "mac");
  QVERIFY(Cleaner::logDir().startsWith(at(u"Library/Logs/"_s)));
  const QString older = m_bench->home.file(u"Library/Logs/Tarnwick/cleanup-20240101-000000.log"_s);
  m_bench->run({CleanBench::category(u"logs"_s, {CleanBench::item(Cleaner::logDir(), wholeRoot)})}, toTrash);
  QVERIFY(!CleanBench::isThere(older));
  QVERIFY(CleanBench::isThere(m_bench->report.logPath));
  QCOMPARE(m_bench->lines("SKIPPED"), QStringList{u"SKIPPED  %1  (open in an app)"_s.arg(m_bench->report.logPath)});
}

void tst_Cleaner_questions::ownLogStaysUnderAnotherPath() {
  qputenv("TARNWICK_HOST", "mac");
  // The folder of the logs is a link to one that is cleaned.
  const QString real = m_bench->home.folder(u"logs/mine"_s);
  const QString older = m_bench->home.file(u"logs/mine/older"_s);
  m_bench->home.link(u"Library/Logs/Tarnwick"_s, real);
  m_bench->run({CleanBench::category(u"x"_s, {CleanBench::item(real)})}, true);
  QVERIFY(!CleanBench::isThere(older));
  QVERIFY(!m_bench->log.isEmpty());
  QCOMPARE(m_bench->lines("SKIPPED").size(), 1);
}

QTEST_GUILESS_MAIN(tst_Cleaner_questions)
#include "tst_Cleaner_questions.moc"
