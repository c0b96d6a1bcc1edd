/// The names that protected app data goes by, and a matcher that looks for all of them in one pass over a path.
#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <span>
#include <string_view>
#include <vector>

namespace patterns {

/// Which of the lists are asked.
enum class Set : quint8 {
  Common,    ///< what holds on every system
  WithLinux, ///< the same, and what Linux desktops add
};

/// The set in force now: with the Linux additions where platform::host() is Linux, and in a preview.
[[nodiscard]] Set inForce();

/// The wildcard patterns, in lower case; each stands for one whole component of a path, in any case of letters. "*" is
/// any text.
[[nodiscard]] std::span<const std::string_view> common();
[[nodiscard]] std::span<const std::string_view> linuxAdditions();

/// Looks for a list of wildcard patterns in the components of a path, all at once. Gives the same answers as one
/// anchored, case-insensitive regular expression a pattern: the KELVIN SIGN is a "k" and the LONG S an "s", a line
/// break after the last character doesn't count, and text that isn't valid UTF-16 matches nothing.
/// Immutable; any thread.
class Matcher {
 public:
  /// The matcher of a set, built once a process.
  [[nodiscard]] static const Matcher& of(Set set);

  /// @param list  patterns of lower-case ASCII, each with a character that isn't "*", none with a "/" or a "^". Their
  ///              text must outlive the matcher. At most some 1,500 characters in all.
  explicit Matcher(std::span<const std::string_view> list);
  ~Matcher();
  Matcher(Matcher&&) noexcept;

  /// Whether a component of @p path matches. Empty components match nothing.
  [[nodiscard]] bool matchesPath(QStringView path) const;
  /// Whether @p name, a text without "/", matches.
  [[nodiscard]] bool matchesName(QStringView name) const { return matchesPath(name); }

 private:
  using Offset = quint16; // of a state's row in m_next

  struct Wildcard;
  struct Trie;
  [[nodiscard]] bool confirmed(Offset state, QStringView path, qsizetype at) const;
  [[nodiscard]] quint8 classOf(char16_t unit) const;
  void numberClasses(std::span<const std::string_view> list);
  void flatten(const Trie& trie, quint16 start);

  std::array<quint8, 128> m_classOfAscii{};
  quint8 m_classes = 0;                       // characters that no pattern names share class 0
  std::vector<Offset> m_next;                 // one row of m_classes entries a state
  Offset m_start = 0;                         // the state at the start of a component
  Offset m_firstHit = 0;                      // from this row on, reaching a state means a hit
  std::vector<std::vector<quint16>> m_unsure; // for each hit: the patterns to confirm; empty: certain
  std::vector<Wildcard> m_list;
};

} // namespace patterns
