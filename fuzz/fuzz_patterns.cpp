/// Holds the matcher of protected names against one expression a pattern, for any text as a path.
#include "core/patterns.h"

#include "../tests/support/expressions.h"

#include <cstdint>
#include <cstdlib>

namespace {

/// A byte a character. What lies beyond ASCII stands for the characters that matter: odd cases of letters, surrogates.
QString textOf(const uint8_t* data, size_t size) {
  static constexpr char16_t kOthers[] = {u'\u212a', u'\u017f', u'\u0131', u'\u0130',
                                         0xd83d,    0xde00,    u'\u00e9', u'\u2028'};
  QString text;
  for (size_t i = 0; i < size; ++i) text += QChar(data[i] < 0x80 ? char16_t{data[i]} : kOthers[data[i] % 8]);
  return text;
}

const QList<QRegularExpression>& common() {
  static const QList<QRegularExpression> list = expressions::wildcards(patterns::common());
  return list;
}

const QList<QRegularExpression>& additions() {
  static const QList<QRegularExpression> list = expressions::wildcards(patterns::linuxAdditions());
  return list;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QString path = textOf(data, size);
  const bool isCommon = expressions::isProtectedData(path, common());
  const bool isAdded = expressions::isProtectedData(path, additions());
  if (patterns::Matcher::of(patterns::Set::Common).matchesPath(path) != isCommon) std::abort();
  if (patterns::Matcher::of(patterns::Set::WithLinux).matchesPath(path) != (isCommon || isAdded)) std::abort();
  return 0;
}
