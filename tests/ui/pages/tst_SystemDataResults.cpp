// What the System Data page shows of a measuring: the headline, the two lists, their words on both hosts, what the
// buttons do, and how all that stays usable by keyboard while it is built anew.
#include "SystemDataTest.h"

#include "ui/controls/Divider.h"
#include "ui/controls/Note.h"
#include "ui/controls/Spinner.h"
#include "ui/visuals/StackBar.h"

#include <QHelpEvent>
#include <QPointer>
#include <QToolTip>

using namespace systemdatatest;
using ui::SystemDataRow;
using windowtest::shows;

namespace {

const QString kWhyMac =
    u"<b>Why Storage settings shows a bigger number</b><br>macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can't see protected folders, so its total is lower than what macOS reports."_s;
const QString kWhyLinux =
    u"Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once."_s;

constexpr const char* kHosts[] = {"linux", "mac"};

} // namespace

class TestSystemDataResults : public SystemDataTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

  void sidesOfThePage_data();
  void sidesOfThePage();
  void headline();
  void headlineFollowsTheLook();
  void busy_data();
  void busy();
  void actingGoesBeforeMeasuring();
  void explanation_data();
  void explanation();
  void longTipsWrap_data();
  void longTipsWrap();
  void bar();
  void barOfNothing();
  void legend();
  void legendStopsAtNothing();
  void noteForTheRefused_data();
  void noteForTheRefused();

  void listsAndTheirOrder_data();
  void listsAndTheirOrder();
  void emptyListsAreLeftOut();
  void whatHasARow_data();
  void whatHasARow();
  void listIsBuiltOf();
  void rowIsBuiltOf();
  void sizes_data();
  void sizes();
  void details_data();
  void details();
  void namesFromTheDiskAreNoMarkup();
  void columnWidth_data();
  void columnWidth();
  void columnIsOneForAllRows();
  void columnOfHiddenItemsDoesntCount();

  void buttons_data();
  void buttons();
  void revealActsAtOnce();
  void revealOfWhatIsGone();
  void questions_data();
  void questions();
  void cleanupIsOpened();
  void itemThatWentMeanwhile();

  void readerHearsRows();
  void readerHearsTheHeadline();
  void tabOrder();
  void tabBringsRowsIntoView();
  void buttonKeepsTheFocus();
  void focusWaitsForTheEndOfTheWork();
  void focusOfARowThatWent();
  void focusIsTakenFromNobody();
  void scrolledPlaceStays();
  void changeOfLookLeavesNothingBehind();
  void fitsTheSmallestWindow_data();
  void fitsTheSmallestWindow();
  void contexts();

 private:
  static void hosts() {
    QTest::addColumn<QString>("host");
    for (const char* host : kHosts) QTest::newRow(host) << QString::fromLatin1(host);
  }
  [[nodiscard]] QWidget* results() const { return views()->widget(Results); }
  [[nodiscard]] QScrollArea* area() const { return results()->findChild<QScrollArea*>(); }
  /// Of what is shown: cards, headings, the note, in the column of the page.
  [[nodiscard]] const QBoxLayout* content() const { return boxOf(boxOf(area()->widget())->itemAt(0)); }
  [[nodiscard]] ui::Card* headlineCard() const { return qobject_cast<ui::Card*>(content()->itemAt(0)->widget()); }
  [[nodiscard]] ui::StackBar* stackBar() const { return results()->findChild<ui::StackBar*>(); }
  [[nodiscard]] const QBoxLayout* legendRow() const { return boxOf(boxOf(headlineCard())->itemAt(2)->widget()); }
  [[nodiscard]] ui::Note* note() const { return results()->findChild<ui::Note*>(); }
  [[nodiscard]] QStringList headings() const {
    QStringList all;
    for (const QLabel* label : results()->findChildren<QLabel*>())
      if (roleOf(label) == u"h3") all << label->text();
    return all;
  }
  [[nodiscard]] QStringList ids() const {
    QStringList all;
    for (const SystemDataRow* one : rows()) all << one->id();
    return all;
  }
  [[nodiscard]] ui::Button* buttonOf(const QString& id) const { return row(id)->button(); }
};

// ---- the head

void TestSystemDataResults::sidesOfThePage_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("side");
  QTest::newRow("mac") << true << 28;
  QTest::newRow("win") << false << 32;
}

void TestSystemDataResults::sidesOfThePage() {
  QFETCH(const bool, mac);
  QFETCH(const int, side);
  Theme::get().mac = mac;
  makePage();
  put({item(u"a"_s, kGB)});
  show();
  QCOMPARE(headlineCard()->mapTo(m_page.get(), QPoint()).x(), side);
  QCOMPARE(headlineCard()->width(), m_page->width() - 2 * side);
  QCOMPARE(content()->spacing(), 0);
}

