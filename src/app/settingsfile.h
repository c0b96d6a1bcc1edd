/// What the bytes of a settings store tell of its state. Values only, no disk.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

#include <optional>

namespace settingsfile {

/// Whether a store in the form of INI files is whole as far as its text tells: UTF-8 without control characters, every
/// line a section, a key with a value or a comment, every quote closed. Whatever QSettings writes is. An empty one is
/// whole.
[[nodiscard]] bool isIni(QByteArrayView text);
/// Likewise for a property list, in its binary or its XML form.
[[nodiscard]] bool isPropertyList(QByteArrayView bytes);

/// What the program remembers of its store in a second file, so that it can tell a store that has lost something from
/// one that never had it.
struct Memory {
  std::optional<QStringList> rules; ///< the "Never touch these" rules; none if the store holds no list of them

  bool operator==(const Memory&) const = default;
};
[[nodiscard]] QByteArray toBytes(const Memory& memory);
/// Empty where the bytes are damaged.
[[nodiscard]] std::optional<Memory> fromBytes(const QByteArray& bytes);

} // namespace settingsfile
