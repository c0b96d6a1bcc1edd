// The Overview: what it holds, and what its figures and words say.
#include "OverviewTest.h"
#include "support/Marking.h"

using namespace overviewtest;
using ui::CategoryTile;
using ui::OverviewPage;

class TestOverviewPage : public OverviewTest {
  Q_OBJECT

 private slots:
  void initTestCase() { installOnce(); }
  void init() { reset(); }

  void header();
  void columnOrder();
  void heroHolds();
  void chipRow();
  void statsHold();
  void pageMargins_data();
  void pageMargins();
  void fitsTheSmallestWindow_data();
  void fitsTheSmallestWindow();
  void orbShowsTheDisk();
  void headline_data();
  void headline();
  void headlineWithResultsNamesTheAmount();
  void diskLine();
  void legend();
  void legendSwatches();
  void scanned_data();
  void scanned();
  void freedThisMonth();
  void freedFallsToZeroAtTheTurnOfTheMonth();
  void schedule_data();
  void schedule();
  void buttonsComeWithResults();
  void refreshesOn_data();
  void refreshesOn();
  void waitsWhileAnotherPageIsShown();
  void textsAreTranslatedInTheirContexts();
  void wordsOfThisHost();
};

void TestOverviewPage::header() {
  const Shown shown;
  const auto* header = shown.only<ui::PageHeader>();
  QCOMPARE(shown.page.layout()->itemAt(0)->widget(), header);
  QVERIFY(header->isAncestorOf(shown.rescan()));
  const auto lines = header->findChildren<QLabel*>();
  QCOMPARE(lines[0]->text(), u"Overview"_s);
  QCOMPARE(lines[1]->text(), u"Smart Scan"_s);
  QVERIFY(!shown.rescan()->isFilled()); // of the default kind
  QVERIFY(shown.rescan()->property("kind").toString().isEmpty());
  QVERIFY(!shown.rescan()->icon().isNull());
}

void TestOverviewPage::columnOrder() {
  const Shown shown;
  const auto* outer = qobject_cast<QVBoxLayout*>(shown.page.layout());
  QCOMPARE(outer->spacing(), 0);
  QCOMPARE(outer->contentsMargins(), QMargins());
  QCOMPARE(outer->stretch(1), 1);
  const auto* area = qobject_cast<QScrollArea*>(outer->itemAt(1)->widget());
  QVERIFY(area);
  const QLayout* column = area->widget()->layout();
  QCOMPARE(column->count(), 6);
  QCOMPARE(column->itemAt(0)->widget(), shown.orb()->parentWidget());
  QCOMPARE(column->itemAt(1)->sizeHint().height(), 14);
  QCOMPARE(column->itemAt(2)->widget(), shown.page.findChildren<ui::StatCard*>()[0]->parentWidget());
  QVERIFY(qobject_cast<QHBoxLayout*>(column->itemAt(3)->layout()));
  QCOMPARE(column->itemAt(4)->layout(), shown.grid());
  QVERIFY(column->itemAt(5)->spacerItem());
}

void TestOverviewPage::heroHolds() {
  const Shown shown;
  const auto* hero = qobject_cast<ui::Card*>(shown.orb()->parentWidget());
  QVERIFY(hero);
  const auto* row = qobject_cast<QHBoxLayout*>(hero->layout());
  QCOMPARE(row->spacing(), 30);
  QCOMPARE(row->contentsMargins(), QMargins(22, 22, 32, 22));
  QCOMPARE(row->itemAt(0)->widget(), shown.orb());
  QCOMPARE(row->itemAt(0)->alignment(), Qt::AlignVCenter);
  QCOMPARE(row->stretch(1), 1);

  const auto* text = qobject_cast<QVBoxLayout*>(row->itemAt(1)->layout());
  QCOMPARE(text->spacing(), 0);
  QCOMPARE(text->contentsMargins(), QMargins());
  QCOMPARE(text->count(), 11);
  for (const int stretch : {0, 10}) QVERIFY(text->itemAt(stretch)->spacerItem());
  const QList<std::pair<int, int>> gaps = {{2, 8}, {4, 10}, {6, 22}, {8, 22}};
  for (const auto& [index, height] : gaps) QCOMPARE(text->itemAt(index)->sizeHint().height(), height);
  const auto* eyebrow = qobject_cast<QLabel*>(text->itemAt(1)->widget());
  QCOMPARE(eyebrow->text(), u"Disk health"_s);
  QCOMPARE(eyebrow->font().capitalization(), QFont::AllUppercase);
  QCOMPARE(text->itemAt(3)->widget(), shown.only<ui::Headline>());
  QCOMPARE(shown.only<ui::Headline>()->minimumSizeHint().height(),
           QFontMetrics(Theme::get().font(30, 600)).lineSpacing());
  QCOMPARE(roleOf(text->itemAt(5)->widget()), u"sub"_s);
  const auto* legend = qobject_cast<QHBoxLayout*>(text->itemAt(7)->layout());
  QCOMPARE(legend->spacing(), 26);
  QCOMPARE(legend->contentsMargins(), QMargins());
}

