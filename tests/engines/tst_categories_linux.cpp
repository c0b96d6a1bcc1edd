// The roots of the Linux catalogue.
#include "core/fs.h"
#include "engines/CatalogueTest.h"
#include "engines/ProcStandIn.h"

#include <QDir>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

class tst_categories_linux : public CatalogueTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void linuxLabelledRoots_data();
  void linuxLabelledRoots();
  void linuxPatternRoots();
  void linuxTemp();
  void linuxAppCachesLeaveOthersAlone();
  void linuxLeftAlone_data();
  void linuxLeftAlone();
  void linuxBrowsers();
  void linuxPackagedBrowsers();
  void linuxPackagedCaches();
  void linuxPackagedCacheIsSharedOut();
  void linuxMountsAreLeftAlone();
  void linuxTrashes();
  void linkedTrashIsNone();
  void linuxPlacesFollowTheVariables();
  void badVariablesDoNotCount();
  void mountPoints();
};

void tst_categories_linux::linuxLabelledRoots_data() {
  QTest::addColumn<QString>("id");
  QTest::addColumn<QString>("label");
  const auto row = [](const char* path, const char* id, const char* label) {
    QTest::newRow(path) << QString::fromLatin1(id) << QString::fromUtf8(label);
  };
  row(".config/Code/logs", "logs", "Code");
  row(".config/VSCodium/logs", "logs", "VSCodium");
  row(".config/Slack/logs", "logs", "Slack");
  row(".config/discord/logs", "logs", "discord");
  row(".config/obs-studio/logs", "logs", "obs-studio");
  row(".cache/thumbnails", "thumbs", "Thumbnails");
  row(".thumbnails", "thumbs", "Thumbnails");
  row(".cache/pip", "dev", "pip cache");
  row(".cache/uv", "dev", "uv cache");
  row(".cache/yarn", "dev", "Yarn cache");
  row(".cache/pnpm", "dev", "pnpm cache");
  row(".cache/go-build", "dev", "Go build cache");
  row(".cache/ccache", "dev", "ccache cache");
  row(".cache/sccache", "dev", "sccache cache");
  row(".cache/node-gyp", "dev", "node-gyp cache");
  row(".cache/electron", "dev", "Electron cache");
  row(".cache/ms-playwright", "dev", "Playwright cache");
  row(".cache/Cypress", "dev", "Cypress cache");
  row(".cache/pre-commit", "dev", "pre-commit cache");
  row(".cache/composer", "dev", "Composer cache");
  row(".cache/bazel", "dev", "Bazel cache");
  row(".cache/deno/npm", "dev", "Deno npm cache");
  row(".cache/deno/deps", "dev", "Deno dependencies cache");
  row(".cache/deno/gen", "dev", "Deno build cache");
  row(".cache/huggingface", "dev", "Hugging Face cache");
  row(".cache/torch", "dev", "Torch cache");
  row(".npm/_cacache", "dev", "npm cache");
  row(".cargo/registry/cache", "dev", "Cargo registry cache");
  row(".cargo/registry/src", "dev", "Cargo sources cache");
  row(".gradle/caches", "dev", "Gradle caches");
  row(".ccache", "dev", "ccache cache");
  row("go/pkg/mod/cache/download", "dev", "Go module cache");
  row(".bun/install/cache", "dev", "Bun cache");
  row(".cache/mozilla/firefox/abc.default/cache2", "browser", "Firefox · abc.default");
  row(".cache/google-chrome", "browser", "Google Chrome");
  row(".cache/google-chrome-beta", "browser", "Google Chrome Beta");
  row(".cache/chromium", "browser", "Chromium");
  row(".cache/BraveSoftware", "browser", "Brave");
  row(".cache/microsoft-edge", "browser", "Microsoft Edge");
  row(".cache/vivaldi", "browser", "Vivaldi");
  row(".cache/opera", "browser", "Opera");
  row(".cache/some-app", "appcache", "some-app");
}

