// Moving single things to the Trash: where they go, what is refused, and that a folder goes whole or not at all.
#include "engines/Disposal.h"

#include "core/fs.h"
#include "core/removal.h"
#include "core/trash.h"
#include "engines/ProcStandIn.h"
#include "engines/Unprivileged.h"

#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Result = Disposal::Result;

namespace {

FileId idOf(const QString& path) {
  fs::Entry entry;
  if (!fs::stat(path, &entry)) qFatal("%s isn't there", qPrintable(path));
  return {entry.device, entry.inode};
}

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void write(const QString& path, const QByteArray& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) qFatal("cannot write %s", qPrintable(path));
}

struct Pause {
  explicit Pause(std::function<void(const removal::Node&)> hook) { removal::setPauseHook(std::move(hook)); }
  ~Pause() { removal::setPauseHook({}); }
};

} // namespace

class tst_Disposal : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void movesAFile();
  void movesAFolderWhole();
  void movesALinkItself();
  void keepsNamesApart();
  void tellsTheCleanPath();
  void refuses_data();
  void refuses();
  void keepsAFolderWhole_data();
  void keepsAFolderWhole();
  void keepsAFolderThatCannotBeRead();
  void asksUnderBothNames();
  void seesAnOpenFileUnderItsOtherName();
  void refusesAllBelowAProcessRoot();
  void refusesAnotherFile();
  void bringsBackWhatTookItsPlace();
  void failsWhereNothingIs();
  void failsWhereTheSystemRefuses();
  void refusesInAForeignHome();
  void takesTheRulesOfItsMoment();

 private:
  [[nodiscard]] QString at(const QString& relative) const { return m_home->path(relative); }
  [[nodiscard]] QString trashed(const QString& name) const { return at(u".local/share/Trash/files/"_s + name); }
  [[nodiscard]] qsizetype trashedCount() const { return fs::list(at(u".local/share/Trash/files"_s)).size(); }
  [[nodiscard]] Disposal::Outcome move(const QString& path, const std::optional<FileId>& id = {}) const {
    appguard::Sources sources;
    sources.procRoot = m_proc->root();
    return Disposal(m_rules, sources).move(path, id);
  }
  void open(const QString& path) const {
    m_proc->addProcess(812, u"/"_s);
    m_proc->addOpenFile(812, path);
  }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<ProcStandIn> m_proc;
  QStringList m_rules;
};

void tst_Disposal::init() {
  qputenv("TARNWICK_HOST", "linux");
  m_home = std::make_unique<FixtureHome>();
  m_proc = std::make_unique<ProcStandIn>(*m_home);
  m_rules.clear();
}

void tst_Disposal::cleanup() {
  m_proc.reset();
  m_home.reset();
}

void tst_Disposal::movesAFile() {
  const QString film = m_home->file(u"Videos/film.mkv"_s, 9000);
  const auto [result, undo] = move(film, idOf(film));
  QCOMPARE(result, Result::Moved);
  QVERIFY(!fs::exists(film));
  QCOMPARE(undo.originalPath, film);
  QCOMPARE(undo.trashedPath, trashed(u"film.mkv"_s));
  QCOMPARE(undo.infoPath, at(u".local/share/Trash/info/film.mkv.trashinfo"_s));
  QCOMPARE(contents(undo.trashedPath).size(), 9000);
  QVERIFY(contents(undo.infoPath).contains("Path=" + film.toUtf8()));
  QCOMPARE(trash::restore(undo.trashedPath, undo.infoPath, undo.originalPath), 0);
  QVERIFY(fs::exists(film) && !fs::exists(undo.infoPath));
}

