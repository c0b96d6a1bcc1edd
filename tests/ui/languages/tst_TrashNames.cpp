// What the Trash is called in each language on each host, where it stands alone and within sentences.
#include "core/platform.h"
#include "engines/categories.h"
#include "gallery/views.h"
#include "support/SampleHome.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/i18n.h"

#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Names {
  const char* code;
  const char16_t* macTitle;
  const char16_t* linuxTitle;
  const char16_t* macWithin; ///< a sentence
  const char16_t* linuxWithin;
};
constexpr Names kNames[] = {
    {"en", u"Trash", u"Trash", u"Trash", u"Trash"},
    {"zh_CN", u"废纸篓", u"回收站", u"废纸篓", u"回收站"},
    {"zh_TW", u"垃圾桶", u"垃圾桶", u"垃圾桶", u"垃圾桶"},
    {"ja", u"ゴミ箱", u"ゴミ箱", u"ゴミ箱", u"ゴミ箱"},
    {"ko", u"휴지통", u"휴지통", u"휴지통", u"휴지통"},
    {"es", u"Papelera", u"Papelera", u"Papelera", u"Papelera"},
    {"fr", u"Corbeille", u"Corbeille", u"Corbeille", u"Corbeille"},
    {"de", u"Papierkorb", u"Papierkorb", u"Papierkorb", u"Papierkorb"},
    {"pt_BR", u"Lixo", u"Lixeira", u"o Lixo", u"a Lixeira"},
    {"ru", u"Корзина", u"Корзина", u"Корзину", u"Корзину"},
};
/// A view that shows an action of macOS on both hosts.
constexpr const char* kMacQuestion = "system-data-question";
constexpr const char* kHosts[] = {"mac", "linux"};

void speak(const QByteArray& code) {
  qputenv("TARNWICK_LANG", code);
  i18n::install(QCoreApplication::instance(), {.own = u":/i18n"_s, .qt = u":/nowhere"_s});
}

QString titleOfTrash() {
  const QList<CategoryDef> all = categories::forThisPlatform();
  const auto trash = std::find_if(all.begin(), all.end(), [](const CategoryDef& one) { return one.id == u"trash"; });
  return trash == all.end() ? QString() : trash->title;
}

} // namespace

class TestTrashNames : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void everyLanguage();
  void names_data();
  void names();
  void windowHasNoOtherHostsName_data();
  void windowHasNoOtherHostsName();
};

void TestTrashNames::cleanup() {
  qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
  qunsetenv("TARNWICK_LANG");
  qunsetenv("TARNWICK_HOST");
}

void TestTrashNames::everyLanguage() {
  QStringList codes;
  for (const i18n::Language& one : i18n::languages()) codes << one.code;
  QStringList known;
  for (const Names& one : kNames) known << QString::fromLatin1(one.code);
  QCOMPARE(known, codes);
}

void TestTrashNames::names_data() {
  QTest::addColumn<QByteArray>("code");
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<QString>("title");
  QTest::addColumn<QString>("within");
  for (const Names& one : kNames)
    for (const char* host : kHosts) {
      const bool mac = qstrcmp(host, "mac") == 0;
      QTest::addRow("%s on %s", one.code, host)
          << QByteArray(one.code) << QByteArray(host) << QString::fromUtf16(mac ? one.macTitle : one.linuxTitle)
          << QString::fromUtf16(mac ? one.macWithin : one.linuxWithin);
    }
}

void TestTrashNames::names() {
  QFETCH(QByteArray, code);
  QFETCH(QByteArray, host);
  qputenv("TARNWICK_HOST", host);
  speak(code);
  QTEST(titleOfTrash(), "title");
  QTEST(platform::trashName(), "within");
}

void TestTrashNames::windowHasNoOtherHostsName_data() {
  QTest::addColumn<QByteArray>("code");
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<QString>("own");
  QTest::addColumn<QString>("others");
  const auto row = [](const char* code, const char* host, const char16_t* own, const char16_t* others) {
    QTest::addRow("%s on %s", code, host)
        << QByteArray(code) << QByteArray(host) << QString::fromUtf16(own) << QString::fromUtf16(others);
  };
  row("zh_CN", "mac", u"废纸篓", u"回收站");
  row("zh_CN", "linux", u"回收站", u"废纸篓");
  row("pt_BR", "mac", u"Lixo", u"Lixeira");
  row("pt_BR", "linux", u"Lixeira", u"Lixo");
}

void TestTrashNames::windowHasNoOtherHostsName() {
  QFETCH(QByteArray, code);
  QFETCH(QByteArray, host);
  QFETCH(QString, own);
  QFETCH(QString, others);
  qputenv("TARNWICK_HOST", host);
  speak(code);
  const FixtureHome home;
  fillSampleHome(home);
  qsizetype found = 0;
  for (const gallery::ViewEntry& view : gallery::views()) {
    if (host == "linux" && qstrcmp(view.name, kMacQuestion) == 0) continue;
    const std::unique_ptr<gallery::Scene> scene = gallery::openView(view);
    for (const QString& text : windowtest::allTexts(&scene->window)) {
      QVERIFY2(!text.contains(others), qPrintable(QString::fromLatin1(view.name) + u": "_s + text));
      found += text.contains(own) ? 1 : 0;
    }
  }
  QVERIFY2(found > 10, qPrintable(QString::number(found)));
}

int main(int argc, char** argv) { return uitest::run<TestTrashNames>(argc, argv); }

#include "tst_TrashNames.moc"
