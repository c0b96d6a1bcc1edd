#include "core/patterns.h"

#include "core/appguard.h"
#include "core/platform.h"

#include <QCoreApplication>
#include <QVarLengthArray>

#include <algorithm>
#include <limits>
#include <numeric>
#include <string>

// The matcher is the automaton of Aho and Corasick ("Efficient string matching", 1975) over the literals of all
// patterns, flattened into one table of states times character classes. An anchor is a character of its own: a
// component begins with a virtual "^" and ends with a "/", so that "eset" is the literal "^eset/", "com.eset*" is
// "^com.eset", "*.ime" is ".ime/" and "*pinyin*" is "pinyin". A pattern with several literals is looked for by its
// longest one, and confirmed where that was found.

namespace patterns {
namespace {

constexpr std::string_view kCommon[] = {
    // Password managers
    "com.agilebits*", "com.1password*", "1password*", "com.bitwarden*", "bitwarden*", "com.lastpass*", "lastpass*",
    "com.dashlane*", "dashlane*", "org.keepassxc*", "keepass*", "*enpass*", "*nordpass*", "com.apple.passwords*",
    "*keeper*security*",
    // Input methods
    "*inputmethod*", "im.rime*", "rime", "*sogou*", "*.ime", "*pinyin*",
    // Security and device-management agents
    "com.crowdstrike*", "crowdstrike*", "com.sentinelone*", "com.sentinel-labs*", "sentinelone*", "com.jamf*", "jamf*",
    "com.paloaltonetworks*", "palo alto networks", "com.cisco.anyconnect*", "com.cisco.secureclient*", "cisco",
    "com.microsoft.wdav*", "windows defender*", "com.eset*", "eset", "com.sophos*", "sophos*", "com.symantec*",
    "symantec*", "broadcom", "com.mcafee*", "mcafee*", "com.kaspersky*", "kaspersky*", "com.malwarebytes*",
    "malwarebytes*", "com.bitdefender*", "bitdefender*", "com.trendmicro*", "trend micro*", "com.zscaler*", "zscaler*",
    "com.netskope*", "netskope*", "com.kandji*", "io.kandji*", "com.mosyle*", "com.addigy*", "com.alibaba.security*",
    // VPNs
    "com.wireguard*", "wireguard*", "net.tunnelblick*", "com.expressvpn*", "expressvpn*", "com.nordvpn*", "nordvpn*",
    "*tailscale*", "*zerotier*", "*openvpn*", "*protonvpn*", "com.surfshark*", "*globalprotect*"};
static_assert(std::size(kCommon) == 74);

constexpr std::string_view kLinuxAdditions[] = {"*ibus*",        "*fcitx*",     "*keyring*", "*kwallet*",
                                                "*seahorse*",    "*keepassxc*", "*.secrets", "*authenticator*",
                                                "*openconnect*", "*mullvad*",   "clamav*",   "rkhunter*"};
static_assert(std::size(kLinuxAdditions) == 12);

constexpr char kStart = '^'; // stands before a component, in literals only
constexpr char kSlash = '/';

/// The ASCII letter that @p unit is a case of, else @p unit itself.
char16_t folded(char16_t unit) {
  if (unit >= u'A' && unit <= u'Z') return static_cast<char16_t>(unit + (u'a' - u'A'));
  if (unit == u'\u212a') return u'k';
  if (unit == u'\u017f') return u's';
  return unit;
}

using FoldedText = QVarLengthArray<QChar, 256>;

FoldedText foldedText(QStringView text) {
  FoldedText result;
  result.reserve(text.size());
  for (const QChar unit : text) result.append(folded(unit.unicode()));
  return result;
}

} // namespace

/// One pattern, split at its stars.
struct Matcher::Wildcard {
  std::vector<std::string_view> literals;
  bool fromStart = false; // no star before the first literal
  bool toEnd = false;     // no star behind the last

  explicit Wildcard(std::string_view pattern) : fromStart(!pattern.starts_with('*')), toEnd(!pattern.ends_with('*')) {
    while (!pattern.empty()) {
      const std::string_view literal = pattern.substr(0, pattern.find('*'));
      if (!literal.empty()) literals.push_back(literal);
      pattern.remove_prefix(std::min(literal.size() + 1, pattern.size()));
    }
  }

  /// What must be met in a component for the pattern to match: its longest literal, with the anchors.
  [[nodiscard]] std::string key() const {
    const auto longest = std::ranges::max_element(literals, {}, &std::string_view::size);
    std::string result(*longest);
    if (fromStart && longest == literals.begin()) result.insert(result.begin(), kStart);
    if (toEnd && longest + 1 == literals.end()) result.push_back(kSlash);
    return result;
  }

