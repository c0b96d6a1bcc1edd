/// The text of an overline, which its font sets in capitals letter by letter.
#pragma once

#include <QString>

namespace ui {

/// @p text with "ss" for "ß", which such a font leaves small among the capitals.
[[nodiscard]] inline QString eyebrowText(QString text) { return text.replace(u'ß', QLatin1String("ss")); }

} // namespace ui
