// The pieces of what is shown: descriptors, widths, ellipses, tables, bars.
#include "cli/Table.h"
#include "cli/output.h"
#include "cli/terminal.h"

#include <QTest>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using cli::Table;
using cli::Tone;

class tst_cli_table : public QObject {
  Q_OBJECT

 private slots:
  void standardDescriptorsAreKept();
  void columns_data();
  void columns();
  void elided_data();
  void elided();
  void elidedNeverTooWide();
  void wrapped_data();
  void wrapped();
  void alignsByColumns();
  void lastColumnGivesWay();
  void ruleIsAsWideAsTheColumns();
  void tones();
  void bars_data();
  void bars();
};

void tst_cli_table::standardDescriptorsAreKept() {
  const pid_t child = ::fork();
  if (child == 0) {
    for (const int fd : {0, 1, 2}) ::close(fd);
    cli::prepareDescriptors();
    const char byte = 0;
    const bool useless = ::write(1, &byte, 1) == -1 && ::write(2, &byte, 1) == -1;
    ::_exit(useless && ::open("/", O_RDONLY) > 2 ? 0 : 1);
  }
  int status = -1;
  QCOMPARE(::waitpid(child, &status, 0), child);
  QCOMPARE(status, 0);
}

void tst_cli_table::columns_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("columns");
  QTest::newRow("none") << QString() << 0;
  QTest::newRow("latin") << u"Größe"_s << 5;
  QTest::newRow("decomposed") << u"Gro\u0308ße"_s << 5;
  QTest::newRow("chinese") << u"简体中文"_s << 8;
  QTest::newRow("korean") << u"한국어"_s << 6;
  QTest::newRow("cyrillic") << u"Русский"_s << 7;
  QTest::newRow("pictogram") << u"\U0001F600"_s << 2;
  QTest::newRow("joiner") << u"a\u200Db"_s << 2;
}

void tst_cli_table::columns() {
  QFETCH(QString, text);
  QTEST(cli::terminal::columns(text), "columns");
}

void tst_cli_table::elided_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("most");
  QTest::addColumn<QString>("shown");
  QTest::newRow("fits") << u"abcdef"_s << 6 << u"abcdef"_s;
  QTest::newRow("one too many") << u"abcdefg"_s << 6 << u"abc…fg"_s;
  QTest::newRow("odd") << u"abcdefgh"_s << 5 << u"ab…gh"_s;
  QTest::newRow("two") << u"abcdef"_s << 2 << u"a…"_s;
  QTest::newRow("one") << u"abcdef"_s << 1 << u"…"_s;
  QTest::newRow("no room") << u"abcdef"_s << 0 << QString();
  QTest::newRow("less than none") << u"abcdef"_s << -5 << QString();
  QTest::newRow("wide") << u"简体中文字体"_s << 7 << u"简…体"_s;
}

void tst_cli_table::elided() {
  QFETCH(QString, text);
  QFETCH(int, most);
  QTEST(cli::terminal::elided(text, most), "shown");
}

void tst_cli_table::elidedNeverTooWide() {
  const QString text = u"/home/用户/.cache/Größe/\U0001F600/e\u0301tude"_s;
  for (int most = -1; most < 50; ++most) {
    const QString shown = cli::terminal::elided(text, most);
    QVERIFY(cli::terminal::columns(shown) <= qMax(0, most));
    QVERIFY(shown.isValidUtf16());
  }
}

