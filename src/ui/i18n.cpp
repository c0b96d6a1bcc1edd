#include "ui/i18n.h"

#include "app/AppSettings.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// What Qt itself says in our window, so that it is said in the language of the window also where Qt's own catalogues
// aren't installed: the menu of a text field, and keys. Qt looks these up; here they are only for the catalogues' tool.
[[maybe_unused]] constexpr std::array kSaidByQt = {
    QT_TRANSLATE_NOOP("QLineEdit", "&Undo"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Redo"),
    QT_TRANSLATE_NOOP("QLineEdit", "Cu&t"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Copy"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Paste"),
    //: In the menu of a text field: what is selected
    QT_TRANSLATE_NOOP("QLineEdit", "Delete"),
    QT_TRANSLATE_NOOP("QLineEdit", "Select All"),
    //: A key
    QT_TRANSLATE_NOOP("QShortcut", "Ctrl"),
    //: A key
    QT_TRANSLATE_NOOP("QShortcut", "Shift"),
    //: A key
    QT_TRANSLATE_NOOP("QShortcut", "Meta"),
};

const i18n::Language* find(const QString& code) {
  const QList<i18n::Language>& all = i18n::languages();
  const auto found = std::find_if(all.begin(), all.end(), [&](const auto& one) { return one.code == code; });
  return found == all.end() ? nullptr : &*found;
}

/// Taiwan, Hong Kong and Macau read traditional characters.
bool isTraditionalChinese(const QString& tag) {
  constexpr std::array kRegions = {"_TW"_L1, "_HK"_L1, "_MO"_L1};
  return tag.contains("Hant"_L1) ||
         std::any_of(kRegions.begin(), kRegions.end(), [&](QLatin1String region) { return tag.endsWith(region); });
}

/// The code for one of the system's tags; empty if there is no such language.
QString codeFor(QString tag) {
  tag.replace(u'-', u'_');
  const QString primary = tag.section(u'_', 0, 0).toLower();
  if (primary == "zh"_L1) return isTraditionalChinese(tag) ? u"zh_TW"_s : u"zh_CN"_s;
  if (primary == "pt"_L1) return u"pt_BR"_s;
  return find(primary) ? primary : QString();
}

void load(QCoreApplication* app, const QString& catalogue) {
  auto translator = std::make_unique<QTranslator>(app);
  if (translator->load(catalogue)) app->installTranslator(translator.release());
}

} // namespace

const QList<i18n::Language>& i18n::languages() {
  static const QList<Language> all = {
      {u"en"_s, u"English"_s},  {u"zh_CN"_s, u"简体中文"_s}, {u"zh_TW"_s, u"繁體中文"_s},
      {u"ja"_s, u"日本語"_s},   {u"ko"_s, u"한국어"_s},      {u"es"_s, u"Español"_s},
      {u"fr"_s, u"Français"_s}, {u"de"_s, u"Deutsch"_s},     {u"pt_BR"_s, u"Português (Brasil)"_s},
      {u"ru"_s, u"Русский"_s},
  };
  return all;
}

QString i18n::nativeName(const QString& code) {
  const Language* language = find(code);
  return language ? language->name : u"English"_s;
}

QString i18n::systemLanguage() { return languageFor(QLocale::system().uiLanguages()); }

QString i18n::languageFor(const QStringList& uiLanguages) {
  for (const QString& tag : uiLanguages)
    if (const QString code = codeFor(tag); !code.isEmpty()) return code;
  return u"en"_s;
}

QString i18n::effectiveLanguage() {
  QString wish = qEnvironmentVariable("TARNWICK_LANG");
  if (wish.isEmpty()) wish = AppSettings::instance().language();
  return find(wish) ? wish : systemLanguage();
}

QString i18n::Catalogues::qtCatalogues() { return QLibraryInfo::path(QLibraryInfo::TranslationsPath); }

// What is installed last is asked first.
void i18n::install(QCoreApplication* app, const Catalogues& from) {
  const QString language = effectiveLanguage();
  load(app, u"%1/qtbase_%2.qm"_s.arg(from.qt, language));
  load(app, u"%1/tarnwick_%2.qm"_s.arg(from.own, language));
  QLocale::setDefault(QLocale(language == "en"_L1 ? u"en_US"_s : language));
}
