#include "core/removal_tree.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace removal {

TreeWalk::TreeWalk(sys::DirReader& reader, UniqueFd top, const NodePath& path, const Volume& volume)
    : m_reader(reader), m_chain(std::move(top)), m_path(path), m_volume(volume) {
  m_levels.push_back({.mark = path.mark()});
}

void TreeWalk::walkAll() {
  read(Descriptor::Used);
  run();
}

void TreeWalk::walkChild(const QByteArray& name) {
  visit(name.constData(), static_cast<size_t>(name.size()), DT_UNKNOWN);
  run();
}

void TreeWalk::run() {
  while (!m_stopped && !m_levels.empty()) {
    if (!nextPending()) {
      leave();
    } else if (folder() && !m_stopped) {
      enter();
    }
  }
}

// Takes the last of the waiting names, as those of a level above stand before it.
bool TreeWalk::nextPending() {
  const size_t begin = level().pendingBegin;
  if (m_pending.size() == begin) return false;
  const size_t end = m_pending.size() - 1;
  const size_t zero = end == 0 ? std::string::npos : m_pending.rfind('\0', end - 1);
  const size_t start = zero == std::string::npos || zero < begin ? begin : zero + 1;
  m_path.toChild(level().mark, m_pending.data() + start, end - start, true);
  m_pending.resize(start);
  return true;
}

// Opens the folder node() and makes sure that it lies on the walk's volume. 0, or the errno, and nothing has changed.
int TreeWalk::stepInto(ino_t* inode) {
  if (m_volume.endsAt(fd(), name())) return EXDEV;
  if (!m_chain.enter(name())) return errno;
  struct stat status;
  const int error = ::fstat(fd(), &status) == 0 ? 0 : errno;
  *inode = status.st_ino;
  const bool sameMount = !m_volume.mount || sys::mountId(fd()) == m_volume.mount;
  if (error == 0 && sameMount && status.st_dev == m_volume.device) return 0;
  if (!m_chain.leave()) stop(); // can't be: the folder above is still open
  return error != 0 ? error : EXDEV;
}

void TreeWalk::enter() {
  ino_t inode = 0;
  if (const int error = stepInto(&inode); error != 0) {
    closed(error);
    return;
  }
  m_levels.push_back({.mark = m_path.mark(), .pendingBegin = m_pending.size(), .inode = inode});
  entered();
  read(Descriptor::Fresh);
}

bool TreeWalk::readAgain() {
  ino_t inode = 0;
  if (stepInto(&inode) != 0) return false;
  ++level().passes;
  if (inode == level().inode && read(Descriptor::Fresh) > 0) return true;
  m_path.backTo(level().mark);
  if (!m_chain.leave()) stop();
  return false;
}

bool TreeWalk::readTopAgain() {
  ++level().passes;
  return read(Descriptor::Used) > 0;
}

bool TreeWalk::begin(Descriptor descriptor) {
  if (descriptor == Descriptor::Used) return m_reader.start(fd());
  m_reader.startFresh(fd());
  return true;
}

// How many names were visited.
size_t TreeWalk::read(Descriptor descriptor) {
  size_t visited = 0;
  if (!begin(descriptor)) {
    level().readError = errno;
    return 0;
  }
  sys::RawName raw;
  while (!m_stopped && m_reader.next(&raw)) {
    const QSet<QByteArray>& stays = level().stays;
    if (!stays.isEmpty() && stays.contains(QByteArray::fromRawData(raw.name, static_cast<qsizetype>(raw.length))))
      continue;
    ++visited;
    visit(raw.name, raw.length, raw.type);
  }
  level().readError = m_reader.error();
  return visited;
}

void TreeWalk::visit(const char* name, size_t length, unsigned char type) {
  bool isDir = type == DT_DIR;
  int error = 0;
  if (type == DT_UNKNOWN) {
    struct stat status;
    error = ::fstatat(fd(), name, &status, AT_SYMLINK_NOFOLLOW) == 0 ? 0 : errno;
    isDir = error == 0 && S_ISDIR(status.st_mode);
  }
  if (isDir) {
    m_pending.append(name, length).push_back('\0');
    return;
  }
  if (error == ENOENT) return;
  m_path.toChild(level().mark, name, length, false);
  if (error == 0)
    file();
  else
    unknown(error);
}

void TreeWalk::leave() {
  if (atTop()) {
    if (topAgain()) return;
    finished();
    popLevel();
    return;
  }
  if (m_chain.leave()) {
    m_path.backTo(level().mark);
    left();
    return;
  }
  const Level child = m_levels[1];
  m_levels.resize(1);
  m_pending.resize(child.pendingBegin);
  m_path.backTo(child.mark);
  lost();
}

} // namespace removal
