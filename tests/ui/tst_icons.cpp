#include "support/uitest.h"
#include "ui/desktop.h"
#include "ui/icons.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {

const QStringList& names() {
  static const QStringList all = {
      u"alert"_s,   u"archive"_s,   u"bell"_s,      u"box"_s,        u"calendar"_s,      u"check"_s,       u"chev"_s,
      u"clock"_s,   u"code"_s,      u"disc"_s,      u"download"_s,   u"drive"_s,         u"external"_s,    u"file"_s,
      u"film"_s,    u"folder"_s,    u"globe"_s,     u"history"_s,    u"image"_s,         u"info"_s,        u"layers"_s,
      u"lock"_s,    u"menu-help"_s, u"menu-info"_s, u"menu-power"_s, u"menu-settings"_s, u"menu-update"_s, u"plus"_s,
      u"refresh"_s, u"ruler"_s,     u"scan"_s,      u"search"_s,     u"shield"_s,        u"sliders"_s,     u"sparkle"_s,
      u"trash"_s,   u"x"_s};
  return all;
}

QByteArray content(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

template <typename Paint>
QImage painted(int side, Paint&& paint) {
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  paint(&painter);
  return image;
}

QImage iconImage(const QString& name, const QColor& colour, int side) {
  return painted(side, [&](QPainter* painter) { icons::paint(painter, QRectF(0, 0, side, side), name, colour); });
}

/// The smallest rectangle around what is painted.
QRect inked(const QImage& image) {
  QRect result;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(image.pixel(x, y)) > 24) result |= QRect(x, y, 1, 1);
  return result;
}

int strongest(const QImage& image) {
  int most = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) most = qMax(most, qAlpha(image.pixel(x, y)));
  return most;
}

bool isEmpty(const QImage& image) { return strongest(image) == 0; }

} // namespace

class TestIcons : public QObject {
  Q_OBJECT

 private slots:
  void theSetIsComplete();
  void everyIconKeepsTheConventions_data();
  void everyIconKeepsTheConventions();
  void iconsDifferFromEachOther();
  void onlyIconsHaveTheHook();
  void glyphsOfTheStyleSheet_data();
  void glyphsOfTheStyleSheet();
  void glyphStrokes_data();
  void glyphStrokes();

  void paintTintsAndPlaces();
  void alphaBecomesOpacity();
  void painterComesBackAsItWas();
  void alphaSharesTheRenderer();
  void unknownNamesPaintNothing_data();
  void unknownNamesPaintNothing();
  void unknownNameIsReadOnce();

  void iconHasFourResolutions();
  void iconIsMadeAfreshEachTime();
  void logos_data();
  void logos();
  void appIconHasItsSizes();
  void trayIconReadsOnAnyPanel();
};

void TestIcons::theSetIsComplete() {
  QCOMPARE(names().size(), 37);
  QStringList files = QDir(u":/icons"_s).entryList(QDir::Files, QDir::Name);
  files.replaceInStrings(u".svg"_s, QString());
  QCOMPARE(files, names());
}

void TestIcons::everyIconKeepsTheConventions_data() {
  QTest::addColumn<QString>("name");
  for (const QString& name : names()) QTest::newRow(qPrintable(name)) << name;
}

void TestIcons::everyIconKeepsTheConventions() {
  QFETCH(QString, name);
  const QString svg = QString::fromUtf8(content(u":/icons/%1.svg"_s.arg(name)));
  for (const QLatin1StringView part :
       {R"(viewBox="0 0 24 24")"_L1, R"(fill="none")"_L1, R"(stroke="currentColor")"_L1, R"(stroke-width="1.6")"_L1,
        R"(stroke-linecap="round")"_L1, R"(stroke-linejoin="round")"_L1})
    QCOMPARE(svg.count(part), 1);
  QVERIFY(!svg.contains(u'#')); // no colour of its own
  QVERIFY(!svg.contains("clip"_L1));
  QCOMPARE(svg.count("<path "_L1), 1); // one path: strokes that cross don't add up where the colour is translucent

  // At ten pixels a unit: inside the margin on all sides, filling one direction at least, and about the middle.
  const QRect ink = inked(iconImage(name, Qt::black, 240));
  QVERIFY2(QRect(25, 25, 190, 190).contains(ink), qPrintable(name));
  QVERIFY2(qMax(ink.width(), ink.height()) >= 130, qPrintable(name));
  QVERIFY2((ink.center() - QPoint(120, 120)).manhattanLength() <= 20, qPrintable(name));
}

