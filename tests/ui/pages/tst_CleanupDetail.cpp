// Where the user decides: the detail of one category.
#include "CleanupTest.h"
#include "ui/controls/Note.h"
#include "ui/pages/CleanupDetail.h"
#include "ui/pages/CleanupNotes.h"

#include <QLayout>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>

using namespace cleanuptest;

class TestCleanupDetail : public CleanupTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void detailOfAnUnknownCategory();
  void detailHeader();
  void blurbOfWhatCannotBeUndone();
  void accessNotes_data();
  void accessNotes();
  void runningNotes();
  void longNoteIsWhole();
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
  void agesGiveWayToNames();

 private:
  [[nodiscard]] int shownItems() const { return int(itemBoxes().size()); }
  void showMore() {
    for (QPushButton* one : detail()->findChildren<QPushButton*>())
      if (one->text().endsWith(u"more"_s)) return QTest::mouseClick(one, Qt::LeftButton);
    QFAIL("there are no more");
  }
};

void TestCleanupDetail::detailOfAnUnknownCategory() {
  review({category(u"temp"_s, {1})});
  m_page->focusCategory(u"no such"_s);
  QCOMPARE(texts(detail()), QStringList{u"Nothing left to clean. Rescan any time."_s});
  QVERIFY(!row(u"temp"_s)->active);
}

void TestCleanupDetail::detailHeader() {
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

void TestCleanupDetail::blurbOfWhatCannotBeUndone() {
  CategoryResult trash = category(u"trash"_s, {1});
  trash.def.blurb = u"Gone & forgotten."_s;
  QCOMPARE(trash.def.safety, Permanent);
  review({trash});
  QCOMPARE(noteIn(detail())->text(), u"Gone &amp; forgotten."_s);
  QCOMPARE(nameOf(noteIn(detail())), trash.def.blurb);
  QVERIFY(!detailSays(trash.def.blurb)); // as plain text
}

void TestCleanupDetail::accessNotes_data() {
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

void TestCleanupDetail::accessNotes() {
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

void TestCleanupDetail::runningNotes() {
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

void TestCleanupDetail::longNoteIsWhole() {
  CategoryResult result = category(u"browser"_s, sizes(200));
  for (qsizetype i = 0; i < result.items.size(); ++i) result.items[i].owner = u"Application %1"_s.arg(i);
  m_page->resize(724, 640);
  review({result});
  const ui::Note* note = noteIn(detail());
  QVERIFY(note->width() < 320);
  QCOMPARE(note->height(), note->layout()->totalHeightForWidth(note->width()));
}

void TestCleanupDetail::showsInTheFileManager() {
  CategoryResult result = category(u"temp"_s, {2, 1});
  review({result});
  QVERIFY(button(detail(), u"Show in Files"_s));
  result.items[0].path.clear();
  review({result});
  QVERIFY(!button(detail(), u"Show in Files"_s));
  QVERIFY(detailSays(u"Largest items"_s));
}

void TestCleanupDetail::itemRows() {
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

void TestCleanupDetail::itemIcons_data() {
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

void TestCleanupDetail::itemIcons() {
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

void TestCleanupDetail::namesThatLookLikeMarkup() {
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

void TestCleanupDetail::remainder() {
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

void TestCleanupDetail::limitsAreKeptUntilNewResults() {
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

void TestCleanupDetail::growingKeepsTheScrollPosition() {
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

void TestCleanupDetail::recycleBinHasNoBoxes() {
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

void TestCleanupDetail::tickingAnItemLeavesTheDetail() {
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

void TestCleanupDetail::lastItemUnticksTheCategory() {
  review({category(u"temp"_s, {2, 1})});
  for (QCheckBox* box : itemBoxes()) QTest::mouseClick(box, Qt::LeftButton);
  QCOMPARE(m_state->selectionState(u"temp"_s), int(Qt::Unchecked));
  QCOMPARE(find<QCheckBox>("detailSelectAll")->checkState(), Qt::Unchecked);
  QTest::mouseClick(itemBoxes().at(1), Qt::LeftButton); // then it is the only one
  QVERIFY(!itemBoxes().at(0)->isChecked());
  QCOMPARE(m_state->selectedBytes(), 1);
}

void TestCleanupDetail::detailSelectAll() {
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

void TestCleanupDetail::agesGiveWayToNames() {
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

int main(int argc, char** argv) { return uitest::run<TestCleanupDetail>(argc, argv); }

#include "tst_CleanupDetail.moc"
