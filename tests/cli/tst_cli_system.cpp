// System Data: its table, its JSON, what it leaves alone, and how it ends.
#include "support/CliTest.h"
#include "support/Pty.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>

#include <csignal>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatienceMs = 60'000;
const QByteArray kCtrlC = "\x03";

QJsonObject row(const QJsonObject& data, const QString& id) {
  for (const QJsonValue& one : data.value(u"items"_s).toArray())
    if (one[u"id"_s].toString() == id) return one.toObject();
  return {};
}

} // namespace

class tst_cli_system : public CliTest {
  Q_OBJECT

 private slots:
  void jsonShape();
  void jsonFigures();
  void jsonOfTheOtherHost();
  void table();
  void tableOfTheOtherHost();
  void tableOfNothing();
  void whatCannotBeRead();
  void leavesNoTrace();
  void takesNoOptionsOfTheOthers_data();
  void takesNoOptionsOfTheOthers();
  void interrupted_data();
  void interrupted();
  void progressAndCtrlC();

 private:
  /// A path below what stands for the root of the disk.
  [[nodiscard]] QString disk(const QString& relative) const {
    return m_home->path(QLatin1String(kSystemRoot) + u'/' + relative);
  }
  [[nodiscard]] QJsonObject measured() const { return runCli({u"system"_s, u"--json"_s}).json(); }
  /// Takes the other host, whose first row asks a tool, and has that tool wait until it is let go.
  void putGate() const;
  [[nodiscard]] bool gateIsReached() const { return QFile::exists(disk(u"usr/bin/reached"_s)); }
  void letGo() const { m_home->file(disk(u"usr/bin/go"_s)); }
};

