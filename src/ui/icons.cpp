#include "ui/icons.h"

#include "ui/desktop.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <memory>

using namespace Qt::StringLiterals;

namespace icons {

namespace {

constexpr double kRatios[] = {1.0, 1.25, 1.5, 2.0}; // of screens; for another one the next larger is scaled
constexpr int kAppIconSizes[] = {16, 24, 32, 48, 64, 128, 256};
constexpr int kTrayIconSizes[] = {16, 22, 24, 32, 48, 64}; // what panels of all scales ask for
constexpr int kSmallLogoUpTo = 32;

// What stands in the files for the colour.
constexpr char kHook[] = "currentColor";

QByteArray readAll(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Neither of the two tables is ever emptied: there are few names, and all colours come from the theme. A name without
// a file has its empty bytes here, and a renderer that paints nothing.
QByteArray source(const QString& name) {
  static QHash<QString, QByteArray> sources;
  auto found = sources.constFind(name);
  if (found == sources.cend()) found = sources.insert(name, readAll(u":/icons/%1.svg"_s.arg(name)));
  return *found;
}

QHash<QString, std::shared_ptr<QSvgRenderer>>& renderers() {
  static QHash<QString, std::shared_ptr<QSvgRenderer>> all;
  return all;
}

// Without its alpha, the colour's name: a translucent colour shares the renderer of the opaque one.
QSvgRenderer* renderer(const QString& name, const QColor& colour) {
  const QString hue = colour.name();
  std::shared_ptr<QSvgRenderer>& entry = renderers()[name + u'|' + hue];
  if (!entry) {
    QByteArray svg = source(name);
    svg.replace(kHook, hue.toLatin1());
    entry = std::make_shared<QSvgRenderer>();
    if (!svg.isEmpty()) entry->load(svg);
  }
  return entry.get();
}

template <typename Paint>
QPixmap pixmap(int side, double ratio, Paint&& paint) {
  QPixmap result(qRound(side * ratio), qRound(side * ratio));
  result.setDevicePixelRatio(ratio);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  paint(&painter, QRectF(0, 0, side, side));
  return result;
}

void paintSmallLogo(QPainter* painter, const QRectF& rect) {
  static QSvgRenderer logo(u":/logo-small.svg"_s);
  logo.render(painter, rect);
}

} // namespace

void paint(QPainter* painter, const QRectF& rect, const QString& name, const QColor& colour) {
  painter->save();
  painter->setOpacity(painter->opacity() * colour.alphaF());
  renderer(name, colour)->render(painter, rect);
  painter->restore();
}

QIcon icon(const QString& name, const QColor& colour, int size, int side) {
  const double margin = qMax(0, side - size) / 2.0;
  const auto paintIcon = [&](QPainter* painter, const QRectF& rect) {
    paint(painter, rect.adjusted(margin, margin, -margin, -margin), name, colour);
  };
  QIcon result;
  for (const double ratio : kRatios)
    result.addPixmap(pixmap(qMax(size, side), ratio, paintIcon), QIcon::Normal, QIcon::Off);
  return result;
}

void paintLogo(QPainter* painter, const QRectF& rect) {
  static QSvgRenderer logo(u":/logo.svg"_s);
  logo.render(painter, rect);
}

QIcon appIcon() {
  QIcon result;
  for (const int size : kAppIconSizes)
    result.addPixmap(pixmap(size, 1, size <= kSmallLogoUpTo ? paintSmallLogo : paintLogo));
  return result;
}

QIcon trayIcon() {
  if (desktop::tintsStatusIcons()) {
    QIcon glyph(u":/tray-mac.svg"_s);
    glyph.setIsMask(true);
    return glyph;
  }
  QIcon result;
  for (const int size : kTrayIconSizes) result.addPixmap(pixmap(size, 1, paintSmallLogo));
  return result;
}

int rendererCount() { return int(renderers().size()); }

} // namespace icons