void TestIcons::iconsDifferFromEachOther() {
  QHash<QByteArray, QString> seen;
  for (const QString& name : names()) {
    const QByteArray svg = content(u":/icons/%1.svg"_s.arg(name));
    QVERIFY2(!seen.contains(svg), qPrintable(name + u" is drawn as "_s + seen.value(svg)));
    seen.insert(svg, name);
  }
}

void TestIcons::onlyIconsHaveTheHook() {
  const QStringList glyphs = QDir(u":/ui"_s).entryList(QDir::Files);
  QCOMPARE(glyphs.size(), 10);
  for (const QString& glyph : glyphs) QVERIFY(!content(u":/ui/"_s + glyph).contains("currentColor"));
}

void TestIcons::glyphsOfTheStyleSheet_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QColor>("fill");
  QTest::addColumn<QColor>("stroke");
  const auto tinted = [](const char* hex, double alpha) {
    QColor colour{QLatin1String(hex)};
    colour.setAlphaF(float(alpha));
    return colour;
  };
  const auto row = [&](const char* name, const char* fill, double fillAlpha, const char* stroke, double strokeAlpha) {
    QTest::newRow(name) << QString::fromLatin1(name) << tinted(fill, fillAlpha) << tinted(stroke, strokeAlpha);
  };
  row("box-dark", "#ffffff", .04, "#ffffff", .28);
  row("box-dark-hover", "#ffffff", .04, "#ffffff", .5);
  row("box-dark-off", "#ffffff", .04, "#ffffff", .1);
  row("box-light", "#ffffff", 1, "#0f172a", .28);
  row("box-light-hover", "#ffffff", 1, "#0f172a", .5);
  row("box-light-off", "#ffffff", 1, "#0f172a", .12);
}

void TestIcons::glyphsOfTheStyleSheet() {
  QFETCH(QString, name);
  QFETCH(QColor, fill);
  QFETCH(QColor, stroke);
  constexpr int kScale = 20;
  QSvgRenderer renderer(u":/ui/%1.svg"_s.arg(name));
  QCOMPARE(renderer.viewBox(), QRect(0, 0, 16, 16));
  const QImage image = painted(16 * kScale, [&](QPainter* painter) { renderer.render(painter); });
  const QImage wanted = painted(16 * kScale, [&](QPainter* painter) {
    painter->scale(kScale, kScale);
    painter->setPen(Qt::NoPen);
    painter->setBrush(fill);
    painter->drawRoundedRect(QRectF(0.75, 0.75, 14.5, 14.5), 4.25, 4.25);
    painter->setPen(QPen(stroke, 1.5));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(0.75, 0.75, 14.5, 14.5), 4.25, 4.25);
  });
  // The middle, the stroke outside the fill, inside it, and a corner.
  for (const QPointF& at : {QPointF(8, 8), QPointF(0.3, 8), QPointF(1.2, 8), QPointF(8, 15.8), QPointF(0.2, 0.2),
                            QPointF(1.9, 1.9), QPointF(3, 3)}) {
    const QColor is = image.pixelColor((at * kScale).toPoint());
    const QColor should = wanted.pixelColor((at * kScale).toPoint());
    QVERIFY2(
        qAbs(is.alpha() - should.alpha()) <= 2,
        qPrintable(
            u"%1 at %2,%3: alpha %4, not %5"_s.arg(name).arg(at.x()).arg(at.y()).arg(is.alpha()).arg(should.alpha())));
    if (should.alpha() > 60) QVERIFY(qAbs(is.red() - should.red()) <= 4 && qAbs(is.blue() - should.blue()) <= 4);
  }
}

void TestIcons::glyphStrokes_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("colour");
  QTest::addColumn<QString>("width");
  QTest::newRow("check") << u"check"_s << u"#ffffff"_s << u"3.2"_s;
  QTest::newRow("dash") << u"dash"_s << u"#ffffff"_s << u"3.2"_s;
  QTest::newRow("arrow-dark") << u"arrow-dark"_s << u"#b4b8c0"_s << u"2"_s;
  QTest::newRow("arrow-light") << u"arrow-light"_s << u"#5d6371"_s << u"2"_s;
}