void TestSystemDataResults::headline() {
  put({item(u"a"_s, 3 * kGB), managed(u"b"_s, 5 * kGB), item(u"c"_s, kGB, SystemDataItem::CleanInCleanup)});
  const auto* lines = boxOf(headlineCard());
  QCOMPARE(lines->spacing(), 12);
  QCOMPARE(lines->contentsMargins(), QMargins(20, 18, 20, 20));
  const auto* line = boxOf(lines->itemAt(0));
  QCOMPARE(line->spacing(), 10);
  QCOMPARE(line->count(), 2);
  const auto* total = qobject_cast<QLabel*>(line->itemAt(0)->widget());
  QCOMPARE(total->text(), u"9.0 GB"_s);
  QCOMPARE(roleOf(total), u"value"_s);
  const auto* text = qobject_cast<QLabel*>(line->itemAt(1)->widget());
  QCOMPARE(text->text(),
           u"measured in System Data · <b style='color:%1'>4.0 GB</b> you can act on"_s.arg(Theme::get().text.name()));
  QCOMPARE(roleOf(text), u"sub"_s);
  QVERIFY(text->wordWrap());
  QCOMPARE(text->minimumWidth(), 10);
  QCOMPARE(line->stretch(1), 1);
  QCOMPARE(line->itemAt(1)->alignment(), Qt::AlignBottom);
}

void TestSystemDataResults::headlineFollowsTheLook() {
  put({item(u"a"_s, kGB)});
  const auto says = [this] { return boxOf(boxOf(headlineCard())->itemAt(0))->itemAt(1)->widget(); };
  const QString before = Theme::get().text.name();
  pixels::setLook(true);
  QVERIFY(before != Theme::get().text.name());
  QVERIFY(qobject_cast<QLabel*>(says())->text().contains(Theme::get().text.name()));
}

void TestSystemDataResults::busy_data() {
  QTest::addColumn<bool>("acting");
  QTest::addColumn<QString>("text");
  QTest::newRow("an action") << true << u"Working…"_s;
  QTest::newRow("a measuring") << false << u"Updating…"_s;
}

void TestSystemDataResults::busy() {
  QFETCH(const bool, acting);
  QFETCH(const QString, text);
  const QList<SystemDataItem> items = {item(u"a"_s, kGB), item(u"b"_s, kGB, SystemDataItem::CleanInCleanup)};
  put(items + QList{managed(u"c"_s, kGB)});
  m_state->systemData.last().action = SystemDataItem::RevealInFinder;
  emit m_state->systemDataChanged();
  settle();
  for (const SystemDataRow* one : rows()) QVERIFY(one->button()->isEnabled());
  QVERIFY(!results()->findChild<ui::Spinner*>());

  Held held(m_state->systemDataScanner);
  acting ? setBusy(true) : m_state->startSystemDataScan();
  settle();
  QCOMPARE(rows().size(), 3);
  for (const SystemDataRow* one : rows()) QVERIFY(!one->button()->isEnabled());
  const auto* line = boxOf(boxOf(headlineCard())->itemAt(0));
  QCOMPARE(line->itemAt(2)->widget()->size(), QSize(14, 14));
  QVERIFY(qobject_cast<ui::Spinner*>(line->itemAt(2)->widget()));
  const auto* caption = qobject_cast<QLabel*>(line->itemAt(3)->widget());
  QCOMPARE(caption->text(), text);
  QCOMPARE(roleOf(caption), u"caption"_s);
}

void TestSystemDataResults::actingGoesBeforeMeasuring() {
  put({item(u"a"_s, kGB)});
  Held held(m_state->systemDataScanner);
  m_state->startSystemDataScan();
  setBusy(true);
  const QStringList texts = windowtest::allTexts(headlineCard());
  QVERIFY(texts.contains(u"Working…"_s));
  QVERIFY(!texts.contains(u"Updating…"_s));
}

void TestSystemDataResults::explanation_data() {
  QTest::addColumn<QString>("host");
  QTest::addColumn<QString>("why");
  QTest::newRow("linux") << u"linux"_s << kWhyLinux;
  QTest::newRow("mac") << u"mac"_s << kWhyMac;
}

void TestSystemDataResults::explanation() {
  QFETCH(const QString, host);
  QFETCH(const QString, why);
  makePage(qPrintable(host));
  put({item(u"a"_s, kGB)});
  QCOMPARE(headlineCard()->toolTip(), why);
  const QString heard = reader(headlineCard())->text(QAccessible::Description);
  QVERIFY(!heard.contains(u'<'));
  QCOMPARE(heard.simplified(), windowtest::plain(why).simplified());
}

void TestSystemDataResults::longTipsWrap_data() { hosts(); }

// A plain text as long as these would be one line across the whole screen.
void TestSystemDataResults::longTipsWrap() {
  QFETCH(const QString, host);
  makePage(qPrintable(host));
  SystemDataItem one = item(u"a"_s, kGB);
  one.blurb = u"What it is & <who> keeps it. "_s.repeated(9).trimmed();
  put({one});
  show();
  QWidget* title = boxOf(boxOf(row(u"a"_s))->itemAt(1))->itemAt(0)->widget();
  for (QWidget* of : {static_cast<QWidget*>(headlineCard()), title}) {
    const QPoint at = of->rect().center();
    QHelpEvent asks(QEvent::ToolTip, at, of->mapToGlobal(at));
    QVERIFY(QApplication::sendEvent(of, &asks));
    QCOMPARE(windowtest::plain(QToolTip::text()).simplified(),
             (of == title ? one.blurb : windowtest::plain(of->toolTip())).simplified());
    const auto all = QApplication::topLevelWidgets();
    const auto tip = std::ranges::find_if(all, [](const QWidget* top) { return top->inherits("QTipLabel"); });
    QVERIFY(tip != all.end());
    QVERIFY2((*tip)->width() < 800, qPrintable(QString::number((*tip)->width())));
    QVERIFY((*tip)->height() > 2 * (*tip)->fontMetrics().lineSpacing());
    delete *tip;
  }
}

