#include "support/ConnectProxy.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>

namespace {

constexpr qint64 kMostWaiting = 1 << 20;

/// One connection and what it leads to. Goes with the connection.
class Tunnel : public QObject {
 public:
  Tunnel(ConnectProxy* proxy, QTcpSocket* near)
      : QObject(near), m_proxy(proxy), m_near(near), m_far(new QTcpSocket(this)) {
    m_far->setProxy(QNetworkProxy::NoProxy);
    connect(near, &QTcpSocket::readyRead, this, [this] { m_isOpen ? pass() : read(); });
    connect(m_far, &QTcpSocket::connected, this, [this] {
      m_isOpen = true;
      m_far->setSocketOption(QAbstractSocket::LowDelayOption, 1);
      m_near->write("HTTP/1.1 200 Connection established\r\n\r\n");
      pass();
    });
    for (QTcpSocket* socket : {near, m_far}) {
      socket->setReadBufferSize(kMostWaiting);
      connect(socket, &QTcpSocket::bytesWritten, this, [this] { pass(); });
    }
    connect(m_far, &QTcpSocket::readyRead, this, [this] { pass(); });
    connect(m_far, &QTcpSocket::disconnected, this, [this] {
      if (m_near->state() != QAbstractSocket::ConnectedState) return;
      m_near->write(m_far->readAll());
      m_near->disconnectFromHost();
    });
    connect(near, &QTcpSocket::disconnected, near, &QObject::deleteLater);
  }

 private:
  void read() {
    m_question += m_near->readAll();
    if (m_isAsked || !m_question.contains("\r\n\r\n")) return;
    m_isAsked = true;
    const QList<QByteArray> words = m_question.left(m_question.indexOf("\r\n")).split(' ');
    m_proxy->asked.append(QString::fromUtf8(words.value(0) + ' ' + words.value(1)));
    const QString host = QString::fromUtf8(words.value(1).split(':').value(0));
    if (words.value(0) == "CONNECT" && m_proxy->ports.contains(host))
      return m_far->connectToHost(QHostAddress::LocalHost, m_proxy->ports.value(host));
    m_near->write("HTTP/1.1 502 Bad Gateway\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    m_near->disconnectFromHost();
  }

  /// Both ways, as far as the other side takes it.
  void pass() {
    if (!m_isOpen) return;
    if (m_far->bytesToWrite() < kMostWaiting) m_far->write(m_near->readAll());
    if (m_near->bytesToWrite() < kMostWaiting) m_near->write(m_far->readAll());
  }

  ConnectProxy* m_proxy;
  QTcpSocket* m_near;
  QTcpSocket* m_far;
  QByteArray m_question;
  bool m_isAsked = false;
  bool m_isOpen = false;
};

} // namespace

ConnectProxy::ConnectProxy() {
  if (!listen(QHostAddress::LocalHost)) qFatal("no port on the loopback");
  QNetworkProxy::setApplicationProxy(
      QNetworkProxy(QNetworkProxy::HttpProxy, QHostAddress(QHostAddress::LocalHost).toString(), serverPort()));
}

ConnectProxy::~ConnectProxy() { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }

void ConnectProxy::incomingConnection(qintptr handle) {
  auto* const near = new QTcpSocket(this);
  if (!near->setSocketDescriptor(handle)) qFatal("a connection that isn't one");
  near->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  new Tunnel(this, near);
}
