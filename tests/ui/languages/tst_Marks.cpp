// The marks between, before and after words, which each language sets in its own way.
#include "core/fmt.h"
#include "support/uitest.h"
#include "ui/i18n.h"
#include "ui/pages/SystemDataWords.h"
#include "ui/visuals/DiskOrb.h"
#include "ui/visuals/Gauge.h"
#include "ui/visuals/ProgressRing.h"
#include "ui/visuals/Sparkline.h"
#include "ui/visuals/StackBar.h"

#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// How one language writes.
struct Marks {
  const char* code;
  const char16_t* list;
  const char16_t* percent;
  const char16_t* named;    ///< something and its share
  const char16_t* question; ///< around %1
};
constexpr Marks kMarks[] = {
    {"en", u"A, B, C", u"62%", u"A: 62%", u"%1?"},
    {"zh_CN", u"A、B、C", u"62%", u"A：62%", u"要%1吗？"},
    {"zh_TW", u"A、B、C", u"62%", u"A：62%", u"要%1嗎？"},
    {"ja", u"A、B、C", u"62%", u"A：62%", u"%1？"},
    {"ko", u"A, B, C", u"62%", u"A: 62%", u"%1?"},
    {"es", u"A, B, C", u"62\u00a0%", u"A: 62\u00a0%", u"¿%1?"},
    {"fr", u"A, B, C", u"62\u00a0%", u"A\u00a0: 62\u00a0%", u"%1\u00a0?"},
    {"de", u"A, B, C", u"62\u00a0%", u"A: 62\u00a0%", u"%1?"},
    {"pt_BR", u"A, B, C", u"62%", u"A: 62%", u"%1?"},
    {"ru", u"A, B, C", u"62\u00a0%", u"A: 62\u00a0%", u"%1?"},
};

QString text(const char16_t* characters) { return QString::fromUtf16(characters); }

} // namespace

class TestMarks : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void everyLanguage();
  void marks_data();
  void marks();
  void painted_data() { marks_data(); }
  void painted();
  void questions_data() { marks_data(); }
  void questions();

 private:
  static const Marks& speak();
};

/// In the language of this case.
const Marks& TestMarks::speak() {
  const QByteArray code = QTest::currentDataTag();
  qputenv("TARNWICK_LANG", code);
  i18n::install(QCoreApplication::instance(), {.own = u":/i18n"_s, .qt = u":/nowhere"_s});
  return *std::find_if(std::begin(kMarks), std::end(kMarks), [&](const Marks& one) { return code == one.code; });
}

void TestMarks::cleanup() {
  qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
  qunsetenv("TARNWICK_LANG");
}

void TestMarks::everyLanguage() {
  QStringList codes;
  for (const i18n::Language& one : i18n::languages()) codes << one.code;
  QStringList known;
  for (const Marks& one : kMarks) known << QString::fromLatin1(one.code);
  QCOMPARE(known, codes);
}

void TestMarks::marks_data() {
  QTest::addColumn<bool>("unused");
  for (const Marks& one : kMarks) QTest::newRow(one.code) << true;
}

void TestMarks::marks() {
  const Marks& expected = speak();
  QCOMPARE(fmt::list({u"A"_s, u"B"_s, u"C"_s}), text(expected.list));
  QCOMPARE(fmt::percent(0.62), text(expected.percent));
}

void TestMarks::painted() {
  const Marks& expected = speak();
  ui::Gauge gauge;
  gauge.setValue(0.62);
  QVERIFY2(gauge.valueText().contains(text(expected.percent)), qPrintable(gauge.valueText()));
  ui::DiskOrb orb;
  orb.setDisk(100, 62, 0);
  QVERIFY2(orb.valueText().contains(text(expected.percent)), qPrintable(orb.valueText()));
  ui::ProgressRing ring;
  ring.setProgress(0.62);
  QCOMPARE(ring.valueText(), text(expected.percent));
  ui::StackBar bar(22);
  bar.setSegments({{.bytes = 62, .colour = Qt::red, .tip = u"A"_s}}, 100);
  QCOMPARE(bar.valueText(), text(expected.named));
  ui::Sparkline line;
  line.setValueFormat([](qint64 value) { return QString(QChar(u'A' + char16_t(value))); });
  line.setValues({0, 1, 2});
  QCOMPARE(line.valueText(), text(expected.list));
}

void TestMarks::questions() {
  const Marks& expected = speak();
  SystemDataItem item;
  item.action = SystemDataItem::MoveToTrash;
  const QString label = item.actionLabel();
  QVERIFY(!label.isEmpty());
  QCOMPARE(ui::SystemDataWords::questionFor(item).title, text(expected.question).arg(label));
}

int main(int argc, char** argv) { return uitest::run<TestMarks>(argc, argv); }

#include "tst_Marks.moc"
