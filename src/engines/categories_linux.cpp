// Which folders make up each category on a Linux desktop.
#include "core/places.h"
#include "core/trash.h"
#include "engines/catalogue.h"
#include "engines/categories.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;
using catalogue::Place;

namespace {

constexpr const char* kThumbnails = QT_TRANSLATE_NOOP("Categories", "Thumbnails");

constexpr catalogue::RootRow kRoots[] = {
    {"temp", Place::Temp, ""},
    {.category = "logs", .place = Place::Home, .relative = "", .patterns = ".xsession-errors*"},
    {.category = "logs", .place = Place::Data, .relative = "xorg", .patterns = "*.old"},
    {.category = "logs", .place = Place::VarCrash, .relative = "", .patterns = "*.crash", .ownOnly = true},
    {"logs", Place::Config, "Code/logs", "Code"},
    {"logs", Place::Config, "VSCodium/logs", "VSCodium"},
    {"logs", Place::Config, "Slack/logs", "Slack"},
    {"logs", Place::Config, "discord/logs", "discord"},
    {"logs", Place::Config, "obs-studio/logs", "obs-studio"},
    {"thumbs", Place::Cache, "thumbnails", kThumbnails},
    {"thumbs", Place::Home, ".thumbnails", kThumbnails},
    // No AppImages: one may be the installed program itself.
    {"update", Place::Downloads, "", "", "*.deb *.rpm *.snap *.flatpak *.flatpakref *.run *.iso *.img"},
    {"dev", Place::Cache, "pip", "pip cache"},
    {"dev", Place::Cache, "uv", "uv cache"},
    {"dev", Place::Cache, "yarn", "Yarn cache"},
    {"dev", Place::Cache, "pnpm", "pnpm cache"},
    {"dev", Place::Cache, "go-build", "Go build cache"},
    {"dev", Place::Cache, "ccache", "ccache cache"},
    {"dev", Place::Cache, "sccache", "sccache cache"},
    {"dev", Place::Cache, "node-gyp", "node-gyp cache"},
    {"dev", Place::Cache, "electron", "Electron cache"},
    {"dev", Place::Cache, "ms-playwright", "Playwright cache"},
    {"dev", Place::Cache, "Cypress", "Cypress cache"},
    {"dev", Place::Cache, "pre-commit", "pre-commit cache"},
    {"dev", Place::Cache, "composer", "Composer cache"},
    {"dev", Place::Cache, "bazel", "Bazel cache"},
    {"dev", Place::Cache, "deno/npm", "Deno npm cache"},
    {"dev", Place::Cache, "deno/deps", "Deno dependencies cache"},
    {"dev", Place::Cache, "deno/gen", "Deno build cache"},
    {"dev", Place::Cache, "huggingface", "Hugging Face cache"},
    {"dev", Place::Cache, "torch", "Torch cache"},
    {"dev", Place::Home, ".npm/_cacache", "npm cache"},
    {"dev", Place::Home, ".cargo/registry/cache", "Cargo registry cache"},
    {"dev", Place::Home, ".cargo/registry/src", "Cargo sources cache"},
    {"dev", Place::Home, ".gradle/caches", "Gradle caches"},
    {"dev", Place::Home, ".ccache", "ccache cache"},
    {"dev", Place::Home, "go/pkg/mod/cache/download", "Go module cache"},
    {"dev", Place::Home, ".bun/install/cache", "Bun cache"},
};

/// Below the session's cache root, and below that of each packaged browser.
constexpr catalogue::RootRow kBrowserRoots[] = {
    {.category = "browser",
     .place = Place::Cache,
     .relative = "mozilla/firefox",
     .label = "Firefox · ",
     .inEachFolder = "cache2"},
    {"browser", Place::Cache, "google-chrome", "Google Chrome"},
    {"browser", Place::Cache, "google-chrome-beta", "Google Chrome Beta"},
    {"browser", Place::Cache, "chromium", "Chromium"},
    {"browser", Place::Cache, "BraveSoftware", "Brave"},
    {"browser", Place::Cache, "microsoft-edge", "Microsoft Edge"},
    {"browser", Place::Cache, "vivaldi", "Vivaldi"},
    {"browser", Place::Cache, "opera", "Opera"},
};

constexpr const char16_t* kBrowserPackages[] = {
    u"firefox",           u"chromium",          u"org.mozilla.firefox", u"com.google.Chrome", u"org.chromium.Chromium",
    u"com.brave.Browser", u"com.microsoft.Edge"};

/// These hold more than a cache.
constexpr const char16_t* kMoreThanCache[] = {
    u"keepassxc", u"rclone",     u"obexd",     u"pypoetry", u"evolution", u"tracker3",  u"ibus", u"fcitx*", u"dconf",
    u"gvfs*",     u"containers", u"JetBrains", u"sessions", u"zsh",       u"bash",      u"vim",  u"nvim",   u"emacs",
    u"onedriver", u"xournalpp",  u"inkscape",  u"audacity", u"FreeCAD",   u"duplicity", u"borg", u"restic",
};

/// A packaged browser's own cache root.
bool isBrowserPackage(const places::CacheRoot& root) {
  return root.kind != places::CacheRoot::Kind::Session && catalogue::matchesAny(root.id, kBrowserPackages);
}

/// Whether a row of @p rows counts something below the folder @p name of a cache root.
bool isListed(std::span<const catalogue::RootRow> rows, const QString& name) {
  return std::any_of(rows.begin(), rows.end(), [&](const catalogue::RootRow& row) {
    return row.place == Place::Cache && QString::fromUtf8(row.relative).section(u'/', 0, 0) == name;
  });
}

/// One cache root with what must be known to share it out.
struct CacheFolders {
  const places::CacheRoot& root;
  QList<fs::Entry> all;
  QList<fs::Entry> free; ///< those that are neither left alone nor counted by another category
};

CacheFolders look(const places::CacheRoot& root, const QSet<QString>& mounts) {
  const bool session = root.kind == places::CacheRoot::Kind::Session;
  const QString real = fs::resolved(root.path);
  fs::Entry top;
  const bool known = fs::stat(real, &top);
  CacheFolders folders{root, catalogue::subFolders(root.path), {}};
  for (const fs::Entry& entry : folders.all) {
    const bool isMount = (known && entry.device != top.device) || mounts.contains(fs::join(real, entry.name));
    const bool counted = (session && isListed(kRoots, entry.name)) ||
                         ((session || isBrowserPackage(root)) && isListed(kBrowserRoots, entry.name));
    if (!isMount && !counted && !categories::holdsMoreThanCache(entry.name)) folders.free.append(entry);
  }
  return folders;
}

/// The session's cache root gives a root for each sub-folder. That of a package gives one root, unless something in it
/// must stay or is counted elsewhere: then, too, each other sub-folder gives one.
void addAppCaches(QList<ScanRoot>* roots, const CacheFolders& folders) {
  const places::CacheRoot& root = folders.root;
  const bool session = root.kind == places::CacheRoot::Kind::Session;
  const QString app = root.kind == places::CacheRoot::Kind::Flatpak ? root.id.section(u'.', -1) : root.id;
  if (!session && folders.free.size() == folders.all.size()) {
    catalogue::addRoot(roots, {.path = root.path, .patterns = {}, .label = app, .realPath = {}});
    return;
  }
  for (const fs::Entry& entry : folders.free)
    catalogue::addRoot(roots, {.path = catalogue::under(root.path, entry.name),
                               .patterns = {},
                               .label = session ? entry.name : app + u" · "_s + entry.name,
                               .realPath = {}});
}

void addBrowsers(QList<ScanRoot>* roots, const places::CacheRoot& root) {
  const bool session = root.kind == places::CacheRoot::Kind::Session;
  if (!session && !isBrowserPackage(root)) return;
  const QString suffix = session                                         ? QString()
                         : root.kind == places::CacheRoot::Kind::Flatpak ? u" (Flatpak)"_s
                                                                         : u" (snap)"_s;
  for (const catalogue::RootRow& row : kBrowserRoots) catalogue::addRow(roots, row, root.path, suffix);
}

/// The home Trash and that of each further volume, as they may be used: what a link stands for is none.
void addTrashes(QList<ScanRoot>* roots) {
  const auto listed = [&](const QString& path) {
    return std::any_of(roots->begin(), roots->end(),
                       [&](const ScanRoot& root) { return root.path == path || root.realPath == path; });
  };
  for (const QString& path : trash::filesFolders())
    if (!listed(path) && !listed(fs::resolved(path)))
      catalogue::addRoot(roots, {.path = path, .patterns = {}, .label = {}, .realPath = {}});
}

} // namespace

bool categories::holdsMoreThanCache(QStringView name) { return catalogue::matchesAny(name, kMoreThanCache); }

QList<CategoryDef> categories::forLinux(const QString& procRoot) {
  const QSet<QString> mounts = mountPoints(procRoot);
  const QList<places::CacheRoot> cacheRoots = places::cacheRoots();
  return catalogue::build(false, kRoots, [&](CategoryDef* def) {
    for (const places::CacheRoot& root : cacheRoots) {
      if (def->id == u"appcache") addAppCaches(&def->roots, look(root, mounts));
      if (def->id == u"browser") addBrowsers(&def->roots, root);
    }
    if (def->id == u"trash") addTrashes(&def->roots);
  });
}
