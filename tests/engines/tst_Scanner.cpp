// What a scan lists: which entries become items, and with which figures.
#include "core/fs.h"
#include "engines/ScanTest.h"
#include "engines/Unprivileged.h"
#include "engines/categories.h"

#include <QDateTime>
#include <QDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_Scanner : public ScanTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void listedRoot_data();
  void listedRoot();
  void wholeRoot();
  void largerFirst();
  void emptyFilesCountButAreNoItem();
  void modifiedIsTheNewest();
  void installersByPattern_data();
  void installersByPattern();
  void exclusionsDropItems();
  void exclusionsDropWholeRoots();
  void protectedDataIsNoItem();
  void protectedDataIsNoRoot();
  void protectedLocationIsNoItem();
  void unreadableRootIsDenied();
  void ownersOfRunningApps_data();
  void ownersOfRunningApps();
  void noOwnersElsewhere();
  void linkedRootKeepsTheUsersSpelling();
  void tellsWhatItCouldNotRead();
  void linkedRootAsksBothSpellings_data();
  void linkedRootAsksBothSpellings();
  void nameThatIsNoTextIsNoItem();
  void nameThatIsNoTextIsCounted_data();
  void nameThatIsNoTextIsCounted();
  void linksAreNotFollowed();
  void onlyOwnWhereTheRootAsks();
  void tempIsAdmittedEntryByEntry();
  void tempOnMacTakesAll();
  void trashAsksExclusionsOfTheItemAlone();
};

void tst_Scanner::listedRoot_data() {
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<QString>("folder");
  QTest::addColumn<QString>("id");
  QTest::newRow("mac logs") << QByteArray("mac") << u"Library/Logs"_s << u"logs"_s;
  QTest::newRow("mac trash") << QByteArray("mac") << u".Trash"_s << u"trash"_s;
  QTest::newRow("linux trash") << QByteArray("linux") << u".local/share/Trash/files"_s << u"trash"_s;
}

// Each child is an item, a folder with all that lies in it.
void tst_Scanner::listedRoot() {
  QFETCH(QByteArray, host);
  QFETCH(QString, folder);
  QFETCH(QString, id);
  qputenv("TARNWICK_HOST", host);
  const QString file = m_home->file(folder + "/one.log"_L1, 4096);
  m_home->file(folder + "/app/two.log"_L1, 8192);
  m_home->file(folder + "/app/sub/three.log"_L1, 8192);
  ScanRun run;
  scan(&run, {}, {id});
  const CategoryResult result = run.category(id);
  QList<CleanItem> own;
  for (const CleanItem& item : result.items)
    if (item.path.startsWith(m_home->path())) own << item;
  QCOMPARE(own.size(), 2);
  QCOMPARE(own[0].path, m_home->path(folder + "/app"_L1));
  QCOMPARE(own[0].name, u"app"_s);
  QCOMPARE(own[0].bytes, 16384);
  QCOMPARE(own[0].files, 2);
  QVERIFY(!own[0].wholeRoot);
  QCOMPARE(own[1].path, file);
  QCOMPARE(own[1].name, u"one.log"_s);
  QCOMPARE(own[1].bytes, 4096);
  QCOMPARE(own[1].files, 1);
}

void tst_Scanner::wholeRoot() {
  m_home->file(u".cache/mine/a"_s, 4096);
  m_home->file(u".cache/mine/sub/b"_s, 4096);
  ScanRun run;
  scan(&run);
  const CategoryResult result = run.category(u"appcache"_s);
  QCOMPARE(result.items.size(), 1);
  QCOMPARE(result.items[0].path, m_home->path(u".cache/mine"_s));
  QCOMPARE(result.items[0].name, u"mine"_s);
  QVERIFY(result.items[0].wholeRoot);
  QCOMPARE(result.items[0].bytes, 8192);
  QCOMPARE(result.items[0].files, 2);
  QCOMPARE(result.bytes, 8192);
  QCOMPARE(result.files, 2);
}

void tst_Scanner::largerFirst() {
  for (const int kib : {8, 40, 4, 24, 12}) m_home->file(u".cache/app%1/data"_s.arg(kib), kib * 1024);
  ScanRun run;
  scan(&run);
  QCOMPARE(run.names(u"appcache"_s), (QStringList{u"app40"_s, u"app24"_s, u"app12"_s, u"app8"_s, u"app4"_s}));
}

