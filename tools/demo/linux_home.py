"""A Linux user's home folder."""

from demo.things import File, Folder, Hard, Home, Item, Kept, Link, Pipe, spread

LONG_NAME = "Export of everything " + "x" * 220 + ".tmp"

TEMP = [
    Item("temp", "$TMPDIR/tmp3kq8v1x9", [File("model.bin", 4100, 5), File("train.log", 13, 5)], whole=False),
    Item("temp", "$TMPDIR/pip-unpack-9sk2lq", spread("wheel-{:06x}.part", 6, 900, 12), whole=False),
    Item("temp", "$TMPDIR/lu2817xq.tmp", [File("sv1.tmp", 700, 9), Folder("Backup")], whole=False),
    Item("temp", "$TMPDIR/Screenshot preview.png", [File("", 1210, 3)], whole=False),
    Item("temp", "$TMPDIR/build-7f3a.log", [File("", 33.5, 40)], whole=False),
    Item("temp", "$TMPDIR/line\nbreak.log", [File("", 8, 4)], whole=False),
    Item("temp", "$TMPDIR/report\u202excod.txt", [File("", 9, 4)], whole=False),
    Item("temp", "$TMPDIR/R\u00e9sum\u00e9.bak", [File("", 20, 15)], whole=False),
    Item("temp", "$TMPDIR/Re\u0301sume\u0301.bak", [File("", 24, 15)], whole=False),
    Item("temp", "$TMPDIR/" + LONG_NAME, [File("", 12, 11)], whole=False),
    Item(
        "temp",
        "$TMPDIR/render-cache",
        [File("frame-0001.exr", 820, 6), Hard("frame-0002.exr", "frame-0001.exr"), Hard("frame-0003.exr", "frame-0001.exr")],
        whole=False,
    ),
]

APP_CACHES = [
    Item("appcache", "~/.cache/spotify", spread("Data/{:06x}.file", 60, 260) + [File("mercury.db", 96)]),
    Item("appcache", "~/.cache/mesa_shader_cache", spread("{:06x}", 90, 9)),
    Item("appcache", "~/.cache/fontconfig", spread("{:06x}-le64.cache-8", 12, 60)),
    Item("appcache", "~/.cache/gstreamer-1.0", [File("registry.x86_64.bin", 610)]),
    Item(
        "appcache",
        "~/.cache/plugin-sources",
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
        "~/.cache/electron-apps",
        spread("GPUCache/data_{:06x}", 8, 90) + [File("Bitwarden/vault.json", 44), File("notes/index", 70)],
        stays={"Bitwarden": "protected app data"},
    ),
    Item(
        "appcache",
        "~/.cache/odd-names",
        [
            File("tab\there", 5),
            File("line\nbreak", 5),
            File("re\u0301sume\u0301", 5),
            File("r\u00e9sum\u00e9", 7),
            File("caf\udce9 latin-1", 9),
            File("latin-\udcff folder/inside", 9),
            File("-rf", 5),
            File("x" * 255, 5),
            File("disk.qcow2", 300, logical_mb=2048),
        ],
    ),
    Item("appcache", "~/.var/app/org.gimp.GIMP/cache", spread("gegl-0.4/tile-{:06x}", 14, 120)),
    Item("appcache", "~/snap/code/common/.cache", spread("mesa_shader_cache/{:06x}", 10, 12)),
]

BROWSERS = [
    Item("browser", "~/.cache/mozilla/firefox/x3k9a1vp.default-release/cache2", spread("entries/{:06X}", 160, 130)),
    Item(
        "browser",
        "~/.cache/google-chrome",
        spread("Default/Cache/Cache_Data/f_{:06x}", 120, 150) + spread("Default/Code Cache/js/{:06x}_0", 40, 40),
    ),
    Item("browser", "~/.cache/chromium", spread("Default/Cache/Cache_Data/f_{:06x}", 12, 80)),
    Item("browser", "~/snap/firefox/common/.cache/mozilla/firefox/k0w2.default/cache2", spread("entries/{:06X}", 15, 90)),
]

LOGS = [
    Item("logs", "~/.xsession-errors", [File("", 190, 2)], whole=False),
    Item("logs", "~/.xsession-errors.old", [File("", 420, 9)], whole=False),
    Item("logs", "~/.local/share/xorg/Xorg.0.log.old", [File("", 36, 12)], whole=False),
    Item("logs", "~/.config/Code/logs", spread("20241203T0914{:06x}/main.log", 9, 18)),
    Item("logs", "~/.config/discord/logs", spread("renderer_{:06x}.log", 5, 70)),
]

