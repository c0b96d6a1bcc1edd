#include "core/removal_survey.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace removal {

namespace {
constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr qint64 kBlockBytes = 512;
} // namespace

Survey::Result Survey::run() {
  walkAll();
  return std::move(m_result);
}

void Survey::file() {
  if (level().holds) return; // the folder will be opened, and its nodes are asked then
  level().holds = m_judge(node()) != Verdict::Remove || volume().endsAt(fd(), name());
}

bool Survey::folder() {
  const Verdict verdict = m_judge(node());
  if (verdict != Verdict::Remove) level().holds = true;
  m_notWhole = verdict == Verdict::NotWhole || verdict == Verdict::KeepFolder;
  return verdict == Verdict::Remove || m_notWhole;
}

void Survey::entered() { level().holds = m_notWhole; }

void Survey::closed(int error) {
  if (error != ENOENT) level().holds = true;
}

void Survey::unknown(int) { level().holds = true; }

void Survey::left() {
  const bool holds = level().holds || level().readError != 0;
  const quint64 inode = level().inode;
  if (holds) takeClean();
  popLevel();
  if (holds)
    level().holds = true;
  else
    level().clean.append(inode);
}

// Only what lies in a folder that has to be opened is ever asked for.
void Survey::takeClean() {
  for (const quint64 inode : std::as_const(level().clean)) m_result.clean.insert(inode);
}

void Survey::finished() {
  takeClean();
  m_result.holds = level().holds || level().readError != 0;
}

// Nothing is known to be clean then.
void Survey::lost() {
  m_result = {};
  stop();
}

/// Visits everything in a folder and adds it up.
class StayCount::Walk : public TreeWalk {
 public:
  Walk(StayCount& count, UniqueFd top, const Volume& volume)
      : TreeWalk(count.m_reader, std::move(top), NodePath(QString(), QString(), QByteArray()), volume),
        m_count(count) {}

 protected:
  void file() override { m_count.addFile(fd(), name()); }
  bool folder() override { return true; }
  void closed(int error) override { m_count.miss(error); }
  void unknown(int error) override { m_count.miss(error); }
  void left() override {
    m_count.miss(level().readError);
    popLevel();
  }
  void finished() override { m_count.miss(level().readError); }
  void lost() override { stop(); }

 private:
  StayCount& m_count;
};

void StayCount::addNode(int dirFd, const char* name) {
  struct stat above;
  struct stat own;
  if (::fstat(dirFd, &above) != 0 || ::fstatat(dirFd, name, &own, AT_SYMLINK_NOFOLLOW) != 0) {
    miss(errno);
  } else if (!S_ISDIR(own.st_mode)) {
    addFile(dirFd, name);
  } else if (own.st_dev == above.st_dev) {
    const UniqueFd folder(::openat(dirFd, name, kFolderFlags));
    folder ? addAll(folder.get()) : miss(errno);
  }
}

// What isn't there any more holds nothing, and what is no folder is counted as a file.
void StayCount::miss(int error) {
  if (error != 0 && error != ENOENT && error != EXDEV) ++m_totals.unread;
}

void StayCount::addAll(int dirFd) {
  struct stat status;
  UniqueFd top(::openat(dirFd, ".", kFolderFlags));
  if (!top || ::fstat(top.get(), &status) != 0) return;
  Walk(*this, std::move(top), Volume{status.st_dev, std::nullopt}).walkAll();
}

void StayCount::addFile(int dirFd, const char* name) {
  struct stat status;
  if (::fstatat(dirFd, name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
    miss(errno);
    return;
  }
  if (S_ISDIR(status.st_mode) || sys::isDataless(status)) return;
  if (status.st_nlink > 1) {
    const QPair<quint64, quint64> id(static_cast<quint64>(status.st_dev), status.st_ino);
    if (m_linked.contains(id)) return;
    m_linked.insert(id);
  }
  ++m_totals.files;
  if (S_ISREG(status.st_mode)) m_totals.bytes += status.st_blocks * kBlockBytes;
}

} // namespace removal
