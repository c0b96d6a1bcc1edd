#include "app/AppSettings.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/accessible.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QProcess>
#include <QRadialGradient>
#include <QRawFont>
#include <QSettings>
#include <QSignalSpy>
#include <QTextLayout>
#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Role {
  const char* name;
  QColor Theme::*field;
  QColor dark;
  QColor light;
};

QColor hex(const char* text) { return QColor(QLatin1String(text)); }
QColor white(int alpha) { return {255, 255, 255, alpha}; }
QColor ink(int alpha) { return {15, 23, 42, alpha}; }

const QList<Role>& roles() {
  static const QList<Role> all = {
      {"bg", &Theme::bg, hex("#0a0d13"), hex("#f4f6fa")},
      {"surface", &Theme::surface, hex("#151a23"), hex("#ffffff")},
      {"surface2", &Theme::surface2, hex("#1b2130"), hex("#f8fafc")},
      {"hover", &Theme::hover, white(15), ink(13)},
      {"press", &Theme::press, white(10), ink(20)},
      {"text", &Theme::text, hex("#e8ecf3"), hex("#0f172a")},
      {"text2", &Theme::text2, hex("#9aa4b5"), hex("#526075")},
      {"text3", &Theme::text3, hex("#636d7e"), hex("#8a96a8")},
      {"line", &Theme::line, white(20), ink(20)},
      {"lineStrong", &Theme::lineStrong, white(36), ink(36)},
      {"accent", &Theme::accent, hex("#22d3ee"), hex("#4f46e5")},
      {"accentHover", &Theme::accentHover, hex("#67e8f9"), hex("#6366f1")},
      {"accentSoft", &Theme::accentSoft, {34, 211, 238, 31}, {79, 70, 229, 26}},
      {"onAccent", &Theme::onAccent, hex("#04131a"), hex("#ffffff")},
      {"ok", &Theme::ok, hex("#34d399"), hex("#059669")},
      {"okSoft", &Theme::okSoft, {52, 211, 153, 31}, {5, 150, 105, 26}},
      {"warn", &Theme::warn, hex("#fbbf24"), hex("#b45309")},
      {"warnSoft", &Theme::warnSoft, {251, 191, 36, 31}, {245, 158, 11, 31}},
      {"bad", &Theme::bad, hex("#f87171"), hex("#dc2626")},
      {"badSoft", &Theme::badSoft, {248, 113, 113, 31}, {220, 38, 38, 23}},
      {"scrim", &Theme::scrim, {0, 0, 0, 140}, ink(71)},
      {"toastBg", &Theme::toastBg, hex("#e8ecf3"), hex("#0f172a")},
      {"toastFg", &Theme::toastFg, hex("#0a0d13"), hex("#ffffff")},
      {"card", &Theme::card, white(9), white(184)},
      {"cardHover", &Theme::cardHover, white(18), hex("#ffffff")},
      {"track", &Theme::track, white(18), ink(18)},
      {"glowA", &Theme::glowA, {34, 211, 238, 33}, {34, 211, 238, 41}},
      {"glowB", &Theme::glowB, {139, 92, 246, 36}, {139, 92, 246, 31}},
      {"core", &Theme::core, hex("#0f131b"), hex("#eef1f6")},
  };
  return all;
}

void setMode(AppSettings::ThemeMode mode) { AppSettings::instance().setThemeMode(mode); }

QImage backdrop(const QSize& size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  Theme::get().paintBackdrop(&painter, image.rect());
  return image;
}

/// @p over painted on the opaque @p under, as far as rounding lets it be told.
QColor blend(const QColor& under, const QColor& over, double share) {
  const double alpha = over.alphaF() * share;
  const auto mix = [alpha](int a, int b) { return int(a + alpha * (b - a) + 0.5); };
  return {mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue())};
}

bool near(const QColor& a, const QColor& b, int tolerance = 1) {
  return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance &&
         qAbs(a.blue() - b.blue()) <= tolerance && qAbs(a.alpha() - b.alpha()) <= tolerance;
}

