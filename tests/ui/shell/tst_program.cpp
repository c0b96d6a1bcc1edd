// ctest: RESOURCE_LOCK clean
// The program as it runs: started, started again, stopped while it works. It is this test program itself, started as a
// child, which tells on its standard output what its window shows.
#include "ProgramTest.h"
#include "app/AppSettings.h"
#include "engines/Cleaner.h"
#include "support/SampleHome.h"
#include "ui/pages/CleanupPage.h"
#include "ui/shell/ConfirmCleanDialog.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Toast.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;
using programtest::kLookMs;
using programtest::kPatienceMs;

namespace {

constexpr char kClean[] = "TARNWICK_TEST_CLEAN"; // set where the child is to clean what a scan finds

ui::MainWindow* mainWindow() {
  for (QWidget* one : QApplication::topLevelWidgets())
    if (auto* window = qobject_cast<ui::MainWindow*>(one)) return window;
  return nullptr;
}

/// What a child tells, as often as it changes.
QByteArray seen(const ui::MainWindow& window) {
  const auto* toast = window.findChild<ui::Toast*>();
  const char* place = !window.isVisible() ? "hidden" : window.isMinimized() ? "minimised" : "shown";
  return QByteArray(place) + " page " + QByteArray::number(window.page()) + ": " +
         (toast->isHidden() ? QByteArray() : toast->accessibleName().toUtf8()) + "\n";
}

/// Asks for a clean as soon as there is something to clean, agrees, and is interrupted.
void cleanWhenPossible(const ui::MainWindow& window) {
  if (const auto* question = window.findChild<ui::ConfirmCleanDialog*>()) {
    std::raise(SIGINT); // heard when the event loop goes on, while the worker has only begun
    for (QPushButton* one : question->findChildren<QPushButton*>())
      if (one->isDefault()) one->click();
    return;
  }
  for (QPushButton* one : window.findChildren<QPushButton*>())
    if (one->isVisible() && one->isEnabled() && one->text().startsWith(u"Clean "_s)) one->click();
}

void watch() {
  auto* timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, [last = QByteArray()]() mutable {
    const ui::MainWindow* window = mainWindow();
    if (!window) return;
    const QByteArray now = seen(*window);
    if (now != last) std::fputs(now.constData(), stdout);
    last = now;
    if (qEnvironmentVariableIsSet(kClean)) cleanWhenPossible(*window);
    std::fflush(stdout);
  });
  timer->start(kLookMs);
}

/// They match nothing and are slow to tell it, so that a test can step in while the program works.
QStringList slowPatterns() {
  constexpr int kRules = 3000;
  QStringList rules;
  for (int i = 0; i < kRules; ++i) rules << u"/*a*e*o*%1*"_s.arg(kRules + i);
  return rules;
}

/// One start of the program.
class Start {
 public:
  explicit Start(const QStringList& arguments = {}, bool cleans = false) {
    QProcessEnvironment further;
    if (cleans) further.insert(QString::fromLatin1(kClean), u"yes"_s);
    programtest::start(&m_process, arguments, further);
  }
  ~Start() {
    m_process.kill();
    m_process.waitForFinished();
  }

  /// Waits for the child to tell this.
  [[nodiscard]] bool tells(const QByteArray& what) {
    QElapsedTimer since;
    since.start();
    while (!m_told.contains(what) && since.elapsed() < kPatienceMs && m_process.state() != QProcess::NotRunning) {
      m_process.waitForReadyRead(kLookMs);
      m_told += m_process.readAllStandardOutput();
    }
    m_told += m_process.readAllStandardOutput();
    return m_told.contains(what);
  }
  void forget() { m_told.clear(); }
  void stop(int signal) const { ::kill(pid_t(m_process.processId()), signal); }
  /// Waits for the end. @return the exit code; -1 after a crash, a signal that ended it, or no end at all
  [[nodiscard]] int result() {
    if (!m_process.waitForFinished(kPatienceMs)) return -1;
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
  }

 private:
  QProcess m_process;
  QByteArray m_told;
};

} // namespace

class TestProgram : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void init();

  void endsByASignal_data();
  void endsByASignal();
  void secondStart();
  void inTheBackground();
  void waitsForATray();
  void scheduledScanIsStopped();
  void cleanIsStoppedWithItsLogWhole();

 private:
  const FixtureHome m_home; // one for all, since the settings stay where they were first
};

