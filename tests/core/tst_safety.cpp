/// Protected locations and the user's rules.
#include "core/places.h"
#include "core/rules.h"
#include "core/safety.h"
#include "support/FixtureHome.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestSafety : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void universalPlaces_data();
  void universalPlaces();
  void rules_data();
  void rules();
  void laterRulesStayUncompiled();

 private:
  FixtureHome m_home;
};

void TestSafety::init() { qunsetenv("TARNWICK_HOST"); }

void TestSafety::universalPlaces_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<bool>("isProtected");
  const QString home = m_home.path();
  QTest::newRow("empty") << u""_s << true;
  QTest::newRow("relative") << u"a/b/c"_s << true;
  QTest::newRow("root") << u"/"_s << true;
  QTest::newRow("in the root") << u"/Applications"_s << true;
  QTest::newRow("in the root, with a slash") << u"/Users/"_s << true;
  QTest::newRow("home") << home << true;
  QTest::newRow("homes") << home + u"/.."_s << true;
  QTest::newRow("Documents") << home + u"/Documents"_s << true;
  QTest::newRow("file in Documents") << home + u"/Documents/a"_s << false;
  QTest::newRow("below System") << u"/System/Library/x"_s << true;
  QTest::newRow("app") << u"/Applications/Some.app"_s << false;
  QTest::newRow("private folders") << u"/private/var/folders/x"_s << false;
  QTest::newRow("utility") << u"/Applications/Utilities/Terminal.app"_s << true;
  QTest::newRow("up and down") << u"/usr/.."_s + home + u"/Documents/"_s << true;
  QTest::newRow("above the root") << u"/../../usr/lib"_s << true;
  QTest::newRow("usr local") << u"/usr/local/x"_s << true;
  QTest::newRow("usrlocal") << u"/usrlocal/x"_s << false;
  QTest::newRow("upper case") << u"/USR/x"_s << false;
}

void TestSafety::universalPlaces() {
  QFETCH(QString, path);
  QFETCH(bool, isProtected);
  for (const char* host : {"mac", "linux"}) {
    qputenv("TARNWICK_HOST", host);
    QCOMPARE(safety::isProtected(path), isProtected);
  }
}

void TestSafety::rules_data() {
  QTest::addColumn<QString>("rule");
  QTest::addColumn<QString>("path");
  QTest::addColumn<bool>("isExcluded");
  QTest::newRow("bare glob") << u"*.log"_s << u"/a/b/x.log"_s << true;
  QTest::newRow("bare glob, below") << u"*.log"_s << u"/a/x.log/y"_s << true;
  QTest::newRow("bare glob, other case") << u"*.log"_s << u"/a/b/x.LOG"_s << false;
  QTest::newRow("path") << u"/a/b"_s << u"/a/b"_s << true;
  QTest::newRow("path, below") << u"/a/b"_s << u"/a/b/c"_s << true;
  QTest::newRow("path, beside") << u"/a/b"_s << u"/a/bc"_s << false;
  QTest::newRow("trailing slash") << u"/a/b/"_s << u"/a/b/c"_s << false;
  QTest::newRow("blanks around") << u"  /a/b  "_s << u"/a/b"_s << true;
  QTest::newRow("blanks") << u"   "_s << u"/a/b"_s << false;
  QTest::newRow("tilde") << u"~"_s << m_home.path(u"x/y"_s) << true;
  QTest::newRow("tilde and trailing slash") << u"~/a/"_s << m_home.path(u"a/y"_s) << true;
  QTest::newRow("deep") << u"~/work/**/build"_s << m_home.path(u"work/a/b/build/c"_s) << true;
  QTest::newRow("deep, no") << u"~/work/**/build"_s << m_home.path(u"work/a/b/built/c"_s) << false;
  QTest::newRow("default") << u"**/.git"_s << u"/a/b/.git/config"_s << true;
}

void TestSafety::rules() {
  QFETCH(QString, rule);
  QFETCH(QString, path);
  QTEST(safety::isExcluded(path, {rule}), "isExcluded");
}

void TestSafety::laterRulesStayUncompiled() {
  const qsizetype before = rules::compiledCount();
  const QList<QString> list{u"only-here-a"_s, u"only-here-b"_s};
  QVERIFY(safety::isExcluded(u"/x/only-here-a"_s, list));
  QCOMPARE(rules::compiledCount(), before + 1);
  QVERIFY(safety::isExcluded(u"/x/only-here-b"_s, list));
  QCOMPARE(rules::compiledCount(), before + 2);
  QVERIFY(safety::isExcluded(u"/x/only-here-b"_s, {u"only-here-b"_s}));
  QCOMPARE(rules::compiledCount(), before + 2);
}

QTEST_GUILESS_MAIN(TestSafety)
#include "tst_safety.moc"
