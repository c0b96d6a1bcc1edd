// The sidebar with its entries, its disk gauge and its toggle.
#include "app/AppState.h"
#include "core/fmt.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/shell/DriveCard.h"
#include "ui/shell/NavButton.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/SidebarToggle.h"

#include <QBoxLayout>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QVariantAnimation>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {

const QString kKey = u"ui/sidebarCollapsed"_s;
const QList<int> kAll{Sidebar::Overview, Sidebar::Cleanup, Sidebar::SpaceMap, Sidebar::Settings, Sidebar::SystemData};

CategoryResult found(qint64 bytes) {
  CategoryResult result;
  result.def.id = u"logs"_s;
  result.bytes = bytes;
  return result;
}

platform::Volume volume(qint64 total, qint64 available) {
  platform::Volume made;
  made.name = u"System disk"_s;
  made.totalBytes = total;
  made.availableBytes = available;
  return made;
}

} // namespace

class TestSidebar : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup();

  void entries();
  void onlyThePagesThatAreThere();
  void clickTells();
  void keyboardWorks();
  void unknownCurrentIsNothing();
  void widthFollowsTheWords_data();
  void widthFollowsTheWords();
  void startsCollapsed();
  void unseenAppliesAtOnce();
  void slides();
  void secondWishTakesOver();
  void railOfTheOtherMetrics();
  void toggleStandsAtTheFoot();
  void badgeFollowsTheResults();
  void badgeLayout();
  void compactLayout();
  void checkedIsMarked();
  void lineAtTheRight();
  void driveLayout();
  void ringByUse_data();
  void ringByUse();
  void emptyRing();
  void driveTells();
  void toggleLayout();

 private:
  std::unique_ptr<Sidebar> make(const QList<int>& pages = kAll) {
    return std::make_unique<Sidebar>(m_state.get(), pages);
  }
  static NavButton* entry(const Sidebar& sidebar, const QString& text) {
    for (NavButton* one : sidebar.findChildren<NavButton*>())
      if (one->text() == text) return one;
    return nullptr;
  }

  std::unique_ptr<AppState> m_state;
};

void TestSidebar::init() {
  Theme::get().mac = true;
  pixels::setLook(false);
  QSettings().remove(kKey);
  m_state = std::make_unique<AppState>();
}

void TestSidebar::cleanup() {
  m_state.reset();
  Theme::get().mac = true;
}

void TestSidebar::entries() {
  const auto sidebar = make();
  sidebar->resize(sidebar->expandedWidth(), 600);
  sidebar->show();
  QStringList texts;
  QList<int> tops;
  for (const NavButton* one : sidebar->findChildren<NavButton*>()) texts << one->text();
  for (const QString& text : {u"Smart Scan"_s, u"Cleanup"_s, u"Space Map"_s, u"System Data"_s, u"Settings"_s})
    tops << entry(*sidebar, text)->y();
  QCOMPARE(texts.size(), 5);
  QVERIFY(std::is_sorted(tops.begin(), tops.end()));
  QVERIFY(entry(*sidebar, u"Smart Scan"_s)->isChecked());
  QCOMPARE(entry(*sidebar, u"Space Map"_s)->toolTip(), u"Space Map"_s);
}

void TestSidebar::onlyThePagesThatAreThere() {
  const auto sidebar = make({Sidebar::Overview, Sidebar::Cleanup, Sidebar::SpaceMap, Sidebar::Settings});
  QCOMPARE(sidebar->findChildren<NavButton*>().size(), 4);
  QVERIFY(!entry(*sidebar, u"System Data"_s));
}

void TestSidebar::clickTells() {
  const auto sidebar = make();
  QSignalSpy told(sidebar.get(), &Sidebar::navigate);
  entry(*sidebar, u"Settings"_s)->click();
  entry(*sidebar, u"Settings"_s)->click(); // also the page on show
  entry(*sidebar, u"System Data"_s)->click();
  QCOMPARE(told.count(), 3);
  QCOMPARE(told[0][0].toInt(), 3);
  QCOMPARE(told[1][0].toInt(), 3);
  QCOMPARE(told[2][0].toInt(), 4);
}

void TestSidebar::keyboardWorks() {
  const auto sidebar = make();
  QSignalSpy told(sidebar.get(), &Sidebar::navigate);
  QTest::keyClick(entry(*sidebar, u"Cleanup"_s), Qt::Key_Return);
  QTest::keyClick(entry(*sidebar, u"Space Map"_s), Qt::Key_Space);
  QCOMPARE(told.count(), 2);
  QCOMPARE(told[0][0].toInt(), 1);
  QTest::keyClick(sidebar->toggleButton(), Qt::Key_Return);
  QVERIFY(sidebar->isCollapsed());
}

