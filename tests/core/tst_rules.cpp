/// The user's "Never touch these" rules.
#include "core/places.h"
#include "core/rules.h"
#include "core/safety.h"
#include "support/FixtureHome.h"
#include "support/expressions.h"
#include "support/realistic_paths.h"

#include <QElapsedTimer>
#include <QTest>

#include <atomic>
#include <random>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QChar kHighSurrogate(0xd83d);
const QChar kLowSurrogate(0xde00);

/// A rule or a path of a few tokens, so that rules and paths meet.
QString madeOf(std::mt19937* random, const QStringList& tokens, quint32 most) {
  QString result;
  for (auto count = 1 + (*random)() % most; count > 0; --count)
    result += tokens[static_cast<qsizetype>((*random)() % static_cast<quint32>(tokens.size()))];
  return result;
}

} // namespace

class TestRules : public QObject {
  Q_OBJECT

 private slots:
  void language_data();
  void language();
  void tilde();
  void tildeFollowsTheHomeFolder();
  void tildeWithoutHome();
  void noRules();
  void laterRulesStayUncompiled();
  void brokenText();
  void hardRulesEndSoon_data();
  void hardRulesEndSoon();
  void longRules();
  void likeExpressionsOnRealPaths();
  void likeExpressionsOnMadeUpOnes();
  void manyThreads();

 private:
  FixtureHome m_home;
};

