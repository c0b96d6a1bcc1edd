// The Space Map: its three views, what it shows of a search, its filter, its ticks and what comes of them.
#include "ui/pages/LargeFilesPage.h"

#include "LargeFilesTest.h"
#include "app/FlowTest.h"
#include "support/Desktop.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/Segmented.h"
#include "ui/icons.h"
#include "ui/pages/LargeFileKind.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesScanView.h"
#include "ui/pages/LargeFilesTable.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/Treemap.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPoint>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace largetest;
using windowtest::button;
using windowtest::click;
using windowtest::plain;

namespace {

enum View { Start, Scan, Results };
enum Segment { All, Unused, Downloads };

const QString kDownloads = u"/Downloads"_s;

} // namespace

class TestLargeFilesPage : public FlowTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup();

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
  void searchFieldMirrored();
  void resultsView();
  void listIsSetUp();
  void searchBox();
  void blanksFilterNothing();
  void unused();
  void unusedFollowsTheSettings();
  void downloads_data();
  void downloads();
  void downloadsOfTheUser();
  void filtersTogether();
  void filterKeepsTheSorting();
  void nothingKept();
  void tiles();
  void tileColours();
  void tilesFollowTheFilter();
  void footer();
  void hiddenTicksDontCount();
  void footerFollowsTheLook();
  void wordsFollowTheHost();
  void tickInTheMap();
  void tickInTheList();
  void ticksOutliveASearch();
  void shows();
  void showsWhatIsThere();
  void showsFromTheMap();
  void moves();
  void whatIsHiddenStays();
  void whatIsHeldStays();
  void refusedMoveShowsNoTicks();
  void undoSearches();
  void keyboardAfterTheMove();
  void keyboardLeavesNoHiddenView();
  void scrollingOutlivesTheSettings();
  void filterMovesNoRowsUnderTheMouse();
  void tabOrder();

 private:
  void makePage();
  /// As a search leaves them.
  void putFound(const QList<LargeFile>& files) {
    m_state->largeFiles = files;
    m_state->largeScanned = true;
    m_state->largeSearching = false;
    emit m_state->largeFilesChanged();
    settle();
  }
  void beginSearch() {
    m_state->largeSearching = true;
    emit m_state->largeFilesChanged();
  }
  void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  void endOfSearch() { QTRY_VERIFY_WITH_TIMEOUT(!m_state->largeSearching, kPatienceMs); }
  template <typename T = QWidget>
  T* find(const char* name = "") const {
    const QString wanted = QString::fromLatin1(name);
    T* found = wanted.isEmpty() ? m_page->findChild<T*>() : m_page->findChild<T*>(wanted);
    if (!found) qFatal("there is no %s", name);
    return found;
  }
  [[nodiscard]] int view() const { return find<QStackedWidget>("views")->currentIndex(); }
  [[nodiscard]] QWidget* viewAt(int index) const { return find<QStackedWidget>("views")->widget(index); }
  [[nodiscard]] ui::LargeFilesModel* model() const { return find<ui::LargeFilesModel>(); }
  [[nodiscard]] QStringList shown() const { return namesOf(model()->files()); }
  [[nodiscard]] QString text(const char* name) const { return find<QLabel>(name)->text(); }
  [[nodiscard]] QString sum() const { return plain(text("sum")); }
  [[nodiscard]] ui::Treemap* map() const { return find<ui::Treemap>(); }
  [[nodiscard]] ui::LargeFilesTable* table() const { return find<ui::LargeFilesTable>(); }
  [[nodiscard]] ui::Segmented* segments() const { return viewAt(Results)->findChild<ui::Segmented*>(); }
  [[nodiscard]] QLineEdit* search() const { return find<QLineEdit>(); }
  [[nodiscard]] bool isTile(const QString& name, bool marked) const {
    for (int i = 0; i < map()->itemCount(); ++i)
      if (map()->itemAt(i).name == name) return map()->itemAt(i).checked == marked;
    return false;
  }
  void clickRow(int row) const {
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, table()->visualRect(model()->index(row, 3)).center());
  }
  /// A file that is really there, of the kind and size that a search would tell.
  LargeFile real(const QString& relative, qint64 megabytes) const {
    const QFileInfo info(m_home->file(relative));
    LargeFile made = file(info.fileName(), megabytes, u"Video"_s, info.path());
    made.path = info.filePath();
    return made;
  }

  std::unique_ptr<ui::LargeFilesPage> m_page;
};