// Each folder is a root of one category alone.
void tst_categories_linux::linuxLabelledRoots() {
  QFETCH(QString, id);
  QFETCH(QString, label);
  const QString path = m_home->folder(QString::fromLatin1(QTest::currentDataTag()));
  const QList<CategoryDef> defs = categories::forLinux();
  QStringList holders;
  for (const CategoryDef& def : defs)
    for (const ScanRoot& root : def.roots)
      if (root.path.startsWith(m_home->path() + u'/')) holders << def.id + u'|' + root.path + u'|' + root.label;
  QCOMPARE(holders, QStringList{id + u'|' + path + u'|' + label});
}

void tst_categories_linux::linuxPatternRoots() {
  m_home->folder(u".local/share/xorg"_s);
  m_home->folder(u"Downloads"_s);
  const QList<CategoryDef> defs = categories::forLinux();
  QStringList logs = rootsOf(defs, u"logs"_s);
  logs.removeAll(u"/var/crash||*.crash"_s); // stands there or doesn't
  QCOMPARE(logs, (QStringList{at({}) + "||.xsession-errors*"_L1, at(u".local/share/xorg||*.old"_s)}));
  QCOMPARE(rootsOf(defs, u"update"_s),
           QStringList{at(u"Downloads||*.deb *.rpm *.snap *.flatpak *.flatpakref *.run *.iso *.img"_s)});
  const ScanRoot* crash = rootAt(defs, u"logs"_s, u"/var/crash"_s);
  QCOMPARE(crash != nullptr, QDir(u"/var/crash"_s).exists());
  if (crash) QVERIFY(crash->ownOnly);
  QVERIFY(!rootAt(defs, u"update"_s, at(u"Downloads"_s))->ownOnly);
}

void tst_categories_linux::linuxTemp() {
  QCOMPARE(rootsOf(categories::forLinux(), u"temp"_s), QStringList{m_home->temp() + "||"_L1});
  // The temporary folder must not be a folder of the user's, or hold one.
  for (const QString& path : {m_home->path(), m_home->path(u".."_s), QString(u"/"_s)}) {
    qputenv("TMPDIR", path.toUtf8());
    QCOMPARE(rootsOf(categories::forLinux(), u"temp"_s), QStringList());
    QCOMPARE(rootsOf(categories::forMac(), u"temp"_s), QStringList());
  }
}

void tst_categories_linux::linuxAppCachesLeaveOthersAlone() {
  for (const char* name : {"mozilla", "google-chrome", "google-chrome-beta", "chromium", "BraveSoftware",
                           "microsoft-edge", "vivaldi", "opera", "thumbnails", "pip", "deno", "huggingface", "mine"})
    m_home->folder(u".cache/"_s + QString::fromLatin1(name));
  m_home->file(u".cache/loose.db"_s);
  QCOMPARE(rootsOf(categories::forLinux(), u"appcache"_s), QStringList{at(u".cache/mine|mine|"_s)});
}

