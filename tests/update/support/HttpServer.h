/// A web server on the loopback that answers as its test says, however wrong that is.
#pragma once

#include "support/TestCertificate.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QSslSocket>
#include <QTcpServer>

/// What is sent back, byte for byte.
struct Answer {
  enum class End {
    Close, ///< the connection is closed in an orderly way
    Hang,  ///< it stays open, and nothing more comes
    Cut,   ///< it is torn
  };
  static constexpr qint64 kForever = -1;

  QByteArray head; ///< status line, headers, and the empty line behind them
  QByteArray body;
  qint64 repeats = 1; ///< how often the body is sent; kForever until the other side hangs up
  int everyMs = 0;    ///< 0: as fast as it goes; else the head at once and then the body, one byte each time
  End end = End::Close;

  /// 200 with the length of @p body; @p headers are lines, each with its end.
  static Answer ok(const QByteArray& body, const QByteArray& headers = {});
  /// @p status is as in "404 Not Found".
  static Answer of(const QByteArray& status, const QByteArray& headers = {}, const QByteArray& body = {});
  static Answer redirect(const QByteArray& to, const QByteArray& status = "302 Found");
  /// 200, with the body in one chunk.
  static Answer chunked(const QByteArray& body);

  [[nodiscard]] Answer ending(End how) const;
  [[nodiscard]] Answer repeated(qint64 times) const;
  [[nodiscard]] Answer dripping(int milliseconds) const;
};

/// One request as it came.
struct Request {
  QByteArray method;
  QByteArray target;
  QList<QByteArray> headers; ///< lines without their ends

  /// The value of a header; empty if it isn't there.
  [[nodiscard]] QByteArray value(const QByteArray& name) const;
};

class HttpServer : public QTcpServer {
  Q_OBJECT

 public:
  /// Listens on a free port; without a certificate it speaks plainly.
  explicit HttpServer(const TestCertificate& certificate = TestCertificate());

  /// By target, which is the path with its query. What isn't here is "404 Not Found".
  QHash<QByteArray, Answer> answers;
  /// All that came, in order.
  QList<Request> requests;

  /// Sends @p bytes on the connection that came last, which hangs.
  void sendMore(const QByteArray& bytes);

 signals:
  /// A request came; its answer is about to be sent.
  void asked();

 protected:
  void incomingConnection(qintptr handle) override;

 private:
  TestCertificate m_certificate;
  QPointer<QSslSocket> m_last;
};
