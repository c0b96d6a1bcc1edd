// Which language is in force, and what installing it does.
#include "app/AppSettings.h"
#include "app/identity.h"
#include "core/fmt.h"
#include "engines/LargeFileFinder.h"
#include "support/FixtureHome.h"
#include "ui/i18n.h"

#include <QFile>
#include <QLocale>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// The test's own catalogues: a Korean one of one text, and no other.
const i18n::Catalogues kTestCatalogues = {.own = u":/test/i18n"_s, .qt = u":/nowhere"_s};
/// The program's, whatever Qt has on this machine.
const i18n::Catalogues kOwnCatalogues = {.own = u":/i18n"_s, .qt = u":/nowhere"_s};

QList<QTranslator*> installed() { return QCoreApplication::instance()->findChildren<QTranslator*>(); }

} // namespace

class tst_i18n : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { identity::apply(); }
  void init() {
    qunsetenv("TARNWICK_LANG");
    AppSettings::instance().setLanguage(QString());
  }
  void cleanup() { qDeleteAll(installed()); } // takes them off the application
  void cleanupTestCase() { QSettings().sync(); }

  void tenLanguagesInOrder();
  void nativeNames();
  void systemTags_data();
  void systemTags();
  void systemLanguageIsOneOfTheList();
  void effectiveLanguage_data();
  void effectiveLanguage();
  void defaultLocale_data();
  void defaultLocale();
  void carriesTenCatalogues();
  void installsTheCatalogue();
  void qtsOwnTextsFollow();
  void englishPlurals();
  void countsInEachLanguage_data();
  void countsInEachLanguage();
  void figuresInEachLanguage_data();
  void figuresInEachLanguage();
  void kindsOfFilesAreTranslated();
  void missingCatalogueLeavesTheSourceTexts();

 private:
  FixtureHome m_home;
};

void tst_i18n::tenLanguagesInOrder() {
  QStringList codes;
  QStringList names;
  for (const i18n::Language& one : i18n::languages()) {
    codes << one.code;
    names << one.name;
  }
  QCOMPARE(codes.join(u' '), u"en zh_CN zh_TW ja ko es fr de pt_BR ru"_s);
  QCOMPARE(names.join(u'|'),
           u"English|简体中文|繁體中文|日本語|한국어|Español|Français|Deutsch|Português (Brasil)|Русский"_s);
  QCOMPARE(&i18n::languages(), &i18n::languages());
}

void tst_i18n::nativeNames() {
  for (const i18n::Language& one : i18n::languages()) QCOMPARE(i18n::nativeName(one.code), one.name);
  for (const char16_t* code : {u"", u"xx", u"DE", u"zh", u"pt", u"de_DE"})
    QCOMPARE(i18n::nativeName(QString::fromUtf16(code)), u"English"_s);
}

void tst_i18n::systemTags_data() {
  QTest::addColumn<QString>("tags");
  QTest::addColumn<QString>("code");
  const auto row = [](const char* tags, const char* code) {
    QTest::addRow("%s", tags) << QString::fromLatin1(tags) << QString::fromLatin1(code);
  };
  row("zh-Hant-CN", "zh_TW");
  row("zh-Hant", "zh_TW");
  row("zh-TW", "zh_TW");
  row("zh_TW", "zh_TW");
  row("zh-HK", "zh_TW");
  row("zh-MO", "zh_TW");
  row("zh-Hans-HK", "zh_TW");
  row("zh-Hans-CN", "zh_CN");
  row("zh-CN", "zh_CN");
  row("zh-SG", "zh_CN");
  row("zh-hk", "zh_CN");
  row("zh", "zh_CN");
  row("ZH", "zh_CN");
  row("pt-PT", "pt_BR");
  row("pt-BR", "pt_BR");
  row("pt", "pt_BR");
  row("fr-CA", "fr");
  row("en-GB", "en");
  row("DE-AT", "de");
  row("ja-JP", "ja");
  row("ko", "ko");
  row("es-419", "es");
  row("ru-RU", "ru");
  row("nl-NL de-DE", "de");
  row("nl-NL sv pl", "en");
  row("gsw-CH fr-CH", "fr");
  row("zho-Hant ru", "ru");
  row("por en", "en");
  row("C", "en");
  row("", "en");
}

