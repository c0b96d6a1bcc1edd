#include "gallery/shots.h"

#include "app/AppSettings.h"
#include "gallery/Sheet.h"
#include "gallery/views.h"
#include "ui/Theme.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gallery {

namespace {

// By then an eased ring has come as close to its value as can be seen, and what turns has turned a little.
constexpr auto kRest = 1s;

void rest() {
  QEventLoop loop;
  QTimer::singleShot(kRest, &loop, &QEventLoop::quit);
  loop.exec();
}

/// What @p widget shows, and the menus that are open over it, as far as they reach.
QPixmap picture(QWidget* widget) {
  QList<QMenu*> menus = widget->findChildren<QMenu*>(); // a submenu comes after its menu
  menus.removeIf([](const QMenu* menu) { return !menu->isVisible(); });
  if (menus.isEmpty()) return widget->grab();
  const auto place = [widget](const QMenu* menu) { return QRect(widget->mapFromGlobal(menu->pos()), menu->size()); };
  QRect whole = widget->rect();
  for (const QMenu* menu : menus) whole |= place(menu);
  const double ratio = widget->devicePixelRatioF();
  QPixmap result(whole.size() * ratio);
  result.setDevicePixelRatio(ratio);
  result.fill(Theme::get().surface2);
  QPainter painter(&result);
  painter.translate(-whole.topLeft());
  painter.drawPixmap(0, 0, widget->grab());
  for (QMenu* menu : menus) painter.drawPixmap(place(menu).topLeft(), menu->grab());
  return result;
}

/// Writes what @p widget shows in both looks, under what @p name calls it in the look in force. One widget is shown in
/// both, so that what keeps a colour of the first is seen in the second.
/// @return the file that couldn't be written; empty if both were
QString writeBothLooks(QWidget* widget, const QDir& folder, const std::function<QString(const QPixmap&)>& name) {
  for (const auto mode : {AppSettings::Light, AppSettings::Dark}) {
    AppSettings::instance().setThemeMode(mode);
    widget->activateWindow();
    widget->setFocus(); // what is taken when open has had it
    QCoreApplication::processEvents();
    const QPixmap taken = picture(widget);
    const QString file = folder.filePath(name(taken));
    if (!taken.save(file)) return file;
  }
  return {};
}

QString writeView(const ViewEntry& entry, const QDir& folder) {
  AppSettings::instance().setThemeMode(AppSettings::Light);
  const std::unique_ptr<Scene> scene = openView(entry);
  rest();
  for (const QSize& size : viewSizes()) {
    scene->window.resize(size);
    const QString unwritten = writeBothLooks(&scene->window, folder, [&](const QPixmap&) {
      return viewName(QString::fromLatin1(entry.name), Theme::get().dark, size);
    });
    if (!unwritten.isEmpty()) return unwritten;
  }
  return {};
}

QString made(const QString& folder) {
  return QDir().mkpath(folder) ? QString() : u"can't make the folder %1"_s.arg(folder);
}
QString written(const QString& unwritten) {
  return unwritten.isEmpty() ? QString() : u"can't write %1"_s.arg(unwritten);
}

} // namespace

QString sheetName(bool dark, bool mac, double scale) {
  return u"gallery-%1-%2-%3x.png"_s.arg(dark ? u"dark"_s : u"light"_s, mac ? u"mac"_s : u"win"_s).arg(scale);
}

QString viewName(const QString& view, bool dark, const QSize& size) {
  return u"%1-%2-%3x%4.png"_s.arg(view, dark ? u"dark"_s : u"light"_s).arg(size.width()).arg(size.height());
}

QString writeSheet(const QString& folder) {
  if (const QString wrong = made(folder); !wrong.isEmpty()) return wrong;
  AppSettings::instance().setThemeMode(AppSettings::Light);
  Sheet sheet;
  sheet.show();
  rest();
  return written(writeBothLooks(&sheet, QDir(folder), [](const QPixmap& picture) {
    return sheetName(Theme::get().dark, Theme::get().mac, picture.devicePixelRatio());
  }));
}

QString writeViews(const QString& folder, const QString& only) {
  if (const QString wrong = made(folder); !wrong.isEmpty()) return wrong;
  bool known = false;
  for (const ViewEntry& entry : views()) {
    if (!only.isEmpty() && QLatin1StringView(entry.name) != only) continue;
    known = true;
    const QString wrong = written(writeView(entry, QDir(folder)));
    if (!wrong.isEmpty()) return wrong;
  }
  return known ? QString() : u"there is no view called %1"_s.arg(only);
}

} // namespace gallery
