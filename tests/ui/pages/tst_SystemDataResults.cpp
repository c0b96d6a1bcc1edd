// What the System Data page shows of a measuring above its lists: the headline, the bar and its legend, and the note;
// and how all of the page follows the look, the width and the language.
#include "SystemDataResultsTest.h"

#include "ui/controls/Spinner.h"

#include <QHelpEvent>
#include <QToolTip>

using namespace systemdatatest;
using ui::SystemDataRow;
using windowtest::shows;

namespace {

const QString kWhyMac =
    u"<b>Why Storage settings shows a bigger number</b><br>macOS works out System Data as whatever is left on the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without Full Disk Access, Tarnwick also can't see protected folders, so its total is lower than what macOS reports."_s;
const QString kWhyLinux =
    u"Only what you may read is counted. Folders that belong to the system or to other users are left out, and folders shared by several rows are counted once."_s;

} // namespace

class TestSystemDataResults : public SystemDataResultsTest {
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

  void changeOfLookLeavesNothingBehind();
  void fitsTheSmallestWindow_data();
  void fitsTheSmallestWindow();
  void contexts();
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

// ---- the whole page

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
