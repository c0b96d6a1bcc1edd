// The Cleanup page's measures: margins, gaps, shares of the room, roles and styles of its texts, and their contexts.
#include "CleanupTest.h"
#include "support/Marking.h"
#include "ui/controls/Button.h"
#include "ui/controls/Divider.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/FooterBar.h"
#include "ui/controls/GradientText.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/Pill.h"
#include "ui/pages/CleanupCategories.h"
#include "ui/pages/CleanupDetail.h"
#include "ui/pages/DoneBadge.h"
#include "ui/pages/ShareBar.h"
#include "ui/pages/furniture.h"
#include "ui/visuals/ProgressRing.h"
#include "ui/visuals/ScanStepRow.h"
#include "ui/visuals/StackBar.h"

#include <QBoxLayout>
#include <QScrollArea>

using namespace cleanuptest;

namespace {

QString roleOf(const QWidget* widget) { return widget->property("role").toString(); }

const QBoxLayout* boxOf(QLayoutItem* item) { return qobject_cast<const QBoxLayout*>(item->layout()); }
const QBoxLayout* boxOf(const QWidget* widget) { return qobject_cast<const QBoxLayout*>(widget->layout()); }

/// The layout, at any depth, that holds @p widget as an item of its own.
const QBoxLayout* holderOf(const QWidget* widget) {
  for (const QBoxLayout* box : widget->parentWidget()->findChildren<QBoxLayout*>())
    if (box->indexOf(widget) >= 0) return box;
  return nullptr;
}

const QLabel* labelSaying(const QWidget* widget, const QString& text) {
  for (const QLabel* label : widget->findChildren<QLabel*>())
    if (label->text() == text && label->isVisibleTo(widget)) return label;
  return nullptr;
}

} // namespace

class TestCleanupLayout : public CleanupTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void viewsFillThePage();
  void emptyView();
  void scanView_data();
  void scanView();
  void reviewView_data();
  void reviewView();
  void footer();
  void list();
  void listRow();
  void blockedListRow();
  void detailHead();
  void sizeGoesBelowAnEndlessWord();
  void detailItems();
  void detailEnds();
  void cleaningView();
  void doneView();
  void doneCounters();
  void contexts();

 private:
  void metrics_data() {
    QTest::addColumn<bool>("mac");
    QTest::addColumn<int>("side");
    QTest::newRow("mac") << true << 28;
    QTest::newRow("win") << false << 32;
  }
  /// Builds the page in the metrics of the test's row.
  void rebuild() {
    QFETCH(const bool, mac);
    Theme::get().mac = mac;
    m_page.reset();
    makePage();
  }
  void showItems(qsizetype count) {
    CategoryResult temp = category(u"temp"_s, sizes(count));
    temp.items[0].modified = QDateTime::currentMSecsSinceEpoch();
    review({temp});
  }
  [[nodiscard]] const QBoxLayout* detailColumn() const { return boxOf(qobject_cast<QScrollArea*>(detail())->widget()); }
  /// Where the row of the first item is in the column.
  [[nodiscard]] int firstItemAt() const {
    for (int i = 0; i < detailColumn()->count(); ++i)
      if (const QBoxLayout* row = boxOf(detailColumn()->itemAt(i)); row && row->indexOf(itemBoxes().at(0)) >= 0)
        return i;
    return -1;
  }
};

void TestCleanupLayout::viewsFillThePage() {
  const auto* page = boxOf(m_page.get());
  QCOMPARE(page->spacing(), 0);
  QCOMPARE(page->contentsMargins(), QMargins());
  QCOMPARE(page->itemAt(0)->widget(), find("views"));
  QCOMPARE(find<QStackedWidget>("views")->count(), 5);
}

