// tarnwick-icons DIR [SIDE ...]: writes the application's icon as DIR/16x16/apps/tarnwick.png and so on, as an icon
// theme has it, in its own sizes and in these. The build runs it; never installed.

#include "ui/icons.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargest = 4096; // px

/// The icon larger than any window shows it, for systems that show programs so.
QImage large(int side) {
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  icons::paintLogo(&painter, image.rect());
  return image;
}

/// Whether it could be written below @p theme.
bool write(const QDir& theme, const QImage& image) {
  const QString folder = u"%1x%2/apps"_s.arg(image.width()).arg(image.height());
  return theme.mkpath(folder) && image.save(theme.filePath(folder + u"/tarnwick.png"_s));
}

/// All that are asked for; empty if one of @p sides is no size.
QList<QImage> images(const QStringList& sides) {
  QList<QImage> all;
  const QIcon icon = icons::appIcon();
  for (const QSize& size : icon.availableSizes()) all << icon.pixmap(size, 1).toImage();
  for (const QString& side : sides) {
    const int pixels = side.toInt();
    if (pixels < 1 || pixels > kLargest) return {};
    all << large(pixels);
  }
  return all;
}

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  const QList<QImage> all = images(arguments.mid(2));
  if (argc < 2 || all.isEmpty()) {
    std::fputs("usage: tarnwick-icons DIR [SIDE ...]\n", stderr);
    return 2;
  }
  const QDir theme(arguments[1]);
  for (const QImage& image : all)
    if (!write(theme, image)) {
      std::fprintf(stderr, "tarnwick-icons: can't write below %s\n", argv[1]);
      return 1;
    }
  return 0;
}
