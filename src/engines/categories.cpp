#include "engines/categories.h"

#include "core/places.h"
#include "core/platform.h"
#include "core/safety.h"
#include "engines/catalogue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace catalogue {
namespace {

constexpr Words kTemp = {QT_TRANSLATE_NOOP("Categories", "Temporary files"), "$TMPDIR",
                         QT_TRANSLATE_NOOP("Categories", "Scratch files that apps and the system create while working. "
                                                         "They are not needed once the app closes.")};
constexpr const char* kAppCaches = QT_TRANSLATE_NOOP("Categories", "App caches");
constexpr const char* kAppCachesBlurb = QT_TRANSLATE_NOOP(
    "Categories", "Data apps keep to load faster. Apps rebuild these automatically the next time they "
                  "need them.");
constexpr const char* kBrowser = QT_TRANSLATE_NOOP("Categories", "Browser caches");
constexpr const char* kBrowserBlurb =
    QT_TRANSLATE_NOOP("Categories", "Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are "
                                    "never touched.");
constexpr const char* kLogs = QT_TRANSLATE_NOOP("Categories", "Logs & crash reports");
constexpr const char* kLogsBlurb = QT_TRANSLATE_NOOP(
    "Categories", "Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem.");
constexpr const char* kThumbsBlurb = QT_TRANSLATE_NOOP(
    "Categories", "Preview images of your files. They are regenerated the next time you open a folder.");
constexpr const char* kUpdate = QT_TRANSLATE_NOOP("Categories", "Old installers");
constexpr const char* kDev = QT_TRANSLATE_NOOP("Categories", "Developer caches");
constexpr const char* kDevBlurb = QT_TRANSLATE_NOOP(
    "Categories", "Package manager caches and build output. Removing them is safe, but the next build "
                  "or install will be slower.");
constexpr Text kTrash = QT_TRANSLATE_NOOP("Categories", "Trash");
// Some languages have another word for it on each of the two.
constexpr Text kLinuxTrash = QT_TRANSLATE_NOOP3("Categories", "Trash", "Linux");
constexpr const char* kTrashBlurb =
    QT_TRANSLATE_NOOP("Categories", "Items you have already deleted. Emptying cannot be undone.");

constexpr CategoryRow kCategories[] = {
    {"temp", "clock", "#64748b", Safe, kTemp, kTemp},
    {"appcache",
     "box",
     "#6366f1",
     Safe,
     {kAppCaches, "~/Library/Caches", kAppCachesBlurb},
     {kAppCaches, "~/.cache", kAppCachesBlurb}},
    {"browser",
     "globe",
     "#0ea5e9",
     Safe,
     {kBrowser, "Safari, Chrome, Edge, Brave, Firefox", kBrowserBlurb},
     {kBrowser, "Firefox, Chrome, Chromium, Brave, Edge", kBrowserBlurb},
     true},
    {"logs",
     "file",
     "#78716c",
     Safe,
     {kLogs, "~/Library/Logs, DiagnosticReports", kLogsBlurb},
     {kLogs, "Session logs, crash reports", kLogsBlurb}},
    {"thumbs",
     "image",
     "#ec4899",
     Safe,
     {QT_TRANSLATE_NOOP("Categories", "QuickLook cache"), "com.apple.QuickLook.thumbnailcache", kThumbsBlurb},
     {QT_TRANSLATE_NOOP("Categories", "Thumbnail cache"), "~/.cache/thumbnails", kThumbsBlurb}},
    {"update",
     "download",
     "#f59e0b",
     Review,
     {kUpdate, ".dmg and .pkg in Downloads",
      QT_TRANSLATE_NOOP("Categories", "Disk images and installer packages in your Downloads folder. Review in case you "
                                      "still need an installer.")},
     {kUpdate, ".deb, .rpm and disc images in Downloads",
      QT_TRANSLATE_NOOP("Categories", "Software packages and disc images in your Downloads folder. Review in case you "
                                      "still need one of them.")}},
    {"dev",
     "code",
     "#8b5cf6",
     Review,
     {kDev, "Xcode, simulators, Homebrew, npm, pip", kDevBlurb},
     {kDev, "pip, npm, Cargo, Gradle, Go, ccache", kDevBlurb}},
    {"trash",
     "trash",
     "#ef4444",
     Permanent,
     {kTrash, "~/.Trash", kTrashBlurb},
     {kLinuxTrash, "~/.local/share/Trash", kTrashBlurb},
     true},
};

QString translated(const Text& text) { return QCoreApplication::translate("Categories", text.source, text.comment); }

/// The folders of the user's that hold no leftovers, whatever leads there.
constexpr const char* kOwnFolders[] = {"Documents", "Desktop", "Downloads", "Pictures", "Music", "Videos", "Movies"};

bool isAtOrBelow(const QString& path, const QString& folder) {
  return path == folder || path.startsWith(fs::join(folder, {}));
}

bool isOwnFolderOrBelow(const QString& path, const QString& home) {
  QStringList folders = places::userDirs();
  for (const char* name : kOwnFolders) folders << under(home, QString::fromLatin1(name));
  return std::any_of(folders.begin(), folders.end(), [&](const QString& folder) {
    const QString real = fs::resolved(folder);
    return isAtOrBelow(path, folder) || (!real.isEmpty() && isAtOrBelow(path, real));
  });
}

/// Whether @p path is never cleaned as a whole: protected, the home folder or above it, or the user's own work. The
/// system's temporary folder stands so high that it counts as protected, and is meant all the same.
bool isPrecious(const QString& path) {
  const QString home = places::home();
  if (safety::isProtected(path) && path != u"/tmp"_s) return true;
  if (home.isEmpty()) return false;
  return isAtOrBelow(home, path) || isAtOrBelow(fs::resolved(home), path) || isOwnFolderOrBelow(path, home);
}

/// A link must not make a root of what is precious, unless its own name says the same.
bool leadsAstray(const QString& path, const QString& realPath) { return isPrecious(realPath) && !isPrecious(path); }

CategoryDef definition(const CategoryRow& row, bool mac) {
  const Words& words = mac ? row.mac : row.linux;
  CategoryDef def;
  def.id = QLatin1String(row.id);
  def.title = translated(words.title);
  def.icon = QLatin1String(row.icon);
  def.colour = QColor(QLatin1String(row.colour));
  def.safety = row.safety;
  def.locationHint = QLatin1String(words.hint);
  def.blurb = translated(words.blurb);
  def.needsFullDiskAccess = mac && row.macNeedsFullDiskAccess;
  return def;
}

} // namespace