/// What a fresh process says of its theme: what is decided once can only be asked there.
int probe(int argc, char** argv) {
  const FixtureHome home;
  const QApplication app(argc, argv);
  Theme& theme = Theme::get();
  const QFont overline = theme.eyebrow(10);
  QTextStream(stdout) << (theme.mac ? "mac" : "win") << ' ' << (theme.dark ? "dark" : "light") << ' '
                      << (theme.bg.isValid() ? "coloured" : "bare") << ' ' << overline.letterSpacing() << ' '
                      << (overline.capitalization() == QFont::AllUppercase ? "capitals" : "mixed");
  return 0;
}

/// The family that really draws a Han character in the interface font.
QString familyThatDraws(const QString& character) {
  QTextLayout layout(character, Theme::get().font(13, 400));
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  const QList<QGlyphRun> runs = layout.glyphRuns();
  return runs.isEmpty() ? QString() : runs.first().rawFont().familyName();
}

/// The same of an installed theme's fonts.
int fontProbe(int argc, char** argv) {
  const FixtureHome home;
  QApplication app(argc, argv);
  Theme::get().install(&app);
  const QFont font = Theme::get().font(13, 400);
  QTextStream(stdout) << QFont::substitutes(font.family()).join(u',') << '|' << familyThatDraws(u"\u9aa8"_s) << '|'
                      << (font.families().size() == 1 ? "one" : "more");
  return 0;
}

QStringList probed(const QString& variable, const QString& value, const QString& kind = u"--probe"_s,
                   QChar separator = u' ') {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"TARNWICK_LANG"_s, u"en"_s);
  if (!variable.isEmpty()) environment.insert(variable, value);
  process.setProcessEnvironment(environment);
  process.start(QCoreApplication::applicationFilePath(), {kind});
  if (!process.waitForFinished()) qFatal("the probe doesn't end");
  return QString::fromUtf8(process.readAllStandardOutput()).split(separator);
}

} // namespace

class TestTheme : public QObject {
  Q_OBJECT

 private slots:
  // Before anything is installed: these run in the order in which they stand.
  void refreshWithoutApplicationIsLightAndTells();
  void everyRoleHasItsColour_data();
  void everyRoleHasItsColour();

  void installFeedsTheApplication();
  void installMakesPaintedControlsReadable();
  void paletteCarriesTheRoles_data();
  void paletteCarriesTheRoles();
  void applicationFontIs13Regular();
  void everythingIsInPlaceWhenChangedIsTold();
  void onlyADifferentLookRefreshes();
  void unknownModeInTheStoreIsNoDarkLook();

  void tones_data();
  void tones();
  void toneOutOfRangeIsText();
  void fontHasSizeAndWeightAndNoDisplayFace();
  void monoFallsBackToTheInterfaceFont();
  void eyebrowIsASpacedOutOverline();
  void gradientRunsCornerToCorner();
  void backdropGlowsFromItsCorners_data();
  void backdropGlowsFromItsCorners();
  void backdropGlowsAreWhole();

  void lookVariableIsExact_data();
  void lookVariableIsExact();
  void wideScriptsAreNotSpacedOut_data();
  void wideScriptsAreNotSpacedOut();
  void languageIsAskedOnce();
  void hanShapesFollowTheLanguage_data();
  void hanShapesFollowTheLanguage();
};

void TestTheme::refreshWithoutApplicationIsLightAndTells() {
  Theme& theme = Theme::get();
  QVERIFY(!theme.bg.isValid());
  const QPalette before = QApplication::palette();
  QSignalSpy changed(&theme, &Theme::changed);
  theme.refresh();
  QCOMPARE(changed.count(), 1);
  QVERIFY(!theme.dark);
  QCOMPARE(theme.bg, QColor(0xf4, 0xf6, 0xfa));
  QCOMPARE(QApplication::palette(), before);
  QVERIFY(qApp->styleSheet().isEmpty());
}

void TestTheme::everyRoleHasItsColour_data() {
  QTest::addColumn<int>("index");
  for (int i = 0; i < roles().size(); ++i) QTest::newRow(roles().at(i).name) << i;
}

