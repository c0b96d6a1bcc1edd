// The way to the Trash: under which name and with which info file a thing comes there, and where there is none for it.
#include "TrashTest.h"
#include "engines/Mounts.h"
#include "support/child.h"

#include <QDateTime>
#include <QDir>
#include <QTest>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <optional>

using namespace Qt::StringLiterals;
using trash::Outcome;
using trash::Result;
using trash::Session;

namespace {

mode_t modeOf(const QString& path) {
  struct stat status {};
  ::lstat(raw(path).constData(), &status);
  return status.st_mode & 07777u;
}

/// A file system at @p point that counts as a disk and needs none.
bool mountDisk(const QByteArray& point) {
  const QByteArray base = point + ".layers";
  for (const char* part : {"", "/lower", "/upper", "/work"}) ::mkdir((base + part).constData(), 0700);
  if (::mount("tmpfs", base.constData(), "tmpfs", 0, "size=1m,mode=0700") != 0) return false;
  for (const char* part : {"/lower", "/upper", "/work"}) ::mkdir((base + part).constData(), 0700);
  const QByteArray options = "lowerdir=" + base + "/lower,upperdir=" + base + "/upper,workdir=" + base + "/work";
  return ::mount("overlay", point.constData(), "overlay", 0, options.constData()) == 0;
}

} // namespace

class TestTrash : public TrashTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void makesTheHomeTrash();
  void writesTheInfoFile_data();
  void writesTheInfoFile();
  void movesFoldersAndLinksAsTheyAre();
  void findsFreeNames();
  void findsFreeNamesAcrossSessions();
  void sharesNamesOnlyByBytes();
  void shortensLongNames();
  void writesTheInfoFileFirst();
  void refusesOddNames();
  void tellsWhatIsGone();
  void followsNoPlantedTrash_data();
  void followsNoPlantedTrash();
  void followsNoPlantedInfo();
  void refusesAForeignTrash();
  void tellsAnUnwritableTrash();
  void surveysWithoutMaking();
  void keepsOnWhenTheTrashIsEmptiedAway();
  void obeysTheDataFolder();
  void listsFilesFolders();
  void listsOnlyWhatATextReaches();
};

void TestTrash::makesTheHomeTrash() {
  const QString file = m_home.file(u"a/file.txt"_s);
  const mode_t before = ::umask(0);
  const Outcome outcome = move(file);
  ::umask(before);
  QVERIFY(outcome.result == Result::Moved);
  QCOMPARE(outcome.trashedPath, m_trash + u"/files/file.txt"_s);
  QCOMPARE(outcome.infoPath, m_trash + u"/info/file.txt.trashinfo"_s);
  QVERIFY(!isThere(file));
  QCOMPARE(contentsOf(outcome.trashedPath).size(), 4096);
  for (const QString& folder : {m_trash, m_trash + u"/files"_s, m_trash + u"/info"_s, m_home.path(u".local"_s)})
    QCOMPARE(modeOf(folder), 0700u);
  QCOMPARE(modeOf(outcome.infoPath), 0600u);
}

void TestTrash::writesTheInfoFile_data() {
  QTest::addColumn<QByteArray>("name");
  QTest::addColumn<QByteArray>("encoded");
  QTest::newRow("plain") << QByteArray("plain.txt") << QByteArray("plain.txt");
  QTest::newRow("percent") << QByteArray("50%25") << QByteArray("50%2525");
  QTest::newRow("newline") << QByteArray("a\nb") << QByteArray("a%0Ab");
  QTest::newRow("no text") << QByteArray("caf\xe9") << QByteArray("caf%E9");
  QTest::newRow("blank") << QByteArray("two words") << QByteArray("two%20words");
  QTest::newRow("umlaut") << QByteArray("\xc3\xbc") << QByteArray("%C3%BC");
  QTest::newRow("an info file's") << QByteArray("x.trashinfo") << QByteArray("x.trashinfo");
}

