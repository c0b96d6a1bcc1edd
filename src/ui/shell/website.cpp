#include "ui/shell/website.h"

#include <QDesktopServices>

namespace ui::website {

QUrl url(QStringView path) { return QUrl(QStringLiteral(TARNWICK_WEBSITE) + path.toString()); }

void open(QStringView path) { QDesktopServices::openUrl(url(path)); }

} // namespace ui::website
