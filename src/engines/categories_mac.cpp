// Which folders make up each category on macOS.
#include "engines/catalogue.h"
#include "engines/categories.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;
using catalogue::Place;

namespace {

constexpr catalogue::RootRow kRoots[] = {
    {"temp", Place::Temp, ""},
    {"browser", Place::MacCaches, "com.apple.Safari", "Safari"},
    {"browser", Place::MacCaches, "Google/Chrome", "Google Chrome"},
    {"browser", Place::MacCaches, "com.microsoft.edgemac", "Microsoft Edge"},
    {"browser", Place::MacCaches, "BraveSoftware", "Brave"},
    {.category = "browser",
     .place = Place::MacCaches,
     .relative = "Firefox/Profiles",
     .label = "Firefox · ",
     .inEachFolder = "cache2"},
    {"logs", Place::MacLibrary, "Logs"},
    {"thumbs", Place::Temp, "../C/com.apple.QuickLook.thumbnailcache",
     QT_TRANSLATE_NOOP("Categories", "QuickLook thumbnails")},
    {"update", Place::Home, "Downloads", "", "*.dmg *.pkg *.mpkg"},
    {"dev", Place::MacLibrary, "Developer/Xcode/DerivedData", "Xcode DerivedData"},
    {"dev", Place::MacLibrary, "Developer/CoreSimulator/Caches", QT_TRANSLATE_NOOP("Categories", "Simulator caches")},
    {"dev", Place::MacCaches, "Homebrew", "Homebrew downloads"},
    {"dev", Place::Home, ".npm/_cacache", "npm cache"},
    {"dev", Place::MacCaches, "pip", "pip cache"},
    {"dev", Place::MacCaches, "Yarn", "Yarn cache"},
    {"dev", Place::MacCaches, "go-build", "Go build cache"},
    {"dev", Place::Home, ".gradle/caches", "Gradle caches"},
    {"trash", Place::Home, ".Trash", ""},
};

/// Cache folders that another category counts, or that aren't the user's business.
constexpr const char16_t* kSkipped[] = {u"com.apple.Safari", u"Google",   u"Firefox",    u"com.microsoft.edgemac",
                                        u"BraveSoftware",    u"Homebrew", u"pip",        u"Yarn",
                                        u"go-build",         u"CloudKit", u"com.apple.*"};

/// The last part of a bundle identifier; the name itself where it is none, and where that part is empty, since a root
/// without a label means its children.
QString labelFor(const QString& name) {
  const qsizetype dot = name.lastIndexOf(u'.');
  return dot > 0 && dot < name.size() - 1 && name.count(u'.') >= 2 ? name.sliced(dot + 1) : name;
}

void addAppCaches(CategoryDef* def) {
  const QString caches = catalogue::folder(Place::MacCaches);
  if (def->id != u"appcache" || caches.isEmpty()) return;
  for (const fs::Entry& entry : catalogue::subFolders(caches)) {
    if (catalogue::matchesAny(entry.name, kSkipped)) continue;
    catalogue::addRoot(
        &def->roots,
        {.path = catalogue::under(caches, entry.name), .patterns = {}, .label = labelFor(entry.name), .realPath = {}});
  }
}

} // namespace

QList<CategoryDef> categories::forMac() { return catalogue::build(true, kRoots, addAppCaches); }
