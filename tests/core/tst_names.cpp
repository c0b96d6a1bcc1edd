#include "core/names.h"

#include <QTest>

using namespace Qt::StringLiterals;
using names::Codec;

Q_DECLARE_METATYPE(names::Codec)

namespace {
const QByteArray kComposedRaw = "caf\xc3\xa9";
const QByteArray kDecomposedRaw = "cafe\xcc\x81";
const QString kComposed = u"caf\u00e9"_s;
const QString kDecomposed = u"cafe\u0301"_s;
} // namespace

class TestNames : public QObject {
  Q_OBJECT

 private slots:
  void encodes_data();
  void encodes();
  void decodes_data();
  void decodes();
  void survives_data();
  void survives();
  void keepsEveryNameOfTextApart();
  void replacesTheEndOfABuffer();
  void escapesText_data();
  void escapesText();
  void escapesBytes_data();
  void escapesBytes();
};

void TestNames::encodes_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QByteArray>("bytes");
  QTest::addColumn<QByteArray>("normalized");
  QTest::newRow("plain") << u"Caches"_s << "Caches"_ba
                         << "Caches"_ba;
  QTest::newRow("path") << u"/a/b c"_s << "/a/b c"_ba
                        << "/a/b c"_ba;
  QTest::newRow("composed") << kComposed << kComposedRaw << kDecomposedRaw;
  QTest::newRow("decomposed") << kDecomposed << kDecomposedRaw << kDecomposedRaw;
  QTest::newRow("beyond the first plane") << u"\U0001f5d1"_s << "\xf0\x9f\x97\x91"_ba
                                          << "\xf0\x9f\x97\x91"_ba;
  QTest::newRow("zero") << QString(u"a\0b"_s) << "a\xc0\x80"_ba + "b"
                        << "a\xc0\x80"_ba + "b";
  QTest::newRow("half a pair") << QString(QChar(0xd83d)) + u"x"_s << "\xed\xa0\xbdx"_ba
                               << "\xed\xa0\xbdx"_ba;
  QTest::newRow("the other half, then a pair")
      << QString(QChar(0xdc00)) + u"\U0001f5d1"_s << "\xed\xb0\x80\xf0\x9f\x97\x91"_ba
      << "\xed\xb0\x80\xf0\x9f\x97\x91"_ba;
  QTest::newRow("nothing") << QString() << QByteArray() << QByteArray();
}

void TestNames::encodes() {
  QFETCH(QString, text);
  QTEST(names::encode(text, Codec::Bytes), "bytes");
  QTEST(names::encode(text, Codec::Normalized), "normalized");
}

void TestNames::decodes_data() {
  QTest::addColumn<QByteArray>("raw");
  QTest::addColumn<QString>("bytes");
  QTest::addColumn<QString>("normalized");
  QTest::newRow("plain") << "Caches"_ba << u"Caches"_s << u"Caches"_s;
  QTest::newRow("composed") << kComposedRaw << kComposed << kComposed;
  QTest::newRow("decomposed") << kDecomposedRaw << kDecomposed << kComposed;
  QTest::newRow("no text") << "a\xff z"_ba << u"a\ufffd z"_s << u"a\ufffd z"_s;
  QTest::newRow("cut sequence") << "a\xe2\x82"_ba << u"a\ufffd"_s << u"a\ufffd"_s;
  QTest::newRow("byte order mark in front") << "\xef\xbb\xbfx"_ba << u"\ufeffx"_s << u"\ufeffx"_s;
  QTest::newRow("two of them") << "\xef\xbb\xbf\xef\xbb\xbf"_ba << u"\ufeff\ufeff"_s << u"\ufeff\ufeff"_s;
  QTest::newRow("nothing") << QByteArray() << QString() << QString();
}

void TestNames::decodes() {
  QFETCH(QByteArray, raw);
  QFETCH(QString, bytes);
  QFETCH(QString, normalized);
  // How many replacement characters a broken sequence gives is Qt's affair.
  const auto once = [](QString text) { return text.replace(u"\ufffd\ufffd"_s, u"\ufffd"_s); };
  QCOMPARE(once(names::decode(raw, Codec::Bytes)), bytes);
  QCOMPARE(once(names::decode(raw, Codec::Normalized)), normalized);
}

void TestNames::survives_data() {
  QTest::addColumn<QByteArray>("raw");
  QTest::addColumn<bool>("bytes");
  QTest::addColumn<bool>("normalized");
  QTest::newRow("plain") << "Caches"_ba << true << true;
  QTest::newRow("composed") << kComposedRaw << true << false;
  QTest::newRow("decomposed") << kDecomposedRaw << true << true;
  QTest::newRow("byte order mark") << "\xef\xbb\xbfx"_ba << true << true;
  QTest::newRow("replacement character") << "\xef\xbf\xbd"_ba << true << true;
  QTest::newRow("Latin-1") << "caf\xe9"_ba << false << false;
  QTest::newRow("cut sequence") << "a\xe2\x82"_ba << false << false;
  QTest::newRow("overlong slash") << "\xc0\xaf"_ba << false << false;
  QTest::newRow("half a pair") << "\xed\xa0\xbd"_ba << false << false;
  QTest::newRow("zero in two bytes") << "a\xc0\x80"_ba << false << false;
}

