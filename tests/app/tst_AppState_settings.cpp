// ctest: RESOURCE_LOCK clean
// Without settings that can be trusted nothing is cleaned; and once the user has looked at the rules, it is.
#include "FlowTest.h"
#include "support/settings.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_AppState_settings : public FlowTest {
  Q_OBJECT

 private slots:
  void init() {
    settingsstore::forget();
    fill();
    scan();
  }
  void cleanup() { empty(); }

  void refusesUntilTheRulesWereLookedAt_data();
  void refusesUntilTheRulesWereLookedAt();
  void scansWithWhatIsRemembered();

 private:
  [[nodiscard]] bool isCleaned() const { return !QFile::exists(m_home->path(u".cache/thumbnails/normal/1.png"_s)); }
};

void tst_AppState_settings::refusesUntilTheRulesWereLookedAt_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<QString>("words");
  const QString unreadable =
      u"The settings can't be read, so the rules on what to keep are unknown. Nothing was cleaned."_s;
  const QString lost = u"The settings have lost rules on what to keep. Nothing was cleaned."_s;
  QTest::newRow("broken") << QByteArray("broken") << unreadable;
  QTest::newRow("zeros") << QByteArray(300, '\0') << unreadable;
  QTest::newRow("empty") << QByteArray() << lost;
  QTest::newRow("without the rules") << QByteArray("[clean]\nmoveToTrash=false\n") << lost;
}

void tst_AppState_settings::refusesUntilTheRulesWereLookedAt() {
  QFETCH(QByteArray, text);
  QFETCH(QString, words);
  settingsstore::write(AppSettings::instance().path(), text);
  QSignalSpy toasts(m_state.get(), &AppState::toast);
  for (const bool dry : {true, false}) {
    RunOptions options;
    options.dryRun = dry;
    options.moveToTrash = false;
    m_state->clean(options);
    QCOMPARE(m_state->phase, AppState::Review); // at once
    QCOMPARE(m_state->report.refusal, words);
    QCOMPARE(toasts.takeFirst().at(0).toString(), words);
    QVERIFY(!isCleaned());
    QCOMPARE(settingsstore::bytes(AppSettings::instance().path()), text);
  }
  QVERIFY(!m_state->selectedResults().isEmpty());
  QVERIFY(AppSettings::instance().acceptExclusions());
  QCOMPARE(AppState::settingsRefusal(), QString());
  RunOptions forGood;
  forGood.moveToTrash = false;
  clean(forGood);
  QCOMPARE(m_state->phase, AppState::Done);
  QVERIFY(isCleaned());
}

void tst_AppState_settings::scansWithWhatIsRemembered() {
  AppSettings& settings = AppSettings::instance();
  settings.setExclusions(settings.exclusions() << u"thumbnails"_s);
  settingsstore::write(settings.path(), "broken");
  settings.look();
  scan();
  const CategoryResult* thumbs = m_state->result(kThumbs);
  QVERIFY(!thumbs || thumbs->bytes == 0);
}

QTEST_GUILESS_MAIN(tst_AppState_settings)
#include "tst_AppState_settings.moc"