void TestSystemDataResults::bar() {
  put({item(u"small"_s, kGB), managed(u"large"_s, 6 * kGB), managed(u"none"_s, 0), item(u"middle"_s, 3 * kGB)});
  QCOMPARE(stackBar()->height(), 22);
  QCOMPARE(stackBar()->valueText(), u"Title of large · 6.0 GB: 60%, Title of middle · 3.0 GB: 30%, "
                                    "Title of small · 1.0 GB: 10%"_s);
  QCOMPARE(stackBar()->layoutSegments().size(), 3);
  QCOMPARE(boxOf(headlineCard())->itemAt(1)->widget(), stackBar());
  show();
  const QImage picture = pixels::rendered(*stackBar());
  for (const QRectF& segment : stackBar()->layoutSegments())
    QVERIFY(pixels::isNear(pixels::at(picture, segment.center()), QColor(200, 40, 60)));
}

void TestSystemDataResults::barOfNothing() {
  put({item(u"a"_s, 0), managed(u"b"_s, 0)});
  QVERIFY(stackBar()->layoutSegments().isEmpty());
  QCOMPARE(stackBar()->valueFraction(), 0.0); // of a whole of 1, not of 0
  QCOMPARE(legendRow()->count(), 1);
  QVERIFY(legendRow()->itemAt(0)->spacerItem());
  QVERIFY(shows(*m_page, u"0 KB"_s) || m_page->isHidden());
  QVERIFY(headings().isEmpty());
}