THUMBNAILS = [
    Item("thumbs", "~/.cache/thumbnails", spread("large/{:06x}.png", 120, 48) + spread("normal/{:06x}.png", 90, 14) + [Folder("fail")]),
    Item("thumbs", "~/.thumbnails", spread("normal/{:06x}.png", 20, 12, 900)),
]

INSTALLERS = [
    Item("update", "~/Downloads/discord-0.0.76.deb", [File("", 7900, 70)], whole=False),
    Item("update", "~/Downloads/zoom_x86_64.rpm", [File("", 5200, 140)], whole=False),
    Item("update", "~/Downloads/debian-12.9.0-amd64-netinst.iso", [File("", 2600, 95, logical_mb=632)], whole=False),
    Item("update", "~/Downloads/cuda_12.4.run", [File("", 3100, 200)], whole=False),
    Item("update", "~/Downloads/org.videolan.VLC.flatpakref", [File("", 4, 60)], whole=False),
]

DEVELOPER = [
    Item("dev", "~/.cache/pip", spread("http-v2/0/{:06x}", 60, 95)),
    Item(
        "dev",
        "~/.cache/ccache",
        spread("0/{:06x}R", 50, 30)
        + [File("a/77aa01R", 900), Hard("b/77aa01R", "a/77aa01R"), Hard("c/77aa01R", "a/77aa01R"), File("stats", 4)],
    ),
    Item("dev", "~/.cache/go-build", spread("4e/{:06x}-d", 70, 45)),
    Item("dev", "~/.cache/huggingface", [File("hub/models--small/blobs/9f02", 6400), Link("hub/models--small/snapshots/main", "../blobs/9f02")]),
    Item("dev", "~/.npm/_cacache", spread("content-v2/sha512/1f/{:06x}", 110, 42) + spread("index-v5/0c/{:06x}", 40, 4)),
    Item("dev", "~/.cargo/registry/cache", spread("index-1949/crate-{:06x}.crate", 25, 120)),
    Item("dev", "~/.cargo/registry/src", spread("index-1949/crate-{:06x}/src/lib.rs", 40, 26)),
    Item("dev", "~/.gradle/caches", spread("modules-2/files-2.1/{:06x}.jar", 22, 230)),
    Item("dev", "~/go/pkg/mod/cache/download", spread("example.org/mod/@v/{:06x}.zip", 18, 75)),
]

TRASH_INFO = "[Trash Info]\nPath={}\nDeletionDate=2024-11-30T18:22:05\n"

TRASH = [
    Item("trash", "~/.local/share/Trash/files/holiday.mp4", [File("", 9300, 25)], whole=False),
    Item("trash", "~/.local/share/Trash/files/notes (copy).txt", [File("", 6, 33)], whole=False),
    Item(
        "trash",
        "~/.local/share/Trash/files/old-project",
        spread("src/module_{:06x}.py", 20, 9) + [File(".git/HEAD", text="ref: refs/heads/main\n"), File(".git/objects/pack/p.pack", 700)],
        whole=False,
    ),
]

