// The scan: its table, its JSON, what it leaves alone, and how it ends.
#include "app/AppSettings.h"
#include "support/CliTest.h"

#include <QFile>
#include <QJsonArray>
#include <QTest>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList kIds{u"temp"_s,   u"appcache"_s, u"browser"_s, u"logs"_s,
                       u"thumbs"_s, u"update"_s,   u"dev"_s,     u"trash"_s};

constexpr int kManyItems = 200;

QStringList keys(const QJsonObject& object) { return object.keys(); }

QJsonObject category(const QJsonObject& scan, const QString& id) {
  for (const QJsonValue& one : scan.value(u"categories"_s).toArray())
    if (one[u"id"_s].toString() == id) return one.toObject();
  return {};
}

QStringList itemPaths(const QJsonObject& category) {
  QStringList paths;
  for (const QJsonValue& item : category.value(u"items"_s).toArray()) paths << item[u"path"_s].toString();
  paths.sort();
  return paths;
}

} // namespace

class tst_cli_scan : public CliTest {
  Q_OBJECT

 private slots:
  void jsonShape();
  void jsonFigures();
  void jsonOfTheOtherHost();
  void jsonKeepsLargeNumbers();
  void jsonOfOddNames();
  void onlySome();
  void onlyRepeated();
  void storedAndFurtherExclusions();
  void table();
  void tableOfSome();
  void tableOfNothing();
  void unreadableFolders();
  void leavesNoTrace();
  void namesThatAreNoText();
  void interrupted_data();
  void interrupted();
  void interruptedWithoutJson();
  void goesOnUnderNohup();

 private:
  [[nodiscard]] QJsonObject scanned(const QStringList& further = {}) const {
    return runCli(QStringList{u"scan"_s, u"--json"_s} + further).json();
  }
};

void tst_cli_scan::jsonShape() {
  const CliRun run = runCli({u"scan"_s, u"--json"_s});
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  const QJsonObject scan = run.json();
  QCOMPARE(keys(scan),
           (QStringList{u"bytes"_s, u"cancelled"_s, u"categories"_s, u"elapsedMs"_s, u"files"_s, u"host"_s}));
  QCOMPARE(scan[u"host"_s].toString(), u"linux"_s);
  QCOMPARE(scan[u"cancelled"_s], QJsonValue(false));
  QVERIFY(scan[u"elapsedMs"_s].isDouble());
  QStringList ids;
  QStringList safety;
  for (const QJsonValue& one : scan[u"categories"_s].toArray()) {
    QCOMPARE(keys(one.toObject()),
             (QStringList{u"accessDenied"_s, u"bytes"_s, u"files"_s, u"id"_s, u"items"_s, u"safety"_s, u"title"_s}));
    ids << one[u"id"_s].toString();
    safety << one[u"safety"_s].toString();
    QVERIFY(!one[u"title"_s].toString().isEmpty());
    QVERIFY(one[u"accessDenied"_s].isBool());
    QVERIFY(!one[u"items"_s].toArray().isEmpty());
    for (const QJsonValue& item : one[u"items"_s].toArray()) {
      QCOMPARE(keys(item.toObject()),
               (QStringList{u"bytes"_s, u"files"_s, u"modified"_s, u"name"_s, u"owner"_s, u"path"_s, u"wholeRoot"_s}));
      QVERIFY(item[u"wholeRoot"_s].isBool() && item[u"owner"_s].isString());
    }
  }
  QCOMPARE(ids, kIds);
  QCOMPARE(safety.join(u' '), u"safe safe safe safe safe review review permanent"_s);
}

void tst_cli_scan::jsonFigures() {
  const QJsonObject scan = scanned();
  const QJsonObject update = category(scan, u"update"_s);
  const QString package = m_home->path(u"Downloads/tool_1.0_amd64.deb"_s);
  const QJsonObject item = update[u"items"_s].toArray().at(0).toObject();
  QCOMPARE(item[u"path"_s].toString(), package);
  QCOMPARE(item[u"name"_s].toString(), u"tool_1.0_amd64.deb"_s);
  QCOMPARE(item[u"wholeRoot"_s].toBool(), false);
  QCOMPARE(item[u"owner"_s].toString(), QString());
  QCOMPARE(item[u"bytes"_s].toInteger(), allocated(package));
  QCOMPARE(item[u"files"_s].toInteger(), 1);
  QCOMPARE(item[u"modified"_s].toInteger() / 1000, QFileInfo(package).lastModified().toSecsSinceEpoch());
  const QJsonObject notes = category(scan, u"appcache"_s)[u"items"_s].toArray().at(0).toObject();
  QCOMPARE(notes[u"wholeRoot"_s].toBool(), true);
  QCOMPARE(notes[u"files"_s].toInteger(), 2);
  qint64 bytes = 0;
  qint64 files = 0;
  for (const QJsonValue& one : scan[u"categories"_s].toArray()) {
    qint64 sum = 0;
    for (const QJsonValue& each : one[u"items"_s].toArray()) sum += each[u"bytes"_s].toInteger();
    QCOMPARE(one[u"bytes"_s].toInteger(), sum);
    bytes += sum;
    files += one[u"files"_s].toInteger();
  }
  QCOMPARE(scan[u"bytes"_s].toInteger(), bytes);
  QCOMPARE(scan[u"files"_s].toInteger(), files);
  QCOMPARE(itemPaths(category(scan, u"temp"_s)), QStringList{m_home->temp(u"old-scratch"_s)});
}

