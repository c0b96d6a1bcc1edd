#include "support/ReleaseHost.h"

#include "core/deployment.h"

#include <QDir>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
constexpr qsizetype kMostBytes = 262'144;

/// Of a TLS record, behind its head of five bytes.
qint64 lengthOfRecord(const QByteArray& head) { return (quint8(head[3]) << 8) + quint8(head[4]); }
} // namespace

class TestUpdaterCheck : public QObject {
  Q_OBJECT

 private slots:
  void init() { m_host = std::make_unique<ReleaseHost>(); }
  void cleanup() { m_host.reset(); }

  void atFirstNothingIsKnown() {
    const Updater updater(nullptr, Updater::defaultFeed());
    QCOMPARE(updater.feedUrl, Updater::defaultFeed());
    QCOMPARE(updater.state, Updater::Idle);
    QCOMPARE(updater.error, QString());
    QCOMPARE(updater.release.version, QString());
    QCOMPARE(updater.downloadDir, QDir::tempPath() + u"/Tarnwick-update"_s);
    QCOMPARE(updater.allowedDomain, deployment::domain());
    QCOMPARE(updater.expectedSigner, QString());
    QCOMPARE(updater.currentVersion, QStringLiteral(TARNWICK_VERSION));
    QVERIFY(updater.launcher);
    QCOMPARE(updater.received + updater.total, 0);
    QCOMPARE(updater.timeouts.feed, 15s);
    QCOMPARE(updater.timeouts.wholeFeed, 60s);
    QCOMPARE(updater.timeouts.download, 60s);
  }

  void theStatesHaveTheirNumbers() {
    QCOMPARE(int(Updater::Idle), 0);
    QCOMPARE(int(Updater::Checking), 1);
    QCOMPARE(int(Updater::UpToDate), 2);
    QCOMPARE(int(Updater::Available), 3);
    QCOMPARE(int(Updater::Failed), 4);
    QCOMPARE(int(Updater::Downloading), 5);
    QCOMPARE(int(Updater::Installing), 6);
  }

  void everySetStateIsTold() {
    const auto updater = m_host->updater();
    const QSignalSpy told(updater.get(), &Updater::stateChanged);
    updater->setState(Updater::Failed);
    updater->setState(Updater::Failed);
    QCOMPARE(updater->state, Updater::Failed);
    QCOMPARE(told.size(), 2);
  }

