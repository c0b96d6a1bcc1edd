/// How the texts of /proc write what would break their fields.
#pragma once

#include <QByteArray>

namespace proctext {

/// Undoes the octal escapes of blanks, tabs, line feeds and backslashes.
[[nodiscard]] inline QByteArray unescaped(const QByteArray& field) {
  QByteArray plain;
  for (qsizetype i = 0; i < field.size(); ++i) {
    bool isOctal = false;
    const int code = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
    plain += isOctal ? static_cast<char>(code) : field[i];
    if (isOctal) i += 3;
  }
  return plain;
}

} // namespace proctext
