#include "ui/pages/LargeFileKind.h"

#include <QHash>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

struct Kind {
  QLatin1StringView label;
  QLatin1StringView icon;
  QRgb colour;
};
constexpr Kind kKinds[] = { // hue: of the kinds of files, the same in both looks
    {"Disk image"_L1, "disc"_L1, 0x6366f1},
    {"Video"_L1, "film"_L1, 0xec4899},
    {"Archive"_L1, "archive"_L1, 0xf59e0b},
    {"Installer"_L1, "download"_L1, 0x0ea5e9},
    {"Document"_L1, "file"_L1, 0x10b981},
    {"Backup"_L1, "archive"_L1, 0x8b5cf6},
    {"Audio"_L1, "file"_L1, 0x14b8a6},
    {"Image"_L1, "image"_L1, 0xf97316},
    {"Partial download"_L1, "download"_L1, 0x94a3b8}};
constexpr Kind kOther = {{}, "file"_L1, 0x64748b}; // hue: of all other files

// How far the hue of a kind's files goes from the kind's own, in degrees, one after the other.
constexpr int kHueSteps[] = {0, 16, -12, 30, -24, 8, -20, 24};
constexpr int kFullTurn = 360;
// Reds, oranges and yellows show a shift more strongly.
constexpr int kWarmBelow = 70;
constexpr int kWarmAbove = 300;
constexpr int kWarmDivisor = 3;
// Of 255.
constexpr int kGreyBelow = 41;
constexpr int kMostSaturation = 235;
constexpr int kSaturationGain = 20;
constexpr int kShades = 3;
constexpr int kShadeStep = 8;
constexpr int kDarker = 22;
constexpr int kMostValue = 255;

KindStyle styleOf(const Kind& kind) { return {.icon = kind.icon, .colour = QColor::fromRgb(kind.colour)}; }

QHash<QString, KindStyle> stylesByKind() {
  QHash<QString, KindStyle> styles;
  for (const Kind& kind : kKinds) styles.insert(kind.label, styleOf(kind));
  return styles;
}

} // namespace

const KindStyle& kindStyle(const QString& kind) {
  static const QHash<QString, KindStyle> styles = stylesByKind();
  static const KindStyle other = styleOf(kOther);
  const auto found = styles.constFind(kind);
  return found == styles.cend() ? other : *found;
}

QColor tileColour(const QColor& base, int n) {
  if (base.hsvSaturation() < kGreyBelow) return base;
  const int hue = base.hsvHue();
  const bool warm = hue < kWarmBelow || hue > kWarmAbove;
  const int step = kHueSteps[n % int(std::size(kHueSteps))] / (warm ? kWarmDivisor : 1);
  return QColor::fromHsv((hue + step + kFullTurn) % kFullTurn,
                         std::min(base.hsvSaturation(), kMostSaturation) + kSaturationGain,
                         std::clamp(base.value() - n % kShades * kShadeStep - kDarker, 0, kMostValue));
}

} // namespace ui
