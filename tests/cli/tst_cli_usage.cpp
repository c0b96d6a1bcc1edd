// What the program makes of its arguments: help, version, and words for every mistake.
#include "cli/terminal.h"
#include "core/runlock.h"
#include "support/CliTest.h"
#include "ui/i18n.h"

#include <QFile>
#include <QScopeGuard>
#include <QTest>

#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
constexpr int kManyItems = 1'000; // more of them than a pipe takes at once

// The home folder lies six levels below the root.
constexpr const char* kToRoot = "~/../../../../../..";
constexpr const char* kAboveRoot = "~/../../../../../../../keep";
} // namespace

class tst_cli_usage : public CliTest {
  Q_OBJECT

 private slots:
  void version_data();
  void version();
  void help_data();
  void help();
  void helpInEachLanguage_data();
  void helpInEachLanguage();
  void theTrashByHost_data();
  void theTrashByHost();
  void noVerb();
  void mistakes_data();
  void mistakes();
  void mistakesTouchNothing();
  void noTerminalNoYes();
  void quietWhateverTheLocale();
  void outputThatGoesNowhere_data();
  void outputThatGoesNowhere();
  void readerThatTakesItsTime();
  void readerThatWentAway();
  void closedDescriptors();
  void theShippedProgramTakesTheUsersLock();
};

void tst_cli_usage::version_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::newRow("long") << QStringList{u"--version"_s};
  QTest::newRow("short") << QStringList{u"-v"_s};
  QTest::newRow("of a verb") << QStringList{u"clean"_s, u"--version"_s};
}

void tst_cli_usage::version() {
  QFETCH(QStringList, arguments);
  const CliRun run = runCli(arguments);
  QCOMPARE(run.code, 0);
  QCOMPARE(run.out, QByteArray("tarnwick-cli 1.0.0\n"));
  QCOMPARE(run.err, QByteArray());
}

void tst_cli_usage::help_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::addColumn<QStringList>("mentions");
  QTest::addColumn<QStringList>("hides");
  QTest::newRow("all") << QStringList{u"--help"_s} << QStringList{u"scan"_s, u"clean"_s, u"system"_s, u"--version"_s}
                       << QStringList{u"--yes"_s};
  QTest::newRow("short") << QStringList{u"-h"_s} << QStringList{u"scan"_s} << QStringList{u"--yes"_s};
  QTest::newRow("scan") << QStringList{u"scan"_s, u"--help"_s}
                        << QStringList{u"scan"_s, u"--only ID[,ID]"_s, u"--exclude RULE"_s, u"--json"_s,
                                       u"temp, appcache, browser, logs, thumbs, update, dev, trash"_s}
                        << QStringList{u"--yes"_s, u"--delete"_s, u"--trash"_s, u"--dry-run"_s};
  QTest::newRow("clean") << QStringList{u"--help"_s, u"clean"_s}
                         << QStringList{u"--only"_s,   u"--exclude"_s, u"--json"_s,   u"--yes"_s,
                                        u"--delete"_s, u"--trash"_s,   u"--dry-run"_s}
                         << QStringList{};
  QTest::newRow("system") << QStringList{u"system"_s, u"--help"_s} << QStringList{u"system"_s, u"--json"_s}
                          << QStringList{u"--only"_s, u"--exclude"_s, u"--yes"_s, u"appcache"_s};
}

void tst_cli_usage::help() {
  QFETCH(QStringList, arguments);
  QFETCH(QStringList, mentions);
  QFETCH(QStringList, hides);
  const CliRun run = runCli(arguments);
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  QVERIFY(run.out.startsWith("Usage: tarnwick-cli "));
  for (const QString& word : mentions) QVERIFY2(run.out.contains(word.toUtf8()), qPrintable(word));
  for (const QString& word : hides) QVERIFY2(!run.out.contains(word.toUtf8()), qPrintable(word));
  for (const QByteArray& line : run.out.split('\n')) QVERIFY2(line.size() <= 80, line.constData());
}

void tst_cli_usage::helpInEachLanguage_data() {
  QTest::addColumn<QString>("language");
  for (const i18n::Language& one : i18n::languages()) QTest::newRow(qPrintable(one.code)) << one.code;
}

// The forms of the command line go on below where they begin, and no line is too wide.
void tst_cli_usage::helpInEachLanguage() {
  QFETCH(QString, language);
  qputenv("TARNWICK_LANG", language.toLatin1());
  const auto back = qScopeGuard([] { qputenv("TARNWICK_LANG", "en"); });
  const CliRun run = runCli({u"clean"_s, u"--help"_s});
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  const QStringList lines = QString::fromUtf8(run.out).split(u'\n');
  const auto begin = [](const QString& line) { return cli::terminal::columns(line.left(line.indexOf(u'['))); };
  QVERIFY2(lines.value(1).trimmed().startsWith(u'['), run.out.constData());
  QCOMPARE(begin(lines.at(1)), begin(lines.at(0)));
  for (const QString& line : lines) QVERIFY2(cli::terminal::columns(line) <= 80, qPrintable(line));
}