void TestTrash::writesTheInfoFile() {
  QFETCH(QByteArray, name);
  QFETCH(QByteArray, encoded);
  const QString folder = m_home.folder(u"a b"_s);
  ::close(::open((raw(folder) + '/' + name).constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
  Session session;
  const qint64 before = QDateTime::currentSecsSinceEpoch();
  const Outcome outcome = session.move(openFolder(folder).get(), name, raw(folder) + '/' + name);
  QVERIFY(outcome.result == Result::Moved);
  const QByteArray path = raw(m_trash) + "/info/" + name + ".trashinfo";
  QFile info;
  QVERIFY(info.open(::open(path.constData(), O_RDONLY | O_CLOEXEC), QIODevice::ReadOnly, QFile::AutoCloseHandle));
  const QByteArrayList lines = info.readAll().split('\n');
  QCOMPARE(lines.size(), 4);
  QCOMPARE(lines.at(0), "[Trash Info]");
  QCOMPARE(lines.at(1), "Path=" + raw(m_home.path()) + "/a%20b/" + encoded);
  QVERIFY(lines.at(2).startsWith("DeletionDate="));
  const QString when = QString::fromLatin1(lines.at(2).mid(13));
  QCOMPARE(when.size(), 19);
  const qint64 told = QDateTime::fromString(when, u"yyyy-MM-ddTHH:mm:ss"_s).toSecsSinceEpoch();
  QVERIFY(told >= before && told <= QDateTime::currentSecsSinceEpoch());
  QCOMPARE(lines.at(3), "");
}

void TestTrash::movesFoldersAndLinksAsTheyAre() {
  const QString precious = m_home.file(u"precious/file"_s);
  m_home.file(u"in/folder/file"_s);
  const QString link = m_home.link(u"in/link"_s, m_home.path(u"precious"_s));
  const QString dangling = m_home.link(u"in/dangling"_s, u"/no/such/file"_s);
  QVERIFY(move(m_home.path(u"in/folder"_s)).result == Result::Moved);
  QVERIFY(move(link).result == Result::Moved);
  QVERIFY(move(dangling).result == Result::Moved);
  QVERIFY(isThere(m_trash + u"/files/folder/file"_s));
  QVERIFY(QFileInfo(m_trash + u"/files/link"_s).isSymLink());
  QVERIFY(isThere(m_trash + u"/files/dangling"_s));
  QVERIFY(isThere(precious));
  QVERIFY(namesIn(m_home.path(u"in"_s)).isEmpty());
}

void TestTrash::findsFreeNames() {
  m_home.file(m_trash + u"/files/orphan.txt"_s); // without an info file
  m_home.file(m_trash + u"/info/lost.txt.trashinfo"_s);
  Session session;
  for (int i = 0; i < 4; ++i) {
    for (const QString& name : {u"same.txt"_s, u"orphan.txt"_s, u"lost.txt"_s}) {
      const QString file = m_home.file(u"%1/%2"_s.arg(i).arg(name), i + 1);
      const auto folder = openFolder(m_home.path(QString::number(i)));
      QVERIFY(session.move(folder.get(), raw(name), raw(file)).result == Result::Moved);
    }
  }
  QCOMPARE(namesIn(m_trash + u"/files"_s),
           (QStringList{u"lost.2.txt"_s, u"lost.3.txt"_s, u"lost.4.txt"_s, u"lost.5.txt"_s, u"orphan.2.txt"_s,
                        u"orphan.3.txt"_s, u"orphan.4.txt"_s, u"orphan.5.txt"_s, u"orphan.txt"_s, u"same.2.txt"_s,
                        u"same.3.txt"_s, u"same.4.txt"_s, u"same.txt"_s}));
  QCOMPARE(namesIn(m_trash + u"/info"_s).size(), 12 + 1);
  QCOMPARE(contentsOf(m_trash + u"/files/orphan.txt"_s).size(), 4096); // never replaced
  QCOMPARE(contentsOf(m_trash + u"/files/same.4.txt"_s).size(), 4);
  QVERIFY(contentsOf(m_trash + u"/info/same.4.txt.trashinfo"_s).contains("/3/same.txt\n"));
}

void TestTrash::findsFreeNamesAcrossSessions() {
  for (int i = 0; i < 3; ++i) QVERIFY(move(m_home.file(u"x"_s)).result == Result::Moved);
  QCOMPARE(namesIn(m_trash + u"/files"_s), (QStringList{u"x"_s, u"x.2"_s, u"x.3"_s}));
}

void TestTrash::sharesNamesOnlyByBytes() {
  Session session;
  for (const QByteArray& name : {QByteArray("\xc3\xa9"), QByteArray("e\xcc\x81"), QByteArray("\xe9")}) {
    const QString folder = m_home.folder(u"forms"_s);
    ::close(::open((raw(folder) + '/' + name).constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    QVERIFY(session.move(openFolder(folder).get(), name, raw(folder) + '/' + name).result == Result::Moved);
    QCOMPARE(::access((raw(m_trash) + "/files/" + name).constData(), F_OK), 0);
  }
}

void TestTrash::shortensLongNames() {
  const QString name = QString(251, u'n') + u".txt"_s;
  for (int i = 0; i < 2; ++i) {
    const Outcome outcome = move(m_home.file(u"long/"_s + name));
    QVERIFY(outcome.result == Result::Moved);
    QVERIFY(isThere(outcome.trashedPath));
    QCOMPARE(QFileInfo(outcome.infoPath).fileName().size(), 255);
    QVERIFY(contentsOf(outcome.infoPath).contains(raw(name)));
  }
}

void TestTrash::writesTheInfoFileFirst() {
  // Where the info file can't be made, nothing moves; where the move fails, the info file goes again.
  const QString file = m_home.file(u"first/file"_s);
  const QString folder = m_home.folder(u"first/folder"_s);
  Session session;
  const auto dir = openFolder(m_home.path(u"first"_s));
  QVERIFY(session.move(dir.get(), "no such file", raw(folder) + "/no such file").error == ENOENT);
  QVERIFY(namesIn(m_trash + u"/info"_s).isEmpty());
  // The Trash can't move into itself.
  const auto data = openFolder(m_home.path(u".local/share"_s));
  const Outcome outcome = session.move(data.get(), "Trash", raw(m_trash));
  QVERIFY(outcome.result == Result::Failed && outcome.error != 0);
  QVERIFY(namesIn(m_trash + u"/info"_s).isEmpty() && namesIn(m_trash + u"/files"_s).isEmpty());
  QVERIFY(isThere(file));
}

void TestTrash::refusesOddNames() {
  const QString file = m_home.file(u"odd/file"_s);
  Session session;
  const auto folder = openFolder(m_home.path(u"odd"_s));
  for (const QByteArray& name :
       {QByteArray(), QByteArray("."), QByteArray(".."), QByteArray("a/b"), QByteArray("../odd/file")}) {
    const Outcome outcome = session.move(folder.get(), name, raw(file));
    QVERIFY(outcome.result == Result::Failed);
    QCOMPARE(outcome.error, EINVAL);
  }
  QVERIFY(session.move(-1, "file", raw(file)).result == Result::Failed);
  QVERIFY(isThere(file));
}

void TestTrash::tellsWhatIsGone() {
  const QString folder = m_home.folder(u"gone"_s);
  const Outcome outcome = move(folder + u"/file"_s);
  QVERIFY(outcome.result == Result::Failed);
  QCOMPARE(outcome.error, ENOENT);
}

void TestTrash::followsNoPlantedTrash_data() {
  QTest::addColumn<QString>("link");
  QTest::newRow("the Trash") << u".local/share/Trash"_s;
  QTest::newRow("its files") << u".local/share/Trash/files"_s;
  QTest::newRow("its info") << u".local/share/Trash/info"_s;
}

void TestTrash::followsNoPlantedTrash() {
  QFETCH(QString, link);
  const QString elsewhere = m_home.folder(u"elsewhere"_s);
  m_home.link(link, elsewhere);
  const QString file = m_home.file(u"a/file"_s);
  giveToPlainUser(m_home.path());
  QCOMPARE(asPlainUser([&] { return move(file).result == Result::NoTrash ? 0 : 1; }), 0);
  QVERIFY(isThere(file));
  QVERIFY(namesIn(elsewhere).isEmpty());
}

void TestTrash::followsNoPlantedInfo() {
  const QString file = m_home.file(u"a/file"_s);
  m_home.folder(u".local/share/Trash/files"_s);
  const QString target = m_home.file(u"target"_s, 1);
  m_home.link(u".local/share/Trash/info/file.trashinfo"_s, target);
  m_home.link(u".local/share/Trash/info/file.2.trashinfo"_s, m_home.path(u"made through a link"_s));
  const Outcome outcome = move(file);
  QVERIFY(outcome.result == Result::Moved);
  QCOMPARE(outcome.trashedPath, m_trash + u"/files/file.3"_s);
  QCOMPARE(contentsOf(target), "x");
  QVERIFY(!isThere(m_home.path(u"made through a link"_s)));
}

void TestTrash::refusesAForeignTrash() {
  if (::geteuid() != 0) QSKIP("only root can give a folder away");
  const QString file = m_home.file(u"a/file"_s);
  for (const QString& foreign : {m_trash, m_trash + u"/files"_s, m_trash + u"/info"_s}) {
    m_home.folder(u".local/share/Trash/files"_s);
    m_home.folder(u".local/share/Trash/info"_s);
    giveToPlainUser(m_home.path());
    QCOMPARE(::chown(raw(foreign).constData(), 0, 0), 0);
    QCOMPARE(::chmod(raw(foreign).constData(), 0777), 0);
    QCOMPARE(asPlainUser([&] { return move(file).result == Result::NoTrash ? 0 : 1; }), 0);
    QVERIFY(namesIn(m_trash + u"/files"_s).isEmpty() && isThere(file));
    QDir(m_trash).removeRecursively();
  }
}

void TestTrash::tellsAnUnwritableTrash() {
  const QString file = m_home.file(u"a/file"_s);
  const QString kept = m_home.file(u"fixed/file"_s);
  m_home.folder(u".local/share/Trash/files"_s);
  m_home.folder(u".local/share/Trash/info"_s);
  giveToPlainUser(m_home.path());
  ::chmod(raw(m_home.path(u"fixed"_s)).constData(), 0500);
  const int result = asPlainUser([&] {
    // The folder above isn't to be written: the move fails, and leaves no info file.
    if (const Outcome one = move(kept); one.result != Result::Failed || one.error != EACCES) return 1;
    if (!namesIn(m_trash + u"/info"_s).isEmpty()) return 2;
    // Nor is the Trash: there is none, and it's told at once.
    ::chmod(raw(m_trash + u"/info"_s).constData(), 0500);
    if (move(file).result != Result::NoTrash || !isThere(file)) return 3;
    ::chmod(raw(m_trash + u"/info"_s).constData(), 0700);
    // It becomes unwritable while the session holds it open.
    Session session;
    const QString first = m_home.file(u"a/first"_s);
    const auto folder = openFolder(m_home.path(u"a"_s));
    if (session.move(folder.get(), "first", raw(first)).result != Result::Moved) return 4;
    ::chmod(raw(m_trash + u"/files"_s).constData(), 0500);
    if (session.move(folder.get(), "file", raw(file)).result == Result::Moved) return 5;
    if (!isThere(file) || namesIn(m_trash + u"/info"_s).size() != 1) return 6;
    ::chmod(raw(m_trash + u"/files"_s).constData(), 0700);
    return 0;
  });
  ::chmod(raw(m_home.path(u"fixed"_s)).constData(), 0700);
  QCOMPARE(result, 0);
}

void TestTrash::surveysWithoutMaking() {
  const QString folder = m_home.folder(u"a"_s);
  Session session;
  QVERIFY(session.hasTrash(openFolder(folder).get()));
  QVERIFY(!isThere(m_home.path(u".local"_s)));
  QVERIFY(!session.hasTrash(-1));
}

void TestTrash::keepsOnWhenTheTrashIsEmptiedAway() {
  Session session;
  const QString file = m_home.file(u"a/file"_s);
  const auto folder = openFolder(m_home.path(u"a"_s));
  QVERIFY(session.move(folder.get(), "file", raw(file)).result == Result::Moved);
  QDir(m_trash).removeRecursively();
  m_home.file(u"a/file"_s);
  QVERIFY(session.move(folder.get(), "file", raw(file)).result == Result::Moved);
  QVERIFY(isThere(m_trash + u"/files/file"_s) && isThere(m_trash + u"/info/file.trashinfo"_s));
}

void TestTrash::obeysTheDataFolder() {
  qputenv("XDG_DATA_HOME", m_home.path(u"my data"_s).toUtf8());
  const Outcome outcome = move(m_home.file(u"a/file"_s));
  QCOMPARE(outcome.trashedPath, m_home.path(u"my data/Trash/files/file"_s));
  QCOMPARE(trash::filesFolders().value(0), m_home.path(u"my data/Trash/files"_s));
}

void TestTrash::listsFilesFolders() {
  const auto own = [&] { return trash::filesFolders().filter(m_home.path()); };
  QVERIFY(own().isEmpty());
  move(m_home.file(u"a"_s));
  QCOMPARE(own(), QStringList{m_trash + u"/files"_s});
  QDir(m_trash).removeRecursively();
  m_home.folder(u"elsewhere/files"_s);
  m_home.link(u".local/share/Trash"_s, m_home.path(u"elsewhere"_s));
  QVERIFY(own().isEmpty());
}

void TestTrash::listsOnlyWhatATextReaches() {
  const auto listed = [&](const QByteArray& name) {
    const QByteArray user = QByteArray::number(::geteuid());
    const QByteArray point = raw(m_home.path()) + '/' + name;
    const QByteArray files = point + "/.Trash-" + user + "/files";
    QList<QString> found;
    ::mkdir(point.constData(), 0700);
    if (!mountDisk(point)) return std::optional<QList<QString>>();
    ::mkdir((point + "/.Trash-" + user).constData(), 0700);
    if (::mkdir(files.constData(), 0700) == 0) found = trash::filesFolders().filter(u"/.Trash-"_s);
    ::umount2(point.constData(), MNT_DETACH);
    return std::optional(found.filter(m_home.path()));
  };
  const int result = child::run("/", [&] {
    if (!mounts::enter()) return 2;
    const auto plain = listed("disk");
    const auto odd = listed("d\xffsk");
    if (!plain || !odd) return 2;
    return plain->size() == 1 && odd->isEmpty() ? 0 : 1;
  });
  if (result == 2) QSKIP("no permission to mount anything here");
  QCOMPARE(result, 0);
}

QTEST_GUILESS_MAIN(TestTrash)
#include "tst_trash.moc"