void tst_i18n::systemTags() {
  QFETCH(QString, tags);
  QTEST(i18n::languageFor(tags.split(u' ', Qt::SkipEmptyParts)), "code");
}

void tst_i18n::systemLanguageIsOneOfTheList() {
  QCOMPARE(i18n::systemLanguage(), i18n::languageFor(QLocale::system().uiLanguages()));
}

void tst_i18n::effectiveLanguage_data() {
  QTest::addColumn<QString>("environment");
  QTest::addColumn<QString>("setting");
  QTest::addColumn<QString>("code");
  const QString system = i18n::systemLanguage();
  QTest::newRow("neither") << QString() << QString() << system;
  QTest::newRow("setting") << QString() << u"ja"_s << u"ja"_s;
  QTest::newRow("environment wins") << u"de"_s << u"ja"_s << u"de"_s;
  QTest::newRow("unknown environment gives the system's") << u"xx"_s << u"ja"_s << system;
  QTest::newRow("unknown setting gives the system's") << QString() << u"xx"_s << system;
  QTest::newRow("codes are exact") << u"DE"_s << u"ja"_s << system;
}

void tst_i18n::effectiveLanguage() {
  QFETCH(QString, environment);
  QFETCH(QString, setting);
  if (!environment.isNull()) qputenv("TARNWICK_LANG", environment.toUtf8());
  AppSettings::instance().setLanguage(setting);
  QTEST(i18n::effectiveLanguage(), "code");
}

void tst_i18n::defaultLocale_data() {
  QTest::addColumn<QString>("locale");
  for (const i18n::Language& one : i18n::languages())
    QTest::addRow("%s", qPrintable(one.code)) << (one.code == u"en"_s ? u"en_US"_s : one.code);
}

void tst_i18n::defaultLocale() {
  QFETCH(QString, locale);
  qputenv("TARNWICK_LANG", QTest::currentDataTag());
  i18n::install(QCoreApplication::instance());
  QCOMPARE(QLocale(), QLocale(locale));
  if (locale == u"en_US"_s) QCOMPARE(QLocale().territory(), QLocale::UnitedStates);
}

void tst_i18n::carriesTenCatalogues() {
  for (const i18n::Language& one : i18n::languages()) {
    QTranslator catalogue;
    QVERIFY2(catalogue.load(u":/i18n/tarnwick_%1.qm"_s.arg(one.code)), qPrintable(one.code));
    QCOMPARE(QLocale(catalogue.language()), QLocale(one.code));
    qputenv("TARNWICK_LANG", one.code.toLatin1());
    i18n::install(QCoreApplication::instance());
    QCOMPARE(installed().constLast()->filePath(), catalogue.filePath()); // whether Qt has one or not
    qDeleteAll(installed());
  }
}

void tst_i18n::installsTheCatalogue() {
  qputenv("TARNWICK_LANG", "ko");
  i18n::install(QCoreApplication::instance(), kTestCatalogues);
  QCOMPARE(QCoreApplication::translate("TestOfLanguages", "Hello"), u"안녕"_s);
  QCOMPARE(installed().size(), 1);
  qDeleteAll(installed());
  QCOMPARE(QCoreApplication::translate("TestOfLanguages", "Hello"), u"Hello"_s);
}

