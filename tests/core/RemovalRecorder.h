/// What the tests of removal share: what one asked and told, how to step in between its acts, and what lies on the
/// disk.
#pragma once

#include "core/names.h"
#include "core/removal.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QList>
#include <QStringList>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/// Verdicts are given by path; everything else may go.
struct RemovalRecorder {
  QHash<QString, removal::Verdict> verdicts; ///< by Node::path
  QStringList asked;
  QList<std::pair<QString, removal::Kept>> kept;
  QList<removal::Stay> busy;

  removal::Handlers handlers() {
    return {.judge =
                [this](const removal::Node& node) {
                  asked.append(node.path);
                  return verdicts.value(node.path, removal::Verdict::Remove);
                },
            .kept =
                [this](const removal::Node& node, removal::Kept why) {
                  kept.append({node.path, why});
                },
            .busy = [this](const removal::Stay& stay) { busy.append(stay); }};
  }

  void clear() {
    asked.clear();
    kept.clear();
    busy.clear();
  }

  QStringList busyPaths() const {
    QStringList paths;
    for (const removal::Stay& stay : busy) paths.append(stay.node.path);
    paths.sort();
    return paths;
  }
  QStringList keptPaths() const {
    QStringList paths;
    for (const auto& one : kept) paths.append(one.first);
    paths.sort();
    return paths;
  }
};

/// Calls back before each act of any removal until it goes.
struct Pause {
  explicit Pause(std::function<void(const removal::Node&)> hook) { removal::setPauseHook(std::move(hook)); }
  ~Pause() { removal::setPauseHook({}); }
};

/// What is to be removed, where no link leads to it.
inline removal::Target at(const QString& path) { return {path, path}; }

/// All that a folder holds, in order.
inline QStringList namesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

/// Makes @p name, any bytes, a file in @p folder.
inline void rawFile(const QString& folder, const QByteArray& name) {
  const QByteArray raw = QFile::encodeName(folder) + '/' + name;
  const int fd = ::open(raw.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
  if (fd < 0) qFatal("cannot make %s", raw.constData());
  ::close(fd);
}

/// Whether something stands at @p path, a dangling link too.
inline bool isThere(const QString& path) {
  struct stat status;
  return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

/// Removes all in @p folder, whatever its name and whatever a test has closed; what a fixture's temporary folder can't
/// remove itself.
inline void wipe(const QString& folder) {
  const QByteArray find = "find '" + QFile::encodeName(folder) + "' -mindepth 1 ";
  const QByteArray command = find + "-type d ! -perm -u=rwx -exec chmod u+rwx {} \\; && " + find + "-delete";
  if (::system(command.constData()) != 0) qFatal("cannot empty %s", qPrintable(folder));
}

/// Runs @p work in a child process that is no administrator. @return its result, or -1 if it crashed
inline int asPlainUser(const std::function<int()>& work) {
  constexpr uid_t kNobody = 65534;
  const pid_t child = ::fork();
  if (child == 0) {
    const bool dropped =
        ::geteuid() != 0 || (::setgroups(0, nullptr) == 0 && ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0);
    ::_exit(dropped ? work() : 100);
  }
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

/// Gives @p path, and all below it, to the user of asPlainUser(), and makes the folders above it passable.
inline void giveToPlainUser(const QString& path) {
  if (::geteuid() != 0) return;
  const QByteArray raw = QFile::encodeName(path);
  const QByteArray command = "chown -hR 65534:65534 '" + raw + "'";
  if (::system(command.constData()) != 0) qFatal("cannot chown %s", raw.constData());
  for (QByteArray above = raw.left(raw.lastIndexOf('/')); above.startsWith("/var/tmp/tarnwick-test-");
       above = above.left(above.lastIndexOf('/')))
    ::chmod(above.constData(), 0755);
}
