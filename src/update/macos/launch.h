/// Opening a file with the system's tool for that.
#pragma once

#include <QString>

namespace launch {

/// Starts @p tool with @p path, and doesn't wait for it. @return empty, or the words of a failure, translated
[[nodiscard]] QString with(const QString& tool, const QString& path);

} // namespace launch
