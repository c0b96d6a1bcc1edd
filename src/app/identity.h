/// Who the program is: the names under which it keeps its settings and logs, and its version.
#pragma once

#include <QCoreApplication>
#include <QLatin1String>

namespace identity {

inline constexpr QLatin1String kName("Tarnwick");
inline constexpr QLatin1String kOrganisation("Tarnwick");
inline constexpr QLatin1String kVersion(TARNWICK_VERSION);

/// Gives names and version to the application. Before anything reads a setting: they decide where the store lies.
inline void apply() {
  QCoreApplication::setApplicationName(kName);
  QCoreApplication::setOrganizationName(kOrganisation);
  QCoreApplication::setApplicationVersion(kVersion);
}

} // namespace identity
