// The search for large files: its table, its JSON, its options, what it leaves alone, and how it ends.
#include "cli/json.h"
#include "support/CliTest.h"
#include "support/Pty.h"

#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMB = 1'000'000;
constexpr int kInterrupted = 130;

} // namespace

class tst_cli_large : public CliTest {
  Q_OBJECT

 private slots:
  void jsonShape();
  void jsonText();
  void takesTheSizeOfTheSettings();
  void takesItsOwnSize_data();
  void takesItsOwnSize();
  void storedExclusions();
  void oddNames();
  void table();
  void tableOfNothing();
  void tableOfTooMany();
  void endsHoweverShortItIs();
  void leavesNoTrace();
  void progressLine();
  void interrupted_data();
  void interrupted();
  void help();
  void mistakes_data();
  void mistakes();

 private:
  /// Puts a value in the settings of the home.
  void store(const QString& key, const QVariant& value) const {
    m_home->folder(u".config/Tarnwick"_s);
    QSettings(m_home->path(u".config/Tarnwick/Tarnwick.conf"_s), QSettings::IniFormat).setValue(key, value);
  }
  [[nodiscard]] QJsonObject found(const QStringList& further = {u"--min-mb"_s, u"1"_s}) const {
    return runCli(QStringList{u"large"_s, u"--json"_s} + further).json();
  }
  [[nodiscard]] static QStringList names(const QJsonObject& search) {
    QStringList all;
    for (const QJsonValue& file : search.value(u"files"_s).toArray()) all << file[u"name"_s].toString();
    return all;
  }
  /// Rules that match nothing and take long to tell it.
  void storeSlowRules() const {
    QStringList rules;
    for (const QString& option : slowRules()) rules << option.section(u'=', 1);
    store(u"clean/exclusions"_s, rules);
  }
};

void tst_cli_large::jsonShape() {
  const QString film = m_home->file(u"Films/2024/Holiday.mov"_s, 3 * kMB);
  const QString disc = m_home->file(u"disc.iso"_s, 2 * kMB);
  const CliRun run = runCli({u"large"_s, u"--min-mb"_s, u"1"_s, u"--json"_s});
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  const QJsonObject search = run.json();
  QCOMPARE(search.keys(), (QStringList{u"bytesFound"_s, u"cancelled"_s, u"files"_s, u"filesSeen"_s, u"found"_s}));
  QCOMPARE(search[u"cancelled"_s], QJsonValue(false));
  QCOMPARE(search[u"found"_s].toInt(), 2);
  QCOMPARE(search[u"bytesFound"_s].toInteger(), allocated(film) + allocated(disc));
  QCOMPARE(search[u"filesSeen"_s].toInt(), 6); // with those of the sample home that lie in no hidden folder
  const QJsonArray files = search[u"files"_s].toArray();
  QCOMPARE(files.size(), 2);
  const QJsonObject first = files.at(0).toObject();
  QCOMPARE(first.keys(), (QStringList{u"dir"_s, u"kind"_s, u"lastUsed"_s, u"name"_s, u"path"_s, u"size"_s}));
  QCOMPARE(first[u"path"_s].toString(), film);
  QCOMPARE(first[u"name"_s].toString(), u"Holiday.mov"_s);
  QCOMPARE(first[u"dir"_s].toString(), m_home->path(u"Films/2024"_s));
  QCOMPARE(first[u"kind"_s].toString(), u"Video"_s);
  QCOMPARE(first[u"size"_s].toInteger(), allocated(film));
  QCOMPARE(first[u"lastUsed"_s].toInteger() / 1000, QFileInfo(film).lastModified().toSecsSinceEpoch());
  QCOMPARE(files.at(1)[u"path"_s].toString(), disc);
}

void tst_cli_large::jsonText() {
  LargeFile file;
  file.path = u"/a/b\n.iso"_s;
  file.name = u"b\n.iso"_s;
  file.dir = u"/a"_s;
  file.kind = u"Disk image"_s;
  file.size = 9'007'199'254'740'993; // one more than a double holds
  file.lastUsed = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123);
  LargeFileFinder::Summary summary;
  summary.filesSeen = 12;
  summary.found = 3;
  summary.bytesFound = 9'007'199'254'740'995;
  QCOMPARE(cli::json::text(cli::json::Large{{file}, summary, true}).toUtf8(),
           QByteArray(R"({"bytesFound":9007199254740995,"cancelled":true,"files":[{"dir":"/a","kind":"Disk image",)"
                      R"("lastUsed":1700000000123,"name":"b\n.iso","path":"/a/b\n.iso","size":9007199254740993}],)"
                      R"("filesSeen":12,"found":3})"
                      "\n"));
}

