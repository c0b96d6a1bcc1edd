#include "ui/Theme.h"

#include "app/AppSettings.h"
#include "ui/MenuStyler.h"
#include "ui/TipStyler.h"
#include "ui/accessible.h"
#include "ui/compat.h"
#include "ui/controls/FocusRing.h"
#include "ui/i18n.h"
#include "ui/paint.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QPainter>
#include <QPalette>
#include <QRadialGradient>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb opaque(QRgb colour) { return 0xff000000u | colour; }
constexpr QRgb alpha(QRgb colour, unsigned of255) { return (of255 << 24) | (colour & 0x00ffffffu); }

constexpr QRgb kWhite = 0xffffff;
constexpr QRgb kBlack = 0x000000;
constexpr QRgb kInk = 0x0f172a;

struct Role {
  QColor Theme::*field;
  QRgb dark;
  QRgb light;
};

constexpr Role kRoles[] = {
    {&Theme::bg, opaque(0x0a0d13), opaque(0xf4f6fa)},
    {&Theme::surface, opaque(0x151a23), opaque(kWhite)},
    {&Theme::surface2, opaque(0x1b2130), opaque(0xf8fafc)},
    {&Theme::hover, alpha(kWhite, 15), alpha(kInk, 13)},
    {&Theme::press, alpha(kWhite, 10), alpha(kInk, 20)},
    {&Theme::text, opaque(0xe8ecf3), opaque(kInk)},
    {&Theme::text2, opaque(0x9aa4b5), opaque(0x526075)},
    {&Theme::text3, opaque(0x636d7e), opaque(0x8a96a8)},
    {&Theme::line, alpha(kWhite, 20), alpha(kInk, 20)},
    {&Theme::lineStrong, alpha(kWhite, 36), alpha(kInk, 36)},
    {&Theme::accent, opaque(0x22d3ee), opaque(0x4f46e5)},
    {&Theme::accentHover, opaque(0x67e8f9), opaque(0x6366f1)},
    {&Theme::accentSoft, alpha(0x22d3ee, 31), alpha(0x4f46e5, 26)},
    {&Theme::onAccent, opaque(0x04131a), opaque(kWhite)},
    {&Theme::ok, opaque(0x34d399), opaque(0x059669)},
    {&Theme::okSoft, alpha(0x34d399, 31), alpha(0x059669, 26)},
    {&Theme::warn, opaque(0xfbbf24), opaque(0xb45309)},
    {&Theme::warnSoft, alpha(0xfbbf24, 31), alpha(0xf59e0b, 31)},
    {&Theme::bad, opaque(0xf87171), opaque(0xdc2626)},
    {&Theme::badSoft, alpha(0xf87171, 31), alpha(0xdc2626, 23)},
    {&Theme::scrim, alpha(kBlack, 140), alpha(kInk, 71)},
    {&Theme::toastBg, opaque(0xe8ecf3), opaque(kInk)},
    {&Theme::toastFg, opaque(0x0a0d13), opaque(kWhite)},
    {&Theme::card, alpha(kWhite, 9), alpha(kWhite, 184)},
    {&Theme::cardHover, alpha(kWhite, 18), opaque(kWhite)},
    {&Theme::track, alpha(kWhite, 18), alpha(kInk, 18)},
    {&Theme::glowA, alpha(0x22d3ee, 33), alpha(0x22d3ee, 41)},
    {&Theme::glowB, alpha(0x8b5cf6, 36), alpha(0x8b5cf6, 31)},
    {&Theme::core, opaque(0x0f131b), opaque(0xeef1f6)},
};

struct PaletteEntry {
  QPalette::ColorRole role;
  QColor Theme::*colour;
};

constexpr PaletteEntry kPalette[] = {
    {QPalette::Window, &Theme::bg},
    {QPalette::Base, &Theme::surface},
    {QPalette::AlternateBase, &Theme::surface2},
    {QPalette::WindowText, &Theme::text},
    {QPalette::Text, &Theme::text},
    {QPalette::ButtonText, &Theme::text},
    {QPalette::Button, &Theme::surface},
    {QPalette::Highlight, &Theme::accent},
    {QPalette::HighlightedText, &Theme::onAccent},
    {QPalette::PlaceholderText, &Theme::text3},
    {QPalette::ToolTipBase, &Theme::surface},
    {QPalette::ToolTipText, &Theme::text},
};

