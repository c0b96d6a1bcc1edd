// How the window starts and how it ends: its geometry, the options and the steps of a start, and its close rule.
#include "MainWindowTest.h"
#include "ui/shell/program.h"

#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {
const QString kGeometryKey = u"ui/windowGeometry"_s;
} // namespace

class TestMainWindowStart : public MainWindowTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void geometryComesBack();
  void refusedGeometryIsNone();
  void closingWithoutATrayQuits();
  void quitSavesTheGeometry();
  void startOptionsAreExact();
  void backgroundWithoutATrayIsMinimised();
  void lowSpace_data();
  void lowSpace();
  void stepsAfterStartAreIndependent();
};

void TestMainWindowStart::geometryComesBack() {
  m_window->resize(1000, 700);
  m_window->saveWindowState();
  startAgain();
  m_window->restoreWindowState();
  QCOMPARE(m_window->size(), QSize(1000, 700));
}

void TestMainWindowStart::refusedGeometryIsNone() {
  for (const QByteArray& stored : {QByteArray(), QByteArray("nonsense")}) {
    QSettings().setValue(kGeometryKey, stored);
    m_window->resize(5000, 5000);
    m_window->restoreWindowState();
    const QRect available = m_window->screen()->availableGeometry();
    const QSize wanted = QSize(5000, 5000).boundedTo(available.size()).expandedTo(m_window->minimumSize());
    QCOMPARE(m_window->size(), wanted);
    const QPoint off = m_window->geometry().center() - available.center();
    QVERIFY2(off.manhattanLength() <= 2 || wanted.width() > available.width(), qPrintable(QString::number(off.x())));
  }
}

void TestMainWindowStart::closingWithoutATrayQuits() {
  QSettings().remove(kGeometryKey);
  QSignalSpy leaving(qApp, &QCoreApplication::aboutToQuit);
  QTimer::singleShot(0, m_window.get(), &QWidget::close);
  QApplication::exec(); // would not return
  QCOMPARE(leaving.count(), 1);
  QVERIFY(!QSettings().value(kGeometryKey).toByteArray().isEmpty());
}

void TestMainWindowStart::quitSavesTheGeometry() {
  QSettings().remove(kGeometryKey);
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QApplication::exec();
  QVERIFY(m_window->isHidden());
  QVERIFY(!QSettings().value(kGeometryKey).toByteArray().isEmpty());
}

void TestMainWindowStart::startOptionsAreExact() {
  const StartOptions none = startOptions({u"tarnwick"_s, u"--Background"_s, u"--updated=1"_s, u"file"_s});
  QVERIFY(!none.background && !none.updated);
  const StartOptions both = startOptions({u"tarnwick"_s, u"--updated"_s, u"--background"_s});
  QVERIFY(both.background && both.updated);
}

void TestMainWindowStart::backgroundWithoutATrayIsMinimised() {
  AppSettings::instance().setShowInTray(false); // so that none is waited for
  m_window->hide();
  showAtStart(m_window.get(), {.background = true});
  QVERIFY(m_window->isMinimized());
  m_window->showFromTray();
  QVERIFY(!m_window->isMinimized() && m_window->isVisible());
}

void TestMainWindowStart::lowSpace_data() {
  QTest::addColumn<qint64>("total");
  QTest::addColumn<qint64>("available");
  QTest::addColumn<bool>("alerts");
  QTest::addColumn<bool>("told");
  QTest::newRow("a tenth") << qint64(1000) << qint64(100) << true << false;
  QTest::newRow("a byte less") << qint64(1000) << qint64(99) << true << true;
  QTest::newRow("a tenth, rounded down") << qint64(1009) << qint64(100) << true << false;
  QTest::newRow("unknown") << qint64(0) << qint64(-1) << true << false;
  QTest::newRow("not wanted") << qint64(1000) << qint64(1) << false << false;
}

void TestMainWindowStart::lowSpace() {
  QFETCH(qint64, total);
  QFETCH(qint64, available);
  QFETCH(bool, alerts);
  QFETCH(bool, told);
  AppSettings::instance().setLowSpaceAlerts(alerts);
  m_state->volume.name = u"System disk"_s;
  m_state->volume.totalBytes = total;
  m_state->volume.availableBytes = available;
  afterStart(m_window.get(), m_state.get(), {});
  QCOMPARE(toastText(), told ? u"System disk is almost full. Run Smart Scan to free up space."_s : QString());
  QCOMPARE(m_state->phase, AppState::Empty);
}

void TestMainWindowStart::stepsAfterStartAreIndependent() {
  AppSettings::instance().setLowSpaceAlerts(false);
  AppSettings::instance().setSchedule(AppSettings::Weekly);
  AppSettings::instance().setLastScan(QDateTime::currentDateTime().addDays(-30));
  afterStart(m_window.get(), m_state.get(), {.updated = true});
  QCOMPARE(toastText(), u"Tarnwick was updated to version 1.0.0."_s);
  QCOMPARE(m_state->phase, AppState::Scanning);
}

int main(int argc, char** argv) { return uitest::run<TestMainWindowStart>(argc, argv); }

#include "tst_MainWindow_start.moc"
