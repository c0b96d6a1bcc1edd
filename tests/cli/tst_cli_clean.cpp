// The clean without a terminal: what goes, what stays, what it reports, and how it ends.
#include "app/AppSettings.h"
#include "core/runlock.h"
#include "support/CliTest.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QScopeGuard>
#include <QTest>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList kCleanKeys{u"cleanedIds"_s, u"dryRun"_s,       u"freedBytes"_s,  u"logPath"_s, u"mode"_s,
                             u"needsAdmin"_s, u"removedFiles"_s, u"runningApps"_s, u"skipped"_s, u"skippedSamples"_s};

QStringList strings(const QJsonValue& array) {
  QStringList all;
  for (const QJsonValue& one : array.toArray()) all << one.toString();
  return all;
}

} // namespace

class tst_cli_clean : public CliTest {
  Q_OBJECT

 private slots:
  void jsonShape();
  void deletesWhatIsSafe();
  void movesToTheTrash();
  void permanentIsAlwaysDeleted();
  void theSettingDecidesTheMode_data();
  void theSettingDecidesTheMode();
  void onlyTakesWhatIsNamed();
  void nothingToClean();
  void dryRunTouchesNothing_data();
  void dryRunTouchesNothing();
  void dryRunTellsWhatStays();
  void exclusionsHold();
  void exclusionsSpeltOddly();
  void exclusionsFromTheShell();
  void excludedBelowAnItemIsNoFailure();
  void volumesWithoutATrash();
  void openFilesStay();
  void dataOfRunningAppsStays();
  void namesThatAreNoText();
  void namesThatAttackTheTerminal();
  void historyGrowsAndLastScanStays();
  void refusedWhileAnotherCleans();
  void refusedInForeignHomes();
  void planThatCannotBeShown();
  void reportThatCannotBeShown();
  void testsLeaveTheTestersOwn();
  void interruptedWhileScanning();
  void interruptedWhileCleaning_data();
  void interruptedWhileCleaning();

 private:
  [[nodiscard]] static CliRun clean(const QStringList& further) {
    return runCli(QStringList{u"clean"_s, u"--yes"_s} + further);
  }
  void store(const QString& key, const QVariant& value) const {
    m_home->folder(u".config/Tarnwick"_s);
    QSettings(m_home->path(u".config/Tarnwick/Tarnwick.conf"_s), QSettings::IniFormat).setValue(key, value);
  }
  [[nodiscard]] QVariant stored(const QString& key) const {
    return QSettings(m_home->path(u".config/Tarnwick/Tarnwick.conf"_s), QSettings::IniFormat).value(key);
  }
};

