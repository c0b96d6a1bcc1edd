// The progress of a clean, and its report.
#include "CleanupTest.h"
#include "engines/Cleaner.h"
#include "support/Desktop.h"
#include "support/pixels.h"
#include "ui/controls/GradientText.h"
#include "ui/controls/Note.h"
#include "ui/pages/CleanupDoneView.h"
#include "ui/pages/DoneBadge.h"
#include "ui/visuals/ProgressRing.h"

#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QUrl>

#include <limits>

using namespace cleanuptest;

namespace {

/// What a report tells, as far as the page shows it.
struct Told {
  qint64 freedBytes = 0;
  qint64 skipped = 0;
  QStringList skippedSamples = {};
  QString logPath = {};
  bool needsAdmin = false;
  QStringList runningApps = {};
};

CleanReport reportOf(const Told& told) {
  CleanReport report;
  report.freedBytes = told.freedBytes;
  report.skipped = told.skipped;
  report.skippedSamples = told.skippedSamples;
  report.logPath = told.logPath;
  report.needsAdmin = told.needsAdmin;
  report.runningApps = told.runningApps;
  return report;
}

} // namespace

class TestCleanupDone : public CleanupTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void beginsEmpty();
  void progress();
  void withoutATotal();
  void pathStays();
  void badge();
  void badgePaints();
  void texts();
  void summaryFollowsTheSetting();
  void heldBack_data();
  void heldBack();
  void longSample();
  void countIsCapped();
  void notesAreShownWhenThereIsSomethingToSay();
  void secondReportLeavesNothingOfTheFirst();
  void administratorNote();
  void logOpens();
  void columnIsNoWiderThan640();
  void scrollsOnlyWhereItMust();

 private:
  [[nodiscard]] ui::Note* note(const char* name) const { return find<ui::Note>(name); }
  void done(const Told& told) {
    m_state->report = reportOf(told);
    m_state->setPhase(AppState::Review);
    m_state->setPhase(AppState::Done);
  }
  [[nodiscard]] QFontMetrics metrics() const { return m_page->fontMetrics(); }
  [[nodiscard]] QString heldBack(const Told& told) const { return ui::heldBackText(reportOf(told), metrics()); }
};

void TestCleanupDone::beginsEmpty() {
  review({category(kThumbs, {3'000'000})});
  m_state->setPhase(AppState::Cleaning);
  auto* ring = view()->findChild<ui::ProgressRing*>();
  QVERIFY(ring->success);
  emit m_state->cleanProgress(1'000'000, 2'000'000, u"/a"_s);
  QCOMPARE(ring->target(), 0.5);
  m_state->setPhase(AppState::Review);
  m_state->setPhase(AppState::Cleaning);
  QCOMPARE(ring->target(), 0.0);
  QVERIFY2(ring->valueText().contains(u"0 KB"_s), qPrintable(ring->valueText()));
  QVERIFY2(ring->valueText().contains(u"of 3 MB"_s), qPrintable(ring->valueText()));
  QCOMPARE(find<QLabel>("cleanPath")->text(), u"/a"_s); // until the next clean tells another
}

void TestCleanupDone::progress() {
  m_state->setPhase(AppState::Cleaning);
  emit m_state->cleanProgress(3'000'000, 4'000'000, u"/some/where"_s);
  const auto* ring = view()->findChild<ui::ProgressRing*>();
  QCOMPARE(ring->target(), 0.75);
  QVERIFY(ring->valueText().contains(u"3 MB"_s));
  QVERIFY(ring->valueText().contains(u"of 4 MB"_s));
  const QLabel* path = find<QLabel>("cleanPath");
  QCOMPARE(path->text(), u"/some/where"_s);
  const QString longPath = u'/' + QString(300, u'w') + u"/end"_s;
  emit m_state->cleanProgress(3'000'000, 4'000'000, longPath);
  QCOMPARE(path->text(), path->fontMetrics().elidedText(longPath, Qt::ElideMiddle, 640));
  QVERIFY(path->text() != longPath);
}

void TestCleanupDone::withoutATotal() {
  m_state->setPhase(AppState::Cleaning);
  emit m_state->cleanProgress(5, 0, {});
  const auto* ring = view()->findChild<ui::ProgressRing*>();
  QCOMPARE(ring->target(), 0.0);
  QVERIFY(ring->valueText().contains(u"of 0 KB"_s));
}

void TestCleanupDone::pathStays() {
  m_state->setPhase(AppState::Cleaning);
  emit m_state->cleanProgress(1, 4, u"/kept"_s);
  emit m_state->cleanProgress(2, 4, {});
  QCOMPARE(find<QLabel>("cleanPath")->text(), u"/kept"_s);
}

