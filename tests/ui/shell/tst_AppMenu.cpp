// The menu of the title bar: its card, the ends of its rows, its shadow, and how it follows the look.
#include "ui/shell/AppMenu.h"

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"

#include <QGraphicsDropShadowEffect>
#include <QGraphicsOpacityEffect>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {

QFontMetrics metrics(int pixelSize) {
  QFont font = Theme::get().font(13, 400);
  font.setPixelSize(pixelSize);
  return QFontMetrics(font);
}

/// What the menu shows on nothing.
QImage shown(AppMenu& menu) { return menu.grab().toImage().convertToFormat(QImage::Format_ARGB32); }

} // namespace

class TestAppMenu : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { pixels::setLook(false); }

  void cardLeavesRoomForTheShadow();
  void rowEnds_data();
  void rowEnds();
  void trailingTextWidensTheMenu();
  void trailingTextMakesRoom();
  void withoutTrailingTextsThereIsNoLeastWidth();
  void isAWindowOfItsOwnShape();
  void iconsAreTinted();
  void shadowFades_data();
  void shadowFades();
  void noShadowOfTheStyle();
  void rowsShowTheirTexts();
  void trailingTextStandsAtTheEnd();
  void submenuHasAMark();
  void cardsTouch_data();
  void cardsTouch();
  void followsTheLook();
  void worksByKeyboard();
};

void TestAppMenu::cardLeavesRoomForTheShadow() { QCOMPARE(appMenuCard({300, 200}), QRectF(14, 14, 272, 172)); }

void TestAppMenu::rowEnds_data() {
  QTest::addColumn<bool>("submenu");
  QTest::addColumn<Qt::LayoutDirection>("direction");
  QTest::addColumn<QRectF>("trailing");
  QTest::addColumn<QPointF>("tip");
  QTest::addColumn<QPointF>("tail");
  QTest::newRow("plain") << false << Qt::LeftToRight << QRectF(20, 40, 186, 34) << QPointF(206, 57.5)
                         << QPointF(202.5, 53.5);
  QTest::newRow("submenu") << true << Qt::LeftToRight << QRectF(20, 40, 170, 34) << QPointF(206, 57.5)
                           << QPointF(202.5, 53.5);
  QTest::newRow("plain, mirrored") << false << Qt::RightToLeft << QRectF(34, 40, 186, 34) << QPointF(34, 57.5)
                                   << QPointF(37.5, 53.5);
  QTest::newRow("submenu, mirrored") << true << Qt::RightToLeft << QRectF(50, 40, 170, 34) << QPointF(34, 57.5)
                                     << QPointF(37.5, 53.5);
}

void TestAppMenu::rowEnds() {
  QFETCH(bool, submenu);
  QFETCH(Qt::LayoutDirection, direction);
  QFETCH(QPointF, tip);
  QFETCH(QPointF, tail);
  const AppMenuRow row = appMenuRow(QRect(20, 40, 200, 34), submenu, direction);
  QTEST(row.trailing, "trailing");
  QCOMPARE(row.chevron[1], tip);
  QCOMPARE(row.chevron[0], tail);
  QCOMPARE(row.chevron[2], tail + QPointF(0, 8));
}

void TestAppMenu::trailingTextWidensTheMenu() {
  AppMenu menu;
  QAction* about = menu.addItem(u"menu-info"_s, u"About"_s);
  menu.addItem(u"menu-power"_s, u"A text without anything at the end of its row"_s);
  menu.setTrailingText(about, u"1.0.0"_s);
  const int texts = metrics(13).horizontalAdvance(u"About"_s) + metrics(12).horizontalAdvance(u"1.0.0"_s);
  QCOMPARE(menu.minimumWidth(), texts + 84 + 42);
  AppMenu* more = menu.addSubmenu(u"menu-help"_s, u"About"_s);
  menu.setTrailingText(menu.actions().last(), u"1.0.0"_s);
  QCOMPARE(menu.minimumWidth(), texts + 16 + 84 + 42);
  QCOMPARE(more->minimumWidth(), 0);
}

// The whole menu, so that the longest row has room for both texts.
void TestAppMenu::trailingTextMakesRoom() {
  const QString longText(60, u'm');
  AppMenu plain;
  plain.addItem(u"menu-info"_s, u"About"_s);
  plain.popup({100, 100});
  AppMenu wide;
  QAction* about = wide.addItem(u"menu-info"_s, u"About"_s);
  QAction* other = wide.addItem(u"menu-power"_s, u"Quit"_s);
  wide.setTrailingText(about, longText);
  wide.popup({100, 100});
  QVERIFY(wide.width() > plain.width());
  QVERIFY(wide.actionGeometry(other).width() > metrics(12).horizontalAdvance(longText) + 40);
}

