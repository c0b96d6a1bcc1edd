#include "support/PseudoLanguage.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace pseudo {

namespace {

constexpr qsizetype kShort = 12; // characters

constexpr QStringView kPlain = u"AEIOUYCNSZaeiouycnsz";
constexpr QStringView kAccented = u"ÅÉÎÖÛÝÇÑŠŽåéîöûýçñšž";
constexpr QStringView kVowels = u"aeiouyAEIOUY";

const QRegularExpression kKept(uR"(%L?n|%L?\d+|<[^>]*>|&\w+;|&(?=\w))"_s);

QChar accented(QChar letter) {
  const qsizetype at = kPlain.indexOf(letter);
  return at < 0 ? letter : kAccented.at(at);
}

/// One run of text between what is kept. @param owed  letters that are still to be added, which vowels pay
QString grown(const QString& run, qsizetype* owed, int times) {
  QString result;
  for (const QChar letter : run) {
    result += accented(letter);
    for (int i = 0; i<times&& * owed> 0 && kVowels.contains(letter); ++i, --*owed) result += accented(letter);
  }
  return result;
}

/// A translation, or what stands between two of them.
struct Piece {
  QString text; ///< without the brackets
  bool translated = false;
};

QList<Piece> pieces(const QString& text) {
  QList<Piece> result{{}};
  int depth = 0;
  for (const QChar letter : text) {
    const bool opens = letter == kOpen && depth++ == 0;
    const bool closes = letter == kClose && --depth == 0;
    if (opens || closes)
      result << Piece{{}, opens};
    else
      result.last().text += letter;
  }
  result.removeIf([](const Piece& piece) { return piece.text.isEmpty(); });
  return result;
}

bool hasLetters(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar one) { return one.isLetter(); });
}
bool hasDigits(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar one) { return one.isDigit(); });
}

/// Things of a list were translated each for itself.
constexpr const char16_t* kSeparators[] = {u", ", u" · ", u" — ", u"\n", u"  ", u"\u00a0\u00a0"};

bool separates(const QString& between) {
  return std::any_of(std::begin(kSeparators), std::end(kSeparators),
                     [&](const char16_t* one) { return between.contains(QStringView(one)); });
}
bool beginsWithSeparator(const QString& text) {
  return std::any_of(std::begin(kSeparators), std::end(kSeparators),
                     [&](const char16_t* one) { return text.startsWith(QStringView(one)); });
}

/// @p text without what is the user's.
QString without(const QStringList& longestFirst, QString text) {
  for (const QString& known : longestFirst)
    if (!known.isEmpty()) text.replace(known, u" "_s, Qt::CaseInsensitive);
  return text;
}

/// What stands within the sentence that @p translation is; empty if nothing does.
QString nestedIn(const QString& translation) {
  bool isSentence = false;
  bool isQuoted = false; // what follows stands for itself
  QString nested;
  for (const Piece& piece : pieces(translation)) {
    if (!piece.translated) {
      isSentence = isSentence || hasLetters(piece.text);
      isQuoted = piece.text.endsWith(u": "_s);
      continue;
    }
    if (const QString deeper = nestedIn(piece.text); !deeper.isEmpty()) return deeper;
    const bool isApart = isQuoted || hasDigits(piece.text) || beginsWithSeparator(piece.text);
    if (!isApart && nested.isEmpty()) nested = kOpen + piece.text + kClose;
  }
  return isSentence ? nested : QString();
}

} // namespace

QString text(const QString& source, const Growth& growth, Brackets brackets) {
  if (!hasLetters(source) && !source.contains(u'%')) return source;
  const double share = source.size() <= kShort ? growth.ofShort : growth.usual;
  auto owed = qsizetype(std::ceil(share * double(source.size())));
  const qsizetype vowels = std::max<qsizetype>(
      1, std::count_if(source.begin(), source.end(), [](QChar one) { return kVowels.contains(one); }));
  const int times = int((owed + vowels - 1) / vowels);
  QString result;
  qsizetype end = 0;
  for (auto all = kKept.globalMatch(source); all.hasNext();) {
    const QRegularExpressionMatch kept = all.next();
    result += grown(source.mid(end, kept.capturedStart() - end), &owed, times) + kept.captured();
    end = kept.capturedEnd();
  }
  result += grown(source.mid(end), &owed, times);
  return brackets == Brackets::Left ? result : kOpen + result + kClose;
}

QString flaw(const QString& shown, const QStringList& data) {
  static const QRegularExpression kUnfilled(u"%L?(n|[1-9])"_s);
  if (kUnfilled.match(shown).hasMatch()) return u"unfilled"_s;
  QStringList longestFirst = data;
  std::sort(longestFirst.begin(), longestFirst.end(), [](const auto& a, const auto& b) { return a.size() > b.size(); });
  bool before = false; // a translation stands right before
  for (const Piece& piece : pieces(shown)) {
    if (piece.translated) {
      if (before && !beginsWithSeparator(piece.text)) return u"joined"_s;
      if (const QString nested = nestedIn(piece.text); !nested.isEmpty()) return nested;
      before = true;
      continue;
    }
    if (separates(piece.text)) before = false;
    if (hasLetters(without(longestFirst, piece.text))) return u"untranslated"_s;
  }
  return {};
}

} // namespace pseudo

PseudoLanguage::PseudoLanguage(const QString& catalogue, const pseudo::Growth& growth, pseudo::Brackets brackets)
    : m_growth(growth), m_brackets(brackets) {
  QFile file(catalogue);
  if (!file.open(QIODevice::ReadOnly)) qFatal("there is no catalogue at %s", qPrintable(catalogue));
  QXmlStreamReader xml(&file);
  QString context;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == "name"_L1) context = xml.readElementText();
    // Qt puts the names of keys together itself, with a "+" in every language.
    if (xml.name() == "source"_L1 && context != u"QShortcut"_s) m_known << context + u'\n' + xml.readElementText();
  }
}

QString PseudoLanguage::translate(const char* context, const char* source, const char* /*disambiguation*/,
                                  int /*n*/) const {
  const QString english = QString::fromUtf8(source);
  if (!m_known.contains(QString::fromUtf8(context) + u'\n' + english)) return {};
  return pseudo::text(english, m_growth, m_brackets);
}