void TestLargeFilesPage::init() {
  qputenv("TARNWICK_HOST", "linux");
  Theme::get().mac = true;
  pixels::setLook(false);
  AppSettings::instance().setOldMonths(6);
  AppSettings::instance().setLargeFileMB(100);
  fill();
  m_state->largeScanned = true; // so that showing the page begins no search
  makePage();
}

void TestLargeFilesPage::makePage() {
  m_page = std::make_unique<ui::LargeFilesPage>(m_state.get());
  m_page->resize(944, 780);
  m_page->show();
  m_page->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
}

void TestLargeFilesPage::cleanup() {
  m_page.reset();
  empty();
}

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

// The results

// What is written begins beside the icon, which is at the right then, and as near to it.
void TestLargeFilesPage::searchFieldMirrored() {
  QCOMPARE(search()->textMargins(), QMargins(-7, 0, 0, 0));
  const pixels::Mirrored mirrored;
  const ui::LargeFilesPage page(m_state.get());
  const auto* field = page.findChild<QLineEdit*>();
  QCOMPARE(field->textMargins(), QMargins(0, 0, -7, 0));
  QCOMPARE(QStyle::visualAlignment(Qt::LeftToRight, field->alignment()) & Qt::AlignRight, Qt::AlignRight);
  QCOMPARE(QStyle::visualAlignment(Qt::RightToLeft, field->alignment()) & Qt::AlignRight, Qt::AlignRight);
}

void TestLargeFilesPage::resultsView() {
  putFound({file(u"a"_s, 200)});
  const QStringList labels = {segments()->itemAt(0).name, segments()->itemAt(1).name, segments()->itemAt(2).name};
  QCOMPARE(labels, (QStringList{u"All"_s, u"Unused 6+ months"_s, u"Downloads"_s}));
  QCOMPARE(segments()->current(), 0);
  QCOMPARE(search()->placeholderText(), u"Search files"_s);
  QCOMPARE(search()->width(), 240);
  QVERIFY(search()->isClearButtonEnabled());
  QCOMPARE(search()->actions().size() >= 1, true);
  QVERIFY(!search()->actions().first()->icon().isNull());
  QCOMPARE(find<ui::Card>("mapCard")->layout()->contentsMargins(), QMargins(6, 6, 6, 6));
  QCOMPARE(table()->parentWidget()->layout()->contentsMargins(), QMargins(10, 8, 10, 4));
  QCOMPARE(button(*m_page, u"Show in Files"_s)->isEnabled(), false);
  QVERIFY(qobject_cast<ui::Button*>(button(*m_page, u"Move to Trash"_s))->isFilled());
}