void TestNames::survives() {
  QFETCH(QByteArray, raw);
  QTEST(names::survives(raw, Codec::Bytes), "bytes");
  QTEST(names::survives(raw, Codec::Normalized), "normalized");
}

// Every name of one, two or three bytes: with the codec of bytes, what survives comes back the same, and no two names
// that survive have one text.
void TestNames::keepsEveryNameOfTextApart() {
  QHash<QString, QByteArray> seen;
  const auto check = [&](const QByteArray& raw) {
    if (!names::survives(raw, Codec::Bytes)) return true;
    const QString text = names::decode(raw, Codec::Bytes);
    return names::encode(text, Codec::Bytes) == raw && seen.value(text, raw) == raw && (seen[text] = raw, true);
  };
  for (int a = 1; a < 256; ++a) {
    for (int b = 0; b < 256; ++b) {
      QByteArray raw(1, static_cast<char>(a));
      if (b > 0) raw += static_cast<char>(b);
      QVERIFY2(check(raw), raw.toHex().constData());
      raw += '\xbf';
      QVERIFY2(check(raw), raw.toHex().constData());
    }
  }
  QVERIFY(seen.size() > 127 * 127);
}

void TestNames::replacesTheEndOfABuffer() {
  QString text = u"/home/old name"_s;
  QVERIFY(names::decodeAt(&text, 6, "a rather longer name than that", Codec::Bytes));
  QCOMPARE(text, u"/home/a rather longer name than that"_s);
  const QString copy = text;
  QVERIFY(names::decodeAt(&text, 6, kDecomposedRaw, Codec::Normalized));
  QCOMPARE(text, u"/home/"_s + kComposed);
  QCOMPARE(copy, u"/home/a rather longer name than that"_s);
  QVERIFY(!names::decodeAt(&text, 6, "caf\xe9", Codec::Bytes));
  QCOMPARE(text, u"/home/caf\ufffd"_s);
  QVERIFY(names::decodeAt(&text, 0, "", Codec::Bytes));
  QCOMPARE(text, QString());
  QVERIFY(names::append(&text, "x", Codec::Bytes));
  QVERIFY(!names::append(&text, kComposedRaw, Codec::Normalized));
  QCOMPARE(text, u"x"_s + kComposed);
}

void TestNames::escapesText_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QString>("escaped");
  QTest::newRow("plain") << u"/home/me/caf\u00e9 \U0001f5d1"_s << u"/home/me/caf\u00e9 \U0001f5d1"_s;
  QTest::newRow("backslash") << u"a\\nb"_s << u"a\\nb"_s;
  QTest::newRow("line breaks") << u"a\nb\rc\td"_s << u"a\\nb\\rc\\td"_s;
  QTest::newRow("escape sequence") << u"\x1b[2J"_s << u"\\x1b[2J"_s;
  QTest::newRow("delete") << u"\x7f"_s << u"\\x7f"_s;
  QTest::newRow("zero") << QString(QChar(u'\0')) << u"\\x00"_s;
  QTest::newRow("upper controls") << u"\u0085\u009b"_s << u"\\u{85}\\u{9b}"_s;
  QTest::newRow("separators") << u"\u2028\u2029"_s << u"\\u{2028}\\u{2029}"_s;
  QTest::newRow("overrides") << u"\u202agpj.\u202exe\u2066\u2069"_s << u"\\u{202a}gpj.\\u{202e}xe\\u{2066}\\u{2069}"_s;
  QTest::newRow("marks") << u"\u200e\u200f\u061c"_s << u"\\u{200e}\\u{200f}\\u{61c}"_s;
  QTest::newRow("half a pair") << QString(QChar(0xd83d)) + u"x"_s + QChar(0xdc00) << u"\\u{d83d}x\\u{dc00}"_s;
}

void TestNames::escapesText() {
  QFETCH(QString, text);
  QTEST(names::escaped(text), "escaped");
}

void TestNames::escapesBytes_data() {
  QTest::addColumn<QByteArray>("raw");
  QTest::addColumn<QString>("escaped");
  QTest::newRow("plain") << "caf\xc3\xa9 \xf0\x9f\x97\x91"_ba << u"caf\u00e9 \U0001f5d1"_s;
  QTest::newRow("Latin-1") << "caf\xe9.txt"_ba << u"caf\\xe9.txt"_s;
  QTest::newRow("cut sequence") << "a\xe2\x82"_ba << u"a\\xe2\\x82"_s;
  QTest::newRow("cut, then text") << "\xf0\x9f\xc3\xa9"_ba << u"\\xf0\\x9f\u00e9"_s;
  QTest::newRow("half a pair") << "\xed\xa0\xbd"_ba << u"\\xed\\xa0\\xbd"_s;
  QTest::newRow("stray and overlong") << "\x80\xc0\xaf"_ba << u"\\x80\\xc0\\xaf"_s;
  QTest::newRow("override") << "a\xe2\x80\xae\n"_ba << u"a\\u{202e}\\n"_s;
  QTest::newRow("byte order mark") << "\xef\xbb\xbf"_ba << u"\ufeff"_s;
  QTest::newRow("decomposed stays") << kDecomposedRaw << kDecomposed;
}

void TestNames::escapesBytes() {
  QFETCH(QByteArray, raw);
  QTEST(names::escaped(QByteArrayView(raw)), "escaped");
}

QTEST_GUILESS_MAIN(TestNames)
#include "tst_names.moc"
