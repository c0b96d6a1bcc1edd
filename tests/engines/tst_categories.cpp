// The catalogue: words and order of both hosts, the roots of macOS, and when a folder is no root.
#include "core/fs.h"
#include "engines/CatalogueTest.h"
#include "engines/ProcStandIn.h"

#include <QDir>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

class tst_categories : public CatalogueTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void safetyLabels();
  void hostChoosesTheTable();
  void words_data();
  void words();
  void emptyHome_data();
  void emptyHome();
  void macRoots();
  void macAppCaches();
  void macThumbsFollowTheTemporaryFolder();
  void noHomeNoRoots();
  void linkedRootKnowsItsRealPath_data();
  void linkedRootKnowsItsRealPath();
  void linkToAPreciousFolderIsNoRoot_data();
  void linkToAPreciousFolderIsNoRoot();
  void linkedDownloadsAreARoot();
  void linkedHomeHasItsRoots();
  void linkedTemporaryFolder();
  void linkInsideACacheIsNoRoot();
  void fileIsNoRoot();

 private:
  const QString m_outside = u"outside"_s;
};

void tst_categories::safetyLabels() {
  QCOMPARE(categories::safetyLabel(Safe), u"Safe"_s);
  QCOMPARE(categories::safetyLabel(Review), u"Review"_s);
  QCOMPARE(categories::safetyLabel(Permanent), u"Permanent"_s);
  QCOMPARE(categories::safetyLabel(static_cast<Safety>(3)), QString());
}

void tst_categories::hostChoosesTheTable() {
  qputenv("TARNWICK_HOST", "mac");
  QCOMPARE(category(categories::forThisPlatform(), u"thumbs"_s).title, u"QuickLook cache"_s);
  qputenv("TARNWICK_HOST", "linux");
  QCOMPARE(category(categories::forThisPlatform(), u"thumbs"_s).title, u"Thumbnail cache"_s);
}

void tst_categories::words_data() {
  QTest::addColumn<int>("index");
  QTest::addColumn<QStringList>("both"); // id, icon, colour
  QTest::addColumn<int>("safety");
  QTest::addColumn<bool>("macFullDiskAccess");
  QTest::addColumn<QStringList>("mac"); // title, hint, blurb
  QTest::addColumn<QStringList>("linux");

  const QString temp =
      u"Scratch files that apps and the system create while working. They are not needed once the app closes."_s;
  const QString apps =
      u"Data apps keep to load faster. Apps rebuild these automatically the next time they need them."_s;
  const QString browser =
      u"Cached images, scripts and pages. Sign-ins, history, bookmarks and passwords are never touched."_s;
  const QString logs = u"Diagnostic logs and crash reports. Useful only when troubleshooting a recent problem."_s;
  const QString thumbs = u"Preview images of your files. They are regenerated the next time you open a folder."_s;
  const QString dev =
      u"Package manager caches and build output. Removing them is safe, but the next build or install will be slower."_s;
  const QString trash = u"Items you have already deleted. Emptying cannot be undone."_s;
  QTest::newRow("temp") << 0 << QStringList{u"temp"_s, u"clock"_s, u"#64748b"_s} << 0 << false
                        << QStringList{u"Temporary files"_s, u"$TMPDIR"_s, temp}
                        << QStringList{u"Temporary files"_s, u"$TMPDIR"_s, temp};
  QTest::newRow("appcache") << 1 << QStringList{u"appcache"_s, u"box"_s, u"#6366f1"_s} << 0 << false
                            << QStringList{u"App caches"_s, u"~/Library/Caches"_s, apps}
                            << QStringList{u"App caches"_s, u"~/.cache"_s, apps};
  QTest::newRow("browser") << 2 << QStringList{u"browser"_s, u"globe"_s, u"#0ea5e9"_s} << 0 << true
                           << QStringList{u"Browser caches"_s, u"Safari, Chrome, Edge, Brave, Firefox"_s, browser}
                           << QStringList{u"Browser caches"_s, u"Firefox, Chrome, Chromium, Brave, Edge"_s, browser};
  QTest::newRow("logs") << 3 << QStringList{u"logs"_s, u"file"_s, u"#78716c"_s} << 0 << false
                        << QStringList{u"Logs & crash reports"_s, u"~/Library/Logs, DiagnosticReports"_s, logs}
                        << QStringList{u"Logs & crash reports"_s, u"Session logs, crash reports"_s, logs};
  QTest::newRow("thumbs") << 4 << QStringList{u"thumbs"_s, u"image"_s, u"#ec4899"_s} << 0 << false
                          << QStringList{u"QuickLook cache"_s, u"com.apple.QuickLook.thumbnailcache"_s, thumbs}
                          << QStringList{u"Thumbnail cache"_s, u"~/.cache/thumbnails"_s, thumbs};
  QTest::newRow("update")
      << 5 << QStringList{u"update"_s, u"download"_s, u"#f59e0b"_s} << 1 << false
      << QStringList{u"Old installers"_s, u".dmg and .pkg in Downloads"_s,
                     u"Disk images and installer packages in your Downloads folder. Review in case you still need an installer."_s}
      << QStringList{
             u"Old installers"_s, u".deb, .rpm and disc images in Downloads"_s,
             u"Software packages and disc images in your Downloads folder. Review in case you still need one of them."_s};
  QTest::newRow("dev") << 6 << QStringList{u"dev"_s, u"code"_s, u"#8b5cf6"_s} << 1 << false
                       << QStringList{u"Developer caches"_s, u"Xcode, simulators, Homebrew, npm, pip"_s, dev}
                       << QStringList{u"Developer caches"_s, u"pip, npm, Cargo, Gradle, Go, ccache"_s, dev};
  QTest::newRow("trash") << 7 << QStringList{u"trash"_s, u"trash"_s, u"#ef4444"_s} << 2 << true
                         << QStringList{u"Trash"_s, u"~/.Trash"_s, trash}
                         << QStringList{u"Trash"_s, u"~/.local/share/Trash"_s, trash};
}