void TestProgram::initTestCase() {
  fillSampleHome(m_home);
  const QString sockets = m_home.outside(u"run"_s);
  QVERIFY(QDir().mkpath(sockets));
  QVERIFY(QFile::setPermissions(sockets, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(sockets));
}

void TestProgram::init() {
  AppSettings& settings = AppSettings::instance();
  settings.setLowSpaceAlerts(false);
  settings.setSchedule(AppSettings::Off);
  settings.setShowInTray(false); // so that none is waited for
  settings.setExclusions(FixtureHome::rulesForOutside());
  QSettings().remove(u"ui/windowGeometry"_s);
}

void TestProgram::endsByASignal_data() {
  QTest::addColumn<int>("signal");
  QTest::newRow("SIGTERM") << SIGTERM;
  QTest::newRow("SIGINT") << SIGINT;
  QTest::newRow("SIGHUP") << SIGHUP;
}

void TestProgram::endsByASignal() {
  QFETCH(int, signal);
  Start program;
  QVERIFY(program.tells("shown page 0"));
  program.stop(signal);
  QCOMPARE(program.result(), 0);
  QSettings().sync();
  QVERIFY(!QSettings().value(u"ui/windowGeometry"_s).toByteArray().isEmpty());
}

void TestProgram::secondStart() {
  Start first({u"--background"_s});
  QVERIFY(first.tells("minimised page 0"));
  Start silent({u"--background"_s});
  QCOMPARE(silent.result(), 0);
  Start updated({u"--updated"_s});
  QCOMPARE(updated.result(), 0);
  QVERIFY(first.tells("shown page 0: Tarnwick was updated to version 1.0.0."));
  QVERIFY(!silent.tells("page"));
  QVERIFY(!updated.tells("page")); // it had no window of its own
  first.stop(SIGTERM);
  QCOMPARE(first.result(), 0);
}

// Without a tray the window list is the only way back.
void TestProgram::inTheBackground() {
  Start first({u"--background"_s});
  QVERIFY(first.tells("minimised page 0"));
  Start second;
  QCOMPARE(second.result(), 0);
  QVERIFY(first.tells("shown page 0"));
  first.stop(SIGTERM);
  QCOMPARE(first.result(), 0);
}

// Where there is none in the end, the window list brings it back; and a second start does at any time.
void TestProgram::waitsForATray() {
  AppSettings::instance().setShowInTray(true);
  QSettings().sync();
  QElapsedTimer waited;
  waited.start();
  Start first({u"--background"_s});
  QVERIFY(first.tells("hidden page 0"));
  QVERIFY(first.tells("minimised page 0"));
  QVERIFY2(waited.elapsed() >= 9'000, qPrintable(QString::number(waited.elapsed())));
  first.stop(SIGTERM);
  QCOMPARE(first.result(), 0);
  Start again({u"--background"_s});
  QVERIFY(again.tells("hidden page 0"));
  Start second;
  QCOMPARE(second.result(), 0);
  QVERIFY(again.tells("shown page 0"));
  again.stop(SIGTERM);
  QCOMPARE(again.result(), 0);
}

// It starts by itself in the background too, and its worker is waited for.
void TestProgram::scheduledScanIsStopped() {
  AppSettings& settings = AppSettings::instance();
  settings.setSchedule(AppSettings::Weekly);
  settings.setLastScan(QDateTime::currentDateTime().addDays(-30));
  settings.setExclusions(FixtureHome::rulesForOutside() + slowPatterns());
  QSettings().sync();
  addManyItems(m_home, 2000);
  Start program({u"--background"_s});
  QVERIFY(program.tells("minimised page 1"));
  program.stop(SIGTERM);
  QCOMPARE(program.result(), 0);
  QSettings().sync();
  QVERIFY(settings.lastScan().daysTo(QDateTime::currentDateTime()) > 1);
}

void TestProgram::cleanIsStoppedWithItsLogWhole() {
  AppSettings& settings = AppSettings::instance();
  settings.setSchedule(AppSettings::Weekly);
  settings.setLastScan(QDateTime::currentDateTime().addDays(-30));
  settings.setMoveToTrash(false);
  QSettings().sync();
  constexpr int kItems = 3000; // one in hand is ended, the next isn't begun
  for (int i = 0; i < kItems; ++i) m_home.file(u".cache/notes-%1/index"_s.arg(i), 1);
  Start program({u"--background"_s}, true); // nothing is painted, which would give the clean time to end
  QCOMPARE(program.result(), 0);
  const QStringList logs = QDir(Cleaner::logDir()).entryList({u"cleanup-*.log"_s});
  QCOMPARE(logs.size(), 1);
  QFile log(Cleaner::logDir() + u'/' + logs[0]);
  QVERIFY(log.open(QIODevice::ReadOnly));
  const QByteArray text = log.readAll();
  QVERIFY2(text.contains("\nFreed ") && text.endsWith(".\n"), text.right(400).constData());
  // What is gone and what the log says is the same, and there is something left: the clean did stop.
  int left = 0;
  for (int i = 0; i < kItems; ++i) left += QFile::exists(m_home.path(u".cache/notes-%1/index"_s.arg(i))) ? 1 : 0;
  QVERIFY(left > 0);
  QCOMPARE(text.count("\nDELETED  " + QFile::encodeName(m_home.path(u".cache/notes-"_s))), kItems - left);
}

int main(int argc, char** argv) { return programtest::run<TestProgram>(argc, argv, watch); }

#include "tst_program.moc"
