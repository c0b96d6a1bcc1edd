/// Servers that are broken, or mean it badly: each ends in the right words, leaves nothing, opens nothing, and leads
/// nowhere but to the release host.
#include "support/ReleaseHost.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Change = std::function<void(ReleaseHost&, Updater&)>;
using End = Answer::End;

/// The words on a time-out, in place of a minute that no test has.
constexpr auto kShort = 300ms;

const QString kSlow = u"The server took too long to answer\\."_s;
const QString kSize = u"The update has an unexpected size\\."_s;
const QString kSum = u"The update does not match the published checksum\\."_s;
const QString kElsewhere = u"The update is not on Tarnwick's server\\."_s;
const QString kUnsafe = u"The server redirected to an address that is not safe\\."_s;
const QString kTooMany = u"Too many redirects\\."_s;
const QString kUnreadable = u"The update information could not be read\\."_s;
const QString kNetwork = u".*[a-z]{4}.*"_s; // the network's own words, which differ between its versions

QByteArray toElsewhere(const QString& start) { return (start + u"/a.pkg"_s).toUtf8(); }

/// A line of chunks that never ends.
Answer endlessChunks() {
  Answer answer = Answer::chunked({});
  answer.body = "8000\r\n" + QByteArray(0x8000, 'x') + "\r\n";
  return answer.repeated(Answer::kForever);
}

Answer raw(const QByteArray& head, const QByteArray& body = {}) { return {.head = head, .body = body}; }

void impatient(ReleaseHost&, Updater& updater) {
  updater.timeouts = {.feed = kShort, .wholeFeed = 30s, .download = kShort};
}

/// Never stuck for long without a byte, and yet never through.
void impatientWithTheWhole(ReleaseHost&, Updater& updater) {
  updater.timeouts = {.feed = 30s, .wholeFeed = kShort, .download = 30s};
}

/// /0 leads to /1 and so on, to a right answer at the end.
Change chain(int hops) {
  return [hops](ReleaseHost& host, Updater&) {
    for (int i = 0; i < hops; ++i)
      host.server.answers.insert('/' + QByteArray::number(i), Answer::redirect('/' + QByteArray::number(i + 1)));
    host.server.answers.insert('/' + QByteArray::number(hops), Answer::ok(ReleaseHost::package()));
  };
}

} // namespace

Q_DECLARE_METATYPE(Answer)
Q_DECLARE_METATYPE(Change)

class TestUpdaterHostile : public QObject {
  Q_OBJECT

 private slots:
  void init() { m_host = std::make_unique<ReleaseHost>(); }
  void cleanup() { m_host.reset(); }

  void feeds_data() {
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("words");
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Answer& answer, const QString& words, const Change& change = {}) {
      QTest::newRow(name) << answer << words << change;
    };
    const QByteArray feed = ReleaseHost::feed(ReleaseHost::address(u"/a.pkg"_s));
    const QByteArray block(0x10000, ' ');
    const Answer endless = raw("HTTP/1.1 200 OK\r\n\r\n", block).repeated(Answer::kForever);