void tst_i18n::qtsOwnTextsFollow() {
  QTemporaryDir folder;
  QVERIFY(QFile::copy(u":/test/i18n/tarnwick_ko.qm"_s, folder.filePath(u"qtbase_ko.qm"_s)));
  qputenv("TARNWICK_LANG", "ko");
  i18n::install(QCoreApplication::instance(), {.own = u":/i18n"_s, .qt = folder.path()});
  QCOMPARE(installed().size(), 2);
  QCOMPARE(QCoreApplication::translate("TestOfLanguages", "Hello"), u"안녕"_s);
  // Of what both have, ours holds.
  QVERIFY(installed().constLast()->filePath().startsWith(u":/i18n/"_s));
  qputenv("TARNWICK_LANG", "de");
  qDeleteAll(installed());
  i18n::install(QCoreApplication::instance(), {.own = u":/i18n"_s, .qt = folder.path()});
  QCOMPARE(installed().size(), 1);
}

void tst_i18n::englishPlurals() {
  qputenv("TARNWICK_LANG", "en");
  i18n::install(QCoreApplication::instance());
  const QDate today(2026, 11, 20);
  const auto age = [&](const QDate& day) { return fmt::age(day.startOfDay(), today); };
  QCOMPARE(age(today.addDays(-3)), u"3 days ago"_s);
  QCOMPARE(age(today.addDays(-8)), u"1 week ago"_s);
  QCOMPARE(age(today.addDays(-15)), u"2 weeks ago"_s);
  QCOMPARE(age(today.addMonths(-1).addDays(-4)), u"1 month ago"_s);
  QCOMPARE(age(today.addMonths(-5)), u"5 months ago"_s);
  QCOMPARE(age(today.addYears(-1)), u"1 year ago"_s);
  QCOMPARE(age(today.addYears(-2)), u"2 years ago"_s);
  const auto skipped = [](int count) {
    return QCoreApplication::translate("CleanupPage",
                                       "<b>%Ln file(s) skipped</b> because they were in use or protected. Quit the "
                                       "apps using them and rescan to remove them.",
                                       nullptr, count);
  };
  QVERIFY(skipped(1).startsWith(u"<b>1 file skipped</b> because it was"_s));
  QVERIFY(skipped(1200).startsWith(u"<b>1,200 files skipped</b> because they were"_s));
  const auto restored = [](int count) {
    return QCoreApplication::translate("AppState", "Restored %Ln file(s)", nullptr, count);
  };
  QCOMPARE(restored(1), u"Restored 1 file"_s);
  QCOMPARE(restored(0), u"Restored 0 files"_s);
  const auto files = [](int count) {
    return QCoreApplication::translate("Cli", "%1 files", nullptr, count).arg(fmt::count(count));
  };
  QCOMPARE(files(1), u"1 file"_s);
  QCOMPARE(files(1200), u"1,200 files"_s);
}

void tst_i18n::countsInEachLanguage_data() {
  QTest::addColumn<QString>("one");
  QTest::addColumn<QString>("two");
  QTest::addColumn<QString>("five");
  QTest::addColumn<QString>("twentyOne");
  const auto row = [](const char* code, const char16_t* one, const char16_t* two, const char16_t* five,
                      const char16_t* twentyOne) {
    QTest::newRow(code) << QString::fromUtf16(one) << QString::fromUtf16(two) << QString::fromUtf16(five)
                        << QString::fromUtf16(twentyOne);
  };
  row("en", u"1 snapshot", u"2 snapshots", u"5 snapshots", u"21 snapshots");
  row("de", u"1 Snapshot", u"2 Snapshots", u"5 Snapshots", u"21 Snapshots");
  row("ru", u"1 снимок", u"2 снимка", u"5 снимков", u"21 снимок");
}

void tst_i18n::countsInEachLanguage() {
  qputenv("TARNWICK_LANG", QTest::currentDataTag());
  i18n::install(QCoreApplication::instance(), kOwnCatalogues);
  const auto text = [](int n) { return QCoreApplication::translate("SystemData", "%1 snapshots", nullptr, n).arg(n); };
  QTEST(text(1), "one");
  QTEST(text(2), "two");
  QTEST(text(5), "five");
  QTEST(text(21), "twentyOne");
}