void TestCleanupDone::badge() {
  const ui::DoneBadgeLayout layout = ui::doneBadgeLayout({120, 120});
  QCOMPARE(layout.glow, QRectF(0, 0, 120, 120));
  QCOMPARE(layout.disc, QRectF(24, 24, 72, 72));
  QCOMPARE(layout.check, QPolygonF({{47, 61}, {56, 70}, {74, 51}}));
  m_state->setPhase(AppState::Done);
  QCOMPARE(view()->findChild<ui::DoneBadge*>()->size(), QSize(120, 120));
}

void TestCleanupDone::badgePaints() {
  ui::DoneBadge badge;
  const QImage image = pixels::rendered(badge);
  QCOMPARE(pixels::at(image, {56, 70}), QColor(Qt::white));
  const QColor upper = pixels::at(image, {40, 40});
  const QColor lower = pixels::at(image, {80, 80});
  QVERIFY(qAbs(upper.blue() - 153) < 40 && qAbs(lower.blue() - 238) < 40);
  QVERIFY(upper.alpha() == 255 && lower.alpha() == 255);
  const int rim = pixels::at(image, {60, 100}).alpha();
  QVERIFY(rim > 0 && rim < 70);
  QCOMPARE(pixels::at(image, {1, 1}).alpha(), 0);
}