void TestOverviewPage::chipRow() {
  const Shown shown;
  const auto* row = qobject_cast<ui::ChipRow*>(shown.heroText()->itemAt(9)->widget());
  QVERIFY(row);
  const auto chips = row->findChildren<ui::Chip*>();
  QCOMPARE(chips.size(), 2);
  const ui::Chip* guarded = chips[0];
  const ui::Chip* scan = chips[1];
  QCOMPARE(guarded->layout()->contentsMargins().left(), 24); // dotted
  QCOMPARE(guarded->shownText(), u"System files protected"_s);
  QCOMPARE(roleOf(guarded->text()), u"caption"_s);
  QVERIFY(qobject_cast<ui::ElidedLabel*>(guarded->text()));
  QCOMPARE(scan->layout()->contentsMargins().left(), 11);
  QCOMPARE(roleOf(scan->text()), u"mono"_s);
  QVERIFY(qobject_cast<ui::ElidedLabel*>(scan->text()));
  scan->text()->ensurePolished();
  QCOMPARE(scan->text()->font().pixelSize(), 12);
}

void TestOverviewPage::statsHold() {
  const Shown shown;
  const auto cards = shown.page.findChildren<ui::StatCard*>();
  QCOMPARE(cards.size(), 3);
  const auto* row = qobject_cast<QHBoxLayout*>(cards[0]->parentWidget()->layout());
  QCOMPARE(row->spacing(), 14);
  QCOMPARE(row->contentsMargins(), QMargins());
  for (int i = 0; i < 3; ++i) {
    QCOMPARE(row->itemAt(i)->widget(), cards[i]);
    QCOMPARE(row->stretch(i), 1);
  }
  const auto visualOf = [&](int index) { return cards[index]->layout()->itemAt(1)->widget(); };
  QVERIFY(qobject_cast<ui::Sparkline*>(visualOf(0)));
  QVERIFY(qobject_cast<ui::IconView*>(visualOf(1)));
  QCOMPARE(visualOf(1)->size(), QSize(26, 26));
  QVERIFY(qobject_cast<ui::IconTile*>(visualOf(2)));
  QCOMPARE(visualOf(2)->size(), QSize(30, 30));
  const ui::IconView history(u"history"_s, Tone::Accent, 26);
  const ui::IconTile calendar(u"calendar"_s, QColor(0xa8, 0x55, 0xf7), 30);
  QCOMPARE(pixels::rendered(*visualOf(1)), pixels::rendered(const_cast<ui::IconView&>(history)));
  QCOMPARE(pixels::rendered(*visualOf(2)), pixels::rendered(const_cast<ui::IconTile&>(calendar)));
}

void TestOverviewPage::pageMargins_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("side");
  QTest::newRow("mac") << true << 28;
  QTest::newRow("win") << false << 32;
}

void TestOverviewPage::pageMargins() {
  QFETCH(bool, mac);
  QFETCH(int, side);
  Theme::get().mac = mac;
  Shown shown;
  shown.show();
  const QWidget* hero = shown.orb()->parentWidget();
  QCOMPARE(hero->mapTo(&shown.page, QPoint(0, 0)).x(), side);
  const QScrollArea* area = shown.only<QScrollArea>();
  QCOMPARE(hero->width(), area->width() - 2 * side);
}

/// The narrowest window leaves the page 724 pixels: nothing may be cut off at its right.
void TestOverviewPage::fitsTheSmallestWindow_data() { pageMargins_data(); }

