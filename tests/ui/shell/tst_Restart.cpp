// "Restart now": the program starts itself anew for another language, and its guard against a second start lets the new
// one be the first. The programs are this test program itself, started as a child, which write down who they are.
#include "ProgramTest.h"
#include "app/AppSettings.h"
#include "core/login.h"
#include "support/FixtureHome.h"
#include "support/settings.h"
#include "ui/controls/Select.h"
#include "ui/pages/SettingsPage.h"
#include "ui/shell/Instance.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <csignal>

using namespace Qt::StringLiterals;
using programtest::kLookMs;
using programtest::kPatienceMs;
using namespace std::chrono_literals;

namespace {

constexpr char kLog[] = "TARNWICK_TEST_LOG"; // a line for each child with a window: its process, its language

ui::MainWindow* mainWindow() {
  for (QWidget* one : QApplication::topLevelWidgets())
    if (auto* window = qobject_cast<ui::MainWindow*>(one); window && window->isVisible()) return window;
  return nullptr;
}

void writeDown() {
  QFile log(qEnvironmentVariable(kLog));
  if (!log.open(QIODevice::Append)) qFatal("there is no log");
  log.write(QByteArray::number(QCoreApplication::applicationPid()) + ' ' + AppSettings::instance().language().toUtf8() +
            '\n');
}

/// What the user does in the first of them.
void chooseGerman(ui::MainWindow* window) {
  window->go(ui::Sidebar::Settings);
  for (auto* one : window->findChildren<ui::Select*>())
    if (const int german = one->findData(u"de"_s); german >= 0) one->activateItem(german);
  for (auto* one : window->findChildren<QPushButton*>())
    if (one->text() == u"Restart now"_s && one->isVisible()) one->click();
}

void work() {
  auto* timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, timer, [timer] {
    ui::MainWindow* window = mainWindow();
    if (!window) return;
    timer->stop();
    writeDown();
    if (AppSettings::instance().language().isEmpty()) chooseGerman(window);
  });
  // One that takes its time to leave, as where a clean has to end first.
  QObject::connect(qApp, &QCoreApplication::aboutToQuit, [] {
    if (qEnvironmentVariableIsSet(kLog)) QThread::msleep(700); // waits because the other one is to start meanwhile
  });
  timer->start(kLookMs);
}

} // namespace

class TestRestart : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void cleanup();
  void newOneTakesOver();
  void entryForTheLoginIsKeptTrue();

 private:
  void start(QProcess* process, const QStringList& arguments = {}) const {
    QProcessEnvironment further;
    further.insert(QString::fromLatin1(kLog), m_log);
    programtest::start(process, arguments, further);
  }
  [[nodiscard]] QList<QByteArray> lines() const {
    QList<QByteArray> all = settingsstore::bytes(m_log).split('\n');
    all.removeAll(QByteArray());
    return all;
  }

  const FixtureHome m_home;
  const QString m_log = m_home.outside(u"log"_s);
};

void TestRestart::initTestCase() {
  const QString sockets = m_home.outside(u"run"_s);
  QVERIFY(QDir().mkpath(sockets));
  QVERIFY(QFile::setPermissions(sockets, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(sockets));
  AppSettings::instance().setLowSpaceAlerts(false);
}

void TestRestart::cleanup() { // what a failure leaves
  for (const QByteArray& line : lines())
    if (const int pid = line.split(' ').first().toInt(); pid > 1) ::kill(pid, SIGKILL);
}

void TestRestart::newOneTakesOver() {
  QProcess first;
  start(&first);
  QTRY_COMPARE_WITH_TIMEOUT(lines().size(), 2, kPatienceMs);
  QTRY_COMPARE_WITH_TIMEOUT(first.state(), QProcess::NotRunning, kPatienceMs);
  QCOMPARE(first.exitStatus(), QProcess::NormalExit);
  QCOMPARE(first.exitCode(), 0);
  QCOMPARE(lines().at(0).split(' ').at(1), QByteArray());
  QCOMPARE(lines().at(1).split(' ').at(1), QByteArray("de"));
  const int restarted = lines().at(1).split(' ').first().toInt();
  QVERIFY(restarted != lines().at(0).split(' ').first().toInt());

  QProcess another; // finds it at its place
  start(&another, {u"--background"_s});
  QVERIFY(another.waitForFinished(kPatienceMs));
  QCOMPARE(another.exitCode(), 0);
  QCOMPARE(lines().size(), 2);
  QCOMPARE(::kill(restarted, SIGTERM), 0);
  ui::Instance here;
  QCOMPARE(here.start(ui::Instance::Wish::Nothing, 30s), ui::Instance::Outcome::First);
}

// The program has moved since the entry was written.
void TestRestart::entryForTheLoginIsKeptTrue() {
  QVERIFY(QFile::remove(m_log));
  AppSettings::instance().look();
  AppSettings::instance().setStartAtLogin(true);
  QVERIFY(QDir().mkpath(QFileInfo(login::path()).path()));
  settingsstore::write(login::path(), login::desktopEntry(u"/old/tarnwick"_s));
  QProcess program;
  start(&program);
  QTRY_COMPARE_WITH_TIMEOUT(lines().size(), 1, kPatienceMs);
  QCOMPARE(settingsstore::bytes(login::path()), login::desktopEntry(QCoreApplication::applicationFilePath()));
  program.terminate();
  QTRY_COMPARE_WITH_TIMEOUT(program.state(), QProcess::NotRunning, kPatienceMs);
}

int main(int argc, char** argv) { return programtest::run<TestRestart>(argc, argv, work); }

#include "tst_Restart.moc"
