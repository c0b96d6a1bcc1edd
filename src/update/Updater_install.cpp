/// The way of a download: request, redirects, blocks, the one end of all of them, and the hand-over.
#include "update/Updater.h"

#include "core/names.h"
#include "update/PartFile.h"
#include "update/feed.h"

#include <QFileInfo>
#include <QNetworkReply>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostNameBytes = 200; // a file system's limit is 255, and ".part" follows

/// The user's own end of a download; never shown.
constexpr QLatin1String kCanceled("canceled");

QString unexpectedSize() { return Updater::tr("The update has an unexpected size."); }
//: %1: what the system says about it
QString notSaved(const QString& why) { return Updater::tr("Could not save the update: %1").arg(why); }

/// Neither a control character, nor one that turns the direction of what follows, nor a line break of any kind.
bool isShowable(QChar c) {
  return c.isPrint() && c.category() != QChar::Separator_Line && c.category() != QChar::Separator_Paragraph;
}

} // namespace

/// The last name of the address, unless it is one that no download would have.
QString Updater::fileName(const QUrl& url) {
  const QString name = QFileInfo(url.path()).fileName();
  const bool isName = !name.isEmpty() && name != "."_L1 && name != ".."_L1;
  const bool isPlain = std::all_of(name.begin(), name.end(), isShowable);
  return isName && isPlain && names::encode(name).size() <= kMostNameBytes ? name : u"tarnwick-update"_s;
}

/// Before anything was begun.
void Updater::refuse(const QString& failure) {
  error = failure;
  emit stateChanged();
}

void Updater::install() {
  if (state != Available || m_reply) return;
  error.clear();
  received = total = 0;
  if (!feed::isAllowed(release.url, allowedDomain)) return refuse(notOnServer());
  QString why;
  m_part = PartFile::create(downloadDir, fileName(release.url), &why);
  if (!m_part) return refuse(notSaved(why));
  m_redirects = 0;
  setState(Downloading);
  startDownload(release.url);
}

void Updater::startDownload(const QUrl& url) {
  m_reply = get(url, timeouts.download);
  connect(m_reply, &QNetworkReply::readyRead, this, &Updater::onDownloadData);
  connect(m_reply, &QNetworkReply::downloadProgress, this, [this](qint64 bytesReceived, qint64 bytesTotal) {
    received = bytesReceived;
    total = bytesTotal;
    emit stateChanged();
  });
  connect(m_reply, &QNetworkReply::finished, this, &Updater::onDownloadFinished);
}

void Updater::cancel() {
  if (state == Downloading && m_reply) stop(kCanceled);
}

/// After a stop the rest of a reply is let be.
void Updater::onDownloadData() {
  if (!m_failure.isEmpty()) return;
  const QByteArray block = m_reply->readAll();
  QString why;
  if (m_part->size() + block.size() > kMostBytes)
    stop(unexpectedSize());
  else if (!m_part->write(block, &why))
    stop(notSaved(why));
}

void Updater::onDownloadFinished() {
  if (m_reply->error() == QNetworkReply::NoError) onDownloadData();
  downloadFinished(failureOf(*take()));
}

/// The one end of every download. Only what passed every test gets its name, and only the file that passed is opened.
void Updater::downloadFinished(const QString& failure) {
  const QString path = m_part->finalPath();
  QString wrong = failure;
  if (wrong.isEmpty()) wrong = failureOfFile(m_part->fd(), m_part->partPath(), release.sha256, expectedSigner);
  if (wrong.isEmpty() && !(m_part->keep() && m_part->isAtFinalPath())) wrong = notSaved(path);
  m_part.reset(); // closed before anything opens it, gone before anyone hears of a failure
  received = total = 0;
  if (wrong.isEmpty()) return handOver(path);
  //: %1: what the system says about it
  error = wrong == kCanceled ? QString() : tr("The update could not be downloaded: %1").arg(wrong);
  setState(Available);
}

void Updater::handOver(const QString& path) {
  setState(Installing);
  error = launcher(path);
  if (error.isEmpty()) {
    emit quitForUpdate();
  } else {
    setState(Available);
  }
}