void tst_cli_scan::jsonOfTheOtherHost() {
  qputenv("TARNWICK_HOST", "mac");
  m_home->file(u"Library/Caches/net.acme.Paint/brushes"_s, 8'000);
  const QJsonObject scan = scanned();
  QCOMPARE(scan[u"host"_s].toString(), u"mac"_s);
  QCOMPARE(itemPaths(category(scan, u"appcache"_s)), QStringList{m_home->path(u"Library/Caches/net.acme.Paint"_s)});
}

void tst_cli_scan::jsonKeepsLargeNumbers() {
  const QString package = m_home->path(u"Downloads/tool_1.0_amd64.deb"_s);
  constexpr qint64 kFarMs = 4'102'444'800'123; // in the year 2100
  const timespec far[2] = {{kFarMs / 1000, 123'000'000}, {kFarMs / 1000, 123'000'000}};
  QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(package).constData(), far, 0), 0);
  const CliRun run = runCli({u"scan"_s, u"--json"_s, u"--only"_s, u"update"_s});
  QVERIFY2(run.out.contains("\"modified\":4102444800123"), run.out.constData());
}

void tst_cli_scan::jsonOfOddNames() {
  const QString odd = m_home->file(u"Downloads/a\"b\\c\nd\x1b[31m\u202E√.deb"_s, 5'000);
  const QJsonObject scan = scanned({u"--only"_s, u"update"_s});
  QVERIFY(itemPaths(category(scan, u"update"_s)).contains(odd));
}

void tst_cli_scan::onlySome() {
  const QJsonObject scan = scanned({u"--only"_s, u"update, thumbs"_s});
  QStringList ids;
  for (const QJsonValue& one : scan[u"categories"_s].toArray()) {
    ids << one[u"id"_s].toString();
    const bool wanted = ids.last() == u"update"_s || ids.last() == u"thumbs"_s;
    QCOMPARE(one[u"items"_s].toArray().isEmpty(), !wanted);
    QCOMPARE(one[u"bytes"_s].toInteger() > 0, wanted);
  }
  QCOMPARE(ids, kIds);
}

void tst_cli_scan::onlyRepeated() {
  const QStringList twice{u"--only"_s, u"logs"_s, u"--only=trash,logs"_s};
  const QJsonObject scan = scanned(twice);
  QVERIFY(category(scan, u"logs"_s)[u"bytes"_s].toInteger() > 0);
  QVERIFY(category(scan, u"trash"_s)[u"bytes"_s].toInteger() > 0);
  QCOMPARE(category(scan, u"dev"_s)[u"bytes"_s].toInteger(), 0);
}

void tst_cli_scan::storedAndFurtherExclusions() {
  m_home->file(u".config/Tarnwick/Tarnwick.conf"_s, 0);
  {
    QSettings stored(m_home->path(u".config/Tarnwick/Tarnwick.conf"_s), QSettings::IniFormat);
    stored.setValue(u"clean/exclusions"_s, QStringList{u"~/.cache/acme-paint"_s, u"*.png"_s});
  }
  const QJsonObject before = scanned();
  QCOMPARE(itemPaths(category(before, u"appcache"_s)), QStringList{m_home->path(u".cache/acme-notes"_s)});
  const QJsonObject after = scanned({u"--exclude"_s, u"~/.cache/acme-notes"_s, u"--exclude=*.deb"_s});
  QCOMPARE(itemPaths(category(after, u"appcache"_s)), QStringList{});
  QCOMPARE(itemPaths(category(after, u"update"_s)), QStringList{});
}

void tst_cli_scan::table() {
  const CliRun run = runCli({u"scan"_s});
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  const QString text = QString::fromUtf8(run.out);
  qsizetype at = 0;
  for (const char16_t* title : {u"Temporary files", u"App caches", u"Browser caches", u"Logs & crash reports",
                                u"Thumbnail cache", u"Old installers", u"Developer caches", u"Trash", u"Total"}) {
    const qsizetype found = text.indexOf(QString::fromUtf16(title), at);
    QVERIFY2(found >= at, qPrintable(QString::fromUtf16(title)));
    at = found;
  }
  for (const char16_t* word : {u"Safe", u"Review", u"Permanent", u" KB", u"~/.cache", u"tarnwick-cli clean"})
    QVERIFY2(text.contains(QString::fromUtf16(word)), qPrintable(QString::fromUtf16(word)));
  QVERIFY(!text.contains(u'\x1b'));
}

void tst_cli_scan::tableOfSome() {
  const CliRun run = runCli({u"scan"_s, u"--only"_s, u"trash"_s});
  QVERIFY(run.out.contains("Trash"));
  QVERIFY(!run.out.contains("App caches"));
  QVERIFY(!run.out.contains("tarnwick-cli clean")); // nothing of it is safe
}

void tst_cli_scan::tableOfNothing() {
  m_home.reset();
  m_home = std::make_unique<FixtureHome>();
  const CliRun run = runCli({u"scan"_s});
  QCOMPARE(run.code, 0);
  QVERIFY(run.out.contains("0 KB"));
}

void tst_cli_scan::unreadableFolders() {
  if (::geteuid() == 0) QSKIP("root may read everything");
  const QString closed = m_home->folder(u".cache/thumbnails"_s);
  QCOMPARE(::chmod(QFile::encodeName(closed).constData(), 0), 0);
  const CliRun run = runCli({u"scan"_s});
  const QJsonObject scan = scanned();
  QCOMPARE(::chmod(QFile::encodeName(closed).constData(), 0700), 0);
  QCOMPARE(category(scan, u"thumbs"_s)[u"accessDenied"_s].toBool(), true);
  QVERIFY(run.out.contains("could be read: Thumbnail cache"));
}

void tst_cli_scan::leavesNoTrace() {
  const auto before = wholeTree(*m_home);
  QCOMPARE(runCli({u"scan"_s}).code, 0);
  QCOMPARE(runCli({u"scan"_s, u"--json"_s}).code, 0);
  QCOMPARE(wholeTree(*m_home), before); // no settings either: the schedule of the window goes on
}

void tst_cli_scan::namesThatAreNoText() {
  const QByteArray folder = QFile::encodeName(m_home->path(u"Downloads"_s));
  const int fd = ::open((folder + "/bad-\xff.deb").constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  QCOMPARE(::write(fd, "text", 4), 4);
  ::close(fd);
  const qint64 before = category(scanned(), u"appcache"_s)[u"bytes"_s].toInteger();
  const int below = ::open((QFile::encodeName(m_home->path(u".cache/acme-paint"_s)) + "/\xfe\xff").constData(),
                           O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  QCOMPARE(::write(below, "text", 4), 4);
  ::close(below);
  const QJsonObject scan = scanned();
  QCOMPARE(itemPaths(category(scan, u"update"_s)), QStringList{m_home->path(u"Downloads/tool_1.0_amd64.deb"_s)});
  QVERIFY(category(scan, u"appcache"_s)[u"bytes"_s].toInteger() > before);
}

void tst_cli_scan::interrupted_data() {
  QTest::addColumn<int>("signal");
  QTest::newRow("Ctrl-C") << SIGINT;
  QTest::newRow("end") << SIGTERM;
  QTest::newRow("hang up") << SIGHUP;
}

void tst_cli_scan::interrupted() {
  QFETCH(int, signal);
  const CliRun run = interrupt({.arguments = {u"scan"_s, u"--json"_s}, .signal = signal});
  QCOMPARE(run.code, 130);
  QVERIFY(run.err.startsWith("tarnwick-cli: "));
  const QJsonObject scan = run.json();
  QCOMPARE(scan[u"cancelled"_s], QJsonValue(true));
  QStringList ids;
  for (const QJsonValue& one : scan[u"categories"_s].toArray()) {
    ids << one[u"id"_s].toString();
    QVERIFY(!one[u"title"_s].toString().isEmpty());
  }
  QCOMPARE(ids, kIds);
  QCOMPARE(category(scan, u"trash"_s)[u"bytes"_s].toInteger(), 0); // it never came to that
}

void tst_cli_scan::interruptedWithoutJson() {
  const CliRun run = interrupt({.arguments = {u"scan"_s}, .signal = SIGINT});
  QCOMPARE(run.code, 130);
  QCOMPARE(run.out, QByteArray());
  QVERIFY(run.err.contains("cancelled"));
}

void tst_cli_scan::goesOnUnderNohup() {
  addManyItems(*m_home, kManyItems);
  QProcess process;
  process.setChildProcessModifier([] { std::signal(SIGHUP, SIG_IGN); });
  process.start(cliProgram(), QStringList{u"scan"_s, u"--json"_s} + slowRules());
  QVERIFY(process.waitForStarted());
  const pid_t pid = static_cast<pid_t>(process.processId());
  while (!process.waitForFinished(1) && process.state() == QProcess::Running) ::kill(pid, SIGHUP);
  const CliRun run = finish(&process);
  QCOMPARE(run.code, 0);
  QCOMPARE(run.json()[u"cancelled"_s], QJsonValue(false));
}

QTEST_GUILESS_MAIN(tst_cli_scan)
#include "tst_cli_scan.moc"
