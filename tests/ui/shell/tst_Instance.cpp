// Two starts of the program for one user. The second one runs in a process of its own, as it does in life.
#include "ui/shell/Instance.h"

#include "support/FixtureHome.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using ui::Instance;

namespace {

constexpr char kSecond[] = "TARNWICK_TEST_SECOND";
constexpr char kStore[] = "TARNWICK_TEST_STORE"; // folder of the settings
constexpr int kWaitMs = 30'000;

/// A second start with this wish, which it ends with its outcome as the exit code.
void startSecond(QProcess* process, int wish) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QString::fromLatin1(kSecond), QString::number(wish));
  environment.insert(QString::fromLatin1(kStore), QFileInfo(QFileInfo(QSettings().fileName()).path()).path());
  process->setProcessEnvironment(environment);
  process->start(QCoreApplication::applicationFilePath(), QStringList());
}

int outcomeOf(QProcess* process) {
  // The first must be able to answer meanwhile.
  while (process->state() != QProcess::NotRunning) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
  return process->exitCode();
}

} // namespace

class TestInstance : public QObject {
  Q_OBJECT

 private slots:
  void wishIsHandedOver_data();
  void wishIsHandedOver();
  void otherStoreIsAnother();
  void leavingIsWaitedFor();
  void crashLeavesNoTrace();
  void deafFirstIsPassed();
};

void TestInstance::wishIsHandedOver_data() {
  QTest::addColumn<int>("wish");
  QTest::newRow("show") << int(Instance::Wish::Show);
  QTest::newRow("nothing") << int(Instance::Wish::Nothing);
  QTest::newRow("updated") << int(Instance::Wish::Updated);
}

void TestInstance::wishIsHandedOver() {
  QFETCH(int, wish);
  Instance first;
  QCOMPARE(first.start(Instance::Wish::Show), Instance::Outcome::First);
  QSignalSpy asked(&first, &Instance::asked);
  QProcess second;
  startSecond(&second, wish);
  QCOMPARE(outcomeOf(&second), int(Instance::Outcome::Heard));
  QTRY_COMPARE(asked.count(), 1);
  QCOMPARE(asked[0][0].value<Instance::Wish>(), Instance::Wish(wish));
}

void TestInstance::otherStoreIsAnother() {
  Instance first;
  QCOMPARE(first.start(Instance::Wish::Show), Instance::Outcome::First);
  const QString usual = QCoreApplication::applicationName();
  QCoreApplication::setApplicationName(u"Another store"_s);
  Instance other;
  QCoreApplication::setApplicationName(usual);
  QCOMPARE(other.start(Instance::Wish::Show), Instance::Outcome::First);
}

// As when the program restarts itself: the new process starts while the old one is still leaving.
void TestInstance::leavingIsWaitedFor() {
  auto first = std::make_unique<Instance>();
  QCOMPARE(first->start(Instance::Wish::Show), Instance::Outcome::First);
  QSignalSpy asked(first.get(), &Instance::asked);
  first->leave();
  QProcess second;
  startSecond(&second, int(Instance::Wish::Show));
  QVERIFY(second.waitForStarted());
  QTRY_VERIFY(second.bytesAvailable() > 0); // it has begun to ask
  first.reset();
  QCOMPARE(outcomeOf(&second), int(Instance::Outcome::First));
  QCOMPARE(asked.count(), 0);
}

void TestInstance::crashLeavesNoTrace() {
  QProcess crashing;
  startSecond(&crashing, -1); // becomes the first, and is killed by itself
  QVERIFY(crashing.waitForFinished(kWaitMs));
  QCOMPARE(crashing.exitStatus(), QProcess::CrashExit);
  Instance next;
  QCOMPARE(next.start(Instance::Wish::Show), Instance::Outcome::First);
}

// A first that is alive but doesn't listen doesn't keep the user from the program.
void TestInstance::deafFirstIsPassed() {
  auto first = std::make_unique<Instance>();
  QCOMPARE(first->start(Instance::Wish::Show), Instance::Outcome::First);
  first->leave();
  Instance second;
  QCOMPARE(second.start(Instance::Wish::Show, 100ms), Instance::Outcome::Alone);
}

int main(int argc, char** argv) {
  QCoreApplication::setApplicationName(u"Tarnwick"_s);
  QCoreApplication::setOrganizationName(u"Tarnwick"_s);
  if (qEnvironmentVariableIsSet(kSecond)) {
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, qEnvironmentVariable(kStore));
    QCoreApplication app(argc, argv);
    const int wish = qEnvironmentVariableIntValue(kSecond);
    Instance instance;
    std::puts("asking");
    std::fflush(stdout);
    const Instance::Outcome outcome = instance.start(Instance::Wish(qMax(0, wish)), 20s);
    if (wish < 0) std::abort();
    return int(outcome);
  }
  const FixtureHome home;
  QCoreApplication app(argc, argv);
  TestInstance test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_Instance.moc"
