#include "gallery/shots.h"

#include "app/AppSettings.h"
#include "gallery/Sheet.h"
#include "gallery/windows.h"
#include "ui/Theme.h"

#include <QCoreApplication>
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

// Those that scan come last, as the others tell when the last scan was.
constexpr SheetEntry kSheets[] = {
    {"gallery", [] { return static_cast<QWidget*>(new Sheet); }},
    {"overview", overviewAtStart},
    {"cleanup", cleanupAtStart},
    {"about", aboutDialog},
    {"overview-found", overviewAfterScan},
    {"cleanup-found", cleanupAfterScan},
    {"clean-question", cleanQuestion},
    {"toast", toast},
};

// By then an eased ring has come as close to its value as can be seen, and what turns has turned a little.
constexpr auto kRest = 1s;

void rest() {
  QEventLoop loop;
  QTimer::singleShot(kRest, &loop, &QEventLoop::quit);
  loop.exec();
}

/// One widget is shown in both looks, so that what keeps a colour of the first is seen in the second.
/// @return the file that couldn't be written; empty if both were
QString writeBothLooks(const SheetEntry& entry, const QDir& folder) {
  AppSettings& settings = AppSettings::instance();
  const Theme& theme = Theme::get();
  settings.setThemeMode(AppSettings::Light);
  const std::unique_ptr<QWidget> widget(entry.make());
  widget->show();
  rest();
  for (const auto mode : {AppSettings::Light, AppSettings::Dark}) {
    settings.setThemeMode(mode);
    widget->activateWindow();
    widget->setFocus(); // what is taken when open has had it
    QCoreApplication::processEvents();
    const QPixmap picture = widget->grab();
    const QString name = shotName(QString::fromLatin1(entry.name), theme.dark, theme.mac, picture.devicePixelRatio());
    if (!picture.save(folder.filePath(name))) return folder.filePath(name);
  }
  return {};
}

} // namespace

std::span<const SheetEntry> sheets() { return kSheets; }

QString shotName(const QString& sheet, bool dark, bool mac, double scale) {
  return u"%1-%2-%3-%4x.png"_s.arg(sheet, dark ? u"dark"_s : u"light"_s, mac ? u"mac"_s : u"win"_s).arg(scale);
}

QString writeShots(const QString& folder, const QString& sheet) {
  if (!QDir().mkpath(folder)) return u"can't make the folder %1"_s.arg(folder);
  bool known = false;
  for (const SheetEntry& entry : sheets()) {
    if (!sheet.isEmpty() && QLatin1StringView(entry.name) != sheet) continue;
    known = true;
    const QString unwritten = writeBothLooks(entry, QDir(folder));
    if (!unwritten.isEmpty()) return u"can't write %1"_s.arg(unwritten);
  }
  return known ? QString() : u"there is no sheet called %1"_s.arg(sheet);
}

} // namespace gallery