struct Stop {
  double at;
  QRgb colour;
};

constexpr Stop kGradient[] = {{0.0, opaque(0x22d3ee)}, {0.55, opaque(0x6366f1)}, {1.0, opaque(0xa855f7)}};

constexpr int kFontPx = 13;
constexpr int kFontWeight = 400;
constexpr int kEyebrowWeight = 500;
constexpr double kEyebrowSpacing = 0.13; // of the pixel size

// A soft ellipse of the backdrop: where its middle lies, in shares of the rectangle from its near edges, and how far
// it reaches, in pixels whatever the window's size.
struct Glow {
  QColor Theme::*colour;
  QPointF centre;
  double radiusX;
  double radiusY;
};

constexpr double kGlowEnds = 0.6; // share of the radius at which a glow has faded

QString generalFamily() { return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(); }

// Asked once a process: the answer walks the whole font database, and painting asks often.
QString monoFamily() {
  static const QString family = [] {
    for (const QString& wanted : {u"SF Mono"_s, u"Menlo"_s})
      if (QFontDatabase::hasFamily(wanted)) return wanted;
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  }();
  return family;
}

// Scripts whose characters fill their cell look torn apart when spaced out.
bool wideScript() {
  static const bool wide = [] {
    const QString language = i18n::effectiveLanguage();
    return language.startsWith("zh"_L1) || language == "ja"_L1 || language == "ko"_L1;
  }();
  return wide;
}

// One character has several shapes in the Han scripts, and without a word from us the desktop's locale picks among
// them. By language, the families that have the shapes of its readers, best first.
struct HanFamilies {
  QLatin1StringView language;
  std::array<const char*, 3> families;
};
constexpr HanFamilies kHanFamilies[] = {
    {"zh_CN"_L1, {"Noto Sans CJK SC", "Source Han Sans SC", "WenQuanYi Micro Hei"}},
    {"zh_TW"_L1, {"Noto Sans CJK TC", "Source Han Sans TC", "WenQuanYi Micro Hei"}},
    {"ja"_L1, {"Noto Sans CJK JP", "Source Han Sans", "IPAGothic"}},
    {"ko"_L1, {"Noto Sans CJK KR", "Source Han Sans K", "NanumGothic"}},
};

// A desktop may name no family but a kind, "Sans Serif". No font bears that name, so that a substitute would stand in
// for all of it; the family that is really shown goes before it.
void keepFace(const QFont& font) {
  if (!QFontDatabase::hasFamily(font.family())) QFont::insertSubstitution(font.family(), QFontInfo(font).family());
}

