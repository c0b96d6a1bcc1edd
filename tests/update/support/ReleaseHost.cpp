#include "support/ReleaseHost.h"

#include "core/deployment.h"
#include "core/platform.h"

#include <QCryptographicHash>
#include <QDir>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 kSeed = 20240229;

TestCertificate trusted() {
  QString why;
  const TestCertificate made = TestCertificate::make({ReleaseHost::domain(), u"*."_s + ReleaseHost::domain()}, &why);
  if (made.isNull()) qFatal("no certificate to test with: %s", qPrintable(why));
  made.trust();
  return made;
}

} // namespace

ReleaseHost::ReleaseHost() : certificate(trusted()), server(certificate) {
  proxy.ports = {{domain(), server.serverPort()},
                 {name(), server.serverPort()},
                 {u"two.below."_s + domain(), server.serverPort()}, // where the certificate doesn't reach
                 {u"plain."_s + domain(), plainServer.serverPort()}};
}

QString ReleaseHost::name() { return u"files."_s + domain(); }

QString ReleaseHost::domain() { return deployment::domain(); }

QString ReleaseHost::key() { return platform::builtFor() == platform::Host::Mac ? u"mac"_s : u"linux"_s; }

QString ReleaseHost::address(const QString& target, const QString& host) { return u"https://"_s + host + target; }

const QByteArray& ReleaseHost::package() {
  static const QByteArray bytes = [] {
    QByteArray made(Updater::kLeastBytes, Qt::Uninitialized);
    QRandomGenerator random(kSeed);
    random.fillRange(reinterpret_cast<quint32*>(made.data()), made.size() / qsizetype(sizeof(quint32)));
    return made;
  }();
  return bytes;
}

QByteArray ReleaseHost::sha256(const QByteArray& bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray ReleaseHost::feed(const QString& url, const QByteArray& sha256Digits) {
  const QJsonObject entry{{u"version"_s, u"2.0.0"_s},
                          {u"url"_s, url},
                          {u"sha256"_s, QString::fromLatin1(sha256Digits)},
                          {u"size"_s, u"12 MB"_s},
                          {u"date"_s, u"29 February"_s},
                          {u"change"_s, QJsonArray{u"Quicker"_s, u"<b>Bolder</b>"_s}}};
  return QJsonDocument(QJsonObject{{key(), entry}}).toJson();
}

std::unique_ptr<Updater> ReleaseHost::updater() {
  auto made = std::make_unique<Updater>(nullptr, QUrl(address(u"/feed.json"_s)));
  made->downloadDir = home.temp(u"downloads"_s);
  made->currentVersion = u"1.0.0"_s;
  made->launcher = [this](const QString& path) {
    launched.append(path);
    return launchFailure;
  };
  return made;
}

std::unique_ptr<Updater> ReleaseHost::updaterWithRelease() {
  return updaterWithRelease(u"/files/tarnwick.pkg"_s, Answer::ok(package()));
}

std::unique_ptr<Updater> ReleaseHost::updaterWithRelease(const QString& target, const Answer& answer) {
  server.answers.insert("/feed.json", Answer::ok(feed(address(target))));
  server.answers.insert(target.toUtf8(), answer);
  std::unique_ptr<Updater> made = updater();
  made->check();
  if (!hasEnded(*made) || made->state != Updater::Available) qWarning("no release: %s", qPrintable(made->error));
  return made;
}

// A loop of its own: the waits of the test library look only every 10 ms, and a handshake has many steps.
bool ReleaseHost::hasEnded(const Updater& updater, std::chrono::seconds patience) {
  const auto isAtWork = [&] { return updater.state == Updater::Checking || updater.state == Updater::Downloading; };
  QEventLoop loop;
  QObject::connect(&updater, &Updater::stateChanged, &loop, [&] {
    if (!isAtWork()) loop.quit();
  });
  QTimer::singleShot(patience, &loop, &QEventLoop::quit);
  if (isAtWork()) loop.exec();
  return !isAtWork();
}

QStringList ReleaseHost::downloads() const {
  return QDir(home.temp(u"downloads"_s))
      .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}