void TestIcons::glyphStrokes() {
  QFETCH(QString, name);
  QFETCH(QString, colour);
  QFETCH(QString, width);
  const QByteArray svg = content(u":/ui/%1.svg"_s.arg(name));
  QVERIFY(svg.contains(u"stroke=\"%1\" stroke-width=\"%2\""_s.arg(colour, width).toUtf8()));
  QSvgRenderer renderer(svg);
  QCOMPARE(renderer.viewBox(), QRect(0, 0, 24, 24));
  const QImage image = painted(240, [&](QPainter* painter) { renderer.render(painter); });
  QVERIFY(!isEmpty(image));
  const QRect ink = inked(image);
  QVERIFY(QRect(20, 20, 200, 200).contains(ink));
  if (name.startsWith("arrow"_L1)) { // its point is below, in the middle
    QVERIFY(qAlpha(image.pixel(120, ink.bottom() - 8)) > 200);
    QCOMPARE(qAlpha(image.pixel(120, ink.top() + 8)), 0);
  }
}

void TestIcons::paintTintsAndPlaces() {
  const QImage image = painted(
      100, [](QPainter* painter) { icons::paint(painter, QRectF(40, 50, 48, 48), u"plus"_s, QColor(10, 200, 30)); });
  QCOMPARE(image.pixelColor(64, 74), QColor(10, 200, 30)); // where its two strokes cross
  QVERIFY(QRect(40, 50, 48, 48).contains(inked(image)));
}

void TestIcons::alphaBecomesOpacity() {
  const int whole = strongest(iconImage(u"plus"_s, QColor(0, 0, 0, 255), 48));
  QCOMPARE(whole, 255);
  const int half = strongest(iconImage(u"plus"_s, QColor(0, 0, 0, 128), 48));
  QVERIFY(qAbs(half - 128) <= 1);
  const QImage quarter = painted(48, [](QPainter* painter) {
    painter->setOpacity(0.5);
    icons::paint(painter, QRectF(0, 0, 48, 48), u"plus"_s, QColor(0, 0, 0, 128));
  });
  QVERIFY(qAbs(strongest(quarter) - 64) <= 1);
}

void TestIcons::painterComesBackAsItWas() {
  painted(48, [](QPainter* painter) {
    painter->setOpacity(0.75);
    painter->setPen(Qt::red);
    icons::paint(painter, QRectF(0, 0, 48, 48), u"plus"_s, QColor(0, 0, 0, 10));
    QCOMPARE(painter->opacity(), 0.75);
    QCOMPARE(painter->pen().color(), QColor(Qt::red));
    QVERIFY(painter->transform().isIdentity());
  });
}

void TestIcons::alphaSharesTheRenderer() {
  iconImage(u"bell"_s, QColor(1, 2, 3, 255), 16);
  const int before = icons::rendererCount();
  iconImage(u"bell"_s, QColor(1, 2, 3, 77), 16);
  QCOMPARE(icons::rendererCount(), before);
  iconImage(u"bell"_s, QColor(1, 2, 4, 255), 16);
  QCOMPARE(icons::rendererCount(), before + 1);
}

void TestIcons::unknownNamesPaintNothing_data() {
  QTest::addColumn<QString>("name");
  QTest::newRow("unknown") << u"no-such-icon"_s;
  QTest::newRow("empty") << QString();
  QTest::newRow("another case") << u"Bell"_s;
}

void TestIcons::unknownNamesPaintNothing() {
  QFETCH(QString, name);
  QVERIFY(isEmpty(iconImage(name, Qt::black, 24)));
  QVERIFY(isEmpty(iconImage(name, Qt::black, 24)));
  QVERIFY(isEmpty(icons::icon(name, Qt::black, 16).pixmap(16).toImage()));
}

// A second call must not look for the file again: one that comes later stays unseen.
void TestIcons::unknownNameIsReadOnce() {
  QVERIFY(isEmpty(iconImage(u"late"_s, Qt::black, 24)));
  QVERIFY(QResource::registerResource(QStringLiteral(LATE_ICON)));
  QVERIFY(QFile::exists(u":/icons/late.svg"_s));
  QVERIFY(isEmpty(iconImage(u"late"_s, Qt::black, 24)));
  QVERIFY(isEmpty(iconImage(u"late"_s, Qt::red, 24))); // another renderer of the same source
}

