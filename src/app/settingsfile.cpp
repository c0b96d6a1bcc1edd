#include "app/settingsfile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace settingsfile {
namespace {

constexpr QByteArrayView kByteOrderMark = "\xef\xbb\xbf";
constexpr QByteArrayView kBinaryPlist = "bplist00";
constexpr qsizetype kPlistTrailer = 32; // bytes at the end of the binary form
constexpr auto kRules = "rules"_L1;
constexpr auto kVersion = "version"_L1;
constexpr int kFirstVersion = 1;

bool isControl(char c) { return c >= 0 && c < ' ' && c != '\n' && c != '\r' && c != '\t'; }

bool isUtf8(QByteArrayView text) {
  QStringDecoder decoder(QStringDecoder::Utf8,
                         QStringDecoder::Flag::Stateless); // else an end within a character is none
  [[maybe_unused]] const QString decoded = decoder(text);
  return !decoder.hasError();
}

/// The length of the first line of @p text, as QSettings reads it: within quotes a line goes on, a backslash takes the
/// next character with it, and a semicolon ends it unless it stands first. -1 if a quote stays open.
qsizetype lineLength(QByteArrayView text) {
  const bool isComment = text.startsWith(';');
  bool quoted = false;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const char c = text[at];
    if (isComment && c != '\n' && c != '\r') continue;
    if (c == '\\') ++at;
    if (c == '"') quoted = !quoted;
    if (!quoted && (c == '\n' || c == '\r' || (c == ';' && at > 0))) return at;
  }
  return quoted ? -1 : text.size();
}

/// Whether one line without the blanks before it makes sense.
bool isLine(QByteArrayView line) {
  if (line.isEmpty() || line.startsWith(';')) return true;
  return line.contains(line.startsWith('[') ? ']' : '=');
}

} // namespace

bool isIni(QByteArrayView text) {
  if (std::any_of(text.begin(), text.end(), isControl) || !isUtf8(text)) return false;
  if (text.startsWith(kByteOrderMark)) text = text.sliced(kByteOrderMark.size());
  while (!(text = text.trimmed()).isEmpty()) {
    const qsizetype length = lineLength(text);
    if (length < 0 || !isLine(text.first(length))) return false;
    text = text.sliced(length);
  }
  return true;
}

bool isPropertyList(QByteArrayView bytes) {
  if (bytes.isEmpty()) return true;
  if (bytes.startsWith(kBinaryPlist)) return bytes.size() > kBinaryPlist.size() + kPlistTrailer;
  const QByteArrayView text = bytes.trimmed();
  return text.startsWith("<?xml") && text.contains("<plist") && text.endsWith("</plist>");
}

QByteArray toBytes(const Memory& memory) {
  QJsonObject object{{kVersion, kFirstVersion}};
  if (memory.rules) object.insert(kRules, QJsonArray::fromStringList(*memory.rules));
  return QJsonDocument(object).toJson();
}

std::optional<Memory> fromBytes(const QByteArray& bytes) {
  const QJsonObject object = QJsonDocument::fromJson(bytes).object();
  if (object[kVersion].toInt() != kFirstVersion) return std::nullopt;
  const QJsonValue rules = object[kRules];
  if (rules.isUndefined()) return Memory{};
  if (!rules.isArray()) return std::nullopt;
  QStringList list;
  const QJsonArray all = rules.toArray();
  for (const auto& rule : all) {
    if (!rule.isString()) return std::nullopt;
    list << rule.toString();
  }
  return Memory{list};
}

} // namespace settingsfile
