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
  QNetworkRequest request(feedUrl);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  m_reply = get(std::move(request), timeouts.feed);
  // A server that sends a byte now and then never runs into the first time-out.
  m_feedLimit->start(timeouts.wholeFeed);
  connect(m_reply, &QNetworkReply::readyRead, this, [this] {
    if (m_reply->bytesAvailable() > feed::kMostBytes) stop(unreadable());
  });
  connect(m_reply, &QNetworkReply::finished, this, &Updater::onFeedFinished);
}

/// Nothing compressed is asked for, and with this header of our own nothing is unpacked: the limits count what is
/// really received.
QNetworkReply* Updater::get(QNetworkRequest request, std::chrono::milliseconds timeout) {
  request.setTransferTimeout(static_cast<int>(timeout.count()));
  request.setHeader(QNetworkRequest::UserAgentHeader, u"Tarnwick/%1"_s.arg(kVersion));
  request.setRawHeader("Accept-Encoding", "identity");
  m_failure.clear();
  return m_network->get(request);
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
    return reply.errorString();
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
