/// The one guard that engines ask for each node.
#include "core/Guard.h"
#include "core/appguard.h"
#include "core/safety.h"
#include "support/FixtureHome.h"

#include <QTest>

#include <atomic>
#include <random>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using Verdict = Guard::Verdict;

namespace {

/// What the three functions say, in the order in which they are asked.
Verdict plainVerdict(const QString& path, const QList<QString>& rules) {
  if (safety::isExcluded(path, rules)) return Verdict::Excluded;
  if (appguard::isProtectedAppData(path)) return Verdict::ProtectedData;
  return safety::isProtected(path) ? Verdict::ProtectedLocation : Verdict::Free;
}

template <typename List>
const QString& oneOf(std::mt19937* random, const List& list) {
  return list[static_cast<qsizetype>((*random)() % static_cast<quint32>(list.size()))];
}

QString ruleOf(std::mt19937* random) {
  static const QStringList tokens{u"~"_s, u"**"_s,   u"*"_s,     u"?"_s,         u"/"_s,      u"/"_s,  u"/"_s, u"a"_s,
                                  u"b"_s, u".git"_s, u"a.log"_s, u"Documents"_s, u".cache"_s, u"\n"_s, u"é"_s, u" "_s};
  static const QStringList whole{u"**/.git"_s, u"*.log"_s, u"~"_s, u"**"_s,  u"~/**/a"_s, u"~/a/**"_s, u"**/a/b"_s,
                                 u"~/*/b"_s,   u"~/b/"_s,  u"/"_s, u"**/"_s, u"?"_s,      u"~/a*"_s};
  if ((*random)() % 3 == 0) return oneOf(random, whole);
  QString rule = (*random)() % 3 == 0 ? u"~/"_s : QString();
  for (auto count = 1 + (*random)() % 6; count > 0; --count) rule += oneOf(random, tokens);
  return rule;
}

} // namespace

class TestGuard : public QObject {
  Q_OBJECT

 private slots:
  void order();
  void noRules();
  void ignoringRules();
  void rulesOfItsTime();
  void copies();
  void belowLikeWhole_data();
  void belowLikeWhole();
  void belowTrees();
  void brokenNames();
  void manyThreads();

 private:
  void compareDownwards(const Guard& guard, const QList<QString>& rules, std::mt19937* random);

  FixtureHome m_home;
  qsizetype m_turned[4] = {}; // how often a verdict was met below a free folder
};

void TestGuard::order() {
  const QString everything = m_home.path(u"eset/.git"_s);
  const QList<QString> rules{u"**/.git"_s};
  QCOMPARE(Guard(rules).ask(everything), Verdict::Excluded);
  QCOMPARE(Guard(rules).ask(m_home.path(u".ssh/eset"_s)), Verdict::ProtectedData);
  QCOMPARE(Guard(rules).ask(m_home.path(u".ssh/x"_s)), Verdict::ProtectedLocation);
  QCOMPARE(Guard(rules).ask(m_home.path(u"x"_s)), Verdict::Free);
  QCOMPARE(Guard(rules).ask(u"/usr/.git"_s), Verdict::Excluded);
  QCOMPARE(Guard(rules).ask(u"/usr/eset"_s), Verdict::ProtectedData);
  QCOMPARE(Guard(rules).ask(m_home.path(u"eset/../x"_s) + u"/../eset/../y"_s), Verdict::ProtectedData);
}

void TestGuard::noRules() {
  QCOMPARE(Guard().ask(m_home.path(u"x/.git"_s)), Verdict::Free);
  QCOMPARE(Guard({u" "_s}).ask(m_home.path(u"x"_s)), Verdict::Free);
  QCOMPARE(Guard().ask(QString()), Verdict::ProtectedLocation);
  QCOMPARE(Guard().askBelow(m_home.path(u"x/.git"_s)), Verdict::Free);
}

