/// The context of the texts that the Space Map shows.
#pragma once

#include <QCoreApplication>

namespace ui {

struct LargeFilesWords {
  Q_DECLARE_TR_FUNCTIONS(LargeFilesPage)
};

} // namespace ui
