/// The names of protected app data.
#include "core/appguard.h"
#include "core/patterns.h"
#include "support/expressions.h"
#include "support/realistic_paths.h"

#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

namespace {

struct Pattern {
  const char* text;
  const char* matching;
  const char* other;
};

// clang-format off
constexpr Pattern kCommon[] = {
    {"com.agilebits*", "com.agilebits.onepassword7", "org.agilebits"},
    {"com.1password*", "com.1password.1password", "com.password"},
    {"1password*", "1Password 7", "my 1password"},
    {"com.bitwarden*", "com.bitwarden.desktop", "bit.com.bitwarden"},
    {"bitwarden*", "Bitwarden CLI", "bitward"},
    {"com.lastpass*", "com.lastpass.LastPass", "com.last"},
    {"lastpass*", "LastPass", "last pass"},
    {"com.dashlane*", "com.dashlane.Dashlane", "com.dash"},
    {"dashlane*", "Dashlane", "dash lane"},
    {"org.keepassxc*", "org.keepassxc.KeePassXC", "org.keepass"},
    {"keepass*", "KeePass2", "keep"},
    {"*enpass*", "in.sinew.Enpass-Desktop", "en pass"},
    {"*nordpass*", "com.nordsec.nordpass", "nord pass"},
    {"com.apple.passwords*", "com.apple.Passwords.MenuBar", "com.apple.password"},
    {"*keeper*security*", "com.keepersecurity.passwordmanager", "security keeper"},
    {"*inputmethod*", "com.apple.inputmethod.Korean", "input method"},
    {"im.rime*", "im.rime.inputmethods.Squirrel", "xim.rime"},
    {"rime", "Rime", "Rimeworld"},
    {"*sogou*", "Sogou Input", "sogo"},
    {"*.ime", "my.ime", "my.ime2"},
    {"*pinyin*", "libpinyin-data", "pin yin"},
    {"com.crowdstrike*", "com.crowdstrike.falcon", "com.crowd"},
    {"crowdstrike*", "CrowdStrike", "crowd strike"},
    {"com.sentinelone*", "com.sentinelone.agent", "com.sentinel"},
    {"com.sentinel-labs*", "com.sentinel-labs.sentinel", "com.sentinel_labs"},
    {"sentinelone*", "SentinelOne", "sentinel one"},
    {"com.jamf*", "com.jamf.management", "com.jam"},
    {"jamf*", "JAMF", "jam"},
    {"com.paloaltonetworks*", "com.paloaltonetworks.cortex", "com.paloalto"},
    {"palo alto networks", "Palo Alto Networks", "Palo Alto Networks 2"},
    {"com.cisco.anyconnect*", "com.cisco.anyconnect.gui", "com.cisco"},
    {"com.cisco.secureclient*", "com.cisco.secureclient.vpn", "com.cisco.secure"},
    {"cisco", "Cisco", "ciscoworks"},
    {"com.microsoft.wdav*", "com.microsoft.wdav.tray", "com.microsoft.wda"},
    {"windows defender*", "Windows Defender Cache", "windowsdefender"},
    {"com.eset*", "com.eset.ees", "com.ese"},
    {"eset", "ESET", "esets"},
    {"com.sophos*", "com.sophos.endpoint", "com.soph"},
    {"sophos*", "Sophos Home", "soph"},
    {"com.symantec*", "com.symantec.mes", "com.syman"},
    {"symantec*", "Symantec Shared", "syman"},
    {"broadcom", "Broadcom", "broadcom driver"},
    {"com.mcafee*", "com.McAfee.agent", "com.mca"},
    {"mcafee*", "McAfee", "mc afee"},
    {"com.kaspersky*", "com.kaspersky.kav", "com.kasper"},
    {"kaspersky*", "Kaspersky Lab", "kasper"},
    {"com.malwarebytes*", "com.malwarebytes.mbam", "com.malware"},
    {"malwarebytes*", "Malwarebytes", "malware"},
    {"com.bitdefender*", "com.bitdefender.agent", "com.bit"},
    {"bitdefender*", "Bitdefender", "bit defender"},
    {"com.trendmicro*", "com.trendmicro.icore", "com.trend"},
    {"trend micro*", "Trend Micro Security", "trendmicro"},
    {"com.zscaler*", "com.zscaler.tray", "com.scaler"},
    {"zscaler*", "Zscaler", "scaler"},
    {"com.netskope*", "com.netskope.client", "com.net"},
    {"netskope*", "Netskope", "net"},
    {"com.kandji*", "com.kandji.agent", "com.kan"},
    {"io.kandji*", "io.kandji.Kandji", "kandji"},
    {"com.mosyle*", "com.mosyle.macos", "com.mos"},
    {"com.addigy*", "com.addigy.agent", "com.add"},
    {"com.alibaba.security*", "com.alibaba.security.AliLang", "com.alibaba"},
    {"com.wireguard*", "com.wireguard.macos", "com.wire"},
    {"wireguard*", "WireGuard", "wire guard"},
    {"net.tunnelblick*", "net.tunnelblick.tunnelblick", "net.tunnel"},
    {"com.expressvpn*", "com.expressvpn.ExpressVPN", "com.express"},
    {"expressvpn*", "ExpressVPN", "express vpn"},
    {"com.nordvpn*", "com.nordvpn.osx", "com.nord"},
    {"nordvpn*", "NordVPN", "nord vpn"},
    {"*tailscale*", "io.tailscale.ipn.macos", "tail scale"},
    {"*zerotier*", "com.zerotier.ZeroTier-One", "zero tier"},
    {"*openvpn*", "net.openvpn.connect", "open vpn"},
    {"*protonvpn*", "ch.protonvpn.mac", "proton vpn"},
    {"com.surfshark*", "com.surfshark.vpnclient", "surfshark"},
    {"*globalprotect*", "com.vendor.GlobalProtect.client", "global protect"},
};

constexpr Pattern kLinux[] = {
    {"*ibus*", "ibus-table", "i-bus"},
    {"*fcitx*", "org.fcitx.Fcitx5", "fcit"},
    {"*keyring*", "gnome-keyring", "key ring"},
    {"*kwallet*", "kwalletmanager", "wallet"},
    {"*seahorse*", "org.gnome.seahorse.Application", "sea horse"},
    {"*keepassxc*", "my-keepassxc", "my-keepass"},
    {"*.secrets", "mail.secrets", "mail.secrets2"},
    {"*authenticator*", "com.belmoussaoui.Authenticator", "authenticate"},
    {"*openconnect*", "NetworkManager-openconnect", "open connect"},
    {"*mullvad*", "Mullvad VPN", "mulvad"},
    {"clamav*", "ClamAV", "my clamav"},
    {"rkhunter*", "rkhunter.log", "my rkhunter"},
};
// clang-format on
static_assert(std::size(kCommon) == 74);

bool isProtectedBy(std::span<const std::string_view> list, const QString& path) {
  return expressions::isProtectedData(path, expressions::wildcards(list));
}

} // namespace