void TestIcons::iconHasFourResolutions() {
  const QIcon icon = icons::icon(u"bell"_s, Qt::black, 17);
  QCOMPARE(icon.availableSizes(QIcon::Normal, QIcon::Off), QList<QSize>({{17, 17}, {21, 21}, {26, 26}, {34, 34}}));
  for (const auto& [ratio, side] : {std::pair(1.0, 17), std::pair(1.25, 21), std::pair(1.5, 26), std::pair(2.0, 34)}) {
    const QPixmap pixmap = icon.pixmap(QSize(17, 17), ratio);
    QCOMPARE(pixmap.size(), QSize(side, side));
    QVERIFY(qAbs(pixmap.devicePixelRatio() - ratio) < 0.05);
    QVERIFY(inked(pixmap.toImage()).width() > side / 2); // painted over the whole, not over the logical part of it
  }
}

void TestIcons::iconIsMadeAfreshEachTime() {
  const QIcon one = icons::icon(u"bell"_s, Qt::black, 16);
  const QIcon other = icons::icon(u"bell"_s, Qt::black, 16);
  QVERIFY(one.cacheKey() != other.cacheKey());
}

void TestIcons::logos_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<int>("side");
  QTest::newRow("logo") << u":/logo.svg"_s << 64;
  QTest::newRow("small") << u":/logo-small.svg"_s << 32;
  QTest::newRow("tray") << u":/tray-mac.svg"_s << 24;
}

void TestIcons::logos() {
  QFETCH(QString, path);
  QFETCH(int, side);
  QVERIFY(!content(path).contains("clip"));
  QSvgRenderer renderer(path);
  QCOMPARE(renderer.viewBox(), QRect(0, 0, side, side));
  const QImage image = painted(256, [&](QPainter* painter) { renderer.render(painter); });
  QVERIFY(strongest(image) == 255);
  QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
  if (path.contains("tray"_L1)) return;
  // Cyan at the top left, indigo at the bottom right, transparent corners outside the rounded square.
  const QColor first = image.pixelColor(24, 24);
  const QColor last = image.pixelColor(231, 231);
  QVERIFY(first.green() > 180 && first.red() < 80);
  QVERIFY(last.green() < 110 && last.blue() > 210);
}

void TestIcons::trayIconReadsOnAnyPanel() {
  const QIcon icon = icons::trayIcon();
  QVERIFY(!icon.isNull());
  QCOMPARE(icon.isMask(), desktop::tintsStatusIcons());
  if (icon.isMask()) return; // the system sees to it
  for (const int size : {16, 22, 24, 32, 48, 64}) {
    QVERIFY(icon.availableSizes().contains(QSize(size, size)));
    const QImage image = icon.pixmap(QSize(size, size), 1).toImage();
    QCOMPARE(image.size(), QSize(size, size));
    // It brings a ground of its own, neither black nor white, for a mark in another colour.
    const QColor ground = image.pixelColor(size / 2, 1);
    QVERIFY(ground.alpha() > 200);
    QVERIFY2(ground.lightness() > 60 && ground.saturation() > 60, qPrintable(ground.name()));
    int lightest = 0;
    for (int x = 0; x < size; ++x)
      for (int y = 0; y < size; ++y) lightest = qMax(lightest, image.pixelColor(x, y).lightness());
    QVERIFY(lightest > ground.lightness() + 60);
  }
}

void TestIcons::appIconHasItsSizes() {
  const QIcon icon = icons::appIcon();
  QList<QSize> wanted;
  for (const int side : {16, 24, 32, 48, 64, 128, 256}) wanted << QSize(side, side);
  QCOMPARE(icon.availableSizes(), wanted);
  // The small drawing has no hub, the full one has.
  const QImage full = icon.pixmap(QSize(48, 48), 1).toImage();
  const QImage small = icon.pixmap(QSize(32, 32), 1).toImage();
  QVERIFY(full.pixelColor(48 * 28 / 64, 48 * 35 / 64).red() > 200);
  QVERIFY(small.pixelColor(14, 18).red() < 160);
}

int main(int argc, char** argv) { return uitest::run<TestIcons>(argc, argv); }

#include "tst_icons.moc"
