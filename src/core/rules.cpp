#include "core/rules.h"

#include "core/places.h"
#include "core/safety.h"

#include <QDir>
#include <QHash>
#include <QMutex>

#include <algorithm>
#include <cstring>
#include <utility>

// A pattern becomes a non-deterministic automaton in the bits of a few machine words: bit i is set while the first i
// characters of the pattern can have been met. One character of the text is one step of all of them at once, so no
// pattern needs to be tried twice (Baeza-Yates and Gonnet, "A new approach to text searching", 1992).

using namespace Qt::StringLiterals;

namespace rules {
namespace {

constexpr int kBits = 64;
constexpr char32_t kAsciiCount = 128;

/// One bit for a component, the same for equal texts.
quint64 sign(QStringView component) {
  const auto size = static_cast<quint32>(component.size());
  const quint32 mixed = (size * 7U + component.front().unicode() * 31U + component.back().unicode()) * 2654435761U;
  return quint64{1} << (mixed >> 26U);
}

bool startsWith(QStringView text, QStringView prefix) {
  const qsizetype size = prefix.size();
  if (size == 0) return true;
  return text.size() >= size && text[size - 1] == prefix[size - 1] &&
         std::memcmp(text.utf16(), prefix.utf16(), static_cast<size_t>(size) * sizeof(char16_t)) == 0;
}

bool endsWith(QStringView text, QStringView suffix) {
  return text.size() >= suffix.size() && startsWith(text.last(suffix.size()), suffix);
}

bool isWildcard(QChar unit) { return unit == u'*' || unit == u'?'; }

/// The code point of a valid text at @p at, which moves behind it.
char32_t takeCodePoint(QStringView text, qsizetype* at) {
  const QChar unit = text[(*at)++];
  if (!unit.isHighSurrogate()) return unit.unicode();
  return QChar::surrogateToUcs4(unit, text[(*at)++]);
}

} // namespace

Subject::Subject(QStringView normalized) : path(normalized) {
  const auto add = [this](QStringView component) {
    components.append(component);
    signs |= sign(component);
    if (component.size() > 1 && component.back() == u'\n') signs |= sign(component.chopped(1));
  };
  bool surrogates = false;
  qsizetype start = 0;
  for (qsizetype i = 0; i < path.size(); ++i) {
    const QChar unit = path[i];
    surrogates |= unit.isSurrogate();
    if (unit != u'/') continue;
    if (i > start) add(path.sliced(start, i - start));
    start = i + 1;
  }
  if (start < path.size()) add(path.sliced(start));
  wellFormed = !surrogates || path.isValidUtf16();
}

/// The pattern from its first wildcard on.
struct Glob::Machine {
  size_t words = 1;
  qsizetype length = 0;       // of the pattern, in characters that must be met
  std::vector<quint64> any;   // before these stands a "?"
  std::vector<quint64> loops; // here a star may take one more character that is no "/"
  std::vector<quint64> deep;  // here a double star may take one more
  std::vector<quint64> ascii; // what each ASCII character moves on
  QHash<char32_t, std::vector<quint64>> others;

  using Bits = QVarLengthArray<quint64, 4>;

  explicit Machine(QStringView pattern) {
    words = static_cast<size_t>(pattern.size()) / kBits + 1;
    any.resize(words);
    loops.resize(words);
    deep.resize(words);
    ascii.resize(words * kAsciiCount);
    for (qsizetype at = 0; at < pattern.size();) {
      if (pattern[at] == u'*') {
        const bool twice = pattern.sliced(at).startsWith(u"**");
        set(twice ? &deep : &loops);
        at += twice ? 2 : 1;
        continue;
      }
      const char32_t one = takeCodePoint(pattern, &at);
      if (one == U'?')
        set(&any);
      else if (one < kAsciiCount)
        ascii[one * words + word()] |= bit();
      else
        setOther(one);
      ++length;
    }
    for (size_t w = 0; w < words; ++w) {
      loops[w] |= deep[w];
      for (char32_t one = 0; one < kAsciiCount; ++one)
        if (one != U'/') ascii[one * words + w] |= any[w];
      for (std::vector<quint64>& moves : others) moves[w] |= any[w];
    }
  }

  [[nodiscard]] bool run(QStringView text, Tail tail) const {
    return words == 1 ? runInOneWord(text, tail) : runInMany(text, tail);
  }

 private:
  [[nodiscard]] bool runInOneWord(QStringView text, Tail tail) const {
    quint64 now = 1;
    for (qsizetype at = 0; at < text.size() && now != 0;) {
      const char32_t one = takeCodePoint(text, &at);
      if (one == U'/' && tail == Tail::Below && (now & bit()) != 0) return true;
      const quint64 stays = one == U'/' ? deep[0] : loops[0];
      now = ((now & *movesOf(one)) << 1U) | (now & stays);
    }
    return (now & bit()) != 0;
  }

