#include "core/names.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace names {
namespace {

bool isAscii(QByteArrayView raw) {
  return std::all_of(raw.begin(), raw.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// False if there is anything else; what was written then means nothing. One pass without a way out, so that a compiler
/// makes vectors of it.
bool widenAscii(QByteArrayView raw, QChar* out) {
  unsigned char all = 0;
  for (qsizetype i = 0; i < raw.size(); ++i) {
    const auto byte = static_cast<unsigned char>(raw[i]);
    out[i] = QLatin1Char(static_cast<char>(byte));
    all |= byte;
  }
  return all < 0x80;
}

/// UTF-8 in the generalised form, in which the halves of surrogate pairs have three bytes and U+0000 has two.
QByteArray encodeOdd(QStringView text) {
  QByteArray raw;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QStringView pair = text.mid(i, 2);
    if (pair.size() == 2 && pair[0].isHighSurrogate() && pair[1].isLowSurrogate()) {
      raw += pair.toUtf8();
      ++i;
    } else if (text[i].isSurrogate()) {
      const unsigned unit = text[i].unicode();
      raw += static_cast<char>(0xe0 | (unit >> 12));
      raw += static_cast<char>(0x80 | ((unit >> 6) & 0x3f));
      raw += static_cast<char>(0x80 | (unit & 0x3f));
    } else if (text[i].isNull()) {
      raw += "\xc0\x80";
    } else {
      raw += text.mid(i, 1).toUtf8();
    }
  }
  return raw;
}

QByteArray toUtf8(const QString& text) {
  if (!text.isValidUtf16() || text.contains(QChar(u'\0'))) return encodeOdd(text);
  return text.toUtf8();
}

/// QString::fromUtf8 takes a byte order mark in front for no part of the text; in a name it is one.
QString fromUtf8(QByteArrayView raw) {
  QString marks;
  while (raw.startsWith("\xef\xbb\xbf")) {
    marks += QChar(u'\ufeff');
    raw = raw.sliced(3);
  }
  return marks + QString::fromUtf8(raw);
}

} // namespace

QByteArray encode(const QString& text, Codec codec) {
  if (codec == Codec::Bytes) return toUtf8(text);
  return toUtf8(text.normalized(QString::NormalizationForm_D));
}

QString decode(QByteArrayView raw, Codec codec) {
  const QString text = fromUtf8(raw);
  return codec == Codec::Bytes ? text : text.normalized(QString::NormalizationForm_C);
}

bool decodeAt(QString* text, qsizetype from, QByteArrayView raw, Codec codec) {
  text->resize(from + raw.size());
  if (widenAscii(raw, text->data() + from)) return true;
  text->truncate(from);
  text->append(decode(raw, codec));
  return survives(raw, codec);
}

bool survives(QByteArrayView raw, Codec codec) {
  if (isAscii(raw)) return true;
  return raw.isValidUtf8() && encode(decode(raw, codec), codec) == raw;
}

namespace {

struct ShortEscape {
  char16_t unit;
  char letter;
};
constexpr std::array kShortEscapes = {ShortEscape{u'\t', 't'}, ShortEscape{u'\n', 'n'}, ShortEscape{u'\r', 'r'}};

struct Range {
  char16_t first, last;
};
/// Beside the controls: what breaks a line, or turns the reading direction around.
constexpr std::array kUnseen = {Range{0x061c, 0x061c}, Range{0x200e, 0x200f}, Range{0x2028, 0x202e},
                                Range{0x2066, 0x2069}};

bool isUnseen(char16_t unit) {
  if (unit < 0x20 || (unit >= 0x7f && unit < 0xa0)) return true;
  return std::any_of(kUnseen.begin(), kUnseen.end(),
                     [unit](const Range& range) { return unit >= range.first && unit <= range.last; });
}

void appendHex(QString* out, QLatin1StringView before, unsigned value, int width, QLatin1StringView after) {
  *out += before + u"%1"_s.arg(value, width, 16, QLatin1Char('0')) + after;
}

void appendEscape(QString* out, char16_t unit) {
  for (const ShortEscape& escape : kShortEscapes) {
    if (escape.unit != unit) continue;
    *out += QLatin1Char('\\');
    *out += QLatin1Char(escape.letter);
    return;
  }
  if (unit < 0x80) {
    appendHex(out, "\\x"_L1, unit, 2, {});
  } else {
    appendHex(out, "\\u{"_L1, unit, 0, "}"_L1);
  }
}

/// Length of the valid UTF-8 sequence at the start of @p raw, 0 if there is none.
qsizetype sequenceLength(QByteArrayView raw) {
  const auto lead = static_cast<unsigned char>(raw.front());
  const qsizetype length = lead < 0x80 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
  return length <= raw.size() && raw.first(length).isValidUtf8() ? length : 0;
}

} // namespace

QString escaped(const QString& text) {
  QString out;
  out.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar unit = text[i];
    const bool pair = unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    if (pair) {
      out += unit;
      out += text[++i];
    } else if (unit.isSurrogate() || isUnseen(unit.unicode())) {
      appendEscape(&out, unit.unicode());
    } else {
      out += unit;
    }
  }
  return out;
}

QString escaped(QByteArrayView raw) {
  QString out;
  while (!raw.isEmpty()) {
    const qsizetype length = sequenceLength(raw);
    if (length > 0) {
      out += escaped(fromUtf8(raw.first(length)));
    } else {
      appendHex(&out, "\\x"_L1, static_cast<unsigned char>(raw.front()), 2, {});
    }
    raw = raw.sliced(std::max<qsizetype>(length, 1));
  }
  return out;
}

} // namespace names
