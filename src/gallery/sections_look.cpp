#include "gallery/Canvas.h"
#include "gallery/Shelf.h"
#include "gallery/sections.h"
#include "ui/Theme.h"
#include "ui/controls/factory.h"
#include "ui/icons.h"
#include "ui/paint.h"

#include <QDir>
#include <QLabel>
#include <QPainter>
#include <QSvgRenderer>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

struct Role {
  const char* name;
  QColor Theme::*colour;
};
constexpr Role kRoles[] = {
    {"bg", &Theme::bg},
    {"surface", &Theme::surface},
    {"surface2", &Theme::surface2},
    {"hover", &Theme::hover},
    {"press", &Theme::press},
    {"text", &Theme::text},
    {"text2", &Theme::text2},
    {"text3", &Theme::text3},
    {"line", &Theme::line},
    {"lineStrong", &Theme::lineStrong},
    {"accent", &Theme::accent},
    {"accentHover", &Theme::accentHover},
    {"accentSoft", &Theme::accentSoft},
    {"onAccent", &Theme::onAccent},
    {"ok", &Theme::ok},
    {"okSoft", &Theme::okSoft},
    {"warn", &Theme::warn},
    {"warnSoft", &Theme::warnSoft},
    {"bad", &Theme::bad},
    {"badSoft", &Theme::badSoft},
    {"scrim", &Theme::scrim},
    {"toastBg", &Theme::toastBg},
    {"toastFg", &Theme::toastFg},
    {"card", &Theme::card},
    {"cardHover", &Theme::cardHover},
    {"track", &Theme::track},
    {"glowA", &Theme::glowA},
    {"glowB", &Theme::glowB},
    {"core", &Theme::core},
};

constexpr const char* kLabelRoles[] = {"h1",  "h2",   "h3",  "strong", "sub", "caption", "micro",
                                       "grp", "mono", "num", "value",  "big", "ok",      "warn"};

constexpr int kSwatchesPerRow = 10;
constexpr QSize kSwatch{88, 44};
constexpr QSize kBackdrop{300, 200};
constexpr double kBackdropScale = 0.25;
constexpr int kIconSizesPx[] = {14, 16, 18, 30};
constexpr int kIconsPerRow = 8;

// A file of the resources over the whole rectangle.
void paintFile(QPainter* painter, const QRectF& rect, const QString& path) { QSvgRenderer(path).render(painter, rect); }

QStringList namesIn(const QString& folder) {
  QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
  for (QString& name : names) name.chop(4); // ".svg"
  return names;
}

Canvas* swatch(QColor Theme::*colour) {
  return new Canvas(kSwatch, [colour](QPainter* painter) {
    const Theme& theme = Theme::get();
    ui::paint::roundedRect(painter, ui::paint::hairline(QRectF({}, kSwatch)), 8, theme.*colour,
                           ui::paint::pen(theme.lineStrong));
  });
}

void paintSmallBackdrop(QPainter* painter) {
  painter->scale(kBackdropScale, kBackdropScale);
  Theme::get().paintBackdrop(painter, QRect({}, kBackdrop / kBackdropScale));
}

// The same icon in all its sizes, side by side on one middle line.
Canvas* iconInAllSizes(const QString& name) {
  static constexpr int kGap = 8;
  static constexpr QSize kSize{112, 32};
  return new Canvas(kSize, [name](QPainter* painter) {
    int left = 0;
    for (const int size : kIconSizesPx) {
      icons::paint(painter, QRect(left, (kSize.height() - size) / 2, size, size), name, Theme::get().text);
      left += size + kGap;
    }
  });
}

Canvas* logoOf(int size) {
  return new Canvas({size, size}, [size](QPainter* painter) { icons::paintLogo(painter, QRectF(0, 0, size, size)); });
}

// One of the icon's own pictures, as a window, a task bar or a panel takes it.
Canvas* iconOf(const QIcon& icon, int size) {
  return new Canvas({size, size}, [icon, size](QPainter* painter) {
    painter->drawPixmap(QRect(0, 0, size, size), icon.pixmap(QSize(size, size), 1.0));
  });
}

