#include "app/AppSettings.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"

#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QHash>
#include <QPainter>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using pixels::isNear;
using pixels::rendered;
using pixels::setLook;
using ui::Button;

namespace {

QGraphicsDropShadowEffect* glow(const QWidget& widget) {
  return qobject_cast<QGraphicsDropShadowEffect*>(widget.graphicsEffect());
}
bool glows(const QWidget& widget) { return glow(widget) && glow(widget)->isEnabled(); }

int textWidth(const QString& text, int pixelSize) {
  return QFontMetrics(Theme::get().font(pixelSize, 600)).horizontalAdvance(text);
}

/// The colour of a place of the body that the content leaves free.
QColor bodyColour(Button& button) { return rendered(button).pixelColor(6, button.height() / 2); }

QColor iconInk(const Button& button, QIcon::Mode mode = QIcon::Normal, double ratio = 1) {
  const QImage image = button.icon().pixmap(QSize(16, 16), ratio, mode).toImage();
  QColor strongest(0, 0, 0, 0);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y).alpha() > strongest.alpha()) strongest = image.pixelColor(x, y);
  strongest.setAlpha(255);
  return strongest;
}

void hover(QWidget* widget, bool on) { widget->setAttribute(Qt::WA_UnderMouse, on); }

} // namespace

class TestButton : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() {
    Theme::get().mac = true;
    setLook(false);
  }

  void kinds_data();
  void kinds();
  void propertiesForTheSheet();
  void sizes_data();
  void sizes();
  void layoutCentresTheContent();
  void layoutWithoutIcon();
  void iconComesAndGoes();
  void glow_data();
  void glow();
  void disabledPrimaryHasNoGlow();
  void otherKindHasNoGlow();
  void primaryIsTheGradient();
  void primaryLitFromAbove();
  void dangerStates();
  void disabledIsFlat();
  void hoverRepaints_data();
  void hoverRepaints();
  void sheetShowsHover();
  void focusPaintsNothingInside();
  void laidOutHeights_data();
  void laidOutHeights();
  void largeIsFoundByTheSheet();
  void keyboardPresses();
};

void TestButton::kinds_data() {
  QTest::addColumn<QString>("kind");
  QTest::addColumn<bool>("filled");
  QTest::addColumn<QString>("ink");
  QTest::newRow("primary") << u"primary"_s << true << u"white"_s;
  QTest::newRow("danger") << u"danger"_s << true << u"white"_s;
  QTest::newRow("ghost") << u"ghost"_s << false << u"text2"_s;
  QTest::newRow("link") << u"link"_s << false << u"accent"_s;
  QTest::newRow("other") << u"other"_s << false << u"text"_s;
  QTest::newRow("none") << QString() << false << u"text"_s;
}

void TestButton::kinds() {
  QFETCH(QString, kind);
  QFETCH(bool, filled);
  QFETCH(QString, ink);
  const QByteArray name = kind.toLatin1();
  Button button(u"Go"_s, kind.isEmpty() ? nullptr : name.constData(), u"plus"_s);
  QCOMPARE(button.isFilled(), filled);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QHash<QString, QColor> inks = {
        {u"white"_s, Qt::white}, {u"text2"_s, theme.text2}, {u"accent"_s, theme.accent}, {u"text"_s, theme.text}};
    QVERIFY2(isNear(iconInk(button), inks[ink]), qPrintable(iconInk(button).name()));
    for (const double ratio : {1.0, 1.5, 2.0}) {
      const QColor disabled = iconInk(button, QIcon::Disabled, ratio);
      QVERIFY2(isNear(disabled, theme.text3), qPrintable(disabled.name()));
    }
  }
}

void TestButton::propertiesForTheSheet() {
  const Button plain(u"Go"_s);
  QVERIFY(!plain.property("kind").isValid());
  QCOMPARE(plain.property("size").toString(), QString());
  QVERIFY(!plain.isLarge());
  QCOMPARE(plain.iconSize(), QSize(16, 16));
  QVERIFY(plain.testAttribute(Qt::WA_Hover));
  const Button large(u"Go"_s, "ghost", {}, "lg");
  QCOMPARE(large.property("kind").toString(), u"ghost"_s);
  QCOMPARE(large.property("size").toString(), u"lg"_s);
  QVERIFY(large.isLarge());
  QVERIFY(large.icon().isNull());
}