void TestGuard::ignoringRules() {
  const Guard guard({u"~"_s, u"**/.git"_s});
  for (const QString& path : {m_home.path(u"x/.git"_s), m_home.path(u"x/eset"_s), m_home.path(u".ssh"_s)}) {
    QCOMPARE(guard.ask(path), Verdict::Excluded);
    QCOMPARE(guard.ask(path, Guard::Exclusions::Ignore), Guard().ask(path));
    QCOMPARE(guard.askBelow(path, Guard::Exclusions::Ignore), Guard().askBelow(path));
  }
}

void TestGuard::rulesOfItsTime() {
  const Guard guard({u"~/a"_s});
  const QString path = m_home.path(u"a/b"_s);
  const FixtureHome other;
  QCOMPARE(guard.ask(path), Verdict::Excluded);
  QCOMPARE(guard.ask(other.path(u"a/b"_s)), Verdict::Free);
  QCOMPARE(guard.ask(m_home.path(u"Documents"_s)), Verdict::ProtectedLocation);
  qputenv("HOME", m_home.path().toUtf8());
}

void TestGuard::copies() {
  Guard copy;
  {
    const Guard guard({u"a"_s});
    copy = guard;
  }
  const Guard second = copy;
  QCOMPARE(second.ask(m_home.path(u"a/b"_s)), Verdict::Excluded);
}

void TestGuard::belowLikeWhole_data() {
  QTest::addColumn<QString>("rule");
  QTest::addColumn<QString>("path");
  QTest::addColumn<Verdict>("verdict");
  const QString home = m_home.path();
  QTest::newRow("default, itself") << u"**/.git"_s << home + u"/a/.git"_s << Verdict::Excluded;
  QTest::newRow("default, other") << u"**/.git"_s << home + u"/a/x.git"_s << Verdict::Free;
  QTest::newRow("name") << u"b"_s << home + u"/a/b"_s << Verdict::Excluded;
  QTest::newRow("glob") << u"*.log"_s << home + u"/a/b.log"_s << Verdict::Excluded;
  QTest::newRow("path") << u"~/a/b"_s << home + u"/a/b"_s << Verdict::Excluded;
  QTest::newRow("path glob") << u"~/*/b"_s << home + u"/a/b"_s << Verdict::Excluded;
  QTest::newRow("all below") << u"~/a/**"_s << home + u"/a/b"_s << Verdict::Excluded;
  QTest::newRow("star below") << u"~/a/*"_s << home + u"/a/b"_s << Verdict::Excluded;
  QTest::newRow("deep") << u"~/**/b"_s << home + u"/a/b"_s << Verdict::Excluded;
  QTest::newRow("deep pair") << u"**/a/b"_s << home + u"/a/b"_s << Verdict::Excluded;
  QTest::newRow("line break") << u"~/a/b"_s << home + u"/a/b\n"_s << Verdict::Excluded;
  QTest::newRow("beside") << u"~/a/b"_s << home + u"/a/bc"_s << Verdict::Free;
  QTest::newRow("app data") << u"x"_s << home + u"/a/eset"_s << Verdict::ProtectedData;
  QTest::newRow("keyrings") << u"x"_s << home + u"/.local/share/x/../keyrings"_s << Verdict::ProtectedData;
  QTest::newRow("secret") << u"x"_s << home + u"/.config/gh"_s << Verdict::ProtectedLocation;
  QTest::newRow("profile") << u"x"_s << home + u"/snap/firefox/common/.mozilla"_s << Verdict::ProtectedLocation;
  QTest::newRow("profile of a Flatpak") << u"x"_s << home + u"/.var/app/com.google.Chrome/config"_s
                                        << Verdict::ProtectedLocation;
  QTest::newRow("home, seen from above") << u"x"_s << home << Verdict::ProtectedLocation;
  QTest::newRow("system database") << u"x"_s << u"/private/var/db"_s << Verdict::ProtectedLocation;
}

void TestGuard::belowLikeWhole() {
  QFETCH(QString, rule);
  QFETCH(QString, path);
  QFETCH(Verdict, verdict);
  const Guard guard({rule});
  QCOMPARE(guard.ask(path), verdict);
  QCOMPARE(guard.askBelow(safety::normalized(path)), verdict);
}

