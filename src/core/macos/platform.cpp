/// Capacity by Core Foundation, the file manager by the tool "open".
#include "core/platform.h"

#include "core/names.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

#include <CoreFoundation/CoreFoundation.h>

#include <memory>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace platform {

namespace {
struct Release {
  void operator()(CFTypeRef object) const { CFRelease(object); }
};
template <typename Ref>
using Owned = std::unique_ptr<std::remove_pointer_t<Ref>, Release>;
} // namespace

Host builtFor() { return Host::Mac; }

qint64 importantCapacity(const QString& rootPath) {
  const QByteArray raw = names::encode(rootPath);
  const Owned<CFURLRef> url(CFURLCreateFromFileSystemRepresentation(
      kCFAllocatorDefault, reinterpret_cast<const UInt8*>(raw.constData()), raw.size(), true));
  if (!url) return 0;
  CFNumberRef number = nullptr;
  if (!CFURLCopyResourcePropertyForKey(url.get(), kCFURLVolumeAvailableCapacityForImportantUsageKey, &number, nullptr))
    return 0;
  const Owned<CFNumberRef> owned(number);
  SInt64 bytes = 0;
  return owned && CFNumberGetValue(owned.get(), kCFNumberSInt64Type, &bytes) ? bytes : 0;
}

void revealInFileManager(const QString& path, const std::function<void(bool)>& done) {
  const bool isStarted = QProcess::startDetached(u"open"_s, {u"-R"_s, path});
  if (done) done(isStarted);
}

void openFolder(const QString& path) { QProcess::startDetached(u"open"_s, {path}); }

void openFullDiskAccessSettings() {
  QDesktopServices::openUrl(QUrl(u"x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"_s));
}

} // namespace platform
