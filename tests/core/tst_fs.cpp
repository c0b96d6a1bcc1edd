#include "core/fs.h"

#include "support/FixtureHome.h"

#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TestFs : public QObject {
  Q_OBJECT

 private slots:
  void joins_data();
  void joins();
  void measuresHardLinksOnce();
  void visitsFilesDepthFirstLastFolderFirst();

 private:
  FixtureHome m_home;
};

void TestFs::joins_data() {
  QTest::addColumn<QString>("dir");
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("joined");
  QTest::newRow("root") << u"/"_s << u"a"_s << u"/a"_s;
  QTest::newRow("folder") << u"/a"_s << u"b"_s << u"/a/b"_s;
  QTest::newRow("name that begins with a slash") << u"/a"_s << u"/b"_s << u"/a//b"_s;
  QTest::newRow("folder that ends with a backslash") << u"C:\\"_s << u"b"_s << u"C:\\b"_s;
  QTest::newRow("no folder") << QString() << u"b"_s << u"/b"_s;
}

void TestFs::joins() {
  QFETCH(QString, dir);
  QFETCH(QString, name);
  QTEST(fs::join(dir, name), "joined");
}

void TestFs::measuresHardLinksOnce() {
  const QString dir = m_home.folder(u"links"_s);
  const QString first = m_home.file(u"links/first"_s, 8192);
  QCOMPARE(::link(QFile::encodeName(first).constData(), QFile::encodeName(dir + u"/second"_s).constData()), 0);
  const std::atomic<bool> cancel = false;
  const fs::Totals totals = fs::measure(dir, cancel);
  QCOMPARE(totals.bytes, qint64{8192});
  QCOMPARE(totals.files, qint64{1});
}

void TestFs::visitsFilesDepthFirstLastFolderFirst() {
  m_home.file(u"tree/a/one"_s);
  m_home.file(u"tree/a/deep/two"_s);
  m_home.file(u"tree/three"_s);
  const std::atomic<bool> cancel = false;
  QStringList seen;
  QVERIFY(
      fs::visitFiles(m_home.path(u"tree"_s), cancel, {}, [&](const QString& path, const fs::Entry&) { seen << path; }));
  QCOMPARE(seen, (QStringList{m_home.path(u"tree/three"_s), m_home.path(u"tree/a/one"_s),
                              m_home.path(u"tree/a/deep/two"_s)}));
}

QTEST_GUILESS_MAIN(TestFs)
#include "tst_fs.moc"