void tst_i18n::figuresInEachLanguage_data() {
  QTest::addColumn<QString>("count");
  QTest::addColumn<QString>("size");
  QTest::addColumn<QString>("smallSize");
  QTest::addColumn<QString>("age");
  const auto row = [](const char* code, const char16_t* count, const char16_t* size, const char16_t* smallSize,
                      const char16_t* age) {
    QTest::newRow(code) << QString::fromUtf16(count) << QString::fromUtf16(size) << QString::fromUtf16(smallSize)
                        << QString::fromUtf16(age);
  };
  row("en", u"1,234,567", u"1.5 GB", u"2 KB", u"today, 3 days ago");
  row("zh_CN", u"1,234,567", u"1.5 GB", u"2 KB", u"今天, 3 天前");
  row("zh_TW", u"1,234,567", u"1.5 GB", u"2 KB", u"今天, 3 天前");
  row("ja", u"1,234,567", u"1.5 GB", u"2 KB", u"今日, 3日前");
  row("ko", u"1,234,567", u"1.5 GB", u"2 KB", u"오늘, 3일 전");
  row("es", u"1.234.567", u"1,5 GB", u"2 KB", u"hoy, hace 3 días");
  row("fr", u"1 234 567", u"1,5 Go", u"2 Ko", u"aujourd’hui, il y a 3 jours");
  row("de", u"1.234.567", u"1,5 GB", u"2 KB", u"heute, vor 3 Tagen");
  row("pt_BR", u"1.234.567", u"1,5 GB", u"2 KB", u"hoje, há 3 dias");
  row("ru", u"1 234 567", u"1,5 ГБ", u"2 КБ", u"сегодня, 3 дня назад");
}

void tst_i18n::figuresInEachLanguage() {
  QFETCH(QString, count);
  qputenv("TARNWICK_LANG", QTest::currentDataTag());
  i18n::install(QCoreApplication::instance(), kOwnCatalogues);
  // Which of the blanks that keep a line together stands between groups changed from one Qt to the next.
  const auto plain = [](QString text) { return text.replace(QChar(0x202f), u' ').replace(QChar(0xa0), u' '); };
  QCOMPARE(plain(fmt::count(1'234'567)), count);
  QTEST(plain(fmt::bytes(1'500'000'000)), "size");
  QCOMPARE(fmt::bytes(1'500'000'000).contains(u' '),
           QByteArray(QTest::currentDataTag()) == "en"); // a size stays on its line
  QTEST(plain(fmt::bytes(2000)), "smallSize");
  const QDateTime now = QDateTime::currentDateTime();
  QTEST(plain(fmt::ageWithin(now) + u", "_s + fmt::ageWithin(now.addDays(-3))), "age");
}

void tst_i18n::kindsOfFilesAreTranslated() {
  qputenv("TARNWICK_LANG", "ru");
  i18n::install(QCoreApplication::instance(), kOwnCatalogues);
  QSet<QString> seen;
  for (const char* name : {"a.iso", "a.part", "a.mov", "a.zip", "a.exe", "a.mp3", "a.png", "a.pdf", "a.bak", "a"}) {
    const QString kind = LargeFileFinder::kindName(LargeFileFinder::kindFor(QString::fromLatin1(name)));
    QVERIFY2(kind.at(0).script() == QChar::Script_Cyrillic, name);
    seen.insert(kind);
  }
  QCOMPARE(seen.size(), 10);
}

void tst_i18n::missingCatalogueLeavesTheSourceTexts() {
  qputenv("TARNWICK_LANG", "ru");
  QTest::failOnWarning(QRegularExpression(u".*"_s));
  i18n::install(QCoreApplication::instance(), kTestCatalogues);
  QCOMPARE(installed().size(), 0);
  QCOMPARE(QCoreApplication::translate("TestOfLanguages", "Hello"), u"Hello"_s);
  QCOMPARE(QLocale(), QLocale(u"ru"_s));
}

QTEST_GUILESS_MAIN(tst_i18n)
#include "tst_i18n.moc"
