/// The context of the texts that the Cleanup page shows, and the words that several of its views share.
#pragma once

#include "core/platform.h"

#include <QCoreApplication>

namespace ui {

struct CleanupWords {
  Q_DECLARE_TR_FUNCTIONS(CleanupPage)

 public:
  /// What stands in the place of a size where a category could not be read.
  static QString blocked() {
    return platform::host() == platform::Host::Mac ? tr("Needs Full Disk Access") : tr("No permission to read");
  }
};

} // namespace ui
