// The program's own small files: whole or not there, and never through a link.
#include "core/ownfile.h"

#include "support/FixtureHome.h"
#include "support/child.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <cerrno>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using ownfile::Kind;

class tst_ownfile : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_home.reset(); // it gives HOME back
    m_home = std::make_unique<FixtureHome>();
  }

  void writesAndReads();
  void replacesInOneStep();
  void replacesALinkAndNotItsGoal();
  void failsWithoutATrace();
  void readsNoLinkFolderOrPipe();
  void readsNothingLarge();
  void readsNothingWithoutRights();
  void removes();
  void setsAsideUnderFreeNames();
  void setsAsideWhateverItIs();

 private:
  [[nodiscard]] QString at(const QString& relative) const { return m_home->path(relative); }
  static QByteArray bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  static QStringList names(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  }

  std::unique_ptr<FixtureHome> m_home;
};

void tst_ownfile::writesAndReads() {
  const QString path = at(u"a/new/folder/file"_s);
  QVERIFY(ownfile::read(path).kind == Kind::Nothing);
  const QByteArray all = QByteArray("one\0two\n\xff", 9) + QByteArray(100'000, 'x');
  QCOMPARE(ownfile::write(path, all), 0);
  const ownfile::Content content = ownfile::read(path);
  QVERIFY(content.kind == Kind::File);
  QCOMPARE(content.bytes, all);
  QCOMPARE(ownfile::write(path, {}), 0);
  QVERIFY(ownfile::read(path).kind == Kind::File);
  QCOMPARE(ownfile::read(path).bytes, QByteArray());
}

// Whoever reads it meanwhile has the old file, whole.
void tst_ownfile::replacesInOneStep() {
  const QString path = at(u"file"_s);
  QCOMPARE(ownfile::write(path, "old"), 0);
  QFile reader(path);
  QVERIFY(reader.open(QIODevice::ReadOnly));
  QCOMPARE(ownfile::write(path, "new"), 0);
  QCOMPARE(reader.readAll(), QByteArray("old"));
  QCOMPARE(bytes(path), QByteArray("new"));
  QCOMPARE(names(m_home->path()), QStringList{u"file"_s});
}

void tst_ownfile::replacesALinkAndNotItsGoal() {
  const QString goal = m_home->file(u"goal"_s, 4);
  const QString link = m_home->link(u"link"_s, goal);
  QCOMPARE(ownfile::write(link, "mine"), 0);
  QVERIFY(!QFileInfo(link).isSymLink());
  QCOMPARE(bytes(link), QByteArray("mine"));
  QCOMPARE(bytes(goal), QByteArray("xxxx"));
}

void tst_ownfile::failsWithoutATrace() {
  m_home->folder(u"taken/inside"_s);
  QCOMPARE(ownfile::write(at(u"taken"_s), "x"), EISDIR);
  m_home->file(u"plain"_s, 1);
  QCOMPARE(ownfile::write(at(u"plain/file"_s), "x"), ENOTDIR);
  QCOMPARE(names(m_home->path()), (QStringList{u"plain"_s, u"taken"_s}));
}

void tst_ownfile::readsNoLinkFolderOrPipe() {
  const QString goal = m_home->file(u"goal"_s, 4);
  const QString pipe = at(u"pipe"_s);
  QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  for (const QString& path : {m_home->link(u"link"_s, goal), m_home->link(u"dangling"_s, u"nowhere"_s),
                              m_home->link(u"loop"_s, u"loop"_s), m_home->folder(u"folder"_s), pipe})
    QVERIFY2(ownfile::read(path).kind == Kind::Other, qPrintable(path));
  QVERIFY(ownfile::read(at(u"none/such"_s)).kind == Kind::Nothing);
  QVERIFY(ownfile::read(at(u"goal/below"_s)).kind == Kind::Other);
}

void tst_ownfile::readsNothingLarge() {
  QCOMPARE(ownfile::read(m_home->file(u"most"_s, 1'000'000)).bytes.size(), 1'000'000);
  QVERIFY(ownfile::read(m_home->file(u"more"_s, 1'000'001)).kind == Kind::Other);
}

void tst_ownfile::readsNothingWithoutRights() {
  const QString path = m_home->file(u"secret"_s, 4);
  QVERIFY(QFile::setPermissions(path, {}));
  const int code = child::run("/", [&] {
    if (!child::dropRights()) return 2;
    return ownfile::read(path).kind == Kind::Other ? 0 : 1;
  });
  QCOMPARE(code, 0);
}

void tst_ownfile::removes() {
  const QString goal = m_home->file(u"goal"_s, 4);
  QCOMPARE(ownfile::remove(m_home->link(u"link"_s, goal)), 0);
  QVERIFY(!QFileInfo(at(u"link"_s)).isSymLink());
  QCOMPARE(bytes(goal), QByteArray("xxxx"));
  QCOMPARE(ownfile::remove(goal), 0);
  QVERIFY(!QFile::exists(goal));
  QCOMPARE(ownfile::remove(goal), 0);
  QCOMPARE(ownfile::remove(at(u"none/such"_s)), 0);
  QVERIFY(ownfile::remove(m_home->folder(u"folder"_s)) != 0);
  QVERIFY(QFileInfo(at(u"folder"_s)).isDir());
}

void tst_ownfile::setsAsideUnderFreeNames() {
  for (const char* wanted : {"s.conf.damaged", "s.conf.damaged-2", "s.conf.damaged-3"}) {
    const QString path = m_home->file(u"s.conf"_s, 4);
    QCOMPARE(ownfile::setAside(path, u"damaged"_s), at(QString::fromLatin1(wanted)));
    QVERIFY(!QFile::exists(path));
    QCOMPARE(bytes(at(QString::fromLatin1(wanted))), QByteArray("xxxx"));
  }
  QCOMPARE(ownfile::setAside(at(u"s.conf"_s), u"damaged"_s), QString());
  QCOMPARE(ownfile::setAside(at(u"no/s.conf"_s), u"damaged"_s), QString());
}

void tst_ownfile::setsAsideWhateverItIs() {
  m_home->file(u"folder/inside"_s, 4);
  QCOMPARE(ownfile::setAside(at(u"folder"_s), u"damaged"_s), at(u"folder.damaged"_s));
  QCOMPARE(bytes(at(u"folder.damaged/inside"_s)), QByteArray("xxxx"));
  const QString link = m_home->link(u"link"_s, u"nowhere"_s);
  QCOMPARE(ownfile::setAside(link, u"damaged"_s), at(u"link.damaged"_s));
  QVERIFY(QFileInfo(at(u"link.damaged"_s)).isSymLink());
}

QTEST_GUILESS_MAIN(tst_ownfile)
#include "tst_ownfile.moc"