void TestSystemDataResults::legend() {
  SystemDataItem blue = managed(u"large"_s, 6 * kGB);
  blue.color = QColor(30, 90, 220);
  m_page->resize(1400, 640);
  put({item(u"small"_s, kGB), blue, item(u"tiny"_s, kMB), item(u"middle"_s, 3 * kGB)});
  QCOMPARE(legendRow()->spacing(), 18);
  QCOMPARE(legendRow()->count(), 4);
  QCOMPARE(boxOf(headlineCard())->itemAt(2)->widget()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
  const QStringList titles = {u"Title of large"_s, u"Title of middle"_s, u"Title of small"_s};
  const QStringList sizes = {u"6.0 GB"_s, u"3.0 GB"_s, u"1.0 GB"_s};
  for (int i = 0; i < 3; ++i) {
    const auto* one = boxOf(legendRow()->itemAt(i));
    QCOMPARE(one->spacing(), 7);
    QCOMPARE(one->itemAt(0)->widget()->minimumSize(), QSize(9, 9));
    const auto* title = qobject_cast<ui::ElidedLabel*>(one->itemAt(1)->widget());
    QCOMPARE(title->text(), titles[i]);
    QCOMPARE(roleOf(title), u"caption"_s);
    QCOMPARE(one->stretch(1), 1);
    const auto* size = qobject_cast<QLabel*>(one->itemAt(2)->widget());
    QCOMPARE(size->text(), sizes[i]);
    QCOMPARE(roleOf(size), u"num"_s);
  }
  QVERIFY(legendRow()->itemAt(3)->spacerItem());
  show();
  for (int i = 0; i < 3; ++i) { // all that there is of room is right of them
    const auto* one = boxOf(legendRow()->itemAt(i));
    const auto partAt = [&](int index) { return one->itemAt(index)->widget()->geometry(); };
    QCOMPARE(partAt(1).width(), one->itemAt(1)->widget()->sizeHint().width());
    QCOMPARE(partAt(2).left(), partAt(1).right() + 1 + 7);
    if (i < 2)
      QCOMPARE(boxOf(legendRow()->itemAt(i + 1))->itemAt(0)->widget()->geometry().left(), partAt(2).right() + 1 + 18);
  }
  const QImage swatch = pixels::rendered(*boxOf(legendRow()->itemAt(0))->itemAt(0)->widget());
  QCOMPARE(swatch.size(), QSize(9, 9));
  QCOMPARE(swatch.pixelColor(4, 4), blue.color);
  QVERIFY(swatch.pixelColor(0, 0).alpha() < 128); // rounded
}

void TestSystemDataResults::legendStopsAtNothing() {
  put({item(u"a"_s, kGB), item(u"b"_s, 0), managed(u"c"_s, 0)});
  QCOMPARE(legendRow()->count(), 2);
}

void TestSystemDataResults::noteForTheRefused_data() { hosts(); }

void TestSystemDataResults::noteForTheRefused() {
  QFETCH(const QString, host);
  makePage(qPrintable(host));
  put({item(u"a"_s, kGB)});
  QVERIFY(!note());
  put({item(u"a"_s, kGB), denied(managed(u"b"_s, kGB))});
  QCOMPARE(content()->itemAt(1)->sizeHint().height(), 14);
  QCOMPARE(content()->itemAt(2)->widget(), note()); // above the lists
  if (host == u"mac") {
    QCOMPARE(note()->text(), u"Some folders need Full Disk Access."_s);
    QCOMPARE(note()->findChild<QPushButton*>()->text(), u"Open System Settings"_s);
  } else {
    QCOMPARE(note()->text(), u"You have no permission to read some of these folders."_s);
    QVERIFY(!note()->findChild<QPushButton*>());
  }
}

// ---- the lists

void TestSystemDataResults::listsAndTheirOrder_data() { hosts(); }

void TestSystemDataResults::listsAndTheirOrder() {
  QFETCH(const QString, host);
  makePage(qPrintable(host));
  put({item(u"r1"_s, kMB), managed(u"m1"_s, kGB), item(u"r2"_s, 3 * kGB), managed(u"m2"_s, 2 * kGB),
       snapshots(2, u"2 snapshots"_s), item(u"r3"_s, 2 * kGB)});
  show();
  const QString other = host == u"mac" ? u"Managed by macOS"_s : u"Managed by the system"_s;
  QCOMPARE(headings(), QStringList({u"You can reclaim"_s, other}));
  QCOMPARE(ids(), QStringList({u"r2"_s, u"r3"_s, u"r1"_s, u"snapshots"_s, u"m2"_s, u"m1"_s}));
}

void TestSystemDataResults::emptyListsAreLeftOut() {
  put({managed(u"a"_s, kGB), item(u"b"_s, 0)});
  QCOMPARE(headings(), QStringList({u"Managed by the system"_s}));
  QCOMPARE(content()->count(), 3); // the headline, and one heading with its card
  put({item(u"b"_s, kGB)});
  QCOMPARE(headings(), QStringList({u"You can reclaim"_s}));
  QCOMPARE(content()->count(), 3);
}

void TestSystemDataResults::whatHasARow_data() {
  QTest::addColumn<qint64>("bytes");
  QTest::addColumn<bool>("refused");
  QTest::addColumn<int>("count");
  QTest::addColumn<bool>("shown");
  QTest::newRow("nothing") << qint64(0) << false << -1 << false;
  QTest::newRow("a byte") << qint64(1) << false << -1 << true;
  QTest::newRow("refused") << qint64(0) << true << -1 << true;
  QTest::newRow("none counted") << qint64(0) << false << 0 << false;
  QTest::newRow("none counted, but refused") << qint64(0) << true << 0 << true;
  QTest::newRow("one counted") << qint64(0) << false << 1 << true;
}

void TestSystemDataResults::whatHasARow() {
  QFETCH(const qint64, bytes);
  QFETCH(const bool, refused);
  QFETCH(const int, count);
  SystemDataItem one = snapshots(count, u"some"_s);
  one.bytes = bytes;
  one.denied = refused;
  put({one});
  QTEST(row(u"snapshots"_s) != nullptr, "shown");
}

void TestSystemDataResults::listIsBuiltOf() {
  put({item(u"a"_s, 3 * kGB), item(u"b"_s, 2 * kGB), item(u"c"_s, kGB)});
  const auto* heading = qobject_cast<QLabel*>(content()->itemAt(1)->widget());
  QCOMPARE(roleOf(heading), u"h3"_s);
  QCOMPARE(heading->contentsMargins(), QMargins(0, 26, 0, 10));
  const auto* card = qobject_cast<ui::Card*>(content()->itemAt(2)->widget());
  const auto* lines = boxOf(card);
  QCOMPARE(lines->spacing(), 0);
  QCOMPARE(lines->contentsMargins(), QMargins());
  QCOMPARE(lines->count(), 5); // a line between two rows, none after the last
  for (int i = 0; i < 5; ++i)
    QVERIFY(i % 2 ? qobject_cast<ui::Divider*>(lines->itemAt(i)->widget()) != nullptr
                  : qobject_cast<SystemDataRow*>(lines->itemAt(i)->widget()) != nullptr);
}

void TestSystemDataResults::rowIsBuiltOf() {
  put({withDetail(item(u"a"_s, 3 * kGB), u"7 devices"_s)});
  const auto* line = boxOf(row(u"a"_s));
  QCOMPARE(line->spacing(), 16);
  QCOMPARE(line->contentsMargins(), QMargins(18, 14, 18, 14));
  auto* tile = qobject_cast<ui::IconTile*>(line->itemAt(0)->widget());
  ui::IconTile wanted(u"folder"_s, QColor(200, 40, 60), 28);
  QCOMPARE(pixels::rendered(*tile), pixels::rendered(wanted));
  QCOMPARE(line->itemAt(0)->alignment(), Qt::AlignVCenter);
  const auto* text = boxOf(line->itemAt(1));
  QCOMPARE(text->spacing(), 2);
  QCOMPARE(line->stretch(1), 1);
  const auto* title = qobject_cast<QLabel*>(text->itemAt(0)->widget());
  QCOMPARE(title->text(), u"Title of a"_s);
  QCOMPARE(roleOf(title), u"strong"_s);
  QCOMPARE(title->toolTip(), u"About a"_s);
  QCOMPARE(roleOf(text->itemAt(1)->widget()), u"micro"_s);
  const QWidget* column = line->itemAt(2)->widget();
  QCOMPARE(line->itemAt(2)->alignment(), Qt::AlignVCenter);
  QCOMPARE(column->minimumWidth(), column->maximumWidth());
  QCOMPARE(boxOf(column)->spacing(), 8);
  QCOMPARE(boxOf(column)->itemAt(0)->widget(), sizeOf(row(u"a"_s)));
  QCOMPARE(sizeOf(row(u"a"_s))->alignment(), Qt::AlignRight | Qt::AlignVCenter);
  QCOMPARE(boxOf(column)->itemAt(1)->widget(), buttonOf(u"a"_s));
  QCOMPARE(buttonOf(u"a"_s)->minimumWidth(), column->minimumWidth());
}

void TestSystemDataResults::sizes_data() {
  QTest::addColumn<QString>("id");
  QTest::addColumn<qint64>("bytes");
  QTest::addColumn<bool>("refused");
  QTest::addColumn<QString>("onLinux");
  QTest::addColumn<QString>("onMac");
  QTest::addColumn<QString>("role");
  const QString asItIs = u"3.0 GB"_s;
  const QString least = u"at least 3.0 GB"_s;
  QTest::newRow("plain") << u"data"_s << 3 * kGB << false << asItIs << asItIs << u"num"_s;
  QTest::newRow("partly refused") << u"data"_s << 3 * kGB << true << least << least << u"num"_s;
  QTest::newRow("refused") << u"data"_s << qint64(0) << true << u"No permission to read"_s
                           << u"Needs Full Disk Access"_s << u"warn"_s;
  QTest::newRow("snapshots") << u"snapshots"_s << qint64(0) << false << u"3 of them"_s << u"3 of them"_s << u"num"_s;
  QTest::newRow("snapshots, refused") << u"snapshots"_s << qint64(0) << true << u"3 of them"_s << u"3 of them"_s
                                      << u"warn"_s;
}

void TestSystemDataResults::sizes() {
  QFETCH(const QString, id);
  QFETCH(const qint64, bytes);
  QFETCH(const bool, refused);
  QFETCH(const QString, onLinux);
  QFETCH(const QString, onMac);
  for (const char* host : kHosts) {
    makePage(host);
    SystemDataItem one = withDetail(item(id, bytes), u"3 of them"_s);
    one.denied = refused;
    one.count = id == u"snapshots" ? 3 : -1;
    put({one});
    QCOMPARE(sizeOf(row(id))->text(), host == kHosts[0] ? onLinux : onMac);
    QTEST(roleOf(sizeOf(row(id))), "role");
  }
}

void TestSystemDataResults::details_data() {
  QTest::addColumn<QString>("id");
  QTest::addColumn<QString>("detail");
  QTest::addColumn<QString>("text"); // empty: no label for it
  QTest::newRow("none") << u"data"_s << QString() << QString();
  QTest::newRow("as it is") << u"simulators"_s << u"4 devices"_s << u"4 devices"_s;
  QTest::newRow("hidden folders") << u"hidden"_s << u".npm, .nvm"_s << u"Largest: .npm, .nvm"_s;
  QTest::newRow("hidden folders, none") << u"hidden"_s << QString() << QString();
  QTest::newRow("snapshots") << u"snapshots"_s << u"3 snapshots"_s << QString();
}

void TestSystemDataResults::details() {
  QFETCH(const QString, id);
  QFETCH(const QString, detail);
  QFETCH(const QString, text);
  put({withDetail(item(id, kGB), detail)});
  const auto* lines = boxOf(boxOf(row(id))->itemAt(1));
  QCOMPARE(lines->count(), text.isEmpty() ? 1 : 2);
  if (!text.isEmpty()) QCOMPARE(qobject_cast<QLabel*>(lines->itemAt(1)->widget())->text(), text);
}

void TestSystemDataResults::namesFromTheDiskAreNoMarkup() {
  const QString name = u"<b>.cache</b> "_s + QString(250, u'x');
  put({withDetail(item(u"hidden"_s, kGB), name)});
  show();
  const auto* line = qobject_cast<QLabel*>(boxOf(boxOf(row(u"hidden"_s))->itemAt(1))->itemAt(1)->widget());
  QCOMPARE(line->textFormat(), Qt::PlainText);
  QVERIFY(!Qt::mightBeRichText(line->toolTip()) || windowtest::plain(line->toolTip()).contains(name));
  QVERIFY(row(u"hidden"_s)->width() <= area()->viewport()->width());
}

void TestSystemDataResults::columnWidth_data() {
  QTest::addColumn<int>("size");
  QTest::addColumn<int>("label");
  QTest::addColumn<int>("column");
  QTest::newRow("nothing") << 0 << 0 << 150;
  QTest::newRow("short") << 60 << 100 << 150;
  QTest::newRow("size of the button's least") << 144 << 0 << 150;
  QTest::newRow("a size beyond it") << 145 << 0 << 151;
  QTest::newRow("the longest size") << 164 << 0 << 170;
  QTest::newRow("a longer one wraps") << 500 << 0 << 170;
  QTest::newRow("button of the least") << 0 << 110 << 150;
  QTest::newRow("a wider button") << 0 << 111 << 151;
  QTest::newRow("wider than any size") << 500 << 160 << 200;
  QTest::newRow("the widest") << 0 << 200 << 240;
  QTest::newRow("beyond it") << 0 << 900 << 240;
}

void TestSystemDataResults::columnWidth() {
  QFETCH(const int, size);
  QFETCH(const int, label);
  QTEST(ui::systemDataColumn(size, label), "column");
}

/// The labels themselves are the host's, so a translation makes one of them long.
void TestSystemDataResults::columnIsOneForAllRows() {
  const auto widths = [this] {
    QSet<int> all;
    for (const SystemDataRow* one : rows()) all << sizeOf(one)->parentWidget()->minimumWidth();
    return all;
  };
  put({item(u"a"_s, kGB), managed(u"b"_s, kGB), item(u"c"_s, kGB, SystemDataItem::CleanInCleanup)});
  const QFontMetrics labels(Theme::get().font(13, 500));
  const int usual = qMax(150, labels.horizontalAdvance(u"Clean in Cleanup"_s) + 40);
  QCOMPARE(widths(), QSet<int>({usual}));

  Marking marking; // "[SystemData]Clean in Cleanup"
  QCoreApplication::installTranslator(&marking);
  emit m_state->systemDataChanged();
  QCoreApplication::removeTranslator(&marking);
  settle();
  const int wide = qMin(240, labels.horizontalAdvance(u"[SystemData]Clean in Cleanup"_s) + 40);
  QVERIFY(wide > usual);
  QCOMPARE(widths(), QSet<int>({wide}));
}

void TestSystemDataResults::columnOfHiddenItemsDoesntCount() {
  SystemDataItem unseen = snapshots(0, QString(60, u'0'));
  put({item(u"a"_s, kGB), unseen});
  const int without = sizeOf(row(u"a"_s))->parentWidget()->minimumWidth();
  unseen.count = 1;
  put({item(u"a"_s, kGB), unseen});
  QVERIFY(sizeOf(row(u"a"_s))->parentWidget()->minimumWidth() > without);
}

// ---- what the buttons do

void TestSystemDataResults::buttons_data() {
  QTest::addColumn<int>("action");
  QTest::addColumn<QString>("onLinux");
  QTest::addColumn<QString>("onMac");
  const auto row = [](SystemDataItem::Action action, const char* label) {
    QTest::newRow(label) << int(action) << QString::fromLatin1(label) << QString::fromLatin1(label);
  };
  QTest::newRow("reveal") << int(SystemDataItem::RevealInFinder) << u"Show in Files"_s << u"Review in Finder"_s;
  row(SystemDataItem::MoveToTrash, "Move to Trash");
  row(SystemDataItem::RemoveSnapshots, "Remove snapshots");
  row(SystemDataItem::DeleteUnavailable, "Delete unavailable");
  row(SystemDataItem::CleanInCleanup, "Clean in Cleanup");
  row(SystemDataItem::OpenXcode, "Open Xcode");
  QTest::newRow("none") << int(SystemDataItem::None) << QString() << QString();
}

void TestSystemDataResults::buttons() {
  QFETCH(const int, action);
  QFETCH(const QString, onLinux);
  QFETCH(const QString, onMac);
  for (const char* host : kHosts) {
    makePage(host);
    put({item(u"a"_s, kGB, SystemDataItem::Action(action))});
    const QString label = host == kHosts[0] ? onLinux : onMac;
    QCOMPARE(buttonOf(u"a"_s) != nullptr, !label.isEmpty());
    if (!label.isEmpty()) QCOMPARE(buttonOf(u"a"_s)->text(), label);
  }
  // Of what is only counted there may be none.
  SystemDataItem none = denied(snapshots(0, u"0 snapshots"_s));
  none.action = SystemDataItem::Action(action);
  put({none});
  if (buttonOf(u"snapshots"_s)) QVERIFY(!buttonOf(u"snapshots"_s)->isEnabled());
  none.count = 1;
  put({none});
  if (buttonOf(u"snapshots"_s)) QVERIFY(buttonOf(u"snapshots"_s)->isEnabled());
}

void TestSystemDataResults::revealActsAtOnce() {
  SystemDataItem one = item(u"data"_s, kGB);
  one.paths = {m_home->folder(u".local/share"_s)};
  put({one});
  show();
  QSignalSpy asked(m_page.get(), &ui::SystemDataPage::confirmAction);
  QSignalSpy cleanup(m_page.get(), &ui::SystemDataPage::openCleanup);
  QTest::mouseClick(buttonOf(u"data"_s), Qt::LeftButton);
  QCOMPARE(m_opened, one.paths);
  QCOMPARE(asked.count() + cleanup.count(), 0);
  QVERIFY(!m_state->systemDataBusy);
}

void TestSystemDataResults::revealOfWhatIsGone() {
  SystemDataItem one = item(u"data"_s, kGB);
  one.paths = {m_home->path(u"gone"_s)};
  put({one});
  show();
  QSignalSpy said(m_state.get(), &AppState::toast);
  QTest::mouseClick(buttonOf(u"data"_s), Qt::LeftButton);
  QVERIFY(m_opened.isEmpty());
  QCOMPARE(said.count(), 1);
  QCOMPARE(said[0][0].toString(), u"Couldn't open "_s + one.paths[0]);
}

void TestSystemDataResults::questions_data() {
  QTest::addColumn<int>("action");
  QTest::addColumn<QString>("label");
  QTest::addColumn<QString>("body");
  QTest::newRow("snapshots")
      << int(SystemDataItem::RemoveSnapshots) << u"Remove snapshots"_s
      << u"macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives aren't affected. macOS will ask for your administrator password."_s;
  QTest::newRow("simulators")
      << int(SystemDataItem::DeleteUnavailable) << u"Delete unavailable"_s
      << u"Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data."_s;
  QTest::newRow("device support")
      << int(SystemDataItem::MoveToTrash) << u"Move to Trash"_s
      << u"2.5 GB will be moved to the Trash. Xcode recreates it when you connect a device again."_s;
}

// Nothing is done before the user has said yes.
void TestSystemDataResults::questions() {
  QFETCH(const int, action);
  QFETCH(const QString, label);
  QFETCH(const QString, body);
  makePage("mac");
  SystemDataItem one = item(u"some"_s, 2500 * kMB, SystemDataItem::Action(action));
  one.paths = {m_home->folder(u"held"_s)};
  m_home->file(u"held/thing"_s);
  put({one});
  show();
  QSignalSpy asked(m_page.get(), &ui::SystemDataPage::confirmAction);
  QTest::mouseClick(buttonOf(u"some"_s), Qt::LeftButton);
  QCOMPARE(asked.count(), 1);
  QCOMPARE(asked[0], QVariantList({label + u'?', body, label, u"some"_s}));
  QVERIFY(!m_state->systemDataBusy);
  QVERIFY(QFile::exists(m_home->path(u"held/thing"_s)));
}

void TestSystemDataResults::cleanupIsOpened() {
  put({item(u"usercaches"_s, kGB, SystemDataItem::CleanInCleanup)});
  show();
  QSignalSpy cleanup(m_page.get(), &ui::SystemDataPage::openCleanup);
  QTest::mouseClick(buttonOf(u"usercaches"_s), Qt::LeftButton);
  QCOMPARE(cleanup.count(), 1);
  QVERIFY(!m_state->systemDataBusy); // nothing runs, nothing is measured anew
  QVERIFY(!m_state->systemDataScanner->isRunning());
}

void TestSystemDataResults::itemThatWentMeanwhile() {
  put({item(u"usercaches"_s, kGB, SystemDataItem::CleanInCleanup)});
  show();
  m_state->systemData.clear(); // and nobody was told
  QSignalSpy cleanup(m_page.get(), &ui::SystemDataPage::openCleanup);
  QTest::mouseClick(buttonOf(u"usercaches"_s), Qt::LeftButton);
  QCOMPARE(cleanup.count(), 0);
}

// ---- without eyes, without a mouse

void TestSystemDataResults::readerHearsRows() {
  put({withDetail(item(u"hidden"_s, kGB), u".npm, .nvm"_s), denied(managed(u"logs"_s, 0))});
  QCOMPARE(reader(row(u"hidden"_s))->text(QAccessible::Name), u"Title of hidden, 1.0 GB, Largest: .npm, .nvm"_s);
  QCOMPARE(reader(row(u"hidden"_s))->text(QAccessible::Description), u"About hidden"_s);
  QCOMPARE(reader(row(u"logs"_s))->text(QAccessible::Name), u"Title of logs, No permission to read"_s);
  QCOMPARE(reader(buttonOf(u"hidden"_s))->text(QAccessible::Name), u"Show in Files, Title of hidden"_s);
}

void TestSystemDataResults::readerHearsTheHeadline() {
  put({item(u"a"_s, 3 * kGB), managed(u"b"_s, 5 * kGB)});
  QCOMPARE(reader(headlineCard())->text(QAccessible::Name),
           u"8.0 GB measured in System Data · 3.0 GB you can act on"_s);
  QCOMPARE(reader(stackBar())->text(QAccessible::Name), u"System Data"_s);
  QVERIFY(reader(stackBar())->text(QAccessible::Value).contains(u"Title of b · 5.0 GB"_s));
}

void TestSystemDataResults::tabOrder() {
  makePage("mac"); // the note has a button there
  const auto after = std::make_unique<ui::Button>(u"A button of another page"_s);
  after->setParent(m_page.get());
  put({denied(item(u"b"_s, 2 * kGB)), item(u"c"_s, kGB), item(u"a"_s, 3 * kGB)});
  show();
  button(u"Rescan"_s)->setFocus(Qt::TabFocusReason);
  for (QWidget* next :
       {static_cast<QWidget*>(note()->findChild<QPushButton*>()), static_cast<QWidget*>(buttonOf(u"a"_s)),
        static_cast<QWidget*>(buttonOf(u"b"_s)), static_cast<QWidget*>(buttonOf(u"c"_s))}) {
    windowtest::press(*m_page, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), next);
  }
}

