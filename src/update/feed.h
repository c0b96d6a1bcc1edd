/// Reads the update feed, of which nothing is trusted: one bad field fails the whole record. No network, no disk.
#pragma once

#include "update/UpdateRelease.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace feed {

/// A longer feed is none.
inline constexpr qsizetype kMostBytes = 262'144;

/// Reads the release under @p key, the name of a platform.
/// @param arm  whether to take the download for arm64 processors where the feed has one
/// @param domain  what the download's address is held to, as in isAllowed()
/// @return false for anything that isn't exactly a feed; @p out is then filled as far as it was good
[[nodiscard]] bool parse(const QByteArray& json, const QString& key, bool arm, const QString& domain,
                         UpdateRelease* out);
/// Whether @p json is a feed that has nothing at all under @p key.
[[nodiscard]] bool lacks(const QByteArray& json, const QString& key);
/// Whether version @p a comes after @p b. False if either is not two to four dotted numbers in at most 39 characters.
[[nodiscard]] bool isNewer(const QString& a, const QString& b);
/// Whether @p url is an https address of the host @p domain or of one below it, without a user's name. An empty
/// @p domain allows everything.
[[nodiscard]] bool isAllowed(const QUrl& url, const QString& domain);

} // namespace feed
