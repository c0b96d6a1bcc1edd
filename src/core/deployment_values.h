/// The values of the deployment as the build gives them, and what they are held to. For core/deployment.cpp alone, the
/// one source that is compiled with them.
#pragma once

#include <string_view>

namespace deployment {

inline constexpr std::string_view kDomain(TARNWICK_DOMAIN);
inline constexpr std::string_view kReleaseHost(TARNWICK_RELEASE_HOST);
inline constexpr std::string_view kWebsite(TARNWICK_WEBSITE);
inline constexpr bool kIsDebugBuild = TARNWICK_DEBUG_BUILD;
inline constexpr bool kUpdatesItself = TARNWICK_SELF_UPDATE;

/// Whether @p text is a host in the form in which addresses spell it, of two parts at least: a top-level domain is
/// everybody's.
constexpr bool isHostName(std::string_view text) {
  if (text.empty() || text.front() == '.' || text.back() == '.') return false;
  for (const char c : text)
    if (!(c >= 'a' && c <= 'z') && !(c >= '0' && c <= '9') && c != '-' && c != '.') return false;
  return text.find('.') != text.npos && text.find("..") == text.npos;
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

} // namespace deployment
