#include "ui/shell/Instance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ui {
namespace {

constexpr int kAnswerMs = 2000;
constexpr auto kPause = 50ms;
constexpr qsizetype kDigits = 16; // of the hash; a socket's path may not be long
const QByteArray kHeard = "heard\n";
const QByteArray kLeaving = "leaving\n";

/// The words on the wire, by the wish's number.
constexpr const char* kWords[] = {"show\n", "nothing\n", "updated\n"};

/// A folder that only the user can enter, where the system has one.
QString folder() {
  QString path = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (path.isEmpty()) path = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
  QDir().mkpath(path);
  return path;
}

QString basePath() {
  const QByteArray store = QSettings().fileName().toUtf8();
  const QByteArray key = QCryptographicHash::hash(store, QCryptographicHash::Sha256).toHex().left(kDigits);
  return folder() + u"/tarnwick-"_s + QString::fromLatin1(key);
}

} // namespace

Instance::Instance() : m_base(basePath()), m_lock(m_base + u".lock"_s) {
  m_lock.setStaleLockTime(0); // it is stale when its process is gone, however old it is
  m_server.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&m_server, &QLocalServer::newConnection, this, &Instance::onConnection);
}

Instance::~Instance() { m_server.close(); } // before the lock is free for the next one

Instance::Outcome Instance::start(Wish wish, std::chrono::milliseconds patience) {
  const QDeadlineTimer deadline(patience);
  for (;;) {
    if (m_lock.tryLock(0)) {
      listen();
      return Outcome::First;
    }
    if (handOver(wish)) return Outcome::Heard;
    if (deadline.hasExpired()) return Outcome::Alone;
    QThread::msleep(kPause.count());
  }
}

void Instance::listen() {
  const QString name = m_base + u".socket"_s;
  QLocalServer::removeServer(name); // what a crash left
  m_server.listen(name);
}

void Instance::leave() { m_leaving = true; }

// Whether the first has heard it. One that is leaving, or is not listening yet, has not.
bool Instance::handOver(Wish wish) const {
  QLocalSocket socket;
  socket.connectToServer(m_base + u".socket"_s);
  if (!socket.waitForConnected(kAnswerMs)) return false;
  socket.write(kWords[int(wish)]);
  if (!socket.waitForBytesWritten(kAnswerMs)) return false;
  while (!socket.canReadLine())
    if (!socket.waitForReadyRead(kAnswerMs)) return false;
  return socket.readLine() == kHeard;
}

void Instance::onConnection() {
  while (QLocalSocket* socket = m_server.nextPendingConnection()) {
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] { answer(socket); });
    if (socket->canReadLine()) answer(socket);
  }
}

void Instance::answer(QLocalSocket* socket) {
  if (!socket->canReadLine()) return;
  const QByteArray word = socket->readLine();
  const auto found = std::find(std::begin(kWords), std::end(kWords), word);
  socket->write(m_leaving ? kLeaving : kHeard);
  socket->disconnectFromServer();
  if (!m_leaving && found != std::end(kWords)) emit asked(Wish(found - std::begin(kWords)));
}

} // namespace ui
