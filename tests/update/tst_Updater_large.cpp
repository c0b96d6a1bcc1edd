/// The limits of a download, at their real size.
// ctest: TIMEOUT 300
#include "support/ReleaseHost.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QThread>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 kLeast = 1'048'576;
constexpr qint64 kMost = 314'572'800;
constexpr qint64 kBlock = 1'048'576;
static_assert(kMost % kBlock == 0);

QString sha256OfZeros(qint64 bytes) {
  static QHash<qint64, QString> known;
  if (known.contains(bytes)) return known.value(bytes);
  const qint64 all = bytes;
  QCryptographicHash hash(QCryptographicHash::Sha256);
  const QByteArray block(kBlock, '\0');
  for (; bytes > 0; bytes -= kBlock) hash.addData(QByteArrayView(block).first(std::min<qint64>(bytes, kBlock)));
  return known[all] = QString::fromLatin1(hash.result().toHex());
}

} // namespace

/// Over plain HTTP without a proxy, which is allowed where the domain is empty: the way here is about bytes alone.
class TestUpdaterLarge : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }

  void aFileIsHeldToBothLimits_data() {
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<bool>("good");
    QTest::newRow("the least") << kLeast << true;
    QTest::newRow("a byte less") << kLeast - 1 << false;
    QTest::newRow("nothing") << qint64{0} << false;
    QTest::newRow("the most") << kMost << true;
    QTest::newRow("a byte more") << kMost + 1 << false;
  }
  void aFileIsHeldToBothLimits() {
    QFETCH(qint64, bytes);
    QFETCH(bool, good);
    const QString path = m_home.file(u"zeros"_s, 0);
    QVERIFY(QFile::resize(path, bytes)); // with holes: no disk is needed
    const QString words = Updater::verify(path, good ? sha256OfZeros(bytes) : QString(), {});
    QCOMPARE(words, good ? QString() : u"The update has an unexpected size."_s);
  }

  void theMostIsDownloaded() {
    const auto updater = prepared(kMost / kBlock, Answer::End::Close);
    updater->release.sha256 = sha256OfZeros(kMost);
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater, 200s));
    QCOMPARE(updater->error, QString());
    QCOMPARE(updater->state, Updater::Installing);
    QCOMPARE(QFile(m_launched).size(), kMost);
  }

  void oneByteMoreIsStoppedAtOnce() {
    const auto updater = prepared(Answer::kForever, Answer::End::Close);
    qint64 most = 0;
    connect(updater.get(), &Updater::stateChanged, this, [&] { most = std::max(most, updater->received); });
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater, 200s));
    QCOMPARE(updater->error, u"The update could not be downloaded: The update has an unexpected size."_s);
    QCOMPARE(updater->state, Updater::Available);
    QVERIFY2(most < kMost + 64 * kBlock, qPrintable(QString::number(most)));
    QVERIFY(!QFile::exists(m_home.temp(u"large/zeros.pkg.part"_s)));
    QVERIFY(m_launched.isEmpty());
  }

  /// While the window is busy, nothing piles up in memory: the server has to wait.
  void whoIsNotReadMustWait() {
    const Talker talker;
    const QUrl url(u"http://127.0.0.1:%1/"_s.arg(talker.port));
    const auto updater = prepared(0, Answer::End::Hang, url);
    updater->check();
    QTRY_VERIFY(talker.isAsked.available() > 0);
    // Without a limit this much is through long before.
    QVERIFY(!talker.hasSentMuch.tryAcquire(1, std::chrono::milliseconds(1s)));
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::Failed);
  }

 private:
  /// Answers one request from a thread of its own, without an end, and tells when it has got rid of 64 MB.
  struct Talker {
    Talker() {
      QSemaphore listens;
      m_thread.reset(QThread::create([this, &listens] {
        QTcpServer server;
        if (!server.listen(QHostAddress::LocalHost)) qFatal("no port on the loopback");
        port = server.serverPort();
        listens.release();
        if (!server.waitForNewConnection(kPatienceMs)) return;
        const std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
        socket->waitForReadyRead(kPatienceMs);
        isAsked.release();
        talk(socket.get());
      }));
      m_thread->start();
      listens.acquire();
    }
    ~Talker() { m_thread->wait(); }

    quint16 port = 0;
    mutable QSemaphore isAsked;
    mutable QSemaphore hasSentMuch;

   private:
    static constexpr int kPatienceMs = 30'000;
    static constexpr qint64 kMuch = 64 * kBlock;

    void talk(QTcpSocket* socket) const {
      const QByteArray block(kBlock, ' ');
      socket->write("HTTP/1.1 200 OK\r\n\r\n");
      for (qint64 sent = 0; socket->state() == QAbstractSocket::ConnectedState; sent += kBlock) {
        if (sent == kMuch) hasSentMuch.release();
        socket->write(block);
        while (socket->bytesToWrite() > 0 && socket->waitForBytesWritten(kPatienceMs)) continue;
      }
    }

    std::unique_ptr<QThread> m_thread;
  };

  std::unique_ptr<Updater> prepared(qint64 blocks, Answer::End end) {
    return prepared(blocks, end, QUrl(u"http://127.0.0.1:%1/zeros.pkg"_s.arg(m_server.serverPort())));
  }

  std::unique_ptr<Updater> prepared(qint64 blocks, Answer::End end, const QUrl& url) {
    m_launched.clear();
    m_server.answers.insert(
        "/zeros.pkg",
        Answer{.head = "HTTP/1.1 200 OK\r\n\r\n", .body = QByteArray(kBlock, '\0'), .repeats = blocks, .end = end});
    auto made = std::make_unique<Updater>(nullptr, url);
    made->allowedDomain.clear();
    made->downloadDir = m_home.temp(u"large"_s);
    made->launcher = [this](const QString& path) {
      m_launched = path;
      return QString();
    };
    made->release.url = url;
    made->release.sha256 = QString(64, u'0');
    made->setState(Updater::Available);
    return made;
  }

  FixtureHome m_home;
  HttpServer m_server;
  QString m_launched;
};

QTEST_GUILESS_MAIN(TestUpdaterLarge)
#include "tst_Updater_large.moc"
