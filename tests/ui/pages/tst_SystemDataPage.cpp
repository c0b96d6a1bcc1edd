// The System Data page: its three views and when each is shown.
#include "SystemDataTest.h"

using namespace systemdatatest;
using windowtest::shows;

class TestSystemDataPage : public SystemDataTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void frame();
  void startView();

  void openingMeasures();
  void openingMeasuresOnce();
  void openingWithFiguresMeasuresNothing();
  void startButtonMeasures();
  void cancelledFirstRunFallsBack();
  void completeRunShowsResults();
  void rescanStaysOnTheResults();
  void cancelledRescanKeepsTheFigures();

  void contexts();
};

// ---- what it is built of

void TestSystemDataPage::frame() {
  const auto* root = boxOf(m_page.get());
  QCOMPARE(root->spacing(), 0);
  QCOMPARE(root->contentsMargins(), QMargins());
  const auto* header = qobject_cast<ui::PageHeader*>(root->itemAt(0)->widget());
  QVERIFY(header);
  QCOMPARE(header->findChildren<QLabel*>().at(1)->text(), u"System Data"_s);
  const auto* rescan = header->findChild<ui::Button*>();
  QCOMPARE(rescan->text(), u"Rescan"_s);
  QVERIFY(!rescan->icon().isNull());
  QVERIFY(rescan->property("kind").toString().isEmpty());
  QCOMPARE(root->itemAt(1)->widget(), views());
  QCOMPARE(root->stretch(1), 1);
  QCOMPARE(views()->count(), 3);
  QCOMPARE(viewIndex(), int(Start));
}

void TestSystemDataPage::startView() {
  const QWidget* start = views()->widget(Start);
  const auto* column = boxOf(start);
  QCOMPARE(column->spacing(), 8);
  QCOMPARE(column->contentsMargins(), QMargins(32, 60, 32, 32));
  auto* tile = qobject_cast<ui::IconTile*>(column->itemAt(0)->widget());
  QCOMPARE(tile->size(), QSize(56, 56));
  QCOMPARE(column->itemAt(0)->alignment(), Qt::AlignHCenter);
  for (const bool dark : {false, true}) {
    pixels::setLook(dark);
    ui::IconTile wanted(u"drive"_s, Theme::get().accent, 56);
    QCOMPARE(pixels::rendered(*tile), pixels::rendered(wanted));
  }
  QCOMPARE(column->itemAt(1)->sizeHint().height(), 8);
  const auto* title = qobject_cast<QLabel*>(column->itemAt(2)->widget());
  QCOMPARE(title->text(), u"See what's inside System Data"_s);
  QCOMPARE(roleOf(title), u"h2"_s);
  QCOMPARE(title->alignment(), Qt::AlignCenter);
  const auto* text = qobject_cast<QLabel*>(column->itemAt(3)->widget());
  QCOMPARE(text->text(), u"Snapshots, backups, developer files, caches and more."_s);
  QCOMPARE(roleOf(text), u"sub"_s);
  QCOMPARE(text->alignment(), Qt::AlignCenter);
  QVERIFY(text->wordWrap());
  QCOMPARE(column->itemAt(4)->sizeHint().height(), 12);
  const auto* scan = qobject_cast<ui::Button*>(column->itemAt(5)->widget());
  QCOMPARE(scan->text(), u"Scan System Data"_s);
  QCOMPARE(scan->property("kind").toString(), u"primary"_s);
  QVERIFY(scan->isLarge());
  QVERIFY(!scan->icon().isNull());
  QCOMPARE(column->itemAt(5)->alignment(), Qt::AlignHCenter);
  QVERIFY(column->itemAt(6)->spacerItem());
  QCOMPARE(column->count(), 7);
}

// ---- which view

void TestSystemDataPage::openingMeasures() {
  const Held held(m_state->systemDataScanner);
  QVERIFY(!m_state->systemDataScanner->isRunning());
  show();
  QVERIFY(m_state->systemDataScanner->isRunning());
  QCOMPARE(viewIndex(), int(Scan));
  QVERIFY(radar()->isRunning());
}

void TestSystemDataPage::openingMeasuresOnce() {
  Held held(m_state->systemDataScanner);
  QSignalSpy ends(m_state->systemDataScanner, &SystemDataScanner::finished);
  show();
  const QList<ui::ScanStepRow*> rows = stepRows();
  m_page->hide();
  show();
  emit m_state->systemDataChanged();
  QCOMPARE(stepRows(), rows); // not begun anew
  held.letGo();
  QTRY_VERIFY_WITH_TIMEOUT(m_state->systemDataReady, kPatienceMs);
  QCOMPARE(ends.count(), 1);
}

