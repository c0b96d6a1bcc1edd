"""A macOS user's home folder."""

from demo.things import File, Folder, Hard, Home, Item, Kept, Link, Pipe, spread

TEMP = [
    Item("temp", "$TMPDIR/com.example.Editor", spread("Autosave-{:06x}.tmp", 8, 140, 6), whole=False),
    Item("temp", "$TMPDIR/TemporaryItems", [File("NSIRD_screencaptureui/shot.png", 2300, 4)], whole=False),
    Item("temp", "$TMPDIR/node-jiti", spread("config-{:06x}.js", 12, 18, 15), whole=False),
    Item("temp", "$TMPDIR/fresh.txt", [File("", 8, 0.1)], whole=False),
    Item("temp", "$TMPDIR/line\nbreak.log", [File("", 8, 4)], whole=False),
    Item("temp", "$TMPDIR/report\u202excod.txt", [File("", 9, 4)], whole=False),
    Item("temp", "$TMPDIR/R\u00e9sum\u00e9.bak", [File("", 20, 15)], whole=False),
    Item("temp", "$TMPDIR/Re\u0301sume\u0301.bak", [File("", 24, 15)], whole=False),
    Item("temp", "$TMPDIR/" + "long name " * 25, [File("", 12, 11)], whole=False),
    Item(
        "temp",
        "$TMPDIR/swift-build",
        [File("main.o", 820, 6), Hard("main-copy.o", "main.o"), Hard("main-again.o", "main.o")],
        whole=False,
    ),
]

CACHES = "~/Library/Caches/"

APP_CACHES = [
    Item("appcache", CACHES + "com.spotify.client", spread("Data/{:06x}.file", 70, 260) + [File("Cache.db", 900)]),
    Item("appcache", CACHES + "com.tinyspeck.slackmacgap", spread("Cache/{:06x}", 30, 90)),
    Item("appcache", CACHES + "net.thing", [File("Cache.db", 300), File("Cache.db-wal", 80)]),
    Item("appcache", CACHES + "com.example.Photos Helper", [File("render.db", 1500), File("preview.sparse", 200, logical_mb=1024)]),
    Item(
        "appcache",
        CACHES + "plugin-sources",
        [
            File("theme/init.lua", 6),
            File("theme/.git/HEAD", text="ref: refs/heads/main\n"),
            File("theme/.git/objects/pack/pack-41c0.pack", 340),
            Link("pictures", "~/Pictures"),
            Link("latest", "theme-that-is-gone"),
        ],
        stays={"theme/.git": "excluded"},
    ),
    Item(
        "appcache",
        CACHES + "electron-apps",
        spread("GPUCache/data_{:06x}", 8, 90) + [File("1Password 7/vault.json", 44), File("notes/index", 70)],
        stays={"1Password 7": "protected app data"},
    ),
    Item(
        "appcache",
        CACHES + "odd-names",
        [
            File("tab\there", 5),
            File("line\nbreak", 5),
            File("re\u0301sume\u0301", 5),
            File("r\u00e9sum\u00e9", 7),
            File("caf\udce9 latin-1", 9),
            File("latin-\udcff folder/inside", 9),
            File("-rf", 5),
            File("x" * 255, 5),
        ],
    ),
]

BROWSERS = [
    Item("browser", CACHES + "com.apple.Safari", spread("WebKitCache/Version 16/Blobs/{:06X}", 80, 110)),
    Item("browser", CACHES + "Google/Chrome", spread("Default/Cache/Cache_Data/f_{:06x}", 90, 150)),
    Item("browser", CACHES + "com.microsoft.edgemac", spread("Default/Cache/{:06x}", 10, 60)),
    Item("browser", CACHES + "BraveSoftware", spread("Brave-Browser/Default/Cache/{:06x}", 10, 70)),
    Item("browser", CACHES + "Firefox/Profiles/x3k9a1vp.default-release/cache2", spread("entries/{:06X}", 90, 120)),
]

