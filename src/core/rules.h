/// The language of the user's "Never touch these" rules, compiled.
///
/// A rule without "/" stands for one component of a path, anywhere in it; a rule with "/" for a whole path. Either also
/// covers everything below. "*" is any text and "?" one character, both without "/"; "**" is any text; all else stands
/// for itself, and the case of letters counts. A line break at the very end of what is compared may be left out.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>
#include <QVarLengthArray>

#include <memory>
#include <vector>

namespace rules {

/// A normalized path, taken apart once for all the rules that are held against it. Keeps a view of the text.
struct Subject {
  explicit Subject(QStringView normalized);

  QStringView path;
  QVarLengthArray<QStringView, 32> components;
  quint64 signs = 0;      ///< one bit for each component, by its length and its first and last character
  bool wellFormed = true; ///< whether the text is valid UTF-16
};

/// A text with wildcards. Matches in a time that grows with the lengths of text and pattern, whatever they are.
class Glob {
 public:
  explicit Glob(const QString& pattern);

  /// Whether the whole of @p text matches.
  [[nodiscard]] bool matches(QStringView text) const { return holds(text, Tail::None); }
  /// Whether @p text, or what stands before one of its slashes, matches.
  [[nodiscard]] bool coversPath(QStringView text) const { return holds(text, Tail::Below); }

 private:
  enum class Tail : quint8 { None, Below };
  struct Machine;
  [[nodiscard]] bool holds(QStringView text, Tail tail) const;

  QString m_prefix; // what stands before the first wildcard, and behind the last
  QString m_suffix;
  bool m_anyMiddle = false; // the pattern is prefix, star, suffix: nothing else to look at but slashes
  bool m_crossesSlash = false;
  std::shared_ptr<const Machine> m_machine; // null: no wildcards
};

/// One rule, trimmed and with its "~" replaced.
class Rule {
 public:
  explicit Rule(const QString& text);

  /// Whether the rule covers @p subject.
  [[nodiscard]] bool covers(const Subject& subject) const;
  /// The same for a path whose folder the rule doesn't cover; @p leaf is its last component.
  [[nodiscard]] bool coversBelow(QStringView path, QStringView leaf) const;

 private:
  enum class Kind : quint8 {
    Always,    // no valid text: it can't be told what is meant, so nothing is touched
    Component, // "*.log": any component
    AnyDepth,  // "**/*.log": any component but the first of a relative path
    Path,
  };
  [[nodiscard]] bool coversComponent(const Subject& subject) const;

  Kind m_kind = Kind::Path;
  Glob m_glob;
  quint64 m_needs = 0; // signs that a path must show, or it isn't covered
};

/// The texts that @p rule stands for, trimmed: itself; with "~" at its start, the path below the home folder, and below
/// each home folder where places::home() and QDir::homePath() differ; nothing for a blank rule.
[[nodiscard]] QVarLengthArray<QString, 2> expanded(const QString& rule);

/// Whether a rule of @p list covers @p path, which is normalized first. Compiles a rule when it is first met: what
/// stands behind a match isn't compiled. Asks under one lock for the whole process; the empty list costs no lock.
[[nodiscard]] bool isCovered(const QString& path, const QList<QString>& list);

/// All rules of a list, compiled. Immutable; any thread.
class RuleSet {
 public:
  explicit RuleSet(const QList<QString>& list);

  [[nodiscard]] bool isEmpty() const { return m_rules.empty(); }
  /// Whether a rule covers @p subject. A text that isn't valid UTF-16 is covered by any rule.
  [[nodiscard]] bool covers(const Subject& subject) const;
  /// The same for a path whose folder isn't covered; @p leaf is its last component, valid UTF-16.
  [[nodiscard]] bool coversBelow(QStringView path, QStringView leaf) const;

 private:
  std::vector<std::shared_ptr<const Rule>> m_rules;
};

/// How many rules this process has compiled so far. Each text is compiled once, when it is first needed.
[[nodiscard]] qsizetype compiledCount();

} // namespace rules