void TestSidebar::unknownCurrentIsNothing() {
  const auto sidebar = make();
  QSignalSpy told(sidebar.get(), &Sidebar::navigate);
  sidebar->setCurrent(1);
  QVERIFY(entry(*sidebar, u"Cleanup"_s)->isChecked());
  sidebar->setCurrent(7);
  QVERIFY(entry(*sidebar, u"Cleanup"_s)->isChecked());
  QCOMPARE(told.count(), 0);
}

void TestSidebar::widthFollowsTheWords_data() {
  QTest::addColumn<int>("widest");
  QTest::addColumn<int>("width");
  QTest::newRow("136") << 136 << 236;
  QTest::newRow("137") << 137 << 237;
  QTest::newRow("200") << 200 << 300;
  QTest::newRow("201") << 201 << 300;
}

void TestSidebar::widthFollowsTheWords() {
  QFETCH(int, widest);
  QFETCH(int, width);
  QCOMPARE(sidebarWidth(widest), width);
  const auto sidebar = make();
  int really = 0;
  for (const NavButton* one : sidebar->findChildren<NavButton*>())
    really = qMax(really, QFontMetrics(Theme::get().font(13, 600)).horizontalAdvance(one->text()));
  QCOMPARE(sidebar->expandedWidth(), sidebarWidth(really));
}

void TestSidebar::startsCollapsed() {
  QSettings().setValue(kKey, true);
  const auto sidebar = make();
  QVERIFY(sidebar->isHidden());
  QVERIFY(!sidebar->findChild<QVariantAnimation*>());
  QCOMPARE(sidebar->width(), 0);
  QVERIFY(QSettings().value(kKey).toBool());
  QCOMPARE(sidebar->toggleButton()->toolTip(), u"Expand sidebar"_s);
}

void TestSidebar::unseenAppliesAtOnce() {
  const auto sidebar = make();
  QSignalSpy told(sidebar.get(), &Sidebar::collapsedChanged);
  sidebar->setCollapsed(true, true);
  QVERIFY(!sidebar->findChild<QVariantAnimation*>());
  QVERIFY(sidebar->isHidden());
  QVERIFY(QSettings().value(kKey).toBool());
  QCOMPARE(told.count(), 1);
  QCOMPARE(told[0][0].toBool(), true);
}

void TestSidebar::slides() {
  const auto sidebar = make();
  sidebar->show();
  sidebar->setCollapsed(true, true);
  const auto* slide = sidebar->findChild<QVariantAnimation*>();
  QVERIFY(slide);
  QCOMPARE(slide->duration(), 170);
  QCOMPARE(slide->easingCurve().type(), QEasingCurve::OutCubic);
  QVERIFY(!entry(*sidebar, u"Cleanup"_s)->isCompact()); // the words stay until the end
  QTRY_VERIFY(sidebar->isHidden());
  sidebar->setCollapsed(false, true);
  QVERIFY(sidebar->isVisible());
  QVERIFY(!entry(*sidebar, u"Cleanup"_s)->isCompact());
  QTRY_COMPARE(sidebar->width(), sidebar->expandedWidth());
  QTRY_VERIFY(!sidebar->findChild<QVariantAnimation*>());
}

void TestSidebar::secondWishTakesOver() {
  const auto sidebar = make();
  sidebar->show();
  sidebar->setCollapsed(true, true);
  QTRY_VERIFY(sidebar->width() < sidebar->expandedWidth());
  sidebar->setCollapsed(false, true);
  QCOMPARE(sidebar->findChildren<QVariantAnimation*>().size(), 1);
  QTRY_COMPARE(sidebar->width(), sidebar->expandedWidth());
  QVERIFY(sidebar->isVisible());
}

void TestSidebar::railOfTheOtherMetrics() {
  Theme::get().mac = false;
  const auto sidebar = make();
  sidebar->show();
  QVERIFY(!sidebar->topRow());
  QCOMPARE(sidebar->compactWidth(), 56);
  sidebar->setCollapsed(true, false);
  QVERIFY(sidebar->isVisible());
  QCOMPARE(sidebar->width(), 56);
  for (const NavButton* one : sidebar->findChildren<NavButton*>()) {
    QVERIFY(one->isCompact());
    QCOMPARE(one->sizeHint(), QSize(40, 38));
  }
  QCOMPARE(sidebar->layout()->contentsMargins(), QMargins(8, 6, 8, 14));
  QCOMPARE(sidebar->findChild<DriveCard*>()->height(), 44);
  // The toggle goes below the Settings entry.
  sidebar->layout()->activate();
  QTRY_VERIFY(sidebar->toggleButton()->y() > entry(*sidebar, u"Settings"_s)->y());
  sidebar->setCollapsed(false, false);
  QCOMPARE(sidebar->layout()->contentsMargins(), QMargins(12, 6, 12, 14));
  QTRY_VERIFY(sidebar->toggleButton()->x() > entry(*sidebar, u"Settings"_s)->x());
}