void TestSystemDataResults::tabBringsRowsIntoView() {
  QList<SystemDataItem> many;
  for (int i = 0; i < 12; ++i) many << item(u"i%1"_s.arg(i), (20 - i) * kGB);
  put(many);
  show();
  button(u"Rescan"_s)->setFocus(Qt::TabFocusReason);
  for (const SystemDataItem& one : many) {
    windowtest::press(*m_page, Qt::Key_Tab);
    const QWidget* at = QApplication::focusWidget();
    QCOMPARE(at, static_cast<QWidget*>(buttonOf(one.id)));
    QVERIFY(area()->viewport()->rect().contains(QRect(at->mapTo(area()->viewport(), QPoint()), at->size())));
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp); // and the page scrolls from there
  QVERIFY(area()->verticalScrollBar()->value() < area()->verticalScrollBar()->maximum());
}

void TestSystemDataResults::buttonKeepsTheFocus() {
  put({item(u"a"_s, 3 * kGB), item(u"b"_s, 2 * kGB)});
  show();
  for (const Qt::FocusReason reason : {Qt::TabFocusReason, Qt::MouseFocusReason}) {
    button(u"Rescan"_s)->setFocus();
    buttonOf(u"b"_s)->setFocus(reason);
    const QPointer<QWidget> before = buttonOf(u"b"_s);
    const bool ring = row(u"b"_s)->showsFocus();
    QCOMPARE(ring, reason == Qt::TabFocusReason);
    put({item(u"a"_s, kGB), item(u"b"_s, 9 * kGB)});
    QVERIFY(!before); // another one stands in its place
    QCOMPARE(QApplication::focusWidget(), buttonOf(u"b"_s));
    QCOMPARE(row(u"b"_s)->showsFocus(), ring);
  }
}