void TestLargeFilesPage::listIsSetUp() {
  putFound({file(u"a"_s, 200)});
  QVERIFY(!table()->showGrid());
  QCOMPARE(table()->selectionMode(), QAbstractItemView::NoSelection);
  QVERIFY(table()->hasMouseTracking());
  QVERIFY(table()->isSortingEnabled());
  QCOMPARE(table()->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
  QVERIFY(table()->verticalHeader()->isHidden());
  QCOMPARE(table()->rowHeight(0), 54);
  const QHeaderView* header = table()->horizontalHeader();
  QCOMPARE(header->height(), 32);
  QVERIFY(!header->highlightSections());
  QVERIFY(!header->isSortIndicatorShown());
  QCOMPARE(header->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
  QCOMPARE(header->sectionResizeMode(0), QHeaderView::Fixed);
  QCOMPARE(header->sectionResizeMode(1), QHeaderView::Stretch);
  QCOMPARE(header->sectionSize(0), 40);
  QVERIFY(header->isSectionHidden(2));
  QCOMPARE(header->sectionSize(3), 140);
  QCOMPARE(header->sectionSize(4), 100);
  QCOMPARE(header->sectionSize(1), table()->viewport()->width() - 280);
}

void TestLargeFilesPage::searchBox() {
  putFound({file(u"Holiday.mov"_s, 3), file(u"b"_s, 2, u"Video"_s, u"/x/holidays"_s), file(u"c"_s, 1)});
  for (const QString& needle : {u"holiday"_s, u"HOLIDAY"_s, u"  Holiday "_s}) {
    search()->setText(needle);
    QCOMPARE(shown(), (QStringList{u"Holiday.mov"_s, u"b"_s}));
  }
  search()->setText(u"holidays"_s);
  QCOMPARE(shown(), QStringList{u"b"_s});
  search()->clear();
  QCOMPARE(shown().size(), 3);
}

void TestLargeFilesPage::blanksFilterNothing() {
  putFound({file(u"a"_s, 3), file(u"b"_s, 2)});
  search()->setText(u"  \t "_s);
  QCOMPARE(shown().size(), 2);
}

void TestLargeFilesPage::unused() {
  putFound({aged(file(u"old"_s, 4), 9), aged(file(u"to the day"_s, 3), 6), justYounger(file(u"younger"_s, 2), 6),
            file(u"new"_s, 1)});
  segments()->setCurrent(Unused);
  QCOMPARE(shown(), (QStringList{u"old"_s, u"to the day"_s}));
  segments()->setCurrent(All);
  QCOMPARE(shown().size(), 4);
}

void TestLargeFilesPage::unusedFollowsTheSettings() {
  putFound({aged(file(u"old"_s, 4), 13), aged(file(u"to the day"_s, 3), 12), aged(file(u"half"_s, 2), 7)});
  segments()->setCurrent(Unused);
  QCOMPARE(shown().size(), 3);
  AppSettings::instance().setOldMonths(12);
  QCOMPARE(segments()->itemAt(1).name, u"Unused 12+ months"_s);
  QCOMPARE(model()->unusedMonths, 12);
  QCOMPARE(shown(), (QStringList{u"old"_s, u"to the day"_s}));
}

void TestLargeFilesPage::downloads_data() {
  QTest::addColumn<QString>("dir"); // below the home folder
  QTest::addColumn<bool>("kept");
  QTest::newRow("itself") << u"/Downloads"_s << true;
  QTest::newRow("below") << u"/Downloads/new/films"_s << true;
  QTest::newRow("in another case") << u"/downloads"_s << true;
  QTest::newRow("no separator") << u"/Downloads2"_s << true;
  QTest::newRow("elsewhere") << u"/Films"_s << false;
  QTest::newRow("not at the beginning") << u"/Films/Downloads"_s << false;
  QTest::newRow("home") << u""_s << false;
}

void TestLargeFilesPage::downloads() {
  QFETCH(QString, dir);
  QFETCH(bool, kept);
  for (const char* host : {"linux", "mac"}) {
    qputenv("TARNWICK_HOST", host);
    putFound({file(u"a"_s, 1, u"Video"_s, QDir::homePath() + dir)});
    segments()->setCurrent(Downloads);
    QCOMPARE(shown().size(), kept ? 1 : 0);
    segments()->setCurrent(All);
    QCOMPARE(shown().size(), 1);
  }
}

// Linux names the folder in the user's language.
void TestLargeFilesPage::downloadsOfTheUser() {
  QFile dirs(m_home->file(u".config/user-dirs.dirs"_s, 0));
  QVERIFY(dirs.open(QIODevice::WriteOnly));
  dirs.write("XDG_DOWNLOAD_DIR=\"$HOME/Herunterladen\"\n");
  dirs.close();
  const QString home = QDir::homePath();
  putFound(
      {file(u"here"_s, 2, u"Video"_s, home + u"/Herunterladen"_s), file(u"there"_s, 1, u"Video"_s, home + kDownloads)});
  segments()->setCurrent(Downloads);
  QCOMPARE(shown(), QStringList{u"here"_s});
  qputenv("TARNWICK_HOST", "mac");
  m_page->applyFilter();
  QCOMPARE(shown(), QStringList{u"there"_s});
}

void TestLargeFilesPage::filtersTogether() {
  const QString dir = QDir::homePath() + kDownloads;
  putFound({file(u"film"_s, 3, u"Video"_s, dir), file(u"film"_s, 2), file(u"disc"_s, 1, u"Disk image"_s, dir)});
  segments()->setCurrent(Downloads);
  search()->setText(u"film"_s);
  QCOMPARE(shown().size(), 1);
  QCOMPARE(model()->files().first().size, 3 * kMb);
}

void TestLargeFilesPage::filterKeepsTheSorting() {
  putFound({file(u"b"_s, 3), file(u"c"_s, 2), file(u"a"_s, 1), file(u"x"_s, 4)});
  QCOMPARE(shown(), (QStringList{u"x"_s, u"b"_s, u"c"_s, u"a"_s}));
  table()->sortByColumn(1, Qt::AscendingOrder);
  search()->setText(u"Films"_s);
  QCOMPARE(shown(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"x"_s}));
}

void TestLargeFilesPage::nothingKept() {
  putFound({file(u"a"_s, 3)});
  QVERIFY(find("mapCard")->isVisible());
  search()->setText(u"nothing of that name"_s);
  settle();
  QVERIFY(!find("mapCard")->isVisible());
  QVERIFY(table()->isVisible());
  QVERIFY(find("sum")->isVisible());
  QCOMPARE(sum(), u"0 KB selected of 0 KB · 0 files"_s);
  search()->clear();
  settle();
  QVERIFY(find("mapCard")->isVisible());
  putFound({});
  QVERIFY(!find("mapCard")->isVisible());
  QCOMPARE(view(), int(Results));
}

void TestLargeFilesPage::tiles() {
  putFound({file(u"a.mov"_s, 1), file(u"b.iso"_s, 2'500, u"Disk image"_s)});
  QCOMPARE(map()->itemCount(), 2);
  QCOMPARE(map()->itemAt(0).name, u"b.iso"_s);
  QCOMPARE(map()->itemAt(0).value, u"2.5 GB"_s);
  QCOMPARE(map()->itemAt(1).name, u"a.mov"_s);
  QVERIFY(map()->rects().at(0).width() > map()->rects().at(1).width());
}

void TestLargeFilesPage::tileColours() {
  // In the order in which they are found, not in that of the list.
  putFound({file(u"1"_s, 90), file(u"2"_s, 80, u"Archive"_s), file(u"3"_s, 70), file(u"4"_s, 60, u"Archive"_s),
            file(u"5"_s, 50), file(u"6"_s, 40, u"no kind"_s)});
  table()->sortByColumn(1, Qt::DescendingOrder);
  m_page->applyFilter();
  settle();
  const QImage picture = pixels::rendered(*map());
  struct Tile {
    QString kind;
    int n;
  };
  const QList<Tile> tiles = {{u"Video"_s, 0},   {u"Archive"_s, 0}, {u"Video"_s, 1},
                             {u"Archive"_s, 1}, {u"Video"_s, 2},   {u"no kind"_s, 0}};
  for (int i = 0; i < tiles.size(); ++i) {
    const QColor wanted = ui::tileColour(ui::kindStyle(tiles.at(i).kind).colour, tiles.at(i).n);
    const QPointF corner = map()->rects().at(i).topLeft() + QPointF(6, 6); // where the body is all but opaque
    const QColor seen = pixels::at(picture, corner);
    QVERIFY2(pixels::isNear(seen, pixels::faded(wanted, 0.995)), qPrintable(seen.name() + u' ' + wanted.name()));
  }
}

void TestLargeFilesPage::tilesFollowTheFilter() {
  putFound({file(u"a"_s, 3), file(u"beta"_s, 2)});
  search()->setText(u"beta"_s);
  QCOMPARE(map()->itemCount(), 1);
  QCOMPARE(map()->itemAt(0).name, u"beta"_s);
}

void TestLargeFilesPage::footer() {
  putFound({file(u"a"_s, 3000), file(u"b"_s, 500), file(u"c"_s, 250)});
  QCOMPARE(sum(), u"0 KB selected of 3.8 GB · 3 files"_s);
  for (const char* name : {"revealButton", "moveButton"}) QVERIFY(!find(name)->isEnabled());
  model()->toggle(model()->files().at(1).path);
  model()->toggle(model()->files().at(2).path);
  QCOMPARE(sum(), u"750 MB selected of 3.8 GB · 3 files"_s);
  for (const char* name : {"revealButton", "moveButton"}) QVERIFY(find(name)->isEnabled());
  const Theme& theme = Theme::get();
  const QString markup =
      u"<b style='color:%1; font-family:'%2'; font-size:15px'>750 MB</b> selected of 3.8 GB · 3 files"_s;
  QCOMPARE(text("sum"), markup.arg(theme.text.name(), theme.mono(13, 400).family()));
  QCOMPARE(find("sum")->property("role").toString(), u"sub"_s);
}

void TestLargeFilesPage::hiddenTicksDontCount() {
  putFound({file(u"a"_s, 300), file(u"beta"_s, 200)});
  model()->toggle(file(u"a"_s, 0).path);
  model()->toggle(u"/never/found"_s);
  search()->setText(u"beta"_s);
  QCOMPARE(sum(), u"0 KB selected of 200 MB · 1 files"_s);
  QVERIFY(!find("moveButton")->isEnabled());
  QVERIFY(isTile(u"beta"_s, false));
  search()->clear();
  QCOMPARE(sum(), u"300 MB selected of 500 MB · 2 files"_s); // the tick came back with its row
  QVERIFY(isTile(u"a"_s, true));
}

void TestLargeFilesPage::footerFollowsTheLook() {
  putFound({file(u"a"_s, 300)});
  for (const bool dark : {true, false}) {
    pixels::setLook(dark);
    QVERIFY(text("sum").contains(Theme::get().text.name()));
    const QImage icon = search()->actions().first()->icon().pixmap(16).toImage(); // as the field asks for it
    QCOMPARE(icon.size(), QSize(16, 16));
    QCOMPARE(
        icon.copy(1, 1, 14, 14).convertToFormat(QImage::Format_ARGB32),
        icons::icon(u"search"_s, Theme::get().text3, 14).pixmap(14).toImage().convertToFormat(QImage::Format_ARGB32));
  }
}

void TestLargeFilesPage::wordsFollowTheHost() {
  QVERIFY(button(*m_page, u"Show in Files"_s));
  qputenv("TARNWICK_HOST", "mac");
  makePage();
  QVERIFY(button(*m_page, u"Show in Finder"_s));
  QVERIFY(button(*m_page, u"Move to Trash"_s));
}

// The ticks

void TestLargeFilesPage::tickInTheMap() {
  putFound({file(u"a"_s, 300), file(u"b"_s, 200)});
  const QPoint inFirst = map()->rects().at(0).center().toPoint();
  for (const bool on : {true, false}) {
    QTest::mouseClick(map(), Qt::LeftButton, {}, inFirst);
    QCOMPARE(model()->index(0, 0).data(ui::LargeFilesModel::CheckedRole).toBool(), on);
    QVERIFY(isTile(u"a"_s, on));
    QVERIFY(isTile(u"b"_s, false));
    QCOMPARE(sum(), (on ? u"300 MB"_s : u"0 KB"_s) + u" selected of 500 MB · 2 files"_s);
  }
}

void TestLargeFilesPage::tickInTheList() {
  putFound({file(u"a"_s, 300), file(u"b"_s, 200)});
  for (const bool on : {true, false}) {
    clickRow(1);
    QVERIFY(isTile(u"b"_s, on));
    QCOMPARE(sum(), (on ? u"200 MB"_s : u"0 KB"_s) + u" selected of 500 MB · 2 files"_s);
  }
}

void TestLargeFilesPage::ticksOutliveASearch() {
  putFound({file(u"a"_s, 300), file(u"b"_s, 200)});
  clickRow(0);
  beginSearch();
  putFound({file(u"c"_s, 400), file(u"a"_s, 300)});
  QCOMPARE(sum(), u"300 MB selected of 700 MB · 2 files"_s);
}

// What comes of them

void TestLargeFilesPage::shows() {
  const Desktop desktop;
  putFound({file(u"a"_s, 300, u"Video"_s, u"/one"_s), file(u"b"_s, 200, u"Video"_s, u"/two"_s)});
  clickRow(1);
  click(*m_page, u"Show in Files"_s);
  QTRY_COMPARE(desktop.opened, QStringList{u"/two"_s});
  clickRow(0);
  click(*m_page, u"Show in Files"_s);
  QTRY_COMPARE(desktop.opened, (QStringList{u"/two"_s, u"/one"_s})); // the uppermost of several
}

// A ticked file that the filter hides isn't what the user looks at.
void TestLargeFilesPage::showsWhatIsThere() {
  const Desktop desktop;
  putFound({file(u"a"_s, 300, u"Video"_s, u"/one"_s), file(u"b"_s, 200, u"Video"_s, u"/two"_s)});
  clickRow(0);
  clickRow(1);
  search()->setText(u"two"_s);
  click(*m_page, u"Show in Files"_s);
  QTRY_COMPARE(desktop.opened, QStringList{u"/two"_s});
}

void TestLargeFilesPage::showsFromTheMap() {
  const Desktop desktop;
  putFound({file(u"a"_s, 300, u"Video"_s, u"/one"_s), file(u"b"_s, 200, u"Video"_s, u"/two"_s)});
  map()->setFocus(Qt::TabFocusReason);
  QTest::keyClick(map(), Qt::Key_End);
  QTest::keyClick(map(), Qt::Key_Return);
  QTRY_COMPARE(desktop.opened, QStringList{u"/two"_s});
  QVERIFY(model()->selection().isEmpty());
}

void TestLargeFilesPage::moves() {
  QSignalSpy toast(m_state.get(), &AppState::toast);
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200),
                                  real(u"Films/c.mov"_s, 100)};
  putFound(files);
  clickRow(0);
  clickRow(2);
  click(*m_page, u"Move to Trash"_s);
  settle();
  QVERIFY(!QFile::exists(files.at(0).path) && !QFile::exists(files.at(2).path));
  QVERIFY(QFile::exists(files.at(1).path));
  QVERIFY(QFile::exists(m_home->path(u".local/share/Trash/files/a.mov"_s)));
  QCOMPARE(shown(), QStringList{u"b.mov"_s});
  QVERIFY(model()->selection().isEmpty());
  QCOMPARE(sum(), u"0 KB selected of 200 MB · 1 files"_s);
  QCOMPARE(toast.size(), 1);
  QVERIFY2(toast.first().at(0).toString().startsWith(u"2 files "_s), qPrintable(toast.first().at(0).toString()));
  QCOMPARE(toast.first().at(1).toBool(), true);
}

void TestLargeFilesPage::whatIsHiddenStays() {
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200)};
  putFound(files);
  clickRow(0);
  clickRow(1);
  search()->setText(u"b.mov"_s);
  click(*m_page, u"Move to Trash"_s);
  QVERIFY(QFile::exists(files.at(0).path));
  QVERIFY(!QFile::exists(files.at(1).path));
  QCOMPARE(model()->selection(), QSet<QString>{files.at(0).path}); // and keeps its tick
}

