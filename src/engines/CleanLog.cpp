#include "engines/CleanLog.h"

#include "core/UniqueFd.h"
#include "core/fmt.h"
#include "core/fs.h"
#include "core/names.h"
#include "core/platform.h"
#include "engines/Cleaner.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

// All as wide as each other, so that the paths stand in line.
constexpr QLatin1StringView kExcluded("EXCLUDED ");
constexpr QLatin1StringView kSkipped("SKIPPED  ");
constexpr QLatin1StringView kBusy("BUSY     ");
constexpr QLatin1StringView kEmptied("EMPTIED  ");
constexpr QLatin1StringView kTrashed("TRASHED  ");
constexpr QLatin1StringView kDeleted("DELETED  ");

QLatin1StringView words(SkipReason reason) {
  switch (reason) {
  case SkipReason::ProtectedData:
    return "protected app data"_L1;
  case SkipReason::ProtectedLocation:
    return "protected location"_L1;
  case SkipReason::Open:
    return "open in an app"_L1;
  case SkipReason::InUse:
    return "in use or access denied"_L1;
  case SkipReason::CouldNotEmpty:
    return "could not empty"_L1;
  case SkipReason::AnotherVolume:
    return "another volume"_L1;
  case SkipReason::NoTrash:
    return "no Trash on this volume"_L1;
  }
  return {};
}

/// So many names are tried before a run goes without a log.
constexpr int kMostLogs = 1000;

/// The @p number-th name for a log that is to lie at @p path.
QString numbered(const QString& path, int number) {
  const qsizetype dot = path.lastIndexOf(u'.');
  return number == 1 ? path : path.first(dot) + u'-' + QString::number(number) + path.sliced(dot);
}

/// Makes a file that wasn't there; for the user alone.
UniqueFd makeNew(const QString& path) {
  return UniqueFd(::open(names::encode(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
}

} // namespace

LoggedPath::LoggedPath(const QString& path) : text(names::escaped(QDir::toNativeSeparators(path))) {}

LoggedPath::LoggedPath(const removal::Node& node)
    : text(node.isText ? LoggedPath(node.path).text : names::escaped(QByteArrayView(node.realRaw))) {}

QString CleanLog::pathFor(const QDateTime& when) {
  return Cleaner::logDir() + u"/cleanup-"_s + when.toString(u"yyyyMMdd-HHmmss"_s) + u".log"_s;
}

QString CleanLog::openFile(const QString& path) {
  QDir().mkpath(QFileInfo(path).path());
  QString free = path;
  UniqueFd fd = makeNew(free);
  for (int number = 2; !fd && errno == EEXIST && number <= kMostLogs; ++number) {
    free = numbered(path, number);
    fd = makeNew(free);
  }
  struct stat status = {};
  if (!fd || ::fstat(fd.get(), &status) != 0 ||
      !m_file.open(fd.get(), QIODevice::WriteOnly | QIODevice::Text, QFileDevice::AutoCloseHandle)) {
    goNowhere();
    return path;
  }
  (void)fd.release();
  m_fileName = QFileInfo(free).fileName();
  m_device = status.st_dev;
  m_inode = status.st_ino;
  m_stream.setDevice(&m_file);
  return free;
}

// The lines of a run without a log aren't kept: there may be very many.
void CleanLog::goNowhere() {
  m_file.setFileName(QProcess::nullDevice());
  if (m_file.open(QIODevice::WriteOnly)) m_stream.setDevice(&m_file);
}

bool CleanLog::isOwnFile(const QString& path) const {
  if (m_fileName.isEmpty() || !path.endsWith(m_fileName)) return false;
  fs::Entry entry;
  return fs::stat(path, &entry) && entry.inode == m_inode && static_cast<quint64>(entry.device) == m_device;
}

void CleanLog::head(const QDateTime& when, bool moveToTrash, qint64 selectedBytes) {
  const QString mode = moveToTrash ? "move to "_L1 + platform::trashName()
                                   //: In the head of a log, after “Mode: ”
                                   : QCoreApplication::translate("Cleaner", "delete permanently");
  m_stream << "Tarnwick cleanup "_L1 << when.toString(Qt::ISODate) << '\n';
  m_stream << "Mode: "_L1 << mode << '\n';
  m_stream << "Selected: "_L1 << fmt::bytes(selectedBytes) << '\n';
  emptyLine();
}

void CleanLog::category(const QString& title, qint64 bytes) {
  m_stream << "== "_L1 << title << " ("_L1 << fmt::bytes(bytes) << ")\n"_L1;
}

void CleanLog::excluded(const LoggedPath& path) { m_stream << kExcluded << path.text << '\n'; }

void CleanLog::running(const LoggedPath& path, const QString& app) {
  m_stream << kSkipped << path.text << "  ("_L1 << names::escaped(app) << " is running)\n"_L1;
}

void CleanLog::skipped(const LoggedPath& path, SkipReason reason, qint64 error) {
  m_stream << kSkipped << path.text << "  ("_L1 << words(reason);
  if (error != 0) m_stream << ", error "_L1 << error;
  m_stream << ")\n"_L1;
}

void CleanLog::busy(const LoggedPath& path, qint64 error) {
  m_stream << kBusy << path.text << "  (error "_L1 << error << ", will retry)\n"_L1;
}

void CleanLog::emptied(const QString& what) { m_stream << kEmptied << what << '\n'; }

void CleanLog::emptyLine() { m_stream << '\n'; }

void CleanLog::removed(bool toTrash, const LoggedPath& path, qint64 freedBytes) {
  m_stream << (toTrash ? kTrashed : kDeleted) << path.text << "  "_L1 << fmt::bytes(freedBytes) << '\n';
}

void CleanLog::summary(qint64 freedBytes, qint64 removedFiles, qint64 skipped) {
  m_stream << "Freed "_L1 << fmt::bytes(freedBytes) << ", removed "_L1 << removedFiles << " files, skipped "_L1
           << skipped << ".\n"_L1;
}

void CleanLog::flush() {
  m_stream.flush();
  if (m_file.isOpen()) m_file.flush();
}