// Also where there is no Settings entry beside it.
void TestSidebar::toggleStandsAtTheFoot() {
  Theme::get().mac = false;
  const auto sidebar = make({Sidebar::Overview, Sidebar::Cleanup});
  sidebar->resize(sidebar->expandedWidth(), 600);
  sidebar->show();
  const SidebarToggle* toggle = sidebar->toggleButton();
  const auto* drive = sidebar->findChild<DriveCard*>();
  const auto foot = [&] { return QPoint(toggle->geometry().right() + 1, toggle->geometry().bottom() + 1); };
  QTRY_COMPARE(foot(), QPoint(sidebar->width() - 12, sidebar->height() - 14));
  sidebar->setCollapsed(true, false);
  QTRY_COMPARE(foot(), QPoint(10 + 36, sidebar->height() - 14));
  QVERIFY(toggle->y() - drive->geometry().bottom() < 20);
}

void TestSidebar::badgeFollowsTheResults() {
  const auto sidebar = make();
  m_state->results = {found(2'000'000)};
  emit m_state->resultsChanged();
  QCOMPARE(entry(*sidebar, u"Cleanup"_s)->badge(), fmt::bytes(2'000'000));
  QCOMPARE(entry(*sidebar, u"Cleanup"_s)->accessibleName(), u"Cleanup, 2 MB"_s);
  m_state->results = {found(0)};
  emit m_state->resultsChanged();
  QCOMPARE(entry(*sidebar, u"Cleanup"_s)->badge(), QString());
  QCOMPARE(entry(*sidebar, u"Cleanup"_s)->accessibleName(), u"Cleanup"_s);
}

void TestSidebar::badgeLayout() {
  const NavButtonLayout plain = navButtonLayout({212, 34}, false, -1);
  QCOMPARE(plain.icon, QRectF(12, 9, 16, 16));
  QCOMPARE(plain.label, QRectF(40, 0, 164, 34));
  QCOMPARE(plain.marker, QRectF(0, 10, 3, 14));
  QVERIFY(plain.badge.isNull());
  const NavButtonLayout badged = navButtonLayout({212, 34}, false, 30);
  QCOMPARE(badged.badge, QRectF(212 - 8 - 44, 7, 44, 20));
  QCOMPARE(badged.label.width(), 212.0 - 48 - 52);
  const NavButtonLayout mirrored = navButtonLayout({212, 34}, false, 30, Qt::RightToLeft);
  QCOMPARE(mirrored.marker, QRectF(209, 10, 3, 14));
  QCOMPARE(mirrored.icon, QRectF(184, 9, 16, 16));
  QCOMPARE(mirrored.label, QRectF(60, 0, 112, 34)); // its end as far from the icon as its start was
  QCOMPARE(mirrored.badge, QRectF(8, 7, 44, 20));
}

void TestSidebar::compactLayout() {
  const NavButtonLayout layout = navButtonLayout({40, 38}, true, 30);
  QCOMPARE(layout.icon, QRectF(12, 11, 16, 16));
  QCOMPARE(layout.badge.size(), QSizeF(7, 7));
  QCOMPARE(layout.badge.center(), QPointF(29, 12));
  QVERIFY(layout.label.isNull());
  QCOMPARE(navButtonLayout({40, 38}, true, 30, Qt::RightToLeft).badge.center(), QPointF(11, 12));
  QVERIFY(navButtonLayout({40, 38}, true, -1).badge.isNull());
}

void TestSidebar::checkedIsMarked() {
  for (const bool dark : {false, true}) {
    pixels::setLook(dark);
    const Theme& theme = Theme::get();
    NavButton button(u"trash"_s, u"Cleanup"_s);
    button.resize(212, 34);
    QVERIFY(pixels::rendered(button).pixelColor(205, 17).alpha() == 0);
    button.setChecked(true);
    const QImage checked = pixels::rendered(button);
    QVERIFY(pixels::isNear(checked.pixelColor(205, 17), dark ? theme.cardHover : theme.surface));
    QVERIFY(checked.pixelColor(1, 17).alpha() > 200); // the marker
    QVERIFY(checked.pixelColor(1, 5) != checked.pixelColor(1, 17));
  }
}

