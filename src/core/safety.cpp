#include "core/safety.h"

#include "core/places.h"
#include "core/platform.h"
#include "core/rules.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <cstring>

using namespace Qt::StringLiterals;

namespace safety {
namespace {

/// With everything below.
constexpr QLatin1String kSystemRoots[] = {"/System"_L1,        "/usr"_L1,
                                          "/bin"_L1,           "/sbin"_L1,
                                          "/Library/Apple"_L1, "/private/var/db"_L1,
                                          "/etc"_L1,           "/Applications/Utilities"_L1};

namespace desktop { // what Linux adds

/// With everything below but the exceptions.
constexpr QLatin1String kSystemRoots[] = {
    "/boot"_L1, "/dev"_L1, "/efi"_L1,  "/gnu"_L1,  "/lib"_L1, "/lib32"_L1, "/lib64"_L1, "/libx32"_L1, "/lost+found"_L1,
    "/nix"_L1,  "/opt"_L1, "/proc"_L1, "/root"_L1, "/run"_L1, "/snap"_L1,  "/srv"_L1,   "/sys"_L1,    "/var"_L1};

/// What lies in these doesn't belong to the system; they themselves do.
constexpr QLatin1String kExceptions[] = {"/run/media"_L1, "/var/tmp"_L1, "/var/crash"_L1};

/// Below the home folder, with everything in them.
constexpr QLatin1String kSecrets[] = {
    ".ssh"_L1, ".gnupg"_L1, ".pki"_L1,  ".password-store"_L1,    ".netrc"_L1, ".mozilla"_L1, ".thunderbird"_L1,
    ".aws"_L1, ".azure"_L1, ".kube"_L1, ".docker/config.json"_L1};
/// The same below the data and the config folder.
constexpr QLatin1String kDataSecrets[] = {"keyrings"_L1, "kwalletd"_L1};
constexpr QLatin1String kConfigSecrets[] = {"gh"_L1,       "gcloud"_L1,        "mozilla"_L1,        "google-chrome"_L1,
                                            "chromium"_L1, "BraveSoftware"_L1, "microsoft-edge"_L1, "vivaldi"_L1,
                                            "opera"_L1};

/// The browsers among the snaps and Flatpaks, by snap name or app id.
constexpr QLatin1String kBrowsers[] = {"firefox"_L1,
                                       "chromium"_L1,
                                       "brave"_L1,
                                       "opera"_L1,
                                       "vivaldi"_L1,
                                       "org.mozilla.firefox"_L1,
                                       "com.google.Chrome"_L1,
                                       "com.google.ChromeDev"_L1,
                                       "org.chromium.Chromium"_L1,
                                       "io.github.ungoogled_software.ungoogled_chromium"_L1,
                                       "com.brave.Browser"_L1,
                                       "com.microsoft.Edge"_L1,
                                       "com.microsoft.EdgeDev"_L1,
                                       "com.vivaldi.Vivaldi"_L1,
                                       "com.opera.Opera"_L1,
                                       "io.gitlab.librewolf-community"_L1};
/// In the home folder of any snap or Flatpak, and in that of a browser.
constexpr QLatin1String kProfiles[] = {".mozilla"_L1};
constexpr QLatin1String kBrowserProfiles[] = {"config"_L1, ".config"_L1, "chromium"_L1};

} // namespace desktop

template <typename Table>
bool contains(const Table& table, QStringView text) {
  return std::any_of(std::begin(table), std::end(table), [&](QLatin1String one) { return text == one; });
}

/// Told by the last character in most cases.
bool startsWith(QStringView text, QStringView prefix) {
  return text.size() >= prefix.size() && text[prefix.size() - 1] == prefix.back() && text.startsWith(prefix);
}

/// The text before the first "/" of @p path, which is left with what stands behind it.
QStringView takeComponent(QStringView* path) {
  const qsizetype slash = path->indexOf(u'/');
  const QStringView component = path->first(slash < 0 ? path->size() : slash);
  *path = path->sliced(slash < 0 ? path->size() : slash + 1);
  return component;
}

/// Whether cleaning could change @p path at all.
bool mayBeUnclean(QStringView path) {
  if (!path.startsWith(u'/')) return true;
  for (qsizetype i = 0; i + 1 < path.size(); ++i)
    if (path[i] == u'/' && (path[i + 1] == u'/' || path[i + 1] == u'.')) return true;
  return path.size() > 1 && path.endsWith(u'/');
}

/// What the lists of an environment depend on.
QByteArray environmentKey() {
  QByteArray key = platform::host() == platform::Host::Linux ? "linux" : "mac";
  for (const char* name : {"HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
    key += '\0';
    key += qgetenv(name);
  }
  return key;
}

/// Every path that stands for a home folder: as the environment and the password database have it, and without links,
/// since a root may be reached that way.
QStringList homeFolders(const QString& passwordHome) {
  QStringList homes{normalized(QDir::homePath()), places::home(), passwordHome};
  for (const QString& home : QStringList(homes)) homes << QFileInfo(home).canonicalFilePath();
  homes.removeDuplicates();
  homes.removeIf([](const QString& home) { return !home.startsWith(u'/') || home == "/"_L1; });
  return homes;
}

} // namespace

QString normalized(const QString& path) {
  if (!mayBeUnclean(path)) return path;
  QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
  qsizetype up = 0; // above the root is the root
  while (QStringView(clean).sliced(up).startsWith("/../"_L1)) up += 3;
  clean.remove(0, up);
  return clean == "/.."_L1 ? u"/"_s : clean;
}

bool isProtected(const QString& path) { return Locations::current()->hold(normalized(path)); }

bool isExcluded(const QString& path, const QList<QString>& rules) { return rules::isCovered(path, rules); }

QString protectedSummary() {
  return platform::host() == platform::Host::Linux ? u"/usr, /etc, /boot, /var"_s
                                                   : u"/System, /usr, /bin, /Library/Apple"_s;
}

// One list for each environment that the process has met, which is one but in tests. Read without a lock.
std::shared_ptr<const Locations> Locations::current() {
  struct Known {
    QByteArray key;
    std::shared_ptr<const Locations> locations;
    const Known* next;
  };
  static std::atomic<const Known*> newest{nullptr};
  const QByteArray key = environmentKey();
  for (const Known* one = newest.load(std::memory_order_acquire); one != nullptr; one = one->next)
    if (one->key == key) return one->locations;
  auto* made = new Known{key, withPasswordHome(places::passwordHome()), newest.load(std::memory_order_acquire)};
  while (!newest.compare_exchange_weak(made->next, made, std::memory_order_acq_rel)) {
  }
  return made->locations;
}

std::shared_ptr<const Locations> Locations::withPasswordHome(const QString& passwordHome) {
  return std::shared_ptr<const Locations>(new Locations(normalized(passwordHome)));
}

Locations::Locations(const QString& passwordHome) {
  for (const QLatin1String root : kSystemRoots) add(root, Reach::Tree);
  const QStringList homes = homeFolders(passwordHome);
  for (const QString& home : homes) addHome(home);
  if (platform::host() == platform::Host::Linux || platform::isPreview()) addLinux(homes, passwordHome);
  index();
}

void Locations::add(const QString& path, Reach reach) {
  if (!path.isEmpty()) m_places.push_back({normalized(path), reach});
}

void Locations::addHome(const QString& home) {
  add(home, Reach::Itself);
  add(home + "/.."_L1, Reach::Itself);
  for (const QLatin1String folder : places::usualFolders()) add(home + u'/' + folder, Reach::Itself);
}

void Locations::addLinux(const QStringList& homes, const QString& passwordHome) {
  for (const QLatin1String root : desktop::kSystemRoots) add(root, Reach::Root);
  for (const QLatin1String exception : desktop::kExceptions) m_exceptions.push_back(exception + u'/');
  addHomeException(passwordHome);
  addHomeException(QFileInfo(passwordHome).canonicalFilePath());
  for (const QString& folder : places::userDirs()) add(folder, Reach::Itself);

  for (const QString& folder : {places::cache(), places::config(), places::data()}) add(folder, Reach::Itself);
  addSecrets(places::config(), places::data());
  for (const QString& home : homes) {
    for (const QLatin1String folder : places::keptFolders()) add(home + u'/' + folder, Reach::Itself);
    add(home + "/.cache"_L1, Reach::Itself);
    for (const QLatin1String secret : desktop::kSecrets) add(home + u'/' + secret, Reach::Tree);
    addSecrets(home + "/.config"_L1, home + "/.local/share"_L1);
    m_sandboxes.push_back({home + "/snap/"_L1, 1});
    m_sandboxes.push_back({home + "/.var/app/"_L1, 0});
  }
}

/// A home folder may lie in a system root, but is none, save root's own.
void Locations::addHomeException(const QString& home) {
  if (home.size() < 2 || !home.startsWith(u'/')) return;
  if (home == "/root"_L1 || !contains(desktop::kSystemRoots, home)) m_exceptions.push_back(home + u'/');
}

void Locations::addSecrets(const QString& config, const QString& data) {
  for (const QLatin1String secret : desktop::kConfigSecrets)
    if (!config.isEmpty()) add(config + u'/' + secret, Reach::Tree);
  for (const QLatin1String secret : desktop::kDataSecrets)
    if (!data.isEmpty()) add(data + u'/' + secret, Reach::Tree);
}

/// Sorts by length, the farthest reach of a path first, so that a question looks at the few places of its length.
void Locations::index() {
  std::sort(m_places.begin(), m_places.end(), [](const Place& a, const Place& b) {
    if (a.path.size() != b.path.size()) return a.path.size() < b.path.size();
    return a.path != b.path ? a.path < b.path : a.reach > b.reach;
  });
  const auto longest = static_cast<size_t>(m_places.back().path.size());
  m_firstOfSize.assign(longest + 2, static_cast<quint32>(m_places.size()));
  for (size_t i = m_places.size(); i-- > 0;)
    m_firstOfSize[static_cast<size_t>(m_places[i].path.size())] = static_cast<quint32>(i);
  for (size_t size = longest + 1; size-- > 0;)
    m_firstOfSize[size] = std::min(m_firstOfSize[size], m_firstOfSize[size + 1]);
}

Locations::Reach Locations::reachOf(QStringView path) const {
  const auto size = static_cast<size_t>(path.size());
  if (size + 1 >= m_firstOfSize.size()) return Reach::None;
  for (quint32 i = m_firstOfSize[size]; i < m_firstOfSize[size + 1]; ++i) {
    const Place& place = m_places[i];
    if (place.path.back() == path.back() && place.path == path) return place.reach;
  }
  return Reach::None;
}

bool Locations::isException(QStringView path) const {
  return std::any_of(m_exceptions.cbegin(), m_exceptions.cend(),
                     [&](const QString& exception) { return path.startsWith(exception); });
}

/// Whether @p path is, or lies in, the profile folder of a browser that runs as a snap or Flatpak.
bool Locations::isBrowserData(QStringView path) const {
  for (const Sandboxes& sandboxes : m_sandboxes) {
    if (!startsWith(path, sandboxes.parent)) continue;
    QStringView rest = path.sliced(sandboxes.parent.size());
    const QStringView app = takeComponent(&rest);
    for (qsizetype i = 0; i < sandboxes.homeDepth; ++i) takeComponent(&rest);
    const QStringView folder = takeComponent(&rest);
    if (contains(desktop::kProfiles, folder)) return true;
    if (contains(desktop::kBrowserProfiles, folder) && contains(desktop::kBrowsers, app)) return true;
  }
  return false;
}

bool Locations::hold(QStringView normalized) const {
  if (!normalized.startsWith(u'/')) return true;
  qsizetype slash = normalized.indexOf(u'/', 1);
  if (slash < 0) return true;
  for (; slash >= 0; slash = normalized.indexOf(u'/', slash + 1)) {
    const Reach reach = reachOf(normalized.first(slash));
    if (reach == Reach::Tree || (reach == Reach::Root && !isException(normalized))) return true;
  }
  return holdBelow(normalized);
}

bool Locations::holdBelow(QStringView normalized) const {
  return reachOf(normalized) != Reach::None || isBrowserData(normalized);
}

} // namespace safety
