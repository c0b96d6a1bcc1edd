// The Space Map: its three views, when each is shown, and what it shows of a search that runs.
#include "LargeFilesPageTest.h"
#include "ui/controls/Button.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/PageHeader.h"
#include "ui/pages/LargeFileKind.h"
#include "ui/visuals/Radar.h"

#include <QLayout>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace largetest;
using windowtest::button;
using windowtest::click;

class TestLargeFilesPage : public LargeFilesPageTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void startView();
  void header();
  void marginsFollowTheMetrics();
  void firstVisitSearches();
  void laterVisitsDoNot();
  void buttonsSearch();
  void runningSearch();
  void clockTicks();
  void progress();
  void pathHasRoom();
  void liveRows();
  void unchangedRowsStay();
  void waitingLabel();
  void searchAgainBeginsAnew();
  void cancelledFirstSearch();
  void cancelledLaterSearch();
};

// The views

void TestLargeFilesPage::startView() {
  m_state->largeScanned = false;
  emit m_state->largeFilesChanged();
  settle();
  QCOMPARE(view(), int(Start));
  const QWidget* start = viewAt(Start);
  QCOMPARE(start->layout()->contentsMargins(), QMargins(32, 60, 32, 32));
  QCOMPARE(start->layout()->spacing(), 8);
  QCOMPARE(start->findChild<ui::IconTile*>()->size(), QSize(56, 56));
  QCOMPARE(windowtest::shownTexts(*start),
           (QStringList{u"Find what's taking up space"_s, u"Big files in your home folder. You decide what goes."_s,
                        u"Find large files"_s}));
  const auto* find = start->findChild<ui::Button*>();
  QVERIFY(find->isFilled() && find->isLarge());
  const int middle = start->width() / 2;
  for (const QWidget* one :
       {static_cast<const QWidget*>(find), static_cast<const QWidget*>(start->findChild<ui::IconTile*>())})
    QVERIFY(qAbs(one->geometry().center().x() - middle) <= 1);
  QCOMPARE(start->findChild<ui::IconTile*>()->y(), 60);
  QVERIFY(button(*m_page, u"Rescan"_s)->isEnabled());
}

void TestLargeFilesPage::header() {
  const auto texts = [this] { return windowtest::shownTexts(*find<ui::PageHeader>()); };
  QCOMPARE(texts(), (QStringList{u"Home folder · over 100 MB"_s, u"Space Map"_s, u"Rescan"_s}));
  AppSettings::instance().setLargeFileMB(2500);
  emit m_state->largeFilesChanged();
  QCOMPARE(texts().first(), u"Home folder · over 2.5 GB"_s);
  find<ui::PageHeader>()->setSubtitle(u"left over"_s);
  emit m_state->largeFilesChanged();
  QVERIFY(!texts().contains(u"left over"_s));
}

void TestLargeFilesPage::marginsFollowTheMetrics() {
  for (const bool mac : {true, false}) {
    Theme::get().mac = mac;
    makePage();
    const int side = mac ? 28 : 32;
    QCOMPARE(viewAt(Scan)->layout()->contentsMargins(), QMargins(side, 0, side, 28));
    QCOMPARE(viewAt(Scan)->layout()->spacing(), 18);
    const QLayout* body = viewAt(Results)->layout()->itemAt(0)->layout();
    QCOMPARE(body->contentsMargins(), QMargins(side, 0, side, 0));
    QCOMPARE(body->spacing(), 14);
  }
}

void TestLargeFilesPage::firstVisitSearches() {
  m_page.reset();
  m_state->largeScanned = false;
  QSignalSpy changed(m_state.get(), &AppState::largeFilesChanged);
  makePage();
  QVERIFY(m_state->largeSearching || m_state->largeScanned);
  endOfSearch();
  QVERIFY(m_state->largeScanned);
  QCOMPARE(view(), int(Results));
}

void TestLargeFilesPage::laterVisitsDoNot() {
  m_page->hide();
  QSignalSpy changed(m_state.get(), &AppState::largeFilesChanged);
  m_page->show();
  QVERIFY(!m_state->largeSearching);
  QCOMPARE(changed.size(), 0);
}