void tst_cli_usage::theTrashByHost_data() {
  QTest::addColumn<QByteArray>("code");
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<QByteArray>("words");
  const auto row = [](const char* code, const char* host, const char* words) {
    QTest::addRow("%s on %s", code, host) << QByteArray(code) << QByteArray(host) << QByteArray(words);
  };
  row("en", "mac", "move to the Trash,");
  row("en", "linux", "move to the Trash,");
  row("zh_CN", "mac", "移到废纸篓");
  row("zh_CN", "linux", "移到回收站");
  row("pt_BR", "mac", "move para o Lixo,");
  row("pt_BR", "linux", "move para a Lixeira,");
  row("ru", "linux", "перемещать в Корзину");
}

void tst_cli_usage::theTrashByHost() {
  QFETCH(QByteArray, code);
  QFETCH(QByteArray, host);
  QFETCH(QByteArray, words);
  qputenv("TARNWICK_LANG", code);
  qputenv("TARNWICK_HOST", host);
  const auto back = qScopeGuard([] {
    qputenv("TARNWICK_LANG", "en");
    qputenv("TARNWICK_HOST", "linux");
  });
  const CliRun run = runCli({u"clean"_s, u"--help"_s});
  QCOMPARE(run.code, 0);
  QVERIFY2(run.out.contains(words), run.out.constData());
}

void tst_cli_usage::noVerb() {
  const CliRun run = runCli({});
  QCOMPARE(run.code, 2);
  QCOMPARE(run.out, QByteArray());
  QCOMPARE(run.err, runCli({u"--help"_s}).out);
}

void tst_cli_usage::mistakes_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::addColumn<QString>("names");
  const auto row = [](const char* arguments, const char* names) {
    QTest::newRow(arguments) << QString::fromLatin1(arguments).split(u' ') << QString::fromLatin1(names);
  };
  row("wash", "'wash'");
  row("wash", "only \"scan\", \"clean\", \"large\" and \"system\"");
  row("scan clean", "'clean'");
  row("scan --bogus", "'--bogus'");
  row("--bogus", "'--bogus'");
  row("scan -x", "'-x'");
  row("scan --only", "--only");
  row("scan --only nonsense", "'nonsense'");
  row("scan --only nonsense", "temp, appcache, browser, logs, thumbs, update, dev, trash");
  row("scan --only temp,nonsense", "'nonsense'");
  row("scan --only temp,,logs", "--only");
  row("scan --only=", "--only");
  row("clean --yes --only=", "--only");
  row("scan --only TEMP", "'TEMP'");
  row("scan --exclude", ": missing value after '--exclude'\n");
  row("scan --exclude=", "--exclude");
  row("clean --yes --exclude keep/this", "'keep/this'");
  row("clean --yes --exclude ./keep", "'./keep'");
  row("clean --yes --exclude ?/keep", "'?/keep'");
  for (const char* rule :
       {"/", "//", "/.", "/..", "/../keep", "/a/..", ".", "..", "~other/keep", "~keep", "~*", "*/.", "**/..",
        "**/../keep", "/a/*/../keep", "~/*/..", kToRoot, kAboveRoot, "~/../../../../../../.."})
    QTest::addRow("clean --yes --exclude %s", rule)
        << QStringList{u"clean"_s, u"--yes"_s, u"--exclude"_s, QString::fromLatin1(rule)}
        << u"'%1' matches nothing"_s.arg(QLatin1String(rule));
  row("scan --json=yes", ": unexpected value after '--json'\n");
  row("scan --yes", "--yes");
  row("scan --delete", "--delete");
  row("scan --trash", "--trash");
  row("scan --dry-run", "--dry-run");
  row("clean --delete --trash --yes", "--delete");
}

void tst_cli_usage::mistakes() {
  QFETCH(QStringList, arguments);
  QFETCH(QString, names);
  const CliRun run = runCli(arguments);
  QCOMPARE(run.code, 2);
  QCOMPARE(run.out, QByteArray());
  QVERIFY2(run.err.startsWith("tarnwick-cli: "), run.err.constData());
  QCOMPARE(run.err.count('\n'), 1);
  QVERIFY2(run.err.contains(names.toUtf8()), run.err.constData());
}

