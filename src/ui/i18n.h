/// Which of the ten interface languages is in force, and its catalogue.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QCoreApplication;

namespace i18n {

struct Language {
  QString code;
  QString name; ///< in the language itself
};

/// The ten languages in the order of all lists.
[[nodiscard]] const QList<Language>& languages();
/// Name of the language with exactly this code, or "English".
[[nodiscard]] QString nativeName(const QString& code);
/// The best code for the system's language preferences.
[[nodiscard]] QString systemLanguage();
/// The same for any list of preferences, the preferred one first.
[[nodiscard]] QString languageFor(const QStringList& uiLanguages);
/// The code to use now: the environment variable TARNWICK_LANG, else the setting, else the system's.
[[nodiscard]] QString effectiveLanguage();
/// Folders that catalogues are taken from.
struct Catalogues {
  QString own = QStringLiteral(":/i18n"); ///< of the tarnwick_CODE.qm, which the program carries with it
  QString qt = qtCatalogues();            ///< of the qtbase_CODE.qm, for what Qt says itself: menus of text fields, say
  /// Where Qt has its own, if they are installed.
  [[nodiscard]] static QString qtCatalogues();
};
/// Loads the catalogues of effectiveLanguage() and sets the default locale. Once, before any text is shown.
/// Without a catalogue texts stay English; the locale follows the language all the same.
/// @param app  owns the catalogues from then on
void install(QCoreApplication* app, const Catalogues& from = {});

} // namespace i18n
