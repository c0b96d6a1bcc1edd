/// The release host of this build as a test's own server: reached by its name through a proxy, over TLS, with a
/// certificate that this process trusts.
#pragma once

#include "support/ConnectProxy.h"
#include "support/FixtureHome.h"
#include "support/HttpServer.h"
#include "update/Updater.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>

class ReleaseHost {
 public:
  /// Fails the process where openssl isn't there: without it nothing here would be tested.
  ReleaseHost();

  /// A host of the domain, and the domain.
  [[nodiscard]] static QString name();
  [[nodiscard]] static QString domain();
  /// The key of the platform that this build reads in the feed.
  [[nodiscard]] static QString key();
  /// The address of @p target on @p host.
  [[nodiscard]] static QString address(const QString& target, const QString& host = name());

  /// What is downloaded where nothing is wrong: random bytes, as few as a release may have.
  [[nodiscard]] static const QByteArray& package();
  [[nodiscard]] static QByteArray sha256(const QByteArray& bytes);
  /// A feed with one release for this platform, version 2.0.0.
  [[nodiscard]] static QByteArray feed(const QString& url, const QByteArray& sha256Digits = sha256(package()));

  /// An updater of a program 1.0.0 with a download folder and a launcher of the test's; what it launches is written
  /// down. It hasn't checked yet.
  std::unique_ptr<Updater> updater();
  /// The same, with the release "/files/tarnwick.pkg" available.
  std::unique_ptr<Updater> updaterWithRelease();
  /// Answers @p target with a whole package, and returns an updater with a release of that address.
  std::unique_ptr<Updater> updaterWithRelease(const QString& target, const Answer& answer);
  /// Runs the event loop until it no longer checks or downloads. False after @p patience.
  [[nodiscard]] static bool hasEnded(const Updater& updater, std::chrono::seconds patience = std::chrono::seconds(30));
  /// All that lies in the download folder.
  [[nodiscard]] QStringList downloads() const;

  FixtureHome home;
  TestCertificate certificate;
  HttpServer server;
  HttpServer plainServer; ///< speaks no TLS, under the name "plain." + domain()
  ConnectProxy proxy;
  QStringList launched;  ///< paths
  QString launchFailure; ///< what the launcher returns
};