std::span<const CategoryRow> categoryRows() { return kCategories; }

QString folder(Place place) {
  const auto below = [](const QString& base, const QString& name) {
    return base.isEmpty() ? QString() : under(base, name);
  };
  switch (place) {
  case Place::Home:
    return places::home();
  case Place::Temp:
    return places::temp();
  case Place::MacLibrary:
    return below(places::home(), u"Library"_s);
  case Place::MacCaches:
    return below(places::home(), u"Library/Caches"_s);
  case Place::Cache:
    return places::cache();
  case Place::Config:
    return places::config();
  case Place::Data:
    return places::data();
  case Place::Downloads:
    return places::downloads();
  case Place::VarCrash:
    return u"/var/crash"_s;
  }
  return {};
}

QString under(const QString& base, const QString& relative) { return QDir::cleanPath(base + u'/' + relative); }

QList<fs::Entry> subFolders(const QString& dir) {
  QList<fs::Entry> folders = fs::list(fs::resolved(dir));
  folders.removeIf([](const fs::Entry& entry) { return !entry.isDir || entry.isSymlink || !entry.reachable; });
  return folders;
}

void addRoot(QList<ScanRoot>* roots, ScanRoot root) {
  if (!QFileInfo(root.path).isDir()) return;
  const QString real = fs::resolved(root.path);
  if (real.isEmpty()) return;
  if (real != root.path) {
    if (leadsAstray(root.path, real)) return;
    root.realPath = real;
  }
  roots->append(std::move(root));
}

void addRow(QList<ScanRoot>* roots, const RootRow& row, const QString& base, const QString& suffix) {
  if (base.isEmpty()) return;
  const QString path = under(base, QString::fromUtf8(row.relative));
  const QString label = *row.label ? translated(row.label) : QString();
  if (*row.inEachFolder) {
    for (const fs::Entry& entry : subFolders(path))
      addRoot(roots, {.path = under(fs::join(path, entry.name), QString::fromUtf8(row.inEachFolder)),
                      .patterns = {},
                      .label = label + entry.name + suffix,
                      .realPath = {}});
    return;
  }
  addRoot(roots, {.path = path,
                  .patterns = QString::fromUtf8(row.patterns).split(u' ', Qt::SkipEmptyParts),
                  .label = label.isEmpty() ? label : label + suffix,
                  .realPath = {},
                  .ownOnly = row.ownOnly});
}

QList<CategoryDef> build(bool mac, std::span<const RootRow> rows, const std::function<void(CategoryDef*)>& further) {
  QList<CategoryDef> defs;
  for (const CategoryRow& category : kCategories) {
    CategoryDef def = definition(category, mac);
    for (const RootRow& row : rows)
      if (def.id == QLatin1String(row.category)) addRow(&def.roots, row, folder(row.place));
    further(&def);
    defs.append(def);
  }
  return defs;
}

bool matchesAny(QStringView name, std::span<const char16_t* const> patterns) {
  for (const QStringView pattern : patterns) {
    const qsizetype star = pattern.indexOf(u'*');
    if (star < 0 ? name == pattern
                 : name.size() >= pattern.size() - 1 && name.startsWith(pattern.first(star)) &&
                       name.endsWith(pattern.sliced(star + 1)))
      return true;
  }
  return false;
}

} // namespace catalogue

QList<CategoryDef> categories::forThisPlatform() {
  return platform::host() == platform::Host::Mac ? forMac() : forLinux();
}

QString categories::safetyLabel(Safety safety) {
  switch (static_cast<int>(safety)) {
  case Safe:
    //: A rating of what a category holds: may be cleaned without a thought
    return QCoreApplication::translate("Categories", "Safe");
  case Review:
    //: A rating of what a category holds: look at it before it is cleaned
    return QCoreApplication::translate("Categories", "Review");
  case Permanent:
    //: A rating of what a category holds: gone for good once cleaned
    return QCoreApplication::translate("Categories", "Permanent");
  default:
    return {};
  }
}
