#include "core/removal_walk.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace removal {

namespace {

constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
/// A folder that something keeps filling is given up after so many readings.
constexpr int kMaxPasses = 8;

bool isNotEmpty(int error) { return error == ENOTEMPTY || error == EEXIST; }

} // namespace

std::optional<Kept> keptBy(Verdict verdict) {
  switch (verdict) {
  case Verdict::KeepExcluded:
    return Kept::Excluded;
  case Verdict::KeepProtectedData:
    return Kept::ProtectedData;
  case Verdict::KeepProtectedLocation:
    return Kept::ProtectedLocation;
  case Verdict::KeepOpen:
    return Kept::Open;
  case Verdict::Remove:
  case Verdict::NotWhole:
  case Verdict::KeepFolder:
    break;
  }
  return std::nullopt;
}

int removeEmptyFolder(int dirFd, const char* name) { return ::unlinkat(dirFd, name, AT_REMOVEDIR) == 0 ? 0 : errno; }

int removeFile(int dirFd, const char* name) { return ::unlinkat(dirFd, name, 0) == 0 ? 0 : errno; }

Act moveToTrash(Run& run, int dirFd, const Node& node) {
  const QByteArray name = node.realRaw.mid(node.realRaw.lastIndexOf('/') + 1);
  const trash::Outcome outcome = run.session.move(dirFd, name, node.realRaw);
  switch (outcome.result) {
  case trash::Result::Moved:
    if (run.handlers.moved) run.handlers.moved(node, outcome);
    return {};
  case trash::Result::NoTrash:
    return {.noTrash = true};
  case trash::Result::Failed:
    break;
  }
  return {.error = outcome.error != 0 ? outcome.error : EIO};
}

RemovalWalk::RemovalWalk(Run& run, UniqueFd top, const NodePath& path, const Volume& volume, Extent extent)
    : TreeWalk(run.reader, std::move(top), path, volume),
      m_run(run),
      m_topRaw(path.node().realRaw),
      m_all(extent == Extent::All) {
  if (run.options.toTrash) m_hasTrash = run.session.hasTrash(fd());
}

void RemovalWalk::file() {
  if (!mayGo(m_run.handlers.judge(node()))) return;
  if (m_run.options.dryRun) {
    if (const int error = predictedRefusal(); error != 0) busy(error);
    return;
  }
  pauseBefore(node());
  if (!m_run.options.toTrash) {
    settle(removeFile(fd(), name()));
    return;
  }
  const Act act = moveToTrash(m_run, fd(), node());
  if (act.noTrash)
    keep(Kept::NoTrash);
  else
    settle(act.error);
}

bool RemovalWalk::folder() {
  const Verdict verdict = m_run.handlers.judge(node());
  if (!mayGo(verdict)) return false;
  m_entersClean = m_run.options.toTrash && isClean() && verdict == Verdict::Remove;
  m_entersStaying = verdict == Verdict::KeepFolder;
  if (!m_run.options.dryRun) pauseBefore(node());
  if (m_run.options.wholeOnly && !m_entersClean) {
    keep(Kept::NotWhole);
    return false;
  }
  return !m_entersClean || moveWhole() == Whole::Open;
}

// What is entered though it was found clean didn't let itself be moved; what lies in it may.
void RemovalWalk::entered() {
  level().isClean = m_entersClean;
  level().staysItself = m_entersStaying;
}

// What holds before anything is tried: the verdict, the mount, the Trash.
bool RemovalWalk::mayGo(Verdict verdict) {
  const std::optional<Kept> reason = keptBy(verdict);
  if (reason) {
    keep(*reason);
  } else if ((node().isDir || m_run.options.dryRun) && volume().endsAt(fd(), name())) {
    keep(Kept::AnotherVolume);
  } else if (!m_hasTrash) {
    keep(Kept::NoTrash);
  } else {
    return true;
  }
  return false;
}

// Whether a folder may leave as a whole. Directly below the top each is surveyed once, so that all it holds is known
// when the turn of its own folders comes. A folder that no survey has seen is opened.
bool RemovalWalk::isClean() {
  if (atTop()) return surveyIsClean();
  if (level().isClean) return true;
  struct stat status;
  return ::fstatat(fd(), name(), &status, AT_SYMLINK_NOFOLLOW) == 0 && m_clean.contains(status.st_ino);
}