  [[nodiscard]] bool runInMany(QStringView text, Tail tail) const {
    Bits now(static_cast<qsizetype>(words), 0);
    now[0] = 1;
    for (qsizetype at = 0; at < text.size();) {
      const char32_t one = takeCodePoint(text, &at);
      if (one == U'/' && tail == Tail::Below && isDone(now)) return true;
      if (!step(&now, one)) return false;
    }
    return isDone(now);
  }

  [[nodiscard]] size_t word() const { return static_cast<size_t>(length) / kBits; }
  [[nodiscard]] quint64 bit() const { return quint64{1} << (length % kBits); }
  void set(std::vector<quint64>* bits) { (*bits)[word()] |= bit(); }

  void setOther(char32_t one) {
    std::vector<quint64>& moves = others[one];
    moves.resize(words);
    set(&moves);
  }

  [[nodiscard]] const quint64* movesOf(char32_t one) const {
    if (one < kAsciiCount) return &ascii[one * words];
    const auto found = others.constFind(one);
    return found == others.cend() ? any.data() : found->data();
  }

  [[nodiscard]] bool isDone(const Bits& now) const { return (now[static_cast<qsizetype>(word())] & bit()) != 0; }

  /// False: no way on is left.
  [[nodiscard]] bool step(Bits* now, char32_t one) const {
    const quint64* moves = movesOf(one);
    const quint64* stays = one == U'/' ? deep.data() : loops.data();
    quint64 carry = 0;
    quint64 alive = 0;
    for (size_t w = 0; w < words; ++w) {
      quint64& bits = (*now)[static_cast<qsizetype>(w)];
      const quint64 moved = bits & moves[w];
      bits = (moved << 1U) | carry | (bits & stays[w]);
      carry = moved >> (kBits - 1U);
      alive |= bits;
    }
    return alive != 0;
  }
};

Glob::Glob(const QString& pattern) {
  const auto first = std::find_if(pattern.cbegin(), pattern.cend(), isWildcard);
  m_prefix = pattern.first(first - pattern.cbegin());
  if (first == pattern.cend()) return;
  const auto behindLast = std::find_if(pattern.crbegin(), pattern.crend(), isWildcard).base();
  m_suffix = pattern.sliced(behindLast - pattern.cbegin());
  const QStringView middle = QStringView(pattern).sliced(m_prefix.size()).chopped(m_suffix.size());
  m_crossesSlash = middle == u"**";
  m_anyMiddle = m_crossesSlash || middle == u"*";
  m_machine = std::make_shared<const Machine>(QStringView(pattern).sliced(m_prefix.size()));
}

bool Glob::holds(QStringView text, Tail tail) const {
  if (!startsWith(text, m_prefix)) return false;
  const QStringView rest = text.sliced(m_prefix.size());
  if (!m_machine) return rest.isEmpty() || (tail == Tail::Below && rest.front() == u'/');
  if (tail == Tail::None) {
    if (!endsWith(rest, m_suffix)) return false;
    if (m_anyMiddle) return m_crossesSlash || !rest.chopped(m_suffix.size()).contains(u'/');
  }
  return m_machine->run(rest, tail);
}

namespace {

/// What "**/" at the start of a rule leaves of it, if that is a pattern of one component; else empty.
QString atAnyDepth(const QString& text) {
  if (!text.startsWith(u"**/"_s)) return {};
  const QString name = text.sliced(3);
  return name.contains(u'/') || name.contains(u"**"_s) ? QString() : name;
}

/// The signs of the components that @p text spells out.
quint64 literalSigns(const QString& text) {
  quint64 result = 0;
  for (const QString& part : text.split(u'/', Qt::SkipEmptyParts))
    if (std::none_of(part.cbegin(), part.cend(), isWildcard)) result |= sign(part);
  return result;
}

bool matchesToLineBreak(const Glob& glob, QStringView text) {
  return glob.matches(text) || (text.endsWith(u'\n') && glob.matches(text.chopped(1)));
}

} // namespace

Rule::Rule(const QString& text) : m_glob(text.isValidUtf16() ? text : QString()) {
  if (!text.isValidUtf16()) {
    m_kind = Kind::Always;
    return;
  }
  m_needs = literalSigns(text);
  if (!text.contains(u'/')) {
    m_kind = Kind::Component;
  } else if (const QString name = atAnyDepth(text); !name.isEmpty()) {
    m_kind = Kind::AnyDepth;
    m_glob = Glob(name);
  } else {
    m_kind = Kind::Path;
  }
}

bool Rule::covers(const Subject& subject) const {
  if (m_kind == Kind::Always) return true;
  if ((subject.signs & m_needs) != m_needs) return false;
  if (m_kind != Kind::Path) return coversComponent(subject);
  const QStringView path = subject.path;
  return m_glob.coversPath(path) || (path.endsWith(u'\n') && m_glob.coversPath(path.chopped(1)));
}

bool Rule::coversComponent(const Subject& subject) const {
  if (subject.components.isEmpty()) return m_glob.matches({}) && (m_kind == Kind::Component || !subject.path.isEmpty());
  const bool anyDepth = m_kind == Kind::AnyDepth;
  const qsizetype count = subject.components.size();
  const qsizetype first = anyDepth && !subject.path.startsWith(u'/') ? 1 : 0;
  for (qsizetype i = first; i < count; ++i) {
    const QStringView component = subject.components[i];
    const bool breakMayEnd = !anyDepth || i + 1 == count;
    if (breakMayEnd ? matchesToLineBreak(m_glob, component) : m_glob.matches(component)) return true;
  }
  return false;
}

bool Rule::coversBelow(QStringView path, QStringView leaf) const {
  return m_kind == Kind::Always || matchesToLineBreak(m_glob, m_kind == Kind::Path ? path : leaf);
}

QVarLengthArray<QString, 2> expanded(const QString& rule) {
  const QString text = rule.trimmed();
  if (text.isEmpty()) return {};
  if (!text.startsWith(u'~')) return {text};
  QVarLengthArray<QString, 2> result{safety::normalized(QDir::homePath() + text.sliced(1))};
  const QString own = safety::normalized(places::home() + text.sliced(1));
  if (!places::home().isEmpty() && own != result.front()) result.append(own);
  return result;
}

namespace {

using Compiled = std::shared_ptr<const Rule>;

/// A rule of the list that was asked last, and what it was found to stand for.
struct Entry {
  bool met = false;
  QVarLengthArray<Compiled, 2> rules = {};
};

/// All that isExcluded keeps, under one mutex.
struct Cache {
  QHash<QString, Compiled> compiled; // by the expanded text; never cleared
  QList<QString> list;    // shares its data with the list that was asked last: the same data is the same list
  bool namesHome = false; // whether what a rule stands for hangs on the home folder
  QByteArray homeVariable;
  std::vector<Entry> entries;

