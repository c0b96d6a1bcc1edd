// Where the user decides: the list, the detail, the footer; by mouse, by keyboard, and as a screen reader hears it.
#include "CleanupTest.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/Note.h"
#include "ui/controls/PageHeader.h"
#include "ui/pages/CleanupDetail.h"
#include "ui/pages/CleanupNotes.h"
#include "ui/pages/ShareBar.h"
#include "ui/visuals/StackBar.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QLayout>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

#include <limits>

using namespace cleanuptest;

namespace {

/// The quickest of several runs of @p timed, which a busy machine disturbs least; @p before isn't timed.
template <typename Before, typename Timed>
double quickestMs(int runs, Before before, Timed timed) {
  double best = std::numeric_limits<double>::max();
  for (int i = 0; i < runs; ++i) {
    before();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QElapsedTimer timer;
    timer.start();
    timed();
    best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
  }
  return best;
}

QString nameOf(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name); }

} // namespace

class TestCleanupReview : public CleanupTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void nothingLeft();
  void title();
  void groups();
  void groupsThatAreEmptyAreLeftOut();
  void shares();
  void shareBarFill();
  void focusTakesTheFirstThatHoldsSomething();
  void focusStaysWithItsCategory();
  void focusCategory();
  void rowClickShowsTheDetail();
  void releaseOutsideTheRowDoesNothing();
  void rowBoxTicks();
  void partlyTickedRowBoxTicksAll();
  void selectAllTicksEverythingUnlessItIs();
  void selectAllTellsTheState();
  void blockedCategory();
  void blockedWordsFollowTheHost();
  void detailOfAnUnknownCategory();
  void detailHeader();
  void blurbOfWhatCannotBeUndone();
  void accessNotes_data();
  void accessNotes();
  void runningNotes();
  void showsInTheFileManager();
  void itemRows();
  void itemIcons_data();
  void itemIcons();
  void namesThatLookLikeMarkup();
  void remainder();
  void limitsAreKeptUntilNewResults();
  void growingKeepsTheScrollPosition();
  void recycleBinHasNoBoxes();
  void tickingAnItemLeavesTheDetail();
  void lastItemUnticksTheCategory();
  void detailSelectAll();
  void footer();
  void footerNeedsAdmin();
  void tipFollowsTheSetting();
  void selectionIsShownInReviewOnly();
  void headerButtons();
  void listKeepsItsScrollPosition();
  void tabOrder();
  void arrowKeys();
  void rowKeys();
  void focusOutlivesTheRebuild();
  void ringIsForTheKeyboard();
  void keyboardGoesOnAfterShowMore();
  void spokenNames();
  void agesGiveWayToNames();
  void longListsStayQuick();

 private:
  [[nodiscard]] ui::Note* noteIn(const QWidget* widget) const { return widget->findChild<ui::Note*>(); }
  [[nodiscard]] bool detailSays(const QString& text) const { return texts(detail()).contains(text); }
  [[nodiscard]] QPushButton* cleanButton() const { return find<QPushButton>("cleanButton"); }
  [[nodiscard]] int shownItems() const { return int(itemBoxes().size()); }
  void showMore() {
    for (QPushButton* one : detail()->findChildren<QPushButton*>())
      if (one->text().endsWith(u"more"_s)) return QTest::mouseClick(one, Qt::LeftButton);
    QFAIL("there are no more");
  }
  void tab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
};

void TestCleanupReview::nothingLeft() {
  review({category(u"thumbs"_s, {}), category(u"trash"_s, {})});
  QVERIFY(view()->findChildren<ui::CategoryRow*>().isEmpty());
  QCOMPARE(texts(detail()), QStringList{u"Nothing left to clean. Rescan any time."_s});
  QVERIFY(!cleanButton()->isEnabled());
  QCOMPARE(cleanButton()->text(), u"Clean 0 KB"_s);
  QCOMPARE(find<QCheckBox>("selectAll")->checkState(), Qt::Unchecked);
}

