/// Where the program's maker is found, and whether the program brings itself up to date: values of the build, from
/// cmake/Deployment.cmake. A build with values that would open the program to strangers doesn't compile.
#pragma once

#include <QString>

namespace deployment {

/// Whether this build looks for updates. Where it is false, nothing in the program offers it.
[[nodiscard]] bool updatesItself();
/// The domain that updates come from, in lower case: hosts of that name or below it. Empty, which means any, in Debug
/// builds alone.
[[nodiscard]] QString domain();
/// The host of the update feed, in domain().
[[nodiscard]] QString releaseHost();
/// The product's web site, with its scheme, without a "/" at its end.
[[nodiscard]] QString website();

} // namespace deployment