void TestAppMenu::withoutTrailingTextsThereIsNoLeastWidth() {
  AppMenu menu;
  QAction* one = menu.addItem(u"menu-info"_s, u"About"_s);
  menu.setTrailingText(one, u"1.0.0"_s);
  QVERIFY(menu.minimumWidth() > 0);
  menu.setTrailingText(one, {});
  QCOMPARE(menu.minimumWidth(), 0);
}

void TestAppMenu::isAWindowOfItsOwnShape() {
  AppMenu menu(u"Help"_s, nullptr);
  QCOMPARE(menu.title(), u"Help"_s);
  QVERIFY(menu.windowFlags() & Qt::FramelessWindowHint);
  QVERIFY(menu.testAttribute(Qt::WA_TranslucentBackground));
  QCOMPARE(menu.font().pixelSize(), 13);
  QCOMPARE(menu.card().radius, 12.0);
}

void TestAppMenu::iconsAreTinted() {
  const auto holds = [](const QIcon& icon, const QColor& colour) {
    const QImage image = icon.pixmap(QSize(18, 18), 1).toImage();
    return image.size() == QSize(18, 18) && pixels::count(image, image.rect(), colour) > 0;
  };
  QVERIFY(holds(AppMenu::itemIcon(u"menu-power"_s), Theme::get().text2));
  QVERIFY(holds(AppMenu::itemIcon(u"menu-power"_s, Theme::get().bad), Theme::get().bad));
  QVERIFY(!holds(AppMenu::itemIcon(u"menu-power"_s, Theme::get().bad), Theme::get().text2));
}

void TestAppMenu::shadowFades_data() {
  QTest::addColumn<bool>("dark");
  QTest::addColumn<int>("base");
  QTest::newRow("light") << false << 5;
  QTest::newRow("dark") << true << 12;
}

// Below the card's middle, where the layers add up from the outermost inward.
void TestAppMenu::shadowFades() {
  QFETCH(bool, dark);
  QFETCH(int, base);
  pixels::setLook(dark);
  AppMenu menu;
  menu.addItem(u"menu-info"_s, u"About Tarnwick"_s);
  menu.popup({100, 100});
  const QImage image = shown(menu);
  const int x = image.width() / 2;
  const int foot = image.height() - 14; // of the card; the shadow lies two pixels lower
  QColor wanted(0, 0, 0, 0);
  for (int layer = 12; layer >= 1; --layer) {
    const double fade = 1 - layer / 12.0;
    wanted = pixels::over(QColor(0, 0, 0, qRound(base * fade * fade)), wanted);
    const int y = foot + 2 + layer - 1;
    if (y >= image.height()) continue; // the outermost are cut off there
    QVERIFY2(qAbs(image.pixelColor(x, y).alpha() - wanted.alpha()) <= 1, qPrintable(QString::number(layer)));
  }
  QVERIFY(wanted.alpha() > base);
  QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
}

void TestAppMenu::noShadowOfTheStyle() {
  AppMenu menu;
  for (const QEvent::Type type : {QEvent::StyleChange, QEvent::Polish}) {
    menu.setGraphicsEffect(new QGraphicsDropShadowEffect);
    QEvent event(type);
    QCoreApplication::sendEvent(&menu, &event);
    QVERIFY(!menu.graphicsEffect());
  }
  menu.setGraphicsEffect(new QGraphicsOpacityEffect);
  QEvent event(QEvent::StyleChange);
  QCoreApplication::sendEvent(&menu, &event);
  QVERIFY(menu.graphicsEffect());
}

void TestAppMenu::rowsShowTheirTexts() {
  AppMenu menu;
  QAction* on = menu.addAction(u"IIIIIIIIII"_s);
  QAction* off = menu.addAction(u"IIIIIIIIII"_s);
  off->setEnabled(false);
  menu.popup({100, 100});
  const QImage image = shown(menu);
  const Theme& theme = Theme::get();
  const QColor faint = pixels::over(theme.text3, theme.surface);
  QVERIFY(pixels::count(image, menu.actionGeometry(on), theme.text) > 0);
  QCOMPARE(pixels::count(image, menu.actionGeometry(off), theme.text), 0);
  QVERIFY(pixels::count(image, menu.actionGeometry(off), faint) > 0);
}

