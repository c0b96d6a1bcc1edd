#include "gallery/shots.h"

#include "app/AppSettings.h"
#include "gallery/Sheet.h"
#include "gallery/pages.h"
#include "ui/Theme.h"

#include <QDir>
#include <QEventLoop>
#include <QPixmap>
#include <QTimer>

#include <chrono>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gallery {

namespace {

constexpr SheetEntry kSheets[] = {
    {"gallery", [] { return static_cast<QWidget*>(new Sheet); }},
    {"overview", overviewAtStart},
    {"overview-found", overviewAfterScan},
};

// By then an eased ring has come as close to its value as can be seen, and what turns has turned a little.
constexpr auto kRest = 1s;

QPixmap take(const SheetEntry& sheet) {
  const std::unique_ptr<QWidget> widget(sheet.make());
  widget->show();
  widget->activateWindow();
  widget->setFocus();
  QEventLoop loop;
  QTimer::singleShot(kRest, &loop, &QEventLoop::quit);
  loop.exec();
  return widget->grab();
}

} // namespace

std::span<const SheetEntry> sheets() { return kSheets; }

QString shotName(const QString& sheet, bool dark, bool mac, double scale) {
  return u"%1-%2-%3-%4x.png"_s.arg(sheet, dark ? u"dark"_s : u"light"_s, mac ? u"mac"_s : u"win"_s).arg(scale);
}

QString writeShots(const QString& folder, const QString& sheet) {
  if (!QDir().mkpath(folder)) return u"can't make the folder %1"_s.arg(folder);
  const Theme& theme = Theme::get();
  bool known = false;
  for (const SheetEntry& entry : sheets()) {
    const QString name = QString::fromLatin1(entry.name);
    if (!sheet.isEmpty() && name != sheet) continue;
    known = true;
    for (const auto mode : {AppSettings::Light, AppSettings::Dark}) {
      AppSettings::instance().setThemeMode(mode);
      const QPixmap picture = take(entry);
      const QString path = QDir(folder).filePath(shotName(name, theme.dark, theme.mac, picture.devicePixelRatio()));
      if (!picture.save(path)) return u"can't write %1"_s.arg(path);
    }
  }
  return known ? QString() : u"there is no sheet called %1"_s.arg(sheet);
}

} // namespace gallery
