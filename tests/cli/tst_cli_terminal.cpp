// The program on a terminal: the question, progress, colours, widths, and Ctrl-C.
#include "support/CliTest.h"
#include "support/Pty.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray kCtrlC = "\x03";
const QByteArray kCtrlD = "\x04";
const QByteArray kQuestion = "[y/N]";

constexpr int kFilesEach = 410; // the walk tells where it is after every 400th file

// Caches with a name that would speak to a terminal, numbered from `first` up to before `end`.
void addLoudCaches(const QString& root, int first, int end) {
  for (int i = first; i < end; ++i) {
    const QString cache = root + u"/n%1\x1b[31m"_s.arg(i);
    QVERIFY(QDir().mkdir(cache));
    for (int k = 0; k < kFilesEach; ++k)
      ::close(::open(QFile::encodeName(cache + u'/' + QString::number(k)).constData(), O_WRONLY | O_CREAT, 0600));
  }
}

/// Cells of a terminal, for texts whose only wide characters are those of East Asia.
int cells(const QString& text) {
  return static_cast<int>(std::count_if(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 0x2e80; }) +
                          text.size());
}

/// Where the sizes of a table end, line by line.
QList<int> endsOfSizes(const QString& shown) {
  static const QRegularExpression size(u" \\d[\\d.,]*[ \u00a0][KMG]B"_s);
  QList<int> ends;
  for (const QString& line : shown.section(u'\u2500', 0, -1).split(u"\r\n"_s))
    if (const auto match = size.match(line); line.startsWith(u"  "_s) && match.hasMatch())
      ends << cells(line.left(match.capturedEnd()));
  return ends;
}

} // namespace

class tst_cli_terminal : public CliTest {
  Q_OBJECT

 private slots:
  void init();

  void asks_data();
  void asks();
  void asksInTheLanguage_data();
  void asksInTheLanguage();
  void asksByTheTrashOfTheHost();
  void questionsByMode_data();
  void questionsByMode();
  void ctrlCAtTheQuestion();
  void yesAndSignalAtOnce();
  void hangUpAtTheQuestion();
  void yesAsksNothing();
  void dryRunAsksNothing();
  void questionGoesWhereTheUserSees();
  void jsonIsAskedAboutOnStandardError();
  void nowhereToAsk();
  void nobodyToAnswer();
  void progressOfAScan();
  void noProgressOffTheTerminal();
  void progressAndCtrlC();
  void colours_data();
  void colours();
  void widths_data();
  void widths();
  void columnsLineUp_data();
  void columnsLineUp();
};

void tst_cli_terminal::init() {
  make();
  qputenv("TERM", "xterm-256color");
  qunsetenv("NO_COLOR");
  qputenv("TARNWICK_LANG", "en");
}

void tst_cli_terminal::asks_data() {
  QTest::addColumn<QByteArray>("keys");
  QTest::addColumn<bool>("cleans");
  QTest::newRow("y") << QByteArray("y\n") << true;
  QTest::newRow("Y") << QByteArray("Y\n") << true;
  QTest::newRow("yes") << QByteArray(" Yes \n") << true;
  QTest::newRow("n") << QByteArray("n\n") << false;
  QTest::newRow("just Enter") << QByteArray("\n") << false;
  QTest::newRow("another word") << QByteArray("yesterday\n") << false;
  QTest::newRow("the end") << kCtrlD << false;
  QTest::newRow("y without Enter, then the end twice") << QByteArray("y" + kCtrlD + kCtrlD) << false;
}