void TestSidebar::lineAtTheRight() {
  const auto sidebar = make();
  sidebar->resize(sidebar->expandedWidth(), 600);
  QVERIFY(pixels::isNear(pixels::rendered(*sidebar).pixelColor(sidebar->width() - 1, 300), Theme::get().line));
  QCOMPARE(pixels::rendered(*sidebar).pixelColor(sidebar->width() - 2, 300).alpha(), 0);
  sidebar->setLayoutDirection(Qt::RightToLeft); // the pages are at its left then
  QVERIFY(pixels::isNear(pixels::rendered(*sidebar).pixelColor(0, 300), Theme::get().line));
  QCOMPARE(pixels::rendered(*sidebar).pixelColor(sidebar->width() - 1, 300).alpha(), 0);
}

void TestSidebar::driveLayout() {
  const DriveCardLayout wide = driveCardLayout({212, 64}, false);
  QCOMPARE(wide.body, QRectF(0.5, 0.5, 211, 63));
  QCOMPARE(wide.circle, QRectF(14.5, 16.5, 31, 31));
  QCOMPARE(wide.name, QRectF(60, 13, 142, 18));
  QCOMPARE(wide.free, QRectF(60, 32, 142, 18));
  const DriveCardLayout mirrored = driveCardLayout({212, 64}, false, Qt::RightToLeft);
  QCOMPARE(mirrored.body, wide.body);
  QCOMPARE(mirrored.circle, QRectF(166.5, 16.5, 31, 31));
  QCOMPARE(mirrored.name, QRectF(10, 13, 142, 18));
  QCOMPARE(mirrored.free, QRectF(10, 32, 142, 18));
  const DriveCardLayout compact = driveCardLayout({40, 44}, true);
  QVERIFY(compact.body.isNull());
  QCOMPARE(compact.circle, QRectF(9, 11, 22, 22));
  QCOMPARE(compact.stroke, 3.0);
}

void TestSidebar::ringByUse_data() {
  QTest::addColumn<double>("used");
  QTest::addColumn<QString>("brush");
  QTest::newRow("0.85") << 0.85 << u"gradient"_s;
  QTest::newRow("0.86") << 0.86 << u"warn"_s;
  QTest::newRow("0.9") << 0.9 << u"warn"_s;
  QTest::newRow("0.91") << 0.91 << u"bad"_s;
}

void TestSidebar::ringByUse() {
  QFETCH(double, used);
  QFETCH(QString, brush);
  const QRectF circle(0, 0, 31, 31);
  const Theme& theme = Theme::get();
  const QHash<QString, QBrush> wanted{
      {u"gradient"_s, Theme::gradient(circle)}, {u"warn"_s, theme.warn}, {u"bad"_s, theme.bad}};
  QCOMPARE(driveRingBrush(used, circle), wanted[brush]);
}

void TestSidebar::emptyRing() {
  const Theme& theme = Theme::get();
  for (const qint64 total : {qint64(0), qint64(1000)}) {
    m_state->volume = volume(total, total);
    DriveCard card(m_state.get());
    card.setCompact(true);
    card.resize(40, 44);
    const QImage shown = pixels::rendered(card);
    QVERIFY(pixels::isNear(shown.pixelColor(20, 11), theme.track)); // 12 o'clock
    QVERIFY(pixels::isNear(shown.pixelColor(30, 22), theme.track)); // 3 o'clock
    QCOMPARE(card.valueFraction(), 0.0);
  }
  m_state->volume = volume(1000, 50);
  DriveCard card(m_state.get());
  card.setCompact(true);
  card.resize(40, 44);
  QVERIFY(pixels::isNear(pixels::rendered(card).pixelColor(30, 22), theme.bad));
}

void TestSidebar::driveTells() {
  m_state->volume = volume(500'000'000'000, 200'000'000'000);
  DriveCard card(m_state.get());
  QCOMPARE(card.toolTip(), u"200 GB available of 500 GB"_s);
  QCOMPARE(card.accessibleName(), u"System disk"_s);
  m_state->volume.availableBytes = 100'000'000'000;
  emit m_state->volumeChanged();
  QCOMPARE(card.toolTip(), u"100 GB available of 500 GB"_s);
  QCOMPARE(card.valueFraction(), 0.8);
  QCOMPARE(card.height(), 64);
}

void TestSidebar::toggleLayout() {
  QCOMPARE(SidebarToggle().size(), QSize(30, 26));
  const SidebarToggleLayout layout = sidebarToggleLayout({30, 26});
  QCOMPARE(layout.panel, QRectF(8.5, 6.5, 13, 13));
  QCOMPARE(layout.divider, QLineF(13.7, 6.5, 13.7, 19.5));
  QCOMPARE(sidebarToggleLayout({30, 26}, Qt::RightToLeft).divider, QLineF(16.3, 6.5, 16.3, 19.5));
  Theme::get().mac = false;
  QCOMPARE(SidebarToggle().size(), QSize(36, 36));
}

int main(int argc, char** argv) { return uitest::run<TestSidebar>(argc, argv); }

#include "tst_Sidebar.moc"