void tst_cli_system::putGate() const {
  qputenv("TARNWICK_HOST", "mac");
  QFile tool(m_home->file(disk(u"usr/bin/tmutil"_s), 0));
  QVERIFY(tool.open(QIODevice::WriteOnly));
  tool.write("#!/bin/sh\ncd \"${0%/*}\"; trap '' INT; : > reached; while [ ! -e go ]; do sleep 0.02; done\n");
  tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_cli_system::jsonShape() {
  const CliRun run = runCli({u"system"_s, u"--json"_s});
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  const QJsonObject data = run.json();
  QCOMPARE(data.keys(), (QStringList{u"bytes"_s, u"cancelled"_s, u"items"_s}));
  QCOMPARE(data[u"cancelled"_s], QJsonValue(false));
  QStringList ids;
  QStringList actions;
  for (const QJsonValue& one : data[u"items"_s].toArray()) {
    QCOMPARE(one.toObject().keys(), (QStringList{u"action"_s, u"actionable"_s, u"bytes"_s, u"count"_s, u"denied"_s,
                                                 u"detail"_s, u"files"_s, u"id"_s, u"title"_s}));
    ids << one[u"id"_s].toString();
    actions << one[u"action"_s].toString();
    QCOMPARE(one[u"actionable"_s], QJsonValue(ids.size() <= 9));
    QCOMPARE(one[u"denied"_s], QJsonValue(false));
    QCOMPARE(one[u"count"_s].toInt(-2), ids.last() == u"snapshots" ? 0 : -1);
    QVERIFY(!one[u"title"_s].toString().isEmpty());
    QVERIFY(one[u"bytes"_s].isDouble() && one[u"files"_s].isDouble() && one[u"detail"_s].isString());
  }
  QCOMPARE(ids.join(u' '), u"usercaches hidden flatpakdata userflatpak containers machines games data config journal "
                           "logs crash packages snaps flatpak kernels swap snapshots"_s);
  QCOMPARE(actions.join(u' '), u"cleanInCleanup reveal reveal reveal reveal reveal reveal reveal reveal none none none "
                               "none none none none none none"_s);
}

void tst_cli_system::jsonFigures() {
  const QString log = m_home->file(disk(u"var/log/syslog"_s), 30'000);
  m_home->file(disk(u"var/log/journal/id/system.journal"_s), 60'000);
  m_home->file(disk(u".snapshots/1/info.xml"_s));
  m_home->file(u".npm/a"_s, 30'000);
  const QJsonObject data = measured();
  const QJsonObject logs = row(data, u"logs"_s);
  QCOMPARE(logs[u"bytes"_s].toInteger(), allocated(log));
  QCOMPARE(logs[u"files"_s].toInteger(), 1);
  QCOMPARE(row(data, u"snapshots"_s)[u"count"_s].toInt(), 1);
  QCOMPARE(row(data, u"snapshots"_s)[u"detail"_s].toString(), u"1 snapshot"_s);
  QVERIFY(row(data, u"hidden"_s)[u"detail"_s].toString().startsWith(u".npm"_s));
  QVERIFY(row(data, u"usercaches"_s)[u"bytes"_s].toInteger() > 0);
  qint64 bytes = 0;
  for (const QJsonValue& one : data[u"items"_s].toArray()) bytes += one[u"bytes"_s].toInteger();
  QCOMPARE(data[u"bytes"_s].toInteger(), bytes);
}

void tst_cli_system::jsonOfTheOtherHost() {
  qputenv("TARNWICK_HOST", "mac");
  const QString symbols = m_home->file(u"Library/Developer/Xcode/iOS DeviceSupport/26.0/symbols"_s, 60'000);
  const QJsonObject data = measured();
  QCOMPARE(data[u"items"_s].toArray().size(), 18);
  const QJsonObject support = row(data, u"devicesupport"_s);
  QCOMPARE(support[u"bytes"_s].toInteger(), allocated(symbols));
  QStringList actions;
  for (const QJsonValue& one : data[u"items"_s].toArray()) actions << one[u"action"_s].toString();
  QCOMPARE(actions.mid(0, 7).join(u' '),
           u"removeSnapshots reveal moveToTrash deleteUnavailable openXcode cleanInCleanup reveal"_s);
}

void tst_cli_system::table() {
  m_home->file(disk(u"var/log/syslog"_s), 30'000);
  m_home->file(disk(u"boot/vmlinuz"_s), 900'000);
  m_home->file(u".npm/a"_s, 200'000);
  m_home->file(u".b\x1b[31m/a"_s, 300'000);
  const CliRun run = runCli({u"system"_s});
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  const QString text = QString::fromUtf8(run.out);
  qsizetype at = 0;
  for (const QString& next :
       {u"You can reclaim"_s, u"Hidden folders in your home folder"_s, u"Largest: .b\\x1b[31m, .npm"_s,
        u"Managed by the system"_s, u"Kernels and their modules"_s, disk(u"boot"_s), u"System logs"_s, u"Total"_s,
        u"of it you can act on."_s, u"Nothing was changed."_s}) {
    const qsizetype found = text.indexOf(next, at);
    QVERIFY2(found >= at, qPrintable(next + u'\n' + text));
    at = found;
  }
  for (const QString& absent : {u"Crash dumps"_s, u"System snapshots"_s, u"macOS"_s, u"\x1b"_s})
    QVERIFY2(!text.contains(absent), qPrintable(absent));
  const QRegularExpression kernels(u"Kernels and their modules +90\\d KB  "_s);
  QVERIFY2(kernels.match(text).hasMatch(), qPrintable(text));
}

void tst_cli_system::tableOfTheOtherHost() {
  qputenv("TARNWICK_HOST", "mac");
  m_home->file(disk(u"private/var/vm/sleepimage"_s), 30'000);
  const QString text = QString::fromUtf8(runCli({u"system"_s}).out);
  QVERIFY2(text.contains(u"Managed by macOS\n"_s), qPrintable(text));
  QVERIFY2(text.contains(u"Virtual memory & sleep image"_s), qPrintable(text));
}

void tst_cli_system::tableOfNothing() {
  m_home.reset();
  m_home = std::make_unique<FixtureHome>();
  const CliRun run = runCli({u"system"_s});
  QCOMPARE(run.code, 0);
  QVERIFY2(QRegularExpression(u"^\\s*Total +0 KB\n"_s).match(QString::fromUtf8(run.out)).hasMatch(),
           run.out.constData());
}

void tst_cli_system::whatCannotBeRead() {
  if (::geteuid() == 0) QSKIP("root may read everything");
  m_home->file(disk(u"var/log/syslog"_s), 30'000);
  const QString shut = m_home->folder(disk(u"var/log/shut"_s));
  const QString crashes = m_home->folder(disk(u"var/crash"_s));
  m_home->folder(disk(u"timeshift/snapshots/2026-01-01_00-00-01"_s));
  const QString snapshots = m_home->folder(disk(u".snapshots"_s));
  const QStringList refused{shut, crashes, snapshots};
  for (const QString& folder : refused) QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0), 0);
  const QString text = QString::fromUtf8(runCli({u"system"_s}).out);
  const QJsonObject data = measured();
  for (const QString& folder : refused) QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0700), 0);
  QVERIFY2(QRegularExpression(u"System logs +at least [\\d.]+ KB"_s).match(text).hasMatch(), qPrintable(text));
  QVERIFY2(QRegularExpression(u"Crash dumps +—  +No permission to read"_s).match(text).hasMatch(), qPrintable(text));
  QVERIFY2(text.contains(u"Not everything could be read: System logs, Crash dumps, System snapshots."_s),
           qPrintable(text));
  QVERIFY2(QRegularExpression(u"System snapshots +—  +at least 1 snapshot\n"_s).match(text).hasMatch(),
           qPrintable(text));
  QCOMPARE(row(data, u"crash"_s)[u"denied"_s], QJsonValue(true));
  QCOMPARE(row(data, u"crash"_s)[u"bytes"_s].toInteger(-1), 0);
}

void tst_cli_system::leavesNoTrace() {
  m_home->file(disk(u"var/log/syslog"_s));
  const auto before = wholeTree(*m_home);
  QCOMPARE(runCli({u"system"_s}).code, 0);
  QCOMPARE(runCli({u"system"_s, u"--json"_s}).code, 0);
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_system::takesNoOptionsOfTheOthers_data() {
  QTest::addColumn<QStringList>("options");
  QTest::newRow("only") << QStringList{u"--only"_s, u"temp"_s};
  QTest::newRow("exclude") << QStringList{u"--exclude"_s, u"*.deb"_s};
  QTest::newRow("yes") << QStringList{u"--yes"_s};
  QTest::newRow("dry run") << QStringList{u"--dry-run"_s};
}

void tst_cli_system::takesNoOptionsOfTheOthers() {
  QFETCH(QStringList, options);
  const CliRun run = runCli(QStringList{u"system"_s} + options);
  QCOMPARE(run.code, 2);
  QCOMPARE(run.out, QByteArray());
  QCOMPARE(run.err, "tarnwick-cli: \"system\" takes no " + options.first().toUtf8() + '\n');
}

void tst_cli_system::interrupted_data() {
  QTest::addColumn<int>("signal");
  QTest::addColumn<bool>("json");
  QTest::newRow("Ctrl-C") << SIGINT << true;
  QTest::newRow("end") << SIGTERM << true;
  QTest::newRow("without JSON") << SIGINT << false;
}

void tst_cli_system::interrupted() {
  QFETCH(int, signal);
  QFETCH(bool, json);
  putGate();
  QProcess process;
  startCli(&process, json ? QStringList{u"system"_s, u"--json"_s} : QStringList{u"system"_s});
  QTRY_VERIFY_WITH_TIMEOUT(gateIsReached(), kPatienceMs);
  ::kill(static_cast<pid_t>(process.processId()), signal);
  QVERIFY(!process.waitForFinished(1)); // it waits for its tool
  letGo();
  const CliRun run = finish(&process);
  QCOMPARE(run.code, 130);
  QCOMPARE(run.err, QByteArray("tarnwick-cli: the measuring was cancelled\n"));
  if (!json) {
    QCOMPARE(run.out, QByteArray());
    return;
  }
  QCOMPARE(run.json()[u"cancelled"_s], QJsonValue(true));
  QCOMPARE(run.json()[u"items"_s].toArray().size(), 18);
  QCOMPARE(row(run.json(), u"usercaches"_s)[u"bytes"_s].toInteger(-1), 0); // it never came to that
}

void tst_cli_system::progressAndCtrlC() {
  qputenv("TERM", "xterm-256color");
  putGate();
  const QString out = m_home->outside(u"out"_s);
  Pty pty({u"system"_s, u"--json"_s}, {.outTo = out});
  QVERIFY2(pty.shows("\r\x1b[KTime Machine local snapshots  0 KB  1 of 18  0:0"), pty.shown().constData());
  QTRY_VERIFY_WITH_TIMEOUT(gateIsReached(), kPatienceMs);
  pty.type(kCtrlC);
  QVERIFY2(pty.shows("cancelling"), pty.shown().constData());
  letGo();
  QCOMPARE(pty.finish(), 130);
  QVERIFY(pty.shown().contains("\r\x1b[Ktarnwick-cli: the measuring was cancelled"));
  QVERIFY(QJsonDocument::fromJson(contents(out)).object()[u"cancelled"_s].toBool());
}

QTEST_GUILESS_MAIN(tst_cli_system)
#include "tst_cli_system.moc"