void TestCleanupLayout::emptyView() {
  const auto* root = boxOf(view());
  QCOMPARE(root->spacing(), 0);
  QCOMPARE(root->contentsMargins(), QMargins());
  QVERIFY(qobject_cast<ui::PageHeader*>(root->itemAt(0)->widget()));
  QCOMPARE(root->stretch(1), 1);
  const QWidget* holder = button(view(), u"Start Smart Scan"_s)->parentWidget();
  QCOMPARE(holder->maximumWidth(), 460);
  const auto* block = boxOf(holder);
  QCOMPARE(block->count(), 6);
  QVERIFY(qobject_cast<ui::IconTile*>(block->itemAt(0)->widget()));
  QCOMPARE(block->itemAt(0)->alignment(), Qt::AlignHCenter);
  QCOMPARE(block->itemAt(1)->sizeHint().height(), 8);
  QCOMPARE(block->itemAt(4)->sizeHint().height(), 12);
  QCOMPARE(block->itemAt(5)->alignment(), Qt::AlignHCenter);
  // The block is held by a stretch of none above and one of two below.
  const auto* column = boxOf(holder->parentWidget());
  QCOMPARE(column->count(), 3);
  QCOMPARE(column->stretch(0), 0);
  QCOMPARE(column->stretch(2), 2);
}

void TestCleanupLayout::scanView_data() { metrics_data(); }

void TestCleanupLayout::scanView() {
  QFETCH(const int, side);
  rebuild();
  m_state->scanDefs = categories::forLinux().mid(0, 2);
  m_state->scanResults = QList<CategoryResult>(2);
  m_state->setPhase(AppState::Scanning);
  const auto* root = boxOf(view());
  QCOMPARE(root->spacing(), 0);
  QCOMPARE(texts(root->itemAt(0)->widget()), QStringList({u"In progress"_s, u"Scanning"_s}));
  QVERIFY(button(view(), u"Stop"_s)->property("kind").toString().isEmpty());
  QCOMPARE(root->stretch(1), 1);
  const auto* body = boxOf(root->itemAt(1));
  QCOMPARE(body->spacing(), 18);
  QCOMPARE(body->contentsMargins(), QMargins(side, 0, side, 28));
  QCOMPARE(body->stretch(0), 2);
  QCOMPARE(body->stretch(1), 3);
  QCOMPARE(texts(body->itemAt(0)->widget()).filter(u"e"_s),
           QStringList({u"Items checked"_s, u"Elapsed"_s, u"Remaining"_s}));
  const QWidget* steps = body->itemAt(1)->widget();
  QCOMPARE(boxOf(steps)->contentsMargins(), QMargins(8, 8, 8, 8));
  QCOMPARE(boxOf(steps)->spacing(), 0);
  const auto* rows = boxOf(boxOf(steps)->itemAt(0));
  QCOMPARE(rows->spacing(), 2);
  QCOMPARE(rows->count(), 2);
  QVERIFY(boxOf(steps)->itemAt(1)->spacerItem());
}

void TestCleanupLayout::reviewView_data() { metrics_data(); }

void TestCleanupLayout::reviewView() {
  QFETCH(const int, side);
  rebuild();
  review({category(u"temp"_s, {1})});
  const auto* root = boxOf(view());
  QCOMPARE(root->spacing(), 0);
  QCOMPARE(root->contentsMargins(), QMargins());
  QCOMPARE(button(view(), u"Select recommended"_s)->property("kind").toString(), u"ghost"_s);
  const QPushButton* rescan = button(view(), u"Rescan"_s);
  QVERIFY(rescan->property("kind").toString().isEmpty());
  QVERIFY(!rescan->icon().isNull());
  QCOMPARE(root->stretch(1), 1);
  const auto* body = boxOf(root->itemAt(1));
  QCOMPARE(body->spacing(), 14);
  QCOMPARE(body->contentsMargins(), QMargins(side, 0, side, 0));
  const QWidget* list = body->itemAt(0)->widget();
  const QWidget* panel = body->itemAt(1)->widget();
  QCOMPARE(list, view()->findChild<ui::CleanupCategories*>());
  QCOMPARE(panel, view()->findChild<ui::CleanupDetail*>());
  QCOMPARE(body->stretch(0), 10);
  QCOMPARE(body->stretch(1), 11);
  QCOMPARE(list->minimumWidth(), 280);
  QCOMPARE(panel->minimumWidth(), 340);
  for (const QWidget* card : {list, panel}) {
    QCOMPARE(boxOf(card)->contentsMargins(), QMargins(1, 1, 1, 1));
    const auto* area = qobject_cast<QScrollArea*>(boxOf(card)->itemAt(0)->widget());
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->frameShape(), QFrame::NoFrame);
    QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
  }
}