void TestButton::sizes_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<bool>("large");
  QTest::addColumn<bool>("icon");
  QTest::addColumn<int>("room");
  QTest::addColumn<int>("height");
  QTest::newRow("mac") << true << false << false << 32 << 30;
  QTest::newRow("mac icon") << true << false << true << 56 << 30;
  QTest::newRow("mac large") << true << true << false << 44 << 38;
  QTest::newRow("mac large icon") << true << true << true << 68 << 38;
  QTest::newRow("win") << false << false << false << 32 << 34;
  QTest::newRow("win large") << false << true << false << 44 << 42;
}

void TestButton::sizes() {
  QFETCH(bool, mac);
  QFETCH(bool, large);
  QFETCH(bool, icon);
  QFETCH(int, room);
  QFETCH(int, height);
  Theme::get().mac = mac;
  for (const char* kind : {"primary", "danger"}) {
    const Button button(u"Clean up"_s, kind, icon ? u"trash"_s : QString(), large ? "lg" : nullptr);
    QCOMPARE(button.sizeHint(), QSize(textWidth(u"Clean up"_s, large ? 14 : 13) + room, height));
  }
}

void TestButton::layoutCentresTheContent() {
  const ui::ButtonLayout layout = ui::buttonLayout({201, 31}, 60, true, false);
  QCOMPARE(layout.body, QRectF(0.5, 0.5, 200, 30));
  QCOMPARE(layout.radius, 10.0);
  QCOMPARE(layout.icon, QRectF(100.5 - 42, 15.5 - 8, 16, 16));
  QCOMPARE(layout.text, QRectF(100.5 - 42 + 24, 0.5, 62, 30));
  const ui::ButtonLayout mirrored = ui::buttonLayout({201, 31}, 60, true, false, Qt::RightToLeft);
  QCOMPARE(mirrored.icon, QRectF(100.5 + 42 - 16, 15.5 - 8, 16, 16));
  QCOMPARE(mirrored.text, QRectF(100.5 + 42 - 24 - 62, 0.5, 62, 30));
}

void TestButton::layoutWithoutIcon() {
  const ui::ButtonLayout layout = ui::buttonLayout({101, 39}, 60, false, true);
  QCOMPARE(layout.radius, 12.0);
  QVERIFY(layout.icon.isNull());
  QCOMPARE(layout.text, QRectF(50.5 - 30, 0.5, 62, 38));
}

void TestButton::iconComesAndGoes() {
  Button button(u"Go"_s, "primary");
  const int bare = button.sizeHint().width();
  QVERIFY(button.icon().isNull());
  button.setIconName(u"scan"_s);
  QVERIFY(!button.icon().isNull());
  QCOMPARE(button.sizeHint().width(), bare + 24);
  button.setIconName({});
  QVERIFY(button.icon().isNull());
  QCOMPARE(button.sizeHint().width(), bare);
}

void TestButton::glow_data() {
  QTest::addColumn<bool>("large");
  QTest::addColumn<double>("blur");
  QTest::addColumn<double>("down");
  QTest::newRow("usual") << false << 20.0 << 5.0;
  QTest::newRow("large") << true << 26.0 << 7.0;
}

void TestButton::glow() {
  QFETCH(bool, large);
  QFETCH(double, blur);
  QFETCH(double, down);
  const Button button(u"Go"_s, "primary", {}, large ? "lg" : nullptr);
  QVERIFY(glows(button));
  QCOMPARE(::glow(button)->blurRadius(), blur);
  QCOMPARE(::glow(button)->offset(), QPointF(0, down));
  QCOMPARE(::glow(button)->color(), QColor(99, 102, 241, 60));
  setLook(true);
  QCOMPARE(::glow(button)->color(), QColor(99, 102, 241, 130));
}

void TestButton::disabledPrimaryHasNoGlow() {
  Button button(u"Go"_s, "primary");
  button.setEnabled(false);
  QVERIFY(::glow(button));
  QVERIFY(!glows(button));
  Theme::get().refresh();
  QVERIFY(!glows(button));
  button.setEnabled(true);
  QVERIFY(glows(button));
}