void TestTheme::everyRoleHasItsColour() {
  QFETCH(int, index);
  const Role& role = roles().at(index);
  Theme& theme = Theme::get();
  setMode(AppSettings::Dark);
  theme.refresh();
  QCOMPARE(theme.*role.field, role.dark);
  setMode(AppSettings::Light);
  theme.refresh();
  QCOMPARE(theme.*role.field, role.light);
}

void TestTheme::installFeedsTheApplication() {
  setMode(AppSettings::Dark);
  QApplication::setEffectEnabled(Qt::UI_AnimateTooltip, true);
  QApplication::setEffectEnabled(Qt::UI_FadeTooltip, true);
  QSignalSpy changed(&Theme::get(), &Theme::changed);
  Theme::get().install(qApp);
  QCOMPARE(changed.count(), 1);
  QVERIFY(Theme::get().dark);
  QVERIFY(!QApplication::isEffectEnabled(Qt::UI_AnimateTooltip));
  QVERIFY(!QApplication::isEffectEnabled(Qt::UI_FadeTooltip));
  QCOMPARE(qApp->styleSheet(), Theme::get().styleSheet());
}

void TestTheme::installMakesPaintedControlsReadable() {
  struct Bar : QWidget, ui::AccessibleValue {
    [[nodiscard]] QString valueText() const override { return u"half"_s; }
    [[nodiscard]] double valueFraction() const override { return 0.5; }
  } bar;
  QCOMPARE(QAccessible::queryAccessibleInterface(&bar)->text(QAccessible::Value), u"half"_s);
}

void TestTheme::paletteCarriesTheRoles_data() {
  QTest::addColumn<QPalette::ColorRole>("role");
  QTest::addColumn<QColor>("dark");
  QTest::addColumn<QColor>("light");
  QTest::newRow("Window") << QPalette::Window << hex("#0a0d13") << hex("#f4f6fa");
  QTest::newRow("Base") << QPalette::Base << hex("#151a23") << hex("#ffffff");
  QTest::newRow("AlternateBase") << QPalette::AlternateBase << hex("#1b2130") << hex("#f8fafc");
  QTest::newRow("WindowText") << QPalette::WindowText << hex("#e8ecf3") << hex("#0f172a");
  QTest::newRow("Text") << QPalette::Text << hex("#e8ecf3") << hex("#0f172a");
  QTest::newRow("ButtonText") << QPalette::ButtonText << hex("#e8ecf3") << hex("#0f172a");
  QTest::newRow("Button") << QPalette::Button << hex("#151a23") << hex("#ffffff");
  QTest::newRow("Highlight") << QPalette::Highlight << hex("#22d3ee") << hex("#4f46e5");
  QTest::newRow("HighlightedText") << QPalette::HighlightedText << hex("#04131a") << hex("#ffffff");
  QTest::newRow("PlaceholderText") << QPalette::PlaceholderText << hex("#636d7e") << hex("#8a96a8");
  QTest::newRow("ToolTipBase") << QPalette::ToolTipBase << hex("#151a23") << hex("#ffffff");
  QTest::newRow("ToolTipText") << QPalette::ToolTipText << hex("#e8ecf3") << hex("#0f172a");
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
  QTest::newRow("Accent") << QPalette::Accent << hex("#22d3ee") << hex("#4f46e5");
#endif
}

void TestTheme::paletteCarriesTheRoles() {
  QFETCH(QPalette::ColorRole, role);
  for (const auto& [mode, column] : {std::pair(AppSettings::Dark, "dark"), std::pair(AppSettings::Light, "light")}) {
    setMode(mode);
    const QColor wanted = *static_cast<QColor*>(QTest::qData(column, qMetaTypeId<QColor>()));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
      QCOMPARE(QApplication::palette().color(group, role), wanted);
  }
}

