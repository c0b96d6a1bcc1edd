/// The macOS route to the snapshots: "ps" tells the executables, their bundles' property lists the ids, "lsof" the open
/// files. Built and tested on every system; who uses it is decided in the folder of each.
#include "core/appguard.h"
#include "core/process.h"

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QXmlStreamReader>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace appguard::tools {

namespace {
constexpr QStringView kBundleEnd = u".app/";

/// Ids of bundles by their path as "ps" spells it. An id that couldn't be read is remembered as empty.
struct IdCache {
  QBasicMutex mutex;
  QHash<QString, QString> ids;
};

IdCache& idCache() {
  static IdCache cache;
  return cache;
}

/// The mutex of @p cache must be held.
QString cachedIdentifier(IdCache& cache, const QString& bundle) {
  const auto known = cache.ids.constFind(bundle);
  if (known != cache.ids.constEnd()) return *known;
  const QString id = bundleIdentifier(bundle + "/Contents/Info.plist"_L1).toLower();
  cache.ids.insert(bundle, id);
  return id;
}

/// Adds every bundle that the executable lies in, from the outermost inwards.
void addBundles(const QString& executable, RunningApps& apps) {
  IdCache& cache = idCache();
  const QMutexLocker lock(&cache.mutex);
  qsizetype at = executable.indexOf(kBundleEnd, 0, Qt::CaseInsensitive);
  for (; at >= 0; at = executable.indexOf(kBundleEnd, at + kBundleEnd.size(), Qt::CaseInsensitive)) {
    const QString bundle = executable.left(at + kBundleEnd.size() - 1);
    const QString id = cachedIdentifier(cache, bundle);
    if (id.isEmpty()) continue;
    apps.bundleIds.insert(id);
    if (!apps.appNames.contains(id)) apps.appNames.insert(id, QFileInfo(bundle).completeBaseName());
  }
}

void addProcess(const QString& executable, RunningApps& apps) {
  const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(executable)).toLower();
  if (clean.isEmpty()) return;
  const qsizetype nameAt = clean.lastIndexOf(u'/') + 1;
  QString name = clean.mid(nameAt);
  if (name.endsWith(".exe"_L1)) name.chop(4);
  apps.processes.insert(name);
  apps.processDirs.append(clean.left(nameAt));
  addBundles(executable, apps);
}

/// The character that follows a backslash in what lsof prints, and the byte that both stand for.
struct Escape {
  char letter;
  char byte;
};
constexpr Escape kEscapes[] = {{'\\', '\\'}, {'n', '\n'}, {'t', '\t'}, {'r', '\r'}, {'b', '\b'}, {'f', '\f'}};

/// Which of what lsof may have escaped is undone: control characters stand there as "\n" or as "^A".
enum class Undo { Backslashes, All };

/// Undoes the escape at the start of @p text and tells how long it was; 0 if there is none.
qsizetype undoEscape(QByteArrayView text, Undo undo, QByteArray& out) {
  if (undo == Undo::All && text.size() >= 2 && text[0] == '^' && text[1] >= '?' && text[1] <= '_') {
    out.append(static_cast<char>(text[1] ^ '@'));
    return 2;
  }
  if (text.size() < 2 || text[0] != '\\') return 0;
  for (const Escape& escape : kEscapes) {
    if (text[1] != escape.letter) continue;
    out.append(escape.byte);
    return 2;
  }
  bool isNumber = false;
  const int byte = text[1] == 'x' && text.size() >= 4 ? text.sliced(2, 2).toByteArray().toInt(&isNumber, 16) : 0;
  if (!isNumber) return 0;
  out.append(static_cast<char>(byte));
  return 4;
}

QString unescaped(const QString& text, Undo undo) {
  const QByteArray raw = text.toUtf8();
  QByteArray out;
  for (qsizetype at = 0; at < raw.size();) {
    const qsizetype length = undoEscape(QByteArrayView(raw).sliced(at), undo, out);
    if (length == 0) out.append(raw.at(at));
    at += qMax<qsizetype>(1, length);
  }
  return QString::fromUtf8(out);
}

/// The program holds names in normalization form C, whatever form the disk holds.
void addOpen(const QString& path, OpenFiles& open) {
  open.add(QDir::cleanPath(path).normalized(QString::NormalizationForm_C));
}
} // namespace

RunningApps parseProcesses(const QString& psOutput) {
  RunningApps apps;
  for (const QString& line : psOutput.split(u'\n', Qt::SkipEmptyParts)) addProcess(line.trimmed(), apps);
  return apps;
}

OpenFiles parseOpenFiles(const QString& lsofOutput) {
  OpenFiles open;
  for (const QString& line : lsofOutput.split(u'\n', Qt::SkipEmptyParts)) {
    if (!line.startsWith("n/"_L1)) continue;
    const QString path = line.mid(1);
    addOpen(path, open);
    // Not every lsof escapes the backslash itself, and none the caret, so a path with one has several readings, and all
    // count as open.
    if (path.contains(u'\\')) addOpen(unescaped(path, Undo::Backslashes), open);
    if (path.contains(u'^')) addOpen(unescaped(path, Undo::All), open);
  }
  return open;
}

QString identifierFromXml(const QByteArray& plist) {
  QXmlStreamReader xml(plist);
  if (!xml.readNextStartElement() || xml.name() != "plist"_L1) return {};
  if (!xml.readNextStartElement() || xml.name() != "dict"_L1) return {};
  QString key;
  while (xml.readNextStartElement()) {
    const bool isKey = xml.name() == "key"_L1;
    if (!isKey && key == "CFBundleIdentifier"_L1)
      return xml.name() == "string"_L1 ? xml.readElementText(QXmlStreamReader::SkipChildElements) : QString();
    key = isKey ? xml.readElementText(QXmlStreamReader::SkipChildElements) : QString();
    if (!isKey) xml.skipCurrentElement();
  }
  return {};
}

RunningApps runningApps(const Sources& sources) {
  return parseProcesses(process::run(sources.ps, {u"-axo"_s, u"comm="_s}, sources.toolLimitMs));
}

OpenFiles openFiles(const Sources& sources) {
  const QStringList arguments{u"-n"_s, u"-P"_s, u"-w"_s, u"-F"_s, u"n"_s, u"-u"_s, QString::number(::getuid())};
  return parseOpenFiles(process::run(sources.lsof, arguments, sources.openFilesLimitMs));
}

bool isFileInUse(const QString& path, const Sources& sources) {
  int exitCode = 1;
  process::run(sources.lsof, {u"-t"_s, u"--"_s, path}, sources.toolLimitMs, &exitCode);
  return exitCode == 0;
}

} // namespace appguard::tools
