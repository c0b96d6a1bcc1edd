/// The context of all texts that the headless program shows, and the codes that it ends with.
#pragma once

#include <QCoreApplication>

namespace cli {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(Cli)
};

enum ExitCode {
  kDone = 0,
  kStayed = 1, ///< something stayed that was to go, the clean was refused, or the output could not be written
  kUsage = 2,  ///< the arguments make no sense, or there is nobody to ask
  kInterrupted = 130,
};

} // namespace cli
