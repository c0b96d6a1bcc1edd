// When the window asks for updates by itself, and when it tells of them.
#include "ui/shell/Updates.h"

#include "support/ReleaseHost.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/shell/ConfirmDialog.h"
#include "ui/shell/UpdateDialog.h"

#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace ui;

class TestUpdates : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup();

  void asksOnceAfterAWhile();
  void newerOpensTheDialog();
  void nothingNewerIsNoWord();
  void failureIsNoWord();
  void hiddenWindowShowsNothing();
  void minimisedWindowShowsNothing();
  void anotherDialogIsNotDisturbed();
  void wishShowsEvenAFailure();
  void wishDoesNotCheckWhatIsThere();
  void wishTwiceIsOneDialog();
  void wishAfterACloseIsAnother();
  void wishEndsTheSilence();

 private:
  [[nodiscard]] QTimer* timer() const { return m_updates->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly); }
  [[nodiscard]] QList<UpdateDialog*> dialogs() const { return m_area->findChildren<UpdateDialog*>(); }
  [[nodiscard]] Updater* updater() const { return m_updates->updater; }
  void offer(const QByteArray& version);
  /// Lets the time for the silent check come now, and waits for its end.
  bool silentCheck() {
    timer()->start(0);
    return QTest::qWaitFor([this] { return updater()->state != Updater::Idle; }) && ReleaseHost::hasEnded(*updater());
  }

  std::unique_ptr<ReleaseHost> m_host;
  std::unique_ptr<QWidget> m_area;
  std::unique_ptr<Updates> m_updates;
};

void TestUpdates::init() {
  m_host = std::make_unique<ReleaseHost>();
  m_area = std::make_unique<QWidget>();
  m_area->resize(960, 600);
  m_area->show();
  m_updates = std::make_unique<Updates>(m_area.get(), QUrl(ReleaseHost::address(u"/feed.json"_s)), nullptr);
  m_updates->updater->currentVersion = u"1.0.0"_s;
}

void TestUpdates::cleanup() {
  m_area.reset();
  m_updates.reset();
  m_host.reset();
}

void TestUpdates::offer(const QByteArray& version) {
  QByteArray feed = ReleaseHost::feed(ReleaseHost::address(u"/a.pkg"_s));
  m_host->server.answers.insert("/feed.json", Answer::ok(feed.replace("2.0.0", version)));
}

void TestUpdates::asksOnceAfterAWhile() {
  QVERIFY(timer()->isSingleShot());
  QCOMPARE(timer()->interval(), 5000);
  QVERIFY(timer()->isActive());
  QCOMPARE(updater()->state, Updater::Idle);
  QVERIFY(m_host->proxy.asked.isEmpty());
}

void TestUpdates::newerOpensTheDialog() {
  offer("2.0.0");
  QVERIFY(silentCheck());
  QCOMPARE(updater()->state, Updater::Available);
  QCOMPARE(dialogs().size(), 1);
  QVERIFY(dialogs().first()->isVisible());
  QTest::keyClick(dialogs().first(), Qt::Key_Return); // meant for what was below a moment ago
  QCOMPARE(updater()->state, Updater::Available);
  for (const auto* button : dialogs().first()->findChildren<QPushButton*>()) QVERIFY(!button->isDefault());
}

void TestUpdates::nothingNewerIsNoWord() {
  offer("1.0.0");
  QVERIFY(silentCheck());
  QCOMPARE(updater()->state, Updater::UpToDate);
  QVERIFY(dialogs().isEmpty());
}

void TestUpdates::failureIsNoWord() {
  QVERIFY(silentCheck());
  QCOMPARE(updater()->state, Updater::Failed);
  QVERIFY(dialogs().isEmpty());
}

void TestUpdates::hiddenWindowShowsNothing() {
  offer("2.0.0");
  m_area->hide();
  QVERIFY(silentCheck());
  QCOMPARE(updater()->state, Updater::Available);
  m_area->show();
  QVERIFY(dialogs().isEmpty());
}

void TestUpdates::minimisedWindowShowsNothing() {
  offer("2.0.0");
  m_area->showMinimized();
  QVERIFY(silentCheck());
  QCOMPARE(updater()->state, Updater::Available);
  QVERIFY(dialogs().isEmpty());
}

void TestUpdates::anotherDialogIsNotDisturbed() {
  offer("2.0.0");
  auto* other = new ConfirmDialog(m_area.get(), u"Clean?"_s, u"Really."_s, u"Clean"_s, true);
  other->open();
  QVERIFY(silentCheck());
  QCOMPARE(updater()->state, Updater::Available);
  QVERIFY(dialogs().isEmpty());
  QVERIFY(other->isVisible());
}

void TestUpdates::wishShowsEvenAFailure() {
  m_updates->check();
  QCOMPARE(dialogs().size(), 1);
  QVERIFY(ReleaseHost::hasEnded(*updater()));
  QCOMPARE(updater()->state, Updater::Failed);
  QVERIFY(dialogs().first()->isVisible());
}

void TestUpdates::wishDoesNotCheckWhatIsThere() {
  offer("2.0.0");
  for (const auto state : {Updater::Available, Updater::Downloading, Updater::Installing}) {
    updater()->setState(state);
    m_updates->check();
    QCOMPARE(updater()->state, state);
  }
  QVERIFY(m_host->proxy.asked.isEmpty());
  updater()->setState(Updater::UpToDate);
  m_updates->check();
  QCOMPARE(updater()->state, Updater::Checking);
  QVERIFY(ReleaseHost::hasEnded(*updater()));
}

void TestUpdates::wishTwiceIsOneDialog() {
  updater()->setState(Updater::Available);
  m_updates->check();
  m_updates->check();
  QCOMPARE(dialogs().size(), 1);
}

void TestUpdates::wishAfterACloseIsAnother() {
  updater()->setState(Updater::Available);
  m_updates->check();
  dialogs().first()->close();
  m_updates->check(); // the first isn't deleted yet
  QCOMPARE(dialogs().size(), 2);
  QVERIFY(dialogs().last()->isVisible());
}

void TestUpdates::wishEndsTheSilence() {
  offer("2.0.0");
  timer()->start(0);
  QTRY_COMPARE(updater()->state, Updater::Checking);
  m_updates->check();
  dialogs().first()->close();
  QTRY_VERIFY(dialogs().isEmpty());
  QVERIFY(ReleaseHost::hasEnded(*updater()));
  QCOMPARE(updater()->state, Updater::Available);
  QVERIFY(dialogs().isEmpty()); // the user has closed it
}

int main(int argc, char** argv) { return uitest::run<TestUpdates>(argc, argv); }

#include "tst_Updates.moc"
