#include "core/fmt.h"

#include "support/FixtureHome.h"

#include <QDir>
#include <QLocale>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {
QDateTime day(int year, int month, int dayOfMonth) { return QDate(year, month, dayOfMonth).startOfDay(); }

/// Stands for a language that turns the order of number and unit around and says its plurals by n.
class Catalogue : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char*, int n) const override {
    if (qstrcmp(context, "fmt") != 0) return {};
    const QString key = QString::fromUtf8(text);
    if (key == u"%1 %2"_s) return u"%2~%1"_s;
    if (key == u"KB"_s) return u"Ko"_s;
    if (key == u"%1%"_s) return u"%1 per cent"_s;
    if (key == u", "_s) return u"、"_s;
    if (key == u"Yesterday"_s) return u"Gestern, am Tag davor"_s;
    if (key == u"%n month(s) ago"_s) return n == 1 ? u"one month"_s : u"%n months"_s;
    return {};
  }
};
} // namespace

class TestFmt : public QObject {
  Q_OBJECT

 private slots:
  void init() { QLocale::setDefault(QLocale(u"en_US"_s)); }

  void unitIsDecimal() { QCOMPARE(fmt::unit(), 1000); }

  void bytes_data() {
    QTest::addColumn<qint64>("n");
    QTest::addColumn<QString>("text");
    const auto row = [](qint64 n, const char* text) {
      QTest::newRow(qPrintable(QString::number(n))) << n << QString::fromUtf8(text);
    };
    row(std::numeric_limits<qint64>::min(), "0 KB");
    row(-5, "0 KB");
    row(0, "0 KB");
    row(1, "1 KB");
    row(999, "1 KB");
    row(1000, "1 KB");
    row(1499, "1 KB");
    row(1500, "2 KB");
    row(999'499, "999 KB");
    row(999'500, "1,000 KB");
    row(999'999, "1,000 KB");
    row(1'000'000, "1 MB");
    row(1'499'999, "1 MB");
    row(1'500'000, "2 MB");
    row(999'600'000, "1,000 MB");
    row(999'999'999, "1,000 MB");
    row(1'000'000'000, "1.0 GB");
    row(1'240'000'000, "1.2 GB");
    row(1'260'000'000, "1.3 GB");
    row(99'949'999'999, "99.9 GB");
    row(99'960'000'000, "100.0 GB");
    row(100'000'000'000, "100 GB");
    row(999'999'999'999, "1,000 GB");
    row(1'000'000'000'000, "1.0 TB");
    row(1'234'560'000'000'000, "1,234.6 TB");
  }
  void bytes() {
    QFETCH(qint64, n);
    QTEST(fmt::bytes(n), "text");
  }

  void numbersFollowTheLocale() {
    QCOMPARE(fmt::count(1234567), u"1,234,567"_s);
    QCOMPARE(fmt::count(-1234), u"-1,234"_s);
    QLocale::setDefault(QLocale(u"de_DE"_s));
    QCOMPARE(fmt::count(1234567), u"1.234.567"_s);
    QCOMPARE(fmt::bytes(1'500'000'000), u"1,5 GB"_s);
    QCOMPARE(fmt::bytes(999'999'999), u"1.000 MB"_s);
  }

  void aCatalogueTurnsTheOrderAndSaysThePlural() {
    Catalogue catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    QCOMPARE(fmt::bytes(1500), u"Ko~2"_s);
    QCOMPARE(fmt::bytes(0), u"Ko~0"_s);
    QCOMPARE(fmt::percent(0.62), u"62 per cent"_s);
    QCOMPARE(fmt::list({u"a"_s, u"b"_s, u"c"_s}), u"a、b、c"_s);
    QCOMPARE(fmt::listSeparator(), u"、"_s);
    QCOMPARE(fmt::age(day(2024, 3, 1), QDate(2024, 4, 1)), u"one month"_s);
    QCOMPARE(fmt::age(day(2024, 3, 1), QDate(2024, 6, 1)), u"3 months"_s);
    QCoreApplication::removeTranslator(&catalogue);
  }

  void shares_data() {
    QTest::addColumn<double>("share");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0.0 << u"0%"_s;
    QTest::newRow("below a half") << 0.0049 << u"0%"_s;
    QTest::newRow("a half") << 0.005 << u"1%"_s;
    QTest::newRow("some") << 0.62 << u"62%"_s;
    QTest::newRow("all") << 1.0 << u"100%"_s;
  }
  void shares() {
    QFETCH(double, share);
    QTEST(fmt::percent(share), "text");
  }

  void lists() {
    QCOMPARE(fmt::list({}), QString());
    QCOMPARE(fmt::list({u"Slack"_s}), u"Slack"_s);
    QCOMPARE(fmt::list({u"Slack"_s, u"Zoom"_s, u"x%1"_s}), u"Slack, Zoom, x%1"_s);
  }

  void months_data() {
    QTest::addColumn<QDateTime>("when");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<int>("months");
    QTest::newRow("invalid") << QDateTime() << QDate(2024, 5, 5) << 0;
    QTest::newRow("the same day") << day(2024, 5, 5) << QDate(2024, 5, 5) << 0;
    QTest::newRow("future") << day(2025, 5, 5) << QDate(2024, 5, 5) << 0;
    QTest::newRow("the end of January to the end of February") << day(2023, 1, 31) << QDate(2023, 2, 28) << 0;
    QTest::newRow("the end of January to the first of March") << day(2023, 1, 31) << QDate(2023, 3, 1) << 1;
    QTest::newRow("a day short of a month") << day(2024, 4, 6) << QDate(2024, 5, 5) << 0;
    QTest::newRow("a month") << day(2024, 4, 5) << QDate(2024, 5, 5) << 1;
    QTest::newRow("over the year's end") << day(2023, 12, 31) << QDate(2024, 1, 31) << 1;
    QTest::newRow("a day short of a year") << day(2023, 5, 6) << QDate(2024, 5, 5) << 11;
    QTest::newRow("a year") << day(2023, 5, 5) << QDate(2024, 5, 5) << 12;
  }
  void months() {
    QFETCH(QDateTime, when);
    QFETCH(QDate, today);
    QTEST(fmt::monthsSince(when, today), "months");
  }

  void age_data() {
    QTest::addColumn<QDateTime>("when");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QString>("text");
    const QDate today(2024, 5, 15);
    const auto back = [&](int days) { return today.addDays(-days).startOfDay(); };
    QTest::newRow("invalid") << QDateTime() << today << QString();
    QTest::newRow("future") << back(-3) << today << u"Today"_s;
    QTest::newRow("the last second of today") << QDateTime(today, QTime(23, 59, 59)) << today << u"Today"_s;
    QTest::newRow("the last second of yesterday")
        << QDateTime(today.addDays(-1), QTime(23, 59, 59)) << today << u"Yesterday"_s;
    QTest::newRow("2 days") << back(2) << today << u"2 day(s) ago"_s;
    QTest::newRow("6 days") << back(6) << today << u"6 day(s) ago"_s;
    QTest::newRow("7 days") << back(7) << today << u"1 week(s) ago"_s;
    QTest::newRow("13 days") << back(13) << today << u"1 week(s) ago"_s;
    QTest::newRow("14 days") << back(14) << today << u"2 week(s) ago"_s;
    QTest::newRow("30 days, a whole month") << back(30) << today << u"4 week(s) ago"_s;
    QTest::newRow("31 days, a whole month") << back(31) << today << u"1 month(s) ago"_s;
    QTest::newRow("31 days, no whole month") << day(2024, 1, 30) << QDate(2024, 3, 1) << u"1 month(s) ago"_s;
    QTest::newRow("11 months") << day(2023, 5, 16) << today << u"11 month(s) ago"_s;
    QTest::newRow("12 months") << day(2023, 5, 15) << today << u"1 year(s) ago"_s;
    QTest::newRow("23 months") << day(2022, 5, 16) << today << u"1 year(s) ago"_s;
    QTest::newRow("10 years") << day(2014, 5, 15) << today << u"10 year(s) ago"_s;
  }
  void age() {
    QFETCH(QDateTime, when);
    QFETCH(QDate, today);
    QTEST(fmt::age(when, today), "text");
  }

  void theClockIsTheDefaultForToday() {
    const QDateTime now = QDateTime::currentDateTime();
    QCOMPARE(fmt::age(now.addDays(-400)), fmt::age(now.addDays(-400), QDate::currentDate()));
    QCOMPARE(fmt::age(now.addDays(40)), u"Today"_s);
    QCOMPARE(fmt::monthsSince(now.addYears(-2)), 24);
  }

  void countInSpanish_data() {
    QTest::addColumn<qint64>("n");
    QTest::addColumn<QString>("text");
    QTest::newRow("4 digits") << qint64{1234} << u"1234"_s;
    QTest::newRow("5 digits") << qint64{12'345} << u"12.345"_s;
    QTest::newRow("7 digits") << qint64{1'234'567} << u"1.234.567"_s;
    QTest::newRow("12 digits") << qint64{123'456'789'012} << u"123.456.789.012"_s;
    QTest::newRow("below none") << qint64{-1'234'567} << u"-1.234.567"_s;
    QTest::newRow("6 digits below none") << qint64{-123'456} << u"-123.456"_s;
  }
  void countInSpanish() {
    QFETCH(qint64, n);
    QLocale::setDefault(QLocale(u"es"_s));
    QTEST(fmt::count(n), "text");
  }

  void ageWithinASentenceBeginsSmall() {
    const QDateTime now = QDateTime::currentDateTime();
    QCOMPARE(fmt::ageWithin(now.addDays(3)), u"today"_s);
    QCOMPARE(fmt::ageWithin(now.addDays(-3)), u"3 day(s) ago"_s);
    QCOMPARE(fmt::ageWithin(QDateTime()), QString());
    Catalogue catalogue;
    QCoreApplication::installTranslator(&catalogue);
    QCOMPARE(fmt::ageWithin(now.addDays(-1)), u"gestern, am Tag davor"_s); // only the first letter
  }

  void pluralKeepsTheFormOfWhatDoesNotFit() {
    for (const int n : {0, 1, 2, 21, 1'000'000, std::numeric_limits<int>::max()}) QCOMPARE(fmt::plural(n), n);
    for (const qint64 more : {0, 1, 2, 11, 21, 99}) {
      const int n = fmt::plural(5'000'000'000 + more);
      QVERIFY(n > 1);
      QCOMPARE(n % 100, int(more));
    }
    QVERIFY(fmt::plural(std::numeric_limits<qint64>::max()) > 1);
  }

  void clock() {
    QCOMPARE(fmt::clock(-1), u"0:00"_s);
    QCOMPARE(fmt::clock(0), u"0:00"_s);
    QCOMPARE(fmt::clock(9), u"0:09"_s);
    QCOMPARE(fmt::clock(59), u"0:59"_s);
    QCOMPARE(fmt::clock(60), u"1:00"_s);
    QCOMPARE(fmt::clock(3725), u"62:05"_s);
    QCOMPARE(fmt::clock(6'000'000'000), u"100000000:00"_s);
  }

  void shortPath() {
    const FixtureHome home;
    QCOMPARE(fmt::shortPath(home.path(u"a/b c"_s)), u"~/a/b c"_s);
    QCOMPARE(fmt::shortPath(home.path()), u"~"_s);
    QCOMPARE(fmt::shortPath(home.path().toUpper() + u"/x"_s), u"~/x"_s);
    QCOMPARE(fmt::shortPath(home.path() + u"backup/x"_s), u"~backup/x"_s);
    QCOMPARE(fmt::shortPath(u"/elsewhere"_s + home.path()), u"/elsewhere"_s + home.path());
    QCOMPARE(fmt::shortPath(QString()), QString());
    // A home folder that is none would be at the start of every path.
    qputenv("HOME", "/");
    QCOMPARE(fmt::shortPath(u"/elsewhere/x"_s), u"/elsewhere/x"_s);
  }
};

QTEST_GUILESS_MAIN(TestFmt)
#include "tst_fmt.moc"
