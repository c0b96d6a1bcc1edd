#include "update/PartFile.h"

#include "core/names.h"

#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t kFolderMode = 0700;
constexpr mode_t kFileMode = 0600;
constexpr mode_t kPermissions = 0777;

QString systemText() { return QString::fromLocal8Bit(std::strerror(errno)); }

/// Nobody else can put a file there, swap one, or look at it. What isn't so is refused with EACCES.
bool isPrivate(int fd) {
  struct stat status;
  if (::fstat(fd, &status) != 0) return false;
  if (status.st_uid == ::geteuid() && (status.st_mode & kPermissions) == kFolderMode) return true;
  errno = EACCES;
  return false;
}

/// A folder that this makes goes by the same test as one that is there: someone may have been quicker.
UniqueFd openPrivateFolder(const QString& path) {
  QDir().mkpath(QFileInfo(path).path());
  const QByteArray raw = names::encode(path);
  if (::mkdir(raw.constData(), kFolderMode) != 0 && errno != EEXIST) return {};
  UniqueFd folder(::open(raw.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (folder && !isPrivate(folder.get())) return {};
  return folder;
}

} // namespace

std::unique_ptr<PartFile> PartFile::create(const QString& folder, const QString& name, QString* why) {
  const QString path = QDir::cleanPath(folder);
  UniqueFd fd = openPrivateFolder(path);
  if (!fd) {
    *why = path + u": "_s + systemText();
    return nullptr;
  }
  std::unique_ptr<PartFile> part(new PartFile(std::move(fd), path, name));
  if (!part->m_file) {
    *why = systemText();
    return nullptr;
  }
  return part;
}

PartFile::PartFile(UniqueFd folder, const QString& folderPath, const QString& name)
    : m_finalPath(folderPath + u'/' + name),
      m_finalName(names::encode(name)),
      m_partName(m_finalName + kSuffix),
      m_folder(std::move(folder)) {
  ::unlinkat(m_folder.get(), m_finalName.constData(), 0);
  ::unlinkat(m_folder.get(), m_partName.constData(), 0);
  m_file.reset(
      ::openat(m_folder.get(), m_partName.constData(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kFileMode));
}

PartFile::~PartFile() {
  if (m_file && !m_isKept) ::unlinkat(m_folder.get(), m_partName.constData(), 0);
}

bool PartFile::write(QByteArrayView block, QString* why) {
  while (!block.isEmpty()) {
    const ssize_t written = ::write(m_file.get(), block.data(), static_cast<size_t>(block.size()));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) {
      *why = systemText();
      return false;
    }
    m_size += written;
    block = block.sliced(written);
  }
  return true;
}

bool PartFile::keep() {
  if (!isCalled(m_folder.get(), m_partName)) return false;
  m_isKept = ::renameat(m_folder.get(), m_partName.constData(), m_folder.get(), m_finalName.constData()) == 0;
  return m_isKept;
}

bool PartFile::isAtFinalPath() const { return isCalled(AT_FDCWD, names::encode(m_finalPath)); }

bool PartFile::isCalled(int dirFd, const QByteArray& name) const {
  struct stat named;
  struct stat opened;
  if (::fstatat(dirFd, name.constData(), &named, AT_SYMLINK_NOFOLLOW) != 0) return false;
  if (::fstat(m_file.get(), &opened) != 0) return false;
  return named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}