void TestCleanupLayout::footer() {
  review({category(u"temp"_s, {1})});
  const QHBoxLayout* row = view()->findChild<ui::FooterBar*>()->row();
  QCOMPARE(row->itemAt(0)->widget(), find("selectionLabel"));
  QCOMPARE(row->itemAt(1)->widget(), view()->findChild<ui::StackBar*>());
  QCOMPARE(row->itemAt(2)->widget(), cleanButton());
  QCOMPARE(row->stretch(1), 1);
  QCOMPARE(roleOf(find("selectionLabel")), u"sub"_s);
  QCOMPARE(cleanButton()->property("kind").toString(), u"primary"_s);
  QCOMPARE(cleanButton()->property("size").toString(), u"lg"_s);
}

void TestCleanupLayout::list() {
  review({category(u"temp"_s, {1})});
  const auto* column = boxOf(row(u"temp"_s)->parentWidget());
  QCOMPARE(column->spacing(), 0);
  QCOMPARE(column->contentsMargins(), QMargins(8, 8, 8, 8));
  const auto* top = boxOf(column->itemAt(0));
  QCOMPARE(top->contentsMargins(), QMargins(10, 6, 10, 6));
  QCOMPARE(top->itemAt(0)->widget(), find("selectAll"));
  QVERIFY(find<QCheckBox>("selectAll")->isTristate());
  QCOMPARE(boxOf(column->itemAt(1))->spacing(), 2);
  QVERIFY(column->itemAt(2)->spacerItem());
  const QLabel* heading = labelSaying(view(), u"SAFE TO CLEAN"_s);
  QCOMPARE(roleOf(heading), u"micro"_s);
  QCOMPARE(heading->font().pixelSize(), 11);
}