class TestProtectedData : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void paths_data();
  void paths();
  void everyPattern_data();
  void everyPattern();
  void tablesAreWhole();
  void hosts();
  void caseOfLetters();
  void lineBreaks();
  void brokenText();
  void summary();
  void likeExpressionsOnRealPaths();
  void likeExpressionsOnMadeUpNames();
  void likeExpressionsForOtherPatterns();
};

void TestProtectedData::cleanup() { qunsetenv("TARNWICK_HOST"); }

void TestProtectedData::paths_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<bool>("isProtected");
  QTest::newRow("empty") << u""_s << false;
  QTest::newRow("root") << u"/"_s << false;
  QTest::newRow("slashes") << u"///"_s << false;
  QTest::newRow("identifier") << u"/Users/me/Library/Caches/com.1password.1password"_s << true;
  QTest::newRow("upper case") << u"/USERS/ME/LIBRARY/CACHES/COM.1PASSWORD.1PASSWORD"_s << true;
  QTest::newRow("browser") << u"/Users/me/Library/Caches/com.apple.Safari"_s << false;
  QTest::newRow("file in the folder") << u"/Users/me/Library/Application Support/1Password 7/x"_s << true;
  QTest::newRow("Rime") << u"/Users/me/Library/Application Support/Rime/x"_s << true;
  QTest::newRow("Rimeworld") << u"/Users/me/Library/Application Support/Rimeworld/x"_s << false;
  QTest::newRow("Sogou") << u"/Users/me/Library/Application Support/Sogou Input/x"_s << true;
  QTest::newRow("my.ime") << u"/Users/me/Library/Application Support/my.ime"_s << true;
  QTest::newRow("the user's own folder") << u"/Users/me/Documents/eset/report.pdf"_s << true;
  QTest::newRow("first component") << u"eset/x"_s << true;
  QTest::newRow("slash at the end") << u"/x/eset/"_s << true;
  QTest::newRow("doubled slashes") << u"/x//eset//y"_s << true;
  QTest::newRow("not cleaned") << u"/x/eset/../y"_s << true;
  QTest::newRow("over a slash") << u"/x/palo alto/networks"_s << false;
  QTest::newRow("joined") << u"/x/es/et"_s << false;
  QTest::newRow("longer") << u"/x/ciscoworks"_s << false;
  QTest::newRow("two parts in two components") << u"/keeper/security"_s << false;
  QTest::newRow("two parts the other way") << u"/x/security keeper"_s << false;
  QTest::newRow("two parts, twice") << u"/x/security keeper security"_s << true;
  QTest::newRow("two parts in the second component") << u"/security/keeper-security/x"_s << true;
  QTest::newRow("caret") << u"/x/^eset"_s << false;
  QTest::newRow("caret before a prefix") << u"/x/^com.eset"_s << false;
  QTest::newRow("backslash is no slash") << u"/x\\eset"_s << false;
}

