// The second try at what stayed: the same questions are asked again, and no link is followed.
#include "RemovalRecorder.h"
#include "support/FixtureHome.h"

#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;
using removal::Remover;
using removal::Verdict;

class TestRemovalRetry : public QObject {
  Q_OBJECT

 private slots:
  void retriesANode();
  void retriesWithEveryQuestion();
  void retryFollowsNoLink();

 private:
  FixtureHome m_home;
};

void TestRemovalRetry::retriesANode() {
  const QString file = m_home.file(u"retry/a/b/file"_s);
  const QString beside = m_home.file(u"retry/a/beside"_s);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  removal::Stay stay{
      {file, file, QFile::encodeName(file), false, true}, QFile::encodeName(m_home.path(u"retry"_s)), EBUSY};
  QVERIFY(remover.retry(&stay) == Remover::Retry::Gone);
  QVERIFY(!isThere(m_home.path(u"retry/a/b"_s)));
  QVERIFY(isThere(beside));
  QCOMPARE(seen.asked, (QStringList{m_home.path(u"retry/a"_s), m_home.path(u"retry/a/b"_s), file}));
  // What a retry finds gone counts as success; the top folder always stays.
  QFile::remove(beside);
  stay.node = {beside, beside, QFile::encodeName(beside), false, true};
  QVERIFY(remover.retry(&stay) == Remover::Retry::Gone);
  QVERIFY(!isThere(m_home.path(u"retry/a"_s)));
  QVERIFY(isThere(m_home.path(u"retry"_s)));
  QVERIFY(remover.retry(&stay) == Remover::Retry::Gone);
  // A folder only if it is empty.
  const QString folder = m_home.folder(u"retry/folder"_s);
  m_home.file(u"retry/folder/file"_s);
  stay.node = {folder, folder, QFile::encodeName(folder), true, true};
  QVERIFY(remover.retry(&stay) == Remover::Retry::Stayed);
  QCOMPARE(stay.error, ENOTEMPTY);
  QFile::remove(folder + u"/file"_s);
  QVERIFY(remover.retry(&stay) == Remover::Retry::Gone);
  QVERIFY(!isThere(folder));
}

void TestRemovalRetry::retriesWithEveryQuestion() {
  const QString file = m_home.file(u"again/a/b/file"_s);
  const QByteArray top = QFile::encodeName(m_home.path(u"again"_s));
  for (const QString& refused : {file, m_home.path(u"again/a/b"_s), m_home.path(u"again/a"_s)}) {
    RemovalRecorder seen;
    seen.verdicts.insert(refused, Verdict::KeepExcluded);
    Remover remover({}, seen.handlers());
    removal::Stay stay{{file, file, QFile::encodeName(file), false, true}, top, EBUSY};
    QVERIFY(remover.retry(&stay) == Remover::Retry::Kept);
    QCOMPARE(seen.keptPaths(), QStringList{file});
    QVERIFY(isThere(file));
  }
  // What lies outside of its top, or seems to, is left alone.
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  const QByteArrayList odd = {top, top + "/../again/a/b/file", top + "x/file", "relative", ""};
  for (const QByteArray& raw : odd) {
    removal::Stay stay{{file, file, raw, false, true}, top, EBUSY};
    QVERIFY(remover.retry(&stay) == Remover::Retry::Stayed);
    QCOMPARE(stay.error, EINVAL);
  }
  QVERIFY(isThere(file));
}

void TestRemovalRetry::retryFollowsNoLink() {
  const QString precious = m_home.file(u"treasure/file"_s);
  m_home.folder(u"hole/a"_s);
  m_home.link(u"hole/a/b"_s, m_home.path(u"treasure"_s));
  const QString path = m_home.path(u"hole/a/b/file"_s);
  RemovalRecorder seen;
  Remover remover({}, seen.handlers());
  removal::Stay stay{{path, path, QFile::encodeName(path), false, true}, QFile::encodeName(m_home.path(u"hole"_s)), 0};
  QVERIFY(remover.retry(&stay) == Remover::Retry::Stayed);
  QCOMPARE(stay.error, ELOOP);
  // Nor above its top.
  m_home.link(u"hole 2"_s, m_home.path(u"hole"_s));
  stay.topRaw = QFile::encodeName(m_home.path(u"hole 2"_s));
  stay.node.realRaw = stay.topRaw + "/a";
  QVERIFY(remover.retry(&stay) == Remover::Retry::Stayed);
  QVERIFY(isThere(precious) && isThere(m_home.path(u"hole/a"_s)));
}

QTEST_GUILESS_MAIN(TestRemovalRetry)
#include "tst_removal_retry.moc"