void TestSystemDataPage::openingWithFiguresMeasuresNothing() {
  put({item(u"data"_s, kGB)});
  show();
  QVERIFY(!m_state->systemDataScanner->isRunning());
  QCOMPARE(viewIndex(), int(Results));
}

void TestSystemDataPage::startButtonMeasures() {
  const Held held(m_state->systemDataScanner);
  m_state->systemDataReady = true; // so that showing it starts nothing
  show();
  m_state->systemDataReady = false;
  emit m_state->systemDataChanged();
  QCOMPARE(viewIndex(), int(Start));
  QVERIFY(!radar()->isRunning());
  QTest::mouseClick(button(u"Scan System Data"_s), Qt::LeftButton);
  QVERIFY(m_state->systemDataScanner->isRunning());
  QCOMPARE(viewIndex(), int(Scan));
}

void TestSystemDataPage::cancelledFirstRunFallsBack() {
  Held held(m_state->systemDataScanner);
  show();
  QCOMPARE(viewIndex(), int(Scan));
  m_state->systemDataScanner->cancel();
  held.letGo();
  QTRY_COMPARE_WITH_TIMEOUT(viewIndex(), int(Start), kPatienceMs);
  QVERIFY(!m_state->systemDataReady);
  QVERIFY(!radar()->isRunning());
  QVERIFY(!m_page->findChild<ui::SystemDataScanView*>()->isLive());
}

void TestSystemDataPage::completeRunShowsResults() {
  m_home->file(u".local/share/flatpak/repo/object"_s, 3 * kMB);
  show();
  QTRY_COMPARE_WITH_TIMEOUT(viewIndex(), int(Results), kPatienceMs);
  QVERIFY(row(u"userflatpak"_s));
  QCOMPARE(sizeOf(row(u"userflatpak"_s))->text(), u"3 MB"_s);
  QVERIFY(!radar()->isRunning());
  QVERIFY(!m_page->findChild<ui::SystemDataScanView*>()->isLive());
}

void TestSystemDataPage::rescanStaysOnTheResults() {
  put({item(u"data"_s, kGB)});
  show();
  Held held(m_state->systemDataScanner);
  QTest::mouseClick(button(u"Rescan"_s), Qt::LeftButton);
  QVERIFY(m_state->systemDataScanner->isRunning());
  settle();
  QCOMPARE(viewIndex(), int(Results));
  QVERIFY(shows(*view(), u"Updating…"_s));
  QVERIFY(row(u"data"_s)); // what was there stays
  held.letGo();
  QTRY_VERIFY_WITH_TIMEOUT(!shows(*view(), u"Updating…"_s), kPatienceMs);
  QCOMPARE(viewIndex(), int(Results));
  QVERIFY(!row(u"data"_s)); // the home is empty
}

void TestSystemDataPage::cancelledRescanKeepsTheFigures() {
  put({item(u"data"_s, kGB)});
  show();
  Held held(m_state->systemDataScanner);
  QTest::mouseClick(button(u"Rescan"_s), Qt::LeftButton);
  m_state->systemDataScanner->cancel();
  held.letGo();
  QTRY_VERIFY_WITH_TIMEOUT(!shows(*view(), u"Updating…"_s), kPatienceMs);
  QCOMPARE(sizeOf(row(u"data"_s))->text(), u"1.0 GB"_s);
}

void TestSystemDataPage::contexts() {
  Marking marking;
  QCoreApplication::installTranslator(&marking);
  makePage();
  m_page->startScanView();
  const QStringList texts = windowtest::allTexts(m_page.get());
  QCoreApplication::removeTranslator(&marking);
  for (const char* text : {"System Data", "Rescan", "See what's inside System Data", "Scan System Data",
                           "Snapshots, backups, developer files, caches and more.", "Measuring System Data…"})
    QVERIFY2(texts.contains(u"[SystemDataPage]"_s + QString::fromUtf8(text)), text);
  for (const char* text : {"Elapsed", "Remaining"})
    QVERIFY2(texts.contains(u"[CleanupPage]"_s + QString::fromUtf8(text)), text);
  QVERIFY(texts.join(u'\n').contains(u"[SystemDataPage]measured"_s));
}

int main(int argc, char** argv) { return uitest::run<TestSystemDataPage>(argc, argv); }

#include "tst_SystemDataPage.moc"