void TestSystemDataResults::focusWaitsForTheEndOfTheWork() {
  put({item(u"a"_s, 3 * kGB), item(u"b"_s, 2 * kGB)});
  show();
  buttonOf(u"b"_s)->setFocus(Qt::TabFocusReason);
  setBusy(true);
  QVERIFY(!QApplication::focusWidget()); // it didn't wander to Rescan, which a Space meant for the row would press
  setBusy(false);
  QCOMPARE(QApplication::focusWidget(), buttonOf(u"b"_s));
  QVERIFY(row(u"b"_s)->showsFocus());
}

void TestSystemDataResults::focusOfARowThatWent() {
  put({item(u"a"_s, 3 * kGB), item(u"b"_s, 2 * kGB)});
  show();
  buttonOf(u"b"_s)->setFocus(Qt::TabFocusReason);
  put({item(u"a"_s, 3 * kGB)});
  QCOMPARE(QApplication::focusWidget(), button(u"Rescan"_s));
}

void TestSystemDataResults::focusIsTakenFromNobody() {
  put({item(u"a"_s, 3 * kGB)});
  show();
  buttonOf(u"a"_s)->setFocus(Qt::TabFocusReason);
  setBusy(true);
  button(u"Rescan"_s)->setFocus(Qt::TabFocusReason);
  setBusy(false);
  QCOMPARE(QApplication::focusWidget(), button(u"Rescan"_s));
}