/// Goes from a root down as long as folders are free, and compares.
void TestGuard::compareDownwards(const Guard& guard, const QList<QString>& rules, std::mt19937* random) {
  static const QStringList names{u"a"_s,
                                 u"b"_s,
                                 u"ab"_s,
                                 u".git"_s,
                                 u"a.log"_s,
                                 u"x"_s,
                                 u"a\n"_s,
                                 u"b\n\n"_s,
                                 u"Documents"_s,
                                 u".cache"_s,
                                 u".config"_s,
                                 u"gh"_s,
                                 u"snap"_s,
                                 u"firefox"_s,
                                 u"common"_s,
                                 u".mozilla"_s,
                                 u".var"_s,
                                 u"app"_s,
                                 u"org.mozilla.firefox"_s,
                                 u"config"_s,
                                 u"eset"_s,
                                 u"my.ime\n"_s,
                                 u"é"_s,
                                 u"\U0001F600"_s,
                                 u".local"_s,
                                 u"share"_s,
                                 u"keyrings"_s,
                                 u".ssh"_s,
                                 u"~"_s,
                                 u" "_s,
                                 u"...x"_s,
                                 u"db"_s,
                                 u"users"_s,
                                 u"config.json"_s};
  static const QStringList roots{m_home.path(),
                                 m_home.path(u"a"_s),
                                 m_home.path(u".docker"_s),
                                 m_home.path(u"snap/firefox/common"_s),
                                 m_home.path(u".var/app/org.mozilla.firefox"_s),
                                 m_home.outside(),
                                 u"/private/var"_s,
                                 u"/Library/x"_s,
                                 u"/mnt/x"_s,
                                 u"/var/tmp"_s,
                                 u"/Applications/x"_s};
  QString path = oneOf(random, roots);
  Verdict above = guard.ask(path);
  for (int depth = 0; depth < 6; ++depth) {
    path += u'/' + oneOf(random, names);
    const Verdict verdict = guard.ask(path);
    QVERIFY2(verdict == plainVerdict(path, rules), qPrintable(path + u" with "_s + rules.join(u' ')));
    if (above == Verdict::Free) {
      QVERIFY2(guard.askBelow(path) == verdict, qPrintable(path + u" with "_s + rules.join(u' ')));
      ++m_turned[static_cast<int>(verdict)];
    }
    above = verdict;
  }
}

void TestGuard::belowTrees() {
  std::mt19937 random(5);
  for (int round = 0; round < 2500; ++round) {
    QList<QString> rules;
    for (auto count = random() % 3; count > 0; --count) rules << ruleOf(&random);
    const Guard guard(rules);
    for (int n = 0; n < 20; ++n) {
      compareDownwards(guard, rules, &random);
      if (QTest::currentTestFailed()) return;
    }
  }
  for (const qsizetype count : m_turned) QVERIFY2(count > 500, qPrintable(QString::number(count)));
}

void TestGuard::brokenNames() {
  const QString broken = m_home.path(u"a/eset"_s) + QChar(0xd800);
  QCOMPARE(Guard({u"x"_s}).ask(broken), Verdict::Excluded);
  QCOMPARE(Guard({u"x"_s}).askBelow(broken), Verdict::Excluded);
  QCOMPARE(Guard().askBelow(broken), Guard().ask(broken));
}

void TestGuard::manyThreads() {
  const Guard guard({u"**/.git"_s, u"~/keep"_s});
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 6; ++i)
    threads.emplace_back([&, copy = guard] {
      for (int n = 0; n < 5000; ++n) {
        const QString path = m_home.path(u"x%1/.git"_s.arg(n % 10));
        if (guard.ask(path) != Verdict::Excluded || copy.askBelow(path) != Verdict::Excluded) ++wrong;
        if (copy.ask(m_home.path(u"x"_s)) != Verdict::Free) ++wrong;
      }
    });
  for (std::thread& thread : threads) thread.join();
  QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(TestGuard)
#include "tst_guard.moc"
