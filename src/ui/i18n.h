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
/// Loads the catalogue of effectiveLanguage() and sets the default locale. Once, before any text is shown.
/// Without a catalogue the texts stay English; the locale follows the language all the same.
/// @param app  owns the catalogue from then on
/// @param catalogues  the folder of the tarnwick_CODE.qm files; the program carries its own
void install(QCoreApplication* app, const QString& catalogues = QStringLiteral(":/i18n"));

} // namespace i18n
