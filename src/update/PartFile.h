/// A download on its way to the name under which it may be opened.
#pragma once

#include "core/UniqueFd.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <memory>

/// Lies in a folder that is the user's alone, under its name and ".part", and goes with the object unless it was kept.
/// All that happens to it happens through the descriptors that were opened first, so that the file that is verified is
/// the file that was written, and the file that gets the name is the one that was verified.
class PartFile {
 public:
  /// Makes @p folder, and those above it, where they are missing, takes away what an earlier attempt left under either
  /// name, and makes the file, empty, for its user alone.
  /// @param folder  must be no link, belong to the user and have mode 0700 if it is there already
  /// @param why  receives the reason of a failure, in the system's words
  /// @return null on failure, which leaves no file
  static std::unique_ptr<PartFile> create(const QString& folder, const QString& name, QString* why);
  ~PartFile();
  PartFile(const PartFile&) = delete;
  PartFile& operator=(const PartFile&) = delete;

  /// Where it will lie when it is kept.
  [[nodiscard]] QString finalPath() const { return m_finalPath; }
  /// Where it lies until then.
  [[nodiscard]] QString partPath() const { return m_finalPath + QString::fromLatin1(kSuffix); }
  /// Open for reading and writing.
  [[nodiscard]] int fd() const { return m_file.get(); }
  /// Bytes written so far.
  [[nodiscard]] qint64 size() const { return m_size; }

  /// Appends all of @p block. False: @p why tells, and some of it may be written.
  [[nodiscard]] bool write(QByteArrayView block, QString* why);
  /// Gives it its final name, in place of whatever file has that. False if that fails, or if its name leads to another
  /// file by now.
  [[nodiscard]] bool keep();
  /// Whether finalPath() leads to this very file.
  [[nodiscard]] bool isAtFinalPath() const;

 private:
  static constexpr char kSuffix[] = ".part";

  PartFile(UniqueFd folder, const QString& folderPath, const QString& name);

  [[nodiscard]] bool isCalled(int dirFd, const QByteArray& name) const;

  QString m_finalPath;
  QByteArray m_finalName; ///< raw, within the folder, as is m_partName
  QByteArray m_partName;
  UniqueFd m_folder;
  UniqueFd m_file;
  qint64 m_size = 0;
  bool m_isKept = false;
};