void tst_cli_clean::jsonShape() {
  const CliRun run = clean({u"--json"_s, u"--delete"_s});
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  const QJsonObject report = run.json();
  QCOMPARE(report.keys(), kCleanKeys);
  QCOMPARE(report[u"dryRun"_s], QJsonValue(false));
  QCOMPARE(report[u"mode"_s], QJsonValue(u"delete"_s));
  QVERIFY(report[u"freedBytes"_s].toInteger() > 150'000);
  QCOMPARE(report[u"removedFiles"_s].toInteger(), 7);
  QCOMPARE(report[u"skipped"_s].toInteger(), 0);
  QVERIFY(report[u"skippedSamples"_s].isArray());
  QCOMPARE(strings(report[u"cleanedIds"_s]).join(u' '), u"temp appcache browser logs thumbs"_s);
  QVERIFY(QFileInfo::exists(report[u"logPath"_s].toString()));
  QVERIFY(report[u"logPath"_s].toString().startsWith(m_home->path(u".local/share/Tarnwick"_s)));
  QCOMPARE(report[u"needsAdmin"_s], QJsonValue(false));
  QCOMPARE(report[u"runningApps"_s].toArray(), QJsonArray());
}

void tst_cli_clean::deletesWhatIsSafe() {
  const CliRun run = clean({u"--delete"_s});
  QCOMPARE(run.code, 0);
  for (const char16_t* gone :
       {u".cache/acme-notes/index", u".cache/acme-notes/pages", u".cache/acme-paint/brushes",
        u".cache/mozilla/firefox/ab12.default/cache2/entries", u".cache/thumbnails/normal", u".xsession-errors.old"})
    QVERIFY2(!there(QString::fromUtf16(gone)), qPrintable(QString::fromUtf16(gone)));
  for (const char16_t* kept :
       {u".cache/acme-notes", u".cache/pip/http/1", u"Downloads/tool_1.0_amd64.deb", u"Downloads/letter.pdf",
        u".local/share/Trash/files/old-letter.odt", u"Documents/book.odt"})
    QVERIFY2(there(QString::fromUtf16(kept)), qPrintable(QString::fromUtf16(kept)));
  QVERIFY(!QFileInfo::exists(m_home->temp(u"old-scratch"_s)));
  QVERIFY(QFileInfo::exists(m_home->temp(u"young-scratch"_s)));
  const QString text = QString::fromUtf8(run.out);
  for (const char16_t* word : {u"App caches", u"deleted for good", u"Freed ", u"removed 7 files", u"Log: ",
                               u"Left alone unless you name it: Old installers", u"--only update,dev,trash"})
    QVERIFY2(text.contains(QString::fromUtf16(word)), qPrintable(QString::fromUtf16(word)));
  QVERIFY(!text.contains(u"moved to the Trash"_s));
}

void tst_cli_clean::movesToTheTrash() {
  const CliRun run = clean({u"--trash"_s, u"--only"_s, u"update"_s});
  QVERIFY2(run.code == 0, run.err.constData());
  QVERIFY(!there(u"Downloads/tool_1.0_amd64.deb"_s));
  QVERIFY(there(u".local/share/Trash/files/tool_1.0_amd64.deb"_s));
  QVERIFY(there(u".local/share/Trash/files/old-letter.odt"_s));
  QVERIFY(run.out.contains("moved to the Trash"));
  QVERIFY(run.out.contains("until you empty it"));
}

void tst_cli_clean::permanentIsAlwaysDeleted() {
  const CliRun run = clean({u"--trash"_s, u"--only"_s, u"trash,update"_s});
  QVERIFY(run.out.contains("deleted for good"));
  QVERIFY(run.out.contains("moved to the Trash"));
  QVERIFY(!there(u".local/share/Trash/files/old-letter.odt"_s));
  QVERIFY(!there(u".local/share/Trash/info/old-letter.odt.trashinfo"_s));
}

void tst_cli_clean::theSettingDecidesTheMode_data() {
  QTest::addColumn<QVariant>("setting");
  QTest::addColumn<QString>("option");
  QTest::addColumn<QString>("mode");
  QTest::newRow("default") << QVariant() << QString() << u"trash"_s;
  QTest::newRow("stored trash") << QVariant(true) << QString() << u"trash"_s;
  QTest::newRow("stored delete") << QVariant(false) << QString() << u"delete"_s;
  QTest::newRow("option delete") << QVariant(true) << u"--delete"_s << u"delete"_s;
  QTest::newRow("option trash") << QVariant(false) << u"--trash"_s << u"trash"_s;
}

void tst_cli_clean::theSettingDecidesTheMode() {
  QFETCH(QVariant, setting);
  QFETCH(QString, option);
  QFETCH(QString, mode);
  if (setting.isValid()) store(u"clean/moveToTrash"_s, setting);
  QStringList arguments{u"--json"_s, u"--only"_s, u"update"_s};
  if (!option.isEmpty()) arguments << option;
  const CliRun run = clean(arguments);
  QCOMPARE(run.code, 0);
  QCOMPARE(run.json()[u"mode"_s].toString(), mode);
  QCOMPARE(there(u".local/share/Trash/files/tool_1.0_amd64.deb"_s), mode == u"trash"_s);
  QVERIFY(!there(u"Downloads/tool_1.0_amd64.deb"_s));
  const QVariant after = stored(u"clean/moveToTrash"_s);
  QCOMPARE(after.isValid() ? QVariant(after.toBool()) : after, setting); // an option is never stored
}

void tst_cli_clean::onlyTakesWhatIsNamed() {
  const CliRun run = clean({u"--delete"_s, u"--json"_s, u"--only"_s, u"dev,thumbs"_s});
  QCOMPARE(run.code, 0);
  QCOMPARE(strings(run.json()[u"cleanedIds"_s]).join(u' '), u"thumbs dev"_s);
  QVERIFY(!there(u".cache/pip/http"_s));
  QVERIFY(!there(u".cache/thumbnails/normal"_s));
  QVERIFY(there(u".cache/acme-notes/index"_s));
}

void tst_cli_clean::nothingToClean() {
  m_home.reset();
  m_home = std::make_unique<FixtureHome>();
  m_home->file(u"Downloads/tool.deb"_s);
  const CliRun run = clean({});
  QCOMPARE(run.code, 0);
  QVERIFY(run.out.contains("nothing to clean"));
  QVERIFY(run.out.contains("Old installers"));
  const CliRun asJson = clean({u"--json"_s});
  QCOMPARE(asJson.code, 0);
  QCOMPARE(asJson.json().keys(), kCleanKeys);
  QCOMPARE(asJson.json()[u"logPath"_s].toString(), QString());
  QVERIFY(there(u"Downloads/tool.deb"_s));
}

void tst_cli_clean::dryRunTouchesNothing_data() {
  QTest::addColumn<QStringList>("further");
  QTest::newRow("trash") << QStringList{u"--trash"_s};
  QTest::newRow("delete") << QStringList{u"--delete"_s};
  QTest::newRow("json") << QStringList{u"--json"_s};
  QTest::newRow("everything") << QStringList{u"--only"_s, u"temp,appcache,browser,logs,thumbs,update,dev,trash"_s};
  QTest::newRow("with --yes") << QStringList{u"--yes"_s, u"--delete"_s};
}

void tst_cli_clean::dryRunTouchesNothing() {
  QFETCH(QStringList, further);
  const auto before = wholeTree(*m_home);
  const CliRun run = runCli(QStringList{u"clean"_s, u"--dry-run"_s} + further);
  QCOMPARE(run.code, 0);
  QCOMPARE(run.err, QByteArray());
  QCOMPARE(wholeTree(*m_home), before);
  if (!further.contains(u"--json"_s)) {
    QVERIFY(run.out.contains("acme-notes"));
    QVERIFY(run.out.contains("nothing was touched"));
    return;
  }
  const QJsonObject report = run.json();
  QCOMPARE(report.keys(), kCleanKeys);
  QCOMPARE(report[u"dryRun"_s], QJsonValue(true));
  QCOMPARE(report[u"logPath"_s].toString(), QString());
  const QJsonObject real = clean({u"--json"_s, u"--trash"_s}).json();
  QCOMPARE(report[u"freedBytes"_s], real[u"freedBytes"_s]);
  QCOMPARE(report[u"removedFiles"_s], real[u"removedFiles"_s]);
  QCOMPARE(report[u"cleanedIds"_s], real[u"cleanedIds"_s]);
}

void tst_cli_clean::dryRunTellsWhatStays() {
  QFile open(m_home->path(u".cache/acme-notes/index"_s));
  QVERIFY(open.open(QIODevice::ReadOnly));
  const auto before = wholeTree(*m_home);
  const CliRun run = runCli({u"clean"_s, u"--dry-run"_s, u"--delete"_s});
  QCOMPARE(run.code, 1);
  QVERIFY2(run.out.contains("acme-notes/index  (open in an app)"), run.out.constData());
  QVERIFY(run.out.contains("acme-paint"));
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_clean::exclusionsHold() {
  store(u"clean/exclusions"_s, QStringList{u"~/.cache/acme-paint"_s});
  const CliRun run = clean({u"--delete"_s, u"--exclude"_s, u"~/.cache/acme-notes"_s, u"--exclude"_s, u"*.png"_s});
  QCOMPARE(run.code, 0);
  QVERIFY(there(u".cache/acme-paint/brushes"_s));
  QVERIFY(there(u".cache/acme-notes/index"_s));
  QVERIFY(there(u".cache/thumbnails/normal/1.png"_s));
  QVERIFY(!there(u".xsession-errors.old"_s));
}

void tst_cli_clean::exclusionsSpeltOddly() {
  const QString unclean = m_home->path() + u"//.cache/./x/../mozilla/"_s;
  const CliRun run = clean({u"--delete"_s, u"--exclude"_s, unclean, u"--exclude"_s, u"~/./.cache//acme-notes"_s,
                            u"--exclude"_s, u"**//thumbnails/./normal/"_s});
  QCOMPARE(run.code, 0);
  QVERIFY(there(u".cache/mozilla/firefox/ab12.default/cache2/entries/1"_s));
  QVERIFY(there(u".cache/acme-notes/index"_s));
  QVERIFY(there(u".cache/thumbnails/normal/1.png"_s));
}

void tst_cli_clean::exclusionsFromTheShell() {
  const QString folder = m_home->path(u".cache/acme-notes/"_s) + u'/'; // as a shell completes it
  QVERIFY(folder.endsWith(u"notes/"_s));
  QCOMPARE(clean({u"--delete"_s, u"--exclude"_s, folder}).code, 0);
  QVERIFY(there(u".cache/acme-notes/index"_s));
  QVERIFY(!there(u".cache/acme-paint/brushes"_s));
}

void tst_cli_clean::volumesWithoutATrash() {
  if (::geteuid() != 0) QSKIP("only root may mount");
  const QString prepare = u"mount -t tmpfs none \"$TMPDIR\" && head -c 5000 /dev/zero > \"$TMPDIR/old\" && "
                          "touch -d '3 days ago' \"$TMPDIR/old\" && "_s;
  const auto inMemory = [&](const QString& options) {
    QProcess process;
    process.start(u"unshare"_s,
                  {u"-m"_s, u"/bin/sh"_s, u"-c"_s,
                   prepare + u"'%1' clean --yes --only temp %2; code=$?; ls \"$TMPDIR\"; exit $code"_s.arg(cliProgram(),
                                                                                                           options)});
    return finish(&process);
  };
  const CliRun moved = inMemory(u"--trash"_s);
  if (moved.out.isEmpty()) QSKIP("mounting isn't permitted");
  QCOMPARE(moved.code, 1);
  QVERIFY2(moved.out.contains("without a Trash and will stay"), moved.out.constData());
  QVERIFY(moved.out.contains("Skipped, 1 in all"));
  QVERIFY(moved.out.endsWith("\nold\n"));
  const CliRun deleted = inMemory(u"--delete"_s);
  QCOMPARE(deleted.code, 0);
  QVERIFY(!deleted.out.contains("without a Trash"));
  QVERIFY(!deleted.out.endsWith("old\n"));
}

void tst_cli_clean::excludedBelowAnItemIsNoFailure() {
  const CliRun run = clean({u"--delete"_s, u"--json"_s, u"--exclude"_s, u"~/.cache/acme-notes/pages"_s});
  QCOMPARE(run.code, 0);
  QVERIFY(there(u".cache/acme-notes/pages/1"_s));
  QVERIFY(!there(u".cache/acme-notes/index"_s));
  QCOMPARE(run.json()[u"skipped"_s].toInteger(), 0);
}

void tst_cli_clean::openFilesStay() {
  const QString path = m_home->path(u".cache/acme-notes/index"_s);
  QFile open(path);
  QVERIFY(open.open(QIODevice::ReadOnly));
  const CliRun run = clean({u"--delete"_s, u"--json"_s, u"--only"_s, u"appcache"_s});
  QCOMPARE(run.code, 1);
  QCOMPARE(run.json()[u"skipped"_s].toInteger(), 1);
  QCOMPARE(strings(run.json()[u"skippedSamples"_s]), QStringList{path});
  QVERIFY(QFileInfo::exists(path));
  QVERIFY(!there(u".cache/acme-notes/pages"_s));
  const CliRun asText = clean({u"--delete"_s, u"--only"_s, u"appcache"_s});
  QCOMPARE(asText.code, 1);
  QVERIFY2(asText.out.contains("Skipped, 1 in all"), asText.out.constData());
  QVERIFY(asText.out.contains(path.toUtf8()));
}

void tst_cli_clean::dataOfRunningAppsStays() {
  // An app that is named like its cache; of this test alone, as others that run beside it see it too.
  const QString name = u"acme-run-%1"_s.arg(QCoreApplication::applicationPid());
  const QString program = m_home->path(u"bin/"_s + name);
  const QString cache = m_home->file(u".cache/%1/index"_s.arg(name));
  m_home->folder(u"bin"_s);
  QVERIFY(QFile::copy(u"/bin/sleep"_s, program));
  QProcess app;
  app.start(program, {u"1000"_s});
  QVERIFY(app.waitForStarted());
  const CliRun dry = runCli({u"clean"_s, u"--dry-run"_s, u"--delete"_s});
  const CliRun asJson = clean({u"--delete"_s, u"--json"_s});
  const CliRun asText = clean({u"--delete"_s});
  app.kill();
  app.waitForFinished();
  for (const CliRun& run : {dry, asJson, asText}) QCOMPARE(run.code, 1);
  QVERIFY2(dry.out.contains("is running, so"), dry.out.constData());
  QCOMPARE(strings(asJson.json()[u"runningApps"_s]), QStringList{name});
  QCOMPARE(asJson.json()[u"skipped"_s].toInteger(), 0);
  QVERIFY2(asText.out.contains("because they are running: " + name.toUtf8()), asText.out.constData());
  QVERIFY(QFileInfo::exists(cache));
  QVERIFY(!there(u".cache/acme-paint/brushes"_s));
}

void tst_cli_clean::namesThatAreNoText() {
  const auto make = [](const QByteArray& path) {
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    QCOMPARE(::write(fd, "text", 4), 4);
    ::close(fd);
  };
  const QByteArray below = QFile::encodeName(m_home->path(u".cache/acme-notes"_s)) + "/bad-\xff\xfe";
  const QByteArray item = QFile::encodeName(m_home->path(u"Downloads"_s)) + "/bad-\xff.deb";
  make(below);
  make(item);
  const CliRun run = clean({u"--delete"_s, u"--json"_s, u"--only"_s, u"appcache,update"_s});
  QCOMPARE(run.code, 0);
  QVERIFY(::access(below.constData(), F_OK) != 0); // goes with its item, by its bytes
  QVERIFY(::access(item.constData(), F_OK) == 0);  // is none
  QVERIFY(!there(u"Downloads/tool_1.0_amd64.deb"_s));
}

void tst_cli_clean::namesThatAttackTheTerminal() {
  const QString evil = m_home->file(u".cache/acme-notes/a\x1b]0;owned\x07\nFreed 1 TB\u202E"_s, 5'000);
  QFile open(evil);
  QVERIFY(open.open(QIODevice::ReadOnly));
  const CliRun dry = runCli({u"clean"_s, u"--dry-run"_s, u"--delete"_s});
  const CliRun run = clean({u"--delete"_s});
  for (const CliRun& one : {dry, run}) {
    QCOMPARE(one.code, 1);
    QVERIFY2(one.out.contains("a\\x1b]0;owned\\x07\\nFreed 1 TB\\u{202e}"), one.out.constData());
    QVERIFY(!one.out.contains('\x1b'));
    QVERIFY(!one.out.contains("\nFreed 1 TB"));
  }
}

void tst_cli_clean::historyGrowsAndLastScanStays() {
  const QDateTime lastScan(QDate(2024, 5, 6), QTime(7, 8));
  store(u"history/lastScan"_s, lastScan);
  const QString month = QDate::currentDate().toString(u"yyyy-MM");
  store(u"history/freed"_s, QVariantMap{{month, 1000}, {u"2024-01"_s, 5}});
  const qint64 freed = clean({u"--delete"_s, u"--json"_s}).json()[u"freedBytes"_s].toInteger();
  QVERIFY(freed > 0);
  QCOMPARE(stored(u"history/freed"_s).toMap(), (QVariantMap{{month, 1000 + freed}, {u"2024-01"_s, 5}}));
  QCOMPARE(stored(u"history/lastScan"_s).toDateTime(), lastScan);
  QCOMPARE(runCli({u"clean"_s, u"--dry-run"_s, u"--only"_s, u"dev"_s}).code, 0);
  QCOMPARE(stored(u"history/freed"_s).toMap().value(month).toLongLong(), 1000 + freed);
}

void tst_cli_clean::refusedWhileAnotherCleans() {
  const RunLock other(cleanLock());
  QCOMPARE(other.state(), RunLock::State::Held);
  const auto before = wholeTree(*m_home);
  const CliRun asJson = clean({u"--delete"_s, u"--json"_s});
  QCOMPARE(asJson.code, 1);
  QVERIFY(asJson.err.startsWith("tarnwick-cli: "));
  QCOMPARE(asJson.err.count('\n'), 1);
  QCOMPARE(asJson.json().keys(), kCleanKeys);
  QCOMPARE(asJson.json()[u"freedBytes"_s].toInteger(), 0);
  const CliRun asText = clean({u"--delete"_s});
  QCOMPARE(asText.code, 1);
  QVERIFY(!asText.out.contains("Freed"));
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_clean::refusedInForeignHomes() {
  if (::geteuid() != 0) QSKIP("only root can give a folder away");
  constexpr uid_t kSomebody = 4711;
  QCOMPARE(::chown(QFile::encodeName(m_home->path()).constData(), kSomebody, kSomebody), 0);
  const auto before = wholeTree(*m_home);
  const CliRun run = clean({u"--delete"_s});
  QCOMPARE(run.code, 1);
  QVERIFY2(run.err.startsWith("tarnwick-cli: "), run.err.constData());
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_clean::planThatCannotBeShown() {
  const auto before = wholeTree(*m_home);
  QProcess process;
  process.setStandardOutputFile(u"/dev/full"_s);
  process.start(cliProgram(), {u"clean"_s, u"--yes"_s, u"--delete"_s});
  const CliRun run = finish(&process);
  QCOMPARE(run.code, 1);
  QVERIFY(run.err.contains("No space left on device"));
  QCOMPARE(wholeTree(*m_home), before);
}

void tst_cli_clean::reportThatCannotBeShown() {
  QProcess process;
  process.setStandardOutputFile(u"/dev/full"_s);
  process.start(cliProgram(), {u"clean"_s, u"--yes"_s, u"--delete"_s, u"--json"_s});
  const CliRun run = finish(&process);
  QCOMPARE(run.code, 1);
  QVERIFY(run.err.contains("No space left on device"));
  QVERIFY(!there(u".cache/acme-notes/index"_s)); // the report comes after the clean
}

// The catalogue knows places that aren't below the home folder.
void tst_cli_clean::testsLeaveTheTestersOwn() {
  const QString path = u"/var/crash/tarnwick-test-%1.crash"_s.arg(QCoreApplication::applicationPid());
  QFile crash(path);
  if (!crash.open(QIODevice::WriteOnly | QIODevice::NewOnly)) QSKIP("there is no folder for crash reports to write to");
  const auto gone = qScopeGuard([path] { QFile::remove(path); });
  crash.write("x");
  crash.close(); // what is open would stay anyway
  QVERIFY(there(u".xsession-errors.old"_s));
  QCOMPARE(clean({u"--delete"_s, u"--only"_s, u"logs"_s}).code, 0);
  QVERIFY(!there(u".xsession-errors.old"_s));
  QVERIFY(QFileInfo::exists(path));
}

void tst_cli_clean::interruptedWhileScanning() {
  const CliRun run = interrupt({.arguments = {u"clean"_s, u"--yes"_s, u"--delete"_s, u"--json"_s},
                                .signal = SIGINT,
                                .wasInTime = [this] { return there(u".cache/acme-notes/index"_s); }});
  QCOMPARE(run.code, 130);
  QCOMPARE(run.json().keys(), kCleanKeys);
  QCOMPARE(run.json()[u"freedBytes"_s].toInteger(), 0);
  QVERIFY(run.err.contains("nothing was cleaned"));
  QVERIFY(there(u".cache/acme-notes/index"_s));
  QVERIFY(QFileInfo::exists(m_home->temp(u"old-scratch/a"_s)));
}

void tst_cli_clean::interruptedWhileCleaning_data() {
  QTest::addColumn<int>("signal");
  QTest::newRow("Ctrl-C") << SIGINT;
  QTest::newRow("end") << SIGTERM;
  QTest::newRow("hang up") << SIGHUP;
}

void tst_cli_clean::interruptedWhileCleaning() {
  QFETCH(int, signal);
  int all = 0;
  const auto left = [this] {
    const QDir downloads(m_home->path(u"Downloads"_s));
    return static_cast<int>(downloads.entryList({u"*.deb"_s}, QDir::Files).size());
  };
  const CliRun run =
      interrupt({.arguments = {u"clean"_s, u"--yes"_s, u"--json"_s, u"--delete"_s, u"--only"_s, u"update,dev"_s},
                 .signal = signal,
                 .isMidway = [&] { return left() < all; },
                 .wasInTime = [&] { return left() > 0; }},
                &all);
  QCOMPARE(run.code, 130);
  const int stayed = left();
  QVERIFY2(stayed > 0 && stayed < all, qPrintable(QString::number(stayed)));
  QVERIFY(there(u".cache/pip/http/1"_s)); // it never came to that category
  const QJsonObject report = run.json();
  QCOMPARE(report[u"removedFiles"_s].toInteger(), all - stayed);
  QCOMPARE(strings(report[u"cleanedIds"_s]), QStringList{});
  const QByteArray log = contents(report[u"logPath"_s].toString());
  QCOMPARE(log.count("\nDELETED  "), all - stayed);
  QVERIFY(log.contains("\nFreed "));
  QCOMPARE(stored(u"history/freed"_s).toMap().first().toLongLong(), report[u"freedBytes"_s].toInteger());
}

QTEST_GUILESS_MAIN(tst_cli_clean)
#include "tst_cli_clean.moc"