void TestLargeFilesPage::whatIsHeldStays() {
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200)};
  putFound(files);
  QFile held(files.at(0).path);
  QVERIFY(held.open(QIODevice::ReadOnly));
  clickRow(0);
  clickRow(1);
  click(*m_page, u"Move to Trash"_s);
  settle();
  QVERIFY(QFile::exists(files.at(0).path));
  QCOMPARE(shown(), QStringList{u"a.mov"_s});
  QVERIFY(model()->selection().isEmpty());
}

void TestLargeFilesPage::refusedMoveShowsNoTicks() {
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200)};
  putFound(files);
  clickRow(0);
  AppSettings::instance().put("clean/exclusions", QPoint(1, 2)); // no list
  QVERIFY(!AppState::settingsRefusal().isEmpty());               // and known before
  click(*m_page, u"Move to Trash"_s);
  const QString shownSum = sum();
  const bool isMarked = isTile(u"a.mov"_s, true);
  AppSettings::instance().setExclusions({}); // shows everything anew
  QVERIFY(AppSettings::instance().acceptExclusions());
  QVERIFY(QFile::exists(files.at(0).path));
  QVERIFY(model()->selection().isEmpty());
  QCOMPARE(shownSum, u"0 KB selected of 500 MB · 2 files"_s);
  QVERIFY(!isMarked);
}

