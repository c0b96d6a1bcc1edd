// The results of the Space Map: how they are filtered and sorted, their tiles, and what the foot of the page counts.
#include "LargeFilesPageTest.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/icons.h"
#include "ui/pages/LargeFileKind.h"

#include <QAction>
#include <QHeaderView>
#include <QLayout>
#include <QStyle>

using namespace Qt::StringLiterals;
using namespace largetest;
using windowtest::button;
using windowtest::click;

namespace {
const QString kDownloads = u"/Downloads"_s;
} // namespace

class TestLargeFilesPageResults : public LargeFilesPageTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

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
};

// What is written begins beside the icon, which is at the right then, and as near to it.
void TestLargeFilesPageResults::searchFieldMirrored() {
  QCOMPARE(search()->textMargins(), QMargins(-7, 0, 0, 0));
  const pixels::Mirrored mirrored;
  const ui::LargeFilesPage page(m_state.get());
  const auto* field = page.findChild<QLineEdit*>();
  QCOMPARE(field->textMargins(), QMargins(0, 0, -7, 0));
  QCOMPARE(QStyle::visualAlignment(Qt::LeftToRight, field->alignment()) & Qt::AlignRight, Qt::AlignRight);
  QCOMPARE(QStyle::visualAlignment(Qt::RightToLeft, field->alignment()) & Qt::AlignRight, Qt::AlignRight);
}

void TestLargeFilesPageResults::resultsView() {
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

void TestLargeFilesPageResults::listIsSetUp() {
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

void TestLargeFilesPageResults::searchBox() {
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

void TestLargeFilesPageResults::blanksFilterNothing() {
  putFound({file(u"a"_s, 3), file(u"b"_s, 2)});
  search()->setText(u"  \t "_s);
  QCOMPARE(shown().size(), 2);
}

void TestLargeFilesPageResults::unused() {
  putFound({aged(file(u"old"_s, 4), 9), aged(file(u"to the day"_s, 3), 6), justYounger(file(u"younger"_s, 2), 6),
            file(u"new"_s, 1)});
  segments()->setCurrent(Unused);
  QCOMPARE(shown(), (QStringList{u"old"_s, u"to the day"_s}));
  segments()->setCurrent(All);
  QCOMPARE(shown().size(), 4);
}

void TestLargeFilesPageResults::unusedFollowsTheSettings() {
  putFound({aged(file(u"old"_s, 4), 13), aged(file(u"to the day"_s, 3), 12), aged(file(u"half"_s, 2), 7)});
  segments()->setCurrent(Unused);
  QCOMPARE(shown().size(), 3);
  AppSettings::instance().setOldMonths(12);
  QCOMPARE(segments()->itemAt(1).name, u"Unused 12+ months"_s);
  QCOMPARE(model()->unusedMonths, 12);
  QCOMPARE(shown(), (QStringList{u"old"_s, u"to the day"_s}));
}

void TestLargeFilesPageResults::downloads_data() {
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

void TestLargeFilesPageResults::downloads() {
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
void TestLargeFilesPageResults::downloadsOfTheUser() {
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

void TestLargeFilesPageResults::filtersTogether() {
  const QString dir = QDir::homePath() + kDownloads;
  putFound({file(u"film"_s, 3, u"Video"_s, dir), file(u"film"_s, 2), file(u"disc"_s, 1, u"Disk image"_s, dir)});
  segments()->setCurrent(Downloads);
  search()->setText(u"film"_s);
  QCOMPARE(shown().size(), 1);
  QCOMPARE(model()->files().first().size, 3 * kMb);
}

void TestLargeFilesPageResults::filterKeepsTheSorting() {
  putFound({file(u"b"_s, 3), file(u"c"_s, 2), file(u"a"_s, 1), file(u"x"_s, 4)});
  QCOMPARE(shown(), (QStringList{u"x"_s, u"b"_s, u"c"_s, u"a"_s}));
  table()->sortByColumn(1, Qt::AscendingOrder);
  search()->setText(u"Films"_s);
  QCOMPARE(shown(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"x"_s}));
}

void TestLargeFilesPageResults::nothingKept() {
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

void TestLargeFilesPageResults::tiles() {
  putFound({file(u"a.mov"_s, 1), file(u"b.iso"_s, 2'500, u"Disk image"_s)});
  QCOMPARE(map()->itemCount(), 2);
  QCOMPARE(map()->itemAt(0).name, u"b.iso"_s);
  QCOMPARE(map()->itemAt(0).value, u"2.5 GB"_s);
  QCOMPARE(map()->itemAt(1).name, u"a.mov"_s);
  QVERIFY(map()->rects().at(0).width() > map()->rects().at(1).width());
}

void TestLargeFilesPageResults::tileColours() {
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

void TestLargeFilesPageResults::tilesFollowTheFilter() {
  putFound({file(u"a"_s, 3), file(u"beta"_s, 2)});
  search()->setText(u"beta"_s);
  QCOMPARE(map()->itemCount(), 1);
  QCOMPARE(map()->itemAt(0).name, u"beta"_s);
}

void TestLargeFilesPageResults::footer() {
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

void TestLargeFilesPageResults::hiddenTicksDontCount() {
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

void TestLargeFilesPageResults::footerFollowsTheLook() {
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

void TestLargeFilesPageResults::wordsFollowTheHost() {
  QVERIFY(button(*m_page, u"Show in Files"_s));
  qputenv("TARNWICK_HOST", "mac");
  makePage();
  QVERIFY(button(*m_page, u"Show in Finder"_s));
  QVERIFY(button(*m_page, u"Move to Trash"_s));
}

int main(int argc, char** argv) { return uitest::run<TestLargeFilesPageResults>(argc, argv); }

#include "tst_LargeFilesPage_results.moc"
