/// Pictures of the sheets, written without a screen.
#pragma once

#include <QString>

#include <span>

class QWidget;

namespace gallery {

/// What there are pictures of.
struct SheetEntry {
  const char* name; ///< stands at the head of the pictures' file names
  QWidget* (*make)();
};
[[nodiscard]] std::span<const SheetEntry> sheets();

/// The name of a picture: "gallery-dark-mac-1.5x.png".
[[nodiscard]] QString shotName(const QString& sheet, bool dark, bool mac, double scale);

/// Writes each sheet in both looks, in this process's metrics and scale, into @p folder, which is made if need be.
/// What moves is given a second to come to rest. Changes the theme setting.
/// @param sheet  the only one to write, by its name; empty writes all
/// @return what went wrong; empty if nothing did
[[nodiscard]] QString writeShots(const QString& folder, const QString& sheet);

} // namespace gallery