void TestOverviewPage::fitsTheSmallestWindow() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  Shown shown;
  shown.setVolume(99'900 * kGB, 88'800 * kGB, 12'300 * kGB);
  shown.setLastScan(QDateTime::currentDateTime().addDays(-1));
  for (const auto& results : {QList<CategoryResult>(), someResults()}) {
    shown.setResults(results);
    shown.page.resize(724, 604);
    shown.show();
    const QScrollArea* area = shown.only<QScrollArea>();
    QTRY_COMPARE(area->widget()->width(), area->viewport()->width());
    QVERIFY2(area->widget()->minimumSizeHint().width() <= area->viewport()->width(),
             qPrintable(QString::number(area->widget()->minimumSizeHint().width())));
  }
}

void TestOverviewPage::orbShowsTheDisk() {
  Shown shown;
  QCOMPARE(shown.orb()->disk().total, 1000 * kGB);
  QCOMPARE(shown.orb()->disk().used, 600 * kGB);
  QCOMPARE(shown.orb()->disk().cleanable, 0);
  QCOMPARE(shown.orb()->value(), u"400 GB"_s);
  QCOMPARE(shown.orb()->caption(), u"free of 1.0 TB"_s);
  QCOMPARE(shown.orb()->action(), u"Scan"_s);
  shown.setResults(someResults());
  QCOMPARE(shown.orb()->disk().cleanable, 8 * kGB);
  QCOMPARE(shown.orb()->action(), u"Review"_s);
}

void TestOverviewPage::headline_data() {
  QTest::addColumn<qint64>("total");
  QTest::addColumn<qint64>("available");
  QTest::addColumn<QString>("text");
  const QString fine = u"Keep your disk in shape"_s;
  const QString full = u"Your startup disk is almost full"_s;
  QTest::newRow("unknown disk") << qint64(0) << qint64(0) << fine;
  QTest::newRow("nothing but free space") << qint64(0) << 5 * kGB << fine;
  QTest::newRow("half") << 1000 * kGB << 500 * kGB << fine;
  QTest::newRow("exactly 85%") << 1000 * kGB << 150 * kGB << fine;
  QTest::newRow("one byte more") << 1000 * kGB << 150 * kGB - 1 << full;
  QTest::newRow("full") << 1000 * kGB << qint64(0) << full;
}

void TestOverviewPage::headline() {
  QFETCH(qint64, total);
  QFETCH(qint64, available);
  Shown shown;
  shown.setVolume(total, available);
  QTEST(shown.headline(), "text");
  QCOMPARE(shown.only<ui::Headline>()->accentLength(), 0);
  shown.setResults(someResults());
  QCOMPARE(shown.headline(), u"8.0 GB ready to clean"_s);
}

void TestOverviewPage::headlineWithResultsNamesTheAmount() {
  Shown shown;
  shown.setResults(someResults());
  const auto* headline = shown.only<ui::Headline>();
  QCOMPARE(headline->text().mid(headline->accentStart(), headline->accentLength()), u"8.0 GB"_s);
}

void TestOverviewPage::diskLine() {
  Shown shown;
  QCOMPARE(shown.diskLine(), u"400 GB available of 1.0 TB"_s);
  shown.setVolume(1000 * kGB, 400 * kGB, 1);
  QCOMPARE(shown.diskLine(), u"400 GB available of 1.0 TB · 1 KB purgeable"_s);
  shown.setVolume(1000 * kGB, 400 * kGB, 20 * kGB);
  QCOMPARE(shown.diskLine(), u"400 GB available of 1.0 TB · 20.0 GB purgeable"_s);
}

void TestOverviewPage::legend() {
  Shown shown;
  QCOMPARE(shown.legend(), (QStringList{u"Apps, documents & system, 600 GB"_s, u"Available, 400 GB"_s}));
  shown.setResults({found(u"temp"_s, 0)});
  QCOMPARE(shown.legend().size(), 2);
  shown.setResults(someResults());
  QCOMPARE(shown.legend(),
           (QStringList{u"Apps, documents & system, 592 GB"_s, u"Reclaimable, 8.0 GB"_s, u"Available, 400 GB"_s}));
  const QLayout* row = shown.heroText()->itemAt(7)->layout();
  QCOMPARE(row->count(), 4);
  QVERIFY(row->itemAt(3)->spacerItem());
  shown.setResults({});
  QCOMPARE(shown.legend().size(), 2);
}

