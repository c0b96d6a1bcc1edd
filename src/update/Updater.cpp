#include "update/Updater.h"

#include "core/deployment.h"
#include "core/platform.h"
#include "update/PartFile.h"
#include "update/feed.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kVersion(TARNWICK_VERSION);
constexpr int kHttpOk = 200;
constexpr int kMostRedirects = 20;
constexpr qsizetype kMostWords = 300;            // characters that a dialog can show
constexpr qint64 kMostWaiting = qint64{1} << 20; // bytes that the network may be ahead of us; more than a feed has

/// By the system that the program was built for, not by the one whose words it shows.
QString platformKey() { return platform::builtFor() == platform::Host::Mac ? u"mac"_s : u"linux"_s; }

QString tooSlow() { return Updater::tr("The server took too long to answer."); }
QString unreadable() { return Updater::tr("The update information could not be read."); }

} // namespace

Updater::Updater(QObject* parent, const QUrl& feed)
    : QObject(parent),
      feedUrl(feed),
      downloadDir(QStandardPaths::writableLocation(QStandardPaths::TempLocation) + "/Tarnwick-update"_L1),
      allowedDomain(deployment::domain()),
      currentVersion(kVersion),
      launcher(&Updater::launchInstaller),
      m_network(new QNetworkAccessManager(this)),
      m_feedLimit(new QTimer(this)) {
  m_feedLimit->setSingleShot(true);
  connect(m_feedLimit, &QTimer::timeout, this, [this] { stop(tooSlow()); });
}

Updater::~Updater() {
  if (!m_reply) return;
  m_reply->disconnect(this);
  m_reply->abort();
}

QUrl Updater::defaultFeed() { return QUrl(u"https://%1/tarnwick/upgrade.json"_s.arg(deployment::releaseHost())); }

bool Updater::parse(const QByteArray& json, UpdateRelease& out) {
  return parse(json, platformKey(), QSysInfo::currentCpuArchitecture() == "arm64"_L1, out);
}

bool Updater::parse(const QByteArray& json, const QString& key, bool arm, UpdateRelease& out) {
  return feed::parse(json, key, arm, deployment::domain(), &out);
}

bool Updater::newer(const QString& a, const QString& b) { return feed::isNewer(a, b); }

void Updater::setState(State newState) {
  state = newState;
  emit stateChanged();
}

void Updater::check() {
  if (m_reply || state == Checking || state == Downloading || state == Installing) return;
  release = {};
  error.clear();
  setState(Checking);
  // A server that sends a byte now and then never runs into the other time-out.
  m_feedLimit->start(timeouts.wholeFeed);
  m_redirects = 0;
  askFeed(feedUrl);
}

void Updater::askFeed(const QUrl& url) {
  m_reply = get(url, timeouts.feed);
  m_reply->setReadBufferSize(
      kMostWaiting); // not for a download: what is longer than this was seen to stall with Qt 6.4
  connect(m_reply, &QNetworkReply::readyRead, this, [this] {
    if (m_reply->bytesAvailable() > feed::kMostBytes) stop(unreadable());
  });
  connect(m_reply, &QNetworkReply::finished, this, &Updater::onFeedFinished);
}

/// Nothing compressed is asked for, and with this header of our own nothing is unpacked: the limits count what is
/// really received. Redirects are followed here, one request after the other: a reply that follows by itself reads any
/// body that comes with one into memory, and can't be kept from sending its next request once it tells of it.
QNetworkReply* Updater::get(const QUrl& url, std::chrono::milliseconds timeout) {
  QNetworkRequest request(url);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setTransferTimeout(static_cast<int>(timeout.count()));
  request.setHeader(QNetworkRequest::UserAgentHeader, u"Tarnwick/%1"_s.arg(kVersion));
  request.setRawHeader("Accept-Encoding", "identity");
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false); // it sends on to who doesn't read
  m_failure.clear();
  QNetworkReply* const reply = m_network->get(request);
  connect(reply, &QNetworkReply::metaDataChanged, this, &Updater::onHead);
  return reply;
}

void Updater::onHead() {
  const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
  if (!target.isEmpty()) follow(m_reply->url().resolved(target));
}

/// No hop leads away from https, and each hop of a download is held to the same rule as its first request.
void Updater::follow(const QUrl& url) {
  const bool isDownload = m_part != nullptr;
  const bool isLessSafe = url.scheme() != "https"_L1 && url.scheme() != m_reply->url().scheme();
  if (isDownload && (isLessSafe || !feed::isAllowed(url, allowedDomain))) return stop(notOnServer());
  if (isLessSafe) return stop(tr("The server redirected to an address that is not safe."));
  if (++m_redirects > kMostRedirects) return stop(tr("Too many redirects."));
  take()->abort(); // with whatever body it has
  isDownload ? startDownload(url) : askFeed(url);
}

/// Ends the reply, with finished() as always, if that isn't on its way already.
void Updater::stop(const QString& failure) {
  m_failure = failure;
  m_reply->abort();
}

/// The reply that has ended: no longer in flight, and deleted later.
QNetworkReply* Updater::take() {
  QNetworkReply* const reply = m_reply;
  m_reply.clear();
  reply->disconnect(this);
  reply->deleteLater();
  return reply;
}

QString Updater::notOnServer() { return tr("The update is not on Tarnwick's server."); }

/// Empty for an answer that is to be read. The network's word for a time-out is that for a reply which was cancelled,
/// but what we end ourselves has its own reason.
QString Updater::failureOf(const QNetworkReply& reply) const {
  if (!m_failure.isEmpty()) return m_failure;
  switch (reply.error()) {
  case QNetworkReply::NoError:
    break;
  case QNetworkReply::OperationCanceledError:
  case QNetworkReply::TimeoutError:
    return tooSlow();
  default:
    return reply.errorString().simplified().left(kMostWords); // the server's own words may be among them
  }
  const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  return status == kHttpOk ? QString() : u"HTTP %1"_s.arg(status);
}

void Updater::onFeedFinished() {
  m_feedLimit->stop();
  QNetworkReply* const reply = take();
  error = failureOf(*reply);
  if (error.isEmpty()) readFeed(reply->readAll());
  if (!error.isEmpty()) return setState(Failed);
  setState(newer(release.version, currentVersion) ? Available : UpToDate);
}

/// A feed without this platform has nothing for it, which is no failure; the release then stays without a version.
void Updater::readFeed(const QByteArray& body) {
  if (!parse(body, release) && !feed::lacks(body, platformKey())) error = unreadable();
}