void tst_cli_large::takesTheSizeOfTheSettings() {
  m_home->file(u"three.iso"_s, 3 * kMB);
  m_home->file(u"two.iso"_s, 2 * kMB);
  QCOMPARE(names(found({})), QStringList{}); // 500 MB unless something else is stored
  store(u"large/thresholdMB"_s, 3);
  QCOMPARE(names(found({})), QStringList{u"three.iso"_s});
}

void tst_cli_large::takesItsOwnSize_data() {
  QTest::addColumn<QStringList>("options");
  QTest::addColumn<QStringList>("listed");
  QTest::newRow("2") << QStringList{u"--min-mb"_s, u"2"_s} << QStringList{u"three.iso"_s, u"two.iso"_s};
  QTest::newRow("=3") << QStringList{u"--min-mb=3"_s} << QStringList{u"three.iso"_s};
  QTest::newRow("the last") << QStringList{u"--min-mb=2"_s, u"--min-mb=3"_s} << QStringList{u"three.iso"_s};
  QTest::newRow("4") << QStringList{u"--min-mb"_s, u"4"_s} << QStringList{};
  QTest::newRow("most") << QStringList{u"--min-mb"_s, u"2147483647"_s} << QStringList{};
}

void tst_cli_large::takesItsOwnSize() {
  QFETCH(QStringList, options);
  QFETCH(QStringList, listed);
  m_home->file(u"three.iso"_s, 3 * kMB);
  m_home->file(u"two.iso"_s, 2 * kMB);
  store(u"large/thresholdMB"_s, 1000);
  QCOMPARE(names(found(options)), listed);
}

void tst_cli_large::storedExclusions() {
  m_home->file(u"Keep/a.iso"_s, 2 * kMB);
  m_home->file(u"b.iso"_s, 2 * kMB);
  store(u"clean/exclusions"_s, QStringList{u"~/Keep"_s, u"*.png"_s});
  QCOMPARE(names(found()), QStringList{u"b.iso"_s});
}

void tst_cli_large::oddNames() {
  const QString name = u"a\"b\\c\nd\x1b[31m\u202E√.iso"_s;
  m_home->file(name, 2 * kMB);
  QCOMPARE(names(found()), QStringList{name});
  const CliRun run = runCli({u"large"_s, u"--min-mb"_s, u"1"_s});
  QVERIFY(!run.out.contains('\x1b') && run.out.contains("\\x1b[31m"));
}

void tst_cli_large::table() {
  m_home->file(u"Films/Holiday.mov"_s, 3 * kMB);
  m_home->file(u"disc.iso"_s, 2 * kMB);
  const CliRun run = runCli({u"large"_s, u"--min-mb"_s, u"1"_s});
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  const QString text = QString::fromUtf8(run.out);
  qsizetype at = 0;
  for (const char16_t* part :
       {u"Size", u"Kind", u"Last used", u"File\n", u"MB", u"Video", u"Today", u"~/Films/Holiday.mov\n", u"MB",
        u"Disk image", u"~/disc.iso\n", u"5 MB", u"Searched 6 files in ", u" Nothing was changed."}) {
    const qsizetype found = text.indexOf(QString::fromUtf16(part), at);
    QVERIFY2(found >= at, qPrintable(QString::fromUtf16(part) + u" in\n"_s + text));
    at = found;
  }
  QVERIFY(!text.contains(u'\x1b') && !text.contains(u"are listed"_s));
}

void tst_cli_large::tableOfNothing() {
  const CliRun run = runCli({u"large"_s});
  QCOMPARE(run.code, 0);
  QVERIFY2(run.out.contains("No file in the home folder takes 500 MB or more."), run.out.constData());
  QVERIFY(!run.out.contains("Kind"));
}

void tst_cli_large::tableOfTooMany() {
  for (int i = 0; i < 510; ++i) m_home->file(u"many/%1.iso"_s.arg(i), 100);
  const CliRun run = runCli({u"large"_s, u"--min-mb"_s, u"0"_s});
  QVERIFY2(run.out.contains("The largest 500 of 514 files are listed."), run.out.constData());
  QCOMPARE(run.out.count(".iso\n"), 500 - 4); // the four of the sample home are larger
}

// The worker may be through before anybody waits for it.
void tst_cli_large::endsHoweverShortItIs() {
  m_home.reset();
  m_home = std::make_unique<FixtureHome>();
  for (int i = 0; i < 60; ++i) QCOMPARE(runCli({u"large"_s, u"--json"_s}).code, 0);
}

void tst_cli_large::leavesNoTrace() {
  m_home->file(u"disc.iso"_s, 2 * kMB);
  const auto before = wholeTree(*m_home);
  QCOMPARE(runCli({u"large"_s, u"--min-mb"_s, u"1"_s}).code, 0);
  QCOMPARE(runCli({u"large"_s, u"--json"_s}).code, 0);
  QCOMPARE(wholeTree(*m_home), before);
}