bool RemovalWalk::surveyIsClean() {
  m_clean.clear();
  UniqueFd own(::openat(fd(), name(), kFolderFlags));
  if (!own || Volume::of(own.get()) != volume()) return false;
  Survey::Result found = Survey(reader(), std::move(own), path(), volume(), m_run.handlers.judge).run();
  m_clean = std::move(found.clean);
  return !found.holds;
}

RemovalWalk::Whole RemovalWalk::moveWhole() {
  const Act act = m_run.options.dryRun ? Act{.error = predictedRefusal()} : moveToTrash(m_run, fd(), node());
  if (act.noTrash) {
    keep(Kept::NoTrash);
  } else if (act.error == 0) {
    if (!m_run.options.dryRun) settle(0);
  } else if (act.error != ENOENT) {
    if (!m_run.options.wholeOnly) return Whole::Open;
    busy(act.error);
  }
  return Whole::Settled;
}

void RemovalWalk::closed(int error) {
  if (error == ENOENT) return;
  if (error == EXDEV)
    keep(Kept::AnotherVolume);
  else
    busy(error);
}

void RemovalWalk::unknown(int error) { busy(error); }

void RemovalWalk::left() {
  if (level().staysItself) {
    leftStaying();
    return;
  }
  const int error = m_run.options.dryRun ? predictedFolderRefusal() : removeOwnFolder();
  if (isNotEmpty(error) && !m_run.options.dryRun && level().passes < kMaxPasses && readAgain()) return;
  const bool holds = level().holds;
  const int readError = level().readError;
  popLevel();
  const bool went = error == 0 || error == ENOENT;
  if (!went && readError != 0)
    busy(readError);
  else if (!went && holds)
    stays();
  else
    settle(error);
}

// What was passed over while others went is looked for here too, though there is no removal that would fail for it.
void RemovalWalk::leftStaying() {
  if (!m_run.options.dryRun && level().passes < kMaxPasses && readAgain()) return;
  const int readError = level().readError;
  popLevel();
  if (readError != 0) {
    busy(readError);
    return;
  }
  if (m_run.handlers.kept) m_run.handlers.kept(node(), Kept::Open);
  stays();
}

int RemovalWalk::removeOwnFolder() {
  pauseBefore(node());
  return removeEmptyFolder(fd(), name());
}

// Entries that a file system passed over while others went, or that came meanwhile.
bool RemovalWalk::topAgain() { return m_all && !m_run.options.dryRun && level().passes < kMaxPasses && readTopAgain(); }

void RemovalWalk::lost() { busy(ESTALE); }

// What a dry run can tell beforehand: the folder above isn't the user's to write, or lets only owners remove.
int RemovalWalk::predictedRefusal() {
  if (::faccessat(fd(), ".", W_OK | X_OK, AT_EACCESS) != 0) return errno;
  struct stat above;
  struct stat own;
  if (::fstat(fd(), &above) != 0 || ::fstatat(fd(), name(), &own, AT_SYMLINK_NOFOLLOW) != 0) return 0;
  const uid_t user = ::geteuid();
  const bool sticky = (above.st_mode & S_ISVTX) != 0 && user != 0 && above.st_uid != user && own.st_uid != user;
  return sticky ? EPERM : 0;
}

int RemovalWalk::predictedFolderRefusal() {
  return level().holds || level().readError != 0 ? ENOTEMPTY : predictedRefusal();
}

void RemovalWalk::settle(int error) {
  if (error == 0) {
    ++m_run.removedNodes;
  } else if (error == EBUSY && volume().endsAt(fd(), name())) {
    keep(Kept::AnotherVolume);
  } else if (error != ENOENT) {
    busy(error);
  }
}

void RemovalWalk::keep(Kept reason) {
  if (m_run.handlers.kept) m_run.handlers.kept(node(), reason);
  if (m_run.options.dryRun) m_run.stayCount.addNode(fd(), name());
  stays();
  if (reason == Kept::NoTrash) stop();
}

void RemovalWalk::busy(int error) {
  if (m_run.handlers.busy) m_run.handlers.busy({node(), m_topRaw, error});
  if (m_run.options.dryRun) m_run.stayCount.addNode(fd(), name());
  stays();
}

void RemovalWalk::stays() {
  level().holds = true;
  level().stays.insert(QByteArray(name()));
}

} // namespace removal
