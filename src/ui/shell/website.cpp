#include "ui/shell/website.h"

#include "core/deployment.h"

#include <QDesktopServices>

namespace ui::website {

QUrl url(QStringView path) { return QUrl(deployment::website() + path.toString()); }

void open(QStringView path) { QDesktopServices::openUrl(url(path)); }

} // namespace ui::website
