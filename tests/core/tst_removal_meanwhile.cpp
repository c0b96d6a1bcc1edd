// Others who change the tree while it is removed: what comes goes too, but nothing is taken for what it no longer is.
#include "RemovalRecorder.h"
#include "support/FixtureHome.h"

#include <QDir>
#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;
using removal::Remover;

class TestRemovalMeanwhile : public QObject {
  Q_OBJECT

 private slots:
  void tellsAFolderThatIsFilledMeanwhile();
  void removesWhatComesMeanwhile();
  void leavesAFolderThatBecameALink();
  void neverTakesAFileForAFolder();

 private:
  FixtureHome m_home;
};

void TestRemovalMeanwhile::tellsAFolderThatIsFilledMeanwhile() {
  const QString top = m_home.folder(u"busy"_s);
  m_home.file(u"busy/in/file"_s);
  int count = 0;
  const Pause pause([&](const removal::Node& node) {
    if (node.path == top + u"/in"_s) rawFile(node.path, "new " + QByteArray::number(++count));
  });
  RemovalRecorder seen;
  Remover({}, seen.handlers()).remove(at(top));
  QVERIFY(isThere(top + u"/in"_s));
  QCOMPARE(seen.busyPaths(), QStringList{top + u"/in"_s});
  QVERIFY(seen.busy.first().error == ENOTEMPTY);
  QVERIFY(count < 20);
}

void TestRemovalMeanwhile::removesWhatComesMeanwhile() {
  const QString top = m_home.folder(u"coming"_s);
  m_home.file(u"coming/in/file"_s);
  int count = 0;
  const Pause pause([&](const removal::Node& node) {
    if (node.path == top + u"/in"_s && ++count == 2) m_home.file(node.path + u"/sub/late"_s);
  });
  RemovalRecorder seen;
  Remover({}, seen.handlers()).remove(at(top));
  QVERIFY(!isThere(top));
  QVERIFY(seen.busy.isEmpty());
  QVERIFY(seen.asked.contains(top + u"/in/sub/late"_s));
}

void TestRemovalMeanwhile::leavesAFolderThatBecameALink() {
  const QString outside = m_home.file(u"outside/precious"_s);
  const QString top = m_home.folder(u"swap"_s);
  m_home.file(u"swap/in/file"_s);
  const Pause pause([&](const removal::Node& node) {
    if (node.path != top + u"/in"_s) return;
    QDir(top).rename(u"in"_s, u"../was in"_s);
    m_home.link(u"swap/in"_s, m_home.path(u"outside"_s));
  });
  RemovalRecorder seen;
  Remover({}, seen.handlers()).remove(at(top));
  QVERIFY(isThere(outside));
  QCOMPARE(seen.busyPaths(), QStringList{top + u"/in"_s});
  QVERIFY(seen.busy.first().error == ELOOP || seen.busy.first().error == ENOTDIR);
}

void TestRemovalMeanwhile::neverTakesAFileForAFolder() {
  // A file that becomes a folder, even an empty one, isn't removed as a file, and the other way round.
  const QString top = m_home.folder(u"kinds"_s);
  const QString file = m_home.file(u"kinds/file"_s);
  const QString folder = m_home.folder(u"kinds/folder"_s);
  QHash<QString, int> calls;
  const Pause pause([&](const removal::Node& node) {
    const int call = ++calls[node.path];
    if (node.path == file && call == 1) {
      QFile::remove(file);
      QDir().mkdir(file);
    }
    if (node.path == folder && call == 2) {
      QDir().rmdir(folder);
      m_home.file(folder);
    }
  });
  RemovalRecorder seen;
  Remover({}, seen.handlers()).removeChildren(at(top));
  QVERIFY(QFileInfo(file).isDir());
  QVERIFY(QFileInfo(folder).isFile());
  QCOMPARE(seen.busyPaths(), (QStringList{file, folder}));
  QCOMPARE(seen.busy.at(0).error, EISDIR);
  QCOMPARE(seen.busy.at(1).error, ENOTDIR);
}

QTEST_GUILESS_MAIN(TestRemovalMeanwhile)
#include "tst_removal_meanwhile.moc"
