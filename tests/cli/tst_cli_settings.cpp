// Settings that can't be read, or have lost rules: without the user's rules nothing is cleaned.
#include "support/CliTest.h"
#include "support/Pty.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString kStore = u".config/Tarnwick/Tarnwick.conf"_s;
const QString kMemory = u".config/Tarnwick/Tarnwick-rules.json"_s;
const QByteArray kUnreadable =
    "The settings can't be read, so the rules on what to keep are unknown. Nothing was cleaned.";
const QByteArray kLost = "The settings have lost rules on what to keep. Nothing was cleaned.";
} // namespace

class tst_cli_settings : public CliTest {
  Q_OBJECT

 private slots:
  void refused_data();
  void refused();
  void cleansOnceMended();
  void refusedWithoutAQuestion();
  void scansNevertheless();

 private:
  void write(const QString& relative, const QByteArray& text) const {
    QFile file(m_home->file(relative));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
};

void tst_cli_settings::refused_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<bool>("remembers");
  QTest::addColumn<QStringList>("further");
  QTest::addColumn<QByteArray>("words");
  const QStringList forGood = {u"--delete"_s};
  const QByteArray whole = "[clean]\nexclusions=**/.git, *.iso\n";
  QTest::newRow("no settings' form") << QByteArray("[clean]\nexclusions\n") << false << forGood << kUnreadable;
  QTest::newRow("rules that are no text")
      << QByteArray("[clean]\nexclusions=@Variant(xx)\n") << false << forGood << kUnreadable;
  QTest::newRow("dry run") << QByteArray("[clean]\nexclusions=@Point(1 2)\n") << false << QStringList{u"--dry-run"_s}
                           << kUnreadable;
  QTest::newRow("a folder in its place") << QByteArray("/") << false << forGood << kUnreadable;
  QTest::newRow("zeros") << QByteArray(whole.size(), '\0') << true << forGood << kUnreadable;
  QTest::newRow("cut") << whole.chopped(2) << true << forGood << kLost;
  QTest::newRow("empty") << QByteArray() << true << forGood << kLost;
  QTest::newRow("gone") << QByteArray("-") << true << QStringList{u"--trash"_s} << kLost;
  QTest::newRow("as json") << QByteArray() << true << QStringList{u"--delete"_s, u"--json"_s} << kLost;
}

void tst_cli_settings::refused() {
  QFETCH(QByteArray, text);
  QFETCH(bool, remembers);
  QFETCH(QStringList, further);
  QFETCH(QByteArray, words);
  if (remembers) write(kMemory, "{\"version\": 1, \"rules\": [\"**/.git\", \"*.iso\"]}");
  if (text == "/")
    m_home->folder(kStore);
  else if (text != "-")
    write(kStore, text);
  const auto before = wholeTree(*m_home);
  const CliRun run = runCli(QStringList{u"clean"_s, u"--yes"_s} + further);
  QCOMPARE(run.code, 1);
  QCOMPARE(run.err, "tarnwick-cli: " + words + " Look at the rules in the settings of Tarnwick; or mend " +
                        m_home->path(kStore).toUtf8() + ", or remove it together with " +
                        m_home->path(kMemory).toUtf8() + ".\n");
  QCOMPARE(wholeTree(*m_home), before);
}

// What it says helps.
void tst_cli_settings::cleansOnceMended() {
  write(kMemory, "{\"version\": 1, \"rules\": [\"*.iso\"]}");
  write(kStore, "[clean]\nexclusions=*.is");
  QCOMPARE(runCli({u"clean"_s, u"--yes"_s, u"--delete"_s}).code, 1);
  write(kStore, "[clean]\nexclusions=more, *.iso\n");
  QCOMPARE(runCli({u"clean"_s, u"--yes"_s, u"--dry-run"_s}).code, 0);
  QVERIFY(QFile::remove(m_home->path(kStore)));
  QCOMPARE(runCli({u"clean"_s, u"--yes"_s, u"--dry-run"_s}).code, 1);
  QVERIFY(QFile::remove(m_home->path(kMemory)));
  QCOMPARE(runCli({u"clean"_s, u"--yes"_s, u"--dry-run"_s}).code, 0);
}

// There is no sense in agreeing to what won't be done.
void tst_cli_settings::refusedWithoutAQuestion() {
  write(kStore, "broken");
  Pty terminal({u"clean"_s, u"--delete"_s});
  QCOMPARE(terminal.finish(), 1);
  QVERIFY(terminal.shown().contains("The settings can't be read"));
  QVERIFY(!terminal.shown().contains("[y/N]"));
}

void tst_cli_settings::scansNevertheless() {
  write(kStore, "broken");
  const auto before = wholeTree(*m_home);
  const CliRun run = runCli({u"scan"_s, u"--json"_s});
  QCOMPARE(run.code, 0);
  QVERIFY(!run.json().isEmpty());
  QCOMPARE(wholeTree(*m_home), before);
}

QTEST_GUILESS_MAIN(tst_cli_settings)
#include "tst_cli_settings.moc"