void TestRules::language_data() {
  QTest::addColumn<QString>("rule");
  QTest::addColumn<QString>("path");
  QTest::addColumn<bool>("isExcluded");
  const auto row = [](const char* name, const char16_t* rule, const char16_t* path, bool isExcluded) {
    QTest::newRow(name) << QString::fromUtf16(rule) << QString::fromUtf16(path) << isExcluded;
  };
  row("name, last", u"node_modules", u"/a/node_modules", true);
  row("name, first", u"node_modules", u"/node_modules/a/b", true);
  row("name, in between", u"node_modules", u"/a/node_modules/b", true);
  row("name, other case", u"node_modules", u"/a/Node_modules/b", false);
  row("name, longer", u"node_modules", u"/a/node_modules2/b", false);
  row("name, shorter", u"node_modules", u"/a/node_module/b", false);
  row("name in a relative path", u"a", u"a/b", true);
  row("bare glob", u"*.log", u"/a/b/x.log", true);
  row("bare glob, below", u"*.log", u"/a/x.log/y", true);
  row("bare glob, other case", u"*.log", u"/a/b/x.LOG", false);
  row("bare glob, nothing for the star", u"*.log", u"/a/.log", true);
  row("question mark", u"cache?", u"/a/cache1/b", true);
  row("question mark, nothing", u"cache?", u"/a/cache/b", false);
  row("question mark, two", u"cache?", u"/a/cache12", false);
  row("question mark, beyond the plane", u"c?d", u"/a/c\U0001F600d", true);
  row("two question marks, one character", u"c??d", u"/a/c\U0001F600d", false);
  row("all", u"*", u"/a", true);
  row("all, root", u"*", u"/", true);
  row("all, empty path", u"*", u"", true);
  row("one character, root", u"?", u"/", false);
  row("stars within", u"a*b*c", u"/x/a--b--b-c", true);
  row("stars within, order", u"a*b*c", u"/x/a--c--b", false);
  row("star stops at a slash", u"a*c", u"/a/c", false);
  row("double star in a name", u"a**c", u"/a/c", false);
  row("double star in a name, one component", u"a**c", u"/x/abc", true);
  row("path", u"/a/b", u"/a/b", true);
  row("path, below", u"/a/b", u"/a/b/c", true);
  row("path, beside", u"/a/b", u"/a/bc", false);
  row("path, above", u"/a/b", u"/a", false);
  row("path, elsewhere", u"/a/b", u"/x/a/b", false);
  row("volume", u"/Volumes/Backup", u"/Volumes/Backup/x", true);
  row("slash at the end", u"/a/b/", u"/a/b", false);
  row("slash at the end, below", u"/a/b/", u"/a/b/c", false);
  row("rule isn't normalized", u"/a/../b", u"/b", false);
  row("rule isn't normalized, slashes", u"//a", u"/a", false);
  row("path is normalized", u"/a/b", u"//a/./x/../b/", true);
  row("root", u"/", u"/", true);
  row("root, below", u"/", u"/a", false);
  row("relative path rule", u"a/b", u"/a/b", false);
  row("relative path rule, relative path", u"a/b", u"a/b/c", true);
  row("blanks around", u"  /a/b \t", u"/a/b", true);
  row("blanks", u" \t ", u"/a/b", false);
  row("empty", u"", u"/a/b", false);
  row("path glob", u"/Users/*/tmp", u"/Users/me/tmp", true);
  row("path glob, below", u"/Users/*/tmp", u"/Users/me/tmp/x/y", true);
  row("path glob, too deep", u"/Users/*/tmp", u"/Users/me/x/tmp", false);
  row("path glob, part of a component", u"/Users/m*e/tmp", u"/Users/mimose/tmp", true);
  row("path glob, nothing for the star", u"/Users/*/tmp", u"/Users//tmp", false);
  row("path glob, question mark", u"/a/?/c", u"/a/b/c", true);
  row("path glob, question mark is no slash", u"/a?b/c", u"/a/b/c", false);
  row("star at the end", u"/a/*", u"/a/b/c", true);
  row("star at the end, itself", u"/a/*", u"/a", false);
  row("deep", u"/w/**/build", u"/w/a/b/build/c", true);
  row("deep, directly", u"/w/**/build", u"/w/build", false);
  row("deep, one between", u"/w/**/build", u"/w/a/build", true);
  row("deep, longer name", u"/w/**/build", u"/w/a/builds", false);
  row("deep at the end", u"/a/**", u"/a/b", true);
  row("deep at the end, itself", u"/a/**", u"/a", false);
  row("deep at the start", u"**/.git", u"/a/b/.git", true);
  row("deep at the start, below", u"**/.git", u"/a/.git/config", true);
  row("deep at the start, in the root", u"**/.git", u"/.git", true);
  row("deep at the start, longer name", u"**/.git", u"/a/x.git", false);
  row("deep at the start, first of a relative path", u"**/.git", u".git/x", false);
  row("deep at the start, glob", u"**/*.log", u"/a/b.log/c", true);
  row("deep at the start, all", u"**/*", u"/", true);
  row("deep at the start, path", u"**/a/b", u"/x/a/b/c", true);
  row("deep within a component", u"/a**z", u"/ab/c/xyz", true);
  row("three stars", u"***", u"/a", true);
  row("three stars in a path", u"/a***/z", u"/ab/c/z", true);
  row("all by double star", u"**", u"/", true);
  row("slash by double star", u"**/", u"/a", false);
  row("brackets stand for themselves", u"[ab]", u"/x/a", false);
  row("brackets", u"[ab]", u"/x/[ab]", true);
  row("parentheses, bar, mark", u"(a|b)!", u"/x/(a|b)!", true);
  row("dot", u"a.b", u"/x/acb", false);
  row("backslash", u"a\\d", u"/x/a\\d", true);
  row("backslash and star", u"a\\*", u"/x/a\\bc", true);
  row("dollar and caret", u"^a$", u"/x/^a$", true);
  row("other script", u"資料*", u"/x/資料庫/y", true);
  row("other form", u"\u00e9", u"/x/e\u0301", false);
  row("star over a line break", u"a*c", u"/x/a\nc", true);
  row("double star over a line break", u"/a/**/c", u"/a/x\ny/c", true);
  row("below, with a line break", u"/a", u"/a/x\ny", true);
  row("line break at the end of a component", u"a", u"/x/a\n/y", true);
  row("two line breaks at the end", u"a", u"/x/a\n\n/y", false);
  row("line break at the end of a path", u"/x/a", u"/x/a\n", true);
  row("line break at the end of a folder", u"/x/a", u"/x/a\n/y", false);
  row("line break at the end, at any depth", u"**/a", u"/x/a\n", true);
  row("line break at the end of a folder, at any depth", u"**/a", u"/x/a\n/y", false);
}

void TestRules::language() {
  QFETCH(QString, rule);
  QFETCH(QString, path);
  QFETCH(bool, isExcluded);
  QCOMPARE(safety::isExcluded(path, {rule}), isExcluded);
  QCOMPARE(expressions::isExcluded(path, expressions::compiled(QList<QString>{rule})), isExcluded);
  QCOMPARE(safety::isExcluded(path, {u"no such rule"_s, rule, u" "_s}), isExcluded);
  QCOMPARE(rules::RuleSet({rule}).covers(rules::Subject(safety::normalized(path))), isExcluded);
}