void tst_cli_table::wrapped_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("most");
  QTest::addColumn<int>("indent");
  QTest::addColumn<int>("used");
  QTest::addColumn<QString>("lines");
  QTest::newRow("fits") << u"a bc def"_s << 8 << 0 << 0 << u"a bc def"_s;
  QTest::newRow("one less") << u"a bc def"_s << 7 << 0 << 0 << u"a bc\ndef"_s;
  QTest::newRow("indent") << u"a bc def"_s << 6 << 3 << 0 << u"a bc\n   def"_s;
  QTest::newRow("used") << u"a bc def"_s << 6 << 0 << 3 << u"a\nbc def"_s;
  QTest::newRow("long word") << u"a bcdefghij k"_s << 4 << 0 << 0 << u"a\nbcdefghij\nk"_s;
  QTest::newRow("wide") << u"简体 中文"_s << 8 << 0 << 0 << u"简体 中\n文"_s;
  QTest::newRow("without blanks") << u"扫描并列出内容"_s << 8 << 0 << 0 << u"扫描并列\n出内容"_s;
  QTest::newRow("an odd width") << u"扫描并列出内容"_s << 9 << 2 << 0 << u"扫描并列\n  出内容"_s;
  QTest::newRow("no mark begins a line") << u"扫描并列，出内容"_s << 8 << 0 << 0 << u"扫描并\n列，出内\n容"_s;
  QTest::newRow("no mark ends one") << u"扫描（并列）"_s << 6 << 0 << 0 << u"扫描\n（并\n列）"_s;
  QTest::newRow("japanese") << u"ファイルを消す。"_s << 8 << 0 << 0 << u"ファイル\nを消す。"_s;
  QTest::newRow("korean has blanks") << u"파일을 지웁니다"_s << 8 << 0 << 0 << u"파일을\n지웁니다"_s;
  QTest::newRow("commands stay whole") << u"用 tarnwick-cli 清理"_s << 8 << 0 << 0 << u"用\ntarnwick-cli\n清理"_s;
  QTest::newRow("paths stay whole") << u"in /a-b/c-d"_s << 6 << 0 << 0 << u"in\n/a-b/c-d"_s;
  QTest::newRow("own breaks") << u"a b\nc d"_s << 3 << 2 << 2 << u"a\n  b\nc d"_s;
}

void tst_cli_table::wrapped() {
  QFETCH(QString, text);
  QFETCH(int, most);
  QFETCH(int, indent);
  QFETCH(int, used);
  QTEST(cli::terminal::wrapped(text, most, indent, used), "lines");
}

void tst_cli_table::alignsByColumns() {
  Table table({Table::Side::Left, Table::Side::Right, Table::Side::Left});
  table.add({{u"简体"_s}, {u"5 KB"_s}, {u"x"_s}});
  table.add({{u"a"_s}, {u"1,000 MB"_s}});
  QCOMPARE(table.text(0, false), u"  简体      5 KB  x\n"
                                 "  a     1,000 MB\n"_s);
}

void tst_cli_table::lastColumnGivesWay() {
  Table table({Table::Side::Left, Table::Side::Left});
  table.add({{u"name"_s}, {u"a long remark about it"_s}});
  QCOMPARE(table.text(18, false), u"  name  a lon…t it\n"_s);
  QCOMPARE(table.text(5, false), u"  name\n"_s);
  QCOMPARE(table.text(0, false), u"  name  a long remark about it\n"_s);
}

void tst_cli_table::ruleIsAsWideAsTheColumns() {
  Table table({Table::Side::Left, Table::Side::Right});
  table.add({{u"abc"_s}, {u"12"_s}});
  table.addRule();
  QCOMPARE(table.text(0, false), u"  abc  12\n  ───────\n"_s);
}

void tst_cli_table::tones() {
  QCOMPARE(cli::toned(u"x"_s, Tone::Good, true), u"\x1b[32mx\x1b[0m"_s);
  QCOMPARE(cli::toned(u"x"_s, Tone::Grave, true), u"\x1b[31mx\x1b[0m"_s);
  QCOMPARE(cli::toned(u"x"_s, Tone::Grave, false), u"x"_s);
  QCOMPARE(cli::toned(u"x"_s, Tone::Plain, true), u"x"_s);
  QCOMPARE(cli::toned(QString(), Tone::Good, true), QString());
  Table table({Table::Side::Right, Table::Side::Left});
  table.add({{u"1"_s, Tone::Strong}, {u"a"_s}});
  table.add({{u"100"_s}, {u"b"_s}});
  QCOMPARE(table.text(0, true), u"    \x1b[1m1\x1b[0m  a\n  100  b\n"_s); // colours take no room
}

void tst_cli_table::bars_data() {
  QTest::addColumn<double>("share");
  QTest::addColumn<QString>("bar");
  QTest::newRow("nothing") << 0.0 << QString();
  QTest::newRow("a trace") << 0.0001 << u"▏"_s;
  QTest::newRow("an eighth of one") << 1.0 / 32 << u"▏"_s;
  QTest::newRow("half") << 0.5 << u"██"_s;
  QTest::newRow("seven eighths more") << 0.5 + 7.0 / 32 << u"██▉"_s;
  QTest::newRow("all") << 1.0 << u"████"_s;
  QTest::newRow("too much") << 3.0 << u"████"_s;
}

void tst_cli_table::bars() {
  QFETCH(double, share);
  QTEST(cli::bar(share, 4), "bar");
}

QTEST_GUILESS_MAIN(tst_cli_table)
#include "tst_cli_table.moc"
