/// A proxy on the loopback that leads names to servers of the test, and nowhere else.
#pragma once

#include <QHash>
#include <QStringList>
#include <QTcpServer>

/// Knows the method CONNECT alone, and writes down everything that it is asked.
class ConnectProxy : public QTcpServer {
  Q_OBJECT

 public:
  /// Listens on a free port, and is this process's proxy as long as it lives.
  ConnectProxy();
  ~ConnectProxy() override;

  /// Port on the loopback by the name of a host. Other names are "502 Bad Gateway".
  QHash<QString, quint16> ports;
  /// The first line of each request, without its version: "CONNECT name:443".
  QStringList asked;

 protected:
  void incomingConnection(qintptr handle) override;
};