void TestProtectedData::paths() {
  QFETCH(QString, path);
  QTEST(appguard::isProtectedAppData(path), "isProtected");
}

void TestProtectedData::everyPattern_data() {
  QTest::addColumn<QString>("pattern");
  QTest::addColumn<QString>("matching");
  QTest::addColumn<QString>("other");
  const auto rows = [](std::span<const Pattern> table) {
    for (const Pattern& one : table)
      QTest::newRow(one.text) << QString::fromLatin1(one.text) << QString::fromLatin1(one.matching)
                              << QString::fromLatin1(one.other);
  };
  rows(kCommon);
  rows(kLinux);
}

void TestProtectedData::everyPattern() {
  QFETCH(QString, pattern);
  QFETCH(QString, matching);
  QFETCH(QString, other);
  const QByteArray text = pattern.toLatin1();
  const std::string_view one[] = {{text.constData(), static_cast<size_t>(text.size())}};
  const patterns::Matcher alone(one);
  QVERIFY(alone.matchesName(matching));
  QVERIFY(!alone.matchesName(other));
  QVERIFY(isProtectedBy(one, matching));
  QVERIFY(!isProtectedBy(one, other));

  QVERIFY(appguard::isProtectedName(matching));
  QVERIFY(appguard::isProtectedName(matching.toUpper()));
  for (const QString& path : {u"/"_s + matching, u"/a/"_s + matching, u"/a/"_s + matching + u"/b/c"_s, matching})
    QVERIFY2(appguard::isProtectedAppData(path), qPrintable(path));
}

void TestProtectedData::tablesAreWhole() {
  QCOMPARE(patterns::common().size(), std::size(kCommon));
  for (size_t i = 0; i < std::size(kCommon); ++i) QVERIFY(patterns::common()[i] == kCommon[i].text);
  QCOMPARE(patterns::linuxAdditions().size(), std::size(kLinux));
  for (size_t i = 0; i < std::size(kLinux); ++i) QVERIFY(patterns::linuxAdditions()[i] == kLinux[i].text);
}

// A preview holds what either host holds.
void TestProtectedData::hosts() {
  for (const char* host : {"mac", "linux"}) {
    qputenv("TARNWICK_HOST", host);
    QVERIFY(appguard::isProtectedAppData(u"/home/me/.cache/ibus-table"_s));
    QVERIFY(appguard::isProtectedAppData(u"/Users/me/Library/Caches/com.eset.ees"_s));
    QVERIFY(patterns::inForce() == patterns::Set::WithLinux);
  }
  QVERIFY(!patterns::Matcher::of(patterns::Set::Common).matchesName(u"ibus-table"));
  QVERIFY(patterns::Matcher::of(patterns::Set::Common).matchesName(u"eset"));
}

// Letters that the expressions take for one another beyond ASCII, and some that they don't.
void TestProtectedData::caseOfLetters() {
  QVERIFY(appguard::isProtectedName(u"\u212aeepass"));
  QVERIFY(appguard::isProtectedName(u"e\u017fet"));
  QVERIFY(appguard::isProtectedName(u"\u212aA\u017fPER\u017f\u212aY"));
  QVERIFY(!appguard::isProtectedName(u"c\u0131sco"));
  QVERIFY(!appguard::isProtectedName(u"C\u0130SCO"));
  QVERIFY(!appguard::isProtectedName(u"\uff45\uff53\uff45\uff54"));
  const std::string_view letters[] = {"k", "s", "i", "a", "z", ".", "1", "-", " "};
  for (const std::string_view& letter : letters) {
    const std::span<const std::string_view> one(&letter, 1);
    const patterns::Matcher matcher(one);
    const QList<QRegularExpression> plain = expressions::wildcards(one);
    for (char32_t point = 1; point < 0x20000; ++point) {
      if (QChar::isSurrogate(point) || point == U'/') continue;
      const QString text = QString::fromUcs4(&point, 1);
      if (matcher.matchesName(text) != expressions::isProtectedData(text, plain))
        QFAIL(qPrintable(QString::number(point, 16)));
    }
  }
}

void TestProtectedData::lineBreaks() {
  QVERIFY(appguard::isProtectedAppData(u"/x/eset\n"_s));
  QVERIFY(appguard::isProtectedAppData(u"/x/eset\n/y"_s));
  QVERIFY(appguard::isProtectedAppData(u"/x/my.ime\n/y"_s));
  QVERIFY(appguard::isProtectedAppData(u"/x/a\nb.ime"_s));
  QVERIFY(appguard::isProtectedAppData(u"/x/com.eset\n\n"_s));
  QVERIFY(!appguard::isProtectedAppData(u"/x/eset\n\n"_s));
  QVERIFY(!appguard::isProtectedAppData(u"/x/\neset"_s));
  QVERIFY(!appguard::isProtectedAppData(u"/x/eset\r\n"_s));
}

