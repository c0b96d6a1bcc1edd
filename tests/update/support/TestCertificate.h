/// A certificate with its key, made for one run of a test and trusted by nobody else.
#pragma once

#include <QSslCertificate>
#include <QSslKey>
#include <QString>
#include <QStringList>

struct TestCertificate {
  /// Makes one for @p hosts ("*.name" for all directly below a name) with the command openssl, in a folder that goes.
  /// Null if that fails; @p why then tells.
  static TestCertificate make(const QStringList& hosts, QString* why);
  /// From here on, this process takes it for an authority.
  void trust() const;

  [[nodiscard]] bool isNull() const { return certificate.isNull() || key.isNull(); }

  QSslCertificate certificate = QSslCertificate();
  QSslKey key = QSslKey();
};
