// What the style sheet makes of widgets: their fonts, heights and grounds.
#include "ui/Looks.h"

#include "support/uitest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

/// QWidget has a size of its own, which is no text and can't be made one; only a class that declares another over it
/// can be selected by it.
class SizedButton : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(QString size MEMBER m_size)

 public:
  using QPushButton::QPushButton;

 private:
  QString m_size;
};

} // namespace

class TestStyleSheetWidgets : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }

  void qtTakesTheWholeSheet();
  void rolesDressLabels();
  void buttonsHaveTheirHeights();
  void fieldsFillWithTheirOwnWhite();
  void scrollAreasShowWhatIsBehind();
  void whatIsDisabledLooksIt();
  void cornerBetweenScrollBarsIsEmpty();
};

// Qt says "Could not parse application stylesheet" of a sheet that it then ignores as a whole.
void TestStyleSheetWidgets::qtTakesTheWholeSheet() {
  QTest::failOnWarning(QRegularExpression(u".*"_s));
  for (const Look& look : kLooks) {
    apply(look);
    QLabel label;
    label.ensurePolished();
  }
}

void TestStyleSheetWidgets::rolesDressLabels() {
  apply(kLooks[0]);
  QLabel label(u"text"_s);
  label.setProperty("role", u"h2"_s);
  label.ensurePolished();
  QCOMPARE(label.font().pixelSize(), 18);
  QCOMPARE(int(label.font().weight()), 600);
  QCOMPARE(label.palette().color(label.foregroundRole()), Theme::get().text);
  label.setProperty("role", u"caption"_s);
  label.style()->unpolish(&label);
  label.style()->polish(&label);
  QCOMPARE(label.font().pixelSize(), 12);
  QCOMPARE(label.palette().color(label.foregroundRole()), Theme::get().text2);
  apply(kLooks[1]);
  QCOMPARE(label.palette().color(label.foregroundRole()), Theme::get().text2);
}

void TestStyleSheetWidgets::buttonsHaveTheirHeights() {
  for (const Look& look : kLooks) {
    apply(look);
    QPushButton plain(u"Do"_s);
    SizedButton large(u"Do"_s);
    QVERIFY(large.setProperty("size", u"lg"_s));
    const int border = 2; // one pixel on either side of the height that the sheet gives
    QCOMPARE(plain.sizeHint().height(), (look.mac ? 30 : 34) + border);
    QCOMPARE(large.sizeHint().height(), (look.mac ? 38 : 42) + border);
  }
}

void TestStyleSheetWidgets::fieldsFillWithTheirOwnWhite() {
  for (const Look& look : kLooks) {
    apply(look);
    QWidget window;
    window.setObjectName(u"window"_s);
    window.setStyleSheet(u"#window { background: #000000; }"_s);
    window.resize(200, 60);
    QPushButton button(QString(), &window);
    button.setGeometry(10, 10, 180, 32);
    const int fill = look.mode == AppSettings::Dark ? 15 : 255;
    QCOMPARE(window.grab().toImage().pixelColor(100, 26), QColor(fill, fill, fill));
  }
}

void TestStyleSheetWidgets::scrollAreasShowWhatIsBehind() {
  apply(kLooks[1]);
  QWidget window;
  window.setObjectName(u"window"_s);
  window.setStyleSheet(u"#window { background: #ff0000; }"_s);
  window.resize(120, 120);
  auto* area = new QScrollArea(&window);
  area->setGeometry(10, 10, 100, 100);
  auto* content = new QWidget;
  content->setFixedSize(20, 20);
  area->setWidget(content);
  const QImage image = window.grab().toImage();
  QCOMPARE(image.pixelColor(15, 15), QColor(255, 0, 0)); // the content
  QCOMPARE(image.pixelColor(60, 60), QColor(255, 0, 0)); // the viewport
  QCOMPARE(image.pixelColor(10, 10), QColor(255, 0, 0)); // no frame
}

void TestStyleSheetWidgets::whatIsDisabledLooksIt() {
  for (const Look& look : kLooks) {
    apply(look);
    QCheckBox box(u"text"_s);
    QComboBox combo;
    QLineEdit edit(u"text"_s);
    for (QWidget* widget : QList<QWidget*>{&box, &combo, &edit}) {
      widget->ensurePolished();
      const auto ink = [widget](QPalette::ColorGroup group) { return widget->palette().color(group, QPalette::Text); };
      QCOMPARE(ink(QPalette::Active), Theme::get().text);
      QCOMPARE(ink(QPalette::Disabled), Theme::get().text3);
    }
  }
}

void TestStyleSheetWidgets::cornerBetweenScrollBarsIsEmpty() {
  apply(kLooks[1]);
  QWidget window;
  window.setObjectName(u"window"_s);
  window.setStyleSheet(u"#window { background: #ff0000; }"_s);
  window.resize(120, 120);
  QScrollArea area(&window);
  area.setGeometry(10, 10, 100, 100);
  auto* content = new QWidget;
  content->setFixedSize(300, 300);
  area.setWidget(content);
  window.show();
  const QImage image = window.grab().toImage();
  for (int place = 101; place < 110; ++place)
    for (int other = 101; other < 110; ++other) QCOMPARE(image.pixelColor(place, other), QColor(255, 0, 0));
}

int main(int argc, char** argv) { return uitest::run<TestStyleSheetWidgets>(argc, argv); }

#include "tst_StyleSheet_widgets.moc"