void tst_Disposal::movesAFolderWhole() {
  m_home->file(u"Support/17.0/Symbols/a"_s);
  m_home->file(u"Support/17.0/.hidden"_s);
  m_home->link(u"Support/17.0/link"_s, u"nowhere"_s);
  const auto [result, undo] = move(at(u"Support/17.0"_s));
  QCOMPARE(result, Result::Moved);
  QVERIFY(!fs::exists(at(u"Support/17.0"_s)) && fs::exists(at(u"Support"_s)));
  QCOMPARE(undo.trashedPath, trashed(u"17.0"_s));
  QVERIFY(fs::exists(trashed(u"17.0/Symbols/a"_s)) && fs::exists(trashed(u"17.0/.hidden"_s)));
  QCOMPARE(trashedCount(), 1);
}

void tst_Disposal::movesALinkItself() {
  const QString book = m_home->file(u"Books/book"_s);
  const QString link = m_home->link(u"shelf/link"_s, book);
  const QString dangling = m_home->link(u"shelf/dangling"_s, u"/no/such"_s);
  QCOMPARE(move(link, idOf(link)).result, Result::Moved);
  QCOMPARE(move(dangling).result, Result::Moved);
  QVERIFY(fs::exists(book) && !fs::exists(link) && fs::exists(trashed(u"link"_s)) &&
          fs::exists(trashed(u"dangling"_s)));
}

void tst_Disposal::keepsNamesApart() {
  Disposal disposal({}, {.procRoot = m_proc->root()});
  const auto one = disposal.move(m_home->file(u"one/same.iso"_s));
  const auto two = disposal.move(m_home->file(u"two/same.iso"_s));
  QCOMPARE(one.undo.trashedPath, trashed(u"same.iso"_s));
  QCOMPARE(two.undo.trashedPath, trashed(u"same.2.iso"_s));
  QCOMPARE(two.undo.originalPath, at(u"two/same.iso"_s));
}

void tst_Disposal::tellsTheCleanPath() {
  m_home->file(u"a/film"_s);
  QCOMPARE(move(at(u"a"_s) + u"//b/../film/"_s).undo.originalPath, at(u"a/film"_s));
}

void tst_Disposal::refuses_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<QStringList>("rules");
  QTest::addColumn<QString>("opened"); // by some process
  const QStringList none;
  QTest::newRow("named by a rule") << u"Videos/film.mkv"_s << QStringList{u"*.mkv"_s} << QString();
  QTest::newRow("below a path of a rule") << u"Videos/film.mkv"_s << QStringList{u"~/Videos"_s} << QString();
  QTest::newRow("a password manager's") << u"Bitwarden/export.json"_s << none << QString();
  QTest::newRow("a protected location") << u".ssh/id"_s << none << QString();
  QTest::newRow("one of the user's folders") << u"Documents"_s << none << QString();
  QTest::newRow("the home folder") << u""_s << none << QString();
  QTest::newRow("open") << u"Videos/film.mkv"_s << none << u"Videos/film.mkv"_s;
  QTest::newRow("a folder in use") << u"build"_s << none << u"build"_s;
}

void tst_Disposal::refuses() {
  QFETCH(QString, path);
  QFETCH(QStringList, rules);
  QFETCH(QString, opened);
  m_home->file(u"Videos/film.mkv"_s);
  m_home->file(u"Bitwarden/export.json"_s);
  m_home->file(u".ssh/id"_s);
  m_home->file(u"Documents/letter"_s);
  m_home->file(u"build/a.o"_s);
  QVERIFY(fs::exists(at(path)));
  if (!opened.isEmpty()) open(at(opened));
  m_rules = rules;
  const auto [result, undo] = move(at(path));
  QCOMPARE(result, Result::Refused);
  QVERIFY(undo.originalPath.isEmpty() && undo.trashedPath.isEmpty());
  QVERIFY(fs::exists(at(path)));
  QCOMPARE(trashedCount(), 0);
  for (const QString& noPath : {QString(), u"Videos/film.mkv"_s, u"./film"_s, u"/"_s})
    QCOMPARE(move(noPath).result, Result::Refused);
}