void TestOverviewPage::legendSwatches() {
  Shown shown;
  shown.setResults(someResults());
  QList<QImage> swatches;
  for (const ui::LegendItem* item : shown.page.findChildren<ui::LegendItem*>()) {
    QWidget* swatch = item->layout()->itemAt(0)->layout()->itemAt(0)->widget();
    swatch->resize(8, 8);
    swatches << pixels::rendered(*swatch);
  }
  QImage gradient(8, 8, QImage::Format_ARGB32);
  QLinearGradient brush(0, 0, 8, 8);
  brush.setColorAt(0, QColor(0x63, 0x66, 0xf1));
  brush.setColorAt(1, QColor(0xa8, 0x55, 0xf7));
  QPainter(&gradient).fillRect(gradient.rect(), brush);
  for (const QPoint& at : {QPoint(2, 2), QPoint(5, 5)})
    QVERIFY(pixels::isNear(swatches[0].pixelColor(at), gradient.pixelColor(at)));
  QCOMPARE(swatches[1].pixelColor(4, 4), QColor(0x22, 0xd3, 0xee));
  QVERIFY(pixels::isNear(swatches[2].pixelColor(4, 4), Theme::get().track));
}

void TestOverviewPage::scanned_data() {
  QTest::addColumn<QDateTime>("when");
  QTest::addColumn<QString>("chip");
  QTest::addColumn<QStringList>("stat");
  const QDateTime now = QDateTime::currentDateTime();
  QTest::newRow("never") << QDateTime() << u"Never scanned"_s << QStringList{u"—"_s, u"Never scanned"_s};
  QTest::newRow("today") << now << u"Scanned today"_s << QStringList{u"Today"_s, u"Last scan"_s};
  QTest::newRow("yesterday") << now.addDays(-1) << u"Scanned yesterday"_s
                             << QStringList{u"Yesterday"_s, u"Last scan"_s};
}

void TestOverviewPage::scanned() {
  QFETCH(QDateTime, when);
  Shown shown;
  shown.setLastScan(when);
  QTEST(shown.scanChip(), "chip");
  QTEST(shown.stat(1), "stat");
}

void TestOverviewPage::freedThisMonth() {
  Shown shown;
  QCOMPARE(shown.stat(0), (QStringList{u"0 KB"_s, u"Freed this month"_s}));
  const QDate today = QDate::currentDate();
  AppSettings::instance().addFreed(3 * kGB, today);
  AppSettings::instance().addFreed(7 * kGB, today.addMonths(-5));
  AppSettings::instance().addFreed(9 * kGB, today.addMonths(-6)); // too long ago
  QCOMPARE(shown.stat(0), (QStringList{u"3.0 GB"_s, u"Freed this month"_s}));
  QCOMPARE(shown.only<ui::Sparkline>()->valueText(), u"7.0 GB, 0 KB, 0 KB, 0 KB, 0 KB, 3.0 GB"_s);
}

void TestOverviewPage::freedFallsToZeroAtTheTurnOfTheMonth() {
  AppSettings::instance().addFreed(3 * kGB, QDate::currentDate().addMonths(-1));
  const Shown shown;
  QCOMPARE(shown.stat(0).first(), u"0 KB"_s);
  QVERIFY(shown.only<ui::Sparkline>()->valueText().endsWith(u"3.0 GB, 0 KB"_s));
}

void TestOverviewPage::schedule_data() {
  QTest::addColumn<int>("stored");
  QTest::addColumn<QString>("word");
  QTest::newRow("0") << 0 << u"Off"_s;
  QTest::newRow("1") << 1 << u"Weekly"_s;
  QTest::newRow("2") << 2 << u"Monthly"_s;
  // The settings know no such choice, and give the default instead.
  QTest::newRow("3") << 3 << u"Weekly"_s;
}

void TestOverviewPage::schedule() {
  QFETCH(int, stored);
  QFETCH(QString, word);
  const Shown shown;
  AppSettings::instance().put("auto/schedule", stored);
  QCOMPARE(shown.stat(2), (QStringList{word, u"Scheduled scan"_s}));
}

void TestOverviewPage::buttonsComeWithResults() {
  Shown shown;
  shown.show();
  QVERIFY(!shown.rescan()->isVisible());
  QVERIFY(!shown.seeAll()->isVisible());
  shown.setResults(someResults());
  QVERIFY(shown.rescan()->isVisible());
  QVERIFY(shown.seeAll()->isVisible());
  shown.setResults({});
  QVERIFY(!shown.rescan()->isVisible());
  QVERIFY(!shown.seeAll()->isVisible());
}