  [[nodiscard]] bool matches(QStringView text) const {
    return matchesWhole(text) || (text.endsWith(u'\n') && matchesWhole(text.chopped(1)));
  }

 private:
  /// Takes each literal as far to the left as it stands.
  [[nodiscard]] bool matchesWhole(QStringView text) const {
    for (size_t i = 0; i < literals.size(); ++i) {
      const QLatin1String literal(literals[i].data(), static_cast<qsizetype>(literals[i].size()));
      const bool pinned = i == 0 && fromStart;
      const bool last = i + 1 == literals.size() && toEnd;
      const qsizetype at = pinned ? 0 : last ? text.size() - literal.size() : text.indexOf(literal);
      if (at < 0 || !text.sliced(at).startsWith(literal)) return false;
      text = text.sliced(at + literal.size());
      if (last && !text.isEmpty()) return false;
    }
    return true;
  }
};

/// The automaton while it is being built.
struct Matcher::Trie {
  struct Node {
    std::vector<quint16> next;
    quint16 fallback = 0;             // the longest other state that the text so far ends with
    bool hit = false;                 // a key ends here
    bool certain = false;             // a key that is its whole pattern does
    bool pastSlash = false;           // the "/" behind a component was the last thing met
    std::vector<quint16> unsure = {}; // patterns that the component must be held against
  };
  std::vector<Node> nodes;
  quint8 classes;

  explicit Trie(quint8 classCount) : classes(classCount) { add(); }

  quint16 add() {
    nodes.push_back({.next = std::vector<quint16>(classes, 0)});
    return static_cast<quint16>(nodes.size() - 1);
  }

  quint16 insert(std::span<const quint8> literal) {
    quint16 at = 0;
    for (const quint8 one : literal) {
      if (nodes[at].next[one] == 0) {
        const quint16 made = add();
        nodes[at].next[one] = made;
      }
      at = nodes[at].next[one];
    }
    return at;
  }

  /// Gives every state a way on for every class, breadth first, and the hits of the states that it ends with.
  void complete() {
    std::vector<quint16> order{0};
    for (size_t i = 0; i < order.size(); ++i) {
      const quint16 at = order[i];
      for (quint8 one = 0; one < classes; ++one) {
        const quint16 child = nodes[at].next[one];
        const quint16 other = at == 0 ? quint16{0} : nodes[nodes[at].fallback].next[one];
        if (child == 0) {
          nodes[at].next[one] = other;
          continue;
        }
        nodes[child].fallback = other;
        inherit(child, other);
        order.push_back(child);
      }
    }
  }