LOGS = [
    Item("logs", "~/Library/Logs/DiagnosticReports", spread("Editor-2024-11-{:06x}.ips", 14, 60), whole=False),
    Item("logs", "~/Library/Logs/VideoCall", spread("call-{:06x}.log", 6, 190), whole=False),
    Item("logs", "~/Library/Logs/fsck_hfs.log", [File("", 28, 80)], whole=False),
]

THUMBNAILS = [
    Item(
        "thumbs",
        "$TMPDIR/../C/com.apple.QuickLook.thumbnailcache",
        [File("thumbnails.data", 7800, 2), File("index.sqlite", 640, 2), File("index.sqlite-wal", 120, 2)],
    ),
]

INSTALLERS = [
    Item("update", "~/Downloads/Editor-2.4.1.dmg", [File("", 8800, 60)], whole=False),
    Item("update", "~/Downloads/Driver 11.pkg", [File("", 4100, 220)], whole=False),
    Item("update", "~/Downloads/Suite.mpkg", [File("Contents/Archive.pax.gz", 2900, 400), File("Contents/Info.plist", 4, 400)], whole=False),
    Item("update", "~/Downloads/System image.dmg", [File("", 2600, 95, logical_mb=5000)], whole=False),
]

DEVELOPER = [
    Item("dev", "~/Library/Developer/Xcode/DerivedData", spread("App-hxbq/Build/{:06x}.o", 110, 95) + spread("ModuleCache/{:06x}.pcm", 20, 160)),
    Item("dev", "~/Library/Developer/CoreSimulator/Caches", [File("dyld/22F66/sim_shared_cache", 6400)]),
    Item("dev", CACHES + "Homebrew", spread("downloads/{:06x}--bottle.tar.gz", 12, 420) + [Link("wget", "downloads/gone.tar.gz")]),
    Item("dev", "~/.npm/_cacache", spread("content-v2/sha512/1f/{:06x}", 110, 42) + spread("index-v5/0c/{:06x}", 40, 4)),
    Item("dev", CACHES + "pip", spread("http-v2/0/{:06x}", 60, 95)),
    Item("dev", CACHES + "Yarn", spread("v6/npm-{:06x}.tgz", 25, 70)),
    Item("dev", CACHES + "go-build", spread("4e/{:06x}-d", 70, 45)),
    Item("dev", "~/.gradle/caches", spread("modules-2/files-2.1/{:06x}.jar", 22, 230)),
]

TRASH = [
    Item("trash", "~/.Trash/holiday.mov", [File("", 9300, 25)], whole=False),
    Item("trash", "~/.Trash/notes copy.txt", [File("", 6, 33)], whole=False),
    Item(
        "trash",
        "~/.Trash/old-project",
        spread("src/module_{:06x}.swift", 20, 9) + [File(".git/HEAD", text="ref: refs/heads/main\n"), File(".git/objects/pack/p.pack", 700)],
        whole=False,
    ),
]