  void aNewerReleaseIsAvailable() {
    m_host->server.answers.insert("/feed.json", Answer::ok(ReleaseHost::feed(ReleaseHost::address(u"/a.pkg"_s))));
    const auto updater = m_host->updater();
    QList<int> states;
    connect(updater.get(), &Updater::stateChanged, this, [&] { states.append(updater->state); });
    updater->check();
    QCOMPARE(updater->state, Updater::Checking);
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, QString());
    QCOMPARE(states, (QList<int>{Updater::Checking, Updater::Available}));
    QCOMPARE(updater->release.version, u"2.0.0"_s);
    QCOMPARE(updater->release.size, u"12 MB"_s);
    QCOMPARE(updater->release.date, u"29 February"_s);
    QCOMPARE(updater->release.changes, (QStringList{u"Quicker"_s, u"<b>Bolder</b>"_s}));
    QCOMPARE(updater->release.url, QUrl(ReleaseHost::address(u"/a.pkg"_s)));
  }

  void whatIsAskedForIsPlain() {
    m_host->server.answers.insert("/feed.json", Answer::ok("{}"));
    const auto updater = m_host->updater();
    updater->check();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(m_host->server.requests.size(), 1);
    const Request& request = m_host->server.requests.first();
    QCOMPARE(request.method, QByteArray("GET"));
    QCOMPARE(request.target, QByteArray("/feed.json"));
    QCOMPARE(request.value("User-Agent"), QByteArray("Tarnwick/" TARNWICK_VERSION));
    QCOMPARE(request.value("Accept-Encoding"), QByteArray("identity"));
    QCOMPARE(m_host->proxy.asked, QStringList{u"CONNECT "_s + ReleaseHost::name() + u":443"_s});
  }

  /// By what the client says first in its handshake.
  void noOtherProtocolIsOffered() {
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    Updater updater(nullptr, QUrl(u"https://127.0.0.1:%1/feed.json"_s.arg(server.serverPort())));
    updater.check();
    QTRY_VERIFY(server.hasPendingConnections());
    QTcpSocket* const socket = server.nextPendingConnection();
    QTRY_VERIFY(socket->bytesAvailable() > 5 && socket->bytesAvailable() >= 5 + lengthOfRecord(socket->peek(5)));
    const QByteArray hello = socket->readAll();
    QVERIFY(hello.startsWith('\x16')); // a handshake
    QVERIFY(!hello.contains("\x02h2\x08http/1.1"));
  }

  void whatTheFeedSaysDecides_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("error");
    const QString unreadable = u"The update information could not be read."_s;
    const QByteArray feed = ReleaseHost::feed(ReleaseHost::address(u"/a.pkg"_s));
    const auto version = [&](const char* text) { return QByteArray(feed).replace("2.0.0", text); };
    const auto row = [](const char* name, const QByteArray& body, Updater::State state, const QString& error) {
      QTest::newRow(name) << body << int(state) << error;
    };
    row("newer", feed, Updater::Available, {});
    row("the same", version("1.0.0"), Updater::UpToDate, {});
    row("older", version("0.9.9"), Updater::UpToDate, {});
    row("longer by a number", version("1.0.0.0"), Updater::Available, {});
    row("shorter by a number", version("1.0"), Updater::UpToDate, {});
    row("nothing for this platform", "{\"amiga\": {}}", Updater::UpToDate, {});
    row("nothing for anybody", "{}", Updater::UpToDate, {});
    row("no object for it", "{\"" + ReleaseHost::key().toUtf8() + "\": null}", Updater::Failed, unreadable);
    row("no version", version("two"), Updater::Failed, unreadable);
    row("elsewhere", ReleaseHost::feed(u"https://elsewhere.example/a.pkg"_s), Updater::Failed, unreadable);
    row("no JSON", "<html>Welcome to the hotel</html>", Updater::Failed, unreadable);
    row("empty", "", Updater::Failed, unreadable);
    row("an array", "[]", Updater::Failed, unreadable);
    row("the longest", feed + QByteArray(kMostBytes - feed.size(), ' '), Updater::Available, {});
    row("longer", feed + QByteArray(kMostBytes + 1 - feed.size(), ' '), Updater::Failed, unreadable);
    row("longer, with nothing in it", "{}" + QByteArray(kMostBytes, ' '), Updater::Failed, unreadable);
  }
  void whatTheFeedSaysDecides() {
    QFETCH(QByteArray, body);
    QFETCH(int, state);
    QFETCH(QString, error);
    m_host->server.answers.insert("/feed.json", Answer::ok(body));
    const auto updater = m_host->updater();
    updater->check();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, error);
    QCOMPARE(int(updater->state), state);
  }

  void aFeedMayBeMovedWithinHttps() {
    m_host->server.answers.insert("/feed.json", Answer::redirect("/moved.json", "301 Moved Permanently"));
    m_host->server.answers.insert("/moved.json", Answer::ok("{}"));
    const auto updater = m_host->updater();
    updater->check();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, QString());
    QCOMPARE(updater->state, Updater::UpToDate);
    QCOMPARE(m_host->server.requests.size(), 2);
  }

  void aFeedMayComeOverPlainHttpWhereItIsTestedSo() {
    m_host->plainServer.answers.insert("/feed.json", Answer::ok("{}"));
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    Updater updater(nullptr, QUrl(u"http://127.0.0.1:%1/feed.json"_s.arg(m_host->plainServer.serverPort())));
    updater.check();
    QVERIFY(ReleaseHost::hasEnded(updater));
    QCOMPARE(updater.state, Updater::UpToDate);
  }

  void aSecondCheckIsNone() {
    m_host->server.answers.insert("/feed.json", Answer::ok("{}").ending(Answer::End::Hang).repeated(0));
    const auto updater = m_host->updater();
    updater->check();
    updater->check();
    QTRY_COMPARE(m_host->server.requests.size(), 1);
    updater->check();
    QCOMPARE(updater->state, Updater::Checking);
    QCOMPARE(m_host->proxy.asked.size(), 1);
  }

  void duringADownloadNothingIsChecked() {
    const auto updater = m_host->updaterWithRelease(
        u"/a.pkg"_s, Answer::ok(ReleaseHost::package()).repeated(0).ending(Answer::End::Hang));
    updater->install();
    QTRY_COMPARE(m_host->server.requests.size(), 2);
    updater->check();
    QCOMPARE(updater->state, Updater::Downloading);
    QCOMPARE(updater->release.version, u"2.0.0"_s);
    updater->cancel();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    updater->setState(Updater::Installing);
    updater->check();
    QCOMPARE(updater->state, Updater::Installing);
    QCOMPARE(m_host->server.requests.size(), 2);
  }

  void everyOtherStateMayBeCheckedAgain_data() {
    QTest::addColumn<int>("state");
    for (const auto state : {Updater::Idle, Updater::UpToDate, Updater::Available, Updater::Failed})
      QTest::newRow(qPrintable(QString::number(state))) << int(state);
  }
  void everyOtherStateMayBeCheckedAgain() {
    QFETCH(int, state);
    m_host->server.answers.insert("/feed.json", Answer::ok("{}"));
    const auto updater = m_host->updater();
    updater->release.version = u"9.9"_s;
    updater->error = u"old"_s;
    updater->setState(Updater::State(state));
    updater->check();
    QCOMPARE(updater->release.version, QString());
    QCOMPARE(updater->error, QString());
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::UpToDate);
  }

  void afterAFailureAllIsWellAgain() {
    const auto updater = m_host->updater();
    updater->check();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::Failed);
    QVERIFY(updater->error.contains(u"Not Found"_s));
    m_host->server.answers.insert("/feed.json", Answer::ok("{}"));
    updater->check();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::UpToDate);
    QCOMPARE(updater->error, QString());
  }

  void itMayGoInTheMiddle() {
    m_host->server.answers.insert("/feed.json", Answer::ok("{}").repeated(0).ending(Answer::End::Hang));
    auto updater = m_host->updater();
    updater->check();
    QTRY_COMPARE(m_host->server.requests.size(), 1);
    updater.reset();
    QVERIFY(m_host->downloads().isEmpty());
  }

 private:
  std::unique_ptr<ReleaseHost> m_host;
};

QTEST_GUILESS_MAIN(TestUpdaterCheck)
#include "tst_Updater_check.moc"