void TestButton::otherKindHasNoGlow() {
  Button button(u"Go"_s, "primary", u"plus"_s);
  const QSize filled = button.sizeHint();
  button.setKind("ghost");
  QVERIFY(!button.isFilled());
  QVERIFY(::glow(button)); // kept
  QVERIFY(!glows(button));
  QVERIFY(isNear(iconInk(button), Theme::get().text2));
  button.resize(filled);
  QCOMPARE(bodyColour(button).alpha(), 0); // the sheet's ghost is transparent
  button.setKind("primary");
  QVERIFY(glows(button));
  button.setKind(nullptr);
  QVERIFY(!glows(button));
  const Button danger(u"Go"_s, "danger");
  QVERIFY(!::glow(danger));
}

void TestButton::primaryIsTheGradient() {
  Button button(QString(), "primary");
  for (const bool dark : {true, false}) {
    setLook(dark);
    button.graphicsEffect()->setEnabled(false);
    button.resize(100, 32);
    QImage expected(button.size(), QImage::Format_ARGB32);
    const auto paintExpected = [&](int lighter) {
      QLinearGradient gradient = Theme::gradient(QRectF(0.5, 0.5, button.width() - 1, button.height() - 1));
      QGradientStops stops = gradient.stops();
      for (QGradientStop& stop : stops) stop.second = stop.second.lighter(lighter);
      gradient.setStops(stops);
      QPainter(&expected).fillRect(expected.rect(), gradient);
      return expected.pixelColor(30, button.height() / 2);
    };
    const auto seen = [&] { return rendered(button).pixelColor(30, button.height() / 2); };
    QVERIFY(isNear(seen(), paintExpected(100)));
    hover(&button, true);
    QVERIFY(isNear(seen(), paintExpected(108)));
    button.setDown(true);
    QVERIFY(isNear(seen(), paintExpected(95)));
    hover(&button, false);
    QVERIFY(isNear(seen(), paintExpected(95)));
    button.setDown(false);
  }
}

void TestButton::primaryLitFromAbove() {
  Button button(QString(), "primary");
  button.graphicsEffect()->setEnabled(false);
  button.resize(100, 32);
  const QImage image = rendered(button);
  QImage plain(button.size(), QImage::Format_ARGB32);
  QPainter(&plain).fillRect(plain.rect(), Theme::gradient(QRectF(0.5, 0.5, button.width() - 1, button.height() - 1)));
  const int middle = button.width() / 2;
  // The line's middle lies on the seam of the rows 0 and 1: half of it is in row 1, white at 60 of 255.
  const auto brighter = [&](int y) { return image.pixelColor(middle, y).red() - plain.pixelColor(middle, y).red(); };
  const int wanted = qRound((255 - plain.pixelColor(middle, 1).red()) * 60 / 255.0 / 2);
  QVERIFY2(qAbs(brighter(1) - wanted) <= 3, qPrintable(QString::number(brighter(1))));
  for (const int y : {2, 3, button.height() - 2}) QVERIFY(qAbs(brighter(y)) <= 2);
}

void TestButton::dangerStates() {
  Button button(QString(), "danger");
  button.resize(100, 32);
  for (const bool dark : {true, false}) {
    setLook(dark);
    const QColor bad = Theme::get().bad;
    QVERIFY(isNear(bodyColour(button), bad));
    hover(&button, true);
    QVERIFY(isNear(bodyColour(button), bad.lighter(110)));
    button.setDown(true);
    QVERIFY(isNear(bodyColour(button), bad));
    button.setDown(false);
    hover(&button, false);
  }
}

void TestButton::disabledIsFlat() {
  for (const char* kind : {"primary", "danger"}) {
    Button button(QString(), kind);
    button.setEnabled(false);
    button.resize(100, 32);
    for (const bool dark : {true, false}) {
      setLook(dark);
      const QImage image = rendered(button);
      QVERIFY(isNear(image.pixelColor(50, button.height() / 2), Theme::get().hover));
      QVERIFY(isNear(image.pixelColor(50, 3), Theme::get().hover)); // no highlight
    }
  }
}

void TestButton::hoverRepaints_data() {
  QTest::addColumn<QString>("kind");
  for (const QString& kind : {u"primary"_s, u"danger"_s, u"ghost"_s}) QTest::newRow(qPrintable(kind)) << kind;
}

