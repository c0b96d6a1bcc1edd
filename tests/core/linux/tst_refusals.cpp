// What fs says of places that the system refuses. Each check runs in a child process that gave up its rights, or for
// which a system call fails, and that works with relative paths, as it may not even pass through the fixture's folders.
#include "core/fs.h"

#include "support/FixtureHome.h"
#include "support/child.h"
#include "support/trees.h"

#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

const std::atomic<bool> kNever = false;
constexpr int kCannotTest = 99;

/// The number of the first check that failed, 0 if none did.
int firstFailure(std::initializer_list<bool> checks) {
  int number = 1;
  for (const bool passed : checks) {
    if (!passed) return number;
    ++number;
  }
  return 0;
}

} // namespace

class TestRefusals : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void tellsAFolderThatMayNotBeListed();
  void takesAPlaceThatMayNotBeSearchedForThere();
  void walksAroundAFolderThatMayNotBeListed();
  void tellsARefusalOfTheSystem();
  void takesAnInputErrorForThere();
  void skipsEntriesThatCantBeAsked();
  void cleanupTestCase();

 private:
  [[nodiscard]] QByteArray folder() const { return trees::raw(m_home.path(u"refused"_s)); }

  FixtureHome m_home;
};

void TestRefusals::initTestCase() {
  m_home.file(u"refused/open/file"_s);
  m_home.file(u"refused/closed/file"_s);
  m_home.file(u"refused/unsearchable/file"_s);
  QCOMPARE(::chmod((folder() + "/closed").constData(), 0311), 0);
  QCOMPARE(::chmod((folder() + "/unsearchable").constData(), 0600), 0);
}

void TestRefusals::cleanupTestCase() {
  ::chmod((folder() + "/closed").constData(), 0755);
  ::chmod((folder() + "/unsearchable").constData(), 0755);
}

void TestRefusals::tellsAFolderThatMayNotBeListed() {
  const int failed = child::run(folder().constData(), [] {
    if (!child::dropRights()) return kCannotTest;
    return firstFailure({
        fs::isReadable(u"open"_s),
        !fs::isReadable(u"closed"_s),
        !fs::isReadable(u"unsearchable/below"_s),
        fs::isReadable(u"missing"_s),
        fs::isReadable(u"open/file"_s),
        fs::list(u"closed"_s).isEmpty(),
    });
  });
  if (failed == kCannotTest) QSKIP("can't become another user");
  QCOMPARE(failed, 0);
}

void TestRefusals::takesAPlaceThatMayNotBeSearchedForThere() {
  const int failed = child::run(folder().constData(), [] {
    if (!child::dropRights()) return kCannotTest;
    fs::Entry entry;
    return firstFailure({
        fs::exists(u"unsearchable/file"_s),
        fs::exists(u"unsearchable/missing"_s), // nobody knows
        !fs::stat(u"unsearchable/file"_s, &entry),
        fs::exists(u"closed/file"_s),
        !fs::exists(u"closed/missing"_s),
    });
  });
  if (failed == kCannotTest) QSKIP("can't become another user");
  QCOMPARE(failed, 0);
}

void TestRefusals::walksAroundAFolderThatMayNotBeListed() {
  const int failed = child::run(folder().constData(), [] {
    if (!child::dropRights()) return kCannotTest;
    QStringList paths;
    const bool complete =
        fs::visitFiles(u"."_s, kNever, {}, [&](const QString& path, const fs::Entry&) { paths << path; });
    return firstFailure({
        complete,
        paths == QStringList{u"./open/file"_s},
        fs::measure(u"."_s, kNever).files == 1,
        fs::measure(u"."_s, kNever).unread == 2,
        fs::measure(u"closed"_s, kNever) == fs::Totals{.unread = 1},
    });
  });
  if (failed == kCannotTest) QSKIP("can't become another user");
  QCOMPARE(failed, 0);
}

void TestRefusals::tellsARefusalOfTheSystem() {
  const int failed = child::run(folder().constData(), [] {
    if (!child::refuse(SYS_openat, EPERM)) return kCannotTest;
    return firstFailure({!fs::isReadable(u"open"_s), !fs::isReadable(u"missing"_s), fs::list(u"open"_s).isEmpty()});
  });
  if (failed == kCannotTest) QSKIP("system calls can't be refused here");
  QCOMPARE(failed, 0);
}

void TestRefusals::takesAnInputErrorForThere() {
  const int failed = child::run(folder().constData(), [] {
    if (!child::refuse(SYS_newfstatat, EIO)) return kCannotTest;
    fs::Entry entry;
    return firstFailure({fs::exists(u"missing"_s), !fs::stat(u"open"_s, &entry)});
  });
  if (failed == kCannotTest) QSKIP("system calls can't be refused here");
  QCOMPARE(failed, 0);
}

void TestRefusals::skipsEntriesThatCantBeAsked() {
  const int failed = child::run(folder().constData(), [] {
    if (!child::refuse(SYS_newfstatat, ENOENT)) return kCannotTest;
    int visits = 0;
    return firstFailure({
        fs::list(u"open"_s).isEmpty(),
        fs::visitFiles(u"open"_s, kNever, {}, [&](const QString&, const fs::Entry&) { ++visits; }),
        visits == 0,
    });
  });
  if (failed == kCannotTest) QSKIP("system calls can't be refused here");
  QCOMPARE(failed, 0);
}

QTEST_GUILESS_MAIN(TestRefusals)
#include "tst_refusals.moc"