// However fast the machine is: folders are added until a search takes so long that it tells how far it is.
void tst_cli_large::progressLine() {
  const QString out = m_home->outside(u"out"_s);
  const QRegularExpression line(u"\r\x1b\\[KSearching  [\\d.,]+ .B  [\\d,]+ of [1-9][\\d,]* files  0:\\d\\d  ~/many"_s);
  QString shown;
  for (int had = 0, many = 200; many <= 13'000 && !line.match(shown).hasMatch(); had = many, many *= 4) {
    for (int i = had; i < many; ++i) m_home->file(u"many \x1b[31m/%1/file"_s.arg(i), 1);
    storeSlowRules();
    Pty pty({u"large"_s, u"--min-mb"_s, u"0"_s, u"--json"_s}, {.outTo = out});
    QCOMPARE(pty.finish(), 0);
    shown = QString::fromUtf8(pty.shown());
  }
  QVERIFY2(line.match(shown).hasMatch(), qPrintable(shown));
  QVERIFY(shown.contains(u"\\x1b[31m"_s) && !shown.contains(u"\x1b[31m"_s)); // no path speaks to the terminal
  QVERIFY(shown.endsWith(u"\r\x1b[K"_s));
}

void tst_cli_large::interrupted_data() {
  QTest::addColumn<bool>("json");
  QTest::newRow("json") << true;
  QTest::newRow("text") << false;
}

// However fast the machine is: folders are added until the signal comes in time.
void tst_cli_large::interrupted() {
  QFETCH(bool, json);
  CliRun run;
  int many = 200;
  for (; many <= 13'000 && run.code != kInterrupted; many *= 4) {
    make();
    for (int i = 0; i < many; ++i) m_home->file(u"many/%1/file"_s.arg(i), 1);
    storeSlowRules();
    QProcess process;
    startCli(&process, QStringList{u"large"_s, u"--min-mb=0"_s} + (json ? QStringList{u"--json"_s} : QStringList{}));
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    run = finish(&process);
  }
  QCOMPARE(run.code, kInterrupted);
  QCOMPARE(run.err, QByteArray("tarnwick-cli: the search was cancelled\n"));
  if (!json) {
    QCOMPARE(run.out, QByteArray());
    return;
  }
  const QJsonObject search = run.json();
  QCOMPARE(search[u"cancelled"_s], QJsonValue(true));
  QVERIFY(search[u"filesSeen"_s].toInt() < many);
  QCOMPARE(search[u"files"_s].toArray().size(), qMin(500, search[u"found"_s].toInt()));
}

void tst_cli_large::help() {
  const CliRun run = runCli({u"large"_s, u"--help"_s});
  QCOMPARE(run.code, 0);
  for (const char* word : {"tarnwick-cli large [--min-mb N] [--json]", "--min-mb N", "megabytes", "--json"})
    QVERIFY2(run.out.contains(word), word);
  for (const char* word : {"--only", "--exclude", "Categories"}) QVERIFY2(!run.out.contains(word), word);
  for (const QByteArray& line : run.out.split('\n')) QVERIFY2(line.size() <= 80, line.constData());
  QVERIFY(runCli({u"--help"_s}).out.contains("\n  large "));
}

void tst_cli_large::mistakes_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::addColumn<QByteArray>("says");
  const auto row = [](const char* arguments, const char* says) {
    QTest::newRow(arguments) << QString::fromLatin1(arguments).split(u' ') << QByteArray(says);
  };
  row("large --min-mb", "missing value");
  row("large --min-mb=", "''");
  row("large --min-mb many", "'many'");
  row("large --min-mb=-5", "'-5'");
  row("large --min-mb 1.5", "'1.5'");
  row("large --min-mb 2147483648", "'2147483648'");
  row("large --only temp", "\"large\" takes no --only");
  row("large --exclude x", "\"large\" takes no --exclude");
  row("large --yes", "\"large\" takes no --yes");
  row("scan --min-mb 5", "\"scan\" takes no --min-mb");
  row("large more", "'more'");
  row("wash", "\"large\"");
}

void tst_cli_large::mistakes() {
  QFETCH(QStringList, arguments);
  QFETCH(QByteArray, says);
  const CliRun run = runCli(arguments);
  QCOMPARE(run.code, 2);
  QCOMPARE(run.out, QByteArray());
  QCOMPARE(run.err.count('\n'), 1);
  QVERIFY2(run.err.startsWith("tarnwick-cli: ") && run.err.contains(says), run.err.constData());
}

QTEST_GUILESS_MAIN(tst_cli_large)
#include "tst_cli_large.moc"
