/// Pictures of the sheet and of the window's views, written without a screen. What moves is given a second to come to
/// rest.
#pragma once

#include <QString>

class QSize;

namespace gallery {

/// The names of pictures: "gallery-dark-mac-1.5x.png", "cleanup-review-light-960x640.png".
[[nodiscard]] QString sheetName(bool dark, bool mac, double scale);
[[nodiscard]] QString viewName(const QString& view, bool dark, const QSize& size);

// Both write into @p folder, which is made if need be, in this process's metrics and scale, and change the theme
// setting. They return what went wrong; empty if nothing did.

/// The sheet in both looks.
[[nodiscard]] QString writeSheet(const QString& folder);
/// Each view in both looks at both sizes.
/// @param only  the only one to write, by its name; empty writes all
[[nodiscard]] QString writeViews(const QString& folder, const QString& only);

} // namespace gallery
