// The two lists of System Data: which items have a row, in which order, and what stands in it.
#include "SystemDataResultsTest.h"

#include "ui/controls/Divider.h"

using namespace systemdatatest;
using ui::SystemDataRow;

class TestSystemDataResultsLists : public SystemDataResultsTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { open(); }
  void cleanup() { close(); }

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
};

void TestSystemDataResultsLists::listsAndTheirOrder_data() { hosts(); }

void TestSystemDataResultsLists::listsAndTheirOrder() {
  QFETCH(const QString, host);
  makePage(qPrintable(host));
  put({item(u"r1"_s, kMB), managed(u"m1"_s, kGB), item(u"r2"_s, 3 * kGB), managed(u"m2"_s, 2 * kGB),
       snapshots(2, u"2 snapshots"_s), item(u"r3"_s, 2 * kGB)});
  show();
  const QString other = host == u"mac" ? u"Managed by macOS"_s : u"Managed by the system"_s;
  QCOMPARE(headings(), QStringList({u"You can reclaim"_s, other}));
  QCOMPARE(ids(), QStringList({u"r2"_s, u"r3"_s, u"r1"_s, u"snapshots"_s, u"m2"_s, u"m1"_s}));
}

void TestSystemDataResultsLists::emptyListsAreLeftOut() {
  put({managed(u"a"_s, kGB), item(u"b"_s, 0)});
  QCOMPARE(headings(), QStringList({u"Managed by the system"_s}));
  QCOMPARE(content()->count(), 3); // the headline, and one heading with its card
  put({item(u"b"_s, kGB)});
  QCOMPARE(headings(), QStringList({u"You can reclaim"_s}));
  QCOMPARE(content()->count(), 3);
}

void TestSystemDataResultsLists::whatHasARow_data() {
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

void TestSystemDataResultsLists::whatHasARow() {
  QFETCH(const qint64, bytes);
  QFETCH(const bool, refused);
  QFETCH(const int, count);
  SystemDataItem one = snapshots(count, u"some"_s);
  one.bytes = bytes;
  one.denied = refused;
  put({one});
  QTEST(row(u"snapshots"_s) != nullptr, "shown");
}

void TestSystemDataResultsLists::listIsBuiltOf() {
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

void TestSystemDataResultsLists::rowIsBuiltOf() {
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

void TestSystemDataResultsLists::sizes_data() {
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

void TestSystemDataResultsLists::sizes() {
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

void TestSystemDataResultsLists::details_data() {
  QTest::addColumn<QString>("id");
  QTest::addColumn<QString>("detail");
  QTest::addColumn<QString>("text"); // empty: no label for it
  QTest::newRow("none") << u"data"_s << QString() << QString();
  QTest::newRow("as it is") << u"simulators"_s << u"4 devices"_s << u"4 devices"_s;
  QTest::newRow("hidden folders") << u"hidden"_s << u".npm, .nvm"_s << u"Largest: .npm, .nvm"_s;
  QTest::newRow("hidden folders, none") << u"hidden"_s << QString() << QString();
  QTest::newRow("snapshots") << u"snapshots"_s << u"3 snapshots"_s << QString();
}

void TestSystemDataResultsLists::details() {
  QFETCH(const QString, id);
  QFETCH(const QString, detail);
  QFETCH(const QString, text);
  put({withDetail(item(id, kGB), detail)});
  const auto* lines = boxOf(boxOf(row(id))->itemAt(1));
  QCOMPARE(lines->count(), text.isEmpty() ? 1 : 2);
  if (!text.isEmpty()) QCOMPARE(qobject_cast<QLabel*>(lines->itemAt(1)->widget())->text(), text);
}

void TestSystemDataResultsLists::namesFromTheDiskAreNoMarkup() {
  const QString name = u"<b>.cache</b> "_s + QString(250, u'x');
  put({withDetail(item(u"hidden"_s, kGB), name)});
  show();
  const auto* line = qobject_cast<QLabel*>(boxOf(boxOf(row(u"hidden"_s))->itemAt(1))->itemAt(1)->widget());
  QCOMPARE(line->textFormat(), Qt::PlainText);
  QVERIFY(!Qt::mightBeRichText(line->toolTip()) || windowtest::plain(line->toolTip()).contains(name));
  QVERIFY(row(u"hidden"_s)->width() <= area()->viewport()->width());
}

void TestSystemDataResultsLists::columnWidth_data() {
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

void TestSystemDataResultsLists::columnWidth() {
  QFETCH(const int, size);
  QFETCH(const int, label);
  QTEST(ui::systemDataColumn(size, label), "column");
}

/// The labels themselves are the host's, so a translation makes one of them long.
void TestSystemDataResultsLists::columnIsOneForAllRows() {
  const auto widths = [this] {
    QSet<int> all;
    for (const SystemDataRow* one : rows()) all << sizeOf(one)->parentWidget()->minimumWidth();
    return all;
  };
  put({item(u"a"_s, kGB), managed(u"b"_s, kGB), item(u"c"_s, kGB, SystemDataItem::CleanInCleanup)});
  const QFontMetrics labels(Theme::get().font(13, 500));
  const QFontMetrics painted(Theme::get().font(13, 600));
  const int usual = std::max({150, labels.horizontalAdvance(u"Clean in Cleanup"_s) + 40,
                              painted.horizontalAdvance(u"Clean in Cleanup"_s) + 34});
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

void TestSystemDataResultsLists::columnOfHiddenItemsDoesntCount() {
  SystemDataItem unseen = snapshots(0, QString(60, u'0'));
  put({item(u"a"_s, kGB), unseen});
  const int without = sizeOf(row(u"a"_s))->parentWidget()->minimumWidth();
  unseen.count = 1;
  put({item(u"a"_s, kGB), unseen});
  QVERIFY(sizeOf(row(u"a"_s))->parentWidget()->minimumWidth() > without);
}

int main(int argc, char** argv) { return uitest::run<TestSystemDataResultsLists>(argc, argv); }

#include "tst_SystemDataResults_lists.moc"
