/// Keeps the program up to date: asks the release feed, downloads, proves what came, hands it to the system.
#pragma once

#include "update/UpdateRelease.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>

class PartFile;
class QNetworkAccessManager;
class QNetworkReply;
class QTimer;

/// How long a server may take. The defaults are the program's; tests have less patience.
struct UpdateTimeouts {
  std::chrono::milliseconds feed = std::chrono::seconds(15);      ///< without a byte of the feed
  std::chrono::milliseconds wholeFeed = std::chrono::seconds(60); ///< for all of the feed
  std::chrono::milliseconds download = std::chrono::seconds(60);  ///< without a byte of the download
};

/// Works on the event loop of the thread that it lives on, the user interface's; only verifying and opening the
/// finished file hold that up. Nothing that came from the network gets a name to open it by before it was verified.
class Updater : public QObject {
  Q_OBJECT

 public:
  enum State {
    Idle = 0,        ///< no check was made
    Checking = 1,    ///< the feed is asked
    UpToDate = 2,    ///< the feed names nothing newer
    Available = 3,   ///< release is newer and valid; error tells of a download that failed
    Failed = 4,      ///< the check failed; error tells why
    Downloading = 5, ///< received and total tell how far it is
    Installing = 6,  ///< the verified file is handed to the system
  };
  Q_ENUM(State)

  /// A download is refused beyond these, in bytes.
  static constexpr qint64 kLeastBytes = 1'048'576;
  static constexpr qint64 kMostBytes = 314'572'800;

  Updater(QObject* parent, const QUrl& feed);
  /// A running download ends, and leaves nothing.
  ~Updater() override;

  /// The feed on the release host of this build.
  [[nodiscard]] static QUrl defaultFeed();

  const QUrl feedUrl;
  State state = Idle;
  UpdateRelease release; ///< the last that the feed told; its texts are plain text from the network
  QString error;         ///< of the last failure, translated; empty if there is none
  /// Where downloads go: made if it is missing, refused unless it is the user's alone.
  QString downloadDir;
  QString allowedDomain;  ///< what a download and each of its redirects is held to
  QString expectedSigner; ///< who must have signed a download; empty: nobody
  QString currentVersion; ///< what a release is compared with: this build's version
  /// Opens a verified file; returns an empty text or the words of a failure. By default launchInstaller().
  std::function<QString(const QString&)> launcher;
  qint64 received = 0; ///< of the running download, in bytes; 0 at rest
  qint64 total = 0;    ///< of the running download; 0 or less where the server doesn't say
  UpdateTimeouts timeouts;

  /// Stores it and emits stateChanged().
  void setState(State newState);
  /// Asks the feed; ends in UpToDate, Available or Failed. Nothing happens while a check, a download or an
  /// installation runs.
  void check();
  /// Downloads the release, verifies it and opens it. Nothing happens but in Available. A failure, whatever it is,
  /// leads back there, with error set.
  void install();
  /// Ends a running download, without an error.
  void cancel();

  /// Reads the release for the system and the processor that the program was built for. @return false for anything that
  /// isn't exactly a feed; @p out is then filled as far as it was good
  [[nodiscard]] static bool parse(const QByteArray& json, UpdateRelease& out);
  /// The same of the platform @p key; @p arm: for an arm64 processor, where the feed has a download of its own for it.
  [[nodiscard]] static bool parse(const QByteArray& json, const QString& key, bool arm, UpdateRelease& out);
  /// Whether version @p a comes after @p b. False if either is not two to four dotted numbers.
  [[nodiscard]] static bool newer(const QString& a, const QString& b);
  /// Holds a file's size to the limits, its contents to @p sha256, and its signature to @p signer unless that is empty.
  /// Reads all of it before it returns; follows no link. @return empty, or the words of a failure, translated
  [[nodiscard]] static QString verify(const QString& path, const QString& sha256, const QString& signer);
  /// Whose signature the file has; empty on both systems so far, which read none.
  [[nodiscard]] static QString signer(const QString& path);
  /// Hands the file to the system: on macOS it is opened; on Linux the file manager shows it, selected in its folder,
  /// and this returns when it has answered, without taking input meanwhile. @return empty, or the words of a failure
  [[nodiscard]] static QString launchInstaller(const QString& path);

 signals:
  /// state, error, received or total is another.
  void stateChanged();
  /// The file was handed over; the program should end now.
  void quitForUpdate();

 private:
  QNetworkReply* get(const QUrl& url, std::chrono::milliseconds timeout);
  void askFeed(const QUrl& url);
  void onHead();
  void follow(const QUrl& url);
  void stop(const QString& failure);
  [[nodiscard]] QNetworkReply* take();
  [[nodiscard]] static QString notOnServer();
  [[nodiscard]] QString failureOf(const QNetworkReply& reply) const;
  void readFeed(const QByteArray& body);
  void onFeedFinished();
  [[nodiscard]] static QString fileName(const QUrl& url);
  void refuse(const QString& failure);
  void startDownload(const QUrl& url);
  void onDownloadData();
  void onDownloadFinished();
  void downloadFinished(const QString& failure);
  void handOver(const QString& path);
  [[nodiscard]] static QString failureOfFile(int fd, const QString& path, const QString& sha256, const QString& signer);

  QNetworkAccessManager* m_network; ///< a child
  QTimer* m_feedLimit;              ///< a child; runs while the feed is asked
  QPointer<QNetworkReply> m_reply;  ///< in flight, of either kind
  QString m_failure;                ///< why we stopped the reply, known before it tells that it was stopped
  int m_redirects = 0;              ///< since the request that began it
  std::unique_ptr<PartFile> m_part; ///< while something is downloaded
};