void TestLargeFilesPage::undoSearches() {
  const QList<LargeFile> files = {real(u"Films/a.mov"_s, 300)};
  putFound(files);
  clickRow(0);
  click(*m_page, u"Move to Trash"_s);
  QVERIFY(!QFile::exists(files.at(0).path));
  m_state->undoLastTrash();
  QVERIFY(QFile::exists(files.at(0).path));
  QCOMPARE(view(), int(Scan));
  endOfSearch();
  QCOMPARE(view(), int(Results));
}

// The keyboard

void TestLargeFilesPage::keyboardAfterTheMove() {
  putFound({real(u"Films/a.mov"_s, 300), real(u"Films/b.mov"_s, 200)});
  clickRow(0);
  find("moveButton")->setFocus(Qt::TabFocusReason);
  QTest::keyClick(find("moveButton"), Qt::Key_Space);
  settle();
  QVERIFY(table()->hasFocus());
  QCOMPARE(table()->currentIndex().row(), 0); // the place that became free
  QTest::keyClick(table(), Qt::Key_Space);
  QVERIFY(isTile(u"b.mov"_s, true));
}

void TestLargeFilesPage::keyboardLeavesNoHiddenView() {
  putFound({file(u"a"_s, 300)});
  QWidget* rescan = button(*m_page, u"Rescan"_s);
  table()->setFocus(Qt::TabFocusReason);
  beginSearch();
  QVERIFY(rescan->hasFocus());
  putFound({file(u"a"_s, 300)});
  QVERIFY(rescan->hasFocus());
  search()->setFocus(Qt::TabFocusReason);
  emit m_state->largeFilesChanged(); // the same view stays
  QVERIFY(search()->hasFocus());
}

