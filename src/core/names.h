/// File names on their way between the program and the system: the codecs, and how an odd name is shown.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace names {

/// How a name goes to the system and comes back.
enum class Codec {
  Bytes,      ///< UTF-8 as it stands: two names may differ in nothing but their normalization form
  Normalized, ///< normalization form D and UTF-8 to the system, form C from it
};

/// The codec of the system that the program was built for.
[[nodiscard]] Codec systemCodec();

/// The bytes that the system is asked with for @p text, a name or a whole path. What no name can hold (U+0000, half of
/// a surrogate pair) becomes bytes that no text has, so that nothing else is reached in its stead.
[[nodiscard]] QByteArray encode(const QString& text, Codec codec = systemCodec());
/// The text that the program holds for @p raw. Bytes that are no UTF-8 become U+FFFD, and the name doesn't survive().
[[nodiscard]] QString decode(QByteArrayView raw, Codec codec = systemCodec());
/// Puts decode(@p raw) in the place of all that stands in @p text from @p from on, which is at most its size. Doesn't
/// allocate where a plain name fits: for buffers that walk along a tree. @return survives(@p raw)
bool decodeAt(QString* text, qsizetype from, QByteArrayView raw, Codec codec = systemCodec());
/// The same behind all of @p text.
inline bool append(QString* text, QByteArrayView raw, Codec codec = systemCodec()) {
  return decodeAt(text, text->size(), raw, codec);
}
/// Whether @p raw comes back the same from decode() and encode(), so that a text path reaches the very same file.
[[nodiscard]] bool survives(QByteArrayView raw, Codec codec = systemCodec());

/// @p text for a log or a terminal: control characters, line breaks, bidirectional overrides and lone surrogates
/// become "\n", "\t", "\x1b", "\u{202e}" and the like, a backslash stays as it is.
[[nodiscard]] QString escaped(const QString& text);
/// The same for raw bytes: what is no UTF-8 becomes "\xHH".
[[nodiscard]] QString escaped(QByteArrayView raw);

} // namespace names
