#include "support/HttpServer.h"

#include <QHostAddress>
#include <QSslSocket>
#include <QTimer>

#include <algorithm>

namespace {

constexpr qint64 kMostWaiting = 1 << 20;

/// One connection, for one request. Goes with its socket.
class Connection : public QObject {
 public:
  Connection(HttpServer* server, QSslSocket* socket) : QObject(socket), m_server(server), m_socket(socket) {
    connect(socket, &QSslSocket::readyRead, this, [this] { read(); });
    connect(socket, &QSslSocket::bytesWritten, this, [this] { send(); });
    connect(socket, &QSslSocket::encryptedBytesWritten, this, [this] { send(); });
    connect(&m_drip, &QTimer::timeout, this, [this] { drip(); });
  }

 private:
  void read() {
    m_question += m_socket->readAll();
    if (m_isAnswering) return;
    if (!m_question.startsWith('G')) return refuse(); // as a plain server does that meets a handshake
    if (!m_question.contains("\r\n\r\n")) return;
    m_isAnswering = true;
    Request request = parsed();
    m_answer = m_server->answers.value(request.target, Answer::of("404 Not Found"));
    m_server->requests.append(std::move(request));
    emit m_server->asked();
    m_left = m_answer.repeats;
    m_socket->write(m_answer.head);
    if (m_answer.everyMs > 0)
      m_drip.start(m_answer.everyMs);
    else
      send();
  }

  void refuse() {
    m_socket->write(Answer::of("400 Bad Request").head);
    m_socket->disconnectFromHost();
  }

  [[nodiscard]] Request parsed() const {
    QList<QByteArray> lines = m_question.left(m_question.indexOf("\r\n\r\n")).split('\n');
    for (QByteArray& line : lines) line = line.trimmed();
    const QList<QByteArray> first = lines.takeFirst().split(' ');
    return {first.value(0), first.value(1), lines};
  }

  [[nodiscard]] qint64 waiting() const { return m_socket->bytesToWrite() + m_socket->encryptedBytesToWrite(); }

  void send() {
    if (!m_isAnswering || m_drip.isActive() || m_socket->state() != QAbstractSocket::ConnectedState) return;
    while (m_left != 0 && !m_answer.body.isEmpty() && waiting() < kMostWaiting) {
      m_socket->write(m_answer.body);
      if (m_left > 0) --m_left;
    }
    if (m_left == 0 || m_answer.body.isEmpty()) end();
  }

  void drip() {
    m_socket->write(m_answer.body.mid(m_dripped, 1));
    m_dripped = (m_dripped + 1) % std::max<qsizetype>(m_answer.body.size(), 1);
    if (m_dripped != 0 || m_left < 0 || --m_left > 0) return;
    m_drip.stop();
    end();
  }

  void end() {
    switch (m_answer.end) {
    case Answer::End::Close:
      return m_socket->disconnectFromHost();
    case Answer::End::Cut:
      // Later: the socket may be in the middle of its encryption.
      if (waiting() == 0) QTimer::singleShot(0, m_socket, [socket = m_socket] { socket->abort(); });
      return;
    case Answer::End::Hang:
      return;
    }
  }

  HttpServer* m_server;
  QSslSocket* m_socket;
  QTimer m_drip;
  QByteArray m_question;
  Answer m_answer;
  qint64 m_left = 0;
  qsizetype m_dripped = 0;
  bool m_isAnswering = false;
};

QByteArray head(const QByteArray& status, const QByteArray& headers) {
  return "HTTP/1.1 " + status + "\r\n" + headers + "Connection: close\r\n\r\n";
}

QByteArray length(const QByteArray& body) { return "Content-Length: " + QByteArray::number(body.size()) + "\r\n"; }

} // namespace

Answer Answer::ok(const QByteArray& body, const QByteArray& headers) { return of("200 OK", headers, body); }

Answer Answer::of(const QByteArray& status, const QByteArray& headers, const QByteArray& body) {
  return {.head = ::head(status, headers + length(body)), .body = body};
}

Answer Answer::redirect(const QByteArray& to, const QByteArray& status) {
  return of(status, "Location: " + to + "\r\n");
}

Answer Answer::chunked(const QByteArray& body) {
  return {.head = ::head("200 OK", "Transfer-Encoding: chunked\r\n"),
          .body = QByteArray::number(body.size(), 16) + "\r\n" + body + "\r\n0\r\n\r\n"};
}

Answer Answer::ending(End how) const {
  Answer other = *this;
  other.end = how;
  return other;
}

Answer Answer::repeated(qint64 times) const {
  Answer other = *this;
  other.repeats = times;
  return other;
}

Answer Answer::dripping(int milliseconds) const {
  Answer other = *this;
  other.everyMs = milliseconds;
  return other;
}

QByteArray Request::value(const QByteArray& name) const {
  for (const QByteArray& line : headers)
    if (line.toLower().startsWith(name.toLower() + ':')) return line.mid(name.size() + 1).trimmed();
  return {};
}

HttpServer::HttpServer(const TestCertificate& certificate) : m_certificate(certificate) {
  if (!listen(QHostAddress::LocalHost)) qFatal("no port on the loopback");
}

void HttpServer::sendMore(const QByteArray& bytes) {
  if (m_last == nullptr) qFatal("no connection is left");
  m_last->write(bytes);
}

void HttpServer::incomingConnection(qintptr handle) {
  auto* const socket = new QSslSocket(this);
  m_last = socket;
  if (!socket->setSocketDescriptor(handle)) qFatal("a connection that isn't one");
  socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
  new Connection(this, socket);
  if (m_certificate.isNull()) return;
  socket->setLocalCertificate(m_certificate.certificate);
  socket->setPrivateKey(m_certificate.key);
  socket->startServerEncryption();
}