void tst_Disposal::keepsAFolderWhole_data() {
  QTest::addColumn<QStringList>("rules");
  QTest::addColumn<QString>("inside");
  QTest::addColumn<bool>("opened");
  QTest::newRow("a rule names a file in it") << QStringList{u"keep.me"_s} << u"deep/er/keep.me"_s << false;
  QTest::newRow("a rule names a folder in it") << QStringList{u"er"_s} << u"deep/er/file"_s << false;
  QTest::newRow("an open file in it") << QStringList{} << u"deep/er/file"_s << true;
  QTest::newRow("an app's protected data in it") << QStringList{} << u"deep/KeePassXC/vault"_s << false;
}

void tst_Disposal::keepsAFolderWhole() {
  QFETCH(QStringList, rules);
  QFETCH(QString, inside);
  QFETCH(bool, opened);
  m_home->file(u"tree/goes"_s);
  m_home->file(u"tree/a/goes"_s);
  m_home->file(u"tree/zz/goes"_s);
  const QString kept = m_home->file(u"tree/"_s + inside);
  if (opened) open(kept);
  m_rules = rules;
  QCOMPARE(move(at(u"tree"_s)).result, Result::Refused);
  for (const QString& one : {u"tree/goes"_s, u"tree/a/goes"_s, u"tree/zz/goes"_s}) QVERIFY(fs::exists(at(one)));
  QVERIFY(fs::exists(kept));
  QCOMPARE(trashedCount(), 0);
}

void tst_Disposal::keepsAFolderThatCannotBeRead() {
  const QString closed = m_home->folder(u"tree/closed"_s);
  m_home->file(u"tree/file"_s);
  m_home->folder(u".local/share"_s);
  const Unprivileged user(*m_home);
  QCOMPARE(::chmod(QFile::encodeName(closed).constData(), 0), 0);
  QCOMPARE(move(at(u"tree"_s)).result, Result::Refused);
  QVERIFY(fs::exists(at(u"tree/file"_s)));
  QCOMPARE(::chmod(QFile::encodeName(closed).constData(), 0700), 0);
  QCOMPARE(move(at(u"tree"_s)).result, Result::Moved);
}

void tst_Disposal::asksUnderBothNames() {
  const QString key = m_home->file(u".ssh/id"_s);
  m_home->link(u"keys"_s, u".ssh"_s);
  QCOMPARE(move(at(u"keys/id"_s)).result, Result::Refused);
  QVERIFY(fs::exists(key));
  m_home->file(u"disk/films/one"_s);
  m_home->link(u"films"_s, u"disk/films"_s);
  open(at(u"disk/films/one"_s)); // processes show the real name
  QCOMPARE(move(at(u"films/one"_s)).result, Result::Refused);
  m_home->file(u"disk/films/two"_s);
  const auto [result, undo] = move(at(u"films/two"_s));
  QCOMPARE(result, Result::Moved);
  QCOMPARE(undo.originalPath, at(u"films/two"_s));
  QVERIFY(!fs::exists(at(u"disk/films/two"_s)));
}

void tst_Disposal::seesAnOpenFileUnderItsOtherName() {
  const QString one = m_home->file(u"a/one"_s);
  const QString two = m_home->path(u"a/two"_s);
  QCOMPARE(::link(QFile::encodeName(one).constData(), QFile::encodeName(two).constData()), 0);
  open(one);
  QCOMPARE(move(two).result, Result::Refused);
  QVERIFY(fs::exists(two));
}

void tst_Disposal::refusesAllBelowAProcessRoot() {
  const QString film = m_home->file(u"jail/srv/film"_s);
  m_proc->addProcess(812, u"/"_s);
  m_proc->setRoot(812, at(u"jail"_s));
  QCOMPARE(move(film).result, Result::Refused);
  QCOMPARE(move(at(u"jail"_s)).result, Result::Refused);
  QVERIFY(fs::exists(film));
}

