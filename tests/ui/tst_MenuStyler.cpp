#include "app/AppSettings.h"
#include "support/uitest.h"
#include "ui/Theme.h"

#include <QMenu>

using namespace Qt::StringLiterals;

class TestMenuStyler : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }

  void cornersAreNothing_data();
  void cornersAreNothing();
  void submenusToo();
  void entriesWork();
};

void TestMenuStyler::cornersAreNothing_data() {
  QTest::addColumn<AppSettings::ThemeMode>("mode");
  QTest::newRow("dark") << AppSettings::Dark;
  QTest::newRow("light") << AppSettings::Light;
}

void TestMenuStyler::cornersAreNothing() {
  QFETCH(AppSettings::ThemeMode, mode);
  AppSettings::instance().setThemeMode(mode);
  QMenu menu;
  menu.addAction(u"One entry"_s);
  menu.addAction(u"Another"_s);
  menu.popup({100, 100});
  QVERIFY(menu.isVisible());
  QCOMPARE(menu.windowType(), Qt::Popup);
  QVERIFY(menu.testAttribute(Qt::WA_TranslucentBackground));
  const QImage image = menu.grab().toImage().convertToFormat(QImage::Format_ARGB32);
  const int right = image.width() - 1;
  const int bottom = image.height() - 1;
  for (const QPoint& corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
    QCOMPARE(image.pixelColor(corner).alpha(), 0);
  QCOMPARE(image.pixelColor(image.width() / 2, 2), Theme::get().surface);
  QVERIFY(image.pixelColor(image.width() / 2, 0).alpha() > 120); // the border, over half of the fill
}

void TestMenuStyler::submenusToo() {
  QMenu menu;
  QMenu* more = menu.addMenu(u"More"_s);
  more->addAction(u"One"_s);
  menu.popup({100, 100});
  menu.setActiveAction(more->menuAction());
  QTest::keyClick(&menu, Qt::Key_Right);
  QTRY_VERIFY(more->isVisible());
  QCOMPARE(more->grab().toImage().pixelColor(0, 0).alpha(), 0);
}

void TestMenuStyler::entriesWork() {
  QMenu menu;
  QString chosen;
  menu.addAction(u"One"_s, this, [&] { chosen = u"One"_s; });
  menu.addAction(u"Two"_s, this, [&] { chosen = u"Two"_s; });
  for (int round = 0; round < 2; ++round) {
    chosen.clear();
    menu.popup({100, 100});
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions()[1]).center());
    QCOMPARE(chosen, u"Two"_s);
    QVERIFY(!menu.isVisible());
  }
}

int main(int argc, char** argv) { return uitest::run<TestMenuStyler>(argc, argv); }

#include "tst_MenuStyler.moc"
