#include "support/ReleaseHost.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

QString notLoaded(const QString& why) { return u"The update could not be downloaded: "_s + why; }

QByteArray contentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What an updater told, one entry a signal.
struct Course : QObject {
  explicit Course(Updater* updater) : quits(updater, &Updater::quitForUpdate) {
    connect(updater, &Updater::stateChanged, this, [this, updater] {
      if (states.isEmpty() || states.last() != updater->state) states.append(updater->state);
      mostReceived = std::max(mostReceived, updater->received);
      total = std::max(total, updater->total);
      leastTotal = std::min(leastTotal, updater->total);
    });
  }
  QList<int> states; ///< without repetitions
  qint64 mostReceived = 0;
  qint64 total = 0;
  qint64 leastTotal = std::numeric_limits<qint64>::max();
  QSignalSpy quits;
};

} // namespace

class TestUpdaterInstall : public QObject {
  Q_OBJECT

 private slots:
  void init() { m_host = std::make_unique<ReleaseHost>(); }
  void cleanup() { m_host.reset(); }

  void aWholeDownloadIsVerifiedAndOpened() {
    const auto updater = m_host->updaterWithRelease();
    Course course(updater.get());
    QString seen;
    updater->launcher = [&](const QString& path) {
      seen = path;
      if (m_host->downloads() != QStringList{u"tarnwick.pkg"_s} || updater->state != Updater::Installing) seen.clear();
      return QString();
    };
    updater->install();
    QCOMPARE(updater->state, Updater::Downloading);
    QCOMPARE(m_host->downloads(), QStringList{u"tarnwick.pkg.part"_s});
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, QString());
    QCOMPARE(course.states, (QList<int>{Updater::Downloading, Updater::Installing}));
    QCOMPARE(course.quits.size(), 1);
    QCOMPARE(seen, m_host->home.temp(u"downloads/tarnwick.pkg"_s));
    QVERIFY(contentsOf(seen) == ReleaseHost::package());
    QCOMPARE(course.mostReceived, ReleaseHost::package().size());
    QCOMPARE(course.total, ReleaseHost::package().size());
    QCOMPARE(updater->received + updater->total, 0);
  }

  void whatIsAskedForIsPlain() {
    const auto updater = m_host->updaterWithRelease();
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    const Request& request = m_host->server.requests.last();
    QCOMPARE(request.method, QByteArray("GET"));
    QCOMPARE(request.target, QByteArray("/files/tarnwick.pkg"));
    QCOMPARE(request.value("User-Agent"), QByteArray("Tarnwick/" TARNWICK_VERSION));
    QCOMPARE(request.value("Accept-Encoding"), QByteArray("identity"));
  }

  void chunksDoAsWell() {
    const auto updater = m_host->updaterWithRelease(u"/a.pkg"_s, Answer::chunked(ReleaseHost::package()));
    Course course(updater.get());
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::Installing);
    QVERIFY(course.leastTotal <= 0); // until it is known at the end
    QCOMPARE(m_host->launched.size(), 1);
  }

  void muchMoreThanMayWaitComesWhole_data() {
    QTest::addColumn<bool>("inChunks");
    QTest::newRow("with its length told") << false;
    QTest::newRow("in chunks") << true;
  }
  void muchMoreThanMayWaitComesWhole() {
    QFETCH(bool, inChunks);
    const QByteArray large = ReleaseHost::package().repeated(9) + "tail";
    const auto updater = m_host->updaterWithRelease(u"/a.pkg"_s, inChunks ? Answer::chunked(large) : Answer::ok(large));
    updater->release.sha256 = QString::fromLatin1(ReleaseHost::sha256(large));
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, QString());
    QCOMPARE(updater->state, Updater::Installing);
  }

  void redirectsWithinTheDomainAreFollowed() {
    m_host->server.answers.insert("/second",
                                  Answer::redirect(ReleaseHost::address(u"/third"_s, ReleaseHost::domain()).toUtf8()));
    m_host->server.answers.insert("/third", Answer::ok(ReleaseHost::package()));
    const auto updater = m_host->updaterWithRelease(u"/a.pkg"_s, Answer::redirect("/second", "307 Temporary Redirect"));
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, QString());
    QCOMPARE(m_host->launched, QStringList{m_host->home.temp(u"downloads/a.pkg"_s)});
    QCOMPARE(m_host->server.requests.size(), 4);
  }

  void twentyOfThemAreFollowed() {
    for (int i = 0; i < 19; ++i)
      m_host->server.answers.insert('/' + QByteArray::number(i), Answer::redirect('/' + QByteArray::number(i + 1)));
    m_host->server.answers.insert("/19", Answer::ok(ReleaseHost::package()));
    const auto updater = m_host->updaterWithRelease(u"/a.pkg"_s, Answer::redirect("/0"));
    for (int attempt = 0; attempt < 2; ++attempt) {
      updater->setState(Updater::Available);
      updater->install();
      QVERIFY(ReleaseHost::hasEnded(*updater));
      QCOMPARE(updater->error, QString());
      QCOMPARE(updater->state, Updater::Installing);
    }
  }

  void onlyFromAvailable_data() {
    QTest::addColumn<int>("state");
    for (int state = Updater::Idle; state <= Updater::Installing; ++state)
      if (state != Updater::Available) QTest::newRow(qPrintable(QString::number(state))) << state;
  }
  void onlyFromAvailable() {
    QFETCH(int, state);
    const auto updater = m_host->updaterWithRelease();
    updater->error = u"old"_s;
    updater->setState(Updater::State(state));
    const QSignalSpy told(updater.get(), &Updater::stateChanged);
    updater->install();
    QCOMPARE(int(updater->state), state);
    QCOMPARE(updater->error, u"old"_s);
    QCOMPARE(told.size(), 0);
    QVERIFY(!QFile::exists(updater->downloadDir));
  }

  void aSecondInstallIsNone() {
    const auto updater = m_host->updaterWithRelease(
        u"/a.pkg"_s, Answer::ok(ReleaseHost::package()).repeated(0).ending(Answer::End::Hang));
    updater->install();
    updater->install();
    QTRY_COMPARE(m_host->server.requests.size(), 2);
    updater->install();
    QCOMPARE(updater->state, Updater::Downloading);
    QCOMPARE(m_host->downloads(), QStringList{u"a.pkg.part"_s});
    QCOMPARE(m_host->server.requests.size(), 2);
  }

  void elsewhereNothingIsAsked_data() {
    QTest::addColumn<QString>("url");
    QTest::newRow("another host") << u"https://elsewhere.example/a.pkg"_s;
    QTest::newRow("the same letters") << u"https://not"_s + ReleaseHost::domain() + u"/a.pkg"_s;
    QTest::newRow("http") << u"http://"_s + ReleaseHost::name() + u"/a.pkg"_s;
    QTest::newRow("a user") << u"https://me@"_s + ReleaseHost::name() + u"/a.pkg"_s;
    QTest::newRow("a file") << u"file:///etc/hostname"_s;
    QTest::newRow("nothing") << QString();
  }
  void elsewhereNothingIsAsked() {
    QFETCH(QString, url);
    const auto updater = m_host->updaterWithRelease();
    updater->release.url = QUrl(url);
    const QSignalSpy told(updater.get(), &Updater::stateChanged);
    updater->install();
    QCOMPARE(updater->error, u"The update is not on Tarnwick's server."_s);
    QCOMPARE(updater->state, Updater::Available);
    QCOMPARE(told.size(), 1);
    QVERIFY(!QFile::exists(updater->downloadDir));
    QCOMPARE(m_host->proxy.asked.size(), 1);
  }

  void theDomainInForceIsTheUpdatersOwn() {
    const auto updater = m_host->updaterWithRelease();
    updater->allowedDomain = u"elsewhere.example"_s;
    updater->install();
    QCOMPARE(updater->error, u"The update is not on Tarnwick's server."_s);
  }

  void aCancelIsNoError() {
    const auto updater =
        m_host->updaterWithRelease(u"/a.pkg"_s, Answer::ok(ReleaseHost::package()).ending(Answer::End::Hang));
    m_host->server.answers["/a.pkg"].head.replace("1048576", "2097152");
    updater->install();
    QTRY_VERIFY(QFile(m_host->home.temp(u"downloads/a.pkg.part"_s)).size() > 0);
    QList<QStringList> files;
    connect(updater.get(), &Updater::stateChanged, this, [&] { files.append(m_host->downloads()); });
    updater->cancel();
    QCOMPARE(updater->state, Updater::Available);
    QCOMPARE(updater->error, QString());
    QCOMPARE(updater->received + updater->total, 0);
    QVERIFY(files.last().isEmpty()); // gone before anyone hears of it
    QCOMPARE(m_host->launched.size(), 0);
    m_host->server.answers.insert("/a.pkg", Answer::ok(ReleaseHost::package()));
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::Installing);
  }

  void aCancelElsewhereDoesNothing() {
    m_host->server.answers.insert("/feed.json", Answer::ok("{}").repeated(0).ending(Answer::End::Hang));
    const auto updater = m_host->updater();
    updater->cancel();
    QCOMPARE(updater->state, Updater::Idle);
    updater->check();
    QTRY_COMPARE(m_host->server.requests.size(), 1);
    updater->cancel();
    QCOMPARE(updater->state, Updater::Checking);
  }

  void aLauncherThatFailsLeavesTheFile() {
    const auto updater = m_host->updaterWithRelease();
    Course course(updater.get());
    m_host->launchFailure = u"Could not open the update."_s;
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::Available);
    QCOMPARE(updater->error, u"Could not open the update."_s);
    QCOMPARE(course.quits.size(), 0);
    QCOMPARE(course.states, (QList<int>{Updater::Downloading, Updater::Installing, Updater::Available}));
    QCOMPARE(m_host->downloads(), QStringList{u"tarnwick.pkg"_s});
    m_host->server.answers.insert("/files/tarnwick.pkg", Answer::of("404 Not Found"));
    updater->install();
    QCOMPARE(m_host->downloads(), QStringList{u"tarnwick.pkg.part"_s}); // what was left is gone at once
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QVERIFY(m_host->downloads().isEmpty());
  }

  void theNextAttemptBeginsAfresh() {
    const auto updater = m_host->updaterWithRelease(u"/a.pkg"_s, Answer::of("404 Not Found"));
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QVERIFY(updater->error.startsWith(notLoaded({})));
    m_host->server.answers.insert("/a.pkg", Answer::ok(ReleaseHost::package()));
    updater->install();
    QCOMPARE(updater->error, QString());
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::Installing);
  }

  void aFailureMayBeFollowedByAnAttemptAtOnce() {
    const auto updater = m_host->updaterWithRelease(u"/a.pkg"_s, Answer::of("404 Not Found"));
    updater->install();
    bool isAgain = false;
    connect(updater.get(), &Updater::stateChanged, this, [&] {
      if (isAgain || updater->state != Updater::Available) return;
      isAgain = true;
      m_host->server.answers.insert("/a.pkg", Answer::ok(ReleaseHost::package()));
      updater->install();
    });
    QTRY_COMPARE_WITH_TIMEOUT(updater->state, Updater::Installing, 30000);
    QCOMPARE(m_host->downloads(), QStringList{u"a.pkg"_s});
    QVERIFY(contentsOf(m_host->launched.value(0)) == ReleaseHost::package());
  }

  void whatIsWrongWithTheFileIsSaid_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("sha256");
    QTest::addColumn<QString>("signer");
    QTest::addColumn<QString>("why");
    const QByteArray good = ReleaseHost::package();
    const QString sum = QString::fromLatin1(ReleaseHost::sha256(good));
    QByteArray flipped = good;
    flipped[flipped.size() - 1] = static_cast<char>(flipped.back() ^ 1);
    const QString mismatch = u"The update does not match the published checksum."_s;
    QTest::newRow("one bit") << flipped << sum << QString() << mismatch;
    QTest::newRow("one byte less") << good.chopped(1) << sum << QString() << u"The update has an unexpected size."_s;
    QTest::newRow("one byte more") << good + 'x' << sum << QString() << mismatch;
    QTest::newRow("nothing") << QByteArray() << sum << QString() << u"The update has an unexpected size."_s;
    QTest::newRow("no checksum") << good << QString() << QString() << mismatch;
    QTest::newRow("a signer") << good << sum << u"Ada"_s << u"The update is not signed by Ada."_s;
    QTest::newRow("a checksum in capitals") << good << sum.toUpper() << QString() << QString();
  }
  void whatIsWrongWithTheFileIsSaid() {
    QFETCH(QByteArray, body);
    QFETCH(QString, sha256);
    QFETCH(QString, signer);
    QFETCH(QString, why);
    const auto updater = m_host->updaterWithRelease(u"/a.pkg"_s, Answer::ok(body));
    updater->release.sha256 = sha256;
    updater->expectedSigner = signer;
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, why.isEmpty() ? QString() : notLoaded(why));
    QCOMPARE(updater->state, why.isEmpty() ? Updater::Installing : Updater::Available);
    QCOMPARE(m_host->downloads(), why.isEmpty() ? QStringList{u"a.pkg"_s} : QStringList());
    QCOMPARE(m_host->launched.size(), why.isEmpty() ? 1 : 0);
  }

  void itMayGoInTheMiddle() {
    auto updater = m_host->updaterWithRelease(u"/a.pkg"_s,
                                              Answer::ok(ReleaseHost::package()).repeated(0).ending(Answer::End::Hang));
    updater->install();
    QTRY_COMPARE(m_host->server.requests.size(), 2);
    QCOMPARE(m_host->downloads(), QStringList{u"a.pkg.part"_s});
    updater.reset();
    QVERIFY(m_host->downloads().isEmpty());
    QCOMPARE(m_host->launched.size(), 0);
  }

 private:
  std::unique_ptr<ReleaseHost> m_host;
};

QTEST_GUILESS_MAIN(TestUpdaterInstall)
#include "tst_Updater_install.moc"
