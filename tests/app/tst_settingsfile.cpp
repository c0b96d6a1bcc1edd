// What the bytes of a settings store tell of its state.
#include "app/settingsfile.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using settingsfile::Memory;

class tst_settingsfile : public QObject {
  Q_OBJECT

 private slots:
  void ini_data();
  void ini();
  void whatTheProgramWritesIsWhole();
  void propertyList_data();
  void propertyList();
  void memoryRoundTrips_data();
  void memoryRoundTrips();
  void damagedMemory_data();
  void damagedMemory();
  void cutMemoryIsDamaged();
};

void tst_settingsfile::ini_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<bool>("whole");
  const auto row = [](const QByteArray& text, bool whole) {
    QTest::newRow(text.isEmpty() ? "nothing" : text.toPercentEncoding(" []=;#\"\\/*@,.()").constData())
        << text << whole;
  };
  row("", true);
  row("\n\n  \n", true);
  row("[clean]\nexclusions=**/.git\n", true);
  row("[clean]\r\nexclusions=**/.git\r\n", true);
  row("\xef\xbb\xbf[clean]\nexclusions=a\n", true);
  row("; a remark with \" and \x20= and [\n[clean]\na=b\n", true);
  row("a=b ; a remark\n[clean]", true);
  row("  a = b\n\t[x]\n", true);
  row("a=\"b; c\nd\"\n", true);
  row("a=\"b\\\"c\"\n", true);
  row("a=b\\\nc\n", true);
  row("a=\xc3\xbc\n", true);
  row("a=\n", true);
  row("[]\n", true);
  row("a=b\\", true);

  row("[clean]\nexclusions\n", false);
  row("[clean\nexclusions=a\n", false);
  row("nothing of the kind", false);
  row("# another kind of remark\n", false);
  row("a=\"b\n", false);
  row("a=\"b\\\"\n", false);
  row("a=b; [x\n", true);     // behind the semicolon anything goes
  row("a=b\n;\n[x\n", false); // but not behind an empty remark
  row(QByteArray("a=b\0\n", 5), false);
  row(QByteArray(64, '\0'), false);
  row("a=b\x01\n", false);
  row("a=\xff\n", false);
  row("a=\xc3", false);
  row("\x89PNG\r\n\x1a\n", false);
}

void tst_settingsfile::ini() {
  QFETCH(QByteArray, text);
  QTEST(settingsfile::isIni(text), "whole");
}

// Every character in a key, a section and a value, alone and in a list.
void tst_settingsfile::whatTheProgramWritesIsWhole() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"s.ini"_s);
  QString all;
  for (char16_t c = 0; c < 0x300; ++c) all += QChar(c);
  all += u"清理 \\\"; = [ ] @ % , \r\n"_s;
  {
    QSettings store(path, QSettings::IniFormat);
    store.setValue(u"a/"_s + all, all);
    store.setValue(all + u"/b"_s, QStringList{all, u""_s, all});
    store.setValue(u"c"_s, QByteArray("\0\1\xff\x80", 4));
    store.setValue(u"d"_s, QVariantMap{{all, 1}});
    store.setValue(u"e"_s, QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3, 4)));
    for (char16_t c = 1; c < 0x100; ++c) store.setValue(u"k"_s + QChar(c), QString(QChar(c)));
  }
  QFile file(path);
  QVERIFY(file.open(QIODevice::ReadOnly));
  const QByteArray text = file.readAll();
  QVERIFY(text.size() > 5000);
  QVERIFY2(settingsfile::isIni(text), text.constData());
}

void tst_settingsfile::propertyList_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::addColumn<bool>("whole");
  const QByteArray xml = "<?xml version=\"1.0\"?>\n<plist version=\"1.0\"><dict/></plist>\n";
  QTest::newRow("nothing") << QByteArray() << true;
  QTest::newRow("xml") << xml << true;
  QTest::newRow("xml that was cut") << xml.chopped(4) << false;
  QTest::newRow("other xml") << QByteArray("<?xml version=\"1.0\"?>\n<html></html>") << false;
  QTest::newRow("binary") << QByteArray("bplist00") + QByteArray(40, '\1') << true;
  QTest::newRow("binary that was cut") << QByteArray("bplist00") + QByteArray(32, '\1') << false;
  QTest::newRow("zeros") << QByteArray(100, '\0') << false;
  QTest::newRow("ini") << QByteArray("[clean]\na=b\n") << false;
}

void tst_settingsfile::propertyList() {
  QFETCH(QByteArray, bytes);
  QTEST(settingsfile::isPropertyList(bytes), "whole");
}

void tst_settingsfile::memoryRoundTrips_data() {
  QTest::addColumn<bool>("any");
  QTest::addColumn<QStringList>("rules");
  QTest::newRow("no list") << false << QStringList();
  QTest::newRow("an empty list") << true << QStringList();
  QTest::newRow("rules") << true << QStringList{u"**/.git"_s, u"~/Prüfung \"清理\"\\"_s, u""_s, u"a\nb"_s};
}

void tst_settingsfile::memoryRoundTrips() {
  QFETCH(bool, any);
  QFETCH(QStringList, rules);
  Memory memory;
  if (any) memory.rules = rules;
  const auto again = settingsfile::fromBytes(settingsfile::toBytes(memory));
  QVERIFY(again);
  QVERIFY(*again == memory);
}

void tst_settingsfile::damagedMemory_data() {
  QTest::addColumn<QByteArray>("bytes");
  for (const char* bytes :
       {"", "{", "{}", "[]", "null", "rules", "{\"rules\":[]}", "{\"version\":2,\"rules\":[]}",
        "{\"version\":\"1\",\"rules\":[]}", "{\"version\":1,\"rules\":\"a\"}", "{\"version\":1,\"rules\":null}",
        "{\"version\":1,\"rules\":[1]}", "{\"version\":1,\"rules\":[\"a\",null]}"})
    QTest::newRow(bytes) << QByteArray(bytes);
}

void tst_settingsfile::damagedMemory() {
  QFETCH(QByteArray, bytes);
  QVERIFY(!settingsfile::fromBytes(bytes));
}

void tst_settingsfile::cutMemoryIsDamaged() {
  const QByteArray whole = settingsfile::toBytes({QStringList{u"**/.git"_s, u"~/Keep"_s}}).trimmed();
  QVERIFY(settingsfile::fromBytes(whole));
  for (qsizetype length = 0; length < whole.size(); ++length) QVERIFY(!settingsfile::fromBytes(whole.first(length)));
}

QTEST_GUILESS_MAIN(tst_settingsfile)
#include "tst_settingsfile.moc"