void TestLargeFilesPage::buttonsSearch() {
  for (const bool scanned : {false, true}) {
    m_state->largeScanned = scanned;
    emit m_state->largeFilesChanged();
    click(*m_page, scanned ? u"Rescan"_s : u"Find large files"_s);
    QVERIFY(m_state->largeSearching);
    QCOMPARE(view(), int(Scan));
    endOfSearch();
    QCOMPARE(view(), int(Results));
  }
}

// The search

void TestLargeFilesPage::runningSearch() {
  beginSearch();
  QCOMPARE(view(), int(Scan));
  const auto* radar = viewAt(Scan)->findChild<ui::Radar*>();
  QVERIFY(radar->isRunning());
  QCOMPARE(radar->valueText(), u"0 KB found"_s);
  QCOMPARE(text("itemsValue"), u"—"_s);
  QCOMPARE(text("foundValue"), u"0"_s);
  QCOMPARE(text("elapsedValue"), u"0:00"_s);
  QCOMPARE(text("scanPath"), QString());
  QVERIFY(find("waiting")->isVisible());
  const QStringList texts = windowtest::shownTexts(*viewAt(Scan));
  for (const QString& one :
       {u"Items checked"_s, u"Large files"_s, u"Elapsed"_s, u"Largest so far"_s, u"Looking for large files…"_s})
    QVERIFY2(texts.contains(one), qPrintable(one));
  putFound({});
  QCOMPARE(view(), int(Results));
  QVERIFY(!radar->isRunning());
}