void tst_categories::words() {
  QFETCH(int, index);
  QFETCH(QStringList, both);
  QFETCH(int, safety);
  QFETCH(bool, macFullDiskAccess);
  QFETCH(QStringList, mac);
  QFETCH(QStringList, linux);
  const auto check = [&](const QList<CategoryDef>& defs, const QStringList& words, bool fullDiskAccess) {
    QCOMPARE(defs.size(), 8);
    const CategoryDef& def = defs[index];
    QCOMPARE((QStringList{def.id, def.icon, def.colour.name()}), both);
    QCOMPARE(int(def.safety), safety);
    QCOMPARE((QStringList{def.title, def.locationHint, def.blurb}), words);
    QCOMPARE(def.needsFullDiskAccess, fullDiskAccess);
    QVERIFY(!def.needsAdmin);
    QVERIFY(!def.usesRecycleBin);
  };
  check(categories::forMac(), mac, macFullDiskAccess);
  check(categories::forLinux(), linux, false);
}

void tst_categories::emptyHome_data() {
  QTest::addColumn<bool>("mac");
  QTest::newRow("mac") << true;
  QTest::newRow("linux") << false;
}

// A category whose folders are all missing keeps its place.
void tst_categories::emptyHome() {
  QFETCH(bool, mac);
  const QList<CategoryDef> defs = mac ? categories::forMac() : categories::forLinux();
  QCOMPARE(defs.size(), 8);
  for (const CategoryDef& def : defs) {
    if (def.id == u"temp") continue;
    for (const ScanRoot& root : def.roots) // the machine's own crash reports and volumes may show
      QVERIFY2(root.path == m_home->path() || !root.path.startsWith(m_home->outside()), qPrintable(root.path));
  }
  QCOMPARE(rootsOf(defs, u"temp"_s), QStringList{m_home->temp() + "||"_L1});
}

void tst_categories::macRoots() {
  for (const char* path :
       {"Library/Caches/com.apple.Safari", "Library/Caches/Google/Chrome", "Library/Caches/com.microsoft.edgemac",
        "Library/Caches/BraveSoftware", "Library/Caches/Firefox/Profiles/abc.default/cache2",
        "Library/Caches/Firefox/Profiles/no-cache-yet", "Library/Logs", "Downloads",
        "Library/Developer/Xcode/DerivedData", "Library/Developer/CoreSimulator/Caches", "Library/Caches/Homebrew",
        ".npm/_cacache", "Library/Caches/pip", "Library/Caches/Yarn", "Library/Caches/go-build", ".gradle/caches",
        ".Trash"})
    m_home->folder(QString::fromLatin1(path));
  const QList<CategoryDef> defs = categories::forMac();
  QCOMPARE(rootsOf(defs, u"appcache"_s), QStringList());
  QCOMPARE(rootsOf(defs, u"browser"_s),
           (QStringList{at(u"Library/Caches/com.apple.Safari|Safari|"_s),
                        at(u"Library/Caches/Google/Chrome|Google Chrome|"_s),
                        at(u"Library/Caches/com.microsoft.edgemac|Microsoft Edge|"_s),
                        at(u"Library/Caches/BraveSoftware|Brave|"_s),
                        at(u"Library/Caches/Firefox/Profiles/abc.default/cache2|Firefox · abc.default|"_s)}));
  QCOMPARE(rootsOf(defs, u"logs"_s), QStringList{at(u"Library/Logs||"_s)});
  QCOMPARE(rootsOf(defs, u"update"_s), QStringList{at(u"Downloads||*.dmg *.pkg *.mpkg"_s)});
  QCOMPARE(rootsOf(defs, u"dev"_s),
           (QStringList{at(u"Library/Developer/Xcode/DerivedData|Xcode DerivedData|"_s),
                        at(u"Library/Developer/CoreSimulator/Caches|Simulator caches|"_s),
                        at(u"Library/Caches/Homebrew|Homebrew downloads|"_s), at(u".npm/_cacache|npm cache|"_s),
                        at(u"Library/Caches/pip|pip cache|"_s), at(u"Library/Caches/Yarn|Yarn cache|"_s),
                        at(u"Library/Caches/go-build|Go build cache|"_s), at(u".gradle/caches|Gradle caches|"_s)}));
  QCOMPARE(rootsOf(defs, u"trash"_s), QStringList{at(u".Trash||"_s)});
}