void TestOverviewPage::refreshesOn_data() {
  QTest::addColumn<int>("source");
  const char* const names[] = {"results", "volume", "phase", "settings", "theme"};
  for (int i = 0; i < int(std::size(names)); ++i) QTest::newRow(names[i]) << i;
}

void TestOverviewPage::refreshesOn() {
  QFETCH(int, source);
  Shown shown;
  shown.state.volume.availableBytes = 123 * kGB;
  const std::function<void()> tell[] = {
      [&] { emit shown.state.resultsChanged(); },
      [&] { emit shown.state.volumeChanged(); },
      [&] { emit shown.state.phaseChanged(); },
      [] { emit AppSettings::instance().changed(); },
      [] { Theme::get().refresh(); },
  };
  QCOMPARE(shown.orb()->value(), u"400 GB"_s);
  tell[source]();
  QCOMPARE(shown.orb()->value(), u"123 GB"_s);
}

void TestOverviewPage::waitsWhileAnotherPageIsShown() {
  Shown shown;
  shown.setResults(someResults());
  shown.show();
  const QPointer<CategoryTile> tile = shown.tiles()[0];
  shown.page.hide();
  shown.setVolume(1000 * kGB, 123 * kGB);
  QCOMPARE(shown.tiles()[0], tile);
  shown.page.show();
  QCOMPARE(shown.orb()->value(), u"123 GB"_s);
  const QPointer<CategoryTile> renewed = shown.tiles()[0];
  QVERIFY(renewed != tile);
  shown.page.hide();
  shown.page.show(); // nothing has changed
  QCOMPARE(shown.tiles()[0], renewed);
}

void TestOverviewPage::textsAreTranslatedInTheirContexts() {
  Marking marking;
  QCoreApplication::installTranslator(&marking);
  Shown shown;
  shown.setVolume(1000 * kGB, 400 * kGB, 20 * kGB);
  QStringList texts{shown.headline(), shown.orb()->caption(), shown.orb()->action(), shown.diskLine()};
  for (int i = 0; i < 3; ++i) texts << shown.stat(i);
  for (const QLabel* label : shown.page.findChildren<QLabel*>()) texts << label->text();
  for (const ui::Button* button : shown.page.findChildren<ui::Button*>()) texts << button->text();
  QCoreApplication::removeTranslator(&marking);

  const QString all = texts.join(u'\n');
  for (const QString& text :
       {u"Keep your disk in shape"_s, u"free of "_s, u"Scan"_s, u"Overview"_s, u"Smart Scan"_s, u"Rescan"_s,
        u"See all"_s, u"Disk health"_s, u"System files protected"_s, u"Never scanned"_s, u"Freed this month"_s,
        u"Scheduled scan"_s, u"Weekly"_s, u"Apps, documents & system"_s, u"Available"_s, u"What Smart Scan looks at"_s})
    QVERIFY2(all.contains(u"[OverviewPage]"_s + text), qPrintable(text));
  QVERIFY(shown.diskLine().startsWith(u"[Sidebar]"_s));
  QVERIFY2(shown.diskLine().contains(u" · [OverviewPage]"_s), qPrintable(shown.diskLine()));
}

/// What this desktop doesn't have isn't spoken of.
void TestOverviewPage::wordsOfThisHost() {
  const QRegularExpression foreign(u"finder|full disk access|xcode|mac|applications|menu bar|windows"_s,
                                   QRegularExpression::CaseInsensitiveOption);
  Shown shown;
  for (const bool withResults : {false, true}) {
    QList<CategoryResult> results;
    for (const CategoryDef& def : categories::forThisPlatform()) {
      results << CategoryResult();
      results.last().def = def;
      results.last().bytes = kGB;
    }
    shown.setResults(withResults ? results : QList<CategoryResult>());
    QStringList texts;
    for (const QWidget* widget : shown.page.findChildren<QWidget*>()) texts << widget->toolTip();
    for (const QLabel* label : shown.page.findChildren<QLabel*>()) texts << label->text();
    texts << shown.headline() << shown.orb()->valueText();
    QCOMPARE(shown.tiles().size(), 8);
    for (const QString& text : texts) QVERIFY2(!text.contains(foreign), qPrintable(text));
  }
}

int main(int argc, char** argv) { return uitest::run<TestOverviewPage>(argc, argv); }

#include "tst_OverviewPage.moc"
