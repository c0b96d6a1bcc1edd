/// The limits of a download, at their real size.
// ctest: TIMEOUT 300
#include "support/ReleaseHost.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QNetworkProxy>
#include <QTest>

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

 private:
  std::unique_ptr<Updater> prepared(qint64 blocks, Answer::End end) {
    m_launched.clear();
    m_server.answers.insert(
        "/zeros.pkg",
        Answer{.head = "HTTP/1.1 200 OK\r\n\r\n", .body = QByteArray(kBlock, '\0'), .repeats = blocks, .end = end});
    auto made = std::make_unique<Updater>(nullptr, QUrl());
    made->allowedDomain.clear();
    made->downloadDir = m_home.temp(u"large"_s);
    made->launcher = [this](const QString& path) {
      m_launched = path;
      return QString();
    };
    made->release.url = QUrl(u"http://127.0.0.1:%1/zeros.pkg"_s.arg(m_server.serverPort()));
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