void tst_categories::macAppCaches() {
  for (const char* name : {"com.apple.Safari", "com.apple.anything", "Google", "Firefox", "com.microsoft.edgemac",
                           "BraveSoftware", "Homebrew", "pip", "Yarn", "go-build", "CloudKit", "COM.APPLE.Thing",
                           "com.example.Editor", "net.thing", ".a.b", "a.", "Plain", "a.b."})
    m_home->folder(u"Library/Caches/"_s + QString::fromLatin1(name));
  m_home->file(u"Library/Caches/loose.db"_s);
  m_home->link(u"Library/Caches/linked"_s, m_home->folder(u"elsewhere"_s));
  const auto line = [&](const QString& name, const QString& label) {
    return at(u"Library/Caches/"_s + name) + u'|' + label + u'|';
  };
  QCOMPARE(sortedRootsOf(categories::forMac(), u"appcache"_s),
           sorted({line(u"COM.APPLE.Thing"_s, u"Thing"_s), line(u"com.example.Editor"_s, u"Editor"_s),
                   line(u"net.thing"_s, u"net.thing"_s), line(u".a.b"_s, u"b"_s), line(u"a."_s, u"a."_s),
                   line(u"Plain"_s, u"Plain"_s), line(u"a.b."_s, u"a.b."_s)}));
}

void tst_categories::macThumbsFollowTheTemporaryFolder() {
  QCOMPARE(rootsOf(categories::forMac(), u"thumbs"_s), QStringList());
  const QString folder = m_home->folder(m_home->temp(u"../C/com.apple.QuickLook.thumbnailcache"_s));
  QCOMPARE(rootsOf(categories::forMac(), u"thumbs"_s), QStringList{folder + "|QuickLook thumbnails|"_L1});
  qputenv("TMPDIR", m_home->folder(m_home->temp(u"deeper/down"_s)).toUtf8());
  QCOMPARE(rootsOf(categories::forMac(), u"thumbs"_s), QStringList());
}

// What the home folder would be is never guessed: "/" gives the password database's, and that isn't ours.
void tst_categories::noHomeNoRoots() {
  m_home->folder(u".cache/mine"_s);
  for (const QByteArray& value : {QByteArray("/"), QByteArray("relative"), QByteArray()}) {
    qputenv("HOME", value);
    for (const QList<CategoryDef>& defs : {categories::forMac(), categories::forLinux()})
      for (const CategoryDef& def : defs)
        for (const ScanRoot& root : def.roots) {
          QVERIFY2(QDir::isAbsolutePath(root.path), qPrintable(root.path));
          QVERIFY2(root.path != u"/" && !root.path.startsWith(u"/."), qPrintable(root.path));
          QVERIFY2(def.id == u"temp" || !root.path.startsWith(m_home->outside()), qPrintable(root.path));
        }
  }
}

void tst_categories::linkedRootKnowsItsRealPath_data() { emptyHome_data(); }

void tst_categories::linkedRootKnowsItsRealPath() {
  QFETCH(bool, mac);
  const QString real = m_home->folder(m_home->outside(u"volume/cache"_s));
  m_home->folder(real + "/mine"_L1);
  m_home->link(mac ? u"Library/Caches"_s : u".cache"_s, real);
  m_home->folder(u".gradle/caches"_s);
  const QList<CategoryDef> defs = mac ? categories::forMac() : categories::forLinux();
  const ScanRoot* root = rootAt(defs, u"appcache"_s, at(mac ? u"Library/Caches/mine"_s : u".cache/mine"_s));
  QVERIFY(root);
  QCOMPARE(root->realPath, real + "/mine"_L1);
  QCOMPARE(rootAt(defs, u"dev"_s, at(u".gradle/caches"_s))->realPath, QString());
}