KEPT = [
    Kept("has a name that is no text", [File("$TMPDIR/caf\udce9.log", 8)]),
    Kept(
        "holds nothing on disk",
        [
            File("$TMPDIR/empty.lock", 0),
            Link("$TMPDIR/last-run", "/nowhere/at/all"),
            Link("$TMPDIR/in", "~/Downloads"),
            Folder("$TMPDIR/empty"),
            Pipe("$TMPDIR/player.fifo"),
        ],
    ),
    Kept(
        "the system's, or protected app data",
        [
            File(CACHES + "com.apple.nsurlsessiond/Downloads/x", 70),
            File(CACHES + "CloudKit/com.apple.clouddocs/x.db", 300),
            File(CACHES + "Google/DriveFS/metadata.db", 200),
            File(CACHES + "com.1password.1password/state.db", 60),
            File(CACHES + "im.rime.inputmethod.Squirrel/user.db", 40),
            File(CACHES + "loose-file", 12),
        ],
    ),
    Kept("a link is no root", [Link(CACHES + "linked", "~/Pictures")]),
    Kept(
        "a browser's profile",
        [
            File("~/Library/Application Support/Firefox/profiles.ini", text="[Profile0]\nName=default-release\nIsRelative=1\n"),
            File("~/Library/Application Support/Firefox/Profiles/x3k9a1vp.default-release/places.sqlite", 5120),
            File("~/Library/Application Support/Firefox/Profiles/x3k9a1vp.default-release/logins.json", 12),
            File("~/Library/Application Support/Firefox/Profiles/x3k9a1vp.default-release/key4.db", 288),
            File(CACHES + "Firefox/Profiles/x3k9a1vp.default-release/startupCache/scriptCache.bin", 900),
            File("~/Library/Safari/History.db", 800),
        ],
    ),
    Kept(
        "app data and settings, not a log or a cache",
        [
            File("~/Library/Application Support/1Password 7/vault.sqlite", 500),
            File("~/Library/Preferences/com.example.Editor.plist", 4),
            File("~/Library/Keychains/login.keychain-db", 120, mode=0o600),
            File("~/Library/Mail/V10/mailbox.mbox/table", 900),
            File("~/.npm/_logs/2024-12-01-debug-0.log", 8),
            File("~/.gradle/gradle.properties", 4),
            File("~/.ssh/id_ed25519", 4, mode=0o600),
        ],
    ),
    Kept(
        "apps with what they keep: it is measured, and theirs to trim",
        [
            File("~/Library/Developer/Xcode/iOS DeviceSupport/16.7 (20H19)/Symbols/dyld_shared_cache", 2100, 300),
            File("~/Library/Developer/Xcode/iOS DeviceSupport/17.4 (21E213)/Symbols/dyld_shared_cache", 2600, 90),
            *spread("~/Library/Developer/CoreSimulator/Devices/9C1A52E0/data/Containers/{:06x}", 10, 140),
            *spread("~/Library/Developer/CoreSimulator/Devices/41F7B3D8/data/Containers/{:06x}", 8, 120),
            File("~/Library/Developer/CoreSimulator/Devices/device_set.plist", 8),
            File("~/Library/Developer/Xcode/Archives/2024-11-02/Editor.xcarchive/Products/Editor", 1400, 40),
            *spread("~/Library/Application Support/MobileSync/Backup/00008110-000A1D/{:06x}", 30, 110, 200),
            File("~/Library/Containers/com.docker.docker/Data/vms/0/data/Docker.raw", 3300, logical_mb=60_000),
            *spread("~/Library/Containers/com.apple.mail/Data/Library/Mail Downloads/{:06x}.pdf", 9, 60),
            *spread("~/Library/Messages/Attachments/4f/15/{:06x}.heic", 12, 130),
            *spread("~/.nvm/versions/node/v20.11.0/lib/{:06x}.js", 60, 40),
        ],
    ),
    Kept(
        "the user's own",
        [
            File("~/Documents/Tax 2024.pdf", 900),
            File("~/Documents/thesis/chapter-3.pages", 640),
            File("~/Pictures/2024/Harbour at night.heic", 4300),
            File("~/Pictures/2024/\u6771\u4eac.heic", 3900),
            File("~/Movies/birthday.mov", 12000),
            File("~/Music/Album/01 Opening.m4a", 8200),
            File("~/Desktop/todo.txt", 4),
            File("~/Downloads/photos.zip", 3000),
            File("~/Projects/website/.git/HEAD", text="ref: refs/heads/main\n"),
            *spread("~/Projects/website/node_modules/package-{:06x}/index.js", 30, 16),
        ],
    ),
]

HOME = Home(
    home="Users/robin",
    temp="folders/q7/8w2k/T",
    items=TEMP + APP_CACHES + BROWSERS + LOGS + THUMBNAILS + INSTALLERS + DEVELOPER + TRASH,
    kept=KEPT,
)
