/// What a download is held to before it gets its name.
#include "update/Updater.h"

#include "core/UniqueFd.h"
#include "core/names.h"

#include <QCryptographicHash>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kBlockBytes = qsizetype{1} << 20;

/// In lower-case hexadecimal digits, of exactly @p bytes bytes from the start; empty if they can't be read.
QString sha256Of(int fd, qint64 bytes) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  QByteArray block(kBlockBytes, Qt::Uninitialized);
  qint64 done = 0;
  while (done < bytes) {
    const ssize_t got = ::pread(fd, block.data(), static_cast<size_t>(block.size()), done);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return {};
    hash.addData(QByteArrayView(block.constData(), got));
    done += got;
  }
  return done == bytes ? QString::fromLatin1(hash.result().toHex()) : QString();
}

} // namespace

QString Updater::verify(const QString& path, const QString& sha256, const QString& signer) {
  // Not to wait where the path leads to a pipe.
  const UniqueFd file(::open(names::encode(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  return failureOfFile(file.get(), path, sha256, signer);
}

QString Updater::failureOfFile(int fd, const QString& path, const QString& sha256, const QString& signer) {
  struct stat status;
  if (::fstat(fd, &status) != 0 || !S_ISREG(status.st_mode)) return tr("Could not read the update.");
  const auto size = qint64{status.st_size};
  if (size < kLeastBytes || size > kMostBytes) return tr("The update has an unexpected size.");
  const QString digest = sha256.isEmpty() ? QString() : sha256Of(fd, size);
  if (digest.isEmpty() || digest != sha256.toLower()) return tr("The update does not match the published checksum.");
  if (signer.isEmpty() || Updater::signer(path) == signer) return {};
  return tr("The update is not signed by %1.").arg(signer);
}

QString Updater::signer(const QString& /*path*/) { return {}; }