void TestButton::hoverRepaints() {
  QFETCH(QString, kind);
  struct Counting : Button {
    using Button::Button;
    int paints = 0;
    void paintEvent(QPaintEvent* event) override {
      ++paints;
      Button::paintEvent(event);
    }
  };
  QWidget window;
  window.resize(200, 100);
  auto* button = new Counting(u"Go"_s, qPrintable(kind), {}, nullptr, &window);
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QTRY_VERIFY(button->paints > 0);
  for (const QEvent::Type type : {QEvent::HoverEnter, QEvent::HoverLeave}) {
    const int before = button->paints;
    QHoverEvent event(type, QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(button, &event);
    QTRY_VERIFY(button->paints > before);
  }
}

void TestButton::sheetShowsHover() {
  QWidget window;
  window.resize(300, 100);
  auto* button = new Button(QString(), "ghost", {}, nullptr, &window);
  button->setGeometry(20, 20, 100, 30);
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QTest::mouseMove(&window, {250, 80});
  QTRY_VERIFY(!button->underMouse());
  QCOMPARE(bodyColour(*button).alpha(), 0);
  QTest::mouseMove(button, {50, 15});
  QTRY_VERIFY(button->underMouse());
  QVERIFY(isNear(bodyColour(*button), Theme::get().hover));
}

void TestButton::focusPaintsNothingInside() {
  QWidget window;
  auto* row = new QHBoxLayout(&window);
  auto* other = new QPushButton;
  row->addWidget(other);
  QList<Button*> all;
  for (const char* kind : {static_cast<const char*>(nullptr), "ghost", "link", "primary"}) {
    all << new Button(u"Go"_s, kind);
    row->addWidget(all.last());
  }
  window.show();
  window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&window));
  for (Button* button : all) {
    other->setFocus();
    const QImage before = button->grab().toImage();
    button->setFocus(Qt::OtherFocusReason);
    QVERIFY(button->hasFocus());
    QCOMPARE(button->grab().toImage(), before);
  }
}

void TestButton::laidOutHeights_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("usual");
  QTest::addColumn<int>("large");
  QTest::newRow("mac") << true << 30 << 38;
  QTest::newRow("win") << false << 34 << 42;
}

// The sheet's rules find filled buttons too, and may not make any kind higher than the others.
void TestButton::laidOutHeights() {
  QFETCH(bool, mac);
  QFETCH(int, usual);
  QFETCH(int, large);
  Theme::get().mac = mac;
  Theme::get().refresh();
  QWidget window;
  auto* row = new QHBoxLayout(&window);
  struct Made {
    Button* button;
    int height;
  };
  QList<Made> all;
  for (const char* kind : {static_cast<const char*>(nullptr), "primary", "danger", "ghost", "other"})
    for (const char* size : {static_cast<const char*>(nullptr), "lg"}) {
      all << Made{new Button(u"Go"_s, kind, u"plus"_s, size), size ? large : usual};
      row->addWidget(all.last().button);
    }
  auto* changed = new Button(u"Go"_s, "link");
  row->addWidget(changed);
  all << Made{changed, usual};
  window.resize(900, 200);
  window.show();
  QVERIFY(changed->sizeHint().height() < usual); // as high as its text
  changed->setKind("ghost");
  for (const auto mode : {AppSettings::Dark, AppSettings::Light}) {
    AppSettings::instance().setThemeMode(mode);
    for (const Made& made : all) {
      QCOMPARE(made.button->sizeHint().height(), made.height);
      QTRY_COMPARE(made.button->height(), made.height);
    }
  }
  changed->setKind("link");
  QVERIFY(changed->sizeHint().height() < usual);
  QCOMPARE(changed->minimumHeight(), 0);
}

void TestButton::largeIsFoundByTheSheet() {
  for (const char* kind : {static_cast<const char*>(nullptr), "ghost"}) {
    Button usual(u"Go"_s, kind);
    Button large(u"Go"_s, kind, {}, "lg");
    usual.ensurePolished();
    large.ensurePolished();
    QCOMPARE(large.sizeHint().height() - usual.sizeHint().height(), 8);
    QCOMPARE(large.font().pixelSize(), 14);
  }
}

void TestButton::keyboardPresses() {
  Button button(u"Go"_s, "primary");
  QSignalSpy clicked(&button, &Button::clicked);
  QTest::keyClick(&button, Qt::Key_Space);
  QCOMPARE(clicked.count(), 1);
}

int main(int argc, char** argv) { return uitest::run<TestButton>(argc, argv); }

#include "tst_Button.moc"