void tst_cli_usage::mistakesTouchNothing() {
  const auto before = wholeTree(*m_home);
  QCOMPARE(runCli({u"clean"_s, u"--yes"_s, u"--delete"_s, u"--only"_s, u""_s}).code, 2);
  QCOMPARE(runCli({u"clean"_s, u"--yes"_s, u"--delete"_s, u"--exclude"_s, u"  "_s}).code, 2);
  QCOMPARE(runCli({u"clean"_s, u"--yes"_s, u"--dleete"_s}).code, 2);
  const CliRun escaped = runCli({u"clean"_s, u"--yes"_s, u"\x1b[31m"_s});
  QVERIFY(!escaped.err.contains('\x1b'));
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_usage::noTerminalNoYes() {
  const auto before = wholeTree(*m_home);
  for (const QStringList& further : {QStringList{}, QStringList{u"--json"_s}, QStringList{u"--delete"_s}}) {
    const CliRun run = runCli(QStringList{u"clean"_s} + further);
    QCOMPARE(run.code, 2);
    QCOMPARE(run.out, QByteArray());
    QVERIFY(run.err.startsWith("tarnwick-cli: "));
    QVERIFY(run.err.contains("--yes"));
  }
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_usage::quietWhateverTheLocale() {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"LC_ALL"_s, u"C"_s);
  process.setProcessEnvironment(environment);
  process.start(cliProgram(), {u"--version"_s});
  const CliRun run = finish(&process);
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
}

void tst_cli_usage::outputThatGoesNowhere_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::newRow("version") << QStringList{u"--version"_s};
  QTest::newRow("scan") << QStringList{u"scan"_s};
  QTest::newRow("scan --json") << QStringList{u"scan"_s, u"--json"_s};
}

void tst_cli_usage::outputThatGoesNowhere() {
  QFETCH(QStringList, arguments);
  QProcess process;
  process.setStandardOutputFile(u"/dev/full"_s);
  process.start(cliProgram(), arguments);
  const CliRun run = finish(&process);
  QCOMPARE(run.code, 1);
  QVERIFY2(run.err.startsWith("tarnwick-cli: "), run.err.constData());
  QVERIFY2(run.err.contains("No space left on device"), run.err.constData());
}

void tst_cli_usage::readerThatTakesItsTime() {
  addManyItems(*m_home, kManyItems);
  int ends[2] = {-1, -1};
  QCOMPARE(::pipe(ends), 0);
  QCOMPARE(::fcntl(ends[1], F_SETFL, O_NONBLOCK), 0);
  qint64 before = 0; // what fills the pipe, so that there is no room at first
  for (ssize_t count = 0; (count = ::write(ends[1], "          ", 10)) > 0;) before += count;
  QCOMPARE(errno, EAGAIN);
  QProcess process;
  process.setChildProcessModifier([&] { ::dup2(ends[1], STDOUT_FILENO); });
  process.start(cliProgram(), {u"scan"_s, u"--json"_s});
  QVERIFY(process.waitForStarted());
  ::close(ends[1]);
  QFile out;
  QVERIFY(out.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
  const CliRun run{-1, out.readAll().sliced(before), {}};
  const CliRun ended = finish(&process);
  QCOMPARE(ended.code, 0);
  QCOMPARE(ended.err, QByteArray());
  QVERIFY(!run.json().isEmpty());
}

void tst_cli_usage::readerThatWentAway() {
  int ends[2] = {-1, -1};
  QCOMPARE(::pipe(ends), 0);
  ::close(ends[0]);
  QProcess process;
  process.setChildProcessModifier([&] { ::dup2(ends[1], STDOUT_FILENO); });
  process.start(cliProgram(), {u"scan"_s});
  const CliRun run = finish(&process);
  ::close(ends[1]);
  QCOMPARE(run.code, 1);
  QVERIFY2(run.err.contains("Broken pipe"), run.err.constData());
}

void tst_cli_usage::closedDescriptors() {
  const auto before = wholeTree(*m_home);
  QProcess process;
  process.setChildProcessModifier([] {
    ::close(STDIN_FILENO);
    ::close(STDOUT_FILENO);
  });
  process.start(cliProgram(), {u"clean"_s, u"--yes"_s, u"--delete"_s});
  const CliRun run = finish(&process);
  QCOMPARE(run.code, 1);
  QVERIFY2(run.err.contains("Bad file descriptor"), run.err.constData());
  QCOMPARE(wholeTree(*m_home), before); // what can't be shown isn't done
}

void tst_cli_usage::theShippedProgramTakesTheUsersLock() {
  const auto before = wholeTree(*m_home);
  std::optional<RunLock> lock;
  QTRY_VERIFY_WITH_TIMEOUT((lock.emplace(), lock->state() == RunLock::State::Held), 60'000);
  QProcess process;
  process.start(shippedProgram(), {u"clean"_s, u"--yes"_s, u"--delete"_s});
  const CliRun run = finish(&process);
  QCOMPARE(run.code, 1);
  QCOMPARE(run.err, QByteArray("tarnwick-cli: Another cleanup is already running.\n"));
  QCOMPARE(wholeTree(*m_home), before);
}

QTEST_GUILESS_MAIN(tst_cli_usage)
#include "tst_cli_usage.moc"