void TestCleanupReview::title() {
  m_state->lastScan = QDateTime::currentDateTime().addDays(-1);
  review({category(u"thumbs"_s, {1'500'000'000}), category(u"trash"_s, {500'000'000})});
  const QStringList shown = texts(view()->findChild<ui::PageHeader*>());
  QCOMPARE(shown.at(0), u"Scanned yesterday"_s);
  QCOMPARE(shown.at(1),
           u"<span style=\"font-family:'%1'\">2.0 GB</span> can be cleaned"_s.arg(Theme::get().mono(13, 400).family()));
  QCOMPARE(shown.size(), 2);
}

void TestCleanupReview::groups() {
  review({category(u"trash"_s, {5}), category(u"dev"_s, {4}), category(u"temp"_s, {3}), category(u"update"_s, {2}),
          category(u"appcache"_s, {1}), category(u"browser"_s, {}), blocked(u"logs"_s)});
  const QWidget* list = row(u"temp"_s)->parentWidget();
  QStringList order;
  for (const QObject* child : list->children()) {
    if (const auto* one = qobject_cast<const ui::CategoryRow*>(child)) order << one->objectName();
    const auto* heading = qobject_cast<const QLabel*>(child);
    if (heading) order << heading->text();
    if (heading) QCOMPARE(heading->contentsMargins(), QMargins(12, 14, 12, 6));
  }
  QCOMPARE(order, QStringList({u"SAFE TO CLEAN"_s, u"category-temp"_s, u"category-appcache"_s, u"category-logs"_s,
                               u"REVIEW BEFORE CLEANING"_s, u"category-dev"_s, u"category-update"_s,
                               u"CANNOT BE UNDONE"_s, u"category-trash"_s}));
  int y = -1;
  for (const QString& id : {u"temp"_s, u"appcache"_s, u"logs"_s, u"dev"_s, u"update"_s, u"trash"_s}) {
    QVERIFY(row(id)->y() > y);
    y = row(id)->y();
  }
}

void TestCleanupReview::groupsThatAreEmptyAreLeftOut() {
  review({category(u"trash"_s, {5}), category(u"temp"_s, {})});
  const QStringList shown = texts(row(u"trash"_s)->parentWidget());
  QVERIFY(shown.contains(u"CANNOT BE UNDONE"_s));
  QVERIFY(!shown.contains(u"SAFE TO CLEAN"_s));
  QVERIFY(!shown.contains(u"REVIEW BEFORE CLEANING"_s));
}

void TestCleanupReview::shares() {
  review({category(u"temp"_s, {1'000'000}), category(u"appcache"_s, {4'000'000}), category(u"thumbs"_s, {1})});
  const auto* bar = row(u"temp"_s)->findChild<ui::ShareBar*>();
  QCOMPARE(bar->share, 0.25);
  QCOMPARE(bar->colour, m_state->result(u"temp"_s)->def.colour);
  QCOMPARE(bar->height(), 3);
  QCOMPARE(bar->valueText(), u"25%"_s);
  QCOMPARE(row(u"appcache"_s)->findChild<ui::ShareBar*>()->share, 1.0);
  QVERIFY(texts(row(u"temp"_s)).contains(u"1 MB"_s));
}

void TestCleanupReview::shareBarFill() {
  QCOMPARE(ui::shareBarFill({200, 3}, 0.5), QRectF(0, 0, 100, 3));
  QCOMPARE(ui::shareBarFill({200, 3}, 1), QRectF(0, 0, 200, 3));
  QCOMPARE(ui::shareBarFill({200, 3}, 0.0001), QRectF(0, 0, 3, 3));
  QCOMPARE(ui::shareBarFill({200, 3}, 0), QRectF(0, 0, 0, 3));
}

void TestCleanupReview::focusTakesTheFirstThatHoldsSomething() {
  review({category(u"temp"_s, {}), blocked(u"logs"_s), category(u"update"_s, {7}), category(u"thumbs"_s, {9})});
  QVERIFY(row(u"update"_s)->active);
  QVERIFY(!row(u"thumbs"_s)->active);
  QVERIFY(detailSays(u"Old installers"_s));
}

void TestCleanupReview::focusStaysWithItsCategory() {
  review({category(u"temp"_s, {1}), category(u"thumbs"_s, {2})});
  m_page->focusCategory(u"thumbs"_s);
  review({category(u"temp"_s, {1}), category(u"thumbs"_s, {2})});
  QVERIFY(row(u"thumbs"_s)->active);
  review({category(u"temp"_s, {1}), category(u"thumbs"_s, {})}); // emptied, but still there
  QVERIFY(detailSays(u"Thumbnail cache"_s));
  QVERIFY(!row(u"temp"_s)->active);
  review({category(u"temp"_s, {1})});
  QVERIFY(row(u"temp"_s)->active);
}

void TestCleanupReview::focusCategory() {
  review({category(u"temp"_s, {1}), category(u"thumbs"_s, {2})});
  const QPointer<ui::CategoryRow> before = row(u"temp"_s);
  m_page->focusCategory({});
  m_page->focusCategory(u"temp"_s);
  settle();
  QVERIFY(before); // nothing was rebuilt
  m_page->focusCategory(u"thumbs"_s);
  QVERIFY(row(u"thumbs"_s)->active);
  QVERIFY(!row(u"temp"_s)->active);
  QVERIFY(detailSays(u"Thumbnail cache"_s));
  settle();
  QVERIFY(!before);
}

void TestCleanupReview::rowClickShowsTheDetail() {
  review({category(u"temp"_s, {1}), category(u"thumbs"_s, {2})});
  for (int i = 0; i < 3; ++i) {
    for (const QString& id : {u"thumbs"_s, u"temp"_s}) {
      // On the title, which lets the click through to its row.
      QLabel* label = row(id)->findChildren<QLabel*>().first();
      QTest::mouseClick(label, Qt::LeftButton);
      QVERIFY(row(id)->active);
      settle(); // the row that was clicked goes now
      QVERIFY(row(id)->active);
    }
  }
}

void TestCleanupReview::releaseOutsideTheRowDoesNothing() {
  review({category(u"temp"_s, {1}), category(u"thumbs"_s, {2})});
  ui::CategoryRow* other = row(u"thumbs"_s);
  QTest::mousePress(other, Qt::LeftButton);
  QTest::mouseRelease(other, Qt::LeftButton, {}, QPoint(20, -1));
  QVERIFY(!row(u"thumbs"_s)->active);
  QTest::mousePress(other, Qt::LeftButton);
  QTest::mouseRelease(other, Qt::LeftButton, {}, QPoint(0, 0));
  QVERIFY(row(u"thumbs"_s)->active);
}

void TestCleanupReview::rowBoxTicks() {
  review({category(u"temp"_s, {1}), category(u"update"_s, {2})});
  QCOMPARE(rowBox(u"temp"_s)->checkState(), Qt::Checked);
  QTest::mouseClick(rowBox(u"temp"_s), Qt::LeftButton);
  QCOMPARE(m_state->selectionState(u"temp"_s), int(Qt::Unchecked));
  QCOMPARE(rowBox(u"temp"_s)->checkState(), Qt::Unchecked);
  settle();
  QTest::mouseClick(rowBox(u"update"_s), Qt::LeftButton);
  settle();
  QCOMPARE(rowBox(u"update"_s)->checkState(), Qt::Checked);
  QVERIFY(row(u"temp"_s)->active); // a tick doesn't move the detail
}

void TestCleanupReview::partlyTickedRowBoxTicksAll() {
  review({category(u"temp"_s, {3, 2})});
  m_state->setItemSelected(u"temp"_s, u"/c/temp/n0"_s, false);
  QCOMPARE(rowBox(u"temp"_s)->checkState(), Qt::PartiallyChecked);
  QTest::mouseClick(rowBox(u"temp"_s), Qt::LeftButton);
  QCOMPARE(m_state->selectionState(u"temp"_s), int(Qt::Checked));
  QVERIFY(itemBoxes().at(0)->isChecked());
}

void TestCleanupReview::selectAllTicksEverythingUnlessItIs() {
  review({category(u"temp"_s, {1}), category(u"update"_s, {2}), category(u"trash"_s, {3}), category(u"dev"_s, {})});
  QCheckBox* all = find<QCheckBox>("selectAll");
  QCOMPARE(all->text(), u"Select all"_s);
  QTest::mouseClick(all, Qt::LeftButton, {}, QPoint(8, all->height() / 2));
  QCOMPARE(m_state->selectedResults().size(), 3);
  QCOMPARE(all->checkState(), Qt::Checked);
  QTest::mouseClick(all, Qt::LeftButton, {}, QPoint(8, all->height() / 2));
  QCOMPARE(m_state->selectedBytes(), 0);
  QCOMPARE(all->checkState(), Qt::Unchecked);
  m_state->setSelected(u"trash"_s, true);
  QCOMPARE(all->checkState(), Qt::PartiallyChecked);
  QTest::mouseClick(all, Qt::LeftButton, {}, QPoint(8, all->height() / 2));
  QCOMPARE(all->checkState(), Qt::Checked);
}

void TestCleanupReview::selectAllTellsTheState() {
  review({category(u"temp"_s, {1, 1}), category(u"appcache"_s, {2}), blocked(u"logs"_s)});
  const QCheckBox* all = find<QCheckBox>("selectAll");
  QCOMPARE(all->checkState(), Qt::Checked);
  m_state->setItemSelected(u"temp"_s, u"/c/temp/n0"_s, false); // every category is still taken of
  QCOMPARE(all->checkState(), Qt::Checked);
  m_state->setSelected(u"temp"_s, false);
  QCOMPARE(all->checkState(), Qt::PartiallyChecked);
}

void TestCleanupReview::blockedCategory() {
  review({category(u"temp"_s, {1}), blocked(u"logs"_s)});
  QVERIFY(!rowBox(u"logs"_s)->isEnabled());
  QCOMPARE(texts(row(u"logs"_s)), QStringList({u"Logs & crash reports"_s, u"No permission to read"_s}));
  QVERIFY(!row(u"logs"_s)->findChild<ui::ShareBar*>());
  m_page->focusCategory(u"logs"_s);
  QCOMPARE(find<QLabel>("detailValue")->text(), u"—"_s);
  QCOMPARE(find<QLabel>("detailCaption")->text(), u"No permission to read"_s);
  QCOMPARE(noteIn(detail())->text(), u"You have no permission to read some of these folders."_s);
  settle();
  const ui::Note* note = noteIn(detail());
  QCOMPARE(note->height(), note->layout()->totalHeightForWidth(note->width())); // though there is room below
}

void TestCleanupReview::blockedWordsFollowTheHost() {
  qputenv("TARNWICK_HOST", "mac");
  review({category(u"temp"_s, {1}), blocked(u"logs"_s)});
  QVERIFY(texts(row(u"logs"_s)).contains(u"Needs Full Disk Access"_s));
  m_page->focusCategory(u"logs"_s);
  QCOMPARE(find<QLabel>("detailCaption")->text(), u"Needs Full Disk Access"_s);
}

void TestCleanupReview::detailOfAnUnknownCategory() {
  review({category(u"temp"_s, {1})});
  m_page->focusCategory(u"no such"_s);
  QCOMPARE(texts(detail()), QStringList{u"Nothing left to clean. Rescan any time."_s});
  QVERIFY(!row(u"temp"_s)->active);
}

void TestCleanupReview::detailHeader() {
  CategoryResult thumbs = category(u"thumbs"_s, {1'000'000, 2'000'000});
  thumbs.files = 1234;
  review({thumbs});
  QCOMPARE(find<QLabel>("detailValue")->text(), u"3 MB"_s);
  QCOMPARE(find<QLabel>("detailCaption")->text(), fmt::count(1234) + u" items"_s);
  const auto blurbs = detail()->findChildren<QLabel*>();
  const auto blurb =
      std::find_if(blurbs.begin(), blurbs.end(), [&](const QLabel* one) { return one->text() == thumbs.def.blurb; });
  QVERIFY(blurb != blurbs.end());
  QCOMPARE((*blurb)->toolTip(), thumbs.def.locationHint);
  QCOMPARE((*blurb)->contentsMargins(), QMargins(60, 6, 0, 0));
  QVERIFY((*blurb)->wordWrap());
  QVERIFY(!noteIn(detail()));
}

void TestCleanupReview::blurbOfWhatCannotBeUndone() {
  CategoryResult trash = category(u"trash"_s, {1});
  trash.def.blurb = u"Gone & forgotten."_s;
  QCOMPARE(trash.def.safety, Permanent);
  review({trash});
  QCOMPARE(noteIn(detail())->text(), u"Gone &amp; forgotten."_s);
  QCOMPARE(nameOf(noteIn(detail())), trash.def.blurb);
  QVERIFY(!detailSays(trash.def.blurb)); // as plain text
}

void TestCleanupReview::accessNotes_data() {
  QTest::addColumn<QString>("host");
  QTest::addColumn<bool>("denied");
  QTest::addColumn<bool>("diskAccess");
  QTest::addColumn<bool>("admin");
  QTest::addColumn<QString>("text");
  QTest::addColumn<QString>("action");
  const QString settings = u"Open System Settings"_s;
  const QString needed = u"Some folders need Full Disk Access."_s;
  QTest::newRow("mac, plain") << u"mac"_s << false << false << false << QString() << QString();
  QTest::newRow("mac, denied") << u"mac"_s << true << false << false << needed << settings;
  QTest::newRow("mac, denied for sure") << u"mac"_s << true << true << true << needed << settings;
  QTest::newRow("mac, may be") << u"mac"_s << false << true << false << u"Some folders may need Full Disk Access."_s
                               << settings;
  QTest::newRow("mac, admin") << u"mac"_s << false << false << true << u"These files need administrator rights."_s
                              << u"Restart as admin"_s;
  QTest::newRow("linux, plain") << u"linux"_s << false << false << false << QString() << QString();
  QTest::newRow("linux, denied") << u"linux"_s << true << false << true
                                 << u"You have no permission to read some of these folders."_s << QString();
  QTest::newRow("linux, admin") << u"linux"_s << false << false << true
                                << u"Some files belong to the system and were left alone."_s << QString();
}

void TestCleanupReview::accessNotes() {
  QFETCH(const QString, host);
  QFETCH(const bool, denied);
  QFETCH(const bool, diskAccess);
  QFETCH(const bool, admin);
  QFETCH(const QString, text);
  QFETCH(const QString, action);
  qputenv("TARNWICK_HOST", host.toLatin1());
  CategoryResult result = category(u"temp"_s, {1});
  result.accessDenied = denied;
  result.def.needsFullDiskAccess = diskAccess;
  result.def.needsAdmin = admin;
  for (const bool mac : {true, false}) { // whichever the metrics
    Theme::get().mac = mac;
    const std::unique_ptr<ui::Note> note(ui::accessNote(result));
    QCOMPARE(note ? note->text() : QString(), text);
    const QPushButton* button = note ? note->findChild<QPushButton*>() : nullptr;
    QCOMPARE(button ? button->text() : QString(), action);
  }
}

void TestCleanupReview::runningNotes() {
  CategoryResult result = category(u"browser"_s, {4, 3, 2, 1});
  QVERIFY(!ui::runningNote(result.items));
  result.items[1].owner = u"R&D"_s;
  result.items[3].owner = u"R&D"_s;
  const std::unique_ptr<ui::Note> one(ui::runningNote(result.items));
  QCOMPARE(one->text(), u"R&amp;D is open. Quit it to include its cache."_s);
  result.items[0].owner = u"Fox"_s;
  const std::unique_ptr<ui::Note> two(ui::runningNote(result.items));
  QCOMPARE(two->text(), u"Fox, R&amp;D are open. Quit them to include their caches."_s);
  review({result});
  QCOMPARE(noteIn(detail())->text(), two->text());
  QVERIFY(detailSays(u"R&D is running"_s));
}

void TestCleanupReview::showsInTheFileManager() {
  CategoryResult result = category(u"temp"_s, {2, 1});
  review({result});
  QVERIFY(button(detail(), u"Show in Files"_s));
  result.items[0].path.clear();
  review({result});
  QVERIFY(!button(detail(), u"Show in Files"_s));
  QVERIFY(detailSays(u"Largest items"_s));
}

void TestCleanupReview::itemRows() {
  CategoryResult result = category(u"temp"_s, {2'000'000, 1'000'000});
  result.items[0].path = m_home->path(u"Thing/big.bin"_s);
  result.items[0].name = u"big.bin"_s;
  result.items[0].modified = QDateTime::currentMSecsSinceEpoch();
  result.items[1].owner = u"Fox"_s;
  review({result});
  const QStringList shown = texts(detail());
  for (const QString& text : {u"big.bin"_s, u"~/Thing"_s, u"Today"_s, u"2 MB"_s, u"n1"_s, u"Fox is running"_s})
    QVERIFY2(shown.contains(text), qPrintable(text));
  QVERIFY(!shown.contains(u"/c/temp"_s)); // the owner stands in its place
  QCOMPARE(shown.count(u"Today"_s), 1);   // nothing is known of the other's age
  for (const QLabel* label : detail()->findChildren<QLabel*>()) {
    if (label->text() == u"big.bin"_s) QCOMPARE(label->toolTip(), result.items[0].path);
    if (label->text() == u"Today"_s) QCOMPARE(label->width(), 84);
    if (label->text() == u"1 MB"_s) QCOMPARE(label->width(), 80);
    if (label->text() == u"big.bin"_s) QCOMPARE(label->font().weight(), QFont::Medium);
    if (label->text() == u"~/Thing"_s) QCOMPARE(label->font().pixelSize(), 10);
    if (label->text() == u"Fox is running"_s) QCOMPARE(label->font().pixelSize(), 11);
    if (label->text() == u"Today"_s) QCOMPARE(label->font().pixelSize(), 12);
  }
}

void TestCleanupReview::itemIcons_data() {
  QTest::addColumn<QString>("id");
  QTest::addColumn<QString>("name");
  QTest::addColumn<bool>("wholeRoot");
  QTest::addColumn<QString>("icon");
  QTest::newRow("three letters") << u"temp"_s << u"a long name.txt"_s << false << u"file"_s;
  QTest::newRow("four letters") << u"temp"_s << u"photo.jpeg"_s << false << u"file"_s;
  QTest::newRow("five letters") << u"temp"_s << u"page.xhtml"_s << false << u"folder"_s;
  QTest::newRow("no letters") << u"temp"_s << u"name."_s << false << u"file"_s;
  QTest::newRow("hidden, short") << u"temp"_s << u".npm"_s << false << u"file"_s;
  QTest::newRow("no dot") << u"temp"_s << u"folder"_s << false << u"folder"_s;
  QTest::newRow("empty") << u"temp"_s << u""_s << false << u"folder"_s;
  QTest::newRow("two dots") << u"temp"_s << u"com.example.app"_s << false << u"file"_s;
  QTest::newRow("bundle id") << u"temp"_s << u"com.example.Editor"_s << false << u"folder"_s;
  QTest::newRow("whole root") << u"temp"_s << u"a.txt"_s << true << u"folder"_s;
  QTest::newRow("browser") << u"browser"_s << u"a.txt"_s << true << u"globe"_s;
}

void TestCleanupReview::itemIcons() {
  QFETCH(const QString, id);
  QFETCH(const QString, name);
  QFETCH(const bool, wholeRoot);
  QFETCH(const QString, icon);
  CategoryDef def;
  def.id = id;
  CleanItem item;
  item.name = name;
  item.wholeRoot = wholeRoot;
  QCOMPARE(ui::itemIcon(def, item), icon);
}

void TestCleanupReview::namesThatLookLikeMarkup() {
  CategoryResult result = category(u"temp"_s, {1});
  result.items[0].name = u"<b>x</b>"_s;
  result.items[0].path = u"/c/<b>x</b>"_s;
  review({result});
  bool found = false;
  for (const QLabel* label : detail()->findChildren<QLabel*>()) {
    if (label->text() != result.items[0].name) continue;
    found = true;
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->toolTip().contains(u"&lt;b&gt;"_s));
  }
  QVERIFY(found);
}

void TestCleanupReview::remainder() {
  review({category(u"temp"_s, sizes(15)), category(u"thumbs"_s, sizes(16)), category(u"logs"_s, sizes(100))});
  QCOMPARE(shownItems(), 15);
  for (const QString& text : texts(detail())) QVERIFY(!text.startsWith(u"and "_s));
  m_page->focusCategory(u"thumbs"_s);
  QCOMPARE(shownItems(), 15);
  QVERIFY(detailSays(u"and 1 more items"_s));
  QVERIFY(button(detail(), u"Show 1 more"_s));
  m_page->focusCategory(u"logs"_s);
  QCOMPARE(shownItems(), 15);
  QVERIFY(detailSays(u"and 85 more items"_s));
  QVERIFY(button(detail(), u"Show 50 more"_s));
  showMore();
  settle();
  QCOMPARE(shownItems(), 65);
  QVERIFY(detailSays(u"and 35 more items"_s));
  QVERIFY(button(detail(), u"Show 35 more"_s));
  showMore();
  settle();
  QCOMPARE(shownItems(), 100);
  for (const QPushButton* one : detail()->findChildren<QPushButton*>()) QVERIFY(!one->text().endsWith(u"more"_s));
}

void TestCleanupReview::limitsAreKeptUntilNewResults() {
  const QList<CategoryResult> results = {category(u"temp"_s, sizes(100)), category(u"thumbs"_s, sizes(30))};
  review(results);
  showMore();
  QCOMPARE(shownItems(), 65);
  m_page->focusCategory(u"thumbs"_s);
  QCOMPARE(shownItems(), 15);
  m_page->focusCategory(u"temp"_s);
  QCOMPARE(shownItems(), 65);
  m_state->setItemSelected(u"temp"_s, u"/c/temp/n3"_s, false);
  QCOMPARE(shownItems(), 65);
  review(results);
  QCOMPARE(shownItems(), 15);
}

void TestCleanupReview::growingKeepsTheScrollPosition() {
  review({category(u"temp"_s, sizes(200))});
  QScrollBar* bar = find<QScrollArea>("detailScroll")->verticalScrollBar();
  QVERIFY(bar->maximum() > 0);
  bar->setValue(bar->maximum());
  const int at = bar->value();
  const int before = bar->maximum();
  showMore();
  settle();
  QCOMPARE(bar->value(), at);
  QVERIFY(bar->maximum() > before + 1000);
}

void TestCleanupReview::recycleBinHasNoBoxes() {
  CategoryResult trash = category(u"trash"_s, sizes(20));
  trash.def.usesRecycleBin = true;
  review({trash});
  QVERIFY(detail()->findChildren<QCheckBox*>().isEmpty());
  QVERIFY(detailSays(u"n14"_s));
  QVERIFY(!detailSays(u"n15"_s));
  QVERIFY(detailSays(u"and 5 more items"_s));
  QTest::mouseClick(rowBox(u"trash"_s), Qt::LeftButton);
  QCOMPARE(m_state->selectionState(u"trash"_s), int(Qt::Checked));
}

void TestCleanupReview::tickingAnItemLeavesTheDetail() {
  review({category(u"temp"_s, {3'000'000, 2'000'000, 1'000'000})});
  const QPointer<QCheckBox> box = itemBoxes().at(1);
  QTest::mouseClick(box, Qt::LeftButton);
  settle();
  QVERIFY(box);
  QVERIFY(!m_state->isItemSelected(u"temp"_s, u"/c/temp/n1"_s));
  QCOMPARE(find<QCheckBox>("detailSelectAll")->checkState(), Qt::PartiallyChecked);
  QCOMPARE(rowBox(u"temp"_s)->checkState(), Qt::PartiallyChecked);
  QCOMPARE(cleanButton()->text(), u"Clean 4 MB"_s);
  m_state->setItemSelected(u"temp"_s, u"/c/temp/n1"_s, true); // from elsewhere
  QVERIFY(box->isChecked());
  QCOMPARE(find<QCheckBox>("detailSelectAll")->checkState(), Qt::Checked);
}

void TestCleanupReview::lastItemUnticksTheCategory() {
  review({category(u"temp"_s, {2, 1})});
  for (QCheckBox* box : itemBoxes()) QTest::mouseClick(box, Qt::LeftButton);
  QCOMPARE(m_state->selectionState(u"temp"_s), int(Qt::Unchecked));
  QCOMPARE(find<QCheckBox>("detailSelectAll")->checkState(), Qt::Unchecked);
  QTest::mouseClick(itemBoxes().at(1), Qt::LeftButton); // then it is the only one
  QVERIFY(!itemBoxes().at(0)->isChecked());
  QCOMPARE(m_state->selectedBytes(), 1);
}

void TestCleanupReview::detailSelectAll() {
  review({category(u"temp"_s, {2, 1})});
  QCheckBox* all = find<QCheckBox>("detailSelectAll");
  const QPoint on(8, all->height() / 2);
  QTest::mouseClick(all, Qt::LeftButton, {}, on);
  QCOMPARE(m_state->selectionState(u"temp"_s), int(Qt::Unchecked));
  QCOMPARE(all->checkState(), Qt::Unchecked);
  QVERIFY(!itemBoxes().at(0)->isChecked());
  m_state->setItemSelected(u"temp"_s, u"/c/temp/n0"_s, true);
  QCOMPARE(all->checkState(), Qt::PartiallyChecked);
  QTest::mouseClick(all, Qt::LeftButton, {}, on);
  QCOMPARE(m_state->selectionState(u"temp"_s), int(Qt::Checked));
  QCOMPARE(all->checkState(), Qt::Checked);
  QVERIFY(itemBoxes().at(1)->isChecked());
}

void TestCleanupReview::footer() {
  review({category(u"temp"_s, {3'000'000, 1'000'000}), category(u"update"_s, {4'000'000}), blocked(u"logs"_s)});
  const auto* bar = view()->findChild<ui::StackBar*>();
  QCOMPARE(bar->height(), 6);
  QCOMPARE(bar->valueText(), u"Temporary files: 50%"_s);
  m_state->setItemSelected(u"temp"_s, u"/c/temp/n0"_s, false);
  m_state->setSelected(u"update"_s, true);
  QCOMPARE(bar->valueText(), u"Temporary files: 13%, Old installers: 50%"_s);
  const QString look =
      Theme::get().text.name() + u"; font-family:'%1'; font-size:15px"_s.arg(Theme::get().mono(13, 400).family());
  QCOMPARE(find<QLabel>("selectionLabel")->text(), u"<b style='color:%1'>5 MB</b> selected"_s.arg(look));
  QCOMPARE(cleanButton()->text(), u"Clean 5 MB"_s);
  QVERIFY(cleanButton()->isEnabled());
  // What the page asks piece by piece is what a clean gets.
  qint64 sum = 0;
  for (const CategoryResult& one : m_state->selectedResults()) {
    QCOMPARE(m_state->selectedBytesOf(one.def.id), one.bytes);
    sum += one.bytes;
  }
  QCOMPARE(sum, m_state->selectedBytes());
  QCOMPARE(m_state->selectedBytesOf(u"logs"_s), 0);
  QCOMPARE(m_state->selectedBytesOf(u"no such"_s), 0);
  m_state->selectAll(false);
  QVERIFY(!cleanButton()->isEnabled());
}

void TestCleanupReview::footerNeedsAdmin() {
  CategoryResult result = category(u"temp"_s, {1'000'000});
  result.def.needsAdmin = true;
  review({result});
  QVERIFY(find<QLabel>("selectionLabel")->text().endsWith(u" selected · some need admin"_s));
}

void TestCleanupReview::tipFollowsTheSetting() {
  review({category(u"temp"_s, {1})});
  QCOMPARE(cleanButton()->toolTip(), u"deleted permanently"_s);
  AppSettings::instance().setMoveToTrash(true);
  QCOMPARE(cleanButton()->toolTip(), u"moved to the Trash"_s);
}

void TestCleanupReview::selectionIsShownInReviewOnly() {
  review({category(u"temp"_s, {1'000'000})});
  m_state->setPhase(AppState::Cleaning);
  m_state->selectAll(false);
  QCOMPARE(cleanButton()->text(), u"Clean 1 MB"_s);
  m_state->setPhase(AppState::Review);
  QCOMPARE(cleanButton()->text(), u"Clean 0 KB"_s);
}

void TestCleanupReview::headerButtons() {
  review({category(u"temp"_s, {1}), category(u"update"_s, {2})});
  m_state->selectAll(true);
  QPushButton* recommended = button(view(), u"Select recommended"_s);
  QPushButton* rescan = button(view(), u"Rescan"_s);
  QVERIFY(recommended->x() < rescan->x());
  QTest::mouseClick(recommended, Qt::LeftButton);
  QCOMPARE(m_state->selectedBytes(), 1);
  QTest::mouseClick(rescan, Qt::LeftButton);
  QCOMPARE(m_state->phase, AppState::Scanning);
  QTRY_COMPARE(m_state->phase, AppState::Review);
}

void TestCleanupReview::listKeepsItsScrollPosition() {
  m_page->resize(724, 400);
  QList<CategoryResult> all;
  for (const CategoryDef& def : categories::forLinux()) all << category(def.id, {1'000'000});
  review(all);
  QScrollBar* bar = nullptr;
  for (const QScrollArea* area : view()->findChildren<QScrollArea*>())
    if (area->isAncestorOf(row(u"temp"_s))) bar = area->verticalScrollBar();
  QVERIFY(bar->maximum() > 50);
  bar->setValue(bar->maximum());
  const int at = bar->value();
  QTest::mouseClick(rowBox(u"trash"_s), Qt::LeftButton);
  settle();
  QCOMPARE(bar->value(), at);
}

void TestCleanupReview::tabOrder() {
  review({category(u"temp"_s, {2, 1}), category(u"update"_s, {3})});
  m_state->setItemSelected(u"temp"_s, u"/c/temp/n0"_s, false); // rows are built anew
  m_page->focusCategory(u"update"_s);                          // and the detail
  settle();
  const QList<QWidget*> expected = {button(view(), u"Select recommended"_s),
                                    button(view(), u"Rescan"_s),
                                    find("selectAll"),
                                    row(u"temp"_s),
                                    rowBox(u"temp"_s),
                                    row(u"update"_s),
                                    rowBox(u"update"_s),
                                    find("detailScroll"),
                                    button(detail(), u"Show in Files"_s),
                                    find("detailSelectAll"),
                                    itemBoxes().at(0),
                                    cleanButton()};
  expected.first()->setFocus(Qt::TabFocusReason);
  for (const QWidget* stop : expected) {
    QCOMPARE(static_cast<const QWidget*>(QApplication::focusWidget()), stop);
    tab();
  }
}

void TestCleanupReview::arrowKeys() {
  review({category(u"temp"_s, {2}), category(u"appcache"_s, {2}), blocked(u"logs"_s), category(u"update"_s, {3})});
  const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
  row(u"temp"_s)->setFocus(Qt::TabFocusReason);
  press(Qt::Key_Up);
  QVERIFY(row(u"temp"_s)->hasFocus());
  press(Qt::Key_Down);
  QVERIFY(row(u"appcache"_s)->hasFocus());
  press(Qt::Key_End);
  QVERIFY(row(u"update"_s)->hasFocus());
  press(Qt::Key_Down);
  QVERIFY(row(u"update"_s)->hasFocus());
  press(Qt::Key_Up);
  QVERIFY(row(u"logs"_s)->hasFocus());
  press(Qt::Key_Home);
  QVERIFY(row(u"temp"_s)->hasFocus());
  QVERIFY(row(u"temp"_s)->isKeyboardFocused());
  rowBox(u"temp"_s)->setFocus(Qt::TabFocusReason);
  press(Qt::Key_Down);
  QVERIFY(rowBox(u"appcache"_s)->hasFocus());
  press(Qt::Key_Down);
  QVERIFY(row(u"logs"_s)->hasFocus()); // whose box can't be worked
  QVERIFY(row(u"temp"_s)->active);     // moving chooses nothing
}

void TestCleanupReview::rowKeys() {
  review({category(u"temp"_s, {2}), category(u"thumbs"_s, {1})});
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    m_page->focusCategory(u"temp"_s);
    row(u"thumbs"_s)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(row(u"thumbs"_s), key);
    settle();
    QVERIFY(row(u"thumbs"_s)->active);
    QVERIFY(row(u"thumbs"_s)->hasFocus());
    QVERIFY(row(u"thumbs"_s)->isKeyboardFocused());
  }
}

void TestCleanupReview::focusOutlivesTheRebuild() {
  review({category(u"temp"_s, {2}), category(u"thumbs"_s, {1})});
  rowBox(u"thumbs"_s)->setFocus(Qt::TabFocusReason);
  for (const bool ticked : {false, true, false}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    settle();
    QVERIFY(rowBox(u"thumbs"_s)->hasFocus());
    QCOMPARE(rowBox(u"thumbs"_s)->isChecked(), ticked);
  }
  review({category(u"temp"_s, {2})}); // its category is gone
  QVERIFY(find<QCheckBox>("selectAll")->hasFocus());
  // A tick in the detail leaves the focus there.
  itemBoxes().at(0)->setFocus(Qt::TabFocusReason);
  QTest::keyClick(itemBoxes().at(0), Qt::Key_Space);
  settle();
  QVERIFY(itemBoxes().at(0)->hasFocus());
  QCOMPARE(m_state->selectedBytes(), 0);
}

void TestCleanupReview::ringIsForTheKeyboard() {
  review({category(u"temp"_s, {2}), category(u"thumbs"_s, {1})});
  const auto picture = [&] {
    settle();
    QApplication::sendPostedEvents();
    return row(u"thumbs"_s)->grab().toImage();
  };
  QTest::mouseClick(row(u"thumbs"_s), Qt::LeftButton);
  QVERIFY(!row(u"thumbs"_s)->isKeyboardFocused());
  QVERIFY(row(u"thumbs"_s)->hasFocus()); // so that the arrow keys work from here
  const QImage plain = picture();
  QTest::mouseClick(rowBox(u"thumbs"_s), Qt::LeftButton);
  QTest::mouseClick(rowBox(u"thumbs"_s), Qt::LeftButton);
  QVERIFY(!row(u"thumbs"_s)->isKeyboardFocused());
  row(u"thumbs"_s)->setFocus(Qt::TabFocusReason);
  QVERIFY(row(u"thumbs"_s)->isKeyboardFocused());
  QVERIFY(picture() != plain);
}

void TestCleanupReview::keyboardGoesOnAfterShowMore() {
  review({category(u"temp"_s, sizes(40))});
  QPushButton* more = button(detail(), u"Show 25 more"_s);
  more->setFocus(Qt::TabFocusReason);
  QTest::keyClick(more, Qt::Key_Space);
  settle();
  QVERIFY(itemBoxes().at(15)->hasFocus());
}

void TestCleanupReview::spokenNames() {
  review({category(u"temp"_s, {3'000'000, 1'000'000}), blocked(u"logs"_s)});
  QCOMPARE(nameOf(row(u"temp"_s)), u"Temporary files, 4 MB"_s);
  QCOMPARE(nameOf(rowBox(u"temp"_s)), u"Temporary files, 4 MB"_s);
  QCOMPARE(nameOf(row(u"logs"_s)), u"Logs & crash reports, No permission to read"_s);
  QCOMPARE(QAccessible::queryAccessibleInterface(row(u"temp"_s))->role(), QAccessible::Button);
  QCOMPARE(QAccessible::queryAccessibleInterface(row(u"temp"_s))->text(QAccessible::Description), u"Safe"_s);
  QCOMPARE(nameOf(itemBoxes().at(1)), u"n1, 1 MB"_s);
  QCOMPARE(nameOf(find("detailScroll")), u"Temporary files"_s);
  m_page->focusCategory(u"logs"_s);
  QCOMPARE(nameOf(noteIn(detail())), u"You have no permission to read some of these folders."_s);
  QAccessible::queryAccessibleInterface(row(u"temp"_s))
      ->actionInterface()
      ->doAction(QAccessibleActionInterface::pressAction());
  QVERIFY(row(u"temp"_s)->active);
}

void TestCleanupReview::agesGiveWayToNames() {
  CategoryResult result = category(u"temp"_s, {1});
  result.items[0].modified = QDateTime::currentMSecsSinceEpoch();
  review({result});
  QVERIFY(detailSays(u"Today"_s));
  m_page->resize(724, 640);
  settle();
  QVERIFY(!detailSays(u"Today"_s));
  m_page->resize(944, 640);
  settle();
  QVERIFY(detailSays(u"Today"_s));
}

void TestCleanupReview::longListsStayQuick() {
  double opened[2] = {};
  double ticked[2] = {};
  const QString path = u"/c/temp/n3"_s;
  for (const int run : {0, 1}) {
    review({category(u"thumbs"_s, sizes(3)), category(u"temp"_s, sizes(run == 0 ? 500 : 50'000))});
    opened[run] = quickestMs(
        8, [&] { m_page->focusCategory(u"thumbs"_s); }, [&] { m_page->focusCategory(u"temp"_s); });
    QVERIFY(row(u"temp"_s)->active);
    ticked[run] = quickestMs(
        20, [&] { m_state->setItemSelected(u"temp"_s, path, true); },
        [&] { m_state->setItemSelected(u"temp"_s, path, false); });
  }
  qInfo("500 items: opened in %.1f ms, unticked in %.2f ms; 50,000 items: %.1f ms, %.2f ms", opened[0], ticked[0],
        opened[1], ticked[1]);
  QVERIFY(ticked[1] <= 2 * ticked[0]);
  QVERIFY(opened[1] <= 2 * opened[0]);
}

int main(int argc, char** argv) { return uitest::run<TestCleanupReview>(argc, argv); }

#include "tst_CleanupReview.moc"
