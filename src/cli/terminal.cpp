#include "cli/terminal.h"

#include <QByteArray>
#include <QStringList>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <string>

#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

constexpr int kUsualWidth = 80;

struct Range {
  char32_t first;
  char32_t last;
};

// The blocks of wide characters (Unicode's East Asian Width W and F), coarsely: what a language of ours is written in,
// and pictograms.
constexpr std::array kWide = {
    Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},   Range{0x3041, 0x33FF}, Range{0x3400, 0x4DBF},
    Range{0x4E00, 0x9FFF},   Range{0xA000, 0xA4CF},   Range{0xAC00, 0xD7A3}, Range{0xF900, 0xFAFF},
    Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6}, Range{0x1F300, 0x1F64F},
    Range{0x1F900, 0x1F9FF}, Range{0x20000, 0x3FFFD},
};

int columnsOf(char32_t character) {
  if (QChar::isMark(character) || QChar::category(character) == QChar::Other_Format) return 0;
  const bool wide = std::any_of(kWide.begin(), kWide.end(), [&](const Range& range) {
    return character >= range.first && character <= range.last;
  });
  return wide ? 2 : 1;
}

/// How many of @p characters, from the first on, fit into @p most columns.
template <typename Iterator>
Iterator fitting(Iterator first, Iterator last, int most) {
  for (int used = 0; first != last; ++first) {
    used += columnsOf(*first);
    if (used > most) break;
  }
  return first;
}

} // namespace

bool terminal::isTerminal(int fd) { return ::isatty(fd) == 1; }

int terminal::width(int fd) {
  winsize size{};
  return ::ioctl(fd, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : kUsualWidth;
}

bool terminal::takesEscapes(int fd) { return isTerminal(fd) && qgetenv("TERM") != "dumb"; }

bool terminal::takesColours(int fd) { return takesEscapes(fd) && qgetenv("NO_COLOR").isEmpty(); }

int terminal::columns(const QString& text) {
  int sum = 0;
  for (const char32_t character : text.toStdU32String()) sum += columnsOf(character);
  return sum;
}

QString terminal::elided(const QString& text, int most) {
  if (columns(text) <= most) return text;
  if (most < 1) return {};
  const std::u32string all = text.toStdU32String();
  const int tail = (most - 1) / 2;
  const auto headEnd = fitting(all.begin(), all.end(), most - 1 - tail);
  const auto tailBegin = fitting(all.rbegin(), all.rend(), tail).base();
  return QString::fromStdU32String({all.begin(), headEnd}) + u'…' + QString::fromStdU32String({tailBegin, all.end()});
}

namespace {

/// Whether lines may break beside it without a blank: Chinese and Japanese, but not Korean, which has blanks.
bool isWrittenWithoutBlanks(QChar character) {
  const QChar::Script script = character.script();
  return script == QChar::Script_Han || script == QChar::Script_Hiragana || script == QChar::Script_Katakana ||
         (columnsOf(character.unicode()) == 2 && character.isPunct());
}

/// The pieces of a word that a line may end between, by the line breaking rules of Unicode: none begins with a closing
/// mark or ends with an opening one. Most words are one piece.
QStringList pieces(const QString& word) {
  QStringList all;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Line, word);
  qsizetype begin = 0;
  for (qsizetype at = finder.toNextBoundary(); at > 0 && at < word.size(); at = finder.toNextBoundary()) {
    if (!isWrittenWithoutBlanks(word.at(at - 1)) && !isWrittenWithoutBlanks(word.at(at))) continue;
    all << word.sliced(begin, at - begin);
    begin = at;
  }
  return all << word.sliced(begin);
}

/// One line that is being filled.
class Filling {
 public:
  Filling(int most, int indent, int used) : m_most(most), m_indent(indent), m_used(used) {}

  /// @param gap  blanks before it, unless it begins a line
  void add(const QString& piece, int gap) {
    const int wanted = terminal::columns(piece);
    if (m_isBegun && m_used + gap + wanted > m_most) {
      m_text += u'\n' + QString(m_indent, u' ');
      m_used = m_indent;
    } else if (m_isBegun) {
      m_text += QString(gap, u' ');
      m_used += gap;
    }
    m_isBegun = true;
    m_text += piece;
    m_used += wanted;
  }
  [[nodiscard]] const QString& text() const { return m_text; }

 private:
  QString m_text;
  const int m_most;
  const int m_indent;
  int m_used;
  bool m_isBegun = false;
};

QString wrappedLine(const QString& line, int most, int indent, int used) {
  Filling filling(most, indent, used);
  for (const QString& word : line.split(u' ')) {
    int gap = 1;
    for (const QString& piece : pieces(word)) {
      filling.add(piece, gap);
      gap = 0;
    }
  }
  return filling.text();
}

} // namespace

QString terminal::wrapped(const QString& text, int most, int indent, int used) {
  QStringList lines;
  for (const QString& line : text.split(u'\n')) lines << wrappedLine(line, most, indent, lines.isEmpty() ? used : 0);
  return lines.join(u'\n');
}

} // namespace cli