  Compiled find(const QString& text) {
    Compiled& rule = compiled[text];
    if (!rule) rule = std::make_shared<const Rule>(text);
    return rule;
  }

  void prepare(const QList<QString>& asked) {
    const bool same = asked.constData() == list.constData() && asked.size() == list.size();
    if (same && (!namesHome || qgetenv("HOME") == homeVariable)) return;
    list = asked;
    namesHome = std::any_of(asked.cbegin(), asked.cend(), [](const QString& rule) { return rule.contains(u'~'); });
    homeVariable = qgetenv("HOME");
    entries.assign(static_cast<size_t>(asked.size()), {});
  }

  Entry& meet(size_t index) {
    Entry& entry = entries[index];
    if (entry.met) return entry;
    entry.met = true;
    for (const QString& text : expanded(list.at(static_cast<qsizetype>(index)))) entry.rules.append(find(text));
    return entry;
  }
};

struct LockedCache {
  QBasicMutex mutex;
  Cache cache;
};

LockedCache& shared() {
  static LockedCache instance;
  return instance;
}

bool coversAny(const QVarLengthArray<Compiled, 2>& rules, const Subject& subject) {
  return std::any_of(rules.cbegin(), rules.cend(),
                     [&](const Compiled& rule) { return !subject.wellFormed || rule->covers(subject); });
}

} // namespace

bool isCovered(const QString& path, const QList<QString>& list) {
  if (list.isEmpty()) return false;
  const QString normalized = safety::normalized(path);
  const Subject subject(normalized);
  LockedCache& common = shared();
  const QMutexLocker lock(&common.mutex);
  common.cache.prepare(list);
  for (size_t i = 0; i < common.cache.entries.size(); ++i)
    if (coversAny(common.cache.meet(i).rules, subject)) return true;
  return false;
}

RuleSet::RuleSet(const QList<QString>& list) {
  LockedCache& common = shared();
  const QMutexLocker lock(&common.mutex);
  for (const QString& rule : list)
    for (const QString& text : expanded(rule)) m_rules.push_back(common.cache.find(text));
}

bool RuleSet::covers(const Subject& subject) const {
  if (!subject.wellFormed) return !m_rules.empty();
  return std::any_of(m_rules.cbegin(), m_rules.cend(), [&](const Compiled& rule) { return rule->covers(subject); });
}

bool RuleSet::coversBelow(QStringView path, QStringView leaf) const {
  return std::any_of(m_rules.cbegin(), m_rules.cend(),
                     [&](const Compiled& rule) { return rule->coversBelow(path, leaf); });
}

qsizetype compiledCount() {
  LockedCache& common = shared();
  const QMutexLocker lock(&common.mutex);
  return common.cache.compiled.size();
}

} // namespace rules
