/// The plain way to answer what the rules exclude and which names are protected: one regular expression each, asked one
/// after the other. What the fast ways must agree with.
#pragma once

#include "core/safety.h"

#include <QDir>
#include <QList>
#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <span>
#include <string_view>

namespace expressions {

enum class Answer { No, Yes, Failed };

inline Answer answerOf(const QRegularExpressionMatch& match) {
  if (!match.isValid()) return Answer::Failed;
  return match.hasMatch() ? Answer::Yes : Answer::No;
}

struct Rule {
  bool isPath = false;
  QRegularExpression expression;
};

/// @p rule is trimmed and has no "~" any more.
inline Rule compiled(const QString& rule) {
  const bool isPath = rule.contains(u'/');
  QString text = QRegularExpression::escape(rule);
  text.replace(QStringLiteral("\\*\\*"), QStringLiteral(".*"))
      .replace(QStringLiteral("\\*"), QStringLiteral("[^/]*"))
      .replace(QStringLiteral("\\?"), QStringLiteral("[^/]"));
  text = u'^' + text + (isPath ? QStringLiteral("(/.*)?$") : QStringLiteral("$"));
  return {isPath, QRegularExpression(text, QRegularExpression::DotMatchesEverythingOption)};
}

inline QList<Rule> compiled(const QList<QString>& rules) {
  QList<Rule> result;
  for (const QString& rule : rules) {
    QString text = rule.trimmed();
    if (text.isEmpty()) continue;
    if (text.startsWith(u'~')) text = safety::normalized(QDir::homePath() + text.sliced(1));
    result << compiled(text);
  }
  return result;
}

/// @p subject is normalized, @p components are its own.
inline Answer answer(const QString& subject, const QStringList& components, const Rule& rule) {
  if (rule.isPath) return answerOf(rule.expression.match(subject));
  Answer result = answerOf(rule.expression.match(components.isEmpty() ? QString() : components.last()));
  for (const QString& component : components) {
    if (result != Answer::No) break;
    result = answerOf(rule.expression.match(component));
  }
  return result;
}

/// The first answer that isn't "no".
inline Answer answer(const QString& path, const QList<Rule>& rules) {
  const QString subject = safety::normalized(path);
  const QStringList components = subject.split(u'/', Qt::SkipEmptyParts);
  for (const Rule& rule : rules)
    if (const Answer one = answer(subject, components, rule); one != Answer::No) return one;
  return Answer::No;
}

inline bool isExcluded(const QString& path, const QList<Rule>& rules) { return answer(path, rules) != Answer::No; }

inline QList<QRegularExpression> wildcards(std::span<const std::string_view> patterns) {
  QList<QRegularExpression> result;
  for (const std::string_view pattern : patterns) {
    const QString text = QString::fromLatin1(pattern.data(), static_cast<qsizetype>(pattern.size()));
    const QString wild =
        QRegularExpression::wildcardToRegularExpression(text, QRegularExpression::UnanchoredWildcardConversion);
    result << QRegularExpression(u'^' + wild + u'$', QRegularExpression::CaseInsensitiveOption);
  }
  return result;
}

inline bool isProtectedData(const QString& path, const QList<QRegularExpression>& wildcards) {
  const QStringList components = path.split(u'/', Qt::SkipEmptyParts);
  return std::any_of(components.cbegin(), components.cend(), [&](const QString& component) {
    return std::any_of(wildcards.cbegin(), wildcards.cend(),
                       [&](const QRegularExpression& one) { return one.match(component).hasMatch(); });
  });
}

} // namespace expressions
