// What Qt says in the window by itself follows the language, also where Qt's own catalogues aren't installed.
#include "support/uitest.h"
#include "ui/i18n.h"

#include <QAction>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

class tst_QtTexts : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { qDeleteAll(qApp->findChildren<QTranslator*>()); }

  void theMenuOfATextField_data() { languages(); }
  void theMenuOfATextField();
  void keys();

 private:
  static void languages();
  static void speak(const QByteArray& language);
};

void tst_QtTexts::init() { qunsetenv("TARNWICK_LANG"); }

void tst_QtTexts::languages() {
  QTest::addColumn<QString>("language");
  for (const i18n::Language& one : i18n::languages())
    if (one.code != u"en"_s) QTest::newRow(qPrintable(one.code)) << one.code;
}

void tst_QtTexts::speak(const QByteArray& language) {
  qputenv("TARNWICK_LANG", language);
  i18n::install(qApp, {.own = u":/i18n"_s, .qt = u":/nowhere"_s});
}

void tst_QtTexts::theMenuOfATextField() {
  QFETCH(QString, language);
  const auto texts = [] {
    QLineEdit field;
    const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    QStringList all;
    for (const QAction* action : menu->actions())
      if (!action->isSeparator()) all << action->text().section(u'\t', 0, 0);
    return all;
  };
  const QStringList english = texts();
  QCOMPARE(english.size(), 7);
  speak(language.toLatin1());
  const QStringList own = texts();
  QCOMPARE(own.size(), english.size());
  for (qsizetype i = 0; i < own.size(); ++i) QVERIFY2(own.at(i) != english.at(i), qPrintable(own.at(i)));
  QCOMPARE(QSet<QString>(own.begin(), own.end()).size(), own.size());
}

void tst_QtTexts::keys() {
  const QKeySequence keys(u"Ctrl+Shift+L"_s);
  QCOMPARE(keys.toString(QKeySequence::NativeText), u"Ctrl+Shift+L"_s);
  speak("de");
  QCOMPARE(keys.toString(QKeySequence::NativeText), u"Strg+Umschalt+L"_s);
  QCOMPARE(keys.toString(QKeySequence::PortableText), u"Ctrl+Shift+L"_s);
}

int main(int argc, char** argv) { return uitest::run<tst_QtTexts>(argc, argv); }

#include "tst_QtTexts.moc"
