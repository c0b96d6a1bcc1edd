/// The text that a clean leaves: one line a decision. The words of the lines are known here alone, and never translated
/// but for the mode.
#pragma once

#include "core/removal.h"

#include <QDateTime>
#include <QFile>
#include <QString>
#include <QTextStream>

/// Why something was skipped.
enum class SkipReason { ProtectedData, ProtectedLocation, Open, InUse, CouldNotEmpty, AnotherVolume, NoTrash };

/// A path as a line shows it: in native separators, with nothing in it that could pass for another line or a terminal's
/// command. What is no text shows its bytes.
struct LoggedPath {
  LoggedPath(const QString& path);       // NOLINT(google-explicit-constructor): every path may be logged
  LoggedPath(const removal::Node& node); // NOLINT(google-explicit-constructor)
  QString text;
};

/// Collects its text until openFile() is called. One thread.
class CleanLog {
 public:
  CleanLog() { m_stream.setString(&m_text); }
  CleanLog(const CleanLog&) = delete;
  CleanLog& operator=(const CleanLog&) = delete;

  /// Where the log of a run that begins at @p when lies.
  [[nodiscard]] static QString pathFor(const QDateTime& when);

  /// Writes from now on to a new file at @p path, made with its folder and for the user's eyes alone. Never touches
  /// what stands there, the log of an earlier run in the same second above all: then "-2", "-3" and so on come before
  /// the ending. @return the path of the file; where none could be made, @p path, and the lines go nowhere
  QString openFile(const QString& path);
  /// What was collected so far.
  [[nodiscard]] QString text() const { return m_text; }
  /// Whether the file at @p path is the open log. Reads the disk only if the name is the log's.
  [[nodiscard]] bool isOwnFile(const QString& path) const;

  void head(const QDateTime& when, bool moveToTrash, qint64 selectedBytes);
  void category(const QString& title, qint64 bytes);
  void excluded(const LoggedPath& path);
  void running(const LoggedPath& path, const QString& app);
  /// @param error  told only if it isn't 0
  void skipped(const LoggedPath& path, SkipReason reason, qint64 error = 0);
  void busy(const LoggedPath& path, qint64 error);
  void emptied(const QString& what);
  void emptyLine();
  void removed(bool toTrash, const LoggedPath& path, qint64 freedBytes);
  void summary(qint64 freedBytes, qint64 removedFiles, qint64 skipped);
  /// Hands everything to the system.
  void flush();

 private:
  void goNowhere();

  QFile m_file;
  QString m_text;
  QString m_fileName;
  quint64 m_device = 0;
  quint64 m_inode = 0;
  QTextStream m_stream;
};