void tst_cli_terminal::asks() {
  QFETCH(QByteArray, keys);
  QFETCH(bool, cleans);
  const auto before = wholeTree(*m_home);
  Pty pty({u"clean"_s, u"--delete"_s});
  QVERIFY(pty.shows(kQuestion));
  QVERIFY(pty.shown().contains("App caches"));
  QVERIFY(pty.shown().contains("deleted for good"));
  QVERIFY(there(u".cache/acme-notes/index"_s));
  pty.type(keys);
  QCOMPARE(pty.finish(), 0);
  QCOMPARE(!there(u".cache/acme-notes/index"_s), cleans);
  QCOMPARE(pty.shown().contains("Freed"), cleans);
  QCOMPARE(pty.shown().contains("Nothing was cleaned."), !cleans);
  if (!cleans) QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_terminal::asksInTheLanguage_data() {
  QTest::addColumn<QByteArray>("code");
  QTest::addColumn<QByteArray>("hint");
  QTest::addColumn<QByteArray>("keys");
  QTest::addColumn<bool>("cleans");
  const auto row = [](const char* code, const char* hint, const char* keys, bool cleans) {
    QTest::addRow("%s: %s", code, keys) << QByteArray(code) << QByteArray(hint) << QByteArray(keys) << cleans;
  };
  row("de", "[j/N]", "j", true);
  row("de", "[j/N]", " Ja ", true);
  row("de", "[j/N]", "y", true);
  row("de", "[j/N]", "yes", true);
  row("de", "[j/N]", "n", false);
  row("de", "[j/N]", "nein", false);
  row("de", "[j/N]", "jaja", false);
  row("de", "[j/N]", "j ja", false);
  row("de", "[j/N]", "", false);
  row("de", "[j/N]", "да", false); // another language's
  row("ru", "[д/Н]", "д", true);
  row("ru", "[д/Н]", "ДА", true);
  row("ru", "[д/Н]", "Yes", true);
  row("ru", "[д/Н]", "н", false);
  row("ru", "[д/Н]", "\xd0", false); // half a letter
  row("ja", "[y/N]", "はい", true);
  row("ja", "[y/N]", "y", true);
  row("ja", "[y/N]", "いいえ", false);
  row("es", "[s/N]", "si", true);
  row("fr", "[o/N]", "oui", true);
  row("pt_BR", "[s/N]", "sim", true);
  row("pt_BR", "[s/N]", "não", false);
  row("ko", "[y/N]", "예", true);
  row("zh_CN", "[y/N]", "是", true);
  row("zh_CN", "[y/N]", "不是", false);
  row("en", "[y/N]", "j", false);
}

void tst_cli_terminal::asksInTheLanguage() {
  QFETCH(QByteArray, code);
  QFETCH(QByteArray, hint);
  QFETCH(QByteArray, keys);
  QFETCH(bool, cleans);
  qputenv("TARNWICK_LANG", code);
  const auto before = wholeTree(*m_home);
  Pty pty({u"clean"_s, u"--delete"_s});
  QVERIFY(pty.shows(hint));
  pty.type(keys + '\n');
  QCOMPARE(pty.finish(), 0);
  QCOMPARE(!there(u".cache/acme-notes/index"_s), cleans);
  if (!cleans) QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_terminal::asksByTheTrashOfTheHost() {
  qputenv("TARNWICK_LANG", "zh_CN");
  Pty pty({u"clean"_s, u"--trash"_s});
  QVERIFY(pty.shows("移到回收站吗？ [y/N]"));
  QVERIFY(!pty.shown().contains("废纸篓"));
  pty.type("n\n");
  QCOMPARE(pty.finish(), 0);
}

void tst_cli_terminal::questionsByMode_data() {
  QTest::addColumn<QStringList>("further");
  QTest::addColumn<QString>("pattern");
  QTest::newRow("trash") << QStringList{u"--trash"_s} << u"Move [\\d.]+ KB to the Trash\\? "_s;
  QTest::newRow("default") << QStringList{} << u"Move [\\d.]+ KB to the Trash\\? "_s;
  QTest::newRow("delete") << QStringList{u"--delete"_s} << u"Delete [\\d.]+ KB for good\\? "_s;
  QTest::newRow("permanent") << QStringList{u"--trash"_s, u"--only"_s, u"trash"_s}
                             << u"Delete [\\d.]+ KB for good\\? "_s;
  QTest::newRow("both") << QStringList{u"--trash"_s, u"--only"_s, u"trash,dev"_s}
                        << u"Delete [\\d.]+ KB for good and move [\\d.]+ KB to the Trash\\? "_s;
}

void tst_cli_terminal::questionsByMode() {
  QFETCH(QStringList, further);
  QFETCH(QString, pattern);
  Pty pty(QStringList{u"clean"_s} + further);
  QVERIFY(pty.shows(kQuestion));
  const QString shown = QString::fromUtf8(pty.shown());
  QVERIFY2(QRegularExpression(pattern).match(shown).hasMatch(), qPrintable(shown));
  pty.type("n\n");
  QCOMPARE(pty.finish(), 0);
}

void tst_cli_terminal::ctrlCAtTheQuestion() {
  const auto before = wholeTree(*m_home);
  Pty pty({u"clean"_s, u"--delete"_s});
  QVERIFY(pty.shows(kQuestion));
  pty.type("y" + kCtrlC);
  QCOMPARE(pty.finish(), 130);
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_terminal::yesAndSignalAtOnce() {
  const auto before = wholeTree(*m_home);
  Pty pty({u"clean"_s, u"--delete"_s});
  QVERIFY(pty.shows(kQuestion));
  const auto pid = static_cast<pid_t>(pty.pid());
  ::kill(pid, SIGSTOP); // so that it finds both when it goes on
  int status = 0;
  QCOMPARE(::waitpid(pid, &status, WUNTRACED), pid); // it takes a while, and what is typed before may be read before
  QVERIFY(WIFSTOPPED(status));
  pty.type("y\n");
  QCOMPARE(::tgkill(pid, pid, SIGINT), 0); // the thread that asks: an idle one could come late with it
  ::kill(pid, SIGCONT);
  QCOMPARE(pty.finish(), 130);
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_terminal::hangUpAtTheQuestion() {
  const auto before = wholeTree(*m_home);
  const QString out = m_home->outside(u"out"_s);
  Pty pty({u"clean"_s, u"--delete"_s, u"--json"_s}, {.outTo = out});
  QVERIFY(pty.shows(kQuestion));
  pty.hangUp();
  const int code = pty.finish();
  QVERIFY2(code == 130 || code == 0, qPrintable(QString::number(code))); // the end of the input may come first: a no
  QFile::remove(out);
  QCOMPARE(wholeTree(*m_home).keys(), before.keys());
}

void tst_cli_terminal::yesAsksNothing() {
  Pty pty({u"clean"_s, u"--delete"_s, u"--yes"_s});
  QCOMPARE(pty.finish(), 0);
  QVERIFY(!pty.shown().contains(kQuestion));
  QVERIFY(pty.shown().contains("deleted for good"));
  QVERIFY(!there(u".cache/acme-notes/index"_s));
}

void tst_cli_terminal::dryRunAsksNothing() {
  const auto before = wholeTree(*m_home);
  Pty pty({u"clean"_s, u"--delete"_s, u"--dry-run"_s});
  QCOMPARE(pty.finish(), 0);
  QVERIFY(!pty.shown().contains(kQuestion));
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_terminal::questionGoesWhereTheUserSees() {
  const QString out = m_home->outside(u"out"_s);
  Pty pty({u"clean"_s, u"--delete"_s}, {.outTo = out});
  QVERIFY(pty.shows(kQuestion));
  QVERIFY(pty.shown().contains("App caches"));
  pty.type("y\n");
  QCOMPARE(pty.finish(), 0);
  QVERIFY(contents(out).startsWith("Freed "));
}

void tst_cli_terminal::jsonIsAskedAboutOnStandardError() {
  const QString err = m_home->outside(u"err"_s);
  Pty asked({u"clean"_s, u"--delete"_s, u"--json"_s}, {.outTo = err});
  QVERIFY(asked.shows(kQuestion));
  asked.type("n\n");
  QCOMPARE(asked.finish(), 0);
  const QJsonObject report = QJsonDocument::fromJson(contents(err)).object();
  QCOMPARE(report[u"freedBytes"_s].toInteger(-1), 0);

  Pty unasked({u"clean"_s, u"--delete"_s, u"--json"_s}, {.errTo = err}); // standard output belongs to the object
  QCOMPARE(unasked.finish(), 2);
  QCOMPARE(unasked.shown(), QByteArray());
  QVERIFY(there(u".cache/acme-notes/index"_s));
}

void tst_cli_terminal::nowhereToAsk() {
  const QString out = m_home->outside(u"out"_s);
  const QString err = m_home->outside(u"err"_s);
  Pty pty({u"clean"_s, u"--delete"_s}, {.outTo = out, .errTo = err});
  QCOMPARE(pty.finish(), 2);
  QCOMPARE(contents(out), QByteArray());
  QVERIFY(contents(err).startsWith("tarnwick-cli: "));
}

void tst_cli_terminal::nobodyToAnswer() {
  Pty pty({u"clean"_s, u"--delete"_s}, {.inFromNothing = true});
  QCOMPARE(pty.finish(), 2);
  QVERIFY(pty.shown().contains("--yes"));
  QVERIFY(there(u".cache/acme-notes/index"_s));
}

void tst_cli_terminal::progressOfAScan() {
  constexpr int kMostCaches = 1600;
  const QTemporaryDir memory(u"/dev/shm/tarnwick-test-XXXXXX"_s); // where many files cost little
  if (!memory.isValid()) QSKIP("there is no file system in memory");
  qputenv("XDG_CACHE_HOME", QFile::encodeName(memory.path()));
  const auto restored = qScopeGuard([] { qunsetenv("XDG_CACHE_HOME"); });
  const QString out = m_home->outside(u"out"_s);
  QByteArray shown;
  // However fast the disk is: caches are added until a scan takes so long that a line is drawn within it.
  for (int had = 0, caches = 100; caches <= kMostCaches && !shown.contains("\\x1b[31m"); had = caches, caches *= 4) {
    addLoudCaches(memory.path(), had, caches);
    Pty pty(QStringList{u"scan"_s, u"--json"_s} + slowRules(), {.outTo = out});
    QCOMPARE(pty.finish(), 0);
    shown = pty.shown();
  }
  const QRegularExpression line(u"\r\x1b\\[KApp caches  [\\d.,]+ .B  [\\d,]+ files  0:\\d\\d  "_s);
  QVERIFY2(line.match(QString::fromUtf8(shown)).hasMatch(), shown.constData());
  QVERIFY2(shown.contains("\\x1b[31m"), shown.constData()); // no path speaks to the terminal
  QVERIFY(!shown.contains("\x1b[31m"));
  QVERIFY(shown.endsWith("\r\x1b[K"));
  for (const QString& drawn : QString::fromUtf8(shown).split(u"\r\x1b[K"_s))
    QVERIFY2(drawn.size() <= 99, qPrintable(drawn));
  QVERIFY(QJsonDocument::fromJson(contents(out)).isObject());
}

void tst_cli_terminal::noProgressOffTheTerminal() {
  const QString err = m_home->outside(u"err"_s);
  Pty pty({u"scan"_s}, {.errTo = err});
  QCOMPARE(pty.finish(), 0);
  QVERIFY(!pty.shown().contains("\x1b[K"));
  QCOMPARE(contents(err), QByteArray());
}

// However fast the machine is: installers are added until a line is drawn while they are cleaned, and the key comes
// before the end.
void tst_cli_terminal::progressAndCtrlC() {
  constexpr int kMostInstallers = 13'000;
  QByteArray shown;
  int code = 0;
  for (int many = 200; many <= kMostInstallers && !shown.contains("then stopping"); many *= 4) {
    init();
    addManyItems(*m_home, many);
    Pty pty(QStringList{u"clean"_s, u"--yes"_s, u"--delete"_s, u"--only"_s, u"update"_s} + slowRules());
    const QString all = QLocale(u"en_US"_s).toString(many + 1);
    if (pty.shows(" of " + all.toUtf8() + " files  0:")) pty.type(kCtrlC);
    code = pty.finish();
    shown = pty.shown();
  }
  QCOMPARE(code, 130);
  QVERIFY2(shown.contains("then stopping"), shown.constData());
  const QRegularExpression line(
      u"\r\x1b\\[KOld installers  [\\d.,]+ .B of [\\d.,]+ .B  [\\d,]+ of [\\d,]+ files  0:\\d\\d  ~/Downloads/"_s);
  QVERIFY2(line.match(QString::fromUtf8(shown)).hasMatch(), shown.constData());
  QVERIFY(shown.contains("Freed "));
  QVERIFY(shown.contains("Log: "));
}

void tst_cli_terminal::colours_data() {
  QTest::addColumn<QByteArray>("term");
  QTest::addColumn<QByteArray>("noColor");
  QTest::addColumn<bool>("coloured");
  QTest::newRow("usual") << QByteArray("xterm") << QByteArray() << true;
  QTest::newRow("NO_COLOR") << QByteArray("xterm") << QByteArray("1") << false;
  QTest::newRow("dumb") << QByteArray("dumb") << QByteArray() << false;
}

void tst_cli_terminal::colours() {
  QFETCH(QByteArray, term);
  QFETCH(QByteArray, noColor);
  QFETCH(bool, coloured);
  qputenv("TERM", term);
  qputenv("NO_COLOR", noColor);
  Pty pty({u"scan"_s});
  QCOMPARE(pty.finish(), 0);
  QCOMPARE(pty.shown().contains("\x1b[32mSafe\x1b[0m"), coloured);
  QCOMPARE(pty.shown().contains("\x1b[31mPermanent\x1b[0m"), coloured);
  if (term == "dumb") QVERIFY(!pty.shown().contains('\x1b'));
}

void tst_cli_terminal::widths_data() {
  QTest::addColumn<int>("columns");
  QTest::addColumn<bool>("bars");
  QTest::newRow("narrow") << 62 << false;
  QTest::newRow("usual") << 80 << false;
  QTest::newRow("wide") << 120 << true;
}

void tst_cli_terminal::widths() {
  QFETCH(int, columns);
  QFETCH(bool, bars);
  qputenv("NO_COLOR", "1");
  const QString err = m_home->outside(u"err"_s);
  Pty pty({u"scan"_s}, {.columns = columns, .errTo = err});
  QCOMPARE(pty.finish(), 0);
  const QString shown = QString::fromUtf8(pty.shown());
  for (const QString& line : shown.split(u"\r\n"_s)) QVERIFY2(line.size() <= columns, qPrintable(line));
  QCOMPARE(shown.contains(u'█'), bars);
}

void tst_cli_terminal::columnsLineUp_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::addColumn<int>("columns");
  for (const char* language : {"en", "zh_CN", "zh_TW", "ja", "ko"})
    for (const int columns : {70, 120}) {
      QTest::addRow("%s scan in %d", language, columns) << QStringList{u"scan"_s} << columns;
      QTest::addRow("%s clean in %d", language, columns) << QStringList{u"clean"_s, u"--yes"_s} << columns;
    }
}

void tst_cli_terminal::columnsLineUp() {
  QFETCH(QStringList, arguments);
  QFETCH(int, columns);
  const QByteArray language = QByteArray(QTest::currentDataTag()).split(' ').first();
  qputenv("TARNWICK_LANG", language);
  const auto back = qScopeGuard([] { qputenv("TARNWICK_LANG", "en"); });
  qputenv("NO_COLOR", "1");
  Pty pty(arguments, {.columns = columns, .errTo = m_home->outside(u"err"_s)});
  QCOMPARE(pty.finish(), 0);
  const QString shown = QString::fromUtf8(pty.shown());
  const QList<int> ends = endsOfSizes(shown);
  QVERIFY2(ends.size() > 3, qPrintable(shown));
  for (const int end : ends) QVERIFY2(end == ends.first(), qPrintable(shown));
  for (const QString& line : shown.split(u"\r\n"_s)) // but for the path of the log
    QVERIFY2(cells(line) <= columns || line.contains(u".log"_s), qPrintable(line));
  QCOMPARE(cells(shown) > shown.size(), language != "en"); // it does speak the language
}

QTEST_GUILESS_MAIN(tst_cli_terminal)
#include "tst_cli_terminal.moc"