void tst_Scanner::emptyFilesCountButAreNoItem() {
  m_home->file(u".cache/mine/empty"_s, 0);
  const QString sparse = m_home->file(u".cache/other/sparse"_s, 0);
  QCOMPARE(::truncate(sparse.toUtf8().constData(), 1 << 20), 0);
  m_home->file(m_home->temp(u"nothing"_s), 0);
  makeOld(m_home->temp(u"nothing"_s));
  ScanRun run;
  scan(&run);
  QCOMPARE(run.category(u"appcache"_s).files, 2);
  QCOMPARE(run.category(u"appcache"_s).bytes, 0);
  QVERIFY(run.category(u"appcache"_s).items.isEmpty());
  QCOMPARE(run.category(u"temp"_s).files, 1);
  QVERIFY(run.category(u"temp"_s).items.isEmpty());
}

void tst_Scanner::modifiedIsTheNewest() {
  const QDateTime old = QDateTime::fromSecsSinceEpoch(1'500'000'000);
  const QDateTime newer = QDateTime::fromSecsSinceEpoch(1'600'000'000);
  m_home->file(u".local/share/Trash/files/folder/old"_s);
  const QString file = m_home->file(u".local/share/Trash/files/folder/newer"_s);
  const QString folder = m_home->path(u".local/share/Trash/files/folder"_s);
  FixtureHome::age(folder, old);
  FixtureHome::age(file, newer);
  ScanRun run;
  scan(&run, {}, {u"trash"_s});
  QCOMPARE(run.category(u"trash"_s).items[0].modified, newer.toMSecsSinceEpoch());
  // The folder's own time counts where it is the later one.
  const QDateTime newest = QDateTime::fromSecsSinceEpoch(1'700'000'000);
  FixtureHome::age(folder, newest);
  FixtureHome::age(file, old);
  ScanRun again;
  scan(&again, {}, {u"trash"_s});
  QCOMPARE(again.category(u"trash"_s).items[0].modified, newest.toMSecsSinceEpoch());
}

void tst_Scanner::installersByPattern_data() {
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<QStringList>("expected");
  QTest::newRow("mac") << QByteArray("mac") << QStringList{u"App.mpkg"_s, u"Folder.pkg"_s, u"a.dmg"_s, u"b.DMG"_s};
  QTest::newRow("linux") << QByteArray("linux")
                         << QStringList{u"c.deb"_s,        u"d.Deb"_s, u"e.rpm"_s, u"f.snap"_s, u"g.flatpak"_s,
                                        u"h.flatpakref"_s, u"i.run"_s, u"j.iso"_s, u"k.img"_s};
}

// In any case of letters; a folder of such a name is one item.
void tst_Scanner::installersByPattern() {
  QFETCH(QByteArray, host);
  QFETCH(QStringList, expected);
  qputenv("TARNWICK_HOST", host);
  for (const char* name :
       {"a.dmg", "b.DMG", "App.mpkg", "Folder.pkg/sub/data", "c.deb", "d.Deb", "e.rpm", "f.snap", "g.flatpak",
        "h.flatpakref", "i.run", "j.iso", "k.img", "notes.txt", "x.AppImage", "deb", "y.deb.part"})
    m_home->file(u"Downloads/"_s + QString::fromLatin1(name));
  ScanRun run;
  scan(&run, {}, {u"update"_s});
  QStringList names = run.names(u"update"_s);
  names.sort();
  QCOMPARE(names, expected);
  QCOMPARE(run.category(u"update"_s).files, expected.size());
}

void tst_Scanner::exclusionsDropItems() {
  m_home->file(u".local/share/Trash/files/keep.log"_s);
  m_home->file(u".local/share/Trash/files/gone.txt"_s);
  ScanRun run;
  scan(&run, {u"*.log"_s}, {u"trash"_s});
  QVERIFY(run.names(u"trash"_s).contains(u"gone.txt"_s));
  QVERIFY(!run.names(u"trash"_s).contains(u"keep.log"_s));
  ScanRun none;
  scan(&none, {u"~/.local/share/Trash"_s}, {u"trash"_s});
  QVERIFY(!none.names(u"trash"_s).contains(u"gone.txt"_s));
}

void tst_Scanner::exclusionsDropWholeRoots() {
  m_home->file(u".cache/mine/a"_s);
  m_home->file(u".cache/other/a"_s);
  ScanRun run;
  scan(&run, {u"~/.cache/mine"_s});
  QCOMPARE(run.names(u"appcache"_s), QStringList{u"other"_s});
}

void tst_Scanner::protectedDataIsNoItem() {
  m_home->file(u".local/share/Trash/files/1Password 7/vault"_s);
  m_home->file(u".local/share/Trash/files/plain"_s);
  ScanRun run;
  scan(&run, {}, {u"trash"_s});
  QVERIFY(run.names(u"trash"_s).contains(u"plain"_s));
  QVERIFY(!run.names(u"trash"_s).contains(u"1Password 7"_s));
}

void tst_Scanner::protectedDataIsNoRoot() {
  m_home->file(u".cache/bitwarden/a"_s);
  m_home->file(u".cache/plain/a"_s);
  ScanRun run;
  scan(&run);
  QCOMPARE(run.names(u"appcache"_s), QStringList{u"plain"_s});
  QCOMPARE(run.category(u"appcache"_s).files, 1);
}

void tst_Scanner::protectedLocationIsNoItem() {
  m_home->file(u"Documents/letter"_s);
  m_home->file(u"other/file"_s);
  ScanRun run;
  scanCatalogue(&run, QList<CategoryDef>{categoryOf(u"x"_s, {rootOf(m_home->path())})});
  QVERIFY(run.names(u"x"_s).contains(u"other"_s));
  QVERIFY(!run.names(u"x"_s).contains(u"Documents"_s));
}

void tst_Scanner::unreadableRootIsDenied() {
  m_home->file(u".cache/mine/a"_s);
  m_home->file(u".local/share/xorg/x.old"_s);
  const Unprivileged user(*m_home);
  const QByteArray closed = m_home->path(u".local/share/xorg"_s).toUtf8();
  QCOMPARE(::chmod(closed.constData(), 0), 0);
  ScanRun run;
  scan(&run, {}, {u"logs"_s, u"appcache"_s});
  ::chmod(closed.constData(), 0700);
  QVERIFY(run.category(u"logs"_s).accessDenied);
  QVERIFY(!run.names(u"logs"_s).contains(u"x.old"_s));
  QVERIFY(!run.category(u"appcache"_s).accessDenied);
  QCOMPARE(run.names(u"appcache"_s), QStringList{u"mine"_s});
}

void tst_Scanner::ownersOfRunningApps_data() {
  QTest::addColumn<QString>("folder");
  QTest::addColumn<QString>("id");
  QTest::addColumn<QString>("executable");
  QTest::addColumn<QString>("owner");
  QTest::newRow("browser") << u".cache/google-chrome"_s << u"browser"_s << u"/opt/google/chrome/chrome"_s
                           << u"Google Chrome"_s;
  QTest::newRow("not running") << u".cache/google-chrome"_s << u"browser"_s << u"/usr/bin/other"_s << QString();
  QTest::newRow("app") << u".cache/spotify"_s << u"appcache"_s << u"/usr/share/spotify/spotify"_s << u"Spotify"_s;
  QTest::newRow("by name") << u".cache/someplayer"_s << u"appcache"_s << u"/usr/bin/someplayer"_s << u"someplayer"_s;
}

void tst_Scanner::ownersOfRunningApps() {
  QFETCH(QString, folder);
  QFETCH(QString, id);
  QFETCH(QString, executable);
  QFETCH(QString, owner);
  m_home->file(folder + "/data"_L1);
  m_proc->addProcess(812, u"/"_s, executable);
  ScanRun run;
  scan(&run);
  QCOMPARE(run.category(id).items.size(), 1);
  QCOMPARE(run.category(id).items[0].owner, owner);
}

void tst_Scanner::noOwnersElsewhere() {
  m_home->file(u".local/share/Trash/files/firefox/data"_s);
  m_proc->addProcess(812, u"/"_s, u"/usr/bin/firefox"_s);
  ScanRun run;
  scan(&run, {}, {u"trash"_s});
  for (const CleanItem& item : run.category(u"trash"_s).items) QCOMPARE(item.owner, QString());
}

void tst_Scanner::linkedRootKeepsTheUsersSpelling() {
  const QString real = m_home->folder(m_home->outside(u"volume"_s));
  m_home->file(real + "/mine/a"_L1, 8192);
  m_home->file(real + "/Trash/files/thrown"_L1, 4096);
  m_home->link(u".cache"_s, real);
  m_home->link(u".local/share"_s, real);
  ScanRun run;
  scan(&run, {}, {u"appcache"_s, u"trash"_s});
  const QList<CleanItem> items = run.category(u"appcache"_s).items;
  QCOMPARE(items.size(), 2); // "Trash" is a cache folder here, too
  QCOMPARE(items[0].path, m_home->path(u".cache/mine"_s));
  QCOMPARE(items[0].bytes, 8192);
  const QList<CleanItem> thrown = run.category(u"trash"_s).items;
  QVERIFY(std::any_of(thrown.begin(), thrown.end(), [&](const CleanItem& item) {
    return item.path == m_home->path(u".local/share/Trash/files/thrown"_s) && item.bytes == 4096;
  }));
}

void tst_Scanner::tellsWhatItCouldNotRead() {
  m_home->file(u".cache/mine/open/a"_s);
  const QByteArray closed = QFile::encodeName(m_home->folder(u".cache/mine/closed"_s));
  m_home->file(u".cache/other/a"_s);
  const Unprivileged user(*m_home);
  ::chmod(closed.constData(), 0);
  ScanRun run;
  scan(&run, {}, {u"appcache"_s});
  ::chmod(closed.constData(), 0700);
  const QList<CleanItem> items = run.category(u"appcache"_s).items;
  QCOMPARE(items.size(), 2);
  for (const CleanItem& item : items) QCOMPARE(item.unread, item.name == u"mine" ? 1 : 0);
}

void tst_Scanner::linkedRootAsksBothSpellings_data() {
  QTest::addColumn<QString>("folder"); // where the cache really lies
  QTest::addColumn<QString>("rule");
  QTest::addColumn<bool>("found");
  QTest::newRow("free") << u"volume"_s << u"nothing"_s << true;
  QTest::newRow("the user's spelling") << u"volume"_s << u"~/.cache/mine"_s << false;
  QTest::newRow("the real spelling") << u"volume"_s << u"volume"_s << false;
  QTest::newRow("protected data under the real one") << u"nordvpn"_s << u"nothing"_s << false;
}

void tst_Scanner::linkedRootAsksBothSpellings() {
  QFETCH(QString, folder);
  QFETCH(QString, rule);
  QFETCH(bool, found);
  const QString real = m_home->folder(m_home->outside(folder));
  m_home->file(real + "/mine/a"_L1);
  m_home->link(u".cache"_s, real);
  m_home->link(u".Trash"_s, real);
  ScanRun run;
  scan(&run, {rule}, {u"appcache"_s});
  QCOMPARE(run.names(u"appcache"_s), found ? QStringList{u"mine"_s} : QStringList());
}

void tst_Scanner::nameThatIsNoTextIsNoItem() {
  const QString folder = m_home->folder(u".local/share/Trash/files"_s);
  m_home->file(u".local/share/Trash/files/plain"_s);
  const QByteArray odd = folder.toUtf8() + "/odd\xff";
  const int fd = ::open(odd.constData(), O_CREAT | O_WRONLY, 0600);
  QCOMPARE(::write(fd, "x", 1), 1);
  ::close(fd);
  QCOMPARE(::mkdir((odd + "-folder").constData(), 0700), 0);
  ScanRun run;
  scan(&run, {}, {u"trash"_s});
  ::unlink(odd.constData());
  ::rmdir((odd + "-folder").constData());
  QStringList own;
  for (const CleanItem& item : run.category(u"trash"_s).items)
    if (item.path.startsWith(folder)) own << item.name;
  QCOMPARE(own, QStringList{u"plain"_s});
}

void tst_Scanner::nameThatIsNoTextIsCounted_data() {
  QTest::addColumn<QStringList>("patterns");
  QTest::addColumn<QStringList>("rules");
  QTest::addColumn<int>("files");
  QTest::newRow("all") << QStringList{} << QStringList{} << 4;
  QTest::newRow("by pattern") << QStringList{u"*.deb"_s} << QStringList{} << 3;
  QTest::newRow("by a rule") << QStringList{} << QStringList{u"odd?-folder.deb"_s} << 2;
}

// Among the files; what it holds is no item's, so the bytes stay the sum over the items.
void tst_Scanner::nameThatIsNoTextIsCounted() {
  QFETCH(QStringList, patterns);
  QFETCH(QStringList, rules);
  QFETCH(int, files);
  m_home->file(u"a/plain.deb"_s, 4096);
  const QByteArray odd = m_home->path(u"a"_s).toUtf8() + "/odd\xff";
  const auto write = [](const QByteArray& path) {
    const int fd = ::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    QCOMPARE(::write(fd, "x", 1), 1);
    ::close(fd);
  };
  write(odd);
  QCOMPARE(::mkdir((odd + "-folder.deb").constData(), 0700), 0);
  write(odd + "-folder.deb/one");
  write(odd + "-folder.deb/two\xfe");
  ScanRoot root = rootOf(m_home->path(u"a"_s));
  root.patterns = patterns;
  ScanRun run;
  scanCatalogue(&run, QList<CategoryDef>{categoryOf(u"x"_s, {root})}, rules);
  QCOMPARE(run.names(u"x"_s), QStringList{u"plain.deb"_s});
  QCOMPARE(run.category(u"x"_s).files, files);
  QCOMPARE(run.category(u"x"_s).bytes, 4096);
  QCOMPARE(run.progress.last().files, files);
}

void tst_Scanner::linksAreNotFollowed() {
  m_home->file(u"big/data"_s, 1 << 20);
  m_home->link(u".cache/mine/link"_s, m_home->path(u"big"_s));
  m_home->file(u".cache/mine/own"_s, 4096);
  ScanRun run;
  scan(&run);
  QCOMPARE(run.category(u"appcache"_s).bytes, 4096);
  QCOMPARE(run.category(u"appcache"_s).files, 2);
}

void tst_Scanner::onlyOwnWhereTheRootAsks() {
  if (::geteuid() != 0) QSKIP("only root can make files of others");
  m_home->file(u"crash/own.crash"_s);
  const QString other = m_home->file(u"crash/other.crash"_s);
  QCOMPARE(::chown(other.toUtf8().constData(), 65534, 65534), 0);
  ScanRoot root = rootOf(m_home->path(u"crash"_s));
  ScanRun all;
  scanCatalogue(&all, QList<CategoryDef>{categoryOf(u"x"_s, {root})});
  QCOMPARE(all.names(u"x"_s).size(), 2);
  root.ownOnly = true;
  ScanRun own;
  scanCatalogue(&own, QList<CategoryDef>{categoryOf(u"x"_s, {root})});
  QCOMPARE(own.names(u"x"_s), QStringList{u"own.crash"_s});
}

void tst_Scanner::tempIsAdmittedEntryByEntry() {
  for (const char* name : {"old", "fresh", "ssh-agent", "used/file", "locked"})
    m_home->file(m_home->temp(QString::fromLatin1(name)));
  makeOld(m_home->temp());
  FixtureHome::age(m_home->temp(u"fresh"_s), QDateTime::currentDateTime());
  m_proc->addProcess(812, m_home->temp(u"used"_s));
  fs::Entry locked;
  QVERIFY(fs::stat(m_home->temp(u"locked"_s), &locked));
  m_proc->addLock(locked.inode);
  ScanRun run;
  scan(&run, {}, {u"temp"_s});
  QCOMPARE(run.names(u"temp"_s), QStringList{u"old"_s});
  QCOMPARE(run.category(u"temp"_s).files, 1);
}

void tst_Scanner::tempOnMacTakesAll() {
  qputenv("TARNWICK_HOST", "mac");
  m_home->file(m_home->temp(u"fresh"_s));
  m_home->file(m_home->temp(u"ssh-agent"_s));
  ScanRun run;
  scan(&run, {}, {u"temp"_s});
  QStringList names = run.names(u"temp"_s);
  names.sort();
  QCOMPARE(names, (QStringList{u"fresh"_s, u"ssh-agent"_s}));
}

// A repository that was thrown away is an item, with all in it.
void tst_Scanner::trashAsksExclusionsOfTheItemAlone() {
  m_home->file(u".local/share/Trash/files/project/.git/objects/a"_s, 8192);
  m_home->file(u".local/share/Trash/files/.git/objects/a"_s);
  ScanRun run;
  scan(&run, {u"**/.git"_s}, {u"trash"_s});
  QVERIFY(run.names(u"trash"_s).contains(u"project"_s));
  QVERIFY(!run.names(u"trash"_s).contains(u".git"_s));
}

QTEST_GUILESS_MAIN(tst_Scanner)
#include "tst_Scanner.moc"