void tst_Disposal::refusesAnotherFile() {
  const QString film = m_home->file(u"Videos/film.mkv"_s);
  const QString other = m_home->file(u"Videos/other.mkv"_s);
  const FileId seen = idOf(film);
  QCOMPARE(::rename(QFile::encodeName(other).constData(), QFile::encodeName(film).constData()), 0);
  QCOMPARE(move(film, seen).result, Result::Refused);
  QVERIFY(fs::exists(film));
  FileId onAnotherDevice = idOf(film);
  ++onAnotherDevice.device;
  QCOMPARE(move(film, onAnotherDevice).result, Result::Refused);
  QCOMPARE(move(film, idOf(film)).result, Result::Moved);
}

void tst_Disposal::bringsBackWhatTookItsPlace() {
  const QString film = m_home->file(u"Videos/film.mkv"_s);
  write(film, "listed");
  const QString other = m_home->file(u"Videos/other.mkv"_s);
  write(other, "new");
  const FileId seen = idOf(film);
  const Pause pause([&](const removal::Node&) {
    (void)::rename(QFile::encodeName(film).constData(), QFile::encodeName(at(u"Videos/moved.mkv"_s)).constData());
    (void)::rename(QFile::encodeName(other).constData(), QFile::encodeName(film).constData());
  });
  const auto [result, undo] = move(film, seen);
  QCOMPARE(result, Result::Refused);
  QVERIFY(undo.trashedPath.isEmpty());
  QCOMPARE(contents(film), QByteArray("new"));
  QCOMPARE(contents(at(u"Videos/moved.mkv"_s)), QByteArray("listed"));
  QCOMPARE(trashedCount(), 0);
  QCOMPARE(fs::list(at(u".local/share/Trash/info"_s)).size(), 0);
}

void tst_Disposal::failsWhereNothingIs() {
  const QString film = m_home->file(u"Videos/film.mkv"_s);
  const FileId seen = idOf(film);
  QVERIFY(QFile::remove(film));
  QCOMPARE(move(film).result, Result::Failed);
  QVERIFY(move(film, seen).result != Result::Moved);
  QCOMPARE(move(at(u"nowhere/at/all"_s)).result, Result::Failed);
}

void tst_Disposal::failsWhereTheSystemRefuses() {
  const QString film = m_home->file(u"fixed/film"_s);
  m_home->file(u"fixed/tree/file"_s);
  m_home->folder(u".local/share"_s);
  const Unprivileged user(*m_home);
  QCOMPARE(::chmod(QFile::encodeName(at(u"fixed"_s)).constData(), 0500), 0);
  QCOMPARE(move(film).result, Result::Failed);
  QCOMPARE(move(at(u"fixed/tree"_s)).result, Result::Failed);
  QVERIFY(fs::exists(film) && fs::exists(at(u"fixed/tree/file"_s)));
  QCOMPARE(trashedCount(), 0);
  QCOMPARE(::chmod(QFile::encodeName(at(u"fixed"_s)).constData(), 0700), 0);
}

void tst_Disposal::refusesInAForeignHome() {
  if (::geteuid() != 0) QSKIP("needs a folder of another user");
  const QString film = m_home->file(u"Videos/film.mkv"_s);
  QCOMPARE(::chown(QFile::encodeName(at({})).constData(), 65534, 65534), 0);
  QCOMPARE(move(film).result, Result::Refused);
  QVERIFY(fs::exists(film));
  QCOMPARE(::chown(QFile::encodeName(at({})).constData(), 0, 0), 0);
  QCOMPARE(move(film).result, Result::Moved);
}

void tst_Disposal::takesTheRulesOfItsMoment() {
  m_rules = {u"~/Videos"_s};
  const Disposal::Outcome kept = move(m_home->file(u"Videos/film.mkv"_s));
  m_rules.clear();
  const Disposal::Outcome gone = move(at(u"Videos/film.mkv"_s));
  QVERIFY(kept.result == Result::Refused && gone.result == Result::Moved);
}

QTEST_GUILESS_MAIN(tst_Disposal)
#include "tst_Disposal.moc"
