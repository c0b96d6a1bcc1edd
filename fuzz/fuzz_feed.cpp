/// Holds what the feed's parser lets through to its rules, asked once more in plain steps.
#include "core/deployment.h"
#include "update/Updater.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostBytes = 262'144;
constexpr qsizetype kMostVersion = 39;
constexpr qsizetype kDigits = 64;

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

bool isVersion(const QString& text) {
  const QStringList numbers = text.split(u'.');
  return text.size() <= kMostVersion && numbers.size() >= 2 && numbers.size() <= 4 &&
         std::all_of(numbers.begin(), numbers.end(), [](const QString& number) {
           return !number.isEmpty() && std::all_of(number.begin(), number.end(), isDigit);
         });
}

bool isChecksum(const QString& text) {
  return text.size() == kDigits &&
         std::all_of(text.begin(), text.end(), [](QChar c) { return isDigit(c) || (c >= u'a' && c <= u'f'); });
}

/// By its text, as another program would take it.
bool isOnTheReleaseDomain(const QUrl& url) {
  const QString text = url.toString(QUrl::FullyEncoded);
  if (!text.startsWith("https://"_L1)) return false;
  const auto ends = [](QChar c) { return c == u'/' || c == u'?' || c == u'#'; };
  const QString rest = text.mid(8);
  QString authority(rest.begin(), std::find_if(rest.begin(), rest.end(), ends) - rest.begin());
  if (authority.startsWith(u'@')) authority.remove(0, 1);                        // a user without a name is none
  if (authority.contains(u':')) authority.truncate(authority.lastIndexOf(u':')); // a port
  return !authority.contains(u'@') &&
         (authority == deployment::domain() || authority.endsWith(u'.' + deployment::domain()));
}

void judge(const QByteArray& json, const QString& key, bool arm) {
  UpdateRelease release;
  const bool isGood = Updater::parse(json, key, arm, release);
  if (Updater::newer(release.version, u"0.0"_s) && !isVersion(release.version)) std::abort();
  if (!isGood) return;
  if (json.size() > kMostBytes || !isVersion(release.version) || !isChecksum(release.sha256)) std::abort();
  if (!isOnTheReleaseDomain(release.url)) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QByteArray json(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  for (const bool arm : {false, true})
    for (const QString& key : {u"mac"_s, u"linux"_s}) judge(json, key, arm);
  return 0;
}