void TestLargeFilesPage::clockTicks() {
  auto* timer = viewAt(Scan)->findChild<QTimer*>();
  QCOMPARE(timer->interval(), 1000);
  QVERIFY(!timer->isActive());
  beginSearch();
  QVERIFY(timer->isActive());
  QTRY_COMPARE_WITH_TIMEOUT(text("elapsedValue"), u"0:01"_s, 20'000);
  emit m_state->largeFilesChanged(); // while it runs, nothing begins anew
  QCOMPARE(text("elapsedValue"), u"0:01"_s);
  putFound({});
  QVERIFY(!timer->isActive());
}

void TestLargeFilesPage::progress() {
  beginSearch();
  emit m_state->largeProgress(12'345, u"/home/me/Films"_s, 1'234, 2'500 * kMb, {file(u"a"_s, 2000)});
  QCOMPARE(viewAt(Scan)->findChild<ui::Radar*>()->valueText(), u"2.5 GB found"_s);
  QCOMPARE(text("itemsValue"), u"12,345"_s);
  QCOMPARE(text("foundValue"), u"1,234"_s);
  QCOMPARE(text("scanPath"), u"/home/me/Films"_s);
  settle();
  QVERIFY(windowtest::shownTexts(*viewAt(Scan)).contains(u"2.0 GB"_s));
}

void TestLargeFilesPage::pathHasRoom() {
  beginSearch();
  settle();
  const QString path = u"/begin/"_s + QString(200, u'w') + u"/end"_s;
  emit m_state->largeProgress(1, path, 0, 0, {});
  const auto* label = find<QLabel>("scanPath");
  const QString shortened = label->fontMetrics().elidedText(path, Qt::ElideMiddle, label->width());
  QCOMPARE(label->text(), shortened);
  QVERIFY(shortened.startsWith(u"/be"_s) && shortened.endsWith(u"end"_s));
  m_page->hide();
  find<QLabel>("scanPath")->resize(20, 20);
  emit m_state->largeProgress(1, path, 0, 0, {});
  QCOMPARE(label->text(), label->fontMetrics().elidedText(path, Qt::ElideMiddle, 80));
}

void TestLargeFilesPage::liveRows() {
  beginSearch();
  m_page->showLargest({file(u"<b>film</b>.mov"_s, 2000), file(u"disc.iso"_s, 1500, u"Disk image"_s, u"/d"_s)});
  settle();
  const QStringList texts = windowtest::shownTexts(*viewAt(Scan));
  for (const QString& one : {u"~/Films"_s, u"2.0 GB"_s, u"disc.iso"_s, u"/d"_s, u"1.5 GB"_s})
    QVERIFY2(texts.contains(one), qPrintable(one));
  QList<const QLabel*> names;
  for (const auto* label : viewAt(Scan)->findChildren<ui::ElidedLabel*>()) {
    if (label->property("role").toString() == u"mono"_s) {
      QCOMPARE(label->styleSheet(), u"font-size: 10px;"_s);
      QCOMPARE(label->font().pixelSize(), 10);
    } else {
      QCOMPARE(label->font().weight(), QFont::Medium);
      names << label;
    }
    QCOMPARE(label->textFormat(), Qt::PlainText);
  }
  QCOMPARE(names.size(), 2);
  QCOMPARE(names.first()->text(), u"<b>film</b>.mov"_s);
  QVERIFY(names.at(0)->y() < names.at(1)->y());
  const QList<ui::IconTile*> tiles = viewAt(Scan)->findChildren<ui::IconTile*>();
  QCOMPARE(tiles.size(), 2);
  for (int i = 0; i < 2; ++i) {
    QCOMPARE(tiles.at(i)->size(), QSize(30, 30));
    const ui::KindStyle& style = ui::kindStyle(i == 0 ? u"Video"_s : u"Disk image"_s);
    ui::IconTile fresh(style.icon, style.colour, 30);
    QCOMPARE(pixels::rendered(*tiles.at(i)), pixels::rendered(fresh));
  }
}

void TestLargeFilesPage::unchangedRowsStay() {
  beginSearch();
  const auto rows = [this] { return viewAt(Scan)->findChildren<ui::IconTile*>(); };
  const QList<LargeFile> two = {file(u"a"_s, 2), file(u"b"_s, 1)};
  m_page->showLargest(two);
  const QList<ui::IconTile*> before = rows();
  QCOMPARE(before.size(), 2);
  QList<LargeFile> again = two;
  again[0].size = 3 * kMb; // paths count
  m_page->showLargest(again);
  settle();
  QCOMPARE(rows(), before);
  m_page->showLargest({two.at(1), two.at(0)}); // and their order
  settle();
  QCOMPARE(rows().size(), 2);
  QVERIFY(!rows().contains(before.at(0)) && !rows().contains(before.at(1)));
}

void TestLargeFilesPage::waitingLabel() {
  beginSearch();
  const QWidget* waiting = find("waiting");
  QVERIFY(waiting->isVisible());
  m_page->showLargest({file(u"a"_s, 2)});
  QVERIFY(!waiting->isVisible());
  m_page->showLargest({});
  QVERIFY(waiting->isVisible());
  settle();
  QVERIFY(viewAt(Scan)->findChildren<ui::IconTile*>().isEmpty());
}

void TestLargeFilesPage::searchAgainBeginsAnew() {
  beginSearch();
  emit m_state->largeProgress(12'345, u"/home/me"_s, 7, 500 * kMb, {file(u"a"_s, 200)});
  putFound({file(u"a"_s, 200)});
  beginSearch();
  QCOMPARE(view(), int(Scan)); // in place of the results
  QCOMPARE(text("itemsValue"), u"—"_s);
  QCOMPARE(text("foundValue"), u"0"_s);
  QCOMPARE(text("scanPath"), QString());
  QVERIFY(find("waiting")->isVisible());
}

void TestLargeFilesPage::cancelledFirstSearch() {
  m_state->largeScanned = false;
  beginSearch();
  QCOMPARE(view(), int(Scan));
  m_state->largeSearching = false;
  emit m_state->largeFilesChanged();
  QCOMPARE(view(), int(Start));
}

void TestLargeFilesPage::cancelledLaterSearch() {
  putFound({file(u"a"_s, 200)});
  beginSearch();
  m_state->largeSearching = false;
  emit m_state->largeFilesChanged();
  QCOMPARE(view(), int(Results));
  QCOMPARE(shown(), QStringList{u"a"_s});
}

int main(int argc, char** argv) { return uitest::run<TestLargeFilesPage>(argc, argv); }

#include "tst_LargeFilesPage.moc"