void tst_categories::linkToAPreciousFolderIsNoRoot_data() {
  QTest::addColumn<QString>("target"); // below the home folder, or absolute
  QTest::addColumn<bool>("isRoot");
  QTest::newRow("another volume") << m_outside << true;
  QTest::newRow("a folder of no meaning") << u"stuff"_s << true;
  QTest::newRow("home folder") << u"."_s << false;
  QTest::newRow("above the home folder") << u".."_s << false;
  QTest::newRow("far above it") << u"/var"_s << false;
  QTest::newRow("the root") << u"/"_s << false;
  QTest::newRow("of the system") << u"/usr/share"_s << false;
  QTest::newRow("the user's own") << u"Documents"_s << false;
  QTest::newRow("in the user's own") << u"Pictures/thumbs"_s << false;
  QTest::newRow("in the user's own behind a link") << u"Music/real"_s << false;
  QTest::newRow("in the user's own by its localised name") << u"Bilder/thumbs"_s << false;
}

void tst_categories::linkToAPreciousFolderIsNoRoot() {
  QFETCH(QString, target);
  QFETCH(bool, isRoot);
  m_home->link(u"Music"_s, m_home->folder(m_home->outside(u"volume/music"_s)));
  QFile list(m_home->folder(u".config"_s) + "/user-dirs.dirs"_L1);
  QVERIFY(list.open(QIODevice::WriteOnly));
  list.write("XDG_PICTURES_DIR=\"$HOME/Bilder\"\n");
  list.close();
  QString path = target == m_outside ? m_home->folder(m_home->outside(u"volume/thumbs"_s)) : at(target);
  if (target.startsWith(u'/') && target != m_outside) path = target;
  if (path.startsWith(m_home->outside())) m_home->folder(path);
  if (target == u"Music/real") path = m_home->outside(u"volume/music/real"_s); // what the link really leads to
  m_home->link(u".thumbnails"_s, path);
  const QStringList found = rootsOf(categories::forLinux(), u"thumbs"_s);
  QCOMPARE(found, isRoot ? QStringList{at(u".thumbnails|Thumbnails|"_s)} : QStringList());
}

// What is the user's own by its own name is no less so behind a link.
void tst_categories::linkedDownloadsAreARoot() {
  m_home->link(u"Downloads"_s, m_home->folder(u"Documents/loads"_s));
  const QString real = m_home->path(u"Documents/loads"_s);
  for (const QList<CategoryDef>& defs : {categories::forMac(), categories::forLinux()}) {
    const ScanRoot* root = rootAt(defs, u"update"_s, at(u"Downloads"_s));
    QVERIFY(root);
    QCOMPARE(root->realPath, real);
  }
}

// A home folder behind a link is as good as any.
void tst_categories::linkedHomeHasItsRoots() {
  const QString real = m_home->path();
  const QString link = m_home->link(m_home->outside(u"users/link"_s), real);
  m_home->folder(u".thumbnails"_s);
  qputenv("HOME", link.toUtf8());
  const QList<CategoryDef> defs = categories::forLinux();
  const ScanRoot* thumbs = rootAt(defs, u"thumbs"_s, link + "/.thumbnails"_L1);
  QVERIFY(thumbs);
  QCOMPARE(thumbs->realPath, real + "/.thumbnails"_L1);
  QVERIFY(rootAt(defs, u"logs"_s, link));
}

// The temporary folder may be a link, but not to what the user keeps.
void tst_categories::linkedTemporaryFolder() {
  const QString good = m_home->link(m_home->outside(u"good"_s), m_home->folder(m_home->outside(u"volume/tmp"_s)));
  const QString bad = m_home->link(m_home->outside(u"bad"_s), m_home->folder(u"Documents/work"_s));
  qputenv("TMPDIR", good.toUtf8());
  const QList<ScanRoot> roots = category(categories::forLinux(), u"temp"_s).roots;
  QCOMPARE(roots.size(), 1);
  QCOMPARE(fs::resolved(roots[0].path), m_home->outside(u"volume/tmp"_s));
  qputenv("TMPDIR", bad.toUtf8());
  QCOMPARE(rootsOf(categories::forLinux(), u"temp"_s), QStringList());
  QCOMPARE(rootsOf(categories::forMac(), u"temp"_s), QStringList());
}

void tst_categories::linkInsideACacheIsNoRoot() {
  m_home->link(u".cache/linked"_s, m_home->folder(u"elsewhere"_s));
  QCOMPARE(rootsOf(categories::forLinux(), u"appcache"_s), QStringList());
}

void tst_categories::fileIsNoRoot() {
  m_home->file(u".thumbnails"_s);
  m_home->file(u".Trash"_s);
  QCOMPARE(rootsOf(categories::forLinux(), u"thumbs"_s), QStringList());
  QCOMPARE(rootsOf(categories::forMac(), u"trash"_s), QStringList());
}

QTEST_GUILESS_MAIN(tst_categories)
#include "tst_categories.moc"