void TestRules::tilde() {
  QVERIFY(safety::isExcluded(m_home.path(), {u"~"_s}));
  QVERIFY(safety::isExcluded(m_home.path(u"x/y"_s), {u"~"_s}));
  QVERIFY(!safety::isExcluded(m_home.path() + u"2/x"_s, {u"~"_s}));
  QVERIFY(safety::isExcluded(m_home.path() + u"2/x"_s, {u"~2"_s}));
  QVERIFY(safety::isExcluded(m_home.path(u"a"_s), {u"~/a/"_s}));
  QVERIFY(safety::isExcluded(m_home.path(u"a/b"_s), {u"~/a/"_s}));
  QVERIFY(safety::isExcluded(m_home.path(u"a/b"_s), {u" ~//x/../a "_s}));
  QVERIFY(safety::isExcluded(m_home.path(u"Projects/keep/x"_s), {u"~/Projects/keep"_s}));
  QVERIFY(safety::isExcluded(m_home.path(u"work/a/b/build/c"_s), {u"~/work/**/build"_s}));
  QVERIFY(!safety::isExcluded(u"/x/a~"_s, {u"~"_s}));
  QVERIFY(safety::isExcluded(u"/x/a~"_s, {u"a~"_s}));
}

void TestRules::tildeFollowsTheHomeFolder() {
  const QList<QString> list{u"~/a"_s};
  const QString first = m_home.path(u"a"_s);
  QVERIFY(safety::isExcluded(first, list));
  const FixtureHome other;
  QVERIFY(!safety::isExcluded(first, list));
  QVERIFY(safety::isExcluded(other.path(u"a"_s), list));
}

void TestRules::tildeWithoutHome() {
  if (places::passwordHome().isEmpty()) QSKIP("the password database names no home folder");
  qunsetenv("HOME");
  const bool excluded = safety::isExcluded(places::passwordHome() + u"/a/b"_s, {u"~/a"_s});
  qputenv("HOME", m_home.path().toUtf8());
  QVERIFY(excluded);
}

void TestRules::noRules() {
  QVERIFY(!safety::isExcluded(u"/a"_s, {}));
  QVERIFY(rules::RuleSet({}).isEmpty());
  QVERIFY(rules::RuleSet({u" "_s, u""_s}).isEmpty());
}

void TestRules::laterRulesStayUncompiled() {
  const qsizetype before = rules::compiledCount();
  const QList<QString> list{u"only-here-a"_s, u"only-here-b"_s};
  QVERIFY(safety::isExcluded(u"/x/only-here-a"_s, list));
  QCOMPARE(rules::compiledCount(), before + 1);
  QVERIFY(safety::isExcluded(u"/x/only-here-a"_s, list));
  QCOMPARE(rules::compiledCount(), before + 1);
  QVERIFY(safety::isExcluded(u"/x/only-here-b"_s, list));
  QCOMPARE(rules::compiledCount(), before + 2);
  QVERIFY(safety::isExcluded(u"/x/only-here-b"_s, {u" only-here-b "_s}));
  QVERIFY(rules::RuleSet(list).covers(rules::Subject(u"/only-here-b")));
  QCOMPARE(rules::compiledCount(), before + 2);
}

// What a matcher can't read is kept.
void TestRules::brokenText() {
  const QString broken = u"/x/a"_s + kHighSurrogate + u"/b"_s;
  QVERIFY(!safety::isExcluded(broken, {}));
  QVERIFY(!safety::isExcluded(broken, {u" "_s}));
  QVERIFY(safety::isExcluded(broken, {u"no such rule"_s}));
  QVERIFY(safety::isExcluded(broken, {u"/no/such/rule"_s}));
  QVERIFY(safety::isExcluded(u"/x/"_s + kLowSurrogate + kHighSurrogate, {u"no such rule"_s}));
  QVERIFY(safety::isExcluded(u"/a/b"_s, {QString(kLowSurrogate)}));
  QVERIFY(safety::isExcluded(u"/a/b"_s, {u"/x/"_s + kHighSurrogate}));
  QVERIFY(!safety::isExcluded(u"/x/"_s + kHighSurrogate + kLowSurrogate, {u"no such rule"_s}));
}

void TestRules::hardRulesEndSoon_data() {
  QTest::addColumn<QString>("rule");
  QTest::addColumn<QString>("path");
  QTest::addColumn<bool>("isExcluded");
  const QString many = u'/' + QString(100000, u'a');
  QTest::newRow("name") << QString(u"*a"_s).repeated(40) + u'b' << many << false;
  QTest::newRow("path") << u"/"_s + QString(u"*a"_s).repeated(40) + u'b' << many << false;
  QTest::newRow("deep") << u"/"_s + QString(u"**a"_s).repeated(40) + u'b' << many << false;
  QTest::newRow("mixed") << u"/"_s + QString(u"**a*a?"_s).repeated(20) + u'b' << many << false;
  QTest::newRow("it matches") << u"/"_s + QString(u"**a*a?"_s).repeated(20) + u'b' << many + u'b' << true;
  QTest::newRow("folders") << u"/"_s + QString(u"**/a"_s).repeated(40) + u"/b"_s << QString(u"/a"_s).repeated(50000)
                           << false;
}