void tst_categories_linux::linuxLeftAlone_data() {
  QTest::addColumn<QString>("name");
  for (const char* name : {"keepassxc", "rclone",   "obexd",    "pypoetry", "evolution", "tracker3",   "ibus",
                           "fcitx",     "fcitx5",   "dconf",    "gvfs",     "gvfsd",     "containers", "JetBrains",
                           "sessions",  "zsh",      "bash",     "vim",      "nvim",      "emacs",      "onedriver",
                           "xournalpp", "inkscape", "audacity", "FreeCAD",  "duplicity", "borg",       "restic"})
    QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_categories_linux::linuxLeftAlone() {
  QFETCH(QString, name);
  QVERIFY(categories::holdsMoreThanCache(name));
  QVERIFY(!categories::holdsMoreThanCache(u"x"_s + name));
  m_home->folder(u".cache/"_s + name);
  m_home->folder(u".cache/mine"_s);
  QCOMPARE(rootsOf(categories::forLinux(), u"appcache"_s), QStringList{at(u".cache/mine|mine|"_s)});
  // In a package's cache root its neighbours are still counted.
  m_home->folder(u".var/app/org.example.Writer/cache/"_s + name);
  m_home->folder(u".var/app/org.example.Writer/cache/tmp"_s);
  QCOMPARE(sortedRootsOf(categories::forLinux(), u"appcache"_s),
           sorted({at(u".cache/mine|mine|"_s), at(u".var/app/org.example.Writer/cache/tmp|Writer · tmp|"_s)}));
}

void tst_categories_linux::linuxBrowsers() {
  m_home->folder(u".cache/mozilla/firefox/one/cache2"_s);
  m_home->folder(u".cache/mozilla/firefox/two/startupCache"_s);
  m_home->folder(u".cache/opera"_s);
  QCOMPARE(rootsOf(categories::forLinux(), u"browser"_s),
           (QStringList{at(u".cache/mozilla/firefox/one/cache2|Firefox · one|"_s), at(u".cache/opera|Opera|"_s)}));
}

void tst_categories_linux::linuxPackagedBrowsers() {
  m_home->folder(u"snap/firefox/common/.cache/mozilla/firefox/p/cache2"_s);
  m_home->folder(u"snap/chromium/common/.cache/chromium"_s);
  m_home->folder(u".var/app/org.mozilla.firefox/cache/mozilla/firefox/p/cache2"_s);
  m_home->folder(u".var/app/com.google.Chrome/cache/google-chrome"_s);
  m_home->folder(u".var/app/org.chromium.Chromium/cache/chromium"_s);
  m_home->folder(u".var/app/com.brave.Browser/cache/BraveSoftware"_s);
  m_home->folder(u".var/app/com.microsoft.Edge/cache/microsoft-edge"_s);
  const QList<CategoryDef> defs = categories::forLinux();
  QCOMPARE(sortedRootsOf(defs, u"browser"_s),
           sorted({at(u"snap/firefox/common/.cache/mozilla/firefox/p/cache2|Firefox · p (snap)|"_s),
                   at(u"snap/chromium/common/.cache/chromium|Chromium (snap)|"_s),
                   at(u".var/app/org.mozilla.firefox/cache/mozilla/firefox/p/cache2|Firefox · p (Flatpak)|"_s),
                   at(u".var/app/com.google.Chrome/cache/google-chrome|Google Chrome (Flatpak)|"_s),
                   at(u".var/app/org.chromium.Chromium/cache/chromium|Chromium (Flatpak)|"_s),
                   at(u".var/app/com.brave.Browser/cache/BraveSoftware|Brave (Flatpak)|"_s),
                   at(u".var/app/com.microsoft.Edge/cache/microsoft-edge|Microsoft Edge (Flatpak)|"_s)}));
  // What the browser category counts isn't counted again.
  QCOMPARE(rootsOf(defs, u"appcache"_s), QStringList());
}

void tst_categories_linux::linuxPackagedCaches() {
  m_home->folder(u".var/app/org.gnome.Maps/cache/tiles"_s);
  m_home->folder(u".var/app/org.other.Chat/cache"_s);
  m_home->folder(u"snap/notes/common/.cache/pip"_s);
  m_home->folder(u"snap/bare/common"_s);
  QCOMPARE(sortedRootsOf(categories::forLinux(), u"appcache"_s),
           sorted({at(u".var/app/org.gnome.Maps/cache|Maps|"_s), at(u".var/app/org.other.Chat/cache|Chat|"_s),
                   at(u"snap/notes/common/.cache|notes|"_s)}));
}

void tst_categories_linux::linuxPackagedCacheIsSharedOut() {
  m_home->folder(u".var/app/org.mozilla.firefox/cache/mozilla/firefox/p/cache2"_s);
  m_home->folder(u".var/app/org.mozilla.firefox/cache/fontconfig"_s);
  QCOMPARE(rootsOf(categories::forLinux(), u"appcache"_s),
           QStringList{at(u".var/app/org.mozilla.firefox/cache/fontconfig|firefox · fontconfig|"_s)});
}

void tst_categories_linux::linuxMountsAreLeftAlone() {
  const QString mounted = m_home->folder(u".cache/big disk"_s);
  m_home->folder(u".cache/small"_s);
  const QString inPackage = m_home->folder(u".var/app/org.example.Writer/cache/mounted"_s);
  m_home->folder(u".var/app/org.example.Writer/cache/own"_s);
  ProcStandIn proc(*m_home);
  proc.addMount(mounted.toUtf8().replace(" ", "\\040"));
  proc.addMount(inPackage.toUtf8());
  QCOMPARE(sortedRootsOf(categories::forLinux(proc.root()), u"appcache"_s),
           sorted({at(u".cache/small|small|"_s), at(u".var/app/org.example.Writer/cache/own|Writer · own|"_s)}));
}

void tst_categories_linux::linuxTrashes() {
  const QString files = m_home->folder(u".local/share/Trash/files"_s);
  QStringList roots = rootsOf(categories::forLinux(), u"trash"_s);
  QCOMPARE(roots.count(files + "||"_L1), 1);
  QCOMPARE(roots.first(), files + "||"_L1);
}

// Its info files can't be reached through the link, as nothing is moved there either.
void tst_categories_linux::linkedTrashIsNone() {
  const QString real = m_home->folder(m_home->outside(u"volume/Trash"_s));
  m_home->file(real + "/files/thrown"_L1);
  m_home->link(u".local/share/Trash"_s, real);
  const auto roots = rootsOf(categories::forLinux(), u"trash"_s).filter(m_home->outside());
  QCOMPARE(roots, QStringList());
}

void tst_categories_linux::linuxPlacesFollowTheVariables() {
  const QString cache = m_home->folder(m_home->outside(u"xdg/cache"_s));
  const QString config = m_home->folder(m_home->outside(u"xdg/config"_s));
  const QString data = m_home->folder(m_home->outside(u"xdg/data"_s));
  qputenv("XDG_CACHE_HOME", cache.toUtf8());
  qputenv("XDG_CONFIG_HOME", config.toUtf8());
  qputenv("XDG_DATA_HOME", data.toUtf8());
  for (const QString& path : {cache + "/pip"_L1, cache + "/mine"_L1, config + "/Code/logs"_L1, data + "/Trash/files"_L1,
                              data + "/xorg"_L1, at(u".cache/not-here"_s)})
    m_home->folder(path);
  const QList<CategoryDef> defs = categories::forLinux();
  QCOMPARE(rootsOf(defs, u"appcache"_s), QStringList{cache + "/mine|mine|"_L1});
  QCOMPARE(rootsOf(defs, u"dev"_s), QStringList{cache + "/pip|pip cache|"_L1});
  QVERIFY(rootAt(defs, u"logs"_s, config + "/Code/logs"_L1));
  QVERIFY(rootAt(defs, u"logs"_s, data + "/xorg"_L1));
  QCOMPARE(rootsOf(defs, u"trash"_s).first(), data + "/Trash/files||"_L1);
}

void tst_categories_linux::badVariablesDoNotCount() {
  m_home->folder(u".cache/mine"_s);
  m_home->folder(u"private"_s);
  for (const QByteArray& value : {QByteArray("/"), QByteArray("relative/cache"), at({}).toUtf8(), at(u".."_s).toUtf8(),
                                  at(u"Documents"_s).toUtf8()}) {
    qputenv("XDG_CACHE_HOME", value);
    QCOMPARE(rootsOf(categories::forLinux(), u"appcache"_s), QStringList{at(u".cache/mine|mine|"_s)});
  }
}

void tst_categories_linux::mountPoints() {
  ProcStandIn proc(*m_home);
  proc.addMount("/media/me/My\\040Disk\\134x");
  QCOMPARE(categories::mountPoints(proc.root()), (QSet<QString>{u"/"_s, u"/media/me/My Disk\\x"_s}));
  QCOMPARE(categories::mountPoints(m_home->outside(u"nothing"_s)), QSet<QString>());
}

QTEST_GUILESS_MAIN(tst_categories_linux)
#include "tst_categories_linux.moc"
