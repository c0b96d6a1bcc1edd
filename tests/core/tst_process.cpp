#include "core/process.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
constexpr int kPlentyMs = 20000;

QString shell(const QString& script, int limitMs, int* exitCode) {
  return process::run(u"/bin/sh"_s, {u"-c"_s, script}, limitMs, exitCode);
}
} // namespace

class TestProcess : public QObject {
  Q_OBJECT

 private slots:
  void outputAndExitCode() {
    int code = -7;
    QCOMPARE(shell(u"echo out; echo err >&2; exit 3"_s, kPlentyMs, &code), u"out\n"_s);
    QCOMPARE(code, 3);
    QCOMPARE(shell(u"exit 0"_s, kPlentyMs, &code), QString());
    QCOMPARE(code, 0);
  }

  void errorsMayBeReadToo() {
    int code = -7;
    QCOMPARE(process::run(u"/bin/sh"_s, {u"-c"_s, u"echo out; echo err >&2; echo again; exit 3"_s}, kPlentyMs, &code,
                          process::Read::OutputAndErrors),
             u"out\nerr\nagain\n"_s);
    QCOMPARE(code, 3);
  }

  void theExitCodeMayBeLeftOut() { QCOMPARE(shell(u"echo x"_s, kPlentyMs, nullptr), u"x\n"_s); }

  void outputIsUtf8() { QCOMPARE(shell(u"printf '\\303\\244\\377'"_s, kPlentyMs, nullptr), u"\u00e4\ufffd"_s); }

  void argumentsPassNoShell() {
    const QString odd = u"a b'c\"$HOME;\n*"_s;
    QCOMPARE(process::run(u"/usr/bin/printf"_s, {u"[%s]"_s, odd, QString()}, kPlentyMs), u'[' + odd + u"][]"_s);
  }

  void muchOutputIsReadWhole() {
    const QString text =
        shell(u"i=0; while [ $i -lt 20000 ]; do echo 0123456789; i=$((i+1)); done"_s, kPlentyMs, nullptr);
    QCOMPARE(text.size(), 220000);
  }

  void aCrashIsMinusOne() {
    int code = 0;
    shell(u"kill -SEGV $$"_s, kPlentyMs, &code);
    QCOMPARE(code, -1);
  }

  // Without an end to the tool it would take the second of grace too, every time; a busy machine may take that once.
  void aTimeOutEndsTheToolAndGivesNothing() {
    constexpr int kLimitMs = 200;
    constexpr int kGraceMs = 1000;
    constexpr int kTries = 10;
    qint64 elapsedMs = kLimitMs + kGraceMs;
    for (int i = 0; i < kTries && elapsedMs >= kLimitMs + kGraceMs; ++i) {
      int code = 0;
      QElapsedTimer clock;
      clock.start();
      QCOMPARE(shell(u"trap '' TERM; echo early; exec sleep 60"_s, kLimitMs, &code), QString());
      elapsedMs = clock.elapsed();
      QCOMPARE(code, -1);
      QVERIFY(elapsedMs >= kLimitMs);
    }
    QVERIFY2(elapsedMs < kLimitMs + kGraceMs, qPrintable(QString::number(elapsedMs)));
  }

  void aMissingToolIsMinusOneAtOnce() {
    int code = 0;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(process::run(u"/nonexistent/tool"_s, {}, kPlentyMs, &code), QString());
    QCOMPARE(code, -1);
    QVERIFY(clock.elapsed() < kPlentyMs / 2);
  }
};

QTEST_GUILESS_MAIN(TestProcess)
#include "tst_process.moc"