void TestTheme::applicationFontIs13Regular() {
  const QFont font = QApplication::font();
  QCOMPARE(font.pixelSize(), 13);
  QCOMPARE(font.weight(), QFont::Normal);
  QCOMPARE(font.family(), QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
}

void TestTheme::everythingIsInPlaceWhenChangedIsTold() {
  setMode(AppSettings::Light);
  QColor window;
  QString sheet;
  const auto connection = connect(&Theme::get(), &Theme::changed, this, [&] {
    window = QApplication::palette().color(QPalette::Window);
    sheet = qApp->styleSheet();
  });
  setMode(AppSettings::Dark);
  disconnect(connection);
  QCOMPARE(window, QColor(0x0a, 0x0d, 0x13));
  QVERIFY(sheet.contains("arrow-dark"_L1));
}

void TestTheme::onlyADifferentLookRefreshes() {
  setMode(AppSettings::Light);
  QSignalSpy changed(&Theme::get(), &Theme::changed);
  AppSettings::instance().setOldMonths(AppSettings::instance().oldMonths() + 1);
  QCOMPARE(changed.count(), 0);
  setMode(AppSettings::System); // with no desktop to ask, light as well
  QCOMPARE(changed.count(), 0);
  setMode(AppSettings::Dark);
  QCOMPARE(changed.count(), 1);
  QVERIFY(Theme::get().dark);
}

void TestTheme::unknownModeInTheStoreIsNoDarkLook() {
  QSettings store;
  store.setValue("ui/theme"_L1, 7);
  store.sync();
  Theme::get().refresh();
  QVERIFY(!Theme::get().dark);
  setMode(AppSettings::Light);
}

void TestTheme::tones_data() {
  QTest::addColumn<int>("value");
  QTest::addColumn<QColor>("dark");
  QTest::addColumn<QColor>("light");
  QTest::newRow("Text") << 0 << hex("#e8ecf3") << hex("#0f172a");
  QTest::newRow("Text2") << 1 << hex("#9aa4b5") << hex("#526075");
  QTest::newRow("Text3") << 2 << hex("#636d7e") << hex("#8a96a8");
  QTest::newRow("Accent") << 3 << hex("#22d3ee") << hex("#4f46e5");
  QTest::newRow("OnAccent") << 4 << hex("#04131a") << hex("#ffffff");
  QTest::newRow("Ok") << 5 << hex("#34d399") << hex("#059669");
  QTest::newRow("Warn") << 6 << hex("#fbbf24") << hex("#b45309");
  QTest::newRow("Bad") << 7 << hex("#f87171") << hex("#dc2626");
  QTest::newRow("White") << 8 << hex("#ffffff") << hex("#ffffff");
}

void TestTheme::tones() {
  QFETCH(int, value);
  QFETCH(QColor, dark);
  QFETCH(QColor, light);
  setMode(AppSettings::Dark);
  QCOMPARE(Theme::get().tone(Tone(value)), dark);
  setMode(AppSettings::Light);
  QCOMPARE(Theme::get().tone(Tone(value)), light);
}

void TestTheme::toneOutOfRangeIsText() {
  QCOMPARE(Theme::get().tone(Tone(9)), Theme::get().text);
  QCOMPARE(Theme::get().tone(Tone(-1)), Theme::get().text);
}

void TestTheme::fontHasSizeAndWeightAndNoDisplayFace() {
  const QFont font = Theme::get().font(18, 600);
  QCOMPARE(font.pixelSize(), 18);
  QCOMPARE(int(font.weight()), 600);
  QCOMPARE(font.family(), QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
  QCOMPARE(Theme::get().font(18, 600, true), font);
  QCOMPARE(int(Theme::get().font(13, 500).weight()), 500);
}

void TestTheme::monoFallsBackToTheInterfaceFont() {
  const QFont mono = Theme::get().mono(11, 500);
  QString first = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  if (QFontDatabase::hasFamily(u"Menlo"_s)) first = u"Menlo"_s;
  if (QFontDatabase::hasFamily(u"SF Mono"_s)) first = u"SF Mono"_s;
  QCOMPARE(mono.families(), QStringList({first, QFontDatabase::systemFont(QFontDatabase::GeneralFont).family()}));
  QCOMPARE(mono.pixelSize(), 11);
  QCOMPARE(int(mono.weight()), 500);
}

void TestTheme::eyebrowIsASpacedOutOverline() {
  const QFont overline = Theme::get().eyebrow(11);
  QCOMPARE(overline.families(), Theme::get().mono(11, 500).families());
  QCOMPARE(overline.pixelSize(), 11);
  QCOMPARE(int(overline.weight()), 500);
  QCOMPARE(overline.capitalization(), QFont::AllUppercase);
  QCOMPARE(overline.letterSpacingType(), QFont::AbsoluteSpacing);
  QVERIFY(qAbs(overline.letterSpacing() - 0.13 * 11) < 0.02); // kept in sixty-fourths
}

void TestTheme::gradientRunsCornerToCorner() {
  const QLinearGradient gradient = Theme::gradient({10, 20, 30, 40});
  QCOMPARE(gradient.start(), QPointF(10, 20));
  QCOMPARE(gradient.finalStop(), QPointF(40, 60));
  const QGradientStops wanted = {{0.0, hex("#22d3ee")}, {0.55, hex("#6366f1")}, {1.0, hex("#a855f7")}};
  QCOMPARE(gradient.stops(), wanted);
}

void TestTheme::backdropGlowsFromItsCorners_data() {
  QTest::addColumn<AppSettings::ThemeMode>("mode");
  QTest::newRow("dark") << AppSettings::Dark;
  QTest::newRow("light") << AppSettings::Light;
}

void TestTheme::backdropGlowsFromItsCorners() {
  QFETCH(AppSettings::ThemeMode, mode);
  setMode(mode);
  const Theme& theme = Theme::get();
  const QImage image = backdrop({2000, 1600});
  // The first glow's middle is at (240, -160), and it has faded at 0.6 of 900 by 500: at the top edge, 160 of 500 down
  // its height, 0.32 of the way out.
  QVERIFY(near(image.pixelColor(240, 0), blend(theme.bg, theme.glowA, 1 - 0.32 / 0.6)));
  // 480 to its right as well: sqrt(0.32 squared + 0.5333 squared) = 0.622, beyond its end.
  QCOMPARE(image.pixelColor(720, 0), theme.bg);
  // The second one's middle is at (2100, 1760); at the right edge, (100, 160) away: sqrt(0.125 sq + 0.2667 sq) =
  // 0.2945.
  QVERIFY(near(image.pixelColor(1999, 1599), blend(theme.bg, theme.glowB, 1 - 0.2945 / 0.6)));
  QCOMPARE(image.pixelColor(1999, 1300), theme.bg);
  QCOMPARE(image.pixelColor(1000, 800), theme.bg);
  QCOMPARE(image.pixelColor(0, 1599), theme.bg);
}

// Where a glow has faded, nothing may be seen of where its painting ends.
void TestTheme::backdropGlowsAreWhole() {
  setMode(AppSettings::Light);
  const Theme& theme = Theme::get();
  QImage expected({1180, 780}, QImage::Format_ARGB32_Premultiplied);
  expected.fill(theme.bg);
  QPainter painter(&expected);
  painter.setPen(Qt::NoPen);
  const auto glow = [&](const QPointF& centre, double width, double height, const QColor& colour) {
    painter.resetTransform();
    painter.translate(centre);
    painter.scale(1, height / width);
    QColor nothing = colour;
    nothing.setAlpha(0);
    QRadialGradient gradient({0, 0}, width);
    gradient.setStops({{0, colour}, {0.6, nothing}, {1, nothing}});
    painter.setBrush(gradient);
    painter.drawEllipse(QPointF(), width, width);
  };
  glow({0.12 * 1180, -0.10 * 780}, 900, 500, theme.glowA);
  glow({1.05 * 1180, 1.10 * 780}, 800, 600, theme.glowB);
  painter.end();
  const QImage image = backdrop(expected.size());
  int worst = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QRgb seen = image.pixel(x, y);
      const QRgb wanted = expected.pixel(x, y);
      worst = std::max({worst, qAbs(qRed(seen) - qRed(wanted)), qAbs(qGreen(seen) - qGreen(wanted)),
                        qAbs(qBlue(seen) - qBlue(wanted))});
    }
  QVERIFY2(worst <= 1, qPrintable(QString::number(worst))); // a gradient is rounded by where its line begins
}

void TestTheme::lookVariableIsExact_data() {
  QTest::addColumn<QString>("value");
  QTest::addColumn<QString>("metrics");
  QTest::newRow("mac") << u"mac"_s << u"mac"_s;
  QTest::newRow("win") << u"win"_s << u"win"_s;
  QTest::newRow("other case") << u"WIN"_s << u"mac"_s;
  QTest::newRow("first letter's case") << u"Win"_s << u"mac"_s;
  QTest::newRow("more after it") << u"win "_s << u"mac"_s;
  QTest::newRow("anything") << u"linux"_s << u"mac"_s;
  QTest::newRow("empty") << QString() << u"mac"_s;
}

void TestTheme::lookVariableIsExact() {
  QFETCH(QString, value);
  QFETCH(QString, metrics);
  const QStringList answer = probed(u"TARNWICK_LOOK"_s, value);
  QCOMPARE(answer.value(0), metrics);
  QCOMPARE(answer.value(1), u"light"_s);
  QCOMPARE(answer.value(2), u"bare"_s);
}

void TestTheme::wideScriptsAreNotSpacedOut_data() {
  QTest::addColumn<QString>("language");
  QTest::addColumn<bool>("spaced");
  for (const char* wide : {"zh_CN", "zh_TW", "ja", "ko"}) QTest::newRow(wide) << QString::fromLatin1(wide) << false;
  for (const char* narrow : {"en", "de", "es", "fr", "pt_BR", "ru"})
    QTest::newRow(narrow) << QString::fromLatin1(narrow) << true;
}

void TestTheme::wideScriptsAreNotSpacedOut() {
  QFETCH(QString, language);
  QFETCH(bool, spaced);
  const QStringList answer = probed(u"TARNWICK_LANG"_s, language);
  QVERIFY(qAbs(answer.value(3).toDouble() - (spaced ? 1.3 : 0.0)) < 0.02);
  QCOMPARE(answer.value(4), u"capitals"_s);
}

void TestTheme::languageIsAskedOnce() {
  const double before = Theme::get().eyebrow(10).letterSpacing();
  AppSettings::instance().setLanguage(before > 0 ? u"ja"_s : u"de"_s);
  QCOMPARE(Theme::get().eyebrow(10).letterSpacing(), before);
}

void TestTheme::hanShapesFollowTheLanguage_data() {
  QTest::addColumn<QString>("language");
  QTest::addColumn<QStringList>("families");
  QTest::newRow("en") << u"en"_s << QStringList();
  QTest::newRow("ru") << u"ru"_s << QStringList();
  QTest::newRow("zh_CN") << u"zh_CN"_s
                         << QStringList{u"Noto Sans CJK SC"_s, u"Source Han Sans SC"_s, u"WenQuanYi Micro Hei"_s};
  QTest::newRow("zh_TW") << u"zh_TW"_s
                         << QStringList{u"Noto Sans CJK TC"_s, u"Source Han Sans TC"_s, u"WenQuanYi Micro Hei"_s};
  QTest::newRow("ja") << u"ja"_s << QStringList{u"Noto Sans CJK JP"_s, u"Source Han Sans"_s, u"IPAGothic"_s};
  QTest::newRow("ko") << u"ko"_s << QStringList{u"Noto Sans CJK KR"_s, u"Source Han Sans K"_s, u"NanumGothic"_s};
}

void TestTheme::hanShapesFollowTheLanguage() {
  QFETCH(QString, language);
  QFETCH(QStringList, families);
  const QStringList answer = probed(u"TARNWICK_LANG"_s, language, u"--fonts"_s, u'|');
  QCOMPARE(answer.value(2), u"one"_s); // the font itself names the interface family alone
  families.removeIf([](const QString& family) { return !QFontDatabase::hasFamily(family); });
  QCOMPARE(answer.value(0).section(u',', -1), families.value(0).toLower()); // after the face of a mere kind of font
  if (!families.isEmpty()) QCOMPARE(answer.value(1).toLower(), families.first().toLower());
}

int main(int argc, char** argv) {
  if (argc > 1 && QByteArray(argv[1]) == "--fonts") return fontProbe(argc, argv);
  if (argc > 1 && QByteArray(argv[1]) == "--probe") return probe(argc, argv);
  return uitest::run<TestTheme>(argc, argv);
}

#include "tst_Theme.moc"