  void inherit(quint16 node, quint16 from) {
    Node& to = nodes[node];
    to.hit |= nodes[from].hit;
    to.certain |= nodes[from].certain;
    to.unsure.insert(to.unsure.end(), nodes[from].unsure.begin(), nodes[from].unsure.end());
  }
};

Matcher::Matcher(std::span<const std::string_view> list) {
  numberClasses(list);
  Trie trie(m_classes);
  const auto insert = [&](std::string_view literal) {
    std::vector<quint8> classes;
    for (const char one : literal) classes.push_back(m_classOfAscii[static_cast<quint8>(one)]);
    return trie.insert(classes);
  };
  const quint16 start = insert({&kStart, 1});
  for (const std::string_view pattern : list) {
    const Wildcard& wildcard = m_list.emplace_back(pattern);
    const auto add = [&](std::string_view key) {
      Trie::Node& node = trie.nodes[insert(key)];
      node.hit = true;
      node.pastSlash = key.back() == kSlash;
      node.certain |= wildcard.literals.size() == 1;
      if (wildcard.literals.size() > 1) node.unsure.push_back(static_cast<quint16>(m_list.size() - 1));
    };
    std::string key = wildcard.key();
    add(key);
    if (key.back() != kSlash) continue;
    key.insert(key.size() - 1, 1, '\n'); // the end of a component may stand before a line break
    add(key);
  }
  m_classOfAscii[kStart] = 0; // in a text, it is a character like any other
  trie.complete();
  flatten(trie, start);
}

Matcher::~Matcher() = default;
Matcher::Matcher(Matcher&&) noexcept = default;

void Matcher::numberClasses(std::span<const std::string_view> list) {
  m_classes = 1;
  const auto give = [&](char one) {
    quint8& number = m_classOfAscii[static_cast<quint8>(one)];
    if (number == 0) number = m_classes++;
  };
  for (const char one : {kSlash, kStart, '\n'}) give(one);
  for (const std::string_view pattern : list)
    for (const char one : pattern)
      if (one != '*') give(one);
  for (char16_t upper = u'A'; upper <= u'Z'; ++upper) m_classOfAscii[upper] = m_classOfAscii[folded(upper)];
}

/// Numbers the states so that the hits come last, and writes their rows. Behind a "/" a new component starts, whatever
/// was met before it.
void Matcher::flatten(const Trie& trie, quint16 start) {
  std::vector<size_t> order(trie.nodes.size());
  std::iota(order.begin(), order.end(), size_t{0});
  const auto hits = std::stable_partition(order.begin(), order.end(), [&](size_t i) { return !trie.nodes[i].hit; });
  Q_ASSERT(order.size() * m_classes <= std::numeric_limits<Offset>::max());
  std::vector<Offset> offsetOf(order.size());
  for (size_t i = 0; i < order.size(); ++i) offsetOf[order[i]] = static_cast<Offset>(i * m_classes);
  m_start = offsetOf[start];
  m_firstHit = static_cast<Offset>(static_cast<size_t>(hits - order.begin()) * m_classes);

  const quint8 slash = m_classOfAscii[kSlash];
  for (const size_t i : order) {
    const Trie::Node& node = trie.nodes[i];
    const std::vector<quint16>& ways = node.pastSlash ? trie.nodes[start].next : node.next;
    for (quint8 one = 0; one < m_classes; ++one) {
      const quint16 to = one == slash && !trie.nodes[ways[one]].hit ? start : ways[one];
      m_next.push_back(offsetOf[to]);
    }
    if (node.hit) m_unsure.push_back(node.certain ? std::vector<quint16>{} : node.unsure);
  }
}

inline quint8 Matcher::classOf(char16_t unit) const {
  if (unit < m_classOfAscii.size()) return m_classOfAscii[unit];
  const char16_t plain = folded(unit);
  return plain < m_classOfAscii.size() ? m_classOfAscii[plain] : quint8{0};
}

bool Matcher::matchesPath(QStringView path) const {
  const Offset* next = m_next.data();
  Offset state = m_start;
  for (qsizetype i = 0; i < path.size(); ++i) {
    state = next[state + classOf(path[i].unicode())];
    if (state >= m_firstHit && confirmed(state, path, i)) return true;
  }
  state = next[state + m_classOfAscii[kSlash]];
  return state >= m_firstHit && confirmed(state, path, path.size());
}

/// Whether the component around or before @p at, where @p state was reached, really matches.
bool Matcher::confirmed(Offset state, QStringView path, qsizetype at) const {
  const qsizetype start = path.first(at).lastIndexOf(u'/') + 1;
  const qsizetype slash = path.indexOf(u'/', at);
  const QStringView name = path.sliced(start, (slash < 0 ? path.size() : slash) - start);
  if (!name.isValidUtf16()) return false;
  const std::vector<quint16>& unsure = m_unsure[static_cast<size_t>((state - m_firstHit) / m_classes)];
  if (unsure.empty()) return true;
  const FoldedText text = foldedText(name);
  const auto matches = [&](quint16 i) { return m_list[i].matches(QStringView(text.data(), text.size())); };
  return std::ranges::any_of(unsure, matches);
}

const Matcher& Matcher::of(Set set) {
  static const Matcher commonOnly(kCommon);
  static const Matcher withLinux = [] {
    std::vector<std::string_view> all(std::begin(kCommon), std::end(kCommon));
    all.insert(all.end(), std::begin(kLinuxAdditions), std::end(kLinuxAdditions));
    return Matcher(all);
  }();
  return set == Set::WithLinux ? withLinux : commonOnly;
}

Set inForce() {
  return platform::host() == platform::Host::Linux || platform::isPreview() ? Set::WithLinux : Set::Common;
}

std::span<const std::string_view> common() { return kCommon; }
std::span<const std::string_view> linuxAdditions() { return kLinuxAdditions; }

} // namespace patterns

namespace appguard {

bool isProtectedAppData(const QString& path) { return patterns::Matcher::of(patterns::inForce()).matchesPath(path); }

bool isProtectedName(QStringView component) {
  return patterns::Matcher::of(patterns::inForce()).matchesName(component);
}

QString protectedSummary() {
  return QCoreApplication::translate("AppGuard",
                                     "Password managers, input methods, security and device-management agents, VPNs");
}

} // namespace appguard