    row("endless", endless, kUnreadable);
    row("endless, in chunks", endlessChunks(), kUnreadable);
    row("endless, with a small length told", raw("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n", block).repeated(9),
        kUnreadable);
    row("a huge length told, and sent",
        raw("HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\n", block).repeated(Answer::kForever), kUnreadable);
    row("one byte too long, in chunks", Answer::chunked(feed + QByteArray(262'145 - feed.size(), ' ')), kUnreadable);
    row("packed, though nobody asked",
        Answer::ok(qCompress(QByteArray(1 << 20, ' ')).mid(4), "Content-Encoding: deflate\r\n"), kUnreadable);
    row("said to be packed", Answer::ok(feed + 'x', "Content-Encoding: gzip\r\n"), kUnreadable);
    row("ends before its length", raw("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n", feed), kNetwork);
    row("torn", raw("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n", feed).ending(End::Cut), kNetwork);
    row("torn before a word", raw({}).ending(End::Cut), kNetwork);
    row("torn in the headers", raw("HTTP/1.1 200 OK\r\nContent-Le").ending(End::Cut), kNetwork);
    row("hung up on at once", raw({}), kNetwork);
    row("silent", raw({}).ending(End::Hang), kSlow, impatient);
    row("silent after the headers", Answer::ok(feed).repeated(0).ending(End::Hang), kSlow, impatient);
    row("silent in the middle", raw("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n", feed).ending(End::Hang), kSlow,
        impatient);
    row("dripping without an end", raw("HTTP/1.1 200 OK\r\n\r\n", " ").repeated(Answer::kForever).dripping(20), kSlow,
        impatientWithTheWhole);
    row("headers that drip", raw("HTTP/1.1 200 OK\r\n", "X: y\r\n").repeated(Answer::kForever).dripping(20), kSlow,
        impatientWithTheWhole);
    row("no HTTP", raw("SSH-2.0-OpenSSH\r\n\r\n"), kNetwork);
    row("a status that is none", raw("HTTP/1.1 abc OK\r\n\r\n{}"), kNetwork);
    row("204", Answer::of("204 No Content"), u"HTTP 204"_s);
    row("206", Answer::of("206 Partial Content", {}, feed), u"HTTP 206"_s);
    row("302 to nowhere", Answer::of("302 Found"), u"HTTP 302"_s);
    row("304", Answer::of("304 Not Modified"), u"HTTP 304"_s);
    row("401", Answer::of("401 Unauthorized", "WWW-Authenticate: Basic realm=\"a\"\r\n"), kNetwork);
    row("404", Answer::of("404 Not Found", {}, feed), kNetwork);
    row("500", Answer::of("500 Internal Server Error", {}, feed), kNetwork);
    row("moved to http", Answer::redirect(toElsewhere(u"http://"_s + ReleaseHost::name())), kUnsafe);
    row("moved to a file", Answer::redirect("file:///etc/hostname"), kUnsafe);
    row("moved to data", Answer::redirect("data:application/json,{}"), kUnsafe);
    row("moved for ever", Answer::redirect("/feed.json"), kTooMany);
    row("moved once too often", Answer::redirect("/0"), kTooMany, chain(20));
    row("moved, with an endless body",
        raw("HTTP/1.1 302 Found\r\nLocation: /0\r\n\r\n", block).repeated(Answer::kForever), kNetwork);
    row("moved, and silent", raw("HTTP/1.1 302 Found\r\nLocation: /silent\r\n\r\n"), kSlow,
        [](ReleaseHost& host, Updater& updater) {
          host.server.answers.insert("/silent", raw({}).ending(End::Hang));
          updater.timeouts.feed = kShort;
        });
    row("in UTF-16", Answer::ok(QByteArray("\xff\xfe{\0}\0", 6)), kUnreadable);
    row("very deep", Answer::ok(QByteArray(200'000, '[')), kUnreadable);
  }
  void feeds() {
    QFETCH(Answer, answer);
    QFETCH(QString, words);
    QFETCH(Change, change);
    m_host->server.answers.insert("/feed.json", answer);
    const auto updater = m_host->updater();
    if (change) change(*m_host, *updater);
    updater->check();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    assertWords(updater->error, words);
    QCOMPARE(updater->state, Updater::Failed);
    assertNothingElse(updater.get());
  }

  void certificatesThatAreNotTheHosts_data() {
    QTest::addColumn<QString>("host");
    QTest::newRow("another name") << u"two.below."_s + ReleaseHost::domain();
    QTest::newRow("no TLS") << u"plain."_s + ReleaseHost::domain();
    QTest::newRow("nobody") << u"unknown."_s + ReleaseHost::domain();
    QTest::newRow("trusted by nobody") << ReleaseHost::name();
  }
  void certificatesThatAreNotTheHosts() {
    QFETCH(QString, host);
    QString why;
    HttpServer stranger(TestCertificate::make({u"*."_s + ReleaseHost::domain()}, &why));
    if (host == ReleaseHost::name()) m_host->proxy.ports.insert(host, stranger.serverPort());
    m_host->plainServer.answers.insert("/feed.json", Answer::ok("{}"));
    for (HttpServer* server : {&m_host->server, &stranger}) server->answers.insert("/feed.json", Answer::ok("{}"));
    Updater updater(nullptr, QUrl(ReleaseHost::address(u"/feed.json"_s, host)));
    updater.check();
    QVERIFY(ReleaseHost::hasEnded(updater));
    QCOMPARE(updater.state, Updater::Failed);
    assertWords(updater.error, kNetwork);
    QVERIFY(m_host->server.requests.isEmpty() && stranger.requests.isEmpty() && m_host->plainServer.requests.isEmpty());
  }

  void downloads_data() {
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("words");
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Answer& answer, const QString& words, const Change& change = {}) {
      QTest::newRow(name) << answer << words << change;
    };
    const auto moved = [&](const char* name, const QString& to, const QString& words) {
      row(name, Answer::redirect(toElsewhere(to)), words);
    };
    const QByteArray& good = ReleaseHost::package();
    const QByteArray half = good.left(good.size() / 2);
    const QByteArray length = "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(good.size()) + "\r\n\r\n";
    const QString domain = ReleaseHost::domain();

    moved("moved to another host", u"https://elsewhere.example"_s, kElsewhere);
    moved("moved to a longer name", u"https://not"_s + domain, kElsewhere);
    moved("moved below another host", u"https://"_s + domain + u".elsewhere.example"_s, kElsewhere);
    moved("moved to another host, without a scheme", u"//elsewhere.example"_s, kElsewhere);
    moved("moved, with a user", u"https://me:word@"_s + domain, kElsewhere);
    moved("moved, with the host as a user", u"https://"_s + domain + u"@elsewhere.example"_s, kElsewhere);
    moved("moved to http", u"http://"_s + ReleaseHost::name(), kElsewhere);
    row("moved to http where any host may be", Answer::redirect(toElsewhere(u"http://plain."_s + domain)), kElsewhere,
        [](ReleaseHost&, Updater& updater) { updater.allowedDomain.clear(); });
    moved("moved to a file", u"file://"_s, kElsewhere);
    moved("moved to ftp", u"ftp://"_s + domain, kElsewhere);
    row("moved to data", Answer::redirect("data:,x"), kElsewhere);
    row("moved, and then to another host", Answer::redirect("/second"), kElsewhere, [](ReleaseHost& host, Updater&) {
      host.server.answers.insert("/second",
                                 Answer::redirect("https://elsewhere.example/a.pkg", "308 Permanent Redirect"));
    });
    row("moved to another host, with a body",
        Answer::of("302 Found", "Location: https://elsewhere.example/a\r\n", good), kElsewhere);
    row("moved for ever", Answer::redirect("/a.pkg"), kTooMany);
    row("moved once too often", Answer::redirect("/0"), kTooMany, chain(20));
    row("302 to nowhere", Answer::of("302 Found", {}, good), u"HTTP 302"_s);
    row("moved, with an endless body",
        raw("HTTP/1.1 302 Found\r\nLocation: /0\r\n\r\n", good).repeated(Answer::kForever), u".*Not Found"_s);
    row("204", Answer::of("204 No Content"), u"HTTP 204"_s);
    row("206", Answer::of("206 Partial Content", {}, good), u"HTTP 206"_s);
    row("203 with all of it", Answer::of("203 Non-Authoritative Information", {}, good), u"HTTP 203"_s);
    row("403", Answer::of("403 Forbidden", {}, good), kNetwork);
    row("404", Answer::of("404 Not Found", {}, good), kNetwork);
    row("407", Answer::of("407 Proxy Authentication Required", {}, good), kNetwork);
    row("500", Answer::of("500 Internal Server Error", {}, good), kNetwork);
    row("503", Answer::of("503 Service Unavailable", "Retry-After: 0\r\n"), kNetwork);
    row("ends before its length", raw(length, half), kNetwork);
    row("torn", raw(length, half).ending(End::Cut), kNetwork);
    row("torn before a word", raw({}).ending(End::Cut), kNetwork);
    row("torn in a chunk", raw(Answer::chunked(good).head, Answer::chunked(good).body.chopped(100)).ending(End::Cut),
        u"("_s + kNetwork + u"|"_s + kSize + u")"_s);
    row("ends early, without a length", raw("HTTP/1.1 200 OK\r\n\r\n", half), kSize);
    row("without a length, and a byte more", raw("HTTP/1.1 200 OK\r\n\r\n", good + 'x'), kSum);
    row("empty", Answer::ok({}), kSize);
    row("one byte too short", Answer::ok(good.chopped(1)), kSize);
    row("one byte too long", Answer::ok(good + 'x'), kSum);
    row("packed", Answer::ok(qCompress(good).mid(4), "Content-Encoding: deflate\r\n"), kSum);
    row("said to be packed", Answer::ok(good.chopped(1) + 'x', "Content-Encoding: gzip\r\n"), kSum);
    row("another file", Answer::ok(QByteArray(good.size(), 'x')), kSum);
    row("silent", raw({}).ending(End::Hang), kSlow, impatient);
    row("silent after the headers", raw(length).ending(End::Hang), kSlow, impatient);
    row("silent in the middle", raw(length, half).ending(End::Hang), kSlow, impatient);
    row("silent at a huge length",
        raw("HTTP/1.1 200 OK\r\nContent-Length: 999999999999\r\n\r\n", half).ending(End::Hang), kSlow, impatient);
    row("dripping, and then silent", raw(length, "abc").dripping(10).ending(End::Hang), kSlow, impatient);
    row("no HTTP", raw("220 files ready\r\n\r\n"), kNetwork);
    row("headers without an end", raw("HTTP/1.1 200 OK\r\n", "X: " + QByteArray(0x4000, 'y') + "\r\n").repeated(2000),
        kNetwork, impatient);
  }
  void downloads() {
    QFETCH(Answer, answer);
    QFETCH(QString, words);
    QFETCH(Change, change);
    const auto updater = m_host->updaterWithRelease(u"/a.pkg"_s, answer);
    QCOMPARE(updater->state, Updater::Available);
    if (change) change(*m_host, *updater);
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    assertWords(updater->error, u"The update could not be downloaded: "_s + words);
    QCOMPARE(updater->state, Updater::Available);
    QCOMPARE(updater->release.version, u"2.0.0"_s);
    assertNothingElse(updater.get());
  }

  void aServerThatTalksMuchIsCutShort() {
    const auto updater =
        m_host->updaterWithRelease(u"/a.pkg"_s, Answer::of("500 " + QByteArray("Oh no!\t").repeated(5000)));
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QVERIFY2(updater->error.contains(u"Oh no! Oh no!"_s), qPrintable(updater->error));
    QVERIFY2(updater->error.size() < 400, qPrintable(updater->error));
    assertNothingElse(updater.get());
  }

  void aDripCanBeCancelled() {
    const auto updater = m_host->updaterWithRelease(u"/a.pkg"_s, Answer::ok(ReleaseHost::package()).dripping(10));
    updater->install();
    QTRY_VERIFY(updater->received > 0);
    updater->cancel();
    QCOMPARE(updater->state, Updater::Available);
    QCOMPARE(updater->error, QString());
    assertNothingElse(updater.get());
  }

 private:
  static void assertWords(const QString& error, const QString& words) {
    const QRegularExpression expected(QRegularExpression::anchoredPattern(words),
                                      QRegularExpression::DotMatchesEverythingOption);
    QVERIFY2(expected.match(error).hasMatch(), qPrintable(error));
    QVERIFY2(!error.contains(u"canceled"_s, Qt::CaseInsensitive), qPrintable(error));
  }

  /// No file, nothing opened, nobody else asked: also not by what was still on its way, since one more question that
  /// comes after it has its answer.
  void assertNothingElse(Updater* updater) {
    m_host->server.answers.insert("/feed.json", Answer::ok("{}"));
    updater->timeouts = {};
    updater->check();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::UpToDate);
    QVERIFY(m_host->downloads().isEmpty());
    QVERIFY(m_host->launched.isEmpty());
    const QString ours = u"CONNECT "_s + ReleaseHost::name() + u":443"_s;
    for (const QString& line : std::as_const(m_host->proxy.asked)) QCOMPARE(line, ours);
  }

  std::unique_ptr<ReleaseHost> m_host;
};

QTEST_GUILESS_MAIN(TestUpdaterHostile)
#include "tst_Updater_hostile.moc"
