#include "update/feed.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QVersionNumber>

#include <optional>

using namespace Qt::StringLiterals;

namespace feed {
namespace {

constexpr qsizetype kMostVersionCharacters = 39;

/// The keys of a download, for all processors and for arm64.
struct DownloadKeys {
  QLatin1String url;
  QLatin1String sha256;
};
constexpr DownloadKeys kAnyProcessor = {"url"_L1, "sha256"_L1};
constexpr DownloadKeys kArm = {"arm64url"_L1, "arm64sha256"_L1};

// To the very end: "$" would let a line break follow.
bool isVersion(const QString& text) {
  static const QRegularExpression expression(u"\\A[0-9]+(?:\\.[0-9]+){1,3}\\z"_s);
  return text.size() <= kMostVersionCharacters && expression.match(text).hasMatch();
}

bool isChecksum(const QString& text) {
  static const QRegularExpression expression(u"\\A[0-9a-fA-F]{64}\\z"_s);
  return expression.match(text).hasMatch();
}

std::optional<QJsonObject> objectOf(const QByteArray& json) {
  if (json.size() > kMostBytes) return std::nullopt;
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(json, &error);
  if (error.error != QJsonParseError::NoError || !document.isObject()) return std::nullopt;
  return document.object();
}

bool readDownload(const QJsonObject& entry, const DownloadKeys& keys, const QString& domain, UpdateRelease* out) {
  out->url = QUrl(entry.value(keys.url).toString(), QUrl::StrictMode);
  if (!isVersion(out->version) || !out->url.isValid() || !isAllowed(out->url, domain)) return false;
  const QString sha256 = entry.value(keys.sha256).toString();
  if (!isChecksum(sha256)) return false;
  out->sha256 = sha256.toLower();
  return true;
}

bool readChanges(const QJsonValue& value, QStringList* out) {
  if (!value.isArray()) return false;
  const QJsonArray lines = value.toArray();
  for (const auto& line : lines) {
    if (!line.isString()) return false;
    out->append(line.toString());
  }
  return true;
}

} // namespace

bool isAllowed(const QUrl& url, const QString& domain) {
  if (domain.isEmpty()) return true;
  if (url.scheme() != "https"_L1 || !url.userInfo().isEmpty()) return false;
  const QString host = url.host().toLower();
  return host == domain || host.endsWith(u'.' + domain);
}

bool isNewer(const QString& a, const QString& b) {
  if (!isVersion(a) || !isVersion(b)) return false;
  return QVersionNumber::compare(QVersionNumber::fromString(a), QVersionNumber::fromString(b)) > 0;
}

bool parse(const QByteArray& json, const QString& key, bool arm, const QString& domain, UpdateRelease* out) {
  *out = {};
  const std::optional<QJsonObject> feed = objectOf(json);
  if (!feed) return false;
  const QJsonObject entry = feed->value(key).toObject();
  out->version = entry.value("version"_L1).toString();
  const bool hasArm = arm && entry.contains(kArm.url);
  if (!readDownload(entry, hasArm ? kArm : kAnyProcessor, domain, out)) return false;
  out->size = entry.value("size"_L1).toString();
  out->date = entry.value("date"_L1).toString();
  return readChanges(entry.value("change"_L1), &out->changes);
}

bool lacks(const QByteArray& json, const QString& key) {
  const std::optional<QJsonObject> feed = objectOf(json);
  return feed && !feed->contains(key);
}

} // namespace feed
