// Settings that can't be read: without the user's rules nothing is cleaned.
#include "support/CliTest.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString kStore = u".config/Tarnwick/Tarnwick.conf"_s;
} // namespace

class tst_cli_settings : public CliTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }
  void unreadable_data();
  void unreadable();
};

void tst_cli_settings::unreadable_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<QStringList>("further");
  QTest::newRow("no settings' form") << QByteArray("[clean]\nexclusions\n") << QStringList{u"--delete"_s};
  QTest::newRow("rules that are no text")
      << QByteArray("[clean]\nexclusions=@Variant(xx)\n") << QStringList{u"--delete"_s};
  QTest::newRow("dry run") << QByteArray("[clean]\nexclusions=@Point(1 2)\n") << QStringList{u"--dry-run"_s};
  QTest::newRow("a folder in its place") << QByteArray() << QStringList{u"--delete"_s};
}

void tst_cli_settings::unreadable() {
  QFETCH(QByteArray, text);
  QFETCH(QStringList, further);
  if (text.isEmpty()) {
    m_home->folder(kStore);
  } else {
    QFile file(m_home->file(kStore));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  const auto before = wholeTree(*m_home);
  const CliRun run = runCli(QStringList{u"clean"_s, u"--yes"_s} + further);
  QCOMPARE(run.code, 1);
  QCOMPARE(run.err, QByteArray("tarnwick-cli: The settings can't be read, so the rules on what to keep are unknown. "
                               "Nothing was cleaned.\n"));
  QCOMPARE(wholeTree(*m_home), before);
}

QTEST_GUILESS_MAIN(tst_cli_settings)
#include "tst_cli_settings.moc"