void TestSystemDataResults::scrolledPlaceStays() {
  QList<SystemDataItem> many;
  for (int i = 0; i < 18; ++i) many << item(u"i%1"_s.arg(i), (20 - i) * kGB);
  put(many);
  show();
  QScrollBar* bar = area()->verticalScrollBar();
  QTRY_VERIFY(bar->maximum() > 300);
  bar->setValue(300);
  for (const bool on : {true, false}) {
    setBusy(on);
    QCOMPARE(bar->value(), 300);
  }
}

void TestSystemDataResults::changeOfLookLeavesNothingBehind() {
  const QList<SystemDataItem> items = {denied(item(u"a"_s, 3 * kGB)), denied(managed(u"b"_s, 0)),
                                       withDetail(item(u"hidden"_s, kGB), u".npm"_s)};
  const auto picture = [&] {
    show();
    return m_page->grab().toImage();
  };
  put(items);
  picture();
  pixels::setLook(true);
  settle();
  const QImage changed = picture();
  makePage();
  put(items);
  QVERIFY(pixels::difference(changed, picture()).isNull());
}

/// The narrowest window leaves the page 724 pixels: nothing may be cut off at its right.
void TestSystemDataResults::fitsTheSmallestWindow_data() { sidesOfThePage_data(); }

void TestSystemDataResults::fitsTheSmallestWindow() {
  QFETCH(const bool, mac);
  Theme::get().mac = mac;
  for (const char* host : kHosts) {
    makePage(host);
    QList<SystemDataItem> all = systemdata::definitions();
    for (SystemDataItem& one : all) {
      one.bytes = 8'888 * kGB;
      one.denied = true;
      one.detail = u"8,888 snapshots"_s;
    }
    put(all);
    m_page->resize(724, 604);
    show();
    setBusy(true);
    QTRY_VERIFY(area()->verticalScrollBar()->maximum() > 0);
    QVERIFY2(area()->widget()->minimumSizeHint().width() <= area()->viewport()->width(),
             qPrintable(QString::number(area()->widget()->minimumSizeHint().width())));
    for (const SystemDataRow* one : rows()) {
      const auto* title = qobject_cast<QLabel*>(boxOf(boxOf(one)->itemAt(1))->itemAt(0)->widget());
      QVERIFY2(title->width() >= title->sizeHint().width(), qPrintable(title->text()));
    }
  }
}

