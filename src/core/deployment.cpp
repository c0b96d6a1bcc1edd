#include "core/deployment.h"

#include <algorithm>
#include <string_view>

namespace deployment {
namespace {

constexpr std::string_view kDomain(TARNWICK_DOMAIN);
constexpr std::string_view kReleaseHost(TARNWICK_RELEASE_HOST);
constexpr std::string_view kWebsite(TARNWICK_WEBSITE);
constexpr bool kIsDebugBuild = TARNWICK_DEBUG_BUILD;
constexpr bool kUpdatesItself = TARNWICK_SELF_UPDATE;

constexpr bool isHostCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

/// The form in which an address spells its host, with two parts at least: a top-level domain is everybody's.
constexpr bool isHostName(std::string_view text) {
  return std::all_of(text.begin(), text.end(), isHostCharacter) && text.find('.') != text.npos &&
         text.find("..") == text.npos && text.front() != '.' && text.back() != '.';
}

constexpr bool isInDomain(std::string_view host) {
  return host == kDomain ||
         (host.size() > kDomain.size() && host.ends_with(kDomain) && host[host.size() - kDomain.size() - 1] == '.');
}

static_assert(kIsDebugBuild || !kDomain.empty(), "TARNWICK_DOMAIN is empty: updates would be taken from anybody");
static_assert(kDomain.empty() || isHostName(kDomain), "TARNWICK_DOMAIN is no domain in lower case");
static_assert(kDomain.empty() || (isHostName(kReleaseHost) && isInDomain(kReleaseHost)),
              "TARNWICK_RELEASE_HOST is no host in TARNWICK_DOMAIN");
static_assert(!kWebsite.ends_with('/'), "TARNWICK_WEBSITE ends with a slash, which the paths bring");

QString text(std::string_view value) { return QString::fromLatin1(value.data(), qsizetype(value.size())); }

} // namespace

bool updatesItself() { return kUpdatesItself; }

QString domain() { return text(kDomain); }

QString releaseHost() { return text(kReleaseHost); }

QString website() { return text(kWebsite); }

} // namespace deployment
