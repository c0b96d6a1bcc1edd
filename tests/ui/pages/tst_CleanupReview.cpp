// Where the user decides: the list and the footer.
#include "CleanupTest.h"
#include "ui/controls/Note.h"
#include "ui/controls/PageHeader.h"
#include "ui/pages/ShareBar.h"
#include "ui/visuals/StackBar.h"

#include <QElapsedTimer>
#include <QLayout>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>

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
  void footer();
  void footerNeedsAdmin();
  void tipFollowsTheSetting();
  void selectionIsShownInReviewOnly();
  void headerButtons();
  void listKeepsItsScrollPosition();
  void longListsStayQuick();
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
