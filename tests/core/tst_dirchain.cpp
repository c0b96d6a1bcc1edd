#include "core/DirChain.h"

#include "support/FixtureHome.h"
#include "support/trees.h"

#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

UniqueFd openFolder(const QString& path) {
  return UniqueFd(::open(trees::raw(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

ino_t inodeOf(int fd) {
  struct stat status;
  return ::fstat(fd, &status) == 0 ? status.st_ino : 0;
}

} // namespace

class TestDirChain : public QObject {
  Q_OBJECT

 private slots:
  void entersAndLeaves();
  void staysWhereItCantEnter_data();
  void staysWhereItCantEnter();
  void keepsFewDescriptorsOpen();
  void comesBackFromBeyondThePathLimit();
  void goesInAndOutAtTheBound();
  void endsWhereAFolderWasMoved();
  void comesBackThroughOpenFoldersThatWereMoved();

 private:
  FixtureHome m_home;
};

void TestDirChain::entersAndLeaves() {
  const QString top = m_home.folder(u"plain"_s);
  m_home.folder(u"plain/a/b"_s);
  m_home.folder(u"plain/c"_s);
  DirChain chain(openFolder(top));
  QCOMPARE(chain.depth(), size_t{0});
  QVERIFY(!chain.leave());
  QCOMPARE(inodeOf(chain.fd()), inodeOf(openFolder(top).get()));
  QVERIFY(chain.enter("a"));
  QVERIFY(chain.enter("b"));
  QCOMPARE(chain.depth(), size_t{2});
  QCOMPARE(inodeOf(chain.fd()), inodeOf(openFolder(top + u"/a/b"_s).get()));
  QVERIFY(chain.leave());
  QVERIFY(chain.leave());
  QVERIFY(chain.enter("c"));
  QCOMPARE(inodeOf(chain.fd()), inodeOf(openFolder(top + u"/c"_s).get()));
  QVERIFY(chain.leave());
  QVERIFY(!chain.leave());
  QCOMPARE(inodeOf(chain.fd()), inodeOf(openFolder(top).get()));
}

void TestDirChain::staysWhereItCantEnter_data() {
  QTest::addColumn<QByteArray>("name");
  QTest::addColumn<QList<int>>("errors");
  QTest::newRow("missing") << "missing"_ba << QList<int>{ENOENT};
  QTest::newRow("file") << "file"_ba << QList<int>{ENOTDIR};
  QTest::newRow("link to a folder") << "link"_ba << QList<int>{ELOOP, ENOTDIR};
}

void TestDirChain::staysWhereItCantEnter() {
  const QString top = m_home.folder(u"stay"_s);
  m_home.file(u"stay/file"_s);
  m_home.folder(u"stay/folder"_s);
  if (!QFile::exists(top + u"/link"_s)) m_home.link(u"stay/link"_s, u"folder"_s);
  QFETCH(QByteArray, name);
  QFETCH(QList<int>, errors);
  DirChain chain(openFolder(top));
  QVERIFY(!chain.enter(name.constData()));
  QVERIFY(errors.contains(errno));
  QCOMPARE(chain.depth(), size_t{0});
  QVERIFY(chain.enter("folder"));
  QVERIFY(chain.leave());
}

void TestDirChain::keepsFewDescriptorsOpen() {
  const QString top = m_home.folder(u"few"_s);
  trees::makeChain(top, 200, "d", [](int, int) {});
  const qsizetype before = trees::openDescriptors();
  qsizetype most = 0;
  DirChain chain(openFolder(top));
  for (int i = 0; i < 200; ++i) {
    QVERIFY(chain.enter("d"));
    most = std::max(most, trees::openDescriptors() - before);
  }
  for (int i = 0; i < 200; ++i) {
    QVERIFY(chain.leave());
    most = std::max(most, trees::openDescriptors() - before);
  }
  QCOMPARE(most, static_cast<qsizetype>(DirChain::kMaxOpen));
}

void TestDirChain::comesBackFromBeyondThePathLimit() {
  constexpr int kLevels = 300;
  const QByteArray name(100, 'd');
  const QString top = m_home.folder(u"long"_s);
  std::vector<ino_t> inodes;
  trees::makeChain(top, kLevels, name, [&](int fd, int) { inodes.push_back(inodeOf(fd)); });
  DirChain chain(openFolder(top));
  for (size_t level = 1; level <= kLevels; ++level) {
    QVERIFY(chain.enter(name.constData()));
    QCOMPARE(inodeOf(chain.fd()), inodes[level]);
  }
  QVERIFY(!chain.enter(name.constData()));
  for (size_t level = kLevels; level-- > 0;) {
    QVERIFY(chain.leave());
    QCOMPARE(inodeOf(chain.fd()), inodes[level]);
    QCOMPARE(chain.depth(), level);
  }
  trees::removeWhole(top);
}

void TestDirChain::goesInAndOutAtTheBound() {
  const QString top = m_home.folder(u"bound"_s);
  trees::makeChain(top, 130, "d", [](int fd, int) { ::mkdirat(fd, "side", 0755); });
  const qsizetype before = trees::openDescriptors();
  DirChain chain(openFolder(top));
  for (int i = 0; i < 130; ++i) QVERIFY(chain.enter("d"));
  for (int i = 130; i > 0; --i) {
    QVERIFY(chain.leave());
    for (int turn = 0; turn < 3; ++turn) {
      QVERIFY(chain.enter("side"));
      QVERIFY(!chain.enter("missing"));
      QVERIFY(trees::openDescriptors() - before <= static_cast<qsizetype>(DirChain::kMaxOpen));
      QVERIFY(chain.leave());
    }
    QVERIFY(chain.enter("d"));
    QVERIFY(chain.leave());
  }
  QCOMPARE(chain.depth(), size_t{0});
}

void TestDirChain::endsWhereAFolderWasMoved() {
  const QString top = m_home.folder(u"moved/top"_s);
  const QString away = m_home.folder(u"moved/away"_s);
  trees::makeChain(top, 100, "d", [](int, int) {});
  DirChain chain(openFolder(top));
  for (int i = 0; i < 100; ++i) QVERIFY(chain.enter("d"));
  QCOMPARE(::rename(trees::raw(trees::chainPath(top, 10, "d")).constData(), trees::raw(away + u"/d"_s).constData()), 0);
  int left = 0;
  while (chain.leave()) ++left;
  QCOMPARE(left, 90);
  QCOMPARE(chain.depth(), size_t{0});
  QCOMPARE(inodeOf(chain.fd()), inodeOf(openFolder(top).get()));
  QVERIFY(!chain.leave());
  QVERIFY(chain.enter("d")); // the top is whole
}

void TestDirChain::comesBackThroughOpenFoldersThatWereMoved() {
  const QString top = m_home.folder(u"near/top"_s);
  const QString away = m_home.folder(u"near/away"_s);
  trees::makeChain(top, 10, "d", [](int, int) {});
  DirChain chain(openFolder(top));
  for (int i = 0; i < 10; ++i) QVERIFY(chain.enter("d"));
  QCOMPARE(::rename(trees::raw(trees::chainPath(top, 5, "d")).constData(), trees::raw(away + u"/d"_s).constData()), 0);
  for (int i = 0; i < 10; ++i) QVERIFY(chain.leave());
  QCOMPARE(inodeOf(chain.fd()), inodeOf(openFolder(top).get()));
}

QTEST_GUILESS_MAIN(TestDirChain)
#include "tst_dirchain.moc"