void TestAppMenu::trailingTextStandsAtTheEnd() {
  for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    AppMenu menu;
    menu.setLayoutDirection(direction);
    QAction* about = menu.addItem(u"menu-info"_s, u"About"_s);
    menu.setTrailingText(about, u"1.0.0"_s);
    menu.popup({100, 100});
    const QImage with = shown(menu);
    about->setProperty("appMenuTrailingText", QString());
    const QRect changed = pixels::difference(with, shown(menu));
    const QRect row = menu.actionGeometry(about);
    const int gap = direction == Qt::LeftToRight ? row.right() - changed.right() : changed.left() - row.left();
    QVERIFY2(gap >= 13 && gap <= 17, qPrintable(QString::number(gap)));
    QVERIFY(changed.width() <= metrics(12).horizontalAdvance(u"1.0.0"_s) + 2);
  }
}

void TestAppMenu::submenuHasAMark() {
  AppMenu menu;
  AppMenu* more = menu.addSubmenu(u"menu-help"_s, u"Help"_s);
  more->addAction(u"Guide"_s);
  QAction* plain = menu.addAction(u"Help"_s);
  menu.popup({100, 100});
  const QImage image = shown(menu);
  const auto inked = [&](const QAction* action) {
    const QRect row = menu.actionGeometry(const_cast<QAction*>(action));
    return image.pixelColor(row.right() - 15, row.center().y() + 1) != Theme::get().surface;
  };
  QVERIFY(inked(menu.actions().first()));
  QVERIFY(!inked(plain));
}

void TestAppMenu::cardsTouch_data() {
  QTest::addColumn<Qt::LayoutDirection>("direction");
  QTest::newRow("left to right") << Qt::LeftToRight;
  QTest::newRow("right to left") << Qt::RightToLeft;
}

// A plain submenu of the same size tells where the menu would have put it.
void TestAppMenu::cardsTouch() {
  QFETCH(Qt::LayoutDirection, direction);
  QApplication::setLayoutDirection(direction);
  AppMenu menu;
  AppMenu* own = menu.addSubmenu(u"menu-help"_s, u"Help"_s);
  own->addAction(u"Guide"_s);
  menu.popup({300, 100});
  menu.setActiveAction(menu.actions().first());
  QTest::keyClick(&menu, direction == Qt::LeftToRight ? Qt::Key_Right : Qt::Key_Left);
  QTRY_VERIFY(own->isVisible());
  const int parentEdge = direction == Qt::LeftToRight ? menu.x() + menu.width() - 14 : menu.x() + 14;
  const int ownEdge = direction == Qt::LeftToRight ? own->x() + 14 : own->x() + own->width() - 14;
  QApplication::setLayoutDirection(Qt::LeftToRight);
  QVERIFY2(qAbs(ownEdge - parentEdge) <= 9, qPrintable(u"%1 and %2"_s.arg(ownEdge).arg(parentEdge)));
}

void TestAppMenu::followsTheLook() {
  AppMenu menu;
  QAction* about = menu.addItem(u"menu-power"_s, u"About"_s);
  menu.popup({100, 100});
  pixels::setLook(true);
  const QPoint inCard(menu.width() - 20, menu.height() / 2);
  QCOMPARE(shown(menu).pixelColor(inCard), Theme::get().surface);
  const QImage icon = about->icon().pixmap(QSize(18, 18), 1).toImage();
  QVERIFY(pixels::count(icon, icon.rect(), Theme::get().text2) > 0);
}

void TestAppMenu::worksByKeyboard() {
  AppMenu menu;
  QString chosen;
  connect(menu.addItem(u"menu-info"_s, u"One"_s), &QAction::triggered, this, [&] { chosen = u"One"_s; });
  connect(menu.addItem(u"menu-info"_s, u"Two"_s), &QAction::triggered, this, [&] { chosen = u"Two"_s; });
  menu.popup({100, 100});
  QTest::keyClick(&menu, Qt::Key_Down);
  QTest::keyClick(&menu, Qt::Key_Down);
  QTest::keyClick(&menu, Qt::Key_Return);
  QCOMPARE(chosen, u"Two"_s);
}

int main(int argc, char** argv) { return uitest::run<TestAppMenu>(argc, argv); }

#include "tst_AppMenu.moc"