KEPT = [
    Kept(
        "changed during the last day",
        [
            File("$TMPDIR/draft.odt", 40, 0.1),
            File("$TMPDIR/session-restore/old.json", 16, 12),
            File("$TMPDIR/session-restore/new.json", 16, 0.02),
        ],
    ),
    Kept(
        "belongs to the running desktop",
        [
            File("$TMPDIR/.X11-unix/placeholder", 4, 9),
            File("$TMPDIR/.X0-lock", 4, 9),
            File("$TMPDIR/ssh-XX4kd02/agent.1201", 4, 9),
            File("$TMPDIR/systemd-private-41ac-upower/tmp/x", 4, 9),
            File("$TMPDIR/tmux-1000/default", 4, 9),
            File("$TMPDIR/snap-private-tmp/x", 4, 9),
        ],
    ),
    Kept("is no file or folder, or holds such a thing", [Pipe("$TMPDIR/player.fifo"), Pipe("$TMPDIR/mpv-2201/control"), File("$TMPDIR/mpv-2201/log", 8)]),
    Kept("has a name that is no text", [File("$TMPDIR/caf\udce9.log", 8)]),
    Kept(
        "holds nothing on disk",
        [File("$TMPDIR/empty.lock", 0), Link("$TMPDIR/last-run", "/nowhere/at/all"), Link("$TMPDIR/in", "~/Downloads"), Folder("$TMPDIR/empty")],
    ),
    Kept(
        "more than a cache",
        [
            File("~/.cache/keepassxc/keepassxc.ini", 4),
            File("~/.cache/ibus/bus/registry", 90),
            File("~/.cache/rclone/vfs/drive/upload-pending.raw", 800),
            File("~/.cache/JetBrains/IdeaIC2024.1/LocalHistory/changes.storageData", 600),
            File("~/.cache/com.bitwarden.desktop/state", 12),
            File("~/.cache/loose-file", 12),
        ],
    ),
    Kept("a link is no root", [Link("~/.cache/linked", "~/Pictures")]),
    Kept(
        "a browser's profile",
        [
            File("~/.mozilla/firefox/profiles.ini", text="[Profile0]\nName=default-release\nIsRelative=1\nPath=x3k9a1vp.default-release\n"),
            File("~/.mozilla/firefox/x3k9a1vp.default-release/places.sqlite", 5120),
            File("~/.mozilla/firefox/x3k9a1vp.default-release/logins.json", 12),
            File("~/.mozilla/firefox/x3k9a1vp.default-release/key4.db", 288),
            File("~/.mozilla/firefox/x3k9a1vp.default-release/cookies.sqlite", 512),
            File("~/.cache/mozilla/firefox/x3k9a1vp.default-release/startupCache/scriptCache.bin", 900),
            File("~/.config/google-chrome/Default/History", 700),
            File("~/.config/google-chrome/Default/Login Data", 48),
            File("~/snap/firefox/common/.mozilla/firefox/k0w2.default/places.sqlite", 300),
        ],
    ),
    Kept(
        "settings and history, not a log or a cache",
        [
            File("~/.config/Code/User/settings.json", 4),
            File("~/.config/irc-client/logs/everyone.log", 300),
            File("~/.local/share/xorg/Xorg.0.log", 36, 0.2),
            File("~/.npm/_logs/2024-12-01-debug-0.log", 8),
            File("~/.cargo/config.toml", 4),
            File("~/.cargo/bin/tool", 900),
            File("~/.gradle/gradle.properties", 4),
            File("~/.config/user-dirs.dirs", text='XDG_DOWNLOAD_DIR="$HOME/Downloads"\nXDG_DOCUMENTS_DIR="$HOME/Documents"\n'),
        ],
    ),
    Kept(
        "secrets",
        [
            File("~/.ssh/id_ed25519", 4, mode=0o600),
            File("~/.gnupg/pubring.kbx", 16, mode=0o600),
            File("~/.password-store/mail.gpg", 4, mode=0o600),
            File("~/.local/share/keyrings/login.keyring", 8, mode=0o600),
        ],
    ),
    Kept(
        "the user's own",
        [
            File("~/Documents/Tax 2024.pdf", 900),
            File("~/Documents/thesis/chapter-3.odt", 640),
            File("~/Pictures/2024/Harbour at night.jpg", 4300),
            File("~/Pictures/2024/\u6771\u4eac.jpg", 3900),
            File("~/Videos/birthday.mkv", 12000),
            File("~/Music/Album/01 Opening.flac", 8200),
            File("~/Desktop/todo.txt", 4),
            File("~/Downloads/Obsidian-1.7.7.AppImage", 4800),
            File("~/Downloads/photos.zip", 3000),
            File("~/Projects/website/.git/HEAD", text="ref: refs/heads/main\n"),
            *spread("~/Projects/website/node_modules/package-{:06x}/index.js", 30, 16),
        ],
    ),
    Kept(
        "apps with what they keep: it is measured, and theirs to trim",
        [
            *spread("~/.local/share/flatpak/repo/objects/4f/{:06x}.file", 20, 110),
            *spread("~/.local/share/containers/storage/overlay/{:06x}/diff/layer", 6, 420),
            File("~/.local/share/gnome-boxes/images/old-release.qcow2", 3200, 120, logical_mb=20_000),
            *spread("~/.local/share/Steam/steamapps/common/Harbour/pak{:06x}.vpk", 4, 900),
            *spread("~/.var/app/org.gimp.GIMP/config/GIMP/2.10/brushes/{:06x}.gbr", 12, 70),
            *spread("~/.nvm/versions/node/v20.11.0/lib/{:06x}.js", 60, 40),
        ],
    ),
    Kept(
        "tells where a thing in the Trash came from",
        [
            File("~/.local/share/Trash/info/holiday.mp4.trashinfo", text=TRASH_INFO.format("Videos/holiday.mp4")),
            File("~/.local/share/Trash/info/notes (copy).txt.trashinfo", text=TRASH_INFO.format("Documents/notes%20%28copy%29.txt")),
            File("~/.local/share/Trash/info/old-project.trashinfo", text=TRASH_INFO.format("Projects/old-project")),
        ],
    ),
]

HOME = Home(
    home="home/robin",
    temp="scratch",
    items=TEMP + APP_CACHES + BROWSERS + LOGS + THUMBNAILS + INSTALLERS + DEVELOPER + TRASH,
    kept=KEPT,
)
