// tarnwick-icons DIR: writes the application's icon as DIR/16x16/apps/tarnwick.png and so on, as an icon theme has it.
// The build runs it; never installed.

#include "ui/icons.h"

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Whether the icon of this side could be written below @p theme.
bool write(const QDir& theme, const QIcon& icon, const QSize& size) {
  const QString folder = u"%1x%2/apps"_s.arg(size.width()).arg(size.height());
  return theme.mkpath(folder) && icon.pixmap(size, 1).save(theme.filePath(folder + u"/tarnwick.png"_s));
}

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  if (argc != 2) {
    std::fputs("usage: tarnwick-icons DIR\n", stderr);
    return 2;
  }
  const QDir theme(QFile::decodeName(argv[1]));
  const QIcon icon = icons::appIcon();
  for (const QSize& size : icon.availableSizes())
    if (!write(theme, icon, size)) {
      std::fprintf(stderr, "tarnwick-icons: can't write below %s\n", argv[1]);
      return 1;
    }
  return 0;
}
