/// A language that no reader speaks: the English of a catalogue made longer, with accents, between brackets. Whatever
/// is shown without brackets was never translated, and whatever shows several was put together from pieces.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace pseudo {

constexpr QChar kOpen(0x27E6);
constexpr QChar kClose(0x27E7);

enum class Brackets { Shown, Left };

/// By how much a text becomes longer, as a share of it. Short texts grow more in real languages.
struct Growth {
  double usual = 0.4;
  double ofShort = 0.8;
};

/// @p source made longer, with accents on its letters. Placeholders, tags, entities and the marks of a mnemonic stay as
/// they are, and so does a mark alone, which stands between the things of a list.
[[nodiscard]] QString text(const QString& source, const Growth& growth = {}, Brackets brackets = Brackets::Shown);

/// What is wrong with a text that is shown in this language; empty if nothing is.
/// - "untranslated": letters stand outside the brackets that are none of @p data
/// - "joined": translations stand beside each other without a list's separator (a comma, a dot, a dash, a new line)
/// - "unfilled": a placeholder was left
/// - otherwise a translation that stands within the sentence of another one, as it is shown: it can't be bent to it.
///   Figures with their units don't count, nor do lists.
/// @param data  what isn't the program's own text: names, paths, keys
[[nodiscard]] QString flaw(const QString& shown, const QStringList& data);

} // namespace pseudo

/// Translates what stands in a catalogue, and nothing else: a text that is looked up under another context than its own
/// stays English.
class PseudoLanguage : public QTranslator {
 public:
  /// @param catalogue  a .ts file; its translations don't matter
  explicit PseudoLanguage(const QString& catalogue, const pseudo::Growth& growth = {},
                          pseudo::Brackets brackets = pseudo::Brackets::Shown);

  [[nodiscard]] QString translate(const char* context, const char* source, const char* disambiguation,
                                  int n) const override;
  [[nodiscard]] bool isEmpty() const override { return m_known.isEmpty(); }

 private:
  QSet<QString> m_known; ///< context and source, with a line break between them
  pseudo::Growth m_growth;
  pseudo::Brackets m_brackets;
};