// One step a character for each 64 of the rule; a second is a hundred times more than it takes.
void TestRules::hardRulesEndSoon() {
  QFETCH(QString, rule);
  QFETCH(QString, path);
  QFETCH(bool, isExcluded);
  QElapsedTimer clock;
  clock.start();
  QCOMPARE(safety::isExcluded(path, {rule}), isExcluded);
  QVERIFY(clock.elapsed() < 1000);
}

// Rules that need more than one word of bits, at and around the borders between words.
void TestRules::longRules() {
  for (const int size : {60, 61, 62, 63, 64, 65, 126, 127, 128, 129, 200}) {
    const QString name = QString(size / 2, u'a') + u'é' + QString(size / 2, u'b');
    for (const QString& rule : {u"/*/"_s + name, u"?"_s + name, u"/x/**"_s + name + u'?', u"*"_s + name + u"*z"_s}) {
      const QList<expressions::Rule> plain = expressions::compiled(QList<QString>{rule});
      for (const QString& path : {u"/x/"_s + name, u"/x/y"_s + name, u"/x/"_s + name + u'z', u"/x/y"_s + name + u"/c"_s,
                                  u"/x/"_s + name.chopped(1), u"/x/y/"_s + name + u"\U0001F600/z"_s})
        QVERIFY2(safety::isExcluded(path, {rule}) == expressions::isExcluded(path, plain),
                 qPrintable(rule + u" over "_s + path));
    }
  }
}

void TestRules::likeExpressionsOnRealPaths() {
  const QList<QString> paths = paths::realistic(100000);
  const QList<QString> list{
      u"**/.git"_s,           u"node_modules"_s, u"*.iso"_s,   u"~/Projects/keep"_s, u"/home/ada/work/**/build"_s,
      u"/home/*/Downloads"_s, u"*(copy)*"_s,     u"chunk-?"_s, u"**/cache2/**.js"_s, u"資料*"_s};
  const QList<expressions::Rule> plain = expressions::compiled(list);
  qsizetype excluded = 0;
  for (const QString& path : paths) {
    const bool expected = expressions::isExcluded(path, plain);
    excluded += expected ? 1 : 0;
    if (safety::isExcluded(path, list) != expected) QFAIL(qPrintable(path));
  }
  QVERIFY(excluded > paths.size() / 20 && excluded < paths.size() - paths.size() / 20);
}

void TestRules::likeExpressionsOnMadeUpOnes() {
  std::mt19937 random(7);
  const QStringList ruleTokens{u"a"_s, u"b"_s,   u"*"_s,  u"*"_s,          u"**"_s, u"?"_s, u"/"_s,
                               u"/"_s, u"**/"_s, u"\n"_s, u"\U0001F600"_s, u"~"_s,  u" "_s, u"."_s};
  const QStringList pathTokens{u"a"_s,  u"b"_s,          u"ab"_s, u"/"_s, u"/"_s, u"/a"_s,
                               u"\n"_s, u"\U0001F600"_s, u"~"_s,  u"."_s, u" "_s};
  qsizetype excluded = 0;
  for (int round = 0; round < 4000; ++round) {
    const QString rule = madeOf(&random, ruleTokens, 8);
    const QList<expressions::Rule> plain = expressions::compiled(QList<QString>{rule});
    for (int n = 0; n < 25; ++n) {
      const QString path = (random() % 8 == 0 ? QString() : u"/"_s) + madeOf(&random, pathTokens, 9);
      const bool expected = expressions::isExcluded(path, plain);
      excluded += expected ? 1 : 0;
      if (safety::isExcluded(path, {rule}) != expected) QFAIL(qPrintable(u'"' + rule + u"\" over \""_s + path + u'"'));
    }
  }
  QVERIFY(excluded > 5000);
}

void TestRules::manyThreads() {
  const QList<QString> lists[] = {{u"**/.git"_s, u"one"_s}, {u"two"_s, u"/x/*"_s}, {u"~/three"_s}};
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 6; ++i)
    threads.emplace_back([&, i] {
      for (int n = 0; n < 3000; ++n) {
        if (!safety::isExcluded(u"/a/.git/x"_s, lists[0]) || safety::isExcluded(u"/a/two"_s, lists[0])) ++wrong;
        if (!safety::isExcluded(u"/a/two"_s, lists[1]) || safety::isExcluded(u"/a/one"_s, lists[1])) ++wrong;
        const QString fresh = u"fresh-%1-%2"_s.arg(i).arg(n % 10);
        if (!safety::isExcluded(u"/a/"_s + fresh, {u"x"_s, fresh})) ++wrong;
      }
    });
  for (std::thread& thread : threads) thread.join();
  QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(TestRules)
#include "tst_rules.moc"