void TestCleanupLayout::listRow() {
  review({category(u"temp"_s, {1'000'000})});
  const auto* line = boxOf(row(u"temp"_s));
  QCOMPARE(line->spacing(), 12);
  QCOMPARE(line->contentsMargins(), QMargins(12, 10, 12, 10));
  QCOMPARE(line->count(), 4);
  QCOMPARE(line->itemAt(0)->widget(), rowBox(u"temp"_s));
  QCOMPARE(qobject_cast<ui::IconTile*>(line->itemAt(1)->widget())->size(), QSize(30, 30));
  QCOMPARE(line->stretch(2), 1);
  const auto* column = boxOf(line->itemAt(2));
  QCOMPARE(column->spacing(), 7);
  QCOMPARE(column->itemAt(0)->widget()->styleSheet(), u"font-weight: 500;"_s);
  const QWidget* bar = column->itemAt(1)->widget();
  QCOMPARE(bar->minimumHeight(), 3);
  QCOMPARE(bar->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
  const auto* size = qobject_cast<QLabel*>(line->itemAt(3)->widget());
  QCOMPARE(size->text(), u"1 MB"_s);
  QCOMPARE(roleOf(size), u"num"_s);
  QCOMPARE(size->minimumWidth(), 72);
  QCOMPARE(size->alignment(), Qt::AlignRight | Qt::AlignVCenter);
  QVERIFY(row(u"temp"_s)->testAttribute(Qt::WA_Hover));
}

void TestCleanupLayout::blockedListRow() {
  review({category(u"temp"_s, {1}), blocked(u"logs"_s)});
  const auto* line = boxOf(row(u"logs"_s));
  QCOMPARE(line->count(), 3); // without a size
  const auto* reason = boxOf(boxOf(line->itemAt(2))->itemAt(1));
  QCOMPARE(reason->spacing(), 5);
  QCOMPARE(qobject_cast<ui::IconView*>(reason->itemAt(0)->widget())->size(), QSize(13, 13));
  QCOMPARE(reason->stretch(1), 1);
  QCOMPARE(roleOf(reason->itemAt(1)->widget()), u"warn"_s);
  QCOMPARE(reason->itemAt(1)->widget()->styleSheet(), u"font-size: 12px;"_s);
}

void TestCleanupLayout::detailHead() {
  showItems(2);
  QCOMPARE(detailColumn()->spacing(), 0);
  QCOMPARE(detailColumn()->contentsMargins(), QMargins(22, 22, 22, 22));
  const auto* header = boxOf(detailColumn()->itemAt(0));
  QCOMPARE(header->spacing(), 16);
  QCOMPARE(header->itemAt(0)->widget()->size(), QSize(44, 44));
  QCOMPARE(header->itemAt(0)->alignment(), Qt::AlignTop);
  QCOMPARE(header->stretch(1), 1);
  const auto* title = boxOf(header->itemAt(1));
  QCOMPARE(title->spacing(), 4);
  QCOMPARE(roleOf(title->itemAt(0)->widget()), u"h2"_s);
  QCOMPARE(boxOf(title->itemAt(1))->spacing(), 8);
  QVERIFY(qobject_cast<ui::Pill*>(boxOf(title->itemAt(1))->itemAt(0)->widget()));
  const auto* value = find<QLabel>("detailValue");
  QCOMPARE(roleOf(value), u"value"_s);
  QCOMPARE(value->styleSheet(), u"font-size: 26px;"_s);
  QVERIFY(value->alignment() & Qt::AlignRight);
  QCOMPARE(roleOf(find("detailCaption")), u"mono"_s);
  QVERIFY(find<QLabel>("detailCaption")->alignment() & Qt::AlignRight);
  QCOMPARE(roleOf(detailColumn()->itemAt(1)->widget()), u"sub"_s);
  QCOMPARE(detailColumn()->itemAt(2)->sizeHint().height(), 18);
  const auto* heading = boxOf(detailColumn()->itemAt(3));
  QCOMPARE(heading->contentsMargins(), QMargins(0, 22, 0, 8));
  QCOMPARE(button(detail(), u"Show in Files"_s)->property("kind").toString(), u"link"_s);
  QVERIFY(qobject_cast<ui::Divider*>(detailColumn()->itemAt(4)->widget()));
}

void TestCleanupLayout::sizeGoesBelowAnEndlessWord() {
  CategoryResult temp = category(u"temp"_s, sizes(2));
  temp.def.title = u"Zwischenspeicherbereinigungen und mehr"_s;
  review({temp});
  const auto isBelow = [this] {
    const auto* header = boxOf(detailColumn()->itemAt(0));
    return find("detailValue")->mapTo(detail(), QPoint()).x() < header->geometry().center().x();
  };
  m_page->resize(1400, 780);
  settle();
  QVERIFY(!isBelow());
  QVERIFY(find<QLabel>("detailValue")->alignment() & Qt::AlignRight);
  m_page->resize(724, 600);
  settle();
  QVERIFY(isBelow());
  QVERIFY(find<QLabel>("detailValue")->alignment() & Qt::AlignLeft);
  m_page->resize(1400, 780);
  settle();
  QVERIFY(!isBelow());
}

void TestCleanupLayout::detailItems() {
  showItems(2);
  const auto* all = holderOf(find("detailSelectAll"));
  QCOMPARE(all->contentsMargins(), QMargins(2, 10, 2, 10));
  const int at = firstItemAt();
  const auto* item = boxOf(detailColumn()->itemAt(at));
  QCOMPARE(item->spacing(), 12);
  QCOMPARE(item->contentsMargins(), QMargins(2, 8, 2, 8));
  QVERIFY(qobject_cast<ui::Divider*>(detailColumn()->itemAt(at - 1)->widget()));
  QVERIFY(qobject_cast<ui::Divider*>(detailColumn()->itemAt(at + 1)->widget()));
  QCOMPARE(item->stretch(1), 1);
  const auto* text = boxOf(item->itemAt(1));
  QCOMPARE(text->spacing(), 10);
  QCOMPARE(qobject_cast<ui::IconView*>(text->itemAt(0)->widget())->size(), QSize(18, 18));
  QCOMPARE(text->stretch(1), 1);
  QCOMPARE(boxOf(text->itemAt(1))->spacing(), 1);
  QCOMPARE(roleOf(boxOf(text->itemAt(1))->itemAt(1)->widget()), u"mono"_s);
  const auto* age = qobject_cast<ui::ElidedLabel*>(item->itemAt(2)->widget());
  QCOMPARE(age->text(), u"Today"_s);
  QCOMPARE(roleOf(age), u"micro"_s);
  const auto* size = qobject_cast<QLabel*>(item->itemAt(3)->widget());
  QCOMPARE(roleOf(size), u"num"_s);
  QCOMPARE(size->alignment(), Qt::AlignRight | Qt::AlignVCenter);
}

void TestCleanupLayout::detailEnds() {
  showItems(16);
  const auto* line = holderOf(button(detail(), u"Show 1 more"_s));
  QCOMPARE(line->spacing(), 12);
  QCOMPARE(line->contentsMargins(), QMargins(12, 9, 2, 0));
  QCOMPARE(roleOf(line->itemAt(0)->widget()), u"sub"_s);
  QCOMPARE(button(detail(), u"Show 1 more"_s)->property("kind").toString(), u"link"_s);
  QVERIFY(detailColumn()->itemAt(detailColumn()->count() - 1)->spacerItem());
}

void TestCleanupLayout::cleaningView() {
  m_state->setPhase(AppState::Cleaning);
  QCOMPARE(texts(boxOf(view())->itemAt(0)->widget()), QStringList({u"In progress"_s, u"Cleaning"_s}));
  QCOMPARE(boxOf(view())->stretch(1), 1);
  const QWidget* holder = find("cleanPath")->parentWidget();
  QCOMPARE(holder->maximumWidth(), 700);
  const auto* block = boxOf(holder);
  QCOMPARE(block->spacing(), 16);
  QCOMPARE(block->contentsMargins(), QMargins());
  QCOMPARE(block->itemAt(0)->widget(), view()->findChild<ui::ProgressRing*>());
  QCOMPARE(block->itemAt(0)->alignment(), Qt::AlignHCenter);
  QCOMPARE(roleOf(find("cleanPath")), u"mono"_s);
  QCOMPARE(find<QLabel>("cleanPath")->alignment(), Qt::Alignment(Qt::AlignCenter));
}

void TestCleanupLayout::doneView() {
  m_state->setPhase(AppState::Done);
  const auto* badge = view()->findChild<ui::DoneBadge*>();
  QCOMPARE(badge->parentWidget()->maximumWidth(), 640);
  const auto* column = boxOf(badge->parentWidget());
  QCOMPARE(column->spacing(), 6);
  QCOMPARE(column->count(), 13);
  const QList<std::pair<int, int>> gaps = {{0, 40}, {2, 6}, {6, 16}, {8, 12}, {11, 18}};
  for (const auto& [index, height] : gaps) QCOMPARE(column->itemAt(index)->sizeHint().height(), height);
  QCOMPARE(column->itemAt(1)->widget(), badge);
  QCOMPARE(column->itemAt(1)->alignment(), Qt::AlignHCenter);
  const auto* eyebrow = qobject_cast<QLabel*>(column->itemAt(3)->widget());
  QCOMPARE(eyebrow->text(), u"Cleanup complete"_s);
  QCOMPARE(eyebrow->alignment(), Qt::Alignment(Qt::AlignCenter));
  const auto* freed = qobject_cast<ui::GradientText*>(column->itemAt(4)->widget());
  QCOMPARE(freed->stops, QList<QColor>({QColor(0x34, 0xd3, 0x99), QColor(0x22, 0xd3, 0xee)}));
  QCOMPARE(freed->sizeHint().height(), QFontMetrics(Theme::get().mono(54, 600)).height());
  QCOMPARE(column->itemAt(5)->widget(), find("doneSummary"));
  QCOMPARE(roleOf(find("doneSummary")), u"sub"_s);
  QVERIFY(find<QLabel>("doneSummary")->wordWrap());
  QCOMPARE(column->itemAt(9)->widget(), find("skippedNote"));
  QCOMPARE(column->itemAt(10)->widget(), find("adminNote"));
  const auto* buttons = boxOf(column->itemAt(12));
  QCOMPARE(buttons->spacing(), 10);
  QCOMPARE(buttons->itemAt(1)->widget(), button(view(), u"View log"_s));
  QCOMPARE(buttons->itemAt(2)->widget(), button(view(), u"Done"_s));
  QVERIFY(button(view(), u"View log"_s)->property("kind").toString().isEmpty());
  QCOMPARE(button(view(), u"Done"_s)->property("kind").toString(), u"primary"_s);
}

void TestCleanupLayout::doneCounters() {
  m_state->setPhase(AppState::Done);
  const auto* row = boxOf(boxOf(view()->findChild<ui::DoneBadge*>()->parentWidget())->itemAt(7));
  QCOMPARE(row->spacing(), 40);
  QCOMPARE(row->count(), 4);
  const QString captions[] = {u"Available before"_s, u"Available now"_s};
  const char* const values[] = {"beforeValue", "nowValue"};
  for (const int i : {0, 1}) {
    const auto* counter = boxOf(row->itemAt(i + 1));
    QCOMPARE(counter->itemAt(0)->widget(), find(values[i]));
    QCOMPARE(qobject_cast<QLabel*>(counter->itemAt(1)->widget())->text(), captions[i]);
    QCOMPARE(counter->itemAt(1)->widget()->styleSheet(), u"font-size: 12px;"_s);
  }
  QCOMPARE(find("beforeValue")->styleSheet(), u"font-size: 17px;"_s);
}

void TestCleanupLayout::contexts() {
  Marking marking;
  QCoreApplication::installTranslator(&marking);
  m_page.reset();
  makePage();
  CategoryResult temp = category(u"temp"_s, sizes(16));
  temp.items[0].owner = u"Fox"_s;
  review({temp, blocked(u"logs"_s), category(u"update"_s, {1}), category(u"trash"_s, {1})});
  m_state->report.runningApps = {u"Fox"_s};
  m_state->report.skipped = 1;
  m_state->report.skippedSamples = {u"/a"_s};
  m_page->refreshDone();
  m_page->refreshScan();
  QStringList all;
  for (const QLabel* label : m_page->findChildren<QLabel*>()) all << label->text();
  for (const QAbstractButton* one : m_page->findChildren<QAbstractButton*>()) all << one->text() << one->toolTip();
  for (const ui::Note* note : m_page->findChildren<ui::Note*>()) all << note->text();
  QCoreApplication::removeTranslator(&marking);

  for (const QString& text : {u"Cleanup"_s,
                              u"Nothing scanned yet"_s,
                              u"Find caches, temporary files and leftovers."_s,
                              u"Start Smart Scan"_s,
                              u"Scanning"_s,
                              u"In progress"_s,
                              u"Stop"_s,
                              u"Items checked"_s,
                              u"Elapsed"_s,
                              u"Remaining"_s,
                              u"Select recommended"_s,
                              u"Rescan"_s,
                              u"Select all"_s,
                              u"SAFE TO CLEAN"_s,
                              u"REVIEW BEFORE CLEANING"_s,
                              u"CANNOT BE UNDONE"_s,
                              u"No permission to read"_s,
                              u"Largest items"_s,
                              u"deleted permanently"_s,
                              u"Cleaning"_s,
                              u"Cleanup complete"_s,
                              u"Items were deleted permanently."_s,
                              u"Available before"_s,
                              u"Available now"_s,
                              u"View log"_s,
                              u"Done"_s})
    QVERIFY2(all.contains(u"[CleanupPage]"_s + text), qPrintable(text));
  // Those with something put in.
  for (const QString& text : {u" can be cleaned"_s, u" items"_s, u"Fox is open. Quit it to include its cache."_s,
                              u"Fox is running"_s, u"and 1 more items"_s, u"Show 1 more"_s, u"Show in "_s, u"Clean "_s,
                              u" file(s) skipped</b>"_s, u"For example: /a"_s, u"<b>Left caches of"_s}) {
    const bool said = std::any_of(all.cbegin(), all.cend(), [&](const QString& one) {
      return one.contains(u"[CleanupPage]"_s) && one.contains(text);
    });
    QVERIFY2(said, qPrintable(text));
  }
  QVERIFY(all.filter(u"[OverviewPage]Scanned "_s).size() == 1);
}

int main(int argc, char** argv) { return uitest::run<TestCleanupLayout>(argc, argv); }

#include "tst_CleanupLayout.moc"
