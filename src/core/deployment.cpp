#include "core/deployment.h"

#include "core/deployment_values.h"

namespace deployment {

namespace {
QString text(std::string_view value) { return QString::fromLatin1(value.data(), qsizetype(value.size())); }
} // namespace

bool updatesItself() { return kUpdatesItself; }

QString domain() { return text(kDomain); }

QString releaseHost() { return text(kReleaseHost); }

QString website() { return text(kWebsite); }

} // namespace deployment
