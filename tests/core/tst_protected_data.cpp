/// The names of protected app data.
#include "core/appguard.h"
#include "core/patterns.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class TestProtectedData : public QObject {
  Q_OBJECT

 private slots:
  void paths_data();
  void paths();
  void everyPattern();
};

void TestProtectedData::paths_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<bool>("isProtected");
  QTest::newRow("empty") << u""_s << false;
  QTest::newRow("root") << u"/"_s << false;
  QTest::newRow("1password") << u"/Users/me/Library/Caches/com.1password.1password"_s << true;
  QTest::newRow("1PASSWORD") << u"/USERS/ME/LIBRARY/CACHES/COM.1PASSWORD.1PASSWORD"_s << true;
  QTest::newRow("safari") << u"/Users/me/Library/Caches/com.apple.Safari"_s << false;
  QTest::newRow("rime") << u"/Users/me/Library/Application Support/Rime/x"_s << true;
  QTest::newRow("rimeworld") << u"/Users/me/Library/Application Support/Rimeworld/x"_s << false;
  QTest::newRow("keeper") << u"/a/Keeper Password Security"_s << true;
  QTest::newRow("keeper, other way") << u"/a/Security Keeper"_s << false;
}

void TestProtectedData::paths() {
  QFETCH(QString, path);
  QTEST(appguard::isProtectedAppData(path), "isProtected");
}

void TestProtectedData::everyPattern() {
  for (const auto list : {patterns::common(), patterns::linuxAdditions()})
    for (const std::string_view pattern : list) {
      const QString text = QString::fromLatin1(pattern.data(), static_cast<qsizetype>(pattern.size()));
      QVERIFY2(appguard::isProtectedName(QString(text).replace(u'*', u"xy"_s)), qPrintable(text));
    }
}

QTEST_GUILESS_MAIN(TestProtectedData)
#include "tst_protected_data.moc"