void TestSystemDataResults::contexts() {
  Marking marking;
  for (const char* host : kHosts) {
    QCoreApplication::installTranslator(&marking);
    makePage(host);
    put({denied(item(u"a"_s, kGB)), denied(managed(u"b"_s, 0)), withDetail(item(u"hidden"_s, kGB), u".npm"_s)});
    setBusy(true);
    const QString texts = windowtest::allTexts(m_page.get()).join(u'\n');
    QCoreApplication::removeTranslator(&marking);
    const bool isMac = host == kHosts[1];
    for (const char* text :
         {"[SystemDataPage]measured in System Data", "[SystemDataPage]Working…", "[SystemDataPage]at least ",
          "[SystemDataPage]You can reclaim", "[SystemDataPage]Largest: .npm",
          isMac ? "[CleanupPage]Some folders need Full Disk Access."
                : "[CleanupPage]You have no permission to read some of these folders.",
          isMac ? "[SystemDataPage]Managed by macOS" : "[SystemDataPage]Managed by the system",
          isMac ? "[SystemDataPage]Needs Full Disk Access" : "[SystemDataPage]No permission to read",
          isMac ? "[SystemDataPage]Why Storage settings" : "[SystemDataPage]Only what you may read"})
      QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
    if (isMac) QVERIFY(texts.contains(u"[CleanupPage]Open System Settings"_s));
  }
}

int main(int argc, char** argv) { return uitest::run<TestSystemDataResults>(argc, argv); }

#include "tst_SystemDataResults.moc"