void TestCleanupDone::texts() {
  m_state->freeBeforeClean = 12'000'000'000;
  m_state->volume.availableBytes = 15'000'000'000;
  done({.freedBytes = 3'000'000'000});
  QCOMPARE(view()->findChild<ui::GradientText*>()->text(), u"3.0 GB"_s);
  QCOMPARE(find<QLabel>("beforeValue")->text(), u"12.0 GB"_s);
  QCOMPARE(find<QLabel>("nowValue")->text(), u"15.0 GB"_s);
  QCOMPARE(find<QLabel>("nowValue")->styleSheet(), u"font-size: 17px; color: %1;"_s.arg(Theme::get().ok.name()));
  const QStringList shown = cleanuptest::texts(view());
  for (const QString& text : {u"Cleanup complete"_s, u"Available before"_s, u"Available now"_s})
    QVERIFY2(shown.contains(text), qPrintable(text));
}

void TestCleanupDone::summaryFollowsTheSetting() {
  done({});
  QCOMPARE(find<QLabel>("doneSummary")->text(), u"Items were deleted permanently."_s);
  AppSettings::instance().setMoveToTrash(true);
  done({});
  QCOMPARE(find<QLabel>("doneSummary")->text(), u"Moved to the Trash. You can still restore anything."_s);
}

void TestCleanupDone::heldBack_data() {
  const QString running = u"<b>Left caches of running apps alone:</b> Fox &amp; Co, Code. Quit them and clean again to "
                          "include them."_s;
  const QString skipped = u"<b>2 file(s) skipped</b> because they were in use or protected. Quit the apps using them "
                          "and rescan to remove them."_s;
  const QStringList apps = {u"Fox & Co"_s, u"Code"_s};
  QTest::addColumn<qint64>("count");
  QTest::addColumn<QStringList>("samples");
  QTest::addColumn<QStringList>("runningApps");
  QTest::addColumn<QString>("expected");
  QTest::newRow("nothing") << qint64(0) << QStringList() << QStringList() << QString();
  QTest::newRow("samples of nothing") << qint64(0) << QStringList{u"/a"_s} << QStringList() << QString();
  QTest::newRow("skipped") << qint64(2) << QStringList() << QStringList() << skipped;
  QTest::newRow("with a sample") << qint64(2) << QStringList{u"/a&b"_s, u"/c"_s} << QStringList()
                                 << skipped + u" For example: /a&amp;b"_s;
  QTest::newRow("running") << qint64(0) << QStringList() << apps << running;
  QTest::newRow("both") << qint64(2) << QStringList{u"/a"_s} << apps
                        << running + u"<br>"_s + skipped + u" For example: /a"_s;
}

void TestCleanupDone::heldBack() {
  QFETCH(const qint64, count);
  QFETCH(const QStringList, samples);
  QFETCH(const QStringList, runningApps);
  QFETCH(const QString, expected);
  QCOMPARE(heldBack({.skipped = count, .skippedSamples = samples, .runningApps = runningApps}), expected);
}

void TestCleanupDone::longSample() {
  const QString path = u"/home/me/R&D/"_s + QString(300, u'w') + u"/end&more"_s;
  const QString text = heldBack({.skipped = 1, .skippedSamples = {path}});
  const QString elided = metrics().elidedText(path, Qt::ElideMiddle, 360);
  QVERIFY(elided != path);
  QVERIFY(text.endsWith(u"For example: "_s + elided.toHtmlEscaped()));
  QVERIFY(text.contains(u"R&amp;D"_s));
  QVERIFY(text.endsWith(u"end&amp;more"_s));
}

void TestCleanupDone::countIsCapped() {
  const QString most = QLocale().toString(std::numeric_limits<int>::max());
  QVERIFY(heldBack({.skipped = 5'000'000'000}).contains(most));
}

void TestCleanupDone::notesAreShownWhenThereIsSomethingToSay() {
  done({});
  QVERIFY(note("skippedNote")->isHidden());
  QVERIFY(note("adminNote")->isHidden());
  done({.runningApps = {u"Fox"_s}});
  QVERIFY(note("skippedNote")->isVisible());
  QVERIFY(note("skippedNote")->text().startsWith(u"<b>Left caches"_s));
  QVERIFY(!note("skippedNote")->text().contains(u"<br>"_s));
  QCOMPARE(note("skippedNote")->accessibleName(),
           u"Left caches of running apps alone: Fox. Quit them and clean again to include them."_s);
  done({.skipped = 1, .needsAdmin = true});
  QVERIFY(note("skippedNote")->isVisible());
  QVERIFY(note("adminNote")->isVisible());
}

void TestCleanupDone::secondReportLeavesNothingOfTheFirst() {
  done({.freedBytes = 9'000'000, .skipped = 3, .skippedSamples = {u"/old"_s}, .needsAdmin = true});
  done({.freedBytes = 1'000'000, .skipped = 1});
  QCOMPARE(view()->findChild<ui::GradientText*>()->text(), u"1 MB"_s);
  QVERIFY(!note("skippedNote")->text().contains(u"/old"_s));
  QVERIFY(note("adminNote")->isHidden());
}

void TestCleanupDone::administratorNote() {
  QCOMPARE(note("adminNote")->text(), u"Some files belong to the system and were left alone."_s);
  QVERIFY(!note("adminNote")->findChild<QPushButton*>());
  m_page.reset();
  qputenv("TARNWICK_HOST", "mac");
  makePage();
  QCOMPARE(note("adminNote")->text(), u"<b>Some files need administrator rights.</b> Restart Tarnwick as administrator "
                                      "and clean again to remove them."_s);
  QCOMPARE(note("adminNote")->findChild<QPushButton*>()->text(), u"Restart as admin"_s);
}

void TestCleanupDone::logOpens() {
  const Desktop desktop;
  const QString log = m_home->file(u"logs/run.log"_s);
  done({.logPath = log});
  QTest::mouseClick(button(view(), u"View log"_s), Qt::LeftButton);
  QFile::remove(log);
  QTest::mouseClick(button(view(), u"View log"_s), Qt::LeftButton);
  done({});
  QTest::mouseClick(button(view(), u"View log"_s), Qt::LeftButton);
  const QUrl folder = QUrl::fromLocalFile(Cleaner::logDir());
  QCOMPARE(desktop.urls, QList<QUrl>({QUrl::fromLocalFile(log), folder, folder}));
}

void TestCleanupDone::columnIsNoWiderThan640() {
  for (const int width : {724, 944, 1600}) {
    m_page->resize(width, 780);
    done({.skipped = 1});
    settle();
    QCOMPARE(note("skippedNote")->width(), 640);
    const int middle = note("skippedNote")->mapTo(m_page.get(), note("skippedNote")->rect().center()).x();
    QVERIFY(qAbs(middle - width / 2) <= 1);
  }
}

void TestCleanupDone::scrollsOnlyWhereItMust() {
  m_page->resize(724, 604);
  done({.skipped = 3, .skippedSamples = {u'/' + QString(300, u'w')}, .runningApps = {u"Fox"_s}});
  settle();
  const QScrollArea* area = view()->findChild<QScrollArea*>();
  QCOMPARE(area->widget()->height(), area->viewport()->height());
  QVERIFY(!area->verticalScrollBar()->isVisible());
  const ui::Note* skipped = note("skippedNote");
  QCOMPARE(skipped->height(), skipped->layout()->totalHeightForWidth(skipped->width()));
  done({.skipped = 3, .runningApps = QStringList(400, u"Fox"_s)});
  settle();
  QVERIFY(area->verticalScrollBar()->isVisible());
  QCOMPARE(skipped->height(), skipped->layout()->totalHeightForWidth(skipped->width()));
}

int main(int argc, char** argv) { return uitest::run<TestCleanupDone>(argc, argv); }

#include "tst_CleanupDone.moc"
