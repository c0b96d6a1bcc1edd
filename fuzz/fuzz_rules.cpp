/// Holds a rule of the user's against the expression that it stands for, for any rule and path; and the short question
/// below a free folder against the whole one.
#include "core/rules.h"

#include "../tests/support/expressions.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

using expressions::Answer;

void compare(const QString& path, const QString& rule) {
  const QString subject = safety::normalized(path);
  const rules::Subject taken(subject);
  const bool ours = !taken.wellFormed || rules::Rule(rule).covers(taken);
  const Answer plain = expressions::answer(path, {expressions::compiled(rule)});
  const bool broken = !taken.wellFormed || !rule.isValidUtf16();
  if (plain == Answer::Failed && !broken) return; // too hard for an expression, which ours never is
  if (ours != (plain != Answer::No)) std::abort();
}

void compareDownwards(const QString& path, const QString& rule) {
  const QString subject = safety::normalized(path);
  const rules::Rule one(rule);
  for (qsizetype slash = subject.indexOf(u'/', 1); slash > 0; slash = subject.indexOf(u'/', slash + 1)) {
    const QString folder = subject.first(slash);
    if (one.covers(rules::Subject(folder))) continue;
    const qsizetype end = subject.indexOf(u'/', slash + 1);
    const QString below = end < 0 ? subject : subject.first(end);
    const rules::Subject taken(below);
    if (taken.wellFormed && one.coversBelow(below, taken.components.last()) != one.covers(taken)) std::abort();
  }
}

} // namespace

// The text of a rule, a zero byte, the text of a path.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const uint8_t* split = std::find(data, data + size, 0);
  if (split == data + size || split == data) return 0;
  const auto text = [](const uint8_t* from, const uint8_t* to) {
    QString result = QString::fromUtf8(reinterpret_cast<const char*>(from), to - from);
    result.replace(QChar::ReplacementCharacter, QChar(0xd800)); // text that is none
    return result;
  };
  const QString rule = text(data, split);
  const QString path = text(split + 1, data + size);
  if (path.contains(QChar::Null) || rule.startsWith(u'~') || rule.trimmed() != rule) return 0;
  compare(path, rule);
  if (path.startsWith(u'/')) compareDownwards(path, rule);
  return 0;
}

// An expression that is no valid text would be told of at every match.
extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  return 0;
}
