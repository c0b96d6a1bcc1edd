/// Which of the large files the Space Map shows.
#pragma once

#include "app/records.h"

#include <QString>

namespace ui {

struct LargeFilesFilter {
  enum Segment { All, Unused, Downloads };

  Segment segment = All;
  int months = 0;    ///< from this age on a file counts as unused
  QString needle;    ///< in name or folder, in any case of letters; empty for all
  QString downloads; ///< what the folder of a download begins with, in any case of letters; in native separators

  [[nodiscard]] bool keeps(const LargeFile& file) const;
  /// In their order.
  [[nodiscard]] QList<LargeFile> kept(const QList<LargeFile>& files) const;
};

/// The folder that downloads lie in, for the host in force, in native separators. Reads the environment afresh.
[[nodiscard]] QString downloadsPrefix();

} // namespace ui