void TestLargeFilesPage::scrollingOutlivesTheSettings() {
  QList<LargeFile> files;
  for (int i = 0; i < 100; ++i) files << file(QString::number(i), 1000 - i);
  putFound(files);
  QScrollBar* bar = table()->verticalScrollBar();
  bar->setValue(1234);
  AppSettings::instance().setOldMonths(7);
  settle();
  QCOMPARE(bar->value(), 1234);
}

// What was clicked last isn't run after, unless the keyboard works there.
void TestLargeFilesPage::filterMovesNoRowsUnderTheMouse() {
  QList<LargeFile> files;
  for (int i = 0; i < 100; ++i) files << file(u"%1 %2"_s.arg(i % 2 == 0 ? u"even"_s : u"odd"_s).arg(i), 1000 - i);
  putFound(files);
  QScrollBar* bar = table()->verticalScrollBar();
  table()->scrollTo(model()->index(90, 0));
  clickRow(90);
  bar->setValue(0);
  search()->setFocus(Qt::MouseFocusReason);
  search()->setText(u"even"_s);
  settle();
  QCOMPARE(shown().size(), 50);
  QCOMPARE(bar->value(), 0);
  table()->setFocus(Qt::TabFocusReason);
  search()->setText(u"o"_s); // as a search that ends meanwhile
  settle();
  QVERIFY(bar->value() > 0);
}

void TestLargeFilesPage::tabOrder() {
  putFound({file(u"a"_s, 300)});
  clickRow(0);
  const QList<QWidget*> stops = {
      button(*m_page, u"Rescan"_s), segments(),        search(), map(), table()->horizontalHeader(), table(),
      find("revealButton"),         find("moveButton")};
  stops.first()->setFocus(Qt::TabFocusReason);
  for (const QWidget* stop : stops) {
    QCOMPARE(static_cast<const QWidget*>(QApplication::focusWidget()), stop);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(QApplication::focusWidget(), stops.first());
}

int main(int argc, char** argv) { return uitest::run<TestLargeFilesPage>(argc, argv); }

#include "tst_LargeFilesPage.moc"
