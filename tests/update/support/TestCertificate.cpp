#include "support/TestCertificate.h"

#include <QFile>
#include <QProcess>
#include <QSsl>
#include <QSslConfiguration>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLimitMs = 60000;

QByteArray contentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TestCertificate TestCertificate::make(const QStringList& hosts, QString* why) {
  const QTemporaryDir folder;
  const QString keyPath = folder.filePath(u"key.pem"_s);
  const QString path = folder.filePath(u"certificate.pem"_s);
  QProcess tool;
  tool.start(u"openssl"_s,
             {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:prime256v1"_s,
              u"-nodes"_s, u"-keyout"_s, keyPath, u"-out"_s, path, u"-days"_s, u"2"_s, u"-subj"_s, u"/CN=a test"_s,
              u"-addext"_s, u"subjectAltName=DNS:"_s + hosts.join(u",DNS:"_s)});
  if (!tool.waitForFinished(kLimitMs) || tool.exitCode() != 0) {
    *why = u"openssl: "_s + tool.errorString() + u' ' + QString::fromLocal8Bit(tool.readAllStandardError());
    return {};
  }
  TestCertificate made{QSslCertificate(contentsOf(path), QSsl::Pem), QSslKey(contentsOf(keyPath), QSsl::Ec)};
  if (made.isNull()) *why = u"what openssl made can't be read"_s;
  return made;
}

void TestCertificate::trust() const {
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.addCaCertificate(certificate);
  QSslConfiguration::setDefaultConfiguration(configuration);
}