// The glyph is a black template; a panel inks it as it inks its text.
Canvas* trayGlyph(int size) {
  return new Canvas({size, size}, [size](QPainter* painter) {
    const double ratio = painter->device()->devicePixelRatioF();
    QPixmap inked((QSizeF(size, size) * ratio).toSize());
    inked.setDevicePixelRatio(ratio);
    inked.fill(Qt::transparent);
    QPainter ink(&inked);
    paintFile(&ink, QRectF(0, 0, size, size), u":/tray-mac.svg"_s);
    ink.setCompositionMode(QPainter::CompositionMode_SourceIn);
    ink.fillRect(QRectF(0, 0, size, size), Theme::get().text);
    ink.end();
    painter->drawPixmap(0, 0, inked);
  });
}

// Each glyph has its colours for one look fixed in it, so each stands on grounds of both looks.
Canvas* glyph(const QString& name) {
  static constexpr QSize kSize{88, 44};
  static constexpr QRectF kDark{0, 0, 44, 44};
  static constexpr QRectF kLight{44, 0, 44, 44};
  static constexpr QRgb kInk = 0xff1b2130;
  static constexpr QRgb kPaper = 0xfff4f6fa;
  const bool onGradient = name == "check"_L1 || name == "dash"_L1;
  return new Canvas(kSize, [name, onGradient](QPainter* painter) {
    painter->fillRect(kDark, QColor::fromRgb(kInk));
    painter->fillRect(kLight, QColor::fromRgb(kPaper));
    for (const QRectF& rect : {QRectF(14, 14, 16, 16), QRectF(54, 10, 24, 24)}) {
      if (onGradient) ui::paint::roundedRect(painter, rect, 5, Theme::gradient(rect));
      paintFile(painter, rect, u":/ui/%1.svg"_s.arg(name));
    }
  });
}

} // namespace

void colours(Shelf* shelf) {
  int count = 0;
  for (const Role& role : kRoles) {
    if (count++ % kSwatchesPerRow == 0) shelf->row();
    shelf->put(swatch(role.colour), QString::fromLatin1(role.name));
  }
  shelf->row();
  shelf->put(new Canvas({300, 44},
                        [](QPainter* painter) {
                          const QRectF rect(0, 0, 300, 44);
                          ui::paint::roundedRect(painter, rect, 8, Theme::gradient(rect));
                        }),
             u"gradient"_s);
  shelf->put(new Canvas(kBackdrop, paintSmallBackdrop), u"backdrop of a window of 1200 by 800"_s);
}

void type(Shelf* shelf) {
  int count = 0;
  for (const char* role : kLabelRoles) {
    if (count++ % 7 == 0) shelf->row();
    shelf->put(ui::label(count > 8 && count < 13 ? u"12.4 GB"_s : u"Tidy disk"_s, role), QString::fromLatin1(role));
  }
  shelf->put(ui::label(u"no role"_s), u"none"_s);
  shelf->put(ui::eyebrow(u"Your disk"_s), u"eyebrow"_s);
}

void lineIcons(Shelf* shelf) {
  int count = 0;
  for (const QString& name : namesIn(u":/icons"_s)) {
    if (count++ % kIconsPerRow == 0) shelf->row();
    shelf->put(iconInAllSizes(name), name);
  }
}

void logosAndGlyphs(Shelf* shelf) {
  for (const int size : {128, 64, 44, 32, 22}) shelf->put(logoOf(size), u"logo %1"_s.arg(size));
  for (const int size : {48, 32, 24, 16}) shelf->put(iconOf(icons::appIcon(), size), u"window %1"_s.arg(size));
  for (const int size : {36, 22, 18}) shelf->put(trayGlyph(size), u"tray glyph %1"_s.arg(size));
  for (const int size : {32, 22}) shelf->put(iconOf(icons::trayIcon(), size), u"tray %1"_s.arg(size));
  shelf->row();
  for (const QString& name : namesIn(u":/ui"_s)) shelf->put(glyph(name), name);
}

} // namespace gallery
