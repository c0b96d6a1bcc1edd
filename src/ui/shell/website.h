/// The product's web site, where the deployment says that it is (core/deployment.h).
#pragma once

#include <QString>
#include <QUrl>

namespace ui::website {

/// @param path  from the root of the site, with its leading "/"
[[nodiscard]] QUrl url(QStringView path);
/// Opens a page in the user's browser.
void open(QStringView path);

} // namespace ui::website
