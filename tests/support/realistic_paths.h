/// Paths as home folders have them, for comparing answers and for figures. The same ones in every run.
#pragma once

#include <QList>
#include <QString>

#include <iterator>
#include <random>

namespace paths {

inline QString oneOf(std::mt19937* random, const QList<QString>& list) {
  return list[static_cast<qsizetype>((*random)() % static_cast<quint32>(list.size()))];
}

/// Made-up names beside real ones; a few in other scripts.
inline QString name(std::mt19937* random) {
  static const QStringList words =
      QStringLiteral("cache data index build src node_modules package lib dist main test Photos "
                     "invoice report 2023 2024 notes thumbs icon font chunk module vendor Ünïcode 資料 "
                     "config session store blob entry worker service archive backup project readme "
                     "com.example.editor org.sample.viewer fontconfig mesa_shader_cache gstreamer-1.0")
          .split(u' ');
  static const QStringList tails =
      QStringLiteral(",,,-1,_old,.js,.json,.png,.log,.txt,.cpp,.o,.db,.sqlite,.tmp,.tar.gz, (copy)").split(u',');
  const auto roll = (*random)() % 10;
  if (roll == 0) return QString::number((*random)(), 16) + QString::number((*random)(), 16);
  if (roll == 1) return oneOf(random, words) + u'-' + QString::number((*random)() % 1000) + oneOf(random, tails);
  return oneOf(random, words) + oneOf(random, tails);
}

/// Where applications keep things; the names among them that are somebody's secrets are as rare as in real life.
inline QList<QString> roots() {
  return QStringLiteral("/home/ada/.cache/mozilla/firefox/ab12cd34.default-release/cache2/entries|"
                        "/home/ada/.cache/google-chrome/Default/Code Cache/js|/home/ada/.cache/thumbnails/large|"
                        "/home/ada/.cache/pip/http|/home/ada/.npm/_cacache/content-v2/sha512|/home/ada/Projects/site|"
                        "/home/ada/Projects/engine/.git/objects|/home/ada/work/client/app/build|/home/ada/Downloads|"
                        "/home/ada/.local/share/Trash/files|/home/ada/go/pkg/mod/cache/download|/tmp/build-4711|"
                        "/home/ada/.var/app/org.example.Player/cache|/home/ada/snap/editor/common/.cache|"
                        "/Users/ada/Library/Caches/com.apple.Safari|/Users/ada/Library/Logs/DiagnosticReports|"
                        "/Users/ada/Library/Developer/Xcode/DerivedData|/Users/ada/Library/Caches/Homebrew/downloads|"
                        "/Users/ada/Library/Application Support/Code/CachedData")
      .split(u'|');
}

/// One in 200 lies in a folder of protected app data.
inline QList<QString> realistic(qsizetype count, quint32 seed = 1) {
  static const QList<QString> secrets =
      QStringLiteral("com.1password.1password|KeePass|Rime|org.fcitx.Fcitx5|ibus-table|eset|WireGuard|my.ime")
          .split(u'|');
  std::mt19937 random(seed);
  const QList<QString> starts = roots();
  QList<QString> result;
  result.reserve(count);
  while (result.size() < count) {
    QString path = oneOf(&random, starts);
    if (random() % 200 == 0) path += u'/' + oneOf(&random, secrets);
    for (auto depth = 1 + random() % 5; depth > 0; --depth) path += u'/' + name(&random);
    result << path;
  }
  return result;
}

} // namespace paths