// As a substitute of the interface font it serves every font that falls back to that one, the style sheet's included.
void preferHanFamily() {
  const QString language = i18n::effectiveLanguage();
  for (const HanFamilies& row : kHanFamilies) {
    if (row.language != language) continue;
    for (const char* family : row.families)
      if (const QString name = QString::fromLatin1(family); QFontDatabase::hasFamily(name)) {
        keepFace(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        keepFace(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
        QFont::insertSubstitution(generalFamily(), name);
        return;
      }
  }
}

void paintGlow(QPainter* painter, const QPointF& centre, const Glow& glow, const QColor& colour) {
  painter->save();
  painter->translate(centre);
  painter->scale(1, glow.radiusY / glow.radiusX);
  QRadialGradient gradient({0, 0}, glow.radiusX);
  gradient.setColorAt(0, colour);
  gradient.setColorAt(kGlowEnds, ui::paint::withAlpha(colour, 0));
  gradient.setColorAt(1, ui::paint::withAlpha(colour, 0));
  painter->setPen(Qt::NoPen);
  painter->setBrush(gradient);
  // Only what it lights: the rest of its circle would cost as much, for nothing, and more often than not a repaint lies
  // in the rest.
  const double reach = kGlowEnds * glow.radiusX;
  painter->drawEllipse(QPointF(0, 0), reach, reach);
  painter->restore();
}

} // namespace

Theme& Theme::get() {
  static Theme theme;
  return theme;
}

Theme::Theme() : mac(qEnvironmentVariable("TARNWICK_LOOK") != "win"_L1) {}

void Theme::install(QApplication* app) {
  m_app = app;
  ui::installAccessibility();
  preferHanFamily();
  app->installEventFilter(new TipStyler(this));
  app->installEventFilter(new MenuStyler(this));
  app->installEventFilter(new ui::FocusRings(this));
  QApplication::setEffectEnabled(Qt::UI_AnimateTooltip, false);
  QApplication::setEffectEnabled(Qt::UI_FadeTooltip, false);
  compat::watchColorScheme(this, [this] { refresh(); });
  connect(&AppSettings::instance(), &AppSettings::changed, this, [this] {
    if (darkWanted() != dark) refresh();
  });
  refresh();
}

bool Theme::darkWanted() const {
  switch (AppSettings::instance().themeMode()) {
  case AppSettings::Dark:
    return true;
  case AppSettings::System:
    return m_app && compat::colorScheme() == compat::Scheme::Dark;
  default:
    return false;
  }
}

void Theme::refresh() {
  dark = darkWanted();
  for (const Role& role : kRoles) this->*role.field = QColor::fromRgba(dark ? role.dark : role.light);
  if (m_app) applyToApplication();
  emit changed();
}

void Theme::applyToApplication() {
  QPalette palette;
  for (const PaletteEntry& entry : kPalette) palette.setColor(entry.role, this->*entry.colour);
  compat::setAccent(&palette, accent);
  QApplication::setPalette(palette);
  QApplication::setFont(font(kFontPx, kFontWeight));
  m_app->setStyleSheet(styleSheet());
}

QColor Theme::tone(Tone tone) const {
  switch (tone) {
  case Tone::Text:
    return text;
  case Tone::Text2:
    return text2;
  case Tone::Text3:
    return text3;
  case Tone::Accent:
    return accent;
  case Tone::OnAccent:
    return onAccent;
  case Tone::Ok:
    return ok;
  case Tone::Warn:
    return warn;
  case Tone::Bad:
    return bad;
  case Tone::White:
    return Qt::white;
  }
  return text;
}

QFont Theme::font(int pixelSize, int weight, bool /*display*/) const {
  QFont font(generalFamily());
  font.setPixelSize(pixelSize);
  font.setWeight(QFont::Weight(weight));
  return font;
}

QFont Theme::mono(int pixelSize, int weight) const {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setFamilies({monoFamily(), generalFamily()});
  font.setPixelSize(pixelSize);
  font.setWeight(QFont::Weight(weight));
  return font;
}

QFont Theme::eyebrow(int pixelSize) const {
  QFont font = mono(pixelSize, kEyebrowWeight);
  font.setCapitalization(QFont::AllUppercase);
  if (!wideScript()) font.setLetterSpacing(QFont::AbsoluteSpacing, kEyebrowSpacing * pixelSize);
  return font;
}

QLinearGradient Theme::gradient(const QRectF& rect) {
  QLinearGradient gradient(rect.topLeft(), rect.bottomRight());
  for (const Stop& stop : kGradient) gradient.setColorAt(stop.at, QColor::fromRgba(stop.colour));
  return gradient;
}

void Theme::paintBackdrop(QPainter* painter, const QRect& rect) const {
  static constexpr Glow kFirst{&Theme::glowA, {0.12, -0.10}, 900, 500};
  static constexpr Glow kSecond{&Theme::glowB, {1.05, 1.10}, 800, 600};
  painter->fillRect(rect, bg);
  const QRectF area(rect);
  for (const Glow& glow : {kFirst, kSecond}) {
    const QPointF centre(area.left() + glow.centre.x() * area.width(), area.top() + glow.centre.y() * area.height());
    paintGlow(painter, centre, glow, this->*glow.colour);
  }
}