void TestProtectedData::brokenText() {
  const QString broken = u"com.eset"_s + QChar(0xd800);
  QVERIFY(!appguard::isProtectedName(broken));
  QVERIFY(!appguard::isProtectedAppData(u"/x/"_s + broken + u"/y"_s));
  QVERIFY(appguard::isProtectedAppData(u"/x/"_s + broken + u"/eset"_s));
  QVERIFY(appguard::isProtectedAppData(u"/x/"_s + QChar(0xdc00) + u"/eset"_s));
  QVERIFY(appguard::isProtectedAppData(u"/x/"_s + QChar(0xdc00) + u".ime/com.eset/y"_s));
  QVERIFY(!appguard::isProtectedAppData(u"/x/"_s + QChar(0xdc00) + u".ime/y"_s));
  QVERIFY(appguard::isProtectedName(u"com.eset\U0001F600"));
}

void TestProtectedData::summary() {
  QCOMPARE(appguard::protectedSummary(),
           u"Password managers, input methods, security and device-management agents, VPNs"_s);
}

void TestProtectedData::likeExpressionsOnRealPaths() {
  // Each component once: the plain way takes its time, and goes by components alone.
  QHash<QString, bool> known;
  const QList<QRegularExpression> plain =
      expressions::wildcards(patterns::common()) + expressions::wildcards(patterns::linuxAdditions());
  qsizetype hits = 0;
  for (const QString& path : paths::realistic(100000)) {
    bool expected = false;
    for (const QString& component : path.split(u'/', Qt::SkipEmptyParts)) {
      auto found = known.constFind(component);
      if (found == known.cend()) found = known.insert(component, expressions::isProtectedData(component, plain));
      expected |= *found;
    }
    hits += expected ? 1 : 0;
    if (appguard::isProtectedAppData(path) != expected) QFAIL(qPrintable(path));
  }
  QVERIFY(hits > 300);
}

void TestProtectedData::likeExpressionsOnMadeUpNames() {
  std::mt19937 random(3);
  const QList<QRegularExpression> plain =
      expressions::wildcards(patterns::common()) + expressions::wildcards(patterns::linuxAdditions());
  const QStringList glue{u""_s,  u""_s,  u"."_s, u"/"_s,      u"\n"_s,
                         u" "_s, u"x"_s, u"^"_s, u"\u212a"_s, QString(QChar(0xdfff))};
  qsizetype hits = 0;
  for (int round = 0; round < 5000; ++round) {
    QString path;
    for (int n = 0; n < 3; ++n) {
      const std::string_view pattern = patterns::common()[random() % 74];
      QString piece = QString::fromLatin1(pattern.data(), static_cast<qsizetype>(pattern.size())).remove(u'*');
      if (random() % 3 == 0) piece = piece.first(static_cast<qsizetype>(random() % static_cast<quint32>(piece.size())));
      path += piece + glue[static_cast<qsizetype>(random() % static_cast<quint32>(glue.size()))];
    }
    const bool expected = expressions::isProtectedData(path, plain);
    hits += expected ? 1 : 0;
    if (appguard::isProtectedAppData(path) != expected) QFAIL(qPrintable(path));
  }
  QVERIFY(hits > 1000 && hits < 4900);
}

// Overlapping literals, several in one pattern, anchored at either end.
void TestProtectedData::likeExpressionsForOtherPatterns() {
  std::mt19937 random(11);
  const std::string_view lists[][4] = {{"a*a", "*ab*ba*", "b", "*bb"},
                                       {"aba*", "*a*b*a", "bab", "ab*"},
                                       {"*aab", "b*b*b", "a", "*abab*"},
                                       {"ba*ab", "*b\nb*", "*aa*bb*aa", "bb"}};
  const QStringList tokens{u"a"_s, u"b"_s, u"A"_s, u"B"_s, u"/"_s, u"\n"_s, u"x"_s};
  for (const auto& list : lists) {
    const patterns::Matcher matcher(list);
    const QList<QRegularExpression> plain = expressions::wildcards(list);
    for (int round = 0; round < 5000; ++round) {
      QString path;
      for (auto count = random() % 10; count > 0; --count) path += tokens[static_cast<qsizetype>(random() % 7)];
      if (matcher.matchesPath(path) != expressions::isProtectedData(path, plain)) QFAIL(qPrintable(path));
    }
  }
}

QTEST_GUILESS_MAIN(TestProtectedData)
#include "tst_protected_data.moc"
